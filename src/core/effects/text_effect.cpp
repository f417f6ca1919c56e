// The Text effect's pictures: the drawn text cut, turned and bounded into the floating
// picture, and the angle sample.
#include "core/effects/text_effect.h"

#include <algorithm>
#include <cmath>

#include "core/effects/rotate_picture.h"
#include "core/icon/icon_colors.h"
#include "core/icon/icon_planes.h"

namespace vexlo::effects {
namespace {

int Round(double v) { return static_cast<int>(std::nearbyint(v)); }

constexpr int kAngleSampleWidth = 28;
constexpr int kAngleSampleHeight = 14;
constexpr int kAngleBackgroundSide = 36;

}  // namespace

std::vector<std::string> FontSizeEntries() {
    std::vector<std::string> entries;
    for (int i = 0; i < kFontSizeCount; ++i) entries.push_back(std::to_string(FontSizeOf(i)));
    return entries;
}

std::string FontNotAvailableText(const std::string& name) {
    return name + " not available in system.";
}

bool IsBlankText(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

std::optional<Surface> MakeTextRegion(const Surface& drawn, int sizeCode, double angle,
                                      Color key) {
    const int limit = icon::IconSideOf(sizeCode);
    if (limit == 0) return std::nullopt;
    // Text longer than the icon is cut here, before any turn.
    const int w = std::min(drawn.Width(), limit), h = std::min(drawn.Height(), limit);
    if (w <= 0 || h <= 0) return std::nullopt;
    Surface region(w, h, key);
    surface::BitBlt(region, 0, 0, w, h, drawn, 0, 0, surface::Rop::SrcCopy);

    const int side = sizeCode == 1 ? 16 : Round(std::sqrt(double(w) * w + double(h) * h) + 2);
    Surface temp(side, side, key);
    RotateOptions options;
    options.UseKey = true;
    options.KeyColor = region.GetPixel(0, 0);
    RotatePicture(region, temp, angle, options);

    int minX = side - 1, minY = side - 1, maxX = 0, maxY = 0;
    bool any = false;
    for (int x = 0; x < side; ++x)
        for (int y = 0; y < side; ++y)
            if (temp.GetPixel(x, y) != key) {
                any = true;
                minX = std::min(minX, x);
                minY = std::min(minY, y);
                maxX = std::max(maxX, x);
                maxY = std::max(maxY, y);
            }
    if (!any) return std::nullopt;
    const int w2 = maxX - minX + 1, h2 = maxY - minY + 1;
    Surface out(w2, h2, key);
    surface::BitBlt(out, 0, 0, w2, h2, temp, minX, minY, surface::Rop::SrcCopy);
    for (int x = 0; x < w2; ++x)
        for (int y = 0; y < h2; ++y)
            if (out.GetPixel(x, y) == key) out.SetPixelV(x, y, icon::kTransparentGray);
    return out;
}

Surface TextAngleSample() {
    // A red letter T standing on a black arrow that points to the right.
    Surface s(kAngleSampleWidth, kAngleSampleHeight, icon::kWhite);
    constexpr Color kRed = 0x0000FF;
    s.FillBox(3, 1, 11, 2, kRed);
    s.FillBox(6, 3, 8, 9, kRed);
    s.Line(1, 11, 26, 11, icon::kBlack);
    s.Line(1, 12, 26, 12, icon::kBlack);
    for (int k = 1; k <= 4; ++k) {
        s.SetPixelV(25 - k, 11 - k, icon::kBlack);
        s.SetPixelV(25 - k, 12 + k, icon::kBlack);
    }
    return s;
}

Surface TextAngleSampleBackground() {
    return Surface(kAngleBackgroundSide, kAngleBackgroundSide, icon::kWhite);
}

void TurnTextAngleSample(const Surface& sample, Surface& background, int angle) {
    background.Clear();
    RotateOptions options;
    options.UseKey = true;
    options.KeyColor = sample.GetPixel(0, 0);
    options.CenterX = Round(background.Width() / 2.0);
    options.CenterY = Round(background.Height() / 2.0);
    RotatePicture(sample, background, angle, options);
}

}  // namespace vexlo::effects
