#pragma once
// The invariant of every multi-icon file that the program writes: no two images of the same
// size and depth (bWidth, bHeight, the entry's color count and wBitCount), whatever depth the
// slot's record names.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/files/icon_set.h"
#include "core/files/ico_probe.h"

namespace vexlo::test {

inline ::testing::AssertionResult NoTwoImagesOfOneSizeAndDepth(const files::IconSet& set) {
    for (int i = 0; i < set.Count(); ++i)
        for (int j = i + 1; j < set.Count(); ++j) {
            const files::IconDirEntry& a = set.Images[static_cast<std::size_t>(i)].Entry;
            const files::IconDirEntry& b = set.Images[static_cast<std::size_t>(j)].Entry;
            if (a.Width == b.Width && a.Height == b.Height && a.BitCount == b.BitCount &&
                files::ColorCountOfEntry(a) == files::ColorCountOfEntry(b))
                return ::testing::AssertionFailure()
                       << "images " << i << " and " << j << " are both " << int{a.Width} << "x" << int{a.Height}
                       << " at " << files::ColorCountOfEntry(a) << " colors, " << a.BitCount << " bits";
        }
    return ::testing::AssertionSuccess();
}

inline ::testing::AssertionResult NoTwoImagesOfOneSizeAndDepth(const std::vector<std::uint8_t>& file) {
    files::IconSet set;
    if (files::ReadIconSet(files::Bytes(file.data(), file.size()), set) < 1)
        return ::testing::AssertionFailure() << "not an icon set";
    return NoTwoImagesOfOneSizeAndDepth(set);
}

inline ::testing::AssertionResult NoTwoImagesOfOneSizeAndDepth(const std::string& path) {
    files::IconSet set;
    if (files::ReadIconSet(path, set) < 1) return ::testing::AssertionFailure() << path << " is not an icon set";
    return NoTwoImagesOfOneSizeAndDepth(set);
}

}  // namespace vexlo::test
