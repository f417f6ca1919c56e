// Paint, Erase and the shape tools: what they write into the two planes.
#include <algorithm>

#include "core/session/session.h"
#include "core/tools/spotlight.h"

namespace vexlo::session {

using tools::Tool;

void Session::PlotPaintErase(bool erase) {
    const Color ci = erase ? kBlack : SelectedColor;
    const Color cm = erase ? kWhite : kBlack;
    const int w = picImage.Width();
    const int h = picImage.Height();
    const int c = Draw.CellX;
    const int r = Draw.CellY;
    const int n = Form.BrushSizeIndex;
    if (n == 0) {
        picImage.SetPixelV(c, r, ci);
        picMask.SetPixelV(c, r, cm);
        return;
    }
    Draw.Shape.Left = c;
    Draw.Shape.Top = r;
    Draw.Shape.Right = std::min(c + n, w - 1);
    Draw.Shape.Bottom = std::min(r + n, h - 1);
    picImage.FillBox(c, r, Draw.Shape.Right, Draw.Shape.Bottom, ci);
    picMask.FillBox(c, r, Draw.Shape.Right, Draw.Shape.Bottom, cm);
}

void Session::PlotShape(Tool t) {
    picDisp.DrawMode = surface::kDrawModeCopyPen;
    picDisp.DrawStyle = surface::kDrawStyleSolid;
    const int notedWidth = picImage.DrawWidth;
    const int width = t == Tool::BrokenLine ? 1 : BrushNumber();
    picImage.DrawWidth = width;
    picMask.DrawWidth = width;
    const tools::CellRect& r = Draw.Shape;
    switch (t) {
        case Tool::Line:
            picImage.Line(r.Left, r.Top, r.Right, r.Bottom, SelectedColor);
            picMask.Line(r.Left, r.Top, r.Right, r.Bottom, kBlack);
            if (BrushNumber() == 1) {
                // The pen leaves out the end point; a one-pixel line gets it.
                picImage.SetPixelV(r.Right, r.Bottom, SelectedColor);
                picMask.SetPixelV(r.Right, r.Bottom, kBlack);
            }
            break;
        case Tool::BrokenLine:
            picImage.DrawStyle = surface::kDrawStyleDot;
            picMask.DrawStyle = surface::kDrawStyleDot;
            picImage.Line(r.Left, r.Top, r.Right, r.Bottom, SelectedColor);
            picMask.Line(r.Left, r.Top, r.Right, r.Bottom, kBlack);
            break;
        case Tool::Rectangle:
            picImage.FillStyle = surface::kFillStyleTransparent;
            picMask.FillStyle = surface::kFillStyleTransparent;
            picImage.FillColor = SelectedColor;
            picImage.Box(r.Left, r.Top, r.Right, r.Bottom, SelectedColor);
            picMask.Box(r.Left, r.Top, r.Right, r.Bottom, picMask.ForeColor);
            break;
        case Tool::FilledRectangle:
            picImage.FillStyle = surface::kFillStyleSolid;
            picMask.FillStyle = surface::kFillStyleSolid;
            picImage.FillColor = SelectedColor;
            // The filled box in the selected color takes the same pen as the mask's box, so
            // that a wide brush covers the same pixels in both planes.
            picImage.Box(r.Left, r.Top, r.Right, r.Bottom, SelectedColor);
            picMask.Box(r.Left, r.Top, r.Right, r.Bottom, picMask.ForeColor);
            break;
        case Tool::Oval:
        case Tool::FilledOval:
            PlotOval(t == Tool::FilledOval);
            break;
        case Tool::Spotlight:
            tools::PlotSpotlight(picImage, picMask, PicIcon, picTemp, picImageTemp, Draw, SelectedColor,
                                 [this] { m_host.DoEvents(); });
            break;
        default:
            break;
    }
    picImage.DrawWidth = notedWidth;
    picMask.DrawWidth = notedWidth;
    picImage.DrawStyle = surface::kDrawStyleSolid;
    picMask.DrawStyle = surface::kDrawStyleSolid;
}

void Session::PlotOval(bool filled) {
    const tools::CellRect& r = Draw.Shape;
    const int width = tools::ShapeGeometry(r.Left, r.Top, r.Right, r.Bottom, Draw);
    m_host.DoEvents();
    if (width <= 0) return;
    for (Surface* plane : {&picImage, &picMask}) plane->DrawMode = surface::kDrawModeCopyPen;
    picImage.FillColor = SelectedColor;
    picMask.FillColor = kBlack;
    const double cx = Draw.OvalCenterX, cy = Draw.OvalCenterY, radius = Draw.OvalRadius;
    const double aspect = Draw.OvalAspect;
    if (!filled) {
        picImage.FillStyle = surface::kFillStyleTransparent;
        picMask.FillStyle = surface::kFillStyleTransparent;
        // Two arcs close the ellipse; 6 is the whole number that 2 pi rounds to.
        picImage.CircleArc(cx, cy, radius, SelectedColor, 0, 6, aspect);
        picMask.CircleArc(cx, cy, radius, kBlack, 0, 6, aspect);
        picImage.CircleArc(cx, cy, radius, SelectedColor, 6, 0, aspect);
        picMask.CircleArc(cx, cy, radius, kBlack, 6, 0, aspect);
        return;
    }
    picImage.FillStyle = surface::kFillStyleSolid;
    picMask.FillStyle = surface::kFillStyleSolid;
    picImage.DrawWidth = 2;
    picMask.DrawWidth = 2;
    picImage.Circle(cx, cy, radius, SelectedColor, aspect);
    picMask.Circle(cx, cy, radius, kBlack, aspect);
}

}  // namespace vexlo::session
