#include "core/tools/spotlight.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace vexlo::tools {

namespace {

constexpr Color kBlack = 0x000000;
constexpr Color kGray = 0xC0C0C0;
constexpr Color kPaleEnd = 0xFFFFEE;
constexpr Color kWhite = 0xFFFFFF;
constexpr Color kNearlyWhite = 0xFFFFEF;  // a SelectedColor below it tints the bare gray
constexpr double kArcEnd = 6;             // the whole number that 2 pi rounds to

// The percentage of the underlying pixel, by |dy| (rows) and |dx| (columns).
constexpr int kBlend[9][9] = {
    {0, 0, 10, 15, 20, 25, 30, 35, 40},     {0, 10, 15, 20, 25, 30, 35, 40, 45},
    {10, 15, 20, 25, 30, 35, 40, 45, 50},   {15, 20, 25, 30, 35, 40, 45, 50, 55},
    {20, 25, 30, 35, 40, 45, 50, 55, 65},   {25, 30, 35, 40, 45, 50, 55, 60, 65},
    {30, 35, 40, 45, 50, 55, 65, 65, 65},   {35, 40, 45, 50, 55, 60, 65, 65, 65},
    {40, 45, 50, 55, 65, 65, 65, 65, 65},
};
constexpr int kBlendBeyond = 65;

// A float rounded to the nearest integer, ties to even (the default rounding mode).
int RoundEven(float v) { return static_cast<int>(std::lrint(v)); }
int RoundEven(double v) { return static_cast<int>(std::lrint(v)); }

// num / 100 for num >= 0, rounded to the nearest integer, ties to even.
int DivideBy100Even(int num) {
    const int q = num / 100;
    const int r = num % 100;
    return r > 50 || (r == 50 && q % 2 != 0) ? q + 1 : q;
}

struct Channels {
    int r = 0, g = 0, b = 0;
};

// A pixel's channels; CLR_INVALID (a read outside a Surface) gives 255 in each.
Channels ChannelsOf(Color c) {
    return {surface::RedOf(c), surface::GreenOf(c), surface::BlueOf(c)};
}

// Rings of radius 0..n-1 around the centre of `target`, ring i in ramp[i], at pen width 2.
void DrawRings(Surface& target, const Surface& picIcon, const std::vector<Color>& ramp,
               bool arcs, double aspect) {
    surface::MakeSameSize(picIcon, target);
    // Not filled (the default brush): a filled disc would cover the smaller rings drawn before it.
    const surface::Pen pen{.Width = 2};
    const double cx = picIcon.Width() / 2.0;
    const double cy = picIcon.Height() / 2.0;
    for (std::size_t i = 0; i < ramp.size(); ++i) {
        const double radius = static_cast<double>(i);
        if (arcs)
            target.CircleArc(cx, cy, radius, ramp[i], 0, kArcEnd, aspect, pen);
        else
            target.Circle(cx, cy, radius, ramp[i], 1.0, pen);
    }
}

}  // namespace

std::vector<Color> MakeColorRamp(Color c1, Color c2, int n) {
    std::vector<Color> ramp;
    if (n <= 0) return ramp;
    const Channels a = ChannelsOf(c1);
    const Channels b = ChannelsOf(c2);
    const float fn = static_cast<float>(n);
    const float dR = static_cast<float>(b.r - a.r) / fn;
    const float dG = static_cast<float>(b.g - a.g) / fn;
    const float dB = static_cast<float>(b.b - a.b) / fn;
    ramp.reserve(static_cast<std::size_t>(n));
    for (int i = 1; i <= n; ++i) {
        const float fi = static_cast<float>(i);
        ramp.push_back(surface::Rgb(RoundEven(static_cast<float>(a.r) + fi * dR),
                                    RoundEven(static_cast<float>(a.g) + fi * dG),
                                    RoundEven(static_cast<float>(a.b) + fi * dB)));
    }
    return ramp;
}

int SpotlightBlend(int centerX, int centerY, int x, int y) {
    const int dx = std::abs(x - centerX);
    const int dy = std::abs(y - centerY);
    if (dx > 8 || dy > 8) return kBlendBeyond;
    return kBlend[dy][dx];
}

void SpotlightLimit(DispRect& band, CellRect& shape, int magnifyStep) {
    const int limit = 15 * magnifyStep;
    if (band.Right - band.Left <= limit && band.Bottom - band.Top <= limit) return;
    band.Right = band.Left + limit;
    band.Bottom = band.Top + limit;
    shape.Right = shape.Left + 15;
    shape.Bottom = shape.Top + 15;
}

bool SpotlightCornerLeftOut(const CellRect& s, int x, int y) {
    const int L = s.Left, R = s.Right, T = s.Top, B = s.Bottom;
    const bool topLeft =
        (y == T && x <= L + 2) || (y == T + 1 && x <= L + 1) || (y == T + 2 && x <= L);
    const bool topRight = (y == T && x >= R - 1) || (y == T + 1 && x >= R);
    const bool bottomLeft = y == B && x == L;
    const bool bottomRight =
        (x == R && y >= B - 2) || (y == B - 1 && x >= R - 1) || (y == B && x >= R - 2);
    return topLeft || topRight || bottomLeft || bottomRight;
}

void DrawPaleRings(Surface& picImageTemp, const Surface& picIcon, int n) {
    DrawRings(picImageTemp, picIcon, MakeColorRamp(kGray, kPaleEnd, n), false, 1.0);
}

std::vector<Color> DrawColoredRings(Surface& picTemp, const Surface& picIcon, int n,
                                    Color selected, double aspect) {
    std::vector<Color> ramp = MakeColorRamp(selected, kWhite, n);
    DrawRings(picTemp, picIcon, ramp, true, aspect);
    return ramp;
}

bool PlotSpotlight(Surface& picImage, Surface& picMask, const Surface& picIcon, Surface& picTemp,
                   Surface& picImageTemp, DrawState& d, Color selected,
                   const std::function<void()>& doEvents) {
    CellRect s = d.Shape;
    if (ShapeGeometry(s.Left, s.Top, s.Right, s.Bottom, d) <= 0) return false;
    // Too small, or dragged to the left or upwards: 9 x 9 from the press cell.
    if (!(s.Right - s.Left >= 4 && s.Bottom - s.Top >= 4)) {
        s.Right = s.Left + 8;
        s.Bottom = s.Top + 8;
    }
    // The ring pictures.
    const int n = s.Right - s.Left;
    DrawPaleRings(picImageTemp, picIcon, n);
    const std::vector<Color> ramp = DrawColoredRings(picTemp, picIcon, n, selected, d.OvalAspect);
    // Offsets from the spot into the ring pictures (a half cell rounds to even), the centre.
    const double ox = picIcon.Width() / 2.0 - (s.Right - s.Left) / 2.0;
    const double oy = picIcon.Height() / 2.0 - (s.Bottom - s.Top) / 2.0;
    const int cx = static_cast<int>(std::floor((s.Right - s.Left) / 2.0 + s.Left));
    const int cy = static_cast<int>(std::floor((s.Bottom - s.Top) / 2.0 + s.Top));
    // The pixels, column by column, without the rounded corners.
    for (int x = s.Left; x <= s.Right; ++x)
        for (int y = s.Top; y <= s.Bottom; ++y) {
            if (SpotlightCornerLeftOut(s, x, y)) continue;
            const int tx = RoundEven(x - s.Left + ox);
            const int ty = RoundEven(y - s.Top + oy);
            const Channels spot = ChannelsOf(picTemp.GetPixel(tx, ty));
            const Color p = picIcon.GetPixel(x, y);
            Channels out;
            if (p != kGray) {
                // The underlying picture shines through by the blend table.
                const int P = SpotlightBlend(cx, cy, x, y);
                const Channels under = ChannelsOf(p);
                auto mix = [P](int u, int v) { return DivideBy100Even(u * P + v * (100 - P)); };
                out = {mix(under.r, spot.r), mix(under.g, spot.g), mix(under.b, spot.b)};
            } else if (selected < kNearlyWhite) {
                // The bare gray: the ring color x 1.05.
                auto brighten = [](int v) { return std::min(255, DivideBy100Even(v * 105)); };
                out = {brighten(spot.r), brighten(spot.g), brighten(spot.b)};
            } else {
                // A nearly white spot on the bare gray shows the pale rings.
                out = ChannelsOf(picImageTemp.GetPixel(tx, ty));
            }
            picImage.SetPixelV(x, y, surface::Rgb(out.r, out.g, out.b));
            picMask.SetPixelV(x, y, kBlack);
            if (doEvents) doEvents();
        }
    // The highlight, in picImage only.
    const Color e = ramp.front();
    const int highlight[6][2] = {{cx, cy},         {cx - 1, cy},     {cx + 1, cy},
                                 {cx + 1, cy - 1}, {cx, cy - 1},     {cx - 2, cy + 1}};
    for (const auto& h : highlight) picImage.SetPixelV(h[0], h[1], e);
    picTemp.Clear();
    picImageTemp.Clear();
    return true;
}

}  // namespace vexlo::tools
