// The settings file through the session: the file history as stored and as the menu shows it,
// the options and places kept across a restart, and files that aren't ours.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/files/byte_reader.h"
#include "core/files/ico_write.h"
#include "core/session/session.h"
#include "core/session/settings/settings_file.h"
#include "support/scripted_host.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;

class SettingsFlowTest : public ::testing::Test {
protected:
    // A session as the window starts one, with the settings in the test's folder.
    std::unique_ptr<session::Session> Start() {
        auto s = std::make_unique<session::Session>(host);
        s->Load(1024, 768);
        session::Directories dirs;
        dirs.ConfigDir = folder.Path("config") + "/";
        dirs.TempDir = folder.Path("") + "/";
        s->SetDirectories(dirs);
        s->RunFirstActivation("", nullptr);
        return s;
    }
    std::string Ini() const {
        std::vector<std::uint8_t> bytes;
        if (files::ReadWholeFile(folder.Path("config/Vexlo.ini"), bytes) != files::FileReadStatus::Ok) return {};
        return std::string(bytes.begin(), bytes.end());
    }
    void SetIni(const std::string& text) {
        std::filesystem::create_directories(folder.Path("config"));
        std::ofstream(folder.Path("config/Vexlo.ini"), std::ios::binary) << text;
    }
    static std::vector<std::string> Shown(const session::Session& s) {
        std::vector<std::string> out;
        for (int i = 1; i <= session::kHistoryEntries; ++i)
            if (s.FileHistory().Visible[static_cast<std::size_t>(i)])
                out.push_back(s.FileHistory().Caption[static_cast<std::size_t>(i)]);
        return out;
    }
    TestFolder folder{"vexlo_settings"};
    ScriptedHost host;
};

TEST_F(SettingsFlowTest, TheHistoryTakesEachNewFileFirstAndKeepsSix) {
    auto s = Start();
    EXPECT_FALSE(s->FileHistory().Visible[0]);  // no settings file: no history shown
    s->AddToFileHistory("/a b/one.ico");
    EXPECT_EQ(Ini(), "[File History]\r\n1.=/a b/one.ico\r\n");
    EXPECT_TRUE(s->FileHistory().Visible[0]);
    EXPECT_EQ(Shown(*s), std::vector<std::string>{"&1 /a b/one.ico"});
    s->AddToFileHistory("/a b/one.ico");
    EXPECT_EQ(Ini(), "[File History]\r\n1.=/a b/one.ico\r\n");
    for (int i = 2; i <= 7; ++i) s->AddToFileHistory("/f" + std::to_string(i));
    EXPECT_EQ(Shown(*s), (std::vector<std::string>{"&1 /f7", "&2 /f6", "&3 /f5", "&4 /f4", "&5 /f3", "&6 /f2"}));
    // A path already further down comes first again and stands twice.
    s->AddToFileHistory("/f4");
    EXPECT_EQ(Shown(*s)[0], "&1 /f4");
    EXPECT_EQ(Shown(*s)[4], "&5 /f4");
}

TEST_F(SettingsFlowTest, GapsCloseUpOnTheMenuAndMoveAlongInTheFile) {
    SetIni("[File History]\r\n1.=/x\r\n2.= \r\n3.=/y\r\n");
    auto s = Start();
    EXPECT_EQ(Shown(*s), (std::vector<std::string>{"&1 /x", "&2 /y"}));
    s->AddToFileHistory("/z");
    EXPECT_EQ(Ini(), "[File History]\r\n1.=/z\r\n2.=/x\r\n3.=\r\n4.=/y\r\n5.=\r\n6.=\r\n");
}

TEST_F(SettingsFlowTest, ARestartBringsBackOptionsPlacesAndHistory) {
    {
        auto s = Start();
        s->ClickGridline(1);
        s->RunMenuItem("mnuOptionsDisplayMask");
        s->RunMenuItem("mnuOptionsPromptToSave");
        s->AddToFileHistory("/icons/a.ico");
        s->WriteScreenPos(100, 40);
        s->WriteOptions();
        s->WriteLastFolder(folder.Path(""));
    }
    const std::string written = Ini();
    auto s = Start();
    EXPECT_EQ(s->Form().GridlineChecked, (std::array<bool, 3>{false, true, false}));
    EXPECT_EQ(s->View().GridColor(), 0x000000u);
    EXPECT_FALSE(s->Form().DisplayMaskChecked);
    EXPECT_TRUE(s->Form().PromptToSaveChecked);
    EXPECT_TRUE(s->Form().RemindIfBmpChecked);
    ASSERT_TRUE(s->ReadScreenPos().has_value());
    EXPECT_EQ(s->ReadScreenPos()->Left, 100);
    EXPECT_EQ(s->ReadScreenPos()->Top, 40);
    EXPECT_EQ(s->ReadLastFolder(), folder.Path(""));
    EXPECT_EQ(Shown(*s), std::vector<std::string>{"&1 /icons/a.ico"});
    // Nothing changed: the exit writes nothing.
    s->WriteOptions();
    EXPECT_EQ(Ini(), written);
    EXPECT_NE(written.find("[Options]\r\nGridLines=2\r\nDisplayMask=0\r\nPromptToSave=-1\r\nRemindIfBMP=-1\r\n"),
              std::string::npos) << written;
    EXPECT_NE(written.find("[Screen Pos]\r\nLeft=1500\r\nTop=600\r\n"), std::string::npos) << written;
}

TEST_F(SettingsFlowTest, FilesThatArentOursFallBackToDefaults) {
    const std::string cases[] = {
        std::string("\x00\x01\xff\xfe[Options]\x00GridLines=\x07", 22),
        "[Options]\r\nGridLines=99\r\nDisplayMask=yes\r\n[Screen Pos]\r\nLeft=-5e300\r\nTop=abc\r\n"
        "[Last Folder]\r\nLastFolder=/no/such/folder\r\n",
        "[Options]\r\nGridLines=0\r\n" + std::string(session::SettingsFile::kMaxBytes, 'x'),
    };
    for (const std::string& text : cases) {
        SetIni(text);
        auto s = Start();
        EXPECT_EQ(s->Form().GridlineChecked, (std::array<bool, 3>{true, false, false}));
        EXPECT_TRUE(s->Form().DisplayMaskChecked);
        EXPECT_EQ(s->ReadLastFolder(), "");
        if (const auto pos = s->ReadScreenPos()) {
            EXPECT_EQ(pos->Left, 0);
        }
    }
}

TEST_F(SettingsFlowTest, AnEntryWhoseFileIsGoneSaysSoAndStays) {
    surface::Surface image(16, 16, 0x00FF00), mask(16, 16, 0);
    ASSERT_TRUE(files::WriteIconFile(image, mask, folder.Path("green.ico"), {}));
    auto s = Start();
    ASSERT_TRUE(s->LoadIconFile(folder.Path("green.ico"), true));
    s->AddToFileHistory("/gone.ico");
    host.Answer(MsgAnswer::Ok);
    s->RunMenuItem("mnuFileHistory(1)");
    EXPECT_EQ(host.shown.back().text, "/gone.ico not found");
    s->RunMenuItem("mnuFileHistory(2)");
    EXPECT_EQ(s->Current().FileSpec, folder.Path("green.ico"));
    // Opened from place 2, it comes first and stands at place 3 as well.
    EXPECT_EQ(Shown(*s), (std::vector<std::string>{"&1 " + folder.Path("green.ico"), "&2 /gone.ico",
                                                   "&3 " + folder.Path("green.ico")}));
}

}  // namespace
}  // namespace vexlo::test
