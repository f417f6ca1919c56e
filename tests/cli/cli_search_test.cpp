// vexlo-cli search: the files written and the summary line over a tree of program files made
// in the test, the switches, and the refusals.
#include <gtest/gtest.h>

#include "cli_test_support.h"
#include "support/exe_tree.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;

TEST(CliSearch, WritesTheIconsAndTellsWhatItDid) {
    TestFolder folder("vexlo_cli_search");
    const fs::path in = folder.Dir() / "in", out = folder.Dir() / "out";
    WriteBytes(in / "one.exe", ProgramWithIcons({0x0000FF, 0x00FF00}));
    WriteBytes(in / "junk.exe", ByteVec{'M', 'Z', 0});
    WriteBytes(in / "deeper" / "two.EXE", ProgramWithIcons({0xFF0000}));
    struct Case {
        std::vector<std::string> Options;
        std::vector<std::string> Written;
        std::string Summary;
    };
    const Case cases[] = {
        {{}, {"0_one.ico", "1_one.ico"}, "2 files scanned, 2 icons written, 1 files skipped\n"},
        {{"--recursive"},
         {"0_two.ico", "1_one.ico", "2_one.ico"},
         "3 files scanned, 3 icons written, 1 files skipped\n"},
        {{"--recursive", "--max", "2"},
         {"0_two.ico", "1_one.ico"},
         "3 files scanned, 2 icons written, 1 files skipped (the limit of 2 icons reached)\n"},
        {{"--small", "--max", "1"}, {"0_one.ico"},
         "2 files scanned, 1 icons written, 1 files skipped (the limit of 1 icons reached)\n"},
    };
    for (const Case& c : cases) {
        fs::remove_all(out);
        fs::create_directories(out);
        std::vector<std::string> args = {"search", in.string(), out.string()};
        args.insert(args.end(), c.Options.begin(), c.Options.end());
        const CliResult r = Cli(args);
        EXPECT_EQ(r.code, 0) << r.err;
        EXPECT_EQ(r.out, c.Summary);
        EXPECT_EQ(FileNamesIn(out), Sorted(c.Written));
    }
    // --small writes the 16x16 picture.
    EXPECT_EQ(Cli({"info", (out / "0_one.ico").string()}).out.substr(0, 8), "0 16x16 ");
}

TEST(CliSearch, Refusals) {
    TestFolder folder("vexlo_cli_search");
    const std::string in = folder.Path("in"), out = folder.Path("out");
    fs::create_directories(in);
    WriteBytes(fs::path(in) / "one.exe", ProgramWithIcons({0x0000FF}));
    struct Case {
        std::vector<std::string> Args;
        std::string Err;
    };
    const Case cases[] = {
        {{"search", in}, "vexlo-cli: search takes DIR OUTDIR [--recursive] [--max N] [--small] (see 'vexlo-cli search --help')\n"},
        {{"search", in, in, "--max", "0"}, "vexlo-cli: --max takes a number from 1 to 10000\n"},
        {{"search", in, in, "--max", "10001"}, "vexlo-cli: --max takes a number from 1 to 10000\n"},
        {{"search", in, in, "--max"}, "vexlo-cli: --max takes a number from 1 to 10000\n"},
        {{"search", in, in, "--deep"}, "vexlo-cli: unknown option --deep\n"},
        {{"search", in, out}, "vexlo-cli: " + out + ": not a folder\n"},
        {{"search", out, in}, "vexlo-cli: " + out + ": No such file or directory\n"},
    };
    for (const Case& c : cases) {
        const CliResult r = Cli(c.Args);
        EXPECT_EQ(r.code, 1);
        EXPECT_EQ(r.err, c.Err);
        EXPECT_EQ(r.out, "");
    }
    // Icons that can't be written: the summary, then the failure.
    fs::create_directories(out);
    fs::permissions(out, fs::perms::owner_read | fs::perms::owner_exec);
    if (::geteuid() != 0) {
        const CliResult r = Cli({"search", in, out});
        EXPECT_EQ(r.code, 1);
        EXPECT_EQ(r.out, "1 files scanned, 0 icons written, 0 files skipped\n");
        EXPECT_EQ(r.err.rfind("vexlo-cli: 1 icons could not be written: ", 0), 0u) << r.err;
    }
}

}  // namespace
}  // namespace vexlo::test
