// The controls of the Region and of Shift Directions: the pad picShiftDir, the arrow and
// Delete keys on picDisp for a floating Region, and the paste buttons that follow what other
// programs put on the clipboard.
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>

#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

namespace {

// Arrow keys move a floating Region by one cell; Delete erases it (Cut/Erase Region).
class DispKeys final : public QObject {
public:
    DispKeys(FrmVexlo& window, QObject* parent) : QObject(parent), m_window(window) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
        const session::Session& s = m_window.session();
        if (!s.View().Region().Exists || s.Form().SelectedTool != tools::Tool::Region) return false;
        int dx = 0, dy = 0;
        switch (static_cast<QKeyEvent*>(event)->key()) {
            case Qt::Key_Left: dx = -1; break;
            case Qt::Key_Right: dx = 1; break;
            case Qt::Key_Up: dy = -1; break;
            case Qt::Key_Down: dy = 1; break;
            case Qt::Key_Delete:
                m_window.Run([](session::Session& session) { session.RunMenuItem("mnuEditSub(5)"); });
                return true;
            default: return false;
        }
        m_window.Run([dx, dy](session::Session& session) { session.NudgeRegion(dx, dy); });
        return true;
    }

private:
    FrmVexlo& m_window;
};

}  // namespace

void FrmVexlo::BuildRegionControls(QWidget* parent, QPoint padAt) {
    auto* caption = new QLabel("Shift", parent);
    caption->setGeometry(padAt.x(), padAt.y(), 56, 14);
    picShiftDir = new SurfaceView(&m_session.Shift().Picture(), parent);
    picShiftDir->setObjectName("picShiftDir");
    picShiftDir->setGeometry(padAt.x(), padAt.y() + 16, session::kShiftPadSide, session::kShiftPadSide);
    picShiftDir->setToolTip(tools::ToolTooltip(tools::Tool::Shift));
    connect(picShiftDir, &SurfaceView::Released, this,
            [this](Qt::MouseButton, Qt::KeyboardModifiers, int x, int y) {
                Run([x, y](session::Session& s) { s.ReleaseOnShiftPad(x, y); });
            });

    picDisp->installEventFilter(new DispKeys(*this, picDisp));

    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        if (m_session.Busy()) return;
        m_session.RefreshToolbar();
        SyncFromModel();
    });
}

}  // namespace vexlo::gui
