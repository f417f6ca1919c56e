#pragma once
// fraSearchExeInFolder's flows: the Extract menu's entry 5 once its guards have passed, the
// folder buttons and boxes, Proceed, the search run in slices, and Stop. They work on the
// session's parts through Session::SearchExe(), a handle with no state of its own; the
// frame's state and the search are SearchExePanel (search_exe/).
//
// The search runs in slices so that the window never freezes: Proceed starts it and returns,
// and the window calls RunSlice again and again (from a timer) while State().Active(); each
// slice works for at most about its budget, and its events run between slices, so Stop is
// taken within one slice. A slice that finds the frame gone (another frame was shown) ends
// the search.
#include <chrono>
#include <string>

#include "core/session/search_exe/search_exe_panel.h"

namespace vexlo::session {

class Session;

// How long one slice of the search works at most, beside the one step it always takes.
inline constexpr std::chrono::milliseconds kSearchSlice{20};

class SearchExeFlows {
public:
    explicit SearchExeFlows(Session& session) : m_s(session) {}

    const SearchExePanel& State() const;

    // ExtractFromExeFolder: mnuExtractSub(5) after the Extract menu's guards.
    void ExtractFromExeFolder();
    void InvokeSearchPath(int k);                         // cmdInvokeSearchPath(k)
    void EditSearchDir(int k, const std::string& text);   // txbSearchExeDir(k) changed
    void ClickIncludeSub(bool checked);                   // ckbIncludeSub
    void ClickSmallIcons(bool checked);                   // ckbSmallIcons
    void EditMaxIcons(const std::string& text);           // txbMaxIcons changed
    void Proceed();                                       // cmdSearchExeInFolderProceed
    // One slice of a running search; false once it has ended (the closing steps have run).
    bool RunSlice(std::chrono::milliseconds budget = kSearchSlice);
    void Stop();                                          // cmdStopBrowse

private:
    SearchExePanel& Panel();
    // The closing steps of Proceed: the total, the labels and the buttons back to idle.
    void Finish();
    // Ends a search that the frame left behind, without a word.
    void Abandon();
    void Say(const std::string& text);

    Session& m_s;
};

}  // namespace vexlo::session
