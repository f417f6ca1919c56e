#pragma once
// The frames of an animated cursor as the editor holds them, and the texts of reading and
// saving them. The window's session (core/session/ani_frames) owns one AniFrameSet; the format
// code here fills it from a file and writes it out.
//
// A frame picture pair: the image shows the frame on white (a transparent pixel is 0xFFFFFF),
// the mask is black where the frame is opaque and white where it is transparent; an opaque
// white pixel is 0xFFFFFF in the image and black in the mask.
#include <cstdint>
#include <string>
#include <vector>

#include "core/surface/surface.h"

namespace vexlo::ani {

inline constexpr int kAniFrameSide = 32;
// The most frames a session holds and a file may bring in.
inline constexpr int kAniFrameLimit = 70;

// One row of AniFrames: the frame's timing in jiffies (1 to 90), the hot spot (0 to 31) and an
// order mark set on load.
struct AniFrameRecord {
    std::int16_t Jiffies = 0;
    std::int16_t HotX = 0;
    std::int16_t HotY = 0;
    std::int16_t PictureIndex = 0;
    friend bool operator==(const AniFrameRecord&, const AniFrameRecord&) = default;
};

// The frames of one session. AniFrames is 0-based; AniImages and AniMasks are 1-based: entry 0
// is a white 32x32 picture and never a frame, so N frames have N + 1 entries. AniFileBuffer
// holds the whole file while its timings are scanned and stays until the next scan.
struct AniFrameSet {
    std::vector<AniFrameRecord> AniFrames;
    std::vector<surface::Surface> AniImages;
    std::vector<surface::Surface> AniMasks;
    std::vector<std::uint8_t> AniFileBuffer;

    // N, the highest index of AniImages (0 when there is none).
    int FrameCount() const { return AniImages.empty() ? 0 : static_cast<int>(AniImages.size()) - 1; }
    // Back to no frames: every table and the buffer emptied.
    void Clear();
    // Gives AniImages and AniMasks the bounds 0 to n, every entry white 32x32 (entry 0 stays so).
    void ResetPictures(int n);
};

// The temporary frame files of the last save, by frame index.
using AniTempFiles = std::vector<std::string>;

// ---- Texts -----------------------------------------------------------------------------

inline constexpr const char* kAniCrLf = "\r\n";
inline constexpr const char* kFailedToReadAni = "Failed to read this ANI file";
inline constexpr const char* kAniFrameLimitText = "Either an invalid ANI file or number of frames exceeds limit of ";
inline constexpr const char* kFailedToRetrieveFrames = "Failed to retrieve frames from the file";
inline constexpr const char* kFailedToRetrieveOneFrame = "Failed to retrieve one of the frames, i.e. ";
inline constexpr const char* kFailedToReadJiffies = "Failed to read jiffies info of file.";
inline constexpr const char* kNoFramesPrepared = "No frames prepared yet";
inline constexpr const char* kImageCountDiscrepant = "Image count discrepant to record of number of frames";
inline constexpr const char* kFailedToSaveFrame = "Failed to save frame ";
inline constexpr const char* kTempFileMissing = "Process disrupted due to failure to find a temporary file";
inline constexpr const char* kSaveAniFaultLabel = "SaveANIFile.  Failed to save this ani file.";
inline constexpr const char* kAniFileFilterSave = "Animated cursor files (*.ani)|*.ani";
inline constexpr const char* kAniFileFilterOpen = "Animated cursor files (*.ani)|*.ani|";
inline constexpr const char* kAniDefaultExtension = "ani";

// The question before a save: the hot spot to be written (the texts of the two boxes) and the
// one row 0 holds now, each line ending in CR LF.
std::string AniSaveQuestion(const std::string& boxX, const std::string& boxY, int rowHotX, int rowHotY);
// The name the save dialog proposes: the stem of fileName when it holds a ".", else fileName.
std::string AniSaveProposedName(const std::string& fileName);

}  // namespace vexlo::ani
