// The shades effects on the current icon: the frame, its preview pair, Proceed and Restore.
#include "core/session/session_effect_frames.h"

namespace vexlo::session {

EffectFrames Session::Frames() { return EffectFrames(*this); }

void EffectFrames::ClickEffectsSub(int index) {
    if (index < 0 || index > 7) return;
    if (!m_s.NeedsIconInArea()) return;
    m_s.ClearTools();
    m_s.ResetDrawState();
    if (index == 0) return OpenButtonize();  // Buttonize has a frame of its own
    if (!effects::ShadesFrameOf(index)) return;
    m_s.ShowFrame(Frame::EffectsShades);
    m_s.m_formLoading = true;
    m_s.m_effects.OpenShades(index);
    m_s.m_formLoading = false;
    RunShadesPreview();
}

void EffectFrames::RunShadesPreview() {
    host::Hourglass hourglass(m_s.m_host);
    m_s.m_effects.PreviewShades(m_s.m_icon.Planes(), m_s.m_selectedColor);
    m_s.LetPendingEventsRun();
}

void EffectFrames::ClickUseSelectedColor(bool checked) {
    m_s.Enter();
    m_s.m_effects.UseSelectedColor(checked, m_s.m_icon.Planes(), m_s.m_selectedColor);
}

void EffectFrames::CastSliderChanged(int value) {
    m_s.Enter();
    m_s.m_effects.CastSliderChanged(value, m_s.m_formLoading, m_s.m_icon.Planes());
}

void EffectFrames::CastComboClicked(int element, int listIndex) {
    m_s.Enter();
    m_s.m_effects.CastComboClicked(element, listIndex, m_s.m_formLoading, m_s.m_icon.Planes());
}

void EffectFrames::ShadesRestore() {
    m_s.Enter();
    m_s.m_formLoading = true;
    m_s.m_effects.RestoreCast(m_s.m_icon.Planes());
    m_s.m_formLoading = false;
}

void EffectFrames::ShadesProceed() {
    m_s.Enter();
    if (!m_s.Shades().Preview || !m_s.InArea()) return;
    {
        host::Hourglass hourglass(m_s.m_host);
        m_s.ApplyToIcon([this](Surface& image, Surface& mask) { m_s.m_effects.ProceedShades(image, mask); });
    }
    m_s.ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
