#pragma once
// frmVexloCapture without its widgets: the frozen picture of the screen, the box moved over it
// with the pointer, and the square taken by a click. The pointer is kept where the box still
// fits on the screen (the platform's pointer isn't clipped; the box is), the box is drawn
// through its sprite's AND mask and XOR image, and a release of the left button takes what
// lies inside the box.
#include <string>

#include "core/surface/surface.h"

namespace vexlo::session {

using surface::Surface;

// CaptureSize: the box's side as text, "16", "32" or "48" by the size code.
std::string CaptureSizeText(int sizeCode);
// picSnap16, picSnap32, picSnap48: two squares of side s + 2 side by side. The left one is the
// AND mask, black on its border and white inside; the right one the XOR image, the border as
// dashes of yellow and blue, black inside.
Surface CaptureSprite(int side);

inline constexpr surface::Color kCaptureDashYellow = 0x00FFFF;
inline constexpr surface::Color kCaptureDashBlue = 0xFF0000;

// The message when the display doesn't let the screen be read.
std::string CaptureUnavailableMessage();

class CaptureBox {
public:
    // The load and the activation: the screen as it was when the form loaded, and the side of
    // the icon (16, 32 or 48).
    CaptureBox(Surface screen, int side);

    int ScreenWidth() const { return m_screen.Width(); }
    int ScreenHeight() const { return m_screen.Height(); }
    const Surface& Screen() const { return m_screen; }
    int Side() const { return m_side; }
    int SpriteSide() const { return m_side + 2; }  // CaptureSpriteSide
    const Surface& Sprite() const { return m_sprite; }
    // The pointer's range as ClipCursor would set it: 0 .. MaxX(), 0 .. MaxY(), which is
    // side + 1 pixels fewer than the screen on each axis.
    int MaxX() const;
    int MaxY() const;

    // A pointer move to (x, y) on the screen; kept inside the range.
    void PointerMoved(int x, int y);
    int PointerX() const { return m_x; }
    int PointerY() const { return m_y; }
    // A timer tick: the box as it shows at the pointer, the frozen picture under it run
    // through the sprite (SRCAND, then SRCINVERT); it stands at (PointerX, PointerY).
    const Surface& Tick();
    const Surface& Box() const { return m_box; }

    // A pointer release: the left button takes the square inside the box into Picture();
    // any other cancels. Either way the capture is over.
    void Release(bool leftButton);
    bool Cancelled() const { return m_cancelled; }
    bool Done() const { return m_done; }
    const Surface& Picture() const { return m_picture; }

private:
    Surface m_screen;
    int m_side;
    Surface m_sprite;
    Surface m_box;
    Surface m_picture;
    int m_x = 0;
    int m_y = 0;
    bool m_cancelled = true;
    bool m_done = false;
};

}  // namespace vexlo::session
