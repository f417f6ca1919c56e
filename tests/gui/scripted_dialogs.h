#pragma once
// Routes the platform's message boxes and its file, color, printer and folder dialogs to a
// ScriptedHost while in scope, then puts back the handlers that were installed before.
#include <cstdint>
#include <string>
#include <utility>

#include "gui/platform/dialog_handlers.h"
#include "gui/platform/message_box.h"
#include "support/scripted_host.h"

namespace vexlo::test {

class ScopedScriptedDialogs {
public:
    explicit ScopedScriptedDialogs(ScriptedHost& host)
        : m_previousBox(platform::CurrentMessageBoxHandler()),
          m_previousDialogs(platform::CurrentDialogHandlers()) {
        platform::SetMessageBoxHandler([&host](const std::string& text, host::MsgButtons buttons,
                                               host::MsgIcon icon, const std::string& title) {
            return host.MsgBox(text, buttons, icon, title);
        });
        platform::DialogHandlers dialogs;
        dialogs.open = [&host](const utilities::OpenRequest& r) { return host.ShowOpen(r); };
        dialogs.save = [&host](const utilities::SaveRequest& r) { return host.ShowSave(r); };
        dialogs.color = [&host](std::int32_t color, bool fullOpen) {
            return host.ShowColor(color, fullOpen);
        };
        dialogs.printer = [&host](const utilities::PrinterRequest& r,
                                  utilities::PrinterValues& values) {
            if (!host.ShowPrinter(r)) return false;
            values = host.Printer();
            return true;
        };
        dialogs.folder = [&host](const std::string& pattern, const std::string& startFolder,
                                 bool extendable) {
            return host.AskFolder(pattern, startFolder, extendable);
        };
        platform::SetDialogHandlers(std::move(dialogs));
    }
    ~ScopedScriptedDialogs() {
        platform::SetMessageBoxHandler(std::move(m_previousBox));
        platform::SetDialogHandlers(std::move(m_previousDialogs));
    }
    ScopedScriptedDialogs(const ScopedScriptedDialogs&) = delete;
    ScopedScriptedDialogs& operator=(const ScopedScriptedDialogs&) = delete;

private:
    platform::MessageBoxHandler m_previousBox;
    platform::DialogHandlers m_previousDialogs;
};

// The name the message-box tests use.
using ScopedScriptedMessageBoxes = ScopedScriptedDialogs;

}  // namespace vexlo::test
