#include "core/surface/surface.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexlo::surface {
namespace {

using Pic = std::vector<std::string>;
constexpr Color kWhite = 0xFFFFFF, kA = 0x0000AA, kB = 0x00BB00, kC = 0xCC0000;

// '#' black, '.' white, 'a' 'b' 'c' for kA kB kC, '?' anything else.
Pic Render(const Surface& s) {
    Pic rows(static_cast<std::size_t>(s.Height()));
    for (int y = 0; y < s.Height(); ++y)
        for (int x = 0; x < s.Width(); ++x) {
            const Color c = s.GetPixel(x, y);
            rows[static_cast<std::size_t>(y)] += c == 0 ? '#' : c == kWhite ? '.' : c == kA ? 'a'
                                               : c == kB ? 'b' : c == kC ? 'c' : '?';
        }
    return rows;
}

struct Shape {
    int x1, y1, x2, y2;
    Pic want;
};

TEST(SurfaceDraw, LineLeavesOutItsEndPointAndRoundsTiesTowardsTheStart) {
    const std::vector<Shape> cases = {
        // The eight directions from (2,2).
        {2, 2, 4, 2, {"....", "....", "..##", "...."}},
        {2, 2, 0, 2, {"....", "....", ".##.", "...."}},
        {2, 2, 2, 4, {"....", "....", "..#.", "..#."}},
        {2, 2, 2, 0, {"....", "..#.", "..#.", "...."}},
        {2, 2, 4, 4, {"....", "....", "..#.", "...#"}},
        {2, 2, 0, 0, {"....", ".#..", "..#.", "...."}},
        {2, 2, 4, 0, {"....", "...#", "..#.", "...."}},
        {2, 2, 0, 4, {"....", "....", "..#.", ".#.."}},
        // Slope 1/2: the half-way pixels stay on the start's row, from either end.
        {0, 0, 4, 2, {"##..", "..##", "....", "...."}},
        {4, 2, 0, 0, {"....", ".##.", "...#", "...."}},
        {0, 0, 1, 3, {"#...", "#...", ".#..", "...."}},
        {-3, 1, 9, 1, {"....", "####", "....", "...."}},  // clipped
        {3, 3, 3, 3, {"....", "....", "....", "...."}},  // a point draws nothing
    };
    for (const Shape& c : cases) {
        Surface s(4, 4, kWhite);
        s.Line(c.x1, c.y1, c.x2, c.y2, 0);
        EXPECT_EQ(Render(s), c.want) << c.x1 << "," << c.y1 << " -> " << c.x2 << "," << c.y2;
    }
    Surface dots(9, 1, kWhite);
    dots.Fill(kA);
    dots.Line(0, 0, 8, 0, 0, Pen{.Style = kDrawStyleDot});
    EXPECT_EQ(Render(dots), Pic{"###aaa##a"});  // gaps untouched
}

TEST(SurfaceDraw, BoxTouchesEachOutlinePixelOnce) {
    // Inverted on white, a pixel turns black only if touched an odd number of times.
    const std::vector<Shape> cases = {
        {3, 2, 0, 0, {"####.", "#..#.", "####.", "....."}},
        {0, 3, 4, 0, {"#####", "#...#", "#...#", "#####"}},
        {1, 1, 3, 1, {".....", ".###.", ".....", "....."}},
        {2, 3, 2, 0, {"..#..", "..#..", "..#..", "..#.."}},
        {2, 2, 2, 2, {".....", ".....", "..#..", "....."}},
        {-1, 1, 3, 7, {".....", "####.", "...#.", "...#."}},
    };
    for (const Shape& c : cases) {
        Surface s(5, 4, kWhite);
        const Pen invert{.Mode = kDrawModeInvert};
        s.Box(c.x1, c.y1, c.x2, c.y2, kA, invert);
        EXPECT_EQ(Render(s), c.want) << c.x1 << "," << c.y1 << " " << c.x2 << "," << c.y2;
        s.Box(c.x1, c.y1, c.x2, c.y2, 0, invert);
        EXPECT_EQ(Render(s), Render(Surface(5, 4, kWhite)));
    }
}

TEST(SurfaceDraw, DottedBoxPatternRunsOnAroundTheCorners) {
    Surface s(5, 5, kWhite);
    s.Box(0, 0, 4, 4, kA, kDottedInvertPen);
    EXPECT_EQ(Render(s), (Pic{"###..", ".....", "#...#", "#...#", "#...#"}));
    s.Box(0, 0, 4, 4, kA, kDottedInvertPen);
    EXPECT_EQ(Render(s), Render(Surface(5, 5, kWhite)));
}

TEST(SurfaceDraw, FillBoxIncludesBothCornersAndClips) {
    const std::vector<Shape> cases = {
        {3, 2, 1, 1, {".....", ".###.", ".###."}},  {6, -2, 2, 1, {"..###", "..###", "....."}},
        {-9, 9, 9, -9, {"#####", "#####", "#####"}}, {5, 0, 7, 3, {".....", ".....", "....."}},
    };
    for (const Shape& c : cases) {
        Surface s(5, 3, kWhite);
        s.FillBox(c.x1, c.y1, c.x2, c.y2, 0);
        EXPECT_EQ(Render(s), c.want) << c.x1 << "," << c.y1 << " " << c.x2 << "," << c.y2;
    }
}

TEST(SurfaceState, PixelsOutsideReadInvalid) {
    Surface s(3, 2, kWhite);
    for (auto [x, y] : {std::pair{-1, 0}, {0, -1}, {3, 0}, {0, 2}}) {
        EXPECT_EQ(s.GetPixel(x, y), kInvalidColor) << x << "," << y;
        EXPECT_FALSE(s.SetPixelV(x, y, 0));
    }
}

TEST(SurfaceState, ClsStoredPictureAndResize) {
    Surface s(3, 1, kB);
    s.SetPixelV(0, 0, kA);
    s.Cls();  // nothing stored: the back color
    EXPECT_EQ(Render(s), Pic{"bbb"});
    s.SetPixelV(1, 0, kA);
    s.StorePicture();
    s.Fill(kC);  // keeps the stored picture
    s.Cls();
    EXPECT_EQ(Render(s), Pic{"bab"});
    s.Clear();
    s.SetPixelV(2, 0, kA);
    s.Cls();
    EXPECT_EQ(Render(s), Pic{"bbb"});

    s.Fill(kA);
    s.StorePicture();
    ResizeSurface(s, 2, 2);
    EXPECT_FALSE(s.HasStoredPicture());
    EXPECT_EQ(Render(s), (Pic{"bb", "bb"}));
    Surface other(4, 1, kC);
    other.StorePicture();
    MakeSameSize(s, other);
    EXPECT_EQ(Render(other), (Pic{"cc", "cc"}));
    EXPECT_FALSE(other.HasStoredPicture());
}

TEST(SurfaceBlit, BitBltClipsToBothSurfaces) {
    struct Case { int dx, dy, sx, sy; Pic want; };
    const std::vector<Case> cases = {
        {1, 1, 0, 0, {"....", ".abb", ".bbb", ".bbb"}},
        {2, 3, 0, 0, {"....", "....", "....", "..ab"}},   // past the right and bottom
        {-1, -2, 0, 0, {"bb..", "....", "....", "...."}}, // before the left and top
        {1, 0, -1, 0, {"..ab", "..bb", "..bb", "...."}},  // source column -1 is missing
        {0, 0, 2, 2, {"b...", "....", "....", "...."}},   // the source runs out
    };
    Surface src(3, 3, kB);
    src.SetPixelV(0, 0, kA);
    for (const Case& c : cases) {
        Surface dst(4, 4, kWhite);
        EXPECT_TRUE(BitBlt(dst, c.dx, c.dy, 3, 3, src, c.sx, c.sy, Rop::SrcCopy));
        EXPECT_EQ(Render(dst), c.want) << c.dx << "," << c.dy << " from " << c.sx << "," << c.sy;
    }
    Surface dst(4, 4, kWhite);
    EXPECT_FALSE(BitBlt(dst, 0, 0, -1, 2, src, 0, 0, Rop::SrcCopy));
}

TEST(SurfaceBlit, RasterCodes) {
    const Color d = 0xF0F00F, s = 0x3C3C3C;
    for (auto [rop, want] : {std::pair{Rop::SrcCopy, s}, {Rop::SrcAnd, 0x30300Cu},
                             {Rop::SrcInvert, 0xCCCC33u}, {Rop::Blackness, 0u}}) {
        Surface dst(2, 1, d), src(2, 1, s);
        ASSERT_TRUE(BitBlt(dst, 1, 0, 1, 1, src, 0, 0, rop));
        EXPECT_EQ(dst.GetPixel(1, 0), want) << static_cast<unsigned>(rop);
        EXPECT_EQ(dst.GetPixel(0, 0), d);
    }
}

TEST(SurfaceBlit, BitBltOntoItselfReadsBeforeWriting) {
    Surface s(4, 4, kWhite);
    s.SetPixelV(0, 0, kA);
    s.SetPixelV(1, 1, kB);
    s.SetPixelV(2, 2, kC);
    BitBlt(s, 1, 1, 3, 3, s, 0, 0, Rop::SrcCopy);
    EXPECT_EQ(Render(s), (Pic{"a...", ".a..", "..b.", "...c"}));
    BitBlt(s, 0, 0, 3, 3, s, 1, 1, Rop::SrcCopy);
    EXPECT_EQ(Render(s), (Pic{"a...", ".b..", "..c.", "...c"}));
}

TEST(SurfaceBlit, BlacknessWithoutASourceClips) {
    struct Case { int dx, dy, w, h; Pic want; };
    const std::vector<Case> cases = {
        {1, 0, 2, 2, {"b##b", "b##b", "bbbb"}}, {-1, 2, 9, 9, {"bbbb", "bbbb", "####"}},
        {1, 1, 0, 2, {"bbbb", "bbbb", "bbbb"}}, {1, 1, 2, 0, {"bbbb", "bbbb", "bbbb"}},
        {5, 0, 2, 2, {"bbbb", "bbbb", "bbbb"}}, {-3, 0, 2, 2, {"bbbb", "bbbb", "bbbb"}},
    };
    for (const Case& c : cases) {
        Surface s(4, 3, kB);
        EXPECT_TRUE(BitBlt(s, c.dx, c.dy, c.w, c.h, Rop::Blackness));
        EXPECT_EQ(Render(s), c.want) << c.dx << "," << c.dy << " " << c.w << "x" << c.h;
    }
    Surface s(2, 2, kWhite);
    EXPECT_FALSE(BitBlt(s, 0, 0, 1, 1, Rop::SrcCopy));
}

TEST(SurfaceBlit, StretchWholeNumberScalingMakesSolidBlocks) {
    Surface src(16, 16, kWhite), dst(192, 192, kWhite);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) src.SetPixelV(x, y, Rgb(x * 16, y * 16, (x + y) % 2 * 255));
    ASSERT_TRUE(StretchBlt(dst, 0, 0, 192, 192, src, 0, 0, 16, 16, Rop::SrcCopy));
    int wrong = 0;
    for (int y = 0; y < 192; ++y)
        for (int x = 0; x < 192; ++x) wrong += dst.GetPixel(x, y) != src.GetPixel(x / 12, y / 12);
    EXPECT_EQ(wrong, 0);
}

TEST(SurfaceBlit, StretchNegativeExtentsMirror) {
    struct Case { int dx, dw, sx, sw; std::string want; };
    const std::vector<Case> cases = {
        {4, -3, 0, 3, "..cba."},   // covers 2..4, right to left
        {0, 3, 2, -3, "cba..."},   // the source runs right to left
        {2, -3, 2, -3, "abc..."},  // both: no mirror
        {5, -6, 0, 3, "ccbbaa"},   // mirrored and doubled
        {1, 3, 1, 3, ".bc..."},    // source pixel 3 is outside: left alone
    };
    Surface src(3, 1, kA);
    src.SetPixelV(1, 0, kB);
    src.SetPixelV(2, 0, kC);
    for (const Case& c : cases) {
        Surface dst(6, 1, kWhite);
        EXPECT_TRUE(StretchBlt(dst, c.dx, 0, c.dw, 1, src, c.sx, 0, c.sw, 1, Rop::SrcCopy));
        EXPECT_EQ(Render(dst), Pic{c.want}) << c.dx << "/" << c.dw << " " << c.sx << "/" << c.sw;
    }
}

TEST(SurfaceBlit, HalftoneAveragesByAreaWithRounding) {
    // 2x2 -> 1x1: red averages 0.5 (rounds up), green 0.25 (down), blue 254.75 (up).
    Surface src(2, 2, Rgb(0, 0, 255)), one(1, 1, kWhite);
    src.SetPixelV(0, 1, Rgb(1, 0, 255));
    src.SetPixelV(1, 1, Rgb(1, 1, 254));
    StretchBlt(one, 0, 0, 1, 1, src, 0, 0, 2, 2, Rop::SrcCopy, StretchMode::Halftone);
    EXPECT_EQ(one.GetPixel(0, 0), Rgb(1, 0, 255));

    // 3 -> 2: each takes 2/3 of its near pixel and 1/3 of the middle one; mirrored too.
    Surface row(3, 1, Rgb(0, 0, 0)), two(2, 1, kWhite);
    row.SetPixelV(1, 0, Rgb(90, 0, 0));
    row.SetPixelV(2, 0, Rgb(180, 0, 0));
    StretchBlt(two, 0, 0, 2, 1, row, 0, 0, 3, 1, Rop::SrcCopy, StretchMode::Halftone);
    EXPECT_EQ(two.GetPixel(0, 0), Rgb(30, 0, 0));
    EXPECT_EQ(two.GetPixel(1, 0), Rgb(150, 0, 0));
    StretchBlt(two, 1, 0, -2, 1, row, 0, 0, 3, 1, Rop::SrcCopy, StretchMode::Halftone);
    EXPECT_EQ(two.GetPixel(0, 0), Rgb(150, 0, 0));
    EXPECT_EQ(two.GetPixel(1, 0), Rgb(30, 0, 0));
}

}  // namespace
}  // namespace vexlo::surface
