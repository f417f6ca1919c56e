// The common dialogs and the folder dialog: frmDirDialog driven step by step, the real Qt
// dialogs driven by timers, and the scripted answers that stand in for all of them.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <vector>

#include "gui/shell/window_host.h"
#include "gui/utilities/cls_vexlo_dialog.h"
#include "gui/utilities/frm_dir_dialog.h"
#include "scripted_dialogs.h"

namespace vexlo::gui {
namespace {

using host::MsgAnswer;

// Runs each step on the next modal widget that comes to the top, polling with fresh
// single-shot timers so that a step may open a nested box. A modal widget left open three
// seconds after a step fails the test and is rejected, so that no test hangs.
class ModalScript {
public:
    using Step = std::function<void(QWidget*)>;
    explicit ModalScript(std::vector<Step> steps) : m_steps(std::move(steps)) { Poll(); }
    ~ModalScript() {
        if (m_next < m_steps.size()) ADD_FAILURE() << "Dialog step " << m_next << " never ran";
    }

private:
    void Poll() { QTimer::singleShot(10, &m_context, [this] { Tick(); }); }
    void Tick() {
        QWidget* w = QApplication::activeModalWidget();
        if (m_next < m_steps.size() && w != nullptr && w != m_last) {
            m_last = w;
            m_sinceLast.start();
            Poll();
            m_steps[m_next++](w);
            return;
        }
        if (w != nullptr && m_sinceLast.isValid() && m_sinceLast.elapsed() > 3000) {
            ADD_FAILURE() << "A dialog stayed open: " << w->metaObject()->className();
            if (auto* dlg = qobject_cast<QDialog*>(w)) dlg->reject();
            m_sinceLast.start();
        }
        if (w != nullptr || m_next < m_steps.size()) Poll();
    }

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    QPointer<QWidget> m_last;
    QElapsedTimer m_sinceLast;
    QObject m_context;
};

// The process's current directory, put back at the end of a test.
struct CurrentDirGuard {
    QString saved = QDir::currentPath();
    ~CurrentDirGuard() { QDir::setCurrent(saved); }
};

void Touch(const QString& path) {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly)) << path.toStdString();
}

QStringList Texts(const QListWidget* list) {
    QStringList out;
    for (int i = 0; i < list->count(); ++i) out << list->item(i)->text();
    return out;
}

// A folder with three icons (one upper-cased), a text file and a folder named like an icon.
struct IconFolder {
    QTemporaryDir dir;
    IconFolder() {
        for (const char* name : {"a.ico", "b.ico", "C.ICO", "note.txt"})
            Touch(dir.filePath(QString::fromLatin1(name)));
        QDir(dir.path()).mkdir(QStringLiteral("sub.ico"));
    }
    std::string Path() const { return dir.path().toStdString(); }
    std::string Sub() const { return dir.filePath(QStringLiteral("sub.ico")).toStdString(); }
};

// The question's text and when it comes are the model's; here cmdOK reaches the program's
// message box, and its answer decides whether the dialog closes.
TEST(DirDialog, OkAsksThroughTheMessageBoxAndNoKeepsTheDialog) {
    CurrentDirGuard cwd;
    IconFolder icons;
    for (const MsgAnswer answer : {MsgAnswer::No, MsgAnswer::Yes}) {
        test::ScriptedHost host;
        test::ScopedScriptedDialogs scripted(host);
        host.Answer(answer);
        frmDirDialog dlg("*.ico", icons.Sub(), false);
        dlg.show();
        dlg.cmdOK->click();
        ASSERT_EQ(host.shown.size(), 1u);
        EXPECT_EQ(host.shown[0].text,
                  "There is no ico files directly in selected folder.\r\nProceed still?");
        EXPECT_EQ(dlg.result() == QDialog::Accepted, answer == MsgAnswer::Yes);
        EXPECT_EQ(dlg.isVisible(), answer == MsgAnswer::No);
        EXPECT_EQ(dlg.ChosenFolder(), icons.Sub());
    }
}

TEST(DirDialog, ShowsTheModelsFilesCountAndFolder) {
    CurrentDirGuard cwd;
    IconFolder icons;
    frmDirDialog dlg("*.ico", icons.Path(), false);
    EXPECT_EQ(dlg.lblIconsInDir->text(), QStringLiteral("ICO files in dir:  3"));
    EXPECT_EQ(Texts(dlg.FileListBox1), (QStringList{"a.ico", "b.ico", "C.ICO"}));
    EXPECT_EQ(dlg.cboFilePattern->currentText(), QStringLiteral("*.ico"));
    EXPECT_EQ(dlg.lblSelectedDir->text().toStdString(), icons.Path());
    EXPECT_EQ(QDir::currentPath().toStdString(), icons.Path());

    frmDirDialog none("", icons.Path(), false);
    EXPECT_EQ(none.cboFilePattern->currentText(), QStringLiteral("XYZ!@#$%^"));
    EXPECT_TRUE(none.lblIconsInDir->text().isEmpty());
    EXPECT_EQ(none.FileListBox1->count(), 0);
}

TEST(DirDialog, FolderListEntersSubfoldersAndTakesThePatternAgain) {
    CurrentDirGuard cwd;
    IconFolder icons;
    Touch(QString::fromStdString(icons.Sub() + "/d.ico"));
    frmDirDialog dlg("*.ico", icons.Path(), true);
    // The ancestors down to the open folder, then its subfolder, last.
    QListWidget* dirs = dlg.DirListBox1;
    ASSERT_GE(dirs->count(), 3);
    EXPECT_EQ(dirs->item(0)->text(), QStringLiteral("/"));
    EXPECT_EQ(dirs->currentItem(), dirs->item(dirs->count() - 2));
    EXPECT_EQ(dirs->item(dirs->count() - 1)->text().trimmed(), QStringLiteral("sub.ico"));

    dlg.cboFilePattern->setEditText(QStringLiteral("*.txt"));
    EXPECT_EQ(Texts(dlg.FileListBox1), QStringList{"note.txt"});
    emit dirs->itemActivated(dirs->item(dirs->count() - 1));
    EXPECT_EQ(dlg.Folder(), icons.Sub());
    EXPECT_EQ(QDir::currentPath().toStdString(), icons.Sub());
    EXPECT_EQ(Texts(dlg.FileListBox1), QStringList{"d.ico"});
    EXPECT_EQ(dlg.lblIconsInDir->text(), QStringLiteral("ICO files in dir:  1"));
}

// A folder is entered by its row, so a name that isn't UTF-8 (shown with replacement
// characters) still leads to the folder itself.
TEST(DirDialog, FolderWhoseNameIsNotUtf8IsEnteredFromItsRow) {
    CurrentDirGuard cwd;
    IconFolder icons;
    const std::string odd = icons.Path() + "/f\xff";
    ASSERT_TRUE(std::filesystem::create_directory(odd));
    frmDirDialog dlg("*.ico", icons.Path(), false);
    QListWidget* dirs = dlg.DirListBox1;
    const int row = dirs->count() - 2;  // "f\xff" sorts before "sub.ico"
    ASSERT_TRUE(dirs->item(row)->text().trimmed().startsWith(QLatin1Char('f')));
    emit dirs->itemActivated(dirs->item(row));
    EXPECT_EQ(dlg.Folder(), odd);
    EXPECT_EQ(dirs->currentRow(), dirs->count() - 1);
}

TEST(DirDialog, DriveThatCannotBeEnteredLeavesBothLists) {
    CurrentDirGuard cwd;
    IconFolder icons;
    frmDirDialog dlg("*.ico", icons.Path(), false);
    const QStringList dirs = Texts(dlg.DirListBox1);
    const QStringList files = Texts(dlg.FileListBox1);
    const QString drive = dlg.DriveListBox1->currentText();

    dlg.DriveListBox1->addItem(QStringLiteral("/no/such/drive"));
    dlg.DriveListBox1->setCurrentIndex(dlg.DriveListBox1->count() - 1);
    EXPECT_FALSE(dlg.DriveChanged());
    EXPECT_EQ(Texts(dlg.DirListBox1), dirs);
    EXPECT_EQ(Texts(dlg.FileListBox1), files);
    EXPECT_EQ(dlg.DriveListBox1->currentText(), drive);
    EXPECT_EQ(dlg.Folder(), icons.Path());
    EXPECT_EQ(QDir::currentPath().toStdString(), icons.Path());

    dlg.DriveListBox1->setCurrentIndex(dlg.DriveListBox1->findText(QStringLiteral("/")));
    EXPECT_TRUE(dlg.DriveChanged());
    EXPECT_EQ(dlg.Folder(), "/");
}

TEST(DirDialog, NarrowAndWideLayouts) {
    CurrentDirGuard cwd;
    for (const bool extendable : {false, true}) {
        frmDirDialog dlg("", QDir::tempPath().toStdString(), extendable);
        dlg.show();
        EXPECT_EQ(dlg.windowTitle(), QStringLiteral("Directory dialog"));
        EXPECT_EQ(dlg.width(), 300);
        EXPECT_FALSE(dlg.FileListBox1->isVisible());
        EXPECT_EQ(dlg.cmdExtend->isVisible(), extendable);
        dlg.cmdExtend->click();
        EXPECT_EQ(dlg.width(), 503);
        EXPECT_TRUE(dlg.FileListBox1->isVisible());
        dlg.cmdShrink->click();
        EXPECT_EQ(dlg.width(), 300);
        EXPECT_TRUE(dlg.cmdExtend->isVisible());
    }
}

TEST(DirDialog, GetFolderSpecStartsThereAndAnswersTheFolderOrNothing) {
    CurrentDirGuard cwd;
    IconFolder icons;
    gui::WindowHost host;
    for (const bool ok : {true, false}) {
        QDir::setCurrent(QDir::rootPath());
        ModalScript script({[&](QWidget* w) {
            auto* dlg = qobject_cast<frmDirDialog*>(w);
            ASSERT_NE(dlg, nullptr);
            EXPECT_EQ(dlg->Folder(), icons.Path());
            EXPECT_TRUE(dlg->cmdExtend->isHidden());
            if (ok) dlg->cmdOK->click();
            else dlg->cmdCancel->click();
        }});
        EXPECT_EQ(host.GetFolderSpec("*.ico", icons.Path()), ok ? icons.Path() : "");
        // The current directory stays at the folder last opened, also on Cancel.
        EXPECT_EQ(QDir::currentPath().toStdString(), icons.Path());
    }
}

// The file name box of the real file dialog.
QLineEdit* NameEdit(QWidget* w) { return w->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")); }

TEST(FileDialog, OpenShowsTheFiltersInOrderAndAnswersThePath) {
    IconFolder icons;
    const QString dir = icons.dir.path();
    const struct {
        std::int32_t filterIndex;
        const char* typed;  // nullptr: cancel
        const char* shownFilter;
        std::string result;
    } cases[] = {
        {1, "b", "Icon files (*.ico)", icons.Path() + "/b.ico"},  // DefaultExt added
        {2, "note.txt", "(*.*)", icons.Path() + "/note.txt"},
        {7, nullptr, "Icon files (*.ico)", ""},
    };
    utilities::OpenRequest request;
    request.Filter = "Icon files (*.ico)|*.ico|(*.*)|*.*|";
    request.DefaultExt = "ico";
    request.InitDir = icons.Path();
    request.DlgTitle = "Title";
    clsVexloDialog dialogs;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.filterIndex);
        ModalScript script({[&](QWidget* w) {
            auto* fd = qobject_cast<QFileDialog*>(w);
            ASSERT_NE(fd, nullptr);
            EXPECT_TRUE(fd->testOption(QFileDialog::DontUseNativeDialog));
            EXPECT_EQ(fd->fileMode(), QFileDialog::ExistingFile);
            EXPECT_EQ(fd->nameFilters(), (QStringList{"Icon files (*.ico)", "(*.*)"}));
            EXPECT_EQ(fd->selectedNameFilter().toStdString(), c.shownFilter);
            EXPECT_EQ(fd->directory().path(), dir);
            EXPECT_EQ(fd->windowTitle(), QStringLiteral("Title"));
            if (c.typed == nullptr) return fd->reject();
            NameEdit(fd)->setText(QString::fromLatin1(c.typed));
            static_cast<QDialog*>(fd)->accept();  // QFileDialog::accept, as its button
        }});
        request.FilterIndex = c.filterIndex;
        EXPECT_EQ(dialogs.ShowOpen(request), c.result);
    }
}

TEST(FileDialog, SaveAddsDefaultExtAndConfirmsOverwriteOnlyWhenAsked) {
    IconFolder icons;
    const struct {
        const char* typed;
        bool prompt;
        bool confirmExpected;
        std::string result;
    } cases[] = {
        {"new", true, false, icons.Path() + "/new.ico"},
        {"new.bmp", true, false, icons.Path() + "/new.bmp"},
        {"a", true, true, icons.Path() + "/a.ico"},
        {"a.ico", false, false, icons.Path() + "/a.ico"},
    };
    utilities::SaveRequest request;
    request.FileName = icons.Path() + "/proposed.ico";
    request.Filter = "Icon files (*.ico)|*.ico|(*.*)|*.*|";
    request.DefaultExt = "ico";
    clsVexloDialog dialogs;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        std::vector<ModalScript::Step> steps{[&](QWidget* w) {
            auto* fd = qobject_cast<QFileDialog*>(w);
            ASSERT_NE(fd, nullptr);
            EXPECT_EQ(fd->acceptMode(), QFileDialog::AcceptSave);
            NameEdit(fd)->setText(QString::fromLatin1(c.typed));
            static_cast<QDialog*>(fd)->accept();  // QFileDialog::accept, as its button
        }};
        // Qt's own question over an existing file.
        if (c.confirmExpected) {
            steps.push_back([](QWidget* w) {
                auto* box = qobject_cast<QMessageBox*>(w);
                ASSERT_NE(box, nullptr);
                box->button(QMessageBox::Yes)->click();
            });
        }
        ModalScript script(std::move(steps));
        request.OverWritePrompt = c.prompt;
        EXPECT_EQ(dialogs.ShowSave(request), c.result);
    }
}

TEST(ColorDialog, StartsAtTheColorWithSixteenWhiteCustomColorsEachTime) {
    clsVexloDialog dialogs;
    const auto expectWhiteCustoms = [] {
        for (int i = 0; i < 16; ++i)
            EXPECT_EQ(QColorDialog::customColor(i).name(), "#ffffff") << "custom color " << i;
    };
    ModalScript script({
        [&](QWidget* w) {
            auto* cd = qobject_cast<QColorDialog*>(w);
            ASSERT_NE(cd, nullptr);
            EXPECT_TRUE(cd->testOption(QColorDialog::DontUseNativeDialog));
            EXPECT_EQ(cd->currentColor().name(), "#112233");
            expectWhiteCustoms();
            QColorDialog::setCustomColor(4, QColor(Qt::red));  // the user adds one
            cd->setCurrentColor(QColor(0x01, 0x02, 0x03));
            cd->accept();
        },
        [&](QWidget* w) {
            auto* cd = qobject_cast<QColorDialog*>(w);
            ASSERT_NE(cd, nullptr);
            EXPECT_EQ(cd->currentColor().name(), "#010203");
            expectWhiteCustoms();
            cd->reject();
        },
    });
    EXPECT_EQ(dialogs.ShowColor(0x00332211, true), 0x00030201);
    EXPECT_EQ(dialogs.ShowColor(0x00030201, true), -1);
}

TEST(PrintDialog, KeepsTheValuesOfTheLastConfirmedCall) {
    QTemporaryDir dir;
    clsVexloDialog dialogs;
    QPrinter& printer = dialogs.Device();
    printer.setOutputFileName(dir.filePath(QStringLiteral("out.pdf")));
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setPageSize(QPageSize(QPageSize::A5));
    printer.setCopyCount(3);
    const auto close = [](bool accept) {
        return [accept](QWidget* w) {
            ASSERT_NE(qobject_cast<QPrintDialog*>(w), nullptr);
            accept ? qobject_cast<QDialog*>(w)->accept() : qobject_cast<QDialog*>(w)->reject();
        };
    };
    ModalScript script({close(false), close(true)});
    const utilities::PrinterRequest request;
    EXPECT_FALSE(dialogs.ShowPrinter(request));
    EXPECT_EQ(dialogs.Orientation(), 1);  // untouched by a cancelled call
    EXPECT_EQ(dialogs.PaperSize(), 9);
    EXPECT_TRUE(dialogs.ShowPrinter(request));
    EXPECT_EQ(dialogs.Orientation(), 2);
    EXPECT_EQ(dialogs.PaperSize(), 11);  // DMPAPER_A5
    EXPECT_EQ(dialogs.Copies(), 3);
    EXPECT_EQ(dialogs.Quality(), printer.resolution());
}

}  // namespace
}  // namespace vexlo::gui
