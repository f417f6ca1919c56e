// The Color Mixer: its bars, buttons, strip and swatches, and the palette files.
#include <cstring>

#include "core/files/pal_file.h"
#include "core/session/session.h"

namespace vexlo::session {

void Session::ChangeMixBar(int i, int value) {
    Enter();
    if (m_formLoading) return;
    m_mixer.ChangeBar(i, value);
    m_form.Status.Mix.clear();
    LetPendingEventsRun();
}

void Session::ScrollMixBar(int i, int value) {
    Enter();
    m_mixer.ScrollBar(i, value);
    m_form.Status.Mix.clear();
}

void Session::ClickAdjMix(int element) {
    Enter();
    if (element < 0 || element > 2) return;
    m_formLoading = true;
    m_mixer.Adjust(element, m_selectedColor);
    m_formLoading = false;
    m_form.Status.Mix.clear();
}

void Session::PointerOverMixStrip(int x, int y) {
    Enter();
    if (auto text = m_mixer.PointerMoved(x, y)) m_form.Status.Mix = std::move(*text);
}

void Session::PressOnMixStrip(int x, int y) {
    Enter();
    if (const auto c = m_mixer.ColorAt(x, y)) m_selectedColor = *c;
}

void Session::ReleaseOnMixStrip(int x, int y) {
    Enter();
    if (const auto c = m_mixer.ColorAt(x, y)) m_selectedColor = *c;
}

void Session::ReleaseOnMixSwatch(int i) {
    Enter();
    if (i >= 0 && i <= 3) m_selectedColor = m_mixer.SwatchColor(i);
}

void Session::LoadPalette() {
    Enter();
    ShowFrame(Frame::ColorsPanel);
    utilities::OpenRequest request;
    request.Filter = color::kPaletteOpenFilter;
    request.DefaultExt = color::kPaletteExtension;
    request.InitDir = m_dirs.ProgramDir;
    const std::string path = m_host.ShowOpen(request);
    if (path.empty()) return;

    const std::string label(color::kPaletteUnreadable);
    files::PaletteReadError error;
    std::vector<std::uint8_t> bytes;
    if (!files::ReadPaletteFileBytes(path, bytes, error)) return ReportError(label, error.Number, error.Description);
    // A palette is a bitmap; any other picture that the platform reads is taken as well.
    files::PaletteLayout layout;
    Surface picture;
    const bool bitmap = files::IsBmpBytes(files::Bytes(bytes));
    if (bitmap) {
        if (!files::ReadPaletteLayout(files::Bytes(bytes), layout, error))
            return ReportError(label, error.Number, error.Description);
    } else if (!m_host.LoadPicture(path, picture)) {
        return ReportError(label, files::kInvalidPictureNumber, "Invalid picture");
    }
    const int width = bitmap ? layout.Width : picture.Width();
    const int height = bitmap ? layout.Height : picture.Height();
    const Surface& strip = m_mixer.Strip();
    switch (color::PaletteFitOf(width, height, strip.Width(), strip.Height())) {
        case color::PaletteFit::TooSmall:
            m_host.MsgBox(std::string(color::kPaletteTooSmall), MsgButtons::Ok, MsgIcon::None, kTitle);
            return;
        case color::PaletteFit::TooLarge:
            m_host.MsgBox(std::string(color::kPaletteTooLarge), MsgButtons::Ok, MsgIcon::None, kTitle);
            return;
        case color::PaletteFit::Fits: break;
    }
    if (bitmap && !files::DecodePalettePicture(files::Bytes(bytes), layout, picture))
        return ReportError(label, files::kInvalidPictureNumber, "Invalid picture");
    m_mixer.ShowPalette(picture);
}

void Session::SavePalette() {
    Enter();
    ShowFrame(Frame::ColorsPanel);
    utilities::SaveRequest request;
    request.Filter = color::kPaletteSaveFilter;
    request.DefaultExt = color::kPaletteExtension;
    request.InitDir = m_dirs.ProgramDir;
    const std::string path = m_host.ShowSave(request);
    if (path.empty()) return;
    if (const files::FileWriteResult written = files::WritePaletteFile(m_mixer.Strip(), path); !written)
        ReportError("picSavePalette_Click", written.Number, std::strerror(written.Number));
}

}  // namespace vexlo::session
