// The floating Region: what the Region tool sees of the session, the lift and the redraw of
// the floating picture, a picture dropped on the icon as a Region, and the arrow keys.
#include "core/session/session.h"

namespace vexlo::session {

using tools::Tool;

namespace {

// The zoom, picDisp's size and the icon's, which the Region's cells are taken with.
tools::RegionScale ScaleOf(const EditingView& view, const EditedIcon& icon) {
    return {view.MagnifyStep(), view.Disp().Width(), view.Disp().Height(), icon.Image().Width(),
            icon.Image().Height()};
}

}  // namespace

tools::RegionMarks& RegionToolView::Marks() { return m_s.m_view.Region(); }
tools::RegionDrag& RegionToolView::Drag() { return m_s.m_floating.Drag(); }
tools::RegionScale RegionToolView::Scale() const { return ScaleOf(m_s.m_view, m_s.m_icon); }
void RegionToolView::ShowMeasure() { m_s.ShowRegionMeasure(); }
void RegionToolView::Lift(bool seeThrough) { m_s.LiftRegion(seeThrough); }
void RegionToolView::RedrawFloating() { m_s.RedrawFloatingRegion(); }

bool RegionToolView::PointerOnEdge() const {
    const tools::PointerShape shape = m_s.m_form.PointerOfDisp.Shape;
    return shape == tools::PointerShape::SizeNS || shape == tools::PointerShape::SizeWE;
}

void RegionToolView::DrawOutline() {
    m_s.m_view.DrawRegionOutline(m_s.Current().SizeCode);
    m_s.ShowRegionMeasure();
}

void RegionToolView::DropRegion() {
    m_s.ResetDrawState();
    m_s.ClearTools();
    m_s.ClickTool(Tool::Region);
    m_s.TakeUndoSnapshot();
}

void Session::LiftRegion(bool seeThrough) {
    RegionMarks& marks = m_view.Region();
    marks.Cells = tools::RegionToCells(marks.Rect, ScaleOf(m_view, m_icon));
    m_floating.Lift(m_icon.Image(), m_icon.Mask(), marks.Cells, seeThrough);
    tools::SetRegionLimits(marks.Rect, m_view.Disp().Width(), m_view.Disp().Height(), m_floating.Drag());
    tools::SetRegionAnchor(m_floating.Drag(), marks.Rect.Left, marks.Rect.Top);
}

void Session::RedrawFloatingRegion() {
    RegionMarks& marks = m_view.Region();
    marks.Cells = tools::RegionToCells(marks.Rect, ScaleOf(m_view, m_icon));
    m_floating.DrawOnto(m_icon.Image(), m_icon.Mask(), marks.Cells.Left, marks.Cells.Top);
    ComposeIcon();
    LetPendingEventsRun();
    MagnifyIcon();
}

void Session::PlaceFloatingPicture(const Surface& picture, int w, int h, bool seeThrough, int x, int y) {
    m_view.Disp().Cls();
    ResetDrawState();
    ClearTools();
    ClickTool(Tool::Region);
    m_draw.RegionReworked = true;
    RegionMarks& marks = m_view.Region();
    const int step = m_view.MagnifyStep();
    marks.Rect = tools::RegionOfPicture(x, y, w, h, step);
    marks.Cells = {x, y, x + w, y + h};
    tools::SetRegionAnchor(m_floating.Drag(), marks.Rect.Left, marks.Rect.Top);
    tools::SetRegionLimits(marks.Rect, m_view.Disp().Width(), m_view.Disp().Height(), m_floating.Drag());
    m_floating.Float(picture, w, h, seeThrough, m_icon.Image(), m_icon.Mask());
    marks.Exists = true;
    RedrawFloatingRegion();
}

void Session::NudgeRegion(int dx, int dy) {
    Enter();
    RegionMarks& marks = m_view.Region();
    if (!InArea() || !marks.Exists || m_draw.RegionDragging || m_form.SelectedTool != Tool::Region) return;
    tools::RegionDrag& drag = m_floating.Drag();
    const int step = m_view.MagnifyStep();
    const int nx = marks.Rect.Left + dx * step;
    const int ny = marks.Rect.Top + dy * step;
    drag.X = marks.Rect.Left;
    drag.Y = marks.Rect.Top;
    if (tools::MoveRefused(marks.Rect, drag, nx, ny)) return;
    drag.X = nx;
    drag.Y = ny;
    marks.Rect = {nx, ny, nx + marks.Rect.Right - marks.Rect.Left, ny + marks.Rect.Bottom - marks.Rect.Top};
    RedrawFloatingRegion();
}

}  // namespace vexlo::session
