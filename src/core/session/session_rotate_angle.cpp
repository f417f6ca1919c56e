// Rotate at any angle: the frame, its angle controls and sample, and Proceed on both planes.
#include "core/session/session_effect_frames.h"

namespace vexlo::session {

void EffectFrames::ClickRotateSelectAngle() {
    if (!m_s.NeedsIconInArea()) return;
    m_s.ShowFrame(Frame::RotateSelectAngle);
    m_s.m_effects.RotateAngle().Open(m_s.m_icon.Image(), m_s.m_icon.Composed());
}

void EffectFrames::RotateAngleSliderChanged(int value) {
    m_s.Enter();
    if (m_s.m_formLoading) return;
    m_s.m_effects.RotateAngle().SliderChanged(value, m_s.m_icon.Image());
}

void EffectFrames::ClickRotateAngleList(int listIndex) {
    m_s.Enter();
    m_s.m_effects.RotateAngle().ListClicked(listIndex, m_s.m_formLoading, m_s.m_icon.Image());
}

void EffectFrames::ClickRotateAntiAlias(bool checked) {
    m_s.Enter();
    m_s.m_effects.RotateAngle().SetAntiAlias(checked, m_s.m_icon.Image());
}

void EffectFrames::RotateSelectAngleProceed() {
    m_s.Enter();
    if (m_s.m_form.VisibleFrame != Frame::RotateSelectAngle || !m_s.InArea()) return;
    const int angle = m_s.m_effects.RotateAngle().Angle();
    if (!effects::IsWholeTurn(angle)) {
        host::Hourglass hourglass(m_s.m_host);
        m_s.ApplyToIcon([angle](Surface& image, Surface& mask) {
            effects::ProceedRotate(angle, image, mask);
        });
    }
    m_s.ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
