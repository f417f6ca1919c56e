#include "core/session/effects_panels/effects_panels.h"

namespace vexlo::session {

bool EffectsPanels::OpenShades(int index) {
    const auto setup = effects::ShadesFrameOf(index);
    if (!setup) return false;
    m_shades.Caption = std::string(setup->Caption);
    m_shades.EffectCode = effects::CodeOf(setup->Code);
    m_shades.UseSelectedColorVisible = setup->UseSelectedColorVisible;
    m_shades.UseSelectedColorChecked = false;
    m_shades.CastControlsVisible = setup->CastControlsVisible;
    if (setup->Code == effects::Effect::Cast) effects::ResetCast(m_shades.Cast);
    return true;
}

void EffectsPanels::PreviewShades(const effects::IconPlanes& planes, surface::Color selected) {
    const auto effect = effects::EffectOfCode(m_shades.EffectCode);
    if (!effect) return;
    effects::ShadesOptions options;
    options.UseSelectedColor = m_shades.UseSelectedColorChecked;
    options.SelectedColor = selected;
    options.Cast = m_shades.Cast.Values;
    m_shades.Preview = effects::MakePreview(*effect, planes, options);
}

void EffectsPanels::UseSelectedColor(bool checked, const effects::IconPlanes& planes,
                                     surface::Color selected) {
    m_shades.UseSelectedColorChecked = checked;
    if (auto preview = effects::UseSelectedColorClicked(m_shades.EffectCode, planes, checked, selected))
        m_shades.Preview = std::move(*preview);
}

void EffectsPanels::CastSliderChanged(int value, bool formLoading, const effects::IconPlanes& planes) {
    if (effects::CastSliderChanged(m_shades.Cast, value, formLoading))
        m_shades.Preview = effects::PreviewCast(planes, m_shades.Cast.Values);
}

void EffectsPanels::CastComboClicked(int element, int listIndex, bool formLoading,
                                     const effects::IconPlanes& planes) {
    if (effects::CastComboClicked(m_shades.Cast, element, listIndex, formLoading))
        m_shades.Preview = effects::PreviewCast(planes, m_shades.Cast.Values);
}

void EffectsPanels::RestoreCast(const effects::IconPlanes& planes) {
    effects::ResetCast(m_shades.Cast);
    m_shades.Preview = effects::PreviewCast(planes, m_shades.Cast.Values);
}

bool EffectsPanels::ProceedShades(surface::Surface& image, surface::Surface& mask) {
    if (!m_shades.Preview) return false;
    effects::ProceedShades(*m_shades.Preview, image, mask);
    return true;
}

}  // namespace vexlo::session
