// libFuzzer target: the palette file reader (the Color Mixer's BMP pictures), on the bytes as
// given and with "BM" put at the start (so that the icon seeds' bitmap headers reach the
// checks). What it decodes is written again and must read back the same. Built by
// scripts/fuzz.sh.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/files/bmp_write.h"
#include "core/files/pal_file.h"
#include "core/surface/surface.h"

namespace {

void Exercise(vexlo::files::Bytes bytes) {
    using namespace vexlo;
    files::PaletteLayout layout;
    files::PaletteReadError error;
    if (!files::ReadPaletteLayout(bytes, layout, error)) {
        if (error.Description.empty() || error.Number != files::kInvalidPictureNumber) __builtin_trap();
        return;
    }
    if (layout.Width < 1 || layout.Height < 1) __builtin_trap();
    if (layout.PixelOffset + layout.RowBytes * static_cast<std::size_t>(layout.Height) > bytes.size())
        __builtin_trap();
    surface::Surface picture;
    if (!files::DecodePalettePicture(bytes, layout, picture)) return;
    if (picture.Width() != layout.Width || picture.Height() != layout.Height) __builtin_trap();
    const std::vector<std::uint8_t> again = files::BuildBmpBytes(picture);
    files::PaletteLayout back;
    surface::Surface reread;
    if (!files::ReadPaletteLayout(files::Bytes(again), back, error) ||
        !files::DecodePalettePicture(files::Bytes(again), back, reread) || !SamePixels(reread, picture))
        __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Exercise(vexlo::files::Bytes(data, size));
    if (size >= 2) {
        std::vector<std::uint8_t> bitmap(data, data + size);
        bitmap[0] = 'B';
        bitmap[1] = 'M';
        Exercise(vexlo::files::Bytes(bitmap));
    }
    return 0;
}
