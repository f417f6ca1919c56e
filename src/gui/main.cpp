// basVexloMain: the entry point. One instance per user; the splash shows while the main
// window loads; the event loop runs until the window closes.
#include <QApplication>
#include <QStringList>

#include "core/session/session.h"
#include "gui/platform/message_box.h"
#include "gui/platform/single_instance.h"
#include "gui/platform/system_info.h"
#include "gui/shell/frm_vexlo.h"
#include "gui/utilities/frm_vexlo_about.h"

namespace {

using vexlo::host::kTitle;
using vexlo::host::MsgButtons;
using vexlo::host::MsgIcon;

void Refuse(const std::string& text, MsgIcon icon) {
    vexlo::platform::ShowMessageBox(text, MsgButtons::Ok, icon, kTitle);
}

// The command line as one text, the arguments joined by blanks.
std::string CommandLine(const QStringList& arguments) {
    return arguments.mid(1).join(' ').toStdString();
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Vexlo");

    vexlo::platform::SingleInstance instance;
    if (!instance.TryAcquire()) {
        Refuse(vexlo::session::SecondInstanceText(), MsgIcon::Exclamation);
        return 0;
    }
    if (vexlo::platform::WindowsDirectory().empty()) {
        Refuse("Unknown windows directory, cannot proceed", MsgIcon::None);
        return 0;
    }
    if (vexlo::platform::SystemDirectory().empty() || vexlo::platform::TempDirectory().empty()) {
        Refuse("Unknown windows system directory, cannot proceed", MsgIcon::None);
        return 0;
    }

    auto* splash = new vexlo::gui::FrmVexloAbout;
    splash->setWindowFlag(Qt::SplashScreen);
    splash->show();
    QApplication::processEvents();

    vexlo::gui::FrmVexlo window(CommandLine(QApplication::arguments()));
    const bool loaded = window.LoadForm();
    if (loaded) window.show();
    delete splash;
    if (!loaded) return 0;
    return QApplication::exec();
}
