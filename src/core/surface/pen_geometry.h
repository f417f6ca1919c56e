#pragma once
// Internal to core/surface: the round pen's geometry, shared by the wide lines and boxes
// (surface_pen.cpp) and the ellipses (surface_ellipse.cpp). Pixel (x, y) has its centre at
// (x, y); a round pen of width w covers the pixels whose centre lies within w/2 of the path,
// a centre exactly at w/2 included.
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/surface/surface.h"

namespace vexlo::surface::geometry {

// The width a pen draws with: widths below 1 draw as 1.
inline int EffectiveWidth(int penWidth) { return std::max(penWidth, 1); }

// How far an even-width line's segment is moved up and left so that its width falls on whole
// pixels: half a pixel for an even width, nothing for an odd one.
inline double EvenShift(int width) { return width % 2 == 0 ? 0.5 : 0.0; }

// floor(v) and ceil(v) as int, clamped to [lo, hi] first (NaN gives lo), so that far-off
// coordinates never overflow a conversion.
inline int ClampedFloor(double v, int lo, int hi) {
    if (!(v > lo)) return lo;
    if (v >= hi) return hi;
    return static_cast<int>(std::floor(v));
}
inline int ClampedCeil(double v, int lo, int hi) {
    if (!(v > lo)) return lo;
    if (v >= hi) return hi;
    return static_cast<int>(std::ceil(v));
}

// A segment swept by a round pen: its two end discs and the band between them.
class RoundStroke {
public:
    RoundStroke(double ax, double ay, double bx, double by, int width)
        : m_rSq(0.25 * width * width), m_r(0.5 * width) {
        // The same order whichever end comes first, so that a line and its reverse agree.
        if (bx < ax || (bx == ax && by < ay)) {
            std::swap(ax, bx);
            std::swap(ay, by);
        }
        m_ax = ax;
        m_ay = ay;
        m_bx = bx;
        m_by = by;
    }

    bool Covers(double px, double py) const {
        const double dx = m_bx - m_ax, dy = m_by - m_ay;
        const double qx = px - m_ax, qy = py - m_ay;
        const double len = dx * dx + dy * dy;
        const double t = qx * dx + qy * dy;
        if (len == 0 || t <= 0) return qx * qx + qy * qy <= m_rSq;
        if (t >= len) {
            const double ex = px - m_bx, ey = py - m_by;
            return ex * ex + ey * ey <= m_rSq;
        }
        // Beside the segment: the distance is |cross| / sqrt(len); compared without dividing,
        // which stays exact for whole and half pixel coordinates.
        const double cross = qx * dy - qy * dx;
        return cross * cross <= m_rSq * len;
    }

    double Left() const { return std::min(m_ax, m_bx) - m_r; }
    double Right() const { return std::max(m_ax, m_bx) + m_r; }
    double Top() const { return std::min(m_ay, m_by) - m_r; }
    double Bottom() const { return std::max(m_ay, m_by) + m_r; }

private:
    double m_ax = 0, m_ay = 0, m_bx = 0, m_by = 0;
    double m_rSq;
    double m_r;
};

// Calls f(x, y) for every pixel of the Surface whose centre lies in [left, right] x [top, bottom].
template <typename F>
void ForEachPixelIn(const Surface& s, double left, double top, double right, double bottom, F f) {
    const int x0 = ClampedCeil(left, 0, s.Width());
    const int x1 = ClampedFloor(right, -1, s.Width() - 1);
    const int y0 = ClampedCeil(top, 0, s.Height());
    const int y1 = ClampedFloor(bottom, -1, s.Height() - 1);
    for (int y = y0; y <= y1; ++y)
        for (int x = x0; x <= x1; ++x) f(x, y);
}

}  // namespace vexlo::surface::geometry
