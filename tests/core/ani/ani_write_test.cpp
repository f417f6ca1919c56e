// Writing: the layout of the file as numbers at their offsets, the frames through the cursor
// writer, the temporary files, and frames saved and read back the same.
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

#include "ani_test_support.h"
#include "core/ani/ani_load.h"
#include "core/ani/ani_save.h"
#include "core/files/ico_write.h"
#include "support/test_folder.h"

namespace vexlo::ani::test {
namespace {

namespace fs = std::filesystem;

TEST(AniWrite, LayoutFieldByField) {
    const std::vector<ByteVec> frames = {PatternCursor(0), ByteVec(7, 0xAB), ByteVec{1, 2}};
    const std::vector<AniFrameRecord> rows = {{5, 0, 0, 0}, {90, 0, 0, 0}, {1, 0, 0, 0}};
    const ByteVec b = BuildAniFileBytes(frames, rows);
    const std::size_t a = 35, t = 13, n = 3;  // the lengths of the two texts
    const std::size_t L = 4 + (8 + 326) + (8 + 7) + (8 + 2);
    ASSERT_EQ(b.size(), 102 + a + t + 4 * n + L);
    const struct {
        std::size_t at;
        const char* id;
        std::uint32_t value;  // the u32 behind the id, or at `at` when id is null
    } fields[] = {
        {0, "RIFF", static_cast<std::uint32_t>(b.size() - 8)}, {8, "ACON", U32At(b, 12)},
        {12, "LIST", a + t + 22}, {20, "INFO", U32At(b, 24)}, {24, "INAM", a + 1},
        {33 + a, "IART", t + 1}, {42 + a + t, "anih", 36}, {50 + a + t, nullptr, 36},
        {54 + a + t, nullptr, 3}, {58 + a + t, nullptr, 3}, {62 + a + t, nullptr, 0},
        {66 + a + t, nullptr, 0}, {70 + a + t, nullptr, 0}, {74 + a + t, nullptr, 0},
        {78 + a + t, nullptr, 10}, {82 + a + t, nullptr, 1}, {86 + a + t, "rate", 12},
        {94 + a + t, nullptr, 5}, {98 + a + t, nullptr, 90}, {102 + a + t, nullptr, 1},
        {94 + a + t + 4 * n, "LIST", L}, {102 + a + t + 4 * n, "fram", U32At(b, 106 + a + t + 4 * n)},
        {106 + a + t + 4 * n, "icon", 326}, {106 + a + t + 4 * n + 8 + 326, "icon", 7},
        {106 + a + t + 4 * n + 8 + 326 + 8 + 7, "icon", 2},
    };
    for (const auto& f : fields) {
        if (f.id) {
            EXPECT_EQ(IdAt(b, f.at), f.id) << "at " << f.at;
            EXPECT_EQ(U32At(b, f.at + 4), f.value) << f.id << " at " << f.at;
        } else {
            EXPECT_EQ(U32At(b, f.at), f.value) << "at " << f.at;
        }
    }
    EXPECT_EQ(std::string(b.begin() + 32, b.begin() + 32 + static_cast<long>(a)), kAniTitle);
    EXPECT_EQ(b[32 + a], 0);
    EXPECT_EQ(std::string(b.begin() + 41 + static_cast<long>(a), b.begin() + 41 + static_cast<long>(a + t)), kAniArtist);
    EXPECT_EQ(b[41 + a + t], 0);
    EXPECT_EQ(b.back(), 2);  // the last frame's last byte ends the file: no pad anywhere
}

TEST(AniWrite, OneFrameWritesOneInBothCountsAndOneIcon) {
    const ByteVec b = BuildAniFileBytes(std::vector<ByteVec>{ByteVec(5, 9)}, std::vector<AniFrameRecord>{{30, 0, 0, 0}});
    EXPECT_EQ(U32At(b, 42 + 48 + 12), 1u);
    EXPECT_EQ(U32At(b, 42 + 48 + 16), 1u);
    EXPECT_EQ(U32At(b, 86 + 48 + 4), 4u);
    EXPECT_EQ(U32At(b, 94 + 48 + 4 + 4), 4u + 8 + 5);
}

TEST(AniWrite, TempFileNames) {
    const struct {
        std::string dir;
        int index;
        std::string name;
    } cases[] = {{"/tmp/", 0, "/tmp/ANI_Tmp_00"}, {"/tmp", 9, "/tmp/ANI_Tmp_09"}, {"/t/", 10, "/t/ANI_Tmp_10"},
                 {"/t/", 69, "/t/ANI_Tmp_69"}};
    for (const auto& c : cases) EXPECT_EQ(AniTempFileName(c.dir, c.index), c.name);
}

TEST(AniWrite, FramePlanesFollowTheOnWhiteConvention) {
    Surface frame(32, 32, 0xFFFFFF), frameMask(32, 32, 0xFFFFFF);
    frame.SetPixelV(1, 0, 0x123456);  // opaque color
    frameMask.SetPixelV(1, 0, 0);
    frameMask.SetPixelV(2, 0, 0);  // opaque white
    frame.SetPixelV(3, 0, 0x000000);  // black counts as opaque whatever the mask says
    Surface image, mask;
    FrameToIconPlanes(frame, frameMask, image, mask);
    const struct {
        int x;
        Color image, mask;
    } expect[] = {{0, 0, 0xFFFFFF}, {1, 0x123456, 0}, {2, 0xFFFFFF, 0}, {3, 0, 0}};
    for (const auto& e : expect) {
        EXPECT_EQ(image.GetPixel(e.x, 0), e.image) << e.x;
        EXPECT_EQ(mask.GetPixel(e.x, 0), e.mask) << e.x;
    }
}

// Frame k of a set, on white: 1, 4, 8 and 24 bits by its colors, transparent pixels and an
// opaque white one.
void FramePictures(int k, Surface& image, Surface& mask) {
    image = Surface(32, 32, 0xFFFFFF);
    mask = Surface(32, 32, 0);
    const auto& vga = files::SixteenColorTable();
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            Color c = 0;
            switch (k % 4) {
                case 0: c = (x * y) % 3 ? 0 : 0xFFFFFF; break;
                case 1: c = vga[static_cast<std::size_t>((x + y) % 15)]; break;  // no white
                case 2: c = surface::Rgb(x * 6 + 1, (y % 6) * 40, 9); break;
                default: c = surface::Rgb(x * 8, y * 8, 3 + k); break;
            }
            const bool clear = (x + 2 * y) % 7 == 0;
            image.SetPixelV(x, y, clear ? 0xFFFFFF : c);
            mask.SetPixelV(x, y, clear ? 0xFFFFFF : 0);
        }
}

AniFrameSet MakeSet(int n) {
    AniFrameSet set;
    set.ResetPictures(n);
    for (int i = 0; i < n; ++i) {
        FramePictures(i, set.AniImages[static_cast<std::size_t>(i) + 1], set.AniMasks[static_cast<std::size_t>(i) + 1]);
        set.AniFrames.push_back({static_cast<std::int16_t>(1 + (i * 29) % 90), 3, 4, 0});
    }
    return set;
}

class AniSave : public ::testing::Test {
protected:
    AniSaveRequest Request(const std::string& name) const {
        AniSaveRequest r;
        r.TargetPath = folder.Path(name);
        r.TempDir = folder.Dir().string() + "/";
        r.HotX = 7;
        r.HotY = 30;
        return r;
    }
    vexlo::test::TestFolder folder{"vexlo_ani_save"};
};

TEST_F(AniSave, FramesSavedAndReadBackAreTheSame) {
    AniFrameSet set = MakeSet(4);
    const AniFrameSet original = set;
    AniTempFiles temps;
    std::vector<int> percents;
    AniSaveRequest request = Request("film.ani");
    request.Progress = [&percents](int p) { percents.push_back(p); };
    ASSERT_TRUE(SaveANIFile(set, temps, request));
    EXPECT_EQ(percents, (std::vector<int>{0, 25, 50, 75, 100}));
    for (const AniFrameRecord& row : set.AniFrames) {
        EXPECT_EQ(row.HotX, 7);
        EXPECT_EQ(row.HotY, 30);
    }

    // Each frame went through the cursor writer with the hot spot, at the depth of its colors.
    ByteVec file;
    ASSERT_EQ(files::ReadWholeFile(request.TargetPath, file), files::FileReadStatus::Ok);
    std::size_t at = 106 + 48 + 16;
    const int bits[] = {1, 4, 8, 24};
    for (int i = 0; i < 4; ++i) {
        ASSERT_EQ(IdAt(file, at), "icon");
        const std::uint32_t size = U32At(file, at + 4);
        const ByteVec frame(file.begin() + static_cast<long>(at) + 8, file.begin() + static_cast<long>(at + 8 + size));
        EXPECT_EQ(U16At(frame, 2), 2) << i;
        EXPECT_EQ(U16At(frame, 10), 7) << i;
        EXPECT_EQ(U16At(frame, 12), 30) << i;
        EXPECT_EQ(U16At(frame, 22 + 14), bits[i]) << i;
        EXPECT_EQ(temps[static_cast<std::size_t>(i)], AniTempFileName(request.TempDir, i));
        std::vector<std::uint8_t> staged;
        ASSERT_EQ(files::ReadWholeFile(temps[static_cast<std::size_t>(i)], staged), files::FileReadStatus::Ok);
        EXPECT_EQ(staged, frame) << i;
        at += 8 + size;
    }
    EXPECT_EQ(at, file.size());

    AniFrameSet back;
    ASSERT_EQ(CountAniFrames(request.TargetPath), 4);
    const AniLoadResult loaded = LoadAniFrames(request.TargetPath, 4, back);
    ASSERT_TRUE(loaded) << loaded.Message;
    ASSERT_EQ(back.FrameCount(), 4);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_TRUE(SamePixels(back.AniImages[i + 1], original.AniImages[i + 1])) << i;
        EXPECT_TRUE(SamePixels(back.AniMasks[i + 1], original.AniMasks[i + 1])) << i;
        const AniFrameRecord expect{original.AniFrames[i].Jiffies, 7, 30, static_cast<std::int16_t>(i)};
        EXPECT_EQ(back.AniFrames[i], expect) << i;
    }
    EXPECT_EQ(back.AniFileBuffer, file);
}

TEST_F(AniSave, TrueColorSlotWithAlphaWritesEveryFrameAt24Bits) {
    AniFrameSet set = MakeSet(2);
    AniTempFiles temps;
    AniSaveRequest request = Request("deep.ani");
    request.KeepTrueColor = true;
    ASSERT_TRUE(SaveANIFile(set, temps, request));
    for (const std::string& name : temps) {
        std::vector<std::uint8_t> frame;
        ASSERT_EQ(files::ReadWholeFile(name, frame), files::FileReadStatus::Ok);
        EXPECT_EQ(U16At(frame, 22 + 14), 24);
        EXPECT_EQ(U16At(frame, 2), 2);
        EXPECT_EQ(U16At(frame, 10), 7);
    }
    AniFrameSet back;
    ASSERT_TRUE(LoadAniFrames(request.TargetPath, CountAniFrames(request.TargetPath), back));
    EXPECT_TRUE(SamePixels(back.AniImages[1], set.AniImages[1]));
}

TEST_F(AniSave, RefusalsAndFailuresSayWhatTheWindowShows) {
    AniTempFiles temps;
    AniFrameSet none;
    EXPECT_EQ(SaveANIFile(none, temps, Request("a.ani")).Message, "No frames prepared yet");
    AniFrameSet odd = MakeSet(2);
    odd.AniFrames.pop_back();
    EXPECT_EQ(SaveANIFile(odd, temps, Request("a.ani")).Message, "Image count discrepant to record of number of frames");

    AniFrameSet set = MakeSet(2);
    AniSaveRequest noTemp = Request("a.ani");
    noTemp.TempDir = folder.Path("missing") + "/";
    const AniSaveResult r = SaveANIFile(set, temps, noTemp);
    EXPECT_EQ(r.Outcome, AniSaveOutcome::FrameNotSaved);
    EXPECT_EQ(r.Message, "Failed to save frame 1");
    EXPECT_FALSE(fs::exists(noTemp.TargetPath));

    // A target that may not be written: the common error box's case, the old file kept.
    const std::string locked = folder.Path("locked.ani");
    WriteBytes(locked, {1, 2, 3});
    ::chmod(locked.c_str(), 0444);
    AniSaveRequest toLocked = Request("locked.ani");
    const AniSaveResult f = SaveANIFile(set, temps, toLocked);
    EXPECT_EQ(f.Outcome, AniSaveOutcome::Fault);
    EXPECT_FALSE(f.Message.empty());
    EXPECT_EQ(fs::file_size(locked), 3u);
}

TEST_F(AniSave, SecondSaveRewritesTheTempFilesAndRemovalDeletesThemAll) {
    AniFrameSet set = MakeSet(3);
    AniTempFiles temps;
    const AniSaveRequest request = Request("twice.ani");
    ASSERT_TRUE(SaveANIFile(set, temps, request));
    const auto firstSize = fs::file_size(request.TargetPath);
    AniFrameSet two = MakeSet(2);
    ASSERT_TRUE(SaveANIFile(two, temps, request));
    EXPECT_LT(fs::file_size(request.TargetPath), firstSize);
    EXPECT_EQ(temps.size(), 3u);  // the names of the larger save are kept for the removal
    RemoveAniTempFiles(request.TempDir, temps);
    EXPECT_TRUE(temps.empty());
    for (int i = 0; i < 3; ++i) EXPECT_FALSE(fs::exists(AniTempFileName(request.TempDir, i))) << i;

    AniTempFiles unnamed = {"", "x"};
    RemoveAniTempFiles(request.TempDir, unnamed);
    EXPECT_EQ(unnamed.size(), 2u);
}

TEST(AniTexts, SaveQuestionAndProposedName) {
    EXPECT_EQ(AniSaveQuestion("3", "4", 0, 1),
              "To save:\r\n\r\n   Hot spot:  [3, 4]\r\n\r\n-------------------------------\r\n"
              "The following is existing data which will\r\nbe changed accordingly if required:\r\n"
              "   Hot spot:  [0, 1]\r\n-------------------------------\r\n\r\n\r\nConfirm OK?\r\n\r\n");
    EXPECT_EQ(AniSaveProposedName("/home/u/walk.ani"), "walk");
    EXPECT_EQ(AniSaveProposedName("Untitled"), "Untitled");
}

}  // namespace
}  // namespace vexlo::ani::test
