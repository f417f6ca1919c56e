// Buttonize's three patterns drawn on whole icons and compared as ASCII pictures worked out by
// hand from the step lists (a line leaves out its end point, a box includes its corners).
#include "core/effects/buttonize.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace vexlo::effects {
namespace {

using Rows = std::vector<std::string>;
using std::string;

constexpr Color kRed = 0x0000FF;

// A square icon: every cell transparent, or every cell painted red.
struct Icon {
    Icon(int side, bool painted)
        : picImage(side, side, icon::kBlack), picMask(side, side, icon::kWhite) {
        picImage.Fill(painted ? kRed : icon::kBlack);
        picMask.Fill(painted ? icon::kBlack : icon::kWhite);
    }
    Surface picImage, picMask;
};

// One letter per cell: '.' transparent (image black, mask white), 'w' white, 'k' black,
// 'm' mid gray, 'g' warm gray, 'r' red, all opaque; '?' anything else.
Rows Cells(const Icon& icon) {
    Rows out;
    for (int y = 0; y < icon.picImage.Height(); ++y) {
        string row;
        for (int x = 0; x < icon.picImage.Width(); ++x) {
            const Color c = icon.picImage.GetPixel(x, y);
            const bool opaque = icon.picMask.GetPixel(x, y) == icon::kBlack;
            const bool transparent = icon.picMask.GetPixel(x, y) == icon::kWhite && c == 0;
            row += transparent             ? '.'
                   : !opaque               ? '?'
                   : c == icon::kWhite     ? 'w'
                   : c == icon::kBlack     ? 'k'
                   : c == kButtonMidGray   ? 'm'
                   : c == kButtonWarmGray  ? 'g'
                   : c == kRed             ? 'r'
                                           : '?';
        }
        out.push_back(row);
    }
    return out;
}

// first, then `count` copies of middle, then last: one row of 16 cells.
string R(char first, char middle, int count, const string& last) {
    return first + string(static_cast<std::size_t>(count), middle) + last;
}
Rows Repeat(const string& row, int times) { return Rows(static_cast<std::size_t>(times), row); }
Rows Join(std::initializer_list<Rows> parts) {
    Rows out;
    for (const Rows& p : parts) out.insert(out.end(), p.begin(), p.end());
    return out;
}

TEST(Buttonize, EachPatternOnAPaintedSixteenIcon) {
    const Rows pattern1 = Join({{R('.', 'w', 14, ".")},
                                Repeat(R('w', 'r', 14, "k"), 14),
                                {R('.', 'k', 14, ".")}});
    const Rows pattern2 = Join({{R('.', 'k', 14, ".")},
                                {R('k', 'w', 13, "mk")},
                                {R('k', 'w', 12, "mmk")},
                                Repeat("kww" + string(10, 'r') + "mmk", 10),
                                {R('k', 'w', 1, string(13, 'm') + "k")},
                                {R('k', 'm', 14, "k")},
                                {R('.', 'k', 14, ".")}});
    const Rows pattern3 = Join({{R('.', 'w', 14, ".")},
                                {R('w', 'w', 13, "gk")},
                                Repeat("ww" + string(12, 'r') + "gk", 12),
                                {R('w', 'g', 14, "k")},
                                {R('.', 'k', 14, ".")}});
    const struct { int index; Rows expected; } cases[] = {
        {0, pattern1}, {1, pattern2}, {2, pattern3}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.index);
        Icon icon(16, true);
        ASSERT_TRUE(ProceedButtonize(c.index, icon.picImage, icon.picMask));
        EXPECT_EQ(Cells(icon), c.expected);
    }
}

// On a blank icon the cells inside the pattern's rings stay transparent, and every drawn cell
// except the four corners becomes opaque.
TEST(Buttonize, BlankIconKeepsItsInteriorTransparent) {
    const struct { int index; int rings; } cases[] = {{0, 1}, {1, 3}, {2, 2}};
    for (int side : {16, 32, 48})
        for (const auto& c : cases) {
            SCOPED_TRACE(testing::Message() << side << " pattern " << c.index);
            Icon icon(side, false);
            ASSERT_TRUE(ProceedButtonize(c.index, icon.picImage, icon.picMask));
            const int last = side - 1;
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x) {
                    const bool corner = (x == 0 || x == last) && (y == 0 || y == last);
                    const int ring = std::min(std::min(x, y), std::min(last - x, last - y));
                    const bool opaque = !corner && ring < c.rings;
                    EXPECT_EQ(icon.picMask.GetPixel(x, y), opaque ? icon::kBlack : icon::kWhite)
                        << x << "," << y;
                    if (!opaque) {
                        EXPECT_EQ(icon.picImage.GetPixel(x, y), icon::kBlack);
                    }
                }
        }
}

// Single cells on the larger sizes, where W and H come from the icon's side.
TEST(Buttonize, CellsOnLargerIcons) {
    const struct { int side, index, x, y; Color color; } cases[] = {
        {32, 2, 30, 30, kButtonWarmGray}, {32, 2, 1, 1, icon::kWhite},
        {32, 2, 30, 1, kButtonWarmGray},  {32, 2, 1, 30, kButtonWarmGray},
        {48, 1, 46, 46, kButtonMidGray},  {48, 1, 45, 45, kButtonMidGray},
        {48, 1, 46, 1, kButtonMidGray},   {48, 1, 1, 45, icon::kWhite},
        {48, 1, 2, 45, kButtonMidGray},   {48, 1, 45, 2, kButtonMidGray},
        {48, 0, 0, 46, icon::kWhite},     {48, 0, 47, 1, icon::kBlack},
    };
    for (const auto& c : cases) {
        Icon icon(c.side, false);
        ProceedButtonize(c.index, icon.picImage, icon.picMask);
        EXPECT_EQ(icon.picImage.GetPixel(c.x, c.y), c.color)
            << c.side << " pattern " << c.index << " at " << c.x << "," << c.y;
        EXPECT_EQ(icon.picMask.GetPixel(c.x, c.y), icon::kBlack);
    }
}

TEST(Buttonize, IndexOutsideTheListDrawsNothing) {
    for (int index : {-1, 3, 100}) {
        Icon icon(16, true);
        const Icon before = icon;
        EXPECT_FALSE(ProceedButtonize(index, icon.picImage, icon.picMask)) << index;
        EXPECT_TRUE(SamePixels(icon.picImage, before.picImage));
        EXPECT_TRUE(SamePixels(icon.picMask, before.picMask));
        EXPECT_EQ(ButtonizeSample(index, 16).Width(), 0);
    }
}

TEST(Buttonize, SecondRunChangesNothing) {
    for (int index = 0; index < kButtonizePatternCount; ++index) {
        Icon once(32, true);
        ProceedButtonize(index, once.picImage, once.picMask);
        Icon twice = once;
        ProceedButtonize(index, twice.picImage, twice.picMask);
        EXPECT_EQ(Cells(twice), Cells(once)) << index;
    }
}

// The sample shows the pattern composed on gray: corners and untouched cells gray.
TEST(Buttonize, SampleIsThePatternOnABlankIconComposed) {
    const Surface sample = ButtonizeSample(1, 16);
    ASSERT_EQ(sample.Width(), 16);
    const struct { int x, y; Color color; } cells[] = {
        {0, 0, icon::kTransparentGray}, {15, 15, icon::kTransparentGray},
        {1, 0, icon::kBlack},           {1, 1, icon::kWhite},
        {14, 14, kButtonMidGray},       {8, 8, icon::kTransparentGray}};
    for (const auto& c : cells) EXPECT_EQ(sample.GetPixel(c.x, c.y), c.color) << c.x << "," << c.y;
}

}  // namespace
}  // namespace vexlo::effects
