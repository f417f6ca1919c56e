#pragma once
// The session's platform services on Qt: message boxes through ShowMessageBox, DoEvents,
// the hourglass pointer and the repaint of the Editing Area.
#include <functional>
#include <string>

#include "core/shell/host.h"

namespace vexlo::platform {

class QtHost : public shell::Host {
public:
    QtHost() = default;
    // Removes the hourglass if it is still shown.
    ~QtHost() override;
    QtHost(const QtHost&) = delete;
    QtHost& operator=(const QtHost&) = delete;

    shell::MsgAnswer MsgBox(const std::string& text, shell::MsgButtons buttons,
                            shell::MsgIcon icon, const std::string& title) override;
    void DoEvents() override;
    // Nested: each "on" needs its "off"; an "off" with none shown is ignored. One wait cursor
    // override is pushed while the depth is above 0.
    void SetHourglass(bool on) override;
    void RefreshDisplay() override;

    // What RefreshDisplay calls; set by the window that shows the Editing Area.
    void SetRefreshDisplay(std::function<void()> refresh) { m_refresh = std::move(refresh); }
    int HourglassDepth() const { return m_hourglassDepth; }

private:
    int m_hourglassDepth = 0;
    std::function<void()> m_refresh;
};

}  // namespace vexlo::platform
