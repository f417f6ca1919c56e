// The Icons List of an ANI file's frames: the thumbnails, a frame into a slot (white under a
// white mask becomes black, opaque white stays), a vanished file, and Save All as ICO and BMP
// files. The fixture's frames are bw(k): white where (x + y + k) % 4 == 0, else black, with
// the top-left 4x4 transparent; its steps show frames 0, 1, 1, 0.
#include "icons_list_support.h"

#include <filesystem>
#include <fstream>

#include "core/alpha/alpha_array.h"
#include "core/files/ico_read.h"
#include "support/picture_grid.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using session::Frame;

class AniListTest : public IconsListFlowTest {
protected:
    // A copy of a fixture in the test's folder as spin.ani, opened from the Extract menu.
    std::string OpenAni(const std::string& fixture) {
        const std::string path = Path("spin.ani");
        std::filesystem::copy_file(std::string(VEXLO_FIXTURES_DIR) + "/ani/" + fixture, path);
        host.AnswerOpen(path);
        s.RunMenuItem("mnuExtractSub(0)");
        return path;
    }
};

TEST_F(AniListTest, EveryStepIsAThumbnailAndAClickedOneGoesToTheSlot) {
    OpenAni("cur1bit_seq_rate.ani");
    ASSERT_EQ(host.openRequests.size(), 1u);
    EXPECT_EQ(host.openRequests[0].Filter, "(*.ani)|*.ani|");
    const session::IconsListControls& c = List().Controls();
    EXPECT_EQ(c.Caption, "Extract Icons In ANI File");
    EXPECT_EQ(c.CountLabel, "Icons  4/4");
    EXPECT_TRUE(c.SaveAllVisible);
    EXPECT_TRUE(c.InvokeVisible);
    // Step 0 over white at (13, 12): the transparent corner white, then bw(0)'s row 0.
    std::string row;
    for (int x = 0; x < 8; ++x) row += LetterOfColor(Picture().GetPixel(13 + x, 12));
    EXPECT_EQ(row, "wwwwwkkk");

    s.ClickPanel(2);
    Flows().ReleaseOnList(true, 90, 10);  // step 2 of 4, opened
    EXPECT_EQ(s.Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_EQ(s.CurrentSlot(), 2);
    EXPECT_EQ(s.Current().FileSpec, "/opt/vexlo/spin_2");
    EXPECT_EQ(s.Current().KindText, "Extraction");
    EXPECT_EQ(PlanesRows(s.Icon().Image(), s.Icon().Mask(), 0, 0, 8, 2),
              (std::vector<std::string>{"....kkkw", "....kkwk"}));
}

TEST_F(AniListTest, TheRunningSourceIsRefusedByTheMenuAndAVanishedFileIsMissing) {
    const std::string path = OpenAni("cur1bit_seq_rate.ani");
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuExtractSub(0)");
    EXPECT_EQ(LastMessage(), "You are already in \"Extract From ANI\" session.\r\n");
    std::filesystem::remove(path);
    host.Answer(MsgAnswer::Ok);
    Flows().ReleaseOnList(false, 10, 10);
    EXPECT_EQ(LastMessage(), path + " file missing.\r\n");
    EXPECT_FALSE(s.Current().Occupied);
    host.Answer(MsgAnswer::Ok);
    host.AnswerOpen(Path("nothing.ani"));
    Flows().InvokeFolderOrFileDialog();
    EXPECT_EQ(LastMessage(), "Failed to read this animated cursor file");
}

TEST_F(AniListTest, SaveAllWritesEveryStepAsIcoOrBmp) {
    OpenAni("cur1bit_seq_rate.ani");
    const std::string out = Path("out");
    std::filesystem::create_directory(out);
    host.AnswerFolder(out);
    host.Answer(MsgAnswer::Yes);
    Flows().SaveAllExtractToFiles(0);
    ASSERT_FALSE(host.shown.empty());
    EXPECT_EQ(LastMessage(), "Frames will be saved as " + out + "/spin_1, _2 and _3, etc.\r\n\r\n"
                             "Totally 4 files.   Proceed?\r\n");
    EXPECT_EQ(host.shown.back().buttons, host::MsgButtons::YesNo);
    for (int i = 1; i <= 4; ++i) EXPECT_TRUE(std::filesystem::exists(out + "/spin_" + std::to_string(i) + ".ico"));
    Surface image(32, 32, 0), mask(32, 32, 0);
    alpha::AlphaArray alpha;
    ASSERT_TRUE(files::ReadIconFileToImage(out + "/spin_3.ico", 0, image, mask, alpha));
    EXPECT_EQ(PlanesRows(image, mask, 0, 0, 8, 2), (std::vector<std::string>{"....kkkw", "....kkwk"}));
    EXPECT_TRUE(List().Controls().SaveAllEnabled);
    EXPECT_FALSE(s.Form().Status.ProgressVisible);

    host.AnswerFolder(out);
    host.Answer(MsgAnswer::No);
    Flows().SaveAllExtractToFiles(1);
    EXPECT_FALSE(std::filesystem::exists(out + "/spin_1.bmp"));
    host.AnswerFolder(out);
    host.Answer(MsgAnswer::Yes);
    Flows().SaveAllExtractToFiles(1);
    std::ifstream bmp(out + "/spin_4.bmp", std::ios::binary);
    std::string head(2, '\0');
    bmp.read(head.data(), 2);
    EXPECT_EQ(head, "BM");
}

TEST_F(AniListTest, AOneFrameListHasNoFramesToSaveAll) {
    OpenAni("ico4bit_single.ani");
    EXPECT_EQ(List().Controls().CountLabel, "Icons  1/1");
    host.Answer(MsgAnswer::Ok);
    Flows().SaveAllExtractToFiles(0);
    EXPECT_EQ(LastMessage(), "Failed to obtained count of frames");
}

}  // namespace
}  // namespace vexlo::test
