// The main window driven as a user would: menus, panel clicks, the pointer over the Editing
// Area, the first activation's command line and the exit question. Offscreen, scripted.
#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QTest>

#include "gui/platform/elided_label.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;

class FrmVexloTest : public ::testing::Test {
protected:
    void Open(const std::string& commandLine = "") {
        window = OpenMainWindow(commandLine);
    }
    QRgb DispPixel(int x, int y) { return window->picDisp->grab().toImage().pixel(x, y) & 0xFFFFFF; }

    ScriptedHost host;
    ScopedScriptedMessageBoxes boxes{host};
    std::unique_ptr<gui::FrmVexlo> window;
};

TEST_F(FrmVexloTest, NewIcon48ShowsItsGridSizeAndName) {
    Open();
    window->Item("mnuFileNew(2)")->trigger();
    const session::Session& s = window->session();
    EXPECT_EQ(s.View().MagnifyStep(), 8);
    EXPECT_EQ(window->lblStatusPanel[0]->text(), "Untitled");
    EXPECT_EQ(window->lblStatusPanel[2]->text(), "48 x 48");
    // What the widget shows: gray cells, light grid lines every 8 pixels (0x606060 AND gray).
    EXPECT_EQ(DispPixel(3, 3), 0xC0C0C0u);
    EXPECT_EQ(DispPixel(8, 3), 0x404040u);
    EXPECT_EQ(DispPixel(3, 376), 0x404040u);
    EXPECT_EQ(DispPixel(383, 383), 0xC0C0C0u);
}

TEST_F(FrmVexloTest, PanelClickMovesTheHighlightAndOpensTheSlot) {
    Open();
    window->Item("mnuFileNew(1)")->trigger();  // 16x16 in slot 0
    QTest::mouseClick(window->picPanelIcon[2], Qt::LeftButton);
    const session::Session& s = window->session();
    EXPECT_EQ(s.CurrentSlot(), 2);
    EXPECT_EQ(window->lblPanelIcon[2]->palette().color(QPalette::Window), QColor(Qt::white));
    EXPECT_EQ(window->lblPanelIcon[0]->palette().color(QPalette::Window), QColor(0xE0, 0xE0, 0xE0));
    EXPECT_EQ(window->lblStatusPanel[0]->text(), "");
    // Back to the 16x16 icon: only the top left quarter of the Editing Area is in use.
    QTest::mouseClick(window->picPanelIcon[0], Qt::LeftButton);
    EXPECT_EQ(s.CurrentSlot(), 0);
    EXPECT_EQ(window->lblStatusPanel[2]->text(), "16 x 16");
    EXPECT_EQ(DispPixel(192, 100), 0x404040u);  // the quarter's right border
    EXPECT_EQ(DispPixel(300, 300), 0xC0C0C0u);
}

TEST_F(FrmVexloTest, PointerOverTheIconShowsItsCell) {
    Open();
    window->Item("mnuFileNew(0)")->trigger();
    QTest::mouseMove(window->picDisp, QPoint(5 * 12 + 3, 7 * 12 + 11));
    EXPECT_EQ(window->lblDispXY->text(), "X=5  Y=7");
}

TEST_F(FrmVexloTest, GridOptionsAndMaskView) {
    Open();
    window->Item("mnuFileNew(0)")->trigger();
    window->Item("mnuOptionsGridline(1)")->trigger();  // dark
    EXPECT_TRUE(window->Item("mnuOptionsGridline(1)")->isChecked());
    EXPECT_FALSE(window->Item("mnuOptionsGridline(0)")->isChecked());
    EXPECT_EQ(DispPixel(12, 3), 0x000000u);
    window->Item("mnuOptionsGridline(1)")->trigger();  // the ticked item again: no grid
    EXPECT_FALSE(window->Item("mnuOptionsGridline(1)")->isChecked());
    EXPECT_EQ(DispPixel(12, 3), 0xC0C0C0u);

    EXPECT_TRUE(window->picMask->isVisible());
    window->Item("mnuOptionsDisplayMask")->trigger();
    EXPECT_FALSE(window->picMask->isVisible());
    EXPECT_FALSE(window->lblMask->isVisible());
}

TEST_F(FrmVexloTest, MissingCommandLineFileIsReportedWithoutQuotes) {
    host.Answer(MsgAnswer::Ok);
    Open("\"/no/such folder/icon.ico\"");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "/no/such folder/icon.ico not found");
    EXPECT_EQ(host.shown[0].title, "Vexlo");
}

TEST_F(FrmVexloTest, ExitAsksAboutUnsavedIconsAndNoKeepsTheWindow) {
    Open();
    window->Item("mnuFileNew(0)")->trigger();
    window->session().Current().Changed = true;
    host.Answer(MsgAnswer::No);
    window->Item("mnuFileExit")->trigger();
    EXPECT_TRUE(window->isVisible());
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_NE(host.shown[0].text.find("Icon Seq 1    Untitled"), std::string::npos);

    host.Answer(MsgAnswer::Yes);
    window->Item("mnuFileExit")->trigger();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(FrmVexloTest, ExitWithNothingUnsavedAsksNothing) {
    Open();
    window->Item("mnuFileNew(0)")->trigger();
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(FrmVexloTest, MenuRulesRunWhenTheMenuDropsDownAndAtNoOtherMoment) {
    Open();
    window->Item("mnuFileNew(1)")->trigger();  // 16x16
    auto* effects = window->findChild<QMenu*>("mnuEffects");
    ASSERT_NE(effects, nullptr);
    emit effects->aboutToShow();
    EXPECT_TRUE(window->Item("mnuEffectsExpand")->isEnabled());
    EXPECT_FALSE(window->Item("mnuEffectsShrink")->isEnabled());
    EXPECT_FALSE(window->Item("mnuEffectsGradientUnpaintedArea")->isEnabled());
    EXPECT_FALSE(window->cmdTB[20]->isEnabled());  // the toolbar follows without a menu
    EXPECT_FALSE(window->cmdTB[6]->isEnabled());   // one undo entry only

    window->Item("mnuFileNew(0)")->trigger();  // 32x32, menu not opened again
    EXPECT_TRUE(window->Item("mnuEffectsExpand")->isEnabled());
    EXPECT_TRUE(window->cmdTB[20]->isEnabled());
    emit effects->aboutToShow();
    EXPECT_FALSE(window->Item("mnuEffectsExpand")->isEnabled());
    EXPECT_TRUE(window->Item("mnuEffectsShrink")->isEnabled());
}

TEST_F(FrmVexloTest, ToolbarButtonRunsItsItemAndShowsItsTooltip) {
    Open();
    EXPECT_EQ(window->cmdTB[1]->toolTip(), "New 16x16");
    EXPECT_EQ(window->cmdTB[25]->toolTip(), "View/edit/create Alpha (32 BPP icon)");
    window->cmdTB[1]->click();
    EXPECT_EQ(window->lblStatusPanel[2]->text(), "16 x 16");
}

TEST_F(FrmVexloTest, PaintingACellWithThePointerEnablesUndo) {
    Open();
    window->Item("mnuFileNew(0)")->trigger();
    EXPECT_TRUE(window->ToolButtons[0]->isChecked());  // File New selects Paint
    const QPoint cell(5 * 12 + 2, 7 * 12 + 2);
    QTest::mousePress(window->picDisp, Qt::LeftButton, {}, cell);
    QTest::mouseRelease(window->picDisp, Qt::LeftButton, {}, cell);
    const session::Session& s = window->session();
    EXPECT_EQ(s.Icon().Image().GetPixel(5, 7), 0xFFFFFFu);
    EXPECT_EQ(s.Icon().Mask().GetPixel(5, 7), 0u);
    EXPECT_TRUE(s.Current().Changed);
    EXPECT_EQ(s.UndoCount(), 2);
    EXPECT_TRUE(window->cmdTB[6]->isEnabled());
    window->cmdTB[6]->click();  // Undo
    EXPECT_EQ(s.Icon().Mask().GetPixel(5, 7), 0xFFFFFFu);
}

TEST_F(FrmVexloTest, AToolNeedsAnIcon) {
    Open();
    host.Answer(MsgAnswer::Ok);
    window->ToolButtons[5]->click();
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "No icon in Editing Area yet");
    EXPECT_FALSE(window->ToolButtons[5]->isChecked());
}

TEST_F(FrmVexloTest, ABitmapSavedAndImportedAgainKeepsItsTransparentPixels) {
    Open();
    window->Item("mnuFileNew(1)")->trigger();
    session::Session& s = window->session();
    s.Icon().Image().SetPixelV(2, 2, 0x0000FF);
    s.Icon().Mask().SetPixelV(2, 2, 0);
    s.ComposeIcon();
    const std::string path = (QDir::tempPath() + "/vexlo_bitmap_round_trip.bmp").toStdString();
    host.AnswerSave(path);
    window->Item("mnuFileSaveAsBitmap")->trigger();
    host.AnswerOpen(path);
    host.Answer(MsgAnswer::Ok);  // the reminder about transparent areas
    window->Item("mnuFileOpen(3)")->trigger();
    EXPECT_EQ(s.Current().KindText, "BMP or other file");
    EXPECT_EQ(s.Icon().Image().GetPixel(2, 2), 0x0000FFu);
    EXPECT_EQ(s.Icon().Mask().GetPixel(2, 2), 0u);
    EXPECT_EQ(s.Icon().Mask().GetPixel(5, 5), 0xFFFFFFu);  // gray in the bitmap: transparent again
    QFile::remove(QString::fromStdString(path));
}

TEST_F(FrmVexloTest, TheFileHistoryAndTheOptionsOutliveTheWindow) {
    Open();
    const std::string path = (QDir::tempPath() + "/vexlo_history_entry.ico").toStdString();
    host.AnswerSave(path);
    window->Item("mnuFileNew(0)")->trigger();
    window->Item("mnuFileSaveAsICO")->trigger();
    window->Item("mnuOptionsGridline(2)")->trigger();
    EXPECT_TRUE(window->Item("mnuFileHistory(1)")->isVisible());
    EXPECT_EQ(window->Item("mnuFileHistory(1)")->text().toStdString(), "&1 " + path);
    window->session().Current().Changed = false;
    ASSERT_TRUE(window->close());
    Open();
    EXPECT_EQ(window->Item("mnuFileHistory(1)")->text().toStdString(), "&1 " + path);
    EXPECT_TRUE(window->Item("mnuOptionsGridline(2)")->isChecked());
    window->Item("mnuFileHistory(1)")->trigger();
    EXPECT_EQ(window->session().Current().FileSpec, path);
    QFile::remove(QString::fromStdString(path));
}

}  // namespace
}  // namespace vexlo::test
