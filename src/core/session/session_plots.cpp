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
    const bool broken = t == Tool::BrokenLine;
    const surface::Pen pen{.Width = broken ? 1 : BrushNumber(),
                           .Style = broken ? surface::kDrawStyleDot : surface::kDrawStyleSolid};
    const tools::CellRect& r = Draw.Shape;
    switch (t) {
        case Tool::Line:
            picImage.Line(r.Left, r.Top, r.Right, r.Bottom, SelectedColor, pen);
            picMask.Line(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen);
            if (BrushNumber() == 1) {
                // The pen leaves out the end point; a one-pixel line gets it.
                picImage.SetPixelV(r.Right, r.Bottom, SelectedColor);
                picMask.SetPixelV(r.Right, r.Bottom, kBlack);
            }
            break;
        case Tool::BrokenLine:
            picImage.Line(r.Left, r.Top, r.Right, r.Bottom, SelectedColor, pen);
            picMask.Line(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen);
            break;
        case Tool::Rectangle:
            picImage.Box(r.Left, r.Top, r.Right, r.Bottom, SelectedColor, pen);
            picMask.Box(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen);
            break;
        case Tool::FilledRectangle:
            // The filled box in the selected color takes the same pen as the mask's box, so
            // that a wide brush covers the same pixels in both planes.
            picImage.Box(r.Left, r.Top, r.Right, r.Bottom, SelectedColor, pen,
                         surface::SolidBrush(SelectedColor));
            picMask.Box(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen, surface::SolidBrush(kBlack));
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
}

void Session::PlotOval(bool filled) {
    const surface::Pen pen{.Width = BrushNumber()};  // the outline's, as PlotShape takes it
    const tools::CellRect& r = Draw.Shape;
    const int width = tools::ShapeGeometry(r.Left, r.Top, r.Right, r.Bottom, Draw);
    m_host.DoEvents();
    if (width <= 0) return;
    const double cx = Draw.OvalCenterX, cy = Draw.OvalCenterY, radius = Draw.OvalRadius;
    const double aspect = Draw.OvalAspect;
    if (!filled) {
        // Two arcs close the ellipse; 6 is the whole number that 2 pi rounds to.
        picImage.CircleArc(cx, cy, radius, SelectedColor, 0, 6, aspect, pen);
        picMask.CircleArc(cx, cy, radius, kBlack, 0, 6, aspect, pen);
        picImage.CircleArc(cx, cy, radius, SelectedColor, 6, 0, aspect, pen);
        picMask.CircleArc(cx, cy, radius, kBlack, 6, 0, aspect, pen);
        return;
    }
    constexpr surface::Pen kFilledOvalPen{.Width = 2};
    picImage.Circle(cx, cy, radius, SelectedColor, aspect, kFilledOvalPen,
                    surface::SolidBrush(SelectedColor));
    picMask.Circle(cx, cy, radius, kBlack, aspect, kFilledOvalPen, surface::SolidBrush(kBlack));
}

}  // namespace vexlo::session
