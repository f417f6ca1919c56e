// thumbnail, the file managers' picture: the largest image scaled to the size asked for, and
// every fixture file, good or hostile, answered with exit status 0 or 1 by the program itself.
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "cli/cli_test_support.h"
#include "core/extract/extract_test_files.h"
#include "core/files/ico_write.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;

TEST(CliThumbnail, TheLargestImageFitsTheSizeByWholePixels) {
    TestFolder folder{"vexlo_thumbnail"};
    struct Case {
        const char* file;
        const char* size;  // empty for the default
        int side;
    };
    const Case cases[] = {
        {"ico/icotool_multi.ico", "", 128},   // its largest image is 32x32: four times
        {"ico/icotool_16_1bit.ico", "40", 32},  // 16x16 twice; never past the size
        {"ico/icotool_48_32bit.ico", "24", 24},  // reduced
        {"ani/ico32bit_multi.ani", "64", 64},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.file);
        std::vector<std::string> args = {"thumbnail", Fixture("", c.file), folder.Path("t.png")};
        if (*c.size) args.push_back(c.size);
        const CliResult r = Cli(args);
        ASSERT_EQ(r.code, 0) << r.err;
        const cli::RgbaImage image = ReadPngFile(folder.Path("t.png"));
        EXPECT_EQ(image.Width, c.side);
        EXPECT_EQ(image.Height, c.side);
    }
    // Enlarged cell by cell: each pixel of a 16x16 icon becomes a 2x2 block.
    const cli::RgbaImage small = [&] {
        Cli({"thumbnail", Fixture("ico", "icotool_16_1bit.ico"), folder.Path("s.png"), "32"});
        return ReadPngFile(folder.Path("s.png"));
    }();
    Cli({"export", Fixture("ico", "icotool_16_1bit.ico"), "0", folder.Path("e.png")});
    const cli::RgbaImage exported = ReadPngFile(folder.Path("e.png"));
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) ASSERT_EQ(PixelAt(small, x, y), PixelAt(exported, x / 2, y / 2)) << x << "," << y;

    EXPECT_EQ(Cli({"thumbnail", Fixture("ico", "icotool_16_1bit.ico"), folder.Path("t.png"), "0"}).code, 1);
}

// A program's thumbnail is its first icon's largest image; one without icons is refused.
TEST(CliThumbnail, AProgramShowsItsFirstIcon) {
    TestFolder folder{"vexlo_thumbnail_pe"};
    const Resource small = IconImage(1, 16, 24, 0x0000FF), large = IconImage(2, 32, 24, 0x00FF00),
                   other = IconImage(3, 48, 24, 0xFF0000);
    const ByteVec program = pe::BuildPe({small, large, other, IconGroup(7, {EntryFor(small, 16, 24), EntryFor(large, 32, 24)}),
                                         IconGroup(9, {EntryFor(other, 48, 24)})})
                                .Bytes;
    WriteBytes(folder.Path("app.exe"), program);
    const CliResult r = Cli({"thumbnail", folder.Path("app.exe"), folder.Path("t.png"), "64"});
    ASSERT_EQ(r.code, 0) << r.err;
    const cli::RgbaImage image = ReadPngFile(folder.Path("t.png"));
    EXPECT_EQ(image.Width, 64);
    // The 32x32 of the first group, green, twice over; not its 16x16 (red) nor the 48x48 (blue).
    for (const auto& [x, y] : {std::pair{0, 0}, std::pair{63, 63}}) EXPECT_EQ(PixelAt(image, x, y), (Rgba{0, 255, 0, 255}));

    WriteBytes(folder.Path("plain.dll"), pe::BuildPe({}).Bytes);
    const CliResult none = Cli({"thumbnail", folder.Path("plain.dll"), folder.Path("n.png")});
    EXPECT_EQ(none.code, 1);
    EXPECT_NE(none.err.find("plain.dll: "), std::string::npos) << none.err;
    EXPECT_FALSE(fs::exists(folder.Path("n.png")));
}

TEST(CliThumbnail, EveryFixtureEndsWithZeroOrOne) {
    TestFolder folder{"vexlo_thumbnail_all"};
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(VEXLO_FIXTURES_DIR)) {
        if (!entry.is_regular_file()) continue;
        const std::string ext = entry.path().extension().string();
        if (ext != ".ico" && ext != ".cur" && ext != ".ani" && ext != ".dll") continue;
        ++files;
        const std::string command = std::string("'") + VEXLO_CLI_PROGRAM + "' thumbnail '" + entry.path().string() +
                                    "' '" + folder.Path("t.png") + "' 96 2>/dev/null";
        const int status = std::system(command.c_str());
        ASSERT_TRUE(WIFEXITED(status)) << entry.path();
        EXPECT_LE(WEXITSTATUS(status), 1) << entry.path();
    }
    EXPECT_GT(files, 20);
}

}  // namespace
}  // namespace vexlo::test
