// File Print on Qt's printer into a PDF, the PDF turned into a picture by pdftoppm, and every
// printed pixel's color and place checked against the Editing Area or the composed icon.
// With $VEXLO_SHOT_DIR set, the rendered pages are saved there.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>

#include "core/session/session.h"
#include "gui/shell/window_host.h"
#include "gui/utilities/cls_vexlo_dialog.h"
#include "scripted_dialogs.h"
#include "support/picture_grid.h"

namespace vexlo::test {
namespace {

using session::PrintControl;

// pdftoppm draws a picture enlarged four times or more with whole blocks per pixel.
constexpr int kRenderDpi = 384;

class PrintToPdf : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        QPrinter& printer = host.Dialog().Device();
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(dir.filePath("page.pdf"));
    }
    // The icon of File New's entry with rows at its top left, printed with the frame's
    // controls clicked as given, on a letter page in portrait.
    void Print(int entry, const std::vector<std::string>& rows,
               const std::vector<std::pair<PrintControl, int>>& clicks) {
        s.FileNew(entry);
        PlanesOf(rows, s.Icon().Image(), s.Icon().Mask());
        s.ComposeIcon();
        s.MagnifyIcon();
        s.RunMenuItem("mnuFilePrint");
        for (const auto& [control, index] : clicks) s.ClickPrintControl(control, index);
        utilities::PrinterValues letter;
        letter.PaperSize = 1;  // DMPAPER_LETTER
        scripted.AnswerPrinter(true, letter);
        s.PrintProceed();
        EXPECT_TRUE(scripted.shown.empty()) << scripted.shown.front().text;
    }
    // The printed page as a picture at kRenderDpi; the printable area's top left in it.
    QImage Render(QPointF* areaOrigin) {
        const QRectF area = host.Dialog().Device().pageRect(QPrinter::Inch);
        *areaOrigin = area.topLeft() * kRenderDpi;
        QProcess pdftoppm;
        pdftoppm.start("pdftoppm", {"-r", QString::number(kRenderDpi), "-png", "-singlefile",
                                    dir.filePath("page.pdf"), dir.filePath("page")});
        EXPECT_TRUE(pdftoppm.waitForFinished(30000)) << "pdftoppm (poppler-utils) runs";
        EXPECT_EQ(pdftoppm.exitCode(), 0) << pdftoppm.readAllStandardError().toStdString();
        // With $VEXLO_SHOT_DIR set, the pages are kept there to be looked at.
        const QByteArray shots = qgetenv("VEXLO_SHOT_DIR");
        if (!shots.isEmpty())
            QFile::copy(dir.filePath("page.png"), QDir(QString::fromLocal8Bit(shots)).filePath(
                                                     QString("print_page_%1.png").arg(++m_pages)));
        return QImage(dir.filePath("page.png"));
    }
    // Every pixel of picture printed at (left, top) twips in the printable area, w twips wide:
    // the color at the middle of its block on the page is its own, and the paper around the
    // picture is white.
    void ExpectPrinted(const Surface& picture, double left, double top, double w) {
        QPointF origin;
        const QImage page = Render(&origin);
        ASSERT_FALSE(page.isNull());
        const double scale = w / 1440 * kRenderDpi / picture.Width();  // page pixels a pixel
        ASSERT_GE(scale, 4.0);
        const double x0 = origin.x() + left / 1440 * kRenderDpi;
        const double y0 = origin.y() + top / 1440 * kRenderDpi;
        int wrong = 0;
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x) {
                const QRgb got = page.pixel(static_cast<int>(x0 + (x + 0.5) * scale),
                                            static_cast<int>(y0 + (y + 0.5) * scale));
                const surface::Color want = picture.GetPixel(x, y);
                if (got != qRgb(surface::RedOf(want), surface::GreenOf(want), surface::BlueOf(want)) && wrong++ < 5)
                    ADD_FAILURE() << "pixel " << x << "," << y << " printed as " << std::hex << got;
            }
        const double side = picture.Width() * scale;
        for (const QPointF& outside : {QPointF(x0 - 3, y0 + side / 2), QPointF(x0 + side + 3, y0 + side / 2),
                                       QPointF(x0 + side / 2, y0 - 3), QPointF(x0 + side / 2, y0 + side + 3)})
            EXPECT_EQ(page.pixel(outside.toPoint()), qRgb(255, 255, 255)) << outside.x() << "," << outside.y();
    }

    QTemporaryDir dir;
    static inline int m_pages = 0;
    ScriptedHost scripted;
    ScopedScriptedDialogs dialogs{scripted};
    gui::WindowHost host;
    session::Session s{host};
};

const std::vector<std::string> kCells = {"rgb.", "ywks", "....", "kkrr"};

TEST_F(PrintToPdf, ASixteenIconAt100PercentPrintsTheEditingAreaWithItsGridAtScreenSize) {
    s.RunMenuItem("mnuOptionsGridline(1)");  // dark grid lines, printed with the cells
    Print(1, kCells, {});
    const Surface& disp = s.View().Disp();
    Surface quarter(192, 192, 0);
    BitBlt(quarter, 0, 0, 192, 192, disp, 0, 0, surface::Rop::SrcCopy);
    EXPECT_EQ(quarter.GetPixel(6, 6), 0x0000FFu);  // the first cell is red
    ExpectPrinted(quarter, 1440, 1440, 2880);       // margins 1.00, two inches square
}

TEST_F(PrintToPdf, AThirtyTwoIconAt200PercentAndTheIconAtItsOwnSizeCentred) {
    Print(0, kCells, {{PrintControl::SizeList, 7}, {PrintControl::LeftMargin, 10}, {PrintControl::TopMargin, 30}});
    const double side = 384 * 15 * std::sqrt(2.0);
    ExpectPrinted(s.View().Disp(), 720, 2160, side);

    Print(0, kCells, {{PrintControl::SizeOption, 1}, {PrintControl::MarginOption, 1}});
    const utilities::PrintArea area = host.PrinterArea();
    ExpectPrinted(s.Icon().Composed(), (area.Width - 480) / 2, (area.Height - 480) / 2, 480);
}

}  // namespace
}  // namespace vexlo::test
