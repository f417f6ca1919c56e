#pragma once
// What the icon decoder can take from one stored image, judged from the image's own bytes
// (its 40-byte header and the rows behind it), and the mask that a 32-bit image keeps in its
// alpha values. Shared by the readers that pick one image of several: an animated cursor's
// frames and the icon groups of program files.
#include <cstdint>
#include <vector>

#include "core/files/byte_reader.h"
#include "core/files/ico_read.h"
#include "core/surface/surface.h"

namespace vexlo::files {

// An image is usable when its 40-byte header sits at offset with a width of 16, 32 or 48,
// twice that height (color and mask rows), 1, 4, 8, 24 or 32 bits, no compression, and its
// color table, color rows and mask rows lie within data. Stored PNG images are not usable.
struct UsableIconImage {
    bool Usable = false;
    int Side = 0;
    int BitCount = 0;
};
UsableIconImage JudgeIconImage(Bytes data, std::uint64_t offset);

// Decodes a usable image (JudgeIconImage) at offset; false if it is not usable.
bool DecodeUsableImage(Bytes data, std::uint64_t offset, DecodedIcon& out);

// A 32-bit image whose mask rows are all clear keeps its transparency in its alpha values:
// the mask is set where alpha is below 128, unless every alpha value is 0. Other images are
// left as they are.
void MaskFromAlpha(DecodedIcon& d);

// A plane of side x side pixels (rows from the top) as a Surface of target x target, stretched
// by whole pixels (StretchBlt, SRCCOPY) when the sizes differ.
surface::Surface PlaneAtSide(const std::vector<surface::Color>& pixels, int side, int target);

}  // namespace vexlo::files
