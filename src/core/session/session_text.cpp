// The Text effect: fraText's controls, the font check, and Proceed, which hands the drawn and
// turned text over as a floating Region.
#include <algorithm>
#include <cctype>

#include "core/session/session.h"

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

void Session::ClickEffectsText() {
    if (!NeedsIconInArea()) return;
    TextPanel& text = m_effects.Text();
    if (!text.FontsLoaded()) {
        text.SetFonts(m_host.ScreenFonts());
        text.ShowTextSample();
    }
    ShowFrame(Frame::Text);
    text.Open();
}

void Session::SetWriteText(const std::string& value) {
    Enter();
    m_effects.Text().SetText(value);
}

void Session::ClickTextWriteStyle(int index) {
    Enter();
    m_effects.Text().ChooseWriteStyle(index);
}

void Session::ClickFontName(int index) {
    Enter();
    TextPanel& text = m_effects.Text();
    text.ChooseFont(index);
    const std::string name = text.FontName();
    if (!SameIgnoringCase(m_host.FontFamilyUsed(name), name)) {
        m_host.MsgBox(effects::FontNotAvailableText(name), MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    text.ShowTextSample();
}

void Session::ClickFontSize(int index) {
    Enter();
    m_effects.Text().ChooseFontSize(index);
    m_effects.Text().ShowTextSample();
}

void Session::ClickFontStyle(int i) {
    Enter();
    m_effects.Text().FlipFontStyle(i);
    m_effects.Text().ShowTextSample();
}

void Session::ClickTextColor() {
    Enter();
    TextPanel& text = m_effects.Text();
    const std::int32_t chosen =
        m_host.ShowColor(static_cast<std::int32_t>(text.State().TextColor), true);
    if (chosen < 0) return;
    text.SetTextColor(static_cast<Color>(chosen));
    text.ShowTextSample();
}

void Session::TextAngleChanged(int value) {
    Enter();
    m_effects.Text().SetAngle(value, m_formLoading);
}

void Session::AddTextProceed() {
    Enter();
    TextPanel& text = m_effects.Text();
    const TextState& state = text.State();
    if (effects::IsBlankText(state.Text)) {
        m_host.MsgBox(effects::kNoTextYet, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (m_form.VisibleFrame != Frame::Text || !InArea()) return;
    host::Hourglass hourglass(m_host);
    // The platform draws the glyphs on the key color; everything after is ours.
    const Color key = effects::TextKeyColor(state.TextColor);
    const bool hollow = state.WriteStyle == static_cast<int>(effects::TextWriteStyle::Hollow);
    Surface drawn;
    if (!m_host.DrawText(text.Font(), state.Text, hollow, state.TextColor, key, drawn)) {
        const std::string name = text.FontName();
        m_host.MsgBox(name.empty() ? kNoFontsText : effects::FontNotAvailableText(name),
                      MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    const auto picture = effects::MakeTextRegion(drawn, Current().SizeCode, state.Angle, key);
    if (!picture) return;  // nothing of the text is left to place
    HandOverTextRegion(*picture);
    Current().Changed = true;
    TakeUndoSnapshot();
}

}  // namespace vexlo::session
