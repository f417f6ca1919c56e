// ReadIconFileToImage on files laid out by hand: padding, row order, bit order, color bytes,
// alpha, and outputs left alone on failure.
#include <gtest/gtest.h>

#include "core/files/ico_messages.h"
#include "core/files/ico_read.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

using surface::Color;
using surface::Surface;
using test::ByteVec;
using test::MakeIcoFile;
using test::PlainImage;
using test::RawImage;

constexpr Color kC0 = surface::Rgb(3, 2, 1);           // table entry bytes 01 02 03 00
constexpr Color kC1 = surface::Rgb(0x30, 0x20, 0x10);  // table entry bytes 10 20 30 00
constexpr Color kSet = 0xFFFFFF;

// Sets table entry i of a color-table payload.
void SetEntry(RawImage& img, int i, Color c) {
    const auto at = static_cast<std::size_t>(4 * i);
    img.Payload[at] = static_cast<std::uint8_t>(surface::BlueOf(c));
    img.Payload[at + 1] = static_cast<std::uint8_t>(surface::GreenOf(c));
    img.Payload[at + 2] = static_cast<std::uint8_t>(surface::RedOf(c));
}

// Offsets within a payload of the color row and mask row that hold icon row y.
struct Layout {
    std::size_t table, colorRow, maskRow;
    int side;
    std::size_t Color(int y) const { return table + static_cast<std::size_t>(side - 1 - y) * colorRow; }
    std::size_t Mask(int y) const {
        return table + static_cast<std::size_t>(side) * colorRow + static_cast<std::size_t>(side - 1 - y) * maskRow;
    }
};
Layout LayoutOf(int side, int n, int bits) {
    return {n > 0 ? 4 * static_cast<std::size_t>(n) : 0, static_cast<std::size_t>(ColorRowBytes(n, bits, side)),
            static_cast<std::size_t>(BitRowBytes(side)), side};
}

struct Planes {
    Surface image{0, 0, 0x123456};
    Surface mask{0, 0, 0x654321};
    alpha::AlphaArray alpha;
    bool Read(const ByteVec& file, int index = 0) {
        return ReadIconFileToImage(Bytes(file), index, image, mask, alpha);
    }
};

struct BitRowCase {
    int side, rowBytes;
};

// 1-bit color rows and mask rows: padding after w/8 bytes unless w = 32, the most
// significant bit first, the first row in the file the bottom one. Padding bytes are
// filled with ones and must not show.
TEST(IcoRead, OneBitRowsArePaddedUnless32WideAndRunBottomUp) {
    for (const BitRowCase c : {BitRowCase{16, 4}, BitRowCase{32, 4}, BitRowCase{48, 8}}) {
        RawImage img = PlainImage(c.side, 1, 0);
        SetEntry(img, 0, kC0);
        SetEntry(img, 1, kC1);
        const Layout l = LayoutOf(c.side, 2, 1);
        ASSERT_EQ(l.colorRow, static_cast<std::size_t>(c.rowBytes));
        for (int y = 0; y < c.side; ++y)
            for (std::size_t p = static_cast<std::size_t>(c.side / 8); p < l.colorRow; ++p)
                img.Payload[l.Color(y) + p] = img.Payload[l.Mask(y) + p] = 0xFF;
        img.Payload[l.Color(c.side - 1)] = 0x80;                                  // (0, bottom)
        img.Payload[l.Color(0) + static_cast<std::size_t>(c.side / 8) - 1] = 0x01;  // (w-1, top)
        img.Payload[l.Color(1) + 1] = 0x40;                                       // (9, 1)
        img.Payload[l.Mask(0)] = 0x80;                                            // mask (0, top)
        img.Payload[l.Mask(c.side - 1) + static_cast<std::size_t>(c.side / 8) - 1] = 0x01;  // (w-1, bottom)
        Planes out;
        ASSERT_TRUE(out.Read(MakeIcoFile({img}))) << c.side;
        ASSERT_EQ(out.image.Width(), c.side);
        ASSERT_EQ(out.mask.Height(), c.side);
        for (int y = 0; y < c.side; ++y)
            for (int x = 0; x < c.side; ++x) {
                const bool one = (x == 0 && y == c.side - 1) || (x == c.side - 1 && y == 0) || (x == 9 && y == 1);
                const bool masked = (x == 0 && y == 0) || (x == c.side - 1 && y == c.side - 1);
                ASSERT_EQ(out.image.GetPixel(x, y), one ? kC1 : kC0) << c.side << " at " << x << "," << y;
                ASSERT_EQ(out.mask.GetPixel(x, y), masked ? kSet : 0u) << c.side << " at " << x << "," << y;
            }
    }
}

// (32 bits: alpha by (x, y), colors kept where masked: see the icotool fixture in ico_compat_test.)
TEST(IcoRead, TwentyFourBitsGiveAZeroAlphaArrayAndColorTablesLeaveItAlone) {
    RawImage rgb = PlainImage(16, 24, 0);
    const Layout l24 = LayoutOf(16, -1, 24);
    rgb.Payload[l24.Color(0) + 3] = 0x11;  // pixel (1,0): blue 11, green 22, red 33
    rgb.Payload[l24.Color(0) + 4] = 0x22;
    rgb.Payload[l24.Color(0) + 5] = 0x33;
    Planes out;
    out.alpha.SetSingle();
    ASSERT_TRUE(out.Read(MakeIcoFile({rgb})));
    EXPECT_EQ(out.image.GetPixel(1, 0), surface::Rgb(0x33, 0x22, 0x11));
    EXPECT_EQ(out.image.GetPixel(2, 0), 0u);
    ASSERT_EQ(out.alpha.UpperBound(), 15);
    EXPECT_EQ(out.alpha.At(15, 15), 0);

    out.alpha.At(3, 4) = 99;
    ASSERT_TRUE(out.Read(MakeIcoFile({PlainImage(32, 8, 0)})));
    EXPECT_EQ(out.alpha.UpperBound(), 15);
    EXPECT_EQ(out.alpha.At(3, 4), 99);
}

TEST(IcoRead, TheEntryAloneDecidesSizeAndEncoding) {
    // bColorCount 16 with wBitCount 8: read as 16 colors (4 bits); the header isn't looked at.
    RawImage img = PlainImage(32, 4, 0x11);
    img.Entry.BitCount = 8;
    img.Info = BitmapInfoHeader{};  // biSize 40 etc. all ignored
    img.Info.Size = 0;
    SetEntry(img, 1, surface::Rgb(9, 8, 7));
    Planes out;
    ASSERT_TRUE(out.Read(MakeIcoFile({img})));
    EXPECT_EQ(out.image.Width(), 32);
    EXPECT_EQ(out.image.GetPixel(31, 31), surface::Rgb(9, 8, 7));
    EXPECT_EQ(out.mask.GetPixel(3, 0), kSet);  // mask bytes 0x11: x = 3 and 7 of each 8
    EXPECT_EQ(out.mask.GetPixel(7, 0), kSet);
    EXPECT_EQ(out.mask.GetPixel(0, 0), 0u);

    // bHeight is not read by the reader: the image is w by w.
    RawImage flat = PlainImage(16, 1, 0);
    flat.Entry.Height = 0;
    ASSERT_TRUE(out.Read(MakeIcoFile({flat})));
    EXPECT_EQ(out.image.Height(), 16);
}

// (Truncations and broken headers: ico_hostile_test.)
TEST(IcoRead, RefusesIndexesOutsideTheDirectoryAndMissingFiles) {
    const ByteVec two = MakeIcoFile({PlainImage(16, 1, 0), PlainImage(48, 1, 0)});
    Planes out;
    EXPECT_FALSE(out.Read(two, 2));
    EXPECT_FALSE(out.Read(two, -1));
    EXPECT_FALSE(ReadIconFileToImage(std::string("/nonexistent/x.ico"), 0, out.image, out.mask, out.alpha));
    EXPECT_EQ(out.image.Width(), 0);
    ASSERT_TRUE(out.Read(two, 1));
    EXPECT_EQ(out.image.Width(), 48);
    EXPECT_EQ(out.image.BackColor(), 0x123456u);  // the Surfaces keep their back colors
}

TEST(IcoRead, PreviewComposesTheChosenImage) {
    RawImage img = PlainImage(16, 1, 0);
    SetEntry(img, 1, 0xFFFFFF);
    const Layout l = LayoutOf(16, 2, 1);
    img.Payload[l.Color(0)] = 0xC0;  // (0,0), (1,0) white
    img.Payload[l.Mask(0)] = 0x60;   // (1,0), (2,0) masked
    Surface image, mask, composed(1, 1, 0xC0C0C0);
    ASSERT_TRUE(ReadIconToPreview(Bytes(MakeIcoFile({img})), image, mask, composed));
    EXPECT_EQ(composed.Width(), 16);
    EXPECT_EQ(composed.GetPixel(0, 0), 0xFFFFFFu);  // painted white
    EXPECT_EQ(composed.GetPixel(1, 0), 0x3F3F3Fu);  // inverting: gray XOR white
    EXPECT_EQ(composed.GetPixel(2, 0), 0xC0C0C0u);  // transparent
    EXPECT_EQ(composed.GetPixel(3, 0), 0x000000u);  // painted black

    ByteVec unusable = MakeIcoFile({PlainImage(16, 1, 0)});
    test::PatchU32(unusable, 22 + 4, 20);
    EXPECT_FALSE(ReadIconToPreview(Bytes(unusable), image, mask, composed));
    EXPECT_EQ(composed.Width(), 16);
}

// The texts the window shows, with their line breaks (CR LF) where the description puts them.
TEST(IcoMessages, TextsAndLineBreaks) {
    const std::pair<std::string, std::string> cases[] = {
        {InvalidIconFileMessage("/a.ico"), "/a.ico\r\n\r\nInvalid icon file or icon not a size of\r\n16x16, 32x32 or 48x48."},
        {NoUsableIconMessage("/a.ico"), "/a.ico\r\nValid icon file, but no 32x32 or 16x16 or 48x48 icon there"},
        {IconNotOfSizeMessage("/a.ico"), "/a.ico\r\nIcon not of size 16x16, 32x32 or 48x48"},
        {FailedToLoadMessage("/a.ico"), "/a.ico\r\nFailed to load this file"},
        {TrueColorDepthMessage("/a.ico"), "/a.ico\r\nIncoming icon is a True Color icon but not of 24 BPP or 32 BPP.\r\n"},
        {AlphaCopyFailedMessage(), "\r\nFailed to copy the Alpha Channel values to record."},
        {CannotForce256Message(), "Current icon is a true-color icon, over 256 colors.\r\nCannot force save as 256-color."},
        {MultiIconReminderMessage(), "Reminder:  The original icon file contains multiple icons.\r\n\r\n"
                                     " If you don't wish to overwrite it, save to a different name."},
    };
    for (const auto& [got, want] : cases) EXPECT_EQ(got, want);
}

}  // namespace
}  // namespace vexlo::files
