#pragma once
// The tools of the Toolbox as small strategies. The session turns a pointer event on the
// Editing Area into a ToolEvent and hands it, with a narrow ToolContext, to the strategy of
// the selected tool, which it finds in one table (tool_table.cpp). A strategy keeps no state
// of its own: what a drag remembers lives in the context's DrawState.
//
// The kinds: freehand (Paint, Erase: plotted at every point of a drag), two-point shapes
// (lines, boxes, ovals, the Spotlight: a dotted band while dragging, plotted on release) and
// one-click tools (Fill, Replace Color: on release), and the Region (region_tool.cpp). Shift
// Directions works on its own pad, not on the Editing Area, and has no strategy.
#include <functional>

#include "core/surface/surface.h"
#include "core/tools/editing_area.h"
#include "core/tools/tool_state.h"

namespace vexlo::tools {

using surface::Color;
using surface::Surface;

class RegionContext;  // region_tool.h

// Where the pointer is: picDisp pixels, the icon cell under them, and the modifier keys.
struct ToolEvent {
    int X = 0;
    int Y = 0;
    int CellX = 0;
    int CellY = 0;
    bool Modifier = false;  // Shift, Control or Alt held
};

// What a tool may use of the session.
class ToolContext {
public:
    virtual ~ToolContext() = default;
    virtual Surface& Image() = 0;
    virtual Surface& Mask() = 0;
    virtual const Surface& Composed() const = 0;
    // Scratch pictures of the icon's size (picTemp, picImageTemp).
    virtual Surface& Temp() = 0;
    virtual Surface& ImageTemp() = 0;
    // picDisp, for the dotted bands, and the band and Region rectangles drawn on it.
    virtual Surface& Disp() = 0;
    virtual DispRect& Band() = 0;
    virtual DispRect& RegionRect() = 0;
    virtual DrawState& Draw() = 0;
    virtual Color Selected() const = 0;
    virtual int BrushIndex() const = 0;  // cboBrushSize's index, 0..5
    virtual int MagnifyStep() const = 0;
    // The planes composed and shown, mid-stroke.
    virtual void ShowStroke() = 0;
    // The end of an edit: the edit on the planes, then composed, marked changed, shown, and
    // recorded as one undo step.
    virtual void Apply(const std::function<void(Surface& image, Surface& mask)>& edit) = 0;
    // One undo step of the planes as they stand.
    virtual void Record() = 0;
    virtual void MarkChanged() = 0;
    // picDisp changed on the screen.
    virtual void RefreshDisplay() = 0;
    virtual void LetPendingEventsRun() = 0;
    // The Region and its floating picture (region_tool.h).
    virtual RegionContext& Region() = 0;
};

class ToolStrategy {
public:
    virtual ~ToolStrategy() = default;
    // A left press inside the icon, a move inside it, and the release.
    virtual void Press(ToolContext&, const ToolEvent&) const {}
    virtual void Move(ToolContext&, const ToolEvent&) const {}
    virtual void Release(ToolContext&, const ToolEvent&) const {}
};

// The strategy of a tool; null for None and for a tool without one.
const ToolStrategy* StrategyOf(Tool tool);

}  // namespace vexlo::tools
