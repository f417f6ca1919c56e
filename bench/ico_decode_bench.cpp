// Decoding one 32x32 icon image from memory onto the two planes, at each depth. The Icons
// List and the multi-icon dialog decode many files in a row; the target is at least 90,000
// images a second. Reported as items_per_second.
#include <benchmark/benchmark.h>

#include <vector>

#include "core/alpha/alpha_array.h"
#include "core/files/ico_read.h"
#include "core/files/ico_write.h"
#include "core/surface/surface.h"

namespace {

using vexlo::surface::Color;
using vexlo::surface::Surface;

// A 32x32 icon file of the given depth (1, 4, 8, 24 or 32 bits), built by the writer.
std::vector<std::uint8_t> IconOfDepth(int bits, vexlo::alpha::AlphaArray& alpha) {
    Surface image(32, 32, 0xFFFFFF), mask(32, 32, 0xFFFFFF);
    const auto& vga = vexlo::files::SixteenColorTable();
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            Color c = 0;
            switch (bits) {
                case 1: c = (x + y) % 3 ? 0xFFFFFF : 0; break;
                case 4: c = vga[static_cast<std::size_t>((x + y) % 16)]; break;
                case 8: c = vexlo::surface::Rgb(x * 8 + 1, y % 4, 7); break;
                default: c = vexlo::surface::Rgb(x * 8 + 1, y * 8 + 1, x ^ y); break;
            }
            image.SetPixelV(x, y, c);
            mask.SetPixelV(x, y, (x * y) % 7 ? 0 : 0xFFFFFF);
        }
    alpha.SetBounds(31);
    vexlo::files::IconWriteOptions options;
    options.KeepTrueColor = bits >= 24;
    options.Alpha = bits == 32;
    options.AlphaValues = &alpha;
    return vexlo::files::BuildIconFileBytes(image, mask, options);
}

void BM_DecodeIcon32(benchmark::State& state) {
    const int bits = static_cast<int>(state.range(0));
    vexlo::alpha::AlphaArray alpha;
    const std::vector<std::uint8_t> file = IconOfDepth(bits, alpha);
    Surface image, mask;
    vexlo::alpha::AlphaArray incoming;
    for (auto _ : state) {
        const bool ok = vexlo::files::ReadIconFileToImage(vexlo::files::Bytes(file), 0, image, mask, incoming);
        benchmark::DoNotOptimize(ok);
        benchmark::DoNotOptimize(image.Data());
    }
    if (image.Width() != 32) state.SkipWithError("the icon did not decode");
    state.SetItemsProcessed(state.iterations());
    state.SetLabel(std::to_string(bits) + " bits");
}

BENCHMARK(BM_DecodeIcon32)->Arg(1)->Arg(4)->Arg(8)->Arg(24)->Arg(32)->Unit(benchmark::kMicrosecond);

}  // namespace
