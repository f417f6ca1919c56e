#include "gui/utilities/cls_vexlo_dialog.h"

#include <QApplication>
#include <QColor>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QPageLayout>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrinter>
#include <QStringList>

#include "core/utilities/file_filter.h"
#include "gui/platform/dialog_handlers.h"

namespace vexlo::gui {

namespace {

// What the open and save dialogs share: the proposed name, the filter entries in order with
// the FilterIndex one shown (1 = first; any other number shows the first), the starting folder
// and the title. The FileTitle buffer's result is never read, so it isn't set up here.
void SetUpFileDialog(QFileDialog& dlg, const std::string& fileName, const std::string& filter,
                     const std::string& defaultExt, std::int32_t filterIndex,
                     const std::string& initDir, const std::string& title) {
    dlg.setOption(QFileDialog::DontUseNativeDialog);
    dlg.setDirectory(initDir.empty() ? QDir::currentPath() : QString::fromStdString(initDir));
    QStringList filters;
    for (const std::string& f : utilities::QtNameFilters(filter))
        filters << QString::fromStdString(f);
    if (!filters.isEmpty()) {
        dlg.setNameFilters(filters);
        const bool inRange = filterIndex >= 1 && filterIndex <= filters.size();
        dlg.selectNameFilter(filters.at(inRange ? filterIndex - 1 : 0));
    }
    // Qt adds the suffix to a typed name that has none, and checks that name for existence
    // and overwriting; a name picked from the list is taken as it is.
    QString suffix = QString::fromStdString(defaultExt);
    if (suffix.startsWith(QLatin1Char('.'))) suffix.remove(0, 1);
    dlg.setDefaultSuffix(suffix);
    // An absolute name also moves the dialog to its folder.
    if (!fileName.empty()) dlg.selectFile(QString::fromStdString(fileName));
    if (!title.empty()) dlg.setWindowTitle(QString::fromStdString(title));
}

std::string FirstSelected(QFileDialog& dlg) {
    if (dlg.exec() != QDialog::Accepted) return {};
    const QStringList files = dlg.selectedFiles();
    return files.isEmpty() ? std::string() : files.first().toStdString();
}

std::int16_t ToInt16(int value) {
    return static_cast<std::int16_t>(value < -32768 ? -32768 : value > 32767 ? 32767 : value);
}

}  // namespace

clsVexloDialog::clsVexloDialog(QWidget* owner) : m_owner(owner) {}

clsVexloDialog::~clsVexloDialog() = default;

// The Owner arguments are window handles that mean nothing here; the dialogs stand over the
// owner given at construction or over the active window.
QWidget* clsVexloDialog::Owner() const {
    return m_owner != nullptr ? m_owner : QApplication::activeWindow();
}

std::string clsVexloDialog::ShowOpen(const utilities::OpenRequest& request) {
    if (const auto handler = platform::CurrentDialogHandlers().open) return handler(request);
    QFileDialog dlg(Owner());
    dlg.setAcceptMode(QFileDialog::AcceptOpen);
    // No caller selects several files or reads the read-only box; the result is one path.
    dlg.setFileMode(request.FileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    SetUpFileDialog(dlg, request.FileName, request.Filter, request.DefaultExt,
                    request.FilterIndex, request.InitDir, request.DlgTitle);
    return FirstSelected(dlg);
}

std::string clsVexloDialog::ShowSave(const utilities::SaveRequest& request) {
    if (const auto handler = platform::CurrentDialogHandlers().save) return handler(request);
    QFileDialog dlg(Owner());
    dlg.setAcceptMode(QFileDialog::AcceptSave);
    dlg.setFileMode(QFileDialog::AnyFile);
    // Qt's own question confirms overwriting, and only when asked for.
    dlg.setOption(QFileDialog::DontConfirmOverwrite, !request.OverWritePrompt);
    SetUpFileDialog(dlg, request.FileName, request.Filter, request.DefaultExt,
                    request.FilterIndex, request.InitDir, request.DlgTitle);
    return utilities::AddDefaultExt(FirstSelected(dlg), request.DefaultExt);
}

std::int32_t clsVexloDialog::ShowColor(std::int32_t color, bool fullOpen) {
    if (const auto handler = platform::CurrentDialogHandlers().color)
        return handler(color, fullOpen);
    // Custom colors aren't remembered: all sixteen are white on every call. Qt's dialog always
    // shows its full part, so fullOpen asks for nothing more.
    for (int i = 0; i < QColorDialog::customCount(); ++i)
        QColorDialog::setCustomColor(i, QColor(Qt::white));
    QColorDialog dlg(ToQColor(color), Owner());
    dlg.setOption(QColorDialog::DontUseNativeDialog);
    if (dlg.exec() != QDialog::Accepted) return -1;
    return ToColorRef(dlg.selectedColor());
}

bool clsVexloDialog::ShowPrinter(const utilities::PrinterRequest& request) {
    if (const auto handler = platform::CurrentDialogHandlers().printer) {
        utilities::PrinterValues values = m_values;
        if (!handler(request, values)) return false;
        m_values = values;
        return true;
    }
    QPrinter& printer = Device();
    QPrintDialog dlg(&printer, Owner());
    QAbstractPrintDialog::PrintDialogOptions options = dlg.options();
    options.setFlag(QAbstractPrintDialog::PrintPageRange, !request.DisablePageNumbers);
    options.setFlag(QAbstractPrintDialog::PrintSelection, !request.DisableSelection);
    // DisablePrintToFile is not applied: Qt's "Print to File (PDF)" is a PDF printer here, not
    // the raw print-to-file box the flag hides, and it is the only printer on a machine
    // without any.
    options.setFlag(QAbstractPrintDialog::PrintToFile, true);
    dlg.setOptions(options);
    // The page numbers as the 16-bit fields hold them: ToPage -1 is 0xFFFF.
    const int from = static_cast<std::uint16_t>(request.FromPage);
    const int to = static_cast<std::uint16_t>(request.ToPage);
    dlg.setMinMax(1, 0xFFFF);
    switch (request.PrintRange) {
        case 1:
            dlg.setPrintRange(QAbstractPrintDialog::PageRange);
            if (from >= 1 && from <= to) printer.setFromTo(from, to);
            break;
        case 2: dlg.setPrintRange(QAbstractPrintDialog::Selection); break;
        default: dlg.setPrintRange(QAbstractPrintDialog::AllPages); break;
    }
    if (dlg.exec() != QDialog::Accepted) return false;
    m_values = ValuesOf(printer);
    return true;
}

QPrinter& clsVexloDialog::Device() {
    if (!m_printer) m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *m_printer;
}

QColor clsVexloDialog::ToQColor(std::int32_t colorref) {
    const auto c = static_cast<std::uint32_t>(colorref);
    return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF),
                  static_cast<int>((c >> 16) & 0xFF));
}

std::int32_t clsVexloDialog::ToColorRef(const QColor& color) {
    const QColor rgb = color.toRgb();
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(rgb.red()) |
                                     static_cast<std::uint32_t>(rgb.green()) << 8 |
                                     static_cast<std::uint32_t>(rgb.blue()) << 16);
}

utilities::PrinterValues clsVexloDialog::ValuesOf(const QPrinter& printer) {
    utilities::PrinterValues v;
    v.Orientation = printer.pageLayout().orientation() == QPageLayout::Landscape ? 2 : 1;
    v.Quality = ToInt16(printer.resolution());
    v.PaperSize = ToInt16(printer.pageLayout().pageSize().windowsId());
    v.Copies = ToInt16(printer.copyCount());
    return v;
}

}  // namespace vexlo::gui
