#pragma once
// The icon in the Editing Area: its two planes (picImage, picMask), the composed picture
// (PicIcon), the scratch pictures that the tools and loaders borrow, and the undo history of
// whole pictures of both planes.
#include <cstddef>

#include "core/effects/shades.h"
#include "core/icon/icon_planes.h"
#include "core/tools/undo_history.h"

namespace vexlo::session {

using surface::Surface;

class EditedIcon {
public:
    EditedIcon();

    // The planes. Whoever writes them runs Compose after.
    Surface& Image() { return m_image; }
    Surface& Mask() { return m_mask; }
    const Surface& Image() const { return m_image; }
    const Surface& Mask() const { return m_mask; }
    // PicIcon: the planes composed on the transparent gray.
    const Surface& Composed() const { return m_composed; }
    int Side() const { return m_image.Width(); }
    effects::IconPlanes Planes() const { return {m_image, m_mask, m_composed}; }

    // Scratch pictures (picTemp, picImageTemp, picMaskTemp, picAuto).
    Surface& Temp() { return m_temp; }
    Surface& ImageTemp() { return m_imageTemp; }
    Surface& MaskTemp() { return m_maskTemp; }
    Surface& Auto() { return m_auto; }

    // Gives the planes, the composed picture and the undo picture the icon's side; true when
    // any of them changed size (the grid then needs a rebuild).
    bool Resize(int side);
    void Compose();
    // Both planes transparent.
    void FillTransparent() { icon::FillTransparent(m_image, m_mask); }
    // Every picture of the Editing Area back to its back color.
    void Clear();

    // Undo and redo.
    std::size_t UndoCount() const { return m_undo.UndoCount(); }
    std::size_t RedoCount() const { return m_undo.RedoCount(); }
    const tools::UndoHistory& History() const { return m_undo; }
    void ClearHistory() { m_undo.Clear(); }
    // Records both planes as the newest entry and forgets what could be redone.
    void Snapshot();
    // Moves through the history (Undo, Undo All, Redo) and puts the entry then last back into
    // the planes, composed. False, with nothing changed, when the move isn't possible.
    bool StepBack() { return Move(&tools::UndoHistory::StepBack); }
    bool BackToFirst() { return Move(&tools::UndoHistory::BackToFirst); }
    bool StepForward() { return Move(&tools::UndoHistory::StepForward); }

private:
    bool Move(bool (tools::UndoHistory::*move)());
    void Restore(const Surface& entry);

    Surface m_image, m_mask, m_composed;
    Surface m_undoPicture;  // picUndo: the image plane left, the mask plane right
    Surface m_temp, m_imageTemp, m_maskTemp, m_auto;
    tools::UndoHistory m_undo;
};

}  // namespace vexlo::session
