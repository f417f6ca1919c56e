#include "core/session/alpha_editor/alpha_editor.h"

#include "core/alpha/alpha_draw.h"

namespace vexlo::session {

using host::kCrLf;
using surface::Color;
using surface::Surface;

namespace {

constexpr Color kBlack = 0x000000;
constexpr Color kWhite = 0xFFFFFF;
// picMaskAlpha where the mask is white: a pale blue that no alpha gray can be taken for.
constexpr Color kNoValueColor = 0xFFE8E0;

const Surface& OrEmpty(const Surface* s) {
    static const Surface empty;
    return s != nullptr ? *s : empty;
}

alpha::AlphaArray& IncomingOf(const host::AlphaEditorRequest& request) {
    static alpha::AlphaArray none;
    if (request.Incoming != nullptr) return *request.Incoming;
    none.SetSingle();
    return none;
}

void CopyInto(const Surface& source, Surface& target) {
    surface::MakeSameSize(source, target);
    surface::BitBlt(target, 0, 0, source.Width(), source.Height(), source, 0, 0, surface::Rop::SrcCopy);
}

}  // namespace

const char* AlphaEditor::LabelText(int k) {
    static const char* const kLabels[6] = {"No Alpha Channel", "Mask", "Icon", "With Alpha Channel",
                                           "Alpha Values", "Icon"};
    return k >= 0 && k < 6 ? kLabels[k] : "";
}

AlphaEditor::AlphaEditor(host::Host& host, const host::AlphaEditorRequest& request)
    : m_host(host),
      m_incoming(IncomingOf(request)),
      m_grid(OrEmpty(request.Grid)),
      m_gridColor(request.GridColor),
      m_iconOrig(0, 0, alpha::kAlphaBackground),
      m_imageAlpha(0, 0, alpha::kAlphaBackground),
      m_maskAlpha(0, 0, kNoValueColor),
      m_iconAlpha(0, 0, kWhite),
      m_disp(kDispSide, kDispSide, alpha::kAlphaBackground) {
    const Surface& picIcon = OrEmpty(request.PicIcon);
    const int w = picIcon.Width();
    m_iconSize = w == 16 || w == 32 || w == 48 ? w : 32;
    m_step = m_iconSize == 48 ? 8 : 12;
    CopyInto(picIcon, m_iconOrig);
    CopyInto(OrEmpty(request.Mask), m_maskOrig);
    CopyInto(OrEmpty(request.Image), m_imageOrig);
    for (Surface* s : {&m_maskAlpha, &m_imageAlpha, &m_iconAlpha}) surface::MakeSameSize(picIcon, *s);
    m_swatch = alpha::AlphaSwatch(m_valueListIndex + 1);
    m_enabled[3] = false;
    m_restoreEnabled = false;
    if (BoundFits()) {
        m_original = m_active = true;
        m_enabled[2] = false;
        SetAlphaPanels(true);
        m_backup = m_incoming;
        Redraw();
    } else {
        m_enabled[0] = m_enabled[1] = false;
        SetAlphaPanels(false);
    }
}

bool AlphaEditor::ButtonEnabled(int k) const {
    return k >= 0 && k < 5 && m_enabled[static_cast<std::size_t>(k)];
}

host::AlphaEditorAnswer AlphaEditor::Answer() const {
    host::AlphaEditorAnswer answer;
    answer.Result = m_result;
    answer.FileSpec = m_fileSpec;
    if (m_result == "1") {
        answer.Image = m_imageAlpha;
        answer.Mask = m_maskOrig;
    }
    return answer;
}

bool AlphaEditor::BoundFits() const {
    return !m_incoming.IsSingle() && m_incoming.UpperBound() == m_iconSize - 1;
}

void AlphaEditor::SetAlphaPanels(bool visible) {
    m_panelsVisible = visible;
    m_editFrameVisible = visible;
    m_enabled[1] = visible;
    if (m_editFrameVisible) ValueComboClicked(m_valueListIndex);
}

void AlphaEditor::ValueComboClicked(int listIndex) {
    if (m_guard || listIndex < 0 || listIndex > 254) return;
    m_valueListIndex = listIndex;
    const int a = listIndex + 1;
    m_swatch = alpha::AlphaSwatch(a);
    m_guard = true;
    ValueScrolled(a);
    m_guard = false;
}

void AlphaEditor::ValueScrolled(int value) {
    if (value < 1 || value > 255) return;
    m_scrollValue = value;
    ValueComboClicked(value - 1);
    m_valueListIndex = value - 1;
}

void AlphaEditor::Redraw() {
    alpha::DrawAlphaValues(m_maskOrig, m_incoming, m_maskAlpha);
    alpha::DrawAlphaIcon(m_maskOrig, m_imageOrig, m_incoming, m_iconSize, m_imageAlpha);
    DrawAlphaView();
}

void AlphaEditor::DrawAlphaView() {
    m_disp.Clear();
    int w = m_disp.Width();
    int h = m_disp.Height();
    if (m_iconSize == 16) {
        w = (w + 1) / 2;
        h = (h + 1) / 2;
    }
    surface::StretchBlt(m_disp, 0, 0, w, h, m_imageAlpha, 0, 0, m_imageAlpha.Width(),
                        m_imageAlpha.Height(), surface::Rop::SrcCopy);
    // DrawAlphaGrid: the main window's grid over the view, unless its color hides it.
    if (m_gridColor != alpha::kAlphaBackground || m_iconSize == 16)
        surface::BitBlt(m_disp, 0, 0, m_disp.Width(), m_disp.Height(), m_grid, 0, 0, surface::Rop::SrcAnd);
}

bool AlphaEditor::CellAt(double x, double y, int& cx, int& cy) {
    int limitX = m_disp.Width() - 1;
    int limitY = m_disp.Height() - 1;
    if (m_iconSize == 16) {
        limitX = m_disp.Width() / 2 - 1;
        limitY = m_disp.Height() / 2 - 1;
    }
    if (x < 0 || y < 0 || x > limitX || y > limitY) {
        m_dispXY.clear();
        return false;
    }
    cx = static_cast<int>(x / m_step);
    cy = static_cast<int>(y / m_step);
    return true;
}

void AlphaEditor::StoreValueAt(int cx, int cy) {
    if (!m_incoming.Contains(cx, cy)) return;
    m_incoming.At(cx, cy) = static_cast<std::uint8_t>(m_valueListIndex + 1);
    Redraw();
}

void AlphaEditor::PointerPressed(double x, double y) {
    if (!m_active || !BoundFits() || !m_editFrameVisible) return;
    int cx = 0, cy = 0;
    if (!CellAt(x, y, cx, cy)) return;
    m_held = true;
    if (m_maskOrig.GetPixel(cx, cy) == kBlack) {
        StoreValueAt(cx, cy);
        m_edited = true;
    }
}

void AlphaEditor::PointerMoved(double x, double y) {
    if (!m_active || !BoundFits()) return;
    int cx = 0, cy = 0;
    if (!CellAt(x, y, cx, cy)) return;
    m_host.DoEvents();
    m_paintPointer = m_editFrameVisible;
    const bool painted = m_maskOrig.GetPixel(cx, cy) == kBlack;
    m_dispXY = "X=" + std::to_string(cx) + "  Y=" + std::to_string(cy) + "    Alpha = " +
               (painted && m_incoming.Contains(cx, cy) ? std::to_string(m_incoming.At(cx, cy)) : "N/A");
    if (m_editFrameVisible && m_held && painted) {
        m_edited = true;
        StoreValueAt(cx, cy);
    }
}

void AlphaEditor::PointerReleased(bool rightButton) {
    m_held = false;
    if (m_active && BoundFits() && !rightButton && m_editFrameVisible && m_edited) {
        m_enabled[3] = true;
        m_restoreEnabled = true;
    }
}

void AlphaEditor::ClickRestore() {
    if (m_backup.IsSingle() != m_incoming.IsSingle() || m_backup.UpperBound() != m_incoming.UpperBound())
        return;
    m_incoming = m_backup;
    if (m_original) {
        m_edited = false;
        m_enabled[3] = false;
    }
    m_restoreEnabled = false;
    Redraw();
}

bool AlphaEditor::AskYesNo(const std::string& text) {
    return m_host.MsgBox(text, host::MsgButtons::YesNo, host::MsgIcon::Question, host::kTitle) ==
           host::MsgAnswer::Yes;
}

std::string AlphaEditor::AskFile() {
    utilities::SaveRequest request;
    request.Filter = "Icon files (*.ico)|*.ico|";
    request.DefaultExt = "ico";
    return m_host.ShowSave(request);
}

void AlphaEditor::ClickAlpha(int k) {
    switch (k) {
        case 0:
        case 1: ConvertTo24(k); break;
        case 2: CreateAlpha(); break;
        case 3: SaveAndExit(); break;
        case 4: RequestClose(); break;
        default: break;
    }
}

void AlphaEditor::ConvertTo24(int k) {
    if (!m_original) return;
    std::string text("Change the current icon from 32 BPP to 24 BPP (or 256-Color Palette)");
    if (k == 0) text.append(" while");
    text.append(kCrLf);
    text.append(k == 0 ? "retaining the varied colors of " : "without varying colors of ");
    text.append("the \"alphaed\" image, and save to a file.  OK?");
    text.append(kCrLf);
    if (!AskYesNo(text)) return;
    const std::string file = AskFile();
    if (file.empty()) return;
    m_editFrameVisible = false;
    m_fileSpec = file;
    if (k == 0) RetainAlphaColors();
    SetResult(k == 0 ? '1' : '2');
}

void AlphaEditor::RetainAlphaColors() {
    for (int x = 0; x < m_iconSize; ++x)
        for (int y = 0; y < m_iconSize; ++y)
            if (m_imageAlpha.GetPixel(x, y) == alpha::kAlphaBackground && m_maskOrig.GetPixel(x, y) == kWhite)
                m_imageAlpha.SetPixelV(x, y, kBlack);
    // The blended image on the mask, as the icon would be composed from the new planes.
    m_iconAlpha.Clear();
    const int w = m_iconAlpha.Width(), h = m_iconAlpha.Height();
    surface::BitBlt(m_iconAlpha, 0, 0, w, h, m_maskOrig, 0, 0, surface::Rop::SrcAnd);
    surface::BitBlt(m_iconAlpha, 0, 0, w, h, m_imageAlpha, 0, 0, surface::Rop::SrcInvert);
    // A painted cell whose blended color is pure black can't be told from a transparent one.
    for (int x = 0; x < m_iconSize; ++x)
        for (int y = 0; y < m_iconSize; ++y)
            if (m_imageAlpha.GetPixel(x, y) == kBlack && m_iconAlpha.GetPixel(x, y) == kBlack &&
                m_maskOrig.GetPixel(x, y) != kWhite)
                m_maskOrig.SetPixelV(x, y, kWhite);
}

void AlphaEditor::CreateAlpha() {
    if (m_original) return;
    const std::string text = std::string("Create Alpha means to change the current icon to 32 BPP") + kCrLf +
                             "True Color. Not all Windows platforms and not all hardware are" + kCrLf +
                             "always capable of supporting 32 BPP True Color.  Proceed?" + kCrLf;
    if (!AskYesNo(text)) return;
    m_active = true;
    m_editFrameVisible = true;
    m_enabled[2] = false;
    m_enabled[3] = true;
    m_incoming.SetBounds(m_iconSize - 1);
    for (int x = 0; x < m_iconSize; ++x)
        for (int y = 0; y < m_iconSize; ++y)
            m_incoming.At(x, y) = m_maskOrig.GetPixel(x, y) == kBlack ? 255 : 0;
    m_backup = m_incoming;
    Redraw();
    SetAlphaPanels(true);
}

void AlphaEditor::SaveAndExit() {
    if (!m_active) return;
    const std::string file = AskFile();
    if (file.empty()) return;
    std::string text(m_original ? "Proceed to change" : "Proceed to create");
    text.append(" Alpha Channel values and save to");
    text.append(kCrLf).append(file).append("?");
    if (!AskYesNo(text)) return;
    m_fileSpec = file;
    SetResult(m_original ? '3' : '4');
}

void AlphaEditor::SetResult(char answer) {
    m_result.assign(1, answer);
    m_closed = true;
}

bool AlphaEditor::RequestClose() {
    if (m_result.empty() && m_edited && !AskYesNo(std::string("Exit without saving?") + kCrLf)) return false;
    m_closed = true;
    return true;
}

}  // namespace vexlo::session
