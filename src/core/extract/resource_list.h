#pragma once
// The resources of a program file (PE32, PE32+) or a compiled resource file (.res), as the
// readers find them: one record per leaf of the tree (type, name, language), in the order of
// the tree, with the file offset and size of its data already checked against the file. Names
// stay in the file (offset and length of their UTF-16 text) until someone asks for them, so a
// list never takes more memory than a small part of the file it came from.
#include <cstdint>
#include <string>
#include <vector>

#include "core/files/byte_reader.h"

namespace vexlo::extract {

using files::Bytes;

// The resource types that hold icons and cursors.
inline constexpr std::uint16_t kRtCursor = 1;
inline constexpr std::uint16_t kRtIcon = 3;
inline constexpr std::uint16_t kRtGroupCursor = 12;
inline constexpr std::uint16_t kRtGroupIcon = 14;

// Names longer than this are refused as damage: no compiler writes them, and the cap bounds
// the work of a hostile file whose many entries share one long name.
inline constexpr std::uint32_t kMaxNameUnits = 255;

// A type or a name: a number, or a UTF-16 text held in the file.
struct ResourceKey {
    bool IsName = false;
    std::uint16_t Id = 0;
    std::uint32_t NameOffset = 0;  // file offset of the first UTF-16 unit
    std::uint16_t NameLength = 0;  // in UTF-16 units
};

// A leaf of the tree. Only numbered types are kept (the readers take the four above).
struct Resource {
    std::uint16_t Type = 0;
    ResourceKey Name;
    std::uint16_t Language = 0;
    std::uint32_t Offset = 0;  // file offset of the data
    std::uint32_t Size = 0;    // bytes of data, all within the file
};

struct ResourceList {
    std::vector<Resource> Items;
    // The first damage met while reading (an entry passed over), empty for a sound file.
    std::string Damage;

    void NoteDamage(const char* what) {
        if (Damage.empty()) Damage = what;
    }
};

// The types that the readers keep.
constexpr bool IsIconType(std::uint32_t type) {
    return type == kRtCursor || type == kRtIcon || type == kRtGroupCursor || type == kRtGroupIcon;
}

// How a reader ended: Ok (the list may still be empty, and Damage may tell of entries passed
// over), or a refusal of the whole file.
enum class ReadStatus { Ok, NotThisFormat, Truncated, NoResources, DirectoryOutside };

// The text of a key: the name as UTF-8 (a unit that is no character becomes '?'), or the
// number in decimal.
std::string KeyText(Bytes file, const ResourceKey& key);

// True if both keys are the same number, or names equal without regard to ASCII case (as
// the platform looks names up).
bool SameKey(Bytes file, const ResourceKey& a, const ResourceKey& b);

// The order of a resource directory: names first, compared unit by unit after ASCII letters
// are raised to capitals, then numbers ascending.
bool KeyBefore(Bytes file, const ResourceKey& a, const ResourceKey& b);

// The data of a resource as a span of the file.
inline Bytes DataOf(Bytes file, const Resource& r) { return file.subspan(r.Offset, r.Size); }

}  // namespace vexlo::extract
