// cmdTB: the toolbar's buttons in the row above the Editing Area.
#include <QFrame>
#include <QHBoxLayout>
#include <QToolButton>

#include "core/session/menu_tree.h"
#include "gui/shell/frm_vexlo.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/pictures.h"

namespace vexlo::gui {

namespace {

// Separators (elements 26 to 30) stand after these buttons.
bool SeparatorAfter(int k) { return k == 3 || k == 5 || k == 7 || k == 12 || k == 16; }

}  // namespace

void FrmVexlo::BuildToolbar(QWidget* row) {
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(1);
    const auto& buttons = session::ToolbarButtons();
    for (int k = 0; k < session::kToolbarCommands; ++k) {
        const session::ToolbarButton& b = buttons[static_cast<std::size_t>(k)];
        auto* button = new QToolButton(row);
        button->setObjectName(QString("cmdTB%1").arg(k));
        button->setIcon(QIcon(ToolbarPicturePath(k)));
        button->setIconSize(QSize(16, 16));
        button->setFixedSize(24, 24);
        button->setAutoRaise(true);
        button->setToolTip(QString::fromUtf8(b.Tooltip.data(), static_cast<int>(b.Tooltip.size())));
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, this, [this, k] {
            picDisp->setFocus();
            RunItem(session::ToolbarButtons()[static_cast<std::size_t>(k)].Runs);
        });
        layout->addWidget(button);
        cmdTB[static_cast<std::size_t>(k)] = button;
        if (SeparatorAfter(k)) {
            auto* separator = new QFrame(row);
            separator->setFrameShape(QFrame::VLine);
            separator->setFrameShadow(QFrame::Sunken);
            separator->setFixedSize(6, 22);
            layout->addWidget(separator);
        }
    }
    layout->addStretch();
}

}  // namespace vexlo::gui
