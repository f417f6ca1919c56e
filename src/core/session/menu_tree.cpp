#include "core/session/menu_tree.h"

namespace vexlo::session {

bool RuleHolds(EnableRule rule, const RuleContext& c) {
    switch (rule) {
        case EnableRule::Always: return true;
        case EnableRule::InArea: return c.InArea;
        case EnableRule::InAreaUndo2: return c.InArea && c.UndoCount >= 2;
        case EnableRule::InAreaUndo3: return c.InArea && c.UndoCount >= 3;
        case EnableRule::InAreaRedo1: return c.InArea && c.RedoCount >= 1;
        case EnableRule::InAreaRegion: return c.InArea && c.RegionSet;
        case EnableRule::InAreaMulti: return c.InArea && c.MultiIconFile;
        case EnableRule::InAreaNotMulti: return c.InArea && !c.MultiIconFile;
        case EnableRule::InAreaSize1: return c.InArea && c.SizeCode == 1;
        case EnableRule::InAreaSize2: return c.InArea && c.SizeCode == 2;
        case EnableRule::InAreaNotSize1: return c.InArea && c.SizeCode != 1;
        case EnableRule::InAreaHotspot: return c.InArea && c.HasHotspot;
        case EnableRule::ColorPicker:
            return c.InArea && c.ColorsPanelVisible && c.ColorChart0Visible;
        case EnableRule::PasteMenu: return !c.IconsListVisible && c.ClipboardBitmap;
        case EnableRule::PasteButton: return c.IconsListVisible || c.ClipboardBitmap;
        case EnableRule::ColorsPanel: return c.ColorsPanelVisible;
        case EnableRule::ColorsPanelMixer: return c.ColorsPanelVisible && c.ColorMixerVisible;
        case EnableRule::FileHistory: return true;
    }
    return true;
}

namespace {

using R = EnableRule;

MenuItem Sep() { return {"", "-", "", R::Always, false}; }

std::vector<TopMenu> BuildTree() {
    std::vector<TopMenu> tree;
    tree.push_back({"mnuFile", "&File", true, {
        {"mnuFileNew(0)", "&New Icon 32x32", "Ctrl+N", R::Always},
        {"mnuFileNew(1)", "N&ew Icon 16x16", "Ctrl+E", R::Always},
        {"mnuFileNew(2)", "Ne&w Icon 48x48", "", R::Always},
        Sep(),
        {"mnuFileOpen(0)", "&Open Icon File  ....", "Ctrl+O", R::Always},
        {"mnuFileOpen(1)", "&Display All Icons In Folder ....", "Ctrl+D", R::Always},
        {"mnuFileOpen(2)", "Open &Cursor File (cur) ....", "", R::Always},
        {"mnuFileOpen(3)", "Open &Bitmap File (bmp/gif/jpg/wfm/ emf) ....", "", R::Always},
        Sep(),
        {"mnuFileSaveICO", "&Save    (Single-Icon File)", "Ctrl+S", R::InArea},
        {"mnuFileSaveAsICO", "Save &As    (Single-Icon File) ....", "Ctrl+A", R::InArea},
        Sep(),
        {"mnuFileSaveAsICOForce256", "&Force Save As 256-Color ....", "", R::InArea},
        Sep(),
        {"mnuFileSaveMultiIconReplace", "Save As &Multi-Icon File ....", "", R::InAreaMulti},
        {"mnuFileSaveMultiIconAddTo", "Save As Multi-Icon File (Add &To) ....", "", R::InAreaNotMulti},
        Sep(),
        {"mnuFileSaveAsCursor", "Save As C&ursor ....", "", R::InAreaSize2},
        {"mnuFileSaveAsBitmap", "Save As B&itmap ....", "", R::InArea},
        Sep(),
        {"mnuFilePrint", "&Print ....", "", R::InArea},
        {"mnuFileHistory(0)", "-", "", R::FileHistory},
        {"mnuFileHistory(1)", "", "", R::FileHistory},
        {"mnuFileHistory(2)", "", "", R::FileHistory},
        {"mnuFileHistory(3)", "", "", R::FileHistory},
        {"mnuFileHistory(4)", "", "", R::FileHistory},
        {"mnuFileHistory(5)", "", "", R::FileHistory},
        {"mnuFileHistory(6)", "", "", R::FileHistory},
        Sep(),
        {"mnuFileExit", "E&xit", "", R::Always},
    }});
    tree.push_back({"mnuToolBox", "&Toolbox", true, {
        {"mnuToolsClear", "&Clear Tools", "F2", R::InArea},
        {"mnuToolsColorPicker", "Color Pic&ker (Pick Color From Icon)", "F3", R::ColorPicker, true},
        Sep(),
        {"mnuTools(0)", "&Paint", "F4", R::InArea, true},
        {"mnuTools(1)", "&Erase", "F5", R::InArea, true},
        {"mnuTools(2)", "&Fill", "F6", R::InArea, true},
        {"mnuTools(3)", "Repl&ace Color", "F7", R::InArea, true},
        {"mnuTools(4)", "&Spotlight (Oval or Circle)", "F8", R::InArea, true},
        {"mnuTools(5)", "&Line", "F9", R::InArea, true},
        {"mnuTools(6)", "&Broken Line", "Shift+F3", R::InArea, true},
        {"mnuTools(7)", "Rec&tangle/Square", "Shift+F4", R::InArea, true},
        {"mnuTools(8)", "Filled Rectangle/Sq&uare", "Shift+F5", R::InArea, true},
        {"mnuTools(9)", "&Oval/Circle", "Shift+F6", R::InArea, true},
        {"mnuTools(10)", "Filled O&val/Circle", "Shift+F7", R::InArea, true},
        {"mnuTools(11)", "&Region (Rectangle or Square)", "Shift+F8", R::InArea, true},
        {"mnuTools(12)", "Shi&ft Directions", "Shift+F9", R::InArea, true},
    }});
    tree.push_back({"mnuEdit", "&Edit", true, {
        {"mnuEditSub(0)", "&Undo", "Ctrl+Z", R::InAreaUndo2},
        {"mnuEditSub(1)", "Undo &All", "Ctrl+Y", R::InAreaUndo3},
        {"mnuEditSub(2)", "&Redo", "Ctrl+R", R::InAreaRedo1},
        {"mnuEditSub(3)", "-", "", R::Always},
        {"mnuEditSub(4)", "Cu&t && Copy", "Ctrl+X", R::InAreaRegion},
        {"mnuEditSub(5)", "Cut/&Erase Region", "Ctrl+U", R::InAreaRegion},
        {"mnuEditSub(6)", "&Copy", "Ctrl+C", R::InArea},
        {"mnuEditSub(7)", "&Paste", "Ctrl+V", R::PasteMenu},
        {"mnuEditSub(8)", "Paste &Opaque", "", R::PasteMenu},
        {"mnuEditSub(9)", "C&lear Clipboard", "", R::Always},
    }});
    tree.push_back({"mnuRotate", "&Rotate", true, {
        {"mnuRotateSubmenu(0)", "Flip &Horizontal", "", R::InArea},
        {"mnuRotateSubmenu(1)", "Flip &Verical", "", R::InArea},
        {"mnuRotateSubmenu(2)", "Rotate &Left 90 Degree", "", R::InArea},
        {"mnuRotateSubmenu(3)", "Rotate &Right 90 Degree", "", R::InArea},
        {"mnuRotateSubmenu(4)", "Rotate At Any &Selected Angle ....", "", R::InArea},
    }});
    tree.push_back({"mnuEffects", "Effe&cts", true, {
        {"mnuEffectsText", "&Text ....", "Ctrl+F2", R::InArea},
        Sep(),
        {"mnuEffectsSub(0)", "&Buttonize ....", "Ctrl+F3", R::InArea},
        {"mnuEffectsSub(1)", "&Invert Colors ....", "", R::InArea},
        {"mnuEffectsSub(2)", "&Grayscale ....", "", R::InArea},
        {"mnuEffectsSub(3)", "Emb&ossed ....", "", R::InArea},
        {"mnuEffectsSub(4)", "Engra&ved ....", "", R::InArea},
        {"mnuEffectsSub(5)", "&Raised ....", "", R::InArea},
        {"mnuEffectsSub(6)", "Shado&wed ....", "", R::InArea},
        {"mnuEffectsSub(7)", "&Cast ....", "", R::InArea},
        Sep(),
        {"mnuEffectsAdjustPaintedColors", "&Adjust Painted Colors ....", "Ctrl+F7", R::InArea},
        {"mnuEffectsGradientUnpaintedArea", "Gradient &Unpainted Area ....", "Ctrl+F8", R::InAreaNotSize1},
        Sep(),
        {"mnuEffectsExpand", "&Expand 16x16 To 32x32", "", R::InAreaSize1},
        {"mnuEffectsShrink", "S&hrink 32x32 To 16x16", "", R::InAreaSize2},
        Sep(),
        {"mnuEffectsConfineColorsTo16", "&Confine Colors To 16-Color-Palette", "", R::InArea},
        {"mnuEffectsConfineColorsTo2", "&Confine To &Mono ....", "", R::InArea},
    }});
    tree.push_back({"mnuBrush", "&Brush", false, {
        {"mnuBrushSize(0)", "&1", "", R::Always, true},
        {"mnuBrushSize(1)", "&2", "", R::Always, true},
        {"mnuBrushSize(2)", "&3", "", R::Always, true},
        {"mnuBrushSize(3)", "&4", "", R::Always, true},
        {"mnuBrushSize(4)", "&5", "", R::Always, true},
        {"mnuBrushSize(5)", "&6", "", R::Always, true},
    }});
    tree.push_back({"mnuPalette", "&Palette", true, {
        {"mnuPaletteSub(0)", "&16-Color Palette", "", R::ColorsPanel, true},
        {"mnuPaletteSub(1)", "&256-Color Palette", "", R::ColorsPanel, true},
        {"mnuPaletteSub(2)", "-", "", R::Always},
        {"mnuPaletteSub(3)", "&Load Palette ....", "", R::ColorsPanelMixer},
        {"mnuPaletteSub(4)", "&Save Palette ....", "", R::ColorsPanelMixer},
    }});
    tree.push_back({"mnuEnquiry", "E&nquiry", true, {
        {"mnuEnquiryCurrent(0)", "Enquiry - &Palette Mode Of Current Icon", "", R::InArea},
        {"mnuEnquiryCurrent(1)", "Enquiry - &Number Of Colors Used", "", R::InArea},
        {"mnuEnquiryCurrent(2)", "Enquiry - &Hotspot", "", R::InAreaHotspot},
        {"mnuEnquiryCurrent(3)", "-", "", R::Always},
        {"mnuEnquiryCurrent(4)", "Enquiry - &General Properties", "", R::InArea},
    }});
    tree.push_back({"mnuOptions", "&Options", false, {
        {"mnuOptionsGridline(0)", "Solid Grid Lines - &Light", "", R::Always, true},
        {"mnuOptionsGridline(1)", "Solid Grid Lines - &Dark", "", R::Always, true},
        {"mnuOptionsGridline(2)", "Dotted &Grid Lines", "", R::Always, true},
        Sep(),
        {"mnuOptionsDisplayMask", "Display &Mask", "", R::Always, true},
        Sep(),
        {"mnuOptionsPromptToSave", "&Prompt To Save On Icons Panel Switching", "", R::Always, true},
        {"mnuOptionsRemindIfBMP", "&Remind To Create Transparent Area If Bitmap", "", R::Always, true},
    }});
    tree.push_back({"mnuExtract", "E&xtract", true, {
        {"mnuExtractSub(0)", "Extract Icons From &ANI (Animated Cursor) File ....", "Ctrl+K", R::Always},
        {"mnuExtractSub(1)", "Extract &Large Icons - DLL Or Similar Resource....", "Ctrl+L", R::Always},
        {"mnuExtractSub(2)", "Extract &Small Icons - DLL Or Similar Resource....", "Ctrl+M", R::Always},
        {"mnuExtractSub(3)", "Extract Icons Associated With Any &File Type ....", "", R::Always},
        {"mnuExtractSub(4)", "Extract &Desktop Icons", "", R::Always},
        {"mnuExtractSub(5)", "Search && &Extract Icons From All EXE Files In Folder....", "", R::Always},
        Sep(),
        {"mnuExtractCapture", "&Capture Image From Desktop", "", R::InArea},
    }});
    tree.push_back({"mnuANIFile", "Ani&mation", false, {
        {"mnuANIFileCreateOrEdit", "&Create/Edit Animated Cursor File ....", "", R::Always},
    }});
    tree.push_back({"mnuAlpha", "&Alpha", true, {
        {"mnuAlphaViewEditCreate", "&View/Edit/Create Alpha Channel", "", R::InArea},
    }});
    tree.push_back({"mnuHelp", "&Help", false, {
        {"mnuHelpHTMLHelp", "&Help ....", "Ctrl+H", R::Always},
        {"mnuHelpAbout", "&About ....", "", R::Always},
    }});
    return tree;
}

}  // namespace

const std::vector<TopMenu>& MenuTree() {
    static const std::vector<TopMenu> tree = BuildTree();
    return tree;
}

const std::array<ToolbarButton, kToolbarCommands>& ToolbarButtons() {
    static const std::array<ToolbarButton, kToolbarCommands> buttons{{
        {"New  32x32", "mnuFileNew(0)", R::Always},
        {"New 16x16", "mnuFileNew(1)", R::Always},
        {"Open icon file", "mnuFileOpen(0)", R::Always},
        {"Display all icons in folder", "mnuFileOpen(1)", R::Always},
        {"Save to icon file", "mnuFileSaveICO", R::InArea},
        {"Save as", "mnuFileSaveAsICO", R::InArea},
        {"Undo", "mnuEditSub(0)", R::InAreaUndo2},
        {"Redo", "mnuEditSub(2)", R::InAreaRedo1},
        {"Cut and copy", "mnuEditSub(4)", R::InAreaRegion},
        {"Cut", "mnuEditSub(5)", R::InAreaRegion},
        {"Copy", "mnuEditSub(6)", R::InArea},
        {"Paste", "mnuEditSub(7)", R::PasteButton},
        {"Paste opaque", "mnuEditSub(8)", R::PasteButton},
        {"Flip horizontally", "mnuRotateSubmenu(0)", R::InArea},
        {"Flip vertically", "mnuRotateSubmenu(1)", R::InArea},
        {"Rotate left 90-degree", "mnuRotateSubmenu(2)", R::InArea},
        {"Rotate right 90-degree", "mnuRotateSubmenu(3)", R::InArea},
        {"Add text", "mnuEffectsText", R::InArea},
        {"Buttonize", "mnuEffectsSub(0)", R::InArea},
        {"Adjust painted color", "mnuEffectsAdjustPaintedColors", R::InArea},
        {"Gradient background", "mnuEffectsGradientUnpaintedArea", R::InAreaNotSize1},
        {"General properties", "mnuEnquiryCurrent(4)", R::InArea},
        {"Extract icons from ANI file", "mnuExtractSub(0)", R::Always},
        {"Capture image from desktop", "mnuExtractCapture", R::InArea},
        {"Create/edit animated cursor", "mnuANIFileCreateOrEdit", R::Always},
        {"View/edit/create Alpha (32 BPP icon)", "mnuAlphaViewEditCreate", R::InArea},
    }};
    return buttons;
}

bool ToolbarButtonFixed(int index) {
    return (index >= 0 && index <= 3) || index == 22 || index == 24;
}

}  // namespace vexlo::session
