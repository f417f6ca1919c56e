// The pixel model: sizes of the working Surfaces, composing the icon, storing it to the panel
// and rebuilding the planes from the panel.
#include "core/session/session.h"

namespace vexlo::session {

using surface::BitBlt;
using surface::Rop;

Session::Session(Host& host)
    : picImage(32, 32, kWindowColor),
      picMask(32, 32, kWindowColor),
      PicIcon(32, 32, kTransparentGray),
      picDisp(tools::kDispSide, tools::kDispSide, kTransparentGray),
      PicGrid(tools::kDispSide, tools::kDispSide, kWindowColor),
      picUndo(64, 32, kWhite),
      picImageRegion(32, 32, kWhite),
      picMaskRegion(32, 32, kBlack),
      picImageSnap(32, 32, kWhite),
      picMaskSnap(32, 32, kBlack),
      picImageTemp(32, 32, kWhite),
      picMaskTemp(32, 32, kBlack),
      picTemp(32, 32, kWhite),
      picAuto(32, 32, kWhite),
      picColorChart{Surface(256, 48, kWhite), Surface(160, 40, kWhite), Surface(32, 32, kWhite)},
      m_host(host) {
    for (int i = 0; i < kSlotCount; ++i) {
        picPanelIcon[static_cast<std::size_t>(i)] = Surface(32, 32, kTransparentGray);
        picPanelMask[static_cast<std::size_t>(i)] = Surface(32, 32, kWindowColor);
        Slots[static_cast<std::size_t>(i)].SlotIndex = static_cast<std::int16_t>(i);
    }
}

void Session::SetWorkSize(int sizeCode) {
    const int side = IconSideOf(sizeCode);
    MagnifyStep = MagnifyStepOf(sizeCode);
    bool touched = false;
    for (Surface* s : {&PicIcon, &picImage, &picMask}) {
        if (s->Width() != side || s->Height() != side) {
            s->Resize(side, side);
            touched = true;
        }
    }
    if (picUndo.Width() != 2 * side || picUndo.Height() != side) {
        picUndo.Resize(2 * side, side);
        touched = true;
    }
    if (touched) BuildGrid();
    m_host.DoEvents();
}

void Session::SetPanelSize(int sizeCode) {
    const int side = IconSideOf(sizeCode);
    for (Surface* s : {&picPanelIcon[static_cast<std::size_t>(CurrentSlot)],
                       &picPanelMask[static_cast<std::size_t>(CurrentSlot)]}) {
        s->Clear();
        if (s->Width() != side || s->Height() != side) s->Resize(side, side);
    }
}

void Session::ComposeIcon() {
    PicIcon.Clear();
    BitBlt(PicIcon, 0, 0, PicIcon.Width(), PicIcon.Height(), picMask, 0, 0, Rop::SrcAnd);
    BitBlt(PicIcon, 0, 0, PicIcon.Width(), PicIcon.Height(), picImage, 0, 0, Rop::SrcInvert);
}

void Session::StoreToPanel() {
    Surface& icon = picPanelIcon[static_cast<std::size_t>(CurrentSlot)];
    Surface& mask = picPanelMask[static_cast<std::size_t>(CurrentSlot)];
    const int w = icon.Width();
    const int h = icon.Height();
    icon.Clear();
    BitBlt(icon, 0, 0, w, h, picMask, 0, 0, Rop::SrcAnd);
    BitBlt(icon, 0, 0, w, h, picImage, 0, 0, Rop::SrcInvert);
    mask.Clear();
    BitBlt(mask, 0, 0, w, h, picMask, 0, 0, Rop::SrcAnd);
}

void Session::ClearSlot() {
    picPanelIcon[static_cast<std::size_t>(CurrentSlot)].Clear();
    picPanelMask[static_cast<std::size_t>(CurrentSlot)].Clear();
    IconSlot& s = Current();
    const std::int16_t index = s.SlotIndex;
    s = IconSlot{};
    s.SlotIndex = index;
    s.SizeCode = 2;
    EnsureAlphaArray();
}

bool Session::EnsureAlphaArray() {
    if (FormLoading) return false;
    const IconSlot& s = Current();
    const int side = IconSideOf(s.SizeCode);
    if (side == 0) return false;
    const int n = side - 1;
    AlphaArray& alpha = SlotAlpha[static_cast<std::size_t>(CurrentSlot)];
    alpha.SetSingle();
    if (s.Occupied && s.ColorCount == -1 && s.BitsPerPixel == 32 && s.HasAlpha &&
        !IncomingAlpha.IsSingle() && IncomingAlpha.UpperBound() == n) {
        alpha.SetBounds(n);
        return true;
    }
    return false;
}

void Session::RebuildFromPanel() {
    const int side = IconSideOf(Current().SizeCode);
    SetWorkSize(Current().SizeCode);
    picImage.Fill(kBlack);
    picMask.Fill(kWhite);
    const Surface& icon = picPanelIcon[static_cast<std::size_t>(CurrentSlot)];
    const Surface& mask = picPanelMask[static_cast<std::size_t>(CurrentSlot)];
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            const Color p = icon.GetPixel(x, y);
            if (p == kTransparentGray) {
                // Gray is transparent unless the mask says that it was painted.
                if (mask.GetPixel(x, y) != 0) continue;
                picImage.SetPixelV(x, y, kTransparentGray);
                picMask.SetPixelV(x, y, kBlack);
            } else {
                picImage.SetPixelV(x, y, p);
                picMask.SetPixelV(x, y, kBlack);
            }
        }
    }
    ComposeIcon();
    ShowIcon();
}

void Session::ShowIcon() {
    Current().InEditingArea = true;
    RefreshStatusPanel();
    MagnifyIcon();
}

void Session::ParkIcon() {
    IconSlot& s = Current();
    if (s.Occupied && s.InEditingArea) {
        if (s.Changed) StoreToPanel();
        s.InEditingArea = false;
    }
    picMask.Clear();
    picImage.Clear();
    PicIcon.Clear();
    picDisp.Clear();
    ClearStatusPanel();
    ClearUndoHistory();
    ResetRegionState();
    RefreshToolbar();
}

void Session::UnparkIcon() {
    IconSlot& s = Current();
    if (s.Occupied) {
        if (!s.InEditingArea) RebuildFromPanel();
        return;
    }
    OpenEmptySlot();
}

void Session::OpenEmptySlot() {
    picDisp.Clear();
    ClearSlot();
    Current().SizeCode = 2;
    SetWorkSize(2);
    ClearStatusPanel();
    ClearTools();
}

void Session::MarkCurrentLabel(int k) {
    for (int i = 0; i < kSlotCount; ++i)
        Form.PanelLabelBack[static_cast<std::size_t>(i)] =
            i == k ? kPanelLabelCurrent : kPanelLabelOther;
}

}  // namespace vexlo::session
