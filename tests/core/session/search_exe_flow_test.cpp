// Search & extract from exe files through the session: the frame from the Extract menu, the
// folder boxes and buttons, the limit's box, Proceed's refusals, a whole search run in slices,
// Stop half way, and a search that the frame leaves behind.
#include <gtest/gtest.h>

#include "core/session/session.h"
#include "core/session/session_search_exe.h"
#include "support/exe_tree.h"
#include "support/scripted_host.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;
using session::Frame;

class SearchExeFlow : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        WriteBytes(folder.Dir() / "in" / "a.exe", ProgramWithIcons({0x0000FF, 0x00FF00}));
        WriteBytes(folder.Dir() / "in" / "sub" / "b.exe", ProgramWithIcons({0xFF0000}));
        fs::create_directories(Out());
    }
    session::SearchExeFlows Flows() { return s.SearchExe(); }
    const session::SearchExeControls& Controls() { return s.SearchExe().State().Controls(); }
    fs::path Out() const { return folder.Dir() / "out"; }
    std::string LastMessage() const { return host.shown.empty() ? "" : host.shown.back().text; }
    // The frame up with both folders filled in.
    void OpenWithFolders(bool sub) {
        s.RunMenuItem("mnuExtractSub(5)");
        Flows().EditSearchDir(0, (folder.Dir() / "in").string());
        Flows().EditSearchDir(1, Out().string());
        Flows().ClickIncludeSub(sub);
    }
    int RunToEnd() {
        int slices = 1;
        while (Flows().RunSlice(std::chrono::milliseconds(0))) ++slices;
        return slices;
    }

    TestFolder folder{"vexlo_search_flow"};
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(SearchExeFlow, TheMenuEntryShowsTheFrameIdleAndOnceOnly) {
    s.RunMenuItem("mnuExtractSub(5)");
    EXPECT_EQ(s.Form().VisibleFrame, Frame::SearchExeInFolder);
    EXPECT_TRUE(Controls().ProceedEnabled);
    EXPECT_FALSE(Controls().StopEnabled);
    EXPECT_EQ(Controls().InvokeSearchPathEnabled, (std::array<bool, 2>{true, true}));
    EXPECT_EQ(Controls().MaxIcons, "300");
    host.Answer(host::MsgAnswer::Ok);
    s.RunMenuItem("mnuExtractSub(5)");
    EXPECT_EQ(LastMessage(),
              "You are already in \"Search & Extract Icons From EXE Files In Folder\" session.\r\n");
}

TEST_F(SearchExeFlow, TheExtractMenusSaveQuestionComesFirst) {
    s.FileNew(0);
    s.Current().Changed = true;
    host.Answer(host::MsgAnswer::Cancel);
    s.RunMenuItem("mnuExtractSub(5)");
    EXPECT_EQ(LastMessage(), "Save current icon to file?");
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
}

TEST_F(SearchExeFlow, TheFolderButtonsAskWithTheirPatternFromTheBoxesText) {
    s.RunMenuItem("mnuExtractSub(5)");
    Flows().EditSearchDir(0, "/start/here");
    host.AnswerFolder("/chosen");
    Flows().InvokeSearchPath(0);
    host.AnswerFolder("");  // cancelled: the box keeps its text
    Flows().InvokeSearchPath(1);
    ASSERT_EQ(host.folderRequests.size(), 2u);
    EXPECT_EQ(host.folderRequests[0].pattern, "*.exe");
    EXPECT_EQ(host.folderRequests[0].startFolder, "/start/here");
    EXPECT_EQ(host.folderRequests[1].pattern, "");
    EXPECT_EQ(Controls().SearchExeDir[0], "/chosen");
    EXPECT_EQ(Controls().SearchExeDir[1], "");
}

TEST(MaxIconsText, KeepsDigitsWithinOneToTenThousand) {
    const std::pair<const char*, const char*> cases[] = {
        {"300", "300"}, {"25a", "25"}, {"", "1"}, {"0", "1"}, {"000", "1"}, {"10000", "10000"},
        {"10001", "10000"}, {"99999999999999999999", "10000"}, {"007", "007"}, {"-5", "5"},
    };
    for (const auto& [typed, shown] : cases) EXPECT_EQ(session::MaxIconsText(typed), shown) << typed;
    EXPECT_EQ(session::MaxIconsValue("007"), 7);
}

TEST_F(SearchExeFlow, ProceedRefusesMissingFolders) {
    struct Case {
        std::string From, To, Message;
    };
    const std::string in = (folder.Dir() / "in").string(), gone = (folder.Dir() / "gone").string();
    const Case cases[] = {
        {"", Out().string(), "Source directory not entered yet"},
        {"   ", Out().string(), "Source directory not entered yet"},
        {in, "  ", "Save to directory not entered yet"},
        {gone, Out().string(), gone + "\r\nSource directory not found"},
        {in, gone, gone + "\r\nSave to directory not found"},
    };
    s.RunMenuItem("mnuExtractSub(5)");
    for (const Case& c : cases) {
        Flows().EditSearchDir(0, c.From);
        Flows().EditSearchDir(1, c.To);
        host.Answer(host::MsgAnswer::Ok);
        Flows().Proceed();
        EXPECT_EQ(LastMessage(), c.Message);
        EXPECT_FALSE(s.SearchExe().State().Active());
        EXPECT_TRUE(Controls().ProceedEnabled);
    }
    EXPECT_TRUE(fs::is_empty(Out()));
}

TEST_F(SearchExeFlow, ASearchRunsInSlicesAndEndsWithItsTotal) {
    struct Case {
        bool Sub;
        std::string Max;
        std::vector<std::string> Written;
    };
    const Case cases[] = {
        {true, "300", {"0_b.ico", "1_a.ico", "2_a.ico"}},
        {false, "300", {"0_a.ico", "1_a.ico"}},
        {true, "1", {"0_b.ico"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Max);
        fs::remove_all(Out());
        fs::create_directories(Out());
        OpenWithFolders(c.Sub);
        Flows().EditMaxIcons(c.Max);
        Flows().Proceed();
        EXPECT_TRUE(s.SearchExe().State().Active());
        EXPECT_EQ(Controls().CountLabel, "In progress... (To halt click Stop)");
        EXPECT_EQ(s.Form().Status.ForExtendedFrame, "Search in progress......    ");
        EXPECT_FALSE(Controls().ProceedEnabled);
        EXPECT_TRUE(Controls().StopEnabled);
        EXPECT_EQ(Controls().InvokeSearchPathEnabled, (std::array<bool, 2>{false, false}));
        EXPECT_TRUE(s.Form().Status.ProgressVisible);
        EXPECT_GT(RunToEnd(), 1);
        EXPECT_EQ(FileNamesIn(Out()), Sorted(c.Written));
        EXPECT_EQ(Controls().CountLabel, "Total: " + std::to_string(c.Written.size()) + " icons");
        EXPECT_EQ(s.Form().Status.ForExtendedFrame, "");
        EXPECT_FALSE(s.Form().Status.ProgressVisible);
        EXPECT_TRUE(Controls().ProceedEnabled);
        EXPECT_FALSE(Controls().StopEnabled);
        EXPECT_FALSE(s.SearchExe().State().Active());
        s.CancelFrame();
    }
}

TEST_F(SearchExeFlow, StopHalfWayReportsTheFilesWritten) {
    OpenWithFolders(true);
    Flows().Proceed();
    // Slices of a single step: sub read, b.exe opened, its icon written.
    for (int i = 0; i < 3; ++i) ASSERT_TRUE(Flows().RunSlice(std::chrono::milliseconds(0)));
    EXPECT_EQ(s.Form().Status.ForExtendedFrame, (folder.Dir() / "in" / "sub" / "b.exe").string() + " ");
    Flows().Stop();
    EXPECT_EQ(FileNamesIn(Out()), Sorted({"0_b.ico"}));
    EXPECT_EQ(Controls().CountLabel, "Total: 1 icons");
    EXPECT_TRUE(s.SearchExe().State().Search().StopRequested());
    EXPECT_FALSE(Flows().RunSlice());
    EXPECT_TRUE(Controls().ProceedEnabled);
}

TEST_F(SearchExeFlow, AnotherFrameEndsTheSearchAtItsNextSlice) {
    OpenWithFolders(true);
    Flows().Proceed();
    s.CancelFrame();
    EXPECT_FALSE(Flows().RunSlice());
    EXPECT_FALSE(s.SearchExe().State().Active());
    EXPECT_TRUE(fs::is_empty(Out()));
    // Back in the frame, the search can start again.
    s.RunMenuItem("mnuExtractSub(5)");
    EXPECT_TRUE(Controls().ProceedEnabled);
    EXPECT_EQ(Controls().SearchExeDir[1], Out().string());
}

}  // namespace
}  // namespace vexlo::test
