// Rotate at any angle: the sample of fraRotateSelectAngle and Proceed on both planes.
#include "core/effects/rotate_angle.h"

#include <cmath>

#include "core/effects/rotate_picture.h"
#include "core/icon/icon_colors.h"

namespace vexlo::effects {
namespace {

using icon::kBlack;
using icon::kTransparentGray;
using icon::kWhite;

int Round(double v) { return static_cast<int>(std::nearbyint(v)); }

// The offset of a block of `inner` in the middle of `outer`, rounded ties to even.
int MiddleOffset(int outer, int inner) { return Round((outer - inner) / 2.0); }

// plane turned into a temporary of RotateTempSide filled with (and keyed on) fill, then its
// middle side x side block as the plane's drawing and stored picture.
void TurnPlane(Surface& plane, int angle, Color fill) {
    const int side = plane.Width();
    const int t = RotateTempSide(side);
    Surface temp(t, t, fill);
    temp.Fill(fill);
    RotateOptions options;
    options.UseKey = true;
    options.KeyColor = fill;
    RotatePicture(plane, temp, angle, options);
    const int off = MiddleOffset(t, side);
    plane.DropStoredPicture();
    surface::BitBlt(plane, 0, 0, side, side, temp, off, off, surface::Rop::SrcCopy);
    plane.StorePicture();
}

}  // namespace

std::vector<std::string> RotateAngleEntries() {
    std::vector<std::string> entries;
    for (int a = kRotateAngleMin; a <= kRotateAngleMax; ++a) entries.push_back(std::to_string(a));
    return entries;
}

int RotateTempSide(int w) { return Round(std::sqrt(2.0 * w * w) + 2); }

Surface RotateSampleOpening(const Surface& PicIcon) {
    Surface sample(kRotateSampleSide, kRotateSampleSide, kTransparentGray);
    surface::BitBlt(sample, 0, 0, PicIcon.Width(), PicIcon.Height(), PicIcon, 0, 0,
                    surface::Rop::SrcCopy);
    sample.StorePicture();
    return sample;
}

Surface RotateSample(const Surface& picImage, int angle, bool antiAlias) {
    const int t = RotateTempSide(picImage.Width());
    Surface temp(t, t, kTransparentGray);
    RotateOptions options;
    options.UseKey = true;
    options.KeyColor = kBlack;
    options.AntiAlias = antiAlias;
    RotatePicture(picImage, temp, angle, options);
    Surface sample(kRotateSampleSide, kRotateSampleSide, kTransparentGray);
    const int off = MiddleOffset(t, kRotateSampleSide);
    surface::BitBlt(sample, 0, 0, kRotateSampleSide, kRotateSampleSide, temp, off, off,
                    surface::Rop::SrcCopy);
    sample.StorePicture();
    return sample;
}

void ProceedRotate(int angle, Surface& picImage, Surface& picMask) {
    TurnPlane(picImage, angle, kBlack);
    TurnPlane(picMask, angle, kWhite);
}

}  // namespace vexlo::effects
