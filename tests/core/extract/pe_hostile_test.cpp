// Damaged and hostile program, resource and icon files: a clear message, no crash, no hang,
// and never more memory than a small multiple of the file's own size.
#include <gtest/gtest.h>

#include <cstdlib>

#include "allocation_count.h"
#include "extract_test_files.h"

namespace vexlo::test {
namespace {

using extract::IconSize;

// Everything a caller does with a file: open, count, draw each icon at both sizes, rebuild
// every group. Answers the open's message; *allocated gets the bytes allocated meanwhile.
std::string UseWholly(ByteVec bytes, std::size_t* allocated = nullptr, IconLibrary* keep = nullptr) {
    IconLibrary library;
    StartCountingAllocations();
    const extract::OpenResult r = library.OpenBytes(std::move(bytes));
    for (int i = 0; i < library.CountIconGroups(); ++i) {
        extract::ExtractedIcon out;
        library.ExtractGroupIcon(i, IconSize::Large, out);
        library.ExtractGroupIcon(i, IconSize::Small, out);
    }
    for (int g = 0; g < static_cast<int>(library.Groups().size()); ++g) library.RebuildGroupFile(g);
    const std::size_t counted = AllocatedSinceStart();
    if (allocated) *allocated = counted;
    if (keep) *keep = std::move(library);
    return r.Message;
}

// A 16x16 4-bit image (296 bytes) in group 1, and a 32x32 8-bit one in group 2.
std::vector<Resource> Sample() {
    const Resource a = IconImage(1, 16, 4), b = IconImage(2, 32, 8);
    return {a, b, IconGroup(1, {EntryFor(a, 16, 4)}), IconGroup(2, {EntryFor(b, 32, 8)})};
}

TEST(PeHostile, TruncatedHeadersAreRefusedWithTheirReason) {
    const pe::PeFile f = pe::BuildPe(Sample());
    struct Case {
        std::size_t Length;
        const char* Message;
    };
    const Case cases[] = {
        {0x30, extract::kHeadersCutShort},                 // no e_lfanew
        {0x42, extract::kHeadersCutShort},                 // in the signature
        {0x50, extract::kHeadersCutShort},                 // in the file header
        {f.OptionalOffset + 50, extract::kHeadersCutShort},
        {f.SectionOffset + 20, extract::kHeadersCutShort},  // in the section table
        {f.RootOffset + 8, extract::kDirectoryOutside},    // in the root directory
    };
    for (const Case& c : cases)
        EXPECT_EQ(UseWholly(ByteVec(f.Bytes.begin(), f.Bytes.begin() + static_cast<std::ptrdiff_t>(c.Length))),
                  c.Message)
            << c.Length;
}

TEST(PeHostile, AResourceDirectoryOutsideEverySectionIsRefused) {
    for (const std::uint32_t rva : {0x900000u, 0x1000u, 0xFFFFFFF0u}) {
        pe::PeFile f = pe::BuildPe(Sample());
        pe::Set32(f.Bytes, f.DirectoryOffset, rva);
        EXPECT_EQ(UseWholly(f.Bytes), extract::kDirectoryOutside) << rva;
    }
}

// Opens the damaged file, which must still open, and answers the library.
IconLibrary OpenDamaged(const ByteVec& bytes) {
    IconLibrary library;
    EXPECT_EQ(UseWholly(bytes, nullptr, &library), "");
    return library;
}

TEST(PeHostile, LoopsInTheTreeArePassedOverAndTold) {
    pe::PeFile f = pe::BuildPe(Sample());
    // The root's only type (RT_ICON first, then RT_GROUP_ICON) points at the root itself.
    ByteVec toRoot = f.Bytes;
    pe::Set32(toRoot, f.RootOffset + 16 + 8 + 4, 0x80000000u);
    IconLibrary a = OpenDamaged(toRoot);
    EXPECT_EQ(a.CountIconGroups(), 0);
    EXPECT_EQ(a.NoIconsMessage(), "the file has no icons (the resource tree loops back on itself)");
    // A name directory points at its own type directory: the other group still reads.
    ByteVec toParent = f.Bytes;
    const std::uint32_t groupTypeDir = U32At(f.Bytes, f.RootOffset + 16 + 8 + 4) & 0x7FFFFFFF;
    pe::Set32(toParent, f.RootOffset + groupTypeDir + 16 + 4, 0x80000000u | groupTypeDir);
    IconLibrary b = OpenDamaged(toParent);
    EXPECT_EQ(GroupNames(b), std::vector<std::string>{"2"});
    EXPECT_EQ(b.Damage(), "the resource tree loops back on itself");
}

TEST(PeHostile, ADirectoryClaimingMoreEntriesThanTheFileHoldsEndsThere) {
    pe::PeFile f = pe::BuildPe(Sample());
    pe::Set16(f.Bytes, f.RootOffset + 12, 0xFFFF);
    pe::Set16(f.Bytes, f.RootOffset + 14, 0xFFFF);
    IconLibrary library = OpenDamaged(f.Bytes);
    EXPECT_FALSE(library.Damage().empty());
}

TEST(PeHostile, ADirectoryOf65535RealEntriesIsReadWhole) {
    const Resource a = IconImage(1, 16, 1);
    std::vector<Resource> res = {a};
    for (std::uint32_t id = 1; id <= 0xFFFF; ++id)
        res.push_back(IconGroup(static_cast<std::uint16_t>(id), {EntryFor(a, 16, 1)}));
    const ByteVec bytes = pe::BuildPe(res).Bytes;
    IconLibrary library = OpenLibrary(bytes);
    EXPECT_EQ(library.CountIconGroups(), 0xFFFF);
    EXPECT_EQ(library.GroupName(0xFFFE), "65535");
    EXPECT_TRUE(library.Damage().empty());
}

TEST(PeHostile, DataPastTheEndLeavesItsResourceOut) {
    pe::PeFile f = pe::BuildPe(Sample());
    // Tree order: image 1, image 2, group 1, group 2. Image 1 runs past the end; group 2's
    // data lies at an RVA no section holds.
    ByteVec bytes = f.Bytes;
    pe::Set32(bytes, f.DataEntryOffsets[0] + 4, 0x7FFFFFF0);
    pe::Set32(bytes, f.DataEntryOffsets[3], 0x00F00000);
    IconLibrary library = OpenDamaged(bytes);
    ASSERT_EQ(GroupNames(library), std::vector<std::string>{"1"});
    EXPECT_EQ(library.Groups()[0].PresentCount(), 0);
    EXPECT_TRUE(library.RebuildGroupFile(0).empty());
    EXPECT_EQ(library.Damage(), "resource data lies outside the file");
}

TEST(PeHostile, OtherDamageInTheTreeIsToldOnce) {
    const pe::PeFile named = pe::BuildPe({IconImage(1, 16, 4), IconGroup(0, {}, 0, u"NAME")});
    // Offsets: the group type is the root's second entry; its name directory the first one of
    // that type's directory; its language directory after it.
    const std::uint32_t typeDir = U32At(named.Bytes, named.RootOffset + 16 + 8 + 4) & 0x7FFFFFFF;
    struct Case {
        std::size_t At;
        std::uint32_t Value;
        const char* Damage;
    };
    const Case cases[] = {
        {named.RootOffset + typeDir + 16, 0xFFFFFFF0u, "a resource name lies outside the file"},
        {named.RootOffset + typeDir + 20, 0x00000040u, "a resource name has no directory"},
        {named.RootOffset + 16 + 8 + 4, 0x00000010u, "a resource type has no directory"},
        {named.RootOffset + 16 + 8 + 4, 0x80FFFFF0u, "a resource directory lies outside the file"},
    };
    for (const Case& c : cases) {
        ByteVec bytes = named.Bytes;
        pe::Set32(bytes, c.At, c.Value);
        EXPECT_EQ(OpenDamaged(bytes).Damage(), c.Damage);
    }
}

TEST(PeHostile, AGroupClaimingAMebibyteForA300ByteImageTakesTheImageAsItIs) {
    const Resource a = IconImage(1, 16, 4);
    pe::GroupEntry e = EntryFor(a, 16, 4);
    e.Bytes = 1 << 20;
    const ByteVec bytes = pe::BuildPe({a, IconGroup(1, {e})}).Bytes;
    std::size_t allocated = 0;
    IconLibrary library;
    EXPECT_EQ(UseWholly(bytes, &allocated, &library), "");
    ASSERT_EQ(a.Data.size(), 296u);
    EXPECT_EQ(library.RebuildGroupFile(0), ExpectedIconFile({{16, 16, 16, 1, 4, &a.Data}}));
    EXPECT_LT(allocated, 2 * bytes.size() + (64u << 10));
    extract::ExtractedIcon out;
    EXPECT_TRUE(library.ExtractGroupIcon(0, IconSize::Small, out));
}

TEST(PeHostile, AGroupNamingOneImageThousandsOfTimesIsNotRebuilt) {
    const Resource a = IconImage(1, 32, 8);
    const ByteVec bytes = pe::BuildPe({a, IconGroup(1, std::vector<pe::GroupEntry>(3000, EntryFor(a, 32, 8)))}).Bytes;
    std::size_t allocated = 0;
    IconLibrary library;
    EXPECT_EQ(UseWholly(bytes, &allocated, &library), "");
    EXPECT_EQ(library.Groups()[0].PresentCount(), 3000);
    EXPECT_TRUE(library.RebuildGroupFile(0).empty());  // 3000 x 3 KiB would pass the file's size
    EXPECT_LT(allocated, 2 * bytes.size() + (64u << 10));
}

TEST(PeHostile, DamagedResAndIconFilesKeepWhatIsWhole) {
    const ByteVec res = pe::BuildRes(Sample());
    ByteVec cut(res.begin(), res.end() - 10);  // the last group's data is cut off
    IconLibrary a = OpenDamaged(cut);
    EXPECT_EQ(GroupNames(a), std::vector<std::string>{"1"});
    EXPECT_EQ(a.Damage(), "resource data lies outside the file");
    ByteVec badHeader = res;
    pe::Set32(badHeader, 36, 8);  // the first entry's header size below the least possible
    EXPECT_EQ(OpenDamaged(badHeader).Damage(), "a resource header is damaged");
    // An icon file whose second image lies past its end.
    const Resource i16 = IconImage(0, 16, 4), i32 = IconImage(0, 32, 4);
    ByteVec ico = ExpectedIconFile({{16, 16, 16, 1, 4, &i16.Data}, {32, 32, 16, 1, 4, &i32.Data}});
    pe::Set32(ico, 6 + 16 + 12, 0x10000000);
    IconLibrary c = OpenDamaged(ico);
    EXPECT_EQ(c.Groups()[0].PresentCount(), 1);
    EXPECT_EQ(c.RebuildGroupFile(0), ExpectedIconFile({{16, 16, 16, 1, 4, &i16.Data}}));
}

// Every byte of small files set to 0xFF and to 0x80 in turn: each open ends, within bounds.
TEST(PeHostile, EveryByteDamagedInTurnNeverCrashes) {
    const ByteVec files[] = {pe::BuildPe(Sample()).Bytes, pe::BuildPe(Sample(), {true}).Bytes, pe::BuildRes(Sample())};
    for (const ByteVec& base : files)
        for (std::size_t i = 0; i < base.size(); ++i)
            for (const std::uint8_t v : {std::uint8_t{0xFF}, std::uint8_t{0x80}}) {
                ByteVec bytes = base;
                bytes[i] = v;
                std::size_t allocated = 0;
                UseWholly(bytes, &allocated);
                ASSERT_LT(allocated, 2 * bytes.size() + (64u << 10)) << i;
            }
}

// The fuzzer's seeds in tests/fixtures/pe/ are the sample above as the writer builds it; with
// VEXLO_WRITE_FIXTURES set this writes them anew.
TEST(PeHostile, TheFuzzSeedsAreTheSampleAsTheWriterBuildsIt) {
    const std::pair<const char*, ByteVec> seeds[] = {{"pe/sample_pe32.dll", pe::BuildPe(Sample()).Bytes},
                                                      {"pe/sample_pe32plus.dll", pe::BuildPe(Sample(), {true}).Bytes},
                                                      {"pe/sample.res", pe::BuildRes(Sample())}};
    for (const auto& [name, bytes] : seeds) {
        if (std::getenv("VEXLO_WRITE_FIXTURES")) WriteBytes(FixturePathOf(name), bytes);
        EXPECT_EQ(ReadBytes(FixturePathOf(name)), bytes) << name;
        EXPECT_EQ(OpenLibrary(bytes).CountIconGroups(), 2);
    }
}

}  // namespace
}  // namespace vexlo::test
