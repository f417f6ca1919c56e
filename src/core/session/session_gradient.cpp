// Gradient Unpainted Area: the frame over the current icon, its controls, and Proceed.
#include "core/session/session.h"

namespace vexlo::session {

void Session::mnuEffectsGradientUnpaintedArea() {
    if (!NeedsIconInArea()) return;
    if (Current().SizeCode == 1) {
        m_host.MsgBox(std::string(effects::kGradientLargeOnly), MsgButtons::Ok, MsgIcon::Information, kTitle);
        return;
    }
    ShowFrame(Frame::Gradient);
    m_formLoading = true;
    m_effects.Gradient().Open(IconSideOf(Current().SizeCode), m_icon.Mask());
    m_formLoading = false;
}

void Session::ClickGradientType(int k) {
    Enter();
    m_effects.Gradient().ChooseKind(k);
}

void Session::ClickGradientAngle(int index) {
    Enter();
    if (m_formLoading) return;
    m_effects.Gradient().ChooseAngle(index);
}

void Session::ClickGradientColor(int i) {
    Enter();
    if (i < 0 || i > 1) return;
    const std::int32_t chosen = m_host.ShowColor(static_cast<std::int32_t>(Gradient().ButtonColor(i)), true);
    if (chosen >= 0) m_effects.Gradient().SetColor(i, static_cast<Color>(chosen));
}

void Session::PressOnGradient(int k, Button button, int x, int y) {
    Enter();
    m_effects.Gradient().Press(k, button == Button::Left, x, y);
}

void Session::GradientProceed() {
    Enter();
    if (m_form.VisibleFrame != Frame::Gradient || !Gradient().ProceedEnabled() || !InArea()) return;
    const int side = IconSideOf(Current().SizeCode);
    if (Gradient().Picture(0).Width() != side) return;  // opened over another icon
    ApplyToIcon([this](Surface& image, Surface& mask) { m_effects.Gradient().Proceed(image, mask); });
    ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
