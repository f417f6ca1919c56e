#include "core/tools/tool_state.h"

#include <algorithm>
#include <cstdlib>

namespace vexlo::tools {

const char* ToolTooltip(Tool tool) {
    switch (tool) {
        case Tool::Paint: return "Paint";
        case Tool::Erase: return "Erase (paint transparent)";
        case Tool::Fill: return "Fill (+Shift key if to fill transparent)";
        case Tool::ReplaceColor:
            return "Replace painted color (+Shift key if to replace by transparent)";
        case Tool::Spotlight: return "Add oval spotlight (+Shift key if for circle spotlight)";
        case Tool::Line: return "Line (+Shift key if for straight line)";
        case Tool::BrokenLine:
            return "Broken Line with brush size of 1  (+Shift key if for straight broken line)";
        case Tool::Rectangle: return "Rectangle (+Shift key if for square)";
        case Tool::FilledRectangle: return "Filled Rectangle (+Shift key if for filled square)";
        case Tool::Oval: return "Oval (+Shift key if for circle)";
        case Tool::FilledOval: return "Filled Oval (+Shift key if for filled circle)";
        case Tool::Region: return "Region (+Shift key if for square region)";
        case Tool::Shift: return "Shift directions";
        case Tool::None: break;
    }
    return "";
}

int SnapCoordinate(int v, int s, int mode) {
    if (mode == 1) return (v / s) * s + s / 2;
    int c = v / s;
    if (s / 2.0 <= v % s) ++c;
    return c * s;
}

int ShapeGeometry(double x1, double y1, double x2, double y2, DrawState& d) {
    const double dx = std::abs(x1 - x2);
    if (dx == 0) return 0;
    const double dy = std::abs(y1 - y2);
    d.OvalAspect = dy / dx;
    d.OvalRadius = std::max(dx, dy) / 2;
    d.OvalCenterX = x1 + (x2 - x1) / 2;
    d.OvalCenterY = y1 + (y2 - y1) / 2;
    return static_cast<int>(dx);
}

namespace {
int Sgn(int v) { return (v > 0) - (v < 0); }
}  // namespace

void ConstrainSquare(int& left, int& right, int& top, int& bottom, int maxX, int maxY) {
    int side = std::max(std::abs(right - left), std::abs(bottom - top));
    right = left + Sgn(right - left) * side;
    bottom = top + Sgn(bottom - top) * side;
    bool cut = false;
    if (right > maxX) {
        right = maxX;
        cut = true;
    }
    if (bottom > maxY) {
        bottom = maxY;
        cut = true;
    }
    if (!cut) return;
    side = std::min(std::abs(right - left), std::abs(bottom - top));
    right = left + Sgn(right - left) * side;
    bottom = top + Sgn(bottom - top) * side;
}

}  // namespace vexlo::tools
