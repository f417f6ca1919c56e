#include "core/tools/undo_history.h"

namespace vexlo::tools {

void UndoHistory::Clear() {
    m_undo.clear();
    m_redo.clear();
    m_running = 0;
}

void UndoHistory::Push(surface::Surface picture) {
    ++m_running;
    m_undo.push_back({m_running, std::move(picture)});
    if (m_undo.size() > kMaxEntries) m_undo.erase(m_undo.begin());
}

bool UndoHistory::StepBack() {
    if (m_undo.size() < 2) return false;
    m_redo.push_back(std::move(m_undo.back()));
    m_undo.pop_back();
    return true;
}

bool UndoHistory::BackToFirst() {
    if (m_undo.size() < 3) return false;
    m_undo.erase(m_undo.begin() + 1, m_undo.end());
    m_redo.clear();
    m_running = 1;
    return true;
}

bool UndoHistory::StepForward() {
    if (m_redo.empty()) return false;
    m_undo.push_back(std::move(m_redo.back()));
    m_redo.pop_back();
    return true;
}

}  // namespace vexlo::tools
