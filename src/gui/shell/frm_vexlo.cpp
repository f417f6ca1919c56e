// The main window's life: construction, the load, the first activation and the exit.
#include "gui/shell/frm_vexlo.h"

#include <optional>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QTimer>

#include "gui/icons_list/frm_vexlo_icons_list.h"
#include "gui/platform/system_info.h"
#include "gui/platform/surface_view.h"

// Resources compiled into the static library must be registered by name before use.
static void InitResources() {
    Q_INIT_RESOURCE(toolbar);
    Q_INIT_RESOURCE(toolbox);
}

namespace vexlo::gui {

FrmVexlo::FrmVexlo(std::string commandLine, QWidget* parent)
    : QMainWindow(parent), m_session(m_host), m_commandLine(std::move(commandLine)) {
    InitResources();
    setWindowTitle("Vexlo");
    // The layout is fixed: nothing to gain from a larger window.
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    setAcceptDrops(true);
    m_host.SetRefreshDisplay([this] {
        if (picDisp) picDisp->update();
    });
    BuildMenus();
    BuildLayout();
    m_host.SetRefreshIconsList([this] { fraIconsList->RefreshDuringLot(); });
    // Sees every event of the program first, to drop input while the session is busy.
    qApp->installEventFilter(this);
    m_session.RefreshToolbar();
}

FrmVexlo::~FrmVexlo() = default;

bool FrmVexlo::LoadForm() {
    const platform::ScreenPixels screen = platform::ScreenSize();
    const bool go = m_session.Load(screen.width, screen.height);
    session::Directories dirs;
    dirs.WindowsDir = platform::WindowsDirectory();
    dirs.SystemDir = platform::SystemDirectory();
    dirs.TempDir = platform::TempDirectory();
    dirs.ProgramDir = platform::ProgramDirectory();
    dirs.ConfigDir = platform::ConfigDirectory();
    m_session.SetDirectories(dirs);
    if (!go) return false;
    const std::optional<session::WindowPos> stored = m_session.ReadScreenPos();
    const session::WindowPos pos = session::PlaceWindow(screen.width, screen.height, kFormWidth, kFormHeight,
                                                        stored ? &*stored : nullptr);
    setFixedSize(kFormWidth, kFormHeight);
    move(pos.Left, pos.Top);
    dirs.LastFolder = m_session.ReadLastFolder();
    if (dirs.LastFolder.empty()) dirs.LastFolder = dirs.ProgramDir;
    dirs.DesktopFolder = platform::DesktopDirectory();
    dirs.SystemFolder = platform::SystemDirectory();
    m_session.SetDirectories(dirs);
    SyncFromModel();
    return true;
}

void FrmVexlo::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!m_activationScheduled) {
        m_activationScheduled = true;
        QTimer::singleShot(0, this, [this] { FirstActivate(); });
    }
}

void FrmVexlo::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) return;
    static constexpr Qt::WindowStates kLarge = Qt::WindowMaximized | Qt::WindowFullScreen;
    if (windowState() & kLarge)
        QTimer::singleShot(0, this, [this] { setWindowState(windowState() & ~kLarge); });
}

void FrmVexlo::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    const QSize fixed = minimumSize();
    if (fixed != maximumSize() || isMinimized()) return;  // not placed by the load yet
    if (size() == fixed) {
        m_foreignSize = {};
        return;
    }
    // A window manager that ignores the size hints, or a maximize, gave another size. Ask for
    // the fixed one once; a window manager that insists keeps its size, without a tug of war.
    if (size() == m_foreignSize) return;
    m_foreignSize = size();
    QTimer::singleShot(0, this, [this] { resize(minimumSize()); });
}

void FrmVexlo::FirstActivate() {
    if (m_session.QuitAtActivation()) {
        close();
        return;
    }
    // The activation lets pending events run; the timer that scheduled it must not start it
    // a second time from there.
    if (!m_session.FirstActivation() || m_activating) return;
    m_activating = true;
    bool keepWorkingDir = false;
    // The options read first decide whether the mask is shown beside the icon.
    m_session.RunFirstActivation(m_commandLine, &keepWorkingDir);
    LayOutIconAndMask();
    if (!keepWorkingDir) QDir::setCurrent(QString::fromStdString(m_session.Dirs().ProgramDir));
    m_activating = false;
    SyncFromModel();
}

void FrmVexlo::closeEvent(QCloseEvent* event) {
    if (!m_session.QuitAtActivation() && !m_session.QueryExit()) {
        event->ignore();
        return;
    }
    if (!m_session.QuitAtActivation()) {
        if (!isMinimized()) m_session.WriteScreenPos(x(), y());
        m_session.WriteOptions();
        m_session.WriteLastFolder(m_session.Dirs().LastFolder);
    }
    m_session.EndAniSessionAtExit();
    event->accept();
}

}  // namespace vexlo::gui
