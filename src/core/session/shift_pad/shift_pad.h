#pragma once
// Shift Directions: the pad picShiftDir, the displacement since the tool was turned on
// (ShiftX, ShiftY) and the composed picture as it was then (picTemp), from which every click
// redraws the planes, so that pixels pushed over the edge come back when shifted back.
#include "core/surface/surface.h"

namespace vexlo::session {

using surface::Surface;

inline constexpr int kShiftPadSide = 45;  // picShiftDir's inner width and height

class ShiftPad {
public:
    ShiftPad();

    int ShiftX() const { return m_shiftX; }
    int ShiftY() const { return m_shiftY; }
    const Surface& Start() const { return m_start; }
    // The pad's picture, which the window shows as picShiftDir.
    const Surface& Picture() const { return m_picture; }

    // The tool turned on: the composed picture kept, no displacement.
    void Begin(const Surface& composed);
    // A release at (x, y) of the pad on an icon of w x h: the displacement steps. False when
    // the click changes nothing at all.
    bool Click(int x, int y, int w, int h);
    // The planes from the kept picture at the present displacement.
    void Redraw(Surface& image, Surface& mask) const;

private:
    Surface m_start;
    Surface m_picture;
    int m_shiftX = 0;
    int m_shiftY = 0;
};

}  // namespace vexlo::session
