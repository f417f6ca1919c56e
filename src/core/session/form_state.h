#pragma once
// What the main window shows beyond its pictures: which panel frame is up, the status bar's
// texts, the panel labels' colors and the ticks of the option menus. The session writes it;
// the window draws its controls from it and keeps no copy of its own.
#include <array>
#include <string>

#include "core/surface/surface.h"
#include "core/tools/tool_state.h"

namespace vexlo::session {

// The frames that share the space right of the Editing Area; one is up at a time.
enum class Frame {
    None,
    ColorsPanel,
    Gradient,
    Print,
    SaveAsCursor,
    SearchExeInFolder,
    Text,
    IconsList,
    AdjustPaintedColors,
    Buttonize,
    RotateSelectAngle,
    EffectsShades,
    ConfineToMono,
};

inline constexpr surface::Color kPanelLabelCurrent = 0xFFFFFF;
inline constexpr surface::Color kPanelLabelOther = 0xE0E0E0;

struct StatusBar {
    std::array<std::string, 4> Panel;  // lblStatusPanel(0..3)
    bool AlphaImageVisible = false;    // imgAlphaOnStatusPanel
    bool ProgressVisible = false;      // picProgressContainer
    int ProgressPercent = 100;         // width of picProgress in percent of its container
    bool ProgressShowsNumber = false;
    std::string DispXY;                // lblDispXY
    std::string Mix;                   // lblMix
    std::string RegionMeasure;         // lblRegionMeasure
    std::string ForExtendedFrame;      // lblForExtendedFrame
    bool InfoLabelsVisible = true;     // the four labels above are shown or hidden together
};

struct FormState {
    Frame VisibleFrame = Frame::None;
    bool AniContainerVisible = false;  // picANIContainer
    std::array<surface::Color, 6> PanelLabelBack{kPanelLabelOther, kPanelLabelOther,
                                                 kPanelLabelOther, kPanelLabelOther,
                                                 kPanelLabelOther, kPanelLabelOther};
    std::array<bool, 3> GridlineChecked{false, false, false};  // mnuOptionsGridline
    bool DisplayMaskChecked = true;                            // mnuOptionsDisplayMask
    bool PromptToSaveChecked = false;                          // mnuOptionsPromptToSave
    bool RemindIfBmpChecked = true;                            // mnuOptionsRemindIfBMP
    int PaletteMode = 0;     // the ticked item of mnuPaletteSub: 0 16 colors, 1 256 colors
    int BrushSizeIndex = 0;  // cboBrushSize's index; mnuBrushSize(i) is ticked for i
    // fraofColorPanel(2), the 256-Color Palette with picColorChart(0), is shown; otherwise
    // fraofColorPanel(3), the 16-Color Palette with picColorChart(1).
    bool ColorChart0Visible = true;
    bool ColorMixerVisible = false;   // fraColorMixer
    bool ColorPickerEnabled = true;   // imgColorPicker.Enabled
    bool ColorDoubleClicked = false;  // a double click on picColorToUse awaits its release
    tools::Tool SelectedTool = tools::Tool::None;  // the tool whose picture is framed
    bool ColorPickerSelected = false;              // imgColorPicker
    tools::Pointer PointerOfDisp;                  // picDisp's pointer shape
    std::array<int, 2> CursorHotSpot{0, 0};        // cboCursorHotSpot(0..1) list indexes
    // cmdTB(0..25).Enabled as RefreshToolbar last wrote it.
    std::array<bool, 26> ToolbarEnabled{true, true, true, true, true, true, true, true, true,
                                        true, true, true, true, true, true, true, true, true,
                                        true, true, true, true, true, true, true, true};
    StatusBar Status;
};

}  // namespace vexlo::session
