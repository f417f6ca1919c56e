// The Text effect's pictures from a drawn text: the cut to the icon's size, the turn, the
// bounding box and the see-through gray, white text on its blue key, and the angle sample.
#include "core/effects/text_effect.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/icon/icon_colors.h"

namespace vexlo::effects {
namespace {

using Rows = std::vector<std::string>;
constexpr Color kRed = 0x0000FF;
constexpr Color kWhite = 0xFFFFFF;

// A picture from rows: 'r' red, 'w' white, 'b' blue, '.' the given back color.
Surface Picture(const Rows& rows, Color back) {
    Surface s(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()), back);
    for (int y = 0; y < s.Height(); ++y)
        for (int x = 0; x < s.Width(); ++x) {
            const char c = rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            s.SetPixelV(x, y, c == 'r' ? kRed : c == 'w' ? kWhite : c == 'b' ? kTextKeyBlue : back);
        }
    return s;
}

// 'r' red, 'w' white, '.' the transparent gray of a Region, '?' anything else.
Rows Cells(const Surface& s) {
    Rows out;
    for (int y = 0; y < s.Height(); ++y) {
        std::string row;
        for (int x = 0; x < s.Width(); ++x) {
            const Color c = s.GetPixel(x, y);
            row += c == kRed ? 'r' : c == kWhite ? 'w' : c == icon::kTransparentGray ? '.' : '?';
        }
        out.push_back(row);
    }
    return out;
}

// An "L" drawn at (1, 1) with its one-pixel margin, as the platform hands it over.
const Rows kDrawnL = {
    "......",
    ".r....",
    ".r....",
    ".rrr..",
    "......",
};

TEST(TextEffect, AtZeroDegreesTheRegionIsTheTextsBoundingBox) {
    for (int sizeCode : {1, 2, 3}) {
        const auto region = MakeTextRegion(Picture(kDrawnL, kWhite), sizeCode, 0, kWhite);
        ASSERT_TRUE(region.has_value()) << sizeCode;
        EXPECT_EQ(Cells(*region), (Rows{"r..", "r..", "rrr"})) << sizeCode;
    }
}

// Turned by a quarter counterclockwise, the L's foot becomes a column on the right.
TEST(TextEffect, NinetyDegreesTurnsTheText) {
    const auto region = MakeTextRegion(Picture(kDrawnL, kWhite), 2, 90, kWhite);
    ASSERT_TRUE(region.has_value());
    EXPECT_EQ(Cells(*region), (Rows{"..r", "..r", "rrr"}));
}

// A text wider than the icon is cut to L columns before the turn: the red mark at column 20
// of a 16x16 icon's text is never drawn.
TEST(TextEffect, TextWiderThanTheIconIsCut) {
    Rows drawn(5, std::string(24, '.'));
    for (int x = 1; x < 23; x += 2) drawn[2][static_cast<std::size_t>(x)] = 'w';
    drawn[1][20] = 'r';
    const auto region = MakeTextRegion(Picture(drawn, kTextKeyBlue), 1, 0, kTextKeyBlue);
    ASSERT_TRUE(region.has_value());
    EXPECT_LE(region->Width(), 16);
    for (const std::string& row : Cells(*region)) EXPECT_EQ(row.find('r'), std::string::npos);
}

// White text is drawn on its blue key, so it survives the turn.
TEST(TextEffect, WhiteTextSurvivesOnItsKey) {
    EXPECT_EQ(TextKeyColor(kWhite), kTextKeyBlue);
    EXPECT_EQ(TextKeyColor(kRed), kWhite);
    EXPECT_EQ(TextKeyColor(0), kWhite);
    const Rows drawn = {".....", ".www.", "..w..", "....."};
    const auto region = MakeTextRegion(Picture(drawn, kTextKeyBlue), 2, 0, kTextKeyBlue);
    ASSERT_TRUE(region.has_value());
    EXPECT_EQ(Cells(*region), (Rows{"www", ".w."}));
}

TEST(TextEffect, NothingDrawnGivesNoRegion) {
    EXPECT_FALSE(MakeTextRegion(Picture({"....", "...."}, kWhite), 2, 30, kWhite).has_value());
    EXPECT_FALSE(MakeTextRegion(Picture(kDrawnL, kWhite), 0, 0, kWhite).has_value());
}

TEST(TextEffect, ControlsTextsAndSampleColors) {
    EXPECT_TRUE(IsBlankText(""));
    EXPECT_TRUE(IsBlankText("    "));
    EXPECT_FALSE(IsBlankText("  a "));
    EXPECT_EQ(FontNotAvailableText("Arial"), "Arial not available in system.");
    const auto sizes = FontSizeEntries();
    ASSERT_EQ(sizes.size(), 12u);
    EXPECT_EQ(sizes.front(), "7");
    EXPECT_EQ(sizes[kFontSizeInitialIndex], "8");
    EXPECT_EQ(sizes.back(), "18");
    EXPECT_EQ(TextSampleColorsOf(kWhite).Back, kTextKeyBlue);
    EXPECT_EQ(TextSampleColorsOf(kRed).Back, kWhite);
    EXPECT_EQ(TextSampleColorsOf(kRed).Fore, kRed);
}

// At 0 degrees the sample stands in the middle of its white background, its white left out.
TEST(TextEffect, AngleSampleTurnsAroundTheBackgroundsMiddle) {
    const Surface sample = TextAngleSample();
    Surface background = TextAngleSampleBackground();
    TurnTextAngleSample(sample, background, 0);
    const int dx = background.Width() / 2 - sample.Width() / 2;
    const int dy = background.Height() / 2 - sample.Height() / 2;
    int drawn = 0;
    for (int x = 0; x < sample.Width(); ++x)
        for (int y = 0; y < sample.Height(); ++y) {
            EXPECT_EQ(background.GetPixel(x + dx, y + dy), sample.GetPixel(x, y));
            drawn += sample.GetPixel(x, y) != kWhite;
        }
    EXPECT_GT(drawn, 20);
    Surface turned = TextAngleSampleBackground();
    TurnTextAngleSample(sample, turned, 90);
    EXPECT_FALSE(SamePixels(turned, background));
}

}  // namespace
}  // namespace vexlo::effects
