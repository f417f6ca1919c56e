#include "core/session/ani_frames/ani_container.h"

#include <algorithm>

namespace vexlo::session {

void AniContainer::Restore() {
    m_rect = AniContainerRect{};
    m_pressed = false;
}

void AniContainer::Resize() {
    if (m_rect.Width == kAniContainerWidth) {
        m_rect.Left = 2;
        m_rect.Top = kAniContainerTop;
        m_rect.Width = kAniContainerWidth / 2 - 4;
    } else {
        Restore();
    }
}

void AniContainer::Minimize() {
    m_rect.Width = kAniContainerWidth / 2 - 2;
    m_rect.Height = kAniMinimizedHeight;
    m_rect.Left = 2;
    m_rect.Top = kFraContainerHeight - kAniMinimizedHeight - 1;
}

void AniContainer::Press(int x, int y) {
    m_pressX = x - m_rect.Left;
    m_pressY = y - m_rect.Top;
    m_pressed = true;
}

void AniContainer::Drag(int x, int y) {
    if (!m_pressed || !Minimized()) return;
    m_rect.Left = std::clamp(x - m_pressX, 0, kFraContainerWidth - m_rect.Width);
    m_rect.Top = std::clamp(y - m_pressY, 0, kFraContainerHeight - m_rect.Height);
}

void AniContainer::DoubleClick() {
    if (Minimized()) Restore();
}

}  // namespace vexlo::session
