#pragma once
// The Color Mixer's arithmetic: the channel swatches of the three bars, the strip of 100 bands
// through red, yellow, green, cyan and blue at the bars' levels, the "+" and "-" steps and
// their enabled states, and the texts the mixer shows. The session keeps the bars and the
// strip; everything here is pure.
#include <array>
#include <string>
#include <string_view>

#include "core/surface/surface.h"

namespace vexlo::color {

using surface::Color;

// HsrRGB's range and start, and the step of cmdAdjMix "+" and "-".
inline constexpr int kMixBarMax = 255;
inline constexpr int kMixStep = 17;
inline constexpr int kMixBands = 100;

using MixBars = std::array<int, 3>;  // red, green, blue

// PicRGB element i (0 red, 1 green, 2 blue) for a bar value: RGB(v,0,0), RGB(0,v,0), RGB(0,0,v).
Color ChannelColor(int i, int value);
// PicRGBMix: RGB(r, g, b).
Color MixColor(const MixBars& bars);

// The 100 band colors from the three channel colors c0, c1, c2 (top to bottom), with
// C3 = max(C1, C0) and C4 = max(C2, C1) per component; each stretch of 25 bands runs from its
// color towards the next in steps of 1/26, rounded to nearest, ties to even.
std::array<Color, kMixBands> MixBandColors(Color c0, Color c1, Color c2);
// DrawMixGradient: the strip filled band by band, band k over the rows whose y x 100 / height
// falls in k - 1 (so each of a 100-pixel strip's rows is one band).
void DrawMixGradient(surface::Surface& strip, Color c0, Color c1, Color c2);

// cmdAdjMix elements 0 ("+") and 1 ("-") enabled: "+" unless all three bars are 255, "-"
// unless all three are 0.
struct AdjMixEnabled {
    bool Lighten = false;
    bool Darken = true;
};
AdjMixEnabled AdjMixEnabledOf(const MixBars& bars);

// cmdAdjMix element: 0 adds 17 to each bar (at most 255), 1 takes 17 (at least 0), 2 takes
// the components of selected; any other leaves the bars.
MixBars AdjustMixBars(const MixBars& bars, int element, Color selected);

// lblMix over the strip: "RGB: R, G, B".
std::string MixLabelText(Color c);

// The palette test after a load: a picture smaller than the strip either way is (1), one
// more than 2 pixels larger either way is (2); the first test that fits decides.
enum class PaletteFit { Fits, TooSmall, TooLarge };
PaletteFit PaletteFitOf(int pictureWidth, int pictureHeight, int stripWidth, int stripHeight);

inline constexpr std::string_view kPaletteTooSmall = "Not a valid pal file for Vexlo (1)";
inline constexpr std::string_view kPaletteTooLarge = "Not a valid pal file for Vexlo (2)";
// The label of the common error box for a palette that can't be read.
inline constexpr std::string_view kPaletteUnreadable = "Invalid pal for Vexlo";
// The dialogs' filters and default extension.
inline constexpr std::string_view kPaletteSaveFilter = "Palette file (*.pal)|*.*|";
inline constexpr std::string_view kPaletteOpenFilter = "Palette file (*.pal)|*.pal|";
inline constexpr std::string_view kPaletteExtension = "pal";

// Tooltips of the mixer's controls.
inline constexpr std::string_view kMixSwatchTip = "Dithered Color";
inline constexpr std::string_view kLightenTip = "To lighten";
inline constexpr std::string_view kDarkenTip = "To darken";
inline constexpr std::string_view kCopySelectedTip = "Copy Current Selected Color";
inline constexpr std::string_view kLoadPaletteTip = "Load existing mixed color palette file";
inline constexpr std::string_view kSavePaletteTip = "Save mixed color palette to file";

}  // namespace vexlo::color
