// frmVexloMultiIcon: the entry point that shows the dialog, the forwarding of each event to
// the model, and the redraw of the controls from the model's state.
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>

#include "gui/files/frm_vexlo_multi_icon.h"
#include "gui/files/icon_list_box.h"
#include "gui/platform/surface_view.h"

namespace vexlo::gui {

namespace {

// Gives view the size of its Surface and centres it on frame.
void CentreOn(SurfaceView* view, const QLabel* frame) {
    const QSize size = view->sizeHint();
    const QRect area = frame->geometry();
    view->setGeometry(area.x() + (area.width() - size.width()) / 2,
                      area.y() + (area.height() - size.height()) / 2, size.width(), size.height());
    view->raise();
    view->update();
}

}  // namespace

host::MultiIconAnswer frmVexloMultiIcon::Run(host::Host& host, QWidget* parent, const std::string& fileSpec,
                                             int addMode, const surface::Surface* iconToAdd,
                                             const std::string& addDescription) {
    frmVexloMultiIcon dlg(host, fileSpec, addMode, parent);
    const QString path = QString::fromStdString(fileSpec);
    if (dlg.Model().AddFace() == 1) {
        dlg.lblExistingFile[1]->setText(path);
        dlg.SetIconToAdd(iconToAdd != nullptr ? *iconToAdd : surface::Surface(), addDescription);
    } else {
        dlg.lblFileToEdit[0]->setText(path);
    }
    if (dlg.Activate()) dlg.exec();
    return dlg.Model().Answer();
}

void frmVexloMultiIcon::SetIconToAdd(const surface::Surface& icon, const std::string& description) {
    m_model.SetIconToAdd(icon, description);
    lblCurrIcon[1]->setText(QString::fromStdString(description));
    CentreOn(PicCurrIcon, lblCurrIconBase);
}

bool frmVexloMultiIcon::Activate() {
    if (!m_model.FirstActivation()) return !m_model.Closed();
    const bool read = m_model.Activate();
    Redraw();
    if (!read) {
        // A dialog being shown closes once its event loop runs: closing it within show()
        // would leave exec() waiting on a hidden dialog.
        if (isVisible())
            QTimer::singleShot(0, this, [this] { reject(); });
        else
            reject();
    }
    return read;
}

void frmVexloMultiIcon::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (m_model.FirstActivation()) Activate();
}

void frmVexloMultiIcon::done(int result) {
    m_model.Unload();
    QDialog::done(result);
}

void frmVexloMultiIcon::Forward(const std::function<void(files::MultiIconManager&)>& step) {
    step(m_model);
    Redraw();
    if (m_model.Closed()) {
        if (m_model.Choice().empty())
            reject();
        else
            accept();
    }
}

void frmVexloMultiIcon::Redraw() {
    const int k = m_model.AddFace();
    const auto face = static_cast<std::size_t>(k);
    IconListBox* list = lisIcons[face];

    // The lines, rebuilt only when they differ, so that the list keeps its scroll position.
    QStringList lines;
    for (const files::MultiIconListItem& item : m_model.List().Items) lines << QString::fromStdString(item.Line);
    bool same = list->count() == lines.size();
    for (int p = 0; same && p < list->count(); ++p) same = list->item(p)->text() == lines[p];
    if (!same) list->SetLinesQuietly(lines);
    if (list->SelectedRow() != m_model.Selected() || list->currentRow() != m_model.Selected())
        list->SelectQuietly(m_model.Selected());

    const files::MultiIconButtons buttons = m_model.Buttons();
    cmdEdit->setEnabled(buttons.Edit);
    cmdSaveAdd[0]->setEnabled(buttons.Save);
    cmdSaveAdd[1]->setEnabled(buttons.SaveAs);
    cmdRemove[face]->setEnabled(buttons.Remove);
    cmdSplitSave[face]->setEnabled(buttons.SplitSave);
    cmdSaveSingle[face]->setEnabled(buttons.SaveSingle);

    CentreOn(picIconInFile[face], lblIconInFile[face]);
    CentreOn(PicCurrIcon, lblCurrIconBase);

    switch (m_model.TakeFocus()) {
        case files::MultiIconFocus::List: list->setFocus(); break;
        case files::MultiIconFocus::Save: cmdSaveAdd[0]->setFocus(); break;
        case files::MultiIconFocus::None: break;
    }
}

}  // namespace vexlo::gui
