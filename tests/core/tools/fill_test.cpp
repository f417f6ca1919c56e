// Fill, Replace Color and the flood under them, on small icons drawn as ASCII pictures.
#include "core/tools/fill.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vexlo::tools {
namespace {

using surface::kFloodFillBorder;
using surface::kFloodFillSurface;

constexpr Color kBlack = 0x000000, kWhite = 0xFFFFFF, kGray = 0xC0C0C0;
constexpr Color kRed = 0x0000FF, kBlue = 0xFF0000, kYellow = 0x00FFFF, kGreen = 0x00FF00;

// Pixel kinds by letter: picImage, picMask. 'i' is inverting: green over the gray gives
// the composed color 0xC03FC0.
struct Kind {
    char key;
    Color image, mask;
};
constexpr Kind kKinds[] = {
    {'.', kBlack, kWhite}, {'r', kRed, kBlack},    {'b', kBlue, kBlack},
    {'y', kYellow, kBlack}, {'g', kGray, kBlack},  {'i', kGreen, kWhite},
};
constexpr Color kInvertedGreen = 0xC03FC0;

struct Icon {
    Surface image, mask, composed;
};

Icon MakeIcon(const std::vector<std::string>& rows) {
    const int w = static_cast<int>(rows[0].size()), h = static_cast<int>(rows.size());
    Icon icon{Surface(w, h, kWhite), Surface(w, h, kWhite), Surface(w, h, kGray)};
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (const Kind& k : kKinds)
                if (k.key == rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]) {
                    icon.image.SetPixelV(x, y, k.image);
                    icon.mask.SetPixelV(x, y, k.mask);
                    icon.composed.SetPixelV(x, y, (kGray & k.mask) ^ k.image);  // ComposeIcon
                }
    return icon;
}

std::vector<std::string> Picture(const Icon& icon) {
    std::vector<std::string> rows;
    for (int y = 0; y < icon.image.Height(); ++y) {
        std::string row;
        for (int x = 0; x < icon.image.Width(); ++x) {
            char c = '?';
            for (const Kind& k : kKinds)
                if (icon.image.GetPixel(x, y) == k.image && icon.mask.GetPixel(x, y) == k.mask)
                    c = k.key;
            row += c;
        }
        rows.push_back(row);
    }
    return rows;
}

enum class Act { Fill, Replace };

struct ToolCase {
    const char* name;
    Act act;
    std::vector<std::string> before;
    int x, y;
    Color selected;
    bool shift;
    std::vector<std::string> after;  // empty: as before
};

TEST(FillAndReplace, ChangeThePixelsTheRulesName) {
    const ToolCase cases[] = {
        {"fill stops at other colors, an inverting pixel too", Act::Fill,
         {"rrrirr", "rrrirr", "bbbbbb", "......"}, 0, 0, kYellow, false,
         {"yyyirr", "yyyirr", "bbbbbb", "......"}},
        {"fill on transparent in 0xC0C0C0 changes nothing", Act::Fill,
         {"..rr..", "..g..."}, 0, 0, kGray, false, {}},
        {"transparent clicked: flood runs through painted gray, which keeps its color",
         Act::Fill, {"..g..b..", "..g..b.."}, 0, 0, kYellow, false,
         {"yygyyb..", "yygyyb.."}},
        {"painted gray clicked: grays joined through transparent take it, not the transparent",
         Act::Fill, {"..g.g.bg", "....g.bg"}, 2, 0, kYellow, false,
         {"..y.y.bg", "....y.bg"}},
        {"fill of an inverting area paints it", Act::Fill, {"iir", "i.r"}, 0, 1, kBlue, false,
         {"bbr", "b.r"}},
        {"shift on a transparent pixel changes nothing, not even the grays its area meets",
         Act::Fill, {"..gr", "..gr"}, 0, 0, kYellow, true, {}},
        {"shift clears the area and not its neighbours", Act::Fill, {"rrbb", "r.bb"}, 0, 0,
         kYellow, true, {"..bb", "..bb"}},
        {"shift with the selected color equal to the area's: flood in red", Act::Fill,
         {"bbrr", "bbrr"}, 1, 1, kBlue, true, {"..rr", "..rr"}},
        {"shift with red selected on red: flood in yellow", Act::Fill, {"rryy", "rryy"}, 0, 0,
         kRed, true, {"..yy", "..yy"}},
        {"shift runs through transparent and clears the painted grays it meets", Act::Fill,
         {"g.g.bg", "..g.bg"}, 0, 0, kRed, true, {"....bg", "....bg"}},
        // The flood color is chosen by picImage: green isn't the selected color, so the flood
        // paints the inverting area in its own composed color and nothing changes.
        {"shift on inverting, selected equal to its composed color: nothing", Act::Fill,
         {"ii", "ii"}, 0, 0, kInvertedGreen, true, {}},
        {"fill reaches one of two red areas", Act::Fill, {"rrbrr", "bbbbb", "rr.rr"}, 0, 0,
         kYellow, false, {"yybrr", "bbbbb", "rr.rr"}},
        {"replace reaches every red area", Act::Replace, {"rrbrr", "bbbbb", "rr.rr"}, 0, 0,
         kYellow, false, {"yybyy", "bbbbb", "yy.yy"}},
        {"replace by transparent", Act::Replace, {"rrbr", "r..r"}, 3, 1, kYellow, true,
         {"..b.", "...."}},
        {"replace gray, painted clicked: painted grays only", Act::Replace, {"g..g", "gb.."},
         0, 0, kYellow, false, {"y..y", "yb.."}},
        {"replace gray, transparent clicked: painted grays only", Act::Replace,
         {"g..g", "gb.."}, 1, 0, kYellow, false, {"y..y", "yb.."}},
        {"replace gray by transparent", Act::Replace, {"g.bg"}, 0, 0, kRed, true, {"..b."}},
        {"replace matches inverting pixels by their composed color", Act::Replace,
         {"i.", "ri"}, 1, 1, kBlue, false, {"b.", "rb"}},
        {"a cell outside the icon changes nothing", Act::Replace, {"rr"}, 2, 0, kBlue, false,
         {}},
    };
    for (const ToolCase& tc : cases) {
        Icon icon = MakeIcon(tc.before);
        if (tc.act == Act::Fill) {
            FillAt(icon.image, icon.mask, icon.composed, tc.x, tc.y, tc.selected, tc.shift);
        } else {
            ReplaceColorAt(icon.image, icon.mask, icon.composed, tc.x, tc.y, tc.selected,
                           tc.shift);
        }
        EXPECT_EQ(Picture(icon), tc.after.empty() ? tc.before : tc.after) << tc.name;
    }
}

// The flood itself.

std::size_t CountOf(const Surface& s, Color c) {
    std::size_t n = 0;
    for (int y = 0; y < s.Height(); ++y)
        for (int x = 0; x < s.Width(); ++x) n += s.GetPixel(x, y) == c;
    return n;
}

TEST(Flood, FillsAWhole48x48AreaAndRefusesAnyOtherStart) {
    Surface s(48, 48, kWhite);
    // The area's own color: it ends, and nothing changes.
    EXPECT_TRUE(ExtFloodFill(s, 0, 0, kWhite, kFloodFillSurface, kWhite));
    EXPECT_FALSE(ExtFloodFill(s, 1, 1, kBlue, kFloodFillSurface, kRed));
    EXPECT_FALSE(ExtFloodFill(s, 48, 0, kWhite, kFloodFillSurface, kRed));
    EXPECT_FALSE(ExtFloodFill(s, 0, -1, kWhite, kFloodFillSurface, kRed));
    EXPECT_TRUE(surface::FloodFillArea(s, 1, 1, kBlue, kFloodFillSurface).empty());
    EXPECT_EQ(CountOf(s, kWhite), 48u * 48u);
    EXPECT_TRUE(ExtFloodFill(s, 47, 47, kWhite, kFloodFillSurface, kRed));
    EXPECT_EQ(CountOf(s, kRed), 48u * 48u);
}

TEST(Flood, IsFourConnected) {
    // A checkerboard: no white pixel touches another by a side.
    Surface s(6, 6, kWhite);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 6; ++x)
            if ((x + y) % 2 != 0) s.SetPixelV(x, y, kBlack);
    EXPECT_TRUE(ExtFloodFill(s, 2, 2, kWhite, kFloodFillSurface, kRed));
    EXPECT_EQ(CountOf(s, kRed), 1u);
    EXPECT_EQ(s.GetPixel(2, 2), kRed);
}

// A spiral corridor of 1 pixel carved into black, from (0,0) inwards, arms one pixel apart.
Surface SpiralMaze(std::vector<std::pair<int, int>>& path) {
    Surface s(48, 48, kBlack);
    s.Fill(kBlack);
    const int steps[4][2] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    auto open = [&](int x, int y) { return s.Contains(x, y) && s.GetPixel(x, y) == kBlack; };
    auto clear = [&](int x, int y) { return !s.Contains(x, y) || s.GetPixel(x, y) == kBlack; };
    int x = 0, y = 0, dir = 0, turns = 0;
    s.SetPixelV(x, y, kWhite);
    path.push_back({x, y});
    while (turns < 2) {
        const int dx = steps[dir][0], dy = steps[dir][1];
        if (open(x + dx, y + dy) && clear(x + 2 * dx, y + 2 * dy)) {
            x += dx;
            y += dy;
            s.SetPixelV(x, y, kWhite);
            path.push_back({x, y});
            turns = 0;
        } else {
            dir = (dir + 1) % 4;
            ++turns;
        }
    }
    return s;
}

TEST(Flood, FollowsASpiralMazeToItsEnd) {
    std::vector<std::pair<int, int>> path;
    Surface maze = SpiralMaze(path);
    ASSERT_GT(path.size(), 1000u);
    EXPECT_TRUE(ExtFloodFill(maze, 0, 0, kWhite, kFloodFillSurface, kRed));
    EXPECT_EQ(CountOf(maze, kRed), path.size());
    EXPECT_EQ(maze.GetPixel(path.back().first, path.back().second), kRed);

    // Blocked half way, the inner half stays.
    path.clear();
    Surface blocked = SpiralMaze(path);
    const auto [bx, by] = path[path.size() / 2];
    blocked.SetPixelV(bx, by, kBlack);
    const std::vector<std::uint8_t> area =
        surface::FloodFillArea(blocked, 0, 0, kWhite, kFloodFillSurface);
    std::size_t inside = 0;
    for (const std::uint8_t a : area) inside += a;
    EXPECT_EQ(inside, path.size() / 2);
    EXPECT_EQ(area[static_cast<std::size_t>(path.back().second * 48 + path.back().first)], 0);
    EXPECT_EQ(CountOf(blocked, kWhite), path.size() - 1);  // the area query writes nothing
}

TEST(Flood, BorderModeFillsUpToTheBorderColor) {
    // A blue frame around mixed colors: the border fill from inside takes all of them.
    Surface s(6, 6, kWhite);
    s.Box(1, 1, 4, 4, kBlue);
    s.SetPixelV(2, 2, kYellow);
    EXPECT_TRUE(ExtFloodFill(s, 3, 3, kBlue, kFloodFillBorder, kRed));
    EXPECT_EQ(CountOf(s, kRed), 4u);
    EXPECT_EQ(CountOf(s, kBlue), 12u);
    EXPECT_EQ(CountOf(s, kWhite), 20u);
    EXPECT_FALSE(ExtFloodFill(s, 1, 1, kBlue, kFloodFillBorder, kRed));
}

}  // namespace
}  // namespace vexlo::tools
