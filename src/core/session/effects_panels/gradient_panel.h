#pragma once
// What fraGradient keeps: the chosen kind (OptGradType), the angle (cboGradientAngle), the two
// colors (cmdGradientColor) and the three pictures (PicGradient), which are themselves what
// Proceed copies. The colors, the angle and the kind stay from one opening to the next; the
// spherical centre goes back to the middle on every redraw.
#include <array>

#include "core/effects/gradient.h"
#include "core/surface/surface.h"

namespace vexlo::session {

class GradientPanel {
public:
    GradientPanel();

    effects::GradientKind Kind() const { return m_kind; }
    int AngleIndex() const { return m_angleIndex; }
    surface::Color ButtonColor(int i) const { return m_colors[i == 1 ? 1 : 0]; }
    const surface::Surface& Picture(int k) const { return m_pictures[static_cast<std::size_t>(k)]; }
    // cmdGradientProceed enabled, lblNoUnpaintedArea shown: the icon has an unpainted cell, or not.
    bool ProceedEnabled() const { return m_proceedEnabled; }
    bool NoUnpaintedAreaVisible() const { return !m_proceedEnabled; }

    // Opening over an icon of that side with that mask: the three pictures sized and drawn.
    void Open(int side, const surface::Surface& mask);
    // OptGradType element k.
    void ChooseKind(int k);
    // cboGradientAngle: the linear picture cleared and drawn at the entry's angle.
    void ChooseAngle(int index);
    // cmdGradientColor element i took color c: all three pictures drawn again.
    void SetColor(int i, surface::Color c);
    // A press with the left button on PicGradient(2) at (x, y): the spherical gradient around
    // it. Any other picture or button does nothing; false then.
    bool Press(int k, bool leftButton, int x, int y);
    // Proceed: the chosen picture into the unpainted cells of the planes, the mask all black.
    void Proceed(surface::Surface& image, surface::Surface& mask) const;

private:
    void DrawAll();

    effects::GradientKind m_kind = effects::GradientKind::Linear;
    int m_angleIndex = 0;
    std::array<surface::Color, 2> m_colors{effects::kGradientFirstColor, effects::kGradientSecondColor};
    surface::Surface m_pictures[3];
    int m_side = 32;
    bool m_proceedEnabled = false;
};

}  // namespace vexlo::session
