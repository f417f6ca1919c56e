// Expand, Shrink, Confine to 16 colors and Confine to mono.
#include "core/effects/resize_confine.h"

#include <cmath>

#include "core/color/color_charts.h"

namespace vexlo::effects {
namespace {

using surface::Rgb;

// Stage 1 of the sixteen-color map for one component.
int SnapComponent(int v) {
    if (v == 0 || v == 128 || v == 192 || v == 255) return v;
    const int t = static_cast<int>(std::lrint(v / 2.0));
    return t >= 120 ? 255 : t >= 96 ? 192 : t >= 64 ? 128 : 0;
}

// Stage 2: the table by R, then G, then B, on snapped components that make no chart color.
Color TableColor(int r, int g, int b) {
    switch (r) {
        case 0:
            if (g == 0 && b == 192) return Rgb(0, 0, 128);
            if (g == 128 && b >= 192) return Rgb(0, 128, 128);
            if (g == 192 && b >= 192) return Rgb(0, 255, 255);
            if (g == 192 && b == 128) return Rgb(0, 128, 128);
            if (g == 192 && b == 0) return Rgb(0, 128, 0);
            if (g == 255) return b < 128 ? Rgb(0, 255, 0) : Rgb(0, 255, 255);
            break;
        case 128:
            if (g <= 128 && b > 0) return Rgb(128, g, 128);
            if (g == 192) return b < 128 ? Rgb(128, 128, 0) : Rgb(128, 128, 128);
            if (g == 255) return b == 0 ? Rgb(128, 128, 0) : Rgb(128, 128, 128);
            break;
        case 192:
            if (g < 128) return b < 128 ? Rgb(128, 0, 0) : Rgb(128, 0, 128);
            return b >= 128 ? Rgb(192, 192, 192) : Rgb(128, 128, 0);
        case 255:
            if (g >= 128) return b >= 128 ? Rgb(255, 255, 255) : Rgb(255, 255, 0);
            return b < 128 ? Rgb(255, 0, 0) : Rgb(255, 0, 255);
        default: break;
    }
    return Rgb(r, g, b);  // a chart color already
}

Surface SameSizePlane(const Surface& plane, int side) {
    Surface out(side, side, plane.BackColor());
    return out;
}

}  // namespace

ResizedPlanes ExpandIcon(const Surface& picImage, const Surface& picMask) {
    const int side = picImage.Width();
    ResizedPlanes out{SameSizePlane(picImage, 2 * side), SameSizePlane(picMask, 2 * side)};
    surface::StretchBlt(out.Image, 0, 0, 2 * side, 2 * side, picImage, 0, 0, side, side,
                        surface::Rop::SrcCopy, surface::StretchMode::ColorOnColor);
    surface::StretchBlt(out.Mask, 0, 0, 2 * side, 2 * side, picMask, 0, 0, side, side,
                        surface::Rop::SrcCopy, surface::StretchMode::ColorOnColor);
    return out;
}

Surface ShrinkPlane(const Surface& plane) {
    const int side = plane.Width() / 2;
    Surface out = SameSizePlane(plane, side);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            out.SetPixelV(x, y, plane.GetPixel(2 * x, 2 * y) & plane.GetPixel(2 * x + 1, 2 * y) &
                                    plane.GetPixel(2 * x, 2 * y + 1) &
                                    plane.GetPixel(2 * x + 1, 2 * y + 1));
    return out;
}

ResizedPlanes ShrinkIcon(const Surface& picImage, const Surface& picMask) {
    return {ShrinkPlane(picImage), ShrinkPlane(picMask)};
}

std::string ResizeMultiIconMessage(bool expand) {
    return std::string("Current icon originates from a multi-icon file which has") + "\r\n" +
           "already had alternative size(s).  If you wish to " + (expand ? "expand" : "shrink") +
           " the" + "\r\n" + "current one, save it as a single-icon file first.";
}

std::string ResizeQuestion(bool expand) {
    return std::string(expand ? "Expand from 16x16 to 32x32." : "Shrink from 32x32 to 16x16.") +
           "  (Undo will not be available)\r\nProceed?\r\n";
}

int AverageColor(Color c) {
    const int sum = surface::RedOf(c) + surface::GreenOf(c) + surface::BlueOf(c);
    return static_cast<int>(std::lrint(sum / 3.0));
}

bool IsChartColor(Color c) {
    for (const color::NamedColor& named : color::ColorChart16())
        if (named.Value == c) return true;
    return false;
}

Color MapToChart16(Color c) {
    const int r = SnapComponent(surface::RedOf(c));
    const int g = SnapComponent(surface::GreenOf(c));
    const int b = SnapComponent(surface::BlueOf(c));
    const Color snapped = Rgb(r, g, b);
    return IsChartColor(snapped) ? snapped : TableColor(r, g, b);
}

std::optional<std::string_view> Confine16Refusal(int colorClass) {
    if (colorClass == 2) return kMonochromeMessage;
    if (colorClass == 16) return kSixteenColorMessage;
    return std::nullopt;
}

void ConfineTo16(const Surface& picIcon, Surface& picImage, const std::function<void()>& afterColumn) {
    for (int x = 0; x < picIcon.Width(); ++x) {
        for (int y = 0; y < picIcon.Height(); ++y) {
            const Color c = picIcon.GetPixel(x, y);
            if (c == icon::kTransparentGray || IsChartColor(c)) continue;
            picImage.SetPixelV(x, y, MapToChart16(c));
        }
        if (afterColumn) afterColumn();
    }
}

void ConfineToMono(Surface& picImage, Surface& picMask, int threshold,
                   const std::optional<tools::CellRect>& region) {
    const tools::CellRect range =
        region ? *region
               : tools::CellRect{0, 0, picImage.Width() - 1, picImage.Height() - 1};
    for (int x = range.Left; x <= range.Right; ++x)
        for (int y = range.Top; y <= range.Bottom; ++y) {
            const Color c = picImage.GetPixel(x, y);
            if (c == icon::kWhite || c == surface::kInvalidColor) continue;
            picImage.SetPixelV(x, y, icon::kBlack);
            if (AverageColor(c) > threshold) picMask.SetPixelV(x, y, icon::kWhite);
        }
}

}  // namespace vexlo::effects
