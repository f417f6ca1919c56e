#pragma once
// A Surface is an off-screen pixel picture: integer size, one COLORREF (0x00BBGGRR) per pixel,
// a back color, and beside the drawing an optional stored picture (the "base picture").
//
//   Clear()   drops the stored picture and fills every pixel with the back color.
//   Cls()     puts the drawing back to the stored picture, or to the back color without one.
//   StorePicture() makes the present drawing the stored picture.
//
// Drawing calls take their pen and brush as values (Pen, Brush below); a Surface keeps no
// drawing state, so one call never changes how the next one draws. Pen::Mode kDrawModeCopyPen
// writes the color, kDrawModeInvert turns every touched pixel p into p XOR 0xFFFFFF and ignores
// the color; Pen::Style kDrawStyleSolid is solid, kDrawStyleDot dotted (3 pixels on, 3 off, gaps
// left untouched). Lines follow GDI: the end point is left out. Boxes include both corners.
//
// Pens wider than 1 (Pen::Width > 1) are round, like a GDI geometric pen with round caps and
// joins: a wide line covers the pixels whose centre lies within Width/2 of the segment, both
// ends included; the dot style is for width 1 only, a wider pen always draws solid. An odd
// width is centred on the pixel centres; an even width cannot be, so a line's segment is moved
// half a pixel up and left (as GDI does), while the outlines of boxes and ellipses put the extra
// pixel on their inner side, so that they stay symmetric about their centre. Boxes and ellipses
// fill their interior with Brush::Fill when Brush::Style is kFillStyleSolid. Each call touches
// every pixel at most once, so in invert mode drawing the same shape twice restores the picture.
// The exact pixel rules are told in full at the top of surface_pen.cpp and surface_ellipse.cpp.
#include <cstdint>
#include <vector>

namespace vexlo::surface {

using Color = std::uint32_t;

inline constexpr Color kInvalidColor = 0xFFFFFFFF;  // CLR_INVALID
inline constexpr Color kRgbMask = 0x00FFFFFF;

inline constexpr int kDrawModeInvert = 6;   // vbInvert, R2_NOT
inline constexpr int kDrawModeCopyPen = 13; // vbCopyPen, R2_COPYPEN
inline constexpr int kDrawStyleSolid = 0;
inline constexpr int kDrawStyleDot = 2;
inline constexpr int kFillStyleSolid = 0;        // vbFSSolid
inline constexpr int kFillStyleTransparent = 1;  // vbFSTransparent

// How an outline is drawn: the pen's width in pixels (below 1 draws as 1), its style (dotted
// at width 1 only) and its mode (copy or invert).
struct Pen {
    int Width = 1;
    int Style = kDrawStyleSolid;
    int Mode = kDrawModeCopyPen;
};

// How the interior of a box or an ellipse is drawn: with Fill under kFillStyleSolid, not at all
// under kFillStyleTransparent. The fill is written under the outline's pen Mode.
struct Brush {
    int Style = kFillStyleTransparent;
    Color Fill = 0x000000;
};

// The dotted inverting pen of the rubber bands and outlines drawn over a picture: the same
// shape drawn twice with it removes it again.
inline constexpr Pen kDottedInvertPen{1, kDrawStyleDot, kDrawModeInvert};

constexpr Brush SolidBrush(Color fill) { return {kFillStyleSolid, fill}; }

// Raster operations with their GDI codes.
enum class Rop : std::uint32_t {
    SrcCopy = 0x00CC0020,
    SrcAnd = 0x008800C6,
    SrcInvert = 0x00660046,
    Blackness = 0x00000042,
};

// SetStretchBltMode: COLORONCOLOR (3) keeps whole pixels, HALFTONE (4) averages.
enum class StretchMode { ColorOnColor = 3, Halftone = 4 };

constexpr Color Rgb(int r, int g, int b) {
    return static_cast<Color>((r & 0xFF) | ((g & 0xFF) << 8) | ((b & 0xFF) << 16));
}
constexpr int RedOf(Color c) { return static_cast<int>(c & 0xFF); }
constexpr int GreenOf(Color c) { return static_cast<int>((c >> 8) & 0xFF); }
constexpr int BlueOf(Color c) { return static_cast<int>((c >> 16) & 0xFF); }

class Surface {
public:
    Surface() = default;
    Surface(int width, int height, Color backColor);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < m_width && y < m_height; }

    Color BackColor() const { return m_backColor; }
    void SetBackColor(Color c) { m_backColor = c & kRgbMask; }

    void Clear();
    void Cls();
    void StorePicture();
    void DropStoredPicture();
    bool HasStoredPicture() const { return !m_stored.empty(); }
    const std::vector<Color>& StoredPicture() const { return m_stored; }

    // Clears and gives the Surface its new size (sizes below 0 become 0).
    void Resize(int width, int height);

    // CLR_INVALID outside the Surface.
    Color GetPixel(int x, int y) const {
        return Contains(x, y) ? m_pixels[Index(x, y)] : kInvalidColor;
    }
    // Writes one pixel as given (no pen); false outside the Surface.
    bool SetPixelV(int x, int y, Color c) {
        if (!Contains(x, y)) return false;
        m_pixels[Index(x, y)] = c & kRgbMask;
        return true;
    }
    // Fills every pixel with c, keeping the stored picture.
    void Fill(Color c);

    // A line from (x1,y1) towards (x2,y2), end point left out at width 1, drawn with pen.
    void Line(int x1, int y1, int x2, int y2, Color c, const Pen& pen = {});
    // The outline of the box with corners (x1,y1) and (x2,y2), both included, at the pen's
    // width (a wide outline is centred on the edges, an even width's extra pixel inside); a
    // solid brush fills the pixels of the box that the outline leaves free.
    void Box(int x1, int y1, int x2, int y2, Color c, const Pen& pen = {},
             const Brush& brush = {});
    // The filled box with corners (x1,y1) and (x2,y2), both included, clipped to the Surface,
    // under the pen's Mode (its width and style don't apply).
    void FillBox(int x1, int y1, int x2, int y2, Color c, const Pen& pen = {});

    // The closed ellipse around (cx, cy). With aspect <= 1 the radius is the horizontal one and
    // the vertical one is radius * aspect; with aspect > 1 the radius is the vertical one and the
    // horizontal one is radius / aspect (negative values count as their size). The ellipse fills
    // the box of pixels from (cx - rx, cy - ry) to (cx + rx, cy + ry). Outline at the pen's width,
    // dotted under kDrawStyleDot at width 1, interior by the brush. A flat ellipse (vertical
    // radius 0, as with aspect 0) is the line from (cx - rx, cy) to (cx + rx, cy), both ends drawn.
    void Circle(double cx, double cy, double radius, Color c, double aspect = 1.0,
                const Pen& pen = {}, const Brush& brush = {});
    // The part of the same outline whose pixel centres, seen from (cx, cy), lie at an angle from
    // startAngle up to (not including) endAngle, in radians counterclockwise on the screen from
    // the positive x axis; start > end wraps through 0, equal angles give the whole outline.
    // Never filled. A wide pen rounds the two ends.
    void CircleArc(double cx, double cy, double radius, Color c, double startAngle,
                   double endAngle, double aspect = 1.0, const Pen& pen = {});

    // Plots one pixel under the pen's Mode (its width and style don't apply).
    void PlotPen(int x, int y, Color c, const Pen& pen = {});

    const Color* Data() const { return m_pixels.data(); }
    Color* Data() { return m_pixels.data(); }
    const Color* Row(int y) const { return m_pixels.data() + static_cast<std::size_t>(y) * m_width; }
    Color* Row(int y) { return m_pixels.data() + static_cast<std::size_t>(y) * m_width; }

    friend bool SamePixels(const Surface& a, const Surface& b) {
        return a.m_width == b.m_width && a.m_height == b.m_height && a.m_pixels == b.m_pixels;
    }

private:
    std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y) * m_width + x; }
    // Walks the GDI line from (x1,y1) to (x2,y2) without its end point, continuing the pen's
    // dot pattern from *styleStep.
    void StyledLine(int x1, int y1, int x2, int y2, Color c, const Pen& pen, int* styleStep);
    // Pen::Width > 1: the round pen's line and box outline (surface_pen.cpp).
    void WideLine(int x1, int y1, int x2, int y2, Color c, const Pen& pen);
    void WideBox(int x1, int y1, int x2, int y2, Color c, const Pen& pen, const Brush& brush);
    // The brush's Fill into the pixels strictly inside the box (the interior of a width-1
    // outline), under the pen's Mode.
    void FillBoxInterior(int x1, int y1, int x2, int y2, const Pen& pen, const Brush& brush);
    // Circle and CircleArc (surface_ellipse.cpp); isArc false draws the whole closed ellipse.
    void DrawEllipse(double cx, double cy, double radius, Color c, double aspect, bool isArc,
                     double startAngle, double endAngle, const Pen& pen, const Brush& brush);

    int m_width = 0;
    int m_height = 0;
    Color m_backColor = 0xFFFFFF;
    std::vector<Color> m_pixels;
    std::vector<Color> m_stored;
};

// ResizeSurface: clears the Surface and sets its size.
void ResizeSurface(Surface& s, int width, int height);
// MakeSameSize: clears the target and gives it the source's width and height.
void MakeSameSize(const Surface& source, Surface& target);

// BitBlt of w x h pixels from src (sx,sy) to dst (dx,dy). Only the part that lies inside both
// Surfaces is touched. False when a size is negative.
bool BitBlt(Surface& dst, int dx, int dy, int w, int h, const Surface& src, int sx, int sy, Rop rop);
// BitBlt with a raster code that takes no source (BLACKNESS).
bool BitBlt(Surface& dst, int dx, int dy, int w, int h, Rop rop);

// StretchBlt from the source rectangle to the destination rectangle. A negative extent
// mirrors: with width -w the rectangle covers x - w + 1 .. x and runs right to left.
// ColorOnColor picks the nearest source pixel; Halftone averages the source pixels that each
// destination pixel covers, weighted by area.
bool StretchBlt(Surface& dst, int dx, int dy, int dw, int dh, const Surface& src, int sx, int sy,
                int sw, int sh, Rop rop, StretchMode mode = StretchMode::ColorOnColor);

// ExtFloodFill's fill types (surface_flood.cpp).
inline constexpr int kFloodFillBorder = 0;   // FLOODFILLBORDER: the area bounded by the color
inline constexpr int kFloodFillSurface = 1;  // FLOODFILLSURFACE: the area of the color

// The area that ExtFloodFill fills from (x, y), as one byte per pixel row by row (1 inside):
// with kFloodFillSurface the pixels of exactly `color` that are 4-connected to the start, with
// kFloodFillBorder those of any other color. Empty when the start pixel lies outside the
// Surface or doesn't belong to such an area. Uses no recursion.
std::vector<std::uint8_t> FloodFillArea(const Surface& s, int x, int y, Color color, int fillType);
// ExtFloodFill: fills that area with `fill`, written as it is (no pen applies). False, with
// nothing changed, when FloodFillArea is empty. A fill equal to the area's color leaves the
// Surface as it was.
bool ExtFloodFill(Surface& s, int x, int y, Color color, int fillType, Color fill);

}  // namespace vexlo::surface
