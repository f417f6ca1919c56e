// thumbnail: the picture a file manager shows for an icon, cursor or animated cursor file, or
// for a program file (DLL, EXE) with icons. The image chosen is the largest of the
// file (the deepest of one size), of an animated cursor's first frame, or of a program's first
// icon; it is scaled to fit SIZE, by whole pixels when enlarged so that the
// cells of a small icon stay sharp. A file that takes too long is given up.
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>

#include "cli/cli_support.h"
#include "cli/icon_entries.h"
#include "cli/png_io.h"
#include "core/ani/acon_file.h"
#include "core/extract/icon_library.h"

namespace vexlo::cli {

namespace {

constexpr int kDefaultSize = 128;
constexpr int kMaxSize = 1024;
constexpr unsigned kTimeLimitSeconds = 2;

// The largest image, the deepest of one size; images that can't be decoded are passed over.
bool BestImage(files::Bytes bytes, EntryImage& best, std::string& why) {
    IconDirectory dir;
    if (!ReadIconDirectory(bytes, dir, why)) return false;
    bool found = false;
    for (std::size_t i = 0; i < dir.Entries.size(); ++i) {
        EntryImage image;
        std::string skipped;
        if (!DecodeIconEntry(bytes, dir, i, image, skipped)) {
            if (!found) why = "image " + std::to_string(i) + ": " + skipped;
            continue;
        }
        const int area = image.Pixels.Width * image.Pixels.Height;
        const int bestArea = best.Pixels.Width * best.Pixels.Height;
        if (!found || area > bestArea || (area == bestArea && image.Bits > best.Bits)) best = std::move(image);
        found = true;
    }
    return found;
}

// The picture scaled to fit size x size: enlarged by a whole factor, or reduced by sampling.
RgbaImage Fit(const RgbaImage& in, int size) {
    const int longest = in.Width > in.Height ? in.Width : in.Height;
    int w = in.Width, h = in.Height;
    if (longest < size) {
        const int factor = size / longest;
        w *= factor;
        h *= factor;
    } else if (longest > size) {
        w = in.Width * size / longest;
        h = in.Height * size / longest;
        if (w < 1) w = 1;
        if (h < 1) h = 1;
    }
    if (w == in.Width && h == in.Height) return in;
    RgbaImage out;
    out.Reset(w, h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const std::uint8_t* p = in.At(x * in.Width / w, y * in.Height / h);
            std::copy(p, p + 4, out.At(x, y));
        }
    return out;
}

// A program file (DLL, EXE, ...) starts with "MZ".
bool IsProgram(const std::vector<std::uint8_t>& data) { return data.size() >= 2 && data[0] == 'M' && data[1] == 'Z'; }

void GiveUp(int) { _exit(1); }

// The time limit while in scope; the signal's handling is put back after it.
class TimeLimit {
public:
    explicit TimeLimit(unsigned seconds) : m_previous(signal(SIGALRM, GiveUp)) { alarm(seconds); }
    ~TimeLimit() {
        alarm(0);
        signal(SIGALRM, m_previous);
    }
    TimeLimit(const TimeLimit&) = delete;
    TimeLimit& operator=(const TimeLimit&) = delete;

private:
    sighandler_t m_previous;
};

}  // namespace

int Thumbnail(const std::vector<std::string>& a, std::string& err) {
    if (a.size() != 2 && a.size() != 3) return Fail(err, "thumbnail takes IN OUT.png [SIZE] (see 'vexlo-cli thumbnail --help')");
    int size = kDefaultSize;
    if (a.size() == 3) {
        const auto [end, ec] = std::from_chars(a[2].data(), a[2].data() + a[2].size(), size);
        if (ec != std::errc() || end != a[2].data() + a[2].size() || size < 1 || size > kMaxSize)
            return Fail(err, "SIZE must be a whole number from 1 to " + std::to_string(kMaxSize) + ": " + a[2]);
    }
    // A hostile file must never keep a file manager's thumbnailer waiting.
    const TimeLimit limit(kTimeLimitSeconds);
    std::vector<std::uint8_t> data;
    if (!ReadInputFile(a[0], data, err)) return 1;
    files::Bytes bytes(data.data(), data.size());
    std::string why;
    ani::AconFile form;
    if (ani::IsAconFile(bytes)) {
        if (!ani::ReadAconFile(bytes, form, why)) return Fail(err, a[0] + ": " + why);
        if (form.FrameCount() < 1) return Fail(err, a[0] + ": an animated cursor without frames");
        bytes = form.FrameBytes(bytes, 0);
    }
    // A program's first icon, rebuilt as an icon file of its own.
    std::vector<std::uint8_t> firstIcon;
    if (IsProgram(data)) {
        extract::IconLibrary library;
        const extract::OpenResult opened = library.OpenBytes(std::move(data));  // bytes is set anew below
        if (!opened) return Fail(err, a[0] + ": " + opened.Message);
        firstIcon = library.RebuildGroupFile(library.IconGroupIndex(0));
        if (firstIcon.empty()) return Fail(err, a[0] + ": " + library.NoIconsMessage());
        bytes = files::Bytes(firstIcon.data(), firstIcon.size());
    }
    EntryImage image;
    if (!BestImage(bytes, image, why)) return Fail(err, a[0] + ": " + why);
    return WritePngFile(Fit(image.Pixels, size), a[1], why) ? 0 : Fail(err, why);
}

}  // namespace vexlo::cli
