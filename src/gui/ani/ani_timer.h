#pragma once
// Timer1 of the animation test on a QTimer: switched on and off and given its interval by the
// session; each time the interval has run it calls the tick it was given.
#include <QTimer>
#include <functional>

#include "core/session/ani_frames/ani_test.h"

namespace vexlo::gui {

class QtAniTimer final : public session::AniTimer {
public:
    explicit QtAniTimer(std::function<void()> tick);
    void Set(bool enabled, int intervalMs) override;
    bool Active() const { return m_timer.isActive(); }
    int Interval() const { return m_timer.interval(); }

private:
    QTimer m_timer;
};

}  // namespace vexlo::gui
