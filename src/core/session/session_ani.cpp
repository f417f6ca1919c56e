// The animated cursor session from the window: the menu item, the buttons of its container,
// the boxes, the pointer on the film and the container, the test's timer, and every way into
// and out of the session.
#include "core/ani/ani_save.h"
#include "core/files/private_temp.h"
#include "core/session/ani_frames/ani_texts.h"
#include "core/session/session_ani_steps.h"

namespace vexlo::session {

void Session::mnuANIFileCreateOrEdit() {
    Enter();
    if (m_ani.ContainerVisible()) {
        m_ani.Container().Restore();
        return;
    }
    if (InArea() && (Current().Changed || Current().NeverSaved) && !AskSaveCurrent()) return;
    if (m_form.VisibleFrame != Frame::ColorsPanel) ShowFrame(Frame::ColorsPanel);
    AniSteps::ResetAniSession(*this);
    m_ani.ShowContainer();
}

void Session::ClickAniButton(int k) {
    Enter();
    if (!m_ani.ButtonEnabled(k)) return;
    if (k == 7 && !m_ani.CurrentRow()) return;
    if (k != 8 && m_ani.Test().Caption() == kAniStopCaption) m_ani.Test().Stop();
    if (!AniSteps::RunAniAction(*this, k) || k < 10) return;
    if (k != 11 && k != 12 && k != 16) m_ani.ScrollCurrentIntoView();
    m_ani.RefreshButtons();
}

bool AniSteps::RunAniAction(Session& s, int k) {
    switch (k) {
        case 0:
        case 6: CloseAniSession(s); return true;
        case 1: s.m_ani.Container().Resize(); return true;
        case 2: s.m_ani.Container().Minimize(); return true;
        case 3:
            if (!s.AskAniDiscard()) return false;
            s.m_ani.StartNew();
            s.m_form.Status.Panel[0] = kUntitled;
            return true;
        case 4:
            if (!s.AskAniDiscard()) return false;
            if (FileDialogOpenANI(s)) s.m_ani.SetDirty(false);
            return true;
        case 5:
            if (SaveANIFile(s)) s.m_ani.SetDirty(false);
            return true;
        case 7:
            if (s.m_ani.SetJiffies() && !s.m_ani.Boxes().Singly)
                s.m_host.MsgBox(kAniJiffiesSetForAll, MsgButtons::Ok, MsgIcon::None, kTitle);
            return true;
        case 8:
            s.m_ani.Test().Toggle();
            s.LetPendingEventsRun();
            return true;
        case 9: {
            const ani::AniFrameRecord* row = s.m_ani.CurrentRow();
            const auto& rows = s.m_ani.Frames().AniFrames;
            const ani::AniFrameRecord first = rows.empty() ? ani::AniFrameRecord{} : rows.front();
            s.m_host.MsgBox(AniFramePropertyText(s.m_ani.CurrentFrame(), row ? row->Jiffies : 0, s.m_ani.FrameCount(),
                                               first.HotX, first.HotY),
                          MsgButtons::Ok, MsgIcon::None, kTitle);
            return true;
        }
        case 10: return AniFromEditingArea(s);
        case 11: return AniToEditingArea(s);
        case 12: return AddAniFrame(s, false);
        case 13: return AddAniFrame(s, true);
        case 14: RemoveAniFrame(s); return true;
        case 15: return LoadIconFileToFrame(s);
        case 16: return s.m_ani.Shift(true);
        case 17: return s.m_ani.Shift(false);
        case 18: return s.m_ani.Go(true);
        case 19: return s.m_ani.Go(false);
        default: return false;
    }
}

bool Session::AskAniDiscard() {
    if (!m_ani.Dirty()) return true;
    return m_host.MsgBox(kAniDiscardQuestion, MsgButtons::YesNo, MsgIcon::Question, kTitle) == MsgAnswer::Yes;
}

void AniSteps::CloseAniSession(Session& s) {
    if (!s.AskAniDiscard()) return;
    s.m_ani.HideContainer();
    s.m_form.Status.Panel[0] = s.Current().FileSpec;
    s.RefreshPaletteMenu();
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

void AniSteps::ResetAniSession(Session& s) {
    s.m_ani.Reset();
    s.m_form.Status.Panel[0].clear();
}

void AniSteps::DeleteAniTempFiles(Session& s) {
    s.m_ani.ResetAniFrames();
    ani::AniTempFiles& names = s.m_ani.TempFiles();
    // The folder is looked up only when there are files to delete: looking makes it.
    if (!names.empty() && !names.front().empty()) ani::RemoveAniTempFiles(files::PrivateTempDir(s.m_dirs.TempDir), names);
    names.clear();
    s.m_ani.MutableFrames().AniFrames.clear();
}

void Session::TerminateAniSession() {
    // The temporary files go first: the reset forgets their names.
    AniSteps::DeleteAniTempFiles(*this);
    AniSteps::ResetAniSession(*this);
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
    AniSteps::ResetAniSession(*this);
    m_ani.ShowContainer();
    if (AniSteps::LoadAniFile(*this, path)) return true;
    ClickAniButton(6);
    return false;
}

void Session::EndAniSessionAtExit() {
    m_ani.Test().Stop();
    AniSteps::DeleteAniTempFiles(*this);
}

}  // namespace vexlo::session
