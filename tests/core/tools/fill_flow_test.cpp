// Fill, Replace Color and the Spotlight driven through pointer events on the Editing Area.
#include <gtest/gtest.h>

#include "core/session/session.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using session::Session;
using tools::Tool;

class FillFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        s.FileNew(0);  // 32x32, step 12
    }
    void Click(int c, int r, bool shift = false) {
        s.PointerPressed(Session::Button::Left, c * 12 + 6, r * 12 + 6);
        s.PointerReleased(c * 12 + 6, r * 12 + 6, shift);
    }
    void Drag(int c1, int r1, int c2, int r2) {
        s.PointerPressed(Session::Button::Left, c1 * 12 + 6, r1 * 12 + 6);
        s.PointerMoved(c2 * 12 + 6, r2 * 12 + 6, false);
        s.PointerReleased(c2 * 12 + 6, r2 * 12 + 6, false);
    }
    int Painted() const {
        int n = 0;
        for (int x = 0; x < 32; ++x)
            for (int y = 0; y < 32; ++y) n += s.Icon().Mask().GetPixel(x, y) == 0;
        return n;
    }
    ScriptedHost host;
    Session s{host};
};

TEST_F(FillFlowTest, FillStaysInsideABoxAndReplaceReachesEveryArea) {
    s.SetSelectedColor(0x0000FF);
    s.ClickTool(Tool::Rectangle);
    Drag(2, 2, 8, 8);    // a box with an inside of 5x5
    Drag(20, 2, 26, 8);  // another one apart from it
    const int undo = s.UndoCount();
    s.SetSelectedColor(0x00FF00);
    s.ClickTool(Tool::Fill);
    Click(5, 5);
    EXPECT_EQ(s.Icon().Image().GetPixel(5, 5), 0x00FF00u);
    EXPECT_EQ(s.Icon().Image().GetPixel(23, 5), 0u);  // the other box's inside: not reached
    EXPECT_EQ(s.Icon().Image().GetPixel(2, 2), 0x0000FFu);
    EXPECT_EQ(s.UndoCount(), undo + 1);
    EXPECT_TRUE(s.Current().Changed);

    s.SetSelectedColor(0xFF0000);
    s.ClickTool(Tool::ReplaceColor);
    Click(2, 2);  // the red of both boxes
    EXPECT_EQ(s.Icon().Image().GetPixel(2, 2), 0xFF0000u);
    EXPECT_EQ(s.Icon().Image().GetPixel(26, 8), 0xFF0000u);
    EXPECT_EQ(s.Icon().Image().GetPixel(5, 5), 0x00FF00u);
}

TEST_F(FillFlowTest, ShiftFillOnATransparentPixelChangesNothingButSnapshots) {
    s.ClickTool(Tool::Fill);
    const surface::Surface before = s.Icon().Image();
    const int undo = s.UndoCount();
    Click(10, 10, true);
    EXPECT_TRUE(SamePixels(s.Icon().Image(), before));
    EXPECT_EQ(s.UndoCount(), undo + 1);
}

TEST_F(FillFlowTest, ASpotlightOfThreeCellsIsNineByNineAndPainted) {
    s.SetSelectedColor(0x00FFFF);
    s.ClickTool(Tool::Spotlight);
    Drag(10, 10, 13, 13);
    // The 9x9 spot from the press point, less its rounded corners, painted on transparent cells.
    EXPECT_EQ(Painted(), 81 - 6 - 3 - 1 - 6);
    EXPECT_LE(Painted(), 81);
    for (int x = 0; x < 32; ++x)
        for (int y = 0; y < 32; ++y)
            if (s.Icon().Mask().GetPixel(x, y) == 0) {
                EXPECT_TRUE(x >= 10 && x <= 18 && y >= 10 && y <= 18) << x << "," << y;
            }
    EXPECT_EQ(s.UndoCount(), 2);
}

}  // namespace
}  // namespace vexlo::test
