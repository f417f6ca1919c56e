// Buttonize, Adjust Painted Colors, Text and Rotate at any angle in the window, driven through
// their controls; the text drawn by Qt with DejaVu Sans, pixel for pixel. With $VEXLO_SHOT_DIR
// set, each frame is also saved there as a picture of the whole window.
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include <algorithm>

#include <set>
#include <string>
#include <vector>

#include "gui/effects/frm_vexlo_adjust_colors.h"
#include "gui/effects/frm_vexlo_buttonize.h"
#include "gui/effects/frm_vexlo_rotate_angle.h"
#include "gui/effects/frm_vexlo_text.h"
#include "gui/platform/surface_view.h"
#include "gui/platform/text_drawing.h"
#include "gui/shell/frm_vexlo.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"

namespace vexlo::test {
namespace {

using session::Frame;
using surface::Surface;

// '#' for color, '.' for back, '?' for anything else.
std::vector<std::string> Rows(const Surface& s, surface::Color color) {
    std::vector<std::string> rows;
    for (int y = 0; y < s.Height(); ++y) {
        std::string row;
        for (int x = 0; x < s.Width(); ++x) {
            const surface::Color c = s.GetPixel(x, y);
            row += c == color ? '#' : c == s.BackColor() ? '.' : '?';
        }
        rows.push_back(row);
    }
    return rows;
}

host::TextFont DejaVu(int size) { return {"DejaVu Sans", size, false, false}; }

TEST(TextDrawing, TheFixedFontIsInstalledAndUsedByItsName) {
    EXPECT_EQ(platform::FontFamilyUsed("DejaVu Sans"), "DejaVu Sans")
        << "the set-up scripts install fonts-dejavu-core";
    EXPECT_EQ(platform::FontPixelSize(8), 11);
    EXPECT_EQ(platform::FontPixelSize(18), 24);
}

// The same text gives the same pixels on every run: "Ab" at 8 points, filled, in two colors.
TEST(TextDrawing, DejaVuSansDrawsTheSamePixelsEveryTime) {
    Surface out;
    ASSERT_TRUE(platform::DrawTextPicture(DejaVu(8), "Ab", false, 0x0000FF, 0xFFFFFF, out));
    const std::vector<std::string> expected = {
        "................",
        "................",
        ".........#......",
        "....#....#......",
        "...#.#...#......",
        "...#.#...####...",
        "...#.#...#...#..",
        "..#...#..#...#..",
        "..#####..#...#..",
        "..#...#..#...#..",
        ".#.....#.####...",
        "................",
        "................",
        "................",
        "................",
    };
    EXPECT_EQ(Rows(out, 0x0000FF), expected);
}

// Hollow strokes the glyphs' outlines: only the text color and the back, and fewer cells than
// the filled text where the strokes don't merge.
TEST(TextDrawing, HollowTextHasOnlyOutlinePixels) {
    Surface filled, hollow;
    ASSERT_TRUE(platform::DrawTextPicture(DejaVu(18), "O", false, 0x00FF00, 0xFFFFFF, filled));
    ASSERT_TRUE(platform::DrawTextPicture(DejaVu(18), "O", true, 0x00FF00, 0xFFFFFF, hollow));
    ASSERT_EQ(hollow.Width(), filled.Width());
    int inFilled = 0, inHollow = 0;
    for (const auto& row : Rows(filled, 0x00FF00)) inFilled += static_cast<int>(std::count(row.begin(), row.end(), '#'));
    for (const auto& row : Rows(hollow, 0x00FF00)) {
        EXPECT_EQ(row.find('?'), std::string::npos) << row;
        inHollow += static_cast<int>(std::count(row.begin(), row.end(), '#'));
    }
    EXPECT_GT(inHollow, 0);
    EXPECT_NE(inHollow, inFilled);
    Surface nothing;
    EXPECT_FALSE(platform::DrawTextPicture(DejaVu(8), "", false, 0, 0xFFFFFF, nothing));
}

class EffectFramesWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        window = OpenMainWindow();
        window->Item("mnuFileNew(0)")->trigger();
        // A colorful icon: a band of colors across, a transparent ring at the edge.
        session::Session& s = window->session();
        for (int x = 2; x < 30; ++x)
            for (int y = 2; y < 30; ++y) {
                s.Icon().Image().SetPixelV(x, y, surface::Rgb(x * 8, 255 - y * 8, (x + y) * 4));
                s.Icon().Mask().SetPixelV(x, y, 0);
            }
        s.ApplyToIcon([](Surface&, Surface&) {});
        window->SyncFromModel();
    }
    session::Session& S() { return window->session(); }
    // The window as a picture in $VEXLO_SHOT_DIR, when it is set.
    void Shot(const char* name) {
        SaveShot(window.get(), name);
    }

    ScriptedHost host;
    ScopedScriptedMessageBoxes boxes{host};
    std::unique_ptr<gui::FrmVexlo> window;
};

TEST_F(EffectFramesWindowTest, ButtonizeThroughItsSamplePicture) {
    window->Item("mnuEffectsSub(0)")->trigger();
    ASSERT_EQ(S().Form().VisibleFrame, Frame::Buttonize);
    QTest::mouseClick(window->fraButtonize->picButtonize[1], Qt::LeftButton);
    EXPECT_EQ(window->fraButtonize->cboButtonizePattern->currentIndex(), 1);
    Shot("buttonize_frame");
    window->fraButtonize->cmdButtonizeProceed->click();
    EXPECT_EQ(S().Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_EQ(S().Icon().Image().GetPixel(30, 30), effects::kButtonMidGray);
    Shot("buttonize_done");
}

TEST_F(EffectFramesWindowTest, AdjustListsStepThePreviewAndGoBackToZero) {
    window->Item("mnuEffectsAdjustPaintedColors")->trigger();
    gui::AdjustColorsFrame& f = *window->fraAdjustPaintedColors;
    ASSERT_EQ(f.picColorAdj->SurfaceShown(), &S().Effects().AdjustColors().Preview());
    const surface::Color before = S().Effects().AdjustColors().Preview().GetPixel(10, 10);
    f.cboBrightNessAdj->activated(13);  // +40
    f.cboColorAdj[2]->activated(0);      // blue -90
    EXPECT_EQ(f.cboBrightNessAdj->currentIndex(), effects::kAdjustZeroIndex);
    EXPECT_EQ(f.cboColorAdj[2]->currentIndex(), effects::kAdjustZeroIndex);
    EXPECT_NE(S().Effects().AdjustColors().Preview().GetPixel(10, 10), before);
    Shot("adjust_colors_frame");
    f.cmdAdjustColorsProceed[0]->click();
    EXPECT_EQ(S().Icon().Image().GetPixel(10, 10), S().Effects().AdjustColors().Preview().GetPixel(10, 10));
    Shot("adjust_colors_done");
}

TEST_F(EffectFramesWindowTest, TextAtThirtyDegreesFloatsAndMoves) {
    window->Item("mnuEffectsText")->trigger();
    gui::TextFrame& f = *window->fraText;
    ASSERT_EQ(S().Form().VisibleFrame, Frame::Text);
    ASSERT_GT(f.cboFontName->count(), 0);
    const int dejavu = f.cboFontName->findText("DejaVu Sans");
    ASSERT_GE(dejavu, 0);
    f.cboFontName->activated(dejavu);
    f.cboFontSize->activated(3);  // 10 points
    f.imgFontStyle[0]->click();
    f.txbWriteText->setText("Hi!");
    f.HsbTextWriteSampleAngle->setValue(30);
    EXPECT_EQ(f.lblTextAngle->text(), QString::fromUtf8("30\u00B0  degrees"));
    EXPECT_TRUE(f.lblTextSample->font().bold());
    f.cmdAddTextProceed->click();
    ASSERT_TRUE(S().View().Region().Exists);
    EXPECT_EQ(S().Form().SelectedTool, tools::Tool::Region);
    // Drawn twice, the same text gives the same picture.
    const Surface first = S().Floating().Image();
    f.cmdAddTextProceed->click();
    EXPECT_TRUE(SamePixels(S().Floating().Image(), first));
    Shot("text_frame_30_degrees");
    // Dragged by the pointer three cells right and four down.
    QTest::mousePress(window->picDisp, Qt::LeftButton, {}, QPoint(18, 18));
    QTest::mouseMove(window->picDisp, QPoint(18 + 36, 18 + 48));
    QTest::mouseRelease(window->picDisp, Qt::LeftButton, {}, QPoint(18 + 36, 18 + 48));
    EXPECT_EQ(S().View().Region().Cells.Left, 3);
    EXPECT_EQ(S().View().Region().Cells.Top, 4);
    Shot("text_moved");
}

TEST_F(EffectFramesWindowTest, RotateByFortyFiveDegrees) {
    window->Item("mnuRotateSubmenu(4)")->trigger();
    gui::RotateAngleFrame& f = *window->fraRotateSelectAngle;
    ASSERT_EQ(S().Form().VisibleFrame, Frame::RotateSelectAngle);
    f.hsrRotateAngle->setValue(45);
    EXPECT_EQ(f.cboRotateAngle->currentText(), "45");
    f.ckbRotateAntiAlias->click();
    Shot("rotate_frame_45");
    f.cmdRotateSelectAngleProceed->click();
    EXPECT_EQ(S().Form().VisibleFrame, Frame::ColorsPanel);
    EXPECT_EQ(S().Icon().Mask().GetPixel(2, 2), 0xFFFFFFu);  // a corner turned out
    EXPECT_EQ(S().Icon().Mask().GetPixel(16, 16), 0u);
    Shot("rotate_done_45");
}

}  // namespace
}  // namespace vexlo::test
