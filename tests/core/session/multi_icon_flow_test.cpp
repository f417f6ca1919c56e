// Images of multi-icon files through the session: choosing one, saving it back, adding.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/files/byte_reader.h"
#include "core/files/icon_set.h"
#include "core/files/ico_read.h"
#include "core/files/ico_write.h"
#include "core/session/session.h"
#include "support/scripted_host.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;
using host::MsgAnswer;
using surface::Color;
using surface::Surface;

// One image of a set: a side x side icon filled with color (painted everywhere).
files::IconImage ImageOf(int side, Color color) {
    Surface image(side, side, 0), mask(side, side, 0);
    image.Fill(color);
    mask.Fill(0);
    const std::vector<std::uint8_t> bytes = files::BuildIconFileBytes(image, mask, {});
    files::IconSet single;
    EXPECT_EQ(files::ReadIconSet(files::Bytes(bytes.data(), bytes.size()), single), 1);
    return single.Images[0];
}

class MultiIconFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        session::Directories dirs = s.Dirs();
        dirs.TempDir = dir.string() + "/";
        s.SetDirectories(dirs);
        // 16x16 in 16 colors, 32x32 in 256 colors, 16x16 in 256 colors.
        files::IconSet set;
        set.Images = {ImageOf(16, 0x000080), ImageOf(32, 0x123456), ImageOf(16, 0x654321)};
        ASSERT_TRUE(files::WriteIconSet(Path("multi.ico"), set));
    }
    std::string Path(const std::string& name) const { return folder.Path(name); }
    // The dialog's answer for image index of the set at path.
    host::MultiIconAnswer Choice(int index, const char* text) {
        host::MultiIconAnswer a;
        a.Choice = text;
        EXPECT_TRUE(files::ReadIconFileToImage(Path("multi.ico"), index, a.Image, a.Mask, a.Alpha));
        return a;
    }
    TestFolder folder{"vexlo_multi"};
    const fs::path& dir = folder.Dir();
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(MultiIconFlowTest, OpeningAFileWithAChoiceShowsTheDialogAndTakesItsImage) {
    host.AnswerOpen(Path("multi.ico"));
    host.AnswerMultiIcon(Choice(1, "01/32/256/8"));
    s.RunMenuItem("mnuFileOpen(0)");
    ASSERT_EQ(host.multiIconRequests.size(), 1u);
    EXPECT_EQ(host.multiIconRequests[0].addMode, 0);
    const session::IconSlot& slot = s.Current();
    EXPECT_TRUE(slot.MultiIconFile);
    EXPECT_EQ(slot.MultiIconIndex, 1);
    EXPECT_EQ(slot.ColorCount, 256);
    EXPECT_EQ(s.Icon().Image().GetPixel(5, 5), 0x123456u);
    EXPECT_EQ(s.Form().Status.Panel[1], "MIF");
}

TEST_F(MultiIconFlowTest, SavingBackReplacesOnlyThatImage) {
    host.AnswerOpen(Path("multi.ico"));
    host.AnswerMultiIcon(Choice(2, "02/16/256/8"));
    s.RunMenuItem("mnuFileOpen(0)");
    s.Icon().Image().Fill(0x00FF00);  // a VGA color: the file's 256-color entry is kept by the slot
    s.ComposeIcon();
    s.Current().Changed = true;
    host.AnswerSave(Path("back.ico"));
    s.RunMenuItem("mnuFileSaveMultiIconReplace");
    EXPECT_EQ(s.Current().FileSpec, Path("back.ico"));
    EXPECT_FALSE(s.Current().Changed);
    files::IconSet before, after;
    ASSERT_EQ(files::ReadIconSet(Path("multi.ico"), before), 3);  // the source stays as it was
    ASSERT_EQ(files::ReadIconSet(Path("back.ico"), after), 3);
    EXPECT_EQ(after.Images[0].Bytes, before.Images[0].Bytes);
    EXPECT_EQ(after.Images[1].Bytes, before.Images[1].Bytes);
    Surface image, mask;
    alpha::AlphaArray alpha;
    ASSERT_TRUE(files::ReadIconFileToImage(Path("back.ico"), 2, image, mask, alpha));
    EXPECT_EQ(image.GetPixel(3, 3), 0x00FF00u);
}

TEST_F(MultiIconFlowTest, SavingBackRefusesADuplicateOfAnotherImage) {
    host.AnswerOpen(Path("multi.ico"));
    host.AnswerMultiIcon(Choice(2, "02/16/256/8"));
    s.RunMenuItem("mnuFileOpen(0)");
    s.Current().ColorCount = 16;  // now like image 0
    s.Current().BitsPerPixel = 4;
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileSaveMultiIconReplace");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::DuplicateReplaceMessage(16, 16, 16, 4));
}

TEST_F(MultiIconFlowTest, AddingA16ColorIconOnceAndRefusingItTheSecondTime) {
    files::IconSet set;
    set.Images = {ImageOf(16, 0x654321)};  // 16x16 in 256 colors
    ASSERT_TRUE(files::WriteIconSet(Path("target.ico"), set));
    s.FileNew(1);
    s.Icon().Image().Fill(0x000080);  // Maroon: sixteen colors
    s.Icon().Mask().Fill(0);
    s.ComposeIcon();
    s.Current().BitsPerPixel = 4;
    s.Current().Changed = true;
    host.AnswerOpen(Path("target.ico"));
    host::MultiIconAnswer save;
    save.Choice = "1";
    host.AnswerMultiIcon(save);
    s.RunMenuItem("mnuFileSaveMultiIconAddTo");
    ASSERT_EQ(host.multiIconRequests.size(), 1u);
    EXPECT_EQ(host.multiIconRequests[0].addMode, 1);
    EXPECT_FALSE(s.Current().Changed);
    files::IconSet added;
    ASSERT_EQ(files::ReadIconSet(Path("target.ico"), added), 2);
    EXPECT_EQ(added.Images[1].Entry.BitCount, 4);
    EXPECT_EQ(added.Images[0].Entry.ImageOffset, 22u + 16u);  // older images move by 16

    host.AnswerOpen(Path("target.ico"));
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileSaveMultiIconAddTo");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::DuplicateAddMessage(16, 16, 16, 4));
    EXPECT_EQ(files::ReadIconSet(Path("target.ico"), added), 2);
}

TEST_F(MultiIconFlowTest, HostileTargetsAreRefusedAndLeftAsTheyWere) {
    // A count far past the file, an image offset past the end, two images on one place.
    std::vector<std::uint8_t> good;
    ASSERT_EQ(files::ReadWholeFile(Path("multi.ico"), good), files::FileReadStatus::Ok);
    std::vector<std::vector<std::uint8_t>> hostile(3, good);
    hostile[0][4] = 0xFF, hostile[0][5] = 0xFF;                  // idCount 65535
    hostile[1][6 + 12] = 0xFF, hostile[1][6 + 13] = 0xFF;        // dwImageOffset of image 0
    std::copy(good.begin() + 6 + 16 + 12, good.begin() + 6 + 16 + 16, hostile[2].begin() + 6 + 12);
    s.FileNew(1);
    s.Icon().Image().Fill(0x000080);
    s.Icon().Mask().Fill(0);
    s.ComposeIcon();
    for (std::size_t i = 0; i < hostile.size(); ++i) {
        SCOPED_TRACE(i);
        const std::string path = Path("hostile.ico");
        { std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(hostile[i].data()),
                                                      static_cast<std::streamsize>(hostile[i].size())); }
        host.AnswerOpen(path);
        host.Answer(MsgAnswer::Ok);
        host.shown.clear();
        s.RunMenuItem("mnuFileSaveMultiIconAddTo");
        ASSERT_EQ(host.shown.size(), 1u);
        EXPECT_EQ(host.shown[0].text, files::FailedToOpenMessage(path));
        std::vector<std::uint8_t> after;
        ASSERT_EQ(files::ReadWholeFile(path, after), files::FileReadStatus::Ok);
        EXPECT_EQ(after, hostile[i]);
    }
}

}  // namespace
}  // namespace vexlo::test
