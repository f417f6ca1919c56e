#pragma once
// The animation test: the frames of the session played in picANITest at their jiffies, driven
// by Timer1. The timer itself is the platform's: AniTest tells it to run or stop and at which
// interval, and whoever runs it calls Tick each time the interval has passed (a QTimer in the
// window, a fake clock in tests). A jiffy counts 10 milliseconds here.
#include <string>

#include "core/ani/ani_frames.h"
#include "core/surface/surface.h"

namespace vexlo::session {

// Timer1 as the test sees it: a repeating timer with an interval. Setting it restarts the
// count of the interval from now.
class AniTimer {
public:
    virtual ~AniTimer() = default;
    virtual void Set(bool enabled, int intervalMs) = 0;
};

inline constexpr const char* kAniTestCaption = "Test";
inline constexpr const char* kAniStopCaption = "Stop";
inline constexpr int kAniTimerStartMs = 300;
inline constexpr int kAniJiffyMs = 10;
inline constexpr int kAniShortestTickMs = 100;  // the interval set for a frame of no time

class AniTest {
public:
    AniTest();

    bool Running() const { return m_running; }         // AniTestRunning
    int Frame() const { return m_frame; }              // AniTestFrame, 0 before the first tick
    bool TimerEnabled() const { return m_enabled; }    // Timer1.Enabled
    int TimerInterval() const { return m_interval; }   // Timer1.Interval
    const std::string& Caption() const { return m_caption; }  // of cmdANI(8)
    const surface::Surface& Picture() const { return m_picture; }  // picANITest

    // The timer that runs the ticks; null for none (nothing then ticks).
    void SetTimer(AniTimer* timer);

    // cmdANI(8): back to frame 0, then stopped if running, else running.
    void Toggle();
    // StopAniTest: caption "Test", timer off, not running, picANITest cleared to white.
    void Stop();
    // One tick of Timer1: the next frame of frames (after the last, the first again) shown in
    // picANITest, and the interval set to its jiffies. Nothing unless running; with no frames
    // the test stops running (the caption stays). True when the picture changed.
    bool Tick(const ani::AniFrameSet& frames);

private:
    void SetTimerState(bool enabled, int interval);

    bool m_running = false;
    int m_frame = 0;
    bool m_enabled = false;
    int m_interval = kAniTimerStartMs;
    std::string m_caption = kAniTestCaption;
    surface::Surface m_picture;
    AniTimer* m_timer = nullptr;
};

}  // namespace vexlo::session
