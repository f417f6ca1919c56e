// Files dropped on the main window. One local file that Vexlo opens is taken as the answer of
// the open dialog of its File Open item, which then runs with every question and message of
// its own: ICO files as icons, CUR files as cursors, any picture the platform reads as a
// bitmap. An ANI file opens the animated cursor session (or brings it back) and answers the
// open dialog of its Open button. A folder is taken as the answer of the folder dialog of "Display All Icons In
// Folder", and shows the Icons List of its ICO files. Everything else is refused while it is
// dragged, so the pointer shows the no-drop sign.
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeData>

#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

namespace {

struct DropTarget {
    std::string Item;  // the File Open item the drop stands in for; empty: refused
    std::string Path;
    bool Folder = false;  // the path answers the folder dialog, not the open dialog
};

// The animated cursor session's item; its Open button follows (cmdANI(4)).
constexpr const char* kAniItem = "mnuANIFileCreateOrEdit";
constexpr int kAniOpenButton = 4;

DropTarget TargetOf(const QMimeData* data) {
    if (data == nullptr || !data->hasUrls() || data->urls().size() != 1) return {};
    const QUrl url = data->urls().front();
    if (!url.isLocalFile()) return {};
    const QFileInfo file(url.toLocalFile());
    if (file.isDir()) return {"mnuFileOpen(1)", file.absoluteFilePath().toStdString(), true};
    if (!file.isFile()) return {};
    const QString ext = file.suffix().toUpper();
    std::string item;
    if (ext == "ICO")
        item = "mnuFileOpen(0)";
    else if (ext == "CUR")
        item = "mnuFileOpen(2)";
    else if (ext == "ANI")
        item = kAniItem;
    else if (QImageReader(file.filePath()).canRead())
        item = "mnuFileOpen(3)";
    if (item.empty()) return {};
    return {item, file.absoluteFilePath().toStdString()};
}

}  // namespace

void FrmVexlo::dragEnterEvent(QDragEnterEvent* event) {
    if (!m_session.Busy() && !TargetOf(event->mimeData()).Item.empty()) event->acceptProposedAction();
}

void FrmVexlo::dragMoveEvent(QDragMoveEvent* event) {
    if (!m_session.Busy() && !TargetOf(event->mimeData()).Item.empty()) event->acceptProposedAction();
}

void FrmVexlo::dropEvent(QDropEvent* event) {
    const DropTarget target = TargetOf(event->mimeData());
    if (target.Item.empty() || m_session.Busy()) return;
    event->acceptProposedAction();
    if (target.Folder)
        m_host.AnswerNextFolder(target.Path);
    else
        m_host.AnswerNextOpen(target.Path);  // for the ANI session, its Open button's dialog
    RunItem(target.Item);
    // The session's own questions may have kept it from coming up.
    if (target.Item == kAniItem && m_session.Ani().ContainerVisible())
        Run([](session::Session& s) { s.ClickAniButton(kAniOpenButton); });
    // A guard that stopped the item before its dialog leaves the answer unused.
    m_host.ClearNextOpen();
    m_host.ClearNextFolder();
}

}  // namespace vexlo::gui
