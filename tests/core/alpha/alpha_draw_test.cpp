// The two pictures of alpha values: grays and the blend over the display gray.
#include <gtest/gtest.h>

#include "core/alpha/alpha_draw.h"

namespace vexlo::test {
namespace {

using surface::Color;
using surface::Rgb;
using surface::Surface;

TEST(AlphaDraw, GraysAndBlendsFollowWholePercentSteps) {
    struct Case {
        int alpha;
        int percent;
        int gray;       // of the values picture: floored percent
        int swatch;     // of the chosen value: rounded percent
        Color onRed;    // RGB(255,0,0) over 192 gray
        Color onWhite;
        Color onBlack;
    };
    const Case cases[] = {
        {0, 0, 255, 255, Rgb(192, 192, 192), Rgb(192, 192, 192), Rgb(192, 192, 192)},
        {1, 0, 255, 255, Rgb(192, 192, 192), Rgb(192, 192, 192), Rgb(192, 192, 192)},
        {2, 0, 255, 252, Rgb(192, 192, 192), Rgb(192, 192, 192), Rgb(192, 192, 192)},
        // 30.196 % floors to 30: 70 % of 255 is 178.5, which rounds to the even 178.
        {77, 30, 178, 178, Rgb(210, 134, 134), Rgb(210, 210, 210), Rgb(134, 134, 134)},
        // 49.8 % floors to 49 for the picture and rounds to 50 for the swatch.
        {127, 49, 130, 128, Rgb(222, 97, 97), Rgb(222, 222, 222), Rgb(97, 97, 97)},
        {128, 50, 128, 128, Rgb(223, 96, 96), Rgb(223, 223, 223), Rgb(96, 96, 96)},
        {254, 99, 3, 0, Rgb(254, 1, 1), Rgb(254, 254, 254), Rgb(1, 1, 1)},
        {255, 100, 0, 0, Rgb(255, 0, 0), Rgb(255, 255, 255), Rgb(0, 0, 0)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.alpha);
        EXPECT_EQ(alpha::AlphaPercent(c.alpha), c.percent);
        EXPECT_EQ(alpha::AlphaGray(c.alpha), c.gray);
        EXPECT_EQ(alpha::AlphaSwatch(c.alpha), Rgb(c.swatch, c.swatch, c.swatch));
        EXPECT_EQ(alpha::BlendOverBackground(Rgb(255, 0, 0), c.alpha), c.onRed);
        EXPECT_EQ(alpha::BlendOverBackground(Rgb(255, 255, 255), c.alpha), c.onWhite);
        EXPECT_EQ(alpha::BlendOverBackground(Rgb(0, 0, 0), c.alpha), c.onBlack);
    }
}

TEST(AlphaDraw, OnlyPaintedCellsAreDrawn) {
    // 2x2: (0,0) painted at 255, (1,0) painted at 128, (0,1) transparent, (1,1) painted at 1.
    Surface mask(2, 2, 0xFFFFFF), image(2, 2, 0), values(2, 2, 0x123456), blended(2, 2, 0);
    mask.Fill(0);
    mask.SetPixelV(0, 1, 0xFFFFFF);
    image.Fill(Rgb(255, 0, 0));
    values.Fill(0x123456);
    alpha::AlphaArray a;
    a.SetBounds(1);
    a.At(0, 0) = 255;
    a.At(1, 0) = 128;
    a.At(0, 1) = 200;
    a.At(1, 1) = 1;
    alpha::DrawAlphaValues(mask, a, values);
    alpha::DrawAlphaIcon(mask, image, a, 2, blended);
    EXPECT_EQ(values.GetPixel(0, 0), Rgb(0, 0, 0));
    EXPECT_EQ(values.GetPixel(1, 0), Rgb(128, 128, 128));
    EXPECT_EQ(values.GetPixel(0, 1), Color{0x123456});  // transparent: left as it was
    EXPECT_EQ(values.GetPixel(1, 1), Rgb(255, 255, 255));
    EXPECT_EQ(blended.GetPixel(0, 0), Rgb(255, 0, 0));
    EXPECT_EQ(blended.GetPixel(1, 0), Rgb(223, 96, 96));
    EXPECT_EQ(blended.GetPixel(0, 1), alpha::kAlphaBackground);
    EXPECT_EQ(blended.GetPixel(1, 1), alpha::kAlphaBackground);
}

}  // namespace
}  // namespace vexlo::test
