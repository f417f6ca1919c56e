// The shades effects through the menu and their frame: preview, Proceed with an undo entry,
// Restore of the Cast controls, and a preview that other frames discard.
#include <gtest/gtest.h>

#include "core/session/session.h"
#include "core/session/session_effect_frames.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

class ShadesFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        s.FileNew(1);
        s.Icon().Image().SetPixelV(3, 3, 0x0000FF);
        s.Icon().Mask().SetPixelV(3, 3, 0);
        s.ComposeIcon();
        s.TakeUndoSnapshot();
    }
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(ShadesFlowTest, GrayscaleProceedsIntoThePlanesWithOneUndoEntry) {
    s.RunMenuItem("mnuEffectsSub(2)");
    EXPECT_EQ(s.Form().VisibleFrame, session::Frame::EffectsShades);
    EXPECT_EQ(s.Shades().Caption, "Grayscale");
    ASSERT_TRUE(s.Shades().Preview.has_value());
    EXPECT_EQ(s.Icon().Image().GetPixel(3, 3), 0x0000FFu);  // the planes wait for Proceed
    const int undo = s.UndoCount();
    s.Frames().ShadesProceed();
    const int gray = 76;  // round(0.3 x 255)
    EXPECT_EQ(s.Icon().Image().GetPixel(3, 3), surface::Rgb(gray, gray, gray));
    EXPECT_EQ(s.UndoCount(), undo + 1);
    EXPECT_TRUE(s.Current().Changed);
    EXPECT_EQ(s.Form().VisibleFrame, session::Frame::ColorsPanel);
    s.UndoStep();
    EXPECT_EQ(s.Icon().Image().GetPixel(3, 3), 0x0000FFu);
}

TEST_F(ShadesFlowTest, CastControlsAndRestore) {
    s.RunMenuItem("mnuEffectsSub(7)");
    EXPECT_TRUE(s.Shades().CastControlsVisible);
    s.Frames().CastComboClicked(0, 255);
    EXPECT_EQ(s.Shades().Cast.Values[0], 255);
    s.Frames().ShadesRestore();
    EXPECT_EQ(s.Shades().Cast.Values, (effects::CastValues{127, 127, 127}));
    EXPECT_EQ(s.Shades().Cast.Slider, 127);
}

TEST_F(ShadesFlowTest, AnotherFrameDiscardsThePreviewAndNeedsAnIcon) {
    s.RunMenuItem("mnuEffectsSub(1)");
    s.CancelFrame();
    EXPECT_FALSE(s.Shades().Preview.has_value());
    s.Frames().ShadesProceed();  // nothing to proceed with
    EXPECT_EQ(s.Icon().Image().GetPixel(3, 3), 0x0000FFu);
    s.ClickPanel(4);
    host.Answer(host::MsgAnswer::Ok);
    s.RunMenuItem("mnuEffectsSub(3)");
    ASSERT_FALSE(host.shown.empty());
    EXPECT_EQ(host.shown.back().text, "No icon in Editing Area yet");
}

}  // namespace
}  // namespace vexlo::test
