// Circle and CircleArc: ellipses with a real centre and radii, outlined at the pen's width.
//
// Pixel rules, with rx, ry the horizontal and vertical radius and pixel (x, y) centred at (x, y):
// - The shape of an ellipse is the set of pixels whose centre lies in the ellipse with half-axes
//   rx + 1/2, ry + 1/2 around (cx, cy) (on its edge counts): the ellipse inscribed in the whole
//   pixels from (cx - rx, cy - ry) to (cx + rx, cy + ry), so corners (0,0)-(10,10) give a shape
//   from column and row 0 to 10 and never beyond. So that flat or thin ellipses still reach the
//   four sides of their box, the row(s) with a centre within 1/2 of cy span the full width, and
//   each row that the shape reaches holds the middle column(s) (centres within 1/2 of cx).
// - Width 1: the outline is the shape's pixels that have one of their four side neighbours
//   outside the shape: a closed 8-connected curve without gaps (an ellipse under 4 pixels
//   across may end in a one-pixel tip); the rest of the shape is the interior.
// - Width w > 1: the shape is grown by k = (w-1)/2 pixels on each side (half-axes
//   rx + 1/2 + k, ry + 1/2 + k); the interior is the ellipse with half-axes w less, taken
//   without the widening above, and the outline is what lies between. So the outline is w pixels
//   thick across the curve, centred on it for odd w, with the extra pixel inside for even w:
//   width 2 fills exactly the shape of width 1. (An offset of an ellipse is no ellipse; for
//   tiny icons the two ellipses are close enough.)
// - Flat ellipses (vertical radius 0, e.g. aspect 0) at width > 1: the wide Line from
//   (cx - rx, cy) to (cx + rx, cy), both ends drawn, nothing inside. At width 1 the rule above
//   already gives the row of pixels from cx - rx to cx + rx.
// - Arcs take the outline pixels whose centre, seen from (cx, cy), lies at an angle a with
//   start <= a < end (counterclockwise on the screen, y growing down; angles modulo 2 pi, start
//   > end wraps through 0, start == end is the whole outline). So the arcs 0..6 and 6..0
//   together are the whole outline, and at width 1 they share no pixel. At width > 1 each end is
//   rounded: the outline pixels within w/2 of the end's point on the middle of the outline (the
//   ellipse with radii rx, ry, less 1/2 for an even width) are added.
// - A dotted pen (kDrawStyleDot) at width 1 dots the outline (3 pixels on, 3 off) in
//   counterclockwise order from the start angle (angle 0 for a whole ellipse), counting the
//   outline pixels on the Surface.
// - Each pixel is touched at most once per call: interior (solid brush, never for arcs) and
//   outline are disjoint, so in invert mode the same call twice restores the Surface.
#include "core/surface/surface.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

#include "core/surface/pen_geometry.h"

namespace vexlo::surface {

namespace {

constexpr double kTwoPi = 6.283185307179586476925286766559;

// Pixels lo..hi of a row; empty when lo > hi.
struct Run {
    int lo = 0, hi = -1;
    bool Empty() const { return lo > hi; }
};

// The pixels x with |x - c| <= h (none for h < 0), clamped to -1..width. A whole or half-whole
// centre counts whole steps out from the middle, so the run is exactly mirror-symmetric.
Run SpanAbout(double c, double h, int width) {
    if (!(h >= 0)) return {};
    double lo = 0, hi = 0;
    const double twice = 2 * c;
    if (std::fabs(c) < 1e9 && twice == std::floor(twice)) {
        if (c == std::floor(c)) {
            const double k = std::floor(std::min(h, 4e9));
            lo = c - k;
            hi = c + k;
        } else {
            if (h < 0.5) return {};
            const double k = std::floor(std::min(h, 4e9) - 0.5);
            lo = c - 0.5 - k;
            hi = c + 0.5 + k;
        }
    } else {
        lo = std::ceil(c - h);
        hi = std::floor(c + h);
        if (lo > hi) return {};
    }
    return {geometry::ClampedCeil(lo, -1, width), geometry::ClampedFloor(hi, -1, width)};
}

// Half the width of the ellipse with half-axes a, b at row offset dy from its centre; negative
// where the row misses it. reachBox widens the rows near the centre and the thin rows so that
// the shape reaches all four sides of its box (see the rules above).
double HalfWidth(double a, double b, double dy, bool reachBox) {
    if (!(a > 0) || !(b > 0)) return -1;
    const double ady = std::fabs(dy);
    if (ady > b) return -1;
    const double q = ady / b;
    double h = a * std::sqrt(std::max(0.0, 1.0 - q * q));
    if (reachBox) {
        if (ady <= 0.5) h = a;
        h = std::max(h, 0.5);
    }
    return h;
}

double NormalAngle(double a) {
    a = std::fmod(a, kTwoPi);
    if (a < 0) a += kTwoPi;
    return a >= kTwoPi ? 0.0 : a;
}

// The angle of pixel (x, y) seen from (cx, cy), counterclockwise on the screen, in [0, 2 pi).
double PixelAngle(double cx, double cy, int x, int y) {
    return NormalAngle(std::atan2(cy - y, x - cx));
}

}  // namespace

void Surface::Circle(double cx, double cy, double radius, Color c, double aspect, const Pen& pen,
                     const Brush& brush) {
    DrawEllipse(cx, cy, radius, c, aspect, false, 0.0, 0.0, pen, brush);
}

void Surface::CircleArc(double cx, double cy, double radius, Color c, double startAngle,
                        double endAngle, double aspect, const Pen& pen) {
    if (!std::isfinite(startAngle) || !std::isfinite(endAngle)) return;
    DrawEllipse(cx, cy, radius, c, aspect, true, startAngle, endAngle, pen, Brush{});
}

void Surface::DrawEllipse(double cx, double cy, double radius, Color c, double aspect, bool isArc,
                          double startAngle, double endAngle, const Pen& pen,
                          const Brush& brush) {
    if (!std::isfinite(cx) || !std::isfinite(cy) || !std::isfinite(radius) ||
        !std::isfinite(aspect))
        return;
    radius = std::fabs(radius);
    aspect = std::fabs(aspect);
    const double rx = aspect <= 1 ? radius : radius / aspect;
    const double ry = aspect <= 1 ? radius * aspect : radius;
    const int w = geometry::EffectiveWidth(pen.Width);

    const double start = isArc ? NormalAngle(startAngle) : 0.0;
    const double end = isArc ? NormalAngle(endAngle) : 0.0;
    const bool whole = start == end;
    auto inArc = [&](int x, int y) {
        if (whole) return true;
        const double a = PixelAngle(cx, cy, x, y);
        return start < end ? a >= start && a < end : a >= start || a < end;
    };

    // The round ends of a wide arc: discs around the ends' points on the middle of the outline.
    const double mid = w % 2 == 0 ? 0.5 : 0.0;
    auto endPoint = [&](double angle) {
        const double a = rx - mid, b = ry - mid;
        const double ca = std::cos(angle), sa = std::sin(angle);
        double t = 0;
        if (a > 0 && b > 0) t = 1.0 / std::sqrt((ca / a) * (ca / a) + (sa / b) * (sa / b));
        return std::pair{cx + t * ca, cy - t * sa};
    };
    const auto [sx, sy] = endPoint(start);
    const auto [ex, ey] = endPoint(end);
    const geometry::RoundStroke startCap(sx, sy, sx, sy, w), endCap(ex, ey, ex, ey, w);
    const bool caps = w > 1 && !whole;

    const bool dotted = w == 1 && pen.Style == kDrawStyleDot;
    std::vector<std::tuple<double, int, int>> dots;  // (angle from the start, y, x)
    auto outline = [&](int x, int y) {
        if (!inArc(x, y) && !(caps && (startCap.Covers(x, y) || endCap.Covers(x, y)))) return;
        if (dotted)
            dots.emplace_back(NormalAngle(PixelAngle(cx, cy, x, y) - start), y, x);
        else
            PlotPen(x, y, c, pen);
    };
    const bool fill = !isArc && brush.Style == kFillStyleSolid;
    const int width = Width();
    auto runs = [&](int y, Run r, bool isOutline) {
        const int lo = std::max(r.lo, 0), hi = std::min(r.hi, width - 1);
        for (int x = lo; x <= hi; ++x) {
            if (isOutline)
                outline(x, y);
            else if (fill)
                PlotPen(x, y, brush.Fill, pen);
        }
    };

    if (w > 1 && ry == 0) {
        // Flat: the wide Line through the centre, both ends drawn.
        const double o = geometry::EvenShift(w);
        const geometry::RoundStroke line(cx - rx - o, cy - o, cx + rx - o, cy - o, w);
        geometry::ForEachPixelIn(*this, line.Left(), line.Top(), line.Right(), line.Bottom(),
                                 [&](int x, int y) {
                                     if (line.Covers(x, y)) outline(x, y);
                                 });
    } else {
        const int k = (w - 1) / 2;
        const double a = rx + 0.5 + k, b = ry + 0.5 + k;  // the shape
        const double ai = a - w, bi = b - w;              // the interior at width > 1
        auto span = [&](int y, double ha, double hb, bool reachBox) {
            return SpanAbout(cx, HalfWidth(ha, hb, y - cy, reachBox), width);
        };
        const int y0 = geometry::ClampedCeil(cy - b, 0, Height());
        const int y1 = geometry::ClampedFloor(cy + b, -1, Height() - 1);
        for (int y = y0; y <= y1; ++y) {
            const Run s = span(y, a, b, true);
            if (s.Empty()) continue;
            Run in;  // the interior's part of the row
            if (w == 1) {
                const Run up = span(y - 1, a, b, true), down = span(y + 1, a, b, true);
                if (!up.Empty() && !down.Empty())
                    in = {std::max({s.lo + 1, up.lo, down.lo}), std::min({s.hi - 1, up.hi, down.hi})};
            } else {
                in = span(y, ai, bi, false);
                if (!in.Empty()) in = {std::max(in.lo, s.lo), std::min(in.hi, s.hi)};
            }
            if (in.Empty()) {
                runs(y, s, true);
            } else {
                runs(y, {s.lo, in.lo - 1}, true);
                runs(y, in, false);
                runs(y, {in.hi + 1, s.hi}, true);
            }
        }
    }

    if (dotted) {
        std::sort(dots.begin(), dots.end());
        constexpr int kDotOn = 3, kDotPeriod = 6;
        for (std::size_t i = 0; i < dots.size(); ++i)
            if (static_cast<int>(i % kDotPeriod) < kDotOn)
                PlotPen(std::get<2>(dots[i]), std::get<1>(dots[i]), c, pen);
    }
}

}  // namespace vexlo::surface
