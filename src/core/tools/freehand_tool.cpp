// Paint and Erase: the brush square plotted into both planes at the press and at every point
// of the drag, shown at once, and recorded as one undo step on release.
#include <algorithm>

#include "core/icon/icon_colors.h"
#include "core/tools/tool_strategy.h"

namespace vexlo::tools {

namespace {

class FreehandTool final : public ToolStrategy {
public:
    explicit FreehandTool(bool erase) : m_erase(erase) {}

    void Press(ToolContext& c, const ToolEvent& e) const override {
        c.MarkChanged();
        Dragging(c.Draw()) = true;
        c.Draw().Shape = {e.CellX, e.CellY, e.CellX, e.CellY};
        Plot(c);
        c.ShowStroke();
    }

    void Move(ToolContext& c, const ToolEvent& e) const override {
        if (!Dragging(c.Draw())) return;
        Plot(c);
        c.Draw().Shape.Left = e.CellX;
        c.Draw().Shape.Top = e.CellY;
        c.ShowStroke();
    }

    void Release(ToolContext& c, const ToolEvent&) const override { c.Record(); }

private:
    bool& Dragging(DrawState& d) const { return m_erase ? d.EraseDragging : d.PaintDragging; }

    // The brush square at the drag's cell: one pixel for the first brush, else n + 1 cells
    // across from the cell towards the bottom right, cut at the icon's edge.
    void Plot(ToolContext& c) const {
        const Color ci = m_erase ? icon::kBlack : c.Selected();
        const Color cm = m_erase ? icon::kWhite : icon::kBlack;
        DrawState& d = c.Draw();
        const int x = d.CellX;
        const int y = d.CellY;
        const int n = c.BrushIndex();
        if (n == 0) {
            c.Image().SetPixelV(x, y, ci);
            c.Mask().SetPixelV(x, y, cm);
            return;
        }
        d.Shape = {x, y, std::min(x + n, c.Image().Width() - 1), std::min(y + n, c.Image().Height() - 1)};
        c.Image().FillBox(x, y, d.Shape.Right, d.Shape.Bottom, ci);
        c.Mask().FillBox(x, y, d.Shape.Right, d.Shape.Bottom, cm);
    }

    bool m_erase;
};

}  // namespace

const ToolStrategy& PaintTool() {
    static const FreehandTool kPaint(false);
    return kPaint;
}

const ToolStrategy& EraseTool() {
    static const FreehandTool kErase(true);
    return kErase;
}

}  // namespace vexlo::tools
