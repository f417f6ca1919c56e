#include "core/session/effects_panels/gradient_panel.h"

#include "core/icon/icon_colors.h"

namespace vexlo::session {

GradientPanel::GradientPanel() {
    for (surface::Surface& p : m_pictures) p = surface::Surface(m_side, m_side, icon::kWhite);
}

void GradientPanel::Open(int side, const surface::Surface& mask) {
    m_proceedEnabled = effects::HasUnpaintedCell(mask);
    m_side = side;
    DrawAll();
}

void GradientPanel::ChooseKind(int k) {
    if (k >= 0 && k <= 2) m_kind = static_cast<effects::GradientKind>(k);
}

void GradientPanel::ChooseAngle(int index) {
    if (index < 0 || index >= effects::kGradientAngles) return;
    m_angleIndex = index;
    m_pictures[0].Clear();
    effects::DrawLinearGradient(m_pictures[0], m_angleIndex, m_colors[0], m_colors[1]);
}

void GradientPanel::SetColor(int i, surface::Color c) {
    if (i < 0 || i > 1) return;
    m_colors[static_cast<std::size_t>(i)] = c & surface::kRgbMask;
    DrawAll();
}

bool GradientPanel::Press(int k, bool leftButton, int x, int y) {
    if (k != static_cast<int>(effects::GradientKind::Spherical) || !leftButton) return false;
    effects::DrawSphericalGradient(m_pictures[2], x, y, m_colors[0], m_colors[1]);
    return true;
}

void GradientPanel::Proceed(surface::Surface& image, surface::Surface& mask) const {
    effects::ProceedGradient(m_pictures[static_cast<int>(m_kind)], image, mask);
}

void GradientPanel::DrawAll() {
    effects::DrawAllGradients(m_pictures, m_side, m_angleIndex, m_colors[0], m_colors[1]);
}

}  // namespace vexlo::session
