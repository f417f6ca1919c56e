// Undo and redo of the current icon: snapshots of both planes after every change.
#include "core/session/session.h"

namespace vexlo::session {

using surface::BitBlt;
using surface::Rop;

int Session::UndoCount() const { return static_cast<int>(m_undo.UndoCount()); }
int Session::RedoCount() const { return static_cast<int>(m_undo.RedoCount()); }

void Session::ClearUndoHistory() { m_undo.Clear(); }

void Session::TakeUndoSnapshot() {
    m_undo.ClearRedo();
    const int w = picImage.Width();
    const int h = picImage.Height();
    picUndo.DropStoredPicture();
    BitBlt(picUndo, 0, 0, w, h, picImage, 0, 0, Rop::SrcCopy);
    BitBlt(picUndo, w, 0, w, h, picMask, 0, 0, Rop::SrcCopy);
    picUndo.StorePicture();
    m_undo.Push(picUndo);
    RefreshToolbar();
    m_host.DoEvents();
}

void Session::RestoreUndoEntry(const Surface& entry) {
    const int w = picImage.Width();
    const int h = picImage.Height();
    picUndo.DropStoredPicture();
    BitBlt(picUndo, 0, 0, entry.Width(), entry.Height(), entry, 0, 0, Rop::SrcCopy);
    BitBlt(picImage, 0, 0, w, h, picUndo, 0, 0, Rop::SrcCopy);
    BitBlt(picMask, 0, 0, w, h, picUndo, w, 0, Rop::SrcCopy);
    picImage.StorePicture();
    picMask.StorePicture();
    ComposeIcon();
}

bool Session::NeedsIconInArea() {
    if (InArea()) return true;
    m_host.MsgBox(kNoIconYet, MsgButtons::Ok, MsgIcon::None, kTitle);
    return false;
}

void Session::StepHistory(bool (tools::UndoHistory::*move)(), std::size_t have, std::size_t needed) {
    if (!NeedsIconInArea() || have < needed) return;
    if (Form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    ResetDrawState();
    (m_undo.*move)();
    RestoreUndoEntry(m_undo.Last());
    MagnifyIcon();
}

void Session::UndoStep() { StepHistory(&tools::UndoHistory::StepBack, m_undo.UndoCount(), 2); }

void Session::UndoAll() { StepHistory(&tools::UndoHistory::BackToFirst, m_undo.UndoCount(), 3); }

void Session::RedoStep() { StepHistory(&tools::UndoHistory::StepForward, m_undo.RedoCount(), 1); }

}  // namespace vexlo::session
