#pragma once
// Text: a line of text drawn by the platform without smoothing, then turned by RotatePicture,
// cut to the bounding box of what was drawn and handed over as a see-through floating picture
// (0xC0C0C0 where nothing is). Also the fixed angle sample of fraText.
//
// The key color marks "nothing here" all the way: white, or blue when the text itself is
// white. The text is drawn on a back of the key color, so white text survives the turn (the
// turn leaves out the back color read at the picture's top left corner).
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/surface/surface.h"

namespace vexlo::effects {

using surface::Color;
using surface::Surface;

inline constexpr Color kTextInitialColor = 0x0000FF;  // TextColor: RGB(255,0,0)
inline constexpr Color kTextKeyBlue = 0xFF0000;       // RGB(0,0,255)

// cboTextWriteStyle.
enum class TextWriteStyle { Ordinary = 0, Hollow = 1 };
inline constexpr std::array<std::string_view, 2> kTextWriteStyleEntries{"Ordinary", "Hollow"};

// cboFontSize: "7" to "18"; starts at index 1, "8".
inline constexpr int kFontSizeFirst = 7;
inline constexpr int kFontSizeCount = 12;
inline constexpr int kFontSizeInitialIndex = 1;
std::vector<std::string> FontSizeEntries();
constexpr int FontSizeOf(int listIndex) { return kFontSizeFirst + listIndex; }

// HsbTextWriteSampleAngle.
inline constexpr int kTextAngleMin = -360;
inline constexpr int kTextAngleMax = 360;

inline constexpr const char* kNoTextYet = "No text entered yet";
// "<name> not available in system."
std::string FontNotAvailableText(const std::string& name);

// The text with blanks trimmed from both ends is empty.
bool IsBlankText(std::string_view text);

// The key color of a text color: white, but blue for white text.
constexpr Color TextKeyColor(Color textColor) {
    return textColor == 0xFFFFFF ? kTextKeyBlue : 0xFFFFFF;
}

// lblTextSample's colors: white behind the text, blue behind white text.
struct TextSampleColors {
    Color Back;
    Color Fore;
};
constexpr TextSampleColors TextSampleColorsOf(Color textColor) {
    return {textColor == 0xFFFFFF ? kTextKeyBlue : 0xFFFFFF, textColor};
}

// From the text as drawn (its width and height plus 2, the text at (1, 1), key elsewhere) to
// the floating picture: cut to at most L x L (16, 32, 48 by sizeCode), turned by angle
// degrees into a square of side 16 for sizeCode 1 and round(sqrt(w^2 + h^2) + 2) otherwise,
// leaving out the color at the cut picture's (0, 0); then the bounding box of every cell that
// isn't the key, with the key turned to 0xC0C0C0. Nothing when no cell is left.
std::optional<Surface> MakeTextRegion(const Surface& drawn, int sizeCode, double angle, Color key);

// picTextWriteAngleSample: a fixed small picture on white; picTextWriteAngleSampleBgd: the
// white picture on which it turns.
Surface TextAngleSample();
Surface TextAngleSampleBackground();
// The angle's change: the background cleared to white and the sample turned onto it around
// the background's middle, leaving out the sample's own back color.
void TurnTextAngleSample(const Surface& sample, Surface& background, int angle);

}  // namespace vexlo::effects
