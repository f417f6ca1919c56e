#include "gui/ani/ani_timer.h"

namespace vexlo::gui {

QtAniTimer::QtAniTimer(std::function<void()> tick) {
    // Frames of one jiffy ask for 10 ms: a coarse timer would stretch them.
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, std::move(tick));
}

void QtAniTimer::Set(bool enabled, int intervalMs) {
    if (!enabled) {
        m_timer.stop();
        return;
    }
    // A new interval counts from now; the same one on a running timer goes on as it was.
    if (!m_timer.isActive() || m_timer.interval() != intervalMs) m_timer.start(intervalMs);
}

}  // namespace vexlo::gui
