#include "core/utilities/about_box.h"

#include <cmath>
#include <limits>

#include "core/host/host.h"

namespace vexlo::utilities {

std::string ScreenDepthText(int bitsPerPixel) {
    switch (bitsPerPixel) {
        case 4: return "4 BPP (16 Color)";
        case 8: return "8 BPP (256 Color)";
        case 16: return "16 BPP (High color)";
        case 24: return "24 BPP (True color)";
        case 32: return "32 BPP (True color)";
        default: return {};
    }
}

std::string AboutVersionText(int major, int minor, int revision) {
    return "Professional Edition   v. " + std::to_string(major) + "." + std::to_string(minor) +
           "." + std::to_string(revision);
}

AboutBox::AboutBox(const MachineFacts& facts)
    : m_width(facts.ScreenWidth), m_height(facts.ScreenHeight),
      m_depthText(ScreenDepthText(facts.BitsPerPixel)) {
    // Kilobytes rounded to the nearest, ties to even; a 32-bit count keeps its largest value.
    const double kb = std::nearbyint(static_cast<double>(facts.TotalPhysicalBytes) / 1024.0);
    constexpr double kMax = std::numeric_limits<std::uint32_t>::max();
    m_totalRamKb = static_cast<std::uint32_t>(kb > kMax ? kMax : kb);
    if (facts.LogicalDpi > 100) m_scale = facts.LogicalDpi / 96.0;
}

std::string AboutBox::InfoText() const {
    const std::string br = host::kCrLf;
    return br + "Total RAM (KB):         " + std::to_string(m_totalRamKb) + br + br +
           "Screen Width (Pixel):   " + std::to_string(m_width) + br + br +
           "Screen Height (Pixel):  " + std::to_string(m_height) + br + br +
           "BPP Set:   " + m_depthText + "     " + br + br;
}

}  // namespace vexlo::utilities
