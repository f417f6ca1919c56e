// vexlo-cli's commands, run in-process, and files written by Vexlo read back by icotool.
#include <gtest/gtest.h>

#include <QImage>
#include <QString>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/cli_commands.h"
#include "support/test_folder.h"
#include "core/files/cursor_file.h"
#include "core/files/icon_set.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;

struct Result {
    int code;
    std::string out, err;
};

Result Cli(std::vector<std::string> args) {
    std::ostringstream out, err;
    const int code = cli::RunCli(args, out, err);
    return {code, out.str(), err.str()};
}

std::string Fixture(const char* name) { return std::string(VEXLO_FIXTURES_DIR) + "/ico/" + name; }

class CliTest : public ::testing::Test {
protected:
    std::string Path(const std::string& name) const { return folder.Path(name); }
    // A picture of side s whose pixel (x, y) is f(x, y) as ARGB.
    template <typename F>
    std::string MakePng(const std::string& name, int side, F f) {
        QImage image(side, side, QImage::Format_ARGB32);
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) image.setPixel(x, y, f(x, y));
        image.save(QString::fromStdString(Path(name)));
        return Path(name);
    }
    TestFolder folder{"vexlo_cli"};
    const fs::path& dir = folder.Dir();
};

TEST_F(CliTest, ProbeAndInfoOfAMultiIconFile) {
    EXPECT_EQ(Cli({"probe", Fixture("icotool_multi.ico")}).out, "2/3/2/32/256/8\n");
    const Result info = Cli({"info", Fixture("icotool_multi.ico")});
    EXPECT_EQ(info.code, 0);
    EXPECT_EQ(info.out,
              "0 16x16 4 16 296 54 ok\n1 32x32 4 16 744 350 ok\n2 32x32 8 256 2216 1094 ok\n");
    const std::string junk = Path("junk.ico");
    { std::ofstream(junk) << "no icon"; }
    EXPECT_EQ(Cli({"probe", junk}).out, "0/0/0/0/0/0\n");
    EXPECT_EQ(Cli({"probe", junk}).code, 0);
}

TEST_F(CliTest, BadArgumentsAndFilesExitWithOneLine) {
    const std::vector<std::vector<std::string>> cases = {
        {}, {"frobnicate"}, {"probe"}, {"info", Path("missing.ico")},
        {"export", Fixture("icotool_multi.ico"), "x", Path("o.png")},
        {"export", Fixture("icotool_multi.ico"), "7", Path("o.png")},
        {"convert", Path("missing.png"), Path("o.ico")},
        {"convert", Fixture("icotool_multi.ico"), Path("o.ico"), "--bogus"},
    };
    for (const auto& args : cases) {
        const Result r = Cli(args);
        EXPECT_EQ(r.code, 1) << ::testing::PrintToString(args);
        EXPECT_FALSE(r.err.empty());
    }
    EXPECT_EQ(Cli({"--help"}).code, 0);
    EXPECT_NE(Cli({"convert", "--help"}).out.find("--force256"), std::string::npos);
}

TEST_F(CliTest, ConvertChoosesTheDepthFromThePixels) {
    const struct {
        const char* name;
        QRgb (*pixel)(int, int);
        std::vector<std::string> extra;
        std::uintmax_t size;
    } cases[] = {
        {"two.png", [](int x, int) { return x % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0); }, {}, 326},
        {"vga.png", [](int x, int) { return x % 2 ? qRgb(255, 0, 0) : qRgb(0, 0, 128); }, {}, 766},
        {"two256.png", [](int x, int) { return x % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0); },
         {"--force256"}, 2238},
        {"many.png", [](int x, int y) { return qRgb(x * 8, y * 8, 77); }, {}, 3262},
    };
    for (const auto& c : cases) {
        const std::string png = MakePng(c.name, 32, c.pixel);
        std::vector<std::string> args = {"convert", png, Path(std::string(c.name) + ".ico")};
        args.insert(args.end(), c.extra.begin(), c.extra.end());
        ASSERT_EQ(Cli(args).code, 0) << c.name;
        EXPECT_EQ(fs::file_size(Path(std::string(c.name) + ".ico")), c.size) << c.name;
    }
}

TEST_F(CliTest, ExportGivesColorsAndTransparency) {
    const std::string png = MakePng("in.png", 16, [](int x, int y) {
        return x < 8 ? qRgba(10, 20, 30, 255) : (y < 8 ? qRgba(200, 0, 0, 40) : qRgba(0, 90, 0, 200));
    });
    ASSERT_EQ(Cli({"convert", png, Path("in.ico")}).code, 0);
    ASSERT_EQ(Cli({"export", Path("in.ico"), "0", Path("out.png")}).code, 0);
    const QImage out(QString::fromStdString(Path("out.png")));
    EXPECT_EQ(out.pixel(2, 2), qRgba(10, 20, 30, 255));
    EXPECT_EQ(qAlpha(out.pixel(12, 2)), 0);
    EXPECT_EQ(out.pixel(12, 12), qRgba(0, 90, 0, 255));
}

TEST_F(CliTest, SplitWritesEachListedImageWithItsBytesUnchanged) {
    const Result r = Cli({"split", Fixture("icotool_multi.ico"), dir.string()});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, Path("icotool_multi_16_16.ico") + "\n" + Path("icotool_multi_32_16.ico") + "\n" +
                         Path("icotool_multi_32_256.ico") + "\n");
    files::IconSet source, single;
    ASSERT_EQ(files::ReadIconSet(Fixture("icotool_multi.ico"), source), 3);
    ASSERT_EQ(files::ReadIconSet(Path("icotool_multi_32_256.ico"), single), 1);
    EXPECT_EQ(single.Images[0].Bytes, source.Images[2].Bytes);
    EXPECT_EQ(single.Images[0].Entry.ImageOffset, 22u);
    EXPECT_EQ(fs::file_size(Path("icotool_multi_32_256.ico")), 22u + source.Images[2].Entry.BytesInRes);
}

TEST_F(CliTest, CursorsShowTheirHotspotAndExport) {
    surface::Surface image(32, 32, 0), mask(32, 32, 0);
    image.Fill(0x0000FF);
    mask.Fill(0);
    mask.SetPixelV(0, 0, 0xFFFFFF);
    image.SetPixelV(0, 0, 0);
    ASSERT_TRUE(files::WriteCursorFile(image, mask, Path("c.cur"), 7, 9));
    const Result info = Cli({"info", Path("c.cur")});
    ASSERT_EQ(info.code, 0);
    EXPECT_EQ(info.out.substr(info.out.size() - 13), " hotspot 7,9\n");
    ASSERT_EQ(Cli({"export", Path("c.cur"), "0", Path("c.png")}).code, 0);
    const QImage png(QString::fromStdString(Path("c.png")));
    EXPECT_EQ(png.pixel(5, 5), qRgba(255, 0, 0, 255));
    EXPECT_EQ(qAlpha(png.pixel(0, 0)), 0);
    EXPECT_EQ(Cli({"export", Path("c.cur"), "1", Path("c.png")}).code, 1);
}

// icotool decodes what Vexlo writes to the same pixels at every depth and size.
TEST_F(CliTest, FilesWrittenByVexloDecodeTheSameInIcotool) {
    if (std::system("command -v icotool >/dev/null 2>&1") != 0) GTEST_SKIP() << "icotool not installed";
    QRgb (*const pictures[])(int, int) = {
        [](int x, int y) { return (x + y) % 3 ? qRgb(255, 255, 255) : qRgba(0, 0, 0, 0); },
        [](int x, int y) { return (x * y) % 5 ? qRgb(0, 128, 128) : qRgb(255, 255, 0); },
        [](int x, int y) { return qRgb((x * 37) % 200, (y * 11) % 256, 3); },
        [](int x, int y) { return x == y ? qRgba(0, 0, 0, 0) : qRgb(x * 5, y * 5, (x + y) * 2); },
    };
    int n = 0;
    for (int side : {16, 32, 48}) {
        for (auto picture : pictures) {
            std::string stem = "p";
            stem += std::to_string(n++);
            const std::string png = MakePng(stem + ".png", side, picture);
            ASSERT_EQ(Cli({"convert", png, Path(stem + ".ico")}).code, 0);
            ASSERT_EQ(Cli({"export", Path(stem + ".ico"), "0", Path(stem + "_ours.png")}).code, 0);
            const std::string cmd = "icotool -x -o " + Path(stem + "_theirs.png") + " " +
                                    Path(stem + ".ico") + " >/dev/null 2>&1";
            ASSERT_EQ(std::system(cmd.c_str()), 0) << stem;
            const QImage ours(QString::fromStdString(Path(stem + "_ours.png")));
            const QImage theirs = QImage(QString::fromStdString(Path(stem + "_theirs.png")))
                                      .convertToFormat(QImage::Format_ARGB32);
            ASSERT_EQ(theirs.size(), ours.size()) << stem;
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x) {
                    const QRgb a = ours.pixel(x, y), b = theirs.pixel(x, y);
                    ASSERT_EQ(qAlpha(a) == 0, qAlpha(b) == 0) << stem << " " << x << "," << y;
                    if (qAlpha(a) != 0) {
                        ASSERT_EQ(a & 0xFFFFFF, b & 0xFFFFFF) << stem << " " << x << "," << y;
                    }
                }
        }
    }
}

}  // namespace
}  // namespace vexlo::test
