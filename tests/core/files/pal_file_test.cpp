// Palette files: the strip saved and read back pixel for pixel, files of other layouts written
// from the BMP description (tests/fixtures/pal), and hostile files refused by their headers
// with the reason, before any pixel is read.
#include "core/files/pal_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "core/color/mix_gradient.h"
#include "core/files/bmp_write.h"
#include "support/test_bytes.h"
#include "support/test_folder.h"

namespace vexlo::files {
namespace {

using surface::Rgb;
using test::ByteVec;

// Reads bytes as the mixer does: headers, then pixels.
bool ReadPicture(const ByteVec& bytes, surface::Surface& picture, PaletteReadError* error = nullptr) {
    PaletteLayout layout;
    PaletteReadError why;
    const bool ok = ReadPaletteLayout(Bytes(bytes), layout, why) && DecodePalettePicture(Bytes(bytes), layout, picture);
    if (error) *error = why;
    return ok;
}

void PutU32At(ByteVec& b, std::size_t at, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) b[at + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(v >> (8 * i));
}

TEST(PaletteFile, SavedStripReadsBackAsA24BitBitmap) {
    test::TestFolder folder("vexlo_pal");
    surface::Surface strip(40, 100, 0xFFFFFF);
    color::DrawMixGradient(strip, Rgb(200, 0, 0), Rgb(0, 150, 0), Rgb(0, 0, 99));
    const std::string path = folder.Path("mix.pal");
    test::WriteBytes(path, ByteVec{1, 2, 3});  // an older file is replaced whole
    ASSERT_TRUE(WritePaletteFile(strip, path));

    ByteVec bytes;
    PaletteReadError error;
    ASSERT_TRUE(ReadPaletteFileBytes(path, bytes, error));
    ASSERT_EQ(bytes.size(), 54u + 120u * 100u);
    EXPECT_EQ(bytes[0], 'B');
    EXPECT_EQ(bytes[1], 'M');
    EXPECT_EQ(test::U32At(bytes, 2), bytes.size());
    EXPECT_EQ(test::U32At(bytes, 10), 54u);
    EXPECT_EQ(test::U16At(bytes, 28), 24);
    // The bottom row first: band 100's blue, green, red.
    const surface::Color last = strip.GetPixel(0, 99);
    EXPECT_EQ(bytes[54], surface::BlueOf(last));
    EXPECT_EQ(bytes[56], surface::RedOf(last));

    surface::Surface back;
    ASSERT_TRUE(ReadPicture(bytes, back));
    EXPECT_TRUE(SamePixels(back, strip));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Dir()), {}), 1);
}

TEST(PaletteFile, FilesOfOtherLayoutsRead) {
    const auto rgbOf = [](int x, int y) { return Rgb(2 * y, 5 * x, 255 - 2 * y); };
    const auto scaled = [](int v, int bits) {  // only the top bits of a component are kept
        return v >> (8 - bits) << (8 - bits);
    };
    const struct {
        const char* Name;
        int Width, Height;
        std::function<surface::Color(int, int)> Pixel;
    } cases[] = {
        {"mixer_8bit_41x101.pal", 41, 101, [&](int, int y) { return rgbOf(0, y); }},
        {"mixer_4bit_core_42x102.pal", 42, 102,
         [](int x, int y) {
             const int i = (x + y) % 16;
             return Rgb(16 * i, 100, 255 - 16 * i);
         }},
        {"mixer_32bit_v5_topdown_40x100.pal", 40, 100, rgbOf},
        {"mixer_16bit_565_40x100.pal", 40, 100,
         [&](int x, int y) {
             return Rgb(scaled(2 * y, 5), scaled(5 * x, 6), scaled(255 - 2 * y, 5));
         }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        ByteVec bytes;
        PaletteReadError error;
        ASSERT_TRUE(ReadPaletteFileBytes(test::FixturePathOf(std::string("pal/") + c.Name), bytes, error));
        surface::Surface picture;
        ASSERT_TRUE(ReadPicture(bytes, picture, &error)) << error.Description;
        ASSERT_EQ(picture.Width(), c.Width);
        ASSERT_EQ(picture.Height(), c.Height);
        for (int y = 0; y < c.Height; ++y)
            for (int x = 0; x < c.Width; ++x) ASSERT_EQ(picture.GetPixel(x, y), c.Pixel(x, y)) << x << "," << y;
    }
}

TEST(PaletteFile, HostileHeadersAreRefusedWithTheirReason) {
    // A good 24-bit file of 4 x 2 to start from; offsets: 10 bfOffBits, 14 biSize, 18 width,
    // 22 height, 26 planes, 28 bits, 30 compression, 46 biClrUsed.
    const ByteVec good = BuildBmpBytes(surface::Surface(4, 2, 0x123456));
    const auto with = [&](std::function<void(ByteVec&)> change) {
        ByteVec b = good;
        change(b);
        return b;
    };
    const auto eightBit = [&](std::uint32_t used) {
        return with([used](ByteVec& b) {
            b[28] = 8;
            PutU32At(b, 46, used);
        });
    };
    const struct {
        const char* Why;
        ByteVec Bytes;
        const char* Says;
    } cases[] = {
        {"empty", {}, "not a bitmap"},
        {"RIFF", with([](ByteVec& b) { b[0] = 'R'; }), "not a bitmap"},
        {"cut in the file header", ByteVec(good.begin(), good.begin() + 12), "ends inside the bitmap's header"},
        {"cut in the info header", ByteVec(good.begin(), good.begin() + 40), "ends inside the bitmap's header"},
        {"header of 41 bytes", with([](ByteVec& b) { PutU32At(b, 14, 41); }), "unknown bitmap header of 41"},
        {"width 0", with([](ByteVec& b) { PutU32At(b, 18, 0); }), "0 x 2 pixels"},
        {"huge width", with([](ByteVec& b) { PutU32At(b, 18, 0x7FFFFFFF); }), "2147483647 x 2"},
        {"most negative height", with([](ByteVec& b) { PutU32At(b, 22, 0x80000000); }), "x 2147483648 pixels"},
        {"two planes", with([](ByteVec& b) { b[26] = 2; }), "2 planes"},
        {"7 bits", with([](ByteVec& b) { b[28] = 7; }), "bitmaps of 7 bits"},
        {"RLE8", with([](ByteVec& b) { b[28] = 8; b[30] = 1; }), "compression 1"},
        {"bit fields at 24 bits", with([](ByteVec& b) { b[30] = 3; }), "compression 3"},
        {"257 colors for 8 bits", eightBit(257), "a color table of 257 entries"},
        {"a huge color count", eightBit(0xFFFFFFFF), "a color table of 4294967295"},
        {"table past the end", eightBit(0), "color table runs past the end"},
        {"rows past the end", ByteVec(good.begin(), good.end() - 1), "rows run past the end"},
        {"rows start past the end", with([](ByteVec& b) { PutU32At(b, 10, 0xFFFFFF00); }), "outside the file"},
        {"rows start in the header", with([](ByteVec& b) { PutU32At(b, 10, 20); }), "inside its headers"},
    };
    for (const auto& c : cases) {
        PaletteLayout layout;
        PaletteReadError error;
        EXPECT_FALSE(ReadPaletteLayout(Bytes(c.Bytes), layout, error)) << c.Why;
        EXPECT_EQ(error.Number, kInvalidPictureNumber) << c.Why;
        EXPECT_NE(error.Description.find(c.Says), std::string::npos) << c.Why << ": " << error.Description;
    }
    surface::Surface picture;
    ASSERT_TRUE(ReadPicture(good, picture));
    EXPECT_EQ(picture.GetPixel(3, 1), 0x123456u);
}

TEST(PaletteFile, OversizedPicturesAreNeverDecoded) {
    // 1 bit, 4096 x 2048: the rows fit in the file, the pixels are over the cap.
    const int w = 4096, h = 2048;
    ByteVec b = BuildBmpBytes(surface::Surface(1, 1, 0));
    b.resize(62);
    PutU32At(b, 10, 62);
    PutU32At(b, 18, w);
    PutU32At(b, 22, h);
    b[28] = 1;
    PutU32At(b, 46, 2);
    b.resize(62 + static_cast<std::size_t>(w / 8) * h, 0);
    PaletteLayout layout;
    PaletteReadError error;
    ASSERT_TRUE(ReadPaletteLayout(Bytes(b), layout, error)) << error.Description;
    EXPECT_EQ(layout.Width, w);
    surface::Surface untouched(2, 2, 0xABCDEF);
    EXPECT_FALSE(DecodePalettePicture(Bytes(b), layout, untouched));
    EXPECT_EQ(untouched.Width(), 2);
}

TEST(PaletteFile, MissingOrUnreadableFiles) {
    test::TestFolder folder("vexlo_pal");
    ByteVec bytes;
    PaletteReadError error;
    EXPECT_FALSE(ReadPaletteFileBytes(folder.Path("none.pal"), bytes, error));
    EXPECT_EQ(error.Number, kFileNotFoundNumber);
    EXPECT_FALSE(ReadPaletteFileBytes(folder.Dir().string(), bytes, error));
    EXPECT_EQ(error.Number, kFileAccessNumber);
    EXPECT_FALSE(WritePaletteFile(surface::Surface(), folder.Path("empty.pal")));
}

}  // namespace
}  // namespace vexlo::files
