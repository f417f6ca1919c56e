#pragma once
// fraPrint's controls as the session keeps them while the frame is up: the size option and
// its percentage list, the margin option and the two margin lists, and whether the margin
// controls are enabled. The window draws the frame from it.
#include <string>
#include <vector>

#include "core/utilities/print_layout.h"

namespace vexlo::session {

// The controls of fraPrint that a click or a choice reaches.
enum class PrintControl {
    SizeOption,    // OptPrintSize(index)
    SizeList,      // cboPrintSize, list index
    MarginOption,  // OptPrintMargin(index)
    LeftMargin,    // cboLeftMargin, list index
    TopMargin,     // cboTopMargin, list index
};

// cboPrintSize: 25 to 200 by 25; cboLeftMargin, cboTopMargin: 0.00 to 4.00 by 0.05.
const std::vector<std::string>& PrintSizeEntries();
const std::vector<std::string>& MarginEntries();
inline constexpr int kPrintSize100Index = 3;
inline constexpr int kMargin100Index = 20;  // 1.00
inline constexpr int kMargin025Index = 5;   // 0.25

class PrintPanel {
public:
    // A click or a choice; an index outside its control's range changes nothing.
    void Click(PrintControl control, int index);

    int SizeOption() const { return static_cast<int>(m_size); }
    int SizeListIndex() const { return m_sizeIndex; }
    int MarginOption() const { return static_cast<int>(m_margin); }
    int LeftMarginIndex() const { return m_left; }
    int TopMarginIndex() const { return m_top; }
    // Both margin options and both margin lists; off under "Fit to paper".
    bool MarginsEnabled() const { return m_size != utilities::PrintSize::FitToPaper; }
    // What Proceed prints with.
    utilities::PrintChoice Choice() const;

private:
    utilities::PrintSize m_size = utilities::PrintSize::AtPercent;
    int m_sizeIndex = kPrintSize100Index;
    utilities::PrintMargin m_margin = utilities::PrintMargin::SetMargin;
    int m_left = kMargin100Index;
    int m_top = kMargin100Index;
};

}  // namespace vexlo::session
