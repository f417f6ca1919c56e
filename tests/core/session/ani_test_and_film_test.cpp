// The animation test on a fake Timer1, the film strip's cells and scroll bar, and the container's
// places.
#include <vector>

#include "core/session/ani_flow_support.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using session::AniPointer;

// Three frames of 5, 10 and 20 jiffies: 50, 100 and 200 ms.
class AniTimerTest : public AniFlowTest {
protected:
    void SetUp() override {
        AniFlowTest::SetUp();
        StartNew();
        LoadIcon(Ico("icotool_32_4bit.ico"));
        SetJiffiesOfCurrent(5);
        Click(kAniAddBelow);
        LoadIcon(Ico("pillow_32_1bit.ico"));
        SetJiffiesOfCurrent(10);
        Click(kAniAddBelow);
        LoadIcon(Ico("pillow_32_24bit.ico"));
        SetJiffiesOfCurrent(20);
    }
    // The times at which the frame on show changed, and the frames, over ms milliseconds.
    std::vector<std::pair<int, int>> Run(int ms) {
        std::vector<std::pair<int, int>> changes;
        timer.onTick = [this, &changes] {
            if (s.AniTimerTick()) changes.emplace_back(timer.now, ani().Test().Frame());
            EXPECT_TRUE(SamePixels(ani().Test().Picture(), Image(ani().Test().Frame())));
        };
        timer.Advance(ms);
        timer.onTick = [this] { s.AniTimerTick(); };
        return changes;
    }
};

TEST_F(AniTimerTest, FramesShowForTheirJiffiesAndLoop) {
    Click(kAniTest);
    EXPECT_EQ(ani().Test().Caption(), "Stop");
    EXPECT_TRUE(timer.Enabled());
    // The first wait is the timer's interval at start, 300 ms; then each frame its own.
    const std::vector<std::pair<int, int>> expected = {{300, 1}, {350, 2}, {450, 3}, {650, 1}, {700, 2}};
    EXPECT_EQ(Run(700), expected);
}

TEST_F(AniTimerTest, StopClearsTheBoxAndARestartBeginsAtFrameOneAfterTheLastInterval) {
    Click(kAniTest);
    Run(360);  // frame 2 on show, 100 ms set
    Click(kAniTest);
    EXPECT_EQ(ani().Test().Caption(), "Test");
    EXPECT_FALSE(timer.Enabled());
    EXPECT_FALSE(ani().Test().Running());
    EXPECT_EQ(ani().Test().Picture().GetPixel(0, 0), 0xFFFFFFu);
    EXPECT_EQ(ani().Test().Picture().GetPixel(31, 31), 0xFFFFFFu);

    const int start = timer.now;
    Click(kAniTest);
    const auto changes = Run(150);
    ASSERT_FALSE(changes.empty());
    EXPECT_EQ(changes[0], std::make_pair(start + 100, 1));
    EXPECT_EQ(changes[1], std::make_pair(start + 150, 2));
}

TEST_F(AniTimerTest, EveryOtherButtonAndAPressOnTheFilmStopTheTest) {
    const struct {
        std::function<void()> action;
        const char* what;
    } stops[] = {
        {[this] { Click(kAniGoUp); }, "Go up"},
        {[this] { s.AniPointerEvent(AniPointer::FilmPress, 10, 10); }, "press on the film"},
        {[this] { Click(kAniResize); }, "Resize"},
        {[this] { host.Answer(MsgAnswer::Ok); Click(kAniProperty); }, "Frame property"},
    };
    for (const auto& stop : stops) {
        Click(kAniTest);
        Run(310);
        stop.action();
        EXPECT_EQ(ani().Test().Caption(), "Test") << stop.what;
        EXPECT_FALSE(timer.Enabled()) << stop.what;
        EXPECT_TRUE(Run(1000).empty()) << stop.what;
    }
    // A frame of one jiffy shows for 10 ms.
    ASSERT_EQ(ani().CurrentFrame(), 2);
    SetJiffiesOfCurrent(1);
    Click(kAniTest);
    const auto changes = Run(1000);
    ASSERT_GT(changes.size(), 4u);
    for (std::size_t i = 0; i + 1 < changes.size(); ++i)
        if (changes[i].second == 2) {
            EXPECT_EQ(changes[i + 1].first - changes[i].first, 10);
        }
}

TEST_F(AniFlowTest, TheFilmMarksTheCurrentFrameAndRedrawsOnlyTheCellsThatChange) {
    StartNew();
    Click(kAniAddBelow);
    Click(kAniAddBelow);  // three frames, the third selected
    const session::AniFilm& film = ani().Film();
    ASSERT_EQ(film.Picture().Height(), 150);
    // The band left of the strip is blue on the selected frame, light gray on the others; the
    // strip is black, its perforations and the picture's window white.
    EXPECT_EQ(film.Picture().GetPixel(1, 100 + 20), session::kFilmMarkBand);
    EXPECT_EQ(film.Picture().GetPixel(1, 20), session::kFilmBand);
    EXPECT_EQ(film.Picture().GetPixel(58, 70), session::kFilmBand);
    EXPECT_EQ(film.Picture().GetPixel(5, 30), 0u);
    EXPECT_EQ(film.Picture().GetPixel(7, 3), 0xFFFFFFu);
    EXPECT_EQ(film.Picture().GetPixel(13, 8), 0xFFFFFFu);
    EXPECT_EQ(film.Picture().GetPixel(44, 39), 0xFFFFFFu);
    EXPECT_EQ(film.Picture().GetPixel(45, 40), 0u);

    const auto revisions = [&film] {
        return std::vector<std::uint64_t>{film.LayoutRevision(), film.CellRevision(1), film.CellRevision(2),
                                          film.CellRevision(3)};
    };
    std::vector<std::uint64_t> before = revisions();
    Click(kAniGoUp);  // cells 2 and 3 change their bands
    std::vector<std::uint64_t> after = revisions();
    EXPECT_EQ(after[0], before[0]);
    EXPECT_EQ(after[1], before[1]);
    EXPECT_NE(after[2], before[2]);
    EXPECT_NE(after[3], before[3]);
    before = after;
    LoadIcon(Ico("icotool_32_4bit.ico"));  // the picture of frame 2 alone
    after = revisions();
    EXPECT_EQ(std::vector<std::uint64_t>({after[0], after[1], after[3]}), std::vector<std::uint64_t>({before[0], before[1], before[3]}));
    EXPECT_NE(after[2], before[2]);
    EXPECT_EQ(film.Picture().GetPixel(13, 50 + 8), 0x0000FFu);  // its top-left pixel in the window
    before = after;
    SetJiffiesOfCurrent(40);
    EXPECT_EQ(revisions(), before);
    Click(kAniAddBelow);
    EXPECT_NE(film.LayoutRevision(), before[0]);
}

TEST_F(AniFlowTest, TheFilmScrollsToTheCurrentFrameAndAReleaseSelectsTheFrameUnderIt) {
    StartNew();
    host.AnswerOpen(Ani("ico4bit_70.ani"));
    Click(kAniOpen);
    const session::AniFilm& film = ani().Film();
    EXPECT_EQ(film.Scroll().Max, 70 * 50 - session::kSeriesBaseHeight + 2);
    EXPECT_EQ(film.Scroll().SmallChange, 50);
    EXPECT_EQ(film.Scroll().LargeChange, session::kSeriesBaseHeight);
    for (int i = 1; i < 6; ++i) Click(kAniGoDown);
    EXPECT_EQ(film.Scroll().Value, 6 * 50 - session::kSeriesBaseHeight + 2);
    EXPECT_EQ(film.Top(), -film.Scroll().Value);
    s.ScrollAniSeries(100000);
    EXPECT_EQ(film.Scroll().Value, film.Scroll().Max);

    s.AniPointerEvent(AniPointer::FilmRelease, 30, 49 * 50 + 10);  // frame 50 too
    EXPECT_EQ(ani().CurrentFrame(), 50);
    EXPECT_EQ(ani().Labels()[0], "Frame:  50 / 70");
    EXPECT_FALSE(ani().Dirty());
    s.AniPointerEvent(AniPointer::FilmRelease, 30, 70 * 50);  // below the last frame
    EXPECT_EQ(ani().CurrentFrame(), 50);
    Click(kAniShiftDown);
    EXPECT_EQ(ani().CurrentFrame(), 51);
    EXPECT_EQ(film.Scroll().Value, 51 * 50 - session::kSeriesBaseHeight + 2);
}

TEST_F(AniFlowTest, TheContainerResizesMinimizesDragsAndRestores) {
    StartNew();
    using R = session::AniContainerRect;
    const auto rect = [this] { return ani().Container().Rect(); };
    Click(kAniResize);
    EXPECT_EQ(rect(), (R{2, 40, 135, 306}));
    Click(kAniResize);
    EXPECT_EQ(rect(), R{});
    s.AniPointerEvent(AniPointer::ContainerPress, 50, 50);
    s.AniPointerEvent(AniPointer::ContainerDrag, 80, 90);  // a full one doesn't move
    s.AniPointerEvent(AniPointer::ContainerDoubleClick, 0, 0);
    EXPECT_EQ(rect(), R{});
    Click(kAniMinimize);
    EXPECT_EQ(rect(), (R{2, 346 - 24 - 1, 137, 24}));
    s.AniPointerEvent(AniPointer::ContainerPress, 10, 330);
    s.AniPointerEvent(AniPointer::ContainerDrag, 40, 200);
    EXPECT_EQ(rect(), (R{32, 191, 137, 24}));
    s.AniPointerEvent(AniPointer::ContainerDrag, 1000, -50);  // kept inside
    EXPECT_EQ(rect(), (R{281 - 137, 0, 137, 24}));
    s.AniPointerEvent(AniPointer::ContainerDoubleClick, 0, 0);
    EXPECT_EQ(rect(), R{});
    Click(kAniMinimize);
    s.RunMenuItem("mnuANIFileCreateOrEdit");
    EXPECT_EQ(rect(), R{});
}

}  // namespace
}  // namespace vexlo::test
