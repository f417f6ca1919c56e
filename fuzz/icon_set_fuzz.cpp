// libFuzzer target: icon sets read from the bytes as given, written back, and every image
// removed in turn. Built by scripts/fuzz.sh (clang, -fsanitize=fuzzer,address,undefined).
#include <cstddef>
#include <cstdint>

#include "core/files/icon_set.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vexlo::files;
    IconSet set;
    const int n = ReadIconSet(Bytes(data, size), set);
    if (n <= 0) {
        if (set.Count() != 0) __builtin_trap();  // a failed read leaves the set empty
        return 0;
    }
    // What was read writes a file that reads back the same images.
    const std::vector<std::uint8_t> written = BuildIconSetBytes(set);
    IconSet again;
    if (ReadIconSet(Bytes(written), again) != n) __builtin_trap();
    for (int i = 0; i < n; ++i)
        if (again.Images[static_cast<std::size_t>(i)].Bytes != set.Images[static_cast<std::size_t>(i)].Bytes)
            __builtin_trap();

    for (int i = 0; i < n && i < 8; ++i) {
        IconSet fewer = set;
        if (RemoveImageFromSet(fewer, i) != (n > 1)) __builtin_trap();
        if (n > 1 && ReadIconSet(Bytes(BuildIconSetBytes(fewer)), again) != n - 1) __builtin_trap();
        const IconDirEntry& e = set.Images[static_cast<std::size_t>(i)].Entry;
        FindDuplicateImage(set, e.Width, e.Height, 16, 4, i);
        IconListLine(i, e);
        if (BuildSingleIconBytes(set, i).size() != 22 + set.Images[static_cast<std::size_t>(i)].Bytes.size())
            __builtin_trap();
    }
    return 0;
}
