#include "core/surface/surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace vexlo::surface {
namespace {

using Pic = std::vector<std::string>;
using Draw = std::function<void(Surface&, const Pen&, const Brush&)>;
constexpr Color kWhite = 0xFFFFFF, kA = 0x0000AA;
constexpr double kHalfPi = 1.5707963267948966;

// '#' black, '.' white, 'a' kA, '?' anything else.
Pic Render(const Surface& s) {
    Pic rows(static_cast<std::size_t>(s.Height()));
    for (int y = 0; y < s.Height(); ++y)
        for (int x = 0; x < s.Width(); ++x) {
            const Color c = s.GetPixel(x, y);
            const char ch = c == 0 ? '#' : c == kWhite ? '.' : c == kA ? 'a' : '?';
            rows[static_cast<std::size_t>(y)] += ch;
        }
    return rows;
}

Pic Rows(const std::string& spaced) {  // "ab cd" -> {"ab", "cd"}
    std::istringstream in(spaced);
    Pic rows;
    for (std::string row; in >> row;) rows.push_back(row);
    return rows;
}

// Black pen and kA fill on white, at the given width and fill style.
Pic Drawn(int w, int h, int width, int fillStyle, const Draw& draw) {
    Surface s(w, h, kWhite);
    draw(s, Pen{.Width = width}, Brush{fillStyle, kA});
    return Render(s);
}

// The tools' oval: the ellipse that fills the box between two corners, from 32-bit reals.
Draw Oval(int x1, int y1, int x2, int y2) {
    return [=](Surface& s, const Pen& pen, const Brush& brush) {
        const float dx = static_cast<float>(std::abs(x1 - x2));
        const float dy = static_cast<float>(std::abs(y1 - y2));
        s.Circle(x1 + (x2 - x1) / 2.0f, y1 + (y2 - y1) / 2.0f, std::max(dx, dy) / 2, 0, dy / dx,
                 pen, brush);
    };
}
Draw LineOf(int x1, int y1, int x2, int y2) {
    return [=](Surface& s, const Pen& pen, const Brush&) { s.Line(x1, y1, x2, y2, 0, pen); };
}
Draw ArcOf(double cx, double cy, double radius, double start, double end, double aspect = 1.0) {
    return [=](Surface& s, const Pen& pen, const Brush&) {
        s.CircleArc(cx, cy, radius, 0, start, end, aspect, pen);
    };
}
Draw BoxOf(int x1, int y1, int x2, int y2) {
    return [=](Surface& s, const Pen& pen, const Brush& brush) {
        s.Box(x1, y1, x2, y2, 0, pen, brush);
    };
}

TEST(PenShapes, Pictures) {
    struct Case { int w, h, width, fillStyle; Draw draw; std::string want; };
    const std::vector<Case> cases = {
        // Wide lines: both ends drawn and round; an even width lies half a pixel up and left.
        {8, 4, 2, 1, LineOf(1, 2, 6, 2), "........ #######. #######. ........"},
        {8, 5, 3, 1, LineOf(1, 2, 6, 2), "........ ######## ######## ######## ........"},
        {4, 6, 2, 1, LineOf(2, 1, 2, 4), ".##. .##. .##. .##. .##. ...."},
        {6, 6, 2, 1, LineOf(1, 1, 4, 4), "##.... ###... .###.. ..###. ...##. ......"},
        {7, 7, 3, 1, LineOf(1, 1, 5, 5), "###.... ####... #####.. .#####. ..##### ...#### ....###"},
        {4, 4, 2, 1, LineOf(2, 2, 2, 2), ".... .##. .##. ...."},
        {5, 5, 3, 1, LineOf(2, 2, 2, 2), "..... .###. .###. .###. ....."},
        {6, 6, 4, 1, LineOf(3, 3, 3, 3), "...... ..##.. .####. .####. ..##.. ......"},
        // Boxes: an even width grows inwards, an odd one about the edges; fill inside the pen.
        {6, 5, 1, 0, BoxOf(5, 4, 0, 0), "###### #aaaa# #aaaa# #aaaa# ######"},
        {6, 6, 2, 1, BoxOf(0, 0, 5, 5), "###### ###### ##..## ##..## ###### ######"},
        {6, 6, 2, 0, BoxOf(5, 5, 0, 0), "###### ###### ##aa## ##aa## ###### ######"},
        {7, 7, 3, 0, BoxOf(1, 1, 5, 5), "####### ####### ####### ###a### ####### ####### #######"},
        {8, 5, 4, 1, BoxOf(1, 1, 6, 6), ".######. ######## ######## ######## ########"},
        // Circles of radius 2 to 5 and ellipses touch the four sides of the tools' box.
        {5, 5, 1, 0, Oval(0, 0, 4, 4), ".###. #aaa# #aaa# #aaa# .###."},
        {7, 7, 1, 1, Oval(6, 6, 0, 0), "..###.. .#...#. #.....# #.....# #.....# .#...#. ..###.."},
        {9, 5, 1, 1, Oval(0, 0, 8, 8), "..#####.. .#.....#. #.......# #.......# #.......#"},
        {11, 6, 1, 1, Oval(0, 0, 10, 10),
         "...#####... ..#.....#.. .#.......#. #.........# #.........# #.........#"},
        {6, 6, 1, 1, Oval(0, 0, 5, 5), ".####. #....# #....# #....# #....# .####."},
        {9, 5, 1, 1, Oval(0, 0, 8, 4), "..#####.. ##.....## #.......# ##.....## ..#####.."},
        {11, 2, 1, 1, Oval(0, 0, 10, 1), "########### ###########"},
        // Width 2 stays inside the box (the Filled Oval's pen), width 3 is centred on the curve.
        {7, 7, 2, 0, Oval(0, 0, 6, 6), "..###.. .#####. ##aaa## ##aaa## ##aaa## .#####. ..###.."},
        {9, 4, 3, 1, Oval(1, 1, 7, 7), "..#####.. .#######. ######### ###...###"},
        // Aspect 0: a horizontal line of the pen's width.
        {13, 3, 3, 0, Oval(1, 1, 11, 1), "############# ############# #############"},
        // Dots at width 1 run counterclockwise from angle 0.
        {5, 5, 1, 1,
         [](Surface& s, Pen pen, const Brush& brush) {
             pen.Style = kDrawStyleDot;
             s.Circle(2, 2, 2, 0, 1.0, pen, brush);
         },
         "...#. ....# #...# #.... .#..."},
        // Arcs run counterclockwise on the screen, without their end angle; wide ones end round.
        {11, 6, 1, 0, ArcOf(5, 5, 5, 0, kHalfPi),
         "......##... ........#.. .........#. ..........# ..........# ..........#"},
        {13, 8, 3, 0, ArcOf(6, 6, 5, 0, kHalfPi),
         ".....####.... .....######.. .....#######. ........####. .........#### "
         "..........### ..........### ..........###"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Drawn(c.w, c.h, c.width, c.fillStyle, c.draw), Rows(c.want)) << c.want;
    }
}

TEST(PenShapes, WideLinesIgnoreDirectionAndDots) {
    for (int width : {2, 3, 4})
        for (auto [x1, y1, x2, y2] : {std::array{1, 1, 7, 3}, {2, 6, 5, 0}, {0, 4, 7, 4}}) {
            const Pic want = Drawn(9, 8, width, 1, LineOf(x1, y1, x2, y2));
            EXPECT_EQ(Drawn(9, 8, width, 1, LineOf(x2, y2, x1, y1)), want);
            const Draw dotted = [&](Surface& s, Pen pen, const Brush&) {
                pen.Style = kDrawStyleDot;
                s.Line(x1, y1, x2, y2, 0, pen);
            };
            EXPECT_EQ(Drawn(9, 8, width, 1, dotted), want);
        }
}

int On(const Pic& p, int x, int y) { return p[y][x] == '#'; }

TEST(PenEllipse, OvalsFillTheirBoxSymmetricallyAsClosedCurves) {
    for (int dx = 1; dx <= 12; ++dx)
        for (int dy = 0; dy <= 12; ++dy) {
            const Pic p = Drawn(dx + 5, dy + 5, 1, 1, Oval(2, 2, 2 + dx, 2 + dy));
            if (dy > 0) {  // aspect a and 1/a agree
                const Pic t = Drawn(dy + 5, dx + 5, 1, 1, Oval(2, 2, 2 + dy, 2 + dx));
                for (int y = 0; y < dy + 5; ++y)
                    for (int x = 0; x < dx + 5; ++x) EXPECT_EQ(p[y][x], t[x][y]);
            }
            int left = 99, right = -1, top = 99, bottom = -1, looseEnds = 0, blocks = 0;
            for (int y = 1; y < dy + 4; ++y)
                for (int x = 1; x < dx + 4; ++x) {
                    blocks += On(p, x, y) + On(p, x + 1, y) + On(p, x, y + 1) +
                                  On(p, x + 1, y + 1) == 4;
                    if (!On(p, x, y)) continue;
                    EXPECT_TRUE(On(p, dx + 4 - x, dy + 4 - y)) << dx << "x" << dy << " at " << x;
                    left = std::min(left, x), right = std::max(right, x);
                    top = std::min(top, y), bottom = std::max(bottom, y);
                    int n = -1;  // neighbours on the curve
                    for (int j = -1; j <= 1; ++j)
                        for (int i = -1; i <= 1; ++i) n += On(p, x + i, y + j);
                    looseEnds += n < 2;
                }
            EXPECT_EQ((std::array{left, right, top, bottom}), (std::array{2, 2 + dx, 2, 2 + dy}));
            // From 4 pixels across: no gap (a loose end) and no doubled stretch (a 2x2 block).
            EXPECT_EQ(dx >= 3 && dy >= 3 ? looseEnds : 0, 0) << dx << "x" << dy;
            EXPECT_EQ(dx >= 4 && dy >= 4 ? blocks : 0, 0) << dx << "x" << dy;
        }
}

TEST(PenEllipse, ArcsZeroToSixAndSixToZeroMakeTheWholeOutline) {
    for (int width : {1, 2, 3})
        for (auto [w, h] : {std::pair{10, 10}, {9, 9}, {10, 5}, {4, 9}, {10, 0}}) {
            const Pic whole = Drawn(16, 16, width, 1, Oval(3, 3, 3 + w, 3 + h));
            const float dx = static_cast<float>(w), dy = static_cast<float>(h);
            // A solid brush in Drawn, but arcs take no brush: never filled.
            const Pic arcs = Drawn(16, 16, width, 0, [&](Surface& s, const Pen& pen, const Brush&) {
                s.CircleArc(3 + dx / 2, 3 + dy / 2, std::max(dx, dy) / 2, 0, 0, 6, dy / dx, pen);
                s.CircleArc(3 + dx / 2, 3 + dy / 2, std::max(dx, dy) / 2, 0, 6, 0, dy / dx, pen);
            });
            EXPECT_EQ(arcs, whole) << "width " << width << " box " << w << "x" << h;
        }
}

// In invert mode each pixel is touched once: inverting white gives exactly the pixels that copy
// mode paints, and the same call again restores the Surface.
TEST(PenEllipse, InvertModeTouchesEachPixelOnceSoTwiceRestores) {
    const std::vector<std::pair<int, Draw>> shapes = {
        {1, Oval(1, 2, 12, 9)}, {2, Oval(1, 1, 12, 12)}, {3, Oval(3, 2, 9, 12)},
        {1, Oval(1, 5, 12, 5)}, {2, Oval(1, 5, 12, 5)}, {5, Oval(2, 2, 11, 10)},
        {2, ArcOf(6.5, 6, 5.5, 5, 1, 0.8)}, {1, BoxOf(2, 3, 10, 9)},
        {3, BoxOf(2, 3, 10, 9)}, {4, BoxOf(1, 1, 12, 4)}, {3, LineOf(1, 12, 11, 2)},
    };
    for (int style : {kDrawStyleSolid, kDrawStyleDot})
        for (const auto& [width, draw] : shapes) {
            const Draw styled = [&](Surface& s, Pen pen, Brush brush) {
                brush.Fill = 0;
                pen.Style = style;
                draw(s, pen, brush);
            };
            const Pic painted = Drawn(14, 14, width, 0, styled);
            Surface s(14, 14, kWhite);
            const Pen invert{.Width = width, .Mode = kDrawModeInvert};
            const Brush solid{.Style = 0};
            styled(s, invert, solid);
            EXPECT_EQ(Render(s), painted) << "width " << width << " style " << style;
            styled(s, invert, solid);
            EXPECT_EQ(Render(s), Render(Surface(14, 14, kWhite)));
        }
}

TEST(PenShapes, ClippedLikeAWindowOfALargerSurface) {
    using Moved = std::function<Draw(int)>;  // the shape moved by (o, o)
    const std::vector<std::pair<int, Moved>> shapes = {
        {1, [](int o) { return Oval(o - 4, o - 3, o + 5, o + 6); }},
        {2, [](int o) { return Oval(o + 3, o - 5, o + 12, o + 4); }},
        {3, [](int o) { return Oval(o - 2, o + 4, o + 9, o + 11); }},
        {4, [](int o) { return Oval(o - 6, o - 6, o + 14, o + 14); }},
        {3, [](int o) { return ArcOf(o, o + 7, 6, 4, 2); }},
        {3, [](int o) { return LineOf(o - 3, o + 2, o + 11, o + 9); }},
        {2, [](int o) { return BoxOf(o - 1, o - 1, o + 8, o + 8); }},
        {5, [](int o) { return BoxOf(o + 6, o + 2, o + 12, o + 12); }},
    };
    for (const auto& [width, moved] : shapes) {
        Pic window = Drawn(28, 28, width, 0, moved(10));
        window = Pic(window.begin() + 10, window.begin() + 18);
        for (std::string& row : window) row = row.substr(10, 8);
        const Pic small = Drawn(8, 8, width, 0, moved(0));
        EXPECT_EQ(small, window) << "width " << width;
    }
}

TEST(PenShapes, FarOffCoordinatesAreSafe) {
    Surface s(6, 6, kWhite);
    const Pen pen{.Width = 3};
    const Brush brush = SolidBrush(kA);
    s.Line(-2000000000, 3, 2000000000, 2, 0, pen);
    s.Circle(3, 3, 1e300, 0, 1e-300, pen, brush);
    s.Circle(1e18, -1e18, 5, 0, 1.0, pen, brush);
    s.CircleArc(3, 3, 1e9, 0, 1, 2, 1, pen);
    s.Circle(3, 3, NAN, 0, 1.0, pen, brush);
    // All inside, the pen far off.
    s.Box(-2147483647, -2147483647, 2147483647, 2147483647, 0, pen, brush);
    EXPECT_EQ(Render(s), Pic(6, "aaaaaa"));
}

}  // namespace
}  // namespace vexlo::surface
