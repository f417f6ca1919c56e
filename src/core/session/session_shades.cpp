// The shades effects on the current icon: the frame, its preview pair, Proceed and Restore.
#include "core/session/session.h"

namespace vexlo::session {

effects::IconPlanes Session::Planes() const { return {picImage, picMask, PicIcon}; }

void Session::ClickEffectsSub(int index) {
    if (index < 1 || index > 7) return;  // 0, Buttonize, has a frame of its own
    if (!NeedsIconInArea()) return;
    ClearTools();
    ResetDrawState();
    const auto setup = effects::ShadesFrameOf(index);
    if (!setup) return;
    ShowFrame(Frame::EffectsShades);
    Shades.Caption = std::string(setup->Caption);
    Shades.EffectCode = effects::CodeOf(setup->Code);
    Shades.UseSelectedColorVisible = setup->UseSelectedColorVisible;
    Shades.UseSelectedColorChecked = false;
    Shades.CastControlsVisible = setup->CastControlsVisible;
    if (setup->Code == effects::Effect::Cast) {
        FormLoading = true;
        effects::ResetCast(Shades.Cast);
        FormLoading = false;
    }
    RunShadesPreview();
}

void Session::RunShadesPreview() {
    const auto effect = effects::EffectOfCode(Shades.EffectCode);
    if (!effect) return;
    m_host.SetHourglass(true);
    effects::ShadesOptions options;
    options.UseSelectedColor = Shades.UseSelectedColorChecked;
    options.SelectedColor = SelectedColor;
    options.Cast = Shades.Cast.Values;
    Shades.Preview = effects::MakePreview(*effect, Planes(), options);
    m_host.DoEvents();
    m_host.SetHourglass(false);
}

void Session::ClickUseSelectedColor(bool checked) {
    Shades.UseSelectedColorChecked = checked;
    if (auto preview = effects::UseSelectedColorClicked(Shades.EffectCode, Planes(), checked, SelectedColor))
        Shades.Preview = std::move(*preview);
}

void Session::CastSliderChanged(int value) {
    if (effects::CastSliderChanged(Shades.Cast, value, FormLoading))
        Shades.Preview = effects::PreviewCast(Planes(), Shades.Cast.Values);
}

void Session::CastComboClicked(int element, int listIndex) {
    if (effects::CastComboClicked(Shades.Cast, element, listIndex, FormLoading))
        Shades.Preview = effects::PreviewCast(Planes(), Shades.Cast.Values);
}

void Session::ShadesRestore() {
    FormLoading = true;
    effects::ResetCast(Shades.Cast);
    FormLoading = false;
    Shades.Preview = effects::PreviewCast(Planes(), Shades.Cast.Values);
}

void Session::ShadesProceed() {
    if (!Shades.Preview || !InArea()) return;
    m_host.SetHourglass(true);
    effects::ProceedShades(*Shades.Preview, picImage, picMask);
    ComposeIcon();
    Current().Changed = true;
    MagnifyIcon();
    TakeUndoSnapshot();
    m_host.SetHourglass(false);
    ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
