// The place of a printed picture on the page, in twips from the printable area's top left.
#include <gtest/gtest.h>

#include "core/utilities/print_layout.h"

namespace vexlo::utilities {
namespace {

constexpr double kInch = 1440;
// A letter page with 0.25 inch unprintable at each edge, and a narrow one.
constexpr PrintArea kPortrait{0, 0, 8.0 * kInch, 10.5 * kInch};
constexpr PrintArea kLandscape{0, 0, 10.5 * kInch, 8.0 * kInch};
constexpr PrintArea kNarrow{0, 0, 3.0 * kInch, 10.5 * kInch};

struct Case {
    const char* name;
    PrintChoice choice;
    int pixels;  // a square picture of that side
    PrintArea area;
    PrintRect expected;
    const char* message;
};

TEST(PrintLayout, PlacesThePictureAsItsOptionsSay) {
    using S = PrintSize;
    using M = PrintMargin;
    const Case cases[] = {
        // 192 screen pixels at 96 to the inch are two inches.
        {"percent 100 at margins 1.00", {S::AtPercent, 100, M::SetMargin, 1.0, 1.0}, 192, kPortrait,
         {kInch, kInch, 2 * kInch, 2 * kInch}, ""},
        // The percentage is of the area: 200 makes the sides 1.41 times as long, 25 half as long.
        {"percent 200", {S::AtPercent, 200, M::SetMargin, 0.5, 0.25}, 192, kPortrait,
         {720, 360, 2880 * 1.4142135623730951, 2880 * 1.4142135623730951}, ""},
        {"percent 25 centred", {S::AtPercent, 25, M::Center, 1.0, 1.0}, 384, kPortrait,
         {(8 * kInch - 2880) / 2, (10.5 * kInch - 2880) / 2, 2880, 2880}, ""},
        {"original icon size", {S::OriginalIcon, 200, M::SetMargin, 2.0, 3.0}, 16, kPortrait,
         {2 * kInch, 3 * kInch, 240, 240}, ""},
        {"margins beyond a narrow paper", {S::AtPercent, 100, M::SetMargin, 4.0, 4.0}, 192, kNarrow,
         {4 * kInch, 4 * kInch, 2880, 2880}, kPositionOutsidePaper},
        {"just fits", {S::AtPercent, 100, M::SetMargin, 1.0, 8.5}, 192, kNarrow,
         {kInch, 8.5 * kInch, 2880, 2880}, ""},
        {"centred and too large", {S::AtPercent, 200, M::Center, 1.0, 1.0}, 384, kNarrow,
         {0, 0, 5760 * 1.4142135623730951, 5760 * 1.4142135623730951}, kSizeGreaterThanPaper},
        // Fit to paper fills the narrower side and centres on the other, whatever the margins.
        {"fit on portrait", {S::FitToPaper, 100, M::SetMargin, 4.0, 4.0}, 384, kPortrait,
         {0, (10.5 * kInch - 8 * kInch) / 2, 8 * kInch, 8 * kInch}, ""},
        {"fit on landscape", {S::FitToPaper, 100, M::Center, 1.0, 1.0}, 16, kLandscape,
         {(10.5 * kInch - 8 * kInch) / 2, 0, 8 * kInch, 8 * kInch}, ""},
    };
    for (const Case& c : cases) {
        const PrintPlacement p = PlacePicture(c.choice, c.pixels, c.pixels, c.area);
        EXPECT_EQ(p.Message, c.message) << c.name;
        if (*c.message != '\0' && c.choice.Margin == M::Center) continue;
        EXPECT_NEAR(p.Rect.Left, c.expected.Left, 1e-6) << c.name;
        EXPECT_NEAR(p.Rect.Top, c.expected.Top, 1e-6) << c.name;
        EXPECT_NEAR(p.Rect.Width, c.expected.Width, 1e-6) << c.name;
        EXPECT_NEAR(p.Rect.Height, c.expected.Height, 1e-6) << c.name;
    }
}

TEST(PrintLayout, FitToPaperKeepsTheShapeOfAWidePicture) {
    // 384 x 192 on a portrait area: the width is the limit, the height follows, centred.
    const PrintPlacement p = PlacePicture({PrintSize::FitToPaper, 100, PrintMargin::SetMargin, 1, 1}, 384, 192,
                                          {100, 200, 8 * kInch, 10.5 * kInch});
    EXPECT_EQ(p.Message, "");
    EXPECT_DOUBLE_EQ(p.Rect.Left, 100);
    EXPECT_DOUBLE_EQ(p.Rect.Width, 8 * kInch);
    EXPECT_DOUBLE_EQ(p.Rect.Height, 4 * kInch);
    EXPECT_DOUBLE_EQ(p.Rect.Top, (10.5 * kInch - 4 * kInch) / 2);
}

}  // namespace
}  // namespace vexlo::utilities
