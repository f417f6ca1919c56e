// What Paint, Erase and the shape tools leave in picImage and picMask, driven through the
// session's pointer events as the window drives them, with the planes drawn as ASCII pictures.
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/session/session.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using session::Session;
using surface::Color;
using tools::Tool;

constexpr Color kRed = 0x0000FF;
constexpr Color kGreen = 0x00FF00;

struct Cell {
    int x, y;
};

// The planes from (x0, y0), w x h, a line a row: '#' painted in the selected color, '.'
// transparent, 'i' inverting, 'o' painted in another color, '?' a mask that is neither.
std::string Planes(const Session& s, int x0, int y0, int w, int h) {
    std::string out;
    for (int y = y0; y < y0 + h; ++y) {
        for (int x = x0; x < x0 + w; ++x) {
            const Color i = s.Icon().Image().GetPixel(x, y), m = s.Icon().Mask().GetPixel(x, y);
            out += m == 0 ? (i == s.SelectedColor() ? '#' : 'o')
                 : m != 0xFFFFFF ? '?' : i == 0 ? '.' : 'i';
        }
        out += '\n';
    }
    return out;
}
std::string Pic(std::initializer_list<const char*> rows) {
    std::string out;
    for (const char* r : rows) out += std::string(r) + '\n';
    return out;
}

// A session with a new icon (16x16 unless told) and red as the selected color.
struct Editor {
    explicit Editor(int entry = 1) {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        s.FileNew(entry);
        s.SetSelectedColor(kRed);
    }
    int Px(int cell) const { return cell * s.View().MagnifyStep() + s.View().MagnifyStep() / 2; }
    void Use(Tool t, int brush) {
        if (s.Form().SelectedTool != t) s.ClickTool(t);
        s.ClickBrushSize(brush - 1);
    }
    // Press in cell a, move to b, release in b (or in the cell given).
    void Drag(Cell a, Cell b, bool modifier = false) { Drag(a, {{b, modifier}}, b); }
    void Drag(Cell a, const std::vector<std::pair<Cell, bool>>& moves, Cell release) {
        s.PointerPressed(Session::Button::Left, Px(a.x), Px(a.y));
        for (const auto& [c, modifier] : moves) s.PointerMoved(Px(c.x), Px(c.y), modifier);
        s.PointerReleased(Px(release.x), Px(release.y), false);
    }
    ScriptedHost host;
    Session s{host};
};

TEST(Plots, PaintAndEraseBrushSquareGrowsRightAndDownAndIsCutAtTheEdge) {
    const struct {
        Tool tool;
        int brush;
        Cell cell;
        int x0, y0, w, h;
        std::string picture;
    } cases[] = {
        {Tool::Paint, 1, {13, 13}, 12, 12, 4, 4, Pic({"....", ".#..", "....", "...."})},
        {Tool::Paint, 2, {13, 13}, 12, 12, 4, 4, Pic({"....", ".##.", ".##.", "...."})},
        {Tool::Paint, 3, {13, 13}, 12, 12, 4, 4, Pic({"....", ".###", ".###", ".###"})},
        {Tool::Paint, 6, {13, 13}, 12, 12, 4, 4, Pic({"....", ".###", ".###", ".###"})},
        {Tool::Paint, 6, {15, 15}, 12, 12, 4, 4, Pic({"....", "....", "....", "...#"})},
        {Tool::Paint, 3, {15, 4}, 13, 3, 3, 5, Pic({"...", "..#", "..#", "..#", "..."})},
        {Tool::Paint, 4, {0, 0}, 0, 0, 5, 5,
         Pic({"####.", "####.", "####.", "####.", "....."})},
        // Over a wholly painted icon Erase leaves transparent pixels.
        {Tool::Erase, 1, {13, 13}, 12, 12, 4, 4, Pic({"####", "#.##", "####", "####"})},
        {Tool::Erase, 5, {14, 12}, 12, 11, 4, 5, Pic({"####", "##..", "##..", "##..", "##.."})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << tools::ToolTooltip(c.tool) << ", brush " << c.brush
                                          << " at " << c.cell.x << "," << c.cell.y);
        Editor e;
        if (c.tool == Tool::Erase) {
            e.s.Icon().Image().Fill(kRed);
            e.s.Icon().Mask().Fill(0);
        }
        e.Use(c.tool, c.brush);
        e.Drag(c.cell, {}, c.cell);
        EXPECT_EQ(Planes(e.s, c.x0, c.y0, c.w, c.h), c.picture);
    }
}

TEST(Plots, LineToItselfAndBrokenLine) {
    const struct {
        Tool tool;
        int brush;
        Cell from, to;
        std::string picture;  // from (1, 2)
    } cases[] = {
        {Tool::Line, 1, {5, 5}, {5, 5}, Pic({"......", "......", "......", "....#.", "......"})},
        // Nothing but the pen's dot of width 2: the 2x2 block up and left of the point.
        {Tool::Line, 2, {5, 5}, {5, 5}, Pic({"......", "......", "...##.", "...##.", "......"})},
        {Tool::Line, 3, {5, 5}, {5, 5}, Pic({"......", "......", "...###", "...###", "...###"})},
        // One pixel wide whatever the brush, dotted from the press point, no end pixel.
        {Tool::BrokenLine, 6, {2, 3}, {11, 3},
         Pic({"............", ".###...###..", "............"})},
        {Tool::BrokenLine, 6, {11, 3}, {2, 3},
         Pic({"............", "..###...###.", "............"})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << tools::ToolTooltip(c.tool) << ", brush " << c.brush
                                          << " from " << c.from.x);
        Editor e;
        e.Use(c.tool, c.brush);
        e.Drag(c.from, c.to);
        const int w = static_cast<int>(c.picture.find('\n'));
        const int h = static_cast<int>(c.picture.size()) / (w + 1);
        EXPECT_EQ(Planes(e.s, 1, 2, w, h), c.picture);
    }
}

// Eight lines of three cells from the middle cell (7, 7), each pressed in the middle.
TEST(Plots, LinesInEightDirections) {
    const Cell ends[] = {{10, 7}, {10, 4}, {7, 4}, {4, 4}, {4, 7}, {4, 10}, {7, 10}, {10, 10}};
    const struct {
        int brush;
        std::string picture;
    } cases[] = {
        // The pen leaves out the end point; a one-pixel line gets it back.
        {1, Pic({"..........", "..........", "..#..#..#.", "...#.#.#..", "....###...",
                 "..#######.", "....###...", "...#.#.#..", "..#..#..#.", ".........."})},
        // Width 2 runs half a pixel up and left of the cells' centres, round at both ends.
        {2, Pic({"..........", ".##.##.##.", ".########.", "..######..", ".########.",
                 ".########.", "..######..", ".########.", ".##.##.##.", ".........."})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.brush);
        Editor e;
        e.Use(Tool::Line, c.brush);
        for (const Cell& end : ends) e.Drag({7, 7}, end);
        EXPECT_EQ(Planes(e.s, 2, 2, 10, 10), c.picture);
        EXPECT_EQ(e.s.UndoCount(), 9);
    }
}

// Boxes include both corners (2, 2) and (8, 6), and ovals fill the rectangle between them,
// whichever corner the drag starts from.
TEST(Plots, BoxesAndOvalsSpanTheirCornersInEveryDragDirection) {
    const struct {
        Tool tool;
        std::string picture;
    } shapes[] = {
        {Tool::Rectangle, Pic({".........", ".#######.", ".#.....#.", ".#.....#.", ".#.....#.",
                               ".#######.", "........."})},
        {Tool::FilledRectangle, Pic({".........", ".#######.", ".#######.", ".#######.",
                                     ".#######.", ".#######.", "........."})},
        {Tool::Oval, Pic({".........", "..#####..", ".#.....#.", ".#.....#.", ".#.....#.",
                          "..#####..", "........."})},
        {Tool::FilledOval, Pic({".........", "..#####..", ".#######.", ".#######.", ".#######.",
                                "..#####..", "........."})},
    };
    const Cell drags[][2] = {
        {{2, 2}, {8, 6}}, {{8, 6}, {2, 2}}, {{2, 6}, {8, 2}}, {{8, 2}, {2, 6}}};
    for (const auto& c : shapes) {
        for (const auto& d : drags) {
            SCOPED_TRACE(::testing::Message() << tools::ToolTooltip(c.tool) << ", from "
                                              << d[0].x << "," << d[0].y);
            Editor e;
            e.Use(c.tool, 1);
            e.Drag(d[0], d[1]);
            EXPECT_EQ(Planes(e.s, 1, 1, 9, 7), c.picture);
        }
    }
}

TEST(Plots, AnOvalWithNoHorizontalExtentPlotsNothingButIsStillAnUndoStep) {
    for (Tool tool : {Tool::Oval, Tool::FilledOval}) {
        SCOPED_TRACE(tools::ToolTooltip(tool));
        Editor e;
        const std::string empty = Planes(e.s, 0, 0, 16, 16);
        e.Use(tool, 3);
        e.Drag({4, 2}, {4, 9});
        EXPECT_EQ(Planes(e.s, 0, 0, 16, 16), empty);
        EXPECT_EQ(e.s.UndoCount(), 2);
        EXPECT_TRUE(e.s.Current().Changed);
    }
}

// The rectangle of painted pixels as "left,top-right,bottom".
std::string PaintedBox(const Session& s) {
    int l = 99, t = 99, r = -1, b = -1;
    for (int y = 0; y < s.Icon().Mask().Height(); ++y) {
        for (int x = 0; x < s.Icon().Mask().Width(); ++x) {
            if (s.Icon().Mask().GetPixel(x, y) != 0) continue;
            l = std::min(l, x), t = std::min(t, y), r = std::max(r, x), b = std::max(b, y);
        }
    }
    return r < 0 ? "none" : std::to_string(l) + "," + std::to_string(t) + "-" +
                                std::to_string(r) + "," + std::to_string(b);
}

// A modifier key squares the rectangle on each move; the release, always in cell (0, 0) here,
// neither squares nor moves it.
TEST(Plots, ModifierSquaresAreDecidedByTheLastMove) {
    using Moves = std::vector<std::pair<Cell, bool>>;
    const struct {
        Tool tool;
        Cell press;
        Moves moves;
        std::string box;
    } cases[] = {
        // Past the bottom edge: the largest square that fits both ways.
        {Tool::FilledRectangle, {10, 4}, {{{15, 15}, true}}, "10,4-15,9"},
        {Tool::FilledRectangle, {2, 2}, {{{9, 6}, true}}, "2,2-9,9"},
        {Tool::FilledRectangle, {2, 2}, {{{9, 6}, true}, {{9, 6}, false}}, "2,2-9,6"},
        {Tool::FilledRectangle, {2, 2}, {{{9, 6}, false}, {{9, 6}, true}}, "2,2-9,9"},
        {Tool::FilledRectangle, {9, 9}, {{{2, 6}, true}}, "2,2-9,9"},
        // No lower limit: the square runs left of the icon and is cut by its edge.
        {Tool::FilledRectangle, {3, 10}, {{{0, 15}, true}}, "0,10-3,15"},
        // A purely horizontal or vertical drag stays straight.
        {Tool::Line, {2, 5}, {{{9, 5}, true}}, "2,5-9,5"},
        {Tool::Line, {5, 9}, {{{5, 3}, true}}, "5,3-5,9"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.press.x << "," << c.press.y << " -> " << c.box);
        Editor e;
        e.Use(c.tool, 1);
        e.Drag(c.press, c.moves, {0, 0});
        EXPECT_EQ(PaintedBox(e.s), c.box);
    }
}

TEST(Plots, SnapCoordinate) {
    const struct {
        int v, step, mode, snapped;
    } cases[] = {
        {5, 12, 2, 0}, {6, 12, 2, 12}, {18, 12, 2, 24}, {3, 8, 2, 0}, {4, 8, 2, 8},
        {0, 12, 1, 6}, {11, 12, 1, 6}, {12, 12, 1, 18}, {15, 8, 1, 12}, {16, 8, 1, 20},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(tools::SnapCoordinate(c.v, c.step, c.mode), c.snapped)
            << c.v << " step " << c.step << " mode " << c.mode;
    }
}

// Left half transparent, right half inverting (green in the image, white in the mask). Every
// shape turns what it covers into pixels painted in the selected color in both planes, and
// leaves the rest as it was.
TEST(Plots, ShapesPaintOverTransparentAndInvertingPixels) {
    const Tool shapes[] = {Tool::Line, Tool::BrokenLine, Tool::Rectangle,
                           Tool::FilledRectangle, Tool::Oval, Tool::FilledOval};
    for (Tool tool : shapes) {
        for (int brush : {1, 2, 3, 6}) {
            SCOPED_TRACE(::testing::Message() << tools::ToolTooltip(tool) << ", brush " << brush);
            Editor e;
            e.s.Icon().Image().FillBox(8, 0, 15, 15, kGreen);
            e.s.ComposeIcon();
            const std::string before = Planes(e.s, 0, 0, 16, 16);
            e.Use(tool, brush);
            e.Drag({3, 3}, {12, 10});
            // Any pixel that is neither painted in the selected color nor as it was shows as '!'.
            std::string after = Planes(e.s, 0, 0, 16, 16);
            int painted = 0;
            for (std::size_t k = 0; k < after.size(); ++k) {
                if (after[k] == '#') ++painted;
                else if (after[k] != before[k]) after[k] = '!';
            }
            EXPECT_EQ(after.find('!'), std::string::npos) << after;
            EXPECT_GT(painted, 0);
        }
    }
}

}  // namespace
}  // namespace vexlo::test
