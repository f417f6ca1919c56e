#pragma once
// The placed text while it floats over the icon, before it is dropped: its see-through
// picture (0xC0C0C0 where nothing is), the planes as they were under it, and its place in
// cells. Each move rebuilds the planes from what was under it and draws the text anew.
//
// This keeps the text's placement until the floating Region of the Editing Area can take the
// picture over; it is the one seam between the Text effect and the Region: Lift is where the
// text is handed over, MoveTo what a drag does, Drop where it ends.
#include "core/surface/surface.h"

namespace vexlo::session {

class FloatingText {
public:
    bool Active() const { return m_active; }
    int Left() const { return m_left; }
    int Top() const { return m_top; }
    int Width() const { return m_picture.Width(); }
    int Height() const { return m_picture.Height(); }
    const surface::Surface& Picture() const { return m_picture; }

    // The text picture floats at the icon's top left over the planes as they are.
    void Lift(const surface::Surface& picture, const surface::Surface& image,
              const surface::Surface& mask);
    // The planes: what lay under the text, with the text's cells painted on it.
    void DrawInto(surface::Surface& image, surface::Surface& mask) const;
    // Whether the cell lies on the text's rectangle, borders included.
    bool Contains(int cellX, int cellY) const;
    // A press at a cell on the text: the offset of the grab is kept for the moves.
    void Grab(int cellX, int cellY);
    // A drag to a cell: the text's top left follows the grab, within the limits (70 percent
    // of its size may leave at the left and top, 70 percent at the right and bottom). False
    // when the place is the same or the move would pass a limit.
    bool MoveTo(int cellX, int cellY, int iconSide);
    // The text stays in the planes where it stands; only the floating state goes.
    void Drop() { m_active = false; }

private:
    bool m_active = false;
    surface::Surface m_picture, m_imageUnder, m_maskUnder;
    int m_left = 0, m_top = 0;
    int m_grabX = 0, m_grabY = 0;
};

}  // namespace vexlo::session
