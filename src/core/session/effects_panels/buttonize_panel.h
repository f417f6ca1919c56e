#pragma once
// fraButtonize while it is up: the chosen pattern (cboButtonizePattern) and the three fixed
// sample pictures (picButtonize).
#include <array>

#include "core/effects/buttonize.h"

namespace vexlo::session {

class ButtonizePanel {
public:
    ButtonizePanel() {
        for (int i = 0; i < effects::kButtonizePatternCount; ++i)
            m_samples[static_cast<std::size_t>(i)] = effects::ButtonizeSample(i, kSampleSide);
    }

    int PatternIndex() const { return m_patternIndex; }
    const surface::Surface& Sample(int i) const { return m_samples.at(static_cast<std::size_t>(i)); }

    // A click on cboButtonizePattern or on picButtonize(i): the list's index. The list has no
    // other entries, so any other index is refused.
    void ChoosePattern(int index) {
        if (index >= 0 && index < effects::kButtonizePatternCount) m_patternIndex = index;
    }

private:
    static constexpr int kSampleSide = 32;
    int m_patternIndex = effects::kButtonizeInitialIndex;  // lasts for the run
    std::array<surface::Surface, effects::kButtonizePatternCount> m_samples;
};

}  // namespace vexlo::session
