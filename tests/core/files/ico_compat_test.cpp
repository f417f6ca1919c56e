// Files made by independent tools (icotool of icoutils, Pillow) decode to the pixels they were
// made from. tests/fixtures/ico/README.md tells how each was made; the formulas below are
// those of make_fixtures.py there.
#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

using surface::Color;
using surface::Rgb;
using test::ByteVec;

constexpr Color kWhite = 0xFFFFFF;
const std::array<Color, 4> kFour = {Rgb(255, 0, 0), Rgb(0, 128, 0), Rgb(0, 0, 255), Rgb(255, 255, 0)};

struct Expected {
    Color image;
    bool masked;
    int alpha;  // -1: no alpha values
};
using Pattern = std::function<Expected(int x, int y)>;

Expected T16(int x, int y) {
    if (x < 2 && y < 2) return {0, true, -1};
    return {(x + y) % 3 == 0 ? kWhite : 0, false, -1};
}
Expected Q32(int x, int y) {
    if (y == 31 || (x == 31 && y == 0)) return {0, true, -1};
    return {kFour[static_cast<std::size_t>((x / 8 + y / 8) % 4)], false, -1};
}
Expected Q16(int x, int y) { return {kFour[static_cast<std::size_t>((x / 4 + y / 4) % 4)], false, -1}; }
Expected E32(int x, int y) {
    if ((x == 0 && y == 0) || (x == 5 && y == 7)) return {0, true, -1};
    return {Rgb((x / 2) * 16, (y / 4) * 32, 77), false, -1};
}
Expected A48(int x, int y) {
    const int a = ((x + y) * 3) % 256;
    // icotool masks alpha up to 127 and writes a pixel of alpha 0 as 0,0,0,0.
    return {a == 0 ? 0 : Rgb(x * 5, y * 5, 200), a <= 127, a};
}
Expected P1(int x, int y) { return {(x * y) % 5 == 0 ? kWhite : 0, false, -1}; }
Expected P8(int x, int y) {
    const int i = (x + y * 3) % 20;
    return {Rgb(i, 255 - i, (i * 7) % 256), false, -1};
}
Expected P24(int x, int y) { return {Rgb(x * 8, y * 8, 128), false, -1}; }

struct Case {
    const char* file;
    const char* probe;
    int index, side;
    Pattern pattern;  // empty: the read fails
};

TEST(IcoCompat, FilesOfOtherToolsDecodeToTheirPixels) {
    const std::vector<Case> cases = {
        {"icotool_16_1bit.ico", "1/1/0/16/2/1", 0, 16, T16},
        {"icotool_32_4bit.ico", "1/1/0/32/16/4", 0, 32, Q32},
        {"icotool_32_8bit.ico", "1/1/0/32/256/8", 0, 32, E32},
        {"icotool_48_32bit.ico", "1/1/0/48/-1/32", 0, 48, A48},
        {"icotool_multi.ico", "2/3/2/32/256/8", 0, 16, Q16},
        {"icotool_multi.ico", "2/3/2/32/256/8", 1, 32, Q32},
        {"icotool_multi.ico", "2/3/2/32/256/8", 2, 32, E32},
        {"pillow_32_1bit.ico", "1/1/0/32/2/1", 0, 32, P1},
        {"pillow_32_8bit.ico", "1/1/0/32/256/8", 0, 32, P8},
        {"pillow_32_24bit.ico", "1/1/0/32/-1/24", 0, 32, P24},
        // A PNG-compressed entry is no image of this reader's.
        {"pillow_32_png.ico", "0/0/0/0/0/0", 0, 0, {}},
        // Pillow leaves out the mask of a 32-bit image, and writes the mask rows of a 16-wide
        // image unpadded: the files end before the mask does, and are refused as truncated.
        {"pillow_32_32bit_nomask.ico", "1/1/0/32/-1/32", 0, 0, {}},
        {"pillow_16_24bit_shortmask.ico", "1/1/0/16/-1/24", 0, 0, {}},
    };
    for (const Case& c : cases) {
        const ByteVec file = test::LoadFixture(std::string("ico/") + c.file);
        ASSERT_FALSE(file.empty()) << c.file;
        EXPECT_EQ(ProbeIconFile(std::string(VEXLO_FIXTURES_DIR) + "/ico/" + c.file).Text(), c.probe) << c.file;
        surface::Surface image, mask;
        alpha::AlphaArray a;
        const bool read = ReadIconFileToImage(Bytes(file), c.index, image, mask, a);
        ASSERT_EQ(read, static_cast<bool>(c.pattern)) << c.file;
        if (!read) continue;
        ASSERT_EQ(image.Width(), c.side) << c.file;
        ASSERT_EQ(mask.Height(), c.side) << c.file;
        for (int y = 0; y < c.side; ++y)
            for (int x = 0; x < c.side; ++x) {
                const Expected e = c.pattern(x, y);
                ASSERT_EQ(image.GetPixel(x, y), e.image) << c.file << " #" << c.index << " at " << x << "," << y;
                ASSERT_EQ(mask.GetPixel(x, y), e.masked ? kWhite : 0u) << c.file << " at " << x << "," << y;
                if (e.alpha >= 0) {
                    ASSERT_EQ(a.At(x, y), e.alpha) << c.file << " at " << x << "," << y;
                }
            }
    }
}

}  // namespace
}  // namespace vexlo::files
