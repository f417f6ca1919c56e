// vexlo-cli on animated cursors: info (text and JSON), export of a frame's image, and ani,
// whose bytes must be those of the editor's writer.
#include <filesystem>

#include "cli/cli_test_support.h"
#include "core/ani/ani_load.h"
#include "core/ani/ani_save.h"
#include "core/files/atomic_file.h"
#include "core/files/cursor_file.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;

class CliAniTest : public ::testing::Test {
protected:
    std::string Path(const std::string& name) const { return folder.Path(name); }
    TestFolder folder{"vexlo_cli_ani"};
};

TEST_F(CliAniTest, InfoPrintsTheHeaderStepsAndEachFramesImages) {
    const CliResult r = Cli({"info", Fixture("ani", "cur1bit_seq_rate.ani")});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out,
              "frames=2 steps=4 rate=7 flags=3\ntitle=Spin\nartist=tester\n"
              "step 0 frame 0 jiffies 3\nstep 1 frame 1 jiffies 44\nstep 2 frame 1 jiffies 1\n"
              "step 3 frame 0 jiffies 90\n"
              "frame 0\n0 32x32 1 2 304 22 ok hotspot 5,7\nframe 1\n0 32x32 1 2 304 22 ok hotspot 5,7\n");
    const CliResult plain = Cli({"info", Fixture("ani", "ico8bit_plain_odd.ani")});
    EXPECT_EQ(plain.out.substr(0, plain.out.find("step 0")), "frames=2 steps=2 rate=300 flags=1\ntitle=\nartist=\n");
}

TEST_F(CliAniTest, JsonHasTheSameKeysForEveryFileType) {
    const CliResult ani = Cli({"info", "--json", Fixture("ani", "ico4bit_seq_info_first.ani")});
    ASSERT_EQ(ani.code, 0) << ani.err;
    EXPECT_EQ(ani.out.substr(0, ani.out.find("\"images\"")),
              "{\"kind\":\"ani\",\"frames\":3,\"steps\":3,\"rate\":6,\"flags\":3,\"title\":\"Four\",\"artist\":\"ab\","
              "\"sequence\":[2,1,0],\"jiffies\":[6,6,6],");
    EXPECT_NE(ani.out.find("{\"frame\":2,\"index\":0,\"width\":32,\"height\":32,\"bits\":4,\"colors\":16,\"bytes\":744,"
                           "\"offset\":22,\"png\":false,\"hotspot\":null}]}\n"),
              std::string::npos)
        << ani.out;
    const CliResult cur = Cli({"info", Fixture("cli", "icotool_cursor_3.cur"), "--json"});
    ASSERT_EQ(cur.code, 0) << cur.err;
    EXPECT_EQ(cur.out.rfind("{\"kind\":\"cur\",\"frames\":1,\"steps\":1,\"rate\":null,\"flags\":null,\"title\":null,"
                            "\"artist\":null,\"sequence\":[0],\"jiffies\":[null],\"images\":[{\"frame\":0,\"index\":0,",
                            0),
              0u)
        << cur.out;
    EXPECT_NE(cur.out.find("\"hotspot\":["), std::string::npos);
}

TEST_F(CliAniTest, ExportWritesTheImageTheEditorShowsOrTheOneAskedFor) {
    const std::string file = Fixture("ani", "ico32bit_multi.ani");
    const struct {
        std::vector<std::string> extra;
        const char* frame;
        int side;
        Rgba at00;
    } cases[] = {
        {{}, "0", 32, {0, 0, 100, 255}},
        {{}, "1", 48, {255, 0, 0, 255}},
        {{"--image", "0"}, "1", 16, {255, 0, 0, 255}},
        {{"--image", "0"}, "0", 16, {10, 20, 30, 255}},
    };
    for (const auto& c : cases) {
        std::vector<std::string> args = {"export", file, c.frame, Path("f.png")};
        args.insert(args.end(), c.extra.begin(), c.extra.end());
        const CliResult r = Cli(args);
        ASSERT_EQ(r.code, 0) << r.err;
        const cli::RgbaImage png = ReadPngFile(Path("f.png"));
        EXPECT_EQ(png.Width, c.side) << c.frame;
        EXPECT_EQ(PixelAt(png, 0, 0), c.at00) << c.frame;
    }
    EXPECT_EQ(PixelAt(ReadPngFile((Cli({"export", file, "0", Path("t.png")}), Path("t.png"))), 30, 5)[3], 0);

    const struct {
        std::vector<std::string> args;
        std::string err;
    } refused[] = {
        {{"export", file, "2", Path("o.png")}, file + " has 2 frame(s); no frame 2"},
        {{"export", file, "1", Path("o.png"), "--image", "2"}, file + ": frame 1 has 2 image(s); no image 2"},
        {{"export", Fixture("ico", "icotool_multi.ico"), "0", Path("o.png"), "--image", "1"},
         "--image is for animated cursors; INDEX names the image of an icon file"},
    };
    for (const auto& c : refused) {
        const CliResult r = Cli(c.args);
        EXPECT_EQ(r.code, 1);
        EXPECT_EQ(r.err, "vexlo-cli: " + c.err + "\n");
    }
}

// Icon planes of a PNG drawn by f: transparent pixels black with the mask set.
void PlanesOf(Rgba (*f)(int, int), surface::Surface& image, surface::Surface& mask) {
    image = surface::Surface(32, 32, 0);
    mask = surface::Surface(32, 32, 0);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            const Rgba c = f(x, y);
            const bool clear = c[3] < 128;
            image.SetPixelV(x, y, clear ? 0 : surface::Rgb(c[0], c[1], c[2]));
            mask.SetPixelV(x, y, clear ? 0xFFFFFF : 0);
        }
}

TEST_F(CliAniTest, AniWritesTheBytesOfTheEditorsWriter) {
    Rgba (*const pictures[])(int, int) = {
        [](int x, int y) { return x < 2 ? Rgba{0, 0, 0, 0} : ((x + y) % 3 ? Rgba{0, 0, 0, 255} : Rgba{255, 255, 255, 255}); },
        [](int x, int y) { return Rgba{x * 8, y * 8, 40, y == 0 ? 0 : 255}; },
        [](int x, int) { return x % 2 ? Rgba{255, 0, 0, 255} : Rgba{0, 0, 128, 255}; },
    };
    std::vector<std::string> args = {"ani", Path("film.ani"), "--jiffies", "4,90,12", "--hotspot", "31,2"};
    std::vector<std::vector<std::uint8_t>> frames;
    std::vector<ani::AniFrameRecord> rows;
    const int jiffies[] = {4, 90, 12};
    const char* const names[] = {"p0.png", "p1.png", "p2.png"};
    for (int i = 0; i < 3; ++i) {
        args.push_back(WritePng(Path(names[i]), 32, 32, pictures[i]));
        surface::Surface image, mask;
        PlanesOf(pictures[i], image, mask);
        frames.push_back(ani::BuildAniFrameBytes(image, mask, 31, 2, false));
        rows.push_back({static_cast<std::int16_t>(jiffies[i]), 0, 0, 0});
    }
    const CliResult r = Cli(args);
    ASSERT_EQ(r.code, 0) << r.err;
    std::vector<std::uint8_t> written;
    ASSERT_EQ(files::ReadWholeFile(Path("film.ani"), written), files::FileReadStatus::Ok);
    EXPECT_EQ(written, ani::BuildAniFileBytes(frames, rows));

    ani::AniFrameSet set;
    ASSERT_TRUE(ani::LoadAniFrames(Path("film.ani"), ani::CountAniFrames(Path("film.ani")), set));
    EXPECT_EQ(set.AniFrames[1], (ani::AniFrameRecord{90, 31, 2, 1}));

    // A cursor and an icon are frames too; one jiffies value serves every frame.
    surface::Surface image, mask;
    PlanesOf(pictures[2], image, mask);
    const std::vector<std::uint8_t> cur = files::BuildCursorFileBytes(image, mask, 1, 1);
    ASSERT_TRUE(files::AtomicWriteFile(Path("c.cur"), files::Bytes(cur)));
    const CliResult mixed = Cli({"ani", Path("mixed.ani"), Path("c.cur"), Fixture("ico", "icotool_multi.ico")});
    EXPECT_EQ(mixed.code, 0) << mixed.err;
    EXPECT_NE(Cli({"info", Path("mixed.ani")}).out.find("step 1 frame 1 jiffies 30\n"), std::string::npos);
}

TEST_F(CliAniTest, AniRefusesWhatTheEditorWouldNotSave) {
    const std::string png = WritePng(Path("p.png"), 32, 32, [](int, int) { return Rgba{1, 2, 3, 255}; });
    const std::string small = WritePng(Path("s.png"), 16, 16, [](int, int) { return Rgba{1, 2, 3, 255}; });
    std::vector<std::string> many = {"ani", Path("o.ani")};
    for (int i = 0; i < 71; ++i) many.push_back(png);
    const struct {
        std::vector<std::string> args;
        const char* why;
    } cases[] = {
        {{"ani", Path("o.ani")}, "one FRAME or more"},
        {{"ani", Path("o.ani"), small}, "the picture is 16x16; frames are 32x32"},
        {many, "71 frames; an animated cursor holds at most 70"},
        {{"ani", Path("o.ani"), png, png, "--jiffies", "3,4,5"}, "gives 3 values for 2 frames"},
        {{"ani", Path("o.ani"), png, "--jiffies", "0"}, "numbers from 1 to 90"},
        {{"ani", Path("o.ani"), png, "--jiffies", "91"}, "numbers from 1 to 90"},
        {{"ani", Path("o.ani"), png, "--hotspot", "32,0"}, "X,Y, each from 0 to 31"},
        {{"ani", Path("o.ani"), png, "--hotspot", "1"}, "X,Y, each from 0 to 31"},
        {{"ani", Path("o.ani"), png, "--jiffies"}, "--jiffies needs a value"},
        {{"ani", Path("no/such/o.ani"), png}, "no/such/o.ani: "},
    };
    for (const auto& c : cases) {
        const CliResult r = Cli(c.args);
        EXPECT_EQ(r.code, 1) << c.why;
        EXPECT_NE(r.err.find(c.why), std::string::npos) << r.err;
    }
    EXPECT_FALSE(fs::exists(Path("o.ani")));
}

}  // namespace
}  // namespace vexlo::test
