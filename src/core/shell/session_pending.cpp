// Calls that the slot and display operations make into the tools, undo, palette and file
// commands. Each is a no-op here until its own code takes it over.
#include "core/shell/session.h"

namespace vexlo::shell {

void Session::ClearUndoHistory() {}
void Session::TakeUndoSnapshot() {}
void Session::ClearTools() {}
void Session::ResetDrawState() {}
void Session::SelectPaintTool() {}
int Session::UndoCount() const { return 0; }
int Session::RedoCount() const { return 0; }
void Session::RefreshPaletteMenu() {}
void Session::mnuFileSaveAsICO() {}

void Session::ResetRegionState() {
    RegionExists = false;
    RegionEdgeDragged = false;
    RegionRect = {};
    RegionCells = {};
}

}  // namespace vexlo::shell
