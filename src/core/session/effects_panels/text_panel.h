#pragma once
// fraText while it is up, and what stays of it for the run: the text, its style, font, size,
// bold and italic, TextColor, the angle with its turning sample, and lblTextSample's look.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/effects/text_effect.h"
#include "core/host/host.h"
#include "core/session/effects_panels/floating_text.h"

namespace vexlo::session {

// What lblTextSample shows: its colors and its font.
struct TextSampleLook {
    effects::TextSampleColors Colors{0xFFFFFF, effects::kTextInitialColor};
    host::TextFont Font;
};

struct TextState {
    surface::Color TextColor = effects::kTextInitialColor;
    std::string Text;                                    // txbWriteText
    int WriteStyle = 0;                                  // cboTextWriteStyle
    std::vector<std::string> FontNames;                  // cboFontName
    int FontIndex = 0;
    int FontSizeIndex = effects::kFontSizeInitialIndex;  // cboFontSize
    std::array<bool, 2> FontStyle{false, false};         // imgFontStyle: Bold, Italic
    int Angle = 0;                                       // HsbTextWriteSampleAngle
    TextSampleLook Sample;                               // lblTextSample
    surface::Surface AngleSample = effects::TextAngleSample();
    surface::Surface AngleSampleBgd = effects::TextAngleSampleBackground();
};

class TextPanel {
public:
    const TextState& State() const { return m_state; }
    FloatingText& Floating() { return m_floating; }
    const FloatingText& Floating() const { return m_floating; }

    // The font list, filled once from the platform's screen fonts.
    bool FontsLoaded() const { return m_fontsLoaded; }
    void SetFonts(std::vector<std::string> names);
    // The chosen font's name; empty when the list is.
    std::string FontName() const;
    // ApplyTextFont: the font of the controls.
    host::TextFont Font() const;

    // The frame opens: the angle back to 0 and the sample turned.
    void Open() { SetAngle(0, false); }
    void SetText(std::string text) { m_state.Text = std::move(text); }
    void ChooseWriteStyle(int index);
    void ChooseFontSize(int index);
    // imgFontStyle(i): bold or italic flips.
    void FlipFontStyle(int i);
    void SetTextColor(surface::Color c) { m_state.TextColor = c & surface::kRgbMask; }
    // Picks the list entry; the caller checks the font and shows the sample.
    void ChooseFont(int index);
    // HsbTextWriteSampleAngle: ignored while the window writes its controls.
    void SetAngle(int value, bool formLoading);
    // ShowTextSample: lblTextSample from the settings.
    void ShowTextSample();

private:
    TextState m_state;
    bool m_fontsLoaded = false;
    FloatingText m_floating;
};

}  // namespace vexlo::session
