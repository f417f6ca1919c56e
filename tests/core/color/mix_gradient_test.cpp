// The Color Mixer's bands worked out by hand (rounding to even at the halves), the strip's
// rows, the "+" and "-" steps with their enabled states, and the palette size test.
#include "core/color/mix_gradient.h"

#include <gtest/gtest.h>

namespace vexlo::color {
namespace {

using surface::Rgb;

TEST(MixGradient, BandsAtTheStartRunRedYellowGreenCyanBlue) {
    const auto bands = MixBandColors(Rgb(255, 0, 0), Rgb(0, 255, 0), Rgb(0, 0, 255));
    const struct {
        int Band;
        Color Want;
    } cases[] = {
        {1, Rgb(255, 0, 0)},     // C0 itself
        {2, Rgb(255, 10, 0)},    // 255 / 26 = 9.8
        {25, Rgb(255, 235, 0)},  // 255 x 24 / 26 = 235.4
        {26, Rgb(245, 255, 0)},  // from C3 = yellow
        {50, Rgb(10, 255, 0)},
        {51, Rgb(0, 255, 10)},   // one step on from C1, which no band shows
        {75, Rgb(0, 255, 245)},  // 255 x 25 / 26: the later stretches count from 1
        {76, Rgb(0, 245, 255)},  // from C4 = cyan
        {100, Rgb(0, 10, 255)},  // no stretch reaches its end color
    };
    for (const auto& c : cases) EXPECT_EQ(bands[static_cast<std::size_t>(c.Band - 1)], c.Want) << c.Band;
}

TEST(MixGradient, HalvesRoundToEvenAndBlackStaysBlack) {
    // Bars of 13: band k of the first stretch has green 13 (k - 1) / 26 = (k - 1) / 2.
    const auto bands = MixBandColors(Rgb(13, 0, 0), Rgb(0, 13, 0), Rgb(0, 0, 13));
    EXPECT_EQ(bands[1], Rgb(13, 0, 0));  // 0.5 -> 0
    EXPECT_EQ(bands[3], Rgb(13, 2, 0));  // 1.5 -> 2
    EXPECT_EQ(bands[5], Rgb(13, 2, 0));  // 2.5 -> 2
    EXPECT_EQ(bands[25], Rgb(12, 13, 0));  // 13 - 0.5 = 12.5 -> 12
    for (const Color c : MixBandColors(0, 0, 0)) ASSERT_EQ(c, 0u);
}

TEST(MixGradient, StripRowsTakeTheirBands) {
    const auto bands = MixBandColors(Rgb(255, 0, 0), Rgb(0, 255, 0), Rgb(0, 0, 255));
    surface::Surface strip(40, 100, 0xFFFFFF);
    DrawMixGradient(strip, Rgb(255, 0, 0), Rgb(0, 255, 0), Rgb(0, 0, 255));
    for (int y = 0; y < 100; ++y) {
        ASSERT_EQ(strip.GetPixel(0, y), bands[static_cast<std::size_t>(y)]) << y;
        ASSERT_EQ(strip.GetPixel(39, y), bands[static_cast<std::size_t>(y)]) << y;
    }
    surface::Surface tall(3, 200, 0xFFFFFF);
    DrawMixGradient(tall, Rgb(255, 0, 0), Rgb(0, 255, 0), Rgb(0, 0, 255));
    EXPECT_EQ(tall.GetPixel(1, 101), bands[50]);
    EXPECT_EQ(tall.GetPixel(1, 199), bands[99]);
}

TEST(MixGradient, LightenDarkenAndCopy) {
    const struct {
        MixBars From;
        int Element;
        Color Selected;
        MixBars To;
        bool Lighten, Darken;
    } cases[] = {
        {{240, 250, 255}, 0, 0, {255, 255, 255}, false, true},
        {{10, 20, 30}, 1, 0, {0, 3, 13}, true, true},
        {{255, 255, 255}, 1, 0, {238, 238, 238}, true, true},
        {{1, 2, 3}, 2, 0x000000, {0, 0, 0}, true, false},
        {{0, 0, 0}, 2, Rgb(1, 2, 3), {1, 2, 3}, true, true},
        {{5, 6, 7}, 3, 0, {5, 6, 7}, true, true},
    };
    for (const auto& c : cases) {
        const MixBars to = AdjustMixBars(c.From, c.Element, c.Selected);
        EXPECT_EQ(to, c.To) << c.Element;
        EXPECT_EQ(AdjMixEnabledOf(to).Lighten, c.Lighten) << c.Element;
        EXPECT_EQ(AdjMixEnabledOf(to).Darken, c.Darken) << c.Element;
    }
    MixBars bars{0, 0, 0};
    for (int i = 0; i < 15; ++i) bars = AdjustMixBars(bars, 0, 0);
    EXPECT_EQ(bars, (MixBars{255, 255, 255}));
    EXPECT_EQ(MixLabelText(Rgb(1, 20, 255)), "RGB: 1, 20, 255");
}

TEST(MixGradient, PaletteSizeTest) {
    const struct {
        int W, H;
        PaletteFit Want;
    } cases[] = {
        {40, 100, PaletteFit::Fits},     {42, 102, PaletteFit::Fits},
        {43, 100, PaletteFit::TooLarge}, {40, 103, PaletteFit::TooLarge},
        {39, 100, PaletteFit::TooSmall}, {40, 99, PaletteFit::TooSmall},
        {43, 99, PaletteFit::TooSmall},  // wider but not tall enough: the first test fits
    };
    for (const auto& c : cases) EXPECT_EQ(PaletteFitOf(c.W, c.H, 40, 100), c.Want) << c.W << "x" << c.H;
}

}  // namespace
}  // namespace vexlo::color
