// The animated cursor session from the window: the menu item, the buttons of its container,
// the boxes, the pointer on the film and the container, the test's timer, and every way into
// and out of the session.
#include "core/ani/ani_save.h"
#include "core/files/private_temp.h"
#include "core/session/ani_frames/ani_texts.h"
#include "core/session/session.h"

namespace vexlo::session {

void Session::mnuANIFileCreateOrEdit() {
    Enter();
    if (m_ani.ContainerVisible()) {
        m_ani.Container().Restore();
        return;
    }
    if (InArea() && (Current().Changed || Current().NeverSaved) && !AskSaveCurrent()) return;
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    ResetAniSession();
    m_ani.ShowContainer();
}

void Session::ClickAniButton(int k) {
    Enter();
    if (!m_ani.ButtonEnabled(k)) return;
    if (k == 7 && !m_ani.CurrentRow()) return;
    if (k != 8 && m_ani.Test().Caption() == kAniStopCaption) m_ani.Test().Stop();
    if (!RunAniAction(k) || k < 10) return;
    if (k != 11 && k != 12 && k != 16) m_ani.ScrollCurrentIntoView();
    m_ani.RefreshButtons();
}

// The action of cmdANI(k); false when it stopped early.
bool Session::RunAniAction(int k) {
    switch (k) {
        case 0:
        case 6: CloseAniSession(); return true;
        case 1: m_ani.Container().Resize(); return true;
        case 2: m_ani.Container().Minimize(); return true;
        case 3:
            if (!AskAniDiscard()) return false;
            m_ani.StartNew();
            m_form.Status.Panel[0] = kUntitled;
            return true;
        case 4:
            if (!AskAniDiscard()) return false;
            if (FileDialogOpenANI()) m_ani.SetDirty(false);
            return true;
        case 5:
            if (SaveANIFile()) m_ani.SetDirty(false);
            return true;
        case 7:
            if (m_ani.SetJiffies() && !m_ani.Boxes().Singly)
                m_host.MsgBox(kAniJiffiesSetForAll, MsgButtons::Ok, MsgIcon::None, kTitle);
            return true;
        case 8:
            m_ani.Test().Toggle();
            LetPendingEventsRun();
            return true;
        case 9: {
            const ani::AniFrameRecord* row = m_ani.CurrentRow();
            const auto& rows = m_ani.Frames().AniFrames;
            const ani::AniFrameRecord first = rows.empty() ? ani::AniFrameRecord{} : rows.front();
            m_host.MsgBox(AniFramePropertyText(m_ani.CurrentFrame(), row ? row->Jiffies : 0, m_ani.FrameCount(),
                                               first.HotX, first.HotY),
                          MsgButtons::Ok, MsgIcon::None, kTitle);
            return true;
        }
        case 10: return AniFromEditingArea();
        case 11: return AniToEditingArea();
        case 12: return AddAniFrame(false);
        case 13: return AddAniFrame(true);
        case 14: RemoveAniFrame(); return true;
        case 15: return LoadIconFileToFrame();
        case 16: return m_ani.Shift(true);
        case 17: return m_ani.Shift(false);
        case 18: return m_ani.Go(true);
        case 19: return m_ani.Go(false);
        default: return false;
    }
}

bool Session::AskAniDiscard() {
    if (!m_ani.Dirty()) return true;
    return m_host.MsgBox(kAniDiscardQuestion, MsgButtons::YesNo, MsgIcon::Question, kTitle) == MsgAnswer::Yes;
}

void Session::CloseAniSession() {
    if (!AskAniDiscard()) return;
    m_ani.HideContainer();
    m_form.Status.Panel[0] = Current().FileSpec;
    RefreshPaletteMenu();
}

void Session::ChooseAniBox(int k, int value) {
    Enter();
    m_ani.SetBox(k, value);
}

void Session::ClickAniSingly(bool checked) {
    Enter();
    m_ani.SetSingly(checked);
}

void Session::AniPointerEvent(AniPointer what, int x, int y) {
    Enter();
    AniContainer& container = m_ani.Container();
    switch (what) {
        case AniPointer::FilmPress:
            if (m_ani.Test().Caption() == kAniStopCaption && m_ani.FrameCount() >= 1) m_ani.Test().Stop();
            break;
        case AniPointer::FilmRelease:
            if (x >= 0 && x < kFilmCellWidth) m_ani.SelectFromFilm(y);
            break;
        case AniPointer::ContainerPress: container.Press(x, y); break;
        case AniPointer::ContainerDrag: container.Drag(x, y); break;
        case AniPointer::ContainerDoubleClick: container.DoubleClick(); break;
        case AniPointer::ImgAniClick: container.Restore(); break;
    }
}

void Session::ScrollAniSeries(int value) {
    Enter();
    m_ani.Film().SetScrollValue(value);
}

bool Session::AniTimerTick() { return m_ani.Test().Tick(m_ani.Frames()); }

void Session::ResetAniSession() {
    m_ani.Reset();
    m_form.Status.Panel[0].clear();
}

void Session::DeleteAniTempFiles() {
    m_ani.ResetAniFrames();
    ani::AniTempFiles& names = m_ani.TempFiles();
    // The folder is looked up only when there are files to delete: looking makes it.
    if (!names.empty() && !names.front().empty()) ani::RemoveAniTempFiles(files::PrivateTempDir(m_dirs.TempDir), names);
    names.clear();
    m_ani.MutableFrames().AniFrames.clear();
}

void Session::TerminateAniSession() {
    // The temporary files go first: the reset forgets their names.
    DeleteAniTempFiles();
    ResetAniSession();
    m_ani.HideContainer();
}

bool Session::AskTerminateAniSession(bool only32) {
    if (!m_ani.ContainerVisible()) return true;
    if (m_host.MsgBox(only32 ? kAniOnly32Question : kAniTerminateQuestion, MsgButtons::YesNo, MsgIcon::Question,
                      kTitle) != MsgAnswer::Yes)
        return false;
    TerminateAniSession();
    return true;
}

bool Session::OpenAniFromCommandLine(const std::string& path) {
    Enter();
    ResetAniSession();
    m_ani.ShowContainer();
    if (LoadAniFile(path)) return true;
    ClickAniButton(6);
    return false;
}

void Session::EndAniSessionAtExit() {
    m_ani.Test().Stop();
    DeleteAniTempFiles();
}

}  // namespace vexlo::session
