// Expand and Shrink on both planes, the sixteen-color map by its two stages, and the mono
// threshold, with transparent cells followed through every step.
#include "core/effects/resize_confine.h"

#include <gtest/gtest.h>

#include "core/files/ico_write.h"
#include "core/icon/icon_planes.h"

namespace vexlo::effects {
namespace {

using surface::Rgb;

// A side x side icon of many colors: cell (x, y) painted in Rgb(16x + y, 8y, 255 - 16x),
// except every third cell, which is transparent, and one painted silver cell at (1, 0).
void ManyColorIcon(int side, Surface& image, Surface& mask) {
    image = Surface(side, side, 0xFFFFFF);
    mask = Surface(side, side, 0xFFFFFF);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const bool clear = (x + y * side) % 3 == 0;
            image.SetPixelV(x, y, clear ? 0x000000 : Rgb(16 * x + y, 8 * y, 255 - 16 * x));
            mask.SetPixelV(x, y, clear ? 0xFFFFFF : 0x000000);
        }
    image.SetPixelV(1, 0, 0xC0C0C0);
}

TEST(ExpandShrink, ExpandDoublesCellsAndShrinkGivesThemBack) {
    Surface image, mask;
    ManyColorIcon(16, image, mask);
    const ResizedPlanes big = ExpandIcon(image, mask);
    ASSERT_EQ(big.Image.Width(), 32);
    ASSERT_EQ(big.Mask.Height(), 32);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            ASSERT_EQ(big.Image.GetPixel(x, y), image.GetPixel(x / 2, y / 2)) << x << "," << y;
            ASSERT_EQ(big.Mask.GetPixel(x, y), mask.GetPixel(x / 2, y / 2)) << x << "," << y;
        }
    const ResizedPlanes back = ShrinkIcon(big.Image, big.Mask);
    EXPECT_TRUE(SamePixels(back.Image, image));
    EXPECT_TRUE(SamePixels(back.Mask, mask));
}

TEST(ExpandShrink, ShrinkKeepsDarkPixels) {
    // Blocks: painted red beside transparent; wholly transparent; white over gray.
    Surface image(4, 2, 0xFFFFFF), mask(4, 2, 0xFFFFFF);
    image.Fill(0x000000);
    mask.Fill(0xFFFFFF);
    image.SetPixelV(0, 0, 0x0000FF);
    mask.SetPixelV(0, 0, 0x000000);
    const Surface small = ShrinkPlane(mask);
    EXPECT_EQ(small.GetPixel(0, 0), 0x000000u);  // any painted cell keeps the block painted
    EXPECT_EQ(small.GetPixel(1, 0), 0xFFFFFFu);  // all transparent stays transparent
    EXPECT_EQ(ShrinkPlane(image).GetPixel(0, 0), 0x000000u);

    Surface gray(2, 2, 0xFFFFFF);
    gray.Fill(0xFFFFFF);
    gray.SetPixelV(1, 1, 0x808080);
    EXPECT_EQ(ShrinkPlane(gray).GetPixel(0, 0), 0x808080u);
}

TEST(Confine16, MapByStages) {
    const struct {
        int R, G, B;
        Color Want;
    } cases[] = {
        {100, 100, 100, 0x000000},  // t = 50: black
        {200, 100, 50, 0x000080},   // (192,0,0) -> maroon
        {250, 250, 0, 0x00FFFF},    // (255,255,0) is yellow already
        {127, 0, 0, 0x000080},      // t = 63.5 -> 64: 128
        {125, 0, 0, 0x000000},      // t = 62.5 -> 62: 0
        {129, 0, 0, 0x000080},      // t = 64.5 -> 64: 128
        {239, 239, 239, 0xFFFFFF},  // t = 119.5 -> 120: 255
        {237, 237, 237, 0xC0C0C0},  // t = 118.5 -> 118: 192, silver
        {189, 0, 0, 0x000080},      // t = 94.5 -> 94: 128
        {0, 0, 192, 0x800000},      // navy
        {0, 192, 128, 0x808000},    // teal
        {0, 192, 0, 0x008000},      // green
        {0, 255, 128, 0xFFFF00},    // cyan
        {128, 255, 0, 0x008080},    // olive
        {128, 255, 255, 0x808080},  // gray
        {128, 0, 255, 0x800080},    // purple
        {192, 200, 50, 0x008080},   // (192,192,0) -> olive
        {192, 60, 200, 0x800080},   // (192,0,192) -> purple
        {255, 128, 128, 0xFFFFFF},
        {255, 60, 200, 0xFF00FF},   // (255,0,192) -> magenta
        // Halves, each rounded to even: 191 -> 96, 193 -> 96, 241 -> 120, 1 -> 0, 3 -> 2.
        {127, 191, 239, 0x808080},  // (128,192,255) -> gray
        {129, 193, 241, 0x808080},  // the same after rounding down
        {125, 189, 237, 0x808000},  // (0,128,192) -> teal
        {191, 63, 65, 0x000080},    // (192,0,0) -> maroon
        {1, 255, 129, 0xFFFF00},    // (0,255,128) -> cyan
        {3, 3, 191, 0x800000},      // (0,0,192) -> navy
        {192, 192, 192, 0xC0C0C0},  // silver stays
    };
    for (const auto& c : cases)
        EXPECT_EQ(MapToChart16(Rgb(c.R, c.G, c.B)), c.Want) << c.R << "," << c.G << "," << c.B;
}

TEST(Confine16, ManyColorIconEndsInChartColors) {
    Surface image, mask;
    ManyColorIcon(16, image, mask);
    const Surface maskBefore = mask;
    Surface picIcon(16, 16, 0xC0C0C0);
    icon::Compose(image, mask, picIcon);
    ConfineTo16(picIcon, image);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) {
            const bool clear = mask.GetPixel(x, y) == 0xFFFFFFu;
            ASSERT_TRUE(clear ? image.GetPixel(x, y) == 0 : IsChartColor(image.GetPixel(x, y)))
                << x << "," << y;
        }
    EXPECT_EQ(image.GetPixel(1, 0), 0xC0C0C0u);  // painted silver is a chart color
    EXPECT_TRUE(SamePixels(mask, maskBefore));
    EXPECT_EQ(Confine16Refusal(2), kMonochromeMessage);
    EXPECT_EQ(Confine16Refusal(16), kSixteenColorMessage);
    EXPECT_FALSE(Confine16Refusal(256).has_value());
}

TEST(Confine16, A256ColorIconEndsInTheSixteen) {
    // 256 different colors, each cell painted: R = 16x + y, G = 16y + x, B = xy.
    Surface image(16, 16, 0xFFFFFF), mask(16, 16, 0xFFFFFF), picIcon(16, 16, 0xC0C0C0);
    mask.Fill(0x000000);
    for (int x = 0; x < 16; ++x)
        for (int y = 0; y < 16; ++y) image.SetPixelV(x, y, Rgb(16 * x + y, 16 * y + x, x * y));
    ASSERT_EQ(files::CountColors(image), 256);
    const Surface before = image;
    icon::Compose(image, mask, picIcon);
    ConfineTo16(picIcon, image);
    for (int x = 0; x < 16; ++x)
        for (int y = 0; y < 16; ++y) {
            const Color was = before.GetPixel(x, y);
            ASSERT_EQ(image.GetPixel(x, y), was == 0xC0C0C0 || IsChartColor(was) ? was : MapToChart16(was));
            ASSERT_TRUE(IsChartColor(image.GetPixel(x, y))) << x << "," << y;
        }
    EXPECT_EQ(image.GetPixel(15, 15), 0xFFFFFFu);  // (255,255,225) -> white
    EXPECT_EQ(files::CountColors(image), 16);

    Surface mono = before;
    ConfineToMono(mono, mask, kMonoThresholdStart);
    EXPECT_EQ(files::CountColors(mono), 2);
}

TEST(ConfineMono, ThresholdWhiteAndRegion) {
    // Columns: gray 128, gray 129, white, transparent, gray 200.
    const Color colors[] = {0x808080, 0x818181, 0xFFFFFF, 0x000000, 0xC8C8C8};
    const auto make = [&](Surface& image, Surface& mask) {
        image = Surface(5, 2, 0xFFFFFF);
        mask = Surface(5, 2, 0xFFFFFF);
        for (int x = 0; x < 5; ++x)
            for (int y = 0; y < 2; ++y) {
                image.SetPixelV(x, y, colors[x]);
                mask.SetPixelV(x, y, x == 3 ? 0xFFFFFF : 0x000000);
            }
    };
    const struct {
        int Threshold;
        std::optional<tools::CellRect> Region;
        Color Image[5];
        Color Mask[5];
    } cases[] = {
        {128, std::nullopt, {0, 0, 0xFFFFFF, 0, 0}, {0, 0xFFFFFF, 0, 0xFFFFFF, 0xFFFFFF}},
        {255, std::nullopt, {0, 0, 0xFFFFFF, 0, 0}, {0, 0, 0, 0xFFFFFF, 0}},
        {128, tools::CellRect{1, 0, 1, 1},
         {0x808080, 0, 0xFFFFFF, 0, 0xC8C8C8}, {0, 0xFFFFFF, 0, 0xFFFFFF, 0}},
    };
    for (const auto& c : cases) {
        Surface image, mask;
        make(image, mask);
        ConfineToMono(image, mask, c.Threshold, c.Region);
        for (int x = 0; x < 5; ++x)
            for (int y = 0; y < 2; ++y) {
                EXPECT_EQ(image.GetPixel(x, y), c.Image[x]) << c.Threshold << " x " << x;
                EXPECT_EQ(mask.GetPixel(x, y), c.Mask[x]) << c.Threshold << " x " << x;
            }
    }
    EXPECT_EQ(AverageColor(Rgb(1, 1, 0)), 1);
    EXPECT_EQ(AverageColor(Rgb(255, 255, 254)), 255);
}

}  // namespace
}  // namespace vexlo::effects
