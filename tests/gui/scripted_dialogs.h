#pragma once
// Routes the platform's message boxes to a ScriptedHost while in scope, then puts back the
// handler that was installed before.
#include <string>

#include "gui/platform/message_box.h"
#include "support/scripted_host.h"

namespace vexlo::test {

class ScopedScriptedMessageBoxes {
public:
    explicit ScopedScriptedMessageBoxes(ScriptedHost& host)
        : m_previous(platform::CurrentMessageBoxHandler()) {
        platform::SetMessageBoxHandler([&host](const std::string& text, shell::MsgButtons buttons,
                                               shell::MsgIcon icon, const std::string& title) {
            return host.MsgBox(text, buttons, icon, title);
        });
    }
    ~ScopedScriptedMessageBoxes() { platform::SetMessageBoxHandler(std::move(m_previous)); }
    ScopedScriptedMessageBoxes(const ScopedScriptedMessageBoxes&) = delete;
    ScopedScriptedMessageBoxes& operator=(const ScopedScriptedMessageBoxes&) = delete;

private:
    platform::MessageBoxHandler m_previous;
};

}  // namespace vexlo::test
