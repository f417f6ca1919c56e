// The gradient and mono frames and the Color Mixer in the window: their controls reach the
// session and show its state, and palette fixtures read the same through Qt's BMP reader as
// through ours. With VEXLO_SHOT_DIR set, each test also saves the window to a PNG there.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include "core/effects/gradient.h"
#include "core/files/pal_file.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;

class EffectsFramesTest : public ::testing::Test {
protected:
    void Open() {
        window = OpenMainWindow();
    }
    // A new icon of that menu entry with a painted red box in its middle.
    void NewIcon(int entry) {
        window->Item("mnuFileNew(" + std::to_string(entry) + ")")->trigger();
        session::Session& s = window->session();
        const int side = s.Icon().Side();
        for (int x = side / 4; x < side * 3 / 4; ++x)
            for (int y = side / 4; y < side * 3 / 4; ++y) {
                s.Icon().Image().SetPixelV(x, y, (x + y) % 4 ? 0x0000FF : 0x00FFFF);
                s.Icon().Mask().SetPixelV(x, y, 0);
            }
        s.ComposeIcon();
        s.MagnifyIcon();
        window->SyncFromModel();
    }
    // The window as a PNG in $VEXLO_SHOT_DIR, when set.
    void Shot(const QString& name) {
        SaveShot(window.get(), name);
    }
    QImage Grab(QWidget* w) { return w->grab().toImage(); }

    ScriptedHost host;
    ScopedScriptedDialogs dialogs{host};
    std::unique_ptr<gui::FrmVexlo> window;
};

TEST_F(EffectsFramesTest, GradientFrameEachKindAndProceed) {
    Open();
    NewIcon(0);
    window->Item("mnuEffectsGradientUnpaintedArea")->trigger();
    QFrame* frame = window->Frames[session::Frame::Gradient];
    ASSERT_TRUE(frame->isVisible());
    EXPECT_TRUE(window->cmdGradientProceed->isEnabled());
    EXPECT_FALSE(window->lblNoUnpaintedArea->isVisible());
    EXPECT_EQ(window->cmdGradientColor[0]->toolTip(), "Click for first color");
    // The views show the pictures at their own size, centred in their boxes of 48.
    const QRgb shown = Grab(window->PicGradient[1]).pixel(8, 8);
    EXPECT_EQ(surface::Rgb(qRed(shown), qGreen(shown), qBlue(shown)),
              window->session().Gradient().Picture(1).GetPixel(0, 0));

    window->cboGradientAngle->setCurrentIndex(45);
    emit window->cboGradientAngle->activated(45);
    EXPECT_EQ(window->session().Gradient().AngleIndex(), 45);
    Shot("gradient_linear_45");
    // A press on the spherical picture moves its centre to the corner.
    QTest::mousePress(window->PicGradient[2], Qt::LeftButton, {}, QPoint(8, 8));
    surface::Surface corner(32, 32, 0xFFFFFF);
    effects::DrawSphericalGradient(corner, 0, 0, effects::kGradientFirstColor, effects::kGradientSecondColor);
    EXPECT_TRUE(SamePixels(window->session().Gradient().Picture(2), corner));
    window->OptGradType[2]->click();
    Shot("gradient_spherical_corner");
    window->OptGradType[1]->click();
    EXPECT_EQ(window->session().Gradient().Kind(), effects::GradientKind::Square);
    Shot("gradient_square");

    window->cmdGradientProceed->click();
    EXPECT_TRUE(window->Frames[session::Frame::ColorsPanel]->isVisible());
    EXPECT_EQ(window->session().Icon().Mask().GetPixel(0, 0), 0u);
    Shot("gradient_square_proceeded");
}

TEST_F(EffectsFramesTest, ExpandShrinkAndMono) {
    Open();
    NewIcon(1);
    host.Answer(MsgAnswer::Yes);
    window->Item("mnuEffectsExpand")->trigger();
    EXPECT_EQ(window->session().Icon().Side(), 32);
    Shot("expanded");
    host.Answer(MsgAnswer::Yes);
    window->Item("mnuEffectsShrink")->trigger();
    EXPECT_EQ(window->session().Icon().Side(), 16);
    Shot("shrunk");

    window->Item("mnuEffectsConfineColorsTo2")->trigger();
    ASSERT_TRUE(window->Frames[session::Frame::ConfineToMono]->isVisible());
    EXPECT_EQ(window->cboConfineToMonoThreshold->currentText(), "128");
    Shot("confine_mono");
    window->cboConfineToMonoThreshold->setCurrentIndex(9);
    emit window->cboConfineToMonoThreshold->activated(9);
    EXPECT_EQ(window->session().ConfineMono().Threshold(), 10);
    window->Frames[session::Frame::ConfineToMono]->findChild<QPushButton*>("cmdConfineToMonoProceed")->click();
    // Red averages 85, above 10: transparent; yellow too.
    EXPECT_EQ(window->session().Icon().Mask().GetPixel(8, 8), 0xFFFFFFu);
}

TEST_F(EffectsFramesTest, ColorMixerAndPaletteFiles) {
    Open();
    window->Item("mnuPaletteSub(1)")->trigger();
    ASSERT_TRUE(window->fraColorMixer->isVisible());
    EXPECT_FALSE(window->cmdAdjMix[0]->isEnabled());
    EXPECT_EQ(window->lblRGB[0]->text(), "255");
    window->HsrRGB[1]->setValue(85);  // as a click on the bar's trough would
    EXPECT_EQ(window->session().Mixer().Bars()[1], 85);
    EXPECT_EQ(window->lblRGB[1]->text(), "85");
    EXPECT_TRUE(window->cmdAdjMix[0]->isEnabled());
    window->cmdAdjMix[1]->click();
    EXPECT_EQ(window->HsrRGB[0]->value(), 238);
    EXPECT_EQ(window->HsrRGB[1]->value(), 68);

    QTest::mouseMove(window->picMixGradient, QPoint(10, 40));
    EXPECT_TRUE(window->ShapeMix->isVisible());
    EXPECT_EQ(window->ShapeMix->geometry(), QRect(0, 38, 39, 3));
    QTest::mouseClick(window->picMixGradient, Qt::LeftButton, {}, QPoint(10, 40));
    EXPECT_EQ(window->session().SelectedColor(), window->session().Mixer().Strip().GetPixel(10, 40));

    // Saved, changed, loaded back.
    const QString path = QDir::temp().filePath(QString("vexlo_gui_mixer_%1.pal").arg(QCoreApplication::applicationPid()));
    const surface::Surface saved = window->session().Mixer().Strip();
    host.AnswerSave(path.toStdString());
    window->Item("mnuPaletteSub(4)")->trigger();
    window->cmdAdjMix[0]->click();
    host.AnswerOpen(path.toStdString());
    window->Item("mnuPaletteSub(3)")->trigger();
    EXPECT_TRUE(SamePixels(window->session().Mixer().Strip(), saved));
    Shot("mixer_with_saved_palette");
    QFile::remove(path);
}

TEST_F(EffectsFramesTest, PaletteFixturesReadAsQtReadsThem) {
    for (const char* name : {"mixer_8bit_41x101.pal", "mixer_4bit_core_42x102.pal",
                             "mixer_32bit_v5_topdown_40x100.pal", "mixer_16bit_565_40x100.pal"}) {
        SCOPED_TRACE(name);
        const std::string path = std::string(VEXLO_FIXTURES_DIR) + "/pal/" + name;
        const QImage qt(QString::fromStdString(path), "BMP");
        ASSERT_FALSE(qt.isNull());
        std::vector<std::uint8_t> bytes;
        files::PaletteReadError error;
        ASSERT_TRUE(files::ReadPaletteFileBytes(path, bytes, error));
        files::PaletteLayout layout;
        surface::Surface ours;
        ASSERT_TRUE(files::ReadPaletteLayout(files::Bytes(bytes), layout, error) &&
                    files::DecodePalettePicture(files::Bytes(bytes), layout, ours));
        ASSERT_EQ(ours.Width(), qt.width());
        ASSERT_EQ(ours.Height(), qt.height());
        for (int y = 0; y < qt.height(); ++y)
            for (int x = 0; x < qt.width(); ++x) {
                const QRgb p = qt.pixel(x, y);
                ASSERT_EQ(ours.GetPixel(x, y), surface::Rgb(qRed(p), qGreen(p), qBlue(p))) << x << "," << y;
            }
    }
}

}  // namespace
}  // namespace vexlo::test
