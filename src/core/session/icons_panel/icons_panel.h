#pragma once
// The Icons Panel: six positions, each with its IconSlot record, its alpha values and its two
// panel pictures (the icon composed on gray, and its mask), the position that is open, and
// the alpha values that a reader hands over (IncomingAlpha).
#include <array>
#include <cstddef>

#include "core/alpha/alpha_array.h"
#include "core/session/icon_slot.h"
#include "core/surface/surface.h"

namespace vexlo::session {

using surface::Surface;

class IconsPanel {
public:
    IconsPanel();

    int CurrentSlot() const { return m_current; }
    // Opens position k (0..5); the caller brings the Editing Area along.
    void Select(int k);
    IconSlot& Current() { return m_slots[Index(m_current)]; }
    const IconSlot& Current() const { return m_slots[Index(m_current)]; }
    const IconSlot& Slot(int k) const { return m_slots[Index(k)]; }
    IconSlot& Slot(int k) { return m_slots[Index(k)]; }

    // picPanelIcon(k) and picPanelMask(k).
    const Surface& PanelIcon(int k) const { return m_panelIcon[Index(k)]; }
    const Surface& PanelMask(int k) const { return m_panelMask[Index(k)]; }

    // The open position's panel pictures cleared at the side of sizeCode.
    void SetPanelSize(int sizeCode);
    // StoreToPanel: the planes composed into the open position's panel icon, the mask into
    // its panel mask.
    void StoreToPanel(const Surface& image, const Surface& mask);
    // The open position's panel pictures drawn by draw(icon, mask), each cleared first.
    template <typename Draw>
    void DrawPanel(Draw draw) {
        Surface& icon = m_panelIcon[Index(m_current)];
        Surface& mask = m_panelMask[Index(m_current)];
        icon.Clear();
        mask.Clear();
        draw(icon, mask);
    }
    // The open position emptied: panel pictures cleared, a fresh record of a 32x32 size.
    void ClearSlot();

    // Alpha records.
    alpha::AlphaArray& SlotAlpha() { return m_alpha[Index(m_current)]; }
    const alpha::AlphaArray& SlotAlpha() const { return m_alpha[Index(m_current)]; }
    alpha::AlphaArray& IncomingAlpha() { return m_incoming; }
    const alpha::AlphaArray& IncomingAlpha() const { return m_incoming; }
    // Every alpha record back to the single element.
    void ResetAlpha();
    // EnsureAlphaArray: the open slot's alpha array sized for its icon when the slot holds a
    // true-color 32-bit icon with alpha and IncomingAlpha fits it; else the single element.
    bool EnsureAlphaArray();
    // CopyIncomingAlphaToSlot: false unless both arrays fit the open slot's side.
    bool CopyIncomingAlphaToSlot();
    // CopySlotAlphaToIncoming: the other way, for an icon in the Editing Area; false unless
    // both arrays fit the open slot's side.
    bool CopySlotAlphaToIncoming();
    // SlotAlphaUsable: the open slot holds a true-color 32-bit icon with alpha, of a known
    // size, and its alpha array has the values for that size.
    bool SlotAlphaUsable() const;

private:
    static std::size_t Index(int k) { return static_cast<std::size_t>(k); }

    std::array<IconSlot, kSlotCount> m_slots;
    std::array<alpha::AlphaArray, kSlotCount> m_alpha;
    alpha::AlphaArray m_incoming;
    std::array<Surface, kSlotCount> m_panelIcon, m_panelMask;
    int m_current = 0;
};

}  // namespace vexlo::session
