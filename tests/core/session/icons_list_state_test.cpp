// The Icons List's own state without a session: lots and pages, the hit test, the selection
// box, the scroll bar, the folder listing and the names, and how a library's icon is drawn.
#include <gtest/gtest.h>

#include <fstream>

#include "core/session/icons_list/icons_list_session.h"
#include "core/session/icons_list/list_sources.h"
#include "core/utilities/file_pattern.h"
#include "support/picture_grid.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

using session::IconsListSession;

// A list of n items of one lot chosen, as a list maker leaves it.
IconsListSession ListOf(int n, int lot = 0) {
    IconsListSession list;
    list.SetAllItems("/x.ani", n);
    list.FillLotNumbers();
    list.SelectLot(lot);
    list.SetLotCount(std::min(n - lot * 48, 48));
    list.SetPageButtonsForLot();
    return list;
}

TEST(IconsListState, LotsOf48AndPagesOf12) {
    struct Case {
        int items, lot, lots, inLot;
        std::array<bool, 4> pages;
        bool nextLot;
    };
    for (const Case& c : {Case{1, 0, 1, 1, {true, false, false, false}, false},
                          Case{13, 0, 1, 13, {true, true, false, false}, false},
                          Case{48, 0, 1, 48, {true, true, true, true}, false},
                          Case{49, 0, 2, 48, {true, true, true, true}, true},
                          Case{49, 1, 2, 1, {true, false, false, false}, true},
                          Case{97, 2, 3, 1, {true, false, false, false}, true}}) {
        SCOPED_TRACE(c.items);
        const IconsListSession list = ListOf(c.items, c.lot);
        EXPECT_EQ(list.Controls().LotCount, c.lots);
        EXPECT_EQ(list.LotFirst(), c.lot * 48);
        EXPECT_EQ(list.LotCount(), c.inLot);
        EXPECT_EQ(list.Controls().PageEnabled, c.pages);
        EXPECT_EQ(list.Controls().NextPanelEnabled, c.nextLot);
        EXPECT_EQ(list.MarkedPage(), 0);
    }
}

TEST(IconsListState, PagesLandOnTheirFirstRowAndAFullPageFitsTheView) {
    IconsListSession list;
    EXPECT_EQ(list.Controls().ScrollMax, session::kListPictureHeight - session::kListViewHeight - 16);
    for (int k = 0; k < 4; ++k) EXPECT_EQ(list.PageValue(k), k * 4 * 72);
    EXPECT_GE(session::kListViewHeight, 4 * 72);
    EXPECT_EQ(list.Controls().SmallChange, 72);
    EXPECT_EQ(list.Controls().LargeChange, 144);
}

TEST(IconsListState, HitTestFindsCellsOfTheLotAndMissesBehindIt) {
    // Cells of the hit test: 231 / 3 = 77 wide, 1172 / 16 = 73.25, so 73 high.
    struct Case {
        double x, y;
        int column, row, item;
    };
    IconsListSession first = ListOf(49, 0);
    for (const Case& c : {Case{0, 0, 1, 1, 1}, Case{76.9, 72.9, 1, 1, 1}, Case{77, 0, 2, 1, 2},
                          Case{230, 73, 3, 2, 6}, Case{100, 1167, 2, 16, 47},
                          Case{100, 1168, 2, 0, 0}}) {
        const session::ListHit hit = first.HitTest(c.x, c.y);
        EXPECT_EQ(hit.Column, c.column) << c.x << "," << c.y;
        EXPECT_EQ(hit.Row, c.row) << c.x << "," << c.y;
        EXPECT_EQ(hit.Item, c.item) << c.x << "," << c.y;
    }
    IconsListSession second = ListOf(49, 1);  // one thumbnail in the second lot
    EXPECT_EQ(second.HitTest(10, 10).Item, 49);
    EXPECT_EQ(second.HitTest(80, 10).Item, 0);
    EXPECT_EQ(second.HitTest(10, 80).Item, 0);
}

TEST(IconsListState, SelectionBoxIsInvertedAndMovesWithoutTrace) {
    IconsListSession list = ListOf(48);
    const Surface white = list.Picture();
    list.DrawSelectionBox(2, 2);  // corners (76, 72) and (152, 144), two pixels wide inside
    const Surface& p = list.Picture();
    EXPECT_EQ(p.GetPixel(76, 72), 0u);
    EXPECT_EQ(p.GetPixel(77, 100), 0u);
    EXPECT_EQ(p.GetPixel(78, 100), 0xFFFFFFu);
    EXPECT_EQ(p.GetPixel(152, 144), 0u);
    EXPECT_EQ(p.GetPixel(151, 143), 0u);
    EXPECT_EQ(p.GetPixel(150, 142), 0xFFFFFFu);
    EXPECT_EQ(p.GetPixel(153, 100), 0xFFFFFFu);
    list.DrawSelectionBox(3, 16);  // the first one is taken off
    EXPECT_EQ(p.GetPixel(76, 72), 0xFFFFFFu);
    EXPECT_EQ(p.GetPixel(152, 1080), 0u);
    EXPECT_EQ(p.GetPixel(228, 1152), 0u);
    IconsListSession fresh = ListOf(48);
    fresh.DrawSelectionBox(3, 16);
    EXPECT_TRUE(SamePixels(p, fresh.Picture()));
    EXPECT_FALSE(SamePixels(p, white));
}

TEST(IconsListSources, FolderListingTakesIcoFilesOfAnyCaseInNameOrder) {
    TestFolder folder("vexlo_list_sources");
    for (const char* name : {"b.ico", "A.ICO", "c.Ico", "notes.txt", "ico", "d.ico.bak"})
        std::ofstream(folder.Path(name)) << "x";
    std::filesystem::create_directory(folder.Path("e.ico"));
    std::error_code ec;
    const std::string dir = folder.Dir().string();
    const std::vector<std::string> want = {dir + "/A.ICO", dir + "/b.ico", dir + "/c.Ico"};
    EXPECT_EQ(session::ListFolderFiles(dir, "*.ico", ec), want);
    EXPECT_EQ(session::ListFolderFiles(dir + "/", "*.ico", ec), want);
    EXPECT_FALSE(ec);
    EXPECT_EQ(session::ListFolderFiles(dir, "*", ec).size(), 6u);
    std::filesystem::create_symlink(folder.Path("b.ico"), folder.Path("link.ico"));
    EXPECT_EQ(session::ListFolderFiles(dir, "*.ico", ec).size(), 4u);
    EXPECT_TRUE(session::ListFolderFiles(dir + "/gone", "*", ec).empty());
    EXPECT_TRUE(ec);
}

TEST(IconsListSources, TheListingFollowsTheFolderDialogsOrder) {
    TestFolder folder("vexlo_list_order");
    std::vector<std::string> names = {"b.ico", "_x.ico", "A.ico", "a.ico", "ab.ico", "AB.ico",
                                      "Z.ico", "[.ico", "\xC3\xA9.ico", "a0.ico"};
    for (const std::string& name : names) std::ofstream(folder.Path(name)) << "x";
    std::sort(names.begin(), names.end(), utilities::FileNameLess);
    std::error_code ec;
    const std::vector<std::string> listed = session::ListFolderFiles(folder.Dir().string(), "*", ec);
    ASSERT_EQ(listed.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(listed[i], folder.Path(names[i]));
}

TEST(IconsListSources, LabelsAndNames) {
    EXPECT_EQ(session::StemLabel("/a/b/short.ico"), "short");
    EXPECT_EQ(session::StemLabel("/a/12345678.ico"), "12345678");
    EXPECT_EQ(session::StemLabel("/a/123456789.ico"), "12345678..");
    EXPECT_EQ(session::StemLabel("/a/\xC3\xA9t\xC3\xA9_longname.ico"), "\xC3\xA9t\xC3\xA9_long..");
    EXPECT_EQ(session::StemLabel("/a/v1.2.tar.ico"), "v1.2.tar");
    EXPECT_EQ(session::NumberLabel(0), "1  ");
    EXPECT_EQ(session::ExtractedIconName("/opt/vexlo", "/x/y/app.dll", 7), "/opt/vexlo/app_7");
    EXPECT_EQ(session::ExtractedIconName("/opt/vexlo/", "/d/Home.desktop", 0), "/opt/vexlo/Home_Extract");
}

TEST(LibraryIconDrawing, NormalOverWhiteAndStretchedToTheAskedSize) {
    session::LibraryIcon icon;
    icon.Image = Surface(2, 2, 0);
    icon.Mask = Surface(2, 2, 0);
    PlanesOf({"r.", "~b"}, icon.Image, icon.Mask);
    icon.Image.SetPixelV(0, 1, 0x00FF00);  // green under a set mask inverts white
    icon.Mask.SetPixelV(0, 1, 0xFFFFFF);
    Surface target(6, 6, 0xFFFFFF);
    ASSERT_TRUE(session::DrawIconNormal(target, 1, 1, 4, icon));
    EXPECT_EQ(RowsOf(target), (std::vector<std::string>{"wwwwww", "wrrwww", "wrrwww", "w??bbw",
                                                          "w??bbw", "wwwwww"}));
    EXPECT_EQ(target.GetPixel(1, 3), 0xFF00FFu);  // white XOR green
    Surface mask(2, 2, 0);
    ASSERT_TRUE(session::DrawIconMask(mask, 2, icon));
    EXPECT_EQ(RowsOf(mask), (std::vector<std::string>{"kw", "wk"}));
    session::LibraryIcon broken;
    broken.Image = Surface(2, 2, 0);
    EXPECT_FALSE(session::DrawIconNormal(target, 0, 0, 2, broken));
}

}  // namespace
}  // namespace vexlo::test
