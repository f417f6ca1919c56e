// Hostile and odd files: each refused with a message that names what is wrong, nothing read
// past the end; and the editor's byte scan of timings with its first-match, low-byte and
// clamping rules.
#include <gtest/gtest.h>

#include "ani_test_support.h"
#include "core/ani/ani_cursor.h"
#include "core/ani/ani_load.h"
#include "core/ani/ani_timings.h"
#include "support/test_folder.h"

namespace vexlo::ani::test {
namespace {

ByteVec Base() { return Riff({Anih(2, 2), Ck("rate", U32s({3, 4})), Fram({PatternCursor(0), PatternCursor(1)})}); }

TEST(AniHostile, RefusedWithAMessageThatSaysWhy) {
    ByteVec biggerRiff = Base();
    PatchU32(biggerRiff, 4, static_cast<std::uint32_t>(biggerRiff.size()));
    ByteVec smallerRiff = Base();
    PatchU32(smallerRiff, 4, 100);
    const struct {
        const char* what;
        ByteVec file;
        const char* why;
    } cases[] = {
        {"not RIFF", ByteVec{'R', 'I', 'F', 'X', 0, 0, 0, 0, 'A', 'C', 'O', 'N'}, "not a RIFF file"},
        {"short", Bytes4("RIFF"), "too short for a RIFF header"},
        {"form type", Cat({Bytes4("RIFF"), U32s({4}), Bytes4("WAVE")}), "a RIFF form of type 'WAVE', not ACON"},
        {"RIFF size larger", biggerRiff, "its RIFF size"},
        {"RIFF size smaller", smallerRiff, "the 'LIST' chunk at offset 72 says"},
        {"RIFF size tiny", Cat({Bytes4("RIFF"), U32s({2}), Bytes4("ACON")}), "too small for its form type"},
        {"no anih", Riff({Fram({PatternCursor(0)})}), "no anih chunk"},
        {"short anih", Riff({Ck("anih", U32s({36, 1, 1})), Fram({PatternCursor(0)})}), "fewer than the 36"},
        {"no frames", Riff({Anih(1, 1), Ck("LIST", Bytes4("fram"))}), "no frames"},
        {"empty LIST", Riff({Anih(1, 1), Ck("LIST", {}), Fram({PatternCursor(0)})}), "too few for its list type"},
        {"huge nFrames", Riff({Anih(0xFFFFFFFF, 1), Fram({PatternCursor(0)})}), "names 4294967295 frames; the file holds 1"},
        {"zero frames", Riff({Anih(0, 1), Fram({PatternCursor(0)})}), "names 0 frames"},
        {"huge nSteps", Riff({Anih(1, 0xFFFFFFFF), Fram({PatternCursor(0)})}), "4294967295 steps for 1 frames and no seq"},
        {"huge nSteps, seq", Riff({Anih(1, 0x7FFFFFFF, 10, 3), Ck("seq ", U32s({0})), Fram({PatternCursor(0)})}),
         "the seq chunk holds 1 steps"},
        {"seq past frames", Riff({Anih(2, 2, 10, 3), Ck("seq ", U32s({0, 5})), Fram({PatternCursor(0), PatternCursor(1)})}),
         "step 1 shows frame 5, past the 2 frames"},
        {"short rate", Riff({Anih(2, 2), Ck("rate", U32s({3})), Fram({PatternCursor(0), PatternCursor(1)})}),
         "the rate chunk holds 1 entries for 2 steps"},
        {"chunk past LIST", Riff({Anih(1, 1), Ck("LIST", Cat({Bytes4("fram"), Bytes4("icon"), U32s({9999})}))}),
         "'icon' chunk at offset"},
    };
    vexlo::test::TestFolder folder{"vexlo_ani_hostile"};
    for (const auto& c : cases) {
        AconFile form;
        std::string why;
        EXPECT_FALSE(ReadAconFile(Bytes(c.file), form, why)) << c.what;
        EXPECT_NE(why.find(c.why), std::string::npos) << c.what << ": " << why;
        AniCursor cursor;
        EXPECT_FALSE(LoadAniCursor(c.file, cursor)) << c.what;
        const std::string path = folder.Path("hostile.ani");
        WriteBytes(path, c.file);
        EXPECT_EQ(CountAniFrames(path), 0) << c.what;
        AniFrameSet set;
        EXPECT_EQ(LoadAniFrames(path, 1, set).Message, path + "\r\nFailed to retrieve frames from the file") << c.what;
    }
}

TEST(AniHostile, BytesAfterTheRiffSizeAndUnknownChunksArePassedOver) {
    ByteVec file = Riff({Ck("junk", {1, 2, 3}), Anih(2, 2), Ck("LIST", Cat({Bytes4("abcd"), Bytes4("zzzz")})),
                         Fram({PatternCursor(0), PatternCursor(1), PatternCursor(2)})});
    file.insert(file.end(), {9, 9, 9, 9, 9});
    AconFile form;
    std::string why;
    ASSERT_TRUE(ReadAconFile(Bytes(file), form, why)) << why;
    EXPECT_EQ(form.FrameCount(), 2);  // the header's count; a third icon chunk is left out
}

TEST(AniHostile, AFrameOfRandomBytesFailsTheLoad) {
    ByteVec noise(300);
    for (std::size_t i = 0; i < noise.size(); ++i) noise[i] = static_cast<std::uint8_t>(i * 37 + 11);
    const ByteVec file = Riff({Anih(2, 2), Fram({PatternCursor(0), noise})});
    AniCursor cursor;
    std::string why;
    EXPECT_FALSE(LoadAniCursor(file, cursor, &why));
    EXPECT_EQ(why, "frame 1 holds no icon or cursor image that can be drawn");
}

TEST(AniHostile, EveryTruncationIsRefusedSafely) {
    const ByteVec whole = Riff({Anih(2, 3, 10, 3), Info("ab", "c"), Ck("seq ", U32s({0, 1, 0})),
                                Fram({PatternCursor(0), PatternCursor(1)})});
    for (std::size_t n = 0; n < whole.size(); ++n) {
        const ByteVec cut(whole.begin(), whole.begin() + static_cast<long>(n));
        AniCursor cursor;
        EXPECT_FALSE(LoadAniCursor(cut, cursor)) << n;
        std::vector<AniFrameRecord> rows(3);
        ScanAniTimings(Bytes(cut), rows);  // must not read past the end
    }
    AniCursor cursor;
    EXPECT_TRUE(LoadAniCursor(whole, cursor));
}

TEST(AniTimings, FindAniTagTakesTheFirstMatch) {
    const std::string text = "xxRIFFabRIFF";
    const ByteVec b(text.begin(), text.end());
    const struct {
        std::string_view tag;
        std::size_t start, found;
    } cases[] = {{kTagRiff, 1, 3}, {kTagRiff, 4, 9}, {kTagRiff, 10, 0}, {"78", 0, 1}, {"4646", 1, 5},
                 {"5249464", 1, 0}, {"zz", 1, 0}, {"", 1, 0}, {"78785249464661625249464600", 1, 0}};
    for (const auto& c : cases) {
        std::size_t start = c.start;
        EXPECT_EQ(FindAniTag(Bytes(b), c.tag, start), c.found) << c.tag << " from " << c.start;
        EXPECT_EQ(start, c.found ? c.found : c.start);
    }
}

TEST(AniTimings, LowBytesClampsAndTheFallbacks) {
    ByteVec wideHot = PatternCursor(0, 3, 4);
    wideHot[10] = 40;  // hot spot x 40: comes in as 31
    wideHot[12] = 0;
    wideHot[13] = 1;  // hot spot y 256: low byte 0
    const struct {
        const char* what;
        ByteVec file;
        std::size_t rows;
        std::vector<int> jiffies;
        int hotX, hotY;
    } cases[] = {
        {"rate low bytes and clamps", Riff({Anih(4, 4), Ck("rate", U32s({0, 91, 256, 300})),
                                            Fram({PatternCursor(0, 2, 9)})}), 4, {1, 90, 1, 44}, 2, 9},
        // Rows past the rate entries read on into the LIST: 'L', then the low byte of its size 338.
        {"rate size not compared", Riff({Anih(1, 1), Ck("rate", U32s({7})), Fram({PatternCursor(0)})}), 3,
         {7, 'L', 338 & 0xFF}, 0, 0},
        {"seq after anih: display rate", Riff({Anih(2, 2, 300, 3), Ck("seq ", U32s({1, 0})),
                                               Fram({PatternCursor(0)})}), 2, {44, 44}, 0, 0},
        {"neither: display rate", Riff({Anih(1, 1, 0), Fram({PatternCursor(0)})}), 1, {1}, 0, 0},
        {"wide hot spot", Riff({Anih(1, 1, 12), Fram({wideHot})}), 1, {12}, 31, 0},
    };
    for (const auto& c : cases) {
        std::vector<AniFrameRecord> rows(c.rows);
        ASSERT_TRUE(ScanAniTimings(Bytes(c.file), rows)) << c.what;
        for (std::size_t i = 0; i < c.rows; ++i) {
            EXPECT_EQ(rows[i].Jiffies, c.jiffies[i]) << c.what << " row " << i;
            EXPECT_EQ(rows[i].HotX, c.hotX) << c.what;
            EXPECT_EQ(rows[i].HotY, c.hotY) << c.what;
        }
    }
}

TEST(AniTimings, AnIconFrameKeepsHotSpotZeroAndMissingTagsFail) {
    ByteVec icon = PatternCursor(0, 6, 6);
    icon[2] = 1;  // an icon's file type: the hot spot is not read
    std::vector<AniFrameRecord> rows(1);
    ASSERT_TRUE(ScanAniTimings(Bytes(Riff({Anih(1, 1), Fram({icon})})), rows));
    EXPECT_EQ(rows[0].HotX, 0);

    const std::vector<AniFrameRecord> before = {{9, 1, 2, 3}};
    const struct {
        const char* what;
        ByteVec file;
    } failing[] = {
        {"empty", {}},
        {"not RIFF at 1", Cat({ByteVec{0}, Riff({Anih(1, 1)})})},
        {"no anih", Riff({Fram({icon})})},
        {"rate entries past the end", Cat({Bytes4("RIFF"), Bytes4("anih"), Bytes4("rate"), U32s({4})})},
        {"seq at the start", Cat({Bytes4("RIFF"), Bytes4("seq "), Bytes4("anih")})},
    };
    for (const auto& f : failing) {
        std::vector<AniFrameRecord> r = before;
        EXPECT_FALSE(ScanAniTimings(Bytes(f.file), r)) << f.what;
        EXPECT_EQ(r, before) << f.what;
    }
}

}  // namespace
}  // namespace vexlo::ani::test
