#pragma once
// What the cli tests share: running a command in-process, the fixtures, PNG files in and out
// (through the cli's own libpng code, which tests compare with formulas and with icotool), and
// icon files built byte by byte.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "cli/cli_commands.h"
#include "cli/png_io.h"
#include "core/files/byte_reader.h"

namespace vexlo::test {

struct CliResult {
    int code;
    std::string out, err;
};

inline CliResult Cli(std::vector<std::string> args) {
    CliResult r;
    r.code = cli::RunCli(args, r.out, r.err);
    return r;
}

// A fixture file: folder "ico" (shared with core's tests) or "cli".
inline std::string Fixture(const std::string& folder, const std::string& name) {
    return std::string(VEXLO_FIXTURES_DIR) + "/" + folder + "/" + name;
}

using Rgba = std::array<int, 4>;

// The pixels of a PNG file (8-bit RGBA), or an empty picture if it can't be read.
inline cli::RgbaImage ReadPngFile(const std::string& path) {
    std::vector<std::uint8_t> data;
    cli::RgbaImage image;
    std::string why;
    if (files::ReadWholeFile(path, data) != files::FileReadStatus::Ok) return image;
    const auto any = [](int, int, std::string&) { return true; };
    if (!cli::ReadPng(files::Bytes(data.data(), data.size()), any, image, nullptr, why)) image = {};
    return image;
}

inline Rgba PixelAt(const cli::RgbaImage& image, int x, int y) {
    const std::uint8_t* p = image.At(x, y);
    return {p[0], p[1], p[2], p[3]};
}

// Writes a w x h RGBA PNG whose pixel (x, y) is f(x, y); answers the path.
inline std::string WritePng(const std::string& path, int w, int h, const std::function<Rgba(int, int)>& f) {
    cli::RgbaImage image;
    image.Reset(w, h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const Rgba c = f(x, y);
            for (std::size_t i = 0; i < 4; ++i) image.At(x, y)[i] = static_cast<std::uint8_t>(c[i]);
        }
    std::string why;
    EXPECT_TRUE(cli::WritePngFile(image, path, why)) << why;
    return path;
}

inline void Put16(std::vector<std::uint8_t>& b, std::uint32_t v) {
    b.push_back(static_cast<std::uint8_t>(v));
    b.push_back(static_cast<std::uint8_t>(v >> 8));
}
inline void Put32(std::vector<std::uint8_t>& b, std::uint32_t v) {
    Put16(b, v & 0xFFFF);
    Put16(b, v >> 16);
}

// The fields of an info header that the tests change; the header is Size bytes long, zero
// beyond the fields that a 40-byte header holds.
struct Dib {
    std::uint32_t Size = 40;
    std::int32_t Width = 16;
    std::int32_t Height = 32;
    std::uint16_t Planes = 1;
    std::uint16_t Bits = 1;
    std::uint32_t Compression = 0;
    std::uint32_t ClrUsed = 0;
};

inline std::vector<std::uint8_t> DibHeaderBytes(const Dib& d) {
    std::vector<std::uint8_t> b;
    Put32(b, d.Size);
    Put32(b, static_cast<std::uint32_t>(d.Width));
    Put32(b, static_cast<std::uint32_t>(d.Height));
    Put16(b, d.Planes);
    Put16(b, d.Bits);
    Put32(b, d.Compression);
    for (int i = 0; i < 3; ++i) Put32(b, 0);
    Put32(b, d.ClrUsed);
    Put32(b, 0);
    if (d.Size > b.size()) b.resize(d.Size, 0);
    return b;
}

// One directory entry of an icon or cursor file.
struct Entry {
    int Width = 16, Height = 16;
    std::uint16_t Planes = 1, BitCount = 1;  // a cursor's hotspot
    std::vector<std::uint8_t> Image;
    std::int64_t Offset = -1;     // -1: where the image is placed
    std::int64_t BytesInRes = -1;  // -1: the image's length
};

// A file of the entries, their images one after the other behind the directory.
inline std::vector<std::uint8_t> IconFileBytes(const std::vector<Entry>& entries, std::uint16_t type = 1) {
    std::vector<std::uint8_t> b;
    Put16(b, 0);
    Put16(b, type);
    Put16(b, static_cast<std::uint32_t>(entries.size()));
    std::uint32_t at = static_cast<std::uint32_t>(6 + 16 * entries.size());
    for (const Entry& e : entries) {
        b.push_back(static_cast<std::uint8_t>(e.Width));
        b.push_back(static_cast<std::uint8_t>(e.Height));
        b.push_back(0);
        b.push_back(0);
        Put16(b, e.Planes);
        Put16(b, e.BitCount);
        const std::int64_t bytes = e.BytesInRes < 0 ? static_cast<std::int64_t>(e.Image.size()) : e.BytesInRes;
        Put32(b, static_cast<std::uint32_t>(bytes));
        Put32(b, e.Offset < 0 ? at : static_cast<std::uint32_t>(e.Offset));
        at += static_cast<std::uint32_t>(e.Image.size());
    }
    for (const Entry& e : entries) b.insert(b.end(), e.Image.begin(), e.Image.end());
    return b;
}

}  // namespace vexlo::test
