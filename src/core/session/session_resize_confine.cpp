// Expand, Shrink, Confine to 16 colors and Confine to mono on the current icon.
#include "core/effects/resize_confine.h"
#include "core/files/ico_write.h"
#include "core/session/session.h"

namespace vexlo::session {

void Session::ResizeIcon(bool expand) {
    IconSlot& s = Current();
    if (!s.InEditingArea || s.SizeCode != (expand ? 1 : 2)) return;
    if (s.MultiIconFile) {
        m_host.MsgBox(effects::ResizeMultiIconMessage(expand), MsgButtons::Ok, MsgIcon::Information, kTitle);
        return;
    }
    if (s.Changed) {
        if (!AskSaveCurrent()) return;
    } else if (m_host.MsgBox(effects::ResizeQuestion(expand), MsgButtons::YesNo, MsgIcon::Question,
                             kTitle) != MsgAnswer::Yes) {
        return;
    }
    host::Hourglass hourglass(m_host);
    effects::ResizedPlanes region = expand ? effects::ExpandIcon(m_icon.Image(), m_icon.Mask())
                                           : effects::ShrinkIcon(m_icon.Image(), m_icon.Mask());
    const int sizeCode = expand ? 2 : 1;
    SetWorkSize(sizeCode);
    SetPanelSize(sizeCode);
    surface::BitBlt(m_icon.Image(), 0, 0, region.Image.Width(), region.Image.Height(), region.Image, 0, 0,
                    surface::Rop::SrcCopy);
    surface::BitBlt(m_icon.Mask(), 0, 0, region.Mask.Width(), region.Mask.Height(), region.Mask, 0, 0,
                    surface::Rop::SrcCopy);
    StoreToPanel();
    ComposeIcon();
    IconSlot& record = Current();
    record.SizeCode = static_cast<std::int16_t>(sizeCode);
    record.SetKindText(std::string(expand ? effects::kExpandedKind : effects::kShrunkKind));
    record.FileSpec = std::string(expand ? effects::kExpandedFileSpec : effects::kShrunkFileSpec);
    record.MultiIconFile = false;
    record.ClearFileState();
    ShowIcon();
}

void Session::mnuEffectsConfineColorsTo16() {
    if (!NeedsIconInArea()) return;
    if (const auto refusal = effects::Confine16Refusal(files::CountColors(m_icon.Image()))) {
        m_host.MsgBox(std::string(*refusal), MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (m_host.MsgBox(std::string(effects::kConfine16Question), MsgButtons::YesNo, MsgIcon::Question, kTitle) !=
        MsgAnswer::Yes)
        return;
    host::Hourglass hourglass(m_host);
    ApplyToIcon([this](Surface& image, Surface&) {
        effects::ConfineTo16(m_icon.Composed(), image, [this] { LetPendingEventsRun(); });
        if (m_form.VisibleFrame == Frame::ColorsPanel) ClickPaletteSub(0);
    });
}

void Session::mnuEffectsConfineColorsTo2() {
    if (!NeedsIconInArea()) return;
    if (files::CountColors(m_icon.Image()) == 2) {
        m_host.MsgBox(std::string(effects::kMonochromeMessage), MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    ShowFrame(Frame::ConfineToMono);
}

void Session::ClickMonoThreshold(int index) {
    Enter();
    m_effects.ConfineMono().ChooseThreshold(index);
}

void Session::ConfineToMonoProceed() {
    Enter();
    if (m_form.VisibleFrame != Frame::ConfineToMono || !InArea()) return;
    {
        host::Hourglass hourglass(m_host);
        std::optional<tools::CellRect> range;
        if (m_view.Region().Exists) range = m_view.Region().Cells;
        const int threshold = ConfineMono().Threshold();
        ApplyToIcon([threshold, &range](Surface& image, Surface& mask) {
            effects::ConfineToMono(image, mask, threshold, range);
        });
    }
    ShowFrame(Frame::ColorsPanel);
}

}  // namespace vexlo::session
