// Expand, Shrink, Confine to 16 colors and Confine to mono on the current icon.
#include "core/effects/resize_confine.h"
#include "core/files/ico_write.h"
#include "core/session/session_effect_frames.h"

namespace vexlo::session {

void EffectFrames::ResizeIcon(bool expand) {
    IconSlot& s = m_s.Current();
    if (!s.InEditingArea || s.SizeCode != (expand ? 1 : 2)) return;
    if (s.MultiIconFile) {
        m_s.m_host.MsgBox(effects::ResizeMultiIconMessage(expand), MsgButtons::Ok, MsgIcon::Information, kTitle);
        return;
    }
    if (s.Changed) {
        if (!m_s.AskSaveCurrent()) return;
    } else if (m_s.m_host.MsgBox(effects::ResizeQuestion(expand), MsgButtons::YesNo, MsgIcon::Question,
                             kTitle) != MsgAnswer::Yes) {
        return;
    }
    host::Hourglass hourglass(m_s.m_host);
    effects::ResizedPlanes region = expand ? effects::ExpandIcon(m_s.m_icon.Image(), m_s.m_icon.Mask())
                                           : effects::ShrinkIcon(m_s.m_icon.Image(), m_s.m_icon.Mask());
    const int sizeCode = expand ? 2 : 1;
    m_s.SetWorkSize(sizeCode);
    m_s.SetPanelSize(sizeCode);
    surface::BitBlt(m_s.m_icon.Image(), 0, 0, region.Image.Width(), region.Image.Height(), region.Image, 0, 0,
                    surface::Rop::SrcCopy);
    surface::BitBlt(m_s.m_icon.Mask(), 0, 0, region.Mask.Width(), region.Mask.Height(), region.Mask, 0, 0,
                    surface::Rop::SrcCopy);
    m_s.StoreToPanel();
    m_s.ComposeIcon();
    IconSlot& record = m_s.Current();
    record.SizeCode = static_cast<std::int16_t>(sizeCode);
    record.SetKindText(std::string(expand ? effects::kExpandedKind : effects::kShrunkKind));
    record.FileSpec = std::string(expand ? effects::kExpandedFileSpec : effects::kShrunkFileSpec);
    record.MultiIconFile = false;
    record.ClearFileState();
    m_s.ShowIcon();
}

void EffectFrames::mnuEffectsConfineColorsTo16() {
    if (!m_s.NeedsIconInArea()) return;
    if (const auto refusal = effects::Confine16Refusal(files::CountColors(m_s.m_icon.Image()))) {
        m_s.m_host.MsgBox(std::string(*refusal), MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (m_s.m_host.MsgBox(std::string(effects::kConfine16Question), MsgButtons::YesNo, MsgIcon::Question, kTitle) !=
        MsgAnswer::Yes)
        return;
    host::Hourglass hourglass(m_s.m_host);
    m_s.ApplyToIcon([this](Surface& image, Surface&) {
        effects::ConfineTo16(m_s.m_icon.Composed(), image, [this] { m_s.LetPendingEventsRun(); });
        if (m_s.m_form.VisibleFrame == Frame::ColorsPanel) m_s.ClickPaletteSub(0);
    });
}

void EffectFrames::mnuEffectsConfineColorsTo2() {
    if (!m_s.NeedsIconInArea()) return;
    if (files::CountColors(m_s.m_icon.Image()) == 2) {
        m_s.m_host.MsgBox(std::string(effects::kMonochromeMessage), MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    m_s.ShowFrame(Frame::ConfineToMono);
}

void EffectFrames::ClickMonoThreshold(int index) {
    m_s.Enter();
    m_s.m_effects.ConfineMono().ChooseThreshold(index);
}

void EffectFrames::ConfineToMonoProceed() {
    m_s.Enter();
    if (m_s.m_form.VisibleFrame != Frame::ConfineToMono || !m_s.InArea()) return;
    {
        host::Hourglass hourglass(m_s.m_host);
        std::optional<tools::CellRect> range;
        if (m_s.m_view.Region().Exists) range = m_s.m_view.Region().Cells;
        const int threshold = m_s.ConfineMono().Threshold();
        m_s.ApplyToIcon([threshold, &range](Surface& image, Surface& mask) {
            effects::ConfineToMono(image, mask, threshold, range);
        });
    }
    m_s.ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
