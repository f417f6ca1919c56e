#pragma once
// The RIFF form of an animated cursor, walked chunk by chunk. Every chunk is a four-letter id,
// a u32 size and that many bytes, then one pad byte when the size is odd; a LIST chunk holds a
// four-letter list type and chunks of its own.
//
//   "RIFF" size "ACON"
//     "anih" 36    the header: its size, frames, steps, width, height, bit count, planes,
//                  default display rate in jiffies, flags
//     "rate"       a u32 of jiffies per step (optional)
//     "seq "       a u32 frame index per step (optional; without it step k shows frame k)
//     "LIST" "fram" of "icon" chunks, each an icon or cursor file: the frames
//     "LIST" "INFO" of "INAM" (title) and "IART" (artist), zero-ended texts (optional)
//
// Chunks may come in any order; unknown ones are passed over. Every size and count is checked
// against the file before it is used, and nothing is sized from a count that the file's bytes
// don't back.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/files/byte_reader.h"

namespace vexlo::ani {

using files::Bytes;

inline constexpr std::uint32_t kAniHeaderBytes = 36;
inline constexpr std::uint32_t kAniFlagIcon = 1;      // frames are icon or cursor files
inline constexpr std::uint32_t kAniFlagSequence = 2;  // a seq chunk orders the steps

// The anih chunk's fields.
struct AniHeader {
    std::uint32_t HeaderSize = kAniHeaderBytes;
    std::uint32_t Frames = 0;
    std::uint32_t Steps = 0;
    std::uint32_t Width = 0;
    std::uint32_t Height = 0;
    std::uint32_t BitCount = 0;
    std::uint32_t Planes = 0;
    std::uint32_t DisplayRate = 0;  // jiffies of every step without a rate chunk
    std::uint32_t Flags = 0;
};

// Where a chunk's data lies in the file.
struct ByteRange {
    std::uint32_t Offset = 0;
    std::uint32_t Size = 0;
};

// An animated cursor as its chunks tell it, checked: Frames holds Header.Frames icon chunks
// (more in the file are left out), Sequence is empty or holds Header.Steps frame indexes below
// Header.Frames, Rates is empty or holds Header.Steps entries.
struct AconFile {
    AniHeader Header;
    std::vector<std::uint32_t> Rates;
    std::vector<std::uint32_t> Sequence;
    std::vector<ByteRange> Frames;
    std::optional<std::string> Title;   // INAM, up to its first zero byte
    std::optional<std::string> Artist;  // IART

    int StepCount() const { return static_cast<int>(Header.Steps); }
    int FrameCount() const { return static_cast<int>(Frames.size()); }
    // The frame that step shows (step in 0..StepCount()-1).
    int FrameOfStep(int step) const;
    // The step's jiffies: its rate entry, else the header's display rate.
    std::uint32_t JiffiesOfStep(int step) const;
    // The bytes of frame i's icon chunk.
    Bytes FrameBytes(Bytes file, int i) const;
};

// True if data starts as a RIFF form of type ACON.
bool IsAconFile(Bytes data);

// Walks and checks the file. False with the reason in why (out untouched): not a RIFF form of
// type ACON, a RIFF size larger than the file or too small for its form type, a chunk or LIST
// running past its container, a LIST too short for its type, an anih chunk shorter than its 36
// bytes or missing, no frames, counts of frames or steps that the chunks don't back, a seq entry
// past the frames, a rate chunk shorter than the steps. Bytes after the RIFF size are ignored.
bool ReadAconFile(Bytes data, AconFile& out, std::string& why);

}  // namespace vexlo::ani
