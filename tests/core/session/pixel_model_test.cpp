// The session's pixel model: the three planes of a new icon, composing, storing to the
// Icons Panel and rebuilding from it, moving between slots with the save question, and the
// grid option.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "core/session/session.h"
#include "support/scripted_host.h"

namespace vexlo::session {
namespace {

constexpr Color kRed = 0x0000FF;
using A = MsgAnswer;

// w pixels from (x, y): '#' black, '.' white, 'g' gray, 'r' red, 'x' gray XOR white.
std::string Row(const Surface& s, int x, int y, int w) {
    std::string out;
    for (int i = 0; i < w; ++i) {
        const Color c = s.GetPixel(x + i, y);
        out += c == kBlack ? '#' : c == kWhite ? '.' : c == kTransparentGray ? 'g'
             : c == kRed ? 'r' : c == (kTransparentGray ^ kWhite) ? 'x' : '?';
    }
    return out;
}
bool AllOf(const Surface& s, Color c) {
    const auto n = static_cast<std::size_t>(s.Width()) * static_cast<std::size_t>(s.Height());
    return std::all_of(s.Data(), s.Data() + n, [c](Color p) { return p == c; });
}
std::array<Color, kSlotCount> LabelsFor(int current) {
    std::array<Color, kSlotCount> labels{};
    for (int i = 0; i < kSlotCount; ++i)
        labels[static_cast<std::size_t>(i)] = i == current ? 0xFFFFFF : 0xE0E0E0;
    return labels;
}

struct Fixture {
    Fixture() { EXPECT_TRUE(session.Load(1024, 768)); }
    // A pixel of the current icon as a drawing tool leaves it.
    void Paint(int x, int y, Color c, Color mask = kBlack) {
        session.Icon().Image().SetPixelV(x, y, c);
        session.Icon().Mask().SetPixelV(x, y, mask);
        session.ComposeIcon();
        session.Current().Changed = true;
    }
    test::ScriptedHost host;
    Session session{host};
};

// One session through 32x32, 16x16, 48x48 and 48x48 again (a new icon over a used one of its
// size), with five pixels in the bottom right corner (where a wrong size shows): painted red,
// transparent, inverting white, painted gray, painted black.
TEST(PixelModel, NewIconThenComposeStoreAndRebuild) {
    Fixture f;
    Session& s = f.session;
    const struct { int entry, side, step; } cases[] = {
        {0, 32, 12}, {1, 16, 12}, {2, 48, 8}, {2, 48, 8}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.side);
        s.FileNew(c.entry);
        EXPECT_EQ(s.Current().SizeCode, SizeCodeOfSide(c.side));
        EXPECT_EQ(s.View().MagnifyStep(), c.step);
        EXPECT_EQ(s.Panel().PanelIcon(0).Width(), c.side);
        EXPECT_TRUE(AllOf(s.Icon().Image(), kBlack) && AllOf(s.Icon().Mask(), kWhite));
        EXPECT_TRUE(AllOf(s.Icon().Composed(), kTransparentGray));

        const int x0 = c.side - 5, y = c.side - 1;
        const Color image[] = {kRed, kBlack, kWhite, kTransparentGray, kBlack};
        const Color mask[] = {kBlack, kWhite, kWhite, kBlack, kBlack};
        for (int i = 0; i < 5; ++i) f.Paint(x0 + i, y, image[i], mask[i]);
        EXPECT_EQ(Row(s.Icon().Composed(), x0, y, 5), "rgxg#");
        s.StoreToPanel();
        EXPECT_EQ(Row(s.Panel().PanelIcon(0), x0, y, 5), "rgxg#");
        EXPECT_EQ(Row(s.Panel().PanelMask(0), x0, y, 5), "#..##");

        s.Icon().Image().Fill(kRed);
        s.Icon().Mask().Fill(kRed);
        s.RebuildFromPanel();
        // The inverting pixel comes back painted in its composed color; gray stays painted.
        EXPECT_EQ(Row(s.Icon().Image(), x0, y, 5), "r#xg#");
        EXPECT_EQ(Row(s.Icon().Mask(), x0, y, 5), "#.###");
        EXPECT_EQ(Row(s.Icon().Composed(), x0, y, 5), "rgxg#");
        EXPECT_EQ(Row(s.Icon().Image(), 0, 0, 3) + Row(s.Icon().Mask(), 0, 0, 3), "###...");
        s.Current().Changed = false;
    }
}

// Leaving a changed 48x48 icon for the free slot 3: the question, the store, an empty area.
TEST(PanelSwitching, LeavingAChangedIcon) {
    const struct {
        bool prompt;
        std::optional<A> answer;
        bool moves, changedAfter;
    } cases[] = {{true, A::Cancel, false, true},
                 {true, A::Yes, true, false},
                 {true, A::No, true, false},
                 {false, std::nullopt, true, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.answer.value_or(A::Ok)));
        Fixture f;
        Session& s = f.session;
        if (c.prompt) s.RunMenuItem("mnuOptionsPromptToSave");
        s.FileNew(2);
        f.Paint(47, 0, kRed);
        const Surface image = s.Icon().Image(), disp = s.View().Disp();
        const auto labels = s.Form().PanelLabelBack;
        if (c.answer) f.host.Answer(*c.answer);
        if (c.answer == A::Yes) f.host.AnswerSave("");  // Yes runs Save As; cancel it
        s.ClickPanel(3);
        ASSERT_EQ(f.host.shown.size(), c.answer ? 1u : 0u);
        if (c.answer) {
            EXPECT_EQ(f.host.shown[0].text, "Save current icon to file?");
            EXPECT_EQ(f.host.shown[0].buttons, MsgButtons::YesNoCancel);
            EXPECT_EQ(f.host.shown[0].title, "Vexlo");
        }
        EXPECT_EQ(s.Panel().Slot(0).Changed, c.changedAfter);
        EXPECT_EQ(s.Panel().PanelIcon(0).GetPixel(47, 0), c.moves ? kRed : kTransparentGray);
        EXPECT_EQ(s.CurrentSlot(), c.moves ? 3 : 0);
        EXPECT_EQ(s.Form().PanelLabelBack, c.moves ? LabelsFor(3) : labels);
        EXPECT_EQ(s.View().MagnifyStep(), c.moves ? 12 : 8);
        EXPECT_EQ(s.Icon().Composed().Width(), c.moves ? 32 : 48);
        if (c.moves) {
            EXPECT_TRUE(AllOf(s.View().Disp(), kTransparentGray));
        } else {
            EXPECT_TRUE(SamePixels(s.Icon().Image(), image) && SamePixels(s.View().Disp(), disp));
        }
    }
}

TEST(PanelSwitching, ClickingTheCurrentSlotStoresAndStopsThere) {
    Fixture f;
    Session& s = f.session;
    s.RunMenuItem("mnuOptionsPromptToSave");
    s.FileNew(0);
    f.Paint(2, 2, kWhite, kWhite);  // inverting: a rebuild would turn it painted
    f.host.Answer(A::No);
    s.ClickPanel(0);
    EXPECT_FALSE(s.Current().Changed);
    EXPECT_EQ(Row(s.Panel().PanelIcon(0), 2, 2, 1), "x");
    EXPECT_EQ(Row(s.Icon().Mask(), 2, 2, 1), ".");           // planes not rebuilt
    EXPECT_EQ(s.Form().PanelLabelBack, LabelsFor(-1));  // as the load left them
    s.ClickPanel(0);                                  // unchanged now: no second question
    EXPECT_EQ(f.host.shown.size(), 1u);
}

TEST(PanelSwitching, AnOccupiedSlotIsRebuiltAtItsSizeAndOthersStayPut) {
    Fixture f;
    Session& s = f.session;
    s.FileNew(2);  // slot 0: 48x48
    f.Paint(47, 47, kRed);
    s.ClickPanel(1);
    s.FileNew(1);  // slot 1: 16x16
    f.Paint(15, 0, kRed);
    s.ClickPanel(0);
    const Surface icon1 = s.Panel().PanelIcon(1), mask1 = s.Panel().PanelMask(1);
    EXPECT_EQ(s.Form().PanelLabelBack, LabelsFor(0));
    EXPECT_EQ(s.View().MagnifyStep(), 8);
    EXPECT_EQ(Row(s.Icon().Image(), 45, 47, 3), "##r");
    EXPECT_EQ(Row(s.Icon().Image(), 15, 0, 1), "#");  // slot 1's pixel did not leak in
    EXPECT_EQ(Row(s.View().Disp(), 369, 380, 15), "ggggggg?rrrrrrr");  // cells 46, 47; '?' a line

    const Surface icon0 = s.Panel().PanelIcon(0);
    s.ClickPanel(1);
    EXPECT_EQ(s.Form().PanelLabelBack, LabelsFor(1));
    EXPECT_EQ(s.View().MagnifyStep(), 12);
    EXPECT_EQ(Row(s.Icon().Image(), 14, 0, 2), "#r");
    EXPECT_EQ(Row(s.View().Disp(), 188, 5, 8), "rrrr?ggg");  // the quarter ends at the line at 192
    EXPECT_TRUE(SamePixels(s.Panel().PanelIcon(1), icon1) && SamePixels(s.Panel().PanelMask(1), mask1));
    EXPECT_TRUE(SamePixels(s.Panel().PanelIcon(0), icon0));
}

TEST(PanelSwitching, FileNewAsksBeforeReplacingAnUnsavedIcon) {
    const struct {
        bool inArea, changed, neverSaved;
        std::optional<A> answer;
        bool replaced;
    } cases[] = {
        {true, false, false, std::nullopt, true}, {false, true, true, std::nullopt, true},
        {true, true, false, A::Cancel, false},     {true, false, true, A::Cancel, false},
        {true, true, false, A::No, true},          {true, false, true, A::Yes, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.inArea << c.changed << c.neverSaved);
        Fixture f;
        Session& s = f.session;
        s.FileNew(0);
        f.Paint(1, 1, kRed);
        s.Current().InEditingArea = c.inArea;
        s.Current().Changed = c.changed;
        s.Current().NeverSaved = c.neverSaved;
        const Surface disp = s.View().Disp();
        if (c.answer) f.host.Answer(*c.answer);
        if (c.answer == A::Yes) f.host.AnswerSave("");  // Yes runs Save As; cancel it
        s.FileNew(2);
        EXPECT_EQ(f.host.shown.size(), c.answer ? 1u : 0u);
        EXPECT_EQ(s.Current().SizeCode, c.replaced ? 3 : 2);
        EXPECT_EQ(Row(s.Icon().Composed(), 1, 1, 1), c.replaced ? "g" : "r");
        EXPECT_EQ(s.Current().Changed, !c.replaced && c.changed);
        EXPECT_EQ(SamePixels(s.View().Disp(), disp), !c.replaced);
    }
}

TEST(Gridlines, EachItemTicksItsModeAndTheTickedOneTogglesOff) {
    Fixture f;
    Session& s = f.session;
    const Surface before = s.View().Disp();
    s.ClickGridline(0);  // no icon yet: unticks the light grid of the load, draws nothing
    EXPECT_EQ(s.View().GridColor(), tools::kGridNone);
    EXPECT_TRUE(SamePixels(s.View().Disp(), before));
    EXPECT_EQ(f.host.refreshCount, 0);
    s.FileNew(1);  // 16x16, no grid: the quarter's border lines fall on gray and stay gray
    EXPECT_TRUE(AllOf(s.View().Disp(), kTransparentGray));

    const struct {
        int item;
        std::array<bool, 3> checked;
        Color grid, onLine;  // onLine: picDisp at (12, 5), on a line over the gray icon
    } steps[] = {
        {1, {false, true, false}, tools::kGridDark, 0x000000},
        {2, {false, false, true}, tools::kGridDotted, kTransparentGray},
        {0, {true, false, false}, tools::kGridLight, 0x404040},
        {0, {false, false, false}, tools::kGridNone, kTransparentGray},
    };
    for (const auto& st : steps) {
        s.ClickGridline(st.item);
        EXPECT_EQ(s.Form().GridlineChecked, st.checked) << st.item;
        EXPECT_EQ(s.View().GridColor(), st.grid) << st.item;
        EXPECT_EQ(s.View().Disp().GetPixel(12, 5), st.onLine) << st.item;
    }
}

}  // namespace
}  // namespace vexlo::session
