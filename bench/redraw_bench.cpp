// The Editing Area redraws after every plotted point of a drag: compose the icon from its
// planes, then magnify it with the grid. This times that step at each icon size and grid mode.
#include <benchmark/benchmark.h>

#include "core/session/session.h"

namespace {

using vexlo::host::NullHost;
using vexlo::session::Session;

void BM_PlottedPointRedraw(benchmark::State& state) {
    NullHost host;
    Session session(host);
    session.Load(1024, 768);
    const int entry = static_cast<int>(state.range(0));  // 0: 32x32, 1: 16x16, 2: 48x48
    session.FileNew(entry);
    for (int i = 0; i < static_cast<int>(state.range(1)); ++i) session.ClickGridline(0);
    const int side = session.Icon().Image().Width();
    int k = 0;
    for (auto _ : state) {
        // One plotted point: a painted pixel in both planes, then the redraw.
        const int x = k % side;
        const int y = (k / side) % side;
        session.Icon().Image().SetPixelV(x, y, static_cast<vexlo::surface::Color>(k * 2654435761u) & 0xFFFFFF);
        session.Icon().Mask().SetPixelV(x, y, 0);
        session.ComposeIcon();
        session.MagnifyIcon();
        benchmark::DoNotOptimize(session.View().Disp().Data());
        ++k;
    }
    state.SetLabel(std::to_string(side) + "x" + std::to_string(side));
}

// Arguments: File New entry, then how often the Light grid item is clicked from the default
// (0: light grid stays, 1: no grid).
BENCHMARK(BM_PlottedPointRedraw)->Args({1, 0})->Args({0, 0})->Args({2, 0})->Args({0, 1})
    ->Unit(benchmark::kMicrosecond);

}  // namespace
