#include "core/transform/shift_pad.h"

#include <algorithm>

#include "core/icon/icon_colors.h"

namespace vexlo::transform {

using surface::Color;

PadCell ShiftPadCell(int x, int y, int padWidth) {
    const int t = padWidth / 3;
    auto part = [t](int v) { return v < t ? 0 : v < 2 * t ? 1 : 2; };
    return {part(x), part(y)};
}

namespace {

// One coordinate's step: +1 for part 0, -1 for part 2, kept within -(limit)..limit.
bool Step(int part, int limit, int& v) {
    const int next = part == 0 ? v + 1 : part == 2 ? v - 1 : v;
    if (next == v || next > limit || next < -limit) return false;
    v = next;
    return true;
}

}  // namespace

bool StepShift(PadCell cell, int w, int h, int& shiftX, int& shiftY) {
    if (cell.Column == 1 && cell.Row == 1) return true;
    const bool x = Step(cell.Column, w - 1, shiftX);
    const bool y = Step(cell.Row, h - 1, shiftY);
    return x || y;
}

void RedrawShifted(const Surface& start, int shiftX, int shiftY, Surface& image, Surface& mask) {
    const int w = image.Width();
    const int h = image.Height();
    image.DropStoredPicture();
    mask.DropStoredPicture();
    image.FillBox(0, 0, w - 1, h - 1, icon::kBlack);
    mask.FillBox(0, 0, w - 1, h - 1, icon::kWhite);
    for (int x = 0; x < w; ++x) {
        for (int y = 0; y < h; ++y) {
            const Color p = start.GetPixel(x + shiftX, y + shiftY);
            if (p == surface::kInvalidColor || p == icon::kTransparentGray) continue;
            image.SetPixelV(x, y, p);
            mask.SetPixelV(x, y, icon::kBlack);
        }
    }
}

namespace {

constexpr Color kPadBack = 0xE0E0E0;
constexpr Color kPadInk = 0x404040;

// A small arrow of the given half-size at (cx, cy), pointing along (dx, dy), each -1, 0 or 1.
void Arrow(Surface& s, int cx, int cy, int dx, int dy, int half) {
    s.Line(cx - dx * half, cy - dy * half, cx + dx * half, cy + dy * half, kPadInk);
    const int tipX = cx + dx * half;
    const int tipY = cy + dy * half;
    // The two barbs run back from the tip, at right angles to each other.
    const int bx1 = dy == 0 ? -dx : dx == 0 ? -1 : -dx;
    const int by1 = dy == 0 ? -1 : dx == 0 ? -dy : 0;
    const int bx2 = dy == 0 ? -dx : dx == 0 ? 1 : 0;
    const int by2 = dy == 0 ? 1 : dx == 0 ? -dy : -dy;
    const int barb = std::max(2, half - 1);
    s.Line(tipX, tipY, tipX + bx1 * barb, tipY + by1 * barb, kPadInk);
    s.Line(tipX, tipY, tipX + bx2 * barb, tipY + by2 * barb, kPadInk);
    s.SetPixelV(tipX, tipY, kPadInk);
}

}  // namespace

Surface ShiftPadPicture(int side) {
    Surface s(side, side, kPadBack);
    const int t = side / 3;
    for (int i = 1; i <= 2; ++i) {
        s.Line(i * t - 1, 0, i * t - 1, side, kPadInk);
        s.Line(0, i * t - 1, side, i * t - 1, kPadInk);
    }
    const int half = std::max(2, t / 3);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const int cx = column * t + t / 2 - 1;
            const int cy = row * t + t / 2 - 1;
            if (row == 1 && column == 1) {
                s.FillBox(cx - 1, cy - 1, cx + 1, cy + 1, kPadInk);
                continue;
            }
            // The picture goes towards the clicked side: left column left, top row up.
            Arrow(s, cx, cy, column - 1, row - 1, half);
        }
    }
    return s;
}

}  // namespace vexlo::transform
