#pragma once
// The undo and redo lists: whole pictures of the current icon, the image plane in the left
// half and the mask plane in the right half of one picture of 2w x h.
#include <cstddef>
#include <utility>
#include <vector>

#include "core/surface/surface.h"

namespace vexlo::tools {

class UndoHistory {
public:
    static constexpr std::size_t kMaxEntries = 11;  // the present state and ten before it

    struct Entry {
        int Key = 0;  // the running number of the snapshot
        surface::Surface Picture;
    };

    std::size_t UndoCount() const { return m_undo.size(); }
    std::size_t RedoCount() const { return m_redo.size(); }
    int RunningNumber() const { return m_running; }

    // Empties both lists and sets the running number to 0.
    void Clear();
    void ClearRedo() { m_redo.clear(); }
    // Appends a picture under the next running number; drops the oldest past the limit.
    void Push(surface::Surface picture);
    // Undo: moves the last entry over to the redo list; the entry to show is then the last.
    // False with fewer than two entries.
    bool StepBack();
    // Undo All: keeps only the first entry, empties the redo list, running number 1. False
    // with fewer than three entries.
    bool BackToFirst();
    // Redo: moves the last redo entry back. False with none.
    bool StepForward();
    const surface::Surface& Last() const { return m_undo.back().Picture; }
    const std::vector<Entry>& Entries() const { return m_undo; }

private:
    std::vector<Entry> m_undo;
    std::vector<Entry> m_redo;
    int m_running = 0;
};

}  // namespace vexlo::tools
