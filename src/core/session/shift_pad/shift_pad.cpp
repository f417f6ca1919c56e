#include "core/session/shift_pad/shift_pad.h"

#include "core/transform/shift_pad.h"

namespace vexlo::session {

ShiftPad::ShiftPad() : m_picture(transform::ShiftPadPicture(kShiftPadSide)) {}

void ShiftPad::Begin(const Surface& composed) {
    m_start = composed;
    m_shiftX = 0;
    m_shiftY = 0;
}

bool ShiftPad::Click(int x, int y, int w, int h) {
    return transform::StepShift(transform::ShiftPadCell(x, y, m_picture.Width()), w, h, m_shiftX, m_shiftY);
}

void ShiftPad::Redraw(Surface& image, Surface& mask) const {
    transform::RedrawShifted(m_start, m_shiftX, m_shiftY, image, mask);
}

}  // namespace vexlo::session
