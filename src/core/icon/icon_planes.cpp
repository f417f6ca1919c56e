#include "core/icon/icon_planes.h"

namespace vexlo::icon {

using surface::BitBlt;
using surface::Rop;

void Compose(const Surface& image, const Surface& mask, Surface& out, int w, int h) {
    if (w < 0) w = out.Width();
    if (h < 0) h = out.Height();
    out.Clear();
    BitBlt(out, 0, 0, w, h, mask, 0, 0, Rop::SrcAnd);
    BitBlt(out, 0, 0, w, h, image, 0, 0, Rop::SrcInvert);
}

void ComposeResized(const Surface& image, const Surface& mask, Surface& out) {
    out.Resize(image.Width(), image.Height());
    Compose(image, mask, out);
}

void FillTransparent(Surface& image, Surface& mask) {
    image.Fill(kBlack);
    mask.Fill(kWhite);
}

}  // namespace vexlo::icon
