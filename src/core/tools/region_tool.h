#pragma once
// What the Region tool asks of the session beyond ToolContext: the marks the view outlines,
// the drag's own values, and the operations on the floating picture that the session owns.
#include "core/tools/region_geometry.h"

namespace vexlo::tools {

class RegionContext {
public:
    virtual ~RegionContext() = default;
    virtual RegionMarks& Marks() = 0;
    virtual RegionDrag& Drag() = 0;
    // The sizes the cell rectangle is taken with.
    virtual RegionScale Scale() const = 0;
    // picDisp shows one of the two sizing arrows (the pointer is on an edge).
    virtual bool PointerOnEdge() const = 0;
    // DrawRegionOutline: the dotted outline in invert mode (twice removes it) and the measure.
    virtual void DrawOutline() = 0;
    virtual void ShowMeasure() = 0;
    // LiftRegion: the planes' pixels under the cells become the floating picture.
    virtual void Lift(bool seeThrough) = 0;
    // RedrawFloatingRegion: the planes from what lies under the Region, with the floating
    // picture at its place, composed and shown.
    virtual void RedrawFloating() = 0;
    // A press outside the Region: the floating picture stays where it stands, the Region's
    // state goes, the Region tool is selected anew and the planes recorded as one undo step.
    virtual void DropRegion() = 0;
};

}  // namespace vexlo::tools
