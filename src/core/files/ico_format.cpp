#include "core/files/ico_format.h"

#include <algorithm>
#include <utility>

namespace vexlo::files {

IconFileHeader ReadIconFileHeader(ByteReader& r) {
    IconFileHeader h;
    h.Reserved = r.U16();
    h.Type = r.U16();
    h.Count = r.U16();
    return h;
}

IconDirEntry ReadIconDirEntry(ByteReader& r) {
    IconDirEntry e;
    e.Width = r.U8();
    e.Height = r.U8();
    e.ColorCount = r.U8();
    e.Reserved = r.U8();
    e.Planes = r.U16();
    e.BitCount = r.U16();
    e.BytesInRes = r.U32();
    e.ImageOffset = r.U32();
    return e;
}

BitmapInfoHeader ReadBitmapInfoHeader(ByteReader& r) {
    BitmapInfoHeader h;
    h.Size = r.U32();
    h.Width = r.I32();
    h.Height = r.I32();
    h.Planes = r.U16();
    h.BitCount = r.U16();
    h.Compression = r.U32();
    h.SizeImage = r.U32();
    h.XPelsPerMeter = r.I32();
    h.YPelsPerMeter = r.I32();
    h.ClrUsed = r.U32();
    h.ClrImportant = r.U32();
    return h;
}

void AppendIconFileHeader(std::vector<std::uint8_t>& out, const IconFileHeader& h) {
    PutU16(out, h.Reserved);
    PutU16(out, h.Type);
    PutU16(out, h.Count);
}

void AppendIconDirEntry(std::vector<std::uint8_t>& out, const IconDirEntry& e) {
    PutU8(out, e.Width);
    PutU8(out, e.Height);
    PutU8(out, e.ColorCount);
    PutU8(out, e.Reserved);
    PutU16(out, e.Planes);
    PutU16(out, e.BitCount);
    PutU32(out, e.BytesInRes);
    PutU32(out, e.ImageOffset);
}

void AppendBitmapInfoHeader(std::vector<std::uint8_t>& out, const BitmapInfoHeader& h) {
    PutU32(out, h.Size);
    PutI32(out, h.Width);
    PutI32(out, h.Height);
    PutU16(out, h.Planes);
    PutU16(out, h.BitCount);
    PutU32(out, h.Compression);
    PutU32(out, h.SizeImage);
    PutI32(out, h.XPelsPerMeter);
    PutI32(out, h.YPelsPerMeter);
    PutU32(out, h.ClrUsed);
    PutU32(out, h.ClrImportant);
}

bool ReadIconDirectory(Bytes data, IconFileHeader& header, std::vector<IconDirEntry>& entries) {
    ByteReader r(data);
    const IconFileHeader h = ReadIconFileHeader(r);
    if (!r.Ok()) return false;
    // Checked against the file before anything is allocated.
    const std::size_t present = std::min<std::size_t>(h.Count, r.Remaining() / kIconDirEntryBytes);
    std::vector<IconDirEntry> list;
    list.reserve(present);
    for (std::size_t i = 0; i < present; ++i) list.push_back(ReadIconDirEntry(r));
    if (!r.Ok()) return false;
    header = h;
    entries = std::move(list);
    return true;
}

}  // namespace vexlo::files
