#pragma once
// Folder trees of small program files for the EXE search's tests: a program file whose icons
// are known by their colors, damaged ones, and the names a search leaves in its output folder.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/extract/resource_list.h"
#include "support/dib_icon.h"
#include "support/pe_writer.h"

namespace vexlo::test {

// A PE32 file with one icon group per entry of `colors`: group g holds a 16x16 and a 32x32
// image of 24 bits, every pixel colors[g] except the left column, which is transparent.
inline ByteVec ProgramWithIcons(const std::vector<std::uint32_t>& colors) {
    std::vector<pe::Resource> res;
    std::uint16_t id = 1;
    for (std::size_t g = 0; g < colors.size(); ++g) {
        std::vector<pe::GroupEntry> entries;
        for (int side : {16, 32}) {
            DibIcon d;
            d.Side = side;
            d.Bits = 24;
            const std::uint32_t c = colors[g];
            d.Value = [c](int x, int) { return x == 0 ? 0u : c; };
            d.Masked = [](int x, int) { return x == 0; };
            pe::Resource image{extract::kRtIcon, id, {}, 0, DibIconBytes(d)};
            pe::GroupEntry e;
            e.Width = e.Height = side;
            e.BitCount = 24;
            e.Bytes = static_cast<std::int64_t>(image.Data.size());
            e.Id = id++;
            entries.push_back(e);
            res.push_back(std::move(image));
        }
        res.push_back({extract::kRtGroupIcon, static_cast<std::uint16_t>(g + 1), {}, 0, pe::GroupBytes(entries, {})});
    }
    if (res.empty()) res.push_back({10 /* RT_RCDATA */, 1, {}, 0, ByteVec{1, 2, 3, 4}});
    return pe::BuildPe(res).Bytes;
}

inline void WriteBytes(const std::filesystem::path& path, const ByteVec& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(out.good()) << path;
}

// The names of the files in folder, sorted.
inline std::vector<std::string> FileNamesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    std::error_code ec;
    for (const auto& e : std::filesystem::directory_iterator(folder, ec)) names.push_back(e.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

// The names sorted, for comparing with FileNamesIn.
inline std::vector<std::string> Sorted(std::vector<std::string> names) {
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace vexlo::test
