// Cursor files in and out, pictures taken in as icons, and the icon saved as a bitmap.
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
    picDisp.Clear();
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
    files::DrawCursorFrame(cursor, picMask, 0, 0, files::CursorDraw::Mask);
    files::DrawCursorFrame(cursor, picImage, 0, 0, files::CursorDraw::Image);
    PicIcon.Clear();
    files::DrawCursorFrame(cursor, PicIcon, 0, 0, files::CursorDraw::Normal);
    // The panel shows the cursor as it is drawn, composed on the gray of the panel.
    Surface& panelIcon = picPanelIcon[static_cast<std::size_t>(CurrentSlot)];
    panelIcon.Clear();
    files::DrawCursorFrame(cursor, panelIcon, 0, 0, files::CursorDraw::Normal);
    Surface& panelMask = picPanelMask[static_cast<std::size_t>(CurrentSlot)];
    panelMask.Clear();
    surface::BitBlt(panelMask, 0, 0, 32, 32, picMask, 0, 0, surface::Rop::SrcCopy);
    ShowIcon();
    return true;
}

void Session::OpenCursorFile() {
    utilities::OpenRequest request;
    request.Filter = "Cursor files (*.cur)|*.cur|";
    request.DefaultExt = "cur";
    const std::string path = m_host.ShowOpen(request);
    if (path.empty()) return;
    if (LoadCursorFile(path)) {
        CurrentPath = path;
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
    Form.CursorHotSpot = {x, y};
}

bool Session::SaveCursorTo(const std::string& path) {
    if (!files::WriteCursorFile(picImage, picMask, path, Form.CursorHotSpot[0], Form.CursorHotSpot[1])) {
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
    if (Form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    utilities::OpenRequest request;
    request.Filter = "(bmp/gif/jpg)|*.bmp;*.gif;*.jpg|(wfm/emf)|*.wfm;*.emf|(*.*)|*.*|";
    request.DefaultExt = "bmp";
    const std::string path = m_host.ShowOpen(request);
    if (path.empty()) return;
    picTemp.Clear();
    picAuto.Clear();
    if (!m_host.LoadPicture(path, picAuto)) {
        m_host.MsgBox(files::PictureNotLoadedMessage(path), MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return;
    }
    if (!files::IsIconSize(picAuto) &&
        m_host.MsgBox(files::NotIconSizeQuestion(picAuto.Width(), picAuto.Height()), MsgButtons::YesNo,
                      MsgIcon::Question, kTitle) != MsgAnswer::Yes) {
        picAuto.Clear();
        return;
    }
    const int t = files::ImportSide(picAuto.Width(), picAuto.Height());
    const int sizeCode = SizeCodeOfSide(t);
    IconSlot& s = Current();
    SetPanelSize(sizeCode);
    SetWorkSize(sizeCode);
    s.SizeCode = static_cast<std::int16_t>(sizeCode);
    files::ImportPicture(picAuto, picImage, picMask);
    const int c = files::CountColors(picImage);
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
    picTemp.Clear();
    StoreToPanel();
    ComposeIcon();
    ShowIcon();
    CurrentPath = path;
    RefreshPaletteMenu();
    if (Form.RemindIfBmpChecked)
        m_host.MsgBox(files::BitmapReminderMessage(), MsgButtons::Ok, MsgIcon::Information, kTitle);
}

bool Session::SaveBitmapTo(const std::string& path) {
    PicIcon.StorePicture();
    std::string error;
    if (!files::WriteBmpFile(PicIcon, path, &error)) {
        const bool protectedFile = files::IsProtectedFile(path);
        m_host.MsgBox(protectedFile ? files::ReadOnlyFileMessage() : path + kCrLf + "Failed to save this bitmap",
                      MsgButtons::Ok, protectedFile ? MsgIcon::Exclamation : MsgIcon::None, kTitle);
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
