#include "core/session/capture/capture_box.h"

#include <algorithm>
#include <utility>

#include "core/host/host.h"

namespace vexlo::session {

using surface::Rop;

std::string CaptureSizeText(int sizeCode) {
    switch (sizeCode) {
        case 1: return "16";
        case 3: return "48";
        default: return "32";
    }
}

Surface CaptureSprite(int side) {
    const int n = side + 2;
    Surface sprite(2 * n, n, 0xFFFFFF);
    sprite.Clear();
    sprite.FillBox(n, 0, 2 * n - 1, n - 1, 0x000000);
    for (int y = 0; y < n; ++y) {
        for (int x = 0; x < n; ++x) {
            if (x != 0 && y != 0 && x != n - 1 && y != n - 1) continue;
            sprite.SetPixelV(x, y, 0x000000);
            // Dashes of two pixels along each edge.
            sprite.SetPixelV(n + x, y, ((x + y) / 2) % 2 == 0 ? kCaptureDashYellow : kCaptureDashBlue);
        }
    }
    return sprite;
}

std::string CaptureUnavailableMessage() {
    return std::string("The desktop can't be captured:") + host::kCrLf +
           "this display session doesn't let programs read the screen" + host::kCrLf +
           "(a Wayland session, for example, may refuse it).";
}

CaptureBox::CaptureBox(Surface screen, int side)
    : m_screen(std::move(screen)), m_side(side), m_sprite(CaptureSprite(side)),
      m_box(side + 2, side + 2, 0x000000), m_picture(side, side, 0xFFFFFF) {}

int CaptureBox::MaxX() const { return std::max(0, ScreenWidth() - m_side - 2); }
int CaptureBox::MaxY() const { return std::max(0, ScreenHeight() - m_side - 2); }

void CaptureBox::PointerMoved(int x, int y) {
    m_x = std::clamp(x, 0, MaxX());
    m_y = std::clamp(y, 0, MaxY());
}

const Surface& CaptureBox::Tick() {
    const int n = SpriteSide();
    m_box.Clear();
    BitBlt(m_box, 0, 0, n, n, m_screen, m_x, m_y, Rop::SrcCopy);
    BitBlt(m_box, 0, 0, n, n, m_sprite, 0, 0, Rop::SrcAnd);
    BitBlt(m_box, 0, 0, n, n, m_sprite, n, 0, Rop::SrcInvert);
    return m_box;
}

void CaptureBox::Release(bool leftButton) {
    if (m_done) return;
    m_done = true;
    m_cancelled = !leftButton;
    if (leftButton) {
        m_picture.Clear();
        BitBlt(m_picture, 0, 0, m_side, m_side, m_screen, m_x + 1, m_y + 1, Rop::SrcCopy);
    }
}

}  // namespace vexlo::session
