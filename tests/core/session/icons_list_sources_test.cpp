// The Icons List of a library's icons, of a file type and of the desktop, through the session
// with a made-up library and the test's own desktop icons: the menu's guards, paging across
// lots, and what a clicked item puts in the slot.
#include "icons_list_support.h"

#include <filesystem>
#include <fstream>

#include "support/picture_grid.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using session::Frame;

class SourcesTest : public IconsListFlowTest {
protected:
    // A library list of n groups from mnuExtractSub(1) (large) or (2) (small).
    std::string OpenLibrary(int n, bool large = true) {
        library.count = n;
        const std::string path = Path("lib.dll");
        std::ofstream(path) << "MZ";
        host.AnswerOpen(path);
        s.RunMenuItem(large ? "mnuExtractSub(1)" : "mnuExtractSub(2)");
        return path;
    }
    int Page() { return List().MarkedPage(); }
    int Value() { return List().Controls().ScrollValue; }
};

TEST_F(SourcesTest, LargeIconsOfALibraryAndTheClickedOneInTheSlot) {
    library.broken = {1};
    const std::string path = OpenLibrary(3);
    ASSERT_EQ(host.openRequests.size(), 1u);
    EXPECT_EQ(host.openRequests[0].Filter, "(*.dll)|*.dll|(*.exe)|*.exe|(*.res)|*.res|(*.*)|*.*|");
    EXPECT_EQ(host.openRequests[0].DefaultExt, "dll");
    EXPECT_EQ(List().Controls().Caption, "Extract DLL-Large");
    EXPECT_EQ(List().Controls().CountLabel, "Icons  3/3");
    // Group 0 drawn over white at (13, 12): its transparent left column stays white.
    EXPECT_EQ(Picture().GetPixel(13, 12), 0xFFFFFFu);
    EXPECT_EQ(Picture().GetPixel(14, 12), FakeLibrary::ColorOf(0));
    EXPECT_EQ(Picture().GetPixel(13 + 76 + 31, 12 + 31), 0u);  // group 1 failed: black
    EXPECT_FALSE(List().Items()[1].Valid);

    Flows().ReleaseOnList(false, 10, 10);
    const session::IconSlot& slot = s.Current();
    EXPECT_TRUE(slot.Occupied);
    EXPECT_FALSE(slot.InEditingArea);
    EXPECT_EQ(slot.SizeCode, 2);
    EXPECT_EQ(slot.KindText, "Extraction");
    EXPECT_EQ(slot.FileSpec, "/opt/vexlo/lib_1");
    EXPECT_TRUE(slot.NeverSaved);
    EXPECT_FALSE(slot.Changed);
    EXPECT_EQ(slot.ColorCount, 256);  // red 16 is none of the sixteen
    EXPECT_EQ(slot.BitsPerPixel, 8);
    EXPECT_EQ(s.Panel().PanelMask(0).GetPixel(0, 9), 0xFFFFFFu);
    EXPECT_EQ(s.Panel().PanelMask(0).GetPixel(1, 9), 0u);
    EXPECT_EQ(s.Panel().PanelIcon(0).GetPixel(1, 9), FakeLibrary::ColorOf(0));

    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuExtractSub(1)");  // the running source: a message, no dialog
    EXPECT_EQ(LastMessage(), "You are already in \"Extract Large Icons From DLL or Similar Resource\" session.\r\n");
    EXPECT_EQ(host.openRequests.size(), 1u);
    library.count = 5;  // the source button reloads
    host.AnswerOpen(path);
    Flows().InvokeFolderOrFileDialog();
    EXPECT_EQ(List().Controls().CountLabel, "Icons  5/5");
}

TEST_F(SourcesTest, SmallIconsGiveA16x16SlotAndAnEmptyLibrarySaysSo) {
    OpenLibrary(2, false);
    EXPECT_EQ(List().Controls().Caption, "Extract DLL-Small");
    EXPECT_EQ(Picture().GetPixel(13 + 76 + 15, 12 + 15), FakeLibrary::ColorOf(1));
    EXPECT_EQ(Picture().GetPixel(13 + 76 + 16, 12 + 15), 0xFFFFFFu);
    Flows().ReleaseOnList(false, 90, 10);
    EXPECT_EQ(s.Current().SizeCode, 1);
    EXPECT_EQ(s.Current().FileSpec, "/opt/vexlo/lib_2");

    host.Answer(MsgAnswer::Ok);
    library.count = 0;
    host.AnswerOpen(Path("lib.dll"));
    Flows().InvokeFolderOrFileDialog();
    EXPECT_EQ(LastMessage(), Path("lib.dll") + "\r\nNo icon in this file");
}

TEST_F(SourcesTest, APageAtATimeThenTheNextLotAndRoundAgain) {
    OpenLibrary(13);
    EXPECT_EQ(List().Controls().PageEnabled, (std::array<bool, 4>{true, true, false, false}));
    Flows().ClickNextPage();
    EXPECT_EQ(Page(), 1);
    EXPECT_EQ(Value(), 288);
    Flows().ClickNextPage();  // no page 2, no next lot: back to page 0
    EXPECT_EQ(Page(), 0);
    EXPECT_EQ(Value(), 0);
    Flows().ScrollList(40);  // dragging the bar unmarks; next page goes on as from page 0
    EXPECT_EQ(Page(), -1);
    Flows().ClickNextPage();
    EXPECT_EQ(Page(), 1);
    Flows().ClickPageRef(0);
    EXPECT_EQ(Value(), 0);

    library.pictures = 0;
    host.AnswerOpen(Path("lib.dll"));
    library.count = 60;
    Flows().InvokeFolderOrFileDialog();
    EXPECT_EQ(library.pictures, 48);  // one lot is drawn, however many items there are
    Flows().ClickPageRef(3);
    Flows().ClickNextPage();  // the last page: the next lot
    EXPECT_EQ(List().Controls().LotIndex, 1);
    EXPECT_EQ(List().Controls().CountLabel, "Icons  12/60");
    EXPECT_EQ(Page(), 0);
    Flows().ClickNextPage();  // the second lot has one page: round to the first lot
    EXPECT_EQ(List().Controls().LotIndex, 0);
    Flows().ClickNextPanel();
    EXPECT_EQ(List().Controls().LotIndex, 1);
}

TEST_F(SourcesTest, FileTypeIconsLargeAndSmall) {
    const std::string file = Path("report.odt");
    std::ofstream(file) << "x";
    // Large: white everywhere, transparent but the top-left 2x2 (one of them opaque white).
    ListHost::ShellIcon large{Surface(32, 32, 0xFFFFFF), Surface(32, 32, 0xFFFFFF)};
    for (int i = 0; i < 4; ++i) {
        large.Image.SetPixelV(i / 2, i % 2, i == 0 ? 0xFFFFFF : 0x0000FF);
        large.Mask.SetPixelV(i / 2, i % 2, 0);
    }
    host.shellIcons[{file, false}] = large;
    host.shellIcons[{file, true}] = {Surface(16, 16, 0), Surface(16, 16, 0)};
    host.AnswerOpen(file);
    s.RunMenuItem("mnuExtractSub(3)");
    EXPECT_EQ(host.openRequests[0].Filter, "*.exe|*.exe|(*.*)|*.*|");
    EXPECT_EQ(List().Controls().Caption, "Icons Associated With File");
    EXPECT_EQ(List().Last(), 1);
    EXPECT_EQ(Picture().GetPixel(13, 12), 0xFFFFFFu);  // drawn over white
    EXPECT_EQ(Picture().GetPixel(13, 13), 0x0000FFu);

    Flows().ReleaseOnList(false, 90, 10);  // item 2: the small one
    EXPECT_EQ(s.Current().SizeCode, 1);
    EXPECT_EQ(s.Current().FileSpec, "/opt/vexlo/report_2");
    s.ClickPanel(1);
    Flows().ReleaseOnList(true, 10, 10);  // item 1, opened
    EXPECT_EQ(s.Current().SizeCode, 2);
    const std::vector<std::string> corner =
        PlanesRows(s.Icon().Image(), s.Icon().Mask(), 0, 0, 3, 2);
    EXPECT_EQ(corner, (std::vector<std::string>{"wr.", "rr."}));  // white stays white if opaque
}

TEST_F(SourcesTest, DesktopFilesWithTheirIcons) {
    host.Answer(MsgAnswer::Ok);
    s.SetDirectories({});
    s.RunMenuItem("mnuExtractSub(4)");
    EXPECT_EQ(LastMessage(), "No desktop shortcut icon files found");

    session::Directories dirs;
    dirs.ProgramDir = "/opt/vexlo";
    dirs.DesktopFolder = Path("Desktop");
    s.SetDirectories(dirs);
    std::filesystem::create_directory(dirs.DesktopFolder);
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuExtractSub(4)");
    EXPECT_EQ(LastMessage(), "No icons found");
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);

    const std::string app = dirs.DesktopFolder + "/App.desktop";
    std::ofstream(app) << "[Desktop Entry]\nIcon=app\n";
    std::ofstream(dirs.DesktopFolder + "/notes.txt") << "x";
    host.shellIcons[{app, false}] = {Surface(32, 32, 0), Surface(32, 32, 0)};
    s.RunMenuItem("mnuExtractSub(4)");
    EXPECT_EQ(List().Controls().Caption, "Desktop Icons");
    EXPECT_FALSE(List().Controls().InvokeVisible);
    EXPECT_TRUE(List().Items()[0].Valid);
    EXPECT_FALSE(List().Items()[1].Valid);  // no icon for it: black
    Flows().ReleaseOnList(false, 10, 10);
    EXPECT_EQ(s.Current().FileSpec, "/opt/vexlo/App_Extract");
    EXPECT_EQ(s.Current().ColorCount, 2);
}

TEST_F(SourcesTest, AnExtractionOfAnotherSizeIsRefusedAndTheSlotStays) {
    Surface image(20, 20, 0), mask(20, 20, 0);
    host.Answer(MsgAnswer::Ok);
    EXPECT_FALSE(Flows().StoreExtractedIcon(image, mask, "x"));
    EXPECT_EQ(LastMessage(), "Width and height of this image not 16x16, 32x32 or 48x48");
    EXPECT_FALSE(s.Current().Occupied);
    Surface ok(48, 48, 0), okMask(48, 48, 0);
    EXPECT_TRUE(Flows().StoreExtractedIcon(ok, okMask, ""));
    EXPECT_EQ(s.Current().FileSpec, "Extracted");
    EXPECT_EQ(s.Current().SizeCode, 3);
}

TEST_F(SourcesTest, AChangedIconIsAskedForBeforeAnExtraction) {
    s.FileNew(0);
    s.ApplyToIcon([](Surface& image, Surface&) { image.SetPixelV(0, 0, 0xFF); });
    host.Answer(MsgAnswer::Cancel);
    s.RunMenuItem("mnuExtractSub(1)");
    EXPECT_EQ(LastMessage(), "Save current icon to file?");
    EXPECT_TRUE(host.openRequests.empty());
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
}

}  // namespace
}  // namespace vexlo::test
