#include "core/session/effects_panels/text_panel.h"

namespace vexlo::session {

void TextPanel::SetFonts(std::vector<std::string> names) {
    m_state.FontNames = std::move(names);
    m_state.FontIndex = 0;
    m_fontsLoaded = true;
}

std::string TextPanel::FontName() const {
    const auto& names = m_state.FontNames;
    const auto i = static_cast<std::size_t>(m_state.FontIndex);
    return i < names.size() ? names[i] : std::string();
}

host::TextFont TextPanel::Font() const {
    return {FontName(), effects::FontSizeOf(m_state.FontSizeIndex), m_state.FontStyle[0],
            m_state.FontStyle[1]};
}

void TextPanel::ChooseWriteStyle(int index) {
    if (index == 0 || index == 1) m_state.WriteStyle = index;
}

void TextPanel::ChooseFontSize(int index) {
    if (index >= 0 && index < effects::kFontSizeCount) m_state.FontSizeIndex = index;
}

void TextPanel::FlipFontStyle(int i) {
    if (i == 0 || i == 1) m_state.FontStyle[static_cast<std::size_t>(i)] ^= true;
}

void TextPanel::ChooseFont(int index) {
    if (index >= 0 && static_cast<std::size_t>(index) < m_state.FontNames.size())
        m_state.FontIndex = index;
}

void TextPanel::SetAngle(int value, bool formLoading) {
    if (formLoading || value < effects::kTextAngleMin || value > effects::kTextAngleMax) return;
    m_state.Angle = value;
    effects::TurnTextAngleSample(m_state.AngleSample, m_state.AngleSampleBgd, value);
}

void TextPanel::ShowTextSample() {
    m_state.Sample.Colors = effects::TextSampleColorsOf(m_state.TextColor);
    m_state.Sample.Font = Font();
}

}  // namespace vexlo::session
