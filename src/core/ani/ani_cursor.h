#pragma once
// Our stand-in for the platform's cursor loader and its icon drawing (LoadCursorFromFileA and
// DrawIconEx): a cursor loaded from a file answers how many steps it has and draws step k's
// 32x32 picture, image or mask onto a Surface. An animated cursor draws the frame that its
// sequence names for the step and fails for a step beyond its steps; a still cursor (a cursor
// or icon file) draws its one picture at any step.
//
// Loading checks the whole form and every frame (each frame's chosen image lies whole in the
// file) but decodes nothing: a frame is decoded when it is drawn, and only the last one drawn
// is kept, so that no file makes the loader hold more than the file and one frame.
#include <cstdint>
#include <string>
#include <vector>

#include "core/ani/acon_file.h"
#include "core/ani/frame_image.h"
#include "core/files/cursor_file.h"
#include "core/surface/surface.h"

namespace vexlo::ani {

// What Draw puts on the target, as DrawIconEx's DI_MASK, DI_IMAGE, DI_NORMAL.
using files::CursorDraw;

class AniCursor {
public:
    bool IsAnimated() const { return m_animated; }
    // The steps of an animated cursor; 1 for a still one; 0 when nothing is loaded.
    int StepCount() const;
    int FrameCount() const { return static_cast<int>(m_frames.size()); }
    // The frame that step shows (0 for a still cursor); -1 for a step it can't draw.
    int FrameOfStep(int step) const;
    const AconFile& Form() const { return m_form; }

    // Draws step's 32x32 at (x, y) onto target, clipped to it: the mask copied (white where
    // transparent), the image copied, or normal (mask with SRCAND, then image with SRCINVERT:
    // the cursor over what is there). False, with target untouched, for a negative step, a step
    // beyond an animated cursor's steps, or a frame that fails to decode.
    bool Draw(surface::Surface& target, int x, int y, CursorDraw what, int step);

    // The decoded planes of frame i (the cached one is reused); false if it can't be decoded.
    bool Frame(int i, FramePlanes& out);

private:
    friend bool LoadAniCursor(std::vector<std::uint8_t> data, AniCursor& out, std::string* why);

    const FramePlanes* Decoded(int frame);

    std::vector<std::uint8_t> m_file;
    bool m_animated = false;
    AconFile m_form;
    std::vector<ByteRange> m_frames;  // the icon or cursor file of each frame
    int m_cachedFrame = -1;
    FramePlanes m_cache;
};

// Loads a cursor from a file's bytes: a RIFF ACON form (every frame must hold a usable image),
// or an icon or cursor file with a usable image. False with the reason in *why (if given);
// out is replaced only on success.
bool LoadAniCursor(std::vector<std::uint8_t> data, AniCursor& out, std::string* why = nullptr);
// The same from a file (read whole, at most files::kMaxFileBytes).
bool LoadAniCursor(const std::string& path, AniCursor& out, std::string* why = nullptr);

}  // namespace vexlo::ani
