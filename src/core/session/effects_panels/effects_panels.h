#pragma once
// The frames of the Effects menu and what each keeps while it is up: today the shades frame
// (its caption, effect, Use Selected Color box, Cast controls and preview pair). Each effect
// that gets a frame of its own keeps its state here, beside the shades.
#include <optional>
#include <string>

#include "core/effects/shades.h"
#include "core/session/effects_panels/adjust_colors_panel.h"
#include "core/session/effects_panels/buttonize_panel.h"
#include "core/session/effects_panels/rotate_angle_panel.h"
#include "core/session/effects_panels/text_panel.h"

namespace vexlo::session {

// What fraEffectsShades shows.
struct ShadesState {
    std::string Caption;  // of fraEffectsShades
    int EffectCode = 0;   // ShadeEffectCode
    bool UseSelectedColorVisible = false;
    bool UseSelectedColorChecked = false;
    bool CastControlsVisible = false;
    effects::CastControls Cast;
    std::optional<effects::ShadesPreview> Preview;  // picEffectsSample(0..1)
};

class EffectsPanels {
public:
    const ShadesState& Shades() const { return m_shades; }

    // mnuEffectsSub(index): the shades frame set up for its effect; false for an index that
    // has no shades frame (the preview is then left to run).
    bool OpenShades(int index);
    // The preview of the frame's effect on the planes; nothing for an unknown effect.
    void PreviewShades(const effects::IconPlanes& planes, surface::Color selected);
    void UseSelectedColor(bool checked, const effects::IconPlanes& planes, surface::Color selected);
    // The Cast controls; formLoading is the window's guard while it writes its controls.
    void CastSliderChanged(int value, bool formLoading, const effects::IconPlanes& planes);
    void CastComboClicked(int element, int listIndex, bool formLoading,
                          const effects::IconPlanes& planes);
    // Restore: the Cast controls back to their start, and the preview of them.
    void RestoreCast(const effects::IconPlanes& planes);
    // Proceed: the preview's planes into image and mask; false when there is no preview.
    bool ProceedShades(surface::Surface& image, surface::Surface& mask);
    // Leaving the frame by any way discards the preview.
    void DiscardPreviews() { m_shades.Preview.reset(); }

    // fraButtonize, fraAdjustPaintedColors, fraText (with the text floating after Proceed)
    // and fraRotateSelectAngle.
    ButtonizePanel& Buttonize() { return m_buttonize; }
    const ButtonizePanel& Buttonize() const { return m_buttonize; }
    AdjustColorsPanel& AdjustColors() { return m_adjustColors; }
    const AdjustColorsPanel& AdjustColors() const { return m_adjustColors; }
    TextPanel& Text() { return m_text; }
    const TextPanel& Text() const { return m_text; }
    RotateAnglePanel& RotateAngle() { return m_rotateAngle; }
    const RotateAnglePanel& RotateAngle() const { return m_rotateAngle; }

private:
    ShadesState m_shades;
    ButtonizePanel m_buttonize;
    AdjustColorsPanel m_adjustColors;
    TextPanel m_text;
    RotateAnglePanel m_rotateAngle;
};

}  // namespace vexlo::session
