#pragma once
// fraRotateSelectAngle while it is up: the angle that hsrRotateAngle and cboRotateAngle show
// together, the Antialias box and the sample picRotatePicSample.
#include "core/effects/rotate_angle.h"

namespace vexlo::session {

class RotateAnglePanel {
public:
    int Angle() const { return m_angle; }              // hsrRotateAngle
    int ListIndex() const { return m_angle + 360; }    // cboRotateAngle
    bool AntiAlias() const { return m_antiAlias; }     // ckbRotateAntiAlias
    const surface::Surface& Sample() const { return m_sample; }

    // Opening: the angle to 0, the sample run once, and then the composed icon unrotated as
    // the sample's picture.
    void Open(const surface::Surface& picImage, const surface::Surface& PicIcon) {
        SliderChanged(0, picImage);
        m_sample = effects::RotateSampleOpening(PicIcon);
    }
    // hsrRotateAngle changed (also while its thumb is dragged): the list follows and the
    // sample is turned anew.
    void SliderChanged(int value, const surface::Surface& picImage) {
        if (value < effects::kRotateAngleMin || value > effects::kRotateAngleMax) return;
        m_angle = value;
        m_sample = effects::RotateSample(picImage, m_angle, m_antiAlias);
    }
    // cboRotateAngle clicked: the slider takes the value, which turns the sample.
    void ListClicked(int listIndex, bool formLoading, const surface::Surface& picImage) {
        if (!formLoading) SliderChanged(listIndex - 360, picImage);
    }
    // ckbRotateAntiAlias: only the sample heeds it.
    void SetAntiAlias(bool checked, const surface::Surface& picImage) {
        m_antiAlias = checked;
        m_sample = effects::RotateSample(picImage, m_angle, m_antiAlias);
    }

private:
    int m_angle = 0;
    bool m_antiAlias = false;
    surface::Surface m_sample;
};

}  // namespace vexlo::session
