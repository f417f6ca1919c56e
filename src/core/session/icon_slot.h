#pragma once
// The record of one Icons Panel position, the size codes, and the square alpha arrays.
#include <cstdint>
#include <string>
#include <vector>

#include "core/alpha/alpha_array.h"
#include "core/icon/icon_planes.h"

namespace vexlo::session {

inline constexpr int kSlotCount = 6;

using icon::IconSideOf;
using icon::SizeCodeOfSide;
// Editing Area pixels per icon pixel.
constexpr int MagnifyStepOf(int sizeCode) { return sizeCode == 3 ? 8 : 12; }

inline constexpr std::size_t kKindTextWidth = 32;

// Where an icon came from; KindText holds one of these, or nothing for a free slot.
inline constexpr const char* kKindNewIcon = "New icon";
inline constexpr const char* kKindIcoFile = "ICO file";
inline constexpr const char* kKindCurFile = "CUR file";
inline constexpr const char* kKindBmpFile = "BMP or other file";
inline constexpr const char* kKindScreenCapture = "Screen capture";
inline constexpr const char* kKindExtraction = "Extraction";
inline constexpr const char* kKindAniFrame = "ANI frame";

inline constexpr const char* kUntitled = "Untitled";

struct IconSlot {
    std::int16_t SlotIndex = 0;
    bool Occupied = false;
    std::string KindText;  // at most kKindTextWidth characters, kept trimmed
    std::int32_t ColorCount = 0;  // -1: true color
    std::int16_t BitsPerPixel = 0;
    bool HasAlpha = false;
    bool InEditingArea = false;
    std::int16_t SizeCode = 2;
    // Kept whole: a path cut to a fixed width would name another file.
    std::string FileSpec;
    bool MultiIconFile = false;
    std::int16_t MultiIconIndex = 0;
    bool HasHotspot = false;
    std::int16_t HotspotX = 0;
    std::int16_t HotspotY = 0;
    bool NeverSaved = false;
    bool Changed = false;

    void SetKindText(const std::string& text) { KindText = text.substr(0, kKindTextWidth); }
    // No hotspot, saved as it stands: what every load and save leaves in the record.
    void ClearFileState() {
        HasHotspot = false;
        HotspotX = 0;
        HotspotY = 0;
        NeverSaved = false;
        Changed = false;
    }
};

using alpha::AlphaArray;

}  // namespace vexlo::session
