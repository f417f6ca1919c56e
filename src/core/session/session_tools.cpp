// Selecting tools, and the state that a drag of a tool keeps.
#include "core/session/session.h"

namespace vexlo::session {

using tools::Tool;

void Session::ClearTools() {
    m_form.Status.RegionMeasure.clear();
    m_form.SelectedTool = Tool::None;
    m_form.ColorPickerSelected = false;
}

void Session::ResetDrawState() {
    m_draw.Shape = {};
    m_view.Region().Rect = {};
    m_view.Region().Cells = {};
    m_draw.PaintDragging = false;
    m_draw.EraseDragging = false;
    m_draw.RegionDragging = false;
    m_view.Region().Exists = false;
    m_draw.RegionReworked = false;
    m_view.Disp().Cls();
    m_form.PointerOfDisp = {};
    RefreshToolbar();
    m_host.RefreshDisplay();
}

void Session::ClickTool(Tool tool) {
    Enter();
    if (tool == Tool::None) return;
    if (!InArea()) {
        ClearTools();
        m_host.MsgBox(kNoIconYet, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    m_form.ColorPickerSelected = false;
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    if (m_form.SelectedTool == tool) {
        m_form.SelectedTool = Tool::None;
    } else {
        ClearTools();
        m_form.SelectedTool = tool;
    }
    ResetDrawState();
    if (tool == Tool::Shift && m_form.SelectedTool == Tool::Shift) {
        // Shift Directions starts a history of its own and keeps the picture it reads from.
        ClearUndoHistory();
        TakeUndoSnapshot();
        m_shift.Begin(m_icon.Composed());
    }
}

void Session::ClickColorPicker() {
    Enter();
    if (!InArea()) {
        m_form.ColorPickerSelected = false;
        m_host.MsgBox(kNoIconYet, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (m_form.ColorPickerSelected) {
        m_form.ColorPickerSelected = false;
    } else {
        ClearTools();
        m_form.ColorPickerSelected = true;
    }
}

void Session::ClickClearAllTools() {
    Enter();
    if (InArea() && m_view.Region().Exists) TakeUndoSnapshot();
    ClearTools();
    ResetDrawState();
}

void Session::UpdatePointerShape(int x, int y) {
    using tools::PointerShape;
    tools::Pointer p;
    const Tool t = m_form.SelectedTool;
    if (m_form.ColorPickerSelected) {
        p = {PointerShape::Custom, Tool::None, true};
    } else if (t == Tool::None || t == Tool::Shift) {
        p = {};
    } else if (t != Tool::Region) {
        p = {PointerShape::Custom, t, false};
    } else if (!m_view.Region().Exists) {
        p.Shape = PointerShape::Cross;
    } else {
        const tools::DispRect& r = m_view.Region().Rect;
        const bool inside = x >= r.Left && x <= r.Right && y >= r.Top && y <= r.Bottom;
        if (m_draw.RegionReworked) {
            p = inside ? tools::Pointer{PointerShape::Custom, Tool::Region, false} : tools::Pointer{};
        } else if ((r.Left - 4 <= x && x <= r.Left + 8) || (r.Right - 4 <= x && x <= r.Right + 8)) {
            p.Shape = PointerShape::SizeWE;
        } else if ((r.Top - 4 <= y && y <= r.Top + 8) || (r.Bottom - 4 <= y && y <= r.Bottom + 8)) {
            p.Shape = PointerShape::SizeNS;
        } else {
            p.Shape = inside ? PointerShape::SizeAll : PointerShape::Default;
        }
    }
    m_form.PointerOfDisp = p;
}

}  // namespace vexlo::session
