// RotatePicture against the quarter turns and mirrors worked out here cell by cell: a turn by
// 0 or 360 degrees is the identity, 90 the counterclockwise quarter turn, -90 and 270 the
// clockwise one, 180 both mirrors, each moved by the rounding of the centre (the centre is the
// pixel w / 2, not the middle between pixels). Also the bilinear read.
#include "core/effects/rotate_picture.h"

#include <gtest/gtest.h>

#include <functional>

namespace vexlo::effects {
namespace {

using surface::Rgb;

constexpr Color kFill = 0x123456;

// A square picture in which no two cells share a color and none is kFill.
Surface Numbered(int side) {
    Surface s(side, side, 0);
    for (int x = 0; x < side; ++x)
        for (int y = 0; y < side; ++y) s.SetPixelV(x, y, Rgb(x, y, 200));
    return s;
}

// The reference turns, as the lossless transforms compute them on a w x w picture:
// counterclockwise (x, y) -> (y, w-1-x), clockwise (x, y) -> (w-1-y, x), half turn both mirrors.
using Reference = std::function<Color(const Surface&, int, int)>;
const Reference kIdentity = [](const Surface& s, int x, int y) { return s.GetPixel(x, y); };
const Reference kLeft = [](const Surface& s, int x, int y) {
    return s.GetPixel(s.Width() - 1 - y, x);
};
const Reference kRight = [](const Surface& s, int x, int y) {
    return s.GetPixel(y, s.Width() - 1 - x);
};
const Reference kHalf = [](const Surface& s, int x, int y) {
    return s.GetPixel(s.Width() - 1 - x, s.Width() - 1 - y);
};

TEST(RotatePicture, WholeAndQuarterTurnsAreTheLosslessTransformsMovedByTheCentre) {
    // Target cell (x, y) holds the reference's cell (x - dx, y - dy), or the fill where that
    // lies outside the picture.
    const struct { double angle; const Reference* ref; int dx, dy; } cases[] = {
        {0, &kIdentity, 0, 0},  {360, &kIdentity, 0, 0}, {-360, &kIdentity, 0, 0},
        {90, &kLeft, 0, 1},     {-270, &kLeft, 0, 1},    {-90, &kRight, 1, 0},
        {270, &kRight, 1, 0},   {180, &kHalf, 1, 1},     {-180, &kHalf, 1, 1},
    };
    for (int side : {16, 32, 48}) {
        const Surface source = Numbered(side);
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::Message() << side << " at " << c.angle);
            Surface target(side, side, kFill);
            RotatePicture(source, target, c.angle);
            int wrong = 0;
            for (int x = 0; x < side; ++x)
                for (int y = 0; y < side; ++y) {
                    const int rx = x - c.dx, ry = y - c.dy;
                    const Color expected = source.Contains(rx, ry) ? (*c.ref)(source, rx, ry) : kFill;
                    if (target.GetPixel(x, y) != expected && ++wrong < 5)
                        ADD_FAILURE() << "cell " << x << "," << y;
                }
            EXPECT_EQ(wrong, 0);
        }
    }
}

// Three cells R, G, B in a row, turned by 90 degrees about the middle of a 5x5 target: the row
// becomes a column read from the bottom, so the picture turned counterclockwise.
TEST(RotatePicture, ARowBecomesAColumn) {
    Surface source(3, 1, 0);
    source.SetPixelV(0, 0, 0x0000FF);
    source.SetPixelV(1, 0, 0x00FF00);
    source.SetPixelV(2, 0, 0xFF0000);
    Surface target(5, 5, kFill);
    RotatePicture(source, target, 90);
    for (int x = 0; x < 5; ++x)
        for (int y = 0; y < 5; ++y) {
            const Color expected = x != 2          ? kFill
                                   : y == 1        ? 0xFF0000
                                   : y == 2        ? 0x00FF00
                                   : y == 3        ? 0x0000FF
                                                   : kFill;
            EXPECT_EQ(target.GetPixel(x, y), expected) << x << "," << y;
        }
}

// The key leaves the target's cells alone; so does a read outside the source. A centre given
// places the source's middle there.
TEST(RotatePicture, KeyCentreAndReadsOutsideTheSource) {
    Surface source(4, 4, 0x00FF00);
    source.SetPixelV(1, 1, 0xFFFFFF);
    Surface target(10, 10, kFill);
    RotateOptions options;
    options.UseKey = true;
    options.KeyColor = 0xFFFFFF;
    options.CenterX = 3;
    options.CenterY = 6;
    RotatePicture(source, target, 0, options);
    // Source (x, y) lands on (x - 2 + 3, y - 2 + 6).
    for (int x = 0; x < 10; ++x)
        for (int y = 0; y < 10; ++y) {
            const bool inside = x >= 1 && x <= 4 && y >= 4 && y <= 7;
            const bool keyed = x == 2 && y == 5;
            EXPECT_EQ(target.GetPixel(x, y), inside && !keyed ? 0x00FF00u : kFill) << x << "," << y;
        }
}

TEST(RotatePicture, MixColorsRoundsTiesToEven) {
    const struct { Color c1; double w1; Color c2; double w2; Color expected; } cases[] = {
        {0x000000, 0.25, 0x0000FF, 0.75, 0x000040},          // 63.75
        {0x000000, 0.5, Rgb(5, 3, 1), 0.5, Rgb(2, 2, 0)},    // 2.5, 1.5, 0.5
        {Rgb(10, 20, 30), 0, Rgb(200, 100, 0), 1, Rgb(10, 20, 30)},
        {Rgb(10, 20, 30), 1, Rgb(200, 100, 0), 0, Rgb(200, 100, 0)},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MixColors(c.c1, c.w1, c.c2, c.w2), c.expected) << c.w1;
}

TEST(RotatePicture, InterpolateBlendsTheFourNeighbours) {
    Surface s(2, 2, 0);
    s.SetPixelV(0, 0, 0x000000);
    s.SetPixelV(1, 0, 0xFFFFFF);
    s.SetPixelV(0, 1, 0x0000FF);
    s.SetPixelV(1, 1, 0x0000FF);
    const struct { double x, y; Color expected; } cases[] = {
        {0, 0, 0x000000},
        {0.5, 0, 0x808080},     // 127.5 rounds to 128
        {0.25, 0, 0x404040},    // 63.75
        {0.0005, 0, 0x000000},  // within 0.001 below a whole number: one column only
        {0, 0.5, 0x000080},     // red 127.5 -> 128 between black and red
        {1, 0.25, Rgb(255, 191, 191)},  // 191.25 between white and red
        {1.5, 0, 0xFFFFFF},     // the column right of the picture reads as white
    };
    for (const auto& c : cases)
        EXPECT_EQ(InterpolateXY(s, c.x, c.y), c.expected) << c.x << "," << c.y;
}

TEST(RotatePicture, AntiAliasWritesTheBlendAtTheExactPosition) {
    Surface source(16, 16, 0);
    for (int x = 0; x < 16; ++x)
        for (int y = 0; y < 16; ++y) source.SetPixelV(x, y, x < 8 ? 0x000000 : 0xFFFFFF);
    Surface sharp(16, 16, kFill), smooth(16, 16, kFill);
    RotatePicture(source, sharp, 30);
    RotateOptions options;
    options.AntiAlias = true;
    RotatePicture(source, smooth, 30, options);
    bool blended = false;
    for (int x = 0; x < 16; ++x)
        for (int y = 0; y < 16; ++y) {
            const Color a = sharp.GetPixel(x, y), b = smooth.GetPixel(x, y);
            EXPECT_TRUE(a == 0 || a == 0xFFFFFF || a == kFill);
            EXPECT_EQ(a == kFill, b == kFill);  // the same cells are written
            blended = blended || (b != 0 && b != 0xFFFFFF && b != kFill);
        }
    EXPECT_TRUE(blended);
}

}  // namespace
}  // namespace vexlo::effects
