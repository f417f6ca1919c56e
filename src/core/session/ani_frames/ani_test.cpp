#include "core/session/ani_frames/ani_test.h"

namespace vexlo::session {

AniTest::AniTest() : m_picture(ani::kAniFrameSide, ani::kAniFrameSide, 0xFFFFFF) {}

void AniTest::SetTimer(AniTimer* timer) {
    m_timer = timer;
    if (m_timer) m_timer->Set(m_enabled, m_interval);
}

void AniTest::SetTimerState(bool enabled, int interval) {
    m_enabled = enabled;
    m_interval = interval;
    if (m_timer) m_timer->Set(m_enabled, m_interval);
}

void AniTest::Toggle() {
    m_frame = 0;
    if (m_caption == kAniStopCaption) {
        Stop();
        return;
    }
    m_caption = kAniStopCaption;
    m_running = true;
    SetTimerState(true, m_interval);
}

void AniTest::Stop() {
    m_caption = kAniTestCaption;
    m_running = false;
    if (m_enabled) SetTimerState(false, m_interval);
    m_picture.Clear();
}

bool AniTest::Tick(const ani::AniFrameSet& frames) {
    if (!m_running) return false;
    const int n = frames.FrameCount();
    if (n < 1 || frames.AniFrames.size() < static_cast<std::size_t>(n)) {
        m_running = false;
        SetTimerState(false, m_interval);
        return false;
    }
    if (++m_frame > n) m_frame = 1;
    // Jiffies stay within 1 to 90, so ten times them fits the 16 bits of the interval.
    const int t = frames.AniFrames[static_cast<std::size_t>(m_frame - 1)].Jiffies * kAniJiffyMs;
    SetTimerState(true, t < 1 ? kAniShortestTickMs : t);
    const surface::Surface& image = frames.AniImages[static_cast<std::size_t>(m_frame)];
    surface::BitBlt(m_picture, 0, 0, ani::kAniFrameSide, ani::kAniFrameSide, image, 0, 0, surface::Rop::SrcCopy);
    return true;
}

}  // namespace vexlo::session
