#include "core/session/print_job/print_panel.h"

#include <cstdio>

namespace vexlo::session {

namespace {

std::vector<std::string> Steps(int count, int step, bool hundredths) {
    std::vector<std::string> out;
    for (int i = 0; i < count; ++i) {
        const int v = (hundredths ? 0 : step) + i * step;
        if (!hundredths) {
            out.push_back(std::to_string(v));
            continue;
        }
        char text[16];
        std::snprintf(text, sizeof text, "%d.%02d", v / 100, v % 100);
        out.emplace_back(text);
    }
    return out;
}

}  // namespace

const std::vector<std::string>& PrintSizeEntries() {
    static const std::vector<std::string> entries = Steps(8, 25, false);
    return entries;
}

const std::vector<std::string>& MarginEntries() {
    static const std::vector<std::string> entries = Steps(81, 5, true);
    return entries;
}

void PrintPanel::Click(PrintControl control, int index) {
    const auto inList = [index](const std::vector<std::string>& list) {
        return index >= 0 && index < static_cast<int>(list.size());
    };
    switch (control) {
        case PrintControl::SizeOption:
            if (index < 0 || index > 2) return;
            m_size = static_cast<utilities::PrintSize>(index);
            // "Fit to paper" shows the margins it ignores as 0.25 and 1.00; the others set
            // both back to 1.00.
            m_left = MarginsEnabled() ? kMargin100Index : kMargin025Index;
            m_top = kMargin100Index;
            return;
        case PrintControl::SizeList:
            if (inList(PrintSizeEntries())) m_sizeIndex = index;
            return;
        case PrintControl::MarginOption:
            if (MarginsEnabled() && (index == 0 || index == 1))
                m_margin = static_cast<utilities::PrintMargin>(index);
            return;
        case PrintControl::LeftMargin:
            if (MarginsEnabled() && inList(MarginEntries())) m_left = index;
            return;
        case PrintControl::TopMargin:
            if (MarginsEnabled() && inList(MarginEntries())) m_top = index;
            return;
    }
}

utilities::PrintChoice PrintPanel::Choice() const {
    utilities::PrintChoice c;
    c.Size = m_size;
    c.Percent = 25 * (m_sizeIndex + 1);
    c.Margin = m_margin;
    c.LeftInch = 0.05 * m_left;
    c.TopInch = 0.05 * m_top;
    return c;
}

}  // namespace vexlo::session
