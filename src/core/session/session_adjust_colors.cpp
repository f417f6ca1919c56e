// Adjust Painted Colors on the current icon: the frame, its steps on the preview, Proceed and
// Restore.
#include "core/session/session_effect_frames.h"

namespace vexlo::session {

void EffectFrames::ClickEffectsAdjustPaintedColors() {
    if (!m_s.NeedsIconInArea()) return;
    m_s.ShowFrame(Frame::AdjustPaintedColors);
    m_s.m_effects.AdjustColors().Prepare(m_s.m_icon.Image(), m_s.m_icon.Composed());
}

void EffectFrames::ClickBrightnessAdj(int listIndex) {
    m_s.Enter();
    host::Hourglass hourglass(m_s.m_host);
    m_s.m_effects.AdjustColors().Brightness(listIndex, m_s.m_formLoading);
}

void EffectFrames::ClickColorAdj(int element, int listIndex) {
    m_s.Enter();
    host::Hourglass hourglass(m_s.m_host);
    m_s.m_effects.AdjustColors().Channel(element, listIndex, m_s.m_formLoading);
}

void EffectFrames::AdjustColorsProceed(int index) {
    m_s.Enter();
    if (m_s.m_form.VisibleFrame != Frame::AdjustPaintedColors || !m_s.InArea()) return;
    AdjustColorsPanel& panel = m_s.m_effects.AdjustColors();
    if (index == 1) {
        panel.Prepare(m_s.m_icon.Image(), m_s.m_icon.Composed());
        return;
    }
    if (index != 0) return;
    // picMask stays; ApplyToIcon composes, marks the slot changed, magnifies (outlining a
    // Region there is one) and takes the undo snapshot.
    m_s.ApplyToIcon([&panel](Surface& image, Surface&) { panel.Proceed(image); });
    m_s.ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
