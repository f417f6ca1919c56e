#pragma once
// The Toolbox's tools and the drawing state that the pointer events of the Editing Area keep.
#include "core/tools/editing_area.h"

namespace vexlo::tools {

// The thirteen tools in the order of mnuTools; None when no tool is selected.
enum class Tool {
    None = -1,
    Paint = 0,
    Erase,
    Fill,
    ReplaceColor,
    Spotlight,
    Line,
    BrokenLine,
    Rectangle,
    FilledRectangle,
    Oval,
    FilledOval,
    Region,
    Shift,
};
inline constexpr int kToolCount = 13;

// Tooltips of the tools, of the Color Picker and of Clear all tools.
const char* ToolTooltip(Tool tool);
inline constexpr const char* kColorPickerTooltip = "Color picker (pick color from icon)";
inline constexpr const char* kClearAllToolsTooltip = "Clear all tools";

// Pointer shapes of picDisp, by their numbers; Custom takes the picture of a tool.
enum class PointerShape { Default = 0, Cross = 2, SizeNS = 7, SizeWE = 9, SizeAll = 15, Custom = 99 };

// Which picture a custom pointer shows: a tool's, or the Color Picker's.
struct Pointer {
    PointerShape Shape = PointerShape::Default;
    Tool Picture = Tool::None;
    bool ColorPickerPicture = false;
    bool operator==(const Pointer&) const = default;
};

// The shape tools, which plot on release from the stored rectangle.
constexpr bool IsShapeTool(Tool t) {
    return t == Tool::Spotlight || t == Tool::Line || t == Tool::BrokenLine ||
           t == Tool::Rectangle || t == Tool::FilledRectangle || t == Tool::Oval ||
           t == Tool::FilledOval;
}

struct DrawState {
    int CellX = 0;
    int CellY = 0;
    CellRect Shape;  // Left/Top: the press cell; Right/Bottom: the other corner
    int SnapX = 0;
    int SnapY = 0;
    bool PaintDragging = false;
    bool EraseDragging = false;
    bool RegionDragging = false;
    bool RegionReworked = false;
    double OvalCenterX = 0;
    double OvalCenterY = 0;
    double OvalRadius = 0;
    double OvalAspect = 0;
};

// SnapPoint with step s: mode 1 the middle of the cell, mode 2 the nearest grid line (a tie
// goes up).
int SnapCoordinate(int v, int s, int mode);

// ShapeGeometry: fills the oval fields from two corners; answers |x2 - x1|, and sets nothing
// when that is 0.
int ShapeGeometry(double x1, double y1, double x2, double y2, DrawState& d);

// ConstrainSquare on one rectangle (L, R, T, B) with its limits.
void ConstrainSquare(int& left, int& right, int& top, int& bottom, int maxX, int maxY);

}  // namespace vexlo::tools
