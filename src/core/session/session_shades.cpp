// The shades effects on the current icon: the frame, its preview pair, Proceed and Restore.
#include "core/session/session.h"

namespace vexlo::session {

void Session::ClickEffectsSub(int index) {
    if (index < 0 || index > 7) return;
    if (!NeedsIconInArea()) return;
    ClearTools();
    ResetDrawState();
    if (index == 0) return OpenButtonize();  // Buttonize has a frame of its own
    if (!effects::ShadesFrameOf(index)) return;
    ShowFrame(Frame::EffectsShades);
    m_formLoading = true;
    m_effects.OpenShades(index);
    m_formLoading = false;
    RunShadesPreview();
}

void Session::RunShadesPreview() {
    host::Hourglass hourglass(m_host);
    m_effects.PreviewShades(m_icon.Planes(), m_selectedColor);
    LetPendingEventsRun();
}

void Session::ClickUseSelectedColor(bool checked) {
    Enter();
    m_effects.UseSelectedColor(checked, m_icon.Planes(), m_selectedColor);
}

void Session::CastSliderChanged(int value) {
    Enter();
    m_effects.CastSliderChanged(value, m_formLoading, m_icon.Planes());
}

void Session::CastComboClicked(int element, int listIndex) {
    Enter();
    m_effects.CastComboClicked(element, listIndex, m_formLoading, m_icon.Planes());
}

void Session::ShadesRestore() {
    Enter();
    m_formLoading = true;
    m_effects.RestoreCast(m_icon.Planes());
    m_formLoading = false;
}

void Session::ShadesProceed() {
    Enter();
    if (!Shades().Preview || !InArea()) return;
    {
        host::Hourglass hourglass(m_host);
        ApplyToIcon([this](Surface& image, Surface& mask) { m_effects.ProceedShades(image, mask); });
    }
    ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
