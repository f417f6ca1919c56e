#pragma once
// frmVexloAlpha without its widgets: the current icon as it is and as its alpha values make
// it look over the display gray, a magnified view on which the pointer paints alpha values
// cell by cell, the creation of a first set of values, and the conversion to 24 BPP. It edits
// IncomingAlpha in place and answers by Result() ("" nothing, "1" convert keeping the blended
// colors, "2" convert keeping the plain colors, "3" changed values, "4" created values) and
// FileSpec(). The window builds the controls, forwards every event here and redraws from the
// state below.
#include <array>
#include <string>

#include "core/alpha/alpha_array.h"
#include "core/host/host.h"
#include "core/surface/surface.h"

namespace vexlo::session {

class AlphaEditor {
public:
    static constexpr int kDispSide = 384;
    // lblAlpha(0..5).
    static const char* LabelText(int k);

    // Runs the activation over the request's pictures.
    AlphaEditor(host::Host& host, const host::AlphaEditorRequest& request);

    // --- State the window shows --------------------------------------------------------------
    int IconSize() const { return m_iconSize; }  // AlphaIconSize
    int Step() const { return m_step; }          // AlphaStep
    bool Original() const { return m_original; }
    bool Active() const { return m_active; }
    bool Held() const { return m_held; }
    bool Edited() const { return m_edited; }
    const surface::Surface& IconOrig() const { return m_iconOrig; }    // PicIconOrig
    const surface::Surface& MaskOrig() const { return m_maskOrig; }    // picMaskOrig
    const surface::Surface& ImageAlpha() const { return m_imageAlpha; }  // picImageAlpha
    const surface::Surface& MaskAlpha() const { return m_maskAlpha; }    // picMaskAlpha
    const surface::Surface& Disp() const { return m_disp; }              // picDisp
    const alpha::AlphaArray& Values() const { return m_incoming; }
    // lblAlpha(3..5), the two alpha pictures and their labels.
    bool AlphaPanelsVisible() const { return m_panelsVisible; }
    bool EditFrameVisible() const { return m_editFrameVisible; }  // fraEditAlphaValue
    bool ButtonEnabled(int k) const;  // cmdAlpha(k)
    bool RestoreEnabled() const { return m_restoreEnabled; }
    int ValueListIndex() const { return m_valueListIndex; }  // cboAlphaValue
    int ScrollValue() const { return m_scrollValue; }        // hsrAlphaValue
    surface::Color Swatch() const { return m_swatch; }       // picAlphaValue's back color
    const std::string& DispXY() const { return m_dispXY; }   // lblDispXY
    // picDisp's pointer: its own shape while values can be painted.
    bool PaintPointer() const { return m_paintPointer; }
    bool Closed() const { return m_closed; }
    const std::string& Result() const { return m_result; }      // AlphaResult
    const std::string& FileSpec() const { return m_fileSpec; }  // AlphaFileSpec
    // The answer as the host hands it back; for "1" the blended planes.
    host::AlphaEditorAnswer Answer() const;

    // --- Events ------------------------------------------------------------------------------
    void ValueComboClicked(int listIndex);  // cboAlphaValue click
    void ValueScrolled(int value);          // hsrAlphaValue change or scroll
    void PointerOverForm() { m_dispXY.clear(); }
    void PointerPressed(double x, double y);
    void PointerMoved(double x, double y);
    void PointerReleased(bool rightButton);
    void ClickRestore();
    void ClickAlpha(int k);
    // The form is asked to close (Exit, or the window's own close); false when it stays open.
    bool RequestClose();

private:
    bool BoundFits() const;
    // The cell of a picDisp position, false when the position lies outside the icon.
    bool CellAt(double x, double y, int& cx, int& cy);
    void SetAlphaPanels(bool visible);
    void Redraw();
    void DrawAlphaView();
    void StoreValueAt(int cx, int cy);
    void ConvertTo24(int k);
    void RetainAlphaColors();
    void CreateAlpha();
    void SaveAndExit();
    bool AskYesNo(const std::string& text);
    // AlphaResult set, and the form closed.
    void SetResult(char answer);
    std::string AskFile();

    host::Host& m_host;
    alpha::AlphaArray& m_incoming;
    const surface::Surface& m_grid;
    surface::Color m_gridColor;
    int m_iconSize = 32;
    int m_step = 12;
    bool m_original = false, m_active = false, m_held = false, m_edited = false, m_guard = false;
    alpha::AlphaArray m_backup;
    surface::Surface m_iconOrig, m_maskOrig, m_imageOrig, m_imageAlpha, m_maskAlpha, m_iconAlpha;
    surface::Surface m_disp;
    bool m_panelsVisible = false, m_editFrameVisible = false, m_restoreEnabled = false;
    std::array<bool, 5> m_enabled{true, true, true, true, true};
    int m_valueListIndex = 254;
    int m_scrollValue = 255;
    surface::Color m_swatch = 0;
    std::string m_dispXY;
    bool m_paintPointer = false;
    bool m_closed = false;
    std::string m_result, m_fileSpec;
};

}  // namespace vexlo::session
