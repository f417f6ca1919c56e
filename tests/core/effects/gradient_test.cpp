// The gradient pictures checked at chosen cells against values worked out by hand from the
// sweep, box and circle rules. The colors run from black to green N (N the ramp's length), so
// ramp entry k is exactly green k + 1 and a cell's color names the entry that drew it.
#include "core/effects/gradient.h"

#include <gtest/gtest.h>

#include <vector>

namespace vexlo::effects {
namespace {

using surface::Rgb;

constexpr Color Entry(int k) { return Rgb(0, k + 1, 0); }
constexpr Color kUntouched = 0xABCDEF;  // never an entry of these ramps

struct Cell {
    int X, Y, Entry;
};

struct LinearCase {
    int Side, Angle, Count;
    std::vector<Cell> Cells;
};

TEST(GradientLinear, CellsByAngleAndSize) {
    const LinearCase cases[] = {
        // Vertical rungs from the left; the slanted stroke after each rung takes the upper half.
        {32, 0, 96, {{0, 0, 1}, {0, 31, 0}, {16, 16, 33}, {16, 17, 32}, {31, 0, 63}, {31, 31, 62}}},
        {32, 360, 96, {{0, 0, 1}, {0, 31, 0}, {16, 16, 33}, {16, 17, 32}, {31, 0, 63}, {31, 31, 62}}},
        // Horizontal rungs from the bottom; the last rung is row 0, whole.
        {32, 90, 66, {{0, 0, 64}, {31, 0, 64}, {0, 31, 3}, {31, 31, 2}, {16, 16, 33}, {17, 16, 32}}},
        // From beyond the right edge (x = 47) leftward; column 0 is the last rung.
        {32, 180, 96, {{0, 0, 94}, {0, 31, 94}, {31, 0, 32}, {31, 31, 33}, {16, 16, 63}, {16, 15, 62}}},
        // From the top downward.
        {32, 270, 66, {{0, 0, 0}, {31, 0, 1}, {0, 31, 62}, {31, 31, 63}, {16, 16, 33}, {15, 16, 32}}},
        {48, 0, 142, {{0, 0, 1}, {0, 47, 0}, {47, 0, 95}, {47, 47, 94}, {24, 24, 49}, {24, 25, 48}}},
    };
    for (const LinearCase& c : cases) {
        SCOPED_TRACE(testing::Message() << c.Side << "x" << c.Side << " angle " << c.Angle);
        EXPECT_EQ(static_cast<int>(LinearSweepPoints(c.Side, c.Side, c.Angle).size()), c.Count);
        Surface s(c.Side, c.Side, 0xFFFFFF);
        DrawLinearGradient(s, c.Angle, 0x000000, Rgb(0, c.Count, 0));
        for (const Cell& cell : c.Cells)
            EXPECT_EQ(s.GetPixel(cell.X, cell.Y), Entry(cell.Entry)) << cell.X << "," << cell.Y;
    }
}

TEST(GradientLinear, SweepBandsByAngle) {
    const struct {
        int Angle;
        bool Wide;
        SweepStart Start;
    } cases[] = {
        {0, true, SweepStart::Bottom},    {0, false, SweepStart::Left},
        {90, true, SweepStart::Bottom},   {90, false, SweepStart::Left},
        {91, true, SweepStart::Bottom},   {91, false, SweepStart::Right},
        {180, true, SweepStart::Bottom},  {180, false, SweepStart::Right},
        {181, true, SweepStart::Top},     {181, false, SweepStart::Right},
        {270, true, SweepStart::Top},     {270, false, SweepStart::Right},
        {271, true, SweepStart::Top},     {271, false, SweepStart::Left},
        {360, true, SweepStart::Top},     {360, false, SweepStart::Left},
        {-1, false, SweepStart::Left},
    };
    for (const auto& c : cases)
        EXPECT_EQ(LinearSweepOf(c.Angle, c.Wide), c.Start) << c.Angle << " wide " << c.Wide;
}

TEST(GradientLinear, EveryAngleCoversEveryPixel) {
    for (int side : {16, 32, 48})
        for (int angle = 0; angle <= 360; ++angle) {
            Surface s(side, side, kUntouched);
            s.Fill(kUntouched);
            DrawLinearGradient(s, angle, 0x000000, 0xFFFFFF);
            int left = 0;
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x) left += s.GetPixel(x, y) == kUntouched;
            EXPECT_EQ(left, 0) << side << " angle " << angle;
        }
}

TEST(GradientLinear, TooSmallOrTurnedPoints) {
    EXPECT_TRUE(LinearSweepPoints(15, 32, 0).empty());
    EXPECT_TRUE(LinearSweepPoints(32, 15, 0).empty());
    EXPECT_EQ(LinearSweepPoints(16, 16, 0).size(), 52u);  // d = 25, columns 0..25

    const struct {
        GradientPoint Point;
        double Angle;
        GradientPoint Turned;
    } turns[] = {{{10, 5}, 90, {5, -10}}, {{10, 5}, 180, {-10, -5}}, {{10, 5}, 360, {10, 5}},
                 {{10, 0}, 45, {7, -7}},  {{3, 0}, 30, {3, -2}}};  // 2.598 -> 3, -1.5 -> -2
    for (const auto& t : turns) {
        GradientPoint p = t.Point;
        RotatePoint({0, 0}, p, t.Angle);
        EXPECT_EQ(p.X, t.Turned.X) << t.Angle;
        EXPECT_EQ(p.Y, t.Turned.Y) << t.Angle;
    }
}

TEST(GradientSquare, RingsTakeTheNextEntry) {
    const struct {
        int Side;
        std::vector<Cell> Cells;
    } cases[] = {
        {32, {{0, 0, 1}, {31, 31, 1}, {1, 5, 2}, {13, 16, 14}, {14, 16, 15}, {16, 16, 15}}},
        {48, {{0, 0, 1}, {47, 0, 1}, {21, 24, 22}, {22, 24, 23}, {24, 24, 23}}},
    };
    for (const auto& c : cases) {
        Surface s(c.Side, c.Side, 0xFFFFFF);
        DrawSquareGradient(s, 0x000000, Rgb(0, c.Side / 2, 0));
        for (const Cell& cell : c.Cells)
            EXPECT_EQ(s.GetPixel(cell.X, cell.Y), Entry(cell.Entry))
                << c.Side << ": " << cell.X << "," << cell.Y;
    }
}

TEST(GradientSpherical, RingCountAndCells) {
    const struct {
        int Side, X, Y, Count;
        std::vector<Cell> Cells;
    } cases[] = {
        {32, 16, 16, 24, {{16, 16, 0}, {31, 31, 21}, {31, 0, 22}, {0, 31, 22}}},
        {32, 0, 0, 45, {{0, 0, 0}, {31, 31, 44}}},
        {48, 24, 24, 35, {{24, 24, 0}, {47, 24, 23}, {0, 24, 24}, {0, 0, 34}, {47, 0, 33}, {0, 47, 33}}},
        {16, 8, 8, 13, {{8, 8, 0}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.Side << " at " << c.X << "," << c.Y);
        EXPECT_EQ(SphericalRingCount(c.Side, c.Side, c.X, c.Y), c.Count);
        Surface s(c.Side, c.Side, 0xFFFFFF);
        s.Fill(kUntouched);
        DrawSphericalGradient(s, c.X, c.Y, 0x000000, Rgb(0, c.Count, 0));
        for (const Cell& cell : c.Cells)
            EXPECT_EQ(s.GetPixel(cell.X, cell.Y), Entry(cell.Entry)) << cell.X << "," << cell.Y;
        // Cleared to the back color first; a cell that no circle reaches keeps it.
        for (int y = 0; y < c.Side; ++y)
            for (int x = 0; x < c.Side; ++x) ASSERT_NE(s.GetPixel(x, y), kUntouched);
    }
    // Centred on 32x32, the corner (0,0) at 22.6 lies outside circle 22 and inside circle 23.
    Surface s(32, 32, 0xFFFFFF);
    DrawSphericalGradient(s, 16, 16, 0x000000, Rgb(0, 24, 0));
    EXPECT_EQ(s.GetPixel(0, 0), 0xFFFFFFu);
    // So does the far corner of 48x48 at 32.5 from the middle: inside circle 33 without
    // a side outside it, and nowhere near circle 34.
    Surface big(48, 48, 0xFFFFFF);
    DrawSphericalGradient(big, 24, 24, 0x000000, Rgb(0, 35, 0));
    EXPECT_EQ(big.GetPixel(47, 47), 0xFFFFFFu);
}

TEST(GradientProceed, FillsUnpaintedCellsOnly) {
    const int side = 32;
    Surface image(side, side, 0xFFFFFF), mask(side, side, 0xFFFFFF);
    image.Fill(0x000000);
    mask.Fill(0xFFFFFF);  // all transparent
    image.SetPixelV(3, 4, 0x123456);  // painted
    mask.SetPixelV(3, 4, 0x000000);
    image.SetPixelV(5, 6, 0x000000);  // painted black
    mask.SetPixelV(5, 6, 0x000000);
    image.SetPixelV(7, 8, 0x00FF00);  // inverting: counts as unpainted
    EXPECT_TRUE(HasUnpaintedCell(mask));

    Surface picture(side, side, 0xFFFFFF);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) picture.SetPixelV(x, y, Rgb(x, y, 200));
    ProceedGradient(picture, image, mask);

    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            ASSERT_EQ(mask.GetPixel(x, y), 0x000000u) << x << "," << y;
            const Color want = x == 3 && y == 4 ? 0x123456 : x == 5 && y == 6 ? 0x000000
                                                                             : Rgb(x, y, 200);
            ASSERT_EQ(image.GetPixel(x, y), want) << x << "," << y;
        }
    EXPECT_FALSE(HasUnpaintedCell(mask));
    EXPECT_FALSE(HasUnpaintedCell(Surface()));
}

}  // namespace
}  // namespace vexlo::effects
