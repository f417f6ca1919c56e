// What the window shows around the Editing Area: the pictures of its buttons and pointer
// shapes, the shades previews, its fixed size and a long path in the status bar.
#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFontMetrics>
#include <QLabel>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QWindow>

#include <functional>
#include <vector>

#include "gui/platform/elided_label.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"
#include "gui/shell/pictures.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"

namespace vexlo::test {
namespace {

// Not null and not wholly transparent.
bool Drawn(const QPixmap& pixmap) {
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 0) return true;
    return false;
}

bool WaitFor(const std::function<bool()>& done) {
    for (int i = 0; i < 100 && !done(); ++i) QTest::qWait(10);
    return done();
}

class WindowLookTest : public ::testing::Test {
protected:
    void Open() {
        window = OpenMainWindow();
    }

    ScriptedHost host;
    ScopedScriptedMessageBoxes boxes{host};
    std::unique_ptr<gui::FrmVexlo> window;
};

TEST_F(WindowLookTest, EveryToolbarAndToolboxButtonShowsAPicture) {
    Open();
    std::vector<QToolButton*> buttons(window->cmdTB.begin(), window->cmdTB.end());
    buttons.insert(buttons.end(), window->ToolButtons.begin(), window->ToolButtons.end());
    buttons.push_back(window->imgColorPicker);
    buttons.push_back(window->imgClearAllTools);
    for (QToolButton* b : buttons)
        EXPECT_TRUE(Drawn(b->icon().pixmap(16, 16))) << b->toolTip().toStdString();
}

TEST_F(WindowLookTest, EveryToolPointerShowsItsPicture) {
    Open();
    window->Item("mnuFileNew(0)")->trigger();  // selects Paint
    window->Item("mnuPaletteSub(1)")->trigger();  // the Color Picker needs the 256-color chart
    // Paint .. Filled Oval, then the Color Picker: over the icon the pointer is the picture.
    std::vector<QToolButton*> buttons(window->ToolButtons.begin(), window->ToolButtons.begin() + 11);
    buttons.push_back(window->imgColorPicker);
    int step = 0;
    for (QToolButton* b : buttons) {
        if (!b->isChecked()) b->click();
        QTest::mouseMove(window->picDisp, QPoint(20 + 12 * step++, 40));
        const QCursor pointer = window->picDisp->cursor();
        EXPECT_EQ(pointer.shape(), Qt::BitmapCursor) << b->toolTip().toStdString();
        EXPECT_TRUE(Drawn(pointer.pixmap())) << b->toolTip().toStdString();
    }
    // The Region shows its picture only over a reworked Region.
    const QCursor region = gui::CustomPointer({tools::PointerShape::Custom, tools::Tool::Region, false});
    EXPECT_EQ(region.shape(), Qt::BitmapCursor);
    EXPECT_TRUE(Drawn(region.pixmap()));
}

TEST_F(WindowLookTest, ShadesPreviewsShowTheIconAtItsOwnSize) {
    Open();
    const struct {
        const char* newIcon;
        int size;
    } cases[] = {{"mnuFileNew(1)", 16}, {"mnuFileNew(0)", 32}, {"mnuFileNew(2)", 48}};
    for (const auto& c : cases) {
        window->Item(c.newIcon)->trigger();
        window->Item("mnuEffectsSub(2)")->trigger();  // Grayscale: gray picture, white mask
        for (gui::SurfaceView* view : window->picEffectsSample) {
            const QImage shot = view->grab().toImage();
            const QRgb back = view->palette().window().color().rgb();
            QRect drawn;
            for (int y = 0; y < shot.height(); ++y)
                for (int x = 0; x < shot.width(); ++x)
                    if (shot.pixel(x, y) != back) drawn |= QRect(x, y, 1, 1);
            EXPECT_EQ(drawn.size(), QSize(c.size, c.size)) << view->objectName().toStdString();
        }
    }
}

TEST_F(WindowLookTest, TheWindowKeepsItsFixedSize) {
    Open();
    const QSize fixed(gui::kFormWidth, gui::kFormHeight);
    EXPECT_EQ(window->size(), fixed);
    EXPECT_FALSE(window->windowFlags() & Qt::WindowMaximizeButtonHint);
    window->showMaximized();
    EXPECT_TRUE(WaitFor([&] { return !window->isMaximized() && window->size() == fixed; }))
        << window->width() << "x" << window->height();
    // A window manager that sets a size of its own, larger or smaller.
    for (const QSize other : {QSize(1000, 760), QSize(600, 400)}) {
        window->windowHandle()->resize(other);
        EXPECT_TRUE(WaitFor([&] { return window->size() == fixed; }))
            << window->width() << "x" << window->height();
        EXPECT_EQ(window->statusBar()->geometry().bottom(), fixed.height() - 1);
    }
}

TEST_F(WindowLookTest, ALongPathInTheStatusBarKeepsItsFileNameAndShowsWholeInTheTooltip) {
    QTemporaryDir temp;
    const QString folder =
        temp.path() + "/a rather long folder name for icons/another deeply nested folder";
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString path = folder + "/application_window_icon.ico";
    Open();
    window->Item("mnuFileNew(0)")->trigger();
    host.AnswerSave(path.toStdString());
    window->Item("mnuFileSaveAsICO")->trigger();
    QLabel* panel = window->lblStatusPanel[0];
    EXPECT_EQ(panel->toolTip(), path);
    EXPECT_TRUE(panel->text().contains(QChar(0x2026))) << panel->text().toStdString();
    EXPECT_TRUE(panel->text().endsWith("/application_window_icon.ico")) << panel->text().toStdString();
    EXPECT_LE(panel->fontMetrics().horizontalAdvance(panel->text()), panel->contentsRect().width());

    window->Item("mnuFileNew(1)")->trigger();
    EXPECT_EQ(panel->text(), "Untitled");
    EXPECT_TRUE(panel->toolTip().isEmpty());
}

TEST(ElidePath, DropsWholeFoldersFromTheMiddleFirst) {
    const QFontMetrics m{QFont("DejaVu Sans", 9)};
    const QString path = "/home/user/projects/art/icon.ico";
    const QString e = QString(QChar(0x2026));
    const struct {
        QString roomFor;  // the width given is that of this text
        QString shown;
    } cases[] = {
        {path, path},
        {"/home/" + e + "/projects/art/icon.ico", "/home/" + e + "/projects/art/icon.ico"},
        {"/home/" + e + "/art/icon.ico", "/home/" + e + "/art/icon.ico"},
        {e + "/icon.ico", e + "/icon.ico"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(gui::ElidePath(path, m, m.horizontalAdvance(c.roomFor)), c.shown)
            << c.roomFor.toStdString();
    // Relative paths keep their first folder; a text without folders loses its middle.
    const QString relative = "art/" + e + "/a.ico";
    EXPECT_EQ(gui::ElidePath("art/old/icons/a.ico", m, m.horizontalAdvance(relative)), relative);
    const QString name = "a_very_long_file_name_for_an_icon.ico";
    const QString cut = gui::ElidePath(name, m, m.horizontalAdvance(name) / 2);
    EXPECT_TRUE(cut.contains(e)) << cut.toStdString();
    EXPECT_TRUE(cut.startsWith('a') && cut.endsWith(".ico")) << cut.toStdString();
    EXPECT_LE(m.horizontalAdvance(cut), m.horizontalAdvance(name) / 2);
}

}  // namespace
}  // namespace vexlo::test
