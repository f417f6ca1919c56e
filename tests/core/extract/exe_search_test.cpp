// The EXE search over folder trees made in the test: the order of files and subfolders, the
// limit, the subfolder switch, damaged and odd entries passed over, link loops, the names and
// pixels of the files written, and a stop half way.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/alpha/alpha_array.h"
#include "core/extract/exe_search.h"
#include "core/files/ico_read.h"
#include "support/exe_tree.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;
using extract::ExeSearch;
using extract::ExeSearchOptions;

constexpr std::uint32_t kRed = 0x0000FF, kGreen = 0x00FF00, kBlue = 0xFF0000;

class ExeSearchTest : public ::testing::Test {
protected:
    // root: A.EXE (1 icon), b.exe (2), bad.exe (not a program), cut.exe (headers cut short),
    // noicon.exe (a program without icons), lib.dll and readme.txt (not searched);
    // sub1/x.exe (1), sub2/y.exe (3), sub2/deep/z.exe (1), and a folder folder.exe/w.exe (1).
    void SetUp() override {
        const ByteVec b = ProgramWithIcons({kGreen, kBlue});
        WriteBytes(Root() / "A.EXE", ProgramWithIcons({kRed}));
        WriteBytes(Root() / "b.exe", b);
        WriteBytes(Root() / "bad.exe", ByteVec{'M', 'Z', 1, 2, 3});
        WriteBytes(Root() / "cut.exe", ByteVec(b.begin(), b.begin() + 0x90));
        WriteBytes(Root() / "noicon.exe", ProgramWithIcons({}));
        WriteBytes(Root() / "lib.dll", b);
        WriteBytes(Root() / "readme.txt", ByteVec{'h', 'i'});
        WriteBytes(Root() / "sub1" / "x.exe", ProgramWithIcons({0x123456}));
        WriteBytes(Root() / "sub2" / "y.exe", ProgramWithIcons({0x111111, 0x222222, 0x333333}));
        WriteBytes(Root() / "sub2" / "deep" / "z.exe", ProgramWithIcons({0x444444}));
        WriteBytes(Root() / "folder.exe" / "w.exe", ProgramWithIcons({0x555555}));
        fs::create_directories(Out());
    }
    fs::path Root() const { return folder.Dir() / "in"; }
    fs::path Out() const { return folder.Dir() / "out"; }

    ExeSearchOptions Options(bool sub, int max, bool small = false) const {
        return {Root().string(), Out().string(), sub, max, small};
    }
    // Runs the search to its end; the number of steps taken.
    static int RunToEnd(ExeSearch& search) {
        int steps = 0;
        while (search.Step()) ++steps;
        return steps;
    }

    TestFolder folder{"vexlo_exe_search"};
};

TEST_F(ExeSearchTest, WritesEachIconInWalkOrderUpToTheLimit) {
    struct Case {
        bool Sub;
        int Max;
        std::vector<std::string> Written;
        int Scanned, Skipped;
    };
    const std::vector<std::string> all = {"0_z.ico", "1_y.ico", "2_y.ico", "3_y.ico", "4_x.ico",
                                          "5_w.ico", "6_A.ico", "7_b.ico", "8_b.ico"};
    const Case cases[] = {
        // Subfolders first, the last by name first, each walked whole; then the folder's files.
        {true, 300, all, 9, 2},
        // Without subfolders: only the folder's own EXE files, whatever the case of ".exe".
        {false, 300, {"0_A.ico", "1_b.ico", "2_b.ico"}, 5, 2},
        {true, 1, {"0_z.ico"}, 1, 0},
        // The limit reached in the middle of a file's icons leaves the rest of it.
        {true, 3, {"0_z.ico", "1_y.ico", "2_y.ico"}, 2, 0},
        {false, 2, {"0_A.ico", "1_b.ico"}, 2, 0},
        {true, 9, all, 6, 0},
        // A limit below 1 counts as 1.
        {false, 0, {"0_A.ico"}, 1, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << "sub " << c.Sub << " max " << c.Max);
        fs::remove_all(Out());
        fs::create_directories(Out());
        ExeSearch search;
        std::error_code ec;
        ASSERT_TRUE(search.Start(Options(c.Sub, c.Max), ec)) << ec.message();
        RunToEnd(search);
        EXPECT_FALSE(search.Running());
        EXPECT_FALSE(search.StopRequested());
        EXPECT_EQ(search.Written(), static_cast<int>(c.Written.size()));
        EXPECT_EQ(FileNamesIn(Out()), Sorted(c.Written));
        EXPECT_EQ(search.FilesScanned(), c.Scanned);
        EXPECT_EQ(search.FilesSkipped(), c.Skipped);
        EXPECT_EQ(search.WriteFailures(), 0);
    }
}

TEST_F(ExeSearchTest, WrittenFilesHoldTheIconAtTheSizeAsked) {
    for (const bool small : {false, true}) {
        fs::remove_all(Out());
        fs::create_directories(Out());
        ExeSearch search;
        std::error_code ec;
        ASSERT_TRUE(search.Start(Options(false, 300, small), ec));
        RunToEnd(search);
        const int side = small ? 16 : 32;
        // File by file, the color of its group; the left column is transparent.
        const std::pair<const char*, std::uint32_t> expected[] = {
            {"0_A.ico", kRed}, {"1_b.ico", kGreen}, {"2_b.ico", kBlue}};
        for (const auto& [name, color] : expected) {
            SCOPED_TRACE(name);
            surface::Surface image, mask;
            alpha::AlphaArray alpha;
            ASSERT_TRUE(files::ReadIconFileToImage((Out() / name).string(), 0, image, mask, alpha));
            ASSERT_EQ(image.Width(), side);
            ASSERT_EQ(image.Height(), side);
            for (int y = 0; y < side; y += 5) {
                EXPECT_EQ(image.GetPixel(0, y), 0u);
                EXPECT_EQ(mask.GetPixel(0, y), 0xFFFFFFu);
                EXPECT_EQ(image.GetPixel(side - 1, y), color);
                EXPECT_EQ(mask.GetPixel(side - 1, y), 0u);
            }
        }
    }
}

TEST_F(ExeSearchTest, LinkLoopsFifosAndDanglingLinksArePassedOver) {
    const fs::path loops = folder.Dir() / "loops";
    WriteBytes(loops / "r.exe", ProgramWithIcons({kRed}));
    WriteBytes(loops / "sub" / "s.exe", ProgramWithIcons({kGreen}));
    fs::create_directory_symlink(loops, loops / "loop");
    fs::create_directory_symlink("..", loops / "sub" / "up");
    fs::create_symlink(loops / "r.exe", loops / "alias.exe");
    fs::create_symlink(loops / "gone.exe", loops / "dangling.exe");
    ASSERT_EQ(::mkfifo((loops / "pipe.exe").c_str(), 0600), 0);
    ExeSearch search;
    std::error_code ec;
    ASSERT_TRUE(search.Start({loops.string(), Out().string(), true, 300, false}, ec));
    RunToEnd(search);
    // sub first (its link up to the root is the root again), then loop (the root), then the
    // root's files: a link to a file is a file of its own name.
    EXPECT_EQ(FileNamesIn(Out()), Sorted({"0_s.ico", "1_alias.ico", "2_r.ico"}));
    EXPECT_EQ(search.Walk().FoldersRead(), 2);
    EXPECT_EQ(search.Walk().FoldersPassedOver(), 2);
}

TEST_F(ExeSearchTest, AnUnreadableSubfolderIsPassedOver) {
    if (::geteuid() == 0) GTEST_SKIP() << "permissions don't bind root";
    ASSERT_EQ(::chmod((Root() / "sub2").c_str(), 0), 0);
    ExeSearch search;
    std::error_code ec;
    ASSERT_TRUE(search.Start(Options(true, 300), ec));
    RunToEnd(search);
    ::chmod((Root() / "sub2").c_str(), 0700);
    EXPECT_EQ(FileNamesIn(Out()), Sorted({"0_x.ico", "1_w.ico", "2_A.ico", "3_b.ico", "4_b.ico"}));
}

TEST_F(ExeSearchTest, AStopLeavesTheFilesWrittenSoFar) {
    ExeSearch search;
    std::error_code ec;
    ASSERT_TRUE(search.Start(Options(true, 300), ec));
    for (int i = 0; i < 8; ++i) ASSERT_TRUE(search.Step());
    const int written = search.Written();
    EXPECT_GT(written, 0);
    search.RequestStop();
    EXPECT_FALSE(search.Step());
    EXPECT_FALSE(search.Running());
    EXPECT_TRUE(search.StopRequested());
    EXPECT_EQ(search.Written(), written);
    EXPECT_EQ(static_cast<int>(FileNamesIn(Out()).size()), written);
}

TEST_F(ExeSearchTest, AFolderThatCantBeReadStartsNothing) {
    for (const fs::path& root : {folder.Dir() / "missing", Root() / "A.EXE"}) {
        ExeSearch search;
        std::error_code ec;
        EXPECT_FALSE(search.Start({root.string(), Out().string(), true, 300, false}, ec));
        EXPECT_TRUE(ec);
        EXPECT_FALSE(search.Step());
    }
}

TEST_F(ExeSearchTest, IconsThatCantBeWrittenAreCountedAndTheWalkGoesOn) {
    ExeSearch search;
    std::error_code ec;
    ASSERT_TRUE(search.Start({Root().string(), (folder.Dir() / "nowhere").string(), false, 300, false}, ec));
    RunToEnd(search);
    EXPECT_EQ(search.Written(), 0);
    EXPECT_EQ(search.WriteFailures(), 3);
    EXPECT_EQ(search.FilesScanned(), 5);
}

TEST(SearchIconFileName, OneSeparatorTheRunningNumberAndTheStem) {
    struct Case {
        const char* SaveTo;
        int Written;
        const char* Source;
        const char* Name;
    };
    const Case cases[] = {
        {"/out", 0, "/in/App.exe", "/out/0_App.ico"},
        {"/out/", 12, "/in/sub/App.EXE", "/out/12_App.ico"},
        {"/", 3, "/x.exe", "/3_x.ico"},
        {"/out", 1, "/in/setup.v2.exe", "/out/1_setup.v2.ico"},
        {"/out", 2, "/in/$oem.exe", "/out/2_$oem.ico"},
    };
    for (const Case& c : cases) EXPECT_EQ(extract::SearchIconFileName(c.SaveTo, c.Written, c.Source), c.Name);
}

TEST(ImagePlaneOf, TakesTheWhiteOutWhereTheMaskIsSet) {
    // Drawn over white: a transparent pixel is white, an inverting one white XOR its color.
    extract::ExtractedIcon icon;
    icon.Image = surface::Surface(3, 1, 0);
    icon.Mask = surface::Surface(3, 1, 0);
    const std::uint32_t drawn[3] = {0xFFFFFF, 0x00FFFF, 0xFFFFFF}, mask[3] = {0xFFFFFF, 0xFFFFFF, 0};
    for (int x = 0; x < 3; ++x) {
        icon.Image.SetPixelV(x, 0, drawn[x]);
        icon.Mask.SetPixelV(x, 0, mask[x]);
    }
    const surface::Surface image = extract::ImagePlaneOf(icon);
    EXPECT_EQ(image.GetPixel(0, 0), 0u);         // transparent: black
    EXPECT_EQ(image.GetPixel(1, 0), 0xFF0000u);  // inverting: its own color
    EXPECT_EQ(image.GetPixel(2, 0), 0xFFFFFFu);  // opaque white stays white
}

}  // namespace
}  // namespace vexlo::test
