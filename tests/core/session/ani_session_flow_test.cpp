// The animated cursor session through the session's handlers, with scripted dialogs: building
// frames from icon files, moving them, timing them, saving and opening again; the refusals and
// the questions on leaving.
#include <filesystem>

#include "core/session/ani_frames/ani_texts.h"
#include "core/session/ani_flow_support.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using surface::Color;

constexpr Color kWhite = 0xFFFFFF;
constexpr Color kRed = 0x0000FF;
constexpr Color kGreen = 0x008000;

TEST_F(AniFlowTest, FourFramesFromIconFilesSurviveSaveAndOpenInOrderWithTheirRates) {
    StartNew();
    EXPECT_TRUE(ani().ContainerVisible());
    EXPECT_EQ(s.Form().Status.Panel[0], "Untitled");
    LoadIcon(Ico("icotool_32_4bit.ico"));
    const char* const more[] = {"icotool_32_8bit.ico", "pillow_32_1bit.ico", "pillow_32_24bit.ico"};
    for (const char* name : more) {
        Click(kAniAddBelow);
        LoadIcon(Ico(name));
    }
    ASSERT_EQ(ani().FrameCount(), 4);
    EXPECT_EQ(ani().CurrentFrame(), 4);
    // The 4-bit icon on white: FOUR in 8x8 blocks, its transparent top-right pixel white on a
    // set mask. The 1-bit icon is painted everywhere: its whites are opaque whites.
    EXPECT_EQ(Image(1).GetPixel(0, 0), kRed);
    EXPECT_EQ(Image(1).GetPixel(8, 0), kGreen);
    EXPECT_EQ(Image(1).GetPixel(31, 0), kWhite);
    EXPECT_EQ(Mask(1).GetPixel(31, 0), kWhite);
    EXPECT_EQ(Image(3).GetPixel(5, 5), kWhite);
    EXPECT_EQ(Mask(3).GetPixel(5, 5), 0u);

    Click(kAniShiftUp);  // the 24-bit frame before the 1-bit one
    EXPECT_EQ(ani().CurrentFrame(), 3);
    EXPECT_EQ(Image(3).GetPixel(1, 0), surface::Rgb(8, 0, 128));
    const int jiffies[4] = {5, 45, 90, 1};
    for (int frame = 4; frame >= 1; --frame) {
        if (frame < 4) Click(kAniGoUp);
        if (frame == 4) Click(kAniGoDown);
        SetJiffiesOfCurrent(jiffies[frame - 1]);
    }
    s.ChooseAniBox(1, 5);
    s.ChooseAniBox(2, 9);
    EXPECT_TRUE(ani().Dirty());

    std::vector<surface::Surface> images, masks;
    for (int i = 1; i <= 4; ++i) {
        images.push_back(Image(i));
        masks.push_back(Mask(i));
    }
    const std::string path = Path("four.ani");
    host.Answer(MsgAnswer::Yes);
    host.AnswerSave(path);
    Click(kAniSave);
    EXPECT_NE(host.shown.back().text.find("   Hot spot:  [5, 9]\r\n"), std::string::npos);
    EXPECT_EQ(host.saveRequests.back().DefaultExt, "ani");
    EXPECT_FALSE(ani().Dirty());
    EXPECT_EQ(s.Form().Status.Panel[0], path);
    ASSERT_TRUE(std::filesystem::exists(path));

    StartNew();  // the container is up: only restored; then a fresh frame
    ASSERT_EQ(ani().FrameCount(), 1);
    host.AnswerOpen(path);
    Click(kAniOpen);
    ASSERT_EQ(ani().FrameCount(), 4);
    EXPECT_EQ(ani().Kind(), session::AniKind::FromFile);
    EXPECT_EQ(ani().CurrentFrame(), 1);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_TRUE(SamePixels(Image(i), images[static_cast<std::size_t>(i - 1)])) << i;
        EXPECT_TRUE(SamePixels(Mask(i), masks[static_cast<std::size_t>(i - 1)])) << i;
        EXPECT_EQ(Jiffies(i), jiffies[i - 1]) << i;
        EXPECT_EQ(ani().Frames().AniFrames[static_cast<std::size_t>(i - 1)].HotX, 5);
        EXPECT_EQ(ani().Frames().AniFrames[static_cast<std::size_t>(i - 1)].HotY, 9);
    }
    EXPECT_EQ(ani().Boxes().HotX, 5);
    EXPECT_EQ(ani().Boxes().HotY, 9);
    EXPECT_EQ(ani().Labels()[0], "Frame:  1 / 4");
    EXPECT_EQ(ani().Labels()[1], "Jiffies:  5");
    EXPECT_TRUE(ani().ButtonEnabled(kAniSave));
    // The save dialog proposes the stem of the file now open.
    host.Answer(MsgAnswer::Yes);
    host.AnswerSave("");
    Click(kAniSave);
    EXPECT_EQ(host.saveRequests.back().FileName, "four");
}

TEST_F(AniFlowTest, RemovingDownToOneFrameRefusesTestAndMovesThenEndsTheSession) {
    StartNew();
    Click(kAniAddBelow);
    Click(kAniAddBelow);
    EXPECT_TRUE(ani().ButtonEnabled(kAniTest));
    Click(kAniRemove);
    Click(kAniRemove);
    ASSERT_EQ(ani().FrameCount(), 1);
    EXPECT_EQ(ani().CurrentFrame(), 1);
    EXPECT_TRUE(ani().Dirty());
    for (int k : {kAniTest, kAniShiftUp, kAniShiftDown, kAniGoUp, kAniGoDown}) EXPECT_FALSE(ani().ButtonEnabled(k)) << k;
    for (int k = kAniFromArea; k <= kAniLoadIcon; ++k) EXPECT_TRUE(ani().ButtonEnabled(k)) << k;
    Click(kAniTest);  // disabled: nothing runs
    EXPECT_EQ(ani().Test().Caption(), "Test");

    Click(kAniRemove);  // the only frame
    EXPECT_EQ(ani().FrameCount(), 0);
    EXPECT_EQ(ani().Kind(), session::AniKind::None);
    EXPECT_EQ(ani().CurrentFrame(), 0);
    EXPECT_FALSE(ani().Dirty());
    EXPECT_TRUE(ani().ContainerVisible());
    for (int k = kAniFromArea; k <= kAniGoDown; ++k) EXPECT_FALSE(ani().ButtonEnabled(k)) << k;
    for (int k : {kAniSave, kAniSet, kAniTest}) EXPECT_FALSE(ani().ButtonEnabled(k)) << k;
    EXPECT_EQ(ani().Labels()[0], "");
}

TEST_F(AniFlowTest, AddingAboveAndBelowPlacesTheNewFrameAndCopiesTheNeighboursJiffies) {
    s.ChooseAniBox(0, 12);
    StartNew();
    EXPECT_EQ(Jiffies(1), 12);
    LoadIcon(Ico("icotool_32_4bit.ico"));
    Click(kAniAddAbove);  // before the first: a transparent frame 1, the jiffies of the old first
    EXPECT_EQ(ani().CurrentFrame(), 1);
    EXPECT_EQ(Jiffies(1), 12);
    EXPECT_EQ(Image(1).GetPixel(0, 0), kWhite);
    EXPECT_EQ(Mask(1).GetPixel(0, 0), kWhite);
    EXPECT_EQ(Image(2).GetPixel(0, 0), kRed);
    SetJiffiesOfCurrent(7);
    Click(kAniGoDown);
    Click(kAniAddAbove);  // between: takes the row before it, 7
    EXPECT_EQ(ani().CurrentFrame(), 2);
    EXPECT_EQ(Jiffies(2), 7);
    Click(kAniGoDown);
    Click(kAniAddBelow);  // after the last: appends with the last one's 12
    EXPECT_EQ(ani().CurrentFrame(), 4);
    EXPECT_EQ(Jiffies(4), 12);
    EXPECT_EQ(Image(3).GetPixel(0, 0), kRed);
    // Set for all frames says so.
    s.ClickAniSingly(false);
    s.ChooseAniBox(0, 90);
    host.Answer(MsgAnswer::Ok);
    Click(kAniSet);
    EXPECT_EQ(LastMessage(), "Jiffies set (for all frames)");
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(Jiffies(i), 90);
}

TEST_F(AniFlowTest, SeventyFramesRefuseAddingButStillTakeAnIconAndMore) {
    StartNew();
    host.AnswerOpen(Ani("ico4bit_70.ani"));
    Click(kAniOpen);
    ASSERT_EQ(ani().FrameCount(), 70);
    EXPECT_EQ(Jiffies(70), (69 % 9 + 1) * 3);
    for (int k : {kAniAddBelow, kAniAddAbove}) {
        host.Answer(MsgAnswer::Ok);
        Click(k);
        EXPECT_EQ(LastMessage(), "Maximum 70 frames reached");
        EXPECT_EQ(ani().FrameCount(), 70);
    }
    LoadIcon(Ico("icotool_32_4bit.ico"));  // replaces frame 1
    EXPECT_EQ(Image(1).GetPixel(0, 0), kRed);
    Click(kAniRemove);
    Click(kAniAddBelow);
    EXPECT_EQ(ani().FrameCount(), 70);

    // A file of 72 steps is refused, and the frames stay as they were.
    host.Answer(MsgAnswer::Yes);  // without saving?
    host.AnswerOpen(Ani("cur1bit_72.ani"));
    host.Answer(MsgAnswer::Ok);
    Click(kAniOpen);
    EXPECT_EQ(LastMessage(), Ani("cur1bit_72.ani") + "\r\nEither an invalid ANI file or number of frames exceeds limit of 70.");
    EXPECT_EQ(host.shown.back().icon, host::MsgIcon::Exclamation);
    EXPECT_EQ(ani().FrameCount(), 70);
}

TEST_F(AniFlowTest, LeavingWithUnsavedFramesAsksAndNoKeepsThem) {
    StartNew();
    EXPECT_FALSE(ani().Dirty());
    Click(kAniAddBelow);
    ASSERT_TRUE(ani().Dirty());
    for (int k : {kAniClose, kAniNew, kAniOpen}) {
        host.Answer(MsgAnswer::No);
        Click(k);
        EXPECT_EQ(LastMessage(), "Without saving frames to file first?\r\n\r\n");
        EXPECT_EQ(ani().FrameCount(), 2);
        EXPECT_TRUE(ani().ContainerVisible());
    }
    host.Answer(MsgAnswer::No);
    EXPECT_FALSE(s.QueryExit());
    // File Open of an icon ends the session only when the user agrees.
    host.Answer(MsgAnswer::No);
    s.FileOpen(1);
    EXPECT_EQ(LastMessage(), "Terminate animated cursor session?\r\n");
    EXPECT_EQ(ani().FrameCount(), 2);
    // Close hides the container and keeps the frames; the menu item then starts afresh.
    host.Answer(MsgAnswer::Yes);
    Click(kAniClose);
    EXPECT_FALSE(ani().ContainerVisible());
    EXPECT_EQ(ani().FrameCount(), 2);
    s.RunMenuItem("mnuANIFileCreateOrEdit");
    EXPECT_TRUE(ani().ContainerVisible());
    EXPECT_EQ(ani().FrameCount(), 0);
    EXPECT_EQ(ani().Kind(), session::AniKind::None);
}

TEST_F(AniFlowTest, FramesGoToTheEditingAreaAndBackKeepingGrayAndOpaqueWhite) {
    s.FileNew(0);
    auto paint = [this](int x, int y, Color c) {
        s.Icon().Image().SetPixelV(x, y, c);
        s.Icon().Mask().SetPixelV(x, y, 0);
    };
    paint(0, 0, 0xC0C0C0);  // painted gray
    paint(1, 0, kWhite);    // opaque white
    paint(2, 0, kRed);
    s.ComposeIcon();
    StartNew();
    Click(kAniFromArea);
    EXPECT_TRUE(ani().Dirty());
    const struct { int x, y; Color image, mask; } frame[] = {
        {0, 0, 0xC0C0C0, 0}, {1, 0, kWhite, 0}, {2, 0, kRed, 0}, {5, 5, kWhite, kWhite}};
    for (const auto& p : frame) {
        EXPECT_EQ(Image(1).GetPixel(p.x, p.y), p.image) << p.x;
        EXPECT_EQ(Mask(1).GetPixel(p.x, p.y), p.mask) << p.x;
    }
    s.FileNew(0);  // an empty icon; the container stays for a 32x32 one
    Click(kAniToArea);
    const session::IconSlot& slot = s.Current();
    EXPECT_EQ(slot.KindText, "ANI frame");
    EXPECT_EQ(slot.FileSpec, "FromAni_1");
    EXPECT_TRUE(slot.NeverSaved);
    EXPECT_FALSE(slot.Changed);
    EXPECT_EQ(slot.ColorCount, 16);
    const struct { int x, y; Color image, mask; } icon[] = {
        {0, 0, 0xC0C0C0, 0}, {1, 0, kWhite, 0}, {2, 0, kRed, 0}, {5, 5, 0, kWhite}};
    for (const auto& p : icon) {
        EXPECT_EQ(s.Icon().Image().GetPixel(p.x, p.y), p.image) << p.x;
        EXPECT_EQ(s.Icon().Mask().GetPixel(p.x, p.y), p.mask) << p.x;
    }
}

TEST_F(AniFlowTest, FromEditingAreaRefusesWhatIsNoThirtyTwoPixelIcon) {
    const struct {
        std::function<void()> icon;
        std::string text;
        bool dirty;  // the two refusals of the Editing Area mark the frames changed
    } cases[] = {
        {[] {}, "No icon loaded in Editing Area yet", true},
        {[this] { s.FileNew(1); }, "Icon in Editing Area is not 32x32", true},
        {[this] { s.FileNew(0); s.Current().ColorCount = -1; s.Current().BitsPerPixel = 32; },
         "Not allowed to load an icon with Alpha Channel", false},
    };
    for (const auto& c : cases) {
        c.icon();
        StartNew();
        host.Answer(MsgAnswer::Ok);
        Click(kAniFromArea);
        EXPECT_EQ(LastMessage(), c.text);
        EXPECT_EQ(ani().Dirty(), c.dirty) << c.text;
        if (c.dirty) host.Answer(MsgAnswer::Yes);
        Click(kAniClose);
    }
    // A 16x16 icon asked for while the session is up ends it only when the user agrees.
    StartNew();
    host.Answer(MsgAnswer::No);
    s.FileNew(1);
    EXPECT_EQ(LastMessage(), "Animated cursor session for 32x32 icons only\r\nTerminate animated cursor session?\r\n");
    EXPECT_TRUE(ani().ContainerVisible());
    EXPECT_EQ(s.Current().SizeCode, 2);
    host.Answer(MsgAnswer::Yes);
    s.FileNew(1);
    EXPECT_FALSE(ani().ContainerVisible());
    EXPECT_EQ(s.Current().SizeCode, 1);
}

TEST_F(AniFlowTest, LoadIconFileToFrameRefusesOtherFilesWithTheirMessages) {
    StartNew();
    const struct {
        std::string file;
        std::string text;
    } cases[] = {
        {Ico("icotool_multi.ico"), Ico("icotool_multi.ico") + "\r\n" + session::kAniMultiIconFile},
        {Ico("icotool_16_1bit.ico"), Ico("icotool_16_1bit.ico") + "\r\n\r\nSize not of 32x32"},
        {Ani("ico4bit_single.ani"), Ani("ico4bit_single.ani") +
                                        "\r\n\r\nInvalid icon file or icon not a size of\r\n16x16, 32x32 or 48x48."},
    };
    for (const auto& c : cases) {
        host.Answer(MsgAnswer::Ok);
        LoadIcon(c.file);
        EXPECT_EQ(LastMessage(), c.text);
    }
    EXPECT_FALSE(ani().Dirty());
    EXPECT_EQ(host.openRequests.back().Filter, "Icon files (*.ico)|*.ico|");
}

TEST_F(AniFlowTest, ASaveThatFailsSaysSoAndTheExitDeletesTheTemporaryFrames) {
    StartNew();
    Click(kAniAddBelow);
    host.Answer(MsgAnswer::Yes);
    host.AnswerSave(Path("missing/folder/x.ani"));
    host.Answer(MsgAnswer::Ok);
    Click(kAniSave);
    EXPECT_EQ(LastMessage().rfind("SaveANIFile.  Failed to save this ani file.\r\n2     ", 0), 0u) << LastMessage();
    EXPECT_TRUE(ani().Dirty());
    EXPECT_TRUE(ani().ButtonEnabled(kAniSave));
    EXPECT_FALSE(s.Form().Status.ProgressVisible);
    // The frames were staged all the same; the exit removes them.
    ASSERT_EQ(ani().TempFiles().size(), 2u);
    const std::string staged = ani().TempFiles()[1];
    EXPECT_NE(staged.find("ANI_Tmp_01"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(staged));
    s.EndAniSessionAtExit();
    EXPECT_FALSE(std::filesystem::exists(staged));
}

TEST_F(AniFlowTest, AnAniFileOnTheCommandLineOpensInTheContainerOrClosesItAgain) {
    session::Session other{host};
    other.Load(1024, 768);
    std::string quoted = "\"";
    quoted.append(Ani("ico4bit_70.ani")).append("\"");
    EXPECT_EQ(other.RunFirstActivation(quoted, nullptr), session::CommandLineResult::Loaded);
    EXPECT_TRUE(other.Ani().ContainerVisible());
    EXPECT_EQ(other.Ani().FrameCount(), 70);
    EXPECT_EQ(other.Form().Status.Panel[0], Ani("ico4bit_70.ani"));

    session::Session third{host};
    third.Load(1024, 768);
    host.Answer(MsgAnswer::Ok);
    EXPECT_EQ(third.RunFirstActivation(Ani("cur1bit_72.ani"), nullptr), session::CommandLineResult::LoadFailed);
    EXPECT_EQ(host.shown.back().icon, host::MsgIcon::Exclamation);
    EXPECT_FALSE(third.Ani().ContainerVisible());
}

}  // namespace
}  // namespace vexlo::test
