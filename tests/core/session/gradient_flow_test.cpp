// Gradient Unpainted Area through the menu and its frame: the refusals at opening, the
// controls redrawing the pictures, the spherical centre by a press, and Proceed with one undo
// entry that fills only the unpainted cells.
#include <gtest/gtest.h>

#include <functional>

#include "core/effects/gradient.h"
#include "core/session/session.h"
#include "core/session/session_effect_frames.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using session::Frame;
using surface::Color;
using surface::Rgb;
using surface::Surface;

class GradientFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
    }
    // A new icon of that menu entry with one painted cell at (3, 4).
    void NewIcon(int entry) {
        s.FileNew(entry);
        s.Icon().Image().SetPixelV(3, 4, 0x123456);
        s.Icon().Mask().SetPixelV(3, 4, 0);
        s.ComposeIcon();
        s.TakeUndoSnapshot();
    }
    static Surface Drawn(int side, const std::function<void(Surface&)>& draw) {
        Surface p(side, side, 0xFFFFFF);
        draw(p);
        return p;
    }
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(GradientFlowTest, RefusedWithoutAnIconAndOn16x16) {
    host.Answer(host::MsgAnswer::Ok);
    s.RunMenuItem("mnuEffectsGradientUnpaintedArea");
    EXPECT_EQ(host.shown.back().text, "No icon in Editing Area yet");
    NewIcon(1);
    host.Answer(host::MsgAnswer::Ok);
    s.ClickToolbar(20);  // "Gradient background" runs the same item
    EXPECT_EQ(host.shown.back().text, "For icons of 32x32 or 48x48 only");
    EXPECT_EQ(host.shown.back().icon, host::MsgIcon::Information);
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
}

TEST_F(GradientFlowTest, OpeningDrawsTheThreePicturesAtTheIconsSize) {
    NewIcon(2);
    s.RunMenuItem("mnuEffectsGradientUnpaintedArea");
    EXPECT_EQ(s.Form().VisibleFrame, Frame::Gradient);
    const session::GradientPanel& g = s.Gradient();
    EXPECT_TRUE(g.ProceedEnabled());
    EXPECT_FALSE(g.NoUnpaintedAreaVisible());
    const Color c1 = effects::kGradientFirstColor, c2 = effects::kGradientSecondColor;
    EXPECT_TRUE(SamePixels(g.Picture(0), Drawn(48, [&](Surface& p) { effects::DrawLinearGradient(p, 0, c1, c2); })));
    EXPECT_TRUE(SamePixels(g.Picture(1), Drawn(48, [&](Surface& p) { effects::DrawSquareGradient(p, c1, c2); })));
    EXPECT_TRUE(SamePixels(g.Picture(2),
                           Drawn(48, [&](Surface& p) { effects::DrawSphericalGradient(p, 24, 24, c1, c2); })));
}

TEST_F(GradientFlowTest, ControlsRedrawAndAreKeptToTheNextOpening) {
    NewIcon(0);
    s.RunMenuItem("mnuEffectsGradientUnpaintedArea");
    s.Frames().ClickGradientAngle(90);
    host.AnswerColor(0x0000FF);
    s.Frames().ClickGradientColor(1);
    ASSERT_EQ(host.colorRequests.size(), 1u);
    EXPECT_EQ(host.colorRequests[0].color, 0xFFFFFF);  // starts from the button's color
    EXPECT_TRUE(host.colorRequests[0].fullOpen);
    host.AnswerColor(-1);
    s.Frames().ClickGradientColor(0);  // cancelled: the color stays
    const Color c1 = effects::kGradientFirstColor, c2 = 0x0000FF;
    EXPECT_EQ(s.Gradient().ButtonColor(1), c2);
    EXPECT_TRUE(SamePixels(s.Gradient().Picture(0), Drawn(32, [&](Surface& p) { effects::DrawLinearGradient(p, 90, c1, c2); })));
    EXPECT_TRUE(SamePixels(s.Gradient().Picture(1), Drawn(32, [&](Surface& p) { effects::DrawSquareGradient(p, c1, c2); })));

    // A left press on the spherical picture moves its centre; other pictures and buttons don't.
    s.Frames().PressOnGradient(2, session::Session::Button::Left, 0, 0);
    const Surface corner = Drawn(32, [&](Surface& p) { effects::DrawSphericalGradient(p, 0, 0, c1, c2); });
    EXPECT_TRUE(SamePixels(s.Gradient().Picture(2), corner));
    s.Frames().PressOnGradient(2, session::Session::Button::Right, 16, 16);
    s.Frames().PressOnGradient(1, session::Session::Button::Left, 16, 16);
    EXPECT_TRUE(SamePixels(s.Gradient().Picture(2), corner));

    s.Frames().ClickGradientType(1);
    s.CancelFrame();
    s.RunMenuItem("mnuEffectsGradientUnpaintedArea");
    EXPECT_EQ(s.Gradient().AngleIndex(), 90);
    EXPECT_EQ(s.Gradient().ButtonColor(1), c2);
    EXPECT_EQ(s.Gradient().Kind(), effects::GradientKind::Square);
    // The centre is forgotten on a redraw.
    EXPECT_TRUE(SamePixels(s.Gradient().Picture(2),
                           Drawn(32, [&](Surface& p) { effects::DrawSphericalGradient(p, 16, 16, c1, c2); })));
}

TEST_F(GradientFlowTest, ProceedFillsUnpaintedCellsWithOneUndoEntry) {
    NewIcon(0);
    s.RunMenuItem("mnuEffectsGradientUnpaintedArea");
    s.Frames().ClickGradientType(1);
    const Surface square = s.Gradient().Picture(1);
    const int undo = s.UndoCount();
    s.Frames().GradientProceed();
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_EQ(s.UndoCount(), undo + 1);
    EXPECT_TRUE(s.Current().Changed);
    for (int x = 0; x < 32; ++x)
        for (int y = 0; y < 32; ++y) {
            ASSERT_EQ(s.Icon().Mask().GetPixel(x, y), 0u);
            ASSERT_EQ(s.Icon().Image().GetPixel(x, y), x == 3 && y == 4 ? 0x123456u : square.GetPixel(x, y));
        }
    EXPECT_EQ(s.Icon().Composed().GetPixel(0, 0), square.GetPixel(0, 0));
    s.UndoStep();
    EXPECT_EQ(s.Icon().Mask().GetPixel(0, 0), 0xFFFFFFu);
}

TEST_F(GradientFlowTest, AnIconWithoutBlankCellsCannotProceed) {
    NewIcon(0);
    s.Icon().Mask().Fill(0);
    s.ComposeIcon();
    s.RunMenuItem("mnuEffectsGradientUnpaintedArea");
    EXPECT_FALSE(s.Gradient().ProceedEnabled());
    EXPECT_TRUE(s.Gradient().NoUnpaintedAreaVisible());
    const int undo = s.UndoCount();
    s.Frames().GradientProceed();
    EXPECT_EQ(s.UndoCount(), undo);
    EXPECT_EQ(s.Form().VisibleFrame, Frame::Gradient);
    EXPECT_EQ(s.Icon().Image().GetPixel(0, 0), 0u);
}

}  // namespace
}  // namespace vexlo::test
