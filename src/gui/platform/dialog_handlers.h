#pragma once
// The file, color, printer and folder dialogs, replaceable as message boxes are. clsVexloDialog
// and frmDirDialog call the installed handler of their kind and show the real dialog only when
// none is installed; tests install handlers that answer from a script.
#include <cstdint>
#include <functional>
#include <string>

#include "core/utilities/dialog_requests.h"

namespace vexlo::platform {

struct DialogHandlers {
    // The chosen path, "" when cancelled.
    std::function<std::string(const utilities::OpenRequest&)> open;
    std::function<std::string(const utilities::SaveRequest&)> save;
    // The COLORREF chosen starting from color, -1 when cancelled.
    std::function<std::int32_t(std::int32_t color, bool fullOpen)> color;
    // True when confirmed; values then receives the printer's four values.
    std::function<bool(const utilities::PrinterRequest&, utilities::PrinterValues& values)>
        printer;
    // The folder chosen in the folder dialog, "" when cancelled. startFolder empty: the
    // current directory.
    std::function<std::string(const std::string& pattern, const std::string& startFolder,
                              bool extendable)>
        folder;
};

// Replaces the handlers; an empty member restores the real dialog of its kind.
void SetDialogHandlers(DialogHandlers handlers);
// The handlers in use, so that they can be restored later.
const DialogHandlers& CurrentDialogHandlers();

}  // namespace vexlo::platform
