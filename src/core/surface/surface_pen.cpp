// Wide pens (Pen::Width > 1) for Line and Box, and the fill of a box.
//
// Pixel rules:
// - A wide line of width w covers the pixels whose centre lies within w/2 of the segment
//   (a centre at exactly w/2 counts), both ends included: a round pen with round caps, and a
//   zero-length line is one round dot. Odd widths are centred on the pixel centres (width 3 is
//   one pixel on each side, its dot a 3x3 square). An even width cannot be: the segment is moved
//   half a pixel up and left, as GDI does, so width 2 covers the row of the line and the row
//   above it, and its dot is the 2x2 block up and left of the point.
// - A wide box is the union of its four sides drawn with that pen, so the joins are round
//   (square up to width 3, visibly rounded from width 4 on), each pixel once. The sides run on
//   the box's edge pixels for an odd width. For an even width each side runs between the edge
//   pixel and its inner neighbour, so the outline is symmetric and the extra pixel lies inside
//   (width 2: the two outermost rings of the box). A box without extent in one direction has
//   no inside there, and that direction is drawn as a wide line is.
// - With a solid brush the pixels of the box (both corners included) that the outline leaves
//   free get the brush's Fill, under the pen's Mode, before the outline; every pixel is touched
//   once.
#include "core/surface/surface.h"

#include <algorithm>

#include "core/surface/pen_geometry.h"

namespace vexlo::surface {

void Surface::WideLine(int x1, int y1, int x2, int y2, Color c, const Pen& pen) {
    const int w = geometry::EffectiveWidth(pen.Width);
    const double o = geometry::EvenShift(w);
    const geometry::RoundStroke stroke(x1 - o, y1 - o, x2 - o, y2 - o, w);
    geometry::ForEachPixelIn(*this, stroke.Left(), stroke.Top(), stroke.Right(),
                             stroke.Bottom(), [&](int x, int y) {
                                 if (stroke.Covers(x, y)) PlotPen(x, y, c, pen);
                             });
}

namespace {

// Where the pen's path runs along one direction of the box: the low and the high side.
struct Sides {
    double low, high;
};

Sides PathSides(int a1, int a2, int width) {
    const double lo = std::min(a1, a2), hi = std::max(a1, a2);
    if (width % 2 == 1) return {lo, hi};
    if (lo < hi) return {lo + 0.5, hi - 0.5};  // between the edge pixel and the next one in
    return {lo - 0.5, lo - 0.5};               // no inside: as a line is drawn
}

}  // namespace

void Surface::WideBox(int x1, int y1, int x2, int y2, Color c, const Pen& pen,
                      const Brush& brush) {
    const int w = geometry::EffectiveWidth(pen.Width);
    const Sides h = PathSides(x1, x2, w);
    const Sides v = PathSides(y1, y2, w);
    const geometry::RoundStroke sides[4] = {
        {h.low, v.low, h.high, v.low, w},
        {h.high, v.low, h.high, v.high, w},
        {h.low, v.high, h.high, v.high, w},
        {h.low, v.low, h.low, v.high, w},
    };
    const double r = 0.5 * w;
    const bool fill = brush.Style == kFillStyleSolid;
    const double left = std::min(x1, x2), right = std::max(x1, x2);
    const double top = std::min(y1, y2), bottom = std::max(y1, y2);
    geometry::ForEachPixelIn(*this, std::min(h.low, left) - r, std::min(v.low, top) - r,
                             std::max(h.high, right) + r, std::max(v.high, bottom) + r,
                             [&](int x, int y) {
                                 for (const geometry::RoundStroke& s : sides) {
                                     if (s.Covers(x, y)) {
                                         PlotPen(x, y, c, pen);
                                         return;
                                     }
                                 }
                                 if (fill && x >= left && x <= right && y >= top && y <= bottom)
                                     PlotPen(x, y, brush.Fill, pen);
                             });
}

void Surface::FillBoxInterior(int x1, int y1, int x2, int y2, const Pen& pen,
                              const Brush& brush) {
    const long long left = std::min(x1, x2), right = std::max(x1, x2);
    const long long top = std::min(y1, y2), bottom = std::max(y1, y2);
    if (right - left < 2 || bottom - top < 2) return;  // the outline leaves no inside
    FillBox(static_cast<int>(left + 1), static_cast<int>(top + 1), static_cast<int>(right - 1),
            static_cast<int>(bottom - 1), brush.Fill, pen);
}

}  // namespace vexlo::surface
