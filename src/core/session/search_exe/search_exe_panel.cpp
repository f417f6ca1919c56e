#include "core/session/search_exe/search_exe_panel.h"

#include <algorithm>
#include <iterator>

namespace vexlo::session {

int MaxIconsValue(const std::string& text) {
    std::size_t first = text.find_first_not_of('0');
    if (first == std::string::npos) return 0;
    int value = 0;
    for (std::size_t i = first; i < text.size(); ++i) {
        if (text[i] < '0' || text[i] > '9') break;
        value = value * 10 + (text[i] - '0');
        if (value > extract::kMaxSearchIcons) return extract::kMaxSearchIcons + 1;
    }
    return value;
}

std::string MaxIconsText(const std::string& typed) {
    std::string digits;
    std::copy_if(typed.begin(), typed.end(), std::back_inserter(digits), [](char c) { return c >= '0' && c <= '9'; });
    const int value = MaxIconsValue(digits);
    if (value < extract::kMinSearchIcons) return std::to_string(extract::kMinSearchIcons);
    if (value > extract::kMaxSearchIcons) return std::to_string(extract::kMaxSearchIcons);
    return digits;
}

void SearchExePanel::SetActive(bool active) {
    m_active = active;
    m_controls.ProceedEnabled = !active;
    m_controls.InvokeSearchPathEnabled = {!active, !active};
    m_controls.StopEnabled = active;
}

}  // namespace vexlo::session
