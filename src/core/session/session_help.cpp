// Help: the help file, found beside the program or in its installed share folder, opened in
// the user's browser.
#include <cerrno>

#include "core/session/session.h"
#include "core/utilities/help_file.h"

namespace vexlo::session {

void Session::mnuHelpHTMLHelp() {
    const std::string path = utilities::FindHelpFile(m_dirs.ProgramDir);
    if (path.empty()) {
        m_host.MsgBox(utilities::HelpMissingMessage(), MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return;
    }
    if (!m_host.OpenHelpFile(path))
        ReportError("mnuHelpHTMLHelp", ENOENT, "No program could be started to show " + path);
}

}  // namespace vexlo::session
