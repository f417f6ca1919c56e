// The status bar: the four panels, the progress bar and the info labels.
#include <algorithm>

#include "core/session/session.h"

namespace vexlo::session {

void Session::RefreshStatusPanel() {
    // A fresh icon in the Editing Area: no tool, no progress, its facts in the panels, its
    // grid, and an undo history that begins with it.
    ResetDrawState();
    ClearTools();
    if (m_form.Status.ProgressVisible) {
        m_form.Status.ProgressPercent = 100;
        m_form.Status.ProgressVisible = false;
    }
    WriteStatusPanels();
    BuildGrid();
    BeginUndoHistory();
    RefreshToolbar();
}

void Session::WriteStatusPanels() {
    const IconSlot& s = Current();
    StatusBar& status = m_form.Status;
    status.Panel[1] = s.MultiIconFile ? "MIF" : "";
    static const char* const kSizeText[4] = {"", "16 x 16", "32 x 32", "48 x 48"};
    status.Panel[2] = s.SizeCode >= 1 && s.SizeCode <= 3 ? kSizeText[s.SizeCode] : "";
    status.AlphaImageVisible = s.HasAlpha;
    status.Panel[3] = s.HasAlpha ? "Alpha" : "";
    if (!m_ani.ContainerVisible()) status.Panel[0] = s.FileSpec;
}

void Session::ClearStatusPanel() {
    for (std::string& text : m_form.Status.Panel) text.clear();
    m_form.Status.AlphaImageVisible = false;
}

void Session::SetInfoLabels(bool visible) {
    StatusBar& status = m_form.Status;
    status.DispXY.clear();
    status.Mix.clear();
    status.ForExtendedFrame.clear();
    status.RegionMeasure.clear();
    status.InfoLabelsVisible = visible;
}

void Session::SetProgressVisible(bool visible) {
    m_form.Status.ProgressPercent = 100;
    m_form.Status.ProgressShowsNumber = false;
    m_form.Status.ProgressVisible = visible;
}

void Session::ShowProgress(int percent, bool withNumber) {
    m_form.Status.ProgressPercent = std::clamp(percent, 0, 100);
    m_form.Status.ProgressShowsNumber = withNumber;
    LetPendingEventsRun();
}

void Session::PointerOverForm() {
    Enter();
    StatusBar& status = m_form.Status;
    if (!status.InfoLabelsVisible) return;
    status.Mix.clear();
    status.DispXY.clear();
    if (!m_view.Region().Exists) status.RegionMeasure.clear();
}

}  // namespace vexlo::session
