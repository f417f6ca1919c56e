// Paint, Erase and the shape tools: what they write into the two planes.
#include <algorithm>

#include "core/shell/session.h"

namespace vexlo::shell {

using tools::Tool;

void Session::PlotPaintErase(bool erase) {
    const Color ci = erase ? kBlack : SelectedColor;
    const Color cm = erase ? kWhite : kBlack;
    const int w = picImage.Width();
    const int h = picImage.Height();
    const int c = Draw.CellX;
    const int r = Draw.CellY;
    const int n = Form.BrushSizeIndex;
    if (n == 0) {
        picImage.SetPixelV(c, r, ci);
        picMask.SetPixelV(c, r, cm);
        return;
    }
    Draw.Shape.Left = c;
    Draw.Shape.Top = r;
    Draw.Shape.Right = std::min(c + n, w - 1);
    Draw.Shape.Bottom = std::min(r + n, h - 1);
    picImage.FillBox(c, r, Draw.Shape.Right, Draw.Shape.Bottom, ci);
    picMask.FillBox(c, r, Draw.Shape.Right, Draw.Shape.Bottom, cm);
}

void Session::PlotShape(Tool t) {
    picDisp.DrawMode = surface::kDrawModeCopyPen;
    picDisp.DrawStyle = surface::kDrawStyleSolid;
    const int notedWidth = picImage.DrawWidth;
    const int width = t == Tool::BrokenLine ? 1 : BrushNumber();
    picImage.DrawWidth = width;
    picMask.DrawWidth = width;
    const tools::CellRect& r = Draw.Shape;
    switch (t) {
        case Tool::Line:
            picImage.Line(r.Left, r.Top, r.Right, r.Bottom, SelectedColor);
            picMask.Line(r.Left, r.Top, r.Right, r.Bottom, kBlack);
            if (BrushNumber() == 1) {
                // The pen leaves out the end point; a one-pixel line gets it.
                picImage.SetPixelV(r.Right, r.Bottom, SelectedColor);
                picMask.SetPixelV(r.Right, r.Bottom, kBlack);
            }
            break;
        case Tool::BrokenLine:
            picImage.DrawStyle = surface::kDrawStyleDot;
            picMask.DrawStyle = surface::kDrawStyleDot;
            picImage.Line(r.Left, r.Top, r.Right, r.Bottom, SelectedColor);
            picMask.Line(r.Left, r.Top, r.Right, r.Bottom, kBlack);
            break;
        case Tool::Rectangle:
            picImage.Box(r.Left, r.Top, r.Right, r.Bottom, SelectedColor);
            picMask.Box(r.Left, r.Top, r.Right, r.Bottom, picMask.ForeColor);
            break;
        case Tool::FilledRectangle:
            picImage.FillBox(r.Left, r.Top, r.Right, r.Bottom, SelectedColor);
            picMask.FillBox(r.Left, r.Top, r.Right, r.Bottom, picMask.ForeColor);
            break;
        default:
            // Ovals and the Spotlight plot with the Surface's ellipses.
            break;
    }
    picImage.DrawWidth = notedWidth;
    picMask.DrawWidth = notedWidth;
    picImage.DrawStyle = surface::kDrawStyleSolid;
    picMask.DrawStyle = surface::kDrawStyleSolid;
}

}  // namespace vexlo::shell
