// Agreement with an independent tool: for real program files on this machine, every icon group
// rebuilt by the library equals what icoutils' "wrestool -x -t 14" writes for it. The files:
// the installer stubs of Debian's nsis-common (PE32 and PE32+, installed by
// scripts/setup-deps.sh), Wine's DLLs and programs when libwine is installed, and every
// program file in the folders of $VEXLO_PE_SAMPLES (separated by ':'). Skipped without wrestool
// or without any such file.
//
// wrestool writes, after the last image of a group, as many bytes more as the group resource
// is long (left over from its buffer, not always zero); the icon file ends where its directory
// says, so the comparison is of that much.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "core/extract/icon_library.h"
#include "extract_test_files.h"
#include "support/test_bytes.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;

std::string Quoted(const std::string& s) {
    std::string q = "'";
    for (char c : s) q += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return q + "'";
}

bool IsProgramFile(const fs::path& p) {
    const ByteVec head = ReadBytes(p.string());
    return fs::is_regular_file(p) && head.size() > 2 && head[0] == 'M' && head[1] == 'Z';
}

std::vector<fs::path> SampleFiles() {
    std::vector<fs::path> files;
    std::error_code ec;
    for (const auto& e : fs::directory_iterator("/usr/share/nsis/Stubs", ec))
        if (IsProgramFile(e.path())) files.push_back(e.path());
    for (const char* dir : {"/usr/lib/x86_64-linux-gnu/wine/x86_64-windows", "/usr/lib/x86_64-linux-gnu/wine/i386-windows",
                            "/usr/lib/i386-linux-gnu/wine/i386-windows"})
        for (const char* name : {"shell32.dll", "user32.dll", "comctl32.dll", "comdlg32.dll", "regedit.exe"})
            if (fs::exists(fs::path(dir) / name)) files.push_back(fs::path(dir) / name);
    if (const char* extra = std::getenv("VEXLO_PE_SAMPLES")) {
        std::stringstream folders(extra);
        for (std::string dir; std::getline(folders, dir, ':');)
            for (const auto& e : fs::directory_iterator(dir, ec))
                if (IsProgramFile(e.path())) files.push_back(e.path());
    }
    return files;
}

TEST(WrestoolCompat, EveryIconGroupEqualsWhatWrestoolWrites) {
    if (std::system("command -v wrestool >/dev/null 2>&1") != 0) GTEST_SKIP() << "wrestool (icoutils) is not installed";
    std::vector<fs::path> files = SampleFiles();
    if (files.empty()) GTEST_SKIP() << "no program files with icons here (apt-get install nsis-common)";
    TestFolder folder("wrestool_compat");
    // And one of our writer's, with named groups in US English. (wrestool finds a group's
    // images only in the group's own language, and names the files of one name in several
    // languages alike, so the library's languages are tested on their own.)
    const std::uint16_t us = 0x409;
    const Resource a = IconImage(1, 16, 4, 1, us), b = IconImage(2, 32, 8, 1, us), c = IconImage(3, 48, 32, 2, us);
    const std::string written = folder.Path("named.dll");
    WriteBytes(written, pe::BuildPe({a, b, c, IconGroup(0, {EntryFor(a, 16, 4)}, us, u"MAIN"),
                                     IconGroup(0, {EntryFor(c, 48, 32), EntryFor(b, 32, 8)}, us, u"Second"),
                                     IconGroup(4, {EntryFor(b, 32, 8), EntryFor(a, 16, 4)}, us)},
                                    {true})
                            .Bytes);
    files.push_back(written);
    int compared = 0;
    for (const fs::path& file : files) {
        SCOPED_TRACE(file.string());
        extract::IconLibrary library;
        const extract::OpenResult opened = library.Open(file.string());
        if (!opened) {
            EXPECT_EQ(opened.Message, extract::kNoResources);
            continue;
        }
        const fs::path out = folder.Dir() / std::to_string(compared);
        fs::create_directories(out);
        const std::string command =
            "wrestool -x -t 14 -o " + Quoted(out.string() + "/") + " " + Quoted(file.string()) + " 2>/dev/null";
        ASSERT_EQ(std::system(command.c_str()), 0) << command;
        int groups = 0;
        for (int g = 0; g < static_cast<int>(library.Groups().size()); ++g) {
            const extract::IconGroup& group = library.Groups()[static_cast<std::size_t>(g)];
            if (group.Cursor) continue;
            ++groups;
            // wrestool names the file with the language, or for some files without it.
            const std::string stem = file.filename().string() + "_14_" + library.GroupName(g);
            fs::path theirs = out / (stem + "_" + std::to_string(group.Language) + ".ico");
            if (!fs::exists(theirs)) theirs = out / (stem + ".ico");
            const ByteVec expected = ReadBytes(theirs.string());
            const ByteVec ours = library.RebuildGroupFile(g);
            ASSERT_FALSE(ours.empty()) << library.GroupName(g);
            ASSERT_EQ(expected.size(), ours.size() + 6 + 14 * group.Images.size()) << theirs;
            EXPECT_TRUE(std::equal(ours.begin(), ours.end(), expected.begin())) << theirs;
            ++compared;
        }
        // And every icon that holds bitmaps of 16x16 and of 32x32 draws at both sizes (a few
        // hold only pictures of other sizes, such as 76x24, which the icon reader doesn't take).
        for (int i = 0; i < library.CountIconGroups(); ++i) {
            const extract::IconGroup& group = library.Groups()[static_cast<std::size_t>(library.IconGroupIndex(i))];
            int sides = 0;
            for (const extract::GroupImage& e : group.Images) {
                const extract::ImageFacts f = extract::ImageFactsOf(library.Data(), e, false);
                if (e.Present && !f.Png && f.Width == f.Height) sides |= f.Width == 16 ? 1 : f.Width == 32 ? 2 : 0;
            }
            if (sides != 3) continue;
            extract::ExtractedIcon large, small;
            EXPECT_TRUE(library.ExtractGroupIcon(i, extract::IconSize::Large, large)) << i;
            EXPECT_TRUE(library.ExtractGroupIcon(i, extract::IconSize::Small, small)) << i;
        }
        EXPECT_EQ(groups, std::distance(fs::directory_iterator(out), fs::directory_iterator{}));
        EXPECT_TRUE(library.Damage().empty()) << library.Damage();
    }
    EXPECT_GT(compared, 0);
}

}  // namespace
}  // namespace vexlo::test
