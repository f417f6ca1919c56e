#include "core/files/multi_icon_manager.h"

#include <utility>

#include "core/files/ico_read.h"
#include "core/utilities/dialog_requests.h"

namespace vexlo::files {

namespace {

using host::MsgAnswer;
using host::MsgButtons;
using host::MsgIcon;

// The hourglass pointer while in scope, or until Release.
class Hourglass {
public:
    explicit Hourglass(host::Host& host) : m_host(host) { m_host.SetHourglass(true); }
    ~Hourglass() { Release(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

    void Release() {
        if (m_on) m_host.SetHourglass(false);
        m_on = false;
    }

private:
    host::Host& m_host;
    bool m_on = true;
};

// Planes of side x side: cleared to their back color, then src copied from the top left.
surface::Surface CopyAtSize(const surface::Surface& src, int side) {
    surface::Surface out(side, side, src.BackColor());
    surface::BitBlt(out, 0, 0, side, side, src, 0, 0, surface::Rop::SrcCopy);
    return out;
}

}  // namespace

MultiIconManager::MultiIconManager(host::Host& host, std::string fileSpec, int addMode, std::string programDir)
    : m_host(host), m_fileSpec(std::move(fileSpec)), m_addFace(addMode == 1 ? 1 : 0),
      m_programDir(std::move(programDir)) {
    for (surface::Surface& s : m_iconInFile) s.SetBackColor(kPreviewBack);
    m_currIcon.SetBackColor(kPreviewBack);
    // What Edit hands over where no image was read: transparent pixels.
    m_picImageX.SetBackColor(0x000000);
    m_picMaskX.SetBackColor(0xFFFFFF);
    m_incomingAlpha.SetSingle();
}

void MultiIconManager::SetIconToAdd(const surface::Surface& icon, std::string description) {
    m_currIcon = icon;
    m_currIcon.SetBackColor(kPreviewBack);
    m_currDescription = std::move(description);
}

const char* MultiIconManager::Caption() const {
    return m_addFace == 1 ? kAddFaceCaption : kEditFaceCaption;
}

MultiIconFocus MultiIconManager::TakeFocus() { return std::exchange(m_focus, MultiIconFocus::None); }

host::MultiIconAnswer MultiIconManager::Answer() const {
    host::MultiIconAnswer answer;
    answer.Choice = m_choice;
    if (m_addFace == 0 && !m_choice.empty()) {
        answer.Image = m_chosenImage;
        answer.Mask = m_chosenMask;
        answer.Alpha = m_incomingAlpha;
    }
    return answer;
}

// ---- Activation and the list -------------------------------------------------------------

bool MultiIconManager::Activate() {
    if (!m_firstActivation) return !m_closed;
    m_choice.clear();
    m_incomingAlpha.SetSingle();
    m_iconInFile[static_cast<std::size_t>(m_addFace)].Clear();

    m_listGuard = true;
    if (!ReadListedFile()) {
        // No message: the dialog closes with an empty answer.
        m_firstActivation = false;
        m_closed = true;
        return false;
    }
    FillIconList();
    m_listGuard = false;

    if (SelectedItem() != nullptr) {
        Preview();
        if (m_addFace == 1) m_focus = MultiIconFocus::Save;
    }
    m_firstActivation = false;
    return true;
}

bool MultiIconManager::ReadListedFile() { return ReadIconSet(m_fileSpec, m_set) > 0; }

void MultiIconManager::FillIconList() {
    // A set that couldn't be read leaves the list as it was.
    if (m_set.Count() < 1) return;
    m_list = BuildMultiIconList(m_set);
    m_selected = -1;
    const bool add = m_addFace == 1;
    if (m_list.Empty()) {
        if (add)
            m_buttons.Save = m_buttons.SaveAs = false;
        else
            m_buttons.Edit = false;
        m_buttons.Remove = m_buttons.SplitSave = m_buttons.SaveSingle = false;
        return;
    }
    if (add) {
        m_selected = 0;
        m_buttons.Save = m_buttons.SaveAs = true;
    } else {
        m_selected = m_list.Pick;
        m_buttons.Edit = true;
    }
    // The file's only image stays: nothing to remove, nothing to split.
    const bool several = m_set.Count() >= 2;
    m_buttons.Remove = m_buttons.SplitSave = m_buttons.SaveSingle = several;
}

void MultiIconManager::Highlight(int position) { SelectAndPreview(position); }

void MultiIconManager::SelectAndPreview(int position) {
    m_selected = m_list.At(position) != nullptr ? position : -1;
    Changed();
    Preview();
}

void MultiIconManager::Preview() {
    if (m_listGuard) return;
    const MultiIconListItem* item = SelectedItem();
    if (item == nullptr) return;
    const int index = item->Index;
    bool read = false;
    {
        const Hourglass wait(m_host);
        read = ReadIconFileToImage(m_fileSpec, index, m_picImageX, m_picMaskX, m_incomingAlpha);
    }
    if (!read) {
        // The selection moves on; the old preview stays.
        Tell(UnableToGetMessage(index + 1));
        return;
    }
    ComposePreview(m_picImageX, m_picMaskX, m_iconInFile[static_cast<std::size_t>(m_addFace)]);
    Changed();
}

// ---- The buttons -------------------------------------------------------------------------

void MultiIconManager::Edit() {
    if (m_listGuard || m_addFace != 0) return;
    const MultiIconListItem* selected = SelectedItem();
    if (selected == nullptr) return;
    const MultiIconListItem item = *selected;
    if (const std::string refusal = EditRefusal(item.Bits); !refusal.empty()) {
        Tell(refusal);
        return;
    }
    // The planes handed over are those the last preview read; the disk isn't read again.
    m_chosenImage = CopyAtSize(m_picImageX, item.Side);
    m_chosenMask = CopyAtSize(m_picMaskX, item.Side);
    m_choice = EditChoiceText(item);
    m_closed = true;
}

void MultiIconManager::Remove() {
    const MultiIconListItem* selected = SelectedItem();
    if (selected == nullptr) return;
    m_focus = MultiIconFocus::List;
    if (m_set.Count() < 1) return;
    if (m_set.Count() == 1) {
        Tell(kLastIconStays);
        return;
    }
    const int index = selected->Index;
    if (!Confirm(RemoveQuestion(m_fileSpec))) return;

    {
        Hourglass wait(m_host);
        // The set in memory loses the image and is written over the file.
        const SetResult removed = RemoveListedImage(m_fileSpec, m_set, index);
        if (!removed) {
            // The list keeps its lines while the set stays empty: Remove, Split Save and
            // Save Single do nothing more until the dialog is shown again.
            wait.Release();
            Tell(removed.Message);
            return;
        }
        // The set and the list become what the file now says.
        m_listGuard = true;
        ReadListedFile();
        FillIconList();
        m_listGuard = false;
        // The image that took the removed one's index, or the one above; an index past the
        // lines names no line, and the removal ends with the selection the list was filled with.
        const int position = SelectionAfterRemoval(index, m_list.Count());
        if (position >= m_list.Count()) {
            Changed();
            return;
        }
        m_selected = position;
        Changed();
    }
    Preview();
}

void MultiIconManager::SplitSave() {
    if (SelectedItem() == nullptr) return;
    m_focus = MultiIconFocus::List;
    if (m_set.Count() < 1) return;
    const std::string folder = m_host.GetFolderSpec("", m_programDir);
    if (folder.empty()) return;
    const int kept = m_selected;
    const int lines = m_list.Count();
    const std::string stem = SplitSaveStem(folder, m_fileSpec);
    if (!Confirm(SplitSaveQuestion(stem, lines))) return;

    // The list walks through the file, each image previewed as its file is written. An
    // existing file is replaced, and a file that can't be written is passed over in silence.
    const std::vector<std::string> paths = SplitSavePaths(stem, m_list);
    for (int p = 0; p < lines; ++p) {
        SelectAndPreview(p);
        const Hourglass wait(m_host);
        WriteSingleIcon(m_set, m_list.Items[static_cast<std::size_t>(p)].Index, paths[static_cast<std::size_t>(p)]);
    }
    SelectAndPreview(kept);
}

void MultiIconManager::SaveSingle() {
    const MultiIconListItem* selected = SelectedItem();
    if (selected == nullptr) return;
    m_focus = MultiIconFocus::List;
    if (m_set.Count() < 1) return;
    const MultiIconListItem item = *selected;

    utilities::SaveRequest request;
    request.FileName = SingleIconSuggestion(m_fileSpec, item);
    request.Filter = kSingleIconFilter;
    request.DefaultExt = kSingleIconExt;
    request.OverWritePrompt = true;
    const std::string path = m_host.ShowSave(request);
    if (path.empty()) return;
    const Hourglass wait(m_host);
    WriteSingleIcon(m_set, item.Index, path);
}

void MultiIconManager::SaveAdd(int k) {
    if (m_addFace != 1) return;
    if (SelectedItem() == nullptr) {
        Tell(kNoIconListed);
        return;
    }
    CloseWith(k == 1 ? kChoiceSaveAs : kChoiceSave);
}

void MultiIconManager::Close() { CloseWith(""); }

void MultiIconManager::CloseWith(const char* choice) {
    // Appended, not assigned from a char pointer: GCC 12 at -O3 gives a false -Wrestrict there.
    m_choice.clear();
    m_choice += choice;
    m_closed = true;
}

// ---- Asking through the host -------------------------------------------------------------

void MultiIconManager::Tell(const std::string& text) {
    m_host.MsgBox(text, MsgButtons::Ok, MsgIcon::None, host::kTitle);
}

bool MultiIconManager::Confirm(const std::string& question) {
    return m_host.MsgBox(question, MsgButtons::YesNo, MsgIcon::Question, host::kTitle) == MsgAnswer::Yes;
}

void MultiIconManager::Changed() {
    if (m_changed) m_changed();
}

}  // namespace vexlo::files
