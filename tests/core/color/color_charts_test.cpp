// The charts, the texts about a color, and the palette mode switches of the session.
#include <gtest/gtest.h>

#include "core/color/color_charts.h"
#include "core/session/session.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using color::Chart16IndexAt;
using color::Chart48IndexAt;

TEST(ColorCharts, ReleasePositionsPickTheirEntries) {
    // Positions in logical units of each chart, given at a pixel size of 20 per cell.
    EXPECT_EQ(Chart16IndexAt(7.9 * 20, 1.9 * 20, 160, 40), 15);  // Navy
    EXPECT_EQ(color::ColorChart16()[15].Name, std::string("Navy"));
    EXPECT_EQ(Chart16IndexAt(0, 0, 160, 40), 0);                  // White
    EXPECT_EQ(Chart48IndexAt(1.5 * 16, 2.5 * 16, 256, 48), 5);    // black
    EXPECT_EQ(color::ColorChart48()[5], 0x000000u);
    EXPECT_EQ(Chart16IndexAt(160, 10, 160, 40), std::nullopt);    // right of the chart
    EXPECT_EQ(Chart16IndexAt(-1, 10, 160, 40), std::nullopt);
    EXPECT_EQ(Chart16IndexAt(10, 40, 160, 40), std::nullopt);     // row 2: past the table
    EXPECT_EQ(Chart48IndexAt(15.5 * 16, 2.9 * 16, 256, 48), 47);
}

TEST(ColorCharts, ChartPicturesShowTheTablesWithTheirLines) {
    surface::Surface chart16(160, 40, 0xFFFFFF), chart48(256, 48, 0xFFFFFF);
    color::PaintChart16(chart16);
    color::PaintChart48(chart48);
    EXPECT_EQ(chart16.GetPixel(70, 30), 0x000080u);  // Maroon, cell (3, 1)
    EXPECT_EQ(chart16.GetPixel(20, 5), color::kChart16LineColor);
    EXPECT_EQ(chart16.GetPixel(5, 20), color::kChart16LineColor);
    EXPECT_EQ(chart48.GetPixel(24, 40), 0x000000u);  // column 1, row 2
    EXPECT_EQ(chart48.GetPixel(40, 16), color::kChart48LineColor);
    EXPECT_NE(chart48.GetPixel(16, 5), color::kChart48LineColor);  // no vertical lines
}

TEST(ColorCharts, ValuesMessage) {
    EXPECT_EQ(color::SelectedColorValuesText(0xFFFFFF),
              "Currently selected color:      \r\n\r\n16777215 or &HFFFFFF\r\n\r\n"
              "RGB(255, 255, 255) \r\n\r\nHTML #FFFFFF");
    const std::string rgb123 = color::SelectedColorValuesText(surface::Rgb(1, 2, 3));
    EXPECT_NE(rgb123.find("197121 or &H30201"), std::string::npos);
    EXPECT_EQ(rgb123.substr(rgb123.size() - 12), "HTML #010203");
    EXPECT_EQ(color::GetHTMLColor(255, 0, 0), "FF0000");
}

class PaletteModeTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
    }
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(PaletteModeTest, StartsIn16ColorsWithWhite) {
    EXPECT_EQ(s.Form().PaletteMode, 0);
    EXPECT_FALSE(s.Form().ColorChart0Visible);
    EXPECT_FALSE(s.Form().ColorPickerEnabled);
    EXPECT_EQ(s.SelectedColor(), 0xFFFFFFu);
}

TEST_F(PaletteModeTest, SwitchingTo16ResetsTheColorButChoosingItAgainDoesNot) {
    s.ClickPaletteSub(1);
    EXPECT_TRUE(s.Form().ColorMixerVisible);
    s.ReleaseOnColorChart(0, 14.5 * 16, 2.5 * 16);  // blue
    EXPECT_EQ(s.SelectedColor(), 0xFF0000u);
    s.ClickPaletteSub(1);  // already in force
    EXPECT_EQ(s.SelectedColor(), 0xFF0000u);
    s.ClickPaletteSub(0);
    EXPECT_EQ(s.SelectedColor(), 0xFFFFFFu);
    s.ReleaseOnColorChart(1, 3.5 * 20, 0.5 * 20);  // Red
    s.ClickPaletteSub(0);
    EXPECT_EQ(s.SelectedColor(), 0x0000FFu);
    s.ClickPaletteSub(1);  // 16 to 256 keeps the color
    EXPECT_EQ(s.SelectedColor(), 0x0000FFu);
}

TEST_F(PaletteModeTest, PaletteMenuDoesNothingWhileAnotherFrameIsUp) {
    s.ShowFrame(session::Frame::EffectsShades);
    s.ClickPaletteSub(1);
    EXPECT_EQ(s.Form().PaletteMode, 0);
}

TEST_F(PaletteModeTest, TheIconDecidesTheModeWhenItsSlotOpens) {
    s.FileNew(0);
    s.Icon().Image().SetPixelV(0, 0, 0x123456);  // not one of the sixteen
    s.Icon().Mask().SetPixelV(0, 0, 0);
    s.Current().Changed = true;
    s.ClickPanel(1);
    s.ClickPanel(0);
    EXPECT_EQ(s.Form().PaletteMode, 1);
    host.Answer(host::MsgAnswer::No);  // the changed icon is to be replaced
    s.FileNew(1);
    s.ClickPanel(2);
    s.ClickPanel(0);
    EXPECT_EQ(s.Form().PaletteMode, 0);
}

TEST_F(PaletteModeTest, ColorDialogChoosesOrCancels) {
    host.AnswerColor(0x00C0FF);
    host.AnswerColor(-1);
    s.PopColorChart();
    EXPECT_EQ(s.SelectedColor(), 0x00C0FFu);
    s.PopColorChart();
    EXPECT_EQ(s.SelectedColor(), 0x00C0FFu);
}

}  // namespace
}  // namespace vexlo::test
