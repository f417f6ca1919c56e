// Opening and saving icon files through the session, with scripted dialogs: what the slot
// holds afterwards, the messages, and that a failed save leaves the file on disk as it was.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

#include "core/files/ico_messages.h"
#include "core/session/session.h"
#include "support/scripted_host.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;
using host::MsgAnswer;
using surface::Color;

class FileFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
    }
    std::string Path(const std::string& name) const { return folder.Path(name); }
    void Paint(int x, int y, Color c) {
        s.Icon().Image().SetPixelV(x, y, c);
        s.Icon().Mask().SetPixelV(x, y, 0);
        s.ComposeIcon();
        s.Current().Changed = true;
    }
    std::string ReadBytes(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    TestFolder folder{"vexlo_flows"};
    const fs::path& dir = folder.Dir();
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(FileFlowTest, SaveAsThenOpenGivesTheSamePlanes) {
    s.FileNew(1);
    Paint(0, 0, 0x0000FF);
    Paint(15, 15, 0x123456);                 // off the sixteen: 8 bits
    s.Icon().Image().SetPixelV(7, 7, 0x00FF00);    // inverting
    s.ComposeIcon();
    const surface::Surface image = s.Icon().Image(), mask = s.Icon().Mask();
    host.AnswerSave(Path("a.ico"));
    s.RunMenuItem("mnuFileSaveAsICO");
    ASSERT_EQ(host.saveRequests.size(), 1u);
    EXPECT_EQ(host.saveRequests[0].FileName, "Untitled");
    EXPECT_EQ(host.saveRequests[0].DefaultExt, "ico");
    EXPECT_EQ(s.Current().FileSpec, Path("a.ico"));
    EXPECT_FALSE(s.Current().Changed);
    EXPECT_EQ(s.Current().ColorCount, 256);
    EXPECT_EQ(s.Form().Status.Panel[0], Path("a.ico"));

    s.FileNew(0);
    host.AnswerOpen(Path("a.ico"));
    s.RunMenuItem("mnuFileOpen(0)");
    EXPECT_TRUE(SamePixels(s.Icon().Image(), image));
    EXPECT_TRUE(SamePixels(s.Icon().Mask(), mask));
    EXPECT_EQ(s.Current().SizeCode, 1);
    EXPECT_EQ(s.Current().KindText, "ICO file");
    EXPECT_EQ(s.Current().BitsPerPixel, 8);
    EXPECT_EQ(s.UndoCount(), 1);
    EXPECT_EQ(s.Form().PaletteMode, 1);  // a 256-color icon brings the 256-color palette
}

TEST_F(FileFlowTest, SaveOfAnIcoFileNeedsNoDialog) {
    s.FileNew(0);
    host.AnswerSave(Path("b.ico"));
    s.RunMenuItem("mnuFileSaveICO");  // "Untitled": asks for a name
    Paint(3, 3, 0xFFFFFF);
    s.RunMenuItem("mnuFileSaveICO");  // now saved in place
    EXPECT_EQ(host.saveRequests.size(), 1u);
    EXPECT_FALSE(s.Current().Changed);
    EXPECT_EQ(fs::file_size(Path("b.ico")), 326u);  // black and white: 1 bit
}

TEST_F(FileFlowTest, AProtectedTargetIsRefusedAndKeptAsItWas) {
    s.FileNew(0);
    // A folder is protected for everyone; a read-only file only for a user who isn't root.
    const std::string folderTarget = Path("folder.ico");
    fs::create_directories(folderTarget);
    const std::string readOnly = Path("ro.ico");
    { std::ofstream(readOnly) << "old contents"; }
    fs::permissions(readOnly, fs::perms::owner_read);
    std::vector<std::string> targets = {folderTarget};
    if (::access(readOnly.c_str(), W_OK) != 0) targets.push_back(readOnly);
    for (const std::string& target : targets) {
        SCOPED_TRACE(target);
        host.shown.clear();
        host.Answer(MsgAnswer::Ok);
        host.AnswerSave(target);
        s.RunMenuItem("mnuFileSaveAsICO");
        ASSERT_EQ(host.shown.size(), 1u);
        EXPECT_EQ(host.shown[0].text, files::ReadOnlyFileMessage());
        EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Exclamation);
        EXPECT_EQ(s.Current().FileSpec, "Untitled");
    }
    EXPECT_TRUE(fs::is_directory(folderTarget));
    EXPECT_EQ(ReadBytes(readOnly), "old contents");
}

TEST_F(FileFlowTest, ForceSave256RefusesATrueColorIcon) {
    s.FileNew(0);
    for (int i = 0; i < 300; ++i) Paint(i % 32, i / 32, static_cast<Color>(0x10000 + i));
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileSaveAsICOForce256");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::CannotForce256Message());
}

TEST_F(FileFlowTest, BadFilesGiveTheirMessagesAndLeaveTheSlot) {
    s.FileNew(0);
    Paint(1, 1, 0x0000FF);
    s.Current().Changed = false;
    const surface::Surface image = s.Icon().Image();
    { std::ofstream(Path("junk.ico")) << "not an icon at all"; }
    host.AnswerOpen(Path("junk.ico"));
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileOpen(0)");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::InvalidIconFileMessage(Path("junk.ico")));
    EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Exclamation);
    EXPECT_TRUE(SamePixels(s.Icon().Image(), image));
    EXPECT_EQ(s.Current().FileSpec, "Untitled");
}

TEST_F(FileFlowTest, CommandLineOpensTheIconAndKeepsTheWorkingFolder) {
    s.FileNew(2);
    Paint(47, 47, 0x00FF00);
    host.AnswerSave(Path("c d.ico"));
    s.RunMenuItem("mnuFileSaveAsICO");
    session::Session fresh(host);
    fresh.Load(1024, 768);
    bool keep = false;
    EXPECT_EQ(fresh.RunFirstActivation("\"" + Path("c d.ico") + "\"", &keep),
              session::CommandLineResult::Loaded);
    EXPECT_TRUE(keep);
    EXPECT_EQ(fresh.Icon().Image().GetPixel(47, 47), 0x00FF00u);
    EXPECT_EQ(fresh.View().MagnifyStep(), 8);
}

TEST_F(FileFlowTest, SuggestedNameOfAnImageOfAMultiIconFile) {
    s.FileNew(0);
    s.Current().FileSpec = "/icons/app.ico";
    EXPECT_EQ(s.SuggestedSaveName(), "app");
    s.Current().MultiIconFile = true;
    s.Current().ColorCount = 256;
    EXPECT_EQ(s.SuggestedSaveName(), "app_32_256");
    s.Current().ColorCount = -1;
    s.Current().BitsPerPixel = 32;
    s.Current().SizeCode = 3;
    EXPECT_EQ(s.SuggestedSaveName(), "app_48_32bpp");
}

}  // namespace
}  // namespace vexlo::test
