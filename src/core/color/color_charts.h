#pragma once
// The two color charts of the Colors Panel: the sixteen named colors and the 48 fixed colors,
// their pictures, which entry a pointer position falls on, and the texts about a color.
#include <array>
#include <optional>
#include <string>

#include "core/surface/surface.h"

namespace vexlo::color {

using surface::Color;

struct NamedColor {
    Color Value;
    const char* Name;
};

// ColorChart16 in chart order: the top row 0..7, the bottom row 8..15.
const std::array<NamedColor, 16>& ColorChart16();
// ColorChart48, column by column: index = column * 3 + row.
const std::array<Color, 48>& ColorChart48();

// The charts' logical sizes, in cells.
inline constexpr int kChart16Columns = 8, kChart16Rows = 2;
inline constexpr int kChart48Columns = 16, kChart48Rows = 3;
// The charts' own drawing colors, of the lines between their cells.
inline constexpr Color kChart16LineColor = 0xC0C0C0;
inline constexpr Color kChart48LineColor = 0xE0E0E0;

// Paints a chart over the whole of the Surface, at whatever pixel size it has.
void PaintChart16(surface::Surface& chart);
void PaintChart48(surface::Surface& chart);

// The fixed picture beside the selected color: the sixteen colors in a square of 4 x 4.
void PaintColorTiles(surface::Surface& picture);

// The entry under a pointer position given in pixels of a chart of pixel size w x h; none
// when the position lies outside the chart's logical scale.
std::optional<int> Chart16IndexAt(double x, double y, int w, int h);
std::optional<int> Chart48IndexAt(double x, double y, int w, int h);

// The six upper-case hexadecimal digits R, G, B ("FF0000" for pure red).
std::string GetHTMLColor(int r, int g, int b);
// The message shown after a double click on picColorToUse.
std::string SelectedColorValuesText(Color c);

}  // namespace vexlo::color
