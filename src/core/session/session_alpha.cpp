// View/Edit/Create Alpha Channel: the questions before the alpha editor, the editor shown over
// IncomingAlpha, and what its answer does to the slot and to the file it names.
#include "core/session/session.h"

namespace vexlo::session {

namespace {

constexpr const char* kNoAlphaQuestion = "Current Icon has no Alpha Channel.  Proceed still?";
constexpr const char* kNotTrueColorQuestion = "Current Icon is not a True Color icon.  Proceed still?";
constexpr const char* kValuesMissing = "Original alpha values for current icon missing/removed.";
constexpr const char* kCopyToEditorFailed = "Failed to copy alpha values for current icon.";
constexpr const char* kCopyToRecordFailed = "Failed to copy the Alpha Channel values to record.";
constexpr const char* kUnknownRecord = "Unknown found in record.";

std::string Line(const char* text) { return std::string(text) + kCrLf; }

}  // namespace

bool Session::AskYesNo(const std::string& text) {
    return m_host.MsgBox(text, MsgButtons::YesNo, MsgIcon::Question, kTitle) == MsgAnswer::Yes;
}

void Session::AlphaViewEditCreate() {
    if (!NeedsIconInArea()) return;
    IconSlot& s = Current();
    if (!s.HasAlpha && !AskYesNo(Line(s.ColorCount == -1 ? kNoAlphaQuestion : kNotTrueColorQuestion)))
        return;
    if (!AskTerminateAniSession(false)) return;
    if ((s.Changed || s.NeverSaved) && !AskSaveCurrent()) return;
    alpha::AlphaArray& incoming = m_panel.IncomingAlpha();
    incoming.SetSingle();
    if (s.HasAlpha) {
        if (!m_panel.SlotAlphaUsable()) {
            m_host.MsgBox(Line(kValuesMissing), MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
            return;
        }
        incoming.SetBounds(m_icon.Composed().Width() - 1);
        if (!m_panel.CopySlotAlphaToIncoming()) {
            incoming.SetSingle();
            m_host.MsgBox(Line(kCopyToEditorFailed), MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
            return;
        }
    }
    host::AlphaEditorRequest request;
    request.PicIcon = &m_icon.Composed();
    request.Image = &m_icon.Image();
    request.Mask = &m_icon.Mask();
    request.Grid = &m_view.Grid();
    request.GridColor = m_view.GridColor();
    request.Incoming = &incoming;
    host::AlphaEditorAnswer answer = m_host.ShowAlphaEditor(request);
    if (answer.Result == "1" || answer.Result == "2") {
        if (answer.Result == "1") {
            // The editor has put the blended colors into the two planes.
            m_icon.Image() = std::move(answer.Image);
            m_icon.Mask() = std::move(answer.Mask);
        }
        FlattenAlpha(answer);
    } else if (answer.Result == "3" || answer.Result == "4") {
        if (!KeepEditedAlpha(answer)) return;
    }
    incoming.SetSingle();
    SetPaletteModeForIcon();
}

void Session::FlattenAlpha(const host::AlphaEditorAnswer& answer) {
    m_panel.IncomingAlpha().SetSingle();
    m_panel.SlotAlpha().SetSingle();
    IconSlot& s = Current();
    s.SetKindText(kKindIcoFile);
    s.FileSpec = answer.FileSpec;
    s.ColorCount = -1;
    s.BitsPerPixel = 24;
    s.HasAlpha = false;
    s.MultiIconFile = false;
    s.MultiIconIndex = 0;
    s.ClearFileState();
    if (!SaveIconFile(answer.FileSpec, false)) return;
    if (answer.Result == "1") {
        ComposeIcon();
        StoreToPanel();
        ShowIcon();
    }
    AddToFileHistory(answer.FileSpec);
}

bool Session::KeepEditedAlpha(const host::AlphaEditorAnswer& answer) {
    IconSlot& s = Current();
    alpha::AlphaArray& incoming = m_panel.IncomingAlpha();
    if (answer.Result == "3") {
        if (!CopyIncomingAlphaToSlot()) {
            m_host.MsgBox(Line(kCopyToRecordFailed), MsgButtons::Ok, MsgIcon::None, kTitle);
            incoming.SetSingle();
            s.HasAlpha = false;
            return false;
        }
    } else {
        const int side = IconSideOf(s.SizeCode);
        if (side == 0) {
            incoming.SetSingle();
            m_host.MsgBox(Line(kUnknownRecord), MsgButtons::Ok, MsgIcon::None, kTitle);
            return false;
        }
        m_panel.SlotAlpha().SetBounds(side - 1);
        if (!CopyIncomingAlphaToSlot()) {
            incoming.SetSingle();
            m_host.MsgBox(Line(kCopyToRecordFailed), MsgButtons::Ok, MsgIcon::None, kTitle);
            return false;
        }
        s.ColorCount = -1;
        s.HasAlpha = true;
        s.BitsPerPixel = 32;
    }
    s.SetKindText(kKindIcoFile);
    s.FileSpec = answer.FileSpec;
    s.MultiIconFile = false;
    s.MultiIconIndex = 0;
    s.ClearFileState();
    if (SaveIconFile(answer.FileSpec, false)) AddToFileHistory(answer.FileSpec);
    return true;
}

}  // namespace vexlo::session
