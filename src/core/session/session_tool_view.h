#pragma once
// The tools' view of the session: the planes and scratch pictures, picDisp with its band and
// Region rectangles, the drag's state, the Current Selected Color and the brush, and the
// session's operations that show a stroke and end an edit (session_pointer.cpp). The pointer
// hands this to the selected tool's strategy; the Region part of it is RegionToolView.
#include <functional>

#include "core/surface/surface.h"
#include "core/tools/tool_strategy.h"

namespace vexlo::session {

class Session;

class SessionToolView final : public tools::ToolContext {
public:
    explicit SessionToolView(Session& s) : m_s(s) {}

    surface::Surface& Image() override;
    surface::Surface& Mask() override;
    const surface::Surface& Composed() const override;
    surface::Surface& Temp() override;
    surface::Surface& ImageTemp() override;
    surface::Surface& Disp() override;
    tools::DispRect& Band() override;
    tools::DispRect& RegionRect() override;
    tools::DrawState& Draw() override;
    surface::Color Selected() const override;
    int BrushIndex() const override;
    int MagnifyStep() const override;
    void ShowStroke() override;
    void Apply(const std::function<void(surface::Surface& image, surface::Surface& mask)>& edit) override;
    void Record() override;
    void MarkChanged() override;
    void RefreshDisplay() override;
    void LetPendingEventsRun() override;
    tools::RegionContext& Region() override;

private:
    Session& m_s;
};

}  // namespace vexlo::session
