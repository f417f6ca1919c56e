// Undo and redo of the current icon: snapshots of both planes after every change.
#include "core/session/session.h"

namespace vexlo::session {

void Session::TakeUndoSnapshot() {
    m_icon.Snapshot();
    RefreshToolbar();
    LetPendingEventsRun();
}

void Session::BeginUndoHistory() {
    ClearUndoHistory();
    TakeUndoSnapshot();
}

bool Session::NeedsIconInArea() {
    if (InArea()) return true;
    m_host.MsgBox(kNoIconYet, MsgButtons::Ok, MsgIcon::None, kTitle);
    return false;
}

void Session::StepHistory(bool (EditedIcon::*move)(), std::size_t have, std::size_t needed) {
    if (!NeedsIconInArea() || have < needed) return;
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    ResetDrawState();
    (m_icon.*move)();
    MagnifyIcon();
}

void Session::UndoStep() { StepHistory(&EditedIcon::StepBack, m_icon.UndoCount(), 2); }

void Session::UndoAll() { StepHistory(&EditedIcon::BackToFirst, m_icon.UndoCount(), 3); }

void Session::RedoStep() { StepHistory(&EditedIcon::StepForward, m_icon.RedoCount(), 1); }

}  // namespace vexlo::session
