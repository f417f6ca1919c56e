// Written icon files byte for byte: lengths, headers, color tables, row order and padding, the
// depth that the pixels choose, and round trips through the reader.
#include <gtest/gtest.h>

#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"
#include "core/files/ico_write.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

using surface::Color;
using surface::Rgb;
using surface::Surface;
using test::ByteVec;
using test::Filled;
using test::U16At;
using test::U32At;

constexpr Color kWhite = 0xFFFFFF;
constexpr std::size_t kTable = 62;  // first byte after the BITMAPINFOHEADER

// An image of `count` distinct colors in first-appearance order (none black or white),
// the rest of the pixels black.
Surface DistinctColors(int side, int count) {
    Surface s = Filled(side, 0);
    for (int i = 0; i < count; ++i) s.SetPixelV(i % side, i / side, Rgb(1 + i % 250, 1 + i / 250, 9));
    return s;
}

// An alpha array of value x + y.
alpha::AlphaArray Ramp(int side) {
    alpha::AlphaArray a;
    a.SetBounds(side - 1);
    for (int x = 0; x < side; ++x)
        for (int y = 0; y < side; ++y) a.At(x, y) = static_cast<std::uint8_t>(x + y);
    return a;
}

struct DepthCase {
    const char* name;
    Surface image;
    IconWriteOptions options;
    std::size_t length;
    int bitCount, colorCount;
};

TEST(IcoWrite, LengthAndDepthFollowThePixels) {
    const alpha::AlphaArray ramp = Ramp(32);
    Surface vga = Filled(32, 0);
    vga.SetPixelV(5, 5, Rgb(128, 0, 128));
    Surface two = Filled(32, 0);
    two.SetPixelV(0, 0, kWhite);
    const std::vector<DepthCase> cases = {
        {"1 bit", two, {}, 326, 1, 2},
        {"4 bits", vga, {}, 766, 4, 16},
        {"8 bits", DistinctColors(32, 200), {}, 2238, 8, 0},
        {"24 bits", DistinctColors(32, 300), {}, 3262, 24, 0},
        {"32 bits", DistinctColors(32, 300), {true, false, true, &ramp}, 4286, 32, 0},
        // Only a true-color slot with alpha pins the depth: two colors stay 32 bits...
        {"32 BPP of two colors", two, {true, false, true, &ramp}, 4286, 32, 0},
        // ... or 24 when the save doesn't pass the alpha flag,
        {"pinned without the alpha flag", two, {false, false, true, nullptr}, 3262, 24, 0},
        // and the alpha flag alone doesn't keep true color.
        {"alpha flag, not pinned", two, {true, false, false, &ramp}, 326, 1, 2},
        {"force256 on two colors", two, {false, true, false, nullptr}, 2238, 8, 0},
        {"force256 on sixteen", vga, {false, true, false, nullptr}, 2238, 8, 0},
        {"force256 ignored when pinned", two, {false, true, true, nullptr}, 3262, 24, 0},
        {"blank 16x16", Filled(16, 0), {}, 198, 1, 2},
        {"48x48 1 bit", Filled(48, kWhite), {}, 22 + 816, 1, 2},
        {"48x48 32 bits", DistinctColors(48, 300), {true, false, true, nullptr}, 0, 0, 0},  // no alpha values
    };
    for (const DepthCase& c : cases) {
        const ByteVec b = BuildIconFileBytes(c.image, Filled(c.image.Width(), 0), c.options);
        ASSERT_EQ(b.size(), c.length) << c.name;
        if (b.empty()) continue;
        EXPECT_EQ(U16At(b, 6 + 6), c.bitCount) << c.name;   // wBitCount
        EXPECT_EQ(U16At(b, 22 + 14), c.bitCount) << c.name;  // biBitCount
        EXPECT_EQ(b[6 + 2], c.colorCount) << c.name;         // bColorCount
        EXPECT_EQ(U32At(b, 6 + 8), b.size() - 22) << c.name;  // dwBytesInRes
    }
}

TEST(IcoWrite, ImageBytesForEverySizeAndDepth) {
    struct Case {
        int n, w;
        bool alpha;
        int bytes;
    };
    const Case cases[] = {
        {2, 32, false, 304},  {16, 32, false, 744},  {256, 32, false, 2216}, {-1, 32, false, 3240},
        {-1, 32, true, 4264}, {2, 16, false, 176},   {16, 16, false, 296},   {256, 16, false, 1384},
        {-1, 16, false, 872}, {-1, 16, true, 1128},  {2, 48, false, 816},    {16, 48, false, 1640},
        {256, 48, false, 3752}, {-1, 48, false, 7336}, {-1, 48, true, 9640},
    };
    for (const Case& c : cases) EXPECT_EQ(ImageBytes(c.n, c.w, c.w, c.alpha), c.bytes) << c.n << " " << c.w;
}

TEST(IcoWrite, HeadersOfA16ColorFile) {
    Surface vga = Filled(32, Rgb(0, 0, 128));
    const ByteVec b = BuildIconFileBytes(vga, Filled(32, kWhite), {});
    const ByteVec want = {
        0, 0, 1, 0, 1, 0,                                         // idReserved, idType, idCount
        32, 32, 16, 0, 1, 0, 4, 0, 0xE8, 2, 0, 0, 22, 0, 0, 0,    // entry: 744 bytes at 22
        40, 0, 0, 0, 32, 0, 0, 0, 64, 0, 0, 0, 1, 0, 4, 0,        // biSize, biWidth, biHeight x2, planes, bits
        0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // all zero
    };
    ASSERT_GE(b.size(), want.size());
    EXPECT_EQ(ByteVec(b.begin(), b.begin() + static_cast<std::ptrdiff_t>(want.size())), want);
    // The sixteen-color table in its index order, blue, green, red, 0.
    const ByteVec table(b.begin() + kTable, b.begin() + kTable + 64);
    const ByteVec wantTable = {0, 0, 0, 0,       0, 0, 128, 0,     0, 128, 0, 0,     0, 128, 128, 0,
                               128, 0, 0, 0,     128, 0, 128, 0,   128, 128, 0, 0,   192, 192, 192, 0,
                               128, 128, 128, 0, 0, 0, 255, 0,     0, 255, 0, 0,     0, 255, 255, 0,
                               255, 0, 0, 0,     255, 0, 255, 0,   255, 255, 0, 0,   255, 255, 255, 0};
    EXPECT_EQ(table, wantTable);
    EXPECT_EQ(b[kTable + 64], 0x44);  // every pixel index 4
    EXPECT_EQ(b[b.size() - 1], 0xFF);  // all mask bits set, no padding at 32
}

TEST(IcoWrite, OneBitRowsRunBottomUpWithPaddingUnless32Wide) {
    for (const int side : {16, 32, 48}) {
        Surface image = Filled(side, 0);
        image.SetPixelV(0, 0, kWhite);              // top-left
        image.SetPixelV(side - 1, side - 1, kWhite);  // bottom-right
        Surface mask = Filled(side, 0);
        mask.SetPixelV(1, side - 1, kWhite);
        const ByteVec b = BuildIconFileBytes(image, mask, {});
        const std::size_t row = static_cast<std::size_t>(BitRowBytes(side));
        ASSERT_EQ(row, side == 48 ? 8u : 4u);
        const ByteVec table(b.begin() + kTable, b.begin() + kTable + 8);
        EXPECT_EQ(table, (ByteVec{0, 0, 0, 0, 255, 255, 255, 0})) << side;
        const std::size_t colors = kTable + 8, masks = colors + row * static_cast<std::size_t>(side);
        ASSERT_EQ(b.size(), masks + row * static_cast<std::size_t>(side)) << side;
        ByteVec bottom(row, 0), top(row, 0);
        bottom.at(static_cast<std::size_t>(side / 8) - 1) = 0x01;
        top.at(0) = 0x80;
        EXPECT_EQ(ByteVec(b.begin() + static_cast<std::ptrdiff_t>(colors), b.begin() + static_cast<std::ptrdiff_t>(colors + row)), bottom) << side;
        EXPECT_EQ(ByteVec(b.begin() + static_cast<std::ptrdiff_t>(masks - row), b.begin() + static_cast<std::ptrdiff_t>(masks)), top) << side;
        ByteVec maskBottom(row, 0);
        maskBottom.at(0) = 0x40;
        EXPECT_EQ(ByteVec(b.begin() + static_cast<std::ptrdiff_t>(masks), b.begin() + static_cast<std::ptrdiff_t>(masks + row)), maskBottom) << side;
    }
}

TEST(IcoWrite, CountColorsInItsOrder) {
    Surface vga = Filled(16, 0);
    for (int i = 0; i < 16; ++i) vga.SetPixelV(i, 0, SixteenColorTable()[static_cast<std::size_t>(i)]);
    Surface vgaPlusOne = vga;
    vgaPlusOne.SetPixelV(3, 3, Rgb(128, 128, 129));
    Surface twoFiftySixWithBlack = DistinctColors(32, 255);  // + black = 256
    Surface noBlack = DistinctColors(32, 256);               // fills 256 pixels...
    for (int i = 256; i < 1024; ++i) noBlack.SetPixelV(i % 32, i / 32, Rgb(1, 1, 9));  // ...and no black left
    struct Case {
        const char* name;
        Surface image;
        int want;
    };
    const Case cases[] = {
        {"black and white", Filled(16, kWhite), 2},
        {"sixteen VGA colors", vga, 16},
        {"one more color", vgaPlusOne, 256},
        {"255 colors and black", twoFiftySixWithBlack, 256},
        {"256 colors without black: black counts", noBlack, -1},
        {"257 colors", DistinctColors(32, 257), -1},
        {"empty", Surface(), -1},
    };
    for (const Case& c : cases) EXPECT_EQ(CountColors(c.image), c.want) << c.name;

    // An icon of sixteen VGA colors is written with 4 bits; one more color gives 8.
    EXPECT_EQ(U16At(BuildIconFileBytes(vga, Filled(16, 0), {}), 12), 4);
    EXPECT_EQ(U16At(BuildIconFileBytes(vgaPlusOne, Filled(16, 0), {}), 12), 8);
}

TEST(IcoWrite, Palette256HoldsColorsInFirstAppearanceBetweenBlackAndWhite) {
    Surface s = Filled(16, kWhite);
    s.SetPixelV(5, 0, Rgb(1, 2, 3));
    s.SetPixelV(0, 1, Rgb(4, 5, 6));  // later row, earlier column: still second
    s.SetPixelV(6, 0, 0);
    s.SetPixelV(7, 7, Rgb(1, 2, 3));
    const ColorTable256 t = BuildPalette256(s);
    EXPECT_EQ(t[0], 0u);
    EXPECT_EQ(t[1], Rgb(1, 2, 3));
    EXPECT_EQ(t[2], Rgb(4, 5, 6));
    EXPECT_EQ(t[3], 0u);
    EXPECT_EQ(t[254], 0u);
    EXPECT_EQ(t[255], kWhite);

    const ColorTable256 full = BuildPalette256(DistinctColors(32, 300));
    EXPECT_EQ(full[254], Rgb(1 + 253 % 250, 1 + 253 / 250, 9));  // stops at 254 colors
    EXPECT_EQ(full[255], kWhite);

    // force256 on two colors: black at 0, white at 255, nothing between; indices 0 and 255.
    Surface two = Filled(32, 0);
    two.SetPixelV(0, 31, kWhite);
    const ByteVec b = BuildIconFileBytes(two, Filled(32, 0), {false, true, false, nullptr});
    ASSERT_EQ(b.size(), 2238u);
    EXPECT_EQ(ByteVec(b.begin() + kTable, b.begin() + kTable + 4), (ByteVec{0, 0, 0, 0}));
    EXPECT_EQ(ByteVec(b.begin() + kTable + 1020, b.begin() + kTable + 1024), (ByteVec{255, 255, 255, 0}));
    for (std::size_t i = kTable + 4; i < kTable + 1020; ++i) ASSERT_EQ(b[i], 0) << i;
    EXPECT_EQ(b[kTable + 1024], 255);  // bottom-left pixel, first in the file
    EXPECT_EQ(b[kTable + 1025], 0);
}

TEST(IcoWrite, PixelsOutsideTheTablesRepeatAnEarlierIndex) {
    // 8 bits: 255 colors besides black pass the count, the table holds 254; the last one
    // repeats the index of the pixel before it.
    Surface s = DistinctColors(16, 255);  // pixels 0..254 of the top rows, rest black
    ASSERT_EQ(CountColors(s), 256);
    const ColorTable256 t = BuildPalette256(s);
    ByteVec rows;
    Write8BitRows(s, t, rows);
    ASSERT_EQ(rows.size(), 256u);
    // Pixel 254 is (14, 15), written at row 0 (bottom), place 14; pixel 13 of the row is 253.
    EXPECT_EQ(rows[13], 254);
    EXPECT_EQ(rows[14], 254);
    EXPECT_EQ(rows[15], 0);
    EXPECT_EQ(rows[16 * 15], 1);  // top-left, first color, written last

    // 4 bits: an unknown pixel takes the index found last for its side of the pair.
    Surface q = Filled(16, Rgb(255, 0, 0));  // index 9
    q.SetPixelV(0, 15, Rgb(0, 0, 255));      // bottom-left: index 12
    q.SetPixelV(2, 15, Rgb(1, 2, 3));        // unknown, left side: repeats 12
    q.SetPixelV(3, 15, Rgb(1, 2, 3));        // unknown, right side: repeats 9
    ByteVec nibbles;
    Write4BitRows(q, nibbles);
    ASSERT_EQ(nibbles.size(), 128u);
    EXPECT_EQ(nibbles[0], 0xC9);
    EXPECT_EQ(nibbles[1], 0xC9);
    EXPECT_EQ(nibbles[2], 0x99);
}

TEST(IcoWrite, RefusesPlanesOfAnotherSize) {
    const Surface ok = Filled(32, 0);
    EXPECT_TRUE(BuildIconFileBytes(Surface(24, 24, 0), Filled(24, 0), {}).empty());
    EXPECT_TRUE(BuildIconFileBytes(Surface(32, 16, 0), Surface(32, 16, 0), {}).empty());
    EXPECT_TRUE(BuildIconFileBytes(ok, Filled(16, 0), {}).empty());
    EXPECT_FALSE(BuildIconFileBytes(ok, ok, {}).empty());
}

// Written and read back: the same planes at every depth and size, and the alpha values.
TEST(IcoWrite, RoundTripsAtEveryDepthAndSize) {
    for (const int side : {16, 32, 48}) {
        Surface mask = Filled(side, 0);
        for (int i = 0; i < side; ++i) mask.SetPixelV(i, (i * 7) % side, kWhite);
        Surface two = Filled(side, 0), vga = Filled(side, 0);
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) {
                two.SetPixelV(x, y, (x * 3 + y) % 5 == 0 ? kWhite : 0);
                vga.SetPixelV(x, y, SixteenColorTable()[static_cast<std::size_t>((x + 2 * y) % 16)]);
            }
        Surface many = DistinctColors(side, 250);
        many.SetPixelV(side - 1, side - 1, kWhite);
        Surface full = Filled(side, 0);
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) full.SetPixelV(x, y, Rgb(x * 5 + 1, y * 5 + 1, (x * y) & 0xFF));  // none black: over 256
        const alpha::AlphaArray ramp = Ramp(side);
        struct Case {
            const char* name;
            const Surface* image;
            IconWriteOptions options;
            int bits;
        };
        const Case cases[] = {{"1", &two, {}, 1},   {"4", &vga, {}, 4},  {"8", &many, {}, 8},
                              {"24", &full, {}, 24}, {"32", &full, {true, false, true, &ramp}, 32}};
        for (const Case& c : cases) {
            const ByteVec b = BuildIconFileBytes(*c.image, mask, c.options);
            ASSERT_FALSE(b.empty());
            EXPECT_EQ(ProbeIconFile(Bytes(b)).BitCount, c.bits);
            Surface image, readMask;
            alpha::AlphaArray a;
            a.SetSingle();
            ASSERT_TRUE(ReadIconFileToImage(Bytes(b), 0, image, readMask, a)) << side << " " << c.name;
            EXPECT_TRUE(SamePixels(image, *c.image)) << side << " " << c.name;
            EXPECT_TRUE(SamePixels(readMask, mask)) << side << " " << c.name;
            if (c.bits == 32) {
                ASSERT_EQ(a.UpperBound(), side - 1);
                for (int x = 0; x < side; ++x)
                    for (int y = 0; y < side; ++y) ASSERT_EQ(a.At(x, y), ramp.At(x, y));
            } else {
                EXPECT_EQ(a.IsSingle(), c.bits != 24) << c.name;
            }
        }
    }
}

}  // namespace
}  // namespace vexlo::files
