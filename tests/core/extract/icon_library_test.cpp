// The icon library on sound files: PE32 and PE32+, the order of groups, names and languages,
// the groups rebuilt as icon and cursor files, .res and plain icon files as sources.
#include <gtest/gtest.h>

#include "core/extract/res_file.h"
#include "extract_test_files.h"

namespace vexlo::test {
namespace {

// Two groups: "App" of a 16x16 4-bit and a 32x32 8-bit image, and number 7 of one 48x48.
std::vector<Resource> TwoGroups() {
    const Resource a = IconImage(1, 16, 4), b = IconImage(2, 32, 8), c = IconImage(3, 48, 8);
    return {a, b, c, IconGroup(7, {EntryFor(c, 48, 8)}),
            IconGroup(0, {EntryFor(a, 16, 4), EntryFor(b, 32, 8)}, 0, u"App")};
}

TEST(IconLibrary, ReadsPe32AndPe32PlusOfAnyMachine) {
    struct Case {
        bool Plus;
        std::uint16_t Machine;
    };
    for (const Case c : {Case{false, 0x14C}, Case{true, 0x8664}, Case{false, 0x1C0}, Case{true, 0xAA64}}) {
        const IconLibrary library = OpenLibrary(pe::BuildPe(TwoGroups(), {c.Plus, c.Machine}).Bytes);
        EXPECT_EQ(library.Kind(), extract::SourceKind::Program);
        EXPECT_EQ(library.CountIconGroups(), 2) << c.Machine;
        EXPECT_EQ(GroupNames(library), (std::vector<std::string>{"App", "7"}));
        EXPECT_TRUE(library.Damage().empty()) << library.Damage();
    }
}

TEST(IconLibrary, RebuildsAGroupWithItsEntriesAndImagesUnchanged) {
    const std::vector<Resource> res = TwoGroups();
    const IconLibrary library = OpenLibrary(pe::BuildPe(res).Bytes);
    // "App": its entries as the group has them, offsets end to end from 6 + 2 x 16.
    EXPECT_EQ(library.RebuildGroupFile(0),
              ExpectedIconFile({{16, 16, 16, 1, 4, &res[0].Data}, {32, 32, 0, 1, 8, &res[1].Data}}));
    EXPECT_EQ(library.RebuildGroupFile(1), ExpectedIconFile({{48, 48, 0, 1, 8, &res[2].Data}}));
    EXPECT_TRUE(library.RebuildGroupFile(2).empty());
    EXPECT_TRUE(library.RebuildGroupFile(-1).empty());
}

TEST(IconLibrary, GroupsComeInDirectoryOrderNamesFirstThenNumbersAscending) {
    const Resource img = IconImage(1, 32, 4);
    const auto group = [&](std::uint16_t id, std::u16string name = {}) {
        return IconGroup(id, {EntryFor(img, 32, 4)}, 0, std::move(name));
    };
    // Given out of order; the linker (and our writer) sorts the tree, the reader keeps it.
    const std::vector<Resource> res = {img, group(300), group(2), group(0, u"zeta"), group(40), group(0, u"Alpha"),
                                       group(0, u"BETA")};
    const std::vector<std::string> expected = {"Alpha", "BETA", "zeta", "2", "40", "300"};
    EXPECT_EQ(GroupNames(OpenLibrary(pe::BuildPe(res).Bytes)), expected);
    // A .res file keeps its source order; the reader sorts it as the linker would.
    EXPECT_EQ(GroupNames(OpenLibrary(pe::BuildRes(res))), expected);
}

TEST(IconLibrary, EveryLanguageIsAGroupButCountsAsOneIcon) {
    const Resource de = IconImage(1, 32, 4, 1, 0x407), us = IconImage(1, 32, 4, 2, 0x409);
    const auto file = [&](std::vector<std::uint16_t> languages) {
        std::vector<Resource> res = {de, us};
        for (std::uint16_t l : languages) res.push_back(IconGroup(5, {EntryFor(de, 32, 4)}, l));
        return pe::BuildPe(res);
    };
    const auto groups = [&](std::vector<std::uint16_t> languages) { return OpenLibrary(file(languages).Bytes); };
    const pe::PeFile built = file({0x407, 0x409});
    const IconLibrary two = OpenLibrary(built.Bytes);
    ASSERT_EQ(two.Groups().size(), 2u);
    EXPECT_EQ(two.CountIconGroups(), 1);
    // US English is taken over German; each group's image is the one of its own language
    // (the images come first in the tree: type 3 before type 14).
    EXPECT_EQ(two.IconGroupIndex(0), 1);
    EXPECT_EQ(two.Groups()[0].Images[0].Offset, built.DataOffsets[0]);
    EXPECT_EQ(two.Groups()[1].Images[0].Offset, built.DataOffsets[1]);
    // Neutral is taken over both; with neither, the first.
    EXPECT_EQ(groups({0, 0x407, 0x409}).IconGroupIndex(0), 0);
    EXPECT_EQ(groups({0x407, 0x40C}).IconGroupIndex(0), 0);
}

TEST(IconLibrary, AGroupNamingAMissingImageSkipsIt) {
    const Resource a = IconImage(1, 16, 4), c = IconImage(3, 32, 4);
    pe::GroupEntry missing = EntryFor(a, 48, 8);
    missing.Id = 2;
    const std::vector<Resource> res = {a, c, IconGroup(1, {EntryFor(a, 16, 4), missing, EntryFor(c, 32, 4)})};
    const IconLibrary library = OpenLibrary(pe::BuildPe(res).Bytes);
    ASSERT_EQ(library.Groups().size(), 1u);
    EXPECT_EQ(library.Groups()[0].Images.size(), 3u);
    EXPECT_EQ(library.Groups()[0].PresentCount(), 2);
    EXPECT_EQ(library.RebuildGroupFile(0),
              ExpectedIconFile({{16, 16, 16, 1, 4, &res[0].Data}, {32, 32, 16, 1, 4, &res[1].Data}}));
}

TEST(IconLibrary, RebuildsCursorGroupsWithHotSpotAndThePicturesOwnSize) {
    // A cursor image resource: the hot spot (5, 7), then the picture.
    const ByteVec picture = IconImage(0, 32, 1).Data;
    ByteVec data = {5, 0, 7, 0};
    data.insert(data.end(), picture.begin(), picture.end());
    pe::GroupEntry e;
    e.Width = 32;
    e.Height = 64;  // as compilers write a cursor's entry: both planes
    e.BitCount = 1;
    e.Bytes = static_cast<std::int64_t>(data.size());
    e.Id = 9;
    const Resource icon = IconImage(1, 16, 4);
    const std::vector<Resource> res = {{extract::kRtCursor, 9, {}, 0, data},
                                       {extract::kRtGroupCursor, 100, {}, 0, pe::GroupBytes({e}, {}, true)}, icon,
                                       IconGroup(200, {EntryFor(icon, 16, 4)})};
    const IconLibrary library = OpenLibrary(pe::BuildPe(res).Bytes);
    // Icon groups first; cursor groups are listed but are no icons.
    EXPECT_EQ(GroupNames(library), (std::vector<std::string>{"200", "100"}));
    EXPECT_EQ(library.CountIconGroups(), 1);
    ASSERT_TRUE(library.Groups()[1].Cursor);
    // Entry: 32 x 32 from the picture, 2 colors, hot spot in place of planes and bit count.
    EXPECT_EQ(library.RebuildGroupFile(1), ExpectedIconFile({{32, 32, 2, 5, 7, &picture}}, 2));
}

TEST(IconLibrary, AResFileGivesTheGroupsOfTheProgramItIsLinkedInto) {
    const std::vector<Resource> res = TwoGroups();
    const IconLibrary program = OpenLibrary(pe::BuildPe(res).Bytes);
    const IconLibrary compiled = OpenLibrary(pe::BuildRes(res));
    EXPECT_EQ(compiled.Kind(), extract::SourceKind::ResourceFile);
    ASSERT_EQ(compiled.Groups().size(), program.Groups().size());
    for (int g = 0; g < 2; ++g) EXPECT_EQ(compiled.RebuildGroupFile(g), program.RebuildGroupFile(g)) << g;
}

TEST(IconLibrary, APlainIconFileIsOneGroupRebuiltAsItStands) {
    const Resource a = IconImage(0, 16, 4), b = IconImage(0, 32, 8);
    const ByteVec file = ExpectedIconFile({{16, 16, 16, 1, 4, &a.Data}, {32, 32, 0, 1, 8, &b.Data}});
    const IconLibrary library = OpenLibrary(file);
    EXPECT_EQ(library.Kind(), extract::SourceKind::IconFile);
    EXPECT_EQ(library.CountIconGroups(), 1);
    EXPECT_EQ(library.RebuildGroupFile(0), file);
}

TEST(IconLibrary, RefusesWhatHoldsNoResourcesWithOneLine) {
    struct Case {
        const char* Name;
        ByteVec Bytes;
        const char* Message;
    };
    pe::PeFile noDirectory = pe::BuildPe({IconImage(1, 16, 4)});
    pe::Set32(noDirectory.Bytes, noDirectory.DirectoryOffset, 0);
    pe::Set32(noDirectory.Bytes, noDirectory.DirectoryOffset + 4, 0);
    ByteVec notPe = pe::BuildPe({}).Bytes;
    notPe[0x40] = 'N';  // "NE": a 16-bit program
    const Case cases[] = {
        {"text", ByteVec{'h', 'e', 'l', 'l', 'o'}, extract::kNotResourceSource},
        {"empty", ByteVec{}, extract::kNotResourceSource},
        {"16-bit program", notPe, extract::kNotResourceSource},
        {"no resource directory", noDirectory.Bytes, extract::kNoResources},
    };
    for (const Case& c : cases) {
        IconLibrary library;
        const extract::OpenResult r = library.OpenBytes(c.Bytes);
        EXPECT_FALSE(r.Ok) << c.Name;
        EXPECT_EQ(r.Message, c.Message) << c.Name;
        EXPECT_EQ(library.Kind(), extract::SourceKind::None);
        EXPECT_EQ(library.CountIconGroups(), 0);
    }
    // Resources but no icon: open, with nothing in it.
    const IconLibrary none = OpenLibrary(pe::BuildPe({{6, 1, {}, 0, ByteVec(20, 1)}}).Bytes);
    EXPECT_EQ(none.CountIconGroups(), 0);
    EXPECT_EQ(none.NoIconsMessage(), extract::kNoIcons);
}

TEST(IconLibrary, OpenReadsTheFileByPath) {
    IconLibrary library;
    EXPECT_EQ(library.Open("/nonexistent/vexlo/file.dll").Message, extract::kFileNotFound);
    EXPECT_EQ(library.Open("/").Message, extract::kNotRegularFile);
}

}  // namespace
}  // namespace vexlo::test
