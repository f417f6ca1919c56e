#pragma once
// frmVexloMultiIcon: the modal dialog that shows the images of one multi-icon file. Its Edit
// face (MultiIconAddMode 0) lets the user pick the image to open; its Add face (1) shows what
// the target file holds before the current icon is added to it. Both faces remove an image
// from the file and save one or all images to single-icon files. The work is done by
// core/files/multi_icon_list.h on the file's bytes; only the preview decodes an image.
//
// The controls are public and every step is a method, so that the dialog can be driven
// without exec(). The controls are arrays indexed by face: 0 Edit, 1 Add.
#include <QDialog>

#include <array>
#include <memory>
#include <string>

#include "core/alpha/alpha_array.h"
#include "core/files/icon_set.h"
#include "core/files/multi_icon_list.h"
#include "core/surface/surface.h"

class QLabel;
class QListWidget;
class QPushButton;
class QShowEvent;

namespace vexlo::gui {

class clsVexloDialog;
class SurfaceView;

// What the dialog leaves behind. Choice is MultiIconChoice: "index/size/colors/bits" when Edit
// was pressed, with the image's planes and (for a true-color image) its alpha values; "1" for
// Save and "2" for Save As on the Add face; empty when closed or the file couldn't be read.
struct MultiIconResult {
    std::string Choice;
    surface::Surface Image, Mask;
    alpha::AlphaArray Alpha;
};

class frmVexloMultiIcon : public QDialog {
    Q_OBJECT
public:
    // fileSpec: MultiIconFileSpec; addMode: MultiIconAddMode, 0 Edit, 1 Add. The captions the
    // caller sets (the path, the description of the icon to add) keep their defaults until set.
    frmVexloMultiIcon(const std::string& fileSpec, int addMode, QWidget* parent = nullptr);
    ~frmVexloMultiIcon() override;

    // Shows the dialog modally and answers what it left. Edit (addMode 0): lblFileToEdit(0)
    // shows the path. Add (1): lblExistingFile(1) the path, lblCurrIcon(1) addDescription and
    // PicCurrIcon a copy of iconToAdd. A file that can't be read answers empty at once,
    // without a window or a message.
    static MultiIconResult Run(QWidget* parent, const std::string& fileSpec, int addMode,
                               const surface::Surface* iconToAdd, const std::string& addDescription);

    // The Add face's picture of the icon to add: a copy of icon, centred on lblCurrIconBase.
    void SetIconToAdd(const surface::Surface& icon);

    // First activation: reads the file, fills the list, selects and previews; in Add mode the
    // focus goes to cmdSaveAdd(0). False (and the dialog closed, the answer empty) if the
    // file can't be read. Runs once; showing the dialog runs it if nobody did before.
    bool Activate();

    // Selects the line at position of the face's list, which runs its preview unless
    // ListGuard is set (as a click does). -1 clears the selection.
    void Highlight(int position);
    // The preview of the selected line of list k: reads the image afresh from the disk.
    void Preview(int k);
    // cmdEdit: refuses a depth that can't be opened, else reads the image, sets the choice
    // and closes.
    void ClickEdit();
    // cmdRemove, cmdSplitSave, cmdSaveSingle of the current face.
    void ClickRemove();
    void ClickSplitSave();
    void ClickSaveSingle();
    // cmdSaveAdd(k): the choice "1" (k 0, Save) or "2" (k 1, Save As), and the dialog closes.
    void ClickSaveAdd(int k);
    // cmdClose: the choice empty, the dialog closes.
    void ClickClose();

    // What the dialog answers now (the planes only after Edit).
    MultiIconResult Result() const;
    const std::string& Choice() const { return m_choice; }
    int AddFace() const { return m_addFace; }
    bool ListGuard() const { return m_listGuard; }
    bool FirstActivation() const { return m_firstActivation; }
    const std::string& FileSpec() const { return m_fileSpec; }
    // The set in memory (empty after a removal failed) and the lines with their images.
    const files::IconSet& Set() const { return m_set; }
    const files::MultiIconList& List() const { return m_list; }
    // The picture that picIconInFile(k) shows, and the planes last read (picImageX, picMaskX).
    const surface::Surface& IconInFile(int k) const { return m_iconInFile[Face(k)]; }
    const surface::Surface& ImageX() const { return m_picImageX; }
    const surface::Surface& MaskX() const { return m_picMaskX; }
    const surface::Surface& CurrIcon() const { return m_currIcon; }

    std::array<QWidget*, 2> picContainer{};
    std::array<QListWidget*, 2> lisIcons{};
    std::array<SurfaceView*, 2> picIconInFile{};
    std::array<QLabel*, 2> lblIconInFile{};
    std::array<QPushButton*, 2> cmdRemove{};
    std::array<QPushButton*, 2> cmdSplitSave{};
    std::array<QPushButton*, 2> cmdSaveSingle{};
    std::array<QPushButton*, 2> cmdClose{};
    QPushButton* cmdEdit = nullptr;
    std::array<QPushButton*, 2> cmdSaveAdd{};  // both on the Add face: Save, Save As
    std::array<QLabel*, 2> lblFileToEdit{};
    std::array<QLabel*, 3> lblExistingFile{};
    std::array<QLabel*, 2> lblCurrIcon{};
    QLabel* lblCurrIconBase = nullptr;
    SurfaceView* PicCurrIcon = nullptr;

protected:
    void showEvent(QShowEvent* event) override;
    // Closing releases the set in memory.
    void done(int result) override;

private:
    // The hourglass pointer while in scope.
    struct Hourglass {
        Hourglass();
        ~Hourglass();
        Hourglass(const Hourglass&) = delete;
        Hourglass& operator=(const Hourglass&) = delete;
    };

    static int Face(int k) { return k == 1 ? 1 : 0; }
    void BuildEditFace();
    void BuildAddFace();
    // The controls that both faces have (list, preview, file buttons, Close) in face k.
    void BuildCommonControls(int k);
    void CentreOnScreen();
    // ReadListedFile and FillIconList.
    bool ReadListedFile();
    void FillIconList();
    // The item of the selected line of the face's list, or null.
    const files::MultiIconListItem* SelectedItem(int k) const;
    // Selects position of list k with ListGuard set, so no preview runs.
    void SelectQuietly(int k, int position);
    // GetFolderSpec: the folder chosen in frmDirDialog, or empty.
    std::string GetFolderSpec(const std::string& pattern);
    clsVexloDialog& Dialog();

    std::string m_fileSpec;
    int m_addFace = 0;
    bool m_listGuard = false;
    bool m_firstActivation = true;
    std::string m_choice;
    files::IconSet m_set;
    files::MultiIconList m_list;
    std::array<surface::Surface, 2> m_iconInFile;
    surface::Surface m_picImageX, m_picMaskX;
    alpha::AlphaArray m_incomingAlpha;
    surface::Surface m_currIcon;
    std::unique_ptr<clsVexloDialog> m_dialog;
};

}  // namespace vexlo::gui
