// Adjust Painted Colors on the current icon: the frame, its steps on the preview, Proceed and
// Restore.
#include "core/session/session.h"

namespace vexlo::session {

void Session::ClickEffectsAdjustPaintedColors() {
    if (!NeedsIconInArea()) return;
    ShowFrame(Frame::AdjustPaintedColors);
    m_effects.AdjustColors().Prepare(m_icon.Image(), m_icon.Composed());
}

void Session::ClickBrightnessAdj(int listIndex) {
    Enter();
    host::Hourglass hourglass(m_host);
    m_effects.AdjustColors().Brightness(listIndex, m_formLoading);
}

void Session::ClickColorAdj(int element, int listIndex) {
    Enter();
    host::Hourglass hourglass(m_host);
    m_effects.AdjustColors().Channel(element, listIndex, m_formLoading);
}

void Session::AdjustColorsProceed(int index) {
    Enter();
    if (m_form.VisibleFrame != Frame::AdjustPaintedColors || !InArea()) return;
    AdjustColorsPanel& panel = m_effects.AdjustColors();
    if (index == 1) {
        panel.Prepare(m_icon.Image(), m_icon.Composed());
        return;
    }
    if (index != 0) return;
    // picMask stays; ApplyToIcon composes, marks the slot changed, magnifies (outlining a
    // Region there is one) and takes the undo snapshot.
    ApplyToIcon([&panel](Surface& image, Surface&) { panel.Proceed(image); });
    ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
