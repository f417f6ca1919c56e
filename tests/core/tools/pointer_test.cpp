// The pointer on the Editing Area through the session: which button and which position run a
// tool, selecting and turning off tools, the Color Picker, and the undo entries that pointer
// edits leave.
#include <gtest/gtest.h>

#include <string>

#include "core/session/session.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using session::Frame;
using session::Session;
using surface::Color;
using tools::Tool;
using B = Session::Button;

struct Cell {
    int x, y;
};

constexpr Color kRed = 0x0000FF;
constexpr Color kBlue = 0xFF0000;

// The planes from (x0, y0), w x h, a line a row: 'r' painted red, 'b' painted blue, '.'
// transparent, '?' anything else.
std::string Planes(const Session& s, int x0, int y0, int w, int h) {
    std::string out;
    for (int y = y0; y < y0 + h; ++y) {
        for (int x = x0; x < x0 + w; ++x) {
            const Color i = s.Icon().Image().GetPixel(x, y), m = s.Icon().Mask().GetPixel(x, y);
            out += m == 0xFFFFFF && i == 0 ? '.'
                 : m != 0 ? '?' : i == kRed ? 'r' : i == kBlue ? 'b' : '?';
        }
        out += '\n';
    }
    return out;
}

class Pointer : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
    }
    // File New, which leaves Paint selected.
    void New(int entry = 1) {
        s.FileNew(entry);
        s.SetSelectedColor(kRed);
        EXPECT_EQ(s.Form().SelectedTool, Tool::Paint);
    }
    // The middle of a cell in picDisp pixels.
    int Px(int cell) const { return cell * s.View().MagnifyStep() + s.View().MagnifyStep() / 2; }
    void Click(int cx, int cy) {
        s.PointerPressed(B::Left, Px(cx), Px(cy));
        s.PointerReleased(Px(cx), Px(cy), false);
    }

    ScriptedHost host;
    Session s{host};
};

TEST_F(Pointer, TheRightButtonOnlyReleases) {
    New();
    s.PointerPressed(B::Right, Px(3), Px(3));
    s.PointerMoved(Px(4), Px(3), false);
    EXPECT_EQ(Planes(s, 2, 2, 4, 3), "....\n....\n....\n");
    EXPECT_FALSE(s.Current().Changed);
    s.PointerReleased(Px(4), Px(3), false);  // one more snapshot of the same picture
    EXPECT_EQ(s.UndoCount(), 2);
    EXPECT_TRUE(s.Current().Changed);

    // A shape plots its last stored rectangle once more, in the present color.
    s.ClickTool(Tool::Rectangle);
    s.PointerPressed(B::Left, Px(1), Px(1));
    s.PointerMoved(Px(3), Px(3), false);
    s.PointerReleased(Px(3), Px(3), false);
    s.SetSelectedColor(kBlue);
    s.PointerPressed(B::Right, Px(8), Px(8));
    s.PointerMoved(Px(10), Px(9), false);
    s.PointerReleased(Px(10), Px(9), false);
    EXPECT_EQ(Planes(s, 0, 0, 5, 5), ".....\n.bbb.\n.b.b.\n.bbb.\n.....\n");
    EXPECT_EQ(Planes(s, 6, 6, 6, 5), "......\n......\n......\n......\n......\n");
    EXPECT_EQ(s.UndoCount(), 4);
}

TEST_F(Pointer, AReleaseOutsideTheIconStillRunsTheTool) {
    New();  // 16x16: the icon is the top left quarter of picDisp
    s.ClickTool(Tool::Line);
    s.PointerPressed(B::Left, Px(1), Px(1));
    s.PointerMoved(Px(4), Px(1), false);
    s.PointerMoved(300, 12, false);  // outside: the stored rectangle stays
    s.PointerReleased(300, 300, false);
    EXPECT_EQ(Planes(s, 0, 1, 6, 1), ".rrrr.\n");
    EXPECT_EQ(s.UndoCount(), 2);

    s.ClickTool(Tool::Paint);
    EXPECT_EQ(s.Form().SelectedTool, Tool::Paint);
    s.PointerPressed(B::Left, Px(0), Px(5));
    s.PointerReleased(192, 0, false);
    EXPECT_EQ(s.UndoCount(), 3);
}

// A Paint press at (x, y) and the nearest cell of the icon.
TEST_F(Pointer, WhereTheIconsPartEnds) {
    const struct {
        int entry, x, y;
        Cell nearest;
        bool inside;
    } cases[] = {
        {0, 383, 383, {31, 31}, true}, {2, 383, 383, {47, 47}, true},
        {1, 191, 191, {15, 15}, true}, {1, 192, 0, {15, 0}, false}, {1, 0, 192, {0, 15}, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.entry << " at " << c.x << "," << c.y);
        New(c.entry);
        s.PointerMoved(c.x, c.y, false);
        EXPECT_EQ(s.Form().Status.DispXY.empty(), !c.inside);
        s.PointerPressed(B::Left, c.x, c.y);
        EXPECT_EQ(Planes(s, c.nearest.x, c.nearest.y, 1, 1), c.inside ? "r\n" : ".\n");
        s.PointerReleased(c.x, c.y, false);
        s.Current().Changed = false;  // the next File New goes without a question
    }
}

TEST_F(Pointer, SelectingTools) {
    New();
    s.ClickTool(Tool::Line);
    EXPECT_EQ(s.Form().SelectedTool, Tool::Line);
    s.ClickTool(Tool::Oval);  // another tool replaces it
    EXPECT_EQ(s.Form().SelectedTool, Tool::Oval);
    s.ClickTool(Tool::Oval);  // a second click turns it off
    EXPECT_EQ(s.Form().SelectedTool, Tool::None);
    s.PointerPressed(B::Left, Px(2), Px(2));
    s.PointerReleased(Px(2), Px(2), false);
    EXPECT_EQ(s.UndoCount(), 1);

    s.ShowFrame(Frame::EffectsShades);
    s.ClickColorPicker();
    ASSERT_TRUE(s.Form().ColorPickerSelected);
    s.ClickTool(Tool::Paint);
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_EQ(s.Form().SelectedTool, Tool::Paint);
    EXPECT_FALSE(s.Form().ColorPickerSelected);
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(Pointer, WithNoIconToolClicksSaySoAndThePointerDoesNothing) {
    ASSERT_FALSE(s.InArea());
    host.Answer(host::MsgAnswer::Ok);
    host.Answer(host::MsgAnswer::Ok);
    s.ClickTool(Tool::Paint);
    s.ClickColorPicker();
    ASSERT_EQ(host.shown.size(), 2u);
    for (const auto& m : host.shown) {
        EXPECT_EQ(m.text, "No icon in Editing Area yet");
        EXPECT_EQ(m.title, "Vexlo");
    }
    EXPECT_EQ(s.Form().SelectedTool, Tool::None);
    EXPECT_FALSE(s.Form().ColorPickerSelected);
    s.PointerPressed(B::Left, 10, 10);
    s.PointerMoved(20, 20, false);
    s.PointerReleased(20, 20, false);
    EXPECT_EQ(s.UndoCount(), 0);
    EXPECT_EQ(host.shown.size(), 2u);
}

// Each Paint click is an undo step, and so is a whole drag; hovering paints nothing.
TEST_F(Pointer, PaintUndoSteps) {
    New();
    Click(1, 1);
    Click(2, 1);
    EXPECT_EQ(s.UndoCount(), 3);
    s.UndoStep();
    EXPECT_EQ(Planes(s, 0, 1, 4, 1), ".r..\n");
    s.UndoStep();
    EXPECT_EQ(Planes(s, 0, 1, 4, 1), "....\n");

    s.PointerMoved(Px(5), Px(5), false);
    s.PointerPressed(B::Left, Px(0), Px(0));
    for (int x : {1, 2, 3}) s.PointerMoved(Px(x), Px(x == 3 ? 1 : 0), false);
    s.PointerReleased(Px(3), Px(1), false);
    s.PointerMoved(Px(6), Px(0), false);
    EXPECT_EQ(Planes(s, 0, 0, 7, 2), "rrr....\n...r...\n");
    EXPECT_EQ(Planes(s, 5, 5, 1, 1), ".\n");
    EXPECT_EQ(s.UndoCount(), 2);
    s.UndoStep();
    EXPECT_EQ(Planes(s, 0, 0, 7, 2), ".......\n.......\n");
}

// The picker takes what picDisp shows, grid line included, and is no edit.
TEST_F(Pointer, TheColorPickerTakesTheDisplayedPixel) {
    New();
    s.Icon().Image().SetPixelV(1, 1, 0xFFFFFF);
    s.Icon().Mask().SetPixelV(1, 1, 0);
    s.ComposeIcon();
    s.MagnifyIcon();
    s.ClickColorPicker();
    s.PointerPressed(B::Left, 18, 18);
    EXPECT_EQ(s.SelectedColor(), kRed);
    s.PointerReleased(18, 18, false);  // inside cell (1, 1)
    EXPECT_EQ(s.SelectedColor(), 0xFFFFFFu);
    s.PointerReleased(12, 18, false);  // its left edge is a grid line
    EXPECT_EQ(s.SelectedColor(), tools::kGridLight);
    s.PointerReleased(30, 30, false);  // transparent cell (2, 2)
    EXPECT_EQ(s.SelectedColor(), session::kTransparentGray);
    EXPECT_EQ(s.UndoCount(), 1);
    EXPECT_FALSE(s.Current().Changed);
    EXPECT_TRUE(s.Form().ColorPickerSelected);
}

}  // namespace
}  // namespace vexlo::test
