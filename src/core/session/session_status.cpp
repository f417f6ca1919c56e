// The status bar: the four panels, the progress bar and the info labels.
#include "core/session/session.h"

#include <algorithm>

namespace vexlo::session {

void Session::RefreshStatusPanel() {
    ResetDrawState();
    ClearTools();
    if (Form.Status.ProgressVisible) {
        Form.Status.ProgressPercent = 100;
        Form.Status.ProgressVisible = false;
    }
    const IconSlot& s = Current();
    Form.Status.Panel[1] = s.MultiIconFile ? "MIF" : "";
    static const char* const kSizeText[4] = {"", "16 x 16", "32 x 32", "48 x 48"};
    Form.Status.Panel[2] = s.SizeCode >= 1 && s.SizeCode <= 3 ? kSizeText[s.SizeCode] : "";
    Form.Status.AlphaImageVisible = s.HasAlpha;
    Form.Status.Panel[3] = s.HasAlpha ? "Alpha" : "";
    if (!Form.AniContainerVisible) Form.Status.Panel[0] = s.FileSpec;
    BuildGrid();
    ClearUndoHistory();
    TakeUndoSnapshot();
    RefreshToolbar();
}

void Session::ClearStatusPanel() {
    for (std::string& text : Form.Status.Panel) text.clear();
    Form.Status.AlphaImageVisible = false;
}

void Session::SetInfoLabels(bool visible) {
    Form.Status.DispXY.clear();
    Form.Status.Mix.clear();
    Form.Status.ForExtendedFrame.clear();
    Form.Status.RegionMeasure.clear();
    Form.Status.InfoLabelsVisible = visible;
}

void Session::SetProgressVisible(bool visible) {
    Form.Status.ProgressPercent = 100;
    Form.Status.ProgressShowsNumber = false;
    Form.Status.ProgressVisible = visible;
}

void Session::ShowProgress(int percent, bool withNumber) {
    Form.Status.ProgressPercent = std::clamp(percent, 0, 100);
    Form.Status.ProgressShowsNumber = withNumber;
    m_host.DoEvents();
}

void Session::PointerOverForm() {
    if (!Form.Status.InfoLabelsVisible) return;
    Form.Status.Mix.clear();
    Form.Status.DispXY.clear();
    if (!RegionExists) Form.Status.RegionMeasure.clear();
}

}  // namespace vexlo::session
