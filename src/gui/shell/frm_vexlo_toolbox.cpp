// The Toolbox under the Editing Area, and the pointer events of picDisp.
#include <QHBoxLayout>
#include <QToolButton>

#include "gui/shell/frm_vexlo.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/pictures.h"

namespace vexlo::gui {

namespace {

using tools::Tool;

bool ModifierDown(Qt::KeyboardModifiers m) {
    return m & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
}

session::Session::Button ButtonOf(Qt::MouseButton b) {
    if (b == Qt::LeftButton) return session::Session::Button::Left;
    if (b == Qt::RightButton) return session::Session::Button::Right;
    return session::Session::Button::Middle;
}

}  // namespace

void FrmVexlo::BuildToolbox(QWidget* row) {
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    auto addButton = [&](const QString& name, const QString& picture, const char* tooltip,
                         auto onClick) {
        auto* b = new QToolButton(row);
        b->setObjectName(name);
        b->setIcon(QIcon(picture));
        b->setIconSize(QSize(16, 16));
        b->setFixedSize(24, 24);
        b->setCheckable(true);
        b->setAutoRaise(true);
        b->setToolTip(tooltip);
        b->setFocusPolicy(Qt::NoFocus);
        connect(b, &QToolButton::clicked, this, [this, onClick] { Run(onClick); });
        layout->addWidget(b);
        return b;
    };
    for (int i = 0; i < tools::kToolCount; ++i) {
        const auto tool = static_cast<Tool>(i);
        ToolButtons[static_cast<std::size_t>(i)] =
            addButton(QString("tool_%1").arg(i, 2, 10, QChar('0')), ToolPicturePath(tool),
                      tools::ToolTooltip(tool), [tool](session::Session& s) { s.ClickTool(tool); });
    }
    imgColorPicker =
        addButton("tool_picker", kColorPickerPicturePath, tools::kColorPickerTooltip,
                  [](session::Session& s) { s.ClickColorPicker(); });
    imgClearAllTools =
        addButton("tool_clear", kClearAllToolsPicturePath, tools::kClearAllToolsTooltip,
                  [](session::Session& s) { s.ClickClearAllTools(); });
    imgClearAllTools->setCheckable(false);
    layout->addStretch();

    connect(picDisp, &SurfaceView::Pressed, this,
            [this](Qt::MouseButton b, Qt::KeyboardModifiers, int x, int y) {
                Run([&](session::Session& s) { s.PointerPressed(ButtonOf(b), x, y); });
            });
    connect(picDisp, &SurfaceView::Moved, this,
            [this](Qt::MouseButtons, Qt::KeyboardModifiers m, int x, int y) {
                m_session.PointerMoved(x, y, ModifierDown(m));
                // A drag may have changed the planes (Paint, Erase, a floating Region).
                picIcon->update();
                picMask->update();
                SyncStatus();
                SyncPointer();
            });
    connect(picDisp, &SurfaceView::Released, this,
            [this](Qt::MouseButton, Qt::KeyboardModifiers m, int x, int y) {
                Run([&](session::Session& s) { s.PointerReleased(x, y, m & Qt::ShiftModifier); });
            });
}

void FrmVexlo::SyncPointer() {
    const tools::Pointer p = m_session.Form().PointerOfDisp;
    if (p == m_shownPointer) return;
    m_shownPointer = p;
    switch (p.Shape) {
        case tools::PointerShape::Default: picDisp->unsetCursor(); break;
        case tools::PointerShape::Cross: picDisp->setCursor(Qt::CrossCursor); break;
        case tools::PointerShape::SizeNS: picDisp->setCursor(Qt::SizeVerCursor); break;
        case tools::PointerShape::SizeWE: picDisp->setCursor(Qt::SizeHorCursor); break;
        case tools::PointerShape::SizeAll: picDisp->setCursor(Qt::SizeAllCursor); break;
        case tools::PointerShape::Custom: picDisp->setCursor(CustomPointer(p)); break;
    }
}

void FrmVexlo::SyncToolbox() {
    const session::FormState& form = m_session.Form();
    for (int i = 0; i < tools::kToolCount; ++i) {
        const bool on = static_cast<int>(form.SelectedTool) == i;
        ToolButtons[static_cast<std::size_t>(i)]->setChecked(on);
        Item("mnuTools(" + std::to_string(i) + ")")->setChecked(on);
    }
    imgColorPicker->setChecked(form.ColorPickerSelected);
    Item("mnuToolsColorPicker")->setChecked(form.ColorPickerSelected);
    SyncPointer();
}

}  // namespace vexlo::gui
