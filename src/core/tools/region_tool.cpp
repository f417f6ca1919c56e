// The Region tool. The first drag draws a dotted rectangle on grid lines; its release lifts
// the pixels inside as a floating picture. A press inside a floating Region grabs it and the
// drag moves it; a press on an edge of a lifted one drags that edge, and its release lifts
// the new rectangle; a press outside drops it.
#include <cstdlib>

#include "core/tools/region_tool.h"
#include "core/tools/tool_strategy.h"

namespace vexlo::tools {

namespace {

class RegionStrategy final : public ToolStrategy {
public:
    void Press(ToolContext& c, const ToolEvent& e) const override {
        RegionContext& r = c.Region();
        RegionMarks& marks = r.Marks();
        c.Draw().RegionDragging = true;
        marks.EdgeDragged = false;
        const int px = SnapCoordinate(e.X, c.MagnifyStep(), 2);
        const int py = SnapCoordinate(e.Y, c.MagnifyStep(), 2);
        if (!marks.Exists) {
            c.Disp().Cls();
            marks.Rect = {px, py, px, py};
            marks.Cells = RegionToCells(marks.Rect, r.Scale());
            r.DrawOutline();
            c.RefreshDisplay();
            return;
        }
        RegionDrag& drag = r.Drag();
        drag.Edge = RegionEdge::None;
        if (r.PointerOnEdge()) {
            drag.Edge = EdgeNear(marks.Rect, px, py);
            drag.EdgeStart = IsHorizontal(drag.Edge) ? e.X : e.Y;
            marks.EdgeDragged = true;
            c.LetPendingEventsRun();
            return;
        }
        const DispRect& rect = marks.Rect;
        if (px >= rect.Left && px <= rect.Right && py >= rect.Top && py <= rect.Bottom) {
            drag.GrabX = drag.X - px;
            drag.GrabY = drag.Y - py;
            return;
        }
        r.DropRegion();
    }

    void Move(ToolContext& c, const ToolEvent& e) const override {
        if (!c.Draw().RegionDragging) return;
        RegionContext& r = c.Region();
        RegionMarks& marks = r.Marks();
        DispRect& rect = marks.Rect;
        const int px = SnapCoordinate(e.X, c.MagnifyStep(), 2);
        const int py = SnapCoordinate(e.Y, c.MagnifyStep(), 2);
        if (!marks.Exists) {
            r.DrawOutline();
            rect.Right = px;
            rect.Bottom = py;
            if (e.Modifier) {
                const RegionScale s = r.Scale();
                ConstrainSquare(rect.Left, rect.Right, rect.Top, rect.Bottom, s.IconWidth * s.Step - 1,
                                s.IconHeight * s.Step - 1);
            }
            marks.Cells = RegionToCells(rect, r.Scale());
            r.DrawOutline();
            c.RefreshDisplay();
            return;
        }
        RegionDrag& drag = r.Drag();
        if (marks.EdgeDragged) {
            const int raw = IsHorizontal(drag.Edge) ? e.X : e.Y;
            r.DrawOutline();
            if (drag.Edge != RegionEdge::None) EdgeCoordinate(rect, drag.Edge) += raw - drag.EdgeStart;
            drag.EdgeStart = raw;
            r.DrawOutline();
            c.RefreshDisplay();
            c.LetPendingEventsRun();
            return;
        }
        const int nx = drag.GrabX + px;
        const int ny = drag.GrabY + py;
        if (MoveRefused(rect, drag, nx, ny)) return;
        const int dw = rect.Right - rect.Left;
        const int dh = rect.Bottom - rect.Top;
        drag.X = nx;
        drag.Y = ny;
        rect = {nx, ny, nx + dw, ny + dh};
        marks.Cells = RegionToCells(rect, r.Scale());
        r.RedrawFloating();
    }

    void Release(ToolContext& c, const ToolEvent&) const override {
        RegionContext& r = c.Region();
        RegionMarks& marks = r.Marks();
        DispRect& rect = marks.Rect;
        const int dx = rect.Right - rect.Left;
        const int dy = rect.Bottom - rect.Top;
        const bool wide = marks.Exists ? dx > 1 && dy > 1 : std::abs(dx) > 1 && std::abs(dy) > 1;
        if (!wide) return;
        if (!marks.Exists) {
            marks.Exists = true;
            if (NormalizeRegion(marks, r.Scale())) r.ShowMeasure();
            r.Lift(true);
            return;
        }
        if (!marks.EdgeDragged) return;
        RegionDrag& drag = r.Drag();
        r.DrawOutline();
        if (drag.Edge != RegionEdge::None) {
            // Back to the grid line at or before it.
            const int step = c.MagnifyStep();
            int& v = EdgeCoordinate(rect, drag.Edge);
            v = v / step * step;
        }
        marks.EdgeDragged = false;
        r.DrawOutline();
        marks.Cells = RegionToCells(rect, r.Scale());
        r.ShowMeasure();
        r.Lift(true);
    }

private:
    static bool IsHorizontal(RegionEdge edge) { return edge == RegionEdge::Left || edge == RegionEdge::Right; }
};

}  // namespace

const ToolStrategy& RegionTool() {
    static const RegionStrategy kRegion;
    return kRegion;
}

}  // namespace vexlo::tools
