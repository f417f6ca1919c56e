#pragma once
// ReadIconFileToImage: decodes one image of an icon file into the two planes of the pixel
// model. The color bytes are kept as they stand (no pixel is blackened where the mask is
// set); the mask plane is 0xFFFFFF where a mask bit is set and 0 where not; a true-color
// image leaves its alpha bytes, indexed (x, y), in the incoming alpha array. On any failure
// nothing is touched: the outputs are written only after the whole image has been read.
#include <cstdint>
#include <string>
#include <vector>

#include "core/alpha/alpha_array.h"
#include "core/files/byte_reader.h"
#include "core/surface/surface.h"

namespace vexlo::files {

// One image decoded, not yet put on Surfaces. Pixels are row-major from the top row.
struct DecodedIcon {
    int Side = 0;
    std::vector<surface::Color> Image;
    std::vector<surface::Color> Mask;  // 0xFFFFFF or 0
    bool TrueColor = false;            // the image carried alpha bytes (set in Alpha)
    alpha::AlphaArray Alpha;
};

// Decodes the image whose 40-byte header starts at imageOffset in data: side is the icon's
// width and height (16, 32 or 48), colors the color count (2, 16, 256, or -1 for true color,
// which reads 3 bytes a pixel if bitCount is 24, else 4 with alpha). Everything is read from
// imageOffset + 40, the header itself is not looked at. False if anything lies outside data
// or the count cannot be decoded. Also serves images that come without an icon directory
// (resources of program files).
bool DecodeIconImage(Bytes data, std::uint64_t imageOffset, int side, int colors, int bitCount,
                     DecodedIcon& out);

// Puts a decoded image on the planes: both are resized (so cleared to their back color) to
// side x side and every pixel written; a true-color image replaces incomingAlpha with its
// values, a color-table image leaves incomingAlpha as it was.
void PutDecodedIcon(DecodedIcon&& icon, surface::Surface& image, surface::Surface& mask,
                    alpha::AlphaArray& incomingAlpha);

// Reads image index (from 0) of the icon file at path, or held in data. The size is bWidth of
// the directory entry and the encoding its ColorCountOfEntry; true if read. On false the
// Surfaces and incomingAlpha are as they were.
bool ReadIconFileToImage(const std::string& path, int index, surface::Surface& image,
                         surface::Surface& mask, alpha::AlphaArray& incomingAlpha);
bool ReadIconFileToImage(Bytes data, int index, surface::Surface& image, surface::Surface& mask,
                         alpha::AlphaArray& incomingAlpha);

// For the Icons List: probes with stopAtFirst, reads the chosen image into image and mask and
// composes it into composed (cleared to its back color and sized, mask with SRCAND, image
// with SRCINVERT). False on any failure, with no message. The alpha values are read into a
// scratch array and dropped: the session's incoming alpha is not disturbed by a preview.
bool ReadIconToPreview(const std::string& path, surface::Surface& image, surface::Surface& mask,
                       surface::Surface& composed);
bool ReadIconToPreview(Bytes data, surface::Surface& image, surface::Surface& mask,
                       surface::Surface& composed);

}  // namespace vexlo::files
