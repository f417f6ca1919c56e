// Hostile and broken files: the probe and the reader answer without crashing, reading out of
// bounds or allocating what the file can't hold, and a failed read touches nothing. Every file
// in tests/fixtures/ico/hostile/ runs here, so inputs that the fuzzer found once stay tested.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"
#include "core/files/ico_write.h"
#include "ico_test_support.h"

namespace vexlo::files {
namespace {

namespace fs = std::filesystem;
using surface::Surface;
using test::ByteVec;

// Reads image index of file into planes that hold a marker; on failure the marker must stand.
bool ReadKeepsMarkerOnFailure(const ByteVec& file, int index, const std::string& what) {
    Surface image(3, 3, 0x010203), mask(3, 3, 0x040506);
    alpha::AlphaArray a;
    a.SetBounds(2);
    a.At(2, 1) = 77;
    const bool ok = ReadIconFileToImage(Bytes(file), index, image, mask, a);
    if (!ok) {
        EXPECT_EQ(image.Width(), 3) << what;
        EXPECT_EQ(image.GetPixel(2, 2), 0x010203u) << what;
        EXPECT_EQ(mask.GetPixel(0, 0), 0x040506u) << what;
        EXPECT_EQ(a.UpperBound(), 2) << what;
        EXPECT_EQ(a.At(2, 1), 77) << what;
    } else {
        EXPECT_TRUE(IsIconSide(image.Width())) << what;
        EXPECT_EQ(image.Width(), mask.Width()) << what;
    }
    return ok;
}

// Probes both ways and reads every index the header names (and one more), bounded.
void Exercise(const ByteVec& file, const std::string& what) {
    ProbeIconFile(Bytes(file), false);
    ProbeIconFile(Bytes(file), true);
    const int count = file.size() >= 6 ? test::U16At(file, 4) : 0;
    for (int i = 0; i <= std::min(count, 300); ++i) ReadKeepsMarkerOnFailure(file, i, what + " #" + std::to_string(i));
    Surface image, mask, composed;
    ReadIconToPreview(Bytes(file), image, mask, composed);
}

struct KnownCase {
    const char* probe;
    std::vector<bool> reads;  // by index
};

TEST(IcoHostile, FixturesAnswerAsExpected) {
    const std::map<std::string, KnownCase> known = {
        {"count65535_short.ico", {"0/0/0/0/0/0", {false, false}}},
        {"bytesinres_ffffffff.ico", {"1/1/0/16/2/1", {true}}},
        {"offset_past_end.ico", {"0/0/0/0/0/0", {false}}},
        {"bitcount3.ico", {"1/1/0/16/-1/3", {false}}},
        {"table_cut.ico", {"1/1/0/16/256/8", {false}}},
        {"width24.ico", {"0/0/0/0/0/0", {false}}},
        {"height_negative.ico", {"0/0/0/0/0/0", {true}}},
        {"offset_into_directory.ico", {"2/1/0/16/2/1", {true, false}}},
    };
    const fs::path dir = fs::path(VEXLO_FIXTURES_DIR) / "ico" / "hostile";
    std::size_t seen = 0;
    for (const auto& item : fs::directory_iterator(dir)) {
        if (item.path().extension() == ".md") continue;
        const std::string name = item.path().filename().string();
        const ByteVec file = test::LoadFixture("ico/hostile/" + name);
        Exercise(file, name);  // every file, also fuzzer finds without an entry below
        const auto it = known.find(name);
        if (it == known.end()) continue;
        ++seen;
        EXPECT_EQ(ProbeIconFile(item.path().string()).Text(), it->second.probe) << name;
        for (std::size_t i = 0; i < it->second.reads.size(); ++i)
            EXPECT_EQ(ReadKeepsMarkerOnFailure(file, static_cast<int>(i), name), it->second.reads[i]) << name << " #" << i;
    }
    EXPECT_EQ(seen, known.size());
}

// Valid files of every depth and size, written by the writer.
std::vector<ByteVec> ValidFiles() {
    std::vector<ByteVec> files;
    alpha::AlphaArray a;
    for (const int side : {16, 32, 48}) {
        a.SetBounds(side - 1);
        Surface many = test::Filled(side, 0);
        for (int i = 0; i < side * side; ++i) many.SetPixelV(i % side, i / side, static_cast<surface::Color>(i * 977 + 1));
        Surface vga = test::Filled(side, surface::Rgb(128, 0, 0));
        files.push_back(BuildIconFileBytes(test::Filled(side, 0), test::Filled(side, 0xFFFFFF), {}));
        files.push_back(BuildIconFileBytes(vga, test::Filled(side, 0), {}));
        files.push_back(BuildIconFileBytes(vga, test::Filled(side, 0), {false, true, false, nullptr}));
        files.push_back(BuildIconFileBytes(many, test::Filled(side, 0), {}));
        files.push_back(BuildIconFileBytes(many, test::Filled(side, 0), {true, false, true, &a}));
    }
    return files;
}

TEST(IcoHostile, EveryTruncationFailsToReadAndNeverCrashes) {
    for (const ByteVec& full : ValidFiles()) {
        ASSERT_FALSE(full.empty());
        ASSERT_TRUE(ReadKeepsMarkerOnFailure(full, 0, "whole"));
        for (std::size_t len = 0; len < full.size(); ++len) {
            const ByteVec cut(full.begin(), full.begin() + static_cast<std::ptrdiff_t>(len));
            ASSERT_FALSE(ReadKeepsMarkerOnFailure(cut, 0, "cut at " + std::to_string(len))) << len;
            // The probe reads headers only: a file cut after them still probes as before.
            const std::string probe = ProbeIconFile(Bytes(cut)).Text();
            if (len < 62) ASSERT_EQ(probe, "0/0/0/0/0/0") << len;
            else ASSERT_EQ(probe, ProbeIconFile(Bytes(full)).Text()) << len;
        }
    }
}

// Every byte of the header, the entry and the image header set to 0, 0xFF and 0x80 in turn.
TEST(IcoHostile, HeaderBytesOfAnyValueAreSafe) {
    for (const ByteVec& full : ValidFiles())
        for (std::size_t at = 0; at < 62; ++at)
            for (const std::uint8_t v : {std::uint8_t{0}, std::uint8_t{0xFF}, std::uint8_t{0x80}}) {
                ByteVec file = full;
                file[at] = v;
                Exercise(file, "byte " + std::to_string(at) + "=" + std::to_string(v));
            }
}

}  // namespace
}  // namespace vexlo::files
