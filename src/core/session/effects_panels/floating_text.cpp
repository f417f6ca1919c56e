#include "core/session/effects_panels/floating_text.h"

#include <cmath>

#include "core/icon/icon_colors.h"

namespace vexlo::session {

void FloatingText::Lift(const surface::Surface& picture, const surface::Surface& image,
                        const surface::Surface& mask) {
    m_picture = picture;
    m_imageUnder = image;
    m_maskUnder = mask;
    m_left = m_top = 0;
    m_grabX = m_grabY = 0;
    m_active = true;
}

void FloatingText::DrawInto(surface::Surface& image, surface::Surface& mask) const {
    image = m_imageUnder;
    mask = m_maskUnder;
    for (int x = 0; x < m_picture.Width(); ++x)
        for (int y = 0; y < m_picture.Height(); ++y) {
            const surface::Color c = m_picture.GetPixel(x, y);
            if (c == icon::kTransparentGray) continue;
            if (image.SetPixelV(m_left + x, m_top + y, c))
                mask.SetPixelV(m_left + x, m_top + y, icon::kBlack);
        }
}

bool FloatingText::Contains(int cellX, int cellY) const {
    return cellX >= m_left && cellX <= m_left + Width() && cellY >= m_top &&
           cellY <= m_top + Height();
}

void FloatingText::Grab(int cellX, int cellY) {
    m_grabX = m_left - cellX;
    m_grabY = m_top - cellY;
}

bool FloatingText::MoveTo(int cellX, int cellY, int iconSide) {
    const int nx = m_grabX + cellX, ny = m_grabY + cellY;
    const int minX = -static_cast<int>(std::nearbyint(0.7 * Width()));
    const int minY = -static_cast<int>(std::nearbyint(0.7 * Height()));
    const int maxX = iconSide - Width() - minX, maxY = iconSide - Height() - minY;
    if (nx < minX || ny < minY || nx > maxX || ny > maxY) return false;
    if (nx == m_left && ny == m_top) return false;
    m_left = nx;
    m_top = ny;
    return true;
}

}  // namespace vexlo::session
