#include "core/utilities/print_layout.h"

#include <cmath>

namespace vexlo::utilities {

PrintPlacement PlacePicture(const PrintChoice& choice, int pixelWidth, int pixelHeight,
                            const PrintArea& area) {
    PrintPlacement out;
    PrintRect& r = out.Rect;
    r.Width = pixelWidth * kTwipsPerPixel;
    r.Height = pixelHeight * kTwipsPerPixel;
    const double pw = area.Width;
    const double ph = area.Height;
    if (choice.Size == PrintSize::FitToPaper) {
        // The margins play no part: the narrower side of the paper is filled, the other
        // centred.
        if (r.Width <= 0 || pw <= 0) return out;
        const double ratio = r.Height / r.Width;
        if (ph / pw <= ratio) {
            r.Width = ph / ratio;
            r.Height = ph;
            r.Left = (pw - r.Width) / 2;
            r.Top = area.Top;
        } else {
            r.Width = pw;
            r.Height = r.Width * ratio;
            r.Left = area.Left;
            r.Top = (ph - r.Height) / 2;
        }
        return out;
    }
    if (choice.Size == PrintSize::AtPercent) {
        // The percentage is of the area: each side grows by its square root.
        const double area100 = r.Width * r.Height;
        const double factor = area100 > 0 ? std::sqrt((area100 / 100 * choice.Percent) / area100) : 0;
        r.Width *= factor;
        r.Height *= factor;
    }
    if (choice.Margin == PrintMargin::SetMargin) {
        r.Left = choice.LeftInch * kTwipsPerInch;
        r.Top = choice.TopInch * kTwipsPerInch;
        if (r.Left + r.Width > pw || r.Top + r.Height > ph) out.Message = kPositionOutsidePaper;
    } else {
        if (r.Width > pw || r.Height > ph) {
            out.Message = kSizeGreaterThanPaper;
        } else {
            r.Left = (pw - r.Width) / 2;
            r.Top = (ph - r.Height) / 2;
        }
    }
    return out;
}

}  // namespace vexlo::utilities
