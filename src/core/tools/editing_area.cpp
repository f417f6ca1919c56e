#include "core/tools/editing_area.h"

#include <cstdlib>

namespace vexlo::tools {

using surface::Rop;

int ViewIconSide(const Surface& picIcon) {
    const int iw = picIcon.Width();
    const int ih = picIcon.Height();
    const bool iconW = iw == 16 || iw == 32 || iw == 48;
    const bool iconH = ih == 16 || ih == 32 || ih == 48;
    return iconW && iconH ? iw : 32;
}

void BuildGrid(Surface& grid, int iw, int magnifyStep, Color gridColor) {
    grid.Clear();
    const int s = magnifyStep;
    const int w = grid.Width();
    const int h = grid.Height();
    int n = 47, x = w, y = h;
    if (iw == 16) {
        n = 16;
        x = w / 2;
        y = h / 2;
    } else if (iw == 32) {
        n = 31;
    }
    // The two lines that close a 16x16 icon's quarter on its right and at its bottom.
    auto quarterBorder = [&](Color c) {
        grid.Line(w / 2, 0, w / 2, h / 2, c);
        grid.Line(0, h / 2, w / 2, h / 2, c);
    };
    if (gridColor == kGridLight || gridColor == kGridDark) {
        for (int i = 1; i <= n; ++i) {
            grid.Line(0, i * s, x, i * s, gridColor);
            grid.Line(i * s, 0, i * s, y, gridColor);
        }
    } else if (gridColor == kGridDotted) {
        for (int i = 1; i <= n; ++i)
            for (int j = 0; j <= n - 1; ++j) grid.SetPixelV(s * (j + 1), s * i, gridColor);
        if (iw == 16) quarterBorder(kGridLight);
    } else if (gridColor == kGridNone) {
        if (iw == 16) quarterBorder(kGridForeColor);
    }
}

void OverlayGrid(const Surface& grid, Color gridColor, int iw, Surface& disp) {
    if (!(gridColor == kGridNone && iw != 16))
        surface::BitBlt(disp, 0, 0, disp.Width(), disp.Height(), grid, 0, 0, Rop::SrcAnd);
    disp.StorePicture();
}

void MagnifyInto(const Surface& picIcon, const Surface& grid, Color gridColor, Surface& disp) {
    int w = disp.Width();
    int h = disp.Height();
    const int iw = ViewIconSide(picIcon);
    const int ih = iw;
    // Only a 16x16 icon (or a picture in transit) leaves part of the view uncovered.
    if (iw == 16 || picIcon.Width() != iw || picIcon.Height() != ih)
        disp.Clear();
    else
        disp.DropStoredPicture();
    if (iw == 16) {
        w /= 2;
        h /= 2;
    }
    surface::StretchBlt(disp, 0, 0, w, h, picIcon, 0, 0, iw, ih, Rop::SrcCopy);
    OverlayGrid(grid, gridColor, iw, disp);
}

namespace {

// The color handed to the dotted inverting pen, which ignores it.
constexpr Color kBandColor = 0x000000;

}  // namespace

void DrawRegionOutline(Surface& disp, const DispRect& region, int sizeCode) {
    const int w = disp.Width();
    const int h = disp.Height();
    int x2 = region.Right;
    int y2 = region.Bottom;
    if (x2 == w) --x2;
    if (y2 == h) --y2;
    disp.Box(region.Left, region.Top, x2, y2, kBandColor, surface::kDottedInvertPen);
    if (sizeCode == 1) {
        const int a = w / 2 + 1;
        const int b = h / 2 + 1;
        if (y2 >= b || x2 >= a) {
            disp.FillBox(a, 0, w - 1, b, kGridNone);
            disp.FillBox(0, b, w - 1, h - 1, kGridNone);
        }
    }
}

void DrawLineBand(Surface& disp, const DispRect& band) {
    disp.Line(band.Left, band.Top, band.Right, band.Bottom, kBandColor, surface::kDottedInvertPen);
}

void DrawBoxBand(Surface& disp, const DispRect& band) {
    disp.Box(band.Left, band.Top, band.Right, band.Bottom, kBandColor, surface::kDottedInvertPen);
}

std::string DispXYText(int c, int r) {
    return "X=" + std::to_string(c) + "  Y=" + std::to_string(r);
}

std::string RegionMeasureText(const CellRect& cells, bool edgeDragged) {
    const int dx = std::abs(cells.Right - cells.Left);
    const int dy = std::abs(cells.Bottom - cells.Top);
    if ((dx < 1 && dy < 1) || edgeDragged) return {};
    const int w = cells.Right < cells.Left ? dx - 1 : dx + 1;
    const int h = cells.Bottom < cells.Top ? dy - 1 : dy + 1;
    return "Region: Start [" + std::to_string(cells.Left) + ", " + std::to_string(cells.Top) +
           "]   W=" + std::to_string(w) + " H=" + std::to_string(h);
}

bool CopyPicture(const Surface& source, Surface& target) {
    target.DropStoredPicture();
    const bool ok = surface::BitBlt(target, 0, 0, source.Width(), source.Height(), source, 0, 0,
                                    Rop::SrcCopy);
    target.StorePicture();
    return ok;
}

bool StretchbltPic(const Surface& source, Surface& target) {
    target.DropStoredPicture();
    const bool ok = surface::StretchBlt(target, 0, 0, target.Width(), target.Height(), source, 0,
                                        0, source.Width(), source.Height(), Rop::SrcCopy,
                                        surface::StretchMode::Halftone);
    target.StorePicture();
    return ok;
}

}  // namespace vexlo::tools
