#pragma once
// The Editing Area as a view: picDisp (the magnified icon, always 384 x 384), the grid
// picture and its mode, the zoom (MagnifyStep), the Region's rectangles and the rubber band
// of a shape tool being dragged.
#include "core/surface/surface.h"
#include "core/tools/editing_area.h"
#include "core/tools/region_geometry.h"

namespace vexlo::session {

using surface::Color;
using surface::Surface;

// The Region as the view outlines it (core/tools/region_geometry.h).
using tools::RegionMarks;

class EditingView {
public:
    EditingView();

    const Surface& Disp() const { return m_disp; }
    // The dotted bands and the outline are drawn right onto picDisp.
    Surface& Disp() { return m_disp; }
    const Surface& Grid() const { return m_grid; }
    Color GridColor() const { return m_gridColor; }
    void SetGridColor(Color c) { m_gridColor = c; }
    int MagnifyStep() const { return m_magnifyStep; }
    void SetMagnifyStep(int step) { m_magnifyStep = step; }
    // The cell under a picDisp coordinate.
    int CellOf(int v) const { return v / m_magnifyStep; }

    // MagnifyIcon: composed stretched over picDisp with the grid, the Region outlined.
    void Magnify(const Surface& composed, int sizeCode);
    void BuildGrid(const Surface& composed);
    void OverlayGrid(const Surface& composed);
    // Whether (x, y) of picDisp lies in the part of it that shows the icon.
    bool InsideIcon(int x, int y, int sizeCode) const;

    RegionMarks& Region() { return m_region; }
    const RegionMarks& Region() const { return m_region; }
    void ResetRegion() { m_region = {}; }
    void DrawRegionOutline(int sizeCode);

    // The rubber band of a shape tool, in picDisp pixels.
    tools::DispRect& Band() { return m_band; }
    void DrawLineBand();
    void DrawBoxBand();

private:
    Surface m_disp, m_grid;
    Color m_gridColor = tools::kGridLight;
    int m_magnifyStep = 12;
    RegionMarks m_region;
    tools::DispRect m_band;
};

}  // namespace vexlo::session
