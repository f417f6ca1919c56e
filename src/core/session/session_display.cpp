// The Editing Area as the session drives it: the magnified view, the grid and its options,
// the Region's measure and the pointer's cell.
#include "core/session/session.h"

namespace vexlo::session {

void Session::MagnifyIcon() {
    m_view.Magnify(m_icon.Composed(), Current().SizeCode);
    if (m_view.Region().Exists) ShowRegionMeasure();
    m_host.RefreshDisplay();
    RefreshToolbar();
}

void Session::BuildGrid() {
    if (InArea()) m_view.BuildGrid(m_icon.Composed());
}

void Session::ShowRegionMeasure() {
    const RegionMarks& r = m_view.Region();
    m_form.Status.RegionMeasure = tools::RegionMeasureText(r.Cells, r.EdgeDragged);
}

void Session::ResetRegionState() {
    m_view.ResetRegion();
    m_draw.RegionReworked = false;
}

void Session::ClickGridline(int item) {
    if (item < 0 || item > 2) return;
    const bool was = m_form.GridlineChecked[static_cast<std::size_t>(item)];
    m_form.GridlineChecked = {false, false, false};
    m_form.GridlineChecked[static_cast<std::size_t>(item)] = !was;
    static constexpr Color kColorOfItem[3] = {tools::kGridLight, tools::kGridDark,
                                              tools::kGridDotted};
    m_view.SetGridColor(tools::kGridNone);
    for (int i = 0; i < 3; ++i) {
        if (m_form.GridlineChecked[static_cast<std::size_t>(i)]) {
            m_view.SetGridColor(kColorOfItem[i]);
            break;
        }
    }
    if (InArea()) {
        BuildGrid();
        MagnifyIcon();
    }
}

void Session::PointerOverDisp(int x, int y) {
    if (!m_form.Status.InfoLabelsVisible) return;
    const int side = tools::ViewIconSide(m_icon.Composed());
    const int c = m_view.CellOf(x);
    const int r = m_view.CellOf(y);
    const bool inside = InArea() && x >= 0 && y >= 0 && c < side && r < side;
    m_form.Status.DispXY = inside ? tools::DispXYText(c, r) : std::string();
}

}  // namespace vexlo::session
