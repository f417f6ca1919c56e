// Rotate at any angle: the frame, its angle controls and sample, and Proceed on both planes.
#include "core/session/session.h"

namespace vexlo::session {

void Session::ClickRotateSelectAngle() {
    if (!NeedsIconInArea()) return;
    ShowFrame(Frame::RotateSelectAngle);
    m_effects.RotateAngle().Open(m_icon.Image(), m_icon.Composed());
}

void Session::RotateAngleSliderChanged(int value) {
    Enter();
    if (m_formLoading) return;
    m_effects.RotateAngle().SliderChanged(value, m_icon.Image());
}

void Session::ClickRotateAngleList(int listIndex) {
    Enter();
    m_effects.RotateAngle().ListClicked(listIndex, m_formLoading, m_icon.Image());
}

void Session::ClickRotateAntiAlias(bool checked) {
    Enter();
    m_effects.RotateAngle().SetAntiAlias(checked, m_icon.Image());
}

void Session::RotateSelectAngleProceed() {
    Enter();
    if (m_form.VisibleFrame != Frame::RotateSelectAngle || !InArea()) return;
    const int angle = m_effects.RotateAngle().Angle();
    if (!effects::IsWholeTurn(angle)) {
        host::Hourglass hourglass(m_host);
        ApplyToIcon([angle](Surface& image, Surface& mask) {
            effects::ProceedRotate(angle, image, mask);
        });
    }
    ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
