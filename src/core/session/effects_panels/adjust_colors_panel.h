#pragma once
// fraAdjustPaintedColors while it is up: the preview picColorAdj, on which every step of the
// lists acts at once. The lists themselves always stand at "0" between clicks.
#include "core/effects/adjust_colors.h"

namespace vexlo::session {

class AdjustColorsPanel {
public:
    const surface::Surface& Preview() const { return m_preview; }

    // Opening and Restore: the preview holds the composed icon again.
    void Prepare(const surface::Surface& picImage, const surface::Surface& PicIcon) {
        m_preview = effects::PrepareColorAdj(picImage, PicIcon);
    }
    // cboBrightNessAdj clicked at listIndex; false when nothing changed ("0", or the window
    // writing its controls).
    bool Brightness(int listIndex, bool formLoading) {
        if (formLoading || !ValidIndex(listIndex)) return false;
        return effects::AdjustBrightness(m_preview, effects::AdjustPercentOf(listIndex));
    }
    // cboColorAdj(element) clicked at listIndex.
    bool Channel(int element, int listIndex, bool formLoading) {
        if (formLoading || element < 0 || element > 2 || !ValidIndex(listIndex)) return false;
        return effects::AdjustChannel(m_preview, static_cast<effects::ColorChannel>(element),
                                      effects::AdjustPercentOf(listIndex));
    }
    // Proceed: the preview into picImage; false without a preview.
    bool Proceed(surface::Surface& picImage) const {
        if (m_preview.Width() == 0) return false;
        effects::ProceedAdjustColors(m_preview, picImage);
        return true;
    }

private:
    static bool ValidIndex(int i) { return i >= 0 && i < effects::kAdjustListCount; }
    surface::Surface m_preview;  // picColorAdj
};

}  // namespace vexlo::session
