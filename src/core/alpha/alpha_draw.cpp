#include "core/alpha/alpha_draw.h"

#include <cmath>

namespace vexlo::alpha {

using surface::Color;
using surface::Surface;

namespace {

// Rounds to the nearest integer, halves to even, and holds the result within 0..255.
int ToByte(double v) {
    const double r = std::nearbyint(v);  // the default rounding mode rounds halves to even
    return r < 0 ? 0 : r > 255 ? 255 : static_cast<int>(r);
}

int GrayOfPercent(int percent) { return ToByte((100 - percent) * 255.0 / 100.0); }

int BlendChannel(int percent, int background, int channel) {
    return ((100 - percent) * background + percent * channel) / 100;
}

}  // namespace

int AlphaPercent(int alpha) {
    return static_cast<int>(std::floor(static_cast<double>(alpha) / 255.0 * 100.0));
}

int AlphaGray(int alpha) { return GrayOfPercent(AlphaPercent(alpha)); }

Color AlphaSwatch(int alpha) {
    const int percent = static_cast<int>(std::nearbyint(static_cast<double>(alpha) / 255.0 * 100.0));
    const int v = GrayOfPercent(percent);
    return surface::Rgb(v, v, v);
}

Color BlendOverBackground(Color color, int alpha) {
    const int p = AlphaPercent(alpha);
    constexpr int kBack = 192;
    return surface::Rgb(BlendChannel(p, kBack, surface::RedOf(color)),
                        BlendChannel(p, kBack, surface::GreenOf(color)),
                        BlendChannel(p, kBack, surface::BlueOf(color)));
}

void DrawAlphaValues(const Surface& mask, const AlphaArray& alpha, Surface& target) {
    const int n = alpha.UpperBound();
    if (alpha.IsSingle()) return;
    for (int x = 0; x <= n; ++x) {
        for (int y = 0; y <= n; ++y) {
            if (mask.GetPixel(x, y) != 0) continue;
            const int v = AlphaGray(alpha.At(x, y));
            target.SetPixelV(x, y, surface::Rgb(v, v, v));
        }
    }
}

void DrawAlphaIcon(const Surface& mask, const Surface& image, const AlphaArray& alpha, int side,
                   Surface& target) {
    target.FillBox(0, 0, side, side, kAlphaBackground);
    if (alpha.IsSingle()) return;
    const int n = alpha.UpperBound();
    for (int x = 0; x <= n; ++x) {
        for (int y = 0; y <= n; ++y) {
            if (mask.GetPixel(x, y) != 0) continue;
            const Color c = image.GetPixel(x, y);
            if (c == surface::kInvalidColor) continue;
            target.SetPixelV(x, y, BlendOverBackground(c, alpha.At(x, y)));
        }
    }
}

}  // namespace vexlo::alpha
