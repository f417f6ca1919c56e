// The pointer on the Editing Area: what every press, move and release does before the tool
// gets it, and the narrow view of the session that the tools work through.
#include "core/session/session.h"

namespace vexlo::session {

using tools::Tool;

tools::ToolEvent Session::ToolEventAt(int x, int y, bool modifier) const {
    return {x, y, m_view.CellOf(x), m_view.CellOf(y), modifier};
}

void Session::PointerPressed(Button button, int x, int y) {
    Enter();
    if (button != Button::Left || !InArea() || !AnyToolSelected()) return;
    if (x < 0 || y < 0 || !m_view.InsideIcon(x, y, Current().SizeCode)) return;
    const tools::ToolEvent e = ToolEventAt(x, y, false);
    m_draw.CellX = e.CellX;
    m_draw.CellY = e.CellY;
    if (FloatingTextPressed(e)) return;
    if (const tools::ToolStrategy* tool = tools::StrategyOf(m_form.SelectedTool)) tool->Press(*this, e);
}

void Session::PointerMoved(int x, int y, bool modifierDown) {
    Enter();
    LetPendingEventsRun();
    if (!InArea()) return;
    if (x < 0 || y < 0 || !m_view.InsideIcon(x, y, Current().SizeCode)) {
        m_form.Status.DispXY.clear();
        return;
    }
    LetPendingEventsRun();
    UpdatePointerShape(x, y);
    const tools::ToolEvent e = ToolEventAt(x, y, modifierDown);
    m_draw.CellX = e.CellX;
    m_draw.CellY = e.CellY;
    PointerOverDisp(x, y);
    if (!AnyToolSelected()) return;
    if (FloatingTextMoved(e)) return;
    if (const tools::ToolStrategy* tool = tools::StrategyOf(m_form.SelectedTool)) tool->Move(*this, e);
}

void Session::PointerReleased(int x, int y, bool shiftDown) {
    Enter();
    m_draw.PaintDragging = false;
    m_draw.EraseDragging = false;
    m_draw.RegionDragging = false;
    if (!InArea()) return;
    const tools::ToolEvent e = ToolEventAt(x, y, shiftDown);
    if (m_form.VisibleFrame == Frame::SaveAsCursor) {
        m_form.CursorHotSpot = {e.CellX, e.CellY};
        return;
    }
    if (m_form.ColorPickerSelected) {
        m_selectedColor = m_view.Disp().GetPixel(x, y);
    } else {
        if (!AnyToolSelected()) return;
        Current().Changed = true;
        m_draw.CellX = e.CellX;
        m_draw.CellY = e.CellY;
        if (const tools::ToolStrategy* tool = tools::StrategyOf(m_form.SelectedTool)) tool->Release(*this, e);
    }
    RefreshToolbar();
}

// --- What the tools see ------------------------------------------------------------------

Surface& Session::Image() { return m_icon.Image(); }
Surface& Session::Mask() { return m_icon.Mask(); }
const Surface& Session::Composed() const { return m_icon.Composed(); }
Surface& Session::Temp() { return m_icon.Temp(); }
Surface& Session::ImageTemp() { return m_icon.ImageTemp(); }
Surface& Session::Disp() { return m_view.Disp(); }
tools::DispRect& Session::Band() { return m_view.Band(); }
tools::DispRect& Session::RegionRect() { return m_view.Region().Rect; }
tools::DrawState& Session::Draw() { return m_draw; }
Color Session::Selected() const { return m_selectedColor; }
int Session::BrushIndex() const { return m_form.BrushSizeIndex; }
int Session::MagnifyStep() const { return m_view.MagnifyStep(); }
void Session::MarkChanged() { Current().Changed = true; }
void Session::RefreshDisplay() { m_host.RefreshDisplay(); }
void Session::Record() { TakeUndoSnapshot(); }

void Session::ShowStroke() {
    ComposeIcon();
    MagnifyIcon();
}

void Session::Apply(const std::function<void(Surface& image, Surface& mask)>& edit) { ApplyToIcon(edit); }

}  // namespace vexlo::session
