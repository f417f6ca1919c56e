// Expand, Shrink and the two Confine entries through the menu: their questions and refusals,
// the slot's record afterwards, and what can be undone.
#include <gtest/gtest.h>

#include "core/color/color_charts.h"
#include "core/effects/resize_confine.h"
#include "core/session/session.h"
#include "core/session/session_effect_frames.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using session::Frame;
using surface::Color;
using surface::Rgb;
using surface::Surface;

class ResizeConfineFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
    }
    // A new icon of that menu entry whose cells below the diagonal are painted in 256
    // different colors (16x16) or in fewer; the rest transparent.
    void NewIcon(int entry) {
        s.FileNew(entry);
        const int side = s.Icon().Side();
        for (int x = 0; x < side; ++x)
            for (int y = 0; y < side; ++y) {
                const bool painted = x + y > side / 2;
                s.Icon().Image().SetPixelV(x, y, painted ? Rgb(17 * (x % 16), 17 * (y % 16), 127) : 0);
                s.Icon().Mask().SetPixelV(x, y, painted ? 0 : 0xFFFFFF);
            }
        s.ComposeIcon();
        s.TakeUndoSnapshot();
    }
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(ResizeConfineFlowTest, ExpandThenShrinkGivesTheIconBack) {
    NewIcon(1);
    const Surface image = s.Icon().Image(), mask = s.Icon().Mask();
    host.Answer(MsgAnswer::Yes);
    s.RunMenuItem("mnuEffectsExpand");
    EXPECT_EQ(host.shown.back().text, "Expand from 16x16 to 32x32.  (Undo will not be available)\r\nProceed?\r\n");
    EXPECT_EQ(host.shown.back().buttons, host::MsgButtons::YesNo);
    ASSERT_EQ(s.Icon().Side(), 32);
    for (int x = 0; x < 32; ++x)
        for (int y = 0; y < 32; ++y) {
            ASSERT_EQ(s.Icon().Image().GetPixel(x, y), image.GetPixel(x / 2, y / 2)) << x << "," << y;
            ASSERT_EQ(s.Icon().Mask().GetPixel(x, y), mask.GetPixel(x / 2, y / 2)) << x << "," << y;
        }
    const session::IconSlot& r = s.Current();
    EXPECT_EQ(r.SizeCode, 2);
    EXPECT_EQ(r.KindText, "Expanded from 16x16");
    EXPECT_EQ(r.FileSpec, "Enlarged");
    EXPECT_FALSE(r.Changed);
    EXPECT_FALSE(r.NeverSaved);
    EXPECT_EQ(s.UndoCount(), 1);  // the history starts anew
    EXPECT_EQ(s.Panel().PanelIcon(0).Width(), 32);

    host.Answer(MsgAnswer::Yes);
    s.RunMenuItem("mnuEffectsShrink");
    EXPECT_EQ(host.shown.back().text, "Shrink from 32x32 to 16x16.  (Undo will not be available)\r\nProceed?\r\n");
    EXPECT_TRUE(SamePixels(s.Icon().Image(), image));
    EXPECT_TRUE(SamePixels(s.Icon().Mask(), mask));
    EXPECT_EQ(s.Current().KindText, "Shrunk from 32x32");
    EXPECT_EQ(s.Current().FileSpec, "Shrunk");
    EXPECT_EQ(s.Current().SizeCode, 1);
}

TEST_F(ResizeConfineFlowTest, QuestionsAndRefusalsLeaveTheIcon) {
    NewIcon(1);
    host.Answer(MsgAnswer::No);
    s.RunMenuItem("mnuEffectsExpand");
    EXPECT_EQ(s.Icon().Side(), 16);

    // A changed icon gets the save question instead; Cancel stops, No goes on.
    s.SlotRecord(0).Changed = true;
    host.Answer(MsgAnswer::Cancel);
    s.RunMenuItem("mnuEffectsExpand");
    EXPECT_EQ(host.shown.back().text, "Save current icon to file?");
    EXPECT_EQ(s.Icon().Side(), 16);
    host.Answer(MsgAnswer::No);
    s.RunMenuItem("mnuEffectsExpand");
    EXPECT_EQ(s.Icon().Side(), 32);

    // Shrink acts only at 32x32, Expand only at 16x16; an icon of a multi-icon file is refused.
    const std::size_t shown = host.shown.size();
    s.RunMenuItem("mnuEffectsExpand");
    EXPECT_EQ(host.shown.size(), shown);
    s.SlotRecord(0).MultiIconFile = true;
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuEffectsShrink");
    EXPECT_EQ(host.shown.back().text,
              "Current icon originates from a multi-icon file which has\r\n"
              "already had alternative size(s).  If you wish to shrink the\r\n"
              "current one, save it as a single-icon file first.");
    EXPECT_EQ(host.shown.back().icon, host::MsgIcon::Information);
    EXPECT_EQ(s.Icon().Side(), 32);
}

TEST_F(ResizeConfineFlowTest, ConfineTo16MapsEveryPaintedCellIntoTheChart) {
    NewIcon(1);
    ASSERT_EQ(files::CountColors(s.Icon().Image()), 256);
    s.SwitchTo256ColorChart();
    const Surface before = s.Icon().Image(), mask = s.Icon().Mask(), composed = s.Icon().Composed();
    const int undo = s.UndoCount();
    host.Answer(MsgAnswer::No);
    s.RunMenuItem("mnuEffectsConfineColorsTo16");
    EXPECT_EQ(host.shown.back().text, "Confine to 16-color palette.  Proceed?\r\n");
    EXPECT_TRUE(SamePixels(s.Icon().Image(), before));
    host.Answer(MsgAnswer::Yes);
    s.RunMenuItem("mnuEffectsConfineColorsTo16");
    Surface want = before;  // the painted cells mapped as the core maps them
    effects::ConfineTo16(composed, want);
    EXPECT_TRUE(SamePixels(s.Icon().Image(), want));
    EXPECT_TRUE(SamePixels(s.Icon().Mask(), mask));
    EXPECT_EQ(s.UndoCount(), undo + 1);
    EXPECT_EQ(s.Form().PaletteMode, 0);  // the 16-Color Palette follows

    // Now of 16 colors at most: refused. So is a monochrome icon.
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuEffectsConfineColorsTo16");
    EXPECT_EQ(host.shown.back().text, "Current image is of 16-color depth.  ");
    host.Answer(MsgAnswer::No);  // the save question of the changed icon
    s.RunMenuItem("mnuFileNew(1)");
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuEffectsConfineColorsTo16");
    EXPECT_EQ(host.shown.back().text, "Current image is of monochrome.  ");
}

TEST_F(ResizeConfineFlowTest, ConfineToMonoByThreshold) {
    NewIcon(0);
    const Color cells[4] = {Rgb(128, 128, 128), Rgb(129, 129, 129), 0xFFFFFF, Rgb(255, 0, 0)};
    for (int x = 0; x < 4; ++x) {
        s.Icon().Image().SetPixelV(x, 31, cells[x]);
        s.Icon().Mask().SetPixelV(x, 31, 0);
    }
    s.ComposeIcon();
    s.RunMenuItem("mnuEffectsConfineColorsTo2");
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ConfineToMono);
    EXPECT_EQ(s.ConfineMono().Threshold(), 128);
    const int undo = s.UndoCount();
    s.Frames().ConfineToMonoProceed();
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_EQ(s.UndoCount(), undo + 1);
    const Color image[4] = {0, 0, 0xFFFFFF, 0}, mask[4] = {0, 0xFFFFFF, 0, 0};
    for (int x = 0; x < 4; ++x) {
        EXPECT_EQ(s.Icon().Image().GetPixel(x, 31), image[x]) << x;
        EXPECT_EQ(s.Icon().Mask().GetPixel(x, 31), mask[x]) << x;
    }
    // The icon is now of two colors: refused.
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuEffectsConfineColorsTo2");
    EXPECT_EQ(host.shown.back().text, "Current image is of monochrome.  ");

    s.Frames().ClickMonoThreshold(353);
    EXPECT_EQ(s.ConfineMono().Threshold(), 354);
    s.Frames().ClickMonoThreshold(354);  // past the list
    EXPECT_EQ(s.ConfineMono().Threshold(), 354);
}

}  // namespace
}  // namespace vexlo::test
