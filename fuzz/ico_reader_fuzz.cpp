// libFuzzer target: the icon probe and the reader of every image, on the bytes as given.
// Built by scripts/fuzz.sh (clang, -fsanitize=fuzzer,address,undefined).
#include <cstddef>
#include <cstdint>

#include "core/alpha/alpha_array.h"
#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"
#include "core/surface/surface.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vexlo;
    const files::Bytes bytes(data, size);
    files::ProbeIconFile(bytes, false);
    files::ProbeIconFile(bytes, true);

    // Every index that idCount names and the file can hold, and one past them.
    const std::size_t held = size >= 6 ? (size - 6) / 16 : 0;
    const std::size_t named = size >= 6 ? static_cast<std::size_t>(data[4] | (data[5] << 8)) : 0;
    const int count = static_cast<int>((named < held ? named : held) + 1);
    surface::Surface image, mask, composed;
    alpha::AlphaArray incoming;
    for (int i = 0; i < count; ++i) {
        if (files::ReadIconFileToImage(bytes, i, image, mask, incoming)) {
            // What was read is a whole icon of the pixel model.
            if (!files::IsIconSide(image.Width()) || image.Height() != image.Width() ||
                mask.Width() != image.Width())
                __builtin_trap();
        }
    }
    files::ReadIconToPreview(bytes, image, mask, composed);
    return 0;
}
