// libFuzzer target: the icon library (PE32/PE32+ headers and resource tree, .res files, icon
// files) on the bytes as given, and with "MZ" put first so that every seed reaches the program
// reader. Each icon is drawn at both sizes and every group rebuilt; a rebuilt icon group must
// read back as the one group of an icon file with the same images. Built by scripts/fuzz.sh.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/extract/icon_library.h"

namespace {

void Exercise(std::vector<std::uint8_t> bytes) {
    using namespace vexlo::extract;
    const std::size_t size = bytes.size();
    IconLibrary library;
    if (!library.OpenBytes(std::move(bytes))) return;
    for (int i = 0; i < library.CountIconGroups(); ++i) {
        ExtractedIcon large, small;
        if (library.ExtractGroupIcon(i, IconSize::Large, large) && large.Image.Width() != kLargeIconSide)
            __builtin_trap();
        if (library.ExtractGroupIcon(i, IconSize::Small, small) && small.Mask.Width() != kSmallIconSide)
            __builtin_trap();
    }
    for (int g = 0; g < static_cast<int>(library.Groups().size()); ++g) {
        std::vector<std::uint8_t> file = library.RebuildGroupFile(g);
        if (file.empty()) continue;
        if (file.size() > size + 6 + 16 * library.Groups()[static_cast<std::size_t>(g)].Images.size())
            __builtin_trap();
        IconLibrary back;
        const int present = library.Groups()[static_cast<std::size_t>(g)].PresentCount();
        if (!back.OpenBytes(std::move(file)) || back.Groups().size() != 1 ||
            back.Groups()[0].PresentCount() != present)
            __builtin_trap();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Exercise(std::vector<std::uint8_t>(data, data + size));
    if (size >= 2 && data[0] != 'M') {
        std::vector<std::uint8_t> program(data, data + size);
        program[0] = 'M';
        program[1] = 'Z';
        Exercise(std::move(program));
    }
    return 0;
}
