// The alpha editor's model driven as the user would: the pointer on the magnified view, the
// value controls, Create, Restore, the conversions and the ways out.
#include <gtest/gtest.h>

#include "core/alpha/alpha_draw.h"
#include "core/icon/icon_planes.h"
#include "core/session/alpha_editor/alpha_editor.h"
#include "support/scripted_host.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using session::AlphaEditor;
using surface::Color;
using surface::Rgb;
using surface::Surface;

// An icon of side whose left half is painted red and whose right half is transparent; its
// alpha values (when given) are 200 on the painted cells.
struct Icon {
    explicit Icon(int side, bool withValues) : image(side, side, 0), mask(side, side, 0), composed(side, side, 0) {
        for (int x = 0; x < side; ++x)
            for (int y = 0; y < side; ++y) {
                const bool painted = x < side / 2;
                image.SetPixelV(x, y, painted ? Rgb(255, 0, 0) : 0);
                mask.SetPixelV(x, y, painted ? 0 : 0xFFFFFF);
            }
        icon::Compose(image, mask, composed);
        grid = Surface(AlphaEditor::kDispSide, AlphaEditor::kDispSide, 0xFFFFFF);
        grid.Fill(0xFFFFFF);
        if (withValues) {
            values.SetBounds(side - 1);
            for (int x = 0; x < side; ++x)
                for (int y = 0; y < side; ++y) values.At(x, y) = x < side / 2 ? 200 : 0;
        }
    }
    host::AlphaEditorRequest Request() {
        return {&composed, &image, &mask, &grid, 0xC0C0C0, &values};
    }
    Surface image, mask, composed, grid;
    alpha::AlphaArray values;
};

TEST(AlphaEditor, ActivationFollowsWhetherTheIconHasValues) {
    ScriptedHost host;
    Icon with(32, true), without(32, false);
    const AlphaEditor original(host, with.Request());
    EXPECT_TRUE(original.Original() && original.Active() && original.AlphaPanelsVisible());
    EXPECT_TRUE(original.ButtonEnabled(0) && original.ButtonEnabled(1) && original.ButtonEnabled(4));
    EXPECT_FALSE(original.ButtonEnabled(2) || original.ButtonEnabled(3) || original.RestoreEnabled());
    EXPECT_EQ(original.ValueListIndex(), 254);
    EXPECT_EQ(original.ScrollValue(), 255);
    EXPECT_EQ(original.ImageAlpha().GetPixel(0, 0), alpha::BlendOverBackground(Rgb(255, 0, 0), 200));
    EXPECT_EQ(original.MaskAlpha().GetPixel(0, 0), Rgb(56, 56, 56));  // 78 % opaque: 22 % of 255
    // The magnified view: cell (0, 0) is 12 pixels wide at 32x32.
    EXPECT_EQ(original.Disp().GetPixel(11, 11), original.ImageAlpha().GetPixel(0, 0));
    EXPECT_EQ(original.Disp().GetPixel(12 * 20, 0), alpha::kAlphaBackground);

    const AlphaEditor fresh(host, without.Request());
    EXPECT_FALSE(fresh.Original() || fresh.Active() || fresh.AlphaPanelsVisible() || fresh.EditFrameVisible());
    EXPECT_FALSE(fresh.ButtonEnabled(0) || fresh.ButtonEnabled(1) || fresh.ButtonEnabled(3));
    EXPECT_TRUE(fresh.ButtonEnabled(2) && fresh.ButtonEnabled(4));
}

TEST(AlphaEditor, ThePointerPaintsValuesOnPaintedCellsOnly) {
    struct Case {
        int side;
        double x, y;   // picDisp position
        int cellX, cellY;
        bool changes;  // a painted cell
        bool valid;    // inside the view's part for the size
    };
    const Case cases[] = {
        {32, 13, 25, 1, 2, true, true},
        {32, 12 * 20, 0, 20, 0, false, true},
        {48, 8 * 3 + 7, 8, 3, 1, true, true},   // 48x48 cells are 8 pixels
        {16, 12 * 2, 12 * 3, 2, 3, true, true},
        {16, 192, 10, 0, 0, false, false},      // past the quarter a 16x16 icon fills
        {32, -1, 10, 0, 0, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.side << " at " << c.x << "," << c.y);
        ScriptedHost host;
        Icon icon(c.side, true);
        AlphaEditor editor(host, icon.Request());
        editor.ValueComboClicked(127);  // the value 128
        EXPECT_EQ(editor.ScrollValue(), 128);
        EXPECT_EQ(editor.Swatch(), Rgb(128, 128, 128));
        editor.PointerMoved(c.x, c.y);
        if (c.valid)
            EXPECT_EQ(editor.DispXY(), "X=" + std::to_string(c.cellX) + "  Y=" + std::to_string(c.cellY) +
                                           (c.changes ? "    Alpha = 200" : "    Alpha = N/A"));
        else
            EXPECT_EQ(editor.DispXY(), "");
        editor.PointerPressed(c.x, c.y);
        editor.PointerReleased(false);
        EXPECT_EQ(editor.Edited(), c.changes);
        EXPECT_EQ(editor.ButtonEnabled(3), c.changes);
        EXPECT_EQ(editor.RestoreEnabled(), c.changes);
        if (c.changes) {
            EXPECT_EQ(icon.values.At(c.cellX, c.cellY), 128);
            EXPECT_EQ(editor.ImageAlpha().GetPixel(c.cellX, c.cellY), Rgb(223, 96, 96));
        }
    }
}

TEST(AlphaEditor, DraggingPaintsEveryCellPassedAndRestoreTakesItBack) {
    ScriptedHost host;
    Icon icon(32, true);
    AlphaEditor editor(host, icon.Request());
    editor.ValueScrolled(10);
    EXPECT_EQ(editor.ValueListIndex(), 9);
    editor.PointerPressed(0, 0);
    editor.PointerMoved(12, 0);
    editor.PointerMoved(24, 0);
    editor.PointerReleased(false);
    editor.PointerMoved(36, 0);  // released: no longer paints
    EXPECT_EQ(icon.values.At(0, 0), 10);
    EXPECT_EQ(icon.values.At(2, 0), 10);
    EXPECT_EQ(icon.values.At(3, 0), 200);
    editor.ClickRestore();
    EXPECT_EQ(icon.values.At(0, 0), 200);
    EXPECT_FALSE(editor.Edited() || editor.ButtonEnabled(3) || editor.RestoreEnabled());
}

TEST(AlphaEditor, LeavingAfterAnEditAsksAndNoStays) {
    ScriptedHost host;
    Icon icon(16, true);
    AlphaEditor editor(host, icon.Request());
    editor.PointerPressed(0, 0);
    editor.PointerReleased(false);
    host.Answer(MsgAnswer::No);
    editor.ClickAlpha(4);
    EXPECT_FALSE(editor.Closed());
    EXPECT_EQ(host.shown.back().text, "Exit without saving?\r\n");
    host.Answer(MsgAnswer::Yes);
    EXPECT_TRUE(editor.RequestClose());
    EXPECT_EQ(editor.Result(), "");
}

TEST(AlphaEditor, CreateGivesOpaquePaintAndSaveAnswersFour) {
    ScriptedHost host;
    Icon icon(48, false);
    AlphaEditor editor(host, icon.Request());
    host.Answer(MsgAnswer::Yes);
    editor.ClickAlpha(2);
    EXPECT_EQ(host.shown.back().text,
              "Create Alpha means to change the current icon to 32 BPP\r\nTrue Color. Not all Windows platforms "
              "and not all hardware are\r\nalways capable of supporting 32 BPP True Color.  Proceed?\r\n");
    ASSERT_EQ(icon.values.UpperBound(), 47);
    EXPECT_EQ(icon.values.At(0, 47), 255);
    EXPECT_EQ(icon.values.At(47, 0), 0);
    EXPECT_TRUE(editor.Active() && editor.EditFrameVisible() && editor.ButtonEnabled(3));
    EXPECT_FALSE(editor.ButtonEnabled(2));
    host.AnswerSave("/tmp/x.ico");
    host.Answer(MsgAnswer::Yes);
    editor.ClickAlpha(3);
    EXPECT_EQ(host.shown.back().text, "Proceed to create Alpha Channel values and save to\r\n/tmp/x.ico?");
    EXPECT_TRUE(editor.Closed());
    EXPECT_EQ(editor.Result(), "4");
    EXPECT_EQ(editor.FileSpec(), "/tmp/x.ico");
}

TEST(AlphaEditor, KeepingTheBlendedColorsMakesPureBlackCellsTransparent) {
    ScriptedHost host;
    Icon icon(16, true);
    icon.image.SetPixelV(0, 0, 0);  // black at full opacity stays black, then turns transparent
    icon.values.At(0, 0) = 255;
    AlphaEditor editor(host, icon.Request());
    host.Answer(MsgAnswer::Yes);
    host.AnswerSave("/tmp/flat.ico");
    editor.ClickAlpha(0);
    EXPECT_EQ(editor.Result(), "1");
    const host::AlphaEditorAnswer answer = editor.Answer();
    EXPECT_EQ(answer.Mask.GetPixel(0, 0), Color{0xFFFFFF});
    EXPECT_EQ(answer.Image.GetPixel(1, 0), alpha::BlendOverBackground(Rgb(255, 0, 0), 200));
    EXPECT_EQ(answer.Mask.GetPixel(1, 0), Color{0});
    EXPECT_EQ(answer.Image.GetPixel(15, 0), Color{0});  // transparent cells black under a white mask
    EXPECT_EQ(answer.Mask.GetPixel(15, 0), Color{0xFFFFFF});
}

}  // namespace
}  // namespace vexlo::test
