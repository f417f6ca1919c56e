// The 24-bit BMP writer byte for byte, and the import of a picture into icon planes: the cut
// to 16, 32 or 48 from the top left and gray 0xC0C0C0 to transparent.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/files/bmp_write.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

using surface::Color;
using surface::Rgb;
using surface::Surface;
using test::ByteVec;
using test::U16At;
using test::U32At;

// Pixel (x, y) of the test pictures: distinct in every byte.
Color PixelOf(int x, int y) { return Rgb(10 + x, 100 + y, 200 + x + y); }

Surface Picture(int w, int h) {
    Surface s(w, h, 0);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) s.SetPixelV(x, y, PixelOf(x, y));
    return s;
}

TEST(BmpWrite, TheWholeFileOfA2x2) {
    Surface s(2, 2, 0);
    s.SetPixelV(0, 0, Rgb(1, 2, 3));
    s.SetPixelV(1, 0, Rgb(4, 5, 6));
    s.SetPixelV(0, 1, Rgb(7, 8, 9));
    s.SetPixelV(1, 1, Rgb(10, 11, 12));
    const ByteVec expected = {
        'B', 'M', 70, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,          // file header: 54 + 2 rows of 8
        40, 0, 0, 0, 2, 0, 0, 0, 2, 0, 0, 0, 1, 0, 24, 0,        // biSize, 2 x 2, 1 plane, 24 bits
        0, 0, 0, 0, 16, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,          // BI_RGB, 16 bytes of rows, 0 ppm
        0, 0, 0, 0, 0, 0, 0, 0,                                   // colors used, important
        9, 8, 7, 12, 11, 10, 0, 0,                                // the bottom row first, BGR, padded
        3, 2, 1, 6, 5, 4, 0, 0,
    };
    EXPECT_EQ(BuildBmpBytes(s), expected);
}

TEST(BmpWrite, SizesPaddingAndBottomUpRowsAtEveryWidth) {
    const struct { int w, h; std::size_t row; } cases[] = {
        {1, 3, 4}, {2, 1, 8}, {3, 2, 12}, {4, 2, 12}, {5, 1, 16}, {16, 16, 48}, {32, 32, 96}, {48, 48, 144}, {48, 7, 144},
    };
    for (const auto& c : cases) {
        const ByteVec b = BuildBmpBytes(Picture(c.w, c.h));
        const std::size_t size = 54 + c.row * static_cast<std::size_t>(c.h);
        ASSERT_EQ(b.size(), size) << c.w;
        EXPECT_EQ(U32At(b, 2), size) << c.w;
        EXPECT_EQ(U32At(b, 10), 54u) << c.w;
        EXPECT_EQ(static_cast<int>(U32At(b, 18)), c.w) << c.w;
        EXPECT_EQ(static_cast<int>(U32At(b, 22)), c.h) << c.w;  // positive: bottom-up
        EXPECT_EQ(U16At(b, 28), 24) << c.w;
        EXPECT_EQ(U32At(b, 34), c.row * static_cast<std::size_t>(c.h)) << c.w;
        for (int y = 0; y < c.h; ++y) {
            const std::size_t row = 54 + c.row * static_cast<std::size_t>(c.h - 1 - y);
            for (int x = 0; x < c.w; ++x) {
                const std::size_t at = row + 3 * static_cast<std::size_t>(x);
                ASSERT_EQ(Rgb(b[at + 2], b[at + 1], b[at]), PixelOf(x, y)) << c.w << " " << x << "," << y;
            }
            for (std::size_t p = 3 * static_cast<std::size_t>(c.w); p < c.row; ++p) ASSERT_EQ(b[row + p], 0) << c.w;
        }
    }
    EXPECT_TRUE(BuildBmpBytes(Surface()).empty());
}

TEST(BmpWrite, WritesTheFile) {
    const std::string path = (std::filesystem::temp_directory_path() / "vexlo-bmp-write-test.bmp").string();
    ASSERT_TRUE(WriteBmpFile(Picture(16, 16), path));
    EXPECT_EQ(test::ReadBytes(path), BuildBmpBytes(Picture(16, 16)));
    std::filesystem::remove(path);
    EXPECT_FALSE(WriteBmpFile(Surface(), path));
}

// The planes of an import as ASCII, one character a pixel: '.' transparent (image black,
// mask white), '#' painted with the picture's pixel, '?' anything else.
std::vector<std::string> Planes(const Surface& picture, const Surface& image, const Surface& mask) {
    std::vector<std::string> rows;
    for (int y = 0; y < image.Height(); ++y) {
        std::string row;
        for (int x = 0; x < image.Width(); ++x) {
            const Color i = image.GetPixel(x, y), m = mask.GetPixel(x, y);
            row += i == 0 && m == 0xFFFFFF ? '.' : (m == 0 && i == picture.GetPixel(x, y)) ? '#' : '?';
        }
        rows.push_back(row);
    }
    return rows;
}

TEST(BmpImport, CutToTheSmallestIconSizeFromTheTopLeft) {
    const struct { int w, h, side; bool iconSize; } cases[] = {
        {16, 16, 16, true}, {32, 32, 32, true}, {48, 48, 48, true}, {20, 10, 32, false}, {100, 60, 48, false},
        {1, 1, 16, false},  {16, 17, 32, false}, {33, 2, 48, false}, {32, 16, 32, false},
    };
    for (const auto& c : cases) {
        const Surface picture = Picture(c.w, c.h);
        EXPECT_EQ(IsIconSize(picture), c.iconSize) << c.w << "x" << c.h;
        Surface image, mask;
        ASSERT_EQ(ImportPicture(picture, image, mask), c.side) << c.w << "x" << c.h;
        ASSERT_EQ(image.Width(), c.side);
        ASSERT_EQ(mask.Height(), c.side);
        const std::vector<std::string> rows = Planes(picture, image, mask);
        for (int y = 0; y < c.side; ++y)
            for (int x = 0; x < c.side; ++x)
                ASSERT_EQ(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)], x < c.w && y < c.h ? '#' : '.')
                    << c.w << "x" << c.h << " at " << x << "," << y;
    }
}

TEST(BmpImport, GrayBecomesTransparentAndComesBackSo) {
    Surface picture(16, 16, 0);
    picture.Fill(Rgb(0, 0, 255));
    picture.Line(0, 0, 16, 16, 0xC0C0C0);
    picture.SetPixelV(3, 0, 0xC0C0C1);  // near gray stays
    Surface image, mask;
    ASSERT_EQ(ImportPicture(picture, image, mask), 16);
    const std::vector<std::string> rows = Planes(picture, image, mask);
    EXPECT_EQ(rows[0], ".###############");
    EXPECT_EQ(rows[5], "#####.##########");
    EXPECT_EQ(rows[15], "###############.");

    // The composed icon (transparent pixels gray) written as a bitmap and read back gives the
    // same mask.
    Surface composed(16, 16, 0xC0C0C0);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            if (mask.GetPixel(x, y) == 0) composed.SetPixelV(x, y, image.GetPixel(x, y));
    const ByteVec bmp = BuildBmpBytes(composed);
    Surface back(16, 16, 0);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) {
            const std::size_t at = 54 + 48 * static_cast<std::size_t>(15 - y) + 3 * static_cast<std::size_t>(x);
            back.SetPixelV(x, y, Rgb(bmp[at + 2], bmp[at + 1], bmp[at]));
        }
    Surface image2, mask2;
    ImportPicture(back, image2, mask2);
    EXPECT_TRUE(SamePixels(mask2, mask));
    EXPECT_TRUE(SamePixels(image2, image));
}

TEST(BmpImport, Texts) {
    EXPECT_EQ(NotIconSizeQuestion(20, 10),
              "Image size is of 20x10; not 16x16, 32x32 or 48x48.\r\n\r\nChange to suit the most appropriate size?");
    EXPECT_EQ(BitmapReminderMessage(), "Reminder:  Since the incoming image is of bitmap format,\r\n"
                                       "use Erase, or Fill (+Shift Key), to create transparent area(s).");
    EXPECT_EQ(PictureNotLoadedMessage("/a.gif"), "/a.gif\r\nFailed to load this file");
}

}  // namespace
}  // namespace vexlo::files
