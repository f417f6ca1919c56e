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

// A load that fails after the slot was cleared leaves an empty slot, and the status bar and
// the toolbar say so: nothing of the icon that was there before stays on them.
TEST_F(FileFlowTest, AFailedLoadLeavesStatusBarAndToolbarAsForAnEmptySlot) {
    s.FileNew(0);
    Paint(1, 1, 0x123456);
    host.AnswerSave(Path("good.ico"));
    s.RunMenuItem("mnuFileSaveAsICO");
    Paint(2, 2, 0x654321);  // an undo step
    s.Current().Changed = false;
    const std::string good = ReadBytes(Path("good.ico"));

    // Cut inside the pixels: the probe reads only headers and passes it.
    { std::ofstream(Path("cut.ico"), std::ios::binary) << good.substr(0, good.size() - 10); }
    // A true-color image of 16 bits: the pixels can be read, the depth isn't taken.
    std::string odd = good;
    odd[6 + 6] = 16, odd[6 + 2] = 0, odd[6 + 7] = 0;  // wBitCount 16, bColorCount 0
    odd[22 + 14] = 16, odd[22 + 15] = 0;                // biBitCount 16
    odd += std::string(4096, '\0');
    { std::ofstream(Path("odd.ico"), std::ios::binary) << odd; }
    const struct {
        const char* file;
        std::string message;
    } cases[] = {
        {"cut.ico", files::FailedToLoadMessage(Path("cut.ico"))},
        {"odd.ico", files::TrueColorDepthMessage(Path("odd.ico"))},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.file);
        host.AnswerOpen(Path("good.ico"));
        s.RunMenuItem("mnuFileOpen(0)");
        Paint(2, 2, 0x654321);
        s.Current().Changed = false;
        ASSERT_EQ(s.Form().Status.Panel[0], Path("good.ico"));
        ASSERT_TRUE(s.Form().ToolbarEnabled[4]);  // Save
        ASSERT_GE(s.UndoCount(), 1);

        host.shown.clear();
        host.AnswerOpen(Path(c.file));
        host.Answer(MsgAnswer::Ok);
        s.RunMenuItem("mnuFileOpen(0)");
        ASSERT_EQ(host.shown.size(), 1u);
        EXPECT_EQ(host.shown[0].text, c.message);
        EXPECT_FALSE(s.Current().Occupied);
        EXPECT_FALSE(s.InArea());
        for (const std::string& panel : s.Form().Status.Panel) EXPECT_EQ(panel, "");
        EXPECT_FALSE(s.Form().Status.AlphaImageVisible);
        EXPECT_EQ(s.UndoCount(), 0);
        for (const std::size_t k : {4u, 5u, 6u, 10u, 13u, 21u}) EXPECT_FALSE(s.Form().ToolbarEnabled[k]) << k;
        EXPECT_TRUE(s.Form().ToolbarEnabled[22]);  // fixed buttons stay
    }
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
