// Fill and Replace Color: nothing on press or drag; on release the area (or every pixel) of
// the clicked color takes the selected color, or turns transparent with a modifier key.
#include "core/tools/fill.h"
#include "core/tools/tool_strategy.h"

namespace vexlo::tools {

namespace {

using Action = void (*)(Surface&, Surface&, const Surface&, int, int, Color, bool);

class ClickTool final : public ToolStrategy {
public:
    explicit ClickTool(Action action) : m_action(action) {}

    void Release(ToolContext& c, const ToolEvent& e) const override {
        c.Draw().Shape.Left = e.CellX;
        c.Draw().Shape.Top = e.CellY;
        c.Apply([&](Surface& image, Surface& mask) {
            m_action(image, mask, c.Composed(), e.CellX, e.CellY, c.Selected(), e.Modifier);
            surface::MakeSameSize(c.Composed(), c.Temp());
        });
    }

private:
    Action m_action;
};

}  // namespace

const ToolStrategy& FillTool() {
    static const ClickTool kFill(&FillAt);
    return kFill;
}

const ToolStrategy& ReplaceColorTool() {
    static const ClickTool kReplace(&ReplaceColorAt);
    return kReplace;
}

}  // namespace vexlo::tools
