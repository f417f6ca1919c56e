// The large and small icon of a group: which image is chosen, and its pixels drawn over white
// with its mask.
#include <gtest/gtest.h>

#include "core/extract/icon_choice.h"
#include "extract_test_files.h"

namespace vexlo::test {
namespace {

using extract::IconSize;

struct Image {
    int Side, Bits;
};

// A program file of one group of the images, in the order given.
IconLibrary GroupOf(const std::vector<Image>& images) {
    std::vector<Resource> res;
    std::vector<pe::GroupEntry> entries;
    for (std::size_t i = 0; i < images.size(); ++i) {
        res.push_back(IconImage(static_cast<std::uint16_t>(i + 1), images[i].Side, images[i].Bits));
        entries.push_back(EntryFor(res.back(), images[i].Side, images[i].Bits));
    }
    res.push_back(IconGroup(1, entries));
    return OpenLibrary(pe::BuildPe(res).Bytes);
}

TEST(IconChoice, ExactSizeThenNearestThenDeepestThenFirst) {
    struct Case {
        std::vector<Image> Images;
        int Large, Small;
    };
    const Case cases[] = {
        {{{16, 4}, {32, 4}, {32, 8}, {48, 8}}, 2, 0},
        {{{16, 8}, {48, 4}}, 1, 0},              // 16 and 48 are as near to 32: the larger
        {{{48, 8}, {48, 32}}, 1, 1},             // only 48: the deepest for both
        {{{32, 8}, {32, 8}}, 0, 0},              // the same twice: the first
        {{{32, 24}, {32, 1}, {48, 32}}, 0, 0},   // no 16: 32 is nearest
        {{{24, 8}, {16, 4}}, 1, 1},              // 24x24 is no size the reader takes
    };
    for (const Case& c : cases) {
        const IconLibrary library = GroupOf(c.Images);
        const extract::IconGroup& g = library.Groups().at(0);
        EXPECT_EQ(extract::ChooseGroupImage(library.Data(), g, 32), c.Large) << c.Images.size();
        EXPECT_EQ(extract::ChooseGroupImage(library.Data(), g, 16), c.Small) << c.Images.size();
    }
}

TEST(IconChoice, AGroupOfNoImageTheReaderTakesGivesNothing) {
    // A PNG image and a missing one.
    Resource png{extract::kRtIcon, 1, {}, 0, {0x89, 'P', 'N', 'G', 13, 10, 26, 10}};
    png.Data.resize(64, 0);
    pe::GroupEntry missing = EntryFor(png, 32, 32);
    missing.Id = 2;
    const IconLibrary library = OpenLibrary(pe::BuildPe({png, IconGroup(1, {EntryFor(png, 256, 32), missing})}).Bytes);
    ASSERT_EQ(library.CountIconGroups(), 1);
    extract::ExtractedIcon out;
    out.Image.Resize(5, 5);
    EXPECT_FALSE(library.ExtractGroupIcon(0, IconSize::Large, out));
    EXPECT_EQ(out.Image.Width(), 5);
    EXPECT_FALSE(library.ExtractGroupIcon(1, IconSize::Large, out));
}

// A 16x16 24-bit image: left half 0x123456, right half black; the top half masked.
IconLibrary HalvesLibrary() {
    DibIcon d;
    d.Side = 16;
    d.Bits = 24;
    d.Value = [](int x, int) { return x < 8 ? 0x123456u : 0u; };
    d.Masked = [](int, int y) { return y < 8; };
    const Resource image{extract::kRtIcon, 1, {}, 0, DibIconBytes(d)};
    return OpenLibrary(pe::BuildPe({image, IconGroup(1, {EntryFor(image, 16, 24)})}).Bytes);
}

TEST(IconChoice, DrawsOverWhiteWithTheMask) {
    const IconLibrary library = HalvesLibrary();
    extract::ExtractedIcon small;
    ASSERT_TRUE(library.ExtractGroupIcon(0, IconSize::Small, small));
    ASSERT_EQ(small.Image.Width(), 16);
    struct Pixel {
        int X, Y;
        surface::Color Image, Mask;
    };
    // Masked: white XOR the color (white where the color is black, inverted where not).
    for (const Pixel p : {Pixel{0, 0, 0xEDCBA9, 0xFFFFFF}, Pixel{15, 7, 0xFFFFFF, 0xFFFFFF},
                          Pixel{0, 8, 0x123456, 0}, Pixel{15, 15, 0, 0}}) {
        EXPECT_EQ(small.Image.GetPixel(p.X, p.Y), p.Image) << p.X << "," << p.Y;
        EXPECT_EQ(small.Mask.GetPixel(p.X, p.Y), p.Mask) << p.X << "," << p.Y;
    }
    // The large icon is the same image stretched to 32x32, each pixel doubled.
    extract::ExtractedIcon large;
    ASSERT_TRUE(library.ExtractGroupIcon(0, IconSize::Large, large));
    ASSERT_EQ(large.Image.Width(), 32);
    ASSERT_EQ(large.Mask.Height(), 32);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            ASSERT_EQ(large.Image.GetPixel(x, y), small.Image.GetPixel(x / 2, y / 2)) << x << "," << y;
            ASSERT_EQ(large.Mask.GetPixel(x, y), small.Mask.GetPixel(x / 2, y / 2)) << x << "," << y;
        }
}

TEST(IconChoice, ThirtyTwoBitImagesBlendOverWhiteAndTakeTheirMaskFromAlpha) {
    DibIcon d;
    d.Side = 32;
    d.Bits = 32;
    d.Value = [](int, int) { return 0x0000FFu; };  // red
    d.Alpha = [](int x, int) { return x < 8 ? 255 : x < 16 ? 128 : x < 24 ? 127 : 0; };
    const Resource image{extract::kRtIcon, 1, {}, 0, DibIconBytes(d)};
    const IconLibrary library = OpenLibrary(pe::BuildPe({image, IconGroup(1, {EntryFor(image, 32, 32)})}).Bytes);
    extract::ExtractedIcon out;
    ASSERT_TRUE(library.ExtractGroupIcon(0, IconSize::Large, out));
    // Each channel: (c x a + 255 x (255 - a) + 127) / 255; the mask set where alpha < 128.
    struct Column {
        int X;
        surface::Color Image, Mask;
    };
    for (const Column c : {Column{0, surface::Rgb(255, 0, 0), 0}, Column{8, surface::Rgb(255, 127, 127), 0},
                           Column{16, surface::Rgb(255, 128, 128), 0xFFFFFF},
                           Column{24, surface::Rgb(255, 255, 255), 0xFFFFFF}}) {
        EXPECT_EQ(out.Image.GetPixel(c.X, 5), c.Image) << c.X;
        EXPECT_EQ(out.Mask.GetPixel(c.X, 5), c.Mask) << c.X;
    }
}

TEST(IconChoice, PaletteImagesDrawTheirTableColors) {
    DibIcon d;
    d.Side = 32;
    d.Bits = 4;
    d.Value = [](int x, int y) { return static_cast<std::uint32_t>((x + y) % 16); };
    const Resource image{extract::kRtIcon, 1, {}, 0, DibIconBytes(d)};
    const IconLibrary library = OpenLibrary(pe::BuildPe({image, IconGroup(1, {EntryFor(image, 32, 4)})}).Bytes);
    extract::ExtractedIcon out;
    ASSERT_TRUE(library.ExtractGroupIcon(0, IconSize::Large, out));
    for (int y = 0; y < 32; y += 5)
        for (int x = 0; x < 32; x += 3) EXPECT_EQ(out.Image.GetPixel(x, y), PaletteColor((x + y) % 16));
}

}  // namespace
}  // namespace vexlo::test
