// The Text effect through its frame with a platform whose "font" draws every character as a
// filled 3x5 block (or its outline when hollow): the font check, the text color, Proceed
// handing the text over as a floating Region that a drag moves and a press outside drops.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/session/session.h"
#include "core/session/session_effect_frames.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using session::Frame;
using surface::Surface;
constexpr surface::Color kRed = 0x0000FF;
constexpr surface::Color kGreen = 0x00FF00;

class BlockFontHost : public ScriptedHost {
public:
    std::vector<std::string> fonts{"Block", "Block Wide"};
    std::vector<host::TextFont> drawn;

    std::vector<std::string> ScreenFonts() override { return fonts; }
    std::string FontFamilyUsed(const std::string& name) override {
        for (const auto& f : fonts)
            if (f == name) return f;
        return fonts.empty() ? std::string() : fonts.front();
    }
    bool DrawText(const host::TextFont& font, const std::string& text, bool hollow,
                  surface::Color color, surface::Color back, surface::Surface& out) override {
        if (fonts.empty()) return false;
        drawn.push_back(font);
        const int n = static_cast<int>(text.size());
        out = surface::Surface(4 * n - 1 + 2, 5 + 2, back);
        for (int k = 0; k < n; ++k) {
            if (text[static_cast<std::size_t>(k)] == ' ') continue;
            for (int x = 0; x < 3; ++x)
                for (int y = 0; y < 5; ++y)
                    if (!hollow || x != 1 || y == 0 || y == 4)
                        out.SetPixelV(1 + 4 * k + x, 1 + y, color);
        }
        return true;
    }
};

class TextFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        s.FileNew(0);  // 32x32, 12 picDisp pixels a cell
        s.Icon().Image().Fill(kGreen);
        s.Icon().Mask().Fill(0);
        s.ComposeIcon();
        s.TakeUndoSnapshot();
        s.RunMenuItem("mnuEffectsText");
    }
    // The middle of a cell in picDisp pixels.
    static int At(int cell) { return cell * 12 + 6; }
    const session::TextState& Text() const { return s.Effects().Text().State(); }
    // The floating Region the text was handed over as.
    bool Floats() const { return s.View().Region().Exists; }
    const tools::CellRect& Cells() const { return s.View().Region().Cells; }

    BlockFontHost host;
    session::Session s{host};
};

TEST_F(TextFlowTest, FrameOpensWithTheScreenFontsAndItsStartingValues) {
    EXPECT_EQ(s.Form().VisibleFrame, Frame::Text);
    EXPECT_EQ(Text().FontNames, host.fonts);
    EXPECT_EQ(Text().FontIndex, 0);
    EXPECT_EQ(Text().FontSizeIndex, 1);
    EXPECT_EQ(Text().TextColor, kRed);
    EXPECT_EQ(Text().Sample.Font.Name, "Block");
    EXPECT_EQ(Text().Sample.Font.Size, 8);
    s.Frames().TextAngleChanged(30);
    s.RunMenuItem("mnuEffectsText");  // the angle goes back to 0 each time
    EXPECT_EQ(Text().Angle, 0);
}

TEST_F(TextFlowTest, BlankTextIsRefused) {
    s.Frames().SetWriteText("   ");
    host.Answer(host::MsgAnswer::Ok);
    s.Frames().AddTextProceed();
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "No text entered yet");
    EXPECT_TRUE(host.drawn.empty());
}

TEST_F(TextFlowTest, AFontTheSystemLacksIsNamedAndTheSampleStays) {
    s.Frames().ClickFontName(1);
    EXPECT_EQ(Text().Sample.Font.Name, "Block Wide");
    host.fonts = {"Block"};  // the font went away meanwhile
    host.Answer(host::MsgAnswer::Ok);
    s.Frames().ClickFontName(0);
    s.Frames().ClickFontName(1);
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "Block Wide not available in system.");
    EXPECT_EQ(Text().Sample.Font.Name, "Block");
}

TEST_F(TextFlowTest, SettingsReachTheSampleAndTheDrawing) {
    s.Frames().ClickFontSize(5);
    s.Frames().ClickFontStyle(0);
    s.Frames().ClickFontStyle(1);
    s.Frames().ClickFontStyle(1);
    host.AnswerColor(0xFFFFFF);
    s.Frames().ClickTextColor();
    EXPECT_EQ(host.colorRequests.back().color, static_cast<std::int32_t>(kRed));
    EXPECT_EQ(Text().Sample.Colors.Back, effects::kTextKeyBlue);  // white shows on blue
    EXPECT_EQ(Text().Sample.Font.Size, 12);
    EXPECT_TRUE(Text().Sample.Font.Bold);
    EXPECT_FALSE(Text().Sample.Font.Italic);
    host.AnswerColor(-1);  // cancelled: nothing changes
    s.Frames().ClickTextColor();
    EXPECT_EQ(Text().TextColor, 0xFFFFFFu);

    s.Frames().SetWriteText("I");
    s.Frames().AddTextProceed();
    ASSERT_EQ(host.drawn.size(), 1u);
    EXPECT_EQ(host.drawn[0].Size, 12);
    // White text survives its own key.
    EXPECT_EQ(s.Icon().Image().GetPixel(0, 0), 0xFFFFFFu);
    EXPECT_EQ(s.Icon().Image().GetPixel(2, 4), 0xFFFFFFu);
    EXPECT_EQ(s.Icon().Image().GetPixel(3, 0), kGreen);
}

TEST_F(TextFlowTest, ProceedFloatsTheTextAtTheTopLeftAndTakesASnapshot) {
    s.Frames().SetWriteText("AB");
    const int undo = s.UndoCount();
    s.Frames().AddTextProceed();
    EXPECT_EQ(s.Form().VisibleFrame, Frame::Text);  // the frame stays up
    EXPECT_EQ(s.Form().SelectedTool, tools::Tool::Region);
    EXPECT_TRUE(s.View().Region().Exists);
    EXPECT_TRUE(Floats());
    EXPECT_EQ(Cells().Right - Cells().Left + 1, 7);  // the cells of both edges count  // two blocks and the gap, no margin
    EXPECT_EQ(Cells().Bottom - Cells().Top + 1, 5);
    EXPECT_EQ(s.UndoCount(), undo + 1);
    EXPECT_TRUE(s.Current().Changed);
    EXPECT_EQ(s.Icon().Image().GetPixel(0, 0), kRed);
    EXPECT_EQ(s.Icon().Image().GetPixel(3, 0), kGreen);  // the gap shows what is under it
    EXPECT_EQ(s.Icon().Composed().GetPixel(6, 4), kRed);
}

TEST_F(TextFlowTest, ADragMovesTheTextAndAPressOutsideDropsIt) {
    s.Frames().SetWriteText("A");
    s.Frames().AddTextProceed();
    const int undo = s.UndoCount();
    s.PointerPressed(session::Session::Button::Left, At(1), At(1));
    s.PointerMoved(At(11), At(21), false);
    s.PointerReleased(At(11), At(21), false);
    EXPECT_EQ(Cells().Left, 10);
    EXPECT_EQ(Cells().Top, 20);
    EXPECT_EQ(s.Icon().Image().GetPixel(0, 0), kGreen);  // what lay under it is back
    EXPECT_EQ(s.Icon().Image().GetPixel(10, 20), kRed);
    EXPECT_EQ(s.Icon().Image().GetPixel(12, 24), kRed);
    EXPECT_EQ(s.View().Region().Cells.Left, 10);
    EXPECT_EQ(s.UndoCount(), undo);  // nothing is final yet

    s.PointerPressed(session::Session::Button::Left, At(30), At(2));
    EXPECT_FALSE(Floats());
    EXPECT_FALSE(s.View().Region().Exists);
    EXPECT_EQ(s.Form().SelectedTool, tools::Tool::Region);
    EXPECT_EQ(s.UndoCount(), undo + 1);
    EXPECT_EQ(s.Icon().Image().GetPixel(10, 20), kRed);  // the text stays where it stands
}

TEST_F(TextFlowTest, AnotherToolDropsTheTextWhereItStands) {
    s.Frames().SetWriteText("A");
    s.Frames().AddTextProceed();
    s.ClickTool(tools::Tool::Paint);
    s.PointerPressed(session::Session::Button::Left, At(1), At(1));
    EXPECT_FALSE(Floats());
    EXPECT_EQ(s.Icon().Image().GetPixel(0, 0), kRed);
}

TEST_F(TextFlowTest, WithoutScreenFontsProceedSaysSo) {
    BlockFontHost bare;
    bare.fonts.clear();
    session::Session t{bare};
    t.Load(1024, 768);
    t.RunFirstActivation("", nullptr);
    t.FileNew(0);
    t.RunMenuItem("mnuEffectsText");
    t.Frames().SetWriteText("A");
    bare.Answer(host::MsgAnswer::Ok);
    t.Frames().AddTextProceed();
    ASSERT_EQ(bare.shown.size(), 1u);
    EXPECT_EQ(bare.shown[0].text, "No screen font available in system.");
    EXPECT_FALSE(t.View().Region().Exists);
}

}  // namespace
}  // namespace vexlo::test
