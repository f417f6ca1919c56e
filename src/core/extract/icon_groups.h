#pragma once
// Icon and cursor groups: a group resource (RT_GROUP_ICON, RT_GROUP_CURSOR) names the images
// (RT_ICON, RT_CURSOR resources, by number) that make one icon or cursor of several sizes and
// depths. A plain icon or cursor file is one group whose images lie in the file itself.
//
// A group resource is 6 bytes (reserved, type, count) and 14 bytes per entry:
//   icon:   bWidth, bHeight, bColorCount, bReserved, wPlanes, wBitCount, dwBytesInRes, nID
//   cursor: wWidth, wHeight, wPlanes, wBitCount, dwBytesInRes, nID
// A cursor image resource starts with its hot spot (two 16-bit values) before the picture.
#include <cstdint>
#include <vector>

#include "core/extract/resource_list.h"

namespace vexlo::extract {

struct GroupImage {
    // The group's entry as it stands (a cursor's width and height in Width and Height).
    std::uint16_t Width = 0;
    std::uint16_t Height = 0;
    std::uint8_t ColorCount = 0;
    std::uint8_t Reserved = 0;
    std::uint16_t Planes = 0;
    std::uint16_t BitCount = 0;
    std::uint32_t BytesInRes = 0;  // what the group claims; the image's own size is Size
    std::uint16_t Id = 0;          // nID (the directory index for an icon or cursor file)
    // The image found for the entry; a missing one (no resource of that number, or data
    // outside the file) has Present false and is left out of everything built from the group.
    bool Present = false;
    std::uint32_t Offset = 0;  // file offset of the picture (after a cursor's hot spot)
    std::uint32_t Size = 0;
    std::uint16_t HotX = 0;
    std::uint16_t HotY = 0;
};

struct IconGroup {
    bool Cursor = false;
    ResourceKey Name;  // for an icon or cursor file, the number 1
    std::uint16_t Language = 0;
    std::vector<GroupImage> Images;

    int PresentCount() const;
};

// What an image is, from the picture's own header (a bitmap header, whose height counts both
// planes, or a PNG's IHDR), else from the group's entry (a cursor group's height is halved
// when it is larger than the width).
struct ImageFacts {
    int Width = 0;
    int Height = 0;
    int BitCount = 0;
    bool Png = false;
};
ImageFacts ImageFactsOf(Bytes file, const GroupImage& image, bool cursor);

// The groups of a resource list: every icon group in list order, then every cursor group. A
// group resource shorter than its header, or of another type field, is passed over (the
// damage told in list.Damage); its entries are never read past its data. Each entry's image
// is the resource of that number and the group's language, else of that number in the first
// language found.
std::vector<IconGroup> ReadGroups(Bytes file, ResourceList& list);

// The one group of an icon (idType 1) or cursor (idType 2) file: the directory's entries that
// lie in the file, each image present if its bytes do. False for any other file.
bool ReadIconFileGroup(Bytes file, IconGroup& group);

// True if data starts as an icon or cursor file header (reserved 0, type 1 or 2, count > 0).
bool LooksLikeIconFile(Bytes data);

// The group as a standalone icon (.ico) or cursor (.cur) file: header, one 16-byte entry per
// present image, the images' bytes copied unchanged, end to end in the group's order. An icon
// entry keeps the group's fields with dwBytesInRes the image's length; a cursor entry takes
// its width, height and depth from the picture's own header (the group's where the picture
// has none), with the hot spot. Empty for a group of no present image, or one whose images
// together (a group may name one image many times) would pass maxBytes.
std::vector<std::uint8_t> RebuildGroupFile(Bytes file, const IconGroup& group, std::uint64_t maxBytes);

}  // namespace vexlo::extract
