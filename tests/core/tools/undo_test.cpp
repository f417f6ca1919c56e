// Undo and redo through the session: the limit of the history, identities over both planes,
// and the ways that close the road to redo.
#include <gtest/gtest.h>

#include "core/session/session.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using surface::Color;

class UndoTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.FileNew(1);  // 16x16
    }
    // One edit as the tools end it: the planes change, then compose, magnify, snapshot.
    void Edit(int x, int y, Color image, Color mask) {
        s.Icon().Image().SetPixelV(x, y, image);
        s.Icon().Mask().SetPixelV(x, y, mask);
        s.ComposeIcon();
        s.MagnifyIcon();
        s.Current().Changed = true;
        s.TakeUndoSnapshot();
    }
    std::pair<Color, Color> Planes(int x, int y) {
        return {s.Icon().Image().GetPixel(x, y), s.Icon().Mask().GetPixel(x, y)};
    }

    ScriptedHost host;
    session::Session s{host};
};

TEST_F(UndoTest, ALoadedIconHasOneEntryAndTwelveChangesKeepEleven) {
    EXPECT_EQ(s.UndoCount(), 1);
    for (int i = 0; i < 12; ++i) Edit(i, 0, 0x0000FF, 0);
    EXPECT_EQ(s.UndoCount(), 11);
    for (int i = 0; i < 10; ++i) s.RunMenuItem("mnuEditSub(0)");
    EXPECT_EQ(s.UndoCount(), 1);
    // The loaded state is gone: the oldest kept one has the first two pixels painted.
    EXPECT_EQ(Planes(1, 0), std::make_pair(Color{0x0000FF}, Color{0}));
    EXPECT_EQ(Planes(2, 0), std::make_pair(Color{0}, Color{0xFFFFFF}));
    s.UndoStep();  // nothing left to undo: no change, no message
    EXPECT_EQ(s.UndoCount(), 1);
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(UndoTest, UndoThenRedoRestoresBothPlanesOfAnInvertingPixel) {
    Edit(3, 4, 0x00FF00, 0xFFFFFF);  // inverting: PicIcon alone couldn't bring it back
    Edit(3, 4, 0x000000, 0xFFFFFF);  // transparent again
    s.UndoStep();
    EXPECT_EQ(Planes(3, 4), std::make_pair(Color{0x00FF00}, Color{0xFFFFFF}));
    EXPECT_EQ(s.Icon().Composed().GetPixel(3, 4), 0xC0C0C0u ^ 0x00FF00u);
    s.RedoStep();
    EXPECT_EQ(Planes(3, 4), std::make_pair(Color{0}, Color{0xFFFFFF}));
    s.UndoStep();
    s.UndoStep();
    EXPECT_EQ(Planes(3, 4), std::make_pair(Color{0}, Color{0xFFFFFF}));
    EXPECT_EQ(s.RedoCount(), 2);
}

TEST_F(UndoTest, ANewChangeAfterUndoEmptiesRedo) {
    Edit(0, 0, 0xFF0000, 0);
    s.UndoStep();
    EXPECT_EQ(s.RedoCount(), 1);
    Edit(1, 1, 0xFF0000, 0);
    EXPECT_EQ(s.RedoCount(), 0);
}

TEST_F(UndoTest, UndoAllGoesToTheFirstEntryAndCannotBeRedone) {
    Edit(0, 0, 0xFF0000, 0);
    s.UndoAll();  // two entries: Undo All needs three
    EXPECT_EQ(s.UndoCount(), 2);
    Edit(1, 0, 0xFF0000, 0);
    s.UndoAll();
    EXPECT_EQ(s.UndoCount(), 1);
    EXPECT_EQ(s.RedoCount(), 0);
    EXPECT_EQ(s.Icon().History().RunningNumber(), 1);
    EXPECT_EQ(Planes(0, 0), std::make_pair(Color{0}, Color{0xFFFFFF}));
}

TEST_F(UndoTest, AChangedSlotLeftAndReopenedStartsItsHistoryAnew) {
    Edit(0, 0, 0xFF0000, 0);
    s.ClickPanel(1);
    s.ClickPanel(0);
    EXPECT_EQ(s.UndoCount(), 1);
    EXPECT_EQ(Planes(0, 0), std::make_pair(Color{0xFF0000}, Color{0}));
}

TEST_F(UndoTest, WithNoIconTheCommandsSaySo) {
    s.ClickPanel(2);  // an empty slot
    host.Answer(host::MsgAnswer::Ok);
    s.RunMenuItem("mnuEditSub(0)");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "No icon in Editing Area yet");
}

}  // namespace
}  // namespace vexlo::test
