// Calls that the slot and display operations make into the tools, undo, palette and file
// commands. Each is a no-op here until its own code takes it over.
#include "core/session/session.h"

namespace vexlo::session {

void Session::RefreshPaletteMenu() { SetPaletteModeForIcon(); }

void Session::ResetRegionState() {
    RegionExists = false;
    RegionEdgeDragged = false;
    RegionRect = {};
    RegionCells = {};
    Draw.RegionReworked = false;
}

}  // namespace vexlo::session
