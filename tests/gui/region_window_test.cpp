// The Region, the clipboard and Shift Directions in the main window, driven with real pointer
// and key events, and the system clipboard between Vexlo and other Qt programs. With
// VEXLO_SHOT_DIR set, the Region tests save pictures of the window there.
#include <gtest/gtest.h>

#include <QAction>
#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImageReader>
#include <QLabel>
#include <QMimeData>
#include <QTest>
#include <QToolButton>

#include "gui/platform/clipboard.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using tools::Tool;

constexpr QRgb kRed = 0xFFFF0000, kBlue = 0xFF0000FF;

void Shot(QWidget* w, const QString& name) { SaveShot(w, name); }

// What another Qt program does to put a picture on the clipboard.
void OtherProgramCopies(const QImage& image) { QGuiApplication::clipboard()->setImage(image); }

// What a program that offers only encoded bytes does.
void OtherProgramOffers(const char* format, const QByteArray& bytes) {
    auto* data = new QMimeData;
    data->setData(format, bytes);
    QGuiApplication::clipboard()->setMimeData(data);
}

QImage Decoded(const QMimeData* data, const char* format) {
    QByteArray bytes = data->data(format);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer).read();
}

class RegionWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        QGuiApplication::clipboard()->clear();
        window = OpenMainWindow();
    }
    session::Session& S() { return window->session(); }
    // A 32x32 icon with a red 4 x 4 block at cells 2..5 and a blue pixel in its middle.
    void NewIconWithBlock() {
        window->Item("mnuFileNew(0)")->trigger();
        S().Icon().Image().FillBox(2, 2, 5, 5, 0x0000FF);
        S().Icon().Mask().FillBox(2, 2, 5, 5, 0);
        S().Icon().Image().SetPixelV(3, 3, 0xFF0000);
        S().ComposeIcon();
        S().BeginUndoHistory();
        S().MagnifyIcon();
        window->SyncFromModel();
    }
    void Drag(QPoint from, QPoint to) {
        QTest::mouseMove(window->picDisp, from);
        QTest::mousePress(window->picDisp, Qt::LeftButton, {}, from);
        QTest::mouseMove(window->picDisp, to);
        QTest::mouseRelease(window->picDisp, Qt::LeftButton, {}, to);
    }
    surface::Color Pixel(int x, int y) { return S().Icon().Composed().GetPixel(x, y); }

    ScriptedHost host;
    ScopedScriptedMessageBoxes boxes{host};
    std::unique_ptr<gui::FrmVexlo> window;
};

TEST_F(RegionWindowTest, SelectFloatMoveAndDropWithThePointer) {
    NewIconWithBlock();
    window->ToolButtons[static_cast<int>(Tool::Region)]->click();
    Drag({25, 25}, {71, 71});  // grid lines 24 to 72: cells 2..5
    ASSERT_TRUE(S().View().Region().Exists);
    EXPECT_EQ(window->lblRegionMeasure->text(), "Region: Start [2, 2]   W=4 H=4");
    EXPECT_TRUE(window->cmdTB[8]->isEnabled());
    Shot(window.get(), "region_1_selected");

    Drag({45, 45}, {117, 81});  // six cells right, three down
    EXPECT_EQ(Pixel(8, 5), 0x0000FFu);  // the block at cells 8..11, 5..8
    EXPECT_EQ(Pixel(9, 6), 0xFF0000u);
    EXPECT_EQ(Pixel(2, 2), 0xC0C0C0u);  // the hole where it was
    EXPECT_EQ(S().UndoCount(), 1);
    Shot(window.get(), "region_2_moved");

    // The real-size view follows the planes.
    EXPECT_EQ(window->picIcon->grab().toImage().pixel(9, 6), kBlue);
    QTest::mouseMove(window->picDisp, {300, 300});
    QTest::mouseClick(window->picDisp, Qt::LeftButton, {}, {300, 300});
    EXPECT_FALSE(S().View().Region().Exists);
    EXPECT_EQ(S().UndoCount(), 2);
    EXPECT_EQ(Pixel(9, 6), 0xFF0000u);
    EXPECT_FALSE(window->cmdTB[8]->isEnabled());
    Shot(window.get(), "region_3_dropped");
}

TEST_F(RegionWindowTest, ArrowKeysMoveAFloatingRegionAndDeleteErasesIt) {
    NewIconWithBlock();
    window->ToolButtons[static_cast<int>(Tool::Region)]->click();
    Drag({25, 25}, {71, 71});
    window->picDisp->setFocus();
    QTest::keyClick(window->picDisp, Qt::Key_Right);
    QTest::keyClick(window->picDisp, Qt::Key_Down);
    EXPECT_EQ(S().View().Region().Cells.Left, 3);
    EXPECT_EQ(S().View().Region().Cells.Top, 3);
    EXPECT_EQ(Pixel(4, 4), 0xFF0000u);
    QTest::keyClick(window->picDisp, Qt::Key_Delete);
    EXPECT_FALSE(S().View().Region().Exists);
    EXPECT_EQ(Pixel(4, 4), 0xC0C0C0u);
    EXPECT_EQ(S().UndoCount(), 2);
}

TEST_F(RegionWindowTest, CopyPutsPngBmpAndAnImageWithTransparencyOnTheClipboard) {
    NewIconWithBlock();
    window->Item("mnuEditSub(6)")->trigger();
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    ASSERT_NE(data, nullptr);
    const QImage png = Decoded(data, "image/png");
    ASSERT_EQ(png.size(), QSize(32, 32));
    EXPECT_EQ(png.pixel(2, 2), kRed);
    EXPECT_EQ(png.pixel(3, 3), kBlue);
    EXPECT_EQ(qAlpha(png.pixel(0, 0)), 0);  // transparent where the icon is
    const QImage bmp = Decoded(data, "image/bmp");
    ASSERT_EQ(bmp.size(), QSize(32, 32));
    EXPECT_EQ(bmp.pixel(0, 0) & 0xFFFFFF, 0xC0C0C0u);  // the gray where BMP has no alpha
    EXPECT_EQ(bmp.pixel(3, 3) & 0xFFFFFF, 0x0000FFu);
    EXPECT_TRUE(data->hasImage());
    EXPECT_TRUE(window->cmdTB[11]->isEnabled());
}

TEST_F(RegionWindowTest, CopyThenPasteKeepsEveryPixelAndTheTransparency) {
    NewIconWithBlock();
    const surface::Surface image = S().Icon().Image(), mask = S().Icon().Mask();
    window->Item("mnuEditSub(6)")->trigger();
    window->Item("mnuFileNew(0)")->trigger();
    window->Item("mnuEditSub(7)")->trigger();
    EXPECT_TRUE(S().View().Region().Exists);
    EXPECT_TRUE(SamePixels(S().Icon().Image(), image));
    EXPECT_TRUE(SamePixels(S().Icon().Mask(), mask));
}

TEST_F(RegionWindowTest, APictureCopiedByAnotherQtProgramPastes) {
    window->Item("mnuFileNew(1)")->trigger();  // 16x16
    QImage picture(3, 2, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    picture.setPixel(0, 0, kRed);
    picture.setPixel(2, 1, kBlue);
    picture.setPixel(1, 0, qRgba(0, 255, 0, 100));  // mostly clear: transparent
    OtherProgramCopies(picture);
    EXPECT_TRUE(window->cmdTB[11]->isEnabled());  // the toolbar follows the clipboard
    window->Item("mnuEditSub(7)")->trigger();
    const surface::Surface& m = S().Icon().Mask();
    EXPECT_EQ(S().Icon().Image().GetPixel(0, 0), 0x0000FFu);
    EXPECT_EQ(m.GetPixel(0, 0), 0u);
    EXPECT_EQ(m.GetPixel(1, 0), 0xFFFFFFu);
    EXPECT_EQ(S().Icon().Image().GetPixel(2, 1), 0xFF0000u);
    EXPECT_EQ(S().View().Region().Cells.Right, 2);
}

TEST_F(RegionWindowTest, TextOnTheClipboardIsNoImage) {
    window->Item("mnuFileNew(0)")->trigger();
    QGuiApplication::clipboard()->setText("not a picture");
    EXPECT_FALSE(window->cmdTB[11]->isEnabled());
    host.Answer(MsgAnswer::Ok);
    window->Item("mnuEditSub(7)")->trigger();
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "No image in clipboard yet");
}

// The headers of a 24-bit BMP of w x h pixels, with no pixels after them. Each field is
// written as four little-endian bytes, in order, so a later one overwrites the zeros of a
// shorter one before it ("BM", the planes).
QByteArray BmpHeaderOnly(quint32 w, quint32 h) {
    QByteArray bmp(54, '\0');
    const std::pair<int, quint32> fields[] = {{0, 0x4D42}, {2, 54}, {10, 54}, {14, 40},
                                              {18, w},     {22, h}, {26, 1},  {28, 24}};
    for (const auto& [at, v] : fields)
        for (int i = 0; i < 4; ++i) bmp[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
    return bmp;
}

TEST_F(RegionWindowTest, AHugeClipboardPictureIsRefusedBeforeItsPixelsAreRead) {
    window->Item("mnuFileNew(0)")->trigger();
    OtherProgramOffers("image/bmp", BmpHeaderOnly(16000, 16000));
    const host::ClipboardPicture info = platform::ClipboardPictureInfo();
    EXPECT_TRUE(info.Present && info.TooLarge);
    host.Answer(MsgAnswer::Ok);
    window->Item("mnuEditSub(7)")->trigger();
    // A header that the platform's reader refuses: a picture that can't be read.
    OtherProgramOffers("image/bmp", BmpHeaderOnly(100000, 100000));
    host.Answer(MsgAnswer::Ok);
    window->Item("mnuEditSub(7)")->trigger();
    ASSERT_EQ(host.shown.size(), 2u);
    EXPECT_EQ(host.shown[0].text, "Image size is of 16000x16000; too large to be taken from the clipboard.");
    EXPECT_EQ(host.shown[1].text, "The image in the clipboard can't be read.");
    EXPECT_FALSE(S().View().Region().Exists);
}

TEST_F(RegionWindowTest, TheShiftPadSlidesTheIcon) {
    NewIconWithBlock();
    window->ToolButtons[static_cast<int>(Tool::Shift)]->click();
    QTest::mouseClick(window->picShiftDir, Qt::LeftButton, {}, {5, 22});  // left
    QTest::mouseClick(window->picShiftDir, Qt::LeftButton, {}, {22, 5});  // up
    EXPECT_EQ(Pixel(1, 1), 0x0000FFu);
    EXPECT_EQ(Pixel(2, 2), 0xFF0000u);
    EXPECT_EQ(S().UndoCount(), 3);
    Shot(window.get(), "shift_pad");
}

}  // namespace
}  // namespace vexlo::test
