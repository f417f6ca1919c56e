// Which strategy each tool of the Toolbox runs. A new tool is a file with its strategy and a
// row here.
#include <array>

#include "core/tools/tool_strategy.h"

namespace vexlo::tools {

const ToolStrategy& PaintTool();         // freehand_tool.cpp
const ToolStrategy& EraseTool();         // freehand_tool.cpp
const ToolStrategy& FillTool();          // click_tool.cpp
const ToolStrategy& ReplaceColorTool();  // click_tool.cpp
const ToolStrategy& ShapeTool(Tool tool);  // shape_tool.cpp: lines, boxes, ovals, Spotlight
const ToolStrategy& RegionTool();          // region_tool.cpp

namespace {

struct Row {
    Tool Which;
    const ToolStrategy* Strategy;
};

const std::array<Row, kToolCount>& Table() {
    static const std::array<Row, kToolCount> kRows{{
        {Tool::Paint, &PaintTool()},
        {Tool::Erase, &EraseTool()},
        {Tool::Fill, &FillTool()},
        {Tool::ReplaceColor, &ReplaceColorTool()},
        {Tool::Spotlight, &ShapeTool(Tool::Spotlight)},
        {Tool::Line, &ShapeTool(Tool::Line)},
        {Tool::BrokenLine, &ShapeTool(Tool::BrokenLine)},
        {Tool::Rectangle, &ShapeTool(Tool::Rectangle)},
        {Tool::FilledRectangle, &ShapeTool(Tool::FilledRectangle)},
        {Tool::Oval, &ShapeTool(Tool::Oval)},
        {Tool::FilledOval, &ShapeTool(Tool::FilledOval)},
        {Tool::Region, &RegionTool()},
        {Tool::Shift, nullptr},
    }};
    return kRows;
}

}  // namespace

const ToolStrategy* StrategyOf(Tool tool) {
    for (const Row& row : Table())
        if (row.Which == tool) return row.Strategy;
    return nullptr;
}

}  // namespace vexlo::tools
