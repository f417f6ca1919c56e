#include "core/tools/region_geometry.h"

#include <cmath>
#include <cstdlib>
#include <utility>

namespace vexlo::tools {

namespace {

// A real quotient as the program turns it into a whole number: nearest, ties to even.
int Round(double v) { return static_cast<int>(std::nearbyint(v)); }

// One axis of RegionToCells.
void AxisToCells(int low, int high, int step, int dispInner, int iconSide, int& first, int& last) {
    first = Round(static_cast<double>(low) / step);
    if (std::abs(high - low) <= step) {
        last = first;
        return;
    }
    last = Round(static_cast<double>(high) / step - 1);
    if (high == dispInner - 1) last = iconSide - 1;
}

}  // namespace

CellRect RegionToCells(const DispRect& r, const RegionScale& scale) {
    CellRect c;
    AxisToCells(r.Left, r.Right, scale.Step, scale.DispWidth, scale.IconWidth, c.Left, c.Right);
    AxisToCells(r.Top, r.Bottom, scale.Step, scale.DispHeight, scale.IconHeight, c.Top, c.Bottom);
    return c;
}

bool NormalizeRegion(RegionMarks& marks, const RegionScale& scale) {
    bool swapped = false;
    if (marks.Rect.Left > marks.Rect.Right) {
        std::swap(marks.Rect.Left, marks.Rect.Right);
        swapped = true;
    }
    if (marks.Rect.Top > marks.Rect.Bottom) {
        std::swap(marks.Rect.Top, marks.Rect.Bottom);
        swapped = true;
    }
    if (swapped) marks.Cells = RegionToCells(marks.Rect, scale);
    return swapped;
}

void SetRegionLimits(const DispRect& r, int dispWidth, int dispHeight, RegionDrag& drag) {
    const int dw = r.Right - r.Left;
    const int dh = r.Bottom - r.Top;
    drag.MinX = Round(-0.7 * dw);
    drag.MinY = Round(-0.7 * dh);
    drag.MaxX = dispWidth - dw - drag.MinX;
    drag.MaxY = dispHeight - dh - drag.MinY;
}

void SetRegionAnchor(RegionDrag& drag, int x, int y) {
    drag.X = x;
    drag.Y = y;
    drag.GrabX = 0;
    drag.GrabY = 0;
}

RegionEdge EdgeNear(const DispRect& r, int x, int y) {
    auto near = [](int edge, int v) { return edge - 4 <= v && v <= edge + 8; };
    if (near(r.Left, x)) return RegionEdge::Left;
    if (near(r.Right, x)) return RegionEdge::Right;
    if (near(r.Top, y)) return RegionEdge::Top;
    if (near(r.Bottom, y)) return RegionEdge::Bottom;
    return RegionEdge::None;
}

bool MoveRefused(const DispRect& r, const RegionDrag& drag, int nx, int ny) {
    return (r.Left <= drag.MinX && nx < drag.X) || (r.Left >= drag.MaxX && nx > drag.X) ||
           (r.Top <= drag.MinY && ny < drag.Y) || (r.Top >= drag.MaxY && ny > drag.Y);
}

DispRect RegionOfPicture(int x, int y, int w, int h, int step) {
    return {x * step, y * step, (x + w) * step, (y + h) * step};
}

int& EdgeCoordinate(DispRect& r, RegionEdge edge) {
    switch (edge) {
        case RegionEdge::Left: return r.Left;
        case RegionEdge::Right: return r.Right;
        case RegionEdge::Top: return r.Top;
        case RegionEdge::Bottom:
        case RegionEdge::None: break;
    }
    return r.Bottom;
}

}  // namespace vexlo::tools
