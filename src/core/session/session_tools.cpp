// Selecting tools, and the state that a drag of a tool keeps.
#include "core/session/session.h"

namespace vexlo::session {

using tools::Tool;

void Session::ClearTools() {
    Form.Status.RegionMeasure.clear();
    Form.SelectedTool = Tool::None;
    Form.ColorPickerSelected = false;
}

void Session::ResetDrawState() {
    Draw.Shape = {};
    RegionRect = {};
    RegionCells = {};
    Draw.PaintDragging = false;
    Draw.EraseDragging = false;
    Draw.RegionDragging = false;
    RegionExists = false;
    Draw.RegionReworked = false;
    picDisp.Cls();
    Form.PointerOfDisp = {};
    RefreshToolbar();
    m_host.RefreshDisplay();
}

void Session::SelectPaintTool() { ClickTool(Tool::Paint); }

void Session::ClickTool(Tool tool) {
    if (tool == Tool::None) return;
    if (!InArea()) {
        ClearTools();
        m_host.MsgBox(kNoIconYet, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    Form.ColorPickerSelected = false;
    if (Form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    if (Form.SelectedTool == tool) {
        Form.SelectedTool = Tool::None;
    } else {
        ClearTools();
        Form.SelectedTool = tool;
    }
    ResetDrawState();
}

void Session::ClickColorPicker() {
    if (!InArea()) {
        Form.ColorPickerSelected = false;
        m_host.MsgBox(kNoIconYet, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (Form.ColorPickerSelected) {
        Form.ColorPickerSelected = false;
    } else {
        ClearTools();
        Form.ColorPickerSelected = true;
    }
}

void Session::ClickClearAllTools() {
    if (InArea() && RegionExists) TakeUndoSnapshot();
    ClearTools();
    ResetDrawState();
}

bool Session::InsideIcon(int x, int y) const {
    const int w = picDisp.Width();
    const int h = picDisp.Height();
    if (Current().SizeCode == 1) return x <= w / 2 - 1 && y <= h / 2 - 1;
    return x <= w - 1 && y <= h - 1;
}

void Session::UpdatePointerShape(int x, int y) {
    using tools::PointerShape;
    tools::Pointer p;
    const Tool t = Form.SelectedTool;
    if (Form.ColorPickerSelected) {
        p = {PointerShape::Custom, Tool::None, true};
    } else if (t == Tool::None || t == Tool::Shift) {
        p = {};
    } else if (t != Tool::Region) {
        p = {PointerShape::Custom, t, false};
    } else if (!RegionExists) {
        p.Shape = PointerShape::Cross;
    } else {
        const tools::DispRect& r = RegionRect;
        const bool inside = x >= r.Left && x <= r.Right && y >= r.Top && y <= r.Bottom;
        if (Draw.RegionReworked) {
            p = inside ? tools::Pointer{PointerShape::Custom, Tool::Region, false} : tools::Pointer{};
        } else if ((r.Left - 4 <= x && x <= r.Left + 8) || (r.Right - 4 <= x && x <= r.Right + 8)) {
            p.Shape = PointerShape::SizeWE;
        } else if ((r.Top - 4 <= y && y <= r.Top + 8) || (r.Bottom - 4 <= y && y <= r.Bottom + 8)) {
            p.Shape = PointerShape::SizeNS;
        } else {
            p.Shape = inside ? PointerShape::SizeAll : PointerShape::Default;
        }
    }
    Form.PointerOfDisp = p;
}

}  // namespace vexlo::session
