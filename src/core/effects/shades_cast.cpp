// Cast: the in-place scan that colors each painted cell by the cast values plus its difference
// from the cell down and to the right, and the rules of the Cast controls.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "core/effects/shades.h"

namespace vexlo::effects {
namespace {

constexpr int kMaxComponent = 255;

struct Components {
    int R, G, B;
};

// R = v mod 256, G = (v / 256) mod 256, B = v / 65536 on the signed 32-bit value, truncating.
// A color inside the picture gives its bytes; GetPixel's 0xFFFFFFFF past the edge is -1 and
// gives R = -1, G = 0, B = 0.
Components ComponentsOf(Color v) {
    const auto s = static_cast<std::int32_t>(v);
    return {s % 256, (s / 256) % 256, s / 65536};
}

// |cast + (own - neighbour)|, above 255 counting as 255.
int CastComponent(int cast, int own, int neighbour) {
    return std::min(std::abs(cast + (own - neighbour)), kMaxComponent);
}

}  // namespace

ShadesPreview PreviewCast(const IconPlanes& planes, const CastValues& cast) {
    // |own - neighbour| is at most 256, so any cast value beyond +-512 already gives 255; holding
    // the values within +-1024 changes no result and keeps the sums far from overflow.
    const auto held = [](int v) { return std::clamp(v, -1024, 1024); };
    const int cr = held(cast[0]), cg = held(cast[1]), cb = held(cast[2]);
    ShadesPreview preview = PreparePreview(planes);
    Surface& image = preview.Image;
    for (int x = 0; x < image.Width(); ++x)
        for (int y = 0; y < image.Height(); ++y) {
            const Color c = image.GetPixel(x, y);
            if (c == kTransparentGray && planes.picMask.GetPixel(x, y) == kWhite) continue;
            const Components own = ComponentsOf(c);
            // (x+1,y+1) comes later in this scan order (x outer, y inner): not yet written.
            const Components next = ComponentsOf(image.GetPixel(x + 1, y + 1));
            image.SetPixelV(x, y, surface::Rgb(CastComponent(cr, own.R, next.R),
                                               CastComponent(cg, own.G, next.G),
                                               CastComponent(cb, own.B, next.B)));
        }
    return preview;
}

std::array<std::string, 256> CastListEntries() {
    std::array<std::string, 256> entries;
    for (std::size_t i = 0; i < entries.size(); ++i) entries[i] = std::to_string(i);
    return entries;
}

int CastLevelOf(const CastValues& values) {
    // std::nearbyint rounds in the default mode: to nearest, ties to even.
    return static_cast<int>(std::nearbyint((values[0] + values[1] + values[2]) / 3.0));
}

void ResetCast(CastControls& controls) { controls = CastControls{}; }

bool CastSliderChanged(CastControls& controls, int sliderValue, bool formLoading) {
    controls.Slider = std::clamp(sliderValue, 0, kMaxComponent);
    if (formLoading) return false;
    const int delta = controls.Slider - controls.CastLevel;
    for (int& v : controls.Values)
        v = std::clamp(std::min(v, kMaxComponent) + delta, 0, kMaxComponent);
    controls.CastLevel = CastLevelOf(controls.Values);
    controls.Slider = controls.CastLevel;
    return true;
}

bool CastComboClicked(CastControls& controls, int element, int listIndex, bool formLoading) {
    if (element < 0 || element > 2) return false;
    controls.Values[static_cast<std::size_t>(element)] = std::clamp(listIndex, 0, kMaxComponent);
    if (formLoading) return false;
    controls.CastLevel = CastLevelOf(controls.Values);
    controls.Slider = controls.CastLevel;
    return true;
}

}  // namespace vexlo::effects
