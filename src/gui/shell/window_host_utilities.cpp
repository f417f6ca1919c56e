// The session's printer, desktop capture, About box and help browser on Qt.
#include <QApplication>
#include <QDesktopServices>
#include <QMainWindow>
#include <QPrinter>
#include <QUrl>

#include "gui/capture/frm_vexlo_capture.h"
#include "gui/print/print_output.h"
#include "gui/shell/window_host.h"
#include "gui/utilities/cls_vexlo_dialog.h"
#include "gui/utilities/frm_vexlo_about.h"

namespace vexlo::gui {

namespace {

// The window the command came from: the active one, else the first main window shown.
QWidget* MainWindow() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(w) != nullptr && w->isVisible()) return w;
    return nullptr;
}

}  // namespace

utilities::PrintArea WindowHost::PrinterArea() {
    // The values of the dialog, also when a script answered it instead of Qt's dialog.
    ApplyPrinterValues(Dialog().Device(), Dialog().Printer());
    return PrintableArea(Dialog().Device());
}

bool WindowHost::PrintPicture(const surface::Surface& picture, const utilities::PrintRect& rect) {
    return PrintPictureOn(Dialog().Device(), picture, rect);
}

host::CaptureAnswer WindowHost::CaptureScreen(int side) { return FrmVexloCapture::Run(MainWindow(), side); }

void WindowHost::ShowAbout() {
    FrmVexloAbout about(QApplication::activeWindow());
    about.exec();
}

bool WindowHost::OpenHelpFile(const std::string& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
}

}  // namespace vexlo::gui
