#pragma once
// Pictures as ASCII grids for tests, one string per row and one letter per pixel:
//   r red, g green, b blue, y yellow, w white, k black, s the transparent gray, for colors;
//   for the two planes of an icon: '.' transparent, a color letter for a painted pixel, '~'
//   for an inverting one, '?' for a pixel of no known color.
#include <string>
#include <vector>

#include "core/surface/surface.h"

namespace vexlo::test {

using surface::Color;
using surface::Surface;

inline Color ColorOfLetter(char c) {
    switch (c) {
        case 'r': return 0x0000FF;
        case 'g': return 0x00FF00;
        case 'b': return 0xFF0000;
        case 'y': return 0x00FFFF;
        case 'w': return 0xFFFFFF;
        case 'k': return 0x000000;
        case 's': return 0xC0C0C0;
        default: return 0x123456;
    }
}

inline char LetterOfColor(Color c) {
    for (char l : std::string("rgbywks"))
        if (ColorOfLetter(l) == c) return l;
    return '?';
}

// A Surface of the rows' size; back color white.
inline Surface PictureOf(const std::vector<std::string>& rows) {
    const int h = static_cast<int>(rows.size());
    const int w = h ? static_cast<int>(rows[0].size()) : 0;
    Surface s(w, h, 0xFFFFFF);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) s.SetPixelV(x, y, ColorOfLetter(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
    return s;
}

inline std::vector<std::string> RowsOf(const Surface& s) {
    std::vector<std::string> rows;
    for (int y = 0; y < s.Height(); ++y) {
        std::string row;
        for (int x = 0; x < s.Width(); ++x) row += LetterOfColor(s.GetPixel(x, y));
        rows.push_back(row);
    }
    return rows;
}

// Both planes from rows: '.' transparent, a color letter painted in that color.
inline void PlanesOf(const std::vector<std::string>& rows, Surface& image, Surface& mask) {
    for (int y = 0; y < static_cast<int>(rows.size()); ++y) {
        const std::string& row = rows[static_cast<std::size_t>(y)];
        for (int x = 0; x < static_cast<int>(row.size()); ++x) {
            const bool transparent = row[static_cast<std::size_t>(x)] == '.';
            image.SetPixelV(x, y, transparent ? 0x000000 : ColorOfLetter(row[static_cast<std::size_t>(x)]));
            mask.SetPixelV(x, y, transparent ? 0xFFFFFF : 0x000000);
        }
    }
}

// The planes' w x h block from (x0, y0) as rows.
inline std::vector<std::string> PlanesRows(const Surface& image, const Surface& mask, int x0, int y0, int w, int h) {
    std::vector<std::string> rows;
    for (int y = y0; y < y0 + h; ++y) {
        std::string row;
        for (int x = x0; x < x0 + w; ++x) {
            const Color i = image.GetPixel(x, y);
            const Color m = mask.GetPixel(x, y);
            row += m == 0x000000 ? LetterOfColor(i) : m != 0xFFFFFF ? '?' : i == 0 ? '.' : '~';
        }
        rows.push_back(row);
    }
    return rows;
}

}  // namespace vexlo::test
