// The Rotate menu's flips and quarter turns on the whole icon and on a floating Region, and
// Shift Directions with its pad, through the session.
#include <gtest/gtest.h>

#include "support/region_session.h"

namespace vexlo::test {
namespace {

using session::Session;
using tools::Tool;
using B = Session::Button;

// Pad positions of its cells (45 pixels, cells of 15).
constexpr int kLeft = 5, kMiddle = 22, kRight = 40;

class TransformFlow : public RegionSession {
protected:
    void Rotate(int i) { s.RunMenuItem("mnuRotateSubmenu(" + std::to_string(i) + ")"); }
    void Pad(int x, int y) { s.ReleaseOnShiftPad(x, y); }
};

TEST_F(TransformFlow, WholeIconFlipsAndTurnsMoveBothPlanesAndComeBack) {
    NewIconWith(1, {"rg", "b."});
    s.Icon().Mask().SetPixelV(1, 1, 0xFFFFFF);
    s.Icon().Image().SetPixelV(1, 1, 0x00FFFF);  // an inverting pixel
    const Surface image = s.Icon().Image(), mask = s.Icon().Mask();
    Rotate(0);
    EXPECT_EQ(Planes(14, 0, 2, 2), (Rows{"gr", "~b"}));
    EXPECT_TRUE(s.Current().Changed);
    Rotate(0);
    EXPECT_TRUE(SamePixels(s.Icon().Image(), image));
    EXPECT_TRUE(SamePixels(s.Icon().Mask(), mask));
    EXPECT_EQ(s.UndoCount(), 3);
    Rotate(1);
    EXPECT_EQ(Planes(0, 14, 2, 2), (Rows{"b~", "rg"}));
    Rotate(1);
    Rotate(2);  // counterclockwise: the top row goes down the left side
    EXPECT_EQ(Planes(0, 14, 2, 2), (Rows{"g~", "rb"}));
    for (int i = 0; i < 3; ++i) Rotate(2);
    EXPECT_TRUE(SamePixels(s.Icon().Image(), image));
    Rotate(2);
    Rotate(3);
    EXPECT_TRUE(SamePixels(s.Icon().Mask(), mask));
    EXPECT_EQ(s.UndoCount(), 11);
}

TEST_F(TransformFlow, ARegionTurnedSwapsItsSidesAndKeepsItsCorner) {
    // A Region 3 cells wide and 5 high at cells (1, 1).
    NewIconWith(0, {".....",
                    ".rgb.",
                    ".y.w.",
                    ".kkk.",
                    ".rrr.",
                    ".bbb."});
    s.ClickTool(Tool::Region);
    Drag(13, 13, 47, 71);
    ASSERT_TRUE(s.View().Region().Exists);
    Rotate(3);  // clockwise
    const tools::RegionMarks& marks = s.View().Region();
    EXPECT_EQ(marks.Cells.Left, 1);
    EXPECT_EQ(marks.Cells.Top, 1);
    EXPECT_EQ(marks.Cells.Right, 5);
    EXPECT_EQ(marks.Cells.Bottom, 3);
    EXPECT_EQ(Planes(0, 0, 7, 6), (Rows{".......",
                                        ".brkyr.",
                                        ".brk.g.",
                                        ".brkwb.",
                                        ".......",
                                        "......."}));
    EXPECT_EQ(s.UndoCount(), 2);
    // Reworked: a Cut takes the picture back to what lay under the lifted Region, a hole.
    s.RunMenuItem("mnuEditSub(5)");
    EXPECT_EQ(Planes(0, 0, 7, 6)[2], ".......");
    EXPECT_EQ(s.UndoCount(), 2);
}

TEST_F(TransformFlow, ARegionTurnedPastTheEdgeKeepsThePartOutside) {
    const std::string margin(30, '.');
    NewIconWith(0, {margin + "rg", margin + "b.", margin + "yw"});
    s.ClickTool(Tool::Region);
    Drag(361, 1, 383, 35);  // cells 30..31, 0..2
    Rotate(2);  // 3 wide now: its last column lies outside the icon
    EXPECT_EQ(s.View().Region().Cells.Right, 32);
    EXPECT_EQ(Planes(30, 0, 2, 3), (Rows{"g.", "rb", ".."}));
    Rotate(3);  // and back, whole
    EXPECT_EQ(Planes(30, 0, 2, 3), (Rows{"rg", "b.", "yw"}));
}

TEST_F(TransformFlow, ShiftStopsWithOneColumnLeftAndComesBackWhole) {
    NewIconWith(1, {"rg", "bk"});
    s.PointerPressed(B::Left, 100, 100);  // Paint, as File New left it
    s.PointerReleased(100, 100, false);
    EXPECT_EQ(s.UndoCount(), 2);
    s.ClickTool(Tool::Shift);
    EXPECT_EQ(s.UndoCount(), 1);  // a new history begins
    for (int i = 0; i < 20; ++i) Pad(kLeft, kMiddle);
    EXPECT_EQ(s.Shift().ShiftX(), 15);
    EXPECT_EQ(Planes(0, 0, 2, 1), (Rows{".."}));  // the picture's left column is gone too
    EXPECT_EQ(s.UndoCount(), 11);  // 15 steps, the history keeps 11
    for (int i = 0; i < 15; ++i) Pad(kRight, kMiddle);
    EXPECT_EQ(s.Shift().ShiftX(), 0);
    EXPECT_EQ(Planes(0, 0, 2, 2), (Rows{"rg", "bk"}));
    Pad(kRight, kRight);  // right and down
    EXPECT_EQ(Planes(0, 0, 3, 3), (Rows{"...", ".rg", ".bk"}));
}

TEST_F(TransformFlow, EachClickIsAnUndoStepButTheDisplacementDoesNotFollowUndo) {
    NewIconWith(1, {"r"});
    s.ClickTool(Tool::Shift);
    Pad(kMiddle, kRight);  // the bottom row: down
    Pad(kMiddle, kRight);
    EXPECT_EQ(Planes(0, 2, 1, 1), (Rows{"r"}));
    EXPECT_EQ(s.UndoCount(), 3);
    s.RunMenuItem("mnuEditSub(0)");
    EXPECT_EQ(Planes(0, 1, 1, 1), (Rows{"r"}));
    EXPECT_EQ(s.Shift().ShiftY(), -2);
    // The centre redraws at the present displacement and takes one more step.
    Pad(kMiddle, kMiddle);
    EXPECT_EQ(Planes(0, 2, 1, 1), (Rows{"r"}));
    EXPECT_EQ(s.UndoCount(), 3);
}

TEST_F(TransformFlow, ThePadDoesNothingWithTheToolOff) {
    NewIconWith(1, {"r"});
    Pad(kLeft, kMiddle);
    s.ClickTool(Tool::Shift);
    s.ClickTool(Tool::Shift);  // off again
    Pad(kLeft, kMiddle);
    EXPECT_EQ(Planes(0, 0, 1, 1), (Rows{"r"}));
    EXPECT_EQ(s.UndoCount(), 1);
}

}  // namespace
}  // namespace vexlo::test
