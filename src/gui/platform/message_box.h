#pragma once
// Message boxes. Every message of the program goes through ShowMessageBox, which calls the
// installed handler, or shows a QMessageBox when none is installed. Tests install a handler
// that answers from a script, so that no test waits on a real box.
#include <functional>
#include <string>

#include "core/host/host.h"

namespace vexlo::platform {

using MessageBoxHandler = std::function<host::MsgAnswer(
    const std::string& text, host::MsgButtons, host::MsgIcon, const std::string& title)>;

// Shows a message (UTF-8 text, CR LF for line breaks) and answers the button chosen.
host::MsgAnswer ShowMessageBox(const std::string& text, host::MsgButtons buttons,
                                host::MsgIcon icon, const std::string& title);

// Replaces the message box; an empty handler restores the real QMessageBox.
void SetMessageBoxHandler(MessageBoxHandler handler);
// The handler in use (empty when the real box is shown), so that it can be restored later.
const MessageBoxHandler& CurrentMessageBoxHandler();

// The answer of a box closed without a choice: Cancel where there is a Cancel button, else No
// where there is a No, else Ok.
host::MsgAnswer ClosedBoxAnswer(host::MsgButtons buttons);

}  // namespace vexlo::platform
