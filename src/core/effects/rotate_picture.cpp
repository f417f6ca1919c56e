// The inverse-mapping rotation and its bilinear read.
#include "core/effects/rotate_picture.h"

#include <cmath>

namespace vexlo::effects {
namespace {

// To nearest, ties to even (the default rounding mode).
int Round(double v) { return static_cast<int>(std::nearbyint(v)); }

// The components of a color as read, CLR_INVALID included (all 255).
int Component(Color c, int shift) { return static_cast<int>((c >> shift) & 0xFF); }

}  // namespace

Color MixColors(Color c1, double w1, Color c2, double w2) {
    int out[3];
    for (int k = 0; k < 3; ++k) {
        const int p = Component(c1, 8 * k), q = Component(c2, 8 * k);
        out[k] = Round(q * w1 + p * w2);
    }
    return surface::Rgb(out[0], out[1], out[2]);
}

Color InterpolateY(const Surface& source, double x, double y) {
    const double y0 = std::floor(y), y1 = std::floor(y + 0.999);
    const double fy = y - y0;
    const int column = Round(x);
    const Color c0 = source.GetPixel(column, static_cast<int>(y0));
    if (y0 == y1) return c0;
    const Color c1 = source.GetPixel(column, static_cast<int>(y1));
    return MixColors(c0, fy, c1, 1 - fy);
}

Color InterpolateXY(const Surface& source, double x, double y) {
    const double x0 = std::floor(x), x1 = std::floor(x + 0.999);
    const double fx = x - x0;
    const Color c0 = InterpolateY(source, x0, y);
    if (x0 == x1) return c0;
    const Color c1 = InterpolateY(source, x1, y);
    return MixColors(c0, fx, c1, 1 - fx);
}

void RotatePicture(const Surface& source, Surface& target, double angle,
                   const RotateOptions& o) {
    const int sx = source.Width() / 2, sy = source.Height() / 2;
    const int cx = o.CenterX != 0 ? o.CenterX : target.Width() / 2;
    const int cy = o.CenterY != 0 ? o.CenterY : target.Height() / 2;
    const double w = source.Width(), h = source.Height();
    const int d = Round(std::sqrt(w * w + h * h) + 2);
    const double half = d / 2.0;
    const double theta = angle / 360 * 2 * kRotatePi;

    // Reads the source at (x, y) and writes the target cell (tx, ty) by the rules above.
    const auto feed = [&](double x, double y, int tx, int ty) {
        Color c = source.GetPixel(Round(x), Round(y));
        if (c == surface::kInvalidColor) return;
        if (o.UseKey && c == o.KeyColor) return;
        if (o.AntiAlias) c = InterpolateXY(source, x, y);
        target.SetPixelV(tx, ty, c);
    };
    for (int i = 0; i <= half; ++i) {
        for (int j = 0; j <= half; ++j) {
            const double phi = i == 0 ? kRotatePi / 2 : std::atan(static_cast<double>(j) / i);
            const double r = std::sqrt(static_cast<double>(i) * i + static_cast<double>(j) * j);
            const double a = r * std::cos(theta + phi), b = r * std::sin(theta + phi);
            feed(sx + a, sy + b, cx + i, cy + j);
            feed(sx - a, sy - b, cx - i, cy - j);
            feed(sx + b, sy - a, cx + j, cy - i);
            feed(sx - b, sy + a, cx - j, cy + i);
        }
    }
}

}  // namespace vexlo::effects
