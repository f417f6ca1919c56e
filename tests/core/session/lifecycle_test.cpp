// The load, the first activation with its command line, the exit question, and the guard
// against an operation that starts while another lets pending events run.
#include <gtest/gtest.h>

#include <string>

#include "core/session/session.h"
#include "support/scripted_host.h"

namespace vexlo::session {
namespace {

class Lifecycle : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(session.Load(1024, 768)); }
    void Occupy(int i, const std::string& file, bool changed, bool neverSaved) {
        IconSlot& s = session.SlotRecord(i);
        s.Occupied = true;
        s.FileSpec = file;
        s.Changed = changed;
        s.NeverSaved = neverSaved;
    }
    test::ScriptedHost host;
    Session session{host};
};

TEST_F(Lifecycle, ExitQuestionListsEachUnsavedSlot) {
    Occupy(0, "/icons/a.ico", false, false);
    session.SlotRecord(2).Changed = session.SlotRecord(3).NeverSaved = true;  // free slots never count
    EXPECT_EQ(session.UnsavedSlotsQuestion(), "");
    EXPECT_TRUE(session.QueryExit());  // asks nothing

    Occupy(1, "/icons/b.ico", true, false);
    EXPECT_EQ(session.UnsavedSlotsQuestion(),
              "The following is not saved yet: \r\n\r\nIcon Seq 2    /icons/b.ico\r\n"
              "\r\nProceed to exit still?\r\n");
    Occupy(0, "Untitled", false, true);
    Occupy(5, "C:\\x\\f.ico", true, true);
    const std::string question = session.UnsavedSlotsQuestion();
    EXPECT_EQ(question,
              "The following are not saved yet: \r\n\r\n"
              "Icon Seq 1    Untitled\r\nIcon Seq 2    /icons/b.ico\r\n"
              "Icon Seq 6    C:\\x\\f.ico\r\n"
              "\r\nProceed to exit still?\r\n");

    host.Answer(MsgAnswer::No);
    EXPECT_FALSE(session.QueryExit());
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, question);
    EXPECT_EQ(host.shown[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(host.shown[0].title, "Vexlo");
}

TEST_F(Lifecycle, SmallScreenAsksAndNoQuits) {
    EXPECT_EQ(SmallScreenQuestion(640, 480),
              "This program requires a 800x600 screen or better.\r\n"
              " Your current screen is 640x480.  Proceed still?");
    host.Answer(MsgAnswer::No);
    EXPECT_FALSE(session.Load(799, 600));
    EXPECT_TRUE(session.QuitAtActivation());
    host.Answer(MsgAnswer::Yes);
    EXPECT_TRUE(session.Load(800, 599));
    EXPECT_FALSE(session.QuitAtActivation());
    EXPECT_TRUE(session.Load(800, 600));  // asks nothing
    ASSERT_EQ(host.shown.size(), 2u);
    EXPECT_EQ(host.shown[1].text, SmallScreenQuestion(800, 599));
}

TEST_F(Lifecycle, MissingCommandLineFileIsReported) {
    bool keep = true;
    host.Answer(MsgAnswer::Ok);
    EXPECT_EQ(session.RunFirstActivation("\"/no/such dir/x.ico\"", &keep),
              CommandLineResult::NotFound);
    EXPECT_FALSE(keep);
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "/no/such dir/x.ico not found");
    EXPECT_EQ(session.RunFirstActivation("", nullptr), CommandLineResult::Empty);
    EXPECT_EQ(host.shown.size(), 1u);
}

TEST_F(Lifecycle, CommandLineLosesQuotesAndExtensionIsUpperCased) {
    const struct {
        const char *line, *path, *ext;
    } cases[] = {
        {"\"/home/u/My Icons/a.ico\"", "/home/u/My Icons/a.ico", "ICO"},
        {"/tmp/a\"b\".cur", "/tmp/ab.cur", "CUR"},
        {"x.AnI", "x.AnI", "ANI"},
        {"ab", "ab", "AB"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CommandLinePath(c.line), c.path);
        EXPECT_EQ(UpperExtension3(CommandLinePath(c.line)), c.ext);
    }
}

// Pending events that start another operation: the platform's stand-in for a click that
// arrives while File New lets events run.
class ReenteringHost : public test::ScriptedHost {
public:
    void DoEvents() override {
        if (session == nullptr) return;
        busyDuringEvents = busyDuringEvents || session->Busy();
        session->ClickPanel(3);
    }
    Session* session = nullptr;
    bool busyDuringEvents = false;
};

TEST(Reentry, AnEntryWhilePendingEventsRunIsCaughtInDebugBuilds) {
    ReenteringHost host;
    Session s(host);
    ASSERT_TRUE(s.Load(1024, 768));
    EXPECT_FALSE(s.Busy());
    host.session = &s;
    EXPECT_DEBUG_DEATH(s.FileNew(0), "another let pending events run");
#ifdef NDEBUG
    EXPECT_TRUE(host.busyDuringEvents);
    EXPECT_FALSE(s.Busy());
#endif
}

}  // namespace
}  // namespace vexlo::session
