#pragma once
// The editing session of the main window: the one front door that the window's handlers call.
// It owns its parts, each with its own state and folder, and runs the flows that cross them:
//   EditedIcon, IconsPanel   the planes and undo history; the six slots and their pictures
//   EditingView       picDisp, the grid, the zoom, the Region's marks and the rubber band
//   EffectsPanels, ColorMixer   what the effect frames keep while up; the Color Mixer
//   FloatingRegion, ShiftPad   the floating Region; Shift Directions and its pad
//   AniSession, IconsListSession   the animated cursor session and the Icons List
// Larger groups of flows are handles on it: Frames() (session_effect_frames.h), Extraction()
// (session_icons_list.h); the tools see SessionToolView. The window redraws itself from the
// parts' pictures and the FormState; nothing here knows about widgets.
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/files/ico_write.h"
#include "core/session/ani_frames/ani_session.h"
#include "core/session/color_mixer/color_mixer.h"
#include "core/session/edited_icon/edited_icon.h"
#include "core/session/editing_view/editing_view.h"
#include "core/session/effects_panels/effects_panels.h"
#include "core/session/form_state.h"
#include "core/session/icon_slot.h"
#include "core/session/icons_list/icons_list_session.h"
#include "core/session/icons_panel/icons_panel.h"
#include "core/session/menu_tree.h"
#include "core/session/print_job/print_panel.h"
#include "core/session/session_basics.h"
#include "core/session/region/floating_region.h"
#include "core/session/region/region_tool_view.h"
#include "core/session/search_exe/search_exe_panel.h"
#include "core/session/session_tool_view.h"
#include "core/session/settings/file_history_menu.h"
#include "core/session/shift_pad/shift_pad.h"
#include "core/tools/tool_state.h"

namespace vexlo::session {

class IconsListFlows;
class EffectFrames;

class Session {
public:
    explicit Session(Host& host);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Host& host() { return m_host; }

    // --- The parts ------------------------------------------------------------------------
    EditedIcon& Icon() { return m_icon; }
    const EditedIcon& Icon() const { return m_icon; }
    const IconsPanel& Panel() const { return m_panel; }
    const EditingView& View() const { return m_view; }
    const ShadesState& Shades() const { return m_effects.Shades(); }
    const EffectsPanels& Effects() const { return m_effects; }
    const GradientPanel& Gradient() const { return m_effects.Gradient(); }
    const ConfineMonoPanel& ConfineMono() const { return m_effects.ConfineMono(); }
    const ColorMixer& Mixer() const { return m_mixer; }
    const AniSession& Ani() const { return m_ani; }
    const FloatingRegion& Floating() const { return m_floating; }
    const ShiftPad& Shift() const { return m_shift; }
    const FormState& Form() const { return m_form; }
    const FileHistoryMenu& FileHistory() const { return m_fileHistory; }

    // The records are plain data; whoever changes one keeps its slot's pictures in step.
    IconSlot& SlotRecord(int k) { return m_panel.Slot(k); }
    IconSlot& Current() { return m_panel.Current(); }
    const IconSlot& Current() const { return m_panel.Current(); }
    int CurrentSlot() const { return m_panel.CurrentSlot(); }
    bool InArea() const { return Current().InEditingArea; }

    Color SelectedColor() const { return m_selectedColor; }  // the Current Selected Color
    void SetSelectedColor(Color c) { m_selectedColor = c; }
    const Directories& Dirs() const { return m_dirs; }
    void SetDirectories(const Directories& dirs) { m_dirs = dirs; }
    const std::string& CurrentPath() const { return m_currentPath; }
    bool FormLoading() const { return m_formLoading; }
    bool FirstActivation() const { return m_firstActivation; }
    bool QuitAtActivation() const { return m_quitAtActivation; }
    // True while pending events run in the middle of an operation: a handler that starts now
    // would interleave with it, so the window drops input until it ends.
    bool Busy() const { return m_pendingEventsDepth > 0; }

    // --- The load of the window and the exit (session_lifecycle.cpp) -----------------------
    // The load's own steps; false when the user declined to go on with too small a screen
    // (QuitAtActivation is then set).
    bool Load(int screenWidth, int screenHeight);
    // The first activation's own steps with the command line as given. keepWorkingDir tells
    // whether an ICO or CUR file was loaded, after which the working directory stays.
    CommandLineResult RunFirstActivation(const std::string& commandLine, bool* keepWorkingDir);
    // The exit question over the unsaved slots; false when the user chose to stay.
    bool QueryExit();
    // The text of the exit question, empty when no slot is unsaved.
    std::string UnsavedSlotsQuestion() const;
    // The common error box: label, line break, number, five blanks, description.
    void ReportError(const std::string& label, long number, const std::string& description);

    // --- The icon between panel and Editing Area (session_model.cpp) -----------------------
    void SetWorkSize(int sizeCode);
    void SetPanelSize(int sizeCode) { m_panel.SetPanelSize(sizeCode); }
    void ComposeIcon() { m_icon.Compose(); }
    void StoreToPanel() { m_panel.StoreToPanel(m_icon.Image(), m_icon.Mask()); }
    void ClearSlot();
    bool EnsureAlphaArray();
    bool CopyIncomingAlphaToSlot() { return m_panel.CopyIncomingAlphaToSlot(); }
    void RebuildFromPanel();
    void ShowIcon();
    void ParkIcon();
    void UnparkIcon();
    // A free slot opened: an empty 32x32 Editing Area.
    void OpenEmptySlot();
    // lblPanelIcon(k) white, the others light gray.
    void MarkCurrentLabel(int k);
    // Every edit of the icon ends here: the edit runs on the planes, then the icon is
    // composed, marked changed, shown, and recorded as one undo step.
    void ApplyToIcon(const std::function<void(Surface& image, Surface& mask)>& edit);

    // --- Panel, frames and the commands that replace the current icon (session_panel.cpp) --
    void ShowFrame(Frame frame);
    bool AskSaveCurrent();
    bool GuardReplaceCurrent();
    void ClickPanel(int k);
    void DoubleClickPanel(int k);
    void FileNew(int entry);
    void FileOpen(int entry);
    void CancelFrame();

    // --- Editing Area (session_display.cpp) ------------------------------------------------
    void MagnifyIcon();
    void BuildGrid();
    void ClickGridline(int item);
    void ClickDisplayMask() { m_form.DisplayMaskChecked = !m_form.DisplayMaskChecked; }
    // The pointer moved over picDisp at (x, y) in its pixels.
    void PointerOverDisp(int x, int y);

    // --- Toolbox and the pointer on the Editing Area (session_tools.cpp, session_pointer.cpp)
    enum class Button { Left, Right, Middle };
    // A click on the tool's picture (SelectTool), on the Color Picker, on Clear all tools.
    void ClickTool(tools::Tool tool);
    void ClickColorPicker();
    void ClickClearAllTools();
    bool AnyToolSelected() const { return m_form.SelectedTool != tools::Tool::None; }
    void UpdatePointerShape(int x, int y);
    void PointerPressed(Button button, int x, int y);
    // modifierDown: Shift, Control or Alt is held during this move.
    void PointerMoved(int x, int y, bool modifierDown);
    void PointerReleased(int x, int y, bool shiftDown);
    // The brush number: the number in the text of cboBrushSize.
    int BrushNumber() const { return m_form.BrushSizeIndex + 1; }
    void ClearTools();
    void ResetDrawState();
    void SelectPaintTool() { ClickTool(tools::Tool::Paint); }

    // --- Colors Panel (session_colors.cpp) --------------------------------------------------
    // picColorChart(0) the 48 colors, (1) the sixteen named ones, (2) a fixed picture.
    const Surface& ColorChart(int k) const { return m_charts[static_cast<std::size_t>(k)]; }
    void SwitchTo16ColorChart();   // imgGet16ColorChart
    void SwitchTo256ColorChart();  // imgGet256ColorChart
    void ClickPaletteSub(int index);
    void SetPaletteModeForIcon();
    void RefreshPaletteMenu() { SetPaletteModeForIcon(); }
    // A pointer release on picColorChart(k) at (x, y) in its pixels.
    void ReleaseOnColorChart(int k, double x, double y);
    // The name of the 16-color entry under (x, y), empty elsewhere.
    std::string Chart16Tooltip(double x, double y) const;
    void DoubleClickColorToUse() { m_form.ColorDoubleClicked = true; }
    void ReleaseOnColorToUse();
    void PopColorChart();
    EffectFrames Frames();  // the effect frames and the Color Mixer (session_effect_frames.h)

    // --- Status bar (session_status.cpp) ----------------------------------------------------
    // A fresh icon in the Editing Area: tools cleared, progress hidden, the status panels
    // written, the grid rebuilt, the undo history begun with the icon as it stands.
    void RefreshStatusPanel();
    // The four status panels from the open slot's record, and nothing else.
    void WriteStatusPanels();
    void ClearStatusPanel();
    void SetInfoLabels(bool visible);
    void SetProgressVisible(bool visible);
    void ShowProgress(int percent, bool withNumber);
    void PointerOverForm();

    // --- Settings and the file history (session_settings.cpp) ------------------------------
    // The settings file's path, built afresh; empty when there is no settings folder.
    std::string SettingsPath() const;
    void ReadOptions();
    // Writes each option whose stored value differs.
    void WriteOptions();
    // The stored folder if it still exists, else "".
    std::string ReadLastFolder() const;
    void WriteLastFolder(const std::string& folder);
    // The stored place of the window in pixels (stored in twips); none when not stored.
    std::optional<WindowPos> ReadScreenPos() const;
    void WriteScreenPos(int left, int top);
    void RefreshFileHistory();
    void AddToFileHistory(const std::string& path);
    // A click on mnuFileHistory(k), k from 1.
    void ClickFileHistory(int k);

    // --- Icon files (session_files.cpp) -----------------------------------------------------
    // Puts an icon file into the current slot; true if the slot was filled.
    bool LoadIconFile(const std::string& path, bool askForImage);
    bool SaveIconFile(const std::string& path, bool force256);
    // The save dialog of a kind (1 Save As, 2 forced to 256 colors, 3 cursor, 4 bitmap) and
    // the save; true if saved.
    bool SaveDialogFlow(int kind);
    std::string SuggestedSaveName() const;
    // What a save of the current slot writes with: alpha and true color as the slot says.
    files::IconWriteOptions IconSaveOptions() const;

    // --- Multi-icon files, cursors, bitmaps (session_multi_icon.cpp, session_cursor_bitmap.cpp)
    // frmVexloMultiIcon chooses an image of path; openIt puts it in the Editing Area, else it
    // goes to the panel only. False when cancelled or when the choice can't be used.
    bool ChooseImageOfFile(const std::string& path, bool openIt);
    bool LoadCursorFile(const std::string& path);
    bool SaveCursorTo(const std::string& path);
    // cboCursorHotSpot(axis) set to index.
    void ChooseHotspot(int axis, int index);
    bool SaveBitmapTo(const std::string& path);

    // --- Commands (session_commands.cpp) ----------------------------------------------------
    // The facts that the enable rules of menus and toolbar read, as they stand now.
    RuleContext Rules();
    // Runs the menu item of that name as if the user had chosen it; false for a name that
    // isn't the session's to run.
    bool RunMenuItem(std::string_view name);
    // A click on cmdTB(k): runs its item.
    void ClickToolbar(int k);
    void RefreshToolbar();
    void ClickBrushSize(int i);
    // Says "No icon in Editing Area yet" and answers false when there is none.
    bool NeedsIconInArea();

    // --- Region, clipboard, flips, Shift Directions (session_region, _clipboard, _transform) --
    void ClickEditSub(int i);        // mnuEditSub(0..9)
    void ClickRotateSubmenu(int i);  // mnuRotateSubmenu(0..3)
    void LiftRegion(bool seeThrough);
    void RedrawFloatingRegion();
    // The top left w x h of picture as a floating Region at cell (x, y), the Region tool on.
    void PlaceFloatingPicture(const Surface& picture, int w, int h, bool seeThrough, int x, int y);
    void NudgeRegion(int dx, int dy);      // an arrow key on a floating Region: one cell
    void ReleaseOnShiftPad(int x, int y);  // a release on picShiftDir
    // --- Animated cursor session (session_ani*.cpp); a disabled cmdANI(k) does nothing -----
    void mnuANIFileCreateOrEdit();
    void ClickAniButton(int k);
    void ChooseAniBox(int k, int value);  // cboANI(k): read only at Set, New and Save
    void ClickAniSingly(bool checked);    // ckbJIFSinglely
    // x, y in picFilm's pixels, or in picFraContainer's for the container.
    void AniPointerEvent(AniPointer what, int x, int y);
    void ScrollAniSeries(int value);  // VsrANISeries
    // Timer1's tick (also while pending events run); true when picANITest changed.
    bool AniTimerTick();
    void SetAniTimer(AniTimer* timer) { m_ani.Test().SetTimer(timer); }
    // The question of the commands that end a visible session; true if it may end (and has).
    bool AskTerminateAniSession(bool only32);
    void EndAniSessionAtExit();  // the test stopped, frames and temporary frame files gone

    // --- Print (session_print.cpp) ---------------------------------------------------------
    const PrintPanel& PrintFrame() const { return m_print; }
    void ClickPrintControl(PrintControl control, int index);  // fraPrint's options and lists
    void PrintProceed();                                       // cmdPrintProceed
    // The Icons List and its sources, and the list's state (session_icons_list.h).
    IconsListFlows Extraction();
    class SearchExeFlows SearchExe();  // fraSearchExeInFolder (session_search_exe.h)

    // --- Undo and redo (session_undo.cpp) ---------------------------------------------------
    int UndoCount() const { return static_cast<int>(m_icon.UndoCount()); }
    int RedoCount() const { return static_cast<int>(m_icon.RedoCount()); }
    void TakeUndoSnapshot();
    void ClearUndoHistory() { m_icon.ClearHistory(); }
    // An empty history, then the icon as it stands as its first entry.
    void BeginUndoHistory();
    void UndoStep();
    void UndoAll();
    void RedoStep();

private:
    // The menu's file commands.
    void OpenIconFile();
    void OpenCursorFile();
    void OpenBitmapFile();  // BmpToIcon
    void mnuFileSaveICO();
    void mnuFileSaveAsICO();
    void mnuFileSaveAsICOForce256();
    void mnuFileSaveMultiIconReplace();
    void mnuFileSaveMultiIconAddTo();
    void mnuFileSaveAsCursor();
    void mnuFileSaveAsBitmap();
    // Print, the desktop capture, Enquiry and Help (session_print, _capture, _enquiry, _help).
    void mnuFilePrint();
    void mnuExtractCapture();
    void ClickEnquiry(int item);  // mnuEnquiryCurrent(item)
    void mnuHelpHTMLHelp();
    // View/Edit/Create Alpha Channel and what the editor's answer does (session_alpha.cpp).
    void AlphaViewEditCreate();
    void FlattenAlpha(const host::AlphaEditorAnswer& answer);
    bool KeepEditedAlpha(const host::AlphaEditorAnswer& answer);
    bool AskYesNo(const std::string& text);
    // The Add face of frmVexloMultiIcon and the append; the file added to, or empty.
    std::string AddToFileDialog(const std::string& path, int c, int bits);
    void ShowSetMessage(const std::string& text, MsgIcon icon);
    // After a load that failed past ClearSlot: status bar, undo history and toolbar as for an
    // empty Editing Area.
    void ShowEmptyAfterFailedLoad();
    // The open dialog with a filter and default extension; the path chosen, or empty.
    std::string AskOpen(const char* filter, const char* defaultExt);
    // The pointer's event for the tools, in picDisp pixels and cells.
    tools::ToolEvent ToolEventAt(int x, int y, bool modifier) const;
    friend class SessionToolView;  // what the tools see of the session (session_pointer.cpp)
    friend class EffectFrames;
    void ShowRegionMeasure();
    void ResetRegionState();
    // The Region, the clipboard and the transforms; RegionToolView is what the Region tool sees.
    friend class RegionToolView;
    friend class IconsListFlows;
    friend class SearchExeFlows;
    void CutRegion(bool copyFirst);
    void CopyToClipboard();
    void PasteClipboard(bool seeThrough);
    void PutNewIcon(int sizeCode);  // File New's empty icon of the size, shown
    void TransformIcon(Surface (*transform)(const Surface&), bool quarterTurn);
    void CreateColorCharts();
    // The placed text handed over as a see-through floating Region at the icon's top left,
    // with the Region tool selected and the Text frame left up (session_region.cpp).
    void HandOverTextRegion(const Surface& picture);
    // The picture floating at cell (x, y) over the planes as they stand.
    void FloatPictureAt(const Surface& picture, int w, int h, bool seeThrough, int x, int y);
    // Undo, Undo All and Redo: with at least `needed` entries, the history moves and the
    // entry now last is shown.
    void StepHistory(bool (EditedIcon::*move)(), std::size_t have, std::size_t needed);
    // The animated cursor session's steps (session_ani*.cpp, session_ani_steps.h).
    friend struct AniSteps;
    void TerminateAniSession();  // its temporary files deleted, reset, container hidden
    bool AskAniDiscard();        // true unless frames are unsaved and the user keeps them
    bool OpenAniFromCommandLine(const std::string& path);
    // Lets the platform run pending events (DoEvents), with Busy() true meanwhile.
    void LetPendingEventsRun();
    // Every entry from the window starts here: none may start while pending events run in
    // the middle of another (checked in debug builds; the window drops such input).
    void Enter() const;

    Host& m_host;
    EditedIcon m_icon;
    IconsPanel m_panel;
    EditingView m_view;
    EffectsPanels m_effects;
    FloatingRegion m_floating;
    RegionToolView m_regionTool{*this};
    SessionToolView m_toolView{*this};
    ShiftPad m_shift;
    AniSession m_ani;
    ColorMixer m_mixer;
    IconsListSession m_list;
    SearchExePanel m_search;
    FormState m_form;
    FileHistoryMenu m_fileHistory;
    PrintPanel m_print;
    tools::DrawState m_draw;
    std::array<Surface, 3> m_charts;
    Color m_selectedColor = kWhite;
    Directories m_dirs;
    std::string m_currentPath;
    bool m_formLoading = false;
    bool m_firstActivation = true;
    bool m_quitAtActivation = false;
    int m_pendingEventsDepth = 0;
};

}  // namespace vexlo::session
