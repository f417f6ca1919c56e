#include "core/files/ico_probe.h"

#include <cstdint>
#include <vector>

namespace vexlo::files {

std::string ProbeAnswer::Text() const {
    return std::to_string(Kind) + "/" + std::to_string(Usable) + "/" + std::to_string(Index) + "/" +
           std::to_string(Width) + "/" + std::to_string(Colors) + "/" + std::to_string(BitCount);
}

int ColorCountOfEntry(const IconDirEntry& entry) {
    int c = entry.ColorCount;
    if (c == 0) {
        if (entry.BitCount > 8) return kTrueColor;
        c = 1 << entry.BitCount;
    }
    return c > 256 ? kTrueColor : c;
}

int ColorsOfBitCount(int bitCount) {
    return bitCount == 1 ? 2 : bitCount == 4 ? 16 : bitCount == 8 ? 256 : kTrueColor;
}

namespace {

// The 40-byte header of the image at offset, if it lies wholly in the file.
bool ReadImageHeader(Bytes data, std::uint32_t offset, BitmapInfoHeader& out) {
    ByteReader r(data);
    r.Seek(offset);
    const BitmapInfoHeader h = ReadBitmapInfoHeader(r);
    if (!r.Ok()) return false;
    out = h;
    return true;
}

// biHeight / 2 where it is a whole number; 0 (no size) otherwise.
std::int64_t HalfHeight(std::int32_t biHeight) {
    return biHeight % 2 == 0 ? std::int64_t{biHeight} / 2 : 0;
}

}  // namespace

ProbeAnswer ProbeIconFile(Bytes data, bool stopAtFirst) {
    const ProbeAnswer none;
    // The header and the first entry; a file too short for them is no icon file.
    ByteReader r(data);
    const IconFileHeader header = ReadIconFileHeader(r);
    const IconDirEntry first = ReadIconDirEntry(r);
    if (!r.Ok() || !IsIconFileHeader(header)) return none;
    if (first.Reserved != 0 || first.Width == 0 || first.Height == 0 || first.BytesInRes == 0 ||
        first.ImageOffset == 0)
        return none;

    if (header.Count == 1) {
        BitmapInfoHeader bih;
        if (!ReadImageHeader(data, first.ImageOffset, bih)) return none;
        // Width and height needn't be equal here.
        if (!IsIconSide(bih.Width) || !IsIconSide(HalfHeight(bih.Height))) return none;
        return {1, 1, 0, bih.Width, ColorsOfBitCount(bih.BitCount), bih.BitCount};
    }

    // Several images: each entry and then its image header are read in turn. Any read that
    // the file cuts short, an entry past its end or an image header outside it, fails the
    // whole probe; entries after the loop has ended are not read.
    int usable = 0;
    int chosen = -1;
    BitmapInfoHeader chosenHeader;
    for (int index = 0; index < header.Count; ++index) {
        ByteReader er(data);
        er.Seek(kIconFileHeaderBytes + std::uint64_t{kIconDirEntryBytes} * static_cast<unsigned>(index));
        const IconDirEntry entry = ReadIconDirEntry(er);
        BitmapInfoHeader bih;
        if (!er.Ok() || !ReadImageHeader(data, entry.ImageOffset, bih)) return none;
        if (!IsIconSide(bih.Width) || bih.Width != HalfHeight(bih.Height)) continue;
        ++usable;
        if (chosen < 0) {
            chosen = index;
            chosenHeader = bih;
        } else if (bih.Width == 32 && chosenHeader.Width != 32) {
            chosen = index;
            chosenHeader = bih;
        } else if (bih.Width == 32 && bih.BitCount == 8) {
            chosen = index;
            chosenHeader = bih;
            if (stopAtFirst && index > 0) break;
        }
    }
    if (usable == 0) return {2, 0, 0, 0, 0, 0};
    return {2, usable, chosen, chosenHeader.Width, ColorsOfBitCount(chosenHeader.BitCount),
            chosenHeader.BitCount};
}

ProbeAnswer ProbeIconFile(const std::string& path, bool stopAtFirst) {
    std::vector<std::uint8_t> data;
    if (ReadWholeFile(path, data) != FileReadStatus::Ok) return {};
    return ProbeIconFile(Bytes(data), stopAtFirst);
}

}  // namespace vexlo::files
