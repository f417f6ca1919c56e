#include "core/extract/res_file.h"

#include <algorithm>
#include <array>

namespace vexlo::extract {

namespace {

using files::ByteReader;

constexpr std::array<std::uint8_t, 16> kEmptyEntry = {0, 0, 0, 0, 0x20, 0, 0, 0, 0xFF, 0xFF, 0, 0, 0xFF, 0xFF, 0, 0};

std::uint64_t Align4(std::uint64_t v) { return (v + 3) & ~std::uint64_t{3}; }

// A type or name field: 0xFFFF and a number, or UTF-16 units up to a NUL. False if the file
// (or the header, which ends at headerEnd) cuts it short or the name is too long.
bool ReadField(ByteReader& r, std::uint64_t headerEnd, ResourceKey& key) {
    const std::uint16_t first = r.U16();
    if (first == 0xFFFF) {
        key.Id = r.U16();
        return r.Ok() && r.Position() <= headerEnd;
    }
    key.IsName = true;
    key.NameOffset = static_cast<std::uint32_t>(r.Position() - 2);
    std::uint32_t length = 0;
    for (std::uint16_t u = first; r.Ok() && u != 0; u = r.U16()) {
        if (++length > kMaxNameUnits || r.Position() > headerEnd) return false;
    }
    key.NameLength = static_cast<std::uint16_t>(length);
    return r.Ok() && r.Position() <= headerEnd;
}

}  // namespace

bool LooksLikeResFile(Bytes data) {
    return data.size() >= 32 && std::equal(kEmptyEntry.begin(), kEmptyEntry.end(), data.begin());
}

ReadStatus ReadResFile(Bytes data, ResourceList& list) {
    list = {};
    if (!LooksLikeResFile(data)) return ReadStatus::NotThisFormat;
    // The entry headers lie end to end, each at least 32 bytes: the walk is bounded by the file.
    std::uint64_t at = 32;
    while (at < data.size()) {
        ByteReader r(data);
        r.Seek(at);
        const std::uint32_t dataSize = r.U32();
        const std::uint32_t headerSize = r.U32();
        if (!r.Ok()) {
            list.NoteDamage("a resource header is cut off by the end of the file");
            break;
        }
        const std::uint64_t headerEnd = at + headerSize;
        ResourceKey type, name;
        const bool fields = headerSize >= 32 && ReadField(r, headerEnd, type) && ReadField(r, headerEnd, name);
        r.Seek(Align4(r.Position()));
        r.Skip(6);
        const std::uint16_t language = r.U16();
        r.Skip(8);
        if (!fields || !r.Ok() || r.Position() > headerEnd) {
            list.NoteDamage("a resource header is damaged");
            break;
        }
        if (headerEnd > data.size() || dataSize > data.size() - headerEnd) {
            list.NoteDamage("resource data lies outside the file");
            break;
        }
        if (!type.IsName && IsIconType(type.Id)) {
            Resource res;
            res.Type = type.Id;
            res.Name = name;
            res.Language = language;
            res.Offset = static_cast<std::uint32_t>(headerEnd);
            res.Size = dataSize;
            list.Items.push_back(res);
        }
        at = Align4(headerEnd + dataSize);
    }
    std::stable_sort(list.Items.begin(), list.Items.end(), [&](const Resource& a, const Resource& b) {
        if (a.Type != b.Type) return a.Type < b.Type;
        if (!SameKey(data, a.Name, b.Name)) return KeyBefore(data, a.Name, b.Name);
        return a.Language < b.Language;
    });
    return ReadStatus::Ok;
}

}  // namespace vexlo::extract
