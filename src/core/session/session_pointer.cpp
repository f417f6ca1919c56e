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
    if (const tools::ToolStrategy* tool = tools::StrategyOf(m_form.SelectedTool)) tool->Press(m_toolView, e);
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
    if (const tools::ToolStrategy* tool = tools::StrategyOf(m_form.SelectedTool)) tool->Move(m_toolView, e);
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
        if (const tools::ToolStrategy* tool = tools::StrategyOf(m_form.SelectedTool)) tool->Release(m_toolView, e);
    }
    RefreshToolbar();
}

// --- What the tools see ------------------------------------------------------------------

Surface& SessionToolView::Image() { return m_s.m_icon.Image(); }
Surface& SessionToolView::Mask() { return m_s.m_icon.Mask(); }
const Surface& SessionToolView::Composed() const { return m_s.m_icon.Composed(); }
Surface& SessionToolView::Temp() { return m_s.m_icon.Temp(); }
Surface& SessionToolView::ImageTemp() { return m_s.m_icon.ImageTemp(); }
Surface& SessionToolView::Disp() { return m_s.m_view.Disp(); }
tools::DispRect& SessionToolView::Band() { return m_s.m_view.Band(); }
tools::DispRect& SessionToolView::RegionRect() { return m_s.m_view.Region().Rect; }
tools::DrawState& SessionToolView::Draw() { return m_s.m_draw; }
Color SessionToolView::Selected() const { return m_s.m_selectedColor; }
int SessionToolView::BrushIndex() const { return m_s.m_form.BrushSizeIndex; }
int SessionToolView::MagnifyStep() const { return m_s.m_view.MagnifyStep(); }
void SessionToolView::MarkChanged() { m_s.Current().Changed = true; }
void SessionToolView::RefreshDisplay() { m_s.m_host.RefreshDisplay(); }
void SessionToolView::Record() { m_s.TakeUndoSnapshot(); }
void SessionToolView::LetPendingEventsRun() { m_s.LetPendingEventsRun(); }
tools::RegionContext& SessionToolView::Region() { return m_s.m_regionTool; }

void SessionToolView::ShowStroke() {
    m_s.ComposeIcon();
    m_s.MagnifyIcon();
}

void SessionToolView::Apply(const std::function<void(Surface& image, Surface& mask)>& edit) {
    m_s.ApplyToIcon(edit);
}

}  // namespace vexlo::session
