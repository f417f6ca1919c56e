// vexlo-cli extract: the groups of program and resource files written as icon and cursor files
// (names, bytes, the lines printed), --list, animated cursors' frames, and the refusals.
#include <gtest/gtest.h>

#include <filesystem>

#include "cli_test_support.h"
#include "core/extract/icon_library.h"
#include "support/dib_icon.h"
#include "support/pe_writer.h"
#include "support/test_bytes.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

pe::Resource Image(std::uint16_t id, int side, int bits, std::uint16_t language = 0) {
    DibIcon d;
    d.Side = side;
    d.Bits = bits;
    return {extract::kRtIcon, id, {}, language, DibIconBytes(d)};
}

pe::GroupEntry Entry(const pe::Resource& image, int side, int bits) {
    pe::GroupEntry e;
    e.Width = e.Height = side;
    e.ColorCount = bits < 8 ? 1 << bits : 0;
    e.BitCount = bits;
    e.Bytes = static_cast<std::int64_t>(image.Data.size());
    e.Id = image.Id;
    return e;
}

pe::Resource Group(std::uint16_t id, const std::vector<pe::GroupEntry>& entries, std::u16string name = {},
                   std::uint16_t language = 0) {
    return {extract::kRtGroupIcon, id, std::move(name), language, pe::GroupBytes(entries, {})};
}

// "App" (16x16 and 32x32), 7 (48x48), a cursor group 100 with its hot spot (3, 4), and group
// 5 in German and US English.
std::vector<pe::Resource> Sample() {
    const pe::Resource a = Image(1, 16, 4), b = Image(2, 32, 8), c = Image(3, 48, 8);
    ByteVec cursor = {3, 0, 4, 0};
    const ByteVec picture = Image(0, 32, 1).Data;
    cursor.insert(cursor.end(), picture.begin(), picture.end());
    pe::GroupEntry ce;
    ce.Width = 32;
    ce.Height = 64;
    ce.BitCount = 1;
    ce.Id = 9;
    return {a,
            b,
            c,
            {extract::kRtCursor, 9, {}, 0, cursor},
            Group(0, {Entry(a, 16, 4), Entry(b, 32, 8)}, u"App"),
            Group(7, {Entry(c, 48, 8)}),
            Group(5, {Entry(a, 16, 4)}, {}, 0x407),
            Group(5, {Entry(b, 32, 8)}, {}, 0x409),
            {extract::kRtGroupCursor, 100, {}, 0, pe::GroupBytes({ce}, {cursor.size()}, true)}};
}

class CliExtract : public ::testing::Test {
protected:
    TestFolder folder{"vexlo_cli_extract"};
    std::string Path(const std::string& name) const { return folder.Path(name); }
    std::string Out() const { return folder.Path("out"); }
    void SetUp() override { std::filesystem::create_directories(Out()); }
};

TEST_F(CliExtract, WritesEveryGroupNamedByNameOrNumberAndLanguage) {
    const std::string file = Path("prog.dll");
    WriteBytes(file, pe::BuildPe(Sample(), {true}).Bytes);
    const CliResult r = Cli({"extract", file, Out()});
    ASSERT_EQ(r.code, 0) << r.err;
    const std::string o = Out() + "/";
    EXPECT_EQ(r.out, "group App: 2 images -> " + o + "prog_App.ico\n" +
                         "group 5_1031: 1 image -> " + o + "prog_5_1031.ico\n" +
                         "group 5_1033: 1 image -> " + o + "prog_5_1033.ico\n" +
                         "group 7: 1 image -> " + o + "prog_7.ico\n" +
                         "group 100: 1 image -> " + o + "prog_100.cur\n");
    // Each file is the library's rebuild of its group, bytes for bytes.
    extract::IconLibrary library;
    ASSERT_TRUE(library.Open(file).Ok);
    const char* names[] = {"prog_App.ico", "prog_5_1031.ico", "prog_5_1033.ico", "prog_7.ico", "prog_100.cur"};
    for (int g = 0; g < 5; ++g) EXPECT_EQ(ReadBytes(o + names[g]), library.RebuildGroupFile(g)) << names[g];
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Out()), std::filesystem::directory_iterator{}), 5);
}

TEST_F(CliExtract, ListPrintsGroupsAndImagesWithoutWriting) {
    const std::string file = Path("prog.res");
    std::vector<pe::Resource> res = Sample();
    pe::GroupEntry missing;
    missing.Id = 77;
    missing.Bytes = 100;
    res.push_back(Group(8, {missing}));
    WriteBytes(file, pe::BuildRes(res));
    const CliResult r = Cli({"extract", file, "--list"});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out,
              "group App: 2 images, icon, language 0\n"
              "  image 1: 16x16 4 bpp 296 bytes\n"
              "  image 2: 32x32 8 bpp 2216 bytes\n"
              "group 5_1031: 1 image, icon, language 1031\n"
              "  image 1: 16x16 4 bpp 296 bytes\n"
              "group 5_1033: 1 image, icon, language 1033\n"
              "  image 2: 32x32 8 bpp 2216 bytes\n"
              "group 7: 1 image, icon, language 0\n"
              "  image 3: 48x48 8 bpp 3752 bytes\n"
              "group 8: 0 images, icon, language 0\n"
              "  image 77: missing\n"
              "group 100: 1 image, cursor, language 0\n"
              "  image 9: 32x32 1 bpp 304 bytes hotspot 3,4\n");
    EXPECT_TRUE(std::filesystem::is_empty(Out()));
    // A group of no image is told and nothing is written for it.
    const CliResult w = Cli({"extract", file, Out()});
    ASSERT_EQ(w.code, 0) << w.err;
    EXPECT_NE(w.out.find("group 8: 0 images, nothing written\n"), std::string::npos) << w.out;
}

TEST_F(CliExtract, ANameIsNeverAPathOutOfTheFolder) {
    const pe::Resource a = Image(1, 16, 4);
    const std::string file = Path("evil.exe");
    WriteBytes(file, pe::BuildPe({a, Group(0, {Entry(a, 16, 4)}, u"../../x/y\u00e9")}).Bytes);
    const CliResult r = Cli({"extract", file, Out()});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_TRUE(std::filesystem::exists(Out() + "/evil_.._.._x_y\xc3\xa9.ico")) << r.out;
}

TEST_F(CliExtract, AnimatedCursorFramesBecomeIconFiles) {
    const std::string file = Fixture("ani", "cur1bit_seq_rate.ani");
    const CliResult r = Cli({"extract", file, Out()});
    ASSERT_EQ(r.code, 0) << r.err;
    const std::string o = Out() + "/";
    EXPECT_EQ(r.out, "frame 1: 1 image -> " + o + "cur1bit_seq_rate_1.ico\n" + "frame 2: 1 image -> " + o +
                         "cur1bit_seq_rate_2.ico\n");
    // The cursor frame with an icon's header and entry (1 plane, 1 bit for its hot spot 5,7);
    // the image stays.
    const ByteVec icon = ReadBytes(o + "cur1bit_seq_rate_1.ico");
    ASSERT_GE(icon.size(), 22u);
    EXPECT_EQ(U16At(icon, 2), 1);
    EXPECT_EQ(U16At(icon, 6 + 4), 1);
    EXPECT_EQ(U16At(icon, 6 + 6), 1);
    EXPECT_EQ(Cli({"probe", o + "cur1bit_seq_rate_1.ico"}).out, "1/1/0/32/2/1\n");
}

TEST_F(CliExtract, RefusesWithOneLine) {
    const std::string text = Path("notes.txt"), bare = Path("bare.dll"), noIcons = Path("strings.dll");
    WriteBytes(text, ByteVec{'h', 'i', '\n'});
    pe::PeFile f = pe::BuildPe({});
    pe::Set32(f.Bytes, f.DirectoryOffset, 0);
    pe::Set32(f.Bytes, f.DirectoryOffset + 4, 0);
    WriteBytes(bare, f.Bytes);
    WriteBytes(noIcons, pe::BuildPe({{6, 1, {}, 0, ByteVec(16, 1)}}).Bytes);
    struct Case {
        std::vector<std::string> Args;
        std::string Err;
    };
    const Case cases[] = {
        {{"extract", text, Out()}, text + ": not a DLL, EXE, .res, icon or cursor file"},
        {{"extract", bare, Out()}, bare + ": the file has no resources"},
        {{"extract", noIcons, Out()}, noIcons + ": the file has no icons"},
        {{"extract", Path("gone.dll"), Out()}, Path("gone.dll") + ": no such file"},
        {{"extract", text, Path("nowhere")}, Path("nowhere") + ": not a folder"},
        {{"extract", text}, "extract takes FILE OUTDIR [--list] (see 'vexlo-cli extract --help')"},
        {{"extract", text, Out(), "--all"}, "unknown option --all"},
    };
    for (const Case& c : cases) {
        const CliResult r = Cli(c.Args);
        EXPECT_EQ(r.code, 1) << c.Err;
        EXPECT_EQ(r.err, "vexlo-cli: " + c.Err + "\n");
        EXPECT_EQ(r.out, "");
    }
    EXPECT_TRUE(std::filesystem::is_empty(Out()));
    EXPECT_EQ(Cli({"extract", "--help"}).code, 0);
}

}  // namespace
}  // namespace vexlo::test
