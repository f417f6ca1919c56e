#include "core/session/region/floating_region.h"

#include "core/icon/icon_colors.h"

namespace vexlo::session {

using icon::kBlack;
using icon::kTransparentGray;
using icon::kWhite;
using surface::BitBlt;
using surface::Color;
using surface::Rop;

FloatingRegion::FloatingRegion()
    : m_image(0, 0, kWhite), m_mask(0, 0, kBlack), m_imageSnap(0, 0, kWhite), m_maskSnap(0, 0, kWhite) {}

void FloatingRegion::Lift(const Surface& image, const Surface& mask, const tools::CellRect& cells,
                          bool seeThrough) {
    const int w = cells.Right - cells.Left + 1;
    const int h = cells.Bottom - cells.Top + 1;
    m_seeThrough = seeThrough;
    m_image.Resize(w, h);
    m_mask.Resize(w, h);
    m_imageSnap = image;
    m_maskSnap = mask;
    if (seeThrough) {
        m_image.Fill(kTransparentGray);
        m_mask.Fill(kWhite);
        for (int x = 0; x < w; ++x)
            for (int y = 0; y < h; ++y)
                if (mask.GetPixel(x + cells.Left, y + cells.Top) == kBlack)
                    m_image.SetPixelV(x, y, image.GetPixel(x + cells.Left, y + cells.Top));
    } else {
        BitBlt(m_image, 0, 0, w, h, image, cells.Left, cells.Top, Rop::SrcCopy);
        BitBlt(m_mask, 0, 0, w, h, mask, cells.Left, cells.Top, Rop::SrcCopy);
    }
    m_imageSnap.FillBox(cells.Left, cells.Top, cells.Right, cells.Bottom, kBlack);
    m_maskSnap.FillBox(cells.Left, cells.Top, cells.Right, cells.Bottom, kWhite);
}

void FloatingRegion::Float(const Surface& picture, int w, int h, bool seeThrough,
                           const Surface& image, const Surface& mask) {
    m_seeThrough = seeThrough;
    m_image.Resize(w, h);
    m_mask.Resize(w, h);
    if (seeThrough) {
        m_image.Fill(kTransparentGray);
        m_mask.Fill(kWhite);
        for (int x = 0; x < w; ++x) {
            for (int y = 0; y < h; ++y) {
                const Color p = picture.GetPixel(x, y);
                if (p != kTransparentGray && p != surface::kInvalidColor) m_image.SetPixelV(x, y, p);
            }
        }
    } else {
        BitBlt(m_image, 0, 0, w, h, picture, 0, 0, Rop::SrcCopy);
        m_image.StorePicture();
        // A blit to one bit per pixel: the picture's back color (white) gives white, all
        // else black.
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) m_mask.Row(y)[x] = m_image.Row(y)[x] == kWhite ? kWhite : kBlack;
    }
    m_imageSnap = image;
    m_maskSnap = mask;
}

void FloatingRegion::DrawOnto(Surface& image, Surface& mask, int x, int y) const {
    RestoreSnaps(image, mask);
    const int w = m_image.Width();
    const int h = m_image.Height();
    if (m_seeThrough) {
        for (int i = 0; i < w; ++i) {
            for (int j = 0; j < h; ++j) {
                const Color p = m_image.Row(j)[i];
                if (p == kTransparentGray) continue;
                image.SetPixelV(x + i, y + j, p);
                mask.SetPixelV(x + i, y + j, kBlack);
            }
        }
    } else {
        BitBlt(image, x, y, w, h, m_image, 0, 0, Rop::SrcCopy);
        BitBlt(mask, x, y, w, h, m_mask, 0, 0, Rop::SrcCopy);
    }
    image.StorePicture();
    mask.StorePicture();
}

void FloatingRegion::RestoreSnaps(Surface& image, Surface& mask) const {
    image.DropStoredPicture();
    mask.DropStoredPicture();
    BitBlt(image, 0, 0, m_imageSnap.Width(), m_imageSnap.Height(), m_imageSnap, 0, 0, Rop::SrcCopy);
    BitBlt(mask, 0, 0, m_maskSnap.Width(), m_maskSnap.Height(), m_maskSnap, 0, 0, Rop::SrcCopy);
    image.StorePicture();
    mask.StorePicture();
}

const Surface& FloatingRegion::TakeComposed(const Surface& composed, const tools::CellRect& cells) {
    const int w = cells.Right - cells.Left + 1;
    const int h = cells.Bottom - cells.Top + 1;
    m_image.Resize(w, h);
    BitBlt(m_image, 0, 0, w, h, composed, cells.Left, cells.Top, Rop::SrcCopy);
    return m_image;
}

void FloatingRegion::Transform(Surface (*transform)(const Surface&)) {
    m_image = transform(m_image);
    m_mask = transform(m_mask);
    m_image.StorePicture();
    m_mask.StorePicture();
}

}  // namespace vexlo::session
