// The Color Mixer: its bars, buttons, strip and swatches, and the palette files.
#include <cstring>

#include "core/files/pal_file.h"
#include "core/session/session_effect_frames.h"

namespace vexlo::session {

void EffectFrames::ChangeMixBar(int i, int value) {
    m_s.Enter();
    if (m_s.m_formLoading) return;
    m_s.m_mixer.ChangeBar(i, value);
    m_s.m_form.Status.Mix.clear();
    m_s.LetPendingEventsRun();
}

void EffectFrames::ScrollMixBar(int i, int value) {
    m_s.Enter();
    m_s.m_mixer.ScrollBar(i, value);
    m_s.m_form.Status.Mix.clear();
}

void EffectFrames::ClickAdjMix(int element) {
    m_s.Enter();
    if (element < 0 || element > 2) return;
    m_s.m_formLoading = true;
    m_s.m_mixer.Adjust(element, m_s.m_selectedColor);
    m_s.m_formLoading = false;
    m_s.m_form.Status.Mix.clear();
}

void EffectFrames::PointerOverMixStrip(int x, int y) {
    m_s.Enter();
    if (auto text = m_s.m_mixer.PointerMoved(x, y)) m_s.m_form.Status.Mix = std::move(*text);
}

void EffectFrames::PressOnMixStrip(int x, int y) {
    m_s.Enter();
    if (const auto c = m_s.m_mixer.ColorAt(x, y)) m_s.m_selectedColor = *c;
}

void EffectFrames::ReleaseOnMixStrip(int x, int y) {
    m_s.Enter();
    if (const auto c = m_s.m_mixer.ColorAt(x, y)) m_s.m_selectedColor = *c;
}

void EffectFrames::ReleaseOnMixSwatch(int i) {
    m_s.Enter();
    if (i >= 0 && i <= 3) m_s.m_selectedColor = m_s.m_mixer.SwatchColor(i);
}

void EffectFrames::LoadPalette() {
    m_s.Enter();
    m_s.ShowFrame(Frame::ColorsPanel);
    utilities::OpenRequest request;
    request.Filter = color::kPaletteOpenFilter;
    request.DefaultExt = color::kPaletteExtension;
    request.InitDir = m_s.m_dirs.ProgramDir;
    const std::string path = m_s.m_host.ShowOpen(request);
    if (path.empty()) return;

    const std::string label(color::kPaletteUnreadable);
    files::PaletteReadError error;
    std::vector<std::uint8_t> bytes;
    if (!files::ReadPaletteFileBytes(path, bytes, error))
        return m_s.ReportError(label, error.Number, error.Description);
    // A palette is a bitmap; any other picture that the platform reads is taken as well.
    files::PaletteLayout layout;
    Surface picture;
    const bool bitmap = files::IsBmpBytes(files::Bytes(bytes));
    if (bitmap) {
        if (!files::ReadPaletteLayout(files::Bytes(bytes), layout, error))
            return m_s.ReportError(label, error.Number, error.Description);
    } else if (!m_s.m_host.LoadPicture(path, picture)) {
        return m_s.ReportError(label, files::kInvalidPictureNumber, "Invalid picture");
    }
    const int width = bitmap ? layout.Width : picture.Width();
    const int height = bitmap ? layout.Height : picture.Height();
    const Surface& strip = m_s.m_mixer.Strip();
    switch (color::PaletteFitOf(width, height, strip.Width(), strip.Height())) {
        case color::PaletteFit::TooSmall:
            m_s.m_host.MsgBox(std::string(color::kPaletteTooSmall), MsgButtons::Ok, MsgIcon::None, kTitle);
            return;
        case color::PaletteFit::TooLarge:
            m_s.m_host.MsgBox(std::string(color::kPaletteTooLarge), MsgButtons::Ok, MsgIcon::None, kTitle);
            return;
        case color::PaletteFit::Fits: break;
    }
    if (bitmap && !files::DecodePalettePicture(files::Bytes(bytes), layout, picture))
        return m_s.ReportError(label, files::kInvalidPictureNumber, "Invalid picture");
    m_s.m_mixer.ShowPalette(picture);
}

void EffectFrames::SavePalette() {
    m_s.Enter();
    m_s.ShowFrame(Frame::ColorsPanel);
    utilities::SaveRequest request;
    request.Filter = color::kPaletteSaveFilter;
    request.DefaultExt = color::kPaletteExtension;
    request.InitDir = m_s.m_dirs.ProgramDir;
    const std::string path = m_s.m_host.ShowSave(request);
    if (path.empty()) return;
    if (const files::FileWriteResult written = files::WritePaletteFile(m_s.m_mixer.Strip(), path); !written)
        m_s.ReportError("picSavePalette_Click", written.Number, std::strerror(written.Number));
}

}  // namespace vexlo::session
