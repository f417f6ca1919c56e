#include "core/session/icons_list/library_icons.h"

namespace vexlo::session {

using surface::Rop;

namespace {

bool Usable(const LibraryIcon& icon) {
    const int w = icon.Image.Width();
    return w > 0 && icon.Image.Height() > 0 && icon.Mask.Width() == w &&
           icon.Mask.Height() == icon.Image.Height();
}

// One plane at side x side, stretched (nearest pixel) when it is of another size.
void Put(surface::Surface& target, int x, int y, int side, const surface::Surface& plane, Rop rop) {
    if (plane.Width() == side && plane.Height() == side)
        surface::BitBlt(target, x, y, side, side, plane, 0, 0, rop);
    else
        surface::StretchBlt(target, x, y, side, side, plane, 0, 0, plane.Width(), plane.Height(), rop);
}

}  // namespace

bool DrawIconNormal(surface::Surface& target, int x, int y, int side, const LibraryIcon& icon) {
    if (!Usable(icon) || side <= 0) return false;
    Put(target, x, y, side, icon.Mask, Rop::SrcAnd);
    Put(target, x, y, side, icon.Image, Rop::SrcInvert);
    return true;
}

bool DrawIconMask(surface::Surface& target, int side, const LibraryIcon& icon) {
    if (!Usable(icon) || side <= 0) return false;
    Put(target, 0, 0, side, icon.Mask, Rop::SrcCopy);
    return true;
}

}  // namespace vexlo::session
