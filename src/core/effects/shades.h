#pragma once
// The seven shades effects (Invert, Grayscale, Embossed, Engraved, Raised, Shadowed, Cast) as
// pure functions: from the icon's planes and its composed picture to the preview pair that
// fraEffectsShades shows, and from the preview back into the planes at Proceed. Also the
// frame's captions and the state rules of the Cast controls. The window only shows results.
//
// Cells are counted painted by one of two tests on PicIcon (the composed icon on 0xC0C0C0):
//   plain test: the color differs from 0xC0C0C0;
//   mask test:  the color differs from 0xC0C0C0, or it is 0xC0C0C0 and picMask there is black.
// A painted cell of true silver therefore counts as unpainted under the plain test only.
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/icon/icon_colors.h"
#include "core/surface/surface.h"

namespace vexlo::effects {

using surface::Color;
using surface::Surface;

using icon::kBlack;
using icon::kTransparentGray;  // PicIcon's transparent background
using icon::kWhite;
inline constexpr Color kReliefGray = 0x808080;

// ShadeEffectCode: the running effect, numbered as mnuEffectsSub (index 0 is Buttonize).
enum class Effect { Invert = 1, Grayscale, Embossed, Engraved, Raised, Shadowed, Cast };
// The effect of a ShadeEffectCode 1..7; nothing for any other code.
std::optional<Effect> EffectOfCode(int code);
constexpr int CodeOf(Effect e) { return static_cast<int>(e); }

// What an effect reads: the working planes and the composed icon of the current slot.
struct IconPlanes {
    const Surface& picImage;
    const Surface& picMask;
    const Surface& PicIcon;
};

// picEffectsSample: Image is element 0 (the composed icon), Mask element 1 (black opaque,
// white transparent). Both have picImage's size.
struct ShadesPreview {
    Surface Image;
    Surface Mask;
};

// The three cast values, cboCast elements 0, 1, 2 (red, green, blue).
using CastValues = std::array<int, 3>;
inline constexpr int kCastStart = 127;

// The controls of the frame that an effect reads.
struct ShadesOptions {
    bool UseSelectedColor = false;  // ckbUseSelectedColor checked
    Color SelectedColor = kBlack;   // the Current Selected Color
    CastValues Cast{kCastStart, kCastStart, kCastStart};
};

// ---- Previews (shades_basic.cpp, shades_relief.cpp, shades_cast.cpp) -----------------------

// Both previews sized to picImage; Image holds PicIcon's picture, Mask picMask's. Every
// preview below starts from this.
ShadesPreview PreparePreview(const IconPlanes& planes);

// Cells painted by the mask test become RGB(255-R, 255-G, 255-B). The mask stays.
ShadesPreview PreviewInvert(const IconPlanes& planes);

// Cells painted by the mask test become gray GrayOf(color). The mask stays.
ShadesPreview PreviewGrayscale(const IconPlanes& planes);
// round(0.3 R) + round(0.59 G) + round((1 - 0.3 - 0.59) B), each term rounded by itself, ties to
// even: white gives 254.
int GrayOf(Color c);

// Embossed, Engraved, Raised: the first color up and left of each painted cell (plain test),
// the second down and right, then every painted cell its own color again. Shadowed: the first
// color (SelectedColor when useSelectedColor, else black) down and right, then the painted
// cells again. Every written cell becomes opaque in Mask. Any other effect gives the prepared
// preview unchanged.
ShadesPreview PreviewRelief(Effect effect, const IconPlanes& planes, bool useSelectedColor,
                            Color selectedColor);

// The in-place cast scan on Image, x outer, y inner: a cell whose color c there differs from
// 0xC0C0C0, or whose picMask cell is not white, becomes RGB(min(|cr + R1 - R2|, 255), ...) with
// d = (R2,G2,B2) the Image cell at (x+1,y+1). Past the right or bottom edge d is GetPixel's
// 0xFFFFFFFF taken as the signed -1: R2 = -1, G2 = 0, B2 = 0. The mask stays.
ShadesPreview PreviewCast(const IconPlanes& planes, const CastValues& cast);

// The preview that the menu (or a control of the frame) runs for an effect.
ShadesPreview MakePreview(Effect effect, const IconPlanes& planes, const ShadesOptions& options);

// ckbUseSelectedColor click with ShadeEffectCode as it stands: PreviewRelief for a code 1..7,
// nothing (the preview stays as it is) for any other code.
std::optional<ShadesPreview> UseSelectedColorClicked(int shadeEffectCode, const IconPlanes& planes,
                                                     bool checked, Color selectedColor);

// Proceed: Image cells showing 0xC0C0C0 where picMask is white become black (picImage holds
// black in transparent cells); then Image is copied to picImage and Mask to picMask, each as
// the planes' persistent picture. The caller then composes, sets Changed, magnifies, takes the
// undo snapshot and shows the Colors Panel.
void ProceedShades(ShadesPreview& preview, Surface& picImage, Surface& picMask);

// ---- The frame --------------------------------------------------------------------------------

inline constexpr std::string_view kProceedCaption = "Proceed";          // cmdShadesProceed(0)
inline constexpr std::string_view kRestoreCaption = "Restore";          // cmdShadesProceed(1)
inline constexpr std::string_view kRestoreToolTip = "Restore to original";
inline constexpr std::string_view kUseSelectedColorCaption =
    "Use currently selected color (otherwise black)";

// How a click on mnuEffectsSub(index) sets up fraEffectsShades.
struct ShadesFrameSetup {
    std::string_view Caption;              // fraEffectsShades
    Effect Code;                           // ShadeEffectCode, and the preview to run
    bool UseSelectedColorVisible = false;  // ckbUseSelectedColor; unchecked whenever shown
    bool CastControlsVisible = false;      // SetCastControlsVisible(flag), Restore included
};
// Indexes 1..7; nothing for 0 (Buttonize has its own frame) or any other index.
std::optional<ShadesFrameSetup> ShadesFrameOf(int menuIndex);
// The caption of fraEffectsShades for a menu index, empty where there is none.
std::string_view ShadesCaption(int menuIndex);

// ---- The Cast controls (shades_cast.cpp) ------------------------------------------------------

// The values the Cast controls hold: cboCast list indexes (equal to their values), CastLevel
// and hsrCast's value. The form's FormLoading flag is the guard, passed in by the caller.
struct CastControls {
    CastValues Values{kCastStart, kCastStart, kCastStart};
    int CastLevel = kCastStart;
    int Slider = kCastStart;
};

// The entries of each cboCast list: "0" to "255".
std::array<std::string, 256> CastListEntries();
// round((v0 + v1 + v2) / 3), ties to even.
int CastLevelOf(const CastValues& values);
// Menu 7 and Restore: all three values, CastLevel and the slider at 127.
void ResetCast(CastControls& controls);
// hsrCast changed to sliderValue. The slider holds the value in any case; unless formLoading,
// the values move by the change from CastLevel (each first held at most 255, then within
// 0..255), CastLevel becomes their mean and the slider settles on it. True when PreviewCast
// is to run (the caller writes the controls back under FormLoading first).
bool CastSliderChanged(CastControls& controls, int sliderValue, bool formLoading);
// cboCast(element) clicked at listIndex. The list holds the value in any case; unless
// formLoading, CastLevel becomes the mean and the slider follows. True when PreviewCast is to
// run.
bool CastComboClicked(CastControls& controls, int element, int listIndex, bool formLoading);

}  // namespace vexlo::effects
