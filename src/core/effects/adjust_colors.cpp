// The steps of Adjust Painted Colors on the preview, and Proceed into picImage.
#include "core/effects/adjust_colors.h"

#include <algorithm>
#include <cmath>

namespace vexlo::effects {
namespace {

using icon::kBlack;
using icon::kTransparentGray;

// Applies change to each painted cell of the preview, x outer, y inner.
template <typename Change>
void ChangePainted(Surface& picColorAdj, Change change) {
    for (int x = 0; x < picColorAdj.Width(); ++x)
        for (int y = 0; y < picColorAdj.Height(); ++y) {
            const Color c = picColorAdj.GetPixel(x, y);
            if (c != kTransparentGray) picColorAdj.SetPixelV(x, y, change(c));
        }
}

// The picture of source as the drawing and stored picture of target.
void CopyPicture(const Surface& source, Surface& target) {
    target.DropStoredPicture();
    surface::BitBlt(target, 0, 0, source.Width(), source.Height(), source, 0, 0,
                    surface::Rop::SrcCopy);
    target.StorePicture();
}

}  // namespace

std::array<std::string, kAdjustListCount> AdjustListEntries() {
    std::array<std::string, kAdjustListCount> entries;
    for (int i = 0; i < kAdjustListCount; ++i)
        entries[static_cast<std::size_t>(i)] = std::to_string(AdjustPercentOf(i));
    return entries;
}

int AdjustComponent(int component, int percent) {
    const float factor = static_cast<float>((percent + 100) / 100.0);
    // std::nearbyint rounds in the default mode: to nearest, ties to even.
    const double v = std::nearbyint(std::fabs(static_cast<double>(factor) * component));
    return static_cast<int>(std::clamp(v, 0.0, 255.0));
}

Surface PrepareColorAdj(const Surface& picImage, const Surface& PicIcon) {
    Surface preview(picImage.Width(), picImage.Height(), kTransparentGray);
    CopyPicture(PicIcon, preview);
    return preview;
}

bool AdjustBrightness(Surface& picColorAdj, int percent) {
    if (percent == 0) return false;
    ChangePainted(picColorAdj, [percent](Color c) {
        return surface::Rgb(AdjustComponent(surface::RedOf(c), percent),
                            AdjustComponent(surface::GreenOf(c), percent),
                            AdjustComponent(surface::BlueOf(c), percent));
    });
    return true;
}

bool AdjustChannel(Surface& picColorAdj, ColorChannel channel, int percent) {
    if (percent == 0) return false;
    const int shift = 8 * static_cast<int>(channel);
    ChangePainted(picColorAdj, [percent, shift](Color c) {
        const int component = static_cast<int>((c >> shift) & 0xFF);
        const Color adjusted = static_cast<Color>(AdjustComponent(component, percent)) << shift;
        return (c & ~(Color{0xFF} << shift)) | adjusted;
    });
    return true;
}

void ProceedAdjustColors(const Surface& picColorAdj, Surface& picImage) {
    Surface result = picColorAdj;
    for (int x = 0; x < result.Width(); ++x)
        for (int y = 0; y < result.Height(); ++y)
            if (result.GetPixel(x, y) == kTransparentGray) result.SetPixelV(x, y, kBlack);
    CopyPicture(result, picImage);
}

}  // namespace vexlo::effects
