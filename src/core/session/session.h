#pragma once
// The editing session of the main window: every working Surface, the six IconSlot records
// with their alpha arrays, and the operations that move pictures between the panel and the
// working planes. The window calls these from its handlers and redraws itself from the
// Surfaces and the FormState; nothing here knows about widgets.
#include <array>
#include <string>

#include <optional>

#include "core/effects/shades.h"
#include "core/files/ico_write.h"
#include "core/session/form_state.h"
#include "core/host/host.h"
#include "core/session/icon_slot.h"
#include "core/session/menu_tree.h"
#include "core/surface/surface.h"
#include "core/tools/editing_area.h"
#include "core/tools/tool_state.h"
#include "core/tools/undo_history.h"

namespace vexlo::session {

using surface::Color;
using surface::Surface;
using host::Host;
using host::kCrLf;
using host::kTitle;
using host::MsgAnswer;
using host::MsgButtons;
using host::MsgIcon;
using host::MultiIconAnswer;
using host::NullHost;

inline constexpr Color kTransparentGray = 0xC0C0C0;  // the session's transparent color on screen
inline constexpr Color kWindowColor = 0xFFFFFF;      // the system window color
inline constexpr Color kWhite = 0xFFFFFF;
inline constexpr Color kBlack = 0x000000;

inline constexpr const char* kNoIconYet = "No icon in Editing Area yet";

// Directories that the entry point finds; TempDir ends with its separator.
struct Directories {
    std::string WindowsDir;
    std::string SystemDir;
    std::string TempDir;
    std::string ProgramDir;
    std::string DesktopFolder;
    std::string SystemFolder;
    std::string LastFolder;
};

// What the first activation did with the command line.
enum class CommandLineResult { Empty, NotFound, Ignored, Loaded, LoadFailed };

class Session {
public:
    explicit Session(Host& host);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Host& host() { return m_host; }

    // --- Surfaces -----------------------------------------------------------------------
    Surface picImage, picMask, PicIcon, picDisp, PicGrid, picUndo;
    Surface picImageRegion, picMaskRegion, picImageSnap, picMaskSnap;
    Surface picImageTemp, picMaskTemp, picTemp, picAuto;
    std::array<Surface, kSlotCount> picPanelIcon, picPanelMask;

    // --- Records and session variables --------------------------------------------------
    std::array<IconSlot, kSlotCount> Slots;
    std::array<AlphaArray, kSlotCount> SlotAlpha;
    AlphaArray IncomingAlpha;
    int CurrentSlot = 0;
    int MagnifyStep = 12;
    Color GridColor = tools::kGridLight;
    std::string CurrentPath;
    Directories Dirs;

    bool FormLoading = false;
    bool FirstActivation = true;
    bool QuitAtActivation = false;

    // Region and band rectangles that the Editing Area outlines.
    bool RegionExists = false;
    bool RegionEdgeDragged = false;
    tools::DispRect RegionRect;
    tools::CellRect RegionCells;
    tools::DispRect Band;

    FormState Form;
    Color SelectedColor = kWhite;  // the Current Selected Color
    tools::DrawState Draw;

    IconSlot& Current() { return Slots[static_cast<std::size_t>(CurrentSlot)]; }
    const IconSlot& Current() const { return Slots[static_cast<std::size_t>(CurrentSlot)]; }
    bool InArea() const { return Current().InEditingArea; }

    // --- The load of the window and the exit ---------------------------------------------
    // The load's own steps; false when the user declined to go on with too small a screen
    // (QuitAtActivation is then set).
    bool Load(int screenWidth, int screenHeight);
    // The first activation's own steps with the command line as given. fileLoaded reports
    // whether an ICO or CUR file was loaded, after which the working directory stays.
    CommandLineResult RunFirstActivation(const std::string& commandLine, bool* keepWorkingDir);
    // The exit question over the unsaved slots; false when the user chose to stay.
    bool QueryExit();
    // The text of the exit question, empty when no slot is unsaved.
    std::string UnsavedSlotsQuestion() const;
    // The common error box: label, line break, number, five blanks, description.
    void ReportError(const std::string& label, long number, const std::string& description);

    // --- The model's operations ----------------------------------------------------------
    void SetWorkSize(int sizeCode);
    void SetPanelSize(int sizeCode);
    void ComposeIcon();
    void StoreToPanel();
    void ClearSlot();
    bool EnsureAlphaArray();
    void RebuildFromPanel();
    void ShowIcon();
    void ParkIcon();
    void UnparkIcon();
    // A free slot opened: an empty 32x32 Editing Area.
    void OpenEmptySlot();
    // lblPanelIcon(k) white, the others light gray.
    void MarkCurrentLabel(int k);

    // --- Panel, frames and the commands that replace the current icon ----------------------
    void ShowFrame(Frame frame);
    bool AskSaveCurrent();
    bool GuardReplaceCurrent();
    void ClickPanel(int k);
    void DoubleClickPanel(int k);
    void FileNew(int entry);
    void FileOpen(int entry);
    void CancelFrame();

    // --- Editing Area ---------------------------------------------------------------------
    void MagnifyIcon();
    void BuildGrid();
    void OverlayGrid();
    void DrawRegionOutline();
    void DrawLineBand();
    void DrawBoxBand();
    void ShowRegionMeasure();
    void ClickGridline(int item);
    void ClickDisplayMask();
    // The pointer moved over picDisp at (x, y) in its pixels.
    void PointerOverDisp(int x, int y);

    // --- Toolbox and the pointer on the Editing Area ---------------------------------------
    enum class Button { Left, Right, Middle };
    // A click on the tool's picture (SelectTool), on the Color Picker, on Clear all tools.
    void ClickTool(tools::Tool tool);
    void ClickColorPicker();
    void ClickClearAllTools();
    bool AnyToolSelected() const { return Form.SelectedTool != tools::Tool::None; }
    // Whether (x, y) of picDisp lies in the icon's part of it.
    bool InsideIcon(int x, int y) const;
    void UpdatePointerShape(int x, int y);
    void PointerPressed(Button button, int x, int y);
    // modifierDown: Shift, Control or Alt is held during this move.
    void PointerMoved(int x, int y, bool modifierDown);
    void PointerReleased(int x, int y, bool shiftDown);
    // The brush number: the number in the text of cboBrushSize.
    int BrushNumber() const { return Form.BrushSizeIndex + 1; }

    // --- Colors Panel -----------------------------------------------------------------------
    // picColorChart(0) the 48 colors, (1) the sixteen named ones, (2) a fixed picture.
    std::array<Surface, 3> picColorChart;
    void CreateColorChart16();
    void CreateColorChart256();
    void SwitchTo16ColorChart();   // imgGet16ColorChart
    void SwitchTo256ColorChart();  // imgGet256ColorChart
    void ClickPaletteSub(int index);
    void SetPaletteModeForIcon();
    // A pointer release on picColorChart(k) at (x, y) in its pixels.
    void ReleaseOnColorChart(int k, double x, double y);
    // The name of the 16-color entry under (x, y), empty elsewhere.
    std::string Chart16Tooltip(double x, double y) const;
    void DoubleClickColorToUse() { Form.ColorDoubleClicked = true; }
    void ReleaseOnColorToUse();
    void PopColorChart();

    // --- Shades effects ---------------------------------------------------------------------
    struct ShadesState {
        std::string Caption;  // of fraEffectsShades
        int EffectCode = 0;   // ShadeEffectCode
        bool UseSelectedColorVisible = false;
        bool UseSelectedColorChecked = false;
        bool CastControlsVisible = false;
        effects::CastControls Cast;
        std::optional<effects::ShadesPreview> Preview;  // picEffectsSample(0..1)
    } Shades;
    effects::IconPlanes Planes() const;
    // mnuEffectsSub(1..7): the frame and its first preview.
    void ClickEffectsSub(int index);
    void RunShadesPreview();
    void ClickUseSelectedColor(bool checked);
    void CastSliderChanged(int value);
    void CastComboClicked(int element, int listIndex);
    void ShadesProceed();   // cmdShadesProceed(0)
    void ShadesRestore();   // cmdShadesProceed(1)

    // --- Status bar -----------------------------------------------------------------------
    void RefreshStatusPanel();
    void ClearStatusPanel();
    void SetInfoLabels(bool visible);
    void SetProgressVisible(bool visible);
    void ShowProgress(int percent, bool withNumber);
    void PointerOverForm();

    // --- Icon files -------------------------------------------------------------------------
    // Puts an icon file into the current slot; true if the slot was filled.
    bool LoadIconFile(const std::string& path, bool askForImage);
    // File Open of an icon file: the dialog, then the load.
    void OpenIconFile();
    bool SaveIconFile(const std::string& path, bool force256);
    // The save dialog of a kind (1 Save As, 2 forced to 256 colors, 3 cursor, 4 bitmap) and
    // the save; true if saved.
    bool SaveDialogFlow(int kind);
    std::string SuggestedSaveName() const;
    void mnuFileSaveICO();
    void mnuFileSaveAsICO();
    void mnuFileSaveAsICOForce256();
    bool CopyIncomingAlphaToSlot();
    // What a save of the current slot writes with: alpha and true color as the slot says.
    files::IconWriteOptions WriteOptions() const;

    // --- Multi-icon files, cursors, bitmaps -------------------------------------------------
    // frmVexloMultiIcon chooses an image of path; openIt puts it in the Editing Area, else it
    // goes to the panel only. False when cancelled or when the choice can't be used.
    bool ChooseImageOfFile(const std::string& path, bool openIt);
    void mnuFileSaveMultiIconReplace();
    void mnuFileSaveMultiIconAddTo();
    // The Add face of frmVexloMultiIcon and the append; the file added to, or empty.
    std::string AddToFileDialog(const std::string& path, int c, int bits);
    bool LoadCursorFile(const std::string& path);
    void OpenCursorFile();
    void mnuFileSaveAsCursor();
    bool SaveCursorTo(const std::string& path);
    void OpenBitmapFile();  // BmpToIcon
    void mnuFileSaveAsBitmap();
    bool SaveBitmapTo(const std::string& path);

    // --- Commands -------------------------------------------------------------------------
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

    // --- Undo and redo ----------------------------------------------------------------------
    int UndoCount() const;
    int RedoCount() const;
    void TakeUndoSnapshot();
    void ClearUndoHistory();
    void UndoStep();
    void UndoAll();
    void RedoStep();
    const tools::UndoHistory& Undo() const { return m_undo; }

    // --- Calls into the parts that later work fills in --------------------------------------
    void ClearTools();
    void ResetDrawState();
    void SelectPaintTool();
    void PlotPaintErase(bool erase);
    void PlotShape(tools::Tool tool);
    void PlotOval(bool filled);
    void DrawOvalBand();
    void RefreshPaletteMenu();
    void ResetRegionState();

private:
    void RestoreUndoEntry(const Surface& entry);
    // Undo, Undo All and Redo: with at least `needed` entries, the history moves and the
    // entry now last is shown.
    void StepHistory(bool (tools::UndoHistory::*move)(), std::size_t have, std::size_t needed);
    void ShowSetMessage(const std::string& text, MsgIcon icon);

    Host& m_host;
    tools::UndoHistory m_undo;
};

// The three lines of the refusal of a second instance.
std::string SecondInstanceText();
// The question for a screen below 800x600.
std::string SmallScreenQuestion(int width, int height);
// The command line with every double quote removed.
std::string CommandLinePath(const std::string& commandLine);
// The last three characters upper-cased: "ICO", "CUR", "ANI" or anything else.
std::string UpperExtension3(const std::string& path);

struct WindowPos {
    int Left = 0;
    int Top = 0;
};
// Where the window goes on a screen of the given size; stored is null when none was stored.
WindowPos PlaceWindow(int screenWidth, int screenHeight, int windowWidth, int windowHeight,
                      const WindowPos* stored);

}  // namespace vexlo::session
