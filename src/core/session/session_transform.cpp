// The Rotate menu's flips and quarter turns, on the floating Region if there is one and else
// on the whole icon, Rotate At Any Selected Angle (its frame), and Shift Directions, which
// slides the whole icon with its pad.
#include "core/session/session.h"
#include "core/session/session_effect_frames.h"
#include "core/transform/flip_rotate.h"

namespace vexlo::session {

using tools::Tool;

void Session::ClickRotateSubmenu(int i) {
    static constexpr Surface (*kTransforms[4])(const Surface&) = {
        &transform::FlippedHorizontal, &transform::FlippedVertical, &transform::RotatedLeft,
        &transform::RotatedRight};
    if (i == 4) {
        Frames().ClickRotateSelectAngle();
        return;
    }
    if (i < 0 || i > 3) return;
    if (!NeedsIconInArea()) return;
    TransformIcon(kTransforms[i], i >= 2);
}

void Session::TransformIcon(Surface (*turn)(const Surface&), bool quarterTurn) {
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    RegionMarks& marks = m_view.Region();
    if (marks.Exists) {
        m_floating.Transform(turn);
        if (quarterTurn) {
            // The Region keeps its top left corner and swaps its width and height.
            const int x = marks.Cells.Left;
            const int y = marks.Cells.Top;
            const Surface& picture = m_floating.Image();
            marks.Rect = tools::RegionOfPicture(x, y, picture.Width(), picture.Height(), m_view.MagnifyStep());
            marks.Cells = {x, y, x + picture.Width(), y + picture.Height()};
            tools::SetRegionLimits(marks.Rect, m_view.Disp().Width(), m_view.Disp().Height(), m_floating.Drag());
            tools::SetRegionAnchor(m_floating.Drag(), marks.Rect.Left, marks.Rect.Top);
        }
        m_draw.RegionReworked = true;
        RedrawFloatingRegion();
    } else {
        tools::CopyPicture(turn(m_icon.Image()), m_icon.Image());
        tools::CopyPicture(turn(m_icon.Mask()), m_icon.Mask());
        ComposeIcon();
        MagnifyIcon();
    }
    Current().Changed = true;
    TakeUndoSnapshot();
}

void Session::ReleaseOnShiftPad(int x, int y) {
    Enter();
    if (!InArea() || m_form.SelectedTool != Tool::Shift) return;
    if (!m_shift.Click(x, y, m_icon.Image().Width(), m_icon.Image().Height())) return;
    m_shift.Redraw(m_icon.Image(), m_icon.Mask());
    ComposeIcon();
    MagnifyIcon();
    TakeUndoSnapshot();
    Current().Changed = true;
}

}  // namespace vexlo::session
