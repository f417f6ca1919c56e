// The Text effect: fraText's controls, the font check, and Proceed, which hands the drawn and
// turned text over as a floating Region.
#include <algorithm>
#include <cctype>

#include "core/session/session_effect_frames.h"

namespace vexlo::session {
namespace {

bool SameIgnoringCase(const std::string& a, const std::string& b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](unsigned char x, unsigned char y) {
               return std::tolower(x) == std::tolower(y);
           });
}

constexpr const char* kNoFontsText = "No screen font available in system.";

}  // namespace

void EffectFrames::ClickEffectsText() {
    if (!m_s.NeedsIconInArea()) return;
    TextPanel& text = m_s.m_effects.Text();
    if (!text.FontsLoaded()) {
        text.SetFonts(m_s.m_host.ScreenFonts());
        text.ShowTextSample();
    }
    m_s.ShowFrame(Frame::Text);
    text.Open();
}

void EffectFrames::SetWriteText(const std::string& value) {
    m_s.Enter();
    m_s.m_effects.Text().SetText(value);
}

void EffectFrames::ClickTextWriteStyle(int index) {
    m_s.Enter();
    m_s.m_effects.Text().ChooseWriteStyle(index);
}

void EffectFrames::ClickFontName(int index) {
    m_s.Enter();
    TextPanel& text = m_s.m_effects.Text();
    text.ChooseFont(index);
    const std::string name = text.FontName();
    if (!SameIgnoringCase(m_s.m_host.FontFamilyUsed(name), name)) {
        m_s.m_host.MsgBox(effects::FontNotAvailableText(name), MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    text.ShowTextSample();
}

void EffectFrames::ClickFontSize(int index) {
    m_s.Enter();
    m_s.m_effects.Text().ChooseFontSize(index);
    m_s.m_effects.Text().ShowTextSample();
}

void EffectFrames::ClickFontStyle(int i) {
    m_s.Enter();
    m_s.m_effects.Text().FlipFontStyle(i);
    m_s.m_effects.Text().ShowTextSample();
}

void EffectFrames::ClickTextColor() {
    m_s.Enter();
    TextPanel& text = m_s.m_effects.Text();
    const std::int32_t chosen =
        m_s.m_host.ShowColor(static_cast<std::int32_t>(text.State().TextColor), true);
    if (chosen < 0) return;
    text.SetTextColor(static_cast<Color>(chosen));
    text.ShowTextSample();
}

void EffectFrames::TextAngleChanged(int value) {
    m_s.Enter();
    m_s.m_effects.Text().SetAngle(value, m_s.m_formLoading);
}

void EffectFrames::AddTextProceed() {
    m_s.Enter();
    TextPanel& text = m_s.m_effects.Text();
    const TextState& state = text.State();
    if (effects::IsBlankText(state.Text)) {
        m_s.m_host.MsgBox(effects::kNoTextYet, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (m_s.m_form.VisibleFrame != Frame::Text || !m_s.InArea()) return;
    host::Hourglass hourglass(m_s.m_host);
    // The platform draws the glyphs on the key color; everything after is ours.
    const Color key = effects::TextKeyColor(state.TextColor);
    const bool hollow = state.WriteStyle == static_cast<int>(effects::TextWriteStyle::Hollow);
    Surface drawn;
    if (!m_s.m_host.DrawText(text.Font(), state.Text, hollow, state.TextColor, key, drawn)) {
        const std::string name = text.FontName();
        m_s.m_host.MsgBox(name.empty() ? kNoFontsText : effects::FontNotAvailableText(name),
                      MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    const auto picture = effects::MakeTextRegion(drawn, m_s.Current().SizeCode, state.Angle, key);
    if (!picture) return;  // nothing of the text is left to place
    m_s.HandOverTextRegion(*picture);
    m_s.Current().Changed = true;
    m_s.TakeUndoSnapshot();
}

}  // namespace vexlo::session
