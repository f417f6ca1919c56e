// A click that arrives while an operation lets pending events run must not start a second
// operation in the middle of the first.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <QToolButton>

#include <functional>

#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"

namespace vexlo::test {
namespace {

constexpr int kSpotlight = 4;

// A new 32x32 icon with a Spotlight dragged over most of it; before the release, post is
// called so that it can queue events that the plot's pending events will meet.
surface::Surface SpotlightIcon(gui::FrmVexlo& window, const std::function<void()>& post) {
    window.Item("mnuFileNew(0)")->trigger();
    window.ToolButtons[kSpotlight]->click();
    QWidget* disp = window.picDisp;
    QTest::mousePress(disp, Qt::LeftButton, {}, QPoint(30, 30));
    const QPointF end(200, 200);
    QMouseEvent move(QEvent::MouseMove, end, disp->mapToGlobal(end), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(disp, &move);
    post();
    QTest::mouseRelease(disp, Qt::LeftButton, {}, end.toPoint());
    return window.session().Icon().Composed();
}

TEST(Reentry, AClickPostedDuringASpotlightPlotNeverInterleaves) {
    ScriptedHost host;
    ScopedScriptedMessageBoxes boxes{host};
    surface::Surface expected;
    {
        auto quiet = OpenMainWindow();
        expected = SpotlightIcon(*quiet, [] {});
    }
    auto window = OpenMainWindow();
    QLabel* third = window->lblPanelIcon[2];
    const surface::Surface got = SpotlightIcon(*window, [third] {
        for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(third, new QMouseEvent(type, QPointF(4, 4), third->mapToGlobal(QPointF(4, 4)),
                                                               Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    });
    QCoreApplication::processEvents();
    const session::Session& s = window->session();
    EXPECT_EQ(s.CurrentSlot(), 0);
    EXPECT_EQ(s.UndoCount(), 2);  // the new icon, then the Spotlight as one step
    EXPECT_TRUE(SamePixels(got, expected));
    EXPECT_FALSE(s.Busy());
}

}  // namespace
}  // namespace vexlo::test
