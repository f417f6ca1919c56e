// Rotate at any angle on the planes: the size of the temporaries, the quarter turn of each icon
// size against the counterclockwise turn worked out here (moved by the rounding of the centre
// and of the crop), the transparent corners after 45 degrees, and the sample.
#include "core/effects/rotate_angle.h"

#include <gtest/gtest.h>

#include "core/icon/icon_colors.h"
#include "core/icon/icon_planes.h"

namespace vexlo::effects {
namespace {

using icon::kBlack;
using icon::kTransparentGray;
using icon::kWhite;
using surface::Rgb;

// Both planes of a square icon: a painted cell of its own color at every (x, y) with x + y odd,
// transparent cells elsewhere.
struct Planes {
    explicit Planes(int side) : image(side, side, kWhite), mask(side, side, kWhite) {
        for (int x = 0; x < side; ++x)
            for (int y = 0; y < side; ++y) {
                const bool painted = (x + y) % 2 == 1;
                image.SetPixelV(x, y, painted ? Rgb(x + 1, y + 1, 9) : kBlack);
                mask.SetPixelV(x, y, painted ? kBlack : kWhite);
            }
    }
    Surface image, mask;
};

TEST(RotateAngle, TemporariesHoldATurnedSquare) {
    EXPECT_EQ(RotateTempSide(16), 25);  // 24.63
    EXPECT_EQ(RotateTempSide(32), 47);  // 47.25
    EXPECT_EQ(RotateTempSide(48), 70);  // 69.88
    EXPECT_TRUE(IsWholeTurn(0) && IsWholeTurn(360) && IsWholeTurn(-360));
    EXPECT_FALSE(IsWholeTurn(1) || IsWholeTurn(180) || IsWholeTurn(-1));
    const auto entries = RotateAngleEntries();
    ASSERT_EQ(entries.size(), 721u);
    EXPECT_EQ(entries.front(), "-360");
    EXPECT_EQ(entries[360], "0");
    EXPECT_EQ(entries.back(), "360");
}

// Cell (x, y) after +90 holds the counterclockwise quarter turn's cell (x + dx, y + dy):
// 16 and 48 are one row lower, 32 one column further left (its crop offset 7.5 rounds to 8).
TEST(RotateAngle, QuarterTurnOfEachSize) {
    const struct { int side, dx, dy; } cases[] = {{16, 0, -1}, {32, 1, 0}, {48, 0, -1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.side);
        const Planes before(c.side);
        Planes after(c.side);
        ProceedRotate(90, after.image, after.mask);
        const int last = c.side - 1;
        for (int x = 0; x < c.side; ++x)
            for (int y = 0; y < c.side; ++y) {
                const int rx = x + c.dx, ry = y + c.dy;  // in the reference turn
                const bool inside = rx >= 0 && ry >= 0 && rx <= last && ry <= last;
                const Color image = inside ? before.image.GetPixel(last - ry, rx) : kBlack;
                const Color mask = inside ? before.mask.GetPixel(last - ry, rx) : kWhite;
                ASSERT_EQ(after.image.GetPixel(x, y), image) << x << "," << y;
                ASSERT_EQ(after.mask.GetPixel(x, y), mask) << x << "," << y;
            }
        const Surface drawn = after.image;
        after.image.Cls();  // the result is each plane's stored picture too
        EXPECT_TRUE(SamePixels(after.image, drawn));
    }
}

TEST(RotateAngle, MinusNinetyAndTwoSeventyAgree) {
    Planes a(32), b(32);
    ProceedRotate(-90, a.image, a.mask);
    ProceedRotate(270, b.image, b.mask);
    EXPECT_TRUE(SamePixels(a.image, b.image));
    EXPECT_TRUE(SamePixels(a.mask, b.mask));
}

// A 32x32 icon of one color turned by 45 degrees: the corners uncovered become transparent,
// the middle stays painted, and no cell is left half transparent.
TEST(RotateAngle, FortyFiveDegreesLeavesTransparentCorners) {
    Surface image(32, 32, 0x00FF00), mask(32, 32, kBlack);
    ProceedRotate(45, image, mask);
    for (const auto& [x, y] : {std::pair{0, 0}, {31, 0}, {0, 31}, {31, 31}, {3, 3}}) {
        EXPECT_EQ(image.GetPixel(x, y), kBlack) << x << "," << y;
        EXPECT_EQ(mask.GetPixel(x, y), kWhite) << x << "," << y;
    }
    for (const auto& [x, y] : {std::pair{16, 16}, {16, 1}, {1, 16}, {30, 16}}) {
        EXPECT_EQ(image.GetPixel(x, y), 0x00FF00u) << x << "," << y;
        EXPECT_EQ(mask.GetPixel(x, y), kBlack) << x << "," << y;
    }
    for (int x = 0; x < 32; ++x)
        for (int y = 0; y < 32; ++y)
            EXPECT_EQ(image.GetPixel(x, y) == kBlack, mask.GetPixel(x, y) == kWhite);
}

TEST(RotateAngle, RepeatedTurnsLosePixels) {
    Surface image(16, 16, 0x00FF00), mask(16, 16, kBlack);
    auto painted = [&] {
        int n = 0;
        for (int x = 0; x < 16; ++x)
            for (int y = 0; y < 16; ++y) n += mask.GetPixel(x, y) == kBlack;
        return n;
    };
    ProceedRotate(45, image, mask);
    const int once = painted();
    ProceedRotate(-45, image, mask);
    EXPECT_LT(once, 256);
    EXPECT_LT(painted(), 256);
}

// The sample: the turned image plane on gray, its middle 40x40 block. At 0 degrees a 16x16
// icon stands at (12, 12) (the crop offset (25 - 40) / 2 = -7.5 rounds to -8, and the turn
// puts the icon 4 cells into its 25x25 temporary), its black (transparent) cells left gray.
TEST(RotateAngle, SampleIsTheMiddleOfTheTurnedImagePlane) {
    const Planes icon(16);
    const Surface sample = RotateSample(icon.image, 0, false);
    ASSERT_EQ(sample.Width(), kRotateSampleSide);
    for (int x = 0; x < kRotateSampleSide; ++x)
        for (int y = 0; y < kRotateSampleSide; ++y) {
            const Color c = icon.image.GetPixel(x - 12, y - 12);
            const Color expected = c == surface::kInvalidColor || c == kBlack ? kTransparentGray : c;
            ASSERT_EQ(sample.GetPixel(x, y), expected) << x << "," << y;
        }
    Surface PicIcon(16, 16, kTransparentGray);
    icon::Compose(icon.image, icon.mask, PicIcon);
    const Surface opening = RotateSampleOpening(PicIcon);
    EXPECT_EQ(opening.GetPixel(1, 0), PicIcon.GetPixel(1, 0));
    EXPECT_EQ(opening.GetPixel(0, 0), kTransparentGray);
    EXPECT_EQ(opening.GetPixel(20, 20), kTransparentGray);
}

}  // namespace
}  // namespace vexlo::effects
