// frmVexloMultiIcon's wiring to its model: real mouse clicks and keys on the list, the tab
// stops of the list, the buttons forwarded and the controls redrawn, the modal entry point and
// the window's host asking the dialog's questions. The dialog's steps themselves are tested
// headless in tests/core/files/multi_icon_manager_test.cpp. Offscreen, scripted.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "core/files/multi_icon_test_files.h"
#include "gui/files/frm_vexlo_multi_icon.h"
#include "gui/files/icon_list_box.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/window_host.h"
#include "scripted_dialogs.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

using files::test::kThreePics;
using gui::frmVexloMultiIcon;
using host::MsgAnswer;

class MultiIconDialog : public ::testing::Test {
protected:
    std::string Make(const std::vector<files::test::Pic>& pics, const char* name = "name.ico") {
        const std::string path = folder.Path(name);
        files::test::WriteFileBytes(path, files::test::MultiIconBytes(pics));
        return path;
    }
    static QStringList Lines(const frmVexloMultiIcon& dlg) {
        QStringList out;
        const gui::IconListBox* list = dlg.lisIcons[static_cast<std::size_t>(dlg.Model().AddFace())];
        for (int i = 0; i < list->count(); ++i) out << list->item(i)->text();
        return out;
    }
    static void ClickLine(gui::IconListBox* list, int row) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
    }

    TestFolder folder{"vexlo_multi_icon_dialog"};
    ScriptedHost host;
};

TEST_F(MultiIconDialog, AClickOrAKeyOnALinePreviewsIt) {
    const std::string path = Make(kThreePics);
    frmVexloMultiIcon dlg(host, path, 0);
    ASSERT_TRUE(dlg.Activate());
    dlg.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dlg));
    gui::IconListBox* list = dlg.lisIcons[0];
    const struct {
        int row, side;
    } clicks[] = {{0, 16}, {2, 48}, {1, 32}};
    for (const auto& c : clicks) {
        ClickLine(list, c.row);
        EXPECT_EQ(list->SelectedRow(), c.row);
        EXPECT_EQ(dlg.Model().Selected(), c.row);
        EXPECT_EQ(dlg.Model().IconInFile(0).Width(), c.side) << c.row;
        // The picture at true size, centred on its frame.
        EXPECT_EQ(dlg.picIconInFile[0]->geometry().size(), QSize(c.side, c.side));
        EXPECT_EQ(dlg.picIconInFile[0]->geometry().center(), dlg.lblIconInFile[0]->geometry().center());
    }
    QTest::keyClick(list, Qt::Key_Up);
    EXPECT_EQ(dlg.Model().Selected(), 0);
    EXPECT_EQ(dlg.Model().IconInFile(0).Width(), 16);

    // A click on the line already highlighted reads the image again.
    files::test::WriteFileBytes(path, files::test::MultiIconBytes({{16, surface::Rgb(0, 0, 255)}, kThreePics[1]}));
    ClickLine(list, 0);
    EXPECT_EQ(dlg.Model().IconInFile(0).GetPixel(5, 5), surface::Rgb(0, 0, 255));
}

TEST_F(MultiIconDialog, TheListHasTwoTabStopsAtThirtyAndSixtyDialogUnits) {
    QFont font;
    font.setFamily(QStringLiteral("Tahoma"));
    const QFontMetrics metrics(font);
    const qreal unit = metrics.horizontalAdvance(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz")) / 52.0 / 4;
    const QList<qreal> stops = gui::ListTabStops(metrics);
    ASSERT_EQ(stops.size(), 2);
    EXPECT_DOUBLE_EQ(stops[0], 30 * unit);
    EXPECT_DOUBLE_EQ(stops[1], 60 * unit);
    EXPECT_DOUBLE_EQ(gui::DefaultTabDistance(metrics), 32 * unit);
}

TEST_F(MultiIconDialog, ButtonsGoToTheModelAndTheControlsFollowIt) {
    frmVexloMultiIcon one(host, Make({kThreePics[1]}, "one.ico"), 0);
    ASSERT_TRUE(one.Activate());
    EXPECT_TRUE(one.cmdEdit->isEnabled());
    for (QPushButton* b : {one.cmdRemove[0], one.cmdSplitSave[0], one.cmdSaveSingle[0]}) EXPECT_FALSE(b->isEnabled());

    const std::string path = Make(kThreePics);
    frmVexloMultiIcon dlg(host, path, 0);
    ASSERT_TRUE(dlg.Activate());
    dlg.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dlg));
    ClickLine(dlg.lisIcons[0], 0);
    host.Answer(MsgAnswer::Yes);
    QTest::mouseClick(dlg.cmdRemove[0], Qt::LeftButton);
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::RemoveQuestion(path));
    EXPECT_EQ(Lines(dlg), QStringList({"Ref 1  \t8 BPP\t256-Color\t  32 x 32", "Ref 2  \t1 BPP\t2-Color\t  48 x 48"}));
    EXPECT_EQ(dlg.lisIcons[0]->SelectedRow(), 0);
    EXPECT_EQ(dlg.picIconInFile[0]->geometry().size(), QSize(32, 32));
    EXPECT_EQ(dlg.focusWidget(), dlg.lisIcons[0]);
    EXPECT_EQ(host.hourglassDepth, 0);
}

// Runs step on the dialog once it is shown modally.
void WhenShown(std::function<void(frmVexloMultiIcon&)> step) {
    QTimer::singleShot(0, [step] {
        auto* dlg = qobject_cast<frmVexloMultiIcon*>(QApplication::activeModalWidget());
        ASSERT_NE(dlg, nullptr);
        step(*dlg);
    });
}

TEST_F(MultiIconDialog, RunShowsTheCaptionsAndAnswersTheButtonPressed) {
    const std::string path = Make(kThreePics);
    surface::Surface icon(16, 16, 0);
    icon.Fill(surface::Rgb(0, 255, 0));
    const struct {
        int mode;
        const char* button;
        const char* choice;
    } cases[] = {{0, "Edit", "01/32/256/8"}, {0, "Close", ""}, {1, "Save", "1"}, {1, "Save As", "2"}, {1, "Close", ""}};
    for (const auto& c : cases) {
        WhenShown([&](frmVexloMultiIcon& dlg) {
            EXPECT_EQ(dlg.windowTitle().toStdString(), dlg.Model().Caption());
            if (c.mode == 0) {
                EXPECT_EQ(dlg.lblFileToEdit[0]->text().toStdString(), path);
            } else {
                EXPECT_EQ(dlg.lblExistingFile[1]->text().toStdString(), path);
                EXPECT_EQ(dlg.lblCurrIcon[1]->text(), "16-color     Size: 16x16");
                EXPECT_EQ(dlg.PicCurrIcon->geometry().size(), QSize(16, 16));
                EXPECT_EQ(dlg.PicCurrIcon->geometry().center(), dlg.lblCurrIconBase->geometry().center());
                EXPECT_EQ(dlg.focusWidget(), dlg.cmdSaveAdd[0]);
            }
            const auto face = static_cast<std::size_t>(c.mode);
            for (QPushButton* b : {dlg.cmdEdit, dlg.cmdSaveAdd[0], dlg.cmdSaveAdd[1], dlg.cmdClose[face]})
                if (b->text() == c.button) QTest::mouseClick(b, Qt::LeftButton);
        });
        const host::MultiIconAnswer a =
            frmVexloMultiIcon::Run(host, nullptr, path, c.mode, &icon, "16-color     Size: 16x16");
        EXPECT_EQ(a.Choice, c.choice) << c.button;
        EXPECT_EQ(a.Image.Width(), *c.choice != '\0' && c.mode == 0 ? 32 : 0) << c.button;
    }
    // A file that can't be read: an empty answer at once, with no window.
    EXPECT_EQ(frmVexloMultiIcon::Run(host, nullptr, path + ".none", 0, nullptr, "").Choice, "");
}

TEST_F(MultiIconDialog, TheWindowsHostShowsTheDialogAndAsksItsQuestions) {
    const ScopedScriptedDialogs scripted(host);
    const std::string path = Make(kThreePics);
    WhenShown([](frmVexloMultiIcon& dlg) {
        QTest::mouseClick(dlg.cmdRemove[0], Qt::LeftButton);
        QTest::mouseClick(dlg.cmdClose[0], Qt::LeftButton);
    });
    host.Answer(MsgAnswer::Yes);
    gui::WindowHost windowHost;
    EXPECT_EQ(windowHost.ShowMultiIcon(path, 0, nullptr, "").Choice, "");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::RemoveQuestion(path));
    files::IconSet set;
    EXPECT_EQ(files::ReadIconSet(path, set), 2);
    EXPECT_EQ(windowHost.HourglassDepth(), 0);
}

}  // namespace
}  // namespace vexlo::test
