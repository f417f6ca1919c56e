// Search & extract from exe files in the window, driven through its controls: the frame from
// the Extract menu, the boxes, a search over a folder of program files that runs in slices
// while the window takes events, and Stop half way. With $VEXLO_SHOT_DIR set, the window is
// saved there at each step.
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "core/session/session_search_exe.h"
#include "gui/platform/elided_label.h"
#include "gui/search/frm_vexlo_search_exe.h"
#include "gui/shell/frm_vexlo.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"
#include "support/exe_tree.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;
using session::Frame;

class SearchExeWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        window = OpenMainWindow();
    }
    gui::SearchExeFrame& Frame() { return *window->fraSearchExeInFolder; }
    session::Session& S() { return window->session(); }
    const session::SearchExePanel& State() { return S().SearchExe().State(); }
    void Shot(const char* name) {
        SaveShot(window.get(), name);
    }

    TestFolder folder{"vexlo_search_window"};
    ScriptedHost host;
    ScopedScriptedDialogs dialogs{host};
    std::unique_ptr<gui::FrmVexlo> window;
};

TEST_F(SearchExeWindowTest, TheFrameAndItsBoxes) {
    window->Item("mnuExtractSub(5)")->trigger();
    ASSERT_EQ(S().Form().VisibleFrame, Frame::SearchExeInFolder);
    ASSERT_TRUE(window->Frames[Frame::SearchExeInFolder]->isVisible());
    EXPECT_EQ(Frame().txbMaxIcons->text(), "300");
    EXPECT_TRUE(Frame().cmdSearchExeInFolderProceed->isEnabled());
    EXPECT_FALSE(Frame().cmdStopBrowse->isEnabled());
    EXPECT_EQ(Frame().ckbIncludeSub->text(), "Incl Subdir        Max");
    EXPECT_EQ(Frame().cmdInvokeSearchPath[1]->toolTip(), "Browse folder to search in");

    // Letters are dropped from the limit; an empty box is 1, and more than 10000 is 10000.
    Frame().txbMaxIcons->clear();
    QTest::keyClicks(Frame().txbMaxIcons, "4x2");
    EXPECT_EQ(Frame().txbMaxIcons->text(), "42");
    EXPECT_EQ(State().Controls().MaxIcons, "42");
    QTest::keyClick(Frame().txbMaxIcons, Qt::Key_Backspace);
    QTest::keyClick(Frame().txbMaxIcons, Qt::Key_Backspace);
    EXPECT_EQ(Frame().txbMaxIcons->text(), "1");
    QTest::keyClicks(Frame().txbMaxIcons, "99999");
    EXPECT_EQ(Frame().txbMaxIcons->text(), "10000");

    host.AnswerFolder("/chosen/folder");
    QTest::mouseClick(Frame().cmdInvokeSearchPath[0], Qt::LeftButton);
    EXPECT_EQ(Frame().txbSearchExeDir[0]->text(), "/chosen/folder");
    ASSERT_EQ(host.folderRequests.size(), 1u);
    EXPECT_EQ(host.folderRequests[0].pattern, "*.exe");
    Shot("search_exe_frame");
}

TEST_F(SearchExeWindowTest, ASearchShowsItsProgressAndStopsHalfWay) {
    const fs::path in = folder.Dir() / "in", out = folder.Dir() / "out";
    for (int i = 0; i < 400; ++i)
        WriteBytes(in / ("program" + std::to_string(i) + ".exe"),
                   ProgramWithIcons({static_cast<std::uint32_t>(i), 0x00FF00, 0xFF0000}));
    fs::create_directories(out);
    window->Item("mnuExtractSub(5)")->trigger();
    QTest::keyClicks(Frame().txbSearchExeDir[0], QString::fromStdString(in.string()));
    QTest::keyClicks(Frame().txbSearchExeDir[1], QString::fromStdString(out.string()));
    Frame().txbMaxIcons->selectAll();
    QTest::keyClicks(Frame().txbMaxIcons, "5000");
    QTest::mouseClick(Frame().cmdSearchExeInFolderProceed, Qt::LeftButton);
    EXPECT_FALSE(Frame().cmdSearchExeInFolderProceed->isEnabled());
    EXPECT_TRUE(Frame().cmdStopBrowse->isEnabled());
    EXPECT_EQ(Frame().lblSearchIconsCount->text(), "In progress... (To halt click Stop)");

    // The search goes on in slices while the window takes its events.
    for (int i = 0; i < 1000 && State().Search().Written() < 30; ++i) QTest::qWait(1);
    ASSERT_TRUE(State().Active()) << "the search ended before it could be stopped";
    EXPECT_GE(State().Search().Written(), 30);
    EXPECT_FALSE(Frame().lblSearchCurrentFile->FullText().isEmpty());
    EXPECT_TRUE(window->picProgressContainer->isVisible());
    Shot("search_exe_running");

    QTest::mouseClick(Frame().cmdStopBrowse, Qt::LeftButton);
    EXPECT_FALSE(State().Active());
    const int written = State().Search().Written();
    EXPECT_LT(written, 1200);
    EXPECT_EQ(Frame().lblSearchIconsCount->text(), QString("Total: %1 icons").arg(written));
    EXPECT_EQ(static_cast<int>(FileNamesIn(out).size()), written);
    EXPECT_TRUE(Frame().cmdSearchExeInFolderProceed->isEnabled());
    EXPECT_FALSE(window->picProgressContainer->isVisible());
    // Nothing more is written once stopped.
    QTest::qWait(50);
    EXPECT_EQ(static_cast<int>(FileNamesIn(out).size()), written);
    Shot("search_exe_stopped");
}

}  // namespace
}  // namespace vexlo::test
