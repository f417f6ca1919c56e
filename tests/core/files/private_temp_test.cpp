// The private folder of the temporary files and the writing and reading of files in it
// without following links.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "core/files/private_temp.h"
#include "ico_test_support.h"
#include "support/test_folder.h"

namespace vexlo::files {
namespace {

namespace fs = std::filesystem;
using test::ByteVec;

class PrivateTemp : public ::testing::Test {
protected:
    std::string Path(const std::string& name) const { return folder.Path(name); }
    static mode_t Mode(const std::string& path) {
        struct stat st {};
        EXPECT_EQ(::lstat(path.c_str(), &st), 0) << path;
        return st.st_mode & 07777;
    }
    vexlo::test::TestFolder folder{"vexlo_private_temp"};
};

TEST_F(PrivateTemp, TheFolderIsMadeUnderTheRuntimeFolderOnlyWhenThatIsPrivate) {
    fs::create_directory(Path("runtime"));
    fs::permissions(Path("runtime"), fs::perms::owner_all, fs::perm_options::replace);
    fs::create_directory(Path("open"));
    fs::permissions(Path("open"), fs::perms::all, fs::perm_options::replace);
    fs::create_directory(Path("base"));
    fs::create_directory_symlink(Path("runtime"), Path("runtime-link"));
    const struct {
        const char* name;
        std::string runtime;
        std::string under;
    } cases[] = {
        {"private runtime folder", Path("runtime"), Path("runtime")},
        {"with its last slash", Path("runtime") + "/", Path("runtime")},
        {"open to all", Path("open"), Path("base")},
        {"a link to a private folder", Path("runtime-link"), Path("base")},
        {"not absolute", "runtime", Path("base")},
        {"missing", Path("none"), Path("base")},
        {"none given", "", Path("base")},
    };
    for (const auto& c : cases) {
        const std::string made = MakePrivateFolder(c.runtime, Path("base") + "/");
        ASSERT_FALSE(made.empty()) << c.name;
        EXPECT_EQ(fs::path(made).parent_path().string(), c.under) << c.name;
        EXPECT_EQ(fs::path(made).filename().string().rfind("vexlo-", 0), 0u) << c.name;
        EXPECT_EQ(Mode(made), 0700u) << c.name;
        EXPECT_TRUE(IsPrivateFolder(made)) << c.name;
    }
    EXPECT_FALSE(IsPrivateFolder(Path("open")));
    EXPECT_FALSE(IsPrivateFolder(Path("runtime-link")));
    EXPECT_TRUE(MakePrivateFolder("", Path("none/deeper")).empty());
}

TEST_F(PrivateTemp, OneFolderPerRunMadeAgainWhenItHasGone) {
    const std::string first = PrivateTempDir(folder.Dir().string());
    ASSERT_FALSE(first.empty());
    EXPECT_TRUE(IsPrivateFolder(first));
    EXPECT_EQ(PrivateTempDir(folder.Dir().string()), first);
    fs::permissions(first, fs::perms::all, fs::perm_options::replace);  // no longer private
    const std::string second = PrivateTempDir(folder.Dir().string());
    EXPECT_NE(second, first);
    EXPECT_TRUE(IsPrivateFolder(second));
    fs::remove_all(first);
    fs::remove_all(second);
    const std::string third = PrivateTempDir(folder.Dir().string());
    EXPECT_TRUE(IsPrivateFolder(third));
}

TEST_F(PrivateTemp, ANewFileIsWrittenInPlaceOfWhateverStoodThereAndNoLinkIsFollowed) {
    test::WriteBytes(Path("victim"), {7, 7});
    fs::create_symlink(Path("victim"), Path("link"));
    fs::create_symlink(Path("nowhere"), Path("dangling"));
    test::WriteBytes(Path("left"), {9});
    for (const char* name : {"link", "dangling", "left", "fresh"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(WriteNewPrivateFile(Path(name), Bytes(ByteVec{1, 2, 3})));
        EXPECT_FALSE(fs::is_symlink(Path(name)));
        EXPECT_EQ(test::ReadBytes(Path(name)), (ByteVec{1, 2, 3}));
        EXPECT_EQ(Mode(Path(name)), 0600u);
    }
    EXPECT_EQ(test::ReadBytes(Path("victim")), (ByteVec{7, 7}));
    EXPECT_FALSE(fs::exists(Path("nowhere")));
    fs::create_directory(Path("folder"));
    EXPECT_FALSE(WriteNewPrivateFile(Path("folder"), Bytes(ByteVec{1})));
    EXPECT_TRUE(fs::is_directory(Path("folder")));
}

TEST_F(PrivateTemp, ReadingTakesOnlyARegularFileOfOursNeverALink) {
    test::WriteBytes(Path("mine"), {4, 5});
    fs::create_symlink(Path("mine"), Path("link"));
    std::vector<std::uint8_t> out;
    EXPECT_EQ(ReadPrivateFile(Path("mine"), out), FileReadStatus::Ok);
    EXPECT_EQ(out, (ByteVec{4, 5}));
    EXPECT_EQ(ReadPrivateFile(Path("link"), out), FileReadStatus::NotRegular);
    EXPECT_EQ(ReadPrivateFile(Path("none"), out), FileReadStatus::NotFound);
    EXPECT_EQ(ReadPrivateFile(folder.Dir().string(), out), FileReadStatus::NotRegular);
    // A file of another user (only root can make one here).
    if (::geteuid() == 0) {
        test::WriteBytes(Path("theirs"), {6});
        ASSERT_EQ(::chown(Path("theirs").c_str(), 65534, 65534), 0);
        EXPECT_EQ(ReadPrivateFile(Path("theirs"), out), FileReadStatus::NotRegular);
    }
    EXPECT_EQ(out, (ByteVec{4, 5}));
}

}  // namespace
}  // namespace vexlo::files
