// The Current Selected Color, the two charts and the palette modes.
#include "core/color/color_charts.h"
#include "core/files/ico_write.h"
#include "core/session/session.h"
#include "core/session/session_effect_frames.h"

namespace vexlo::session {

void Session::CreateColorCharts() {
    color::PaintChart16(m_charts[1]);
    color::PaintColorTiles(m_charts[2]);
    color::PaintChart48(m_charts[0]);
}

void Session::SwitchTo16ColorChart() {
    m_form.ColorPickerSelected = false;
    m_form.ColorChart0Visible = false;
    m_form.ColorPickerEnabled = false;
    m_form.PaletteMode = 0;
    m_form.ColorMixerVisible = false;
    m_selectedColor = kWhite;
}

void Session::SwitchTo256ColorChart() {
    m_form.ColorChart0Visible = true;
    m_form.ColorPickerEnabled = true;
    m_form.PaletteMode = 1;
    m_form.ColorMixerVisible = true;
}

void Session::ClickPaletteSub(int index) {
    if (m_form.VisibleFrame != Frame::ColorsPanel) return;
    if (index == 0 && m_form.PaletteMode != 0) SwitchTo16ColorChart();
    if (index == 1 && m_form.PaletteMode != 1) SwitchTo256ColorChart();
    if (index == 3) Frames().LoadPalette();
    if (index == 4) Frames().SavePalette();
}

void Session::SetPaletteModeForIcon() {
    if (!InArea()) return;
    int colorClass = files::CountColors(m_icon.Image());
    if (Current().ColorCount == -1) colorClass = -1;
    ClickPaletteSub(colorClass < 1 || colorClass >= 256 ? 1 : 0);
}

void Session::ReleaseOnColorChart(int k, double x, double y) {
    Enter();
    if (k < 0 || k > 1) return;
    const Surface& chart = m_charts[static_cast<std::size_t>(k)];
    if (k == 0) {
        if (const auto i = color::Chart48IndexAt(x, y, chart.Width(), chart.Height()))
            m_selectedColor = color::ColorChart48()[static_cast<std::size_t>(*i)];
    } else if (const auto i = color::Chart16IndexAt(x, y, chart.Width(), chart.Height())) {
        m_selectedColor = color::ColorChart16()[static_cast<std::size_t>(*i)].Value;
    }
}

std::string Session::Chart16Tooltip(double x, double y) const {
    const Surface& chart = m_charts[1];
    const auto i = color::Chart16IndexAt(x, y, chart.Width(), chart.Height());
    return i ? color::ColorChart16()[static_cast<std::size_t>(*i)].Name : "";
}

void Session::ReleaseOnColorToUse() {
    Enter();
    if (!m_form.ColorDoubleClicked) return;
    m_form.ColorDoubleClicked = false;
    m_host.MsgBox(color::SelectedColorValuesText(m_selectedColor), MsgButtons::Ok,
                  MsgIcon::Information, kTitle);
}

void Session::PopColorChart() {
    Enter();
    const std::int32_t chosen = m_host.ShowColor(-1, true);
    if (chosen >= 0) m_selectedColor = static_cast<Color>(chosen);
}

}  // namespace vexlo::session
