#pragma once
// The Region's rectangle and how the pointer moves it, as plain values and pure functions.
// The rectangle is in picDisp pixels, on grid lines; its cells are the icon pixels it covers.
#include "core/tools/editing_area.h"

namespace vexlo::tools {

// The Region as the view outlines it (RegionExists, RegionEdgeDragging, RegionLeft..Bottom
// and the cell rectangle ShapeLeft..ShapeBottom). Until normalized, Left and Top are the press
// point and may lie beyond Right and Bottom.
struct RegionMarks {
    bool Exists = false;
    bool EdgeDragged = false;  // an edge is being dragged
    DispRect Rect;             // in picDisp pixels
    CellRect Cells;            // in icon cells
};

// The edge that a drag moves.
enum class RegionEdge { None = 0, Left, Right, Top, Bottom };

// What a drag of the Region keeps between pointer events, in picDisp pixels.
struct RegionDrag {
    int X = 0;  // the anchor for moves (RegionX, RegionY)
    int Y = 0;
    int GrabX = 0;  // anchor minus pointer at the press that starts a move
    int GrabY = 0;
    int MinX = 0;  // how far RegionLeft and RegionTop may go
    int MinY = 0;
    int MaxX = 0;
    int MaxY = 0;
    RegionEdge Edge = RegionEdge::None;
    int EdgeStart = 0;  // the last raw pointer coordinate of an edge drag
};

// The sizes that the cell rectangle depends on: the zoom, picDisp's inner size and the icon's.
struct RegionScale {
    int Step = 12;
    int DispWidth = kDispSide;
    int DispHeight = kDispSide;
    int IconWidth = 32;
    int IconHeight = 32;
};

// RegionToCells: left and top divided by the step; right and bottom divided by it less one,
// or equal to left and top when the rectangle is at most one step across. A right or bottom
// edge on picDisp's last pixel gives the icon's last cell. Divisions round to the nearest
// whole cell, ties to even.
CellRect RegionToCells(const DispRect& r, const RegionScale& scale);

// NormalizeRegion: swaps left and right, top and bottom, where they lie the wrong way round,
// and then takes the cells anew. True when anything was swapped.
bool NormalizeRegion(RegionMarks& marks, const RegionScale& scale);

// SetRegionLimits: the Region may leave picDisp by 70 percent of its size at the left and
// top, and its left and top edges may come as close to the right and bottom as 30 percent.
void SetRegionLimits(const DispRect& r, int dispWidth, int dispHeight, RegionDrag& drag);

// SetRegionAnchor: the anchor at (x, y) with no grab offset.
void SetRegionAnchor(RegionDrag& drag, int x, int y);

// The edge within the band of 4 pixels before it and 8 after it of (x, y), in the order left,
// right, top, bottom; None when there is none.
RegionEdge EdgeNear(const DispRect& r, int x, int y);

// Whether a move of the Region's left top corner to (nx, ny) goes past its limits: a Region
// at a limit may move back, not further.
bool MoveRefused(const DispRect& r, const RegionDrag& drag, int nx, int ny);

// The rectangle of a picture of w x h placed at cell (x, y) (RegionFromPicture): right and
// bottom one cell past its last one, all times the step.
DispRect RegionOfPicture(int x, int y, int w, int h, int step);

// The dragged edge's coordinate of r.
int& EdgeCoordinate(DispRect& r, RegionEdge edge);

}  // namespace vexlo::tools
