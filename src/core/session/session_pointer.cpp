// The pointer on the Editing Area: pressed, moved and released, and what each tool does in
// each of them.
#include "core/session/session.h"
#include "core/tools/fill.h"
#include "core/tools/spotlight.h"

namespace vexlo::session {

using tools::Tool;

void Session::PointerPressed(Button button, int x, int y) {
    if (button != Button::Left || !InArea() || !AnyToolSelected()) return;
    if (x < 0 || y < 0 || !InsideIcon(x, y)) return;
    Draw.CellX = x / MagnifyStep;
    Draw.CellY = y / MagnifyStep;
    const Tool t = Form.SelectedTool;
    if (t == Tool::Paint || t == Tool::Erase) {
        Current().Changed = true;
        (t == Tool::Paint ? Draw.PaintDragging : Draw.EraseDragging) = true;
        Draw.Shape = {Draw.CellX, Draw.CellY, Draw.CellX, Draw.CellY};
        PlotPaintErase(t == Tool::Erase);
        ComposeIcon();
        MagnifyIcon();
    } else if (tools::IsShapeTool(t)) {
        Draw.SnapX = tools::SnapCoordinate(x, MagnifyStep, 1);
        Draw.SnapY = tools::SnapCoordinate(y, MagnifyStep, 1);
        Draw.PaintDragging = true;
        Draw.Shape = {Draw.CellX, Draw.CellY, Draw.CellX, Draw.CellY};
        Band = {Draw.SnapX, Draw.SnapY, Draw.SnapX, Draw.SnapY};
        if (t == Tool::Line || t == Tool::BrokenLine) {
            DrawLineBand();
        } else {
            DrawBoxBand();
            if (t != Tool::Rectangle && t != Tool::FilledRectangle) Draw.OvalRadius = 0;
        }
        m_host.RefreshDisplay();
    }
    // Fill, Replace Color and Shift Directions do nothing on press; the Region's own drag
    // starts here once it exists.
}

void Session::PointerMoved(int x, int y, bool modifierDown) {
    m_host.DoEvents();
    if (!InArea()) return;
    if (x < 0 || y < 0 || !InsideIcon(x, y)) {
        Form.Status.DispXY.clear();
        return;
    }
    m_host.DoEvents();
    UpdatePointerShape(x, y);
    Draw.CellX = x / MagnifyStep;
    Draw.CellY = y / MagnifyStep;
    PointerOverDisp(x, y);
    if (!AnyToolSelected()) return;
    const Tool t = Form.SelectedTool;
    if (t == Tool::Paint || t == Tool::Erase) {
        const bool dragging = t == Tool::Paint ? Draw.PaintDragging : Draw.EraseDragging;
        if (!dragging) return;
        PlotPaintErase(t == Tool::Erase);
        ComposeIcon();
        Draw.Shape.Left = Draw.CellX;
        Draw.Shape.Top = Draw.CellY;
        MagnifyIcon();
        return;
    }
    if (!tools::IsShapeTool(t)) return;
    Draw.SnapX = tools::SnapCoordinate(x, MagnifyStep, 1);
    Draw.SnapY = tools::SnapCoordinate(y, MagnifyStep, 1);
    if (!Draw.PaintDragging) return;
    picDisp.Cls();
    Band.Right = Draw.SnapX;
    Band.Bottom = Draw.SnapY;
    Draw.Shape.Right = Draw.CellX;
    Draw.Shape.Bottom = Draw.CellY;
    if (t == Tool::Spotlight) tools::SpotlightLimit(Band, Draw.Shape, MagnifyStep);
    if (modifierDown) {
        const int w = picImage.Width();
        const int h = picImage.Height();
        tools::ConstrainSquare(Draw.Shape.Left, Draw.Shape.Right, Draw.Shape.Top,
                               Draw.Shape.Bottom, w - 1, h - 1);
        tools::ConstrainSquare(Band.Left, Band.Right, Band.Top, Band.Bottom,
                               w * MagnifyStep - 1, h * MagnifyStep - 1);
        tools::ConstrainSquare(RegionRect.Left, RegionRect.Right, RegionRect.Top,
                               RegionRect.Bottom, w * MagnifyStep - 1, h * MagnifyStep - 1);
    }
    if (t == Tool::Line || t == Tool::BrokenLine) {
        DrawLineBand();
    } else {
        DrawBoxBand();
        if (t != Tool::Rectangle && t != Tool::FilledRectangle) DrawOvalBand();
    }
    m_host.RefreshDisplay();
}

void Session::PointerReleased(int x, int y, bool shiftDown) {
    Draw.PaintDragging = false;
    Draw.EraseDragging = false;
    Draw.RegionDragging = false;
    if (!InArea()) return;
    if (Form.VisibleFrame == Frame::SaveAsCursor) {
        Form.CursorHotSpot = {x / MagnifyStep, y / MagnifyStep};
        return;
    }
    if (Form.ColorPickerSelected) {
        SelectedColor = picDisp.GetPixel(x, y);
    } else {
        if (!AnyToolSelected()) return;
        Current().Changed = true;
        Draw.CellX = x / MagnifyStep;
        Draw.CellY = y / MagnifyStep;
        const Tool t = Form.SelectedTool;
        if (t == Tool::Paint || t == Tool::Erase) {
            TakeUndoSnapshot();
        } else if (t == Tool::Fill || t == Tool::ReplaceColor) {
            Draw.Shape.Left = Draw.CellX;
            Draw.Shape.Top = Draw.CellY;
            if (t == Tool::Fill)
                tools::FillAt(picImage, picMask, PicIcon, Draw.CellX, Draw.CellY, SelectedColor, shiftDown);
            else
                tools::ReplaceColorAt(picImage, picMask, PicIcon, Draw.CellX, Draw.CellY, SelectedColor, shiftDown);
            surface::MakeSameSize(PicIcon, picTemp);
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
    if (tools::ShapeGeometry(Band.Left, Band.Top, Band.Right, Band.Bottom, Draw) <= 0) return;
    picDisp.Circle(Draw.OvalCenterX, Draw.OvalCenterY, Draw.OvalRadius, kBlack, Draw.OvalAspect,
                   surface::kDottedInvertPen);
}

}  // namespace vexlo::session
