// Cursor files: the bytes written at each depth with the hotspot in the entry, the probe's
// rules, decoding and drawing a cursor, hostile files, and the texts.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "core/files/cursor_file.h"
#include "core/files/ico_messages.h"
#include "core/files/ico_write.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

namespace fs = std::filesystem;
using surface::Color;
using surface::Rgb;
using surface::Surface;
using test::ByteVec;
using test::Filled;
using test::U16At;
using test::U32At;

// A 32x32 image of `count` distinct colors outside the sixteen (count 0: black and white).
Surface Colors(int count) {
    Surface s = Filled(32, 0);
    s.SetPixelV(31, 31, 0xFFFFFF);
    for (int i = 0; i < count; ++i) s.SetPixelV(i % 32, i / 32, Rgb(1 + i % 250, 1 + i / 250, 77));
    return s;
}

// A mask with a transparent diagonal.
Surface DiagonalMask() {
    Surface m = Filled(32, 0);
    for (int i = 0; i < 32; ++i) m.SetPixelV(i, i, 0xFFFFFF);
    return m;
}

struct DepthCase {
    const char* name;
    Surface image;
    int hotX, hotY;
    int bits, colorByte, colors;
    std::size_t length;
};

TEST(CursorFile, RoundTripAtEachDepthWithTheHotspotInTheEntry) {
    Surface vga = Filled(32, Rgb(0, 0, 128));
    vga.SetPixelV(1, 2, Rgb(255, 255, 0));
    const std::vector<DepthCase> cases = {
        {"1 bit", Colors(0), 0, 0, 1, 2, 2, 22 + 304},
        {"4 bits", vga, 31, 31, 4, 16, 16, 22 + 744},
        {"8 bits, four colors", Colors(4), 5, 17, 8, 0, 256, 22 + 2216},
        {"24 bits, never 32", Colors(300), 30, 1, 24, 0, -1, 22 + 3240},
    };
    const Surface mask = DiagonalMask();
    for (const DepthCase& c : cases) {
        const ByteVec b = BuildCursorFileBytes(c.image, mask, c.hotX, c.hotY);
        ASSERT_EQ(b.size(), c.length) << c.name;
        ByteVec head;  // header, entry with the hotspot, image header: all else 0
        AppendIconFileHeader(head, {0, 2, 1});
        AppendIconDirEntry(head, {32, 32, static_cast<std::uint8_t>(c.colorByte), 0, static_cast<std::uint16_t>(c.hotX),
                                  static_cast<std::uint16_t>(c.hotY), static_cast<std::uint32_t>(c.length - 22), 22});
        AppendBitmapInfoHeader(head, {40, 32, 64, 1, static_cast<std::uint16_t>(c.bits), 0, 0, 0, 0, 0, 0});
        EXPECT_EQ(ByteVec(b.begin(), b.begin() + 62), head) << c.name;

        const CursorProbe probe = ProbeCursorFile(Bytes(b));
        EXPECT_EQ(probe.Text(), "1/" + std::to_string(c.colors)) << c.name;
        EXPECT_EQ(BitsOfColorCount(probe.Colors), c.bits) << c.name;
        CursorImage read;
        ASSERT_TRUE(ReadCursorFile(Bytes(b), read)) << c.name;
        EXPECT_EQ(read.Probe.HotspotX, c.hotX);
        EXPECT_EQ(read.Probe.HotspotY, c.hotY);
        Surface image(32, 32, 0), gotMask(32, 32, 0);
        ASSERT_TRUE(DrawCursorFrame(read, image, 0, 0, CursorDraw::Image));
        ASSERT_TRUE(DrawCursorFrame(read, gotMask, 0, 0, CursorDraw::Mask));
        EXPECT_TRUE(SamePixels(image, c.image)) << c.name;
        EXPECT_TRUE(SamePixels(gotMask, mask)) << c.name;
    }
}

TEST(CursorFile, WritesOnlyA32x32WithTheHotspotInside) {
    const struct { int image, mask, x, y; bool ok; } cases[] = {
        {16, 16, 0, 0, false}, {48, 48, 0, 0, false}, {32, 16, 0, 0, false},
        {32, 32, 32, 0, false}, {32, 32, 0, -1, false}, {32, 32, 31, 31, true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(BuildCursorFileBytes(Filled(c.image, 0), Filled(c.mask, 0), c.x, c.y).empty(), !c.ok) << c.image;
}

TEST(CursorFile, ProbeRefusesAnythingButAStillCursorOf32x32) {
    const ByteVec good = BuildCursorFileBytes(Colors(0), Filled(32, 0), 3, 4);
    struct Case {
        const char* name;
        std::size_t at;
        int width;  // 1 or 2 bytes
        std::uint32_t value;
        const char* probe;
    } cases[] = {
        {"as written", 0, 1, 0, "1/2"},
        {"hotspot (31,31)", 10, 2, 31, "1/2"},
        {"hotspot x 32", 10, 2, 32, "0/0"},
        {"hotspot y 32", 12, 2, 32, "0/0"},
        {"an icon", 2, 2, 1, "0/0"},
        {"idReserved", 0, 2, 1, "0/0"},
        {"no images", 4, 2, 0, "0/0"},
        {"several images still open", 4, 2, 3, "1/2"},
        {"16 wide", 6, 1, 16, "0/0"},
        {"16 high", 7, 1, 16, "0/0"},
        {"bReserved", 9, 1, 1, "0/0"},
        {"offset 23", 18, 2, 23, "0/0"},
        {"offset past the end", 18, 2, 0xFFFF, "0/0"},
        {"16 bits a pixel", 36, 2, 16, "1/-1"},
    };
    for (const Case& c : cases) {
        ByteVec b = good;
        if (c.width == 1) b[c.at] = static_cast<std::uint8_t>(c.value);
        else if (c.at != 0 || c.value != 0) test::PatchU16(b, c.at, static_cast<std::uint16_t>(c.value));
        EXPECT_EQ(ProbeCursorFile(Bytes(b)).Text(), c.probe) << c.name;
    }
    // The probe passes a 16-bit image that the decoder can't read.
    ByteVec sixteen = good;
    test::PatchU16(sixteen, 36, 16);
    CursorImage out;
    EXPECT_FALSE(ReadCursorFile(Bytes(sixteen), out));
    EXPECT_EQ(ProbeCursorFile("/nonexistent/x.cur").Text(), "0/0");
}

TEST(CursorFile, TruncatedFilesFailSafely) {
    const ByteVec good = BuildCursorFileBytes(Colors(300), DiagonalMask(), 9, 9);
    CursorImage out;
    for (std::size_t len = 0; len < good.size(); ++len) {
        const Bytes cut(good.data(), len);
        ASSERT_EQ(ProbeCursorFile(cut).Valid, len >= 62) << len;
        ASSERT_FALSE(ReadCursorFile(cut, out)) << len;
    }
    EXPECT_EQ(out.Planes.Side, 0);  // untouched by every failure
}

TEST(CursorFile, DrawsMaskImageAndTheCursorOverWhatIsThere) {
    // Pixel (0,0) transparent (mask set, image black), (1,0) inverting (mask set, image white),
    // (2,0) painted red, the rest painted black.
    Surface image = Filled(32, 0), mask = Filled(32, 0);
    mask.SetPixelV(0, 0, 0xFFFFFF);
    mask.SetPixelV(1, 0, 0xFFFFFF);
    image.SetPixelV(1, 0, 0xFFFFFF);
    image.SetPixelV(2, 0, Rgb(255, 0, 0));
    CursorImage cursor;
    ASSERT_TRUE(ReadCursorFile(Bytes(BuildCursorFileBytes(image, mask, 0, 0)), cursor));

    constexpr Color kGray = 0xC0C0C0;
    Surface target = Filled(40, kGray);
    ASSERT_TRUE(DrawCursorFrame(cursor, target, 4, 4, CursorDraw::Normal, 7));  // a still cursor: any step
    EXPECT_EQ(target.GetPixel(4, 4), kGray);
    EXPECT_EQ(target.GetPixel(5, 4), kGray ^ 0xFFFFFF);
    EXPECT_EQ(target.GetPixel(6, 4), Rgb(255, 0, 0));
    EXPECT_EQ(target.GetPixel(7, 5), 0u);
    EXPECT_EQ(target.GetPixel(3, 3), kGray);  // outside the cursor
    ASSERT_TRUE(DrawCursorFrame(cursor, target, 4, 4, CursorDraw::Mask));
    EXPECT_EQ(target.GetPixel(4, 4), 0xFFFFFFu);
    EXPECT_EQ(target.GetPixel(6, 4), 0u);
    EXPECT_FALSE(DrawCursorFrame(cursor, target, 0, 0, CursorDraw::Image, -1));
    EXPECT_FALSE(DrawCursorFrame(CursorImage{}, target, 0, 0, CursorDraw::Image));
}

TEST(CursorFile, WriteReplacesTheFileAndTellsWhyItFailed) {
    std::string tmpl = (fs::temp_directory_path() / "vexlo-cur-XXXXXX").string();
    ASSERT_NE(::mkdtemp(tmpl.data()), nullptr);
    const std::string path = tmpl + "/arrow.cur";
    test::WriteBytes(path, ByteVec(9000, 1));
    ASSERT_TRUE(WriteCursorFile(Colors(0), Filled(32, 0), path, 1, 2));
    EXPECT_EQ(test::ReadBytes(path), BuildCursorFileBytes(Colors(0), Filled(32, 0), 1, 2));
    CursorImage read;
    EXPECT_TRUE(ReadCursorFile(path, read));

    EXPECT_FALSE(WriteCursorFile(Filled(16, 0), Filled(16, 0), path, 0, 0));
    EXPECT_EQ(CursorSaveFailedMessage(path), "Failed to save curosr");
    ::chmod(path.c_str(), 0444);
    std::string error;
    EXPECT_FALSE(WriteCursorFile(Colors(0), Filled(32, 0), path, 0, 0, &error));
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(CursorSaveFailedMessage(path),
              "File is read-only\r\n\r\nYou may save it under a different file name or reset the file attributes.");
    EXPECT_EQ(InvalidCursorFileMessage("/a.cur"), "/a.cur\r\nInvalid cursor file");
    EXPECT_STREQ(kCursorOf32Only, "For cursor of 32x32 only");
    EXPECT_STREQ(kFailedToLoadIcon, "Failed to load this icon");
    fs::remove_all(tmpl);
}

TEST(CursorFile, BitsOfColorCount) {
    const std::pair<int, int> cases[] = {{2, 1}, {16, 4}, {256, 8}, {-1, 24}, {0, 24}, {4, 24}};
    for (const auto& [colors, bits] : cases) EXPECT_EQ(BitsOfColorCount(colors), bits) << colors;
}

}  // namespace
}  // namespace vexlo::files
