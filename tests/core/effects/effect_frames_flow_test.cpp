// Buttonize, Adjust Painted Colors and Rotate at any angle through the menus and their frames:
// the frame shown, the planes untouched until Proceed, one undo entry per Proceed, Restore,
// and the commands without an icon.
#include <gtest/gtest.h>

#include "core/effects/rotate_angle.h"
#include "core/session/session.h"
#include "core/session/session_effect_frames.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using session::Frame;
using surface::Surface;
constexpr surface::Color kRed = 0x0000FF;

class EffectFramesTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        s.FileNew(1);  // 16x16
        // Painted red everywhere but the transparent cell (5, 5); a painted silver cell (6, 6).
        s.Icon().Image().Fill(kRed);
        s.Icon().Mask().Fill(0);
        s.Icon().Image().SetPixelV(5, 5, 0);
        s.Icon().Mask().SetPixelV(5, 5, 0xFFFFFF);
        s.Icon().Image().SetPixelV(6, 6, 0xC0C0C0);
        s.ComposeIcon();
        s.TakeUndoSnapshot();
        s.Current().Changed = false;
    }
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(EffectFramesTest, ButtonizeDrawsTheChosenPatternWithOneUndoEntryPerRun) {
    s.RunMenuItem("mnuEffectsSub(0)");
    EXPECT_EQ(s.Form().VisibleFrame, Frame::Buttonize);
    EXPECT_EQ(s.Effects().Buttonize().PatternIndex(), 0);
    s.Frames().ClickButtonizePattern(2);
    s.Frames().ClickButtonizePattern(7);  // no such entry
    EXPECT_EQ(s.Effects().Buttonize().PatternIndex(), 2);
    const int undo = s.UndoCount();
    s.Frames().ButtonizeProceed();
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_EQ(s.UndoCount(), undo + 1);
    EXPECT_TRUE(s.Current().Changed);
    EXPECT_EQ(s.Icon().Image().GetPixel(14, 14), effects::kButtonWarmGray);
    EXPECT_EQ(s.Icon().Mask().GetPixel(0, 0), 0xFFFFFFu);  // the corners cut
    EXPECT_EQ(s.Icon().Composed().GetPixel(0, 0), 0xC0C0C0u);
    const Surface once = s.Icon().Image();

    s.RunMenuItem("mnuEffectsSub(0)");  // the pattern lasts for the run
    EXPECT_EQ(s.Effects().Buttonize().PatternIndex(), 2);
    s.Frames().ButtonizeProceed();
    EXPECT_EQ(s.UndoCount(), undo + 2);
    EXPECT_TRUE(SamePixels(s.Icon().Image(), once));
    s.Frames().ButtonizeProceed();  // the frame is gone: nothing more
    EXPECT_EQ(s.UndoCount(), undo + 2);
}

TEST_F(EffectFramesTest, AdjustStepsActOnThePreviewOnlyUntilProceed) {
    s.RunMenuItem("mnuEffectsAdjustPaintedColors");
    ASSERT_EQ(s.Form().VisibleFrame, Frame::AdjustPaintedColors);
    const Surface& preview = s.Effects().AdjustColors().Preview();
    EXPECT_TRUE(SamePixels(preview, s.Icon().Composed()));
    s.Frames().ClickBrightnessAdj(effects::kAdjustZeroIndex);  // "0": nothing
    EXPECT_TRUE(SamePixels(preview, s.Icon().Composed()));
    s.Frames().ClickBrightnessAdj(4);   // -50: 255 -> 127.5 -> 128
    s.Frames().ClickColorAdj(1, 18);    // green +90: 0 stays 0
    s.Frames().ClickColorAdj(0, 18);    // red +90: 128 -> 243.2 -> 243
    EXPECT_EQ(preview.GetPixel(0, 0), surface::Rgb(243, 0, 0));
    EXPECT_EQ(preview.GetPixel(5, 5), 0xC0C0C0u);  // transparent: left alone
    EXPECT_EQ(s.Icon().Image().GetPixel(0, 0), kRed);

    s.Frames().AdjustColorsProceed(1);  // Restore
    EXPECT_TRUE(SamePixels(preview, s.Icon().Composed()));
    s.Frames().ClickBrightnessAdj(14);  // +50: 255 held
    const int undo = s.UndoCount();
    s.Frames().AdjustColorsProceed(0);
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_EQ(s.UndoCount(), undo + 1);
    EXPECT_EQ(s.Icon().Image().GetPixel(0, 0), kRed);
    EXPECT_EQ(s.Icon().Image().GetPixel(6, 6), 0u);  // true silver ends black, still painted
    EXPECT_EQ(s.Icon().Mask().GetPixel(6, 6), 0u);
    EXPECT_EQ(s.Icon().Image().GetPixel(5, 5), 0u);
    EXPECT_EQ(s.Icon().Mask().GetPixel(5, 5), 0xFFFFFFu);
    s.UndoStep();
    EXPECT_EQ(s.Icon().Image().GetPixel(6, 6), 0xC0C0C0u);
}

TEST_F(EffectFramesTest, RotateFrameFollowsItsControlsAndProceeds) {
    s.RunMenuItem("mnuRotateSubmenu(4)");
    ASSERT_EQ(s.Form().VisibleFrame, Frame::RotateSelectAngle);
    const auto& panel = s.Effects().RotateAngle();
    EXPECT_EQ(panel.Angle(), 0);
    EXPECT_EQ(panel.ListIndex(), 360);
    EXPECT_EQ(panel.Sample().GetPixel(0, 0), kRed);  // the composed icon at its top left
    s.Frames().RotateAngleSliderChanged(45);
    EXPECT_EQ(panel.ListIndex(), 405);
    const Surface sharp = panel.Sample();
    s.Frames().ClickRotateAntiAlias(true);
    EXPECT_FALSE(SamePixels(panel.Sample(), sharp));  // only the sample smooths
    s.Frames().ClickRotateAngleList(360 + 45);
    Surface image = s.Icon().Image(), mask = s.Icon().Mask();
    effects::ProceedRotate(45, image, mask);  // never smoothed, whatever the box shows
    const int undo = s.UndoCount();
    s.Frames().RotateSelectAngleProceed();
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_EQ(s.UndoCount(), undo + 1);
    EXPECT_TRUE(s.Current().Changed);
    EXPECT_TRUE(SamePixels(s.Icon().Image(), image));
    EXPECT_TRUE(SamePixels(s.Icon().Mask(), mask));
    EXPECT_EQ(s.Icon().Mask().GetPixel(0, 0), 0xFFFFFFu);
    EXPECT_EQ(s.Icon().Image().GetPixel(8, 8), kRed);
}

TEST_F(EffectFramesTest, RotateByAWholeTurnOnlyClosesTheFrame) {
    for (int listIndex : {0, 360, 720}) {
        s.RunMenuItem("mnuRotateSubmenu(4)");
        s.Frames().ClickRotateAngleList(listIndex);
        const int undo = s.UndoCount();
        s.Frames().RotateSelectAngleProceed();
        EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
        EXPECT_EQ(s.UndoCount(), undo);
        EXPECT_FALSE(s.Current().Changed);
    }
}

TEST_F(EffectFramesTest, EachCommandNeedsAnIcon) {
    s.ClickPanel(3);
    for (const char* item : {"mnuEffectsSub(0)", "mnuEffectsAdjustPaintedColors",
                             "mnuRotateSubmenu(4)", "mnuEffectsText"}) {
        host.Answer(host::MsgAnswer::Ok);
        s.RunMenuItem(item);
        ASSERT_FALSE(host.shown.empty());
        EXPECT_EQ(host.shown.back().text, "No icon in Editing Area yet") << item;
        EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel) << item;
    }
}

}  // namespace
}  // namespace vexlo::test
