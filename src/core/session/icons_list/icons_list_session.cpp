#include "core/session/icons_list/icons_list_session.h"

#include <algorithm>

namespace vexlo::session {

const char* ListKindCaption(int kind) {
    switch (kind) {
        case kListFolder: return "Icons In Folder";
        case kListAni: return "Extract Icons In ANI File";
        case kListLarge: return "Extract DLL-Large";
        case kListSmall: return "Extract DLL-Small";
        case kListFileType: return "Icons Associated With File";
        case kListDesktop: return "Desktop Icons";
        default: return "";
    }
}

IconsListSession::IconsListSession()
    : m_items(1), m_picture(kListPictureWidth, kListPictureHeight, 0xFFFFFF),
      m_library(&DefaultLibraryIcons()) {
    RefreshListScroll();
}

void IconsListSession::SetItems(std::vector<std::string> names) {
    m_items.clear();
    m_items.reserve(names.size());
    for (std::string& name : names) m_items.push_back({std::move(name), true});
    if (m_items.empty()) m_items.emplace_back();
    m_last = static_cast<int>(names.empty() ? 0 : names.size() - 1);
}

void IconsListSession::SetAllItems(const std::string& name, int count) {
    m_items.assign(static_cast<std::size_t>(std::max(count, 1)), IconsListItem{name, count > 0});
    m_last = std::max(count - 1, 0);
}

int IconsListSession::LotFirst() const {
    return m_controls.LotIndex > 0 ? m_controls.LotIndex * kLotSize : 0;
}

void IconsListSession::Reset() {
    m_items.assign(1, IconsListItem{});
    m_last = 0;
    m_lotCount = 0;
    m_source.clear();
    m_picture.Clear();
    m_boxDrawn = false;
    ClearLots();
}

void IconsListSession::SetListControls(bool enabled) {
    m_controls.CountLabelEnabled = enabled;
    m_controls.LotListEnabled = enabled;
    m_controls.NextPanelEnabled = enabled;
    m_controls.NextPageEnabled = enabled;
    m_controls.PageEnabled.fill(enabled);
}

void IconsListSession::ClearLots() {
    m_controls.LotCount = 0;
    m_controls.LotIndex = -1;
}

void IconsListSession::FillLotNumbers() {
    m_filling = true;
    SetListControls(true);
    int lots = 1;
    if (m_last > kLotSize - 1) {
        lots = (m_last + 1) / kLotSize;
        if ((m_last + 1) % kLotSize != 0) ++lots;
    }
    m_controls.LotCount = lots;
    m_controls.LotIndex = 0;
    m_filling = false;
}

void IconsListSession::RefreshListScroll() {
    int max = m_picture.Height() - kListViewHeight - 16;
    if (max < 1) {
        m_controls.ScrollMax = 0;
        return;
    }
    m_controls.ScrollMax = max;
    m_controls.SmallChange = static_cast<int>(kListCellHeight);
    m_controls.LargeChange = 2 * m_controls.SmallChange;
}

void IconsListSession::ScrollTo(int value) {
    if (!m_paging) UnmarkPages();
    m_controls.ScrollValue = std::clamp(value, 0, m_controls.ScrollMax);
}

int IconsListSession::MarkedPage() const {
    for (int k = 0; k < kPagesPerLot; ++k)
        if (m_controls.PageBack[static_cast<std::size_t>(k)] == kPageMarked) return k;
    return -1;
}

void IconsListSession::MarkPage(int k) {
    for (int i = 0; i < kPagesPerLot; ++i)
        m_controls.PageBack[static_cast<std::size_t>(i)] = i == k ? kPageMarked : kPageUnmarked;
}

void IconsListSession::UnmarkPages() { m_controls.PageBack.fill(kPageUnmarked); }

void IconsListSession::SetPageButtonsForLot() {
    m_controls.NextPanelEnabled = m_controls.LotCount > 1;
    const int pages = (m_lotCount + kPageSize - 1) / kPageSize;
    for (int k = 0; k < kPagesPerLot; ++k)
        m_controls.PageEnabled[static_cast<std::size_t>(k)] = k < pages;
    MarkPage(0);
    m_controls.NextPageEnabled = true;
}

ListHit IconsListSession::HitTest(double x, double y) {
    const int cw = RoundPixel(m_picture.Width() / 3.0);
    const int ch = RoundPixel(m_picture.Height() / 16.0);
    ListHit hit;
    for (int c = 1; c <= kListColumns && hit.Column == 0; ++c)
        if (x < c * cw) hit.Column = c;
    for (int r = 1; r <= kListRows && hit.Row == 0; ++r)
        if (y < r * ch) hit.Row = r;
    if (hit.Column > 0 && hit.Row > 0) {
        const int n = (hit.Row - 1) * kListColumns + hit.Column;
        hit.Item = n > m_lotCount ? 0 : n + LotFirst();
    }
    m_hit = hit;
    return hit;
}

void IconsListSession::DrawSelectionBox(int c, int r) {
    if (m_boxDrawn) DrawBox();
    const ListCell cell = CellAt(c, r);
    m_boxX = RoundPixel(cell.X);
    m_boxY = RoundPixel(cell.Y);
    DrawBox();
    m_boxDrawn = true;
}

void IconsListSession::DrawBox() {
    const int x2 = std::min(m_boxX + RoundPixel(kListCellWidth), m_picture.Width() - 1);
    const int y2 = std::min(m_boxY + RoundPixel(kListCellHeight), m_picture.Height() - 1);
    const surface::Pen pen{2, surface::kDrawStyleSolid, surface::kDrawModeInvert};
    m_picture.Box(m_boxX, m_boxY, x2, y2, 0, pen);
}

}  // namespace vexlo::session
