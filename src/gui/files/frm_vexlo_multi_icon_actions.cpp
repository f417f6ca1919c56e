// frmVexloMultiIcon: the buttons (Edit, Remove, Split Save, Save Single, Save, Save As,
// Close), the folder question, and the entry point that shows the dialog.
#include <QCoreApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "core/files/ico_read.h"
#include "core/host/host.h"
#include "gui/files/frm_vexlo_multi_icon.h"
#include "gui/platform/message_box.h"
#include "gui/utilities/cls_vexlo_dialog.h"
#include "gui/utilities/frm_dir_dialog.h"

namespace vexlo::gui {

namespace {

using host::MsgAnswer;
using host::MsgButtons;
using host::MsgIcon;

void Tell(const std::string& text) {
    platform::ShowMessageBox(text, MsgButtons::Ok, MsgIcon::None, host::kTitle);
}

bool Confirm(const std::string& question) {
    return platform::ShowMessageBox(question, MsgButtons::YesNo, MsgIcon::Question, host::kTitle) ==
           MsgAnswer::Yes;
}

}  // namespace

MultiIconResult frmVexloMultiIcon::Run(QWidget* parent, const std::string& fileSpec, int addMode,
                                       const surface::Surface* iconToAdd,
                                       const std::string& addDescription) {
    frmVexloMultiIcon dlg(fileSpec, addMode, parent);
    const QString path = QString::fromStdString(fileSpec);
    if (dlg.AddFace() == 1) {
        dlg.lblExistingFile[1]->setText(path);
        dlg.lblCurrIcon[1]->setText(QString::fromStdString(addDescription));
        if (iconToAdd != nullptr) dlg.SetIconToAdd(*iconToAdd);
    } else {
        dlg.lblFileToEdit[0]->setText(path);
    }
    if (!dlg.Activate()) return {};
    dlg.exec();
    return dlg.Result();
}

MultiIconResult frmVexloMultiIcon::Result() const {
    MultiIconResult result;
    result.Choice = m_choice;
    if (m_addFace == 0 && !m_choice.empty()) {
        result.Image = m_picImageX;
        result.Mask = m_picMaskX;
        result.Alpha = m_incomingAlpha;
    }
    return result;
}

void frmVexloMultiIcon::ClickEdit() {
    if (m_listGuard || m_addFace != 0) return;
    const files::MultiIconListItem* selected = SelectedItem(0);
    if (selected == nullptr) return;
    const files::MultiIconListItem item = *selected;
    if (const std::string refusal = files::EditRefusal(item.Bits); !refusal.empty()) {
        Tell(refusal);
        return;
    }
    // The image is read afresh, so the planes handed over are those of the chosen image even
    // if its preview failed or the file changed since; its alpha values, if any, come along.
    alpha::AlphaArray incomingAlpha;
    incomingAlpha.SetSingle();
    bool read = false;
    {
        const Hourglass wait;
        read = files::ReadIconFileToImage(m_fileSpec, item.Index, m_picImageX, m_picMaskX, incomingAlpha);
    }
    if (!read) {
        Tell(files::UnableToGetMessage(item.Index + 1));
        return;
    }
    m_incomingAlpha = std::move(incomingAlpha);
    m_choice = files::EditChoiceText(item);
    accept();
}

void frmVexloMultiIcon::ClickRemove() {
    const int k = m_addFace;
    QListWidget* list = lisIcons[static_cast<std::size_t>(k)];
    const files::MultiIconListItem* selected = SelectedItem(k);
    if (selected == nullptr) return;
    list->setFocus();
    if (m_set.Count() < 1) return;
    if (m_set.Count() == 1) {
        Tell(files::kLastIconStays);
        return;
    }
    const int index = selected->Index;
    const int position = list->currentRow();
    if (!Confirm(files::RemoveQuestion(m_fileSpec))) return;

    files::SetResult removed;
    {
        const Hourglass wait;
        removed = files::RemoveListedImage(m_fileSpec, m_set, index);
        if (removed) {
            // The set and the list become what the file now says.
            m_listGuard = true;
            ReadListedFile();
            FillIconList();
            m_listGuard = false;
            SelectQuietly(k, files::SelectionAfterRemoval(position, list->count()));
        }
    }
    if (!removed) {
        // The list keeps its lines while the set stays empty: the file buttons do nothing
        // more until the dialog is shown again.
        Tell(removed.Message);
        return;
    }
    Preview(k);
}

void frmVexloMultiIcon::ClickSplitSave() {
    const int k = m_addFace;
    QListWidget* list = lisIcons[static_cast<std::size_t>(k)];
    if (SelectedItem(k) == nullptr) return;
    list->setFocus();
    if (m_set.Count() < 1) return;
    const std::string folder = GetFolderSpec("");
    if (folder.empty()) return;
    const int kept = list->currentRow();
    const int lines = list->count();
    const std::string stem = files::SplitSaveStem(folder, m_fileSpec);
    if (!Confirm(files::SplitSaveQuestion(stem, lines))) return;

    // The list walks through the file, each image previewed as its file is written.
    const std::vector<std::string> paths = files::SplitSavePaths(stem, m_list);
    for (int p = 0; p < lines && p < m_list.Count(); ++p) {
        Highlight(p);
        const Hourglass wait;
        files::WriteSingleIcon(m_set, m_list.Items[static_cast<std::size_t>(p)].Index,
                               paths[static_cast<std::size_t>(p)]);
    }
    Highlight(kept);
}

void frmVexloMultiIcon::ClickSaveSingle() {
    const int k = m_addFace;
    const files::MultiIconListItem* selected = SelectedItem(k);
    if (selected == nullptr) return;
    lisIcons[static_cast<std::size_t>(k)]->setFocus();
    if (m_set.Count() < 1) return;
    const files::MultiIconListItem item = *selected;

    utilities::SaveRequest request;
    request.FileName = files::SingleIconSuggestion(m_fileSpec, item);
    request.Filter = files::kSingleIconFilter;
    request.DefaultExt = files::kSingleIconExt;
    request.OverWritePrompt = true;
    const std::string path = Dialog().ShowSave(request);
    if (path.empty()) return;
    const Hourglass wait;
    files::WriteSingleIcon(m_set, item.Index, path);
}

void frmVexloMultiIcon::ClickSaveAdd(int k) {
    if (m_addFace != 1) return;
    if (SelectedItem(1) == nullptr) {
        Tell(files::kNoIconListed);
        return;
    }
    // Appended, not assigned from a char pointer: GCC 12 at -O3 gives a false -Wrestrict there.
    m_choice.clear();
    m_choice += Face(k) == 0 ? files::kChoiceSave : files::kChoiceSaveAs;
    accept();
}

void frmVexloMultiIcon::ClickClose() {
    m_choice.clear();
    reject();
}

std::string frmVexloMultiIcon::GetFolderSpec(const std::string& pattern) {
    // The folder dialog opens in the program's folder, not extendable.
    return frmDirDialog::Ask(pattern, QCoreApplication::applicationDirPath().toStdString(), false, this);
}

}  // namespace vexlo::gui
