#include "core/extract/resource_list.h"

#include <algorithm>

namespace vexlo::extract {

namespace {

std::uint16_t UnitAt(Bytes file, const ResourceKey& key, std::uint32_t i) {
    const std::size_t at = std::size_t{key.NameOffset} + 2 * std::size_t{i};
    return static_cast<std::uint16_t>(file[at] | (file[at + 1] << 8));
}

std::uint16_t Upper(std::uint16_t u) { return (u >= 'a' && u <= 'z') ? static_cast<std::uint16_t>(u - 32) : u; }

void AppendUtf8(std::string& out, std::uint32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// A name's units compared after raising ASCII letters: <0, 0, >0.
int CompareNames(Bytes file, const ResourceKey& a, const ResourceKey& b) {
    const std::uint32_t n = std::min(a.NameLength, b.NameLength);
    for (std::uint32_t i = 0; i < n; ++i) {
        const std::uint16_t ua = Upper(UnitAt(file, a, i)), ub = Upper(UnitAt(file, b, i));
        if (ua != ub) return ua < ub ? -1 : 1;
    }
    return a.NameLength == b.NameLength ? 0 : (a.NameLength < b.NameLength ? -1 : 1);
}

}  // namespace

std::string KeyText(Bytes file, const ResourceKey& key) {
    if (!key.IsName) return std::to_string(key.Id);
    std::string out;
    for (std::uint32_t i = 0; i < key.NameLength; ++i) {
        const std::uint16_t u = UnitAt(file, key, i);
        if (u >= 0xD800 && u < 0xDC00 && i + 1 < key.NameLength) {
            const std::uint16_t low = UnitAt(file, key, i + 1);
            if (low >= 0xDC00 && low < 0xE000) {
                AppendUtf8(out, 0x10000 + ((std::uint32_t{u} - 0xD800) << 10) + (low - 0xDC00));
                ++i;
                continue;
            }
        }
        AppendUtf8(out, (u >= 0xD800 && u < 0xE000) ? '?' : u);
    }
    return out;
}

bool SameKey(Bytes file, const ResourceKey& a, const ResourceKey& b) {
    if (a.IsName != b.IsName) return false;
    return a.IsName ? CompareNames(file, a, b) == 0 : a.Id == b.Id;
}

bool KeyBefore(Bytes file, const ResourceKey& a, const ResourceKey& b) {
    if (a.IsName != b.IsName) return a.IsName;
    return a.IsName ? CompareNames(file, a, b) < 0 : a.Id < b.Id;
}

}  // namespace vexlo::extract
