#pragma once
// clsVexloDialog: every file, color and print question of the program, on Qt's own (not the
// desktop's) QFileDialog, QColorDialog and QPrintDialog. Each question goes to the handler of
// its kind when one is installed (platform/dialog_handlers.h), else to the real dialog. The
// class keeps no state between calls other than the printer and its four values.
#include <cstdint>
#include <memory>
#include <string>

#include "core/utilities/dialog_requests.h"

class QColor;
class QPrinter;
class QWidget;

namespace vexlo::gui {

class clsVexloDialog {
public:
    // owner: the window the dialogs stand over; null takes the active window at each call.
    explicit clsVexloDialog(QWidget* owner = nullptr);
    ~clsVexloDialog();
    clsVexloDialog(const clsVexloDialog&) = delete;
    clsVexloDialog& operator=(const clsVexloDialog&) = delete;

    // The chosen path, "" when cancelled.
    std::string ShowOpen(const utilities::OpenRequest& request);
    std::string ShowSave(const utilities::SaveRequest& request);
    // The COLORREF chosen, starting from color; -1 when cancelled.
    std::int32_t ShowColor(std::int32_t color, bool fullOpen);
    // True when the user confirmed; the four values then follow the printer set up.
    bool ShowPrinter(const utilities::PrinterRequest& request);

    // What the last confirmed ShowPrinter left.
    std::int16_t Orientation() const { return m_values.Orientation; }
    std::int16_t Quality() const { return m_values.Quality; }
    std::int16_t PaperSize() const { return m_values.PaperSize; }
    std::int16_t Copies() const { return m_values.Copies; }
    const utilities::PrinterValues& Printer() const { return m_values; }
    // The printer that the dialog sets up, made on first use; printing goes to it.
    QPrinter& Device();

    // COLORREF 0x00BBGGRR and QColor; the top byte of a COLORREF is ignored.
    static QColor ToQColor(std::int32_t colorref);
    static std::int32_t ToColorRef(const QColor& color);
    // The four values as a DEVMODE holds them: orientation 1 portrait, 2 landscape; quality
    // as the resolution in dots per inch; the DMPAPER code of the page size; copies.
    static utilities::PrinterValues ValuesOf(const QPrinter& printer);

private:
    QWidget* Owner() const;

    QWidget* m_owner;
    std::unique_ptr<QPrinter> m_printer;
    utilities::PrinterValues m_values;
};

}  // namespace vexlo::gui
