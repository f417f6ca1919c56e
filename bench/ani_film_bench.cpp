// The animated cursor session with 70 frames (the most it holds): what the film strip costs
// when the selection moves (BM_FilmGoDown70: unmark one cell, mark the next, each compared
// with what it was), when two frames change places (BM_FilmShift70: the whole film rebuilt,
// only the changed cells taking new revisions), and one tick of the animation test
// (BM_TestTick70). Each frame of the film has its own picture.
#include <benchmark/benchmark.h>

#include "core/session/ani_frames/ani_session.h"

namespace {

namespace session = vexlo::session;
using vexlo::surface::Surface;

constexpr int kFrames = 70;

// A session of 70 frames, each a different pattern.
void Fill(session::AniSession& ani) {
    ani.StartNew();
    for (int i = 1; i < kFrames; ++i) ani.Add(false);
    for (int i = 1; i <= kFrames; ++i) {
        Surface image(32, 32, 0xFFFFFF), mask(32, 32, 0);
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x) image.SetPixelV(x, y, vexlo::surface::Rgb(x * 8, y * 8, i * 3));
        ani.StoreAniFrame(i, image, mask);
    }
    ani.RebuildFilm();
}

void BM_FilmGoDown70(benchmark::State& state) {
    session::AniSession ani;
    Fill(ani);
    bool down = false;
    for (auto _ : state) {
        if (!ani.Go(down)) down = !down;
        benchmark::DoNotOptimize(ani.Film().CellRevision(ani.CurrentFrame()));
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_FilmShift70(benchmark::State& state) {
    session::AniSession ani;
    Fill(ani);
    bool up = true;
    for (auto _ : state) {
        if (!ani.Shift(up)) up = !up;
        benchmark::DoNotOptimize(ani.Film().LayoutRevision());
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_TestTick70(benchmark::State& state) {
    session::AniSession ani;
    Fill(ani);
    ani.Test().Toggle();
    for (auto _ : state) benchmark::DoNotOptimize(ani.Test().Tick(ani.Frames()));
    state.SetItemsProcessed(state.iterations());
}

}  // namespace

BENCHMARK(BM_FilmGoDown70)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_FilmShift70)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_TestTick70)->Unit(benchmark::kMicrosecond);
