#pragma once
// The icons inside a library file (a DLL, EXE, .res or the like) as the Icons List takes
// them: how many icon groups the file holds, and for group i its large (32x32) or small
// (16x16) picture as an image plane and a mask plane. The reader behind it is not the list's
// concern; DefaultLibraryIcons() is the one the session uses unless told otherwise.
//
// How such a picture is drawn, as the platform draws an icon: over what is there, the mask
// with SRCAND and then the image with SRCINVERT, stretched to the asked size when the group
// had no picture of that size.
#include <string>

#include "core/surface/surface.h"

namespace vexlo::session {

// One picture of an icon group: the color plane as stored and the mask plane (0xFFFFFF
// where transparent, 0 where painted), square and of equal size.
struct LibraryIcon {
    surface::Surface Image;
    surface::Surface Mask;
};

class LibraryIconSource {
public:
    virtual ~LibraryIconSource() = default;
    // The icon groups of the file at path; 0 when it has none or can't be read.
    virtual int CountIconGroups(const std::string& /*path*/) { return 0; }
    // Group `group` (from 0) of the file: the large picture (the 32x32 one, or the nearest)
    // or the small one (16x16, or the nearest). False when there is no such group or it can't
    // be read; out is then as it was.
    virtual bool IconOfGroup(const std::string& /*path*/, int /*group*/, bool /*large*/,
                             LibraryIcon& /*out*/) {
        return false;
    }
};

// The reader the session uses: our own reader of library files (library_file_icons.h).
LibraryIconSource& DefaultLibraryIcons();

// Draws the icon at (x, y) of target at side x side as the platform does with DI_NORMAL: the
// mask ANDed, then the image XORed. False, with target untouched, when the icon is empty or
// its planes differ in size.
bool DrawIconNormal(surface::Surface& target, int x, int y, int side, const LibraryIcon& icon);
// The mask alone (DI_MASK) into target at (0, 0), side x side.
bool DrawIconMask(surface::Surface& target, int side, const LibraryIcon& icon);

}  // namespace vexlo::session
