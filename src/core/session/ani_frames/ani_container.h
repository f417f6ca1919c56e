#pragma once
// Where picANIContainer(0) stands inside picFraContainer, the space that it shares with the
// panel frames: at full size over the frames, at half width on their left, or minimized to a
// small bar at their bottom that the pointer can drag about.
namespace vexlo::session {

// picFraContainer: the panel frames' space and a strip of 40 pixels above it.
inline constexpr int kFraContainerWidth = 281;
inline constexpr int kFraContainerHeight = 346;
// The size the container has at start, its full size.
inline constexpr int kAniContainerWidth = 279;
inline constexpr int kAniContainerHeight = 306;
inline constexpr int kAniContainerTop = 40;
inline constexpr int kAniMinimizedHeight = 24;

struct AniContainerRect {
    int Left = 1;
    int Top = kAniContainerTop;
    int Width = kAniContainerWidth;
    int Height = kAniContainerHeight;
    friend bool operator==(const AniContainerRect&, const AniContainerRect&) = default;
};

class AniContainer {
public:
    const AniContainerRect& Rect() const { return m_rect; }
    bool Minimized() const {
        return m_rect.Width < kAniContainerWidth / 2 && m_rect.Height < kAniContainerHeight / 2;
    }

    // Full size at (1, 40).
    void Restore();
    // cmdANI(1): from full width to half the width less 4 at (2, 40); from any other width back.
    void Resize();
    // cmdANI(2): half the width less 2, 24 high, at the bottom left of picFraContainer.
    void Minimize();
    // A press on the container at (x, y) in picFraContainer's pixels, and moves with the
    // pointer held: a minimized container follows the pointer by the offset from where it was
    // pressed, kept whole inside picFraContainer; a larger one doesn't move.
    void Press(int x, int y);
    void Drag(int x, int y);
    // A double click on the container restores a minimized one.
    void DoubleClick();

private:
    AniContainerRect m_rect;
    int m_pressX = 0;
    int m_pressY = 0;
    bool m_pressed = false;
};

}  // namespace vexlo::session
