// Buttonize on the current icon: its frame, the pattern and Proceed.
#include "core/session/session_effect_frames.h"

namespace vexlo::session {

void EffectFrames::OpenButtonize() { m_s.ShowFrame(Frame::Buttonize); }

void EffectFrames::ClickButtonizePattern(int index) {
    m_s.Enter();
    m_s.m_effects.Buttonize().ChoosePattern(index);
}

void EffectFrames::ButtonizeProceed() {
    m_s.Enter();
    if (m_s.m_form.VisibleFrame != Frame::Buttonize || !m_s.InArea()) return;
    const int index = m_s.m_effects.Buttonize().PatternIndex();
    if (index < 0 || index >= effects::kButtonizePatternCount) return;  // the frame stays
    m_s.ApplyToIcon([index](Surface& image, Surface& mask) {
        effects::ProceedButtonize(index, image, mask);
    });
    m_s.ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
