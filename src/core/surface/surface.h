#pragma once
// A Surface is an off-screen pixel picture: integer size, one COLORREF (0x00BBGGRR) per pixel,
// a back color, and beside the drawing an optional stored picture (the "base picture").
//
//   Clear()   drops the stored picture and fills every pixel with the back color.
//   Cls()     puts the drawing back to the stored picture, or to the back color without one.
//   StorePicture() makes the present drawing the stored picture.
//
// Drawing calls obey the pen state: DrawMode 13 (copy pen) writes the color, DrawMode 6
// (invert) turns every touched pixel p into p XOR 0xFFFFFF and ignores the color; DrawStyle 0
// is solid, DrawStyle 2 dotted (3 pixels on, 3 off, gaps left untouched). Lines follow GDI:
// the end point is left out. Boxes include both corners.
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

    // Pen state used by Line, Box and FillBox.
    Color ForeColor = 0x000000;
    int DrawMode = kDrawModeCopyPen;
    int DrawStyle = kDrawStyleSolid;
    int DrawWidth = 1;

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
    // Writes one pixel as given (no pen state); false outside the Surface.
    bool SetPixelV(int x, int y, Color c) {
        if (!Contains(x, y)) return false;
        m_pixels[Index(x, y)] = c & kRgbMask;
        return true;
    }
    // Fills every pixel with c, keeping the stored picture.
    void Fill(Color c);

    // A line from (x1,y1) towards (x2,y2), end point left out, in the pen state.
    void Line(int x1, int y1, int x2, int y2, Color c);
    void Line(int x1, int y1, int x2, int y2) { Line(x1, y1, x2, y2, ForeColor); }
    // The outline of the box with corners (x1,y1) and (x2,y2), both included.
    void Box(int x1, int y1, int x2, int y2, Color c);
    void Box(int x1, int y1, int x2, int y2) { Box(x1, y1, x2, y2, ForeColor); }
    // The filled box with corners (x1,y1) and (x2,y2), both included, clipped to the Surface.
    void FillBox(int x1, int y1, int x2, int y2, Color c);

    // Plots one pixel under the pen's DrawMode (no style).
    void PlotPen(int x, int y, Color c);

    const Color* Data() const { return m_pixels.data(); }
    Color* Data() { return m_pixels.data(); }
    const Color* Row(int y) const { return m_pixels.data() + static_cast<std::size_t>(y) * m_width; }
    Color* Row(int y) { return m_pixels.data() + static_cast<std::size_t>(y) * m_width; }

    friend bool SamePixels(const Surface& a, const Surface& b) {
        return a.m_width == b.m_width && a.m_height == b.m_height && a.m_pixels == b.m_pixels;
    }

private:
    std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y) * m_width + x; }
    // Walks the GDI line from (x1,y1) to (x2,y2) without its end point, continuing the dot
    // pattern from *styleStep.
    void StyledLine(int x1, int y1, int x2, int y2, Color c, int* styleStep);

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

}  // namespace vexlo::surface
