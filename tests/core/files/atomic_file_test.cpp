// Safe replacement of files, the path helpers, and WriteIconFile on disk.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "core/files/atomic_file.h"
#include "core/files/byte_reader.h"
#include "core/files/ico_messages.h"
#include "core/files/ico_write.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

namespace fs = std::filesystem;
using test::ByteVec;
using test::ReadBytes;
using test::WriteBytes;

class FilesAtomic : public ::testing::Test {
protected:
    void SetUp() override {
        std::string tmpl = (fs::temp_directory_path() / "vexlo-files-XXXXXX").string();
        ASSERT_NE(::mkdtemp(tmpl.data()), nullptr);
        m_dir = tmpl;
    }
    void TearDown() override {
        std::error_code ec;
        fs::permissions(m_dir, fs::perms::owner_all, fs::perm_options::add, ec);
        fs::remove_all(m_dir, ec);
    }
    std::string Path(const std::string& name) const { return (m_dir / name).string(); }
    std::size_t EntriesInDir() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(m_dir), fs::directory_iterator()));
    }
    fs::path m_dir;
};

TEST_F(FilesAtomic, AFailureAtAnyStepLeavesTheOldFileAndNoTemporary) {
    const std::string target = Path("icon.ico");
    const ByteVec old = {1, 2, 3};
    const ByteVec fresh(5000, 7);
    for (const AtomicWriteStep step : {AtomicWriteStep::CreateTemp, AtomicWriteStep::Write,
                                       AtomicWriteStep::Sync, AtomicWriteStep::Rename}) {
        WriteBytes(target, old);
        const FileWriteResult r = AtomicWriteFile(target, Bytes(fresh), {step});
        EXPECT_FALSE(r.Ok) << static_cast<int>(step);
        EXPECT_FALSE(r.Error.empty());
        EXPECT_EQ(ReadBytes(target), old) << static_cast<int>(step);
        EXPECT_EQ(EntriesInDir(), 1u) << "a temporary file was left at step " << static_cast<int>(step);
    }
    // A failure where nothing stood leaves nothing.
    EXPECT_FALSE(AtomicWriteFile(Path("new.ico"), Bytes(fresh), {AtomicWriteStep::Write}).Ok);
    EXPECT_FALSE(fs::exists(Path("new.ico")));
    EXPECT_EQ(EntriesInDir(), 1u);
}

TEST_F(FilesAtomic, ReplacesAFileWithANewOneKeepingItsPermissions) {
    const std::string target = Path("icon.ico");
    WriteBytes(target, ByteVec(100, 1));
    ASSERT_EQ(::chmod(target.c_str(), 0640), 0);
    struct stat before {};
    ASSERT_EQ(::stat(target.c_str(), &before), 0);
    const ByteVec fresh = {9, 8, 7};
    ASSERT_TRUE(AtomicWriteFile(target, Bytes(fresh)).Ok);
    struct stat after {};
    ASSERT_EQ(::stat(target.c_str(), &after), 0);
    EXPECT_EQ(ReadBytes(target), fresh);
    EXPECT_NE(before.st_ino, after.st_ino);  // a new file, not the old one rewritten in place
    EXPECT_EQ(after.st_mode & 0777, 0640u);
    EXPECT_EQ(EntriesInDir(), 1u);

    // A symbolic link is followed: the file it names is replaced, the link stays.
    fs::create_symlink(target, Path("link.ico"));
    ASSERT_TRUE(AtomicWriteFile(Path("link.ico"), Bytes(ByteVec{5})).Ok);
    EXPECT_TRUE(fs::is_symlink(Path("link.ico")));
    EXPECT_EQ(ReadBytes(target), ByteVec{5});
}

TEST_F(FilesAtomic, RefusesProtectedTargetsAndMissingFolders) {
    const std::string readOnly = Path("ro.ico");
    WriteBytes(readOnly, {1});
    ASSERT_EQ(::chmod(readOnly.c_str(), 0444), 0);
    EXPECT_FALSE(AtomicWriteFile(readOnly, Bytes(ByteVec{2})).Ok);
    EXPECT_EQ(ReadBytes(readOnly), ByteVec{1});
    fs::create_directory(Path("folder"));
    EXPECT_FALSE(AtomicWriteFile(Path("folder"), Bytes(ByteVec{2})).Ok);
    const FileWriteResult missing = AtomicWriteFile(Path("no/such/folder.ico"), Bytes(ByteVec{2}));
    EXPECT_FALSE(missing.Ok);
    EXPECT_NE(missing.Error.find("temporary"), std::string::npos) << missing.Error;
}

// Protected: read-only, hidden (a name with a leading dot), system (no regular file),
// directory, or no attributes at all (nothing there).
TEST_F(FilesAtomic, FileExistsAndIsProtectedFile) {
    WriteBytes(Path("plain"), {1});
    WriteBytes(Path("ro"), {1});
    ASSERT_EQ(::chmod(Path("ro").c_str(), 0444), 0);
    WriteBytes(Path(".hidden.ico"), {1});
    fs::create_directory(Path("dir"));
    ASSERT_EQ(::mkfifo(Path("fifo").c_str(), 0600), 0);
    fs::create_symlink(Path("plain"), Path("link"));
    fs::create_symlink(Path("missing"), Path("dangling"));
    struct Case {
        std::string path;
        bool exists, isProtected;
    };
    const Case cases[] = {
        {Path("plain"), true, false},       {Path("link"), true, false},   {Path("ro"), true, true},
        {Path(".hidden.ico"), true, true},  {Path("dir"), false, true},    {Path("fifo"), true, true},
        {Path("missing"), false, true},     {Path("dangling"), false, true}, {"", false, true},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FileExists(c.path), c.exists) << c.path;
        EXPECT_EQ(IsProtectedFile(c.path), c.isProtected) << c.path;
    }
    // The writer still writes where nothing stands, and over a hidden file.
    ASSERT_TRUE(AtomicWriteFile(Path("new.ico"), Bytes(ByteVec{4})).Ok);
    ASSERT_TRUE(AtomicWriteFile(Path(".hidden.ico"), Bytes(ByteVec{5})).Ok);
    EXPECT_EQ(ReadBytes(Path(".hidden.ico")), ByteVec{5});
}

TEST_F(FilesAtomic, CopyGivesTheNumberOfWhatFailed) {
    WriteBytes(Path("a.ico"), {1, 2});
    ASSERT_TRUE(CopyFileAtomically(Path("a.ico"), Path("b.ico")));
    EXPECT_EQ(ReadBytes(Path("b.ico")), (ByteVec{1, 2}));
    const struct {
        std::string source, target;
        int number;
    } cases[] = {
        {Path("missing.ico"), Path("c.ico"), ENOENT},
        {m_dir.string(), Path("c.ico"), EINVAL},
        {Path("a.ico"), Path("no/such/c.ico"), ENOENT},
    };
    for (const auto& c : cases) {
        const FileWriteResult r = CopyFileAtomically(c.source, c.target);
        EXPECT_FALSE(r.Ok) << c.source << " " << c.target;
        EXPECT_EQ(r.Number, c.number) << c.source << " " << c.target;
    }
    EXPECT_FALSE(fs::exists(Path("c.ico")));
}

TEST_F(FilesAtomic, WriteIconFileWritesTheBuiltBytesAndReportsAReadOnlyTarget) {
    const surface::Surface image = test::Filled(16, 0), mask = test::Filled(16, 0xFFFFFF);
    const std::string path = Path("blank.ico");
    WriteBytes(path, ByteVec(3000, 0xAA));  // a longer file stood there
    ASSERT_TRUE(WriteIconFile(image, mask, path, {}));
    EXPECT_EQ(ReadBytes(path), BuildIconFileBytes(image, mask, {}));
    EXPECT_EQ(ReadBytes(path).size(), 198u);

    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    std::string error;
    EXPECT_FALSE(WriteIconFile(test::Filled(32, 0), test::Filled(32, 0), path, {}, &error));
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(ReadBytes(path).size(), 198u);
    EXPECT_EQ(SaveFailedMessage(path),
              "File is read-only\r\n\r\nYou may save it under a different file name or reset the file attributes.");
    // A path where nothing can be found has no attributes: it counts as protected.
    EXPECT_EQ(SaveFailedMessage(Path("no/such/x.ico")), ReadOnlyFileMessage());
    WriteBytes(Path("plain.ico"), {1});
    EXPECT_EQ(SaveFailedMessage(Path("plain.ico")), "Failed to save this icon");
    EXPECT_FALSE(WriteIconFile(test::Filled(24, 0), test::Filled(24, 0), Path("odd.ico"), {}, &error));
    EXPECT_FALSE(fs::exists(Path("odd.ico")));
}

TEST(FilesSplitFileSpec, PartsOfAPath) {
    struct Case {
        const char* path;
        const char* parts[5];
    };
    const Case cases[] = {
        {"/home/u/icons/app.ico", {"", "/home/u/icons/", "app.ico", "app", "ico"}},
        {"/home/u/my.icons/app", {"", "/home/u/my.icons/", "app", "app", ""}},
        {"/a/b.c.ico", {"", "/a/", "b.c.ico", "b.c", "ico"}},
        {"/a/name.", {"", "/a/", "name.", "name.", ""}},      // a dot in the last place doesn't count
        {"/a/x.y.", {"", "/a/", "x.y.", "x", "y."}},
        {"Untitled", {"", "", "Untitled", "Untitled", ""}},
        {"/a/.hidden", {"", "/a/", ".hidden", "", "hidden"}},
        {"/a/", {"", "/a/", "", "", ""}},
        {"$x/a.ico", {"", "", "", "", ""}},
        {" a.ico", {"", "", "", "", ""}},
        {"", {"", "", "", "", ""}},
    };
    for (const Case& c : cases)
        for (int part = 0; part < 5; ++part)
            EXPECT_EQ(SplitFileSpec(c.path, part), c.parts[part]) << c.path << " part " << part;
    EXPECT_EQ(SplitFileSpec("/a/b.ico", 5), "");
    EXPECT_EQ(SplitFileSpec("/a/b.ico", -1), "");
    EXPECT_EQ(SplitFileSpec("/" + std::string(251, 'a') + ".ico", 3), "");  // 256 characters
    EXPECT_EQ(SplitFileSpec("/" + std::string(252, 'a') + ".i", 4), "i");   // 255 exactly
}

TEST(FilesByteReader, AFailureStaysSetAndNothingWrapsAround) {
    const ByteVec data = {0x01, 0x02, 0x03, 0x04, 0x05, 0x06};
    ByteReader r{Bytes(data)};
    EXPECT_EQ(r.U16(), 0x0201);
    EXPECT_EQ(r.U32(), 0x06050403u);
    EXPECT_EQ(r.U8(), 0);  // past the end
    EXPECT_FALSE(r.Seek(0));  // stays failed
    ByteReader t{Bytes(data)};
    t.Seek(2);
    EXPECT_TRUE(t.Take(0xFFFFFFFFFFFFFFF0ull).empty());
    EXPECT_TRUE(t.Failed());
}

TEST_F(FilesAtomic, ReadWholeFileIsCapped) {
    WriteBytes(Path("f"), ByteVec(100, 3));
    ByteVec out = {42};
    EXPECT_EQ(ReadWholeFile(Path("f"), out, 99), FileReadStatus::TooLarge);
    EXPECT_EQ(out, ByteVec{42});
    EXPECT_EQ(ReadWholeFile(Path("f"), out, 100), FileReadStatus::Ok);
    EXPECT_EQ(out.size(), 100u);
    EXPECT_EQ(ReadWholeFile(Path("none"), out), FileReadStatus::NotFound);
    EXPECT_EQ(ReadWholeFile(m_dir.string(), out), FileReadStatus::NotRegular);
    EXPECT_EQ(kMaxFileBytes, 16u << 20);
}

}  // namespace
}  // namespace vexlo::files
