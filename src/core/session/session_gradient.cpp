// Gradient Unpainted Area: the frame over the current icon, its controls, and Proceed.
#include "core/session/session_effect_frames.h"

namespace vexlo::session {

void EffectFrames::mnuEffectsGradientUnpaintedArea() {
    if (!m_s.NeedsIconInArea()) return;
    if (m_s.Current().SizeCode == 1) {
        m_s.m_host.MsgBox(std::string(effects::kGradientLargeOnly), MsgButtons::Ok, MsgIcon::Information, kTitle);
        return;
    }
    m_s.ShowFrame(Frame::Gradient);
    m_s.m_formLoading = true;
    m_s.m_effects.Gradient().Open(IconSideOf(m_s.Current().SizeCode), m_s.m_icon.Mask());
    m_s.m_formLoading = false;
}

void EffectFrames::ClickGradientType(int k) {
    m_s.Enter();
    m_s.m_effects.Gradient().ChooseKind(k);
}

void EffectFrames::ClickGradientAngle(int index) {
    m_s.Enter();
    if (m_s.m_formLoading) return;
    m_s.m_effects.Gradient().ChooseAngle(index);
}

void EffectFrames::ClickGradientColor(int i) {
    m_s.Enter();
    if (i < 0 || i > 1) return;
    const std::int32_t chosen = m_s.m_host.ShowColor(static_cast<std::int32_t>(m_s.Gradient().ButtonColor(i)), true);
    if (chosen >= 0) m_s.m_effects.Gradient().SetColor(i, static_cast<Color>(chosen));
}

void EffectFrames::PressOnGradient(int k, Session::Button button, int x, int y) {
    m_s.Enter();
    m_s.m_effects.Gradient().Press(k, button == Session::Button::Left, x, y);
}

void EffectFrames::GradientProceed() {
    m_s.Enter();
    if (m_s.m_form.VisibleFrame != Frame::Gradient || !m_s.Gradient().ProceedEnabled() || !m_s.InArea()) return;
    const int side = IconSideOf(m_s.Current().SizeCode);
    if (m_s.Gradient().Picture(0).Width() != side) return;  // opened over another icon
    m_s.ApplyToIcon([this](Surface& image, Surface& mask) { m_s.m_effects.Gradient().Proceed(image, mask); });
    m_s.ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
