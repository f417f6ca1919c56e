#include "gui/platform/qt_host.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>

#include "gui/platform/message_box.h"

namespace vexlo::platform {

QtHost::~QtHost() {
    if (m_hourglassDepth > 0) QGuiApplication::restoreOverrideCursor();
}

shell::MsgAnswer QtHost::MsgBox(const std::string& text, shell::MsgButtons buttons,
                                shell::MsgIcon icon, const std::string& title) {
    return ShowMessageBox(text, buttons, icon, title);
}

void QtHost::DoEvents() { QCoreApplication::processEvents(); }

void QtHost::SetHourglass(bool on) {
    if (on) {
        if (m_hourglassDepth++ == 0) QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    } else if (m_hourglassDepth > 0) {
        if (--m_hourglassDepth == 0) QGuiApplication::restoreOverrideCursor();
    }
}

void QtHost::RefreshDisplay() {
    if (m_refresh) m_refresh();
}

}  // namespace vexlo::platform
