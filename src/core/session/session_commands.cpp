// Commands of the menu bar and the toolbar: which item runs what, and the toolbar's state.
#include <string>
#include <unordered_map>

#include "core/session/session.h"
#include "core/session/session_effect_frames.h"
#include "core/session/session_icons_list.h"

namespace vexlo::session {

RuleContext Session::Rules() {
    RuleContext c;
    const IconSlot& s = Current();
    c.InArea = s.InEditingArea;
    c.UndoCount = UndoCount();
    c.RedoCount = RedoCount();
    c.RegionSet = m_view.Region().Exists;
    c.MultiIconFile = s.MultiIconFile;
    c.SizeCode = s.SizeCode;
    c.HasHotspot = s.HasHotspot;
    c.ColorsPanelVisible = m_form.VisibleFrame == Frame::ColorsPanel;
    c.ColorChart0Visible = m_form.ColorChart0Visible;
    c.ColorMixerVisible = m_form.ColorMixerVisible;
    c.IconsListVisible = m_form.VisibleFrame == Frame::IconsList;
    c.ClipboardBitmap = m_host.ClipboardHasBitmap();
    return c;
}

void Session::RefreshToolbar() {
    const RuleContext c = Rules();
    const auto& buttons = ToolbarButtons();
    for (int k = 4; k < kToolbarCommands; ++k) {
        if (ToolbarButtonFixed(k)) continue;
        m_form.ToolbarEnabled[static_cast<std::size_t>(k)] =
            RuleHolds(buttons[static_cast<std::size_t>(k)].Rule, c);
    }
}

void Session::ClickToolbar(int k) {
    Enter();
    if (k < 0 || k >= kToolbarCommands) return;
    RunMenuItem(ToolbarButtons()[static_cast<std::size_t>(k)].Runs);
}

void Session::ClickBrushSize(int i) {
    Enter();
    if (i < 0 || i > 5) return;
    m_form.BrushSizeIndex = i;
}

namespace {

// "mnuFileNew(2)" -> ("mnuFileNew", 2); a name without an index gives -1.
std::pair<std::string, int> SplitItemName(std::string_view name) {
    const auto open = name.find('(');
    if (open == std::string_view::npos || name.back() != ')') return {std::string(name), -1};
    int index = 0;
    for (std::size_t i = open + 1; i + 1 < name.size(); ++i) {
        if (name[i] < '0' || name[i] > '9') return {std::string(name), -1};
        index = index * 10 + (name[i] - '0');
    }
    return {std::string(name.substr(0, open)), index};
}

}  // namespace

bool Session::RunMenuItem(std::string_view name) {
    Enter();
    const auto [array, index] = SplitItemName(name);
    using Handler = void (*)(Session&, int);
    static const std::unordered_map<std::string, Handler> kHandlers = {
        {"mnuFileNew", [](Session& s, int i) { s.FileNew(i); }},
        {"mnuFileOpen", [](Session& s, int i) { s.FileOpen(i); }},
        {"mnuFileSaveICO", [](Session& s, int) { s.mnuFileSaveICO(); }},
        {"mnuFileSaveAsICO", [](Session& s, int) { s.mnuFileSaveAsICO(); }},
        {"mnuFileSaveAsICOForce256", [](Session& s, int) { s.mnuFileSaveAsICOForce256(); }},
        {"mnuFileSaveMultiIconReplace", [](Session& s, int) { s.mnuFileSaveMultiIconReplace(); }},
        {"mnuFileSaveMultiIconAddTo", [](Session& s, int) { s.mnuFileSaveMultiIconAddTo(); }},
        {"mnuFileSaveAsCursor", [](Session& s, int) { s.mnuFileSaveAsCursor(); }},
        {"mnuFileSaveAsBitmap", [](Session& s, int) { s.mnuFileSaveAsBitmap(); }},
        {"mnuFileHistory", [](Session& s, int i) { s.ClickFileHistory(i); }},
        {"mnuAlphaViewEditCreate", [](Session& s, int) { s.AlphaViewEditCreate(); }},
        {"mnuOptionsGridline", [](Session& s, int i) { s.ClickGridline(i); }},
        {"mnuOptionsDisplayMask", [](Session& s, int) { s.ClickDisplayMask(); }},
        {"mnuOptionsPromptToSave",
         [](Session& s, int) { s.m_form.PromptToSaveChecked = !s.m_form.PromptToSaveChecked; }},
        {"mnuOptionsRemindIfBMP",
         [](Session& s, int) { s.m_form.RemindIfBmpChecked = !s.m_form.RemindIfBmpChecked; }},
        {"mnuBrushSize", [](Session& s, int i) { s.ClickBrushSize(i); }},
        {"mnuEffectsSub", [](Session& s, int i) { s.Frames().ClickEffectsSub(i); }},
        {"mnuEffectsText", [](Session& s, int) { s.Frames().ClickEffectsText(); }},
        {"mnuEffectsAdjustPaintedColors",
         [](Session& s, int) { s.Frames().ClickEffectsAdjustPaintedColors(); }},
        {"mnuEffectsGradientUnpaintedArea", [](Session& s, int) { s.Frames().mnuEffectsGradientUnpaintedArea(); }},
        {"mnuEffectsExpand", [](Session& s, int) { s.Frames().ResizeIcon(true); }},
        {"mnuEffectsShrink", [](Session& s, int) { s.Frames().ResizeIcon(false); }},
        {"mnuEffectsConfineColorsTo16", [](Session& s, int) { s.Frames().mnuEffectsConfineColorsTo16(); }},
        {"mnuEffectsConfineColorsTo2", [](Session& s, int) { s.Frames().mnuEffectsConfineColorsTo2(); }},
        {"mnuANIFileCreateOrEdit", [](Session& s, int) { s.mnuANIFileCreateOrEdit(); }},
        {"mnuPaletteSub", [](Session& s, int i) { s.ClickPaletteSub(i); }},
        {"mnuTools",
         [](Session& s, int i) {
             if (!s.InArea() || i < 0 || i >= tools::kToolCount) return;
             s.ClickTool(static_cast<tools::Tool>(i));
             s.host().NudgePointer();
         }},
        {"mnuToolsColorPicker",
         [](Session& s, int) {
             if (!s.InArea()) return;
             s.ClickColorPicker();
             s.host().NudgePointer();
         }},
        {"mnuToolsClear",
         [](Session& s, int) {
             s.ClearTools();
             if (s.InArea()) s.host().NudgePointer();
         }},
        {"mnuEditSub", [](Session& s, int i) { s.ClickEditSub(i); }},
        {"mnuRotateSubmenu", [](Session& s, int i) { s.ClickRotateSubmenu(i); }},
        {"mnuFilePrint", [](Session& s, int) { s.mnuFilePrint(); }},
        {"mnuExtractCapture", [](Session& s, int) { s.mnuExtractCapture(); }},
        {"mnuEnquiryCurrent", [](Session& s, int i) { s.ClickEnquiry(i); }},
        {"mnuHelpHTMLHelp", [](Session& s, int) { s.mnuHelpHTMLHelp(); }},
        {"mnuHelpAbout", [](Session& s, int) { s.host().ShowAbout(); }},
        {"mnuExtractSub", [](Session& s, int i) { s.Extraction().ClickExtractSub(i); }},
    };
    const auto it = kHandlers.find(array);
    if (it == kHandlers.end()) return false;
    it->second(*this, index);
    return true;
}

}  // namespace vexlo::session
