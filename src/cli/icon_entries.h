#pragma once
// The cli's own reading of icon (ICO) and cursor (CUR) files: the header, the directory, and
// each entry checked against the file and decoded. The editor's reader follows the
// directory's depth and takes sizes of 16, 32 and 48; this one reads what an entry really
// holds (any size the directory can name, PNG entries, cursors of several images, depths from
// the image header) or refuses it with a reason.
//
//   header     6 bytes: idReserved 0, idType 1 (icon) or 2 (cursor), idCount >= 1
//   directory  idCount entries of 16 bytes; a cursor's entry holds the hotspot's x and y where
//              an icon's holds planes and bit count
//   image      dwBytesInRes bytes at dwImageOffset, after the directory and within the file:
//              a PNG, or an info header, color table, color rows and 1-bit mask rows
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "cli/rgba_image.h"
#include "core/files/byte_reader.h"

namespace vexlo::cli {

enum class IconFileKind { Icon, Cursor };

struct IconEntry {
    int Width = 0;  // 1..256: a 0 in the directory stands for 256
    int Height = 0;
    std::uint16_t Planes = 0;    // a cursor's hotspot x
    std::uint16_t BitCount = 0;  // a cursor's hotspot y
    std::uint32_t BytesInRes = 0;
    std::uint32_t ImageOffset = 0;
};

struct IconDirectory {
    IconFileKind Kind = IconFileKind::Icon;
    std::vector<IconEntry> Entries;

    bool IsCursor() const { return Kind == IconFileKind::Cursor; }
    std::size_t End() const { return 6 + 16 * Entries.size(); }
};

// Reads the header and the whole directory. False, with why, for a file that isn't an icon or
// cursor file (an animated cursor and a program file are named as such), one of no images,
// or one whose directory runs past its end.
bool ReadIconDirectory(files::Bytes file, IconDirectory& dir, std::string& why);

struct EntryImage {
    bool Png = false;
    int Bits = 0;                // biBitCount, or the PNG's bit depth times its channels
    int Colors = -1;             // entries of the color table or palette; -1 without one
    bool MaskFromAlpha = false;  // a 32-bit image without mask rows
    // Alpha 0 where the mask is set, 255 where not; a 32-bit image's own alpha, unless all of
    // its alpha bytes are 0 (then the mask's).
    RgbaImage Pixels;
    // The alpha bytes a 32-bit image stores, rows from the top, as they stand in the file
    // (all 0 stays 0); empty for other depths and for PNG entries.
    std::vector<std::uint8_t> StoredAlpha;
};

// Checks entry index against the file and decodes it: its bytes lie after the directory and
// within the file; a cursor's hotspot lies in the image; a PNG entry is read by libpng and has
// the directory's size; any other has an info header of a known size with one plane, 1, 4, 8,
// 24 or 32 bits, no compression, the directory's width and twice its height (color and mask),
// a whole color table, whole color rows and whole mask rows (a 32-bit image may have none:
// its mask comes from its alpha), and every pixel within the color table. False with why.
bool DecodeIconEntry(files::Bytes file, const IconDirectory& dir, std::size_t index, EntryImage& out,
                     std::string& why);

}  // namespace vexlo::cli
