// The animated cursor session and the Editing Area: the current icon into the current frame and
// back, and adding and removing frames with their messages.
#include "core/files/cursor_file.h"
#include "core/files/ico_write.h"
#include "core/session/ani_frames/ani_texts.h"
#include "core/session/session.h"

namespace vexlo::session {

namespace {

constexpr int kSide = ani::kAniFrameSide;

}  // namespace

bool Session::AniFromEditingArea() {
    const IconSlot& s = Current();
    const auto refuse = [this](const char* text) {
        m_host.MsgBox(text, MsgButtons::Ok, MsgIcon::None, kTitle);
        return false;
    };
    if (s.ColorCount == -1 && s.BitsPerPixel == 32) return refuse(kAniNoAlphaIcon);
    if (!s.InEditingArea || s.SizeCode != 2) {
        m_ani.SetDirty(true);
        return refuse(s.InEditingArea ? kAniIconNot32 : kAniNoIconLoaded);
    }
    // The frame shows the icon on white: a transparent pixel (the gray where the mask is set)
    // turns white, a painted pixel of that same gray stays.
    const Surface& composed = m_icon.Composed();
    const Surface& mask = m_icon.Mask();
    Surface image(kSide, kSide, kWhite);
    surface::BitBlt(image, 0, 0, kSide, kSide, composed, 0, 0, surface::Rop::SrcCopy);
    for (int x = 0; x < kSide; ++x)
        for (int y = 0; y < kSide; ++y)
            if (composed.GetPixel(x, y) == kTransparentGray && mask.GetPixel(x, y) == kWhite)
                image.SetPixelV(x, y, kWhite);
    const int n = m_ani.CurrentFrame();
    m_ani.StoreAniFrame(n, image, mask);
    m_ani.RebuildFilm();
    m_ani.MarkFrame(n);
    m_ani.SetDirty(true);
    return true;
}

bool Session::AniToEditingArea() {
    const int n = m_ani.CurrentFrame();
    if (n < 1 || n > m_ani.FrameCount()) return false;
    ResetRegionState();
    SetPanelSize(2);
    SetWorkSize(2);
    const Surface& frame = m_ani.Frames().AniImages[static_cast<std::size_t>(n)];
    Surface& image = m_icon.Image();
    Surface& mask = m_icon.Mask();
    surface::BitBlt(mask, 0, 0, kSide, kSide, m_ani.Frames().AniMasks[static_cast<std::size_t>(n)], 0, 0,
                    surface::Rop::SrcCopy);
    // A transparent pixel of the frame (white on a set mask) becomes black; an opaque white
    // one stays white.
    image.Fill(kBlack);
    for (int x = 0; x < kSide; ++x) {
        for (int y = 0; y < kSide; ++y) {
            const Color c = frame.GetPixel(x, y);
            image.SetPixelV(x, y, c == kWhite && mask.GetPixel(x, y) == kWhite ? kBlack : c);
        }
    }
    image.StorePicture();
    mask.StorePicture();
    StoreToPanel();
    ComposeIcon();

    const int colors = files::CountColors(image);
    IconSlot& s = Current();
    s.Occupied = true;
    s.InEditingArea = true;
    s.SetKindText(kKindAniFrame);
    s.ColorCount = colors;
    s.BitsPerPixel = static_cast<std::int16_t>(files::BitsOfColorCount(colors));
    s.HasAlpha = false;
    s.SizeCode = 2;
    s.FileSpec = kAniFramePrefix + std::to_string(n);
    s.MultiIconFile = false;
    s.ClearFileState();
    s.NeverSaved = true;
    EnsureAlphaArray();
    ShowIcon();
    return true;
}

bool Session::AddAniFrame(bool above) {
    switch (m_ani.Add(above)) {
        case AniSession::AddResult::Added: return true;
        case AniSession::AddResult::AtLimit:
            m_host.MsgBox(AniMaximumMessage(), MsgButtons::Ok, MsgIcon::None, kTitle);
            return false;
        case AniSession::AddResult::NoFrame: return false;
    }
    return false;
}

void Session::RemoveAniFrame() {
    m_ani.RemoveCurrent();
    // The last frame gone ends the session, and with it the name in the status bar.
    if (m_ani.FrameCount() < 1) m_form.Status.Panel[0].clear();
}

}  // namespace vexlo::session
