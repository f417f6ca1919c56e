#pragma once
// The effect frames' flows: the Effects menu's entries, each frame's controls and its Proceed
// on the current icon, Rotate at any angle, and the Color Mixer with its palette files. They
// work on the session's parts through Session::Frames(), a handle with no state of its own;
// what the frames keep while they are up is EffectsPanels (effects_panels/), the mixer's state
// ColorMixer (color_mixer/).
//
//   session_shades.cpp          mnuEffectsSub: the shades frame, its preview, Proceed, Restore
//   session_buttonize.cpp       Buttonize's frame, pattern and Proceed
//   session_adjust_colors.cpp   Adjust Painted Colors
//   session_text.cpp            Text: its controls, the font check, Proceed
//   session_rotate_angle.cpp    Rotate at any angle
//   session_gradient.cpp        Gradient Unpainted Area
//   session_resize_confine.cpp  Expand, Shrink, Confine to 16 colors and to mono
//   session_color_mixer.cpp     the Color Mixer's controls and the palette files
#include <string>

#include "core/session/session.h"

namespace vexlo::session {

class EffectFrames {
public:
    explicit EffectFrames(Session& session) : m_s(session) {}

    // --- Shades effects (session_shades.cpp) -----------------------------------------------
    // mnuEffectsSub(1..7): the frame and its first preview; (0) Buttonize's frame.
    void ClickEffectsSub(int index);
    void ClickUseSelectedColor(bool checked);
    void CastSliderChanged(int value);
    void CastComboClicked(int element, int listIndex);
    void ShadesProceed();  // cmdShadesProceed(0)
    void ShadesRestore();  // cmdShadesProceed(1)

    // --- Buttonize and Adjust Painted Colors (session_buttonize.cpp, session_adjust_colors.cpp)
    void ClickButtonizePattern(int index);           // cboButtonizePattern, picButtonize(index)
    void ButtonizeProceed();                         // cmdButtonizeProceed
    void ClickEffectsAdjustPaintedColors();          // mnuEffectsAdjustPaintedColors
    void ClickBrightnessAdj(int listIndex);          // cboBrightNessAdj
    void ClickColorAdj(int element, int listIndex);  // cboColorAdj(element)
    void AdjustColorsProceed(int index);             // cmdAdjustColorsProceed(0 Proceed, 1 Restore)

    // --- Text (session_text.cpp) -----------------------------------------------------------
    void ClickEffectsText();                     // mnuEffectsText
    void SetWriteText(const std::string& text);  // txbWriteText
    void ClickTextWriteStyle(int index);
    void ClickFontName(int index);
    void ClickFontSize(int index);
    void ClickFontStyle(int i);  // imgFontStyle(0 Bold, 1 Italic)
    void ClickTextColor();
    void TextAngleChanged(int value);  // HsbTextWriteSampleAngle
    void AddTextProceed();             // cmdAddTextProceed

    // --- Rotate at any angle (session_rotate_angle.cpp) ------------------------------------
    void ClickRotateSelectAngle();             // mnuRotateSubmenu(4)
    void RotateAngleSliderChanged(int value);  // hsrRotateAngle
    void ClickRotateAngleList(int listIndex);  // cboRotateAngle
    void ClickRotateAntiAlias(bool checked);   // ckbRotateAntiAlias
    void RotateSelectAngleProceed();           // cmdRotateSelectAngleProceed

    // --- Gradient Unpainted Area (session_gradient.cpp) ------------------------------------
    void ClickGradientType(int k);       // OptGradType(k)
    void ClickGradientAngle(int index);  // cboGradientAngle
    void ClickGradientColor(int i);      // cmdGradientColor(i)
    // A pointer press on PicGradient(k) at (x, y) in its pixels.
    void PressOnGradient(int k, Session::Button button, int x, int y);
    void GradientProceed();  // cmdGradientProceed

    // --- Expand, Shrink and Confine (session_resize_confine.cpp) ---------------------------
    void ClickMonoThreshold(int index);  // cboConfineToMonoThreshold
    void ConfineToMonoProceed();         // cmdConfineToMonoProceed

    // --- Color Mixer and palette files (session_color_mixer.cpp) ---------------------------
    void ChangeMixBar(int i, int value);  // HsrRGB(i) change
    void ScrollMixBar(int i, int value);  // HsrRGB(i) scroll, while its thumb is dragged
    void ClickAdjMix(int element);        // cmdAdjMix(element)
    // The pointer on picMixGradient at (x, y) in its pixels.
    void PointerOverMixStrip(int x, int y);
    void PressOnMixStrip(int x, int y);
    void ReleaseOnMixStrip(int x, int y);
    // A pointer release on PicRGB(0..2), or on PicRGBMix (3).
    void ReleaseOnMixSwatch(int i);
    void LoadPalette();  // picLoadPalette, mnuPaletteSub(3)
    void SavePalette();  // picSavePalette, mnuPaletteSub(4)

private:
    // The Effects menu's gradient, size and color entries, run by Session::RunMenuItem.
    friend class Session;
    void mnuEffectsGradientUnpaintedArea();
    void ResizeIcon(bool expand);  // mnuEffectsExpand, mnuEffectsShrink
    void mnuEffectsConfineColorsTo16();
    void mnuEffectsConfineColorsTo2();
    void RunShadesPreview();
    void OpenButtonize();

    Session& m_s;
};

}  // namespace vexlo::session
