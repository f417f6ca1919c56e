// The animated cursor container in the main window, driven through its widgets: the menu item
// shows it over the panel frames, its buttons build and move frames, the film shows them and
// redraws only the cells that change, the scroll bar follows, Test runs Timer1. Offscreen,
// scripted. With VEXLO_SHOT_DIR set, the window is also saved there as pictures to look at.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include "gui/ani/ani_container_view.h"
#include "gui/ani/film_view.h"
#include "gui/platform/elided_label.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"
#include "support/test_bytes.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;

class AniContainerTest : public ::testing::Test {
protected:
    void SetUp() override {
        window = OpenMainWindow();
        window->Item("mnuANIFileCreateOrEdit")->trigger();
        ani = window->picANIContainer;
    }
    void Click(int k) { QTest::mouseClick(ani->cmdANI[static_cast<std::size_t>(k)], Qt::LeftButton); }
    void LoadIcon(const std::string& name) {
        host.AnswerOpen(FixturePathOf("ico/" + name));
        Click(15);
    }
    QRgb FilmPixel(int x, int y) { return ani->picFilm->grab().toImage().pixel(x, y) & 0xFFFFFF; }
    void Shot(const char* name) {
        SaveShot(window.get(), name);
    }

    ScriptedHost host;
    ScopedScriptedDialogs dialogs{host};
    std::unique_ptr<gui::FrmVexlo> window;
    gui::AniContainerView* ani = nullptr;
};

TEST_F(AniContainerTest, TheMenuItemShowsTheContainerOverThePanelFrames) {
    ASSERT_TRUE(ani->isVisible());
    const QRect colors = window->Frames[session::Frame::ColorsPanel]->geometry();
    EXPECT_EQ(ani->geometry().top(), colors.top());
    EXPECT_EQ(ani->geometry().height(), session::kAniContainerHeight);
    EXPECT_LE(ani->geometry().right(), colors.right());
    for (int k = 10; k <= 19; ++k) EXPECT_FALSE(ani->cmdANI[static_cast<std::size_t>(k)]->isEnabled()) << k;
    EXPECT_EQ(ani->cmdANI[5]->toolTip(), "Save to ANI file -- Cursor-based");
    Click(3);
    EXPECT_EQ(window->lblStatusPanel[0]->text(), "Untitled");
    EXPECT_EQ(ani->lblANI[0]->text(), "Frame:  1 / 1");
    EXPECT_EQ(ani->lblANI[1]->text(), "Jiffies:  30");
    EXPECT_FALSE(ani->cmdANI[8]->isEnabled());  // one frame: no test
    Click(2);  // minimize: a bar at the bottom of the frames
    EXPECT_EQ(ani->height(), session::kAniMinimizedHeight);
    EXPECT_EQ(ani->geometry().bottom(), colors.bottom() - 1);
    QTest::mouseClick(ani->imgANI, Qt::LeftButton);
    EXPECT_EQ(ani->height(), session::kAniContainerHeight);
}

TEST_F(AniContainerTest, FourFramesByHandShowOnTheFilmAndTestRunsTimer1) {
    Click(3);
    LoadIcon("icotool_32_4bit.ico");
    for (const char* name : {"icotool_32_8bit.ico", "pillow_32_1bit.ico", "pillow_32_24bit.ico"}) {
        Click(12);
        LoadIcon(name);
    }
    EXPECT_EQ(ani->lblANI[0]->text(), "Frame:  4 / 4");
    // Frame 1's picture in its window, red at its top left; frame 4's band is the blue mark.
    EXPECT_EQ(FilmPixel(13, 8), 0xFF0000u);
    EXPECT_EQ(FilmPixel(1, 3 * 50 + 20), 0x0000FFu);
    EXPECT_EQ(FilmPixel(1, 20), 0xE0E0E0u);

    // Going up redraws the two cells whose bands change, and nothing else.
    const int converted = ani->picFilm->CellsConverted();
    Click(18);
    EXPECT_EQ(ani->picFilm->CellsConverted(), converted + 2);
    EXPECT_EQ(FilmPixel(1, 2 * 50 + 20), 0x0000FFu);
    // A click on the film selects the frame under it.
    QTest::mouseClick(ani->picFilm, Qt::LeftButton, {}, QPoint(30, 60));
    EXPECT_EQ(ani->lblANI[0]->text(), "Frame:  2 / 4");
    Shot("ani_four_frames");

    ASSERT_TRUE(ani->cmdANI[8]->isEnabled());
    Click(8);
    EXPECT_EQ(ani->cmdANI[8]->text(), "Stop");
    EXPECT_TRUE(ani->Timer1().Active());
    EXPECT_EQ(ani->Timer1().Interval(), 300);
    Click(8);
    EXPECT_EQ(ani->cmdANI[8]->text(), "Test");
    EXPECT_FALSE(ani->Timer1().Active());
}

TEST_F(AniContainerTest, SeventyFramesScrollOnTheFilm) {
    host.AnswerOpen(FixturePathOf("ani/ico4bit_70.ani"));
    Click(4);
    EXPECT_EQ(window->lblStatusPanel[0]->text().toStdString(), FixturePathOf("ani/ico4bit_70.ani"));
    EXPECT_EQ(ani->picFilm->height(), 70 * 50);
    EXPECT_EQ(ani->VsrANISeries->maximum(), 70 * 50 - session::kSeriesBaseHeight + 2);
    EXPECT_EQ(ani->VsrANISeries->pageStep(), session::kSeriesBaseHeight);
    Shot("ani_seventy_top");
    ani->VsrANISeries->setValue(30 * 50);
    EXPECT_EQ(ani->picFilm->y(), -30 * 50);
    // Frame 31 now stands at the viewport's top: a click there selects it.
    QTest::mouseClick(ani->picFilm, Qt::LeftButton, {}, QPoint(30, 30 * 50 + 20));
    EXPECT_EQ(ani->lblANI[0]->text(), "Frame:  31 / 70");
    Shot("ani_seventy_scrolled");
    host.Answer(MsgAnswer::Ok);
    Click(12);
    EXPECT_EQ(host.shown.back().text, "Maximum 70 frames reached");
}

}  // namespace
}  // namespace vexlo::test
