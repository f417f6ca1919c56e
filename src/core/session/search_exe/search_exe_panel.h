#pragma once
// SearchExePanel: fraSearchExeInFolder while it is up: what its controls show and hold, and
// the search it runs (SearchRunning, SearchStopRequested, SearchCurrentFile and the count of
// icons written are the search's own, extract::ExeSearch).
#include <array>
#include <string>

#include "core/extract/exe_search.h"

namespace vexlo::session {

struct SearchExeControls {
    std::array<std::string, 2> SearchExeDir;  // txbSearchExeDir(0) "Search in:", (1) "Save to:"
    bool IncludeSub = false;                  // ckbIncludeSub
    std::string MaxIcons = "300";             // txbMaxIcons
    bool SmallIcons = false;                  // ckbSmallIcons
    std::array<bool, 2> InvokeSearchPathEnabled{true, true};  // cmdInvokeSearchPath(k)
    bool ProceedEnabled = true;                               // cmdSearchExeInFolderProceed
    bool StopEnabled = false;                                 // cmdStopBrowse
    std::string CountLabel;                                   // lblSearchIconsCount
};

// txbMaxIcons after a change: only the digits typed are kept (keys other than 0 to 9 are
// dropped), and a value below 1 becomes "1", one above 10000 "10000".
std::string MaxIconsText(const std::string& typed);
// The limit that a text of txbMaxIcons gives.
int MaxIconsValue(const std::string& text);

class SearchExePanel {
public:
    const SearchExeControls& Controls() const { return m_controls; }
    SearchExeControls& Controls() { return m_controls; }

    const extract::ExeSearch& Search() const { return m_search; }
    extract::ExeSearch& Search() { return m_search; }

    // Between Proceed and the closing steps; the search itself may have ended already.
    bool Active() const { return m_active; }
    // Running: Proceed and both folder buttons disabled, Stop enabled; idle the reverse.
    void SetActive(bool active);

private:
    SearchExeControls m_controls;
    extract::ExeSearch m_search;
    bool m_active = false;
};

}  // namespace vexlo::session
