// Opening and saving single-icon files from the window: LoadIconFile and the save commands.
#include "core/files/atomic_file.h"
#include "core/files/ico_messages.h"
#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"
#include "core/files/ico_write.h"
#include "core/session/session.h"

namespace vexlo::session {

namespace {

constexpr const char* kIcoFilter = "Icon files (*.ico)|*.ico|";
constexpr const char* kIcoSaveFilter = "Icon files (*.ico)|*.ico|(*.*)|*.*|";

std::string UpperCase(std::string s) {
    for (char& c : s)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return s;
}

}  // namespace

std::string Session::AskOpen(const char* filter, const char* defaultExt) {
    utilities::OpenRequest request;
    request.Filter = filter;
    request.DefaultExt = defaultExt;
    return m_host.ShowOpen(request);
}

bool Session::LoadIconFile(const std::string& path, bool askForImage) {
    const files::ProbeAnswer probe = files::ProbeIconFile(path, true);
    if (probe.Kind == 0) {
        m_host.MsgBox(files::InvalidIconFileMessage(path), MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return false;
    }
    if (probe.Usable == 0) {
        m_host.MsgBox(files::NoUsableIconMessage(path), MsgButtons::Ok, MsgIcon::Information, kTitle);
        return false;
    }
    const bool multi = probe.Kind == 2;
    if (probe.Usable > 1 && askForImage) return ChooseImageOfFile(path, true);
    const int w = probe.Width;
    const int sizeCode = SizeCodeOfSide(w);
    if (sizeCode == 0) {
        m_host.MsgBox(files::IconNotOfSizeMessage(path), MsgButtons::Ok, MsgIcon::Information, kTitle);
        return false;
    }
    ResetRegionState();
    ClearSlot();
    m_view.Disp().Clear();
    Current().SizeCode = static_cast<std::int16_t>(sizeCode);
    SetPanelSize(sizeCode);
    SetWorkSize(sizeCode);

    bool read = false;
    {
        host::Hourglass hourglass(m_host);
        read = files::ReadIconFileToImage(path, probe.Index, m_icon.Image(), m_icon.Mask(),
                                          m_panel.IncomingAlpha());
    }
    if (!read) {
        m_icon.Image().Clear();
        m_icon.Mask().Clear();
        ShowEmptyAfterFailedLoad();
        m_host.MsgBox(files::FailedToLoadMessage(path), MsgButtons::Ok, MsgIcon::None, kTitle);
        return false;
    }
    StoreToPanel();
    ComposeIcon();

    int bits = probe.BitCount;
    if (probe.Colors == -1 && bits != 24 && bits != 32) {
        // The pictures stay on the panel; the record stays free, and so does the Editing Area.
        ShowEmptyAfterFailedLoad();
        m_host.MsgBox(files::TrueColorDepthMessage(path), MsgButtons::Ok, MsgIcon::Information, kTitle);
        return false;
    }
    IconSlot& s = Current();
    s.Occupied = true;
    s.SetKindText(kKindIcoFile);
    s.ColorCount = probe.Colors;
    if (bits == 32 && (m_panel.IncomingAlpha().IsSingle() || m_panel.IncomingAlpha().UpperBound() != w - 1)) bits = 24;
    s.BitsPerPixel = static_cast<std::int16_t>(bits);
    s.HasAlpha = bits == 32;
    s.InEditingArea = true;
    s.FileSpec = path;
    s.ClearFileState();
    if (EnsureAlphaArray() && s.HasAlpha && !CopyIncomingAlphaToSlot()) {
        m_host.MsgBox(files::AlphaCopyFailedMessage(), MsgButtons::Ok, MsgIcon::Information, kTitle);
        s.HasAlpha = false;
    }
    // IncomingAlpha only hands values over: the slot keeps its own copy now.
    m_panel.IncomingAlpha().SetSingle();
    s.MultiIconFile = multi;
    ShowIcon();
    AddToFileHistory(path);
    return true;
}

void Session::ShowEmptyAfterFailedLoad() {
    // ClearSlot has freed the record: the status bar, the undo history and the toolbar must
    // not go on showing the icon that was there before.
    ClearStatusPanel();
    ClearUndoHistory();
    RefreshToolbar();
}

void Session::OpenIconFile() {
    const std::string path = AskOpen(kIcoFilter, "ico");
    if (path.empty()) return;
    if (LoadIconFile(path, true)) {
        m_currentPath = path;
        RefreshPaletteMenu();
    }
}

files::IconWriteOptions Session::IconSaveOptions() const {
    const IconSlot& s = Current();
    files::IconWriteOptions options;
    options.Alpha = s.BitsPerPixel == 32 && s.HasAlpha;
    options.KeepTrueColor = s.ColorCount == -1 && s.HasAlpha;
    options.AlphaValues = &m_panel.SlotAlpha();
    return options;
}

bool Session::SaveIconFile(const std::string& path, bool force256) {
    IconSlot& s = Current();
    files::IconWriteOptions options = IconSaveOptions();
    options.Force256 = force256;
    if (!files::WriteIconFile(m_icon.Image(), m_icon.Mask(), path, options)) {
        const bool protectedFile = files::IsProtectedFile(path);
        m_host.MsgBox(files::SaveFailedMessage(path), MsgButtons::Ok,
                      protectedFile ? MsgIcon::Exclamation : MsgIcon::None, kTitle);
        return false;
    }
    const int count = files::CountColors(m_icon.Image());
    s.FileSpec = path;
    s.SetKindText(kKindIcoFile);
    if (count != -1) s.ColorCount = count;
    s.MultiIconFile = false;
    s.MultiIconIndex = 0;
    s.ClearFileState();
    StoreToPanel();
    RefreshStatusPanel();
    AddToFileHistory(path);
    return true;
}

std::string Session::SuggestedSaveName() const {
    const IconSlot& s = Current();
    std::string name = s.FileSpec.find('.') != std::string::npos ? files::SplitFileSpec(s.FileSpec, 3)
                                                                 : s.FileSpec;
    if (s.MultiIconFile) {
        static const char* const kSize[4] = {"", "_16_", "_32_", "_48_"};
        name += s.SizeCode >= 1 && s.SizeCode <= 3 ? kSize[s.SizeCode] : "";
        name += s.ColorCount == -1 ? std::to_string(s.BitsPerPixel) + "bpp" : std::to_string(s.ColorCount);
    }
    return name;
}

bool Session::SaveDialogFlow(int kind) {
    if (m_form.VisibleFrame != Frame::ColorsPanel && !m_ani.ContainerVisible())
        ShowFrame(Frame::ColorsPanel);
    ResetRegionState();
    if ((kind == 1 || kind == 2) && Current().MultiIconFile)
        m_host.MsgBox(files::MultiIconReminderMessage(), MsgButtons::Ok, MsgIcon::Information, kTitle);
    utilities::SaveRequest request;
    request.FileName = SuggestedSaveName();
    switch (kind) {
        case 3: request.Filter = "cursor files (*.cur)|*.cur|(*.*)|*.*|"; request.DefaultExt = "cur"; break;
        case 4: request.Filter = "Bitmap files (*.bmp)|*.bmp|(*.*)|*.*|"; request.DefaultExt = "bmp"; break;
        default: request.Filter = kIcoSaveFilter; request.DefaultExt = "ico"; break;
    }
    const std::string path = m_host.ShowSave(request);
    if (path.empty()) return false;
    m_currentPath = path;
    bool saved = false;
    if (kind == 1) saved = SaveIconFile(path, false);
    if (kind == 2) saved = SaveIconFile(path, true);
    if (kind == 3) saved = SaveCursorTo(path);
    if (kind == 4) saved = SaveBitmapTo(path);
    if (saved) Current().Changed = false;
    return saved;
}

void Session::mnuFileSaveICO() {
    if (!NeedsIconInArea()) return;
    if (Current().MultiIconFile) {
        SaveDialogFlow(1);
        return;
    }
    const std::string& s = Current().FileSpec;
    if (s.size() >= 4 && UpperCase(s.substr(s.size() - 4)) == ".ICO" && files::FileExists(s))
        SaveIconFile(s, false);
    else
        SaveDialogFlow(1);
}

void Session::mnuFileSaveAsICO() {
    if (NeedsIconInArea()) SaveDialogFlow(1);
}

void Session::mnuFileSaveAsICOForce256() {
    if (!NeedsIconInArea()) return;
    if (files::CountColors(m_icon.Image()) == -1) {
        m_host.MsgBox(files::CannotForce256Message(), MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    SaveDialogFlow(2);
}

}  // namespace vexlo::session
