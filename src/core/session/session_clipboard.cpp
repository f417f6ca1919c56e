// The Edit menu's Region and clipboard items: Cut, Copy, Paste (see-through and opaque) and
// Clear Clipboard. Copy sends the composed pixels; Paste floats the clipboard's picture at the
// top left of the icon as a Region, cut to the icon when it is larger.
#include <algorithm>
#include <string>

#include "core/files/bmp_write.h"
#include "core/session/session.h"

namespace vexlo::session {

namespace {

constexpr const char* kNoRegionYet = "No picture region yet";
constexpr const char* kNoImageInClipboard = "No image in clipboard yet";
constexpr const char* kClipboardUnreadable = "The image in the clipboard can't be read.";

std::string SizeText(int w, int h) { return std::to_string(w) + "x" + std::to_string(h); }

std::string TooLargeForIconQuestion(int w, int h) {
    return "Image size is of " + SizeText(w, h) + "; too large" + " for current icon." + kCrLf + kCrLf +
           "Change to fit in?";
}

std::string NotIconSizeQuestion(int w, int h) {
    return "Image size is of " + SizeText(w, h) + ", not of" + " 16x16, 32x32 or 48x48." + kCrLf + kCrLf +
           "Create to fit in?";
}

std::string TooLargeToReadMessage(int w, int h) {
    return "Image size is of " + SizeText(w, h) + "; too large to be taken from the clipboard.";
}

bool IsIconSide(int v) { return v == 16 || v == 32 || v == 48; }

// White where the planes hold a transparent pixel, for the w x h cells from (left, top);
// cells outside the icon count as transparent.
Surface HolesOf(const Surface& image, const Surface& mask, int left, int top, int w, int h) {
    Surface holes(w, h, kBlack);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const Color m = mask.GetPixel(left + x, top + y);
            const bool transparent =
                m == surface::kInvalidColor || (m == kWhite && image.GetPixel(left + x, top + y) == kBlack);
            if (transparent) holes.Row(y)[x] = kWhite;
        }
    }
    return holes;
}

}  // namespace

void Session::ClickEditSub(int i) {
    switch (i) {
        case 0: UndoStep(); break;
        case 1: UndoAll(); break;
        case 2: RedoStep(); break;
        case 4:
        case 5:
            if (InArea() && m_view.Region().Exists) CutRegion(i == 4);
            break;
        case 6:
            if (NeedsIconInArea()) CopyToClipboard();
            break;
        case 7:
        case 8:
            if (m_form.VisibleFrame == Frame::IconsList) break;
            if (!m_host.ClipboardHasBitmap()) {
                m_host.MsgBox(kNoImageInClipboard, MsgButtons::Ok, MsgIcon::None, kTitle);
                break;
            }
            if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
            PasteClipboard(i == 7);
            break;
        case 9:
            m_host.ClearClipboard();
            RefreshToolbar();
            break;
        default: break;
    }
}

void Session::CutRegion(bool copyFirst) {
    const RegionMarks& marks = m_view.Region();
    if (!marks.Exists) return;
    if (marks.Rect.Right == 0 || marks.Rect.Bottom == 0) {
        m_host.MsgBox(kNoRegionYet, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    if (copyFirst) CopyToClipboard();
    // A pasted or reworked picture was never part of the icon: the planes go back to what lay
    // under it, with no undo step. Pixels lifted off the icon are erased where they float.
    const bool reworked = m_draw.RegionReworked;
    if (reworked) {
        ResetDrawState();
        m_floating.RestoreSnaps(m_icon.Image(), m_icon.Mask());
    } else {
        const tools::CellRect c = marks.Cells;
        m_icon.Image().FillBox(c.Left, c.Top, c.Right, c.Bottom, kBlack);
        m_icon.Mask().FillBox(c.Left, c.Top, c.Right, c.Bottom, kWhite);
        ResetDrawState();
    }
    ComposeIcon();
    MagnifyIcon();
    Current().Changed = true;
    if (!reworked) TakeUndoSnapshot();
}

void Session::CopyToClipboard() {
    const RegionMarks& marks = m_view.Region();
    if (marks.Exists) {
        const tools::CellRect& c = marks.Cells;
        const Surface& picture = m_floating.TakeComposed(m_icon.Composed(), c);
        m_host.SetClipboardPicture(
            picture, HolesOf(m_icon.Image(), m_icon.Mask(), c.Left, c.Top, picture.Width(), picture.Height()));
    } else {
        const Surface& icon = m_icon.Composed();
        m_host.SetClipboardPicture(icon, HolesOf(m_icon.Image(), m_icon.Mask(), 0, 0, icon.Width(), icon.Height()));
    }
    RefreshToolbar();
}

void Session::PasteClipboard(bool seeThrough) {
    const host::ClipboardPicture info = m_host.ClipboardPictureInfo();
    if (!info.Present) {
        m_host.MsgBox(kNoImageInClipboard, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    const int pw = info.Width;
    const int ph = info.Height;
    if (pw <= 0 || ph <= 0) {
        m_host.MsgBox(kClipboardUnreadable, MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return;
    }
    if (info.TooLarge) {
        m_host.MsgBox(TooLargeToReadMessage(pw, ph), MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return;
    }
    const bool occupied = Current().Occupied;
    int side = m_icon.Side();
    if (occupied) {
        if ((pw > side || ph > side) &&
            m_host.MsgBox(TooLargeForIconQuestion(pw, ph), MsgButtons::YesNo, MsgIcon::Question, kTitle) !=
                MsgAnswer::Yes)
            return;
    } else {
        if ((!IsIconSide(pw) || !IsIconSide(ph)) &&
            m_host.MsgBox(NotIconSizeQuestion(pw, ph), MsgButtons::YesNo, MsgIcon::Question, kTitle) !=
                MsgAnswer::Yes)
            return;
        side = files::ImportSide(pw, ph);
    }
    host::Hourglass hourglass(m_host);
    // Only the block that fits the icon is read from the clipboard.
    const int w = std::min(pw, side);
    const int h = std::min(ph, side);
    Surface picture(0, 0, kWhite);
    if (!m_host.ReadClipboardPicture(w, h, picture) || picture.Width() < w || picture.Height() < h) {
        m_host.MsgBox(kClipboardUnreadable, MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return;
    }
    if (!occupied) {
        PutNewIcon(SizeCodeOfSide(side));
        LetPendingEventsRun();
    }
    PlaceFloatingPicture(picture, w, h, seeThrough, 0, 0);
    Current().Changed = true;
}

}  // namespace vexlo::session
