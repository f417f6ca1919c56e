#pragma once
// Program and resource files for the reader's tests: icon images of known pixels (dib_icon.h),
// the group resources that name them, and a library opened on the bytes.
#include <gtest/gtest.h>

#include <vector>

#include "core/extract/icon_library.h"
#include "support/dib_icon.h"
#include "support/pe_writer.h"

namespace vexlo::test {

using extract::IconLibrary;
using pe::Resource;

// An RT_ICON resource of one flat image: every pixel value v.
inline Resource IconImage(std::uint16_t id, int side, int bits, std::uint32_t v = 1, std::uint16_t language = 0) {
    DibIcon d;
    d.Side = side;
    d.Bits = bits;
    d.Value = [v](int, int) { return v; };
    return {extract::kRtIcon, id, {}, language, DibIconBytes(d)};
}

// The group entry that describes an image resource as a compiler writes it.
inline pe::GroupEntry EntryFor(const Resource& image, int side, int bits) {
    pe::GroupEntry e;
    e.Width = side;
    e.Height = side;
    e.ColorCount = bits < 8 ? 1 << bits : 0;
    e.BitCount = bits;
    e.Bytes = static_cast<std::int64_t>(image.Data.size());
    e.Id = image.Id;
    return e;
}

// An RT_GROUP_ICON named by number or by name.
inline Resource IconGroup(std::uint16_t id, const std::vector<pe::GroupEntry>& entries, std::uint16_t language = 0,
                          std::u16string name = {}) {
    return {extract::kRtGroupIcon, id, std::move(name), language, pe::GroupBytes(entries, {})};
}

inline IconLibrary OpenLibrary(const ByteVec& bytes) {
    IconLibrary library;
    const extract::OpenResult r = library.OpenBytes(bytes);
    EXPECT_TRUE(r.Ok) << r.Message;
    return library;
}

// The names of the library's groups, in its order.
inline std::vector<std::string> GroupNames(const IconLibrary& library) {
    std::vector<std::string> names;
    for (int g = 0; g < static_cast<int>(library.Groups().size()); ++g) names.push_back(library.GroupName(g));
    return names;
}

// The icon file of a group as the platform's tools lay it out: header, entries (with the
// offsets end to end after the directory) and the images.
struct ExpectedImage {
    int Width, Height, ColorCount, Planes, BitCount;
    const ByteVec* Bytes;
};
inline ByteVec ExpectedIconFile(const std::vector<ExpectedImage>& images, int type = 1) {
    ByteVec b;
    pe::Put16(b, 0);
    pe::Put16(b, static_cast<std::uint32_t>(type));
    pe::Put16(b, static_cast<std::uint32_t>(images.size()));
    std::uint32_t at = static_cast<std::uint32_t>(6 + 16 * images.size());
    for (const ExpectedImage& i : images) {
        pe::Put8(b, static_cast<std::uint32_t>(i.Width));
        pe::Put8(b, static_cast<std::uint32_t>(i.Height));
        pe::Put8(b, static_cast<std::uint32_t>(i.ColorCount));
        pe::Put8(b, 0);
        pe::Put16(b, static_cast<std::uint32_t>(i.Planes));
        pe::Put16(b, static_cast<std::uint32_t>(i.BitCount));
        pe::Put32(b, static_cast<std::uint32_t>(i.Bytes->size()));
        pe::Put32(b, at);
        at += static_cast<std::uint32_t>(i.Bytes->size());
    }
    for (const ExpectedImage& i : images) b.insert(b.end(), i.Bytes->begin(), i.Bytes->end());
    return b;
}

}  // namespace vexlo::test
