#pragma once
// Multi-icon files for the tests of the multi-icon dialog: each image written alone by the ICO
// writer, then the images joined into one file, so that previews decode real pixels.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "core/files/ico_write.h"
#include "core/files/icon_set.h"

namespace vexlo::files::test {

// One image: its side and fill; pixel (0, 0) is transparent. With alpha it is written at 32
// bits with alpha 200 everywhere, else at the depth its colors need (red, a dark color and
// white come out at 16, 256 and 2 colors). A side of 64 is a 16x16 image whose entry says
// 64x64: an image of a size the dialog doesn't list.
struct Pic {
    int side;
    surface::Color fill;
    bool alpha = false;
};

inline IconImage PicImage(const Pic& p) {
    const int side = p.side == 64 ? 16 : p.side;
    surface::Surface image(side, side, 0), mask(side, side, 0);
    image.Fill(p.fill);
    image.SetPixelV(0, 0, 0);
    mask.SetPixelV(0, 0, 0xFFFFFF);
    alpha::AlphaArray alpha;
    alpha.SetBounds(side - 1);
    for (int x = 0; x < side; ++x)
        for (int y = 0; y < side; ++y) alpha.At(x, y) = 200;
    IconWriteOptions options;
    options.Alpha = options.KeepTrueColor = p.alpha;
    options.AlphaValues = &alpha;
    IconSet one;
    EXPECT_EQ(ReadIconSet(Bytes(BuildIconFileBytes(image, mask, options)), one), 1);
    IconImage out = one.Images.at(0);
    if (p.side == 64) out.Entry.Width = out.Entry.Height = 64;
    return out;
}

inline std::vector<std::uint8_t> MultiIconBytes(const std::vector<Pic>& pics) {
    IconSet set;
    for (const Pic& p : pics) set.Images.push_back(PicImage(p));
    return BuildIconSetBytes(set);
}

inline void WriteFileBytes(const std::string& path, const std::vector<std::uint8_t>& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

inline std::vector<std::uint8_t> ReadFileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// 16x16 at 16 colors, 32x32 at 256, 48x48 at 2.
inline const std::vector<Pic> kThreePics = {
    {16, surface::Rgb(255, 0, 0)}, {32, surface::Rgb(10, 20, 30)}, {48, 0xFFFFFF}};

}  // namespace vexlo::files::test
