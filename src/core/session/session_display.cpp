// The Editing Area as the session drives it: the magnified view, the grid and its options,
// the Region outline, the bands and the readouts.
#include "core/session/session.h"

namespace vexlo::session {

void Session::MagnifyIcon() {
    tools::MagnifyInto(PicIcon, PicGrid, GridColor, picDisp);
    if (RegionExists) DrawRegionOutline();
    m_host.RefreshDisplay();
    RefreshToolbar();
}

void Session::BuildGrid() {
    if (!InArea()) return;
    tools::BuildGrid(PicGrid, tools::ViewIconSide(PicIcon), MagnifyStep, GridColor);
}

void Session::OverlayGrid() {
    tools::OverlayGrid(PicGrid, GridColor, tools::ViewIconSide(PicIcon), picDisp);
}

void Session::DrawRegionOutline() {
    tools::DrawRegionOutline(picDisp, RegionRect, Current().SizeCode);
    ShowRegionMeasure();
}

void Session::DrawLineBand() { tools::DrawLineBand(picDisp, Band); }

void Session::DrawBoxBand() { tools::DrawBoxBand(picDisp, Band); }

void Session::ShowRegionMeasure() {
    Form.Status.RegionMeasure = tools::RegionMeasureText(RegionCells, RegionEdgeDragged);
}

void Session::ClickGridline(int item) {
    if (item < 0 || item > 2) return;
    const bool was = Form.GridlineChecked[static_cast<std::size_t>(item)];
    Form.GridlineChecked = {false, false, false};
    Form.GridlineChecked[static_cast<std::size_t>(item)] = !was;
    static constexpr Color kColorOfItem[3] = {tools::kGridLight, tools::kGridDark,
                                              tools::kGridDotted};
    GridColor = tools::kGridNone;
    for (int i = 0; i < 3; ++i) {
        if (Form.GridlineChecked[static_cast<std::size_t>(i)]) {
            GridColor = kColorOfItem[i];
            break;
        }
    }
    if (InArea()) {
        BuildGrid();
        MagnifyIcon();
    }
}

void Session::ClickDisplayMask() { Form.DisplayMaskChecked = !Form.DisplayMaskChecked; }

void Session::PointerOverDisp(int x, int y) {
    if (!Form.Status.InfoLabelsVisible) return;
    const int side = tools::ViewIconSide(PicIcon);
    const int c = x / MagnifyStep;
    const int r = y / MagnifyStep;
    const bool inside = InArea() && x >= 0 && y >= 0 && c < side && r < side;
    Form.Status.DispXY = inside ? tools::DispXYText(c, r) : std::string();
}

}  // namespace vexlo::session
