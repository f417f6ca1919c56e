#pragma once
// Where a printed picture lands on the page: its size from the size option (a percentage of
// its area, its size on the screen, or as large as the paper allows) and its place from the
// margins or the centre of the printable area. Lengths are twips, 1440 to the inch, measured
// from the printable area's top left.
#include <string>

namespace vexlo::utilities {

inline constexpr double kTwipsPerInch = 1440.0;
// A screen pixel at 96 pixels to the inch.
inline constexpr double kTwipsPerPixel = 15.0;

inline constexpr const char* kNoPrinterFound = "No printer found ";
inline constexpr const char* kPositionOutsidePaper = "Image position outside paper size";
inline constexpr const char* kSizeGreaterThanPaper = "Image size greater than paper size";

// The printer's printable area: its place (Left, Top) and size, in twips.
struct PrintArea {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

// Where the picture is drawn, in twips.
struct PrintRect {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

// OptPrintSize(0..2) and OptPrintMargin(0..1).
enum class PrintSize { AtPercent = 0, OriginalIcon = 1, FitToPaper = 2 };
enum class PrintMargin { SetMargin = 0, Center = 1 };

struct PrintChoice {
    PrintSize Size = PrintSize::AtPercent;
    int Percent = 100;  // of the area, for AtPercent
    PrintMargin Margin = PrintMargin::SetMargin;
    double LeftInch = 1.0;
    double TopInch = 1.0;
};

// The rectangle, or the message that stops the job (empty when it goes on).
struct PrintPlacement {
    PrintRect Rect;
    std::string Message;
};

// The place of a picture of pixelWidth x pixelHeight screen pixels on the area.
PrintPlacement PlacePicture(const PrintChoice& choice, int pixelWidth, int pixelHeight,
                            const PrintArea& area);

}  // namespace vexlo::utilities
