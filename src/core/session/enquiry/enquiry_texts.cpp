#include "core/session/enquiry/enquiry_texts.h"

#include <algorithm>
#include <vector>

#include "core/files/ico_write.h"
#include "core/host/host.h"

namespace vexlo::session {

namespace {

using host::kCrLf;
using std::to_string;

// The two reports build the same lines with a different spacing and remark.
struct Spacing {
    const char* TrueColor;
    const char* Palette;
    const char* RemarkEnd;
};
constexpr Spacing kPaletteMode{"Orig palette per file:  True-color ", "Orig palette per file:  ", ")"};
constexpr Spacing kProperties{"Orig palette per file:   True-color ", "Orig palette per file:   ", ".)"};

std::string FilePaletteLines(const IconSlot& s, const Spacing& sp) {
    const int c = s.ColorCount;
    std::string out;
    if (c == -1) {
        out += sp.TrueColor + to_string(s.BitsPerPixel) + " BPP" + kCrLf;
        if (s.BitsPerPixel == 32) out += std::string("[With Alpha Channel]") + kCrLf;
    } else if (c > 0) {
        out += sp.Palette + to_string(c) + "-color" + kCrLf;
    }
    return out;
}

std::string ActualDepthLines(const IconSlot& s, int a, const Spacing& sp) {
    const int c = s.ColorCount;
    const std::string head = "Actual color-depth:  ";
    std::string out;
    if (c == 0) {
        out += a < 1 ? head + "True-color 24 BPP" + kCrLf : head + to_string(a) + kCrLf;
    } else if (c == -1) {
        out += head + "True-color " + to_string(s.BitsPerPixel) + " BPP" + kCrLf;
        if (s.HasAlpha)
            out += std::string("[With Alpha Channel]") + kCrLf;
        else if (s.BitsPerPixel == 32)
            out += std::string("[With Alpha Channel (values missing)]") + kCrLf;
        if (c != a) out += "(Remarks: It appears " + to_string(a) + "-color originally" + sp.RemarkEnd + kCrLf;
    } else if (c > 0) {
        out += head + to_string(c) + "-color" + kCrLf;
    }
    return out;
}

std::string Trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool StartsWith(const std::string& text, const char* prefix) { return text.rfind(prefix, 0) == 0; }

}  // namespace

int CountDistinctColors(const surface::Surface& plane) {
    std::vector<surface::Color> colors(plane.Data(),
                                       plane.Data() + static_cast<std::size_t>(plane.Width()) * plane.Height());
    std::sort(colors.begin(), colors.end());
    return static_cast<int>(std::unique(colors.begin(), colors.end()) - colors.begin());
}

std::string PaletteModeText(const IconSlot& slot, const surface::Surface& image) {
    const int a = files::CountColors(image);
    return std::string("COLOR DEPTH:") + kCrLf + kCrLf + FilePaletteLines(slot, kPaletteMode) + kCrLf +
           ActualDepthLines(slot, a, kPaletteMode);
}

std::string ColorsUsedText(const surface::Surface& image) {
    return std::string("COUNT OF COLORS:") + kCrLf + kCrLf + "Actual count of colors used:   " +
           to_string(CountDistinctColors(image)) + kCrLf;
}

std::string HotspotText(const IconSlot& slot) {
    int x = slot.HotspotX;
    int y = slot.HotspotY;
    if (x < 0 || x > 31 || y < 0 || y > 31) x = y = 0;
    return "Hot spot of original cursor:  X=" + to_string(x) + "  Y=" + to_string(y) + kCrLf;
}

std::string GeneralPropertiesText(const IconSlot& slot, const surface::Surface& image) {
    static constexpr const char* kSizes[3] = {"16x16", "32x32", "48x48"};
    const std::string kind = Trimmed(slot.KindText);
    std::string out = std::string("PROPERTIES OF CURRENT ICON: ") + kCrLf + kCrLf + kCrLf;
    out += "Position in Icons Panel:    " + to_string(slot.SlotIndex + 1) + kCrLf;
    out += "Source:    " + kind + kCrLf;
    if (kind.size() > 3 && (StartsWith(kind, "CUR") || StartsWith(kind, "ICO") || StartsWith(kind, "BMP"))) {
        out += "File spec:    " + Trimmed(slot.FileSpec) + kCrLf;
        if (StartsWith(kind, "ICO") && slot.MultiIconFile)
            out += std::string("(Multi-icon file)") + kCrLf;
        else if (StartsWith(kind, "CUR") && slot.HasHotspot)
            out += "Hotspot:    [" + to_string(slot.HotspotX) + ", " + to_string(slot.HotspotY) + "]" + kCrLf;
    }
    const int size = std::clamp<int>(slot.SizeCode, 1, 3);
    out += std::string("Icon size:    ") + kSizes[size - 1] + kCrLf;
    out += kCrLf + FilePaletteLines(slot, kProperties) + kCrLf;
    out += ActualDepthLines(slot, files::CountColors(image), kProperties) + kCrLf;
    out += std::string("Change made:    ") + (slot.Changed ? "Yes" : "No") + kCrLf;
    return out + kCrLf + kCrLf;
}

}  // namespace vexlo::session
