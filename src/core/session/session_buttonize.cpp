// Buttonize on the current icon: its frame, the pattern and Proceed.
#include "core/session/session.h"

namespace vexlo::session {

void Session::OpenButtonize() { ShowFrame(Frame::Buttonize); }

void Session::ClickButtonizePattern(int index) {
    Enter();
    m_effects.Buttonize().ChoosePattern(index);
}

void Session::ButtonizeProceed() {
    Enter();
    if (m_form.VisibleFrame != Frame::Buttonize || !InArea()) return;
    const int index = m_effects.Buttonize().PatternIndex();
    if (index < 0 || index >= effects::kButtonizePatternCount) return;  // the frame stays
    ApplyToIcon([index](Surface& image, Surface& mask) {
        effects::ProceedButtonize(index, image, mask);
    });
    ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
