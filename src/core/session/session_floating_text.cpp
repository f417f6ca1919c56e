// The placed text as a floating Region: handed over at the icon's top left with the Region
// tool selected, moved by a drag on it, dropped by a press outside it. Anything that resets
// the Region's state (another tool, Undo, Clear all tools) drops it where it stands.
#include "core/session/session.h"

namespace vexlo::session {

void Session::HandOverTextRegion(const Surface& picture) {
    ClearTools();
    ResetDrawState();
    m_form.SelectedTool = tools::Tool::Region;  // the frame stays up
    m_draw.RegionReworked = true;
    m_effects.Text().Floating().Lift(picture, m_icon.Image(), m_icon.Mask());
    m_view.Region().Exists = true;
    RedrawFloatingText();
}

void Session::RedrawFloatingText() {
    const FloatingText& text = m_effects.Text().Floating();
    // RegionFromPicture: the cell rectangle and its picDisp pixels.
    const int step = m_view.MagnifyStep();
    RegionMarks& region = m_view.Region();
    region.Cells = {text.Left(), text.Top(), text.Left() + text.Width(),
                    text.Top() + text.Height()};
    region.Rect = {region.Cells.Left * step, region.Cells.Top * step, region.Cells.Right * step,
                   region.Cells.Bottom * step};
    text.DrawInto(m_icon.Image(), m_icon.Mask());
    ComposeIcon();
    LetPendingEventsRun();
    MagnifyIcon();
}

bool Session::FloatingTextPressed(const tools::ToolEvent& e) {
    FloatingText& text = m_effects.Text().Floating();
    if (!text.Active()) return false;
    if (!m_view.Region().Exists || m_form.SelectedTool != tools::Tool::Region) {
        text.Drop();  // the Region's state went since: the text already stays where it is
        return false;
    }
    if (text.Contains(e.CellX, e.CellY)) {
        text.Grab(e.CellX, e.CellY);
        m_draw.RegionDragging = true;
        return true;
    }
    // A press outside drops the text, and the Region tool stays selected.
    text.Drop();
    ResetDrawState();
    ClearTools();
    m_form.SelectedTool = tools::Tool::Region;
    TakeUndoSnapshot();
    return true;
}

bool Session::FloatingTextMoved(const tools::ToolEvent& e) {
    FloatingText& text = m_effects.Text().Floating();
    if (!text.Active() || !m_draw.RegionDragging || !m_view.Region().Exists) return false;
    if (text.MoveTo(e.CellX, e.CellY, m_icon.Side())) RedrawFloatingText();
    return true;
}

}  // namespace vexlo::session
