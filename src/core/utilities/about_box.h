#pragma once
// frmVexloAbout without its widgets: the version line, the four facts about the machine read
// when the box loads, the text of its Info button, and how much its pictures grow on a screen
// of many dots per inch.
#include <cstdint>
#include <string>

namespace vexlo::utilities {

// What the platform tells about the machine when the box loads.
struct MachineFacts {
    std::uint64_t TotalPhysicalBytes = 0;
    int ScreenWidth = 0;   // pixels
    int ScreenHeight = 0;
    int BitsPerPixel = 0;  // of the screen
    int LogicalDpi = 96;   // logical pixels per inch across
};

// "4 BPP (16 Color)" .. "32 BPP (True color)"; empty for a depth not in the table.
std::string ScreenDepthText(int bitsPerPixel);
// "Professional Edition   v. " and major.minor.revision.
std::string AboutVersionText(int major, int minor, int revision);

class AboutBox {
public:
    // The load: the facts as the platform gives them now.
    explicit AboutBox(const MachineFacts& facts);

    std::uint32_t TotalRamKB() const { return m_totalRamKb; }
    int ScreenWidthPixels() const { return m_width; }
    int ScreenHeightPixels() const { return m_height; }
    const std::string& ScreenDepth() const { return m_depthText; }
    // The factor by which the box's pictures are drawn anew: dpi / 96 above 100 dpi, else 1.
    double PictureScale() const { return m_scale; }
    // The message of cmdInfo.
    std::string InfoText() const;

private:
    std::uint32_t m_totalRamKb = 0;
    int m_width = 0;
    int m_height = 0;
    std::string m_depthText;
    double m_scale = 1.0;
};

}  // namespace vexlo::utilities
