// The Icons List in the window, driven through its controls: a folder of icons as a list,
// paging, clicks into the slots, a dropped folder, and the icons of a file type from the
// installed icon theme. With $VEXLO_SHOT_DIR set, the window is saved there at each step.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QUrl>

#include <filesystem>
#include <fstream>

#include "core/extract/extract_test_files.h"
#include "core/files/ico_write.h"
#include "core/session/session_icons_list.h"
#include "gui/icons_list/frm_vexlo_icons_list.h"
#include "gui/icons_list/icons_list_view.h"
#include "gui/platform/shell_icons.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using session::Frame;
using surface::Surface;

class IconsListWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        window = OpenMainWindow();
        // Icons of three sizes in a ring of colors, one bad file among them.
        for (int i = 0; i < 20; ++i) {
            const int side = i % 3 == 0 ? 48 : i % 3 == 1 ? 32 : 16;
            Surface image(side, side, 0), mask(side, side, 0);
            image.Fill(surface::Rgb(40 * (i % 6), 255 - 12 * i, 60 + 9 * i));
            for (int d = 0; d < side; ++d) {  // a transparent diagonal
                image.SetPixelV(d, d, 0);
                mask.SetPixelV(d, d, 0xFFFFFF);
            }
            char name[16];
            std::snprintf(name, sizeof name, "icon%02d.ico", i);
            ASSERT_TRUE(files::WriteIconFile(image, mask, folder.Path(name), {}));
        }
        std::ofstream(folder.Path("broken.ico")) << "not an icon";
    }
    gui::IconsListFrame& ListFrame() { return *window->fraIconsList; }
    session::Session& S() { return window->session(); }
    const session::IconsListSession& List() { return S().Extraction().State(); }
    void Shot(const char* name) {
        SaveShot(window.get(), name);
    }
    void OpenFolder() {
        host.AnswerFolder(folder.Dir().string());
        window->Item("mnuFileOpen(1)")->trigger();
    }

    TestFolder folder{"vexlo_icons_window"};
    ScriptedHost host;
    ScopedScriptedDialogs dialogs{host};
    std::unique_ptr<gui::FrmVexlo> window;
};

TEST_F(IconsListWindowTest, AFolderAsAListPagedAndClickedIntoTheSlots) {
    OpenFolder();
    ASSERT_EQ(S().Form().VisibleFrame, Frame::IconsList);
    EXPECT_TRUE(window->Frames[Frame::IconsList]->isVisible());
    EXPECT_EQ(ListFrame().lblExtract[0]->text(), "Icons In Folder");
    EXPECT_EQ(ListFrame().lblExtract[1]->text(), "Icons  21/21");
    EXPECT_EQ(ListFrame().cboPanelNum->count(), 1);
    EXPECT_TRUE(ListFrame().cmdPageRef[1]->isEnabled());
    EXPECT_FALSE(ListFrame().cmdPageRef[2]->isEnabled());
    EXPECT_FALSE(ListFrame().cmdSaveAllExtractToFiles[0]->isVisible());
    EXPECT_EQ(ListFrame().picIconsList->y(), 0);
    // The bad file sorts first: its cell holds the black square, the next one a thumbnail.
    const QImage shown = ListFrame().picIconsListBase->grab().toImage();
    EXPECT_EQ(shown.pixel(20, 40), qRgb(0, 0, 0));
    EXPECT_NE(shown.pixel(76 + 30, 50), qRgb(255, 255, 255));
    Shot("icons_list_folder");

    QTest::mouseClick(ListFrame().cmdNextPage, Qt::LeftButton);
    EXPECT_EQ(ListFrame().VsrIconsList->value(), 288);
    EXPECT_EQ(ListFrame().picIconsList->y(), -288);
    Shot("icons_list_page2");
    ListFrame().VsrIconsList->setValue(10);  // a drag of the bar unmarks the page buttons
    EXPECT_EQ(List().MarkedPage(), -1);
    QTest::mouseClick(ListFrame().cmdPageRef[0], Qt::LeftButton);
    EXPECT_EQ(ListFrame().VsrIconsList->value(), 0);

    QTest::mouseClick(ListFrame().picIconsList, Qt::LeftButton, {}, QPoint(90, 30));  // icon00
    EXPECT_EQ(S().Current().FileSpec, folder.Path("icon00.ico"));
    EXPECT_EQ(S().Current().SizeCode, 3);
    EXPECT_TRUE(window->Frames[Frame::IconsList]->isVisible());
    Shot("icons_list_clicked");
    host.Answer(MsgAnswer::Ok);
    QTest::mouseClick(ListFrame().picIconsList, Qt::LeftButton, {}, QPoint(20, 20));
    ASSERT_FALSE(host.shown.empty());
    EXPECT_EQ(host.shown.back().text, "This one is an invalid icon file or of\r\na size not 16x16, 32x32 or 48x48.");

    QTest::mouseClick(window->picPanelIcon[1], Qt::LeftButton);
    QTest::mouseClick(ListFrame().picIconsList, Qt::RightButton, {}, QPoint(170, 30));  // icon01
    EXPECT_EQ(S().Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_FALSE(window->Frames[Frame::IconsList]->isVisible());
    EXPECT_EQ(S().CurrentSlot(), 1);
    EXPECT_EQ(S().Current().FileSpec, folder.Path("icon01.ico"));
    EXPECT_TRUE(S().InArea());
    Shot("icons_list_right_click");
}

TEST_F(IconsListWindowTest, AFolderDroppedOnTheWindowIsListed) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(folder.Dir().string()))});
    const QPoint at = window->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(S().Form().VisibleFrame, Frame::IconsList);
    EXPECT_EQ(List().Last(), 20);
    EXPECT_EQ(S().Dirs().LastFolder, folder.Dir().string());
    EXPECT_TRUE(host.folderRequests.empty());  // the drop answered the folder dialog
}

TEST_F(IconsListWindowTest, TheIconsOfAFileTypeFromTheTheme) {
    const std::string file = folder.Path("notes.txt");
    std::ofstream(file) << "plain text";
    if (platform::ShellIconOf(file).isNull()) GTEST_SKIP() << "no icon theme installed";
    host.AnswerOpen(file);
    window->Item("mnuExtractSub(3)")->trigger();
    ASSERT_EQ(S().Form().VisibleFrame, Frame::IconsList);
    EXPECT_EQ(ListFrame().lblExtract[0]->text(), "Icons Associated With File");
    ASSERT_EQ(List().Items().size(), 2u);
    EXPECT_TRUE(List().Items()[0].Valid);
    EXPECT_TRUE(List().Items()[1].Valid);
    Shot("icons_list_file_type");
    QTest::mouseClick(ListFrame().picIconsList, Qt::RightButton, {}, QPoint(90, 30));
    EXPECT_EQ(S().Current().SizeCode, 1);
    EXPECT_EQ(S().Current().KindText, "Extraction");
    // Drawn over white with its mask: some pixels painted, the transparent ones black.
    int painted = 0;
    for (int x = 0; x < 16; ++x)
        for (int y = 0; y < 16; ++y)
            if (S().Icon().Mask().GetPixel(x, y) == 0) ++painted;
            else EXPECT_EQ(S().Icon().Image().GetPixel(x, y), 0u);
    EXPECT_GT(painted, 20);
}

TEST_F(IconsListWindowTest, TheLargeIconsOfAProgramFile) {
    // Five icon groups of 16x16 images in five colors, shown enlarged to 32x32.
    const std::uint32_t colors[] = {0x0000FF, 0x00A000, 0xFF0000, 0x00C0C0, 0x800080};
    std::vector<Resource> res;
    for (std::uint16_t g = 1; g <= 5; ++g) {
        res.push_back(IconImage(g, 16, 24, colors[g - 1]));
        res.push_back(IconGroup(g, {EntryFor(res.back(), 16, 24)}));
    }
    WriteBytes(folder.Path("tools.dll"), pe::BuildPe(res).Bytes);
    host.AnswerOpen(folder.Path("tools.dll"));
    window->Item("mnuExtractSub(1)")->trigger();
    ASSERT_EQ(S().Form().VisibleFrame, Frame::IconsList);
    ASSERT_EQ(List().Items().size(), 5u);
    Shot("icons_list_program_file");
    QTest::mouseClick(ListFrame().picIconsList, Qt::LeftButton, {}, QPoint(76 + 30, 30));
    EXPECT_EQ(S().Current().SizeCode, 2);
    EXPECT_EQ(S().Panel().PanelIcon(0).GetPixel(31, 31), colors[1]);
}

TEST(ShellIcons, ALauncherShowsItsOwnIconAndAPictureItsAlphaAsMask) {
    TestFolder folder("vexlo_shell_icons");
    const std::string launcher = folder.Path("tool.desktop");
    std::ofstream(launcher) << "[Desktop Action x]\nIcon=wrong\n[Desktop Entry]\nName=T\nIcon = "
                            << folder.Path("pic.png") << "\n";
    EXPECT_EQ(platform::DesktopEntryIcon(launcher).toStdString(), folder.Path("pic.png"));
    QImage png(32, 32, QImage::Format_ARGB32);
    png.fill(Qt::transparent);
    for (int y = 4; y < 28; ++y)
        for (int x = 4; x < 28; ++x) png.setPixel(x, y, qRgba(255, 0, 0, x < 16 ? 255 : 100));
    ASSERT_TRUE(png.save(QString::fromStdString(folder.Path("pic.png"))));
    Surface image, mask;
    ASSERT_TRUE(platform::ShellIcon(launcher, false, image, mask));
    ASSERT_EQ(image.Width(), 32);
    EXPECT_EQ(image.GetPixel(0, 0), 0xFFFFFFu);  // transparent: white, masked
    EXPECT_EQ(mask.GetPixel(0, 0), 0xFFFFFFu);
    EXPECT_EQ(image.GetPixel(8, 8), 0x0000FFu);  // opaque red
    EXPECT_EQ(mask.GetPixel(8, 8), 0u);
    EXPECT_EQ(mask.GetPixel(20, 8), 0xFFFFFFu);  // alpha below half: transparent
    ASSERT_TRUE(platform::ShellIcon(launcher, true, image, mask));
    EXPECT_EQ(image.Width(), 16);
}

}  // namespace
}  // namespace vexlo::test
