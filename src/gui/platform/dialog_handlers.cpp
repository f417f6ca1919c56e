#include "gui/platform/dialog_handlers.h"

namespace vexlo::platform {

namespace {

DialogHandlers& Handlers() {
    static DialogHandlers handlers;
    return handlers;
}

}  // namespace

void SetDialogHandlers(DialogHandlers handlers) { Handlers() = std::move(handlers); }

const DialogHandlers& CurrentDialogHandlers() { return Handlers(); }

}  // namespace vexlo::platform
