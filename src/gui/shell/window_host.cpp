#include "gui/shell/window_host.h"

#include <QApplication>
#include <QClipboard>
#include <QImageReader>
#include <QMimeData>
#include <QCoreApplication>
#include <QCursor>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QGuiApplication>

#include "gui/platform/clipboard.h"
#include "gui/platform/dialog_handlers.h"
#include "gui/platform/image_convert.h"
#include "gui/platform/message_box.h"
#include "gui/platform/shell_icons.h"
#include "gui/alpha/frm_vexlo_alpha.h"
#include "gui/platform/text_drawing.h"
#include "gui/files/frm_vexlo_multi_icon.h"
#include "gui/utilities/cls_vexlo_dialog.h"
#include "gui/utilities/frm_dir_dialog.h"

namespace vexlo::gui {

using namespace platform;

WindowHost::WindowHost() = default;

WindowHost::~WindowHost() {
    if (m_hourglassDepth > 0) QGuiApplication::restoreOverrideCursor();
}

host::MsgAnswer WindowHost::MsgBox(const std::string& text, host::MsgButtons buttons,
                                host::MsgIcon icon, const std::string& title) {
    return ShowMessageBox(text, buttons, icon, title);
}

// Pending events run without user input: a click or key waits in the queue until the
// operation that let the events run has ended, and then reaches its handler whole.
void WindowHost::DoEvents() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

void WindowHost::SetHourglass(bool on) {
    if (on) {
        if (m_hourglassDepth++ == 0) QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    } else if (m_hourglassDepth > 0) {
        if (--m_hourglassDepth == 0) QGuiApplication::restoreOverrideCursor();
    }
}

void WindowHost::NudgePointer() {
    const QPoint p = QCursor::pos();
    QCursor::setPos(p.x() > 0 ? p.x() - 1 : p.x() + 1, p.y() > 0 ? p.y() - 1 : p.y() + 1);
    QCursor::setPos(p);
}

bool WindowHost::LoadPicture(const std::string& path, surface::Surface& out) {
    QImageReader reader(QString::fromStdString(path));
    const QImage picture = reader.read();
    if (picture.isNull()) return false;
    out = FromQImage(picture);
    return true;
}

host::MultiIconAnswer WindowHost::ShowMultiIcon(const std::string& fileSpec, int addMode,
                                             const surface::Surface* iconToAdd,
                                             const std::string& addDescription) {
    // The dialog asks its questions through this host.
    return gui::frmVexloMultiIcon::Run(*this, QApplication::activeWindow(), fileSpec, addMode, iconToAdd,
                                       addDescription);
}

host::AlphaEditorAnswer WindowHost::ShowAlphaEditor(const host::AlphaEditorRequest& request) {
    return gui::frmVexloAlpha::Run(*this, request, QApplication::activeWindow());
}

bool WindowHost::ClipboardHasBitmap() { return ClipboardHasPicture(); }

host::ClipboardPicture WindowHost::ClipboardPictureInfo() { return platform::ClipboardPictureInfo(); }

bool WindowHost::ReadClipboardPicture(int w, int h, surface::Surface& out) {
    return platform::ReadClipboardPicture(w, h, out);
}

void WindowHost::SetClipboardPicture(const surface::Surface& picture, const surface::Surface& holes) {
    PutPictureOnClipboard(picture, holes);
}

void WindowHost::ClearClipboard() { platform::ClearClipboard(); }

void WindowHost::RefreshDisplay() {
    if (m_refresh) m_refresh();
}

clsVexloDialog& WindowHost::Dialog() {
    if (!m_dialog) m_dialog = std::make_unique<clsVexloDialog>();
    return *m_dialog;
}

std::string WindowHost::ShowOpen(const utilities::OpenRequest& request) {
    if (m_nextOpen) {
        std::string path = std::move(*m_nextOpen);
        m_nextOpen.reset();
        return path;
    }
    return Dialog().ShowOpen(request);
}

std::string WindowHost::ShowSave(const utilities::SaveRequest& request) {
    return Dialog().ShowSave(request);
}

std::int32_t WindowHost::ShowColor(std::int32_t color, bool fullOpen) {
    return Dialog().ShowColor(color, fullOpen);
}

bool WindowHost::ShowPrinter(const utilities::PrinterRequest& request) {
    return Dialog().ShowPrinter(request);
}

utilities::PrinterValues WindowHost::Printer() const {
    return m_dialog ? m_dialog->Printer() : utilities::PrinterValues{};
}

std::string WindowHost::GetFolderSpec(const std::string& pattern, const std::string& startFolder) {
    if (m_nextFolder) {
        std::string folder = std::move(*m_nextFolder);
        m_nextFolder.reset();
        return folder;
    }
    // A scripted folder dialog answers without touching the current directory.
    if (const auto handler = CurrentDialogHandlers().folder)
        return handler(pattern, startFolder, false);
    const QString start = QString::fromStdString(startFolder);
    if (!start.isEmpty() && QFileInfo(start).isDir()) QDir::setCurrent(start);
    return gui::frmDirDialog::Ask(pattern, std::string(), false, QApplication::activeWindow());
}

bool WindowHost::GetShellIcon(const std::string& path, bool small, surface::Surface& image,
                              surface::Surface& mask) {
    return platform::ShellIcon(path, small, image, mask);
}

void WindowHost::RefreshIconsList() {
    if (m_refreshList) m_refreshList();
}

std::vector<std::string> WindowHost::ScreenFonts() { return platform::ScreenFontFamilies(); }

std::string WindowHost::FontFamilyUsed(const std::string& name) {
    return platform::FontFamilyUsed(name);
}

bool WindowHost::DrawText(const host::TextFont& font, const std::string& text, bool hollow,
                          surface::Color color, surface::Color back, surface::Surface& out) {
    return platform::DrawTextPicture(font, text, hollow, color, back, out);
}

}  // namespace vexlo::gui
