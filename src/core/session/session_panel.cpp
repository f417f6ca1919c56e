// The Icons Panel: slot clicks, the one-frame-at-a-time switch, the save question and the
// commands that put a new icon in the current slot.
#include "core/session/session.h"

namespace vexlo::session {

namespace {

struct Hourglass {
    explicit Hourglass(Host& host) : m_host(host) { m_host.SetHourglass(true); }
    ~Hourglass() { m_host.SetHourglass(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    Host& m_host;
};

}  // namespace

void Session::ShowFrame(Frame frame) {
    Hourglass hourglass(m_host);
    if (Form.VisibleFrame == Frame::IconsList) {
        if (frame != Frame::IconsList) {
            UnparkIcon();
            // The list session's loaded items and its picture are emptied with it.
        }
    } else if (Form.AniContainerVisible) {
        Form.AniContainerVisible = false;
        Form.Status.Panel[0] = Current().FileSpec;
    }
    Form.VisibleFrame = Frame::None;
    ClearTools();
    Shades.Preview.reset();  // leaving the frame by any way discards the preview
    Form.VisibleFrame = frame;
    Form.Status.InfoLabelsVisible = frame == Frame::ColorsPanel;
    if (frame == Frame::IconsList) {
        ParkIcon();
        Form.Status.Panel[0] = "[Successive Loading Session]";
    }
    RefreshToolbar();
}

void Session::CancelFrame() {
    ShowFrame(Frame::ColorsPanel);
    m_host.DoEvents();
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
    if (k < 0 || k >= kSlotCount) return;
    IconSlot& s = Current();
    if (s.InEditingArea && s.Changed) {
        if (Form.PromptToSaveChecked && !AskSaveCurrent()) return;
        StoreToPanel();
        ClearUndoHistory();
        TakeUndoSnapshot();
        RefreshToolbar();
    }
    if (k == CurrentSlot) return;
    CurrentSlot = k;
    MarkCurrentLabel(k);
    if (Form.VisibleFrame == Frame::IconsList) return;

    Hourglass hourglass(m_host);
    if (!Current().Occupied)
        OpenEmptySlot();
    else
        RebuildFromPanel();
    if (Form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    RefreshPaletteMenu();
    RefreshToolbar();
    m_host.DoEvents();
}

void Session::DoubleClickPanel(int k) {
    if (Form.VisibleFrame != Frame::IconsList) return;
    ShowFrame(Frame::ColorsPanel);
    m_host.DoEvents();
    ClickPanel(k);
    RefreshPaletteMenu();
}

void Session::FileNew(int entry) {
    static constexpr int kSizeOfEntry[3] = {2, 1, 3};
    if (entry < 0 || entry > 2) return;
    if (Form.VisibleFrame != Frame::ColorsPanel) {
        bool aniStays = false;
        if (Form.AniContainerVisible) {
            if (entry != 0) {
                const std::string q = std::string("Animated cursor session for 32x32 icons only") +
                                      kCrLf + "Terminate animated cursor session?" + kCrLf;
                if (m_host.MsgBox(q, MsgButtons::YesNo, MsgIcon::Question, kTitle) ==
                    MsgAnswer::No)
                    return;
                Form.AniContainerVisible = false;
            } else {
                aniStays = true;
            }
        }
        if (!aniStays) ShowFrame(Frame::ColorsPanel);
    }
    if (!GuardReplaceCurrent()) return;

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

    const int sizeCode = kSizeOfEntry[entry];
    s.SizeCode = static_cast<std::int16_t>(sizeCode);
    SetPanelSize(sizeCode);
    SetWorkSize(sizeCode);
    picImage.Fill(kBlack);
    picMask.Fill(kWhite);

    StoreToPanel();
    ComposeIcon();
    ShowIcon();
    SelectPaintTool();
}

void Session::FileOpen(int entry) {
    if (entry < 0 || entry > 3) return;
    if (entry != 1) {
        if (Form.VisibleFrame != Frame::ColorsPanel && !Form.AniContainerVisible)
            ShowFrame(Frame::ColorsPanel);
    } else if (Form.AniContainerVisible) {
        const std::string q = std::string("Terminate animated cursor session?") + kCrLf;
        if (m_host.MsgBox(q, MsgButtons::YesNo, MsgIcon::Question, kTitle) == MsgAnswer::No)
            return;
        Form.AniContainerVisible = false;
    } else if (Form.VisibleFrame == Frame::IconsList) {
        m_host.MsgBox(std::string("You are already in \"List All Icons in Folder\" session.") +
                          kCrLf + "There are command buttons there.",
                      MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (!GuardReplaceCurrent()) return;
    if (entry == 0) OpenIconFile();
    if (entry == 2) OpenCursorFile();
    if (entry == 3) OpenBitmapFile();
    // Entry 1, all icons of a folder, belongs to the Icons List, which this window lacks yet.
}

}  // namespace vexlo::session
