// Icon sets: reading whole multi-icon files as raw images, writing them back laid out end to
// end, replacing, removing and appending an image, hostile files, and the exact messages.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <functional>

#include "core/files/ico_probe.h"
#include "core/files/ico_write.h"
#include "core/files/icon_set.h"
#include "ico_test_support.h"
#include "support/icon_set_checks.h"

namespace vexlo::files {
namespace {

namespace fs = std::filesystem;
using surface::Rgb;
using surface::Surface;
using test::ByteVec;
using test::MakeIcoFile;
using test::PlainImage;
using test::U16At;
using test::U32At;
using vexlo::test::NoTwoImagesOfOneSizeAndDepth;

// Offsets and lengths of the directory of a file's bytes.
std::vector<std::uint32_t> Offsets(const ByteVec& b) {
    std::vector<std::uint32_t> out;
    for (std::size_t i = 0; i < U16At(b, 4); ++i) out.push_back(U32At(b, 6 + 16 * i + 12));
    return out;
}
ByteVec ImageAt(const ByteVec& b, std::size_t i) {
    const std::size_t at = U32At(b, 6 + 16 * i + 12);
    return ByteVec(b.begin() + static_cast<std::ptrdiff_t>(at),
                   b.begin() + static_cast<std::ptrdiff_t>(at + U32At(b, 6 + 16 * i + 8)));
}

// 16x16 at 4 bits, 32x32 at 8, 48x48 at 1 and a 64x64 at 1 (unusable, yet kept).
ByteVec FourImages() {
    return MakeIcoFile({PlainImage(16, 4, 1), PlainImage(32, 8, 2), PlainImage(48, 1, 3), PlainImage(64, 1, 4)});
}

TEST(IconSet, HundredsOfImagesRoundTripByteForByte) {
    std::vector<test::RawImage> images;
    const int sides[] = {16, 32, 48, 64};
    const int bits[] = {1, 4, 8, 24, 32};
    for (int j = 0; j < 130; ++j) {
        images.push_back(PlainImage(sides[j % 4], bits[j % 5], static_cast<std::uint8_t>(j)));
        images.back().Entry.Height = static_cast<std::uint8_t>(j + 1);  // no two of one size and depth
    }
    const ByteVec file = MakeIcoFile(images);
    IconSet set;
    ASSERT_EQ(ReadIconSet(Bytes(file), set), 130);
    const std::string path = (fs::temp_directory_path() / ("vexlo-set-" + std::to_string(::getpid()) + ".ico")).string();
    ASSERT_TRUE(WriteIconSet(path, set));
    EXPECT_EQ(test::ReadBytes(path), file);
    EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(path));
    fs::remove(path);
}

TEST(IconSet, WritingClosesGapsAndPutsImagesInDirectoryOrder) {
    ByteVec file = FourImages();
    // Swap the two last images in the file, and leave 7 bytes between them and the others.
    IconSet set;
    ASSERT_EQ(ReadIconSet(Bytes(file), set), 4);
    const ByteVec third = set.Images[2].Bytes, fourth = set.Images[3].Bytes;
    ByteVec shuffled(file.begin(), file.begin() + Offsets(file)[2]);
    shuffled.insert(shuffled.end(), 7, 0xEE);
    test::PatchU32(shuffled, 6 + 16 * 3 + 12, static_cast<std::uint32_t>(shuffled.size()));
    shuffled.insert(shuffled.end(), fourth.begin(), fourth.end());
    test::PatchU32(shuffled, 6 + 16 * 2 + 12, static_cast<std::uint32_t>(shuffled.size()));
    shuffled.insert(shuffled.end(), third.begin(), third.end());
    ASSERT_EQ(ReadIconSet(Bytes(shuffled), set), 4);
    EXPECT_EQ(BuildIconSetBytes(set), file);
}

TEST(IconSetRemove, LaterImagesMoveByTheRemovedLengthPlus16AndEarlierBy16) {
    const ByteVec file = FourImages();
    const std::vector<std::uint32_t> before = Offsets(file);
    for (std::size_t i = 0; i < 4; ++i) {
        IconSet set;
        ASSERT_EQ(ReadIconSet(Bytes(file), set), 4);
        const std::uint32_t gone = static_cast<std::uint32_t>(set.Images[i].Bytes.size());
        ASSERT_TRUE(RemoveImageFromSet(set, static_cast<int>(i)));
        const ByteVec out = BuildIconSetBytes(set);
        const std::vector<std::uint32_t> after = Offsets(out);
        ASSERT_EQ(after.size(), 3u);
        for (std::size_t j = 0; j < 3; ++j) {
            const std::size_t old = j < i ? j : j + 1;
            EXPECT_EQ(after[j], before[old] - 16 - (old > i ? gone : 0)) << i << " " << j;
            EXPECT_EQ(ImageAt(out, j), ImageAt(file, old)) << i << " " << j;
        }
        EXPECT_EQ(out.size(), file.size() - gone - 16);
        EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(out));
    }
}

TEST(IconSetRemove, TheLastImageCannotGo) {
    IconSet set;
    ASSERT_EQ(ReadIconSet(Bytes(MakeIcoFile({PlainImage(16, 1)})), set), 1);
    EXPECT_FALSE(RemoveImageFromSet(set, 0));
    EXPECT_EQ(set.Count(), 1);
    const std::string path = (fs::temp_directory_path() / ("vexlo-rm-" + std::to_string(::getpid()) + ".ico")).string();
    test::WriteBytes(path, MakeIcoFile({PlainImage(16, 1)}));
    EXPECT_EQ(RemoveIconFromFile(path, 0).Message, "Not allowed to delete the last icon in file");
    test::WriteBytes(path, FourImages());
    EXPECT_TRUE(RemoveIconFromFile(path, 3));
    EXPECT_EQ(ReadIconSet(path, set), 3);
    EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(path));
    EXPECT_EQ(RemoveIconFromFile(path, 3).Message, "Failed to update the file for this icon.");
    fs::remove(path);
}

// Appending and saving back go through the disk: a folder per test.
class IconSetAppend : public ::testing::Test {
protected:
    void SetUp() override {
        std::string tmpl = (fs::temp_directory_path() / "vexlo-sets-XXXXXX").string();
        ASSERT_NE(::mkdtemp(tmpl.data()), nullptr);
        m_dir = tmpl;
        // The target: 16x16 at 8 bits and 32x32 at 4 bits.
        test::WriteBytes(Path("multi.ico"), MakeIcoFile({PlainImage(16, 8, 1), PlainImage(32, 4, 2)}));
    }
    void TearDown() override { fs::remove_all(m_dir); }
    std::string Path(const std::string& name) const { return (m_dir / name).string(); }
    std::string Dir() const { return m_dir.string(); }
    fs::path m_dir;
};

// A 16x16 icon of sixteen-color pixels.
Surface Vga16() {
    Surface s = test::Filled(16, Rgb(128, 0, 0));
    s.SetPixelV(3, 4, Rgb(0, 255, 255));
    return s;
}

TEST_F(IconSetAppend, AddsTheIconLastAndRefusesASecondOfTheSameDepth) {
    const ByteVec before = test::ReadBytes(Path("multi.ico"));
    const Surface mask = test::Filled(16, 0);
    ASSERT_TRUE(AppendIconToFile(Vga16(), mask, Path("multi.ico"), 16, 4, {}, Dir()));
    EXPECT_FALSE(fs::exists(Path("vexlotmp.ico")));
    const ByteVec after = test::ReadBytes(Path("multi.ico"));
    ASSERT_EQ(U16At(after, 4), 3);
    EXPECT_EQ(Offsets(after)[0], Offsets(before)[0] + 16);
    EXPECT_EQ(Offsets(after)[1], Offsets(before)[1] + 16);
    EXPECT_EQ(Offsets(after)[2], before.size() + 16);
    const ByteVec entry(after.begin() + 6 + 32, after.begin() + 6 + 48);
    EXPECT_EQ(entry, (ByteVec{16, 16, 16, 0, 1, 0, 4, 0, 40, 1, 0, 0, 0x86, 8, 0, 0}));  // 296 bytes at 2182
    const ByteVec single = BuildIconFileBytes(Vga16(), mask, {});
    EXPECT_EQ(ImageAt(after, 2), ByteVec(single.begin() + 22, single.end()));
    EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(after));

    const SetResult again = AppendIconToFile(Vga16(), mask, Path("multi.ico"), 16, 4, {}, Dir());
    EXPECT_FALSE(again.Ok);
    EXPECT_EQ(again.Message,
              "16 x 16    16-color\r\n\r\nIcon of same size and color palette already in file.\r\n"
              "Multi-icon file cannot have two icons of identical\r\nsize and color depth.\r\n\r\n");
    EXPECT_EQ(test::ReadBytes(Path("multi.ico")), after);
    EXPECT_EQ(CheckAddTarget(Path("multi.ico"), 16, 16, 16, 4, {16, 4}).Message, again.Message);
    EXPECT_TRUE(CheckAddTarget(Path("multi.ico"), 48, 48, 16, 4, {16, 4}));
}

// A 32x32 icon of 300 colors: true color.
Surface Many32() {
    Surface s = test::Filled(32, 0);
    for (int i = 0; i < 300; ++i) s.SetPixelV(i % 32, i / 32, Rgb(1 + i % 250, 1 + i / 250, 9));
    return s;
}

TEST_F(IconSetAppend, RefusalsLeaveTheFileAsItWas) {
    const Surface two = test::Filled(16, 0xFFFFFF);  // written at 1 bit
    test::WriteBytes(Path("gap.ico"), [] {  // one byte between the two images
        ByteVec b = MakeIcoFile({PlainImage(32, 1), PlainImage(48, 1)});
        b.insert(b.begin() + U32At(b, 22 + 12), 0);
        test::PatchU32(b, 22 + 12, U32At(b, 22 + 12) + 1);
        return b;
    }());
    test::WriteBytes(Path("none.ico"), ByteVec{0, 0, 1, 0, 0, 0});
    fs::copy_file(Path("multi.ico"), Path("locked.ico"));
    ::chmod(Path("locked.ico").c_str(), 0444);
    struct Case {
        const char* name;
        Surface image;
        std::string file;
        int c, bits;
        std::string message;
    } cases[] = {
        {"depth of the slot isn't the depth written", two, "multi.ico", 16, 4,
         "Bytes of the added icon image do not correspond"},
        {"24 bits named, 1 bit written", two, "multi.ico", -1, 24, "Bytes of the added icon image do not correspond"},
        {"8 bits named, 24 written", Many32(), "multi.ico", -1, 8, "Bytes of the added icon image do not correspond"},
        {"images not end to end", Vga16(), "gap.ico", 16, 4, "Offset value of the added icon image does not correspond"},
        {"no file", Vga16(), "missing.ico", 16, 4, "Failed to open " + Path("missing.ico")},
        {"no images", Vga16(), "none.ico", 16, 4, "No icon file in " + Path("none.ico")},
        {"duplicate 256", test::Filled(16, Rgb(1, 2, 3)), "multi.ico", 256, 8,
         "16 x 16    256-color\r\n\r\nIcon of same size and color palette already in file.\r\n"
         "Multi-icon file cannot have two icons of identical\r\nsize and color depth.\r\n\r\n"},
        {"read-only", Vga16(), "locked.ico", 16, 4, "File is read-only"},
    };
    for (const Case& c : cases) {
        const ByteVec before = test::ReadBytes(Path(c.file));
        const Surface mask = test::Filled(c.image.Width(), 0);
        const SetResult r = AppendIconToFile(c.image, mask, Path(c.file), c.c, c.bits, {}, Dir());
        EXPECT_FALSE(r.Ok) << c.name;
        EXPECT_EQ(r.Message, c.message) << c.name;
        EXPECT_EQ(test::ReadBytes(Path(c.file)), before) << c.name;
    }
    EXPECT_EQ(CheckAddTarget(Path("none.ico"), 16, 16, 16, 4, {16, 4}).Message, "No icon found in " + Path("none.ico"));
}

TEST_F(IconSetAppend, SavingBackReplacesOneImageAndLeavesTheSourceAlone) {
    const ByteVec source = test::ReadBytes(Path("multi.ico"));
    // Image 0 is 16x16 at 8 bits: the icon at 4 bits replaces it; the 32x32 moves by the change.
    EXPECT_TRUE(CheckReplaceTarget(Path("multi.ico"), 0, 16, 16, 256, 8, {256, 8}));  // itself is no duplicate
    EXPECT_EQ(CheckReplaceTarget(Path("multi.ico"), 0, 32, 32, 16, 4, {16, 4}).Message,
              "32 x 32    16-color\r\n\r\nIcon of same size and color palette already in original multi-file.\r\n"
              "Multi-icon file cannot have two icons of identical size and color depth.\r\n\r\n"
              "You may save to a single-icon file or change color-depth first (to see\r\n"
              "original color-depth, click Enquiry menu).\r\n");
    EXPECT_EQ(CheckReplaceTarget(Path("multi.ico"), 2, 48, 48, 2, 1, {2, 1}).Message,
              "The original multi-icon file has been changed meanwhile.\r\nCannot proceed to save current icon back.\r\n");
    EXPECT_EQ(CheckReplaceTarget(Path("missing.ico"), 0, 16, 16, 2, 1, {2, 1}).Message, "Failed to save current icon - reading");

    ASSERT_TRUE(ReplaceIconInFile(Vga16(), test::Filled(16, 0), {}, Path("multi.ico"), 0, Path("copy.ico"), Dir()));
    EXPECT_EQ(test::ReadBytes(Path("multi.ico")), source);
    const ByteVec copy = test::ReadBytes(Path("copy.ico"));
    EXPECT_EQ(copy[6 + 2], 16);  // bColorCount and wBitCount of the image written
    EXPECT_EQ(U16At(copy, 6 + 6), 4);
    EXPECT_EQ(Offsets(copy)[0], Offsets(source)[0]);
    EXPECT_EQ(Offsets(copy)[1], Offsets(source)[1] + 296 - (40 + 1024 + 256 + 64));
    EXPECT_EQ(ImageAt(copy, 1), ImageAt(source, 1));
    EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(copy));

    EXPECT_EQ(ReplaceIconInFile(Vga16(), test::Filled(16, 0), {}, Path("multi.ico"), 2, Path("copy.ico"), Dir()).Message,
              ChangedMeanwhileMessage());
    EXPECT_EQ(ReplaceIconInFile(Vga16(), test::Filled(16, 0), {}, Path("multi.ico"), 0, Dir(), Dir()).Message,
              "File is read-only.");
    EXPECT_EQ(ReplaceIconInFile(test::Filled(20, 0), test::Filled(20, 0), {}, Path("multi.ico"), 0, Path("x.ico"), Dir())
                  .Message,
              "Failed to save current icon - preparation");
    EXPECT_EQ(TempIconPath("/tmp/"), "/tmp/vexlotmp.ico");
    EXPECT_EQ(TempIconPath("/tmp"), "/tmp/vexlotmp.ico");
}

// The writer takes the depth from the pixels, the record may name another: an icon that came
// from an 8-bit image and now holds only VGA colors is written at 4 bits. The duplicate test
// must catch that depth too, or the file ends with two images of one size and depth.
TEST_F(IconSetAppend, TheDuplicateTestTakesTheDepthAsWritten) {
    test::WriteBytes(Path("four.ico"), MakeIcoFile({PlainImage(16, 4, 1), PlainImage(16, 8, 2)}));
    const ByteVec before = test::ReadBytes(Path("four.ico"));
    const Surface mask = test::Filled(16, 0);
    const WrittenDepth written = DepthToWrite(Vga16(), {});
    EXPECT_EQ(written.Colors, 16);
    EXPECT_EQ(written.Bits, 4);
    const std::string addRefusal = DuplicateAddMessage(16, 16, 16, 4);
    const std::string replaceRefusal = DuplicateReplaceMessage(16, 16, 16, 4);

    // Adding: the record says 16 colors at 8 bits, the image goes in at 4.
    EXPECT_EQ(CheckAddTarget(Path("four.ico"), 16, 16, 16, 8, written).Message, addRefusal);
    EXPECT_EQ(AppendIconToFile(Vga16(), mask, Path("four.ico"), 16, 8, {}, Dir()).Message, addRefusal);
    // Saving back over image 1, the 8-bit one: the icon written at 4 bits is image 0 again.
    EXPECT_EQ(CheckReplaceTarget(Path("four.ico"), 1, 16, 16, 256, 8, written).Message, replaceRefusal);
    EXPECT_EQ(ReplaceIconInFile(Vga16(), mask, {}, Path("four.ico"), 1, Path("back.ico"), Dir()).Message,
              replaceRefusal);
    EXPECT_FALSE(fs::exists(Path("back.ico")));
    EXPECT_EQ(test::ReadBytes(Path("four.ico")), before);
    EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(before));

    // Over image 0 itself it is no duplicate: the 4-bit image is the one replaced.
    ASSERT_TRUE(ReplaceIconInFile(Vga16(), mask, {}, Path("four.ico"), 0, Path("back.ico"), Dir()));
    EXPECT_TRUE(NoTwoImagesOfOneSizeAndDepth(Path("back.ico")));
}

// The temporary file is made new each time: a link planted under its name is removed, never
// followed, and the file it names stays as it was.
TEST_F(IconSetAppend, APlantedLinkAtTheTemporaryFileIsNotFollowed) {
    test::WriteBytes(Path("victim"), {1, 2, 3});
    fs::create_symlink(Path("victim"), Path("vexlotmp.ico"));
    IconImage made;
    ASSERT_TRUE(PrepareNewImage(Vga16(), test::Filled(16, 0), {}, Dir(), made));
    EXPECT_EQ(test::ReadBytes(Path("victim")), (ByteVec{1, 2, 3}));
    EXPECT_FALSE(fs::exists(fs::symlink_status(Path("vexlotmp.ico"))));
    EXPECT_EQ(made.Entry.BitCount, 4);

    // A folder in the way can't be cleared: the preparation fails and the folder stays.
    fs::create_directory(Path("vexlotmp.ico"));
    EXPECT_EQ(PrepareNewImage(Vga16(), test::Filled(16, 0), {}, Dir(), made).Message,
              "Failed to save current icon - preparation");
    EXPECT_TRUE(fs::is_directory(Path("vexlotmp.ico")));
    EXPECT_EQ(PrepareNewImage(Vga16(), test::Filled(16, 0), {}, "", made).Message,
              "Failed to save current icon - preparation");
}

TEST(IconSet, LabelsAndListLines) {
    EXPECT_EQ(DepthLabel(2, 1), "2-color");
    EXPECT_EQ(DepthLabel(256, 8), "256-color");
    EXPECT_EQ(DepthLabel(-1, 32), "True Color 32 BPP");
    EXPECT_EQ(AddIconDescription(16, 4, 32, 32), "16-color     Size: 32x32");
    EXPECT_EQ(AddIconDescription(-1, 32, 48, 48), "32 BPP   True-color     Size: 48x48");
    EXPECT_EQ(AddIconDescription(-1, 24, 16, 16), "24 BPP   True-color     Size: 16x16");
    EXPECT_EQ(IconListLine(0, PlainImage(32, 8).Entry), "Ref 1  \t8 BPP\t256-Color\t  32 x 32");
    EXPECT_EQ(IconListLine(11, PlainImage(48, 32).Entry), "Ref 12  \t32 BPP\tTrue-Color\t  48 x 48");
    EXPECT_EQ(RemoveQuestion("/a.ico"), "Permanently remove the selected icon from the multi-icon file.\r\n/a.ico\r\n\r\n"
                                        "Sure to remove this icon permanently?\r\n\r\n");
    EXPECT_EQ(UnableToGetMessage(3), "Ref 3\r\nUnable to get this one");
}

TEST(IconSet, SingleIconFileHoldsTheImageBytesUnchanged) {
    IconSet set;
    ASSERT_EQ(ReadIconSet(Bytes(FourImages()), set), 4);
    const ByteVec one = BuildSingleIconBytes(set, 2);
    EXPECT_EQ(one, MakeIcoFile({PlainImage(48, 1, 3)}));
    EXPECT_TRUE(BuildSingleIconBytes(set, 4).empty());
}


}  // namespace
}  // namespace vexlo::files
