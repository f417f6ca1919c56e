// The animated cursor session and the Editing Area: the current icon into the current frame and
// back, and adding and removing frames with their messages.
#include "core/files/cursor_file.h"
#include "core/files/ico_write.h"
#include "core/session/ani_frames/ani_texts.h"
#include "core/session/session_ani_steps.h"

namespace vexlo::session {

namespace {

constexpr int kSide = ani::kAniFrameSide;

}  // namespace

bool AniSteps::AniFromEditingArea(Session& s) {
    const IconSlot& slot = s.Current();
    const auto refuse = [&s](const char* text) {
        s.m_host.MsgBox(text, MsgButtons::Ok, MsgIcon::None, kTitle);
        return false;
    };
    if (slot.ColorCount == -1 && slot.BitsPerPixel == 32) return refuse(kAniNoAlphaIcon);
    if (!slot.InEditingArea || slot.SizeCode != 2) {
        s.m_ani.SetDirty(true);
        return refuse(slot.InEditingArea ? kAniIconNot32 : kAniNoIconLoaded);
    }
    // The frame shows the icon on white: a transparent pixel (the gray where the mask is set)
    // turns white, a painted pixel of that same gray stays.
    const Surface& composed = s.m_icon.Composed();
    const Surface& mask = s.m_icon.Mask();
    Surface image(kSide, kSide, kWhite);
    surface::BitBlt(image, 0, 0, kSide, kSide, composed, 0, 0, surface::Rop::SrcCopy);
    for (int x = 0; x < kSide; ++x)
        for (int y = 0; y < kSide; ++y)
            if (composed.GetPixel(x, y) == kTransparentGray && mask.GetPixel(x, y) == kWhite)
                image.SetPixelV(x, y, kWhite);
    const int n = s.m_ani.CurrentFrame();
    s.m_ani.StoreAniFrame(n, image, mask);
    s.m_ani.RebuildFilm();
    s.m_ani.MarkFrame(n);
    s.m_ani.SetDirty(true);
    return true;
}

bool AniSteps::AniToEditingArea(Session& s) {
    const int n = s.m_ani.CurrentFrame();
    if (n < 1 || n > s.m_ani.FrameCount()) return false;
    s.ResetRegionState();
    s.SetPanelSize(2);
    s.SetWorkSize(2);
    const Surface& frame = s.m_ani.Frames().AniImages[static_cast<std::size_t>(n)];
    Surface& image = s.m_icon.Image();
    Surface& mask = s.m_icon.Mask();
    surface::BitBlt(mask, 0, 0, kSide, kSide, s.m_ani.Frames().AniMasks[static_cast<std::size_t>(n)], 0, 0,
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
    s.StoreToPanel();
    s.ComposeIcon();

    const int colors = files::CountColors(image);
    IconSlot& slot = s.Current();
    slot.Occupied = true;
    slot.InEditingArea = true;
    slot.SetKindText(kKindAniFrame);
    slot.ColorCount = colors;
    slot.BitsPerPixel = static_cast<std::int16_t>(files::BitsOfColorCount(colors));
    slot.HasAlpha = false;
    slot.SizeCode = 2;
    slot.FileSpec = kAniFramePrefix + std::to_string(n);
    slot.MultiIconFile = false;
    slot.ClearFileState();
    slot.NeverSaved = true;
    s.EnsureAlphaArray();
    s.ShowIcon();
    return true;
}

bool AniSteps::AddAniFrame(Session& s, bool above) {
    switch (s.m_ani.Add(above)) {
        case AniSession::AddResult::Added: return true;
        case AniSession::AddResult::AtLimit:
            s.m_host.MsgBox(AniMaximumMessage(), MsgButtons::Ok, MsgIcon::None, kTitle);
            return false;
        case AniSession::AddResult::NoFrame: return false;
    }
    return false;
}

void AniSteps::RemoveAniFrame(Session& s) {
    s.m_ani.RemoveCurrent();
    // The last frame gone ends the session, and with it the name in the status bar.
    if (s.m_ani.FrameCount() < 1) s.m_form.Status.Panel[0].clear();
}

}  // namespace vexlo::session
