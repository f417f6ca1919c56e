#include "core/session/edited_icon/edited_icon.h"

namespace vexlo::session {

using icon::kBlack;
using icon::kTransparentGray;
using icon::kWhite;
using icon::kWindowColor;
using surface::BitBlt;
using surface::Rop;

EditedIcon::EditedIcon()
    : m_image(32, 32, kWindowColor),
      m_mask(32, 32, kWindowColor),
      m_composed(32, 32, kTransparentGray),
      m_undoPicture(64, 32, kWhite),
      m_temp(32, 32, kWhite),
      m_imageTemp(32, 32, kWhite),
      m_maskTemp(32, 32, kBlack),
      m_auto(32, 32, kWhite) {}

bool EditedIcon::Resize(int side) {
    bool touched = false;
    for (Surface* s : {&m_composed, &m_image, &m_mask}) {
        if (s->Width() != side || s->Height() != side) {
            s->Resize(side, side);
            touched = true;
        }
    }
    if (m_undoPicture.Width() != 2 * side || m_undoPicture.Height() != side) {
        m_undoPicture.Resize(2 * side, side);
        touched = true;
    }
    return touched;
}

void EditedIcon::Compose() { icon::Compose(m_image, m_mask, m_composed); }

void EditedIcon::Clear() {
    m_mask.Clear();
    m_image.Clear();
    m_composed.Clear();
}

void EditedIcon::Snapshot() {
    m_undo.ClearRedo();
    const int w = m_image.Width();
    const int h = m_image.Height();
    m_undoPicture.DropStoredPicture();
    BitBlt(m_undoPicture, 0, 0, w, h, m_image, 0, 0, Rop::SrcCopy);
    BitBlt(m_undoPicture, w, 0, w, h, m_mask, 0, 0, Rop::SrcCopy);
    m_undoPicture.StorePicture();
    m_undo.Push(m_undoPicture);
}

bool EditedIcon::Move(bool (tools::UndoHistory::*move)()) {
    if (!(m_undo.*move)()) return false;
    Restore(m_undo.Last());
    return true;
}

void EditedIcon::Restore(const Surface& entry) {
    const int w = m_image.Width();
    const int h = m_image.Height();
    m_undoPicture.DropStoredPicture();
    BitBlt(m_undoPicture, 0, 0, entry.Width(), entry.Height(), entry, 0, 0, Rop::SrcCopy);
    BitBlt(m_image, 0, 0, w, h, m_undoPicture, 0, 0, Rop::SrcCopy);
    BitBlt(m_mask, 0, 0, w, h, m_undoPicture, w, 0, Rop::SrcCopy);
    m_image.StorePicture();
    m_mask.StorePicture();
    Compose();
}

}  // namespace vexlo::session
