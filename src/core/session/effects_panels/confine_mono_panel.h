#pragma once
// What fraConfineToMono keeps: the list index of cboConfineToMonoThreshold, whose entries run
// from "1" to "354" (so the threshold is the index plus one), "128" at the start.
#include "core/effects/resize_confine.h"

namespace vexlo::session {

class ConfineMonoPanel {
public:
    int ThresholdIndex() const { return m_index; }
    int Threshold() const { return effects::kMonoThresholdFirst + m_index; }
    // A click on an entry of the list; an index past its ends is ignored.
    void ChooseThreshold(int index) {
        if (index >= 0 && index <= effects::kMonoThresholdLast - effects::kMonoThresholdFirst)
            m_index = index;
    }

private:
    int m_index = effects::kMonoThresholdStart - effects::kMonoThresholdFirst;
};

}  // namespace vexlo::session
