#include "core/extract/pe_resources.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace vexlo::extract {

namespace {

using files::ByteReader;

constexpr std::uint32_t kHighBit = 0x80000000u;
constexpr std::uint64_t kDirectoryBytes = 16;
constexpr std::uint64_t kEntryBytes = 8;
constexpr std::uint64_t kDataEntryBytes = 16;
constexpr std::uint64_t kSectionBytes = 40;
constexpr int kResourceDirectoryIndex = 2;

struct Section {
    std::uint32_t VirtualAddress = 0;
    std::uint32_t RawSize = 0;
    std::uint32_t RawOffset = 0;
};

// The file offset of rva and the bytes from there to the end of its section's raw data (and
// of the file); nothing when no section holds rva within its raw data.
struct Mapped {
    std::uint64_t Offset = 0;
    std::uint64_t Available = 0;
};

class SectionMap {
public:
    SectionMap(std::vector<Section> sections, std::uint64_t fileSize)
        : m_sections(std::move(sections)), m_fileSize(fileSize) {}

    std::optional<Mapped> Map(std::uint32_t rva) const {
        for (const Section& s : m_sections) {
            if (rva < s.VirtualAddress || rva - s.VirtualAddress >= s.RawSize) continue;
            const std::uint64_t offset = std::uint64_t{s.RawOffset} + (rva - s.VirtualAddress);
            const std::uint64_t end = std::min<std::uint64_t>(std::uint64_t{s.RawOffset} + s.RawSize, m_fileSize);
            if (offset >= end) continue;
            return Mapped{offset, end - offset};
        }
        return std::nullopt;
    }

private:
    std::vector<Section> m_sections;
    std::uint64_t m_fileSize;
};

// The walk of the tree below the root, at file offset base. Offsets in the tree are from base;
// what they point to must lie before limit (the end of the resource section's raw data).
class TreeWalk {
public:
    TreeWalk(Bytes data, std::uint64_t base, std::uint64_t limit, const SectionMap& map, ResourceList& list)
        : m_data(data), m_base(base), m_limit(limit), m_map(map), m_list(list),
          m_used(static_cast<std::size_t>(limit - base), false) {}

    // Level 1: types; only the icon and cursor types are walked further.
    void Walk() {
        ForEachEntry(0, [&](std::uint32_t name, std::uint32_t target) {
            if ((name & kHighBit) || !IsIconType(name & 0xFFFF)) return;
            if (!(target & kHighBit)) return m_list.NoteDamage("a resource type has no directory");
            WalkNames(static_cast<std::uint16_t>(name & 0xFFFF), target & ~kHighBit);
        });
    }

private:
    void WalkNames(std::uint16_t type, std::uint32_t offset) {
        ForEachEntry(offset, [&](std::uint32_t name, std::uint32_t target) {
            ResourceKey key;
            if (!ReadKey(name, key)) return;
            if (!(target & kHighBit)) return m_list.NoteDamage("a resource name has no directory");
            WalkLanguages(type, key, target & ~kHighBit);
        });
    }

    void WalkLanguages(std::uint16_t type, const ResourceKey& key, std::uint32_t offset) {
        ForEachEntry(offset, [&](std::uint32_t name, std::uint32_t target) {
            if (target & kHighBit) return m_list.NoteDamage("the resource tree is deeper than three levels");
            Resource r;
            r.Type = type;
            r.Name = key;
            r.Language = static_cast<std::uint16_t>(name & 0xFFFF);
            if (ReadData(target, r)) m_list.Items.push_back(r);
        });
    }

    // Marks the bytes [offset, offset + n) of the tree as used; false if any of them already
    // was (a loop, a shared directory or data entry) or they pass the limit.
    bool Claim(std::uint32_t offset, std::uint64_t n) {
        if (offset >= m_used.size() || n > m_used.size() - offset) return false;
        if (m_used[offset]) return false;
        std::fill_n(m_used.begin() + offset, n, true);
        return true;
    }

    // Reads the directory at offset (from base) and calls f(name, target) for each entry that
    // lies within the section.
    template <typename F>
    void ForEachEntry(std::uint32_t offset, F&& f) {
        if (offset < m_used.size() && m_used[offset])
            return m_list.NoteDamage("the resource tree loops back on itself");
        if (!Claim(offset, kDirectoryBytes)) return m_list.NoteDamage("a resource directory lies outside the file");
        ByteReader r(m_data.first(static_cast<std::size_t>(m_limit)));
        r.Seek(m_base + offset + 12);
        const std::uint32_t count = std::uint32_t{r.U16()} + r.U16();
        const std::uint64_t present = std::min<std::uint64_t>(count, r.Remaining() / kEntryBytes);
        if (present < count) m_list.NoteDamage("a resource directory claims more entries than the file holds");
        // The entries themselves are part of the directory: nothing else may point into them.
        if (present > 0) Claim(offset + static_cast<std::uint32_t>(kDirectoryBytes), present * kEntryBytes);
        for (std::uint64_t i = 0; i < present; ++i) {
            const std::uint32_t name = r.U32();
            const std::uint32_t target = r.U32();
            f(name, target);
        }
    }

    bool ReadKey(std::uint32_t name, ResourceKey& key) {
        if (!(name & kHighBit)) {
            key.Id = static_cast<std::uint16_t>(name & 0xFFFF);
            return true;
        }
        ByteReader r(m_data.first(static_cast<std::size_t>(m_limit)));
        r.Seek(m_base + (name & ~kHighBit));
        const std::uint16_t length = r.U16();
        const std::uint64_t at = r.Position();
        if (!r.Ok() || !r.Has(2 * std::uint64_t{length}))
            return m_list.NoteDamage("a resource name lies outside the file"), false;
        if (length > kMaxNameUnits) return m_list.NoteDamage("a resource name is too long"), false;
        key.IsName = true;
        key.NameOffset = static_cast<std::uint32_t>(at);
        key.NameLength = length;
        return true;
    }

    bool ReadData(std::uint32_t offset, Resource& out) {
        if (!Claim(offset, kDataEntryBytes)) {
            const bool inside = offset < m_used.size() && kDataEntryBytes <= m_used.size() - offset;
            m_list.NoteDamage(inside ? "two resources share one data entry" : "a resource data entry lies outside the file");
            return false;
        }
        ByteReader r(m_data);
        r.Seek(m_base + offset);
        const std::uint32_t rva = r.U32();
        const std::uint32_t size = r.U32();
        const std::optional<Mapped> at = m_map.Map(rva);
        if (!at || size > at->Available) return m_list.NoteDamage("resource data lies outside the file"), false;
        out.Offset = static_cast<std::uint32_t>(at->Offset);
        out.Size = size;
        return true;
    }

    Bytes m_data;
    std::uint64_t m_base;
    std::uint64_t m_limit;
    const SectionMap& m_map;
    ResourceList& m_list;
    std::vector<bool> m_used;  // one flag per byte of the tree's section
};

}  // namespace

bool LooksLikePe(Bytes data) { return data.size() >= 2 && data[0] == 'M' && data[1] == 'Z'; }

ReadStatus ReadPeResources(Bytes data, ResourceList& list, PeFacts* facts) {
    list = {};
    if (!LooksLikePe(data)) return ReadStatus::NotThisFormat;
    ByteReader r(data);
    r.Seek(0x3C);
    const std::uint32_t peOffset = r.U32();
    r.Seek(peOffset);
    const std::uint32_t signature = r.U32();
    // A DOS header whose PE header lies past the end: a program file cut short.
    if (!r.Ok()) return ReadStatus::Truncated;
    if (signature != 0x00004550u) return ReadStatus::NotThisFormat;
    PeFacts f;
    f.Machine = r.U16();
    const std::uint16_t sectionCount = r.U16();
    r.Skip(12);
    const std::uint16_t optionalSize = r.U16();
    r.Skip(2);
    const std::uint64_t optionalAt = r.Position();
    const std::uint16_t magic = r.U16();
    if (!r.Ok()) return ReadStatus::Truncated;
    if (magic != 0x10B && magic != 0x20B) return ReadStatus::NotThisFormat;
    f.Plus = magic == 0x20B;
    // NumberOfRvaAndSizes, then the data directories of 8 bytes each.
    const std::uint64_t countAt = f.Plus ? 108 : 92;
    if (optionalSize < countAt + 4 + 8 * (kResourceDirectoryIndex + 1)) {
        if (!r.Has(optionalSize)) return ReadStatus::Truncated;
        return ReadStatus::NoResources;
    }
    r.Seek(optionalAt + countAt);
    const std::uint32_t directories = r.U32();
    r.Skip(8 * kResourceDirectoryIndex);
    f.ResourceRva = r.U32();
    f.ResourceSize = r.U32();
    std::vector<Section> sections;
    r.Seek(optionalAt + optionalSize);
    if (!r.Ok() || !r.Has(kSectionBytes * sectionCount)) return ReadStatus::Truncated;
    sections.reserve(sectionCount);
    for (int i = 0; i < sectionCount; ++i) {
        Section s;
        r.Skip(8);
        r.U32();  // VirtualSize: the raw data is what the file holds
        s.VirtualAddress = r.U32();
        s.RawSize = r.U32();
        s.RawOffset = r.U32();
        r.Skip(16);
        sections.push_back(s);
    }
    if (facts) *facts = f;
    if (directories <= kResourceDirectoryIndex || f.ResourceRva == 0 || f.ResourceSize == 0)
        return ReadStatus::NoResources;
    const SectionMap map(std::move(sections), data.size());
    const std::optional<Mapped> root = map.Map(f.ResourceRva);
    if (!root || root->Available < kDirectoryBytes) return ReadStatus::DirectoryOutside;
    TreeWalk(data, root->Offset, root->Offset + root->Available, map, list).Walk();
    return ReadStatus::Ok;
}

}  // namespace vexlo::extract
