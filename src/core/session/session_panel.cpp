// The Icons Panel: slot clicks, the one-frame-at-a-time switch, the save question and the
// commands that put a new icon in the current slot.
#include "core/session/session.h"
#include "core/session/session_icons_list.h"

namespace vexlo::session {

void Session::ShowFrame(Frame frame) {
    host::Hourglass hourglass(m_host);
    if (m_form.VisibleFrame == Frame::IconsList) {
        if (frame != Frame::IconsList) {
            UnparkIcon();
            m_list.Reset();
        }
    } else if (m_ani.ContainerVisible()) {
        TerminateAniSession();
        m_form.Status.Panel[0] = Current().FileSpec;
    }
    m_form.VisibleFrame = Frame::None;
    ClearTools();
    m_effects.DiscardPreviews();
    m_form.VisibleFrame = frame;
    m_form.Status.InfoLabelsVisible = frame == Frame::ColorsPanel;
    if (frame == Frame::IconsList) {
        ParkIcon();
        m_form.Status.Panel[0] = "[Successive Loading Session]";
    }
    RefreshToolbar();
}

void Session::CancelFrame() {
    Enter();
    ShowFrame(Frame::ColorsPanel);
    LetPendingEventsRun();
    if (InArea()) RefreshPaletteMenu();
}

bool Session::AskSaveCurrent() {
    const MsgAnswer a = m_host.MsgBox("Save current icon to file?", MsgButtons::YesNoCancel,
                                      MsgIcon::Question, kTitle);
    if (a == MsgAnswer::Cancel) return false;
    if (a == MsgAnswer::Yes) mnuFileSaveAsICO();
    Current().Changed = false;
    return true;
}

bool Session::GuardReplaceCurrent() {
    const IconSlot& s = Current();
    if (s.InEditingArea && (s.Changed || s.NeverSaved)) return AskSaveCurrent();
    return true;
}

void Session::ClickPanel(int k) {
    Enter();
    if (k < 0 || k >= kSlotCount) return;
    IconSlot& s = Current();
    if (s.InEditingArea && s.Changed) {
        if (m_form.PromptToSaveChecked && !AskSaveCurrent()) return;
        StoreToPanel();
        BeginUndoHistory();
        RefreshToolbar();
    }
    if (k == CurrentSlot()) return;
    m_panel.Select(k);
    MarkCurrentLabel(k);
    if (m_form.VisibleFrame == Frame::IconsList) return;

    host::Hourglass hourglass(m_host);
    if (!Current().Occupied)
        OpenEmptySlot();
    else
        RebuildFromPanel();
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    RefreshPaletteMenu();
    RefreshToolbar();
    LetPendingEventsRun();
}

void Session::DoubleClickPanel(int k) {
    Enter();
    if (m_form.VisibleFrame != Frame::IconsList) return;
    ShowFrame(Frame::ColorsPanel);
    LetPendingEventsRun();
    ClickPanel(k);
    RefreshPaletteMenu();
}

void Session::FileNew(int entry) {
    static constexpr int kSizeOfEntry[3] = {2, 1, 3};
    if (entry < 0 || entry > 2) return;
    // The animated cursor session, over the Colors Panel or not, stays for a 32x32 icon only.
    if (m_ani.ContainerVisible() && entry != 0 && !AskTerminateAniSession(true)) return;
    if (m_form.VisibleFrame != Frame::ColorsPanel && !m_ani.ContainerVisible()) ShowFrame(Frame::ColorsPanel);
    if (!GuardReplaceCurrent()) return;
    PutNewIcon(kSizeOfEntry[entry]);
    SelectPaintTool();
}

void Session::PutNewIcon(int sizeCode) {
    IconSlot& s = Current();
    s.Occupied = true;
    s.SetKindText(kKindNewIcon);
    s.InEditingArea = true;
    s.ColorCount = 0;
    s.BitsPerPixel = 0;
    s.HasAlpha = false;
    s.FileSpec = kUntitled;
    s.MultiIconFile = false;
    s.ClearFileState();
    EnsureAlphaArray();

    s.SizeCode = static_cast<std::int16_t>(sizeCode);
    SetPanelSize(sizeCode);
    SetWorkSize(sizeCode);
    m_icon.FillTransparent();

    StoreToPanel();
    ComposeIcon();
    ShowIcon();
}

void Session::FileOpen(int entry) {
    if (entry < 0 || entry > 3) return;
    if (entry != 1) {
        if (m_form.VisibleFrame != Frame::ColorsPanel && !m_ani.ContainerVisible())
            ShowFrame(Frame::ColorsPanel);
    } else if (m_ani.ContainerVisible()) {
        if (!AskTerminateAniSession(false)) return;
    } else if (m_form.VisibleFrame == Frame::IconsList) {
        m_host.MsgBox(std::string("You are already in \"List All Icons in Folder\" session.") +
                          kCrLf + "There are command buttons there.",
                      MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (!GuardReplaceCurrent()) return;
    if (entry == 0) OpenIconFile();
    if (entry == 1) Extraction().OpenFolderList();
    if (entry == 2) OpenCursorFile();
    if (entry == 3) OpenBitmapFile();
}

}  // namespace vexlo::session
