#pragma once
// The File menu's history entries as the window shows them: mnuFileHistory(0) is the
// separator, (1) to (6) the files, the newest first, each captioned "&n path".
#include <array>
#include <string>

namespace vexlo::session {

inline constexpr int kHistoryEntries = 6;

struct FileHistoryMenu {
    std::array<std::string, kHistoryEntries + 1> Caption;
    std::array<bool, kHistoryEntries + 1> Visible{};
    std::array<bool, kHistoryEntries + 1> Enabled{};
};

}  // namespace vexlo::session
