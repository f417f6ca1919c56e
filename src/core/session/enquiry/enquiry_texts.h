#pragma once
// The answers of the Enquiry menu: what the file said at load time (the slot's record) beside
// what the pixels of the image plane say now. Lines end in CR LF.
#include <string>

#include "core/session/icon_slot.h"
#include "core/surface/surface.h"

namespace vexlo::session {

// The number of different pixel values of the plane; every pixel counts, the black of
// transparent pixels as one color like any other.
int CountDistinctColors(const surface::Surface& plane);

// mnuEnquiryCurrent(0): "COLOR DEPTH:", the file's palette and the actual depth.
std::string PaletteModeText(const IconSlot& slot, const surface::Surface& image);
// mnuEnquiryCurrent(1): the count of colors used.
std::string ColorsUsedText(const surface::Surface& image);
// mnuEnquiryCurrent(2): the hotspot, 0 and 0 when either value lies outside 0..31.
std::string HotspotText(const IconSlot& slot);
// mnuEnquiryCurrent(4): the general properties.
std::string GeneralPropertiesText(const IconSlot& slot, const surface::Surface& image);

}  // namespace vexlo::session
