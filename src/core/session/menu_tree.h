#pragma once
// The menu bar and the toolbar as data: every item with its name, caption, shortcut, tick and
// the rule that enables it, and the toolbar's buttons with the item each runs. The window
// builds its menus from these tables; the rules are worked out here.
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace vexlo::session {

// When an item or a button is enabled.
enum class EnableRule {
    Always,             // never touched by a rule
    InArea,             // the current slot has InEditingArea
    InAreaUndo2,        // ... and the undo count is at least 2
    InAreaUndo3,        // ... and at least 3
    InAreaRedo1,        // ... and the redo count is at least 1
    InAreaRegion,       // ... and a Region is set
    InAreaMulti,        // ... and the icon is of a Multi-Icon File
    InAreaNotMulti,     // ... and it isn't
    InAreaSize1,        // ... and SizeCode is 1
    InAreaSize2,        // ... and SizeCode is 2
    InAreaNotSize1,     // ... and SizeCode isn't 1
    InAreaHotspot,      // ... and the icon has a hotspot
    ColorPicker,        // InArea, fraColorsPanel and the first color chart visible
    PasteMenu,          // fraIconsList hidden and a bitmap on the clipboard
    PasteButton,        // fraIconsList visible, or a bitmap on the clipboard
    ColorsPanel,        // fraColorsPanel visible
    ColorsPanelMixer,   // fraColorsPanel and fraColorMixer visible
    FileHistory,        // kept by the file history itself
};

// The facts the rules read.
struct RuleContext {
    bool InArea = false;
    int UndoCount = 0;
    int RedoCount = 0;
    bool RegionSet = false;
    bool MultiIconFile = false;
    int SizeCode = 2;
    bool HasHotspot = false;
    bool ColorsPanelVisible = false;
    bool ColorChart0Visible = false;
    bool ColorMixerVisible = false;
    bool IconsListVisible = false;
    bool ClipboardBitmap = false;
};

bool RuleHolds(EnableRule rule, const RuleContext& c);

struct MenuItem {
    std::string_view Name;      // e.g. "mnuFileNew(0)"; empty for a separator
    std::string_view Caption;   // with '&' before the access key; "-" for a separator
    std::string_view Shortcut;  // in the form Qt reads ("Ctrl+N", "F2", "Shift+F3")
    EnableRule Rule = EnableRule::Always;
    bool Checkable = false;
};

struct TopMenu {
    std::string_view Name;     // "mnuFile"
    std::string_view Caption;  // "&File"
    bool HasRule;              // its items' rules run when it drops down
    std::vector<MenuItem> Items;
};

// The thirteen top menus in their order.
const std::vector<TopMenu>& MenuTree();

struct ToolbarButton {
    std::string_view Tooltip;
    std::string_view Runs;  // the menu item it runs
    EnableRule Rule;
};

inline constexpr int kToolbarCommands = 26;  // cmdTB(0..25); 26..30 are separators
inline constexpr int kToolbarElements = 31;
const std::array<ToolbarButton, kToolbarCommands>& ToolbarButtons();
// Buttons that RefreshToolbar never writes.
bool ToolbarButtonFixed(int index);

}  // namespace vexlo::session
