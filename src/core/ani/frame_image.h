#pragma once
// The pictures inside an animated cursor's frames, and a still cursor or icon file, as the
// platform's cursor loader takes them: each frame is an icon or cursor file that may hold
// several images; the one drawn is chosen as the platform chooses and drawn at 32x32.
//
// An image is usable when its 40-byte header sits at its offset with a width of 16, 32 or 48,
// twice that height (color and mask rows), 1, 4, 8, 24 or 32 bits, no compression, and its
// color table, color rows and mask rows lie within the data. Stored PNG images are not usable.
#include <cstdint>
#include <vector>

#include "core/files/byte_reader.h"
#include "core/surface/surface.h"

namespace vexlo::ani {

using files::Bytes;

// What the directory and the image header of one image say.
struct FrameImageFacts {
    int Index = 0;  // in the directory
    bool Usable = false;
    int Side = 0;
    int BitCount = 0;
    std::uint32_t Offset = 0;
    int HotX = 0;  // a cursor's hot spot (0 for an icon)
    int HotY = 0;
};

// Every image of an icon (idType 1) or cursor (idType 2) file held in data; the directory is
// never read past the data, whatever idCount says. Empty for anything else.
std::vector<FrameImageFacts> ListFrameImages(Bytes data);

// The image the platform draws: the usable 32x32 one, else the usable one nearest in size (of
// 16 and 48, 48), and among those of one size the deepest, then the first. -1 if none is usable.
int ChooseFrameImage(const std::vector<FrameImageFacts>& images);
// The same on a file's bytes: a directory index, or -1.
int ChooseFrameImage(Bytes data);

// One frame ready to draw: both planes 32x32 (the image stretched by whole pixels when it is of
// another size). The mask is 0xFFFFFF where transparent or inverting. A 32-bit image whose mask
// rows are all clear takes its mask from its alpha values (below 128 transparent), unless
// every alpha value is 0.
struct FramePlanes {
    surface::Surface Image;
    surface::Surface Mask;
    int HotX = 0;
    int HotY = 0;
};

// Decodes the chosen image of the icon or cursor file in data. False if none is usable.
bool DecodeFramePlanes(Bytes data, FramePlanes& out);

}  // namespace vexlo::ani
