// Opening an animated cursor of 70 frames (the most the editor takes), frames of 1, 4, 8 and
// 24 bits in turn, written by the editor's own writer. BM_OpenAni70 is the editor's whole open:
// CountAniFrames and LoadAniFrames from the file (each reads and checks it, draws every step,
// and the second scans the timings). BM_DrawAni70InMemory is the loader alone on bytes held in
// memory: load, then every step drawn normal and as its mask. Reported as frames per second
// (items_per_second).
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/ani/ani_cursor.h"
#include "core/ani/ani_load.h"
#include "core/ani/ani_save.h"
#include "core/files/atomic_file.h"
#include "core/files/ico_write.h"

namespace {

using vexlo::surface::Color;
using vexlo::surface::Surface;
namespace ani = vexlo::ani;

constexpr int kFrames = 70;

std::vector<std::uint8_t> SeventyFrameFile() {
    std::vector<std::vector<std::uint8_t>> frames;
    std::vector<ani::AniFrameRecord> rows;
    const auto& vga = vexlo::files::SixteenColorTable();
    for (int k = 0; k < kFrames; ++k) {
        Surface image(32, 32, 0), mask(32, 32, 0);
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x) {
                Color c = 0;
                switch (k % 4) {
                    case 0: c = (x + y + k) % 3 ? 0 : 0xFFFFFF; break;
                    case 1: c = vga[static_cast<std::size_t>((x + y + k) % 16)]; break;
                    case 2: c = vexlo::surface::Rgb(x * 8 + 1, y % 4, k); break;
                    default: c = vexlo::surface::Rgb(x * 8 + 1, y * 8 + 1, k); break;
                }
                const bool clear = (x * y + k) % 9 == 0;
                image.SetPixelV(x, y, clear ? 0 : c);
                mask.SetPixelV(x, y, clear ? 0xFFFFFF : 0);
            }
        frames.push_back(ani::BuildAniFrameBytes(image, mask, 4, 5, false));
        rows.push_back({static_cast<std::int16_t>(1 + k % 90), 0, 0, 0});
    }
    return ani::BuildAniFileBytes(frames, rows);
}

void BM_OpenAni70(benchmark::State& state) {
    const std::string path =
        (std::filesystem::temp_directory_path() / ("vexlo_bench_" + std::to_string(::getpid()) + ".ani")).string();
    const std::vector<std::uint8_t> file = SeventyFrameFile();
    if (!vexlo::files::AtomicWriteFile(path, vexlo::files::Bytes(file))) {
        state.SkipWithError("cannot write the file");
        return;
    }
    ani::AniFrameSet set;
    for (auto _ : state) {
        const int count = ani::CountAniFrames(path);
        const bool loaded = ani::LoadAniFrames(path, count, set).Loaded;
        benchmark::DoNotOptimize(loaded);
    }
    if (set.FrameCount() != kFrames) state.SkipWithError("the file did not load");
    state.SetItemsProcessed(state.iterations() * kFrames);
    std::filesystem::remove(path);
}

void BM_DrawAni70InMemory(benchmark::State& state) {
    const std::vector<std::uint8_t> file = SeventyFrameFile();
    Surface image(32, 32, 0xFFFFFF), mask(32, 32, 0);
    int drawn = 0;
    for (auto _ : state) {
        ani::AniCursor cursor;
        if (!ani::LoadAniCursor(file, cursor)) break;
        drawn = 0;
        for (int step = 0; step < cursor.StepCount(); ++step) {
            drawn += cursor.Draw(image, 0, 0, ani::CursorDraw::Normal, step);
            cursor.Draw(mask, 0, 0, ani::CursorDraw::Mask, step);
        }
        benchmark::DoNotOptimize(image.Data());
    }
    if (drawn != kFrames) state.SkipWithError("the frames did not draw");
    state.SetItemsProcessed(state.iterations() * kFrames);
}

BENCHMARK(BM_OpenAni70)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DrawAni70InMemory)->Unit(benchmark::kMillisecond);

}  // namespace
