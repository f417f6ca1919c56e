#include "gui/print/print_output.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>

#include "gui/platform/image_convert.h"

namespace vexlo::gui {

void ApplyPrinterValues(QPrinter& printer, const utilities::PrinterValues& values) {
    if (values.Orientation == 1 || values.Orientation == 2)
        printer.setPageOrientation(values.Orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
    const QPageSize::PageSizeId id = QPageSize::id(values.PaperSize);
    if (id != QPageSize::Custom) printer.setPageSize(QPageSize(id));
    if (values.Copies >= 1) printer.setCopyCount(values.Copies);
}

utilities::PrintArea PrintableArea(const QPrinter& printer) {
    const QRectF inches = printer.pageRect(QPrinter::Inch);
    return {0, 0, inches.width() * utilities::kTwipsPerInch, inches.height() * utilities::kTwipsPerInch};
}

bool PrintPictureOn(QPrinter& printer, const surface::Surface& picture, const utilities::PrintRect& rect) {
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.setRenderHint(QPainter::LosslessImageRendering, true);
    const double toDevice = printer.resolution() / utilities::kTwipsPerInch;
    const QRectF target(rect.Left * toDevice, rect.Top * toDevice, rect.Width * toDevice, rect.Height * toDevice);
    painter.drawImage(target, platform::ToQImage(picture));
    return painter.end();
}

}  // namespace vexlo::gui
