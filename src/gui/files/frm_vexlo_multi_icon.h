#pragma once
// frmVexloMultiIcon: the modal dialog that shows the images of one multi-icon file, on Qt. Its
// Edit face (add mode 0) lets the user pick the image to open; its Add face (1) shows what the
// target file holds before the current icon is added to it. The dialog's state and every step
// are files::MultiIconManager's, which asks its questions through the Host it is given: the
// window builds the controls, forwards each click and each change of the list's selection to
// the model, and redraws itself from the model's state.
//
// The controls are public, arrays indexed by face: 0 Edit, 1 Add.
#include <QDialog>

#include <array>
#include <functional>
#include <string>

#include "core/files/multi_icon_manager.h"
#include "core/host/host.h"
#include "core/surface/surface.h"

class QLabel;
class QPushButton;
class QShowEvent;

namespace vexlo::gui {

class IconListBox;
class SurfaceView;

class frmVexloMultiIcon : public QDialog {
    Q_OBJECT
public:
    // fileSpec: MultiIconFileSpec; addMode: MultiIconAddMode, 0 Edit, 1 Add. The model asks
    // host its questions. The captions the caller sets keep their defaults until set.
    frmVexloMultiIcon(host::Host& host, const std::string& fileSpec, int addMode, QWidget* parent = nullptr);
    ~frmVexloMultiIcon() override;

    // Shows the dialog modally and answers what it left. Edit (addMode 0): lblFileToEdit(0)
    // shows the path. Add (1): lblExistingFile(1) the path, lblCurrIcon(1) addDescription and
    // PicCurrIcon a copy of iconToAdd. A file that can't be read answers empty at once,
    // without a window or a message.
    static host::MultiIconAnswer Run(host::Host& host, QWidget* parent, const std::string& fileSpec, int addMode,
                                     const surface::Surface* iconToAdd, const std::string& addDescription);

    // The Add face's icon to add (centred on lblCurrIconBase) and its description.
    void SetIconToAdd(const surface::Surface& icon, const std::string& description);
    // The model's first activation, then the controls follow it. False (and the dialog
    // closed) if the file can't be read. Showing the dialog runs it if nobody did before.
    bool Activate();

    const files::MultiIconManager& Model() const { return m_model; }

    std::array<QWidget*, 2> picContainer{};
    std::array<IconListBox*, 2> lisIcons{};
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
    void BuildEditFace();
    void BuildAddFace();
    // The controls that both faces have (list, preview, file buttons, Close) in face k.
    void BuildCommonControls(int k);
    void CentreOnScreen();
    // Runs one step of the model, redraws, and closes the dialog if the step closed it.
    void Forward(const std::function<void(files::MultiIconManager&)>& step);
    // The controls from the model: the list's lines and selection, the buttons, the
    // pictures, and the focus a step asked for.
    void Redraw();

    files::MultiIconManager m_model;
};

}  // namespace vexlo::gui
