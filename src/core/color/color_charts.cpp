#include "core/color/color_charts.h"

#include <cmath>
#include <cstdio>
#include <utility>

namespace vexlo::color {

const std::array<NamedColor, 16>& ColorChart16() {
    static const std::array<NamedColor, 16> chart{{
        {0xFFFFFF, "White"}, {0x808080, "Gray"},   {0xFF00FF, "Magenta"}, {0x0000FF, "Red"},
        {0x00FFFF, "Yellow"}, {0x00FF00, "Lime"},  {0xFFFF00, "Cyan"},    {0xFF0000, "Blue"},
        {0xC0C0C0, "Silver"}, {0x000000, "Black"}, {0x800080, "Purple"},  {0x000080, "Maroon"},
        {0x008080, "Olive"},  {0x008000, "Green"}, {0x808000, "Teal"},    {0x800000, "Navy"},
    }};
    return chart;
}

const std::array<Color, 48>& ColorChart48() {
    static const std::array<Color, 48> chart{
        0xFFFFFF, 0xE8E4E8, 0xC0C0C0, 0x808080, 0x484448, 0x000000, 0xC8C4F8, 0x8884FF,
        0x0000FF, 0x0000C0, 0x000080, 0x000048, 0xC8E4FF, 0x88C4FF, 0x007CFF, 0x0050E4,
        0x0058B0, 0x484488, 0xFFC4FF, 0xFF84FF, 0xFF00FF, 0xC800C0, 0x800080, 0x400048,
        0xC0FCFF, 0x88FCFF, 0x00FFFF, 0x00C4C8, 0x008468, 0x004448, 0xC8FCC8, 0x88FC8C,
        0x00FF00, 0x00C400, 0x008000, 0x004400, 0xFFFCC0, 0xFFFC80, 0xFFFF00, 0xC8C400,
        0x808000, 0x484400, 0xFFC4C8, 0xFF7C88, 0xFF0000, 0xC80000, 0x800000, 0x400000,
    };
    return chart;
}

namespace {

// A chart drawn in logical cells: cell (c, r) covers the pixels from c * w / columns.
struct Scale {
    int w, h, columns, rows;
    int X(double lx) const { return static_cast<int>(std::lround(lx * w / columns)); }
    int Y(double ly) const { return static_cast<int>(std::lround(ly * h / rows)); }
    void Box(surface::Surface& s, int c, int r, Color color) const {
        s.FillBox(X(c), Y(r), X(c + 1), Y(r + 1), color);
    }
};

// The logical cell (column, row) under a pixel position; none outside the chart's scale.
// A position exactly on the bottom edge still counts, as the chart's own test lets it.
std::optional<std::pair<int, int>> CellAt(double x, double y, int w, int h, int columns,
                                          int rows) {
    if (w <= 0 || h <= 0) return std::nullopt;
    const double lx = x * columns / w;
    const double ly = y * rows / h;
    if (lx < 0 || ly < 0 || lx >= columns || ly > rows) return std::nullopt;
    return std::make_pair(static_cast<int>(lx), static_cast<int>(ly));
}

}  // namespace

void PaintChart16(surface::Surface& chart) {
    chart.Clear();
    const Scale s{chart.Width(), chart.Height(), kChart16Columns, kChart16Rows};
    const auto& table = ColorChart16();
    for (int i = 0; i < 8; ++i) {
        s.Box(chart, i, 0, table[static_cast<std::size_t>(i)].Value);
        s.Box(chart, i, 1, table[static_cast<std::size_t>(i + 8)].Value);
        if (i > 0) chart.Line(s.X(i), s.Y(0), s.X(i), s.Y(2), kChart16LineColor);
    }
    chart.Line(s.X(0), s.Y(1), s.X(8), s.Y(1), kChart16LineColor);
}

void PaintChart48(surface::Surface& chart) {
    chart.Clear();
    const Scale s{chart.Width(), chart.Height(), kChart48Columns, kChart48Rows};
    const auto& table = ColorChart48();
    int row = 0, column = 0;
    for (int i = 0; i < 48; ++i) {
        s.Box(chart, column, row, table[static_cast<std::size_t>(i)]);
        if (++row > 2) {
            ++column;
            row = 0;
        }
    }
    chart.Line(s.X(0), s.Y(1), s.X(16), s.Y(1), kChart48LineColor);
    chart.Line(s.X(0), s.Y(2), s.X(16), s.Y(2), kChart48LineColor);
}

void PaintColorTiles(surface::Surface& picture) {
    picture.Clear();
    const Scale s{picture.Width(), picture.Height(), 4, 4};
    for (int i = 0; i < 16; ++i) s.Box(picture, i % 4, i / 4, ColorChart16()[static_cast<std::size_t>(i)].Value);
}

std::optional<int> Chart16IndexAt(double x, double y, int w, int h) {
    const auto cell = CellAt(x, y, w, h, kChart16Columns, kChart16Rows);
    if (!cell) return std::nullopt;
    const int index = cell->second * 8 + cell->first;
    if (index >= 16) return std::nullopt;  // an index past the table changes nothing
    return index;
}

std::optional<int> Chart48IndexAt(double x, double y, int w, int h) {
    const auto cell = CellAt(x, y, w, h, kChart48Columns, kChart48Rows);
    if (!cell) return std::nullopt;
    const int index = cell->first * 3 + cell->second;
    if (index >= 48) return std::nullopt;
    return index;
}

std::string GetHTMLColor(int r, int g, int b) {
    char text[8];
    std::snprintf(text, sizeof text, "%02X%02X%02X", r & 0xFF, g & 0xFF, b & 0xFF);
    return text;
}

std::string SelectedColorValuesText(Color c) {
    const int r = static_cast<int>(c % 256);
    const int g = static_cast<int>((c / 256) % 256);
    const int b = static_cast<int>((c / 65536) % 256);
    char hex[16];
    std::snprintf(hex, sizeof hex, "%X", c);
    const std::string crlf = "\r\n";
    return "Currently selected color:      " + crlf + crlf + std::to_string(c) + " or &H" + hex +
           crlf + crlf + "RGB(" + std::to_string(r) + ", " + std::to_string(g) + ", " +
           std::to_string(b) + ")" + " " + crlf + crlf + "HTML #" + GetHTMLColor(r, g, b);
}

}  // namespace vexlo::color
