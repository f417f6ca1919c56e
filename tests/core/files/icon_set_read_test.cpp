// Reading icon sets from hostile files: every failure empties the set; images that overlap
// one another or the directory are read as they stand, within a cap on what they copy.
#include <gtest/gtest.h>

#include <functional>

#include "core/files/icon_set.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

using test::ByteVec;
using test::MakeIcoFile;
using test::PlainImage;
using test::U32At;

ByteVec ImageAt(const ByteVec& b, std::size_t i) {
    const std::size_t at = U32At(b, 6 + 16 * i + 12);
    return ByteVec(b.begin() + static_cast<std::ptrdiff_t>(at),
                   b.begin() + static_cast<std::ptrdiff_t>(at + U32At(b, 6 + 16 * i + 8)));
}

// A two-image file, broken one way at a time.
struct HostileCase {
    const char* name;
    std::function<void(ByteVec&)> breakIt;
    IconSetError error;
};

TEST(IconSet, HostileFilesAnswerZeroAndEmptyTheSet) {
    using E = IconSetError;
    const std::vector<HostileCase> cases = {
        {"empty", [](ByteVec& b) { b.clear(); }, E::NotIconFile},
        {"header cut", [](ByteVec& b) { b.resize(5); }, E::NotIconFile},
        {"cursor type", [](ByteVec& b) { test::PatchU16(b, 2, 2); }, E::NotIconFile},
        {"reserved", [](ByteVec& b) { test::PatchU16(b, 0, 1); }, E::NotIconFile},
        {"no images", [](ByteVec& b) { test::PatchU16(b, 4, 0); }, E::NoImages},
        // The third entry is read from the first image's header: its image lies past the end.
        {"count past the directory", [](ByteVec& b) { test::PatchU16(b, 4, 3); }, E::Truncated},
        {"count past the file", [](ByteVec& b) { test::PatchU16(b, 4, 65535); }, E::Truncated},
        {"directory cut", [](ByteVec& b) { b.resize(30); }, E::Truncated},
        {"last image cut", [](ByteVec& b) { b.pop_back(); }, E::Truncated},
        {"offset past end", [](ByteVec& b) { test::PatchU32(b, 6 + 12, 0xFFFFFFF0); }, E::Truncated},
        {"length past end", [](ByteVec& b) { test::PatchU32(b, 6 + 8, 0x7FFFFFFF); }, E::Truncated},
        {"offset + length wraps 32 bits", [](ByteVec& b) {
             test::PatchU32(b, 6 + 12, 0xFFFFFF00);
             test::PatchU32(b, 6 + 8, 0x200);
         }, E::Truncated},
    };
    const ByteVec good = MakeIcoFile({PlainImage(16, 1, 5), PlainImage(32, 4, 6)});
    for (const HostileCase& c : cases) {
        ByteVec file = good;
        c.breakIt(file);
        IconSet set;
        ASSERT_EQ(ReadIconSet(Bytes(good), set), 2);
        set.NewImage.Bytes = {1};
        IconSetError why = E::None;
        EXPECT_EQ(ReadIconSet(Bytes(file), set, &why), 0) << c.name;
        EXPECT_EQ(why, c.error) << c.name;
        EXPECT_EQ(set.Count(), 0) << c.name;
        EXPECT_TRUE(set.NewImage.Bytes.empty()) << c.name;
    }
    IconSet set;
    for (std::size_t len = 0; len < good.size(); ++len) ASSERT_EQ(ReadIconSet(Bytes(good.data(), len), set), 0) << len;
}

// Images are read where their entries put them, as the file stands: sharing bytes with one
// another or with the directory is no reason to refuse a file.
TEST(IconSet, OverlappingImagesAreReadAsTheyStand) {
    const struct {
        const char* name;
        std::function<void(ByteVec&)> change;
    } cases[] = {
        {"offset into the directory", [](ByteVec& b) { test::PatchU32(b, 22 + 12, 20); }},
        {"same offset twice", [](ByteVec& b) { test::PatchU32(b, 22 + 12, U32At(b, 6 + 12)); }},
        {"overlap by one byte", [](ByteVec& b) { test::PatchU32(b, 22 + 12, U32At(b, 22 + 12) - 1); }},
        {"second image inside the first", [](ByteVec& b) {
             test::PatchU32(b, 22 + 8, 8);
             test::PatchU32(b, 22 + 12, U32At(b, 6 + 12) + 40);
         }},
    };
    for (const auto& c : cases) {
        ByteVec file = MakeIcoFile({PlainImage(16, 1, 5), PlainImage(32, 4, 6)});
        c.change(file);
        IconSet set;
        IconSetError why = IconSetError::Truncated;
        ASSERT_EQ(ReadIconSet(Bytes(file), set, &why), 2) << c.name;
        EXPECT_EQ(why, IconSetError::None) << c.name;
        for (std::size_t i = 0; i < 2; ++i) EXPECT_EQ(set.Images[i].Bytes, ImageAt(file, i)) << c.name << " " << i;
        // Written back, each image has bytes of its own, end to end.
        IconSet again;
        ASSERT_EQ(ReadIconSet(Bytes(BuildIconSetBytes(set)), again), 2) << c.name;
        EXPECT_EQ(again.Images[1].Bytes, set.Images[1].Bytes) << c.name;
    }
}

// Many entries over the same bytes: the copies are capped where the file written from them
// would be too large to read again.
TEST(IconSet, OverlapsCannotMultiplyTheMemoryPastTheCap) {
    const std::uint32_t big = 1u << 20;
    const auto file = [&](std::uint16_t count) {
        ByteVec b;
        AppendIconFileHeader(b, {0, 1, count});
        for (std::uint16_t i = 0; i < count; ++i) {
            IconDirEntry e = PlainImage(32, 8).Entry;
            e.BytesInRes = big;
            e.ImageOffset = 6 + 16u * count;
            AppendIconDirEntry(b, e);
        }
        b.resize(b.size() + big, 0x5A);
        return b;
    };
    IconSet set;
    EXPECT_EQ(ReadIconSet(Bytes(file(15)), set), 15);
    IconSetError why = IconSetError::None;
    EXPECT_EQ(ReadIconSet(Bytes(file(16)), set, &why), 0);
    EXPECT_EQ(why, IconSetError::TooLarge);
    EXPECT_EQ(set.Count(), 0);
}

}  // namespace
}  // namespace vexlo::files
