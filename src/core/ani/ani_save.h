#pragma once
// Writing the editor's frames as an animated cursor. The layout is fixed, with no pad bytes
// and no seq chunk (steps and frames are the same list), N frames of data Si each:
//
//   0              "RIFF", u32 file length - 8, "ACON"
//   12             "LIST", u32 a + b + 22, "INFO",
//                  "INAM", u32 a + 1, the title and a zero byte,
//                  "IART", u32 b + 1, the artist and a zero byte     (a, b: their lengths)
//   42 + a + b     "anih", u32 36, then 36, N, N, 0, 0, 0, 0, 10 (display rate), 1 (flags)
//   86 + a + b     "rate", u32 4N, the Jiffies of every frame as a u32
//   94 + a + b + 4N  "LIST", u32 4 + sum of (8 + Si), "fram",
//                  then per frame "icon", u32 Si, and the frame's cursor file
//
// Each frame is a one-image 32x32 cursor file with the hot spot of the save, staged through a
// temporary file in TempDir ("ANI_Tmp_00" to "ANI_Tmp_69") that stays until the next save or
// the end of the session.
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "core/ani/ani_frames.h"
#include "core/surface/surface.h"

namespace vexlo::ani {

inline constexpr const char* kAniTitle = "Edited with Vexlo of Dunmeres Works";
inline constexpr const char* kAniArtist = "DunmeresWorks";
inline constexpr std::uint32_t kAniSavedDisplayRate = 10;

// TempDir (a "/" added behind it when it lacks one), "ANI_Tmp_" and the 0-based index with a
// leading "0" below 10: ANI_Tmp_00, ANI_Tmp_09, ANI_Tmp_10.
std::string AniTempFileName(const std::string& tempDir, int index);

// Deletes the temporary file of every index of names (each name built again from tempDir),
// where one stands, and empties names. Nothing is deleted when the first name is empty.
void RemoveAniTempFiles(const std::string& tempDir, AniTempFiles& names);

// The icon planes of a frame picture pair (image on white, mask black where opaque): black
// image and white mask where transparent, the color and a black mask where opaque; a white
// pixel is opaque only where the frame's mask is black.
void FrameToIconPlanes(const surface::Surface& frameImage, const surface::Surface& frameMask,
                       surface::Surface& image, surface::Surface& mask);

// A frame's cursor file: the cursor writer's bytes (depth from the colors, 1, 4, 8 or 24 bits)
// with the hot spot; with keepTrueColor (the current slot is true color with alpha values)
// always 24 bits. Empty if a plane isn't 32x32 or the hot spot lies outside 0..31.
std::vector<std::uint8_t> BuildAniFrameBytes(const surface::Surface& image, const surface::Surface& mask,
                                             int hotX, int hotY, bool keepTrueColor);

// The whole file of the layout above: frames[i] is frame i's data, rows[i].Jiffies its rate.
// Frames and rows must be of one length.
std::vector<std::uint8_t> BuildAniFileBytes(std::span<const std::vector<std::uint8_t>> frames,
                                            std::span<const AniFrameRecord> rows);

struct AniSaveRequest {
    std::string TargetPath;
    std::string TempDir;
    int HotX = 0;  // the hot spot boxes
    int HotY = 0;
    bool KeepTrueColor = false;  // the current slot has ColorCount -1 and HasAlpha
    // Told the percent done before each frame and 100 at the end; the place to let pending
    // events run.
    std::function<void(int)> Progress;
};

enum class AniSaveOutcome { Saved, NoFrames, CountDiscrepant, FrameNotSaved, TempFileMissing, Fault };

struct AniSaveResult {
    AniSaveOutcome Outcome = AniSaveOutcome::Fault;
    // The text of the box: "No frames prepared yet", "Image count discrepant to record of
    // number of frames", "Failed to save frame " i + 1, "Process disrupted due to failure to
    // find a temporary file" CR LF name; for Fault the description for the common error box
    // under kSaveAniFaultLabel.
    std::string Message;
    int Number = 0;  // for Fault: the errno of the step that failed
    explicit operator bool() const { return Outcome == AniSaveOutcome::Saved; }
};

// SaveANIFile without its dialogs: writes every frame's temporary file (names into tempFiles),
// sets HotX and HotY of every row to the request's, and writes the target beside itself and
// renames it over the old file, so that a failure leaves a file that stood there as it was.
AniSaveResult SaveANIFile(AniFrameSet& set, AniTempFiles& tempFiles, const AniSaveRequest& request);

}  // namespace vexlo::ani
