// Files dropped on the main window open as their File Open item would, through the same
// guards and messages; other drops are refused while dragged.
#include <gtest/gtest.h>

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <fstream>
#include <QAction>
#include <QApplication>

#include "core/files/ico_write.h"
#include "gui/shell/frm_vexlo.h"
#include "main_window_support.h"
#include "scripted_dialogs.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;

class DropTest : public ::testing::Test {
protected:
    void SetUp() override {
        window = OpenMainWindow();
        surface::Surface image(16, 16, 0), mask(16, 16, 0);
        image.Fill(0x0000FF);
        mask.Fill(0);
        ASSERT_TRUE(files::WriteIconFile(image, mask, folder.Path("red.ico"), {}));
    }
    // Drags data over the window and drops it; answers whether the drag was accepted.
    bool Drop(QMimeData& data) {
        const QPoint at = window->rect().center();
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent drop(QPointF(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &drop);
        return true;
    }
    static void SetFile(QMimeData& data, const std::string& path) {
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
    }

    TestFolder folder{"vexlo_drop"};
    ScriptedHost host;
    ScopedScriptedDialogs dialogs{host};
    std::unique_ptr<gui::FrmVexlo> window;
};

TEST_F(DropTest, AnIconFileOpensInTheCurrentSlot) {
    QMimeData data;
    SetFile(data, folder.Path("red.ico"));
    ASSERT_TRUE(Drop(data));
    EXPECT_EQ(window->session().Current().FileSpec, folder.Path("red.ico"));
    EXPECT_EQ(window->session().Icon().Image().GetPixel(3, 3), 0x0000FFu);
}

TEST_F(DropTest, AnAnimatedCursorOpensInItsSessionWhetherItIsUpOrNot) {
    const std::string ani = std::string(VEXLO_FIXTURES_DIR) + "/ani/ico4bit_70.ani";
    QMimeData data;
    SetFile(data, ani);
    ASSERT_TRUE(Drop(data));
    const session::AniSession& session = window->session().Ani();
    ASSERT_TRUE(session.ContainerVisible());
    EXPECT_EQ(session.FrameCount(), 70);
    EXPECT_EQ(host.PendingDialogAnswers(), 0u);
    // A second drop while the session is up goes to its Open button as it stands.
    window->session().ClickAniButton(3);  // New: no frames, nothing to lose
    ASSERT_TRUE(Drop(data));
    EXPECT_EQ(session.FrameCount(), 70);
}

TEST_F(DropTest, OtherDropsAreRefused) {
    QMimeData text;
    text.setText("red.ico");
    EXPECT_FALSE(Drop(text));
    QMimeData unknown;
    std::ofstream(folder.Path("notes.txt")) << "not a picture";
    SetFile(unknown, folder.Path("notes.txt"));
    EXPECT_FALSE(Drop(unknown));
    QMimeData two;
    two.setUrls({QUrl::fromLocalFile(QString::fromStdString(folder.Path("red.ico"))),
                 QUrl::fromLocalFile(QString::fromStdString(folder.Path("red.ico")))});
    EXPECT_FALSE(Drop(two));
    EXPECT_FALSE(window->session().Current().Occupied);
}

TEST_F(DropTest, ADropStoppedByTheSaveQuestionLeavesTheNextOpenDialogAlone) {
    window->Item("mnuFileNew(0)")->trigger();
    window->session().ApplyToIcon([](surface::Surface& image, surface::Surface&) { image.SetPixelV(1, 1, 0xFF); });
    QMimeData data;
    SetFile(data, folder.Path("red.ico"));
    host.Answer(MsgAnswer::Cancel);  // "Save current icon to file?"
    ASSERT_TRUE(Drop(data));
    ASSERT_FALSE(host.shown.empty());
    EXPECT_EQ(host.shown.back().text, "Save current icon to file?");
    EXPECT_NE(window->session().Current().FileSpec, folder.Path("red.ico"));
    // The real dialog is asked next time, not the dropped file.
    host.Answer(MsgAnswer::No);
    host.AnswerOpen("");
    window->Item("mnuFileOpen(0)")->trigger();
    EXPECT_EQ(host.PendingDialogAnswers(), 0u);
}

}  // namespace
}  // namespace vexlo::test
