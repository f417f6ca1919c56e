// Capture Image From Desktop: a square of the screen, at the size of the current icon, taken
// into the current slot as an icon without transparent pixels.
#include "core/files/bmp_write.h"
#include "core/files/cursor_file.h"
#include "core/session/capture/capture_box.h"
#include "core/session/session.h"

namespace vexlo::session {

void Session::mnuExtractCapture() {
    if (!NeedsIconInArea()) return;
    if (!AskTerminateAniSession(false)) return;
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    ClearTools();
    ResetRegionState();
    IconSlot& s = Current();
    const int side = IconSideOf(s.SizeCode);
    Surface& temp = m_icon.Temp();
    ResizeSurface(temp, side, side);

    const host::CaptureAnswer answer = m_host.CaptureScreen(side);
    if (answer.Outcome == host::CaptureOutcome::Unavailable) {
        m_host.MsgBox(CaptureUnavailableMessage(), MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return;
    }
    // A cancelled capture leaves the icon as it was.
    const Surface& picture = answer.Picture;
    if (answer.Outcome != host::CaptureOutcome::Taken || picture.Width() != side ||
        picture.Height() != side)
        return;
    BitBlt(temp, 0, 0, side, side, picture, 0, 0, surface::Rop::SrcCopy);

    // Every pixel is painted: the captured square has no transparent pixel.
    Surface& image = m_icon.Image();
    Surface& mask = m_icon.Mask();
    image.Fill(kBlack);
    mask.Fill(kBlack);
    for (int x = 0; x < side; ++x)
        for (int y = 0; y < side; ++y) image.SetPixelV(x, y, temp.GetPixel(x, y));
    temp.Clear();

    const int c = files::CountColors(image);
    s.SizeCode = static_cast<std::int16_t>(SizeCodeOfSide(side));
    s.Occupied = true;
    s.SetKindText(kKindScreenCapture);
    s.ColorCount = c;
    s.BitsPerPixel = static_cast<std::int16_t>(files::BitsOfColorCount(c));
    s.HasAlpha = false;
    s.InEditingArea = true;
    s.FileSpec = "Captured";
    s.MultiIconFile = false;
    s.ClearFileState();
    s.NeverSaved = true;
    EnsureAlphaArray();
    StoreToPanel();
    ComposeIcon();
    ShowIcon();
    RefreshPaletteMenu();
    if (m_form.RemindIfBmpChecked)
        m_host.MsgBox(files::BitmapReminderMessage(), MsgButtons::Ok, MsgIcon::Information, kTitle);
}

}  // namespace vexlo::session
