// The shared steps of the shades effects: preparing the preview, Invert and Grayscale, the
// dispatch by effect, Proceed, and the frame's setup per menu index.
#include <cmath>

#include "core/effects/shades.h"

namespace vexlo::effects {
namespace {

// The picture of source as the persistent picture of target (a whole-picture SRCCOPY).
void CopyPicture(const Surface& source, Surface& target) {
    target.DropStoredPicture();
    surface::BitBlt(target, 0, 0, source.Width(), source.Height(), source, 0, 0,
                    surface::Rop::SrcCopy);
    target.StorePicture();
}

bool PaintedByMaskTest(const IconPlanes& planes, int x, int y) {
    return planes.PicIcon.GetPixel(x, y) != kTransparentGray ||
           planes.picMask.GetPixel(x, y) == kBlack;
}

// Sets each cell of Image painted by the mask test to recolor(its PicIcon color).
template <typename Recolor>
ShadesPreview RecolorPainted(const IconPlanes& planes, Recolor recolor) {
    ShadesPreview preview = PreparePreview(planes);
    for (int x = 0; x < preview.Image.Width(); ++x)
        for (int y = 0; y < preview.Image.Height(); ++y)
            if (PaintedByMaskTest(planes, x, y))
                preview.Image.SetPixelV(x, y, recolor(planes.PicIcon.GetPixel(x, y)));
    return preview;
}

}  // namespace

std::optional<Effect> EffectOfCode(int code) {
    if (code < CodeOf(Effect::Invert) || code > CodeOf(Effect::Cast)) return std::nullopt;
    return static_cast<Effect>(code);
}

ShadesPreview PreparePreview(const IconPlanes& planes) {
    ShadesPreview preview;
    preview.Image.SetBackColor(kTransparentGray);
    preview.Mask.SetBackColor(kWhite);
    surface::MakeSameSize(planes.picImage, preview.Image);
    surface::MakeSameSize(planes.picImage, preview.Mask);
    CopyPicture(planes.PicIcon, preview.Image);
    CopyPicture(planes.picMask, preview.Mask);
    return preview;
}

ShadesPreview PreviewInvert(const IconPlanes& planes) {
    return RecolorPainted(planes, [](Color c) {
        return surface::Rgb(255 - surface::RedOf(c), 255 - surface::GreenOf(c),
                            255 - surface::BlueOf(c));
    });
}

int GrayOf(Color c) {
    // std::nearbyint rounds in the default mode: to nearest, ties to even.
    constexpr double kBlueWeight = 1 - 0.3 - 0.59;
    const double r = std::nearbyint(0.3 * surface::RedOf(c));
    const double g = std::nearbyint(0.59 * surface::GreenOf(c));
    const double b = std::nearbyint(kBlueWeight * surface::BlueOf(c));
    return static_cast<int>(r + g + b);
}

ShadesPreview PreviewGrayscale(const IconPlanes& planes) {
    return RecolorPainted(planes, [](Color c) {
        const int gray = GrayOf(c);
        return surface::Rgb(gray, gray, gray);
    });
}

ShadesPreview MakePreview(Effect effect, const IconPlanes& planes, const ShadesOptions& options) {
    switch (effect) {
        case Effect::Invert: return PreviewInvert(planes);
        case Effect::Grayscale: return PreviewGrayscale(planes);
        case Effect::Cast: return PreviewCast(planes, options.Cast);
        case Effect::Embossed:
        case Effect::Engraved:
        case Effect::Raised:
        case Effect::Shadowed: break;
    }
    return PreviewRelief(effect, planes, options.UseSelectedColor, options.SelectedColor);
}

std::optional<ShadesPreview> UseSelectedColorClicked(int shadeEffectCode, const IconPlanes& planes,
                                                     bool checked, Color selectedColor) {
    const std::optional<Effect> effect = EffectOfCode(shadeEffectCode);
    if (!effect) return std::nullopt;
    return PreviewRelief(*effect, planes, checked, selectedColor);
}

void ProceedShades(ShadesPreview& preview, Surface& picImage, Surface& picMask) {
    for (int x = 0; x < preview.Image.Width(); ++x)
        for (int y = 0; y < preview.Image.Height(); ++y)
            if (preview.Image.GetPixel(x, y) == kTransparentGray &&
                picMask.GetPixel(x, y) == kWhite)
                preview.Image.SetPixelV(x, y, kBlack);
    CopyPicture(preview.Image, picImage);
    CopyPicture(preview.Mask, picMask);
}

std::optional<ShadesFrameSetup> ShadesFrameOf(int menuIndex) {
    switch (menuIndex) {
        case 1: return ShadesFrameSetup{"Invert", Effect::Invert};
        case 2: return ShadesFrameSetup{"Grayscale", Effect::Grayscale};
        case 3: return ShadesFrameSetup{"Embossed", Effect::Embossed};
        case 4: return ShadesFrameSetup{"Engraved", Effect::Engraved};
        case 5: return ShadesFrameSetup{"Raised", Effect::Raised};
        case 6: return ShadesFrameSetup{"Shadowed", Effect::Shadowed, true, false};
        case 7: return ShadesFrameSetup{"Cast", Effect::Cast, false, true};
        default: return std::nullopt;
    }
}

std::string_view ShadesCaption(int menuIndex) {
    const std::optional<ShadesFrameSetup> setup = ShadesFrameOf(menuIndex);
    return setup ? setup->Caption : std::string_view{};
}

}  // namespace vexlo::effects
