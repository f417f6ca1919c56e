// Images inside multi-icon files: choosing one to open, saving it back, adding an icon.
#include <cstring>

#include "core/files/atomic_file.h"
#include "core/files/ico_messages.h"
#include "core/files/ico_write.h"
#include "core/files/icon_set.h"
#include "core/files/private_temp.h"
#include "core/session/session.h"

namespace vexlo::session {

namespace {

// "index/size/colors/bits" split at "/".
std::vector<std::string> SplitChoice(const std::string& text) {
    std::vector<std::string> fields(1);
    for (char c : text) {
        if (c == '/')
            fields.emplace_back();
        else
            fields.back() += c;
    }
    return fields;
}

int NumberOf(const std::string& s) {
    int v = 0;
    for (char c : s) {
        if (c == '-') continue;
        if (c < '0' || c > '9') break;
        v = v * 10 + (c - '0');
    }
    return !s.empty() && s[0] == '-' ? -v : v;
}

}  // namespace

void Session::ShowSetMessage(const std::string& text, MsgIcon icon) {
    m_host.MsgBox(text, MsgButtons::Ok, icon, kTitle);
}

bool Session::ChooseImageOfFile(const std::string& path, bool openIt) {
    MultiIconAnswer answer = m_host.ShowMultiIcon(path, 0, nullptr, "");
    if (answer.Choice.empty()) return false;
    const std::vector<std::string> f = SplitChoice(answer.Choice);
    const std::string sizeText = f.size() > 1 ? f[1] : "";
    if (sizeText != "16" && sizeText != "32" && sizeText != "48") {
        ShowSetMessage(files::kRetrievalFailed, MsgIcon::Exclamation);
        return false;
    }
    const int index = NumberOf(f[0]);
    const int size = NumberOf(sizeText);
    const int colors = f.size() > 2 ? NumberOf(f[2]) : 0;
    int bits = f.size() > 3 ? NumberOf(f[3]) : 0;
    m_icon.ImageTemp() = std::move(answer.Image);
    m_icon.MaskTemp() = std::move(answer.Mask);
    // The dialog begins with no alpha values and hands over those of the image that it read
    // last, or none: nothing of an earlier read stays.
    m_panel.IncomingAlpha() = std::move(answer.Alpha);

    const int sizeCode = SizeCodeOfSide(size);
    IconSlot& s = Current();
    s.SizeCode = static_cast<std::int16_t>(sizeCode);
    SetPanelSize(sizeCode);
    SetWorkSize(sizeCode);
    if (bits == 32 && (m_panel.IncomingAlpha().IsSingle() || m_panel.IncomingAlpha().UpperBound() != size - 1)) bits = 24;
    s.Occupied = true;
    s.SetKindText(kKindIcoFile);
    s.ColorCount = colors;
    s.BitsPerPixel = static_cast<std::int16_t>(bits);
    s.HasAlpha = bits == 32;
    s.FileSpec = path;
    s.MultiIconFile = true;
    s.MultiIconIndex = static_cast<std::int16_t>(index);
    s.ClearFileState();
    if (EnsureAlphaArray() && s.HasAlpha) CopyIncomingAlphaToSlot();
    m_panel.IncomingAlpha().SetSingle();
    if (openIt) {
        s.InEditingArea = true;
        tools::CopyPicture(m_icon.ImageTemp(), m_icon.Image());
        tools::CopyPicture(m_icon.MaskTemp(), m_icon.Mask());
        StoreToPanel();
        ComposeIcon();
        ShowIcon();
    } else {
        s.InEditingArea = false;
        m_panel.StoreToPanel(m_icon.ImageTemp(), m_icon.MaskTemp());
    }
    AddToFileHistory(path);
    return true;
}

void Session::mnuFileSaveMultiIconReplace() {
    if (!NeedsIconInArea() || !Current().MultiIconFile) return;
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    const IconSlot& s = Current();
    const std::string path = s.FileSpec;
    const files::SetResult check =
        files::CheckReplaceTarget(path, s.MultiIconIndex, m_icon.Composed().Width(), m_icon.Composed().Height(),
                                  s.ColorCount, s.BitsPerPixel, files::DepthToWrite(m_icon.Image(), IconSaveOptions()));
    if (!check) {
        ShowSetMessage(check.Message, MsgIcon::None);
        return;
    }
    ResetRegionState();
    utilities::SaveRequest request;
    request.FileName = files::SplitFileSpec(path, 3);
    request.Filter = "Icon files (*.ico)|*.ico|(*.*)|*.*|";
    request.DefaultExt = "ico";
    const std::string target = m_host.ShowSave(request);
    if (target.empty()) return;
    m_currentPath = target;
    const files::SetResult done = files::ReplaceIconInFile(m_icon.Image(), m_icon.Mask(), IconSaveOptions(), path,
                                                           s.MultiIconIndex, target,
                                                           files::PrivateTempDir(m_dirs.TempDir));
    if (!done) {
        ShowSetMessage(done.Message, MsgIcon::None);
        return;
    }
    StoreToPanel();
    Current().FileSpec = target;
    Current().NeverSaved = false;
    Current().Changed = false;
    RefreshStatusPanel();
    AddToFileHistory(target);
}

void Session::mnuFileSaveMultiIconAddTo() {
    if (!NeedsIconInArea() || Current().MultiIconFile) return;
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    const std::string path = AskOpen("Icon files (*.ico)|*.ico|", "ico");
    if (path.empty()) return;
    if (path == Current().FileSpec) {
        ShowSetMessage(files::kCannotAddToItself, MsgIcon::None);
        return;
    }
    const int c = Current().ColorCount == -1 ? -1 : files::CountColors(m_icon.Image());
    const int bits = Current().BitsPerPixel;
    const files::SetResult check = files::CheckAddTarget(path, m_icon.Composed().Width(), m_icon.Composed().Height(),
                                                         c, bits, files::DepthToWrite(m_icon.Image(), IconSaveOptions()));
    if (!check) {
        ShowSetMessage(check.Message, MsgIcon::None);
        return;
    }
    const std::string added = AddToFileDialog(path, c, bits);
    if (added.empty()) return;
    m_currentPath = added;
    Current().Changed = false;
    RefreshPaletteMenu();
}

std::string Session::AddToFileDialog(const std::string& path, int c, int bits) {
    const std::string description =
        files::AddIconDescription(c, bits, m_icon.Composed().Width(), m_icon.Composed().Height());
    MultiIconAnswer answer = m_host.ShowMultiIcon(path, 1, &m_icon.Composed(), description);
    std::string target = path;
    if (answer.Choice == "2") {
        for (;;) {
            utilities::SaveRequest request;
            request.FileName = path;
            request.Filter = "Icon files (*.ico)|*.ico|";
            request.DefaultExt = "ico";
            target = m_host.ShowSave(request);
            if (target.empty()) return {};
            if (target != Current().FileSpec) break;
            ShowSetMessage(files::kCannotAddToItself, MsgIcon::None);
        }
        if (target != path) {
            // A copy that fails is a fault of this routine: the common error box, and nothing
            // is added.
            if (const files::FileWriteResult copied = files::CopyFileAtomically(path, target); !copied) {
                ReportError("AddToFileDialog", copied.Number, std::strerror(copied.Number));
                return {};
            }
            LetPendingEventsRun();
        }
    } else if (answer.Choice != "1") {
        return {};
    }
    const files::SetResult done =
        files::AppendIconToFile(m_icon.Image(), m_icon.Mask(), target, c, bits, IconSaveOptions(),
                                files::PrivateTempDir(m_dirs.TempDir));
    if (!done) {
        ShowSetMessage(done.Message, MsgIcon::None);
        return {};
    }
    return target;
}

}  // namespace vexlo::session
