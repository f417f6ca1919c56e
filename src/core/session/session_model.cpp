// The icon between the panel and the Editing Area: sizes of the working pictures, storing to
// the panel and rebuilding from it, parking, and the one way every edit ends.
#include "core/session/session.h"

namespace vexlo::session {

Session::Session(Host& host)
    : m_host(host),
      m_charts{Surface(256, 48, kWhite), Surface(160, 40, kWhite), Surface(32, 32, kWhite)} {}

void Session::SetWorkSize(int sizeCode) {
    m_view.SetMagnifyStep(MagnifyStepOf(sizeCode));
    if (m_icon.Resize(IconSideOf(sizeCode))) BuildGrid();
    LetPendingEventsRun();
}

void Session::ClearSlot() {
    m_panel.ClearSlot();
    EnsureAlphaArray();
}

bool Session::EnsureAlphaArray() {
    if (m_formLoading) return false;
    return m_panel.EnsureAlphaArray();
}

void Session::RebuildFromPanel() {
    const int side = IconSideOf(Current().SizeCode);
    SetWorkSize(Current().SizeCode);
    Surface& image = m_icon.Image();
    Surface& mask = m_icon.Mask();
    m_icon.FillTransparent();
    const Surface& icon = m_panel.PanelIcon(CurrentSlot());
    const Surface& panelMask = m_panel.PanelMask(CurrentSlot());
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            const Color p = icon.GetPixel(x, y);
            // Gray is transparent unless the mask says that it was painted.
            if (p == kTransparentGray && panelMask.GetPixel(x, y) != 0) continue;
            image.SetPixelV(x, y, p);
            mask.SetPixelV(x, y, kBlack);
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
    m_icon.Clear();
    m_view.Disp().Clear();
    ClearStatusPanel();
    ClearUndoHistory();
    ResetRegionState();
    RefreshToolbar();
}

void Session::UnparkIcon() {
    if (Current().Occupied) {
        if (!Current().InEditingArea) RebuildFromPanel();
        return;
    }
    OpenEmptySlot();
}

void Session::OpenEmptySlot() {
    m_view.Disp().Clear();
    ClearSlot();
    Current().SizeCode = 2;
    SetWorkSize(2);
    ClearStatusPanel();
    ClearTools();
}

void Session::MarkCurrentLabel(int k) {
    for (int i = 0; i < kSlotCount; ++i)
        m_form.PanelLabelBack[static_cast<std::size_t>(i)] =
            i == k ? kPanelLabelCurrent : kPanelLabelOther;
}

void Session::ApplyToIcon(const std::function<void(Surface& image, Surface& mask)>& edit) {
    edit(m_icon.Image(), m_icon.Mask());
    ComposeIcon();
    Current().Changed = true;
    MagnifyIcon();
    TakeUndoSnapshot();
}

}  // namespace vexlo::session
