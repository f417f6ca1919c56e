#pragma once
// frmDirDialog: the folder dialog. A drive list (the mounted volumes by root path), the folder
// list (the open folder's ancestors, itself and its subfolders), and in its wide layout the
// files of the open folder that match a pattern, with their count. What the lists hold and
// what each button decides is utilities::DirDialogModel; the dialog forwards its events there
// and redraws from it. Every step is a method, so that the dialog can be driven without
// exec().
#include <QDialog>
#include <QString>
#include <memory>
#include <string>

#include "core/utilities/dir_dialog_model.h"

class QComboBox;
class QKeyEvent;
class QLabel;
class QListWidget;
class QPushButton;

namespace vexlo::gui {

class frmDirDialog : public QDialog {
    Q_OBJECT
public:
    // pattern: the files to show and count ("" for none); extendable: whether cmdExtend is
    // shown. The dialog opens at startFolder, or at the current directory when that is empty
    // or can't be entered. It is narrow and centred.
    frmDirDialog(const std::string& pattern, const std::string& startFolder, bool extendable,
                 QWidget* parent = nullptr);

    // Shows the dialog modally: the folder chosen, "" on Cancel. Goes to the installed folder
    // handler instead when there is one.
    static std::string Ask(const std::string& pattern, const std::string& startFolder,
                           bool extendable, QWidget* parent = nullptr);

    // Folder change: opens folder, which becomes the chosen folder and the current directory,
    // and lists its files by the pattern. False, with nothing changed, when it can't be entered.
    bool SetFolder(const std::string& folder);
    // Drive change to the drive selected in DriveListBox1. A drive that can't be entered
    // leaves both lists as they were, puts the drive list back on the open folder's drive,
    // and answers false; no message.
    bool DriveChanged();
    // Pattern change: FileListBox1 shows the open folder's files that match pattern.
    void SetFilePattern(const QString& pattern);
    // cmdOK: asks when the file list is empty and the pattern is longer than 3 characters;
    // true when the dialog closed with the open folder.
    bool ClickOK();
    // cmdCancel: the chosen folder becomes "", and the dialog closes.
    void ClickCancel();
    // The narrow layout (core controls) and the wide one (with the file part); each centres.
    void Shrink();
    void Extend();
    bool IsWide() const { return m_model.IsWide(); }

    // The open folder (the folder list's path) and the folder the dialog answers.
    const std::string& Folder() const { return m_model.Folder(); }
    const std::string& ChosenFolder() const { return m_model.ChosenFolder(); }
    const utilities::DirDialogModel& Model() const { return m_model; }

    // 4500 and 7550 twips at 15 twips a pixel.
    static constexpr int kNarrowWidth = 300;
    static constexpr int kWideWidth = 503;
    static constexpr int kHeight = 330;
    // The pattern that no file matches, shown when none is given.
    static constexpr const char* kNoPattern = utilities::DirDialogModel::kNoPattern;

    QComboBox* DriveListBox1 = nullptr;
    QListWidget* DirListBox1 = nullptr;
    QListWidget* FileListBox1 = nullptr;
    QComboBox* cboFilePattern = nullptr;
    QLabel* lblFilePattern = nullptr;
    QLabel* lblSelectedDir = nullptr;
    QLabel* lblIconsInDir = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdShrink = nullptr;
    QPushButton* cmdExtend = nullptr;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FillDrives();
    // Selects the drive whose root holds folder: the longest root that is a prefix of it.
    void SelectDriveOf(const std::string& folder);
    // Redraws the folder list, the labels and the file list from the model.
    void Redraw();
    void FillFiles();
    // The layout the model is in, centred on the screen.
    void ApplyLayout();
    void CentreOnScreen();

    // Asks the model's question with the program's message box; declared before m_model,
    // which keeps a reference to it.
    std::unique_ptr<host::Host> m_host;
    utilities::DirDialogModel m_model;
    QWidget* m_filePart = nullptr;
};

}  // namespace vexlo::gui
