#pragma once
// frmVexlo, the main window: the Editing Area, the Icons Panel, the real-size views, the
// panel frames and the status bar. Its handlers call the session and then redraw the
// controls from the session's Surfaces and FormState.
#include <QMainWindow>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "core/session/session.h"
#include "gui/shell/window_host.h"

class QAction;
class QCheckBox;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QComboBox;
class QGroupBox;
class QLabel;
class QFrame;
class QMenu;
class QToolButton;

namespace vexlo::gui {

class AniContainerView;
class ElidedLabel;
class SurfaceView;
class ButtonizeFrame;
class AdjustColorsFrame;
class TextFrame;
class RotateAngleFrame;
class PrintFrame;
class IconsListFrame;
class SearchExeFrame;

// The window's fixed size: 11500 by 8600 twips at 15 twips a pixel. It is the size of the
// window itself; a window manager's frame comes around it.
inline constexpr int kFormWidth = 767;
inline constexpr int kFormHeight = 573;

class FrmVexlo : public QMainWindow {
    Q_OBJECT
public:
    explicit FrmVexlo(std::string commandLine, QWidget* parent = nullptr);
    ~FrmVexlo() override;

    session::Session& session() { return m_session; }

    // The load: false when the user declined to go on with too small a screen; the first
    // activation then closes the window.
    bool LoadForm();
    // The first activation, run once when the window is first shown.
    void FirstActivate();
    bool FirstActivationDone() const { return !m_session.FirstActivation(); }
    // Writes every control from the session's state.
    void SyncFromModel();
    // Writes the status bar and the info labels only (pointer moves).
    void SyncStatus();
    // Runs a session operation and redraws the controls afterwards.
    // Input that arrives while the session lets pending events run in the middle of an
    // operation is dropped, so that no handler interleaves with another.
    template <typename F>
    void Run(F op) {
        if (m_session.Busy()) return;
        op(m_session);
        SyncFromModel();
    }

    // Controls, by their names.
    SurfaceView* picDisp = nullptr;
    SurfaceView* picIcon = nullptr;  // PicIcon's real-size view
    SurfaceView* picMask = nullptr;  // the mask plane's real-size view
    QLabel* lblIcon = nullptr;
    QLabel* lblMask = nullptr;
    std::array<SurfaceView*, session::kSlotCount> picPanelIcon{};
    std::array<QLabel*, session::kSlotCount> lblPanelIcon{};
    std::array<ElidedLabel*, 4> lblStatusPanel{};  // a long path shows shortened, whole in its tooltip
    QLabel* imgAlphaOnStatusPanel = nullptr;
    QFrame* picProgressContainer = nullptr;
    QFrame* picProgress = nullptr;
    QLabel* lblProgressText = nullptr;
    QLabel* lblDispXY = nullptr;
    QLabel* lblMix = nullptr;
    QLabel* lblRegionMeasure = nullptr;
    QLabel* lblForExtendedFrame = nullptr;
    std::map<session::Frame, QFrame*> Frames;

    // Every menu item by its name ("mnuFileNew(2)", "mnuFileExit", ...).
    std::map<std::string, QAction*, std::less<>> MenuItems;
    QAction* Item(std::string_view name) const;
    // cmdTB(0..25); elements 26 to 30 are the separators between them.
    std::array<QToolButton*, session::kToolbarCommands> cmdTB{};
    // The Toolbox: imgPaint .. imgShift in the order of mnuTools, then the Color Picker and
    // Clear all tools.
    std::array<QToolButton*, tools::kToolCount> ToolButtons{};
    QToolButton* imgColorPicker = nullptr;
    QToolButton* imgClearAllTools = nullptr;
    // Inside fraColorsPanel.
    std::array<QGroupBox*, 4> fraofColorPanel{};
    QComboBox* cboBrushSize = nullptr;
    SurfaceView* picColorToUse = nullptr;
    QGroupBox* fraColorMixer = nullptr;
    // Inside fraEffectsShades.
    QLabel* lblShadesCaption = nullptr;
    QLabel* lblEffectsSample = nullptr;
    std::array<SurfaceView*, 2> picEffectsSample{};
    QCheckBox* ckbUseSelectedColor = nullptr;
    std::array<QComboBox*, 3> cboCast{};
    QScrollBar* hsrCast = nullptr;
    std::array<QLabel*, 2> lblCast{};
    std::array<QPushButton*, 2> cmdShadesProceed{};
    // Inside fraSaveAsCursor.
    std::array<QComboBox*, 2> cboCursorHotSpot{};
    // The Shift Directions pad.
    SurfaceView* picShiftDir = nullptr;
    // fraButtonize, fraAdjustPaintedColors, fraText, fraRotateSelectAngle and their controls.
    ButtonizeFrame* fraButtonize = nullptr;
    AdjustColorsFrame* fraAdjustPaintedColors = nullptr;
    TextFrame* fraText = nullptr;
    RotateAngleFrame* fraRotateSelectAngle = nullptr;
    // Inside fraGradient.
    std::array<QRadioButton*, 3> OptGradType{};
    std::array<SurfaceView*, 3> PicGradient{};
    QComboBox* cboGradientAngle = nullptr;
    std::array<QToolButton*, 2> cmdGradientColor{};
    QLabel* lblNoUnpaintedArea = nullptr;
    QPushButton* cmdGradientProceed = nullptr;
    // Inside fraConfineToMono.
    QComboBox* cboConfineToMonoThreshold = nullptr;
    // Inside fraColorMixer.
    std::array<QScrollBar*, 3> HsrRGB{};
    std::array<QLabel*, 3> lblRGB{};
    std::array<SurfaceView*, 3> PicRGB{};
    SurfaceView* PicRGBMix = nullptr;
    SurfaceView* picMixGradient = nullptr;
    QFrame* ShapeMix = nullptr;
    std::array<QToolButton*, 3> cmdAdjMix{};
    // The animated cursor session's container over the panel frames (gui/ani).
    AniContainerView* picANIContainer = nullptr;
    PrintFrame* fraPrint = nullptr;
    IconsListFrame* fraIconsList = nullptr;
    SearchExeFrame* fraSearchExeInFolder = nullptr;

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    // The window keeps its fixed size: a maximised or full-screen state is undone, and a size
    // that the window system sets otherwise is asked back once.
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    // A file dropped on the window opens as its File Open item would (frm_vexlo_drop.cpp).
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void BuildLayout();
    void BuildPanel(QWidget* parent);
    void BuildStatusBar();
    void BuildMenus();
    void BuildToolbar(QWidget* row);
    void BuildToolbox(QWidget* row);
    void SyncToolbox();
    void BuildColorsPanel(QFrame* panel);
    void SyncColorsPanel();
    void BuildShadesFrame(QFrame* frame);
    void SyncShades();
    void BuildSaveAsCursorFrame(QFrame* frame);
    void SyncSaveAsCursor();
    void BuildGradientFrame(QFrame* frame);  // gui/effects/frm_vexlo_gradient.cpp
    void SyncGradient();
    void BuildConfineToMonoFrame(QFrame* frame);  // gui/effects/frm_vexlo_confine_mono.cpp
    void SyncConfineToMono();
    void BuildColorMixer(QGroupBox* group);  // gui/color/frm_vexlo_mixer.cpp
    void SyncColorMixer();
    void SyncPointer();
    // The Shift Directions pad with its caption at padAt, the keys of picDisp that move and
    // erase a floating Region, and the toolbar following the clipboard (frm_vexlo_region.cpp).
    void BuildRegionControls(QWidget* parent, QPoint padAt);
    // Runs an item chosen from the menu, from its shortcut or from the toolbar.
    void RunItem(std::string_view name);
    // The enable rules of one top menu, run as it drops down.
    void ApplyMenuRules(const session::TopMenu& menu);
    void LayOutIconAndMask();

    WindowHost m_host;
    session::Session m_session;
    std::string m_commandLine;
    bool m_activationScheduled = false;
    bool m_activating = false;
    QSize m_foreignSize;  // the last size given by the window system and asked back
    QWidget* m_form = nullptr;
    tools::Pointer m_shownPointer;
    std::vector<QWidget*> castWidgets;  // shown only for Cast
    bool m_syncing = false;             // controls are being written from the session
};

}  // namespace vexlo::gui
