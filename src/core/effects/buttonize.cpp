// The three bevel patterns of Buttonize as step lists, run on both planes of the icon.
#include "core/effects/buttonize.h"

#include <span>

#include "core/icon/icon_planes.h"

namespace vexlo::effects {
namespace {

using icon::kBlack;
using icon::kWhite;

enum class Shape { Line, Box, Pixel };

// One drawing step. Coordinates are given as an offset from the near edge (0, 1, 2) or, when
// the matching Far flag is set, back from the last column or row (W - n, H - n).
struct Step {
    Shape Kind;
    int X1, Y1, X2, Y2;
    bool FarX1, FarY1, FarX2, FarY2;
    Color Ink;
};

constexpr Step LineStep(int x1, bool fx1, int y1, bool fy1, int x2, bool fx2, int y2, bool fy2,
                        Color ink) {
    return {Shape::Line, x1, y1, x2, y2, fx1, fy1, fx2, fy2, ink};
}
// The box from (n, n) to (W - n, H - n).
constexpr Step RingBox(int n, Color ink) {
    return {Shape::Box, n, n, n, n, false, false, true, true, ink};
}
// The single cell (W - n, H - n).
constexpr Step FarPixel(int n, Color ink) {
    return {Shape::Pixel, n, n, n, n, true, true, true, true, ink};
}

constexpr bool N = false;  // from the near edge
constexpr bool F = true;   // back from W or H

constexpr Step kPattern1[] = {
    LineStep(0, N, 0, N, 0, F, 0, N, kWhite),  // (0,0)-(W,0)
    LineStep(0, F, 0, N, 0, F, 0, F, kBlack),  // (W,0)-(W,H)
    LineStep(0, N, 0, F, 0, F, 0, F, kBlack),  // (0,H)-(W,H)
    LineStep(0, N, 0, N, 0, N, 0, F, kWhite),  // (0,0)-(0,H)
};

constexpr Step kPattern2[] = {
    RingBox(0, kBlack),
    RingBox(1, kWhite),
    RingBox(2, kWhite),
    LineStep(1, F, 1, N, 1, F, 1, F, kButtonMidGray),  // (W-1,1)-(W-1,H-1)
    LineStep(2, F, 2, N, 2, F, 2, F, kButtonMidGray),  // (W-2,2)-(W-2,H-2)
    LineStep(2, N, 2, F, 2, F, 2, F, kButtonMidGray),  // (2,H-2)-(W-2,H-2)
    LineStep(1, N, 1, F, 1, F, 1, F, kButtonMidGray),  // (1,H-1)-(W-1,H-1)
    FarPixel(2, kButtonMidGray),
    FarPixel(1, kButtonMidGray),
};

constexpr Step kPattern3[] = {
    LineStep(0, N, 0, N, 0, F, 0, N, kWhite),           // (0,0)-(W,0)
    LineStep(0, N, 1, N, 0, F, 1, N, kWhite),           // (0,1)-(W,1)
    LineStep(0, F, 0, N, 0, F, 0, F, kBlack),           // (W,0)-(W,H)
    LineStep(1, F, 1, N, 1, F, 1, F, kButtonWarmGray),  // (W-1,1)-(W-1,H-1)
    LineStep(0, N, 0, F, 0, F, 0, F, kBlack),           // (0,H)-(W,H)
    LineStep(1, N, 1, F, 1, F, 1, F, kButtonWarmGray),  // (1,H-1)-(W-1,H-1)
    LineStep(0, N, 0, N, 0, N, 0, F, kWhite),           // (0,0)-(0,H)
    LineStep(1, N, 1, N, 1, N, 1, F, kWhite),           // (1,1)-(1,H-1)
    FarPixel(1, kButtonWarmGray),
};

std::span<const Step> PatternSteps(int patternIndex) {
    switch (patternIndex) {
        case 0: return kPattern1;
        case 1: return kPattern2;
        case 2: return kPattern3;
        default: return {};
    }
}

// Draws one step on a plane in the given color.
void Draw(const Step& s, int w, int h, Surface& plane, Color ink) {
    const int x1 = s.FarX1 ? w - s.X1 : s.X1, y1 = s.FarY1 ? h - s.Y1 : s.Y1;
    const int x2 = s.FarX2 ? w - s.X2 : s.X2, y2 = s.FarY2 ? h - s.Y2 : s.Y2;
    switch (s.Kind) {
        case Shape::Line: plane.Line(x1, y1, x2, y2, ink); break;
        case Shape::Box: plane.Box(x1, y1, x2, y2, ink); break;  // transparent fill
        case Shape::Pixel: plane.PlotPen(x1, y1, ink); break;
    }
}

}  // namespace

bool ProceedButtonize(int patternIndex, Surface& picImage, Surface& picMask) {
    const std::span<const Step> steps = PatternSteps(patternIndex);
    if (steps.empty()) return false;
    const int w = picImage.Width() - 1, h = picImage.Height() - 1;
    for (const Step& s : steps) {
        Draw(s, w, h, picImage, s.Ink);
        Draw(s, w, h, picMask, kBlack);
    }
    const int corners[4][2] = {{0, 0}, {0, h}, {w, 0}, {w, h}};
    for (const auto& c : corners) {
        picImage.SetPixelV(c[0], c[1], kBlack);
        picMask.SetPixelV(c[0], c[1], kWhite);
    }
    return true;
}

Surface ButtonizeSample(int patternIndex, int side) {
    if (PatternSteps(patternIndex).empty()) return {};
    Surface image(side, side, kBlack), mask(side, side, kWhite);
    icon::FillTransparent(image, mask);
    ProceedButtonize(patternIndex, image, mask);
    Surface sample(side, side, icon::kTransparentGray);
    icon::Compose(image, mask, sample);
    return sample;
}

}  // namespace vexlo::effects
