#include "core/session/color_mixer/color_mixer.h"

namespace vexlo::session {

ColorMixer::ColorMixer() {
    m_enabled = color::AdjMixEnabledOf(m_bars);
    Redraw();
}

std::string ColorMixer::BarText(int i) const {
    return i >= 0 && i < 3 ? std::to_string(m_bars[static_cast<std::size_t>(i)]) : std::string();
}

surface::Color ColorMixer::SwatchColor(int i) const {
    if (i >= 0 && i < 3) return color::ChannelColor(i, m_bars[static_cast<std::size_t>(i)]);
    return color::MixColor(m_bars);
}

void ColorMixer::ChangeBar(int i, int value) {
    ScrollBar(i, value);
    m_enabled = color::AdjMixEnabledOf(m_bars);
    Redraw();
}

void ColorMixer::ScrollBar(int i, int value) {
    if (i < 0 || i > 2 || value < 0 || value > color::kMixBarMax) return;
    m_bars[static_cast<std::size_t>(i)] = value;
}

void ColorMixer::Adjust(int element, surface::Color selected) {
    m_bars = color::AdjustMixBars(m_bars, element, selected);
    m_enabled = color::AdjMixEnabledOf(m_bars);
    Redraw();
}

bool ColorMixer::OnStrip(int x, int y) const {
    return x >= 0 && y >= 0 && x < m_strip.Width() && y < m_strip.Height();
}

std::optional<surface::Color> ColorMixer::ColorAt(int x, int y) const {
    if (!OnStrip(x, y)) return std::nullopt;
    return m_strip.GetPixel(x, y);
}

std::optional<std::string> ColorMixer::PointerMoved(int x, int y) {
    const auto c = ColorAt(x, y);
    if (!c) return std::nullopt;
    m_marker = MixMarker{0, y - 2, m_strip.Width() - 1, 3};
    return color::MixLabelText(*c);
}

void ColorMixer::ShowPalette(const surface::Surface& picture) {
    surface::BitBlt(m_strip, 0, 0, m_strip.Width(), m_strip.Height(), picture, 0, 0,
                    surface::Rop::SrcCopy);
}

void ColorMixer::Redraw() {
    color::DrawMixGradient(m_strip, SwatchColor(0), SwatchColor(1), SwatchColor(2));
}

}  // namespace vexlo::session
