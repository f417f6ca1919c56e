#pragma once
// The editor's reading of an animated cursor's timings and hot spot. It doesn't walk chunks:
// it searches the whole file for the first place where a tag's bytes stand, wherever that is
// (inside a title text too), and takes single bytes at fixed distances from it, so only the low
// byte of any field is seen. Positions here count from 1, the first byte of the file.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/ani/ani_frames.h"
#include "core/files/byte_reader.h"

namespace vexlo::ani {

using files::Bytes;

// The tags, two hexadecimal digits a byte.
inline constexpr std::string_view kTagRiff = "52494646";          // "RIFF"
inline constexpr std::string_view kTagAnih = "616E6968";          // "anih"
inline constexpr std::string_view kTagRate = "72617465";          // "rate"
inline constexpr std::string_view kTagSeq = "73657120";           // "seq "
inline constexpr std::string_view kTagFramIcon = "6672616D69636F6E";  // "fram" then "icon"

// The 1-based position of the first match of the tag at or after start (a start below 1
// counts as 1), or 0 when there is none or hexTag isn't whole bytes of hexadecimal digits. On
// a match start is set to its position.
std::size_t FindAniTag(Bytes buffer, std::string_view hexTag, std::size_t& start);

// Fills the Jiffies of every row (clamped to 1..90) and, when the first frame is a cursor,
// HotX and HotY of every row (clamped to 0..31) by the scan: "RIFF" at position 1 and an
// "anih" are needed; the jiffies come from the first "rate" (one entry per row), else the byte
// 8 before the first "seq ", else the anih display rate; the hot spot from the first "fram"
// followed by "icon". False, with rows unchanged, when a tag that is needed is missing or a
// byte to be read lies past the end of the buffer.
bool ScanAniTimings(Bytes buffer, std::vector<AniFrameRecord>& rows);

// ReadAniTimings: reads the whole file into set.AniFileBuffer (where it stays) and scans it
// into set.AniFrames. False for a file that can't be read, an empty one, or a failed scan.
bool ReadAniTimings(const std::string& path, AniFrameSet& set);

}  // namespace vexlo::ani
