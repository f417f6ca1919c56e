#include "core/session/editing_view/editing_view.h"

#include "core/icon/icon_colors.h"

namespace vexlo::session {

EditingView::EditingView()
    : m_disp(tools::kDispSide, tools::kDispSide, icon::kTransparentGray),
      m_grid(tools::kDispSide, tools::kDispSide, icon::kWindowColor) {}

void EditingView::Magnify(const Surface& composed, int sizeCode) {
    tools::MagnifyInto(composed, m_grid, m_gridColor, m_disp);
    if (m_region.Exists) DrawRegionOutline(sizeCode);
}

void EditingView::BuildGrid(const Surface& composed) {
    tools::BuildGrid(m_grid, tools::ViewIconSide(composed), m_magnifyStep, m_gridColor);
}

void EditingView::OverlayGrid(const Surface& composed) {
    tools::OverlayGrid(m_grid, m_gridColor, tools::ViewIconSide(composed), m_disp);
}

bool EditingView::InsideIcon(int x, int y, int sizeCode) const {
    const int w = m_disp.Width();
    const int h = m_disp.Height();
    if (sizeCode == 1) return x <= w / 2 - 1 && y <= h / 2 - 1;
    return x <= w - 1 && y <= h - 1;
}

void EditingView::DrawRegionOutline(int sizeCode) {
    tools::DrawRegionOutline(m_disp, m_region.Rect, sizeCode);
}

void EditingView::DrawLineBand() { tools::DrawLineBand(m_disp, m_band); }

void EditingView::DrawBoxBand() { tools::DrawBoxBand(m_disp, m_band); }

}  // namespace vexlo::session
