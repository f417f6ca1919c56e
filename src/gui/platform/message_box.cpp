#include "gui/platform/message_box.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QString>

namespace vexlo::platform {

namespace {

using host::MsgAnswer;
using host::MsgButtons;
using host::MsgIcon;

MessageBoxHandler& Handler() {
    static MessageBoxHandler handler;
    return handler;
}

QMessageBox::StandardButtons ButtonsOf(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::Ok: return QMessageBox::Ok;
        case MsgButtons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
        case MsgButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case MsgButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(MsgIcon icon) {
    switch (icon) {
        case MsgIcon::None: return QMessageBox::NoIcon;
        case MsgIcon::Critical: return QMessageBox::Critical;
        case MsgIcon::Question: return QMessageBox::Question;
        case MsgIcon::Exclamation: return QMessageBox::Warning;
        case MsgIcon::Information: return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton StandardButtonOf(MsgAnswer answer) {
    switch (answer) {
        case MsgAnswer::Ok: return QMessageBox::Ok;
        case MsgAnswer::Cancel: return QMessageBox::Cancel;
        case MsgAnswer::Yes: return QMessageBox::Yes;
        case MsgAnswer::No: return QMessageBox::No;
    }
    return QMessageBox::Ok;
}

// CR LF (and a lone CR or LF) become one line break.
QString DisplayText(const std::string& text) {
    QString s = QString::fromStdString(text);
    s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return s;
}

MsgAnswer ShowRealBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                      const std::string& title) {
    QMessageBox box(IconOf(icon), QString::fromStdString(title), DisplayText(text),
                    ButtonsOf(buttons), QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    // The first button is the default, as on Windows; Esc and the close button act as the
    // button a closed box answers.
    box.setDefaultButton(buttons == MsgButtons::Ok || buttons == MsgButtons::OkCancel
                             ? QMessageBox::Ok
                             : QMessageBox::Yes);
    const MsgAnswer closed = ClosedBoxAnswer(buttons);
    box.setEscapeButton(box.button(StandardButtonOf(closed)));
    box.exec();

    QAbstractButton* clicked = box.clickedButton();
    switch (clicked != nullptr ? box.standardButton(clicked) : QMessageBox::NoButton) {
        case QMessageBox::Ok: return MsgAnswer::Ok;
        case QMessageBox::Cancel: return MsgAnswer::Cancel;
        case QMessageBox::Yes: return MsgAnswer::Yes;
        case QMessageBox::No: return MsgAnswer::No;
        default: return closed;
    }
}

}  // namespace

MsgAnswer ClosedBoxAnswer(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::Ok: return MsgAnswer::Ok;
        case MsgButtons::OkCancel: return MsgAnswer::Cancel;
        case MsgButtons::YesNoCancel: return MsgAnswer::Cancel;
        case MsgButtons::YesNo: return MsgAnswer::No;
    }
    return MsgAnswer::Ok;
}

MsgAnswer ShowMessageBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                         const std::string& title) {
    // A copy, so that a handler may replace itself while it runs.
    if (const MessageBoxHandler handler = Handler()) return handler(text, buttons, icon, title);
    return ShowRealBox(text, buttons, icon, title);
}

void SetMessageBoxHandler(MessageBoxHandler handler) { Handler() = std::move(handler); }

const MessageBoxHandler& CurrentMessageBoxHandler() { return Handler(); }

}  // namespace vexlo::platform
