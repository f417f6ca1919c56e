// The mirrors and quarter turns: exact pictures on odd and even sizes, each checked against a
// slow version that follows its formula one pixel at a time, and the identities.
#include <gtest/gtest.h>

#include <random>

#include "core/transform/flip_rotate.h"
#include "support/picture_grid.h"

namespace vexlo::test {
namespace {

using Rows = std::vector<std::string>;
using transform::FlippedHorizontal;
using transform::FlippedVertical;
using transform::RotatedLeft;
using transform::RotatedRight;

// The formulas, one GetPixel and one SetPixelV per pixel.
enum class Kind { FlipH, FlipV, Left, Right };

Surface Slow(const Surface& s, Kind kind) {
    const int w = s.Width(), h = s.Height();
    const bool turn = kind == Kind::Left || kind == Kind::Right;
    Surface out(turn ? h : w, turn ? w : h, s.BackColor());
    for (int x = 0; x < w; ++x) {
        for (int y = 0; y < h; ++y) {
            const Color p = s.GetPixel(x, y);
            switch (kind) {
                case Kind::FlipH: out.SetPixelV(w - 1 - x, y, p); break;
                case Kind::FlipV: out.SetPixelV(x, h - 1 - y, p); break;
                case Kind::Left: out.SetPixelV(y, w - 1 - x, p); break;
                case Kind::Right: out.SetPixelV(h - 1 - y, x, p); break;
            }
        }
    }
    return out;
}

Surface Fast(const Surface& s, Kind kind) {
    switch (kind) {
        case Kind::FlipH: return FlippedHorizontal(s);
        case Kind::FlipV: return FlippedVertical(s);
        case Kind::Left: return RotatedLeft(s);
        case Kind::Right: return RotatedRight(s);
    }
    return s;
}

Surface Noise(int w, int h, unsigned seed) {
    std::mt19937 rng(seed);
    Surface s(w, h, 0xFFFFFF);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) s.SetPixelV(x, y, rng() & 0xFFFFFF);
    return s;
}

// A picture 3 wide and 2 high whose every pixel differs, so that any misplaced one shows.
const Rows kOdd = {"rgb",
                   "ywk"};

TEST(FlipRotate, PicturesOfEachTransformOnAnOddSize) {
    const Surface s = PictureOf(kOdd);
    EXPECT_EQ(RowsOf(FlippedHorizontal(s)), (Rows{"bgr", "kwy"}));
    EXPECT_EQ(RowsOf(FlippedVertical(s)), (Rows{"ywk", "rgb"}));
    // Counterclockwise: the right column becomes the top row.
    EXPECT_EQ(RowsOf(RotatedLeft(s)), (Rows{"bk", "gw", "ry"}));
    // Clockwise: the left column, read upwards, becomes the top row.
    EXPECT_EQ(RowsOf(RotatedRight(s)), (Rows{"yr", "wg", "kb"}));
}

TEST(FlipRotate, AgreesWithTheFormulaOnManySizes) {
    const int sizes[][2] = {{1, 1}, {1, 7}, {7, 1}, {2, 3}, {5, 4}, {16, 16}, {33, 17}, {48, 48}};
    unsigned seed = 1;
    for (const auto& size : sizes) {
        const Surface s = Noise(size[0], size[1], seed++);
        for (Kind kind : {Kind::FlipH, Kind::FlipV, Kind::Left, Kind::Right}) {
            const Surface fast = Fast(s, kind);
            EXPECT_TRUE(SamePixels(fast, Slow(s, kind)))
                << size[0] << "x" << size[1] << " kind " << static_cast<int>(kind);
            EXPECT_EQ(fast.BackColor(), s.BackColor());
        }
    }
}

TEST(FlipRotate, TwoFlipsAndFourTurnsGiveTheOriginal) {
    for (const auto& size : {std::pair{5, 3}, std::pair{4, 4}, std::pair{32, 32}}) {
        const Surface s = Noise(size.first, size.second, 99);
        EXPECT_TRUE(SamePixels(FlippedHorizontal(FlippedHorizontal(s)), s));
        EXPECT_TRUE(SamePixels(FlippedVertical(FlippedVertical(s)), s));
        EXPECT_TRUE(SamePixels(RotatedLeft(RotatedLeft(RotatedLeft(RotatedLeft(s)))), s));
        EXPECT_TRUE(SamePixels(RotatedRight(RotatedRight(RotatedRight(RotatedRight(s)))), s));
        EXPECT_TRUE(SamePixels(RotatedRight(RotatedLeft(s)), s));
        // Two quarter turns are a half turn: both flips.
        EXPECT_TRUE(SamePixels(RotatedLeft(RotatedLeft(s)), FlippedVertical(FlippedHorizontal(s))));
    }
}

}  // namespace
}  // namespace vexlo::test
