// Paint, Erase and the shape tools: what they write into the two planes.
#include <algorithm>

#include "core/session/session.h"
#include "core/tools/spotlight.h"

namespace vexlo::session {

using tools::Tool;

void Session::PlotPaintErase(bool erase) {
    const Color ci = erase ? kBlack : m_selectedColor;
    const Color cm = erase ? kWhite : kBlack;
    const int w = m_icon.Image().Width();
    const int h = m_icon.Image().Height();
    const int c = m_draw.CellX;
    const int r = m_draw.CellY;
    const int n = m_form.BrushSizeIndex;
    if (n == 0) {
        m_icon.Image().SetPixelV(c, r, ci);
        m_icon.Mask().SetPixelV(c, r, cm);
        return;
    }
    m_draw.Shape.Left = c;
    m_draw.Shape.Top = r;
    m_draw.Shape.Right = std::min(c + n, w - 1);
    m_draw.Shape.Bottom = std::min(r + n, h - 1);
    m_icon.Image().FillBox(c, r, m_draw.Shape.Right, m_draw.Shape.Bottom, ci);
    m_icon.Mask().FillBox(c, r, m_draw.Shape.Right, m_draw.Shape.Bottom, cm);
}

void Session::PlotShape(Tool t) {
    const bool broken = t == Tool::BrokenLine;
    const surface::Pen pen{.Width = broken ? 1 : BrushNumber(),
                           .Style = broken ? surface::kDrawStyleDot : surface::kDrawStyleSolid};
    const tools::CellRect& r = m_draw.Shape;
    switch (t) {
        case Tool::Line:
            m_icon.Image().Line(r.Left, r.Top, r.Right, r.Bottom, m_selectedColor, pen);
            m_icon.Mask().Line(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen);
            if (BrushNumber() == 1) {
                // The pen leaves out the end point; a one-pixel line gets it.
                m_icon.Image().SetPixelV(r.Right, r.Bottom, m_selectedColor);
                m_icon.Mask().SetPixelV(r.Right, r.Bottom, kBlack);
            }
            break;
        case Tool::BrokenLine:
            m_icon.Image().Line(r.Left, r.Top, r.Right, r.Bottom, m_selectedColor, pen);
            m_icon.Mask().Line(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen);
            break;
        case Tool::Rectangle:
            m_icon.Image().Box(r.Left, r.Top, r.Right, r.Bottom, m_selectedColor, pen);
            m_icon.Mask().Box(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen);
            break;
        case Tool::FilledRectangle:
            // The filled box in the selected color takes the same pen as the mask's box, so
            // that a wide brush covers the same pixels in both planes.
            m_icon.Image().Box(r.Left, r.Top, r.Right, r.Bottom, m_selectedColor, pen,
                         surface::SolidBrush(m_selectedColor));
            m_icon.Mask().Box(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen, surface::SolidBrush(kBlack));
            break;
        case Tool::Oval:
        case Tool::FilledOval:
            PlotOval(t == Tool::FilledOval);
            break;
        case Tool::Spotlight:
            tools::PlotSpotlight(m_icon.Image(), m_icon.Mask(), m_icon.Composed(), m_icon.Temp(), m_icon.ImageTemp(), m_draw, m_selectedColor,
                                 [this] { LetPendingEventsRun(); });
            break;
        default:
            break;
    }
}

void Session::PlotOval(bool filled) {
    const surface::Pen pen{.Width = BrushNumber()};  // the outline's, as PlotShape takes it
    const tools::CellRect& r = m_draw.Shape;
    const int width = tools::ShapeGeometry(r.Left, r.Top, r.Right, r.Bottom, m_draw);
    LetPendingEventsRun();
    if (width <= 0) return;
    const double cx = m_draw.OvalCenterX, cy = m_draw.OvalCenterY, radius = m_draw.OvalRadius;
    const double aspect = m_draw.OvalAspect;
    if (!filled) {
        // Two arcs close the ellipse; 6 is the whole number that 2 pi rounds to.
        m_icon.Image().CircleArc(cx, cy, radius, m_selectedColor, 0, 6, aspect, pen);
        m_icon.Mask().CircleArc(cx, cy, radius, kBlack, 0, 6, aspect, pen);
        m_icon.Image().CircleArc(cx, cy, radius, m_selectedColor, 6, 0, aspect, pen);
        m_icon.Mask().CircleArc(cx, cy, radius, kBlack, 6, 0, aspect, pen);
        return;
    }
    constexpr surface::Pen kFilledOvalPen{.Width = 2};
    m_icon.Image().Circle(cx, cy, radius, m_selectedColor, aspect, kFilledOvalPen,
                    surface::SolidBrush(m_selectedColor));
    m_icon.Mask().Circle(cx, cy, radius, kBlack, aspect, kFilledOvalPen, surface::SolidBrush(kBlack));
}

}  // namespace vexlo::session
