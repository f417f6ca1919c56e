// The gradient pictures of Gradient Unpainted Area and its Proceed.
#include "core/effects/gradient.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/tools/spotlight.h"

namespace vexlo::effects {
namespace {

// Nearest integer, ties to even (the default rounding mode).
int RoundEven(double v) { return static_cast<int>(std::lrint(v)); }

// Whether a sweep point has gone past the far edge of its sweep.
bool PastFarEdge(SweepStart start, const GradientPoint& p, int height, int reach) {
    switch (start) {
        case SweepStart::Bottom: return p.Y < 1;
        case SweepStart::Top: return p.Y >= height;
        case SweepStart::Right: return p.X < 1;
        case SweepStart::Left: return p.X >= reach;
    }
    return true;
}

}  // namespace

void RotatePoint(const GradientPoint& center, GradientPoint& point, double angle) {
    const double t = angle * 3.14159265359 / 180.0;
    const double dx = point.X - center.X;
    const double dy = point.Y - center.Y;
    point.X = RoundEven(dx * std::cos(t) + dy * std::sin(t) + center.X);
    point.Y = RoundEven(-dx * std::sin(t) + dy * std::cos(t) + center.Y);
}

SweepStart LinearSweepOf(int angle, bool wideLine) {
    if (angle >= 0 && angle <= 90) return wideLine ? SweepStart::Bottom : SweepStart::Left;
    if (angle > 90 && angle <= 180) return wideLine ? SweepStart::Bottom : SweepStart::Right;
    if (angle > 180 && angle <= 270) return wideLine ? SweepStart::Top : SweepStart::Right;
    return wideLine ? SweepStart::Top : SweepStart::Left;
}

std::vector<GradientPoint> LinearSweepPoints(int width, int height, int angle) {
    std::vector<GradientPoint> points;
    if (width < 16 || height < 16) return points;
    const GradientPoint center{width / 2, height / 2};
    const int d = RoundEven(std::sqrt(static_cast<double>(width) * width +
                                      static_cast<double>(height) * height) + 2.0);
    GradientPoint p0{center.X - d, center.Y};
    GradientPoint p1{center.X + d, center.Y};
    const double turned = angle + 90.0;
    const double a = turned - std::floor(turned / 360.0) * 360.0;
    RotatePoint(center, p0, a);
    RotatePoint(center, p1, a);

    const bool wide = std::abs(p0.X - p1.X) > std::abs(p0.Y - p1.Y);
    const SweepStart start = LinearSweepOf(angle, wide);
    int offX = 0, offY = 0, stepX = 0, stepY = 0;
    switch (start) {
        case SweepStart::Bottom: offY = height - std::min(p0.Y, p1.Y); stepY = -1; break;
        case SweepStart::Top: offY = -std::max(p0.Y, p1.Y); stepY = 1; break;
        case SweepStart::Left: offX = -std::max(p0.X, p1.X); stepX = 1; break;
        case SweepStart::Right: offX = d - std::min(p0.X, p1.X); stepX = -1; break;
    }
    points.reserve(1000);
    points.push_back({p0.X + offX, p0.Y + offY});
    points.push_back({p1.X + offX, p1.Y + offY});
    while (!(PastFarEdge(start, points[points.size() - 1], height, d) &&
             PastFarEdge(start, points[points.size() - 2], height, d))) {
        if (points.size() == points.capacity()) points.reserve(points.capacity() + 1000);
        const GradientPoint& back2 = points[points.size() - 2];
        points.push_back({back2.X + stepX, back2.Y + stepY});
    }
    return points;
}

void DrawLinearGradient(Surface& s, int angle, Color c1, Color c2) {
    const std::vector<GradientPoint> points = LinearSweepPoints(s.Width(), s.Height(), angle);
    if (points.empty()) return;
    const std::vector<Color> ramp =
        tools::MakeColorRamp(c1, c2, static_cast<int>(points.size()));
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        s.Line(points[i].X, points[i].Y, points[i + 1].X, points[i + 1].Y, ramp[i]);
}

void DrawSquareGradient(Surface& s, Color c1, Color c2) {
    const int n = s.Width() / 2;
    const std::vector<Color> ramp = tools::MakeColorRamp(c1, c2, n);
    int left = 0, top = 0, right = s.Width() - 1, bottom = s.Height() - 1;
    const surface::Pen pen{3, surface::kDrawStyleSolid, surface::kDrawModeCopyPen};
    for (int i = 0; i < n; ++i) {
        s.Box(left, top, right, bottom, ramp[static_cast<std::size_t>(i)], pen);
        ++left;
        ++top;
        --right;
        --bottom;
    }
}

int SphericalRingCount(int width, int height, int x, int y) {
    const double left = x + 1.0, up = y + 1.0;
    const double right = static_cast<double>(width) - x, down = static_cast<double>(height) - y;
    const double r = std::max({std::hypot(left, up), std::hypot(right, up),
                               std::hypot(right, down), std::hypot(left, down)});
    return RoundEven(r);
}

void DrawSphericalGradient(Surface& s, int x, int y, Color c1, Color c2) {
    const int n = SphericalRingCount(s.Width(), s.Height(), x, y);
    const std::vector<Color> ramp = tools::MakeColorRamp(c1, c2, n);
    s.Clear();
    for (int i = 0; i < n; ++i) s.Circle(x, y, i, ramp[static_cast<std::size_t>(i)]);
}

void DrawAllGradients(Surface (&pictures)[3], int side, int angle, Color c1, Color c2) {
    for (Surface& p : pictures) surface::ResizeSurface(p, side, side);
    DrawLinearGradient(pictures[0], angle, c1, c2);
    DrawSquareGradient(pictures[1], c1, c2);
    DrawSphericalGradient(pictures[2], side / 2, side / 2, c1, c2);
}

bool HasUnpaintedCell(const Surface& mask) {
    const Color* p = mask.Data();
    const std::size_t count = static_cast<std::size_t>(mask.Width()) * mask.Height();
    return std::find(p, p + count, icon::kWhite) != p + count;
}

void ProceedGradient(const Surface& picture, Surface& picImage, Surface& picMask) {
    const int size = picImage.Width();
    Surface picTemp(size, size, icon::kWhite);
    surface::BitBlt(picTemp, 0, 0, size, size, picture, 0, 0, surface::Rop::SrcCopy);
    for (int x = 0; x < size; ++x)
        for (int y = 0; y < size; ++y)
            if (picMask.GetPixel(x, y) == icon::kWhite)
                picImage.SetPixelV(x, y, picTemp.GetPixel(x, y));
    picMask.FillBox(0, 0, size, size, icon::kBlack);
}

}  // namespace vexlo::effects
