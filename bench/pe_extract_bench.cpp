// Extraction of every icon group of a large resource DLL: ours against icoutils' wrestool in the
// same run. The DLL is $VEXLO_BENCH_DLL, else Wine's shell32.dll when libwine is installed (184
// groups of 10 images, 15 MB), else one of the same shape built by the tests' writer.
//
//   BM_ExtractAllGroups   what "vexlo-cli extract DLL DIR" does: read the file once, rebuild
//                         every group and write it as a new file in a fresh folder
//   BM_WrestoolExtract    "wrestool -x -t 14 -o DIR DLL" on the same file (skipped without it)
//   BM_DrawAllIcons       every icon drawn large and small, as the Icons List's pages need
// Groups per second are items_per_second; the ratio of the first two is the speed-up.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "core/extract/icon_library.h"
#include "core/files/atomic_file.h"
#include "support/dib_icon.h"
#include "support/pe_writer.h"

namespace {

namespace fs = std::filesystem;
namespace test = vexlo::test;
using vexlo::extract::IconLibrary;

// 184 groups, each of images 16, 32 and 48 at 4, 8 and 32 bits (9 images).
test::ByteVec ShapeOfShell32() {
    std::vector<test::pe::Resource> res;
    std::uint16_t id = 1;
    for (int g = 1; g <= 184; ++g) {
        std::vector<test::pe::GroupEntry> entries;
        for (const int side : {48, 32, 16})
            for (const int bits : {32, 8, 4}) {
                test::DibIcon d;
                d.Side = side;
                d.Bits = bits;
                d.Value = [g, bits](int x, int y) { return static_cast<std::uint32_t>((x * y + g) % (bits == 4 ? 16 : 256)); };
                res.push_back({vexlo::extract::kRtIcon, id, {}, 0, test::DibIconBytes(d)});
                test::pe::GroupEntry e;
                e.Width = e.Height = side;
                e.BitCount = bits;
                e.Bytes = static_cast<std::int64_t>(res.back().Data.size());
                e.Id = id++;
                entries.push_back(e);
            }
        res.push_back({vexlo::extract::kRtGroupIcon, static_cast<std::uint16_t>(g), {}, 0,
                       test::pe::GroupBytes(entries, {})});
    }
    return test::pe::BuildPe(res, {true}).Bytes;
}

// The DLL's path, written to the temp folder when it is the built one.
const std::string& DllPath() {
    static const std::string path = [] {
        if (const char* given = std::getenv("VEXLO_BENCH_DLL")) return std::string(given);
        const std::string wine = "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/shell32.dll";
        if (fs::exists(wine)) return wine;
        const std::string built = (fs::temp_directory_path() / ("vexlo_bench_" + std::to_string(::getpid()) + ".dll")).string();
        const test::ByteVec bytes = ShapeOfShell32();
        vexlo::files::AtomicWriteFile(built, vexlo::files::Bytes(bytes.data(), bytes.size()));
        return built;
    }();
    return path;
}

fs::path FreshFolder(const char* name, int round) {
    const fs::path dir = fs::temp_directory_path() / (std::string(name) + std::to_string(::getpid()) + "_" + std::to_string(round));
    fs::remove_all(dir);
    fs::create_directories(dir);
    return dir;
}

void BM_ExtractAllGroups(benchmark::State& state) {
    int round = 0, groups = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const fs::path dir = FreshFolder("vexlo_bench_extract_", round++);
        state.ResumeTiming();
        IconLibrary library;
        if (!library.Open(DllPath())) state.SkipWithError("cannot read the DLL");
        vexlo::files::AtomicWriteOptions options;
        options.Sync = false;
        groups = static_cast<int>(library.Groups().size());
        for (int g = 0; g < groups; ++g) {
            const std::vector<std::uint8_t> bytes = library.RebuildGroupFile(g);
            vexlo::files::AtomicWriteFile((dir / ("shell32_" + library.GroupName(g) + ".ico")).string(),
                                          vexlo::files::Bytes(bytes.data(), bytes.size()), options);
        }
        state.PauseTiming();
        fs::remove_all(dir);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * groups);
    state.SetLabel(DllPath());
}
BENCHMARK(BM_ExtractAllGroups)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_WrestoolExtract(benchmark::State& state) {
    if (std::system("command -v wrestool >/dev/null 2>&1") != 0) {
        state.SkipWithError("wrestool (icoutils) is not installed");
        return;
    }
    IconLibrary library;
    library.Open(DllPath());
    int round = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const fs::path dir = FreshFolder("vexlo_bench_wrestool_", round++);
        const std::string command = "wrestool -x -t 14 -o '" + dir.string() + "/' '" + DllPath() + "'";
        state.ResumeTiming();
        if (std::system(command.c_str()) != 0) state.SkipWithError("wrestool failed");
        state.PauseTiming();
        fs::remove_all(dir);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * library.CountIconGroups());
}
BENCHMARK(BM_WrestoolExtract)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_DrawAllIcons(benchmark::State& state) {
    IconLibrary library;
    library.Open(DllPath());
    for (auto _ : state) {
        for (int i = 0; i < library.CountIconGroups(); ++i) {
            vexlo::extract::ExtractedIcon large, small;
            library.ExtractGroupIcon(i, vexlo::extract::IconSize::Large, large);
            library.ExtractGroupIcon(i, vexlo::extract::IconSize::Small, small);
            benchmark::DoNotOptimize(large.Image.Data());
        }
    }
    state.SetItemsProcessed(state.iterations() * library.CountIconGroups());
}
BENCHMARK(BM_DrawAllIcons)->Unit(benchmark::kMillisecond);

}  // namespace
