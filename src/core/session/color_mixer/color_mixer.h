#pragma once
// The Color Mixer of the Colors Panel (fraColorMixer): the three bars, the "+" and "-" buttons'
// states, the strip picMixGradient and the bar over it (ShapeMix). The swatches follow the
// bars: PicRGB element i shows bar i alone, PicRGBMix all three. The strip is redrawn after a
// change of a bar, not while a thumb is dragged, and a loaded palette stays in it until the
// next redraw.
#include <optional>
#include <string>

#include "core/color/mix_gradient.h"
#include "core/surface/surface.h"

namespace vexlo::session {

// picMixGradient's size in pixels: one row per band.
inline constexpr int kMixStripWidth = 40;
inline constexpr int kMixStripHeight = color::kMixBands;

// ShapeMix inside the strip.
struct MixMarker {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
};

class ColorMixer {
public:
    // All bars at 255 and the strip drawn from them.
    ColorMixer();

    const color::MixBars& Bars() const { return m_bars; }
    // lblRGB element i.
    std::string BarText(int i) const;
    // PicRGB element i (0..2) and PicRGBMix (3).
    surface::Color SwatchColor(int i) const;
    const color::AdjMixEnabled& AdjEnabled() const { return m_enabled; }
    const surface::Surface& Strip() const { return m_strip; }
    const std::optional<MixMarker>& Marker() const { return m_marker; }

    // HsrRGB change of element i to value: the buttons' states, the swatches and the strip.
    void ChangeBar(int i, int value);
    // HsrRGB scroll while the thumb is dragged: the bar and its swatches only.
    void ScrollBar(int i, int value);
    // cmdAdjMix element (0 "+", 1 "-", 2 the selected color's components), then as a change.
    void Adjust(int element, surface::Color selected);

    // Whether (x, y) lies on the strip (its pixels).
    bool OnStrip(int x, int y) const;
    // The strip's color at (x, y), if on it.
    std::optional<surface::Color> ColorAt(int x, int y) const;
    // The pointer moved over the strip: ShapeMix follows it and the color's text for lblMix;
    // nothing off the strip.
    std::optional<std::string> PointerMoved(int x, int y);

    // A loaded palette picture of a size that fits: its top left becomes the strip.
    void ShowPalette(const surface::Surface& picture);

private:
    void Redraw();

    color::MixBars m_bars{color::kMixBarMax, color::kMixBarMax, color::kMixBarMax};
    color::AdjMixEnabled m_enabled;
    surface::Surface m_strip{kMixStripWidth, kMixStripHeight, 0xFFFFFF};
    std::optional<MixMarker> m_marker;
};

}  // namespace vexlo::session
