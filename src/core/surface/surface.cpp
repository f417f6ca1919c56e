#include "core/surface/surface.h"

#include <algorithm>
#include <cstdlib>

namespace vexlo::surface {

namespace {

// The dot pattern of a cosmetic dotted pen: 3 pixels drawn, 3 left out.
constexpr int kDotOn = 3;
constexpr int kDotPeriod = 6;

Color ApplyRop(Color d, Color s, Rop rop) {
    switch (rop) {
        case Rop::SrcCopy: return s;
        case Rop::SrcAnd: return d & s;
        case Rop::SrcInvert: return (d ^ s) & kRgbMask;
        case Rop::Blackness: return 0;
    }
    return d;
}

bool ValidRop(Rop rop) {
    return rop == Rop::SrcCopy || rop == Rop::SrcAnd || rop == Rop::SrcInvert ||
           rop == Rop::Blackness;
}

}  // namespace

Surface::Surface(int width, int height, Color backColor) : m_backColor(backColor & kRgbMask) {
    Resize(width, height);
}

void Surface::Clear() {
    m_stored.clear();
    std::fill(m_pixels.begin(), m_pixels.end(), m_backColor);
}

void Surface::Cls() {
    if (m_stored.size() == m_pixels.size() && !m_stored.empty())
        m_pixels = m_stored;
    else
        std::fill(m_pixels.begin(), m_pixels.end(), m_backColor);
}

void Surface::StorePicture() { m_stored = m_pixels; }

void Surface::DropStoredPicture() { m_stored.clear(); }

void Surface::Resize(int width, int height) {
    m_width = std::max(width, 0);
    m_height = std::max(height, 0);
    m_stored.clear();
    m_pixels.assign(static_cast<std::size_t>(m_width) * m_height, m_backColor);
}

void Surface::Fill(Color c) { std::fill(m_pixels.begin(), m_pixels.end(), c & kRgbMask); }

void Surface::PlotPen(int x, int y, Color c, const Pen& pen) {
    if (!Contains(x, y)) return;
    Color& p = m_pixels[Index(x, y)];
    if (pen.Mode == kDrawModeInvert)
        p = (p ^ kRgbMask) & kRgbMask;
    else
        p = c & kRgbMask;
}

void Surface::StyledLine(int x1, int y1, int x2, int y2, Color c, const Pen& pen,
                         int* styleStep) {
    const int dx = std::abs(x2 - x1);
    const int dy = std::abs(y2 - y1);
    const int sx = x1 < x2 ? 1 : -1;
    const int sy = y1 < y2 ? 1 : -1;
    const bool xMajor = dx >= dy;
    const int major = xMajor ? dx : dy;
    const int minor = xMajor ? dy : dx;
    // Bresenham along the major axis; the minor coordinate is the nearest integer, a tie
    // staying on the side of the start point. The end point itself is never drawn.
    int err = major;  // 2 * major * (fraction) offset so that ties round back
    int mi = 0;
    for (int k = 0; k < major; ++k) {
        const int x = xMajor ? x1 + sx * k : x1 + sx * mi;
        const int y = xMajor ? y1 + sy * mi : y1 + sy * k;
        const bool on = pen.Style != kDrawStyleDot || (*styleStep % kDotPeriod) < kDotOn;
        if (on) PlotPen(x, y, c, pen);
        ++*styleStep;
        err += 2 * minor;
        if (err > 2 * major) {
            ++mi;
            err -= 2 * major;
        }
    }
}

void Surface::Line(int x1, int y1, int x2, int y2, Color c, const Pen& pen) {
    if (pen.Width > 1) {
        WideLine(x1, y1, x2, y2, c, pen);  // surface_pen.cpp
        return;
    }
    int step = 0;
    StyledLine(x1, y1, x2, y2, c, pen, &step);
}

void Surface::Box(int x1, int y1, int x2, int y2, Color c, const Pen& pen, const Brush& brush) {
    if (pen.Width > 1) {
        WideBox(x1, y1, x2, y2, c, pen, brush);  // surface_pen.cpp
        return;
    }
    if (brush.Style == kFillStyleSolid) FillBoxInterior(x1, y1, x2, y2, pen, brush);
    int step = 0;
    if (x1 == x2 || y1 == y2) {
        // A box of one row or column: every pixel once, both ends included.
        const int n = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
        const int sx = x1 < x2 ? 1 : (x1 > x2 ? -1 : 0);
        const int sy = y1 < y2 ? 1 : (y1 > y2 ? -1 : 0);
        for (int k = 0; k <= n; ++k) {
            const bool on = pen.Style != kDrawStyleDot || (step % kDotPeriod) < kDotOn;
            if (on) PlotPen(x1 + sx * k, y1 + sy * k, c, pen);
            ++step;
        }
        return;
    }
    // One closed path: each side leaves out its end, which is the next side's start.
    StyledLine(x1, y1, x2, y1, c, pen, &step);
    StyledLine(x2, y1, x2, y2, c, pen, &step);
    StyledLine(x2, y2, x1, y2, c, pen, &step);
    StyledLine(x1, y2, x1, y1, c, pen, &step);
}

void Surface::FillBox(int x1, int y1, int x2, int y2, Color c, const Pen& pen) {
    const int left = std::max(std::min(x1, x2), 0);
    const int right = std::min(std::max(x1, x2), m_width - 1);
    const int top = std::max(std::min(y1, y2), 0);
    const int bottom = std::min(std::max(y1, y2), m_height - 1);
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x) PlotPen(x, y, c, pen);
}

void ResizeSurface(Surface& s, int width, int height) { s.Resize(width, height); }

void MakeSameSize(const Surface& source, Surface& target) {
    target.Resize(source.Width(), source.Height());
}

bool BitBlt(Surface& dst, int dx, int dy, int w, int h, const Surface& src, int sx, int sy,
            Rop rop) {
    if (w < 0 || h < 0 || !ValidRop(rop)) return false;
    // Clip against the destination and the source alike.
    int x0 = 0, y0 = 0, x1 = w, y1 = h;
    x0 = std::max({x0, -dx, -sx});
    y0 = std::max({y0, -dy, -sy});
    x1 = std::min({x1, dst.Width() - dx, src.Width() - sx});
    y1 = std::min({y1, dst.Height() - dy, src.Height() - sy});
    if (x0 >= x1 || y0 >= y1) return true;
    if (&dst == &src) {
        const Surface copy = src;
        return BitBlt(dst, dx, dy, w, h, copy, sx, sy, rop);
    }
    for (int y = y0; y < y1; ++y) {
        const Color* s = src.Row(sy + y) + sx;
        Color* d = dst.Row(dy + y) + dx;
        switch (rop) {
            case Rop::SrcCopy: std::copy(s + x0, s + x1, d + x0); break;
            case Rop::SrcAnd:
                for (int x = x0; x < x1; ++x) d[x] &= s[x];
                break;
            case Rop::SrcInvert:
                for (int x = x0; x < x1; ++x) d[x] = (d[x] ^ s[x]) & kRgbMask;
                break;
            case Rop::Blackness: std::fill(d + x0, d + x1, Color{0}); break;
        }
    }
    return true;
}

bool BitBlt(Surface& dst, int dx, int dy, int w, int h, Rop rop) {
    if (rop != Rop::Blackness) return false;
    if (w < 0 || h < 0) return false;
    // A raster operation, not a pen: nothing is inverted, and an empty size touches nothing.
    const long long left = std::max<long long>(dx, 0);
    const long long top = std::max<long long>(dy, 0);
    const long long right = std::min<long long>(static_cast<long long>(dx) + w, dst.Width());
    const long long bottom = std::min<long long>(static_cast<long long>(dy) + h, dst.Height());
    if (left >= right) return true;
    for (long long y = top; y < bottom; ++y) {
        Color* row = dst.Row(static_cast<int>(y));
        std::fill(row + left, row + right, Color{0});
    }
    return true;
}

namespace {

// The pixel of the source rectangle for destination offset k (0 .. |dn|-1).
int SourceIndex(int k, int s0, int sn, int dn) {
    const long long j = static_cast<long long>(k) * std::abs(sn) / std::abs(dn);
    return sn > 0 ? s0 + static_cast<int>(j) : s0 - static_cast<int>(j);
}

int DestIndex(int k, int d0, int dn) { return dn > 0 ? d0 + k : d0 - k; }

// Halftone: destination offset k covers [k*|sn|, (k+1)*|sn|) in units where one source pixel
// is |dn| wide. Calls f(sourceOffset, weight) for each source pixel it overlaps.
template <typename F>
void ForEachCover(int k, int sn, int dn, F f) {
    const long long a = std::abs(sn), b = std::abs(dn);
    const long long lo = k * a, hi = (k + 1) * a;
    for (long long i = lo / b; i * b < hi; ++i) {
        const long long overlap = std::min(hi, (i + 1) * b) - std::max(lo, i * b);
        if (overlap > 0) f(static_cast<int>(i), overlap);
    }
}

// Nearest-pixel stretch through index tables; rows that repeat a source row are copied.
bool StretchNearest(Surface& dst, int dx, int dy, int dw, int dh, const Surface& src, int sx,
                    int sy, int sw, int sh, Rop rop) {
    const int adw = std::abs(dw), adh = std::abs(dh);
    std::vector<int> tx, px;  // destination column and source column of each drawn column
    tx.reserve(static_cast<std::size_t>(adw));
    px.reserve(static_cast<std::size_t>(adw));
    for (int kx = 0; kx < adw; ++kx) {
        const int t = DestIndex(kx, dx, dw);
        const int p = SourceIndex(kx, sx, sw, dw);
        if (t < 0 || t >= dst.Width() || p < 0 || p >= src.Width()) continue;
        tx.push_back(t);
        px.push_back(p);
    }
    if (tx.empty()) return true;
    const int left = std::min(tx.front(), tx.back());
    const int right = std::max(tx.front(), tx.back());
    const bool contiguous = right - left + 1 == static_cast<int>(tx.size());
    int prevTy = -1, prevPy = -1;
    for (int ky = 0; ky < adh; ++ky) {
        const int ty = DestIndex(ky, dy, dh);
        const int py = SourceIndex(ky, sy, sh, dh);
        if (ty < 0 || ty >= dst.Height() || py < 0 || py >= src.Height()) continue;
        Color* drow = dst.Row(ty);
        if (rop == Rop::SrcCopy && contiguous && py == prevPy) {
            const Color* prev = dst.Row(prevTy);
            std::copy(prev + left, prev + right + 1, drow + left);
        } else {
            const Color* srow = src.Row(py);
            for (std::size_t i = 0; i < tx.size(); ++i)
                drow[tx[i]] = ApplyRop(drow[tx[i]], srow[px[i]], rop);
        }
        prevTy = ty;
        prevPy = py;
    }
    return true;
}

}  // namespace

bool StretchBlt(Surface& dst, int dx, int dy, int dw, int dh, const Surface& src, int sx, int sy,
                int sw, int sh, Rop rop, StretchMode mode) {
    if (!ValidRop(rop)) return false;
    if (dw == 0 || dh == 0 || sw == 0 || sh == 0) return true;
    if (&dst == &src) {
        const Surface copy = src;
        return StretchBlt(dst, dx, dy, dw, dh, copy, sx, sy, sw, sh, rop, mode);
    }
    const int adw = std::abs(dw), adh = std::abs(dh);
    const bool halftone = mode == StretchMode::Halftone && (std::abs(sw) != adw || std::abs(sh) != adh);
    if (!halftone) return StretchNearest(dst, dx, dy, dw, dh, src, sx, sy, sw, sh, rop);
    for (int ky = 0; ky < adh; ++ky) {
        const int ty = DestIndex(ky, dy, dh);
        if (ty < 0 || ty >= dst.Height()) continue;
        Color* drow = dst.Row(ty);
        for (int kx = 0; kx < adw; ++kx) {
            const int tx = DestIndex(kx, dx, dw);
            if (tx < 0 || tx >= dst.Width()) continue;
            long long r = 0, g = 0, b = 0, total = 0;
            ForEachCover(ky, sh, dh, [&](int oy, long long wy) {
                const int py = sh > 0 ? sy + oy : sy - oy;
                ForEachCover(kx, sw, dw, [&](int ox, long long wx) {
                    const int px = sw > 0 ? sx + ox : sx - ox;
                    const Color c = src.GetPixel(px, py);
                    if (c == kInvalidColor) return;
                    const long long w = wx * wy;
                    r += RedOf(c) * w;
                    g += GreenOf(c) * w;
                    b += BlueOf(c) * w;
                    total += w;
                });
            });
            if (total == 0) continue;
            const Color s = Rgb(static_cast<int>((r + total / 2) / total),
                                static_cast<int>((g + total / 2) / total),
                                static_cast<int>((b + total / 2) / total));
            drow[tx] = ApplyRop(drow[tx], s, rop);
        }
    }
    return true;
}

}  // namespace vexlo::surface
