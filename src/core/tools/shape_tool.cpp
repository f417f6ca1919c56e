// The two-point shapes: Line, Broken Line, Rectangle, Filled Rectangle, Oval, Filled Oval and
// the Spotlight. The press starts a dotted band on picDisp, every move redraws it from the
// press corner to the pointer, and the release plots the shape from the stored cell
// rectangle into both planes as one edit.
#include "core/icon/icon_colors.h"
#include "core/tools/spotlight.h"
#include "core/tools/tool_strategy.h"

namespace vexlo::tools {

namespace {

using icon::kBlack;

bool IsLine(Tool t) { return t == Tool::Line || t == Tool::BrokenLine; }
bool IsBox(Tool t) { return t == Tool::Rectangle || t == Tool::FilledRectangle; }

class ShapeStrategy final : public ToolStrategy {
public:
    explicit ShapeStrategy(Tool tool) : m_tool(tool) {}

    void Press(ToolContext& c, const ToolEvent& e) const override {
        DrawState& d = c.Draw();
        d.SnapX = SnapCoordinate(e.X, c.MagnifyStep(), 1);
        d.SnapY = SnapCoordinate(e.Y, c.MagnifyStep(), 1);
        d.PaintDragging = true;
        d.Shape = {e.CellX, e.CellY, e.CellX, e.CellY};
        c.Band() = {d.SnapX, d.SnapY, d.SnapX, d.SnapY};
        if (IsLine(m_tool)) {
            DrawLineBand(c.Disp(), c.Band());
        } else {
            DrawBoxBand(c.Disp(), c.Band());
            if (!IsBox(m_tool)) d.OvalRadius = 0;
        }
        c.RefreshDisplay();
    }

    void Move(ToolContext& c, const ToolEvent& e) const override {
        DrawState& d = c.Draw();
        const int step = c.MagnifyStep();
        d.SnapX = SnapCoordinate(e.X, step, 1);
        d.SnapY = SnapCoordinate(e.Y, step, 1);
        if (!d.PaintDragging) return;
        c.Disp().Cls();
        DispRect& band = c.Band();
        band.Right = d.SnapX;
        band.Bottom = d.SnapY;
        d.Shape.Right = e.CellX;
        d.Shape.Bottom = e.CellY;
        if (m_tool == Tool::Spotlight) SpotlightLimit(band, d.Shape, step);
        if (e.Modifier) {
            const int w = c.Image().Width();
            const int h = c.Image().Height();
            DispRect& region = c.RegionRect();
            ConstrainSquare(d.Shape.Left, d.Shape.Right, d.Shape.Top, d.Shape.Bottom, w - 1, h - 1);
            ConstrainSquare(band.Left, band.Right, band.Top, band.Bottom, w * step - 1, h * step - 1);
            ConstrainSquare(region.Left, region.Right, region.Top, region.Bottom, w * step - 1, h * step - 1);
        }
        if (IsLine(m_tool)) {
            DrawLineBand(c.Disp(), band);
        } else {
            DrawBoxBand(c.Disp(), band);
            if (!IsBox(m_tool)) DrawOvalBand(c);
        }
        c.RefreshDisplay();
    }

    void Release(ToolContext& c, const ToolEvent&) const override {
        c.Apply([&](Surface& image, Surface& mask) { Plot(c, image, mask); });
    }

private:
    static void DrawOvalBand(ToolContext& c) {
        const DispRect& b = c.Band();
        DrawState& d = c.Draw();
        if (ShapeGeometry(b.Left, b.Top, b.Right, b.Bottom, d) <= 0) return;
        c.Disp().Circle(d.OvalCenterX, d.OvalCenterY, d.OvalRadius, kBlack, d.OvalAspect,
                        surface::kDottedInvertPen);
    }

    void Plot(ToolContext& c, Surface& image, Surface& mask) const {
        const bool broken = m_tool == Tool::BrokenLine;
        const int brush = c.BrushIndex() + 1;
        const surface::Pen pen{.Width = broken ? 1 : brush,
                               .Style = broken ? surface::kDrawStyleDot : surface::kDrawStyleSolid};
        const Color selected = c.Selected();
        const CellRect& r = c.Draw().Shape;
        switch (m_tool) {
            case Tool::Line:
            case Tool::BrokenLine:
                image.Line(r.Left, r.Top, r.Right, r.Bottom, selected, pen);
                mask.Line(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen);
                if (!broken && brush == 1) {
                    // The pen leaves out the end point; a one-pixel line gets it.
                    image.SetPixelV(r.Right, r.Bottom, selected);
                    mask.SetPixelV(r.Right, r.Bottom, kBlack);
                }
                break;
            case Tool::Rectangle:
                image.Box(r.Left, r.Top, r.Right, r.Bottom, selected, pen);
                mask.Box(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen);
                break;
            case Tool::FilledRectangle:
                // The filled box in the selected color takes the same pen as the mask's box,
                // so that a wide brush covers the same pixels in both planes.
                image.Box(r.Left, r.Top, r.Right, r.Bottom, selected, pen, surface::SolidBrush(selected));
                mask.Box(r.Left, r.Top, r.Right, r.Bottom, kBlack, pen, surface::SolidBrush(kBlack));
                break;
            case Tool::Oval:
            case Tool::FilledOval:
                PlotOval(c, image, mask, m_tool == Tool::FilledOval);
                break;
            case Tool::Spotlight:
                PlotSpotlight(image, mask, c.Composed(), c.Temp(), c.ImageTemp(), c.Draw(), selected,
                              [&c] { c.LetPendingEventsRun(); });
                break;
            default:
                break;
        }
    }

    static void PlotOval(ToolContext& c, Surface& image, Surface& mask, bool filled) {
        const surface::Pen pen{.Width = c.BrushIndex() + 1};
        DrawState& d = c.Draw();
        const CellRect& r = d.Shape;
        const int width = ShapeGeometry(r.Left, r.Top, r.Right, r.Bottom, d);
        c.LetPendingEventsRun();
        if (width <= 0) return;
        const double cx = d.OvalCenterX, cy = d.OvalCenterY, radius = d.OvalRadius;
        const double aspect = d.OvalAspect;
        const Color selected = c.Selected();
        if (!filled) {
            // Two arcs close the ellipse; 6 is the whole number that 2 pi rounds to.
            image.CircleArc(cx, cy, radius, selected, 0, 6, aspect, pen);
            mask.CircleArc(cx, cy, radius, kBlack, 0, 6, aspect, pen);
            image.CircleArc(cx, cy, radius, selected, 6, 0, aspect, pen);
            mask.CircleArc(cx, cy, radius, kBlack, 6, 0, aspect, pen);
            return;
        }
        constexpr surface::Pen kFilledOvalPen{.Width = 2};
        image.Circle(cx, cy, radius, selected, aspect, kFilledOvalPen, surface::SolidBrush(selected));
        mask.Circle(cx, cy, radius, kBlack, aspect, kFilledOvalPen, surface::SolidBrush(kBlack));
    }

    Tool m_tool;
};

}  // namespace

const ToolStrategy& ShapeTool(Tool tool) {
    static const ShapeStrategy kShapes[] = {
        ShapeStrategy(Tool::Spotlight), ShapeStrategy(Tool::Line),      ShapeStrategy(Tool::BrokenLine),
        ShapeStrategy(Tool::Rectangle), ShapeStrategy(Tool::FilledRectangle), ShapeStrategy(Tool::Oval),
        ShapeStrategy(Tool::FilledOval)};
    return kShapes[static_cast<int>(tool) - static_cast<int>(Tool::Spotlight)];
}

}  // namespace vexlo::tools
