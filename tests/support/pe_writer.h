#pragma once
// Minimal program files (PE32 and PE32+) and compiled resource files (.res) for tests, built
// byte by byte from a list of resources: the headers a reader needs (DOS header, "PE\0\0", file
// header, optional header with 16 data directories, one ".rsrc" section) and the resource tree
// laid out as a linker lays it out (types ascending; names first, by their capitals, then
// numbers ascending; languages ascending). PeFile tells where each part landed, so a test can
// damage exactly the byte it means to. Also the group resources that name icon and cursor
// images.
#include <algorithm>
#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

#include "support/test_bytes.h"

namespace vexlo::test::pe {

inline void Put8(ByteVec& b, std::uint32_t v) { b.push_back(static_cast<std::uint8_t>(v)); }
inline void Put16(ByteVec& b, std::uint32_t v) {
    Put8(b, v & 0xFF);
    Put8(b, (v >> 8) & 0xFF);
}
inline void Put32(ByteVec& b, std::uint32_t v) {
    Put16(b, v & 0xFFFF);
    Put16(b, v >> 16);
}
inline void Set16(ByteVec& b, std::size_t at, std::uint32_t v) {
    b[at] = static_cast<std::uint8_t>(v);
    b[at + 1] = static_cast<std::uint8_t>(v >> 8);
}
inline void Set32(ByteVec& b, std::size_t at, std::uint32_t v) {
    Set16(b, at, v & 0xFFFF);
    Set16(b, at + 2, v >> 16);
}
inline void PadTo(ByteVec& b, std::size_t align) {
    while (b.size() % align) b.push_back(0);
}

// One resource: a numbered type, a name (Name when not empty, else Id) and a language.
struct Resource {
    std::uint16_t Type = 0;
    std::uint16_t Id = 0;
    std::u16string Name;
    std::uint16_t Language = 0;
    ByteVec Data;
};

inline std::u16string Capitals(std::u16string s) {
    for (char16_t& c : s)
        if (c >= u'a' && c <= u'z') c = static_cast<char16_t>(c - 32);
    return s;
}

// The linker's order: by type, names before numbers, then language.
inline bool TreeBefore(const Resource& a, const Resource& b) {
    if (a.Type != b.Type) return a.Type < b.Type;
    const bool an = !a.Name.empty(), bn = !b.Name.empty();
    if (an != bn) return an;
    if (an && Capitals(a.Name) != Capitals(b.Name)) return Capitals(a.Name) < Capitals(b.Name);
    if (!an && a.Id != b.Id) return a.Id < b.Id;
    return a.Language < b.Language;
}

inline bool SameName(const Resource& a, const Resource& b) {
    return a.Type == b.Type && a.Name == b.Name && (!a.Name.empty() || a.Id == b.Id);
}

struct PeOptions {
    bool Plus = false;               // PE32+ (x86-64) instead of PE32 (i386)
    std::uint16_t Machine = 0;       // 0: 0x14C for PE32, 0x8664 for PE32+
    std::uint32_t SectionRva = 0x3000;
    std::uint32_t RawOffset = 0x200;
};

struct PeFile {
    ByteVec Bytes;
    std::size_t OptionalOffset = 0;  // the optional header
    std::size_t DirectoryOffset = 0;  // the resource data directory (RVA, size)
    std::size_t SectionOffset = 0;  // the ".rsrc" section header
    std::size_t RootOffset = 0;     // the root resource directory (file offset)
    std::uint32_t SectionRva = 0;
    std::vector<std::size_t> DataEntryOffsets;  // file offsets, in tree order
    std::vector<std::size_t> DataOffsets;       // file offsets of each resource's data, tree order
};

// The resource section's bytes for resources placed at rva; offsets are from its start.
struct TreeLayout {
    ByteVec Bytes;
    std::vector<std::size_t> DataEntries, Data;
};

inline TreeLayout BuildTree(std::vector<Resource> res, std::uint32_t rva) {
    std::stable_sort(res.begin(), res.end(), TreeBefore);
    // Types, names of each type, languages of each name: index ranges into res.
    std::vector<std::size_t> typeStarts, nameStarts;
    for (std::size_t i = 0; i < res.size(); ++i) {
        if (i == 0 || res[i].Type != res[i - 1].Type) typeStarts.push_back(i);
        if (i == 0 || !SameName(res[i], res[i - 1])) nameStarts.push_back(i);
    }
    const auto dirBytes = [](std::size_t n) { return 16 + 8 * n; };
    const auto countIn = [&](const std::vector<std::size_t>& starts, std::size_t from, std::size_t to) {
        return static_cast<std::size_t>(std::count_if(starts.begin(), starts.end(),
                                                      [&](std::size_t s) { return s >= from && s < to; }));
    };
    // Offsets: root, type directories, name directories, data entries, names, data.
    std::size_t at = dirBytes(typeStarts.size());
    std::vector<std::size_t> typeDir(typeStarts.size()), nameDir(nameStarts.size()), dataEntry(res.size());
    for (std::size_t t = 0; t < typeStarts.size(); ++t) {
        const std::size_t end = t + 1 < typeStarts.size() ? typeStarts[t + 1] : res.size();
        typeDir[t] = at;
        at += dirBytes(countIn(nameStarts, typeStarts[t], end));
    }
    for (std::size_t n = 0; n < nameStarts.size(); ++n) {
        const std::size_t end = n + 1 < nameStarts.size() ? nameStarts[n + 1] : res.size();
        nameDir[n] = at;
        at += dirBytes(end - nameStarts[n]);
    }
    for (std::size_t i = 0; i < res.size(); ++i, at += 16) dataEntry[i] = at;
    std::vector<std::size_t> nameText(nameStarts.size());
    for (std::size_t n = 0; n < nameStarts.size(); ++n)
        if (!res[nameStarts[n]].Name.empty()) {
            nameText[n] = at;
            at += 2 + 2 * res[nameStarts[n]].Name.size();
        }
    std::vector<std::size_t> data(res.size());
    for (std::size_t i = 0; i < res.size(); ++i) {
        at = (at + 3) & ~std::size_t{3};
        data[i] = at;
        at += res[i].Data.size();
    }
    ByteVec b(at, 0);
    const auto directory = [&](std::size_t offset, std::size_t named, std::size_t ids) {
        Set16(b, offset + 12, static_cast<std::uint32_t>(named));
        Set16(b, offset + 14, static_cast<std::uint32_t>(ids));
    };
    directory(0, 0, typeStarts.size());
    for (std::size_t t = 0; t < typeStarts.size(); ++t) {
        Set32(b, 16 + 8 * t, res[typeStarts[t]].Type);
        Set32(b, 16 + 8 * t + 4, 0x80000000u | static_cast<std::uint32_t>(typeDir[t]));
        std::size_t named = 0, ids = 0, k = 0;
        for (std::size_t n = 0; n < nameStarts.size(); ++n) {
            const Resource& r = res[nameStarts[n]];
            if (r.Type != res[typeStarts[t]].Type) continue;
            (r.Name.empty() ? ids : named)++;
            const std::size_t e = typeDir[t] + 16 + 8 * k++;
            Set32(b, e, r.Name.empty() ? r.Id : 0x80000000u | static_cast<std::uint32_t>(nameText[n]));
            Set32(b, e + 4, 0x80000000u | static_cast<std::uint32_t>(nameDir[n]));
        }
        directory(typeDir[t], named, ids);
    }
    for (std::size_t n = 0; n < nameStarts.size(); ++n) {
        const std::size_t end = n + 1 < nameStarts.size() ? nameStarts[n + 1] : res.size();
        directory(nameDir[n], 0, end - nameStarts[n]);
        for (std::size_t i = nameStarts[n]; i < end; ++i) {
            const std::size_t e = nameDir[n] + 16 + 8 * (i - nameStarts[n]);
            Set32(b, e, res[i].Language);
            Set32(b, e + 4, static_cast<std::uint32_t>(dataEntry[i]));
        }
        const std::u16string& name = res[nameStarts[n]].Name;
        if (!name.empty()) {
            Set16(b, nameText[n], static_cast<std::uint32_t>(name.size()));
            for (std::size_t c = 0; c < name.size(); ++c) Set16(b, nameText[n] + 2 + 2 * c, name[c]);
        }
    }
    for (std::size_t i = 0; i < res.size(); ++i) {
        Set32(b, dataEntry[i], rva + static_cast<std::uint32_t>(data[i]));
        Set32(b, dataEntry[i] + 4, static_cast<std::uint32_t>(res[i].Data.size()));
        std::copy(res[i].Data.begin(), res[i].Data.end(), b.begin() + static_cast<std::ptrdiff_t>(data[i]));
    }
    return {b, dataEntry, data};
}

inline PeFile BuildPe(const std::vector<Resource>& resources, const PeOptions& o = {}) {
    PeFile f;
    ByteVec& b = f.Bytes;
    b.assign(0x40, 0);
    b[0] = 'M';
    b[1] = 'Z';
    Set32(b, 0x3C, 0x40);
    Put32(b, 0x00004550);  // "PE\0\0"
    Put16(b, o.Machine ? o.Machine : (o.Plus ? 0x8664 : 0x14C));
    Put16(b, 1);  // one section
    Put32(b, 0);
    Put32(b, 0);
    Put32(b, 0);
    const std::uint32_t optionalSize = o.Plus ? 240 : 224;
    Put16(b, optionalSize);
    Put16(b, 0x2102);  // executable, 32-bit or large address aware, DLL
    f.OptionalOffset = b.size();
    b.resize(b.size() + optionalSize, 0);
    const std::size_t opt = f.OptionalOffset;
    Set16(b, opt, o.Plus ? 0x20B : 0x10B);
    Set32(b, opt + 32, 0x1000);  // SectionAlignment
    Set32(b, opt + 36, 0x200);   // FileAlignment
    Set16(b, opt + 40, 4);       // operating system version 4.0
    Set16(b, opt + 48, 4);       // subsystem version 4.0
    Set32(b, opt + 60, o.RawOffset);  // SizeOfHeaders
    Set16(b, opt + 68, 2);       // Windows GUI
    const std::size_t countAt = opt + (o.Plus ? 108 : 92);
    Set32(b, countAt, 16);
    f.DirectoryOffset = countAt + 4 + 8 * 2;
    f.SectionOffset = b.size();
    b.resize(b.size() + 40, 0);
    f.SectionRva = o.SectionRva;
    const TreeLayout tree = BuildTree(resources, o.SectionRva);
    const std::uint32_t raw = static_cast<std::uint32_t>((tree.Bytes.size() + 0x1FF) & ~std::size_t{0x1FF});
    const std::size_t s = f.SectionOffset;
    const char name[8] = {'.', 'r', 's', 'r', 'c', 0, 0, 0};
    std::copy(name, name + 8, b.begin() + static_cast<std::ptrdiff_t>(s));
    Set32(b, s + 8, static_cast<std::uint32_t>(tree.Bytes.size()));
    Set32(b, s + 12, o.SectionRva);
    Set32(b, s + 16, raw);
    Set32(b, s + 20, o.RawOffset);
    Set32(b, s + 36, 0x40000040);  // initialized data, readable
    Set32(b, opt + 56, o.SectionRva + ((raw + 0xFFF) & ~0xFFFu));  // SizeOfImage
    Set32(b, f.DirectoryOffset, o.SectionRva);
    Set32(b, f.DirectoryOffset + 4, static_cast<std::uint32_t>(tree.Bytes.size()));
    b.resize(o.RawOffset, 0);
    f.RootOffset = b.size();
    b.insert(b.end(), tree.Bytes.begin(), tree.Bytes.end());
    b.resize(o.RawOffset + raw, 0);
    for (std::size_t e : tree.DataEntries) f.DataEntryOffsets.push_back(o.RawOffset + e);
    for (std::size_t d : tree.Data) f.DataOffsets.push_back(o.RawOffset + d);
    return f;
}

// A .res file of the resources in the order given (a resource compiler keeps source order).
inline ByteVec BuildRes(const std::vector<Resource>& resources) {
    ByteVec b = {0, 0, 0, 0, 0x20, 0, 0, 0, 0xFF, 0xFF, 0, 0, 0xFF, 0xFF, 0, 0};
    b.resize(32, 0);
    for (const Resource& r : resources) {
        ByteVec h;
        Put16(h, 0xFFFF);
        Put16(h, r.Type);
        if (r.Name.empty()) {
            Put16(h, 0xFFFF);
            Put16(h, r.Id);
        } else {
            for (char16_t c : r.Name) Put16(h, c);
            Put16(h, 0);
        }
        PadTo(h, 4);
        Put32(h, 0);        // DataVersion
        Put16(h, 0x1030);   // MemoryFlags: moveable, pure, discardable
        Put16(h, r.Language);
        Put32(h, 0);        // Version
        Put32(h, 0);        // Characteristics
        Put32(b, static_cast<std::uint32_t>(r.Data.size()));
        Put32(b, static_cast<std::uint32_t>(8 + h.size()));
        b.insert(b.end(), h.begin(), h.end());
        b.insert(b.end(), r.Data.begin(), r.Data.end());
        PadTo(b, 4);
    }
    return b;
}

// One entry of a group resource; Bytes -1 means the length of the image it names.
struct GroupEntry {
    int Width = 32, Height = 32;
    int ColorCount = 0;
    int Planes = 1, BitCount = 8;
    std::int64_t Bytes = -1;
    std::uint16_t Id = 1;
};

// An RT_GROUP_ICON (cursor false) or RT_GROUP_CURSOR resource. sizes gives the length of each
// named image, for entries whose Bytes is -1.
inline ByteVec GroupBytes(const std::vector<GroupEntry>& entries, const std::vector<std::size_t>& sizes,
                          bool cursor = false) {
    ByteVec b;
    Put16(b, 0);
    Put16(b, cursor ? 2 : 1);
    Put16(b, static_cast<std::uint32_t>(entries.size()));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const GroupEntry& e = entries[i];
        if (cursor) {
            Put16(b, static_cast<std::uint32_t>(e.Width));
            Put16(b, static_cast<std::uint32_t>(e.Height));
        } else {
            Put8(b, static_cast<std::uint32_t>(e.Width));
            Put8(b, static_cast<std::uint32_t>(e.Height));
            Put8(b, static_cast<std::uint32_t>(e.ColorCount));
            Put8(b, 0);
        }
        Put16(b, static_cast<std::uint32_t>(e.Planes));
        Put16(b, static_cast<std::uint32_t>(e.BitCount));
        Put32(b, static_cast<std::uint32_t>(e.Bytes >= 0 ? e.Bytes : static_cast<std::int64_t>(sizes.at(i))));
        Put16(b, e.Id);
    }
    return b;
}

}  // namespace vexlo::test::pe
