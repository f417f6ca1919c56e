// The multi-icon dialog's model: which images are listed and how, positions to image indexes
// past 99 images, the pick, the answer text, single-icon names and files, and removal.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "core/files/multi_icon_list.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

namespace fs = std::filesystem;
using test::ByteVec;
using test::MakeIcoFile;
using test::PlainImage;
using test::U32At;

std::string TempPath(const char* name) {
    std::string file = "vexlo-multi-";
    file += std::to_string(::getpid());
    file += name;
    return (fs::temp_directory_path() / file).string();
}

ByteVec ImageBytesOf(const ByteVec& file, std::size_t i) {
    const auto at = static_cast<std::ptrdiff_t>(U32At(file, 6 + 16 * i + 12));
    return ByteVec(file.begin() + at, file.begin() + at + U32At(file, 6 + 16 * i + 8));
}

TEST(MultiIconList, ListsOnlyIconSizesAndKeepsTheOthersThroughARemoval) {
    const std::string path = TempPath("three.ico");
    const ByteVec before = MakeIcoFile({PlainImage(16, 4, 1), PlainImage(32, 8, 2), PlainImage(64, 32, 3)});
    test::WriteBytes(path, before);
    IconSet set;
    ASSERT_EQ(ReadIconSet(path, set), 3);
    const MultiIconList list = BuildMultiIconList(set);
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Items[0].Line, "Ref 1  \t4 BPP\t16-Color\t  16 x 16");
    EXPECT_EQ(list.Items[1].Line, "Ref 2  \t8 BPP\t256-Color\t  32 x 32");

    // Removing the 32x32 image: the earlier image moves back by 16, the later by its length + 16.
    ASSERT_TRUE(RemoveListedImage(path, set, 1));
    EXPECT_EQ(set.Count(), 0);
    const ByteVec after = test::ReadBytes(path);
    ASSERT_EQ(test::U16At(after, 4), 2);
    const std::uint32_t gone = U32At(before, 22 + 8);
    EXPECT_EQ(U32At(after, 6 + 12), U32At(before, 6 + 12) - 16);
    EXPECT_EQ(U32At(after, 22 + 12), U32At(before, 38 + 12) - gone - 16);
    EXPECT_EQ(ImageBytesOf(after, 0), ImageBytesOf(before, 0));
    EXPECT_EQ(ImageBytesOf(after, 1), ImageBytesOf(before, 2));

    // One image left in the set: it stays, and the file isn't touched.
    ASSERT_EQ(ReadIconSet(path, set), 2);
    set.Images.pop_back();
    EXPECT_EQ(RemoveListedImage(path, set, 0).Message, "Not allowed to delete the last icon in file");
    EXPECT_EQ(test::ReadBytes(path), after);
    fs::remove(path);
}

TEST(MultiIconList, PositionsLeadToImageIndexesPastNinetyNine) {
    // 120 images; every third is 64x64 and unlisted, so positions and indexes drift apart.
    std::vector<test::RawImage> images;
    for (int j = 0; j < 120; ++j) images.push_back(PlainImage(j % 3 == 2 ? 64 : 16, 4, static_cast<std::uint8_t>(j)));
    IconSet set;
    ASSERT_EQ(ReadIconSet(Bytes(MakeIcoFile(images)), set), 120);
    const MultiIconList list = BuildMultiIconList(set);
    ASSERT_EQ(list.Count(), 80);
    const struct {
        int position, index;
        const char* ref;
    } cases[] = {{0, 0, "Ref 1  \t"}, {2, 3, "Ref 4  \t"}, {66, 99, "Ref 100  \t"}, {79, 118, "Ref 119  \t"}};
    for (const auto& c : cases) {
        ASSERT_NE(list.At(c.position), nullptr) << c.position;
        EXPECT_EQ(list.At(c.position)->Index, c.index) << c.position;
        EXPECT_EQ(list.At(c.position)->Line.rfind(c.ref, 0), 0u) << list.At(c.position)->Line;
    }
    EXPECT_EQ(list.At(80), nullptr);
}

TEST(MultiIconList, EditPicksAThirtyTwoPreferringEightBits) {
    const struct {
        std::vector<std::pair<int, int>> images;  // side, bits
        int pick;
    } cases[] = {
        {{{16, 4}, {48, 8}}, 0},
        {{{16, 4}, {32, 4}, {32, 24}}, 1},
        {{{16, 4}, {32, 4}, {32, 8}, {32, 24}}, 2},
        {{{64, 8}, {32, 24}}, 0},           // the unlisted image takes no position
        {{{32, 4}, {16, 8}, {32, 24}}, 2},  // a first line of 32x32 is still "the first line"
    };
    for (const auto& c : cases) {
        std::vector<test::RawImage> images;
        for (const auto& [side, bits] : c.images) images.push_back(PlainImage(side, bits));
        IconSet set;
        ASSERT_GT(ReadIconSet(Bytes(MakeIcoFile(images)), set), 0);
        EXPECT_EQ(BuildMultiIconList(set).Pick, c.pick) << c.images.size() << " images";
    }
}

TEST(MultiIconList, ChoiceTextHasAnIndexOfAtLeastTwoDigits) {
    const struct {
        MultiIconListItem item;
        const char* text;
    } cases[] = {{{3, 32, 256, 8, ""}, "03/32/256/8"}, {{9, 16, 16, 4, ""}, "09/16/16/4"},
                 {{10, 48, -1, 32, ""}, "10/48/-1/32"}, {{119, 32, -1, 24, ""}, "119/32/-1/24"}};
    for (const auto& c : cases) EXPECT_EQ(EditChoiceText(c.item), c.text);
}

TEST(MultiIconList, EditRefusesDepthsTheReaderCannotOpen) {
    const std::string trueColor = "Selected item is of True Color but not 24 BPP or 32 BPP.\r\n";
    const std::string low = "Selected item is below 8 BPP, but not 1, 4";
    const struct {
        int bits;
        std::string refusal;
    } cases[] = {{1, ""}, {4, ""}, {8, ""}, {24, ""}, {32, ""}, {0, low}, {2, low}, {16, trueColor}};
    for (const auto& c : cases) EXPECT_EQ(EditRefusal(c.bits), c.refusal) << c.bits;
}

TEST(MultiIconList, SingleIconNamesCarryTheSizeAndTheColors) {
    const struct {
        int side, colors, bits;
        const char* suffix;
    } cases[] = {{32, -1, 24, "_32_24bpp.ico"}, {32, -1, 32, "_32_32bpp.ico"}, {32, 16, 4, "_32_16.ico"},
                 {48, 256, 8, "_48_256.ico"}, {16, 2, 1, "_16_2.ico"}};
    const std::string stem = SplitSaveStem("/out", "/icons/name.ico");
    EXPECT_EQ(stem, "/out/name");
    EXPECT_EQ(SplitSaveStem("/out/", "name.ico"), "/out/name");
    MultiIconList list;
    for (const auto& c : cases) {
        list.Items.push_back({0, c.side, c.colors, c.bits, ""});
        EXPECT_EQ(SingleIconSuggestion("/icons/name.ico", list.Items.back()), std::string("name") + c.suffix);
    }
    const std::vector<std::string> paths = SplitSavePaths(stem, list);
    ASSERT_EQ(paths.size(), std::size(cases));
    for (std::size_t i = 0; i < paths.size(); ++i) EXPECT_EQ(paths[i], stem + cases[i].suffix);
}

TEST(MultiIconList, SingleIconFileHoldsTheImageBytesUnchanged) {
    const ByteVec file = MakeIcoFile({PlainImage(16, 4, 1), PlainImage(48, 32, 9), PlainImage(32, 1, 3)});
    IconSet set;
    ASSERT_EQ(ReadIconSet(Bytes(file), set), 3);
    const std::string path = TempPath("single.ico");
    test::WriteBytes(path, ByteVec(5, 0xAA));  // replaced without a question
    ASSERT_TRUE(WriteSingleIcon(set, 1, path));
    const ByteVec single = test::ReadBytes(path);
    fs::remove(path);
    ASSERT_EQ(single.size(), 22 + U32At(file, 22 + 8));
    EXPECT_EQ(ByteVec(single.begin(), single.begin() + 6), (ByteVec{0, 0, 1, 0, 1, 0}));
    // The entry as the file had it but for the offset, then the image.
    EXPECT_EQ(ByteVec(single.begin() + 6, single.begin() + 18), ByteVec(file.begin() + 22, file.begin() + 34));
    EXPECT_EQ(U32At(single, 18), 22u);
    EXPECT_EQ(ImageBytesOf(single, 0), ImageBytesOf(file, 1));
    EXPECT_FALSE(WriteSingleIcon(set, 3, path));
}

}  // namespace
}  // namespace vexlo::files
