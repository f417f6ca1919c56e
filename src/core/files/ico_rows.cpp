// The pixel rows of a written icon: bottom row first, left to right within a row.
#include <unordered_map>

#include "core/files/ico_write.h"
#include "core/icon/icon_colors.h"

namespace vexlo::files {

using surface::Color;

namespace {

using icon::kWhite;

// Index of c in the sixteen-color table, or -1.
int SixteenIndex(Color c) {
    const auto& t = SixteenColorTable();
    for (int i = 0; i < 16; ++i)
        if (t[static_cast<std::size_t>(i)] == c) return i;
    return -1;
}

}  // namespace

void WriteBitRows(const surface::Surface& plane, std::vector<std::uint8_t>& out) {
    const int w = plane.Width();
    for (int y = plane.Height() - 1; y >= 0; --y) {
        const Color* row = plane.Row(y);
        for (int x = 0; x + 8 <= w; x += 8) {
            std::uint8_t byte = 0;
            for (int k = 0; k < 8; ++k)
                if (row[x + k] == kWhite) byte = static_cast<std::uint8_t>(byte | (0x80 >> k));
            out.push_back(byte);
        }
        if (w != 32) out.insert(out.end(), 2, 0);
    }
}

void Write4BitRows(const surface::Surface& image, std::vector<std::uint8_t>& out) {
    int lastHigh = 0;
    int lastLow = 0;
    for (int y = image.Height() - 1; y >= 0; --y) {
        const Color* row = image.Row(y);
        for (int x = 0; x + 1 < image.Width(); x += 2) {
            const int high = SixteenIndex(row[x]);
            const int low = SixteenIndex(row[x + 1]);
            if (high >= 0) lastHigh = high;
            if (low >= 0) lastLow = low;
            out.push_back(static_cast<std::uint8_t>((lastHigh << 4) | lastLow));
        }
    }
}

void Write8BitRows(const surface::Surface& image, const ColorTable256& table,
                   std::vector<std::uint8_t>& out) {
    std::unordered_map<Color, std::uint8_t> index;
    for (int i = 1; i <= 254; ++i)
        index.emplace(table[static_cast<std::size_t>(i)], static_cast<std::uint8_t>(i));  // first wins
    std::uint8_t last = 0;
    for (int y = image.Height() - 1; y >= 0; --y) {
        const Color* row = image.Row(y);
        for (int x = 0; x < image.Width(); ++x) {
            const Color c = row[x];
            if (c == 0) {
                last = 0;
            } else if (c == kWhite) {
                last = 255;
            } else if (const auto it = index.find(c); it != index.end()) {
                last = it->second;
            }
            out.push_back(last);
        }
    }
}

bool WriteTrueColorRows(const surface::Surface& image, std::vector<std::uint8_t>& out, bool withAlpha,
                        const alpha::AlphaArray* alphaValues) {
    const int w = image.Width();
    const int h = image.Height();
    if (withAlpha && (alphaValues == nullptr || !alphaValues->Contains(w - 1, h - 1))) return false;
    for (int y = h - 1; y >= 0; --y) {
        const Color* row = image.Row(y);
        for (int x = 0; x < w; ++x) {
            out.push_back(static_cast<std::uint8_t>(surface::BlueOf(row[x])));
            out.push_back(static_cast<std::uint8_t>(surface::GreenOf(row[x])));
            out.push_back(static_cast<std::uint8_t>(surface::RedOf(row[x])));
            if (withAlpha) out.push_back(alphaValues->At(x, y));
        }
    }
    return true;
}

}  // namespace vexlo::files
