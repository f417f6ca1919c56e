// The menu bar, built from the session's menu table, and what each item runs.
#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "core/session/menu_tree.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

QAction* FrmVexlo::Item(std::string_view name) const {
    const auto it = MenuItems.find(name);
    return it == MenuItems.end() ? nullptr : it->second;
}

void FrmVexlo::BuildMenus() {
    for (const session::TopMenu& top : session::MenuTree()) {
        QMenu* menu = menuBar()->addMenu(QString::fromUtf8(top.Caption.data(), static_cast<int>(top.Caption.size())));
        menu->setObjectName(QString::fromUtf8(top.Name.data(), static_cast<int>(top.Name.size())));
        for (const session::MenuItem& item : top.Items) {
            QAction* action = nullptr;
            if (item.Caption == "-") {
                action = menu->addSeparator();
            } else {
                action = menu->addAction(QString::fromUtf8(item.Caption.data(), static_cast<int>(item.Caption.size())));
                action->setShortcut(QKeySequence(QString::fromUtf8(item.Shortcut.data(), static_cast<int>(item.Shortcut.size()))));
                action->setCheckable(item.Checkable);
            }
            if (item.Name.empty()) continue;
            const std::string name(item.Name);
            action->setObjectName(QString::fromStdString(name));
            MenuItems[name] = action;
            if (!action->isSeparator())
                connect(action, &QAction::triggered, this, [this, name] { RunItem(name); });
        }
        if (top.HasRule)
            connect(menu, &QMenu::aboutToShow, this, [this, &top] { ApplyMenuRules(top); });
    }
    // The file history stays hidden until entries are stored.
    for (int i = 0; i <= 6; ++i) {
        QAction* entry = Item("mnuFileHistory(" + std::to_string(i) + ")");
        entry->setEnabled(false);
        entry->setVisible(false);
    }
}

void FrmVexlo::ApplyMenuRules(const session::TopMenu& menu) {
    const session::RuleContext context = m_session.Rules();
    for (const session::MenuItem& item : menu.Items) {
        if (item.Name.empty() || item.Rule == session::EnableRule::Always ||
            item.Rule == session::EnableRule::FileHistory)
            continue;
        if (QAction* action = Item(item.Name)) action->setEnabled(session::RuleHolds(item.Rule, context));
    }
}

void FrmVexlo::RunItem(std::string_view name) {
    if (name == "mnuFileExit") {
        close();
        return;
    }
    Run([name](session::Session& s) { s.RunMenuItem(name); });
    if (name == "mnuOptionsDisplayMask") LayOutIconAndMask();
}

}  // namespace vexlo::gui
