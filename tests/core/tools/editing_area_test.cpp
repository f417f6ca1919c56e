// The Editing Area's pictures: the grid in its four modes, the magnified icon, the Region
// outline and the readouts under the view.
#include "core/tools/editing_area.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/session/session.h"
#include "support/scripted_host.h"

namespace vexlo::tools {
namespace {

constexpr Color kWhite = 0xFFFFFF, kGray = 0xC0C0C0;

class EditingArea : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(session.Load(1024, 768)); }
    test::ScriptedHost host;
    session::Session session{host};
};

// The grid as the rules state it: lines at step..n*step (the end point of each left out), for
// 16x16 only over the top left quarter, with the quarter's own border lines.
Color ExpectedGrid(int iw, int step, Color mode, int x, int y) {
    const int last = (iw == 16 ? 16 : iw - 1) * step, end = iw == 16 ? 192 : 384;
    const bool border = iw == 16 && ((x == 192 && y < 192) || (y == 192 && x < 192));
    auto line = [&](int v) { return v % step == 0 && v >= step && v <= last; };
    if (mode == kGridLight || mode == kGridDark)
        return (line(x) && y < end) || (line(y) && x < end) ? mode : kWhite;
    if (mode == kGridDotted) return border ? kGridLight : line(x) && line(y) ? mode : kWhite;
    return border ? kGridForeColor : kWhite;
}

TEST_F(EditingArea, GridMatchesEveryModeAndSize) {
    const int steps[] = {12, 12, 8}, sides[] = {16, 32, 48};
    for (int k = 0; k < 3; ++k)
        for (Color mode : {kGridLight, kGridDark, kGridDotted, kGridNone}) {
            Surface grid = session.View().Grid();
            grid.Fill(0x123456);  // an earlier grid must not show through
            BuildGrid(grid, sides[k], steps[k], mode);
            int wrong = 0;
            for (int y = 0; y < kDispSide; ++y)
                for (int x = 0; x < kDispSide; ++x)
                    wrong += grid.GetPixel(x, y) != ExpectedGrid(sides[k], steps[k], mode, x, y);
            EXPECT_EQ(wrong, 0) << sides[k] << " mode " << std::hex << mode;
        }
}

TEST_F(EditingArea, SixteenBySixteenGridCornerAt192) {
    // x and y 190..194: '.' white, 'L' 0x606060, 'd' a dot, 'e' 0xE0E0E0.
    const struct {
        Color mode;
        std::vector<std::string> want;
    } cases[] = {
        {kGridLight, {"..L..", "..L..", "LL...", ".....", "....."}},
        {kGridDotted, {"..L..", "..L..", "LLd..", ".....", "....."}},
        {kGridNone, {"..e..", "..e..", "ee...", ".....", "....."}},
    };
    for (const auto& c : cases) {
        Surface grid = session.View().Grid();
        BuildGrid(grid, 16, 12, c.mode);
        std::vector<std::string> got(5);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 5; ++x) {
                const Color p = grid.GetPixel(190 + x, 190 + y);
                got[static_cast<std::size_t>(y)] += p == kWhite ? '.' : p == kGridLight ? 'L'
                                                  : p == kGridDotted ? 'd'
                                                  : p == kGridForeColor ? 'e' : '?';
            }
        EXPECT_EQ(got, c.want) << std::hex << c.mode;
    }
}

// Each icon pixel is a solid block, the grid ANDed over it except with no grid on a 32x32 or
// 48x48 icon (a probe grid shows whether it was); outside a 16x16 icon's quarter it is gray.
TEST_F(EditingArea, MagnifiedIconIsSolidBlocksUnderTheGrid) {
    const struct {
        int side, step;
        Color mode;
        bool overlaid;
    } cases[] = {{16, 12, kGridNone, true},  {16, 12, kGridDark, true},
                 {32, 12, kGridNone, false}, {32, 12, kGridLight, true},
                 {48, 8, kGridNone, false},  {48, 8, kGridDotted, true}};
    for (const auto& c : cases) {
        Surface icon(c.side, c.side, kGray);
        for (int y = 0; y < c.side; ++y)
            for (int x = 0; x < c.side; ++x) icon.SetPixelV(x, y, surface::Rgb(x * 5, y * 5, 9));
        Surface grid = session.View().Grid(), disp = session.View().Disp();
        BuildGrid(grid, c.side, c.step, c.mode);
        if (c.mode == kGridNone) grid.Fill(0x7F7F7F);
        disp.Fill(0x0000FF);  // what an earlier, larger icon left
        MagnifyInto(icon, grid, c.mode, disp);
        const int covered = c.side * c.step;
        int wrong = 0;
        for (int y = 0; y < kDispSide; ++y)
            for (int x = 0; x < kDispSide; ++x) {
                Color want = x < covered && y < covered ? icon.GetPixel(x / c.step, y / c.step)
                                                        : kGray;
                if (c.overlaid) want &= grid.GetPixel(x, y);
                wrong += disp.GetPixel(x, y) != want;
            }
        EXPECT_EQ(wrong, 0) << c.side << " mode " << std::hex << c.mode;
        const Surface shown = disp;
        disp.Fill(0);
        disp.Cls();  // the view is also the stored picture
        EXPECT_TRUE(SamePixels(disp, shown));
    }
}

TEST_F(EditingArea, RegionOutlineIsADottedInvertBoxThatUndoesItself) {
    const struct {
        int entry, sizeCode;
        DispRect rect;
    } cases[] = {
        {0, 2, {24, 36, 120, 96}},  {0, 2, {0, 0, 384, 384}}, {2, 3, {8, 8, 384, 200}},
        {1, 1, {12, 12, 192, 192}}, {1, 1, {0, 0, 300, 300}}, {1, 1, {96, 96, 384, 384}},
        {1, 1, {12, 24, 300, 96}},  {1, 1, {24, 12, 96, 250}},
    };
    for (const auto& c : cases) {
        const DispRect& q = c.rect;
        SCOPED_TRACE(::testing::Message() << c.sizeCode << ": " << q.Left << "," << q.Top << " "
                                          << q.Right << "," << q.Bottom);
        session.FileNew(c.entry);
        Surface disp = session.View().Disp();
        const Surface before = disp;
        DrawRegionOutline(disp, q, c.sizeCode);
        const int r = q.Right == 384 ? 383 : q.Right, b = q.Bottom == 384 ? 383 : q.Bottom;
        const int limit = c.sizeCode == 1 ? 192 : 383;  // the last column and row that show
        int stray = 0, seen[4] = {};                     // left, top, right, bottom
        for (int y = 0; y < kDispSide; ++y)
            for (int x = 0; x < kDispSide; ++x) {
                const Color was = before.GetPixel(x, y), now = disp.GetPixel(x, y);
                if (was == now) continue;
                const bool edge = x == q.Left || x == r || y == q.Top || y == b;
                stray += !edge || now != (was ^ kWhite) || x > limit || y > limit;
                seen[0] += x == q.Left, seen[1] += y == q.Top, seen[2] += x == r, seen[3] += y == b;
            }
        EXPECT_EQ(stray, 0);
        EXPECT_TRUE(seen[0] && seen[1]);
        EXPECT_EQ(seen[2] > 0, r <= limit);
        EXPECT_EQ(seen[3] > 0, b <= limit);
        for (int i = 0; i < 6; ++i)  // dotted: three pixels inverted, three left alone
            EXPECT_EQ(disp.GetPixel(q.Left + i, q.Top) !=
                          before.GetPixel(q.Left + i, q.Top), i < 3) << i;
        DrawRegionOutline(disp, q, c.sizeCode);
        EXPECT_TRUE(SamePixels(disp, before));
    }
}

TEST_F(EditingArea, Readouts) {
    const struct {
        CellRect cells;
        bool dragged;
        const char* want;
    } cases[] = {
        {{2, 3, 5, 7}, false, "Region: Start [2, 3]   W=4 H=5"},
        {{0, 0, 0, 1}, false, "Region: Start [0, 0]   W=1 H=2"},
        {{4, 4, 4, 4}, false, ""},
        {{2, 3, 5, 7}, true, ""},
    };
    for (const auto& c : cases) EXPECT_EQ(RegionMeasureText(c.cells, c.dragged), c.want);

    session.FileNew(2);  // 48x48: 8 pixels a cell
    session.PointerOverDisp(31, 59);
    EXPECT_EQ(session.Form().Status.DispXY, "X=3  Y=7");
}

}  // namespace
}  // namespace vexlo::tools
