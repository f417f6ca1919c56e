// Copy, Paste and Clear Clipboard through the session with a clipboard of the test's own:
// what goes out, the questions about sizes, what a see-through and an opaque paste leave, and
// the rules of the Edit menu and the toolbar that follow the clipboard.
#include <gtest/gtest.h>

#include "support/region_session.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using session::Frame;
using tools::Tool;

// A picture of w x h in one color with a distinct top left 2 x 2 block.
Surface Block(int w, int h, char fill) {
    Surface s(w, h, 0xFFFFFF);
    s.Fill(ColorOfLetter(fill));
    s.SetPixelV(0, 0, ColorOfLetter('r'));
    s.SetPixelV(1, 0, ColorOfLetter('g'));
    s.SetPixelV(0, 1, ColorOfLetter('s'));
    s.SetPixelV(1, 1, ColorOfLetter('w'));
    return s;
}

class ClipboardFlow : public RegionSession {
protected:
    void NewIconWith(const Rows& rows) { RegionSession::NewIconWith(0, rows); }
    Rows Planes(int w, int h) const { return RegionSession::Planes(0, 0, w, h); }
};

TEST_F(ClipboardFlow, PasteSeeThroughLeavesTheGrayOutAndOpaqueTurnsWhiteInverting) {
    NewIconWith({"bbb", "bbb"});
    host.clipboard = PictureOf({"rsg", "swk"});
    s.RunMenuItem("mnuEditSub(7)");
    EXPECT_EQ(Planes(3, 2), (Rows{"rbg", "bwk"}));
    EXPECT_TRUE(s.Current().Changed);
    EXPECT_EQ(s.UndoCount(), 1);  // nothing recorded until it is dropped
    EXPECT_EQ(Marks().Rect.Right, 36);
    s.ClickTool(Tool::Paint);  // dropped as it stands
    // Opaque over it: gray is painted gray, and white gets a white mask, so it inverts.
    s.RunMenuItem("mnuEditSub(8)");
    EXPECT_EQ(Planes(3, 2), (Rows{"rsg", "s~k"}));
}

TEST_F(ClipboardFlow, CutOfAPasteNotYetDroppedBringsBackThePictureWithoutAnUndoEntry) {
    NewIconWith({"bbb", "bbb"});
    host.clipboard = PictureOf({"rr", "rr"});
    s.RunMenuItem("mnuEditSub(7)");
    s.RunMenuItem("mnuEditSub(5)");
    EXPECT_FALSE(Marks().Exists);
    EXPECT_EQ(Planes(3, 2), (Rows{"bbb", "bbb"}));
    EXPECT_EQ(s.UndoCount(), 1);
}

TEST_F(ClipboardFlow, APictureLargerThanTheIconIsCutToItsTopLeftOnYes) {
    NewIconWith({"."});
    host.clipboard = Block(100, 100, 'y');
    host.Answer(MsgAnswer::No);
    s.RunMenuItem("mnuEditSub(7)");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "Image size is of 100x100; too large for current icon.\r\n\r\nChange to fit in?");
    EXPECT_EQ(host.shown[0].buttons, host::MsgButtons::YesNo);
    EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Question);
    EXPECT_FALSE(Marks().Exists);
    EXPECT_TRUE(host.reads.empty());  // No: not a pixel read

    host.Answer(MsgAnswer::Yes);
    s.RunMenuItem("mnuEditSub(7)");
    ASSERT_EQ(host.reads.size(), 1u);
    EXPECT_EQ(host.reads[0], std::make_pair(32, 32));  // only the block that fits
    EXPECT_EQ(Marks().Cells.Right, 31);
    EXPECT_EQ(Marks().Cells.Bottom, 31);
    EXPECT_EQ(Planes(3, 2), (Rows{"rgy", ".wy"}));
    EXPECT_EQ(s.Icon().Image().GetPixel(31, 31), ColorOfLetter('y'));
}

TEST_F(ClipboardFlow, PasteWithNoIconAsksAndMakesAnIconThatHoldsThePicture) {
    host.clipboard = Block(24, 24, 'b');
    host.Answer(MsgAnswer::No);
    s.RunMenuItem("mnuEditSub(7)");
    EXPECT_EQ(host.shown[0].text, "Image size is of 24x24, not of 16x16, 32x32 or 48x48.\r\n\r\nCreate to fit in?");
    EXPECT_FALSE(s.Current().Occupied);

    host.Answer(MsgAnswer::Yes);
    s.RunMenuItem("mnuEditSub(7)");
    const session::IconSlot& slot = s.Current();
    EXPECT_TRUE(slot.Occupied);
    EXPECT_TRUE(slot.InEditingArea);
    EXPECT_EQ(slot.SizeCode, 2);
    EXPECT_EQ(slot.KindText, "New icon");
    EXPECT_EQ(slot.FileSpec, "Untitled");
    EXPECT_TRUE(slot.Changed);
    EXPECT_EQ(Planes(3, 2), (Rows{"rgb", ".wb"}));
    EXPECT_EQ(PlanesRows(s.Icon().Image(), s.Icon().Mask(), 23, 23, 2, 1), (Rows{"b."}));
    EXPECT_EQ(s.Form().SelectedTool, Tool::Region);
    EXPECT_EQ(s.UndoCount(), 1);  // the empty icon, first entry of its history
}

TEST_F(ClipboardFlow, AnEmptyOrUnreadableClipboardIsSaidSo) {
    NewIconWith({"r"});
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuEditSub(7)");
    EXPECT_EQ(host.shown.back().text, "No image in clipboard yet");

    host.clipboard = Block(60000, 1, 'r');
    host.tooLarge = true;
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuEditSub(7)");
    EXPECT_EQ(host.shown.back().text, "Image size is of 60000x1; too large to be taken from the clipboard.");
    EXPECT_TRUE(host.reads.empty());
    EXPECT_FALSE(Marks().Exists);
    EXPECT_EQ(Planes(1, 1), (Rows{"r"}));
}

TEST_F(ClipboardFlow, ClearClipboardEmptiesItAndThePasteRulesFollow) {
    NewIconWith({"r"});
    host.clipboard = Block(16, 16, 'r');
    session::RuleContext rules = s.Rules();
    EXPECT_TRUE(session::RuleHolds(session::EnableRule::PasteMenu, rules));
    s.RunMenuItem("mnuEditSub(9)");
    EXPECT_FALSE(host.clipboard.has_value());
    EXPECT_FALSE(s.Form().ToolbarEnabled[11]);
    EXPECT_FALSE(s.Form().ToolbarEnabled[12]);
    rules = s.Rules();
    EXPECT_FALSE(session::RuleHolds(session::EnableRule::PasteMenu, rules));
}

TEST_F(ClipboardFlow, PasteDuringAListSessionDoesNothing) {
    NewIconWith({"r"});
    host.clipboard = Block(16, 16, 'g');
    s.ShowFrame(Frame::IconsList);
    EXPECT_TRUE(session::RuleHolds(session::EnableRule::PasteButton, s.Rules()));
    EXPECT_FALSE(session::RuleHolds(session::EnableRule::PasteMenu, s.Rules()));
    s.ClickToolbar(11);
    EXPECT_TRUE(host.reads.empty());
    EXPECT_FALSE(Marks().Exists);
}

}  // namespace
}  // namespace vexlo::test
