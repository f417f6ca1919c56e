#pragma once
// The Region tool's view of the session: the marks the view outlines, the drag's values in
// the floating Region, and the session's operations on them (session_region.cpp).
#include "core/tools/region_tool.h"

namespace vexlo::session {

class Session;

class RegionToolView final : public tools::RegionContext {
public:
    explicit RegionToolView(Session& s) : m_s(s) {}

    tools::RegionMarks& Marks() override;
    tools::RegionDrag& Drag() override;
    tools::RegionScale Scale() const override;
    bool PointerOnEdge() const override;
    void DrawOutline() override;
    void ShowMeasure() override;
    void Lift(bool seeThrough) override;
    void RedrawFloating() override;
    void DropRegion() override;

private:
    Session& m_s;
};

}  // namespace vexlo::session
