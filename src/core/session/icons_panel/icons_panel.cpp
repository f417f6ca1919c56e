#include "core/session/icons_panel/icons_panel.h"

#include "core/icon/icon_planes.h"

namespace vexlo::session {

IconsPanel::IconsPanel() {
    for (int i = 0; i < kSlotCount; ++i) {
        m_panelIcon[Index(i)] = Surface(32, 32, icon::kTransparentGray);
        m_panelMask[Index(i)] = Surface(32, 32, icon::kWindowColor);
        m_slots[Index(i)].SlotIndex = static_cast<std::int16_t>(i);
    }
}

void IconsPanel::Select(int k) {
    if (k >= 0 && k < kSlotCount) m_current = k;
}

void IconsPanel::SetPanelSize(int sizeCode) {
    const int side = IconSideOf(sizeCode);
    for (Surface* s : {&m_panelIcon[Index(m_current)], &m_panelMask[Index(m_current)]}) {
        s->Clear();
        if (s->Width() != side || s->Height() != side) s->Resize(side, side);
    }
}

void IconsPanel::StoreToPanel(const Surface& image, const Surface& mask) {
    Surface& icon = m_panelIcon[Index(m_current)];
    Surface& panelMask = m_panelMask[Index(m_current)];
    icon::Compose(image, mask, icon);
    panelMask.Clear();
    surface::BitBlt(panelMask, 0, 0, panelMask.Width(), panelMask.Height(), mask, 0, 0,
                    surface::Rop::SrcAnd);
}

void IconsPanel::ClearSlot() {
    m_panelIcon[Index(m_current)].Clear();
    m_panelMask[Index(m_current)].Clear();
    IconSlot& s = Current();
    const std::int16_t index = s.SlotIndex;
    s = IconSlot{};
    s.SlotIndex = index;
    s.SizeCode = 2;
}

void IconsPanel::ResetAlpha() {
    m_incoming.SetSingle();
    for (alpha::AlphaArray& a : m_alpha) a.SetSingle();
}

bool IconsPanel::EnsureAlphaArray() {
    const IconSlot& s = Current();
    const int side = IconSideOf(s.SizeCode);
    if (side == 0) return false;
    const int n = side - 1;
    alpha::AlphaArray& alpha = SlotAlpha();
    alpha.SetSingle();
    if (s.Occupied && s.ColorCount == -1 && s.BitsPerPixel == 32 && s.HasAlpha &&
        !m_incoming.IsSingle() && m_incoming.UpperBound() == n) {
        alpha.SetBounds(n);
        return true;
    }
    return false;
}

namespace {

bool FitsSide(const alpha::AlphaArray& a, int side) {
    return side != 0 && !a.IsSingle() && a.UpperBound() == side - 1;
}

// Both arrays of the slot's side: every value copied, x outer, y inner.
bool CopyValues(const alpha::AlphaArray& from, alpha::AlphaArray& to, int side) {
    if (!FitsSide(from, side) || !FitsSide(to, side)) return false;
    for (int x = 0; x < side; ++x)
        for (int y = 0; y < side; ++y) to.At(x, y) = from.At(x, y);
    return true;
}

}  // namespace

bool IconsPanel::CopyIncomingAlphaToSlot() {
    return CopyValues(m_incoming, SlotAlpha(), IconSideOf(Current().SizeCode));
}

bool IconsPanel::CopySlotAlphaToIncoming() {
    if (!Current().InEditingArea) return false;
    return CopyValues(SlotAlpha(), m_incoming, IconSideOf(Current().SizeCode));
}

bool IconsPanel::SlotAlphaUsable() const {
    const IconSlot& s = Current();
    return s.Occupied && s.ColorCount == -1 && s.BitsPerPixel == 32 && s.HasAlpha &&
           FitsSide(SlotAlpha(), IconSideOf(s.SizeCode));
}

}  // namespace vexlo::session
