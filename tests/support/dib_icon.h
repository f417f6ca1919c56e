#pragma once
// Stored icon images as program files and icon files hold them: a 40-byte bitmap header
// (height twice the side), the color table, the color rows and the mask rows, bottom row first,
// each row padded to 4 bytes. For 1, 4 and 8 bits a pixel's value is an index into a table
// whose entry i is PaletteColor(i); for 24 and 32 bits it is the COLORREF 0x00BBGGRR.
#include <cstdint>
#include <functional>

#include "support/test_bytes.h"

namespace vexlo::test {

inline std::uint32_t PaletteColor(int i) {
    const std::uint32_t r = static_cast<std::uint32_t>(i) & 0xFF, g = 255 - r, b = (r * 7) & 0xFF;
    return r | (g << 8) | (b << 16);
}

struct DibIcon {
    int Side = 32;
    int Bits = 8;
    std::function<std::uint32_t(int, int)> Value = [](int, int) { return 1u; };
    std::function<bool(int, int)> Masked = [](int, int) { return false; };
    std::function<int(int, int)> Alpha = [](int, int) { return 255; };  // 32 bits only
};

inline ByteVec DibIconBytes(const DibIcon& d) {
    ByteVec b;
    const auto put16 = [&](std::uint32_t v) {
        b.push_back(static_cast<std::uint8_t>(v));
        b.push_back(static_cast<std::uint8_t>(v >> 8));
    };
    const auto put32 = [&](std::uint32_t v) {
        put16(v & 0xFFFF);
        put16(v >> 16);
    };
    put32(40);
    put32(static_cast<std::uint32_t>(d.Side));
    put32(static_cast<std::uint32_t>(2 * d.Side));
    put16(1);
    put16(static_cast<std::uint32_t>(d.Bits));
    for (int i = 0; i < 6; ++i) put32(0);
    if (d.Bits <= 8)
        for (int i = 0; i < (1 << d.Bits); ++i) {
            const std::uint32_t c = PaletteColor(i);
            b.push_back(static_cast<std::uint8_t>(c >> 16));
            b.push_back(static_cast<std::uint8_t>(c >> 8));
            b.push_back(static_cast<std::uint8_t>(c));
            b.push_back(0);
        }
    const auto pad = [&] {
        while (b.size() % 4) b.push_back(0);
    };
    for (int y = d.Side - 1; y >= 0; --y) {
        if (d.Bits <= 8) {
            int acc = 0, used = 0;
            for (int x = 0; x < d.Side; ++x) {
                acc = (acc << d.Bits) | static_cast<int>(d.Value(x, y));
                used += d.Bits;
                if (used == 8) {
                    b.push_back(static_cast<std::uint8_t>(acc));
                    acc = used = 0;
                }
            }
        } else {
            for (int x = 0; x < d.Side; ++x) {
                const std::uint32_t c = d.Value(x, y);
                b.push_back(static_cast<std::uint8_t>(c >> 16));
                b.push_back(static_cast<std::uint8_t>(c >> 8));
                b.push_back(static_cast<std::uint8_t>(c));
                if (d.Bits == 32) b.push_back(static_cast<std::uint8_t>(d.Alpha(x, y)));
            }
        }
        pad();
    }
    for (int y = d.Side - 1; y >= 0; --y) {
        int acc = 0;
        for (int x = 0; x < d.Side; ++x) {
            acc = (acc << 1) | (d.Masked(x, y) ? 1 : 0);
            if (x % 8 == 7) {
                b.push_back(static_cast<std::uint8_t>(acc));
                acc = 0;
            }
        }
        pad();
    }
    return b;
}

}  // namespace vexlo::test
