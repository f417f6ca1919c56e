// The pointer on the Editing Area: pressed, moved and released, and what each tool does in
// each of them.
#include "core/session/session.h"
#include "core/tools/fill.h"
#include "core/tools/spotlight.h"

namespace vexlo::session {

using tools::Tool;

void Session::PointerPressed(Button button, int x, int y) {
    if (button != Button::Left || !InArea() || !AnyToolSelected()) return;
    if (x < 0 || y < 0 || !m_view.InsideIcon(x, y, Current().SizeCode)) return;
    m_draw.CellX = x / m_view.MagnifyStep();
    m_draw.CellY = y / m_view.MagnifyStep();
    const Tool t = m_form.SelectedTool;
    if (t == Tool::Paint || t == Tool::Erase) {
        Current().Changed = true;
        (t == Tool::Paint ? m_draw.PaintDragging : m_draw.EraseDragging) = true;
        m_draw.Shape = {m_draw.CellX, m_draw.CellY, m_draw.CellX, m_draw.CellY};
        PlotPaintErase(t == Tool::Erase);
        ComposeIcon();
        MagnifyIcon();
    } else if (tools::IsShapeTool(t)) {
        m_draw.SnapX = tools::SnapCoordinate(x, m_view.MagnifyStep(), 1);
        m_draw.SnapY = tools::SnapCoordinate(y, m_view.MagnifyStep(), 1);
        m_draw.PaintDragging = true;
        m_draw.Shape = {m_draw.CellX, m_draw.CellY, m_draw.CellX, m_draw.CellY};
        m_view.Band() = {m_draw.SnapX, m_draw.SnapY, m_draw.SnapX, m_draw.SnapY};
        if (t == Tool::Line || t == Tool::BrokenLine) {
            m_view.DrawLineBand();
        } else {
            m_view.DrawBoxBand();
            if (t != Tool::Rectangle && t != Tool::FilledRectangle) m_draw.OvalRadius = 0;
        }
        m_host.RefreshDisplay();
    }
    // Fill, Replace Color and Shift Directions do nothing on press; the Region's own drag
    // starts here once it exists.
}

void Session::PointerMoved(int x, int y, bool modifierDown) {
    LetPendingEventsRun();
    if (!InArea()) return;
    if (x < 0 || y < 0 || !m_view.InsideIcon(x, y, Current().SizeCode)) {
        m_form.Status.DispXY.clear();
        return;
    }
    LetPendingEventsRun();
    UpdatePointerShape(x, y);
    m_draw.CellX = x / m_view.MagnifyStep();
    m_draw.CellY = y / m_view.MagnifyStep();
    PointerOverDisp(x, y);
    if (!AnyToolSelected()) return;
    const Tool t = m_form.SelectedTool;
    if (t == Tool::Paint || t == Tool::Erase) {
        const bool dragging = t == Tool::Paint ? m_draw.PaintDragging : m_draw.EraseDragging;
        if (!dragging) return;
        PlotPaintErase(t == Tool::Erase);
        ComposeIcon();
        m_draw.Shape.Left = m_draw.CellX;
        m_draw.Shape.Top = m_draw.CellY;
        MagnifyIcon();
        return;
    }
    if (!tools::IsShapeTool(t)) return;
    m_draw.SnapX = tools::SnapCoordinate(x, m_view.MagnifyStep(), 1);
    m_draw.SnapY = tools::SnapCoordinate(y, m_view.MagnifyStep(), 1);
    if (!m_draw.PaintDragging) return;
    m_view.Disp().Cls();
    m_view.Band().Right = m_draw.SnapX;
    m_view.Band().Bottom = m_draw.SnapY;
    m_draw.Shape.Right = m_draw.CellX;
    m_draw.Shape.Bottom = m_draw.CellY;
    if (t == Tool::Spotlight) tools::SpotlightLimit(m_view.Band(), m_draw.Shape, m_view.MagnifyStep());
    if (modifierDown) {
        const int w = m_icon.Image().Width();
        const int h = m_icon.Image().Height();
        tools::ConstrainSquare(m_draw.Shape.Left, m_draw.Shape.Right, m_draw.Shape.Top,
                               m_draw.Shape.Bottom, w - 1, h - 1);
        tools::ConstrainSquare(m_view.Band().Left, m_view.Band().Right, m_view.Band().Top, m_view.Band().Bottom,
                               w * m_view.MagnifyStep() - 1, h * m_view.MagnifyStep() - 1);
        tools::ConstrainSquare(m_view.Region().Rect.Left, m_view.Region().Rect.Right, m_view.Region().Rect.Top,
                               m_view.Region().Rect.Bottom, w * m_view.MagnifyStep() - 1, h * m_view.MagnifyStep() - 1);
    }
    if (t == Tool::Line || t == Tool::BrokenLine) {
        m_view.DrawLineBand();
    } else {
        m_view.DrawBoxBand();
        if (t != Tool::Rectangle && t != Tool::FilledRectangle) DrawOvalBand();
    }
    m_host.RefreshDisplay();
}

void Session::PointerReleased(int x, int y, bool shiftDown) {
    m_draw.PaintDragging = false;
    m_draw.EraseDragging = false;
    m_draw.RegionDragging = false;
    if (!InArea()) return;
    if (m_form.VisibleFrame == Frame::SaveAsCursor) {
        m_form.CursorHotSpot = {x / m_view.MagnifyStep(), y / m_view.MagnifyStep()};
        return;
    }
    if (m_form.ColorPickerSelected) {
        m_selectedColor = m_view.Disp().GetPixel(x, y);
    } else {
        if (!AnyToolSelected()) return;
        Current().Changed = true;
        m_draw.CellX = x / m_view.MagnifyStep();
        m_draw.CellY = y / m_view.MagnifyStep();
        const Tool t = m_form.SelectedTool;
        if (t == Tool::Paint || t == Tool::Erase) {
            TakeUndoSnapshot();
        } else if (t == Tool::Fill || t == Tool::ReplaceColor) {
            m_draw.Shape.Left = m_draw.CellX;
            m_draw.Shape.Top = m_draw.CellY;
            if (t == Tool::Fill)
                tools::FillAt(m_icon.Image(), m_icon.Mask(), m_icon.Composed(), m_draw.CellX, m_draw.CellY, m_selectedColor, shiftDown);
            else
                tools::ReplaceColorAt(m_icon.Image(), m_icon.Mask(), m_icon.Composed(), m_draw.CellX, m_draw.CellY, m_selectedColor, shiftDown);
            surface::MakeSameSize(m_icon.Composed(), m_icon.Temp());
            ComposeIcon();
            MagnifyIcon();
            TakeUndoSnapshot();
        } else if (tools::IsShapeTool(t)) {
            PlotShape(t);
            ComposeIcon();
            MagnifyIcon();
            TakeUndoSnapshot();
        }
    }
    RefreshToolbar();
}

void Session::DrawOvalBand() {
    if (tools::ShapeGeometry(m_view.Band().Left, m_view.Band().Top, m_view.Band().Right, m_view.Band().Bottom, m_draw) <= 0) return;
    m_view.Disp().Circle(m_draw.OvalCenterX, m_draw.OvalCenterY, m_draw.OvalRadius, kBlack, m_draw.OvalAspect,
                   surface::kDottedInvertPen);
}

}  // namespace vexlo::session
