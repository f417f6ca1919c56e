// The Icons List of a folder's ICO files through the session: the lots and their thumbnails
// where the layout puts them, clicks into the slots, and the refusals.
#include "icons_list_support.h"

#include <filesystem>
#include <fstream>

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using session::Frame;

constexpr Color kRed = 0x0000FF, kBlue = 0xFF0000, kGreen = 0x00FF00, kYellow = 0x00FFFF;

class FolderListTest : public IconsListFlowTest {
protected:
    // Opens the list of the folder through File Open's entry 1.
    void OpenFolder(const std::string& dir) {
        host.AnswerFolder(dir);
        s.RunMenuItem("mnuFileOpen(1)");
    }
    // Thumbnails go at (13, 12) in their cell without label text (the host draws none).
    static bool Block(const Surface& p, int x, int y, int side, Color c) {
        for (int i = 0; i < side; ++i)
            for (int j = 0; j < side; ++j)
                if (p.GetPixel(x + i, y + j) != c) return false;
        return p.GetPixel(x + side, y) != c && p.GetPixel(x, y + side) != c;
    }
};

TEST_F(FolderListTest, FortyNineIconsMakeTwoLotsDrawnInTheirCells) {
    const std::string dir = Path("icons");
    std::filesystem::create_directory(dir);
    WriteSolidIcon(dir + "/i00.ico", 16, kRed);
    WriteSolidIcon(dir + "/i01.ico", 32, kBlue);
    WriteSolidIcon(dir + "/i02.ico", 48, kGreen);
    std::ofstream(dir + "/i03.ico") << "not an icon";
    for (int i = 4; i < 49; ++i) WriteSolidIcon(dir + "/i" + std::to_string(i) + ".ico", 16, kYellow);
    OpenFolder(dir);

    ASSERT_EQ(host.folderRequests.size(), 1u);
    EXPECT_EQ(host.folderRequests[0].pattern, "*.ico");
    EXPECT_EQ(host.folderRequests[0].startFolder, "/start");
    EXPECT_EQ(s.Dirs().LastFolder, dir);
    EXPECT_EQ(s.Form().VisibleFrame, Frame::IconsList);
    EXPECT_EQ(s.Form().Status.Panel[0], "[Successive Loading Session]");
    const session::IconsListControls& c = List().Controls();
    EXPECT_EQ(c.Caption, "Icons In Folder");
    EXPECT_EQ(c.CountLabel, "Icons  48/49");
    EXPECT_EQ(c.LotCount, 2);
    EXPECT_TRUE(c.InvokeVisible);
    EXPECT_FALSE(c.SaveAllVisible);
    EXPECT_TRUE(c.NextPanelEnabled);
    EXPECT_EQ(List().Source(), dir);
    EXPECT_FALSE(s.Form().Status.ProgressVisible);

    EXPECT_TRUE(Block(Picture(), 13, 12, 16, kRed));
    EXPECT_TRUE(Block(Picture(), 76 + 13, 12, 32, kBlue));
    EXPECT_TRUE(Block(Picture(), 152 + 13, 12, 48, kGreen));
    EXPECT_TRUE(Block(Picture(), 13, 72 + 12, 32, 0));  // the bad file: a black square
    EXPECT_FALSE(List().Items()[3].Valid);
    EXPECT_TRUE(List().Items()[47].Valid);
    EXPECT_TRUE(Block(Picture(), 152 + 13, 15 * 72 + 12, 16, kYellow));
    // Every thumbnail is shown as it comes, with pending events let run after it.
    EXPECT_GE(host.listRefreshes, 48);
    EXPECT_GE(host.doEventsCount, 48);

    Flows().ClickLotNumber(1);
    EXPECT_EQ(List().Controls().CountLabel, "Icons  1/49");
    EXPECT_EQ(List().LotCount(), 1);
    EXPECT_EQ(List().Controls().PageEnabled, (std::array<bool, 4>{true, false, false, false}));
    EXPECT_TRUE(Block(Picture(), 13, 12, 16, kYellow));
    EXPECT_EQ(Picture().GetPixel(76 + 13, 12), 0xFFFFFFu);
}

TEST_F(FolderListTest, AFolderWithoutIconsShowsNoneAndClicksDoNothing) {
    std::ofstream(Path("readme.txt")) << "x";
    OpenFolder(folder.Dir().string());
    EXPECT_EQ(List().Controls().CountLabel, "Icons  0 / 0");
    EXPECT_FALSE(List().Controls().LotListEnabled);
    EXPECT_FALSE(List().Controls().NextPageEnabled);
    EXPECT_EQ(List().Controls().LotCount, 0);
    EXPECT_EQ(s.Dirs().LastFolder, folder.Dir().string());
    Flows().ReleaseOnList(false, 20, 20);
    EXPECT_FALSE(s.Current().Occupied);
    // The source button asks again for a folder of the same kind.
    host.AnswerFolder("");
    Flows().InvokeFolderOrFileDialog();
    EXPECT_EQ(host.folderRequests.size(), 2u);
}

TEST_F(FolderListTest, ClicksFillTheChosenSlotsAndTheRightButtonOpensIt) {
    const std::string dir = Path("set");
    std::filesystem::create_directory(dir);
    WriteSolidIcon(dir + "/a.ico", 16, kRed);
    WriteSolidIcon(dir + "/b.ico", 32, kBlue);
    std::ofstream(dir + "/c.ico") << "bad";
    OpenFolder(dir);

    Flows().ReleaseOnList(false, 20, 20);  // a.ico, left: the list stays up
    EXPECT_TRUE(s.Current().Occupied);
    EXPECT_EQ(s.Current().FileSpec, dir + "/a.ico");
    EXPECT_EQ(s.Current().SizeCode, 1);
    EXPECT_FALSE(s.InArea());
    EXPECT_EQ(s.Form().VisibleFrame, Frame::IconsList);
    EXPECT_EQ(s.Form().Status.Panel[0], "[Successive Loading Session]");
    EXPECT_TRUE(List().BoxDrawn());
    EXPECT_EQ(s.Panel().PanelIcon(0).GetPixel(3, 3), kRed);

    host.Answer(MsgAnswer::Ok);
    Flows().ReleaseOnList(false, 160, 20);  // c.ico gave no thumbnail
    EXPECT_EQ(LastMessage(), "This one is an invalid icon file or of\r\na size not 16x16, 32x32 or 48x48.");
    const std::size_t shown = host.shown.size();
    Flows().ReleaseOnList(false, 200, 100);  // behind the last thumbnail
    EXPECT_EQ(host.shown.size(), shown);

    s.ClickPanel(1);  // with the list up only the highlight moves
    EXPECT_EQ(s.CurrentSlot(), 1);
    EXPECT_EQ(s.Form().VisibleFrame, Frame::IconsList);
    Flows().ReleaseOnList(true, 90, 30);  // b.ico, right: the slot opens and the list goes
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_TRUE(s.InArea());
    EXPECT_EQ(s.Icon().Image().GetPixel(31, 31), kBlue);
    EXPECT_TRUE(List().Empty());
    EXPECT_EQ(s.Panel().Slot(0).FileSpec, dir + "/a.ico");
}

TEST_F(FolderListTest, AFileGoneSinceTheListWasMadeIsMissing) {
    const std::string dir = Path("gone");
    std::filesystem::create_directory(dir);
    WriteSolidIcon(dir + "/a.ico", 16, kRed);
    OpenFolder(dir);
    std::filesystem::remove(dir + "/a.ico");
    host.Answer(MsgAnswer::Ok);
    Flows().ReleaseOnList(false, 20, 20);
    ASSERT_FALSE(host.shown.empty());
    EXPECT_EQ(host.shown.back().text, dir + "/a.ico file missing.\r\n");
    EXPECT_EQ(host.shown.back().icon, host::MsgIcon::Exclamation);
    EXPECT_FALSE(s.Current().Occupied);
}

TEST_F(FolderListTest, TheFolderEntryGuardsAChangedIconAndARunningList) {
    s.FileNew(0);
    s.ApplyToIcon([](Surface& image, Surface&) { image.SetPixelV(0, 0, kRed); });
    host.Answer(MsgAnswer::Cancel);  // "Save current icon to file?"
    s.RunMenuItem("mnuFileOpen(1)");
    EXPECT_TRUE(host.folderRequests.empty());
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);

    host.Answer(MsgAnswer::No);
    OpenFolder(folder.Dir().string());
    EXPECT_FALSE(s.InArea());  // parked while the list is up
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileOpen(1)");
    EXPECT_EQ(LastMessage(), "You are already in \"List All Icons in Folder\" session.\r\nThere are command buttons there.");
    s.CancelFrame();
    EXPECT_TRUE(s.InArea());
    EXPECT_EQ(s.Current().SizeCode, 2);
}

}  // namespace
}  // namespace vexlo::test
