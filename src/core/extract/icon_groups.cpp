#include "core/extract/icon_groups.h"

#include <algorithm>
#include <tuple>

#include "core/files/ico_format.h"

namespace vexlo::extract {

namespace {

using files::ByteReader;

constexpr std::uint64_t kGroupHeaderBytes = 6;
constexpr std::uint64_t kGroupEntryBytes = 14;
constexpr std::uint32_t kHotSpotBytes = 4;

// The image resources by (type, number, language), for the lookups of the groups.
struct ImageKey {
    std::uint16_t Type;
    std::uint16_t Id;
    std::uint16_t Language;
    std::uint32_t Index;  // in the list
    bool operator<(const ImageKey& o) const {
        return std::tie(Type, Id, Language, Index) < std::tie(o.Type, o.Id, o.Language, o.Index);
    }
};

class ImageIndex {
public:
    explicit ImageIndex(const ResourceList& list) {
        for (std::uint32_t i = 0; i < list.Items.size(); ++i) {
            const Resource& r = list.Items[i];
            if ((r.Type == kRtIcon || r.Type == kRtCursor) && !r.Name.IsName)
                m_keys.push_back({r.Type, r.Name.Id, r.Language, i});
        }
        std::sort(m_keys.begin(), m_keys.end());
    }

    // The resource of that type and number in the language, else the first one of that number.
    const ImageKey* Find(std::uint16_t type, std::uint16_t id, std::uint16_t language) const {
        const auto first = std::lower_bound(m_keys.begin(), m_keys.end(), ImageKey{type, id, 0, 0});
        if (first == m_keys.end() || first->Type != type || first->Id != id) return nullptr;
        const auto exact = std::lower_bound(first, m_keys.end(), ImageKey{type, id, language, 0});
        if (exact != m_keys.end() && exact->Type == type && exact->Id == id && exact->Language == language)
            return &*exact;
        return &*first;
    }

private:
    std::vector<ImageKey> m_keys;
};

GroupImage ReadEntry(ByteReader& r, bool cursor) {
    GroupImage e;
    if (cursor) {
        e.Width = r.U16();
        e.Height = r.U16();
    } else {
        e.Width = r.U8();
        e.Height = r.U8();
        e.ColorCount = r.U8();
        e.Reserved = r.U8();
    }
    e.Planes = r.U16();
    e.BitCount = r.U16();
    e.BytesInRes = r.U32();
    e.Id = r.U16();
    return e;
}

// Finds the image of an entry of a group resource.
void Resolve(Bytes file, const ResourceList& list, const ImageIndex& index, bool cursor, std::uint16_t language,
             GroupImage& e) {
    const ImageKey* key = index.Find(cursor ? kRtCursor : kRtIcon, e.Id, language);
    if (!key) return;
    const Resource& r = list.Items[key->Index];
    if (!cursor) {
        e.Present = true;
        e.Offset = r.Offset;
        e.Size = r.Size;
        return;
    }
    if (r.Size < kHotSpotBytes) return;
    ByteReader h(DataOf(file, r));
    e.HotX = h.U16();
    e.HotY = h.U16();
    e.Present = true;
    e.Offset = r.Offset + kHotSpotBytes;
    e.Size = r.Size - kHotSpotBytes;
}

bool ReadGroup(Bytes file, const ResourceList& list, const ImageIndex& index, const Resource& res, IconGroup& g) {
    ByteReader r(DataOf(file, res));
    const bool cursor = res.Type == kRtGroupCursor;
    r.U16();
    const std::uint16_t type = r.U16();
    const std::uint16_t count = r.U16();
    if (!r.Ok() || type != (cursor ? 2 : 1)) return false;
    g.Cursor = cursor;
    g.Name = res.Name;
    g.Language = res.Language;
    const std::uint64_t present = std::min<std::uint64_t>(count, r.Remaining() / kGroupEntryBytes);
    g.Images.reserve(static_cast<std::size_t>(present));
    for (std::uint64_t i = 0; i < present; ++i) {
        GroupImage e = ReadEntry(r, cursor);
        Resolve(file, list, index, cursor, res.Language, e);
        g.Images.push_back(e);
    }
    return true;
}

files::IconDirEntry EntryOf(Bytes file, const GroupImage& e, bool cursor) {
    files::IconDirEntry d;
    d.BytesInRes = e.Size;
    if (!cursor) {
        d.Width = static_cast<std::uint8_t>(e.Width);
        d.Height = static_cast<std::uint8_t>(e.Height);
        d.ColorCount = e.ColorCount;
        d.Reserved = e.Reserved;
        d.Planes = e.Planes;
        d.BitCount = e.BitCount;
        return d;
    }
    const ImageFacts f = ImageFactsOf(file, e, true);
    d.Width = static_cast<std::uint8_t>(f.Width);
    d.Height = static_cast<std::uint8_t>(f.Height);
    d.ColorCount = f.BitCount > 0 && f.BitCount < 8 ? static_cast<std::uint8_t>(1 << f.BitCount) : 0;
    d.Planes = e.HotX;
    d.BitCount = e.HotY;
    return d;
}

}  // namespace

ImageFacts ImageFactsOf(Bytes file, const GroupImage& e, bool cursor) {
    ImageFacts f;
    f.Width = e.Width ? e.Width : 256;
    f.Height = cursor && e.Height > e.Width ? e.Height / 2 : (e.Height ? e.Height : 256);
    f.BitCount = e.BitCount;
    if (!e.Present) return f;
    const Bytes picture = file.subspan(e.Offset, e.Size);
    ByteReader r(picture);
    if (picture.size() >= 24 && picture[0] == 0x89 && picture[1] == 'P' && picture[2] == 'N' && picture[3] == 'G') {
        r.Seek(16);
        const auto big = [&] {
            const std::uint32_t v = r.U32();
            return static_cast<int>(((v & 0xFF) << 24) | ((v & 0xFF00) << 8) | ((v >> 8) & 0xFF00) | (v >> 24));
        };
        f.Width = big();
        f.Height = big();
        f.BitCount = 32;
        f.Png = true;
        return f;
    }
    const std::uint32_t size = r.U32();
    const std::int32_t w = r.I32();
    const std::int32_t h = r.I32();
    r.U16();
    const std::uint16_t bits = r.U16();
    if (r.Ok() && size >= files::kBitmapInfoHeaderBytes && w > 0 && h > 0) {
        f.Width = w;
        f.Height = h / 2;
        f.BitCount = bits;
    }
    return f;
}

int IconGroup::PresentCount() const {
    return static_cast<int>(std::count_if(Images.begin(), Images.end(), [](const GroupImage& e) { return e.Present; }));
}

std::vector<IconGroup> ReadGroups(Bytes file, ResourceList& list) {
    const ImageIndex index(list);
    std::vector<IconGroup> groups;
    for (const std::uint16_t type : {kRtGroupIcon, kRtGroupCursor}) {
        for (const Resource& res : list.Items) {
            if (res.Type != type) continue;
            IconGroup g;
            if (ReadGroup(file, list, index, res, g))
                groups.push_back(std::move(g));
            else
                list.NoteDamage("a group resource is damaged");
        }
    }
    return groups;
}

bool LooksLikeIconFile(Bytes data) {
    ByteReader r(data);
    const files::IconFileHeader h = files::ReadIconFileHeader(r);
    return r.Ok() && h.Reserved == 0 && (h.Type == 1 || h.Type == 2) && h.Count > 0;
}

bool ReadIconFileGroup(Bytes file, IconGroup& group) {
    if (!LooksLikeIconFile(file)) return false;
    ByteReader r(file);
    const files::IconFileHeader h = files::ReadIconFileHeader(r);
    IconGroup g;
    g.Cursor = h.Type == 2;
    g.Name.Id = 1;
    const std::uint64_t present = std::min<std::uint64_t>(h.Count, r.Remaining() / files::kIconDirEntryBytes);
    g.Images.reserve(static_cast<std::size_t>(present));
    for (std::uint64_t i = 0; i < present; ++i) {
        const files::IconDirEntry d = files::ReadIconDirEntry(r);
        GroupImage e;
        e.Width = d.Width;
        e.Height = d.Height;
        e.ColorCount = d.ColorCount;
        e.Reserved = d.Reserved;
        e.Planes = g.Cursor ? 0 : d.Planes;
        e.BitCount = g.Cursor ? 0 : d.BitCount;
        e.BytesInRes = d.BytesInRes;
        e.Id = static_cast<std::uint16_t>(i);
        e.Present = d.ImageOffset <= file.size() && d.BytesInRes <= file.size() - d.ImageOffset;
        e.Offset = e.Present ? d.ImageOffset : 0;
        e.Size = e.Present ? d.BytesInRes : 0;
        if (g.Cursor) {
            e.HotX = d.Planes;
            e.HotY = d.BitCount;
        }
        g.Images.push_back(e);
    }
    group = std::move(g);
    return true;
}

std::vector<std::uint8_t> RebuildGroupFile(Bytes file, const IconGroup& group, std::uint64_t maxBytes) {
    const std::uint64_t count = static_cast<std::uint64_t>(group.PresentCount());
    if (count == 0) return {};
    std::uint64_t total = files::kIconFileHeaderBytes + files::kIconDirEntryBytes * count;
    for (const GroupImage& e : group.Images)
        if (e.Present) total += e.Size;
    if (total > maxBytes || total > 0xFFFFFFFFu) return {};
    std::vector<std::uint8_t> out;
    out.reserve(static_cast<std::size_t>(total));
    files::AppendIconFileHeader(out, {0, static_cast<std::uint16_t>(group.Cursor ? 2 : 1),
                                      static_cast<std::uint16_t>(count)});
    auto at = static_cast<std::uint32_t>(files::kIconFileHeaderBytes + files::kIconDirEntryBytes * count);
    for (const GroupImage& e : group.Images) {
        if (!e.Present) continue;
        files::IconDirEntry d = EntryOf(file, e, group.Cursor);
        d.ImageOffset = at;
        files::AppendIconDirEntry(out, d);
        at += e.Size;
    }
    for (const GroupImage& e : group.Images)
        if (e.Present) out.insert(out.end(), file.begin() + e.Offset, file.begin() + e.Offset + e.Size);
    return out;
}

}  // namespace vexlo::extract
