#pragma once
// Opening an animated cursor into the editor's frames: CountAniFrames asks the cursor loader
// how many steps it draws, LoadAniFrames draws every step into a frame picture pair and then
// takes the timings and hot spot from the editor's own scan of the file (ani_timings.h).
#include <cstdint>
#include <functional>
#include <string>

#include "core/ani/ani_frames.h"

namespace vexlo::ani {

// The steps the loader draws: drawing from step 0 up while the step is below 128 and drawing
// succeeds; a file that draws all 128 is a still cursor, and counts 1. 0 when it can't be
// loaded.
std::int16_t CountAniFrames(const std::string& path);

struct AniLoadResult {
    bool Loaded = false;
    std::string Message;  // for an exclamation box titled "Vexlo" when not loaded
    explicit operator bool() const { return Loaded; }
};

// Fills set with count frames of the file at path: step i drawn normal onto white into
// AniImages[i + 1] and its mask onto black into AniMasks[i + 1] (both stored as their
// pictures), row i of AniFrames with hot spot 0 and PictureIndex i; then ReadAniTimings. On any
// failure set is left empty and the message is the one to show: path, CR LF, "Failed to read
// this ANI file" (count below 1), "Either an invalid ANI file or number of frames exceeds
// limit of 70." (above 70), "Failed to retrieve frames from the file" (not loaded),
// "Failed to retrieve one of the frames, i.e. " i CR LF (a step that doesn't draw, without the
// path), "Failed to read jiffies info of file." (the scan failed). pendingEvents, if given,
// runs after every step.
AniLoadResult LoadAniFrames(const std::string& path, int count, AniFrameSet& set,
                            const std::function<void()>& pendingEvents = {});

}  // namespace vexlo::ani
