// vexlo-cli's commands, run in-process: probe, convert from PNG, BMP and ICO, split, the
// program's own links, and files written by Vexlo or icotool read the same by both tools.
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "cli/cli_test_support.h"
#include "core/files/icon_set.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;

// A BMP file: the file header, the info header, then extra (a color table), then rows.
std::vector<std::uint8_t> BmpBytes(const std::vector<std::uint8_t>& header, const std::vector<std::uint8_t>& extra,
                                   const std::vector<std::uint8_t>& rows) {
    std::vector<std::uint8_t> b = {'B', 'M'};
    const std::uint32_t offBits = 14 + static_cast<std::uint32_t>(header.size() + extra.size());
    Put32(b, offBits + static_cast<std::uint32_t>(rows.size()));
    Put32(b, 0);
    Put32(b, offBits);
    b.insert(b.end(), header.begin(), header.end());
    b.insert(b.end(), extra.begin(), extra.end());
    b.insert(b.end(), rows.begin(), rows.end());
    return b;
}

class CliTest : public ::testing::Test {
protected:
    std::string Path(const std::string& name) const { return folder.Path(name); }
    std::string Write(const std::string& name, const std::vector<std::uint8_t>& bytes) {
        std::ofstream(Path(name), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return Path(name);
    }
    // The pixels of image 0 of an icon file as export writes them.
    cli::RgbaImage Exported(const std::string& ico) {
        const CliResult r = Cli({"export", ico, "0", Path("exported.png")});
        EXPECT_EQ(r.code, 0) << r.err;
        return ReadPngFile(Path("exported.png"));
    }
    TestFolder folder{"vexlo_cli"};
    const fs::path& dir = folder.Dir();
};

TEST_F(CliTest, ProbeGivesTheEditorsJudgement) {
    EXPECT_EQ(Cli({"probe", Fixture("ico", "icotool_multi.ico")}).out, "2/3/2/32/256/8\n");
    const CliResult info = Cli({"info", Fixture("ico", "icotool_multi.ico")});
    EXPECT_EQ(info.out, "0 16x16 4 16 296 54 ok\n1 32x32 4 16 744 350 ok\n2 32x32 8 256 2216 1094 ok\n");
    const std::string junk = Write("junk.ico", {'n', 'o'});
    EXPECT_EQ(Cli({"probe", junk}).out, "0/0/0/0/0/0\n");
    EXPECT_EQ(Cli({"probe", junk}).code, 0);
}

TEST_F(CliTest, BadArgumentsAndFilesExitWithOneLine) {
    const std::vector<std::vector<std::string>> cases = {
        {}, {"frobnicate"}, {"probe"}, {"info", Path("missing.ico")}, {"info", dir.string()},
        {"export", Fixture("ico", "icotool_multi.ico"), "x", Path("o.png")},
        {"export", Fixture("ico", "icotool_multi.ico"), "7", Path("o.png")},
        {"export", Fixture("ico", "icotool_multi.ico"), "0", Path("no/such/dir/o.png")},
        {"convert", Path("missing.png"), Path("o.ico")},
        {"convert", Fixture("ico", "icotool_multi.ico"), Path("o.ico"), "--bogus"},
        {"split", Fixture("cli", "icotool_cursor_3.cur"), dir.string()},
    };
    for (const auto& args : cases) {
        const CliResult r = Cli(args);
        EXPECT_EQ(r.code, 1) << ::testing::PrintToString(args);
        EXPECT_FALSE(r.err.empty());
    }
    EXPECT_EQ(Cli({"--help"}).code, 0);
    EXPECT_NE(Cli({"convert", "--help"}).out.find("--force256"), std::string::npos);
}

TEST_F(CliTest, ConvertChoosesTheDepthFromThePixels) {
    const struct {
        const char* name;
        Rgba (*pixel)(int, int);
        std::vector<std::string> extra;
        std::uintmax_t size;
    } cases[] = {
        {"two.png", [](int x, int) { return x % 2 ? Rgba{255, 255, 255, 255} : Rgba{0, 0, 0, 255}; }, {}, 326},
        {"vga.png", [](int x, int) { return x % 2 ? Rgba{255, 0, 0, 255} : Rgba{0, 0, 128, 255}; }, {}, 766},
        {"two256.png", [](int x, int) { return x % 2 ? Rgba{255, 255, 255, 255} : Rgba{0, 0, 0, 255}; },
         {"--force256"}, 2238},
        {"many.png", [](int x, int y) { return Rgba{x * 8, y * 8, 77, 255}; }, {}, 3262},
    };
    for (const auto& c : cases) {
        const std::string png = WritePng(Path(c.name), 32, 32, c.pixel);
        std::vector<std::string> args = {"convert", png, Path(std::string(c.name) + ".ico")};
        args.insert(args.end(), c.extra.begin(), c.extra.end());
        ASSERT_EQ(Cli(args).code, 0) << c.name;
        EXPECT_EQ(fs::file_size(Path(std::string(c.name) + ".ico")), c.size) << c.name;
    }
}

TEST_F(CliTest, ConvertReadsBmpFilesWithItsOwnReader) {
    const auto rows24 = [] {
        std::vector<std::uint8_t> rows;  // bottom-up: the file's first row is y = 15
        for (int row = 0; row < 16; ++row)
            for (int x = 0; x < 16; ++x) rows.insert(rows.end(), {9, static_cast<std::uint8_t>((15 - row) * 16),
                                                                  static_cast<std::uint8_t>(x * 16)});
        return rows;
    };
    std::vector<std::uint8_t> table4 = {0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0, 255, 255, 255, 0};
    std::vector<std::uint8_t> rows8;  // top-down: the first row is y = 0
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) rows8.push_back(static_cast<std::uint8_t>((x + y) % 4));
    // A 108-byte header with bit fields: red, green, blue, alpha in bytes 0, 1, 2, 3.
    std::vector<std::uint8_t> v4 = DibHeaderBytes({.Size = 108, .Height = 16, .Bits = 32, .Compression = 3});
    std::vector<std::uint8_t> masks;
    for (std::uint32_t m : {0xFFu, 0xFF00u, 0xFF0000u, 0xFF000000u}) Put32(masks, m);
    std::copy(masks.begin(), masks.end(), v4.begin() + 40);
    std::vector<std::uint8_t> rows32;
    for (int i = 0; i < 256; ++i)  // bottom-up: the first pixel is (0, 15)
        rows32.insert(rows32.end(), {200, 100, 50, static_cast<std::uint8_t>(i == 0 ? 0 : 255)});
    static const Rgba kTable4[] = {{255, 0, 0, 255}, {0, 255, 0, 255}, {0, 0, 255, 255}, {255, 255, 255, 255}};
    const struct {
        const char* name;
        std::vector<std::uint8_t> bytes;
        Rgba (*pixel)(int, int);
    } cases[] = {
        {"rgb24.bmp", BmpBytes(DibHeaderBytes({.Height = 16, .Bits = 24}), {}, rows24()),
         [](int x, int y) { return Rgba{x * 16, y * 16, 9, 255}; }},
        {"top8.bmp", BmpBytes(DibHeaderBytes({.Height = -16, .Bits = 8, .ClrUsed = 4}), table4, rows8),
         [](int x, int y) { return kTable4[(x + y) % 4]; }},
        {"fields32.bmp", BmpBytes(v4, {}, rows32),
         [](int x, int y) { return x == 0 && y == 15 ? Rgba{} : Rgba{200, 100, 50, 255}; }},
    };
    for (const auto& c : cases) {
        const std::string ico = Path(std::string(c.name) + ".ico");
        const CliResult r = Cli({"convert", Write(c.name, c.bytes), ico});
        ASSERT_EQ(r.code, 0) << c.name << ": " << r.err;
        const cli::RgbaImage out = Exported(ico);
        ASSERT_EQ(out.Width, 16) << c.name;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x) {
                const Rgba want = c.pixel(x, y), got = PixelAt(out, x, y);
                ASSERT_EQ(got[3], want[3]) << c.name << " " << x << "," << y;
                if (want[3]) {
                    ASSERT_EQ(got, want) << c.name << " " << x << "," << y;
                }
            }
    }
    const struct {
        const char* name;
        std::vector<std::uint8_t> bytes;
        const char* why;
    } refused[] = {
        {"rle.bmp", BmpBytes(DibHeaderBytes({.Height = 16, .Bits = 8, .Compression = 1}),
                             std::vector<std::uint8_t>(1024), {0, 1}),
         "RLE8 compression"},
        {"big.bmp", BmpBytes(DibHeaderBytes({.Width = 64, .Height = 64, .Bits = 24}), {}, {}),
         "the picture is 64x64, not 16x16"},
        {"cut.bmp", BmpBytes(DibHeaderBytes({.Height = 16, .Bits = 24}), {}, std::vector<std::uint8_t>(700)),
         "its 768 bytes of pixels at offset 54 run past the end"},
        {"gif.gif", {'G', 'I', 'F', '8', '9', 'a'}, "not a PNG, BMP, ICO or CUR picture"},
    };
    for (const auto& c : refused) {
        const std::string path = Write(c.name, c.bytes);
        const CliResult r = Cli({"convert", path, Path("o.ico")});
        EXPECT_EQ(r.code, 1) << c.name;
        EXPECT_NE(r.err.find(path + ": " + c.why), std::string::npos) << r.err;
    }
}

TEST_F(CliTest, SplitWritesEachListedImageWithItsBytesUnchanged) {
    const CliResult r = Cli({"split", Fixture("ico", "icotool_multi.ico"), dir.string()});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, Path("icotool_multi_16_16.ico") + "\n" + Path("icotool_multi_32_16.ico") + "\n" +
                         Path("icotool_multi_32_256.ico") + "\n");
    files::IconSet source, single;
    ASSERT_EQ(files::ReadIconSet(Fixture("ico", "icotool_multi.ico"), source), 3);
    ASSERT_EQ(files::ReadIconSet(Path("icotool_multi_32_256.ico"), single), 1);
    EXPECT_EQ(single.Images[0].Bytes, source.Images[2].Bytes);
    EXPECT_EQ(single.Images[0].Entry.ImageOffset, 22u);
    // A file with an image that can't be read is refused whole, before anything is written.
    const CliResult bad = Cli({"split", Fixture("ico", "hostile/offset_into_directory.ico"), Path("none")});
    EXPECT_EQ(bad.code, 1);
    fs::create_directory(Path("none"));
    EXPECT_EQ(Cli({"split", Fixture("ico", "hostile/offset_into_directory.ico"), Path("none")}).code, 1);
    EXPECT_TRUE(fs::is_empty(Path("none")));
}

// The program itself links no Qt: its start-up stays within the process's own cost.
TEST_F(CliTest, TheProgramLinksNoQt) {
    std::ifstream program(VEXLO_CLI_PROGRAM, std::ios::binary);
    ASSERT_TRUE(program) << VEXLO_CLI_PROGRAM;
    const std::string bytes((std::istreambuf_iterator<char>(program)), std::istreambuf_iterator<char>());
    EXPECT_EQ(bytes.find("libQt"), std::string::npos);
    const std::string cmd = std::string(VEXLO_CLI_PROGRAM) + " info " + Fixture("ico", "hostile/bitcount3.ico") +
                            " >" + Path("out.txt") + " 2>&1";
    EXPECT_EQ(WEXITSTATUS(std::system(cmd.c_str())), 1);
}

// icotool and Vexlo read the same pixels: files that Vexlo writes, at every depth and size,
// and every image of the fixtures that other tools made.
TEST_F(CliTest, IcotoolAndVexloReadTheSamePixels) {
    if (std::system("command -v icotool >/dev/null 2>&1") != 0) GTEST_SKIP() << "icotool not installed";
    Rgba (*const pictures[])(int, int) = {
        [](int x, int y) { return (x + y) % 3 ? Rgba{255, 255, 255, 255} : Rgba{}; },
        [](int x, int y) { return (x * y) % 5 ? Rgba{0, 128, 128, 255} : Rgba{255, 255, 0, 255}; },
        [](int x, int y) { return Rgba{(x * 37) % 200, (y * 11) % 256, 3, 255}; },
        [](int x, int y) { return x == y ? Rgba{} : Rgba{x * 5, y * 5, (x + y) * 2, 255}; },
    };
    std::vector<std::pair<std::string, int>> images;  // file, image count
    for (int side : {16, 32, 48})
        for (auto picture : pictures) {
            std::string stem = "p";  // not "p" + ...: GCC 12 warns falsely (-Wrestrict) on that
            stem += std::to_string(images.size());
            WritePng(Path(stem + ".png"), side, side, picture);
            ASSERT_EQ(Cli({"convert", Path(stem + ".png"), Path(stem + ".ico")}).code, 0);
            images.emplace_back(Path(stem + ".ico"), 1);
        }
    images.emplace_back(Fixture("ico", "icotool_multi.ico"), 3);
    images.emplace_back(Fixture("ico", "icotool_48_32bit.ico"), 1);
    images.emplace_back(Fixture("ico", "pillow_32_8bit.ico"), 1);
    images.emplace_back(Fixture("cli", "icotool_png_entries.ico"), 4);
    images.emplace_back(Fixture("cli", "icotool_cursor_3.cur"), 3);
    for (const auto& [file, count] : images) {
        // Every image at once: icotool's -i does not pick among PNG images.
        const fs::path theirs = dir / ("icotool_" + fs::path(file).stem().string());
        fs::create_directory(theirs);
        const std::string cmd = "icotool -x -o " + theirs.string() + " " + file + " >/dev/null 2>&1";
        ASSERT_EQ(std::system(cmd.c_str()), 0) << file;
        for (int i = 0; i < count; ++i) {
            const std::string ours = Path("ours.png");
            ASSERT_EQ(Cli({"export", file, std::to_string(i), ours}).code, 0) << file;
            cli::RgbaImage b;
            const std::string prefix = fs::path(file).stem().string() + "_" + std::to_string(i + 1) + "_";
            for (const auto& f : fs::directory_iterator(theirs))
                if (f.path().filename().string().rfind(prefix, 0) == 0) b = ReadPngFile(f.path().string());
            const cli::RgbaImage a = ReadPngFile(ours);
            ASSERT_EQ(a.Width, b.Width) << file << " #" << i;
            ASSERT_GT(a.Width, 0) << file << " #" << i;
            for (int y = 0; y < a.Height; ++y)
                for (int x = 0; x < a.Width; ++x) {
                    const Rgba p = PixelAt(a, x, y), q = PixelAt(b, x, y);
                    ASSERT_EQ(p[3], q[3]) << file << " #" << i << " " << x << "," << y;
                    if (p[3] != 0) {
                        ASSERT_EQ(p, q) << file << " #" << i << " " << x << "," << y;
                    }
                }
        }
    }
}

}  // namespace
}  // namespace vexlo::test
