// Spotlight and MakeColorRamp. Whole 48x48 planes are compared with the hand-made pictures in
// tests/fixtures/spotlight (see the README there for how each was worked out).
#include "core/tools/spotlight.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace vexlo::tools {
namespace {

constexpr Color kBlack = 0x000000, kWhite = 0xFFFFFF, kGray = 0xC0C0C0, kRed = 0x0000FF;

TEST(Ramp, StepsFromTheFirstColorToTheSecondRoundingHalvesToEven) {
    const struct {
        const char* why;
        Color c1, c2;
        int n;
        std::vector<Color> want;
    } cases[] = {
        {"pale rings: red 192 + 5.75 i (203.5 -> 204, 226.5 -> 226), green and blue "
         "192 + 7.875 i (223.5 -> 224)",
         kGray, 0xFFFFEE, 8,
         {0xC8C8C6, 0xD0D0CC, 0xD8D8D1, 0xE0E0D7, 0xE7E7DD, 0xEFEFE2, 0xF7F7E8, 0xFFFFEE}},
        {"downwards: 127.5 -> 128", kWhite, kBlack, 2, {0x808080, kBlack}},
        {"each channel on its own", 0x0000FF, 0xFF0000, 3, {0x5500AA, 0xAA0055, 0xFF0000}},
        {"3 x float(1/6) is 0.5 in floats, so 0 (in doubles it is above: 1)", kBlack, 0x000001,
         6, {0, 0, 0, 1, 1, 1}},
        {"one entry is the second color", 0x123456, 0xABCDEF, 1, {0xABCDEF}},
        {"no entries", 0x123456, 0xABCDEF, 0, {}},
        {"no entries below 0", 0x123456, 0xABCDEF, -3, {}},
    };
    for (const auto& c : cases) EXPECT_EQ(MakeColorRamp(c.c1, c.c2, c.n), c.want) << c.why;
    // float(255/14) = 18.21428490; 7 x that is 127.4999924 in floats: 127, where the exact
    // 127.5 would round to 128.
    EXPECT_EQ(MakeColorRamp(kBlack, kWhite, 14)[6], 0x7F7F7Fu);
}

TEST(SpotlightBlend, ReadsTheTableByDistanceEitherSide) {
    const struct {
        int dx, dy, want;
    } cases[] = {{0, 0, 0},   {1, 0, 0},   {0, -1, 0},  {-1, -1, 10}, {2, 0, 10},  {-3, 2, 25},
                 {8, 0, 40},  {0, -8, 40}, {8, 4, 65},  {-4, 8, 65},  {7, -5, 60}, {-5, 7, 60},
                 {6, 6, 65},  {8, 8, 65},  {9, 0, 65},  {0, -12, 65}};
    for (const auto& c : cases)
        EXPECT_EQ(SpotlightBlend(20, 30, 20 + c.dx, 30 + c.dy), c.want) << c.dx << "," << c.dy;
}

TEST(SpotlightLimit, CutsADragBeyond15CellsTo16Cells) {
    // Press at cell (5, 5), the band from (44, 44) at MagnifyStep 8: its corner, before and after.
    const struct {
        int right, bottom, wantRight, wantBottom;
    } cases[] = {
        {164, 60, 164, 60},        // 15 cells across: kept
        {164, 164, 164, 164},      // 15 both ways: kept
        {165, 60, 164, 164},       // a pixel more across: 16 x 16 cells
        {52, 244, 164, 164},       // far down only
        {-196, -196, -196, -196},  // to the left and up: never
    };
    for (const auto& c : cases) {
        DispRect band{44, 44, c.right, c.bottom};
        CellRect shape{5, 5, (c.right - 4) / 8, (c.bottom - 4) / 8};
        SpotlightLimit(band, shape, 8);
        EXPECT_EQ((std::array{band.Right, band.Bottom, shape.Right, shape.Bottom}),
                  (std::array{c.wantRight, c.wantBottom, (c.wantRight - 4) / 8,
                              (c.wantBottom - 4) / 8}))
            << c.right << "," << c.bottom;
    }
}

// The planes of a 48x48 icon, its composed picture and the two scratch Surfaces.
struct Planes {
    Surface image{48, 48, kWhite}, mask{48, 48, kWhite}, icon{48, 48, kGray};
    Surface temp{48, 48, kWhite}, imageTemp{48, 48, kWhite};

    // All transparent, or all painted in `painted`; icon composed from the two.
    explicit Planes(const Color* painted = nullptr) {
        image.Fill(painted ? *painted : kBlack);
        mask.Fill(painted ? kBlack : kWhite);
        icon.Fill(painted ? *painted : kGray);
    }
    bool Plot(CellRect shape, Color selected, DrawState* state = nullptr, int* events = nullptr) {
        DrawState d;
        d.Shape = shape;
        const bool plotted = PlotSpotlight(image, mask, icon, temp, imageTemp, d, selected,
                                           [events] {
                                               if (events) ++*events;
                                           });
        if (state) *state = d;
        return plotted;
    }
};

// A fixture's picture rows (lines starting with '#' are notes).
std::vector<std::string> ReadFixture(const std::string& name) {
    std::ifstream in(std::string(VEXLO_FIXTURES_DIR) + "/spotlight/" + name);
    std::vector<std::string> rows;
    for (std::string line; std::getline(in, line);)
        if (!line.empty() && line[0] != '#') rows.push_back(line);
    return rows;
}

// How many pixels of `s` differ from what `want` gives for them.
template <class F>
int Wrong(const Surface& s, F want) {
    int wrong = 0;
    for (int y = 0; y < s.Height(); ++y)
        for (int x = 0; x < s.Width(); ++x) wrong += s.GetPixel(x, y) != want(x, y);
    return wrong;
}

TEST(Spotlight, PaintsTheSpotShapeEvenOnTransparentCells) {
    // Each drag goes through the size limit first, as in the pointer-moved event.
    const struct {
        const char* why;
        CellRect drag;
        const char* fixture;
        int originX, originY, pixels;
        double aspect;
    } cases[] = {
        {"a 3-cell drag is 9x9", {10, 20, 13, 23}, "mask_9.txt", 10, 20, 65, 1.0},
        {"to the left and up: 9x9 from the press cell", {20, 20, 12, 15}, "mask_9.txt", 20, 20,
         65, 0.625},
        {"a flat drag is 9x9 and keeps its aspect", {10, 20, 14, 21}, "mask_9.txt", 10, 20, 65,
         0.25},
        {"cut at the right and bottom edges", {42, 41, 45, 44}, "mask_9.txt", 42, 41, 65, 1.0},
        {"centre outside the icon", {44, 44, 47, 47}, "mask_9.txt", 44, 44, 65, 1.0},
        {"beyond 15 cells: 16x16", {5, 5, 30, 7}, "mask_16.txt", 5, 5, 240, 1.0},
    };
    for (const auto& c : cases) {
        const std::vector<std::string> shape = ReadFixture(c.fixture);
        ASSERT_FALSE(shape.empty()) << c.fixture;
        CellRect drag = c.drag;
        DispRect band{drag.Left * 8 + 4, drag.Top * 8 + 4, drag.Right * 8 + 4, drag.Bottom * 8 + 4};
        SpotlightLimit(band, drag, 8);
        Planes p;
        DrawState d;
        int events = 0;
        ASSERT_TRUE(p.Plot(drag, 0x204080, &d, &events)) << c.why;
        auto inSpot = [&](int x, int y) {
            const auto fx = static_cast<std::size_t>(x - c.originX);
            const auto fy = static_cast<std::size_t>(y - c.originY);
            return fy < shape.size() && fx < shape[fy].size() && shape[fy][fx] == 'X';
        };
        EXPECT_EQ(Wrong(p.mask, [&](int x, int y) { return inSpot(x, y) ? kBlack : kWhite; }), 0)
            << c.why;
        // Outside the spot the image is untouched; inside no pixel stays a transparent black.
        EXPECT_EQ(Wrong(p.image,
                        [&](int x, int y) {
                            const Color v = p.image.GetPixel(x, y);
                            return inSpot(x, y) ? (v == kBlack ? kWhite : v) : kBlack;
                        }),
                  0)
            << c.why;
        EXPECT_DOUBLE_EQ(d.OvalAspect, c.aspect) << c.why;
        EXPECT_EQ(events, c.pixels) << c.why;  // once per pixel of the spot, in the icon or not
    }
    // No horizontal extent: nothing.
    Planes p;
    EXPECT_FALSE(p.Plot({10, 20, 10, 30}, kRed));
    EXPECT_EQ(Wrong(p.mask, [](int, int) { return kWhite; }), 0);
}

TEST(Spotlight, WhiteOverAPaintedIconMatchesTheHandWorkedPicture) {
    const std::vector<std::string> rows = ReadFixture("black_white_9.txt");
    ASSERT_EQ(rows.size(), 9u);
    std::vector<std::vector<std::string>> tokens;
    for (const std::string& row : rows) {
        std::istringstream in(row);
        tokens.emplace_back();
        for (std::string t; in >> t;) tokens.back().push_back(t);
        ASSERT_EQ(tokens.back().size(), 9u) << row;
    }
    // Over black each channel is the listed level; over red (blue) the red (blue) channel
    // stays 255.
    const struct {
        Color background;
        Color (*color)(int level);
    } cases[] = {
        {kBlack, [](int v) { return surface::Rgb(v, v, v); }},
        {kRed, [](int v) { return surface::Rgb(255, v, v); }},
        {0xFF0000, [](int v) { return surface::Rgb(v, v, 255); }},
    };
    for (const auto& c : cases) {
        Planes p(&c.background);
        ASSERT_TRUE(p.Plot({10, 20, 13, 23}, kWhite));
        EXPECT_EQ(Wrong(p.image,
                        [&](int x, int y) {
                            const int fx = x - 10, fy = y - 20;
                            if (fx < 0 || fy < 0 || fx >= 9 || fy >= 9) return c.background;
                            const std::string& t = tokens[static_cast<std::size_t>(fy)]
                                                         [static_cast<std::size_t>(fx)];
                            return t == ".." ? c.background : c.color(std::stoi(t, nullptr, 16));
                        }),
                  0)
            << std::hex << c.background;
        EXPECT_EQ(Wrong(p.mask, [](int, int) { return kBlack; }), 0);
    }
}

TEST(Spotlight, BareGrayTakesTheRingColorTimes105AndTheHighlightIsTheFirstRampColor) {
    const Color selected = 0x204080;
    Planes gray, black(&kBlack);
    ASSERT_TRUE(gray.Plot({10, 20, 13, 23}, selected));
    ASSERT_TRUE(black.Plot({10, 20, 13, 23}, selected));
    // (14, 25) is at blend 0 and no highlight: over black it is the ring color itself.
    const Color ring = black.image.GetPixel(14, 25);
    ASSERT_NE(ring, kWhite);
    auto times105 = [](int v) { return std::min(255, static_cast<int>(std::lrint(1.05 * v))); };
    EXPECT_EQ(gray.image.GetPixel(14, 25),
              surface::Rgb(times105(surface::RedOf(ring)), times105(surface::GreenOf(ring)),
                           times105(surface::BlueOf(ring))));
    // MakeColorRamp(0x204080, white, 8)[0]: 128 + 15.875, 64 + 23.875, 32 + 27.875.
    const int highlight[6][2] = {{14, 24}, {13, 24}, {15, 24}, {15, 23}, {14, 23}, {12, 25}};
    for (const auto& h : highlight) {
        EXPECT_EQ(gray.image.GetPixel(h[0], h[1]), surface::Rgb(144, 88, 60));
        EXPECT_EQ(gray.mask.GetPixel(h[0], h[1]), kBlack);
    }
}

TEST(Spotlight, SamplesTheRingPictureAroundItsCentre) {
    // Black on an icon painted black, spot (10..18, 20..28) centred at (14, 24): the ring
    // picture is sampled at (x + 10, y) around its centre (24, 24). Ring i, element i of the
    // ramp 32, 64, 96, 128, 159, ..., is drawn at width 2: by the pen's rules (surface_ellipse.cpp)
    // it covers the distances above i - 1.5 up to i + 0.5, so the last ring over a pixel at
    // distance 1 is ring 2, at distance 2 ring 3.
    Planes p(&kBlack);
    ASSERT_TRUE(p.Plot({10, 20, 13, 23}, kBlack));
    EXPECT_EQ(p.image.GetPixel(14, 25), 0x606060u);  // blend 0, ring 2: 96
    EXPECT_EQ(p.image.GetPixel(16, 24), 0x737373u);  // blend 10, ring 3: 128 x 0.9 = 115.2

    // An odd size, (10..15, 20..25): offsets 24 - 2.5, so (12, 23) samples (23.5, 24.5), which
    // rounds to even (24, 24), the centre: ring 1 of 51, 102, ... (half up would give ring 2).
    Planes odd(&kBlack);
    ASSERT_TRUE(odd.Plot({10, 20, 15, 25}, kBlack));
    EXPECT_EQ(odd.image.GetPixel(12, 23), 0x666666u);
}

TEST(Spotlight, OnlyANearlyWhiteColorShowsThePaleRingsOnTheBareGray) {
    const std::vector<Color> pale = MakeColorRamp(kGray, 0xFFFFEE, 8);
    auto isPale = [&](Color c) { return std::find(pale.begin(), pale.end(), c) != pale.end(); };
    for (const Color selected : {Color{0xFFFFEF}, Color{0xFFFFEE}}) {
        Planes p;
        ASSERT_TRUE(p.Plot({10, 20, 13, 23}, selected));
        const Color highlight = MakeColorRamp(selected, kWhite, 8)[0];
        std::set<Color> shown;  // the colors of the spot but the highlight's
        for (int y = 20; y <= 28; ++y)
            for (int x = 10; x <= 18; ++x)
                if (p.mask.GetPixel(x, y) == kBlack && p.image.GetPixel(x, y) != highlight)
                    shown.insert(p.image.GetPixel(x, y));
        const auto paleShown = std::count_if(shown.begin(), shown.end(), isPale);
        if (selected == 0xFFFFEF) {
            EXPECT_EQ(static_cast<std::size_t>(paleShown), shown.size());
            EXPECT_GE(shown.size(), 3u);  // rings, not one color
        } else {
            EXPECT_EQ(paleShown, 0);
        }
    }
}

}  // namespace
}  // namespace vexlo::tools
