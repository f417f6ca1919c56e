// The Current Selected Color, the two charts and the palette modes.
#include "core/color/color_charts.h"
#include "core/files/ico_write.h"
#include "core/session/session.h"

namespace vexlo::session {

void Session::CreateColorChart16() {
    color::PaintChart16(picColorChart[1]);
    color::PaintColorTiles(picColorChart[2]);
}

void Session::CreateColorChart256() { color::PaintChart48(picColorChart[0]); }

void Session::SwitchTo16ColorChart() {
    Form.ColorPickerSelected = false;
    Form.ColorChart0Visible = false;
    Form.ColorPickerEnabled = false;
    Form.PaletteMode = 0;
    Form.ColorMixerVisible = false;
    SelectedColor = kWhite;
}

void Session::SwitchTo256ColorChart() {
    Form.ColorChart0Visible = true;
    Form.ColorPickerEnabled = true;
    Form.PaletteMode = 1;
    Form.ColorMixerVisible = true;
}

void Session::ClickPaletteSub(int index) {
    if (Form.VisibleFrame != Frame::ColorsPanel) return;
    if (index == 0 && Form.PaletteMode != 0) SwitchTo16ColorChart();
    if (index == 1 && Form.PaletteMode != 1) SwitchTo256ColorChart();
    // Loading and saving a palette belong to the Color Mixer.
}

void Session::SetPaletteModeForIcon() {
    if (!InArea()) return;
    int colorClass = files::CountColors(picImage);
    if (Current().ColorCount == -1) colorClass = -1;
    ClickPaletteSub(colorClass < 1 || colorClass >= 256 ? 1 : 0);
}

void Session::ReleaseOnColorChart(int k, double x, double y) {
    if (k < 0 || k > 1) return;
    const Surface& chart = picColorChart[static_cast<std::size_t>(k)];
    if (k == 0) {
        if (const auto i = color::Chart48IndexAt(x, y, chart.Width(), chart.Height()))
            SelectedColor = color::ColorChart48()[static_cast<std::size_t>(*i)];
    } else if (const auto i = color::Chart16IndexAt(x, y, chart.Width(), chart.Height())) {
        SelectedColor = color::ColorChart16()[static_cast<std::size_t>(*i)].Value;
    }
}

std::string Session::Chart16Tooltip(double x, double y) const {
    const Surface& chart = picColorChart[1];
    const auto i = color::Chart16IndexAt(x, y, chart.Width(), chart.Height());
    return i ? color::ColorChart16()[static_cast<std::size_t>(*i)].Name : "";
}

void Session::ReleaseOnColorToUse() {
    if (!Form.ColorDoubleClicked) return;
    Form.ColorDoubleClicked = false;
    m_host.MsgBox(color::SelectedColorValuesText(SelectedColor), MsgButtons::Ok,
                  MsgIcon::Information, kTitle);
}

void Session::PopColorChart() {
    const std::int32_t chosen = m_host.ShowColor(-1, true);
    if (chosen >= 0) SelectedColor = static_cast<Color>(chosen);
}

}  // namespace vexlo::session
