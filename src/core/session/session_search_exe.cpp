// Search & extract from exe files: the frame, its folder boxes and buttons, Proceed, the
// search in slices, Stop and the closing steps.
#include "core/session/session_search_exe.h"

#include <algorithm>
#include <filesystem>

#include "core/session/session.h"

namespace vexlo::session {

namespace {

std::string Trimmed(const std::string& s) {
    const std::size_t first = s.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return s.substr(first, s.find_last_not_of(' ') - first + 1);
}

bool IsFolder(const std::string& path) {
    std::error_code ec;
    return std::filesystem::is_directory(path, ec);
}

}  // namespace

SearchExePanel& SearchExeFlows::Panel() { return m_s.m_search; }
const SearchExePanel& SearchExeFlows::State() const { return m_s.m_search; }
SearchExeFlows Session::SearchExe() { return SearchExeFlows(*this); }

void SearchExeFlows::Say(const std::string& text) {
    m_s.m_host.MsgBox(text, MsgButtons::Ok, MsgIcon::None, kTitle);
}

void SearchExeFlows::ExtractFromExeFolder() {
    if (m_s.m_form.VisibleFrame == Frame::SearchExeInFolder) {
        Say(std::string("You are already in \"Search & Extract Icons From EXE Files In Folder\" session.") + kCrLf);
        return;
    }
    Abandon();
    m_s.ShowFrame(Frame::SearchExeInFolder);
    Panel().SetActive(false);
}

void SearchExeFlows::InvokeSearchPath(int k) {
    m_s.Enter();
    if (k < 0 || k > 1 || !Panel().Controls().InvokeSearchPathEnabled[static_cast<std::size_t>(k)]) return;
    std::string& box = Panel().Controls().SearchExeDir[static_cast<std::size_t>(k)];
    const std::string folder = m_s.m_host.GetFolderSpec(k == 0 ? extract::kSearchPattern : "", box);
    // A cancelled dialog leaves the box as it was.
    if (!folder.empty()) box = folder;
}

void SearchExeFlows::EditSearchDir(int k, const std::string& text) {
    m_s.Enter();
    if (k >= 0 && k <= 1) Panel().Controls().SearchExeDir[static_cast<std::size_t>(k)] = text;
}

void SearchExeFlows::ClickIncludeSub(bool checked) {
    m_s.Enter();
    Panel().Controls().IncludeSub = checked;
}

void SearchExeFlows::ClickSmallIcons(bool checked) {
    m_s.Enter();
    Panel().Controls().SmallIcons = checked;
}

void SearchExeFlows::EditMaxIcons(const std::string& text) {
    m_s.Enter();
    Panel().Controls().MaxIcons = MaxIconsText(text);
}

void SearchExeFlows::Proceed() {
    m_s.Enter();
    SearchExePanel& panel = Panel();
    SearchExeControls& c = panel.Controls();
    if (!c.ProceedEnabled || panel.Active()) return;
    const std::string from = Trimmed(c.SearchExeDir[0]), to = Trimmed(c.SearchExeDir[1]);
    if (from.empty()) return Say("Source directory not entered yet");
    if (to.empty()) return Say("Save to directory not entered yet");
    // A folder that isn't there is told before anything starts.
    if (!IsFolder(from)) return Say(from + kCrLf + "Source directory not found");
    if (!IsFolder(to)) return Say(to + kCrLf + "Save to directory not found");

    m_s.m_form.Status.ForExtendedFrame = "Search in progress......    ";
    panel.SetActive(true);
    m_s.LetPendingEventsRun();
    c.CountLabel = "In progress... (To halt click Stop)";
    m_s.m_icon.Auto().Clear();

    extract::ExeSearchOptions options;
    options.SearchIn = from;
    options.SaveTo = c.SearchExeDir[1];
    options.IncludeSub = c.IncludeSub;
    options.MaxIcons = MaxIconsValue(c.MaxIcons);
    options.SmallIcons = c.SmallIcons;
    std::error_code ec;
    if (!panel.Search().Start(options, ec)) {
        Finish();
        Say(from + kCrLf + "Unable to read this folder: " + ec.message());
        return;
    }
    m_s.SetProgressVisible(true);
    m_s.m_form.Status.ProgressPercent = 0;
    m_s.m_form.Status.ProgressShowsNumber = true;
}

bool SearchExeFlows::RunSlice(std::chrono::milliseconds budget) {
    m_s.Enter();
    SearchExePanel& panel = Panel();
    if (!panel.Active()) return false;
    if (m_s.m_form.VisibleFrame != Frame::SearchExeInFolder) {
        Abandon();
        return false;
    }
    extract::ExeSearch& search = panel.Search();
    const auto until = std::chrono::steady_clock::now() + budget;
    while (search.Step() && std::chrono::steady_clock::now() < until) {
    }
    if (!search.CurrentFile().empty()) m_s.m_form.Status.ForExtendedFrame = search.CurrentFile() + " ";
    // The bar shows how far the limit is reached.
    m_s.m_form.Status.ProgressPercent =
        std::clamp(100 * search.Written() / std::max(search.Options().MaxIcons, 1), 0, 100);
    if (search.Running()) return true;
    Finish();
    return false;
}

void SearchExeFlows::Stop() {
    m_s.Enter();
    if (!Panel().Active()) return;
    Panel().Search().RequestStop();
    m_s.LetPendingEventsRun();
    Finish();
}

void SearchExeFlows::Finish() {
    SearchExePanel& panel = Panel();
    panel.Controls().CountLabel = "Total: " + std::to_string(panel.Search().Written()) + " icons";
    m_s.m_form.Status.ForExtendedFrame.clear();
    m_s.SetProgressVisible(false);
    panel.SetActive(false);
}

void SearchExeFlows::Abandon() {
    if (!Panel().Active()) return;
    Panel().Search().RequestStop();
    Finish();
}

}  // namespace vexlo::session
