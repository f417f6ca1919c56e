// The Icons List of a folder of 10,000 ICO files (16x16, 32x32 and 48x48 in turn, 256 colors
// and true color), from the folder chosen to the first lot of 48 thumbnails drawn: the folder
// listed, sorted and stored, then 48 files read, decoded, composed and placed, with pending
// events let run after each (a host that does nothing there). BM_FolderFirstLot is the whole
// of ListFromFolder; BM_FolderListingOnly lists the folder alone. The labels' text is drawn by
// the window's platform and is not part of this: the window's own time is measured under Xvfb
// (see the README).
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "core/files/ico_write.h"
#include "core/session/icons_list/list_sources.h"
#include "core/session/session.h"
#include "core/session/session_icons_list.h"

namespace {

using vexlo::surface::Surface;
namespace fs = std::filesystem;

constexpr int kFiles = 10000;

// The folder, made once per run and removed at its end.
class IconFolder {
public:
    IconFolder() : m_dir(fs::temp_directory_path() / ("vexlo_bench_icons_" + std::to_string(::getpid()))) {
        fs::create_directories(m_dir);
        for (int i = 0; i < kFiles; ++i) {
            const int side = i % 3 == 0 ? 16 : i % 3 == 1 ? 32 : 48;
            Surface image(side, side, 0), mask(side, side, 0);
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x) {
                    const bool clear = (x + y + i) % 7 == 0;
                    const int level = i % 2 ? (x * 5 + y) % 200 : x * 5 + y;
                    image.SetPixelV(x, y, clear ? 0 : vexlo::surface::Rgb(level, 255 - level, i % 256));
                    mask.SetPixelV(x, y, clear ? 0xFFFFFF : 0);
                }
            char name[32];
            std::snprintf(name, sizeof name, "icon%05d.ico", i);
            if (!vexlo::files::WriteIconFile(image, mask, (m_dir / name).string(), {})) m_ok = false;
        }
    }
    ~IconFolder() {
        std::error_code ec;
        fs::remove_all(m_dir, ec);
    }
    std::string Path() const { return m_dir.string(); }
    bool Ok() const { return m_ok; }

private:
    fs::path m_dir;
    bool m_ok = true;
};

const IconFolder& Folder() {
    static const IconFolder folder;
    return folder;
}

void BM_FolderFirstLot(benchmark::State& state) {
    const IconFolder& folder = Folder();
    if (!folder.Ok()) {
        state.SkipWithError("cannot write the icons");
        return;
    }
    vexlo::host::NullHost host;
    vexlo::session::Session s(host);
    s.Load(1024, 768);
    s.RunFirstActivation("", nullptr);
    s.ShowFrame(vexlo::session::Frame::IconsList);
    for (auto _ : state) s.Extraction().ListFromFolder(folder.Path());
    const auto& list = s.Extraction().State();
    if (list.Last() != kFiles - 1 || list.LotCount() != 48 || !list.Items()[47].Valid)
        state.SkipWithError("the list is not as made");
}

void BM_FolderListingOnly(benchmark::State& state) {
    const IconFolder& folder = Folder();
    std::size_t n = 0;
    for (auto _ : state) {
        std::error_code ec;
        n = vexlo::session::ListFolderFiles(folder.Path(), "*.ico", ec).size();
    }
    if (n != static_cast<std::size_t>(kFiles)) state.SkipWithError("the listing is short");
}

BENCHMARK(BM_FolderFirstLot)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FolderListingOnly)->Unit(benchmark::kMillisecond);

}  // namespace
