// The Region through the session, driven by pointer events as the window sends them: the
// rubber band, the lift, moves and their limits, edge drags, the drop, and Cut.
#include <gtest/gtest.h>

#include "support/region_session.h"

namespace vexlo::test {
namespace {

using session::Session;
using tools::Tool;
using Rows = std::vector<std::string>;
using B = Session::Button;

const Rows kPicture = {"........",
                       "........",
                       "..rgb...",
                       "..y.w...",
                       "..kkk...",
                       "........",
                       "........",
                       "........"};

class RegionFlow : public RegionSession {
protected:
    void SetUp() override {
        RegionSession::SetUp();
        NewIconWith(0, kPicture);  // 32x32, step 12
        s.ClickTool(Tool::Region);
    }
    Rows Top8() const { return Planes(0, 0, 8, 8); }
    // The Region over cells 2..4 both ways: a band between grid lines 24 and 60.
    void SelectMiddle() { Drag(25, 25, 59, 59); }
};

TEST_F(RegionFlow, ABandLiftsThePaintedPixelsAndAMoveCarriesThem) {
    SelectMiddle();
    ASSERT_TRUE(Marks().Exists);
    EXPECT_EQ(Marks().Cells.Left, 2);
    EXPECT_EQ(Marks().Cells.Bottom, 4);
    EXPECT_EQ(s.Form().Status.RegionMeasure, "Region: Start [2, 2]   W=3 H=3");
    // See-through: the painted pixels, the gray elsewhere; the planes look the same until a move.
    EXPECT_EQ(RowsOf(s.Floating().Image()), (Rows{"rgb", "ysw", "kkk"}));
    EXPECT_EQ(Top8(), kPicture);
    EXPECT_EQ(s.UndoCount(), 1);

    Drag(42, 42, 66, 66);  // grabbed at line 48, let go at line 72: two cells on
    EXPECT_EQ(Top8(), (Rows{"........",
                            "........",
                            "........",
                            "........",
                            "....rgb.",
                            "....y.w.",
                            "....kkk.",
                            "........"}));
    EXPECT_EQ(Marks().Rect.Left, 48);
    EXPECT_EQ(s.UndoCount(), 1);  // nothing is final while it floats
    EXPECT_TRUE(s.Rules().RegionSet);
    EXPECT_TRUE(s.Form().ToolbarEnabled[8]);

    // A press outside drops it where it stands, as one undo step, with the Region tool on.
    s.PointerMoved(300, 300, false);
    s.PointerPressed(B::Left, 300, 300);
    s.PointerReleased(300, 300, false);
    EXPECT_FALSE(Marks().Exists);
    EXPECT_EQ(s.Form().SelectedTool, Tool::Region);
    EXPECT_EQ(s.UndoCount(), 2);
    EXPECT_EQ(Top8()[4], "....rgb.");
    EXPECT_FALSE(s.Form().ToolbarEnabled[8]);
}

TEST_F(RegionFlow, APressAndReleaseInPlaceMakesNoRegion) {
    Drag(25, 25, 25, 25);
    EXPECT_FALSE(Marks().Exists);
    Drag(25, 25, 29, 80);  // both ends snap to the same vertical line
    EXPECT_FALSE(Marks().Exists);
    EXPECT_EQ(s.UndoCount(), 1);
}

TEST_F(RegionFlow, AModifierKeepsTheBandSquareAndInsideTheIcon) {
    Drag(25, 25, 121, 61, true);  // lines 24 to 120 and 60
    EXPECT_EQ(Marks().Cells.Right - Marks().Cells.Left, Marks().Cells.Bottom - Marks().Cells.Top);
    EXPECT_EQ(Marks().Cells.Right, 9);
    s.ClickTool(Tool::Paint);  // another tool drops the Region, with no undo step
    s.ClickTool(Tool::Region);
    EXPECT_EQ(s.UndoCount(), 1);
    Drag(337, 241, 383, 383, true);  // from lines 336, 240 towards the far corner
    EXPECT_EQ(Marks().Cells.Left, 28);
    EXPECT_EQ(Marks().Cells.Right, 31);
    EXPECT_EQ(Marks().Cells.Top, 20);
    EXPECT_EQ(Marks().Cells.Bottom, 23);
}

TEST_F(RegionFlow, APartMovedOutOfTheIconIsLostWhenDropped) {
    SelectMiddle();
    Drag(42, 42, 14, 42);  // three cells to the left: one column out
    EXPECT_EQ(Marks().Rect.Left, -12);
    EXPECT_EQ(Marks().Cells.Left, -1);
    EXPECT_EQ(Top8()[2], "gb......");
    // The floating picture still holds the column until the drop.
    EXPECT_EQ(RowsOf(s.Floating().Image())[0], "rgb");
    Drag(6, 42, 6, 42);  // a grab inside without a move changes nothing
    EXPECT_TRUE(Marks().Exists);
    EXPECT_EQ(Top8()[2], "gb......");
    s.PointerPressed(B::Left, 300, 300);
    s.PointerReleased(300, 300, false);
    EXPECT_FALSE(Marks().Exists);
    EXPECT_EQ(Top8()[2], "gb......");
    EXPECT_EQ(Top8()[3], ".w......");
    EXPECT_EQ(Top8()[4], "kk......");
}

TEST_F(RegionFlow, AMovePastTheLimitIsRefusedAndBackIsAllowed) {
    Drag(1, 1, 119, 119);  // cells 0..9: 120 pixels, so the left limit is -84
    EXPECT_EQ(s.Floating().Drag().MinX, -84);
    Drag(60, 60, 2, 60);
    EXPECT_EQ(Marks().Rect.Left, -60);
    Drag(50, 60, 2, 60);  // not yet at the limit: this move may pass it
    EXPECT_EQ(Marks().Rect.Left, -108);
    Drag(7, 60, 2, 60);  // past the limit: no further out
    EXPECT_EQ(Marks().Rect.Left, -108);
    Drag(7, 60, 30, 60);  // but back
    EXPECT_EQ(Marks().Rect.Left, -84);
}

TEST_F(RegionFlow, AnEdgeDraggedOutLiftsTheNewRectangle) {
    SelectMiddle();
    Drag(62, 40, 86, 40);  // the right edge from 60 by 24 pixels
    EXPECT_FALSE(Marks().EdgeDragged);
    EXPECT_EQ(Marks().Rect.Right, 84);
    EXPECT_EQ(Marks().Cells.Right, 6);
    EXPECT_EQ(RowsOf(s.Floating().Image()), (Rows{"rgbss", "yswss", "kkkss"}));
    // An edge let go between grid lines goes back to the line at or before it.
    Drag(26, 46, 41, 46);  // the left edge from 24 by 15 pixels, to 39
    EXPECT_EQ(Marks().Rect.Left, 36);
    EXPECT_EQ(Marks().Cells.Left, 3);
    EXPECT_EQ(RowsOf(s.Floating().Image()), (Rows{"gbss", "swss", "kkss"}));
}

TEST_F(RegionFlow, CutAndCopyOfALiftedRegionSendsTheComposedPixelsAndErasesThem) {
    SelectMiddle();
    Drag(42, 42, 66, 42);  // two cells right
    s.RunMenuItem("mnuEditSub(4)");
    ASSERT_TRUE(host.clipboard.has_value());
    EXPECT_EQ(RowsOf(*host.clipboard), (Rows{"rgb", "ysw", "kkk"}));
    EXPECT_EQ(RowsOf(host.holes), (Rows{"kkk", "kwk", "kkk"}));
    EXPECT_FALSE(Marks().Exists);
    EXPECT_EQ(Top8()[2], "........");
    EXPECT_EQ(Top8()[4], "........");
    EXPECT_EQ(s.UndoCount(), 2);
    EXPECT_TRUE(s.Current().Changed);
}

TEST_F(RegionFlow, UndoWhileARegionFloatsDropsItWithItsPicture) {
    s.ClickTool(Tool::Paint);
    s.PointerPressed(B::Left, 7 * 12 + 3, 3);
    s.PointerReleased(7 * 12 + 3, 3, false);
    s.ClickTool(Tool::Region);
    SelectMiddle();
    Drag(42, 42, 66, 66);
    s.RunMenuItem("mnuEditSub(0)");
    EXPECT_FALSE(Marks().Exists);
    EXPECT_EQ(Top8(), kPicture);  // the loaded state: the move and the paint are gone
}

}  // namespace
}  // namespace vexlo::test
