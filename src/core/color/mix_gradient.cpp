// The Color Mixer's bands, steps and texts.
#include "core/color/mix_gradient.h"

#include <algorithm>
#include <cmath>

namespace vexlo::color {
namespace {

using surface::BlueOf;
using surface::GreenOf;
using surface::RedOf;
using surface::Rgb;

struct Components {
    int R, G, B;
};

Components Split(Color c) { return {RedOf(c), GreenOf(c), BlueOf(c)}; }

Components Max(const Components& a, const Components& b) {
    return {std::max(a.R, b.R), std::max(a.G, b.G), std::max(a.B, b.B)};
}

// from + (to - from) x step / 26, to nearest, ties to even.
int Toward(int from, int to, int step) {
    return static_cast<int>(std::lrint(from + (to - from) * static_cast<double>(step) / 26.0));
}

Color Blend(const Components& from, const Components& to, int step) {
    return Rgb(Toward(from.R, to.R, step), Toward(from.G, to.G, step), Toward(from.B, to.B, step));
}

}  // namespace

Color ChannelColor(int i, int value) {
    return i == 0 ? Rgb(value, 0, 0) : i == 1 ? Rgb(0, value, 0) : Rgb(0, 0, value);
}

Color MixColor(const MixBars& bars) { return Rgb(bars[0], bars[1], bars[2]); }

std::array<Color, kMixBands> MixBandColors(Color c0, Color c1, Color c2) {
    const Components a = Split(c0), b = Split(c1), c = Split(c2);
    const Components ab = Max(b, a);  // C3, red and green
    const Components bc = Max(c, b);  // C4, green and blue
    std::array<Color, kMixBands> bands{};
    for (int k = 1; k <= kMixBands; ++k) {
        Color band = 0;
        if (k <= 25) band = Blend(a, ab, k - 1);
        else if (k <= 50) band = Blend(ab, b, k - 25);
        else if (k <= 75) band = Blend(b, bc, k - 50);
        else band = Blend(bc, c, k - 75);
        bands[static_cast<std::size_t>(k - 1)] = band;
    }
    return bands;
}

void DrawMixGradient(surface::Surface& strip, Color c0, Color c1, Color c2) {
    const int h = strip.Height();
    if (h <= 0 || strip.Width() <= 0) return;
    const std::array<Color, kMixBands> bands = MixBandColors(c0, c1, c2);
    for (int y = 0; y < h; ++y) {
        const auto k = static_cast<std::size_t>(static_cast<long long>(y) * kMixBands / h);
        strip.FillBox(0, y, strip.Width() - 1, y, bands[k]);
    }
}

AdjMixEnabled AdjMixEnabledOf(const MixBars& bars) {
    const bool allMax = bars[0] == kMixBarMax && bars[1] == kMixBarMax && bars[2] == kMixBarMax;
    const bool allZero = bars[0] == 0 && bars[1] == 0 && bars[2] == 0;
    return {!allMax, !allZero};
}

MixBars AdjustMixBars(const MixBars& bars, int element, Color selected) {
    MixBars out = bars;
    switch (element) {
        case 0:
            for (int& v : out) v = std::min(v + kMixStep, kMixBarMax);
            break;
        case 1:
            for (int& v : out) v = std::max(v - kMixStep, 0);
            break;
        case 2: out = {RedOf(selected), GreenOf(selected), BlueOf(selected)}; break;
        default: break;
    }
    return out;
}

std::string MixLabelText(Color c) {
    return "RGB: " + std::to_string(RedOf(c)) + ", " + std::to_string(GreenOf(c)) + ", " +
           std::to_string(BlueOf(c));
}

PaletteFit PaletteFitOf(int pictureWidth, int pictureHeight, int stripWidth, int stripHeight) {
    if (pictureWidth < stripWidth || pictureHeight < stripHeight) return PaletteFit::TooSmall;
    if (pictureWidth > stripWidth + 2 || pictureHeight > stripHeight + 2) return PaletteFit::TooLarge;
    return PaletteFit::Fits;
}

}  // namespace vexlo::color
