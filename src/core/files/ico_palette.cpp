// The color count of an image and the color tables of the written file.
#include <algorithm>
#include <unordered_set>

#include "core/files/ico_write.h"
#include "core/icon/icon_colors.h"

namespace vexlo::files {

using surface::Color;
using surface::Rgb;

const std::array<Color, 2>& TwoColorTable() {
    static const std::array<Color, 2> table = {Rgb(0, 0, 0), Rgb(255, 255, 255)};
    return table;
}

const std::array<Color, 16>& SixteenColorTable() {
    static const std::array<Color, 16> table = {
        Rgb(0, 0, 0),       Rgb(128, 0, 0),   Rgb(0, 128, 0),   Rgb(128, 128, 0),
        Rgb(0, 0, 128),     Rgb(128, 0, 128), Rgb(0, 128, 128), Rgb(192, 192, 192),
        Rgb(128, 128, 128), Rgb(255, 0, 0),   Rgb(0, 255, 0),   Rgb(255, 255, 0),
        Rgb(0, 0, 255),     Rgb(255, 0, 255), Rgb(0, 255, 255), Rgb(255, 255, 255),
    };
    return table;
}

namespace {

using icon::kBlack;
using icon::kWhite;

bool IsSixteenColor(Color c) {
    const auto& t = SixteenColorTable();
    return std::find(t.begin(), t.end(), c) != t.end();
}

}  // namespace

int CountColors(const surface::Surface& image) {
    if (image.Width() <= 0 || image.Height() <= 0) return kTrueColor;
    const Color* begin = image.Data();
    const Color* end = begin + static_cast<std::size_t>(image.Width()) * static_cast<std::size_t>(image.Height());
    if (std::all_of(begin, end, [](Color c) { return c == kBlack || c == kWhite; })) return 2;
    if (std::all_of(begin, end, IsSixteenColor)) return 16;
    std::vector<Color> distinct(begin, end);
    distinct.push_back(kBlack);
    std::sort(distinct.begin(), distinct.end());
    const auto count = std::unique(distinct.begin(), distinct.end()) - distinct.begin();
    return count <= 256 ? 256 : kTrueColor;
}

ColorTable256 BuildPalette256(const surface::Surface& image) {
    ColorTable256 table{};
    table[0] = kBlack;
    table[255] = kWhite;
    std::unordered_set<Color> found;
    std::size_t next = 1;
    for (int y = 0; y < image.Height() && next <= 254; ++y) {
        const Color* row = image.Row(y);
        for (int x = 0; x < image.Width() && next <= 254; ++x) {
            const Color c = row[x];
            if (c < 1 || c >= kWhite) continue;  // black, white and unreadable
            if (found.insert(c).second) table[next++] = c;
        }
    }
    return table;
}

void AppendColorTable(std::vector<std::uint8_t>& out, const Color* table, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        out.push_back(static_cast<std::uint8_t>(surface::BlueOf(table[i])));
        out.push_back(static_cast<std::uint8_t>(surface::GreenOf(table[i])));
        out.push_back(static_cast<std::uint8_t>(surface::RedOf(table[i])));
        out.push_back(0);
    }
}

}  // namespace vexlo::files
