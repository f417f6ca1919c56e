#pragma once
// The page of File Print on a QPrinter: the four values of the print dialog applied, the
// printable area in twips, and the picture drawn with every pixel a block of its exact color.
#include "core/surface/surface.h"
#include "core/utilities/dialog_requests.h"
#include "core/utilities/print_layout.h"

class QPrinter;

namespace vexlo::gui {

// Orientation, paper size (a DMPAPER code) and copies of a confirmed print dialog; a value
// that Qt doesn't know leaves the printer's own.
void ApplyPrinterValues(QPrinter& printer, const utilities::PrinterValues& values);
// The printable area in twips; drawing starts at its top left, so Left and Top are 0.
utilities::PrintArea PrintableArea(const QPrinter& printer);
// One page with the picture drawn at rect (twips from the printable area's top left): no
// smoothing, and lossless in a PDF. False when the page can't be begun.
bool PrintPictureOn(QPrinter& printer, const surface::Surface& picture, const utilities::PrintRect& rect);

}  // namespace vexlo::gui
