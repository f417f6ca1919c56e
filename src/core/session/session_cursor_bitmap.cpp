// Cursor files in and out, pictures taken in as icons, and the icon saved as a bitmap.
#include <cstring>

#include "core/files/atomic_file.h"
#include "core/files/bmp_write.h"
#include "core/files/cursor_file.h"
#include "core/files/ico_messages.h"
#include "core/files/ico_write.h"
#include "core/session/session.h"

namespace vexlo::session {

bool Session::LoadCursorFile(const std::string& path) {
    const files::CursorProbe probe = files::ProbeCursorFile(path);
    if (!probe.Valid) {
        m_host.MsgBox(files::InvalidCursorFileMessage(path), MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return false;
    }
    files::CursorImage cursor;
    if (!files::ReadCursorFile(path, cursor)) {
        m_host.MsgBox(files::kFailedToLoadIcon, MsgButtons::Ok, MsgIcon::None, kTitle);
        return false;
    }
    ResetRegionState();
    ClearSlot();
    m_view.Disp().Clear();
    IconSlot& s = Current();
    s.SizeCode = 2;
    SetPanelSize(2);
    SetWorkSize(2);
    s.Occupied = true;
    s.SetKindText(kKindCurFile);
    s.ColorCount = probe.Colors;
    s.BitsPerPixel = static_cast<std::int16_t>(files::BitsOfColorCount(probe.Colors));
    s.HasAlpha = false;
    s.InEditingArea = true;
    s.FileSpec = path;
    s.MultiIconFile = false;
    s.HasHotspot = true;
    s.HotspotX = static_cast<std::int16_t>(probe.HotspotX);
    s.HotspotY = static_cast<std::int16_t>(probe.HotspotY);
    s.NeverSaved = false;
    s.Changed = false;
    EnsureAlphaArray();
    files::DrawCursorFrame(cursor, m_icon.Mask(), 0, 0, files::CursorDraw::Mask);
    files::DrawCursorFrame(cursor, m_icon.Image(), 0, 0, files::CursorDraw::Image);
    // Drawn as the cursor draws itself: its mask ANDed, its image XORed, on the gray.
    ComposeIcon();
    StoreToPanel();
    ShowIcon();
    return true;
}

void Session::OpenCursorFile() {
    const std::string path = AskOpen("Cursor files (*.cur)|*.cur|", "cur");
    if (path.empty()) return;
    if (LoadCursorFile(path)) {
        m_currentPath = path;
        RefreshPaletteMenu();
    }
}

void Session::mnuFileSaveAsCursor() {
    if (!NeedsIconInArea()) return;
    const IconSlot& s = Current();
    if (s.SizeCode != 2) {
        m_host.MsgBox(files::kCursorOf32Only, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    ShowFrame(Frame::SaveAsCursor);
    int x = 0, y = 0;
    if (s.HasHotspot && s.HotspotX >= 0 && s.HotspotX <= 31 && s.HotspotY >= 0 && s.HotspotY <= 31) {
        x = s.HotspotX;
        y = s.HotspotY;
    }
    m_form.CursorHotSpot = {x, y};
}

void Session::ChooseHotspot(int axis, int index) {
    Enter();
    if (axis < 0 || axis > 1 || index < 0 || index > 31) return;
    m_form.CursorHotSpot[static_cast<std::size_t>(axis)] = index;
}

bool Session::SaveCursorTo(const std::string& path) {
    if (!files::WriteCursorFile(m_icon.Image(), m_icon.Mask(), path, m_form.CursorHotSpot[0], m_form.CursorHotSpot[1])) {
        const bool protectedFile = files::IsProtectedFile(path);
        m_host.MsgBox(files::CursorSaveFailedMessage(path), MsgButtons::Ok,
                      protectedFile ? MsgIcon::Exclamation : MsgIcon::None, kTitle);
        return false;
    }
    StoreToPanel();
    RefreshStatusPanel();
    return true;
}

void Session::OpenBitmapFile() {
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    const std::string path =
        AskOpen("(bmp/gif/jpg)|*.bmp;*.gif;*.jpg|(wfm/emf)|*.wfm;*.emf|(*.*)|*.*|", "bmp");
    if (path.empty()) return;
    m_icon.Temp().Clear();
    m_icon.Auto().Clear();
    if (!m_host.LoadPicture(path, m_icon.Auto())) {
        m_host.MsgBox(files::PictureNotLoadedMessage(path), MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return;
    }
    if (!files::IsIconSize(m_icon.Auto()) &&
        m_host.MsgBox(files::NotIconSizeQuestion(m_icon.Auto().Width(), m_icon.Auto().Height()), MsgButtons::YesNo,
                      MsgIcon::Question, kTitle) != MsgAnswer::Yes) {
        m_icon.Auto().Clear();
        return;
    }
    const int t = files::ImportSide(m_icon.Auto().Width(), m_icon.Auto().Height());
    const int sizeCode = SizeCodeOfSide(t);
    IconSlot& s = Current();
    SetPanelSize(sizeCode);
    SetWorkSize(sizeCode);
    s.SizeCode = static_cast<std::int16_t>(sizeCode);
    files::ImportPicture(m_icon.Auto(), m_icon.Image(), m_icon.Mask());
    const int c = files::CountColors(m_icon.Image());
    s.Occupied = true;
    s.SetKindText(kKindBmpFile);
    s.ColorCount = c;
    s.BitsPerPixel = static_cast<std::int16_t>(files::BitsOfColorCount(c));
    s.InEditingArea = true;
    s.HasAlpha = false;
    s.FileSpec = "BmpToIcon";
    s.MultiIconFile = false;
    s.ClearFileState();
    EnsureAlphaArray();
    m_icon.Temp().Clear();
    StoreToPanel();
    ComposeIcon();
    ShowIcon();
    m_currentPath = path;
    RefreshPaletteMenu();
    if (m_form.RemindIfBmpChecked)
        m_host.MsgBox(files::BitmapReminderMessage(), MsgButtons::Ok, MsgIcon::Information, kTitle);
}

bool Session::SaveBitmapTo(const std::string& path) {
    // A bitmap that can't be written is a fault of the save: the common error box, and the
    // operation stays where it came.
    if (const files::FileWriteResult written = files::WriteBmpFile(m_icon.Composed(), path); !written) {
        ReportError("mnuFileSaveAsBitmap", written.Number, std::strerror(written.Number));
        return false;
    }
    StoreToPanel();
    RefreshStatusPanel();
    return true;
}

void Session::mnuFileSaveAsBitmap() {
    if (NeedsIconInArea()) SaveDialogFlow(4);
}

}  // namespace vexlo::session
