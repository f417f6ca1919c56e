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
    m_view.Disp().DrawMode = surface::kDrawModeCopyPen;
    m_view.Disp().DrawStyle = surface::kDrawStyleSolid;
    const int notedWidth = m_icon.Image().DrawWidth;
    const int width = t == Tool::BrokenLine ? 1 : BrushNumber();
    m_icon.Image().DrawWidth = width;
    m_icon.Mask().DrawWidth = width;
    const tools::CellRect& r = m_draw.Shape;
    switch (t) {
        case Tool::Line:
            m_icon.Image().Line(r.Left, r.Top, r.Right, r.Bottom, m_selectedColor);
            m_icon.Mask().Line(r.Left, r.Top, r.Right, r.Bottom, kBlack);
            if (BrushNumber() == 1) {
                // The pen leaves out the end point; a one-pixel line gets it.
                m_icon.Image().SetPixelV(r.Right, r.Bottom, m_selectedColor);
                m_icon.Mask().SetPixelV(r.Right, r.Bottom, kBlack);
            }
            break;
        case Tool::BrokenLine:
            m_icon.Image().DrawStyle = surface::kDrawStyleDot;
            m_icon.Mask().DrawStyle = surface::kDrawStyleDot;
            m_icon.Image().Line(r.Left, r.Top, r.Right, r.Bottom, m_selectedColor);
            m_icon.Mask().Line(r.Left, r.Top, r.Right, r.Bottom, kBlack);
            break;
        case Tool::Rectangle:
            m_icon.Image().FillStyle = surface::kFillStyleTransparent;
            m_icon.Mask().FillStyle = surface::kFillStyleTransparent;
            m_icon.Image().FillColor = m_selectedColor;
            m_icon.Image().Box(r.Left, r.Top, r.Right, r.Bottom, m_selectedColor);
            m_icon.Mask().Box(r.Left, r.Top, r.Right, r.Bottom, m_icon.Mask().ForeColor);
            break;
        case Tool::FilledRectangle:
            m_icon.Image().FillStyle = surface::kFillStyleSolid;
            m_icon.Mask().FillStyle = surface::kFillStyleSolid;
            m_icon.Image().FillColor = m_selectedColor;
            // The filled box in the selected color takes the same pen as the mask's box, so
            // that a wide brush covers the same pixels in both planes.
            m_icon.Image().Box(r.Left, r.Top, r.Right, r.Bottom, m_selectedColor);
            m_icon.Mask().Box(r.Left, r.Top, r.Right, r.Bottom, m_icon.Mask().ForeColor);
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
    m_icon.Image().DrawWidth = notedWidth;
    m_icon.Mask().DrawWidth = notedWidth;
    m_icon.Image().DrawStyle = surface::kDrawStyleSolid;
    m_icon.Mask().DrawStyle = surface::kDrawStyleSolid;
}

void Session::PlotOval(bool filled) {
    const tools::CellRect& r = m_draw.Shape;
    const int width = tools::ShapeGeometry(r.Left, r.Top, r.Right, r.Bottom, m_draw);
    LetPendingEventsRun();
    if (width <= 0) return;
    for (Surface* plane : {&m_icon.Image(), &m_icon.Mask()}) plane->DrawMode = surface::kDrawModeCopyPen;
    m_icon.Image().FillColor = m_selectedColor;
    m_icon.Mask().FillColor = kBlack;
    const double cx = m_draw.OvalCenterX, cy = m_draw.OvalCenterY, radius = m_draw.OvalRadius;
    const double aspect = m_draw.OvalAspect;
    if (!filled) {
        m_icon.Image().FillStyle = surface::kFillStyleTransparent;
        m_icon.Mask().FillStyle = surface::kFillStyleTransparent;
        // Two arcs close the ellipse; 6 is the whole number that 2 pi rounds to.
        m_icon.Image().CircleArc(cx, cy, radius, m_selectedColor, 0, 6, aspect);
        m_icon.Mask().CircleArc(cx, cy, radius, kBlack, 0, 6, aspect);
        m_icon.Image().CircleArc(cx, cy, radius, m_selectedColor, 6, 0, aspect);
        m_icon.Mask().CircleArc(cx, cy, radius, kBlack, 6, 0, aspect);
        return;
    }
    m_icon.Image().FillStyle = surface::kFillStyleSolid;
    m_icon.Mask().FillStyle = surface::kFillStyleSolid;
    m_icon.Image().DrawWidth = 2;
    m_icon.Mask().DrawWidth = 2;
    m_icon.Image().Circle(cx, cy, radius, m_selectedColor, aspect);
    m_icon.Mask().Circle(cx, cy, radius, kBlack, aspect);
}

}  // namespace vexlo::session
