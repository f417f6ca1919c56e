// ProbeIconFile: the judgement of a file and the image it chooses; ColorCountOfEntry.
#include <gtest/gtest.h>

#include <functional>

#include "core/files/ico_probe.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

using test::ByteVec;
using test::MakeIcoFile;
using test::PlainImage;
using test::RawImage;
using test::U32At;

// (side, bits) of each image in file order.
ByteVec FileOf(std::initializer_list<std::pair<int, int>> images) {
    std::vector<RawImage> list;
    for (const auto& [side, bits] : images) list.push_back(PlainImage(side, bits));
    return MakeIcoFile(list);
}

struct ChoiceCase {
    const char* name;
    ByteVec file;
    const char* answer;            // stopAtFirst false
    const char* answerStopAtFirst;  // stopAtFirst true
};

TEST(IcoProbe, ChoosesThe32x32Of256ColorsThenThe32x32ThenTheFirstUsable) {
    const std::vector<ChoiceCase> cases = {
        {"one image", FileOf({{32, 4}}), "1/1/0/32/16/4", "1/1/0/32/16/4"},
        {"one 48x48 true color", FileOf({{48, 32}}), "1/1/0/48/-1/32", "1/1/0/48/-1/32"},
        {"16, 32/16, 32/256: the last", FileOf({{16, 4}, {32, 4}, {32, 8}}), "2/3/2/32/256/8", "2/3/2/32/256/8"},
        {"no 32x32: the first usable", FileOf({{48, 8}, {16, 8}}), "2/2/0/48/256/8", "2/2/0/48/256/8"},
        {"a 32x32 after others replaces them", FileOf({{16, 8}, {48, 8}, {32, 1}, {16, 4}}),
         "2/4/2/32/2/1", "2/4/2/32/2/1"},
        {"a 32x32 of any depth stays chosen", FileOf({{32, 24}, {16, 8}}), "2/2/0/32/-1/24", "2/2/0/32/-1/24"},
        // Several of 256 colors: the last one, or the first after the first 32x32 (and the
        // count stops where the loop does).
        {"three 32x32 of 256", FileOf({{32, 8}, {32, 8}, {32, 8}, {16, 1}}), "2/4/2/32/256/8", "2/2/1/32/256/8"},
        {"256 after a 32x32 of 16", FileOf({{32, 4}, {32, 8}, {32, 8}}), "2/3/2/32/256/8", "2/2/1/32/256/8"},
        // The 32x32 that replaces another size does not end the loop by itself.
        {"first 32x32 is of 256", FileOf({{16, 4}, {32, 8}, {32, 24}, {32, 8}}), "2/4/3/32/256/8", "2/4/3/32/256/8"},
        {"none usable", FileOf({{24, 8}, {64, 8}}), "2/0/0/0/0/0", "2/0/0/0/0/0"},
        {"unusable ones are not counted", FileOf({{24, 8}, {16, 4}, {64, 8}}), "2/1/1/16/16/4", "2/1/1/16/16/4"},
    };
    for (const ChoiceCase& c : cases) {
        EXPECT_EQ(ProbeIconFile(Bytes(c.file)).Text(), c.answer) << c.name;
        EXPECT_EQ(ProbeIconFile(Bytes(c.file), true).Text(), c.answerStopAtFirst) << c.name;
    }
}

struct HeaderCase {
    const char* name;
    std::function<void(ByteVec&)> mutate;
    const char* answer;
};

TEST(IcoProbe, JudgesTheHeaderTheFirstEntryAndTheImageHeader) {
    const ByteVec one = FileOf({{32, 8}});
    const ByteVec two = FileOf({{32, 8}, {16, 4}});
    const std::size_t e0 = 6, e1 = 22, bih = 22;  // first entry; second entry; image header of `one`
    const std::vector<std::pair<const ByteVec*, HeaderCase>> cases = {
        {&one, {"valid", [](ByteVec&) {}, "1/1/0/32/256/8"}},
        {&one, {"idReserved 1", [](ByteVec& b) { test::PatchU16(b, 0, 1); }, "0/0/0/0/0/0"}},
        {&one, {"idType 2 (cursor)", [](ByteVec& b) { test::PatchU16(b, 2, 2); }, "0/0/0/0/0/0"}},
        {&one, {"idCount 0", [](ByteVec& b) { test::PatchU16(b, 4, 0); }, "0/0/0/0/0/0"}},
        {&one, {"bReserved 1", [=](ByteVec& b) { b[e0 + 3] = 1; }, "0/0/0/0/0/0"}},
        {&one, {"bWidth 0", [=](ByteVec& b) { b[e0] = 0; }, "0/0/0/0/0/0"}},
        {&one, {"bHeight 0", [=](ByteVec& b) { b[e0 + 1] = 0; }, "0/0/0/0/0/0"}},
        {&one, {"dwBytesInRes 0", [=](ByteVec& b) { test::PatchU32(b, e0 + 8, 0); }, "0/0/0/0/0/0"}},
        {&one, {"dwImageOffset 0", [=](ByteVec& b) { test::PatchU32(b, e0 + 12, 0); }, "0/0/0/0/0/0"}},
        {&one, {"dwBytesInRes huge is not used", [=](ByteVec& b) { test::PatchU32(b, e0 + 8, 0xFFFFFFFF); },
                "1/1/0/32/256/8"}},
        {&one, {"entry's bWidth not looked at", [=](ByteVec& b) { b[e0] = 77; }, "1/1/0/32/256/8"}},
        {&one, {"biWidth 24", [=](ByteVec& b) { test::PatchU32(b, bih + 4, 24); }, "0/0/0/0/0/0"}},
        {&one, {"biHeight odd", [=](ByteVec& b) { test::PatchU32(b, bih + 8, 65); }, "0/0/0/0/0/0"}},
        {&one, {"biHeight negative", [=](ByteVec& b) { test::PatchU32(b, bih + 8, static_cast<std::uint32_t>(-64)); },
                "0/0/0/0/0/0"}},
        // One image needn't be square: 16 wide, 48 high.
        {&one, {"one image 16x48", [=](ByteVec& b) { test::PatchU32(b, bih + 4, 16); test::PatchU32(b, bih + 8, 96); },
                "1/1/0/16/256/8"}},
        {&one, {"biBitCount 24", [=](ByteVec& b) { test::PatchU16(b, bih + 14, 24); }, "1/1/0/32/-1/24"}},
        {&one, {"image header past the end", [=](ByteVec& b) { test::PatchU32(b, e0 + 12, 0x7FFFFFF0); },
                "0/0/0/0/0/0"}},
        {&one, {"cut in the image header", [](ByteVec& b) { b.resize(22 + 39); }, "0/0/0/0/0/0"}},
        {&one, {"cut in the first entry", [](ByteVec& b) { b.resize(21); }, "0/0/0/0/0/0"}},
        {&one, {"empty", [](ByteVec& b) { b.clear(); }, "0/0/0/0/0/0"}},
        // Several: a non-square image is unusable; one whose header lies outside the file too.
        {&two, {"several: not square", [](ByteVec& b) { test::PatchU32(b, 38 + 8, 32); }, "2/1/1/16/16/4"}},
        {&two, {"several: first entry unusable", [=](ByteVec& b) { b[e0 + 3] = 9; }, "0/0/0/0/0/0"}},
        // Several: a read that the file cuts short fails the probe, as any failed read does.
        {&two, {"several: image header past the end", [=](ByteVec& b) { test::PatchU32(b, e1 + 12, 0xFFFFFFFF); },
                "0/0/0/0/0/0"}},
        {&two, {"several: image header cut", [](ByteVec& b) { b.resize(U32At(b, 22 + 12) + 39); }, "0/0/0/0/0/0"}},
        {&two, {"several: second entry cut", [](ByteVec& b) { b.resize(6 + 16 + 15); }, "0/0/0/0/0/0"}},
        {&two, {"idCount 65535", [](ByteVec& b) { test::PatchU16(b, 4, 65535); }, "0/0/0/0/0/0"}},
        // Image bytes themselves are not read: a file cut after the last image header probes.
        {&two, {"several: last image cut after its header", [](ByteVec& b) { b.resize(U32At(b, 22 + 12) + 40); },
                "2/2/0/32/256/8"}},
    };
    for (const auto& [base, c] : cases) {
        ByteVec file = *base;
        c.mutate(file);
        EXPECT_EQ(ProbeIconFile(Bytes(file)).Text(), c.answer) << c.name;
    }
}

// Entries after the loop has ended are not read: with stopAtFirst a cut after the chosen
// image does not matter.
TEST(IcoProbe, AnEntryCutAfterTheChoiceEndedTheLoopIsNotRead) {
    ByteVec file = FileOf({{32, 4}, {32, 8}, {16, 4}});
    test::PatchU32(file, 6 + 32 + 12, 0x7FFFFFFF);  // the third image's header lies past the end
    EXPECT_EQ(ProbeIconFile(Bytes(file), true).Text(), "2/2/1/32/256/8");
    EXPECT_EQ(ProbeIconFile(Bytes(file), false).Text(), "0/0/0/0/0/0");
}

TEST(IcoProbe, AnswersNothingForAMissingFile) {
    EXPECT_EQ(ProbeIconFile(std::string("/nonexistent/vexlo/none.ico")).Text(), "0/0/0/0/0/0");
    EXPECT_EQ(ProbeIconFile(std::string("/")).Text(), "0/0/0/0/0/0");  // a folder
}

TEST(IcoProbe, ColorCountOfEntryTakesTheCountFirstAndTheBitCountWhenItIsZero) {
    struct Case {
        int count, bits, want;
    };
    const Case cases[] = {
        {0, 1, 2},   {0, 4, 16},   {0, 8, 256}, {0, 24, -1}, {0, 32, -1}, {0, 9, -1},
        {16, 8, 16},  // bColorCount 16 gives 16 whatever wBitCount says
        {2, 24, 2},  {0, 3, 8},    {0, 0, 1},   {255, 8, 255},
    };
    for (const Case& c : cases) {
        IconDirEntry e;
        e.ColorCount = static_cast<std::uint8_t>(c.count);
        e.BitCount = static_cast<std::uint16_t>(c.bits);
        EXPECT_EQ(ColorCountOfEntry(e), c.want) << c.count << "/" << c.bits;
    }
}

}  // namespace
}  // namespace vexlo::files
