#pragma once
// ProbeIconFile: judges an icon file and chooses the image that opens without asking.
#include <string>

#include "core/files/byte_reader.h"
#include "core/files/ico_format.h"

namespace vexlo::files {

// The six fields of the probe's answer; Text() joins them with "/".
struct ProbeAnswer {
    int Kind = 0;      // 0: no icon file, 1: one image, 2: several images
    int Usable = 0;    // images of usable size (16, 32 or 48, square)
    int Index = 0;     // the chosen image
    int Width = 0;     // its width
    int Colors = 0;    // 2, 16, 256, or -1 for anything else
    int BitCount = 0;  // its biBitCount

    std::string Text() const;
    friend bool operator==(const ProbeAnswer&, const ProbeAnswer&) = default;
};

// Probes the file at path. Any failure answers "0/0/0/0/0/0": a missing or unreadable file,
// one over kMaxFileBytes, and any read that the file cuts short, also of a later entry or of
// its image header in a file of several images (unless the choice has ended the loop first).
ProbeAnswer ProbeIconFile(const std::string& path, bool stopAtFirst = false);
// The same on a file held in memory.
ProbeAnswer ProbeIconFile(Bytes data, bool stopAtFirst = false);

// The color count of a directory entry: bColorCount, or when that is 0, 2 to the power
// wBitCount for wBitCount up to 8 and -1 (true color) above.
int ColorCountOfEntry(const IconDirEntry& entry);
// The probe's colors field for a biBitCount: 1 -> 2, 4 -> 16, 8 -> 256, else -1.
int ColorsOfBitCount(int bitCount);

}  // namespace vexlo::files
