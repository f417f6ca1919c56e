// frmVexloAlpha's wiring to its model: real pointer events on the magnified view, the value
// controls kept in step with each other, the buttons forwarded, and the modal entry point
// through the window's host. The editor's steps are tested headless in
// tests/core/session/alpha_editor_test.cpp. With VEXLO_SHOT_DIR set, the dialog is also saved
// as pictures before and after an edit.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <cstdlib>

#include "core/icon/icon_planes.h"
#include "gui/alpha/frm_vexlo_alpha.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/window_host.h"
#include "scripted_dialogs.h"

namespace vexlo::test {
namespace {

using gui::frmVexloAlpha;
using surface::Rgb;
using surface::Surface;

// A 32x32 disc with soft edges: opaque inside, fading over its last four pixels.
struct SoftIcon {
    SoftIcon() : image(32, 32, 0), mask(32, 32, 0), composed(32, 32, 0xC0C0C0), grid(384, 384, 0xFFFFFF) {
        values.SetBounds(31);
        grid.Fill(0xFFFFFF);
        for (int x = 0; x < 32; ++x)
            for (int y = 0; y < 32; ++y) {
                const int d2 = (x - 16) * (x - 16) + (y - 16) * (y - 16);
                const bool painted = d2 < 15 * 15;
                image.SetPixelV(x, y, painted ? Rgb(220, 40 + x * 5, 30) : 0);
                mask.SetPixelV(x, y, painted ? 0 : 0xFFFFFF);
                const int edge = 15 * 15 - d2;  // grows towards the middle
                values.At(x, y) = painted ? static_cast<std::uint8_t>(edge > 100 ? 255 : 30 + edge * 2) : 0;
            }
        icon::Compose(image, mask, composed);
    }
    host::AlphaEditorRequest Request() { return {&composed, &image, &mask, &grid, 0xC0C0C0, &values}; }
    Surface image, mask, composed, grid;
    alpha::AlphaArray values;
};

void Shoot(QWidget& w, const char* name) {
    if (const char* dir = std::getenv("VEXLO_SHOT_DIR"))
        w.grab().save(QString::fromLocal8Bit(dir) + "/" + QString::fromLatin1(name) + ".png");
}

TEST(AlphaDialog, PointerAndControlsReachTheModelAndFollowIt) {
    ScriptedHost host;
    ScopedScriptedDialogs dialogs(host);
    SoftIcon icon;
    frmVexloAlpha dlg(host, icon.Request());
    dlg.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dlg));
    Shoot(dlg, "alpha_before");
    EXPECT_EQ(dlg.windowTitle(), "View/Edit/Create Alpha Channel");
    EXPECT_TRUE(dlg.fraEditAlphaValue->isVisible());
    EXPECT_FALSE(dlg.cmdAlpha[2]->isEnabled());
    EXPECT_FALSE(dlg.cmdAlpha[3]->isEnabled());
    EXPECT_EQ(dlg.cboAlphaValue->currentText(), "255");

    dlg.hsrAlphaValue->setValue(60);
    EXPECT_EQ(dlg.cboAlphaValue->currentText(), "60");
    const QPoint cell(16 * 12 + 5, 16 * 12 + 5);  // the middle cell
    QTest::mouseMove(dlg.picDisp, cell);
    EXPECT_EQ(dlg.lblDispXY->text(), "X=16  Y=16    Alpha = 255");
    QTest::mousePress(dlg.picDisp, Qt::LeftButton, {}, cell);
    QTest::mouseRelease(dlg.picDisp, Qt::LeftButton, {}, cell);
    EXPECT_EQ(icon.values.At(16, 16), 60);
    EXPECT_TRUE(dlg.cmdAlpha[3]->isEnabled());
    EXPECT_TRUE(dlg.cmdRestore->isEnabled());
    Shoot(dlg, "alpha_after");

    dlg.cmdRestore->click();
    EXPECT_EQ(icon.values.At(16, 16), 255);
    EXPECT_FALSE(dlg.cmdAlpha[3]->isEnabled());
    dlg.cmdAlpha[4]->click();  // nothing edited now: closes without a question
    EXPECT_FALSE(dlg.isVisible());
}

TEST(AlphaDialog, TheWindowsHostShowsItModallyAndAnswersTheButtonPressed) {
    ScriptedHost host;
    ScopedScriptedDialogs dialogs(host);
    SoftIcon icon;
    host.Answer(host::MsgAnswer::Yes);
    host.AnswerSave("/tmp/flat.ico");
    QTimer::singleShot(0, [] {
        auto* dlg = qobject_cast<frmVexloAlpha*>(QApplication::activeModalWidget());
        ASSERT_NE(dlg, nullptr);
        dlg->cmdAlpha[1]->click();
    });
    gui::WindowHost windowHost;
    const host::AlphaEditorAnswer answer = windowHost.ShowAlphaEditor(icon.Request());
    EXPECT_EQ(answer.Result, "2");
    EXPECT_EQ(answer.FileSpec, "/tmp/flat.ico");
}

}  // namespace
}  // namespace vexlo::test
