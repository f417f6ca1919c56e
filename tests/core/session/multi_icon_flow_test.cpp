// Images of multi-icon files through the session: choosing one, saving it back, adding.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "core/files/byte_reader.h"
#include "core/files/icon_set.h"
#include "core/files/ico_read.h"
#include "core/files/ico_write.h"
#include "core/files/private_temp.h"
#include "core/session/session.h"
#include "support/icon_set_checks.h"
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

std::vector<std::uint8_t> ReadFileBytes(const std::string& path) {
    std::vector<std::uint8_t> bytes;
    EXPECT_EQ(files::ReadWholeFile(path, bytes), files::FileReadStatus::Ok) << path;
    return bytes;
}

void WriteFileBytes(const std::string& path, const std::vector<std::uint8_t>& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
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
    s.Icon().Image().Fill(0x00FF01);  // not a VGA color: written at 8 bits, as the slot says
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
    EXPECT_EQ(image.GetPixel(3, 3), 0x00FF01u);
    EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(Path("back.ico")));
}

// The slot names the depth that the image came in with; the writer takes the depth from the
// pixels. Painted in VGA colors only, the 256-color 16x16 would be written at 4 bits, beside
// the file's 16x16 of 16 colors: refused before the save dialog, and nothing is written.
TEST_F(MultiIconFlowTest, SavingBackRefusesAnIconWrittenAtTheDepthOfAnotherImage) {
    host.AnswerOpen(Path("multi.ico"));
    host.AnswerMultiIcon(Choice(2, "02/16/256/8"));
    s.RunMenuItem("mnuFileOpen(0)");
    s.Icon().Image().Fill(0x00FF00);
    s.ComposeIcon();
    s.Current().Changed = true;
    const std::vector<std::uint8_t> before = ReadFileBytes(Path("multi.ico"));
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileSaveMultiIconReplace");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text,
              "16 x 16    16-color\r\n\r\nIcon of same size and color palette already in original multi-file.\r\n"
              "Multi-icon file cannot have two icons of identical size and color depth.\r\n\r\n"
              "You may save to a single-icon file or change color-depth first (to see\r\n"
              "original color-depth, click Enquiry menu).\r\n");
    EXPECT_TRUE(host.saveRequests.empty());
    EXPECT_EQ(ReadFileBytes(Path("multi.ico")), before);
    EXPECT_TRUE(s.Current().Changed);
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
    EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(added));

    host.AnswerOpen(Path("target.ico"));
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileSaveMultiIconAddTo");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::DuplicateAddMessage(16, 16, 16, 4));
    EXPECT_EQ(files::ReadIconSet(Path("target.ico"), added), 2);
}

// An icon whose record names 8 bits but whose pixels are VGA colors goes in at 4 bits: the
// file's 16x16 of 16 colors makes it a duplicate.
TEST_F(MultiIconFlowTest, AddingRefusesAnIconWrittenAtTheDepthOfAnImageInTheFile) {
    files::IconSet set;
    set.Images = {ImageOf(16, 0x000080)};  // 16x16 in 16 colors
    ASSERT_TRUE(files::WriteIconSet(Path("target.ico"), set));
    const std::vector<std::uint8_t> before = ReadFileBytes(Path("target.ico"));
    s.FileNew(1);
    s.Icon().Image().Fill(0x008000);
    s.Icon().Mask().Fill(0);
    s.ComposeIcon();
    s.Current().ColorCount = 256;  // as it came from an 8-bit file
    s.Current().BitsPerPixel = 8;
    host.AnswerOpen(Path("target.ico"));
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileSaveMultiIconAddTo");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::DuplicateAddMessage(16, 16, 16, 4));
    EXPECT_TRUE(host.multiIconRequests.empty());
    EXPECT_EQ(ReadFileBytes(Path("target.ico")), before);
}

TEST_F(MultiIconFlowTest, HostileTargetsAreRefusedAndLeftAsTheyWere) {
    std::vector<std::uint8_t> good = ReadFileBytes(Path("multi.ico"));
    std::vector<std::vector<std::uint8_t>> bytes(4, good);
    bytes[0][4] = 0xFF, bytes[0][5] = 0xFF;              // idCount 65535
    bytes[1][6 + 12] = 0xFF, bytes[1][6 + 13] = 0xFF;    // dwImageOffset of image 0 past the end
    // One byte between the second and the third image.
    const std::size_t third = good[6 + 32 + 12] | (good[6 + 32 + 13] << 8);
    bytes[2].insert(bytes[2].begin() + static_cast<std::ptrdiff_t>(third), 0);
    bytes[2][6 + 32 + 12] = static_cast<std::uint8_t>(third + 1);
    bytes[2][6 + 32 + 13] = static_cast<std::uint8_t>((third + 1) >> 8);
    // Image 0's entry on image 1's bytes: read as it stands, and the images' lengths still add up.
    std::copy(good.begin() + 6 + 16 + 12, good.begin() + 6 + 16 + 16, bytes[3].begin() + 6 + 12);
    const std::string path = Path("hostile.ico");
    const struct {
        const char* name;
        const std::vector<std::uint8_t>& file;
        bool dialog;          // the file reads, and the Add face shows it
        std::string message;  // empty: the icon is added
    } cases[] = {
        {"idCount past the file", bytes[0], false, files::FailedToOpenMessage(path)},
        {"image past the end", bytes[1], false, files::FailedToOpenMessage(path)},
        {"a gap between images", bytes[2], true, "Offset value of the added icon image does not correspond"},
        {"two entries on one image", bytes[3], true, ""},
    };
    s.FileNew(0);
    s.Icon().Image().Fill(0x000080);
    s.Icon().Mask().Fill(0);
    s.ComposeIcon();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        WriteFileBytes(path, c.file);
        host.AnswerOpen(path);
        if (c.dialog) {
            host::MultiIconAnswer save;
            save.Choice = "1";
            host.AnswerMultiIcon(save);
        }
        if (!c.message.empty()) host.Answer(MsgAnswer::Ok);
        host.shown.clear();
        host.multiIconRequests.clear();
        s.RunMenuItem("mnuFileSaveMultiIconAddTo");
        EXPECT_EQ(host.multiIconRequests.size(), c.dialog ? 1u : 0u);
        if (c.message.empty()) {
            EXPECT_TRUE(host.shown.empty());
            files::IconSet added;
            ASSERT_EQ(files::ReadIconSet(path, added), 4);
            EXPECT_EQ(files::BuildIconSetBytes(added), ReadFileBytes(path));  // laid out end to end
            EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(added));
            continue;
        }
        ASSERT_EQ(host.shown.size(), 1u);
        EXPECT_EQ(host.shown[0].text, c.message);
        EXPECT_EQ(ReadFileBytes(path), c.file);
    }
}

// Adding to a copy under another name: a copy that can't be made is a fault of the routine.
TEST_F(MultiIconFlowTest, ACopyThatFailsShowsTheCommonErrorBox) {
    s.FileNew(0);
    s.Icon().Image().Fill(0x000080);
    s.Icon().Mask().Fill(0);
    s.ComposeIcon();
    host.AnswerOpen(Path("multi.ico"));
    host::MultiIconAnswer saveAs;
    saveAs.Choice = "2";
    host.AnswerMultiIcon(saveAs);
    host.AnswerSave(Path("no/such/copy.ico"));
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileSaveMultiIconAddTo");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "AddToFileDialog\r\n2     No such file or directory");
    EXPECT_EQ(host.shown[0].title, "Vexlo");
    EXPECT_EQ(host.shown[0].buttons, host::MsgButtons::Ok);
    files::IconSet set;
    EXPECT_EQ(files::ReadIconSet(Path("multi.ico"), set), 3);
}

// The dialog begins with no alpha values: a choice that hands none over leaves none, whatever
// an earlier read left behind.
TEST_F(MultiIconFlowTest, AChoiceWithoutAlphaValuesLeavesNoneOfAnEarlierRead) {
    Surface image(32, 32, 0), mask(32, 32, 0);
    image.Fill(0x123456);
    alpha::AlphaArray values;
    values.SetBounds(31);
    files::IconWriteOptions withAlpha;
    withAlpha.Alpha = withAlpha.KeepTrueColor = true;
    withAlpha.AlphaValues = &values;
    WriteFileBytes(Path("alpha.ico"), files::BuildIconFileBytes(image, mask, withAlpha));
    host.AnswerOpen(Path("alpha.ico"));
    s.RunMenuItem("mnuFileOpen(0)");
    // The slot keeps the values; the hand-over array is emptied after each load.
    ASSERT_EQ(s.Panel().SlotAlpha().UpperBound(), 31);
    ASSERT_TRUE(s.Panel().IncomingAlpha().IsSingle());

    host.AnswerOpen(Path("multi.ico"));
    host.AnswerMultiIcon(Choice(1, "01/32/256/8"));  // a color-table image: no alpha values
    s.RunMenuItem("mnuFileOpen(0)");
    EXPECT_TRUE(s.Panel().IncomingAlpha().IsSingle());

    // A 32-bit choice that hands over no alpha values is kept at 24 bits.
    host.AnswerOpen(Path("alpha.ico"));
    s.RunMenuItem("mnuFileOpen(0)");
    // The slot keeps the values; the hand-over array is emptied after each load.
    ASSERT_EQ(s.Panel().SlotAlpha().UpperBound(), 31);
    ASSERT_TRUE(s.Panel().IncomingAlpha().IsSingle());
    host.AnswerOpen(Path("multi.ico"));
    host.AnswerMultiIcon(Choice(1, "01/32/-1/32"));
    s.RunMenuItem("mnuFileOpen(0)");
    EXPECT_EQ(s.Current().BitsPerPixel, 24);
    EXPECT_FALSE(s.Current().HasAlpha);
    EXPECT_EQ(s.Form().Status.Panel[3], "");
}

// Whatever another user plants under the temporary file's name in the shared temporary folder
// is never written through nor removed: the multi-icon work uses a folder of its own.
TEST_F(MultiIconFlowTest, WhatStandsAtTheTemporaryNameInTheSharedFolderIsLeftAlone) {
    const std::string shared = Path("vexlotmp.ico");
    const struct {
        const char* name;
        std::function<void()> plant;
        std::function<void()> check;
    } cases[] = {
        {"a link to a file of ours",
         [&] {
             WriteFileBytes(Path("victim.txt"), {1, 2, 3});
             fs::create_symlink(Path("victim.txt"), shared);
         },
         [&] {
             EXPECT_EQ(ReadFileBytes(Path("victim.txt")), (std::vector<std::uint8_t>{1, 2, 3}));
             EXPECT_TRUE(fs::is_symlink(shared));
         }},
        {"a file of another user",
         [&] {
             WriteFileBytes(shared, {9, 9});
             if (::geteuid() == 0) {
                 ASSERT_EQ(::chown(shared.c_str(), 65534, 65534), 0);
             }
         },
         [&] { EXPECT_EQ(ReadFileBytes(shared), (std::vector<std::uint8_t>{9, 9})); }},
        {"a folder", [&] { fs::create_directory(shared); }, [&] { EXPECT_TRUE(fs::is_directory(shared)); }},
    };
    host.AnswerOpen(Path("multi.ico"));
    host.AnswerMultiIcon(Choice(2, "02/16/256/8"));
    s.RunMenuItem("mnuFileOpen(0)");
    int n = 0;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        fs::remove_all(fs::path(shared));
        fs::remove(Path("victim.txt"));
        c.plant();
        const std::string target = Path("back" + std::to_string(n++) + ".ico");
        host.AnswerSave(target);
        host.shown.clear();
        s.RunMenuItem("mnuFileSaveMultiIconReplace");
        EXPECT_TRUE(host.shown.empty());
        EXPECT_EQ(s.Current().FileSpec, target);
        files::IconSet set;
        EXPECT_EQ(files::ReadIconSet(target, set), 3);
        c.check();
    }
    const std::string own = files::PrivateTempDir(s.Dirs().TempDir);
    EXPECT_TRUE(files::IsPrivateFolder(own));
    EXPECT_NE(fs::path(own), dir);
    EXPECT_FALSE(fs::exists(fs::symlink_status(own + "/vexlotmp.ico")));
}

}  // namespace
}  // namespace vexlo::test
