// Adjust Painted Colors: the per-component arithmetic (32-bit float factor, product in double,
// ties to even, held within 0..255) with values worked out by hand, steps on a small preview,
// and Proceed into picImage.
#include "core/effects/adjust_colors.h"

#include <gtest/gtest.h>

namespace vexlo::effects {
namespace {

using surface::Rgb;

TEST(AdjustColors, ComponentRoundingAndClamping) {
    // Factors as 32-bit floats: 1.1f = 1.10000002384..., 0.9f = 0.89999997615...,
    // 0.1f = 0.10000000149..., 0.5f and 1.9f's product with 200 well past 255.
    const struct { int component, percent, expected; } cases[] = {
        {200, 90, 255},  // 380 held at 255
        {255, 10, 255},  // 280.5 held at 255
        {0, 90, 0},
        {5, -50, 2},     // 2.5, tie to even
        {3, -50, 2},     // 1.5, tie to even
        {15, -50, 8},    // 7.5, tie to even
        {5, -90, 1},     // 0.50000000745...
        {50, 10, 55},    // 55.0000012
        {55, -10, 49},   // 49.4999987
        {200, 10, 220},
        {220, -10, 198}, // 197.9999947
        {15, 10, 17},    // 16.5000004, not a tie
        {35, -10, 31},   // 31.4999992, not a tie
        {25, 10, 28},    // 27.5000006
        {100, 0, 100},
        {255, -90, 26},  // 25.5000004
    };
    for (const auto& c : cases)
        EXPECT_EQ(AdjustComponent(c.component, c.percent), c.expected)
            << c.component << " at " << c.percent << "%";
}

// A preview of four cells: transparent gray, two painted colors, white.
Surface SmallPreview() {
    Surface s(4, 1, icon::kTransparentGray);
    s.SetPixelV(0, 0, icon::kTransparentGray);
    s.SetPixelV(1, 0, Rgb(50, 200, 5));
    s.SetPixelV(2, 0, Rgb(3, 15, 220));
    s.SetPixelV(3, 0, icon::kWhite);
    return s;
}

TEST(AdjustColors, StepsChangeOnlyPaintedCellsAndTheChosenChannel) {
    const struct { const char* name; int channel; int percent; Color c1, c2, c3; } cases[] = {
        // channel -1 is the brightness list.
        {"brightness +10", -1, 10, Rgb(55, 220, 6), Rgb(3, 17, 242), icon::kWhite},
        {"brightness -50", -1, -50, Rgb(25, 100, 2), Rgb(2, 8, 110), Rgb(128, 128, 128)},
        {"red +90", 0, 90, Rgb(95, 200, 5), Rgb(6, 15, 220), Rgb(255, 255, 255)},
        {"green -90", 1, -90, Rgb(50, 20, 5), Rgb(3, 2, 220), Rgb(255, 26, 255)},
        {"blue +90", 2, 90, Rgb(50, 200, 9), Rgb(3, 15, 255), icon::kWhite},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Surface s = SmallPreview();
        const bool ran = c.channel < 0
                             ? AdjustBrightness(s, c.percent)
                             : AdjustChannel(s, static_cast<ColorChannel>(c.channel), c.percent);
        EXPECT_TRUE(ran);
        EXPECT_EQ(s.GetPixel(0, 0), icon::kTransparentGray);
        EXPECT_EQ(s.GetPixel(1, 0), c.c1);
        EXPECT_EQ(s.GetPixel(2, 0), c.c2);
        EXPECT_EQ(s.GetPixel(3, 0), c.c3);
    }
}

TEST(AdjustColors, ZeroStepLeavesThePreviewIdentical) {
    const Surface before = SmallPreview();
    Surface s = before;
    EXPECT_FALSE(AdjustBrightness(s, 0));
    for (ColorChannel ch : {ColorChannel::Red, ColorChannel::Green, ColorChannel::Blue})
        EXPECT_FALSE(AdjustChannel(s, ch, 0));
    EXPECT_TRUE(SamePixels(s, before));
}

// Steps add up on the preview and don't undo each other: 50 goes to 55 and then 49; blue 240
// goes to 264 held at 255, then 229 (229.4999...), then by the blue steps 252 (251.9000...)
// and 227 (226.7999...).
TEST(AdjustColors, StepsAddUp) {
    Surface s(2, 1, icon::kTransparentGray);
    s.SetPixelV(0, 0, Rgb(50, 200, 0));
    s.SetPixelV(1, 0, Rgb(0, 0, 240));
    AdjustBrightness(s, 10);
    AdjustBrightness(s, -10);
    AdjustChannel(s, ColorChannel::Blue, 10);
    AdjustChannel(s, ColorChannel::Blue, -10);
    EXPECT_EQ(s.GetPixel(0, 0), Rgb(49, 198, 0));
    EXPECT_EQ(s.GetPixel(1, 0), Rgb(0, 0, 227));
}

// An icon with a transparent cell, a painted silver cell and a painted dark red cell: the
// preview shows the composed picture; silver is untouched by steps and ends black at Proceed,
// while picMask keeps it painted.
TEST(AdjustColors, PrepareThenProceedIntoPicImage) {
    Surface picImage(3, 1, icon::kBlack);
    picImage.SetPixelV(1, 0, icon::kTransparentGray);
    picImage.SetPixelV(2, 0, Rgb(100, 0, 0));
    Surface PicIcon(3, 1, icon::kTransparentGray);  // as composed: cell 0 transparent
    PicIcon.SetPixelV(1, 0, icon::kTransparentGray);
    PicIcon.SetPixelV(2, 0, Rgb(100, 0, 0));

    Surface preview = PrepareColorAdj(picImage, PicIcon);
    EXPECT_TRUE(SamePixels(preview, PicIcon));
    AdjustBrightness(preview, 50);
    EXPECT_EQ(preview.GetPixel(1, 0), icon::kTransparentGray);
    EXPECT_EQ(preview.GetPixel(2, 0), Rgb(150, 0, 0));

    ProceedAdjustColors(preview, picImage);
    EXPECT_EQ(picImage.GetPixel(0, 0), icon::kBlack);
    EXPECT_EQ(picImage.GetPixel(1, 0), icon::kBlack);
    EXPECT_EQ(picImage.GetPixel(2, 0), Rgb(150, 0, 0));
    picImage.Cls();  // the result is the plane's stored picture as well
    EXPECT_EQ(picImage.GetPixel(2, 0), Rgb(150, 0, 0));
}

// Zero steps (each refused) then Proceed give back the same picImage when no cell is silver.
TEST(AdjustColors, ZeroStepsThenProceedLeaveTheIconIdentical) {
    Surface picImage(3, 1, icon::kBlack);  // cell 0 transparent
    picImage.SetPixelV(1, 0, Rgb(1, 2, 3));
    picImage.SetPixelV(2, 0, icon::kWhite);
    Surface PicIcon(3, 1, icon::kTransparentGray);
    PicIcon.SetPixelV(1, 0, Rgb(1, 2, 3));
    PicIcon.SetPixelV(2, 0, icon::kWhite);
    Surface preview = PrepareColorAdj(picImage, PicIcon);
    EXPECT_FALSE(AdjustBrightness(preview, AdjustPercentOf(kAdjustZeroIndex)));
    EXPECT_FALSE(AdjustChannel(preview, ColorChannel::Green, 0));
    const Surface before = picImage;
    ProceedAdjustColors(preview, picImage);
    EXPECT_TRUE(SamePixels(picImage, before));
}

}  // namespace
}  // namespace vexlo::effects
