// Files written by other tools (tests/fixtures/ani, frames by icotool): the steps, sequence,
// texts, the timings as the editor scans them, and every pixel of every step against the
// formulas the frames were drawn from.
#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "ani_test_support.h"
#include "core/ani/ani_cursor.h"
#include "core/ani/ani_load.h"
#include "core/ani/ani_save.h"
#include "core/ani/frame_image.h"
#include "core/files/atomic_file.h"
#include "support/test_folder.h"

namespace vexlo::ani::test {
namespace {

constexpr Color kFour[] = {surface::Rgb(255, 0, 0), surface::Rgb(0, 128, 0), surface::Rgb(0, 0, 255),
                           surface::Rgb(255, 255, 0)};
// A frame pixel as the editor holds it: its color on white, or nullopt where transparent.
using Pixel = std::function<std::optional<Color>(int x, int y)>;

Pixel Bw(int k) {
    return [k](int x, int y) -> std::optional<Color> {
        if (x < 4 && y < 4) return std::nullopt;
        return (x + y + k) % 4 == 0 ? 0xFFFFFF : 0;
    };
}
Pixel Four(int k) {
    return [k](int x, int y) -> std::optional<Color> {
        if (y == 31) return std::nullopt;
        return kFour[(x / 8 + y / 8 + k) % 4];
    };
}
Pixel Ramp(int k) {
    return [k](int x, int y) -> std::optional<Color> {
        if (x == 0 && y == 0) return std::nullopt;
        return surface::Rgb((x / 2) * 16, (y / 4) * 32, 40 * k + 7);
    };
}
Pixel True32() {
    return [](int x, int y) -> std::optional<Color> {
        if (x >= 28) return std::nullopt;
        return surface::Rgb(x * 8, y * 8, 100);
    };
}
Pixel Blocks48At32() {
    return [](int x, int y) -> std::optional<Color> { return kFour[(x / 4 + y / 4) % 4]; };
}

struct Fixture {
    const char* name;
    int steps;
    std::vector<int> sequence;  // the frame of each step
    std::optional<std::string> title, artist;
    std::vector<int> jiffies;   // as the editor scans them
    int hotX, hotY;
    std::vector<Pixel> frames;
};

const std::vector<Fixture>& Fixtures() {
    static const std::vector<Fixture> all = {
        {"cur1bit_seq_rate.ani", 4, {0, 1, 1, 0}, "Spin", "tester", {3, 44, 1, 90}, 5, 7, {Bw(0), Bw(1)}},
        {"ico4bit_seq_info_first.ani", 3, {2, 1, 0}, "Four", "ab", {6, 6, 6}, 0, 0, {Four(0), Four(1), Four(2)}},
        {"ico8bit_plain_odd.ani", 2, {0, 1}, std::nullopt, std::nullopt, {44, 44}, 0, 0, {Ramp(0), Ramp(1)}},
        {"ico32bit_multi.ani", 2, {0, 1}, "Multi", "", {5, 9}, 0, 0, {True32(), Blocks48At32()}},
        {"ico4bit_single.ani", 1, {0}, std::nullopt, std::nullopt, {4}, 0, 0, {Four(0)}},
        {"rate_in_title.ani", 1, {0}, "accelerate!\"#$%", "x", {37}, 0, 0, {Four(1)}},
    };
    return all;
}

TEST(AniCompat, ChunksOfFilesMadeByOtherTools) {
    for (const Fixture& f : Fixtures()) {
        const ByteVec bytes = LoadFixture(f.name);
        AconFile form;
        std::string why;
        ASSERT_TRUE(ReadAconFile(Bytes(bytes), form, why)) << f.name << ": " << why;
        EXPECT_EQ(form.StepCount(), f.steps) << f.name;
        EXPECT_EQ(form.FrameCount(), static_cast<int>(f.frames.size())) << f.name;
        for (int s = 0; s < f.steps; ++s) EXPECT_EQ(form.FrameOfStep(s), f.sequence[static_cast<std::size_t>(s)]) << f.name;
        EXPECT_EQ(form.Title, f.title) << f.name;
        EXPECT_EQ(form.Artist, f.artist) << f.name;
    }
}

TEST(AniCompat, LoadedFramesMatchTheFormulasAtEveryStep) {
    for (const Fixture& f : Fixtures()) {
        const std::string path = FixturePath(f.name);
        ASSERT_EQ(CountAniFrames(path), f.steps) << f.name;
        AniFrameSet set;
        const AniLoadResult r = LoadAniFrames(path, f.steps, set);
        ASSERT_TRUE(r) << f.name << ": " << r.Message;
        for (int s = 0; s < f.steps; ++s) {
            const AniFrameRecord& row = set.AniFrames[static_cast<std::size_t>(s)];
            EXPECT_EQ(row.Jiffies, f.jiffies[static_cast<std::size_t>(s)]) << f.name << " step " << s;
            EXPECT_EQ(row.HotX, f.hotX) << f.name;
            EXPECT_EQ(row.HotY, f.hotY) << f.name;
            EXPECT_EQ(row.PictureIndex, s);
            const Pixel& pixel = f.frames[static_cast<std::size_t>(f.sequence[static_cast<std::size_t>(s)])];
            const Surface& image = set.AniImages[static_cast<std::size_t>(s) + 1];
            const Surface& mask = set.AniMasks[static_cast<std::size_t>(s) + 1];
            int wrong = 0;
            for (int y = 0; y < 32; ++y)
                for (int x = 0; x < 32; ++x) {
                    const std::optional<Color> c = pixel(x, y);
                    wrong += image.GetPixel(x, y) != c.value_or(0xFFFFFF);
                    wrong += mask.GetPixel(x, y) != (c ? 0u : 0xFFFFFFu);
                }
            EXPECT_EQ(wrong, 0) << f.name << " step " << s;
        }
    }
}

TEST(AniCompat, SeventyTwoFramesReadButTheEditorTakesSeventyAtMost) {
    const std::string path = FixturePath("cur1bit_72.ani");
    AniCursor cursor;
    ASSERT_TRUE(LoadAniCursor(path, cursor));
    EXPECT_EQ(cursor.StepCount(), 72);
    EXPECT_EQ(cursor.Form().JiffiesOfStep(71), 72u);
    Surface target(32, 32, 0xFFFFFF);
    EXPECT_TRUE(cursor.Draw(target, 0, 0, CursorDraw::Image, 71));
    EXPECT_FALSE(cursor.Draw(target, 0, 0, CursorDraw::Image, 72));
    ASSERT_EQ(CountAniFrames(path), 72);
    AniFrameSet set;
    const AniLoadResult r = LoadAniFrames(path, 72, set);
    EXPECT_EQ(r.Message, path + "\r\nEither an invalid ANI file or number of frames exceeds limit of 70.");
    EXPECT_TRUE(set.AniFrames.empty());
}

TEST(AniCompat, FrameImageChoice) {
    const auto img = [](int index, int side, int bits, bool usable = true) {
        FrameImageFacts f;
        f.Index = index;
        f.Side = side;
        f.BitCount = bits;
        f.Usable = usable;
        return f;
    };
    const struct {
        std::vector<FrameImageFacts> images;
        int chosen;
    } cases[] = {
        {{img(0, 16, 8), img(1, 32, 4), img(2, 32, 8)}, 2},
        {{img(0, 16, 32), img(1, 48, 4)}, 1},
        {{img(0, 48, 8), img(1, 48, 32), img(2, 48, 32)}, 1},
        {{img(0, 32, 32, false), img(1, 16, 1)}, 1},
        {{img(0, 16, 4)}, 0},
        {{img(0, 32, 8, false)}, -1},
        {{}, -1},
    };
    for (const auto& c : cases) EXPECT_EQ(ChooseFrameImage(c.images), c.chosen);
}

TEST(AniCompat, StillCursorDrawsAtAnyStepButIsNoAniFile) {
    vexlo::test::TestFolder folder{"vexlo_ani_still"};
    const std::string path = folder.Path("still.cur");
    WriteBytes(path, PatternCursor(1, 3, 4));
    AniCursor cursor;
    ASSERT_TRUE(LoadAniCursor(path, cursor));
    EXPECT_FALSE(cursor.IsAnimated());
    Surface target(32, 32, 0xFFFFFF);
    EXPECT_TRUE(cursor.Draw(target, 0, 0, CursorDraw::Normal, 500));
    EXPECT_FALSE(cursor.Draw(target, 0, 0, CursorDraw::Normal, -1));
    EXPECT_EQ(CountAniFrames(path), 1);
    AniFrameSet set;
    EXPECT_EQ(LoadAniFrames(path, 1, set).Message, path + "\r\nFailed to read jiffies info of file.");
    EXPECT_TRUE(set.AniImages.empty());
    EXPECT_EQ(CountAniFrames(folder.Path("none.ani")), 0);
    EXPECT_EQ(LoadAniFrames(path, 0, set).Message, path + "\r\nFailed to read this ANI file");
}

TEST(AniCompat, CountsUpTo128StepsAndAStillCursorBeyond) {
    vexlo::test::TestFolder folder{"vexlo_ani_count"};
    const struct {
        std::uint32_t steps;
        int count;
    } cases[] = {{1, 1}, {70, 70}, {71, 71}, {127, 127}, {128, 1}, {300, 1}};
    for (const auto& c : cases) {
        ByteVec seq;
        for (std::uint32_t i = 0; i < c.steps; ++i) Put32(seq, 0);
        const std::string path = folder.Path("n.ani");
        WriteBytes(path, Riff({Anih(1, c.steps, 10, 3), Ck("seq ", seq), Fram({PatternCursor(0)})}));
        EXPECT_EQ(CountAniFrames(path), c.count) << c.steps;
        AniFrameSet set;
        EXPECT_EQ(LoadAniFrames(path, c.count, set).Loaded, c.count <= 70) << c.steps;
    }
}

}  // namespace
}  // namespace vexlo::ani::test
