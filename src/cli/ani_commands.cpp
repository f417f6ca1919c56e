// Animated cursors in the cli: info and export of an ANI file (the form walked by core, the
// timings as the editor scans them, each frame's images read by the cli's own entry reader),
// and ani, which builds a file with the editor's own writer.
#include <stdlib.h>

#include <charconv>
#include <filesystem>

#include "cli/cli_support.h"
#include "cli/icon_entries.h"
#include "cli/image_report.h"
#include "cli/picture_io.h"
#include "cli/png_io.h"
#include "core/ani/acon_file.h"
#include "core/ani/ani_save.h"
#include "core/ani/ani_timings.h"
#include "core/ani/frame_image.h"

namespace vexlo::cli {

namespace {

constexpr int kDefaultJiffies = 30;  // the jiffies box of a new session

// A text of the file on one line: control characters shown as '?'.
std::string OneLine(const std::optional<std::string>& text) {
    std::string s = text.value_or("");
    for (char& c : s)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = '?';
    return s;
}

template <typename T>
std::string JsonArray(const std::vector<T>& values) {
    std::string s = "[";
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i) s += ',';
        s += std::to_string(values[i]);
    }
    return s + "]";
}

// A whole number within low..high.
bool ParseNumber(const std::string& text, int low, int high, int& value) {
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    return ec == std::errc() && end == text.data() + text.size() && value >= low && value <= high;
}

// Numbers separated by commas, each within low..high.
bool ParseList(const std::string& text, int low, int high, std::vector<int>& values) {
    values.clear();
    std::size_t start = 0;
    while (true) {
        const std::size_t comma = text.find(',', start);
        int v = 0;
        if (!ParseNumber(text.substr(start, comma - start), low, high, v)) return false;
        values.push_back(v);
        if (comma == std::string::npos) return true;
        start = comma + 1;
    }
}

// A private folder for the frames' temporary files, removed with them at the end, so that
// scripts that run several builds at once never meet.
class PrivateTempDir {
public:
    PrivateTempDir() {
        std::string pattern = (std::filesystem::temp_directory_path() / "vexlo-cli-ani-XXXXXX").string();
        if (::mkdtemp(pattern.data())) m_path = pattern + "/";
    }
    ~PrivateTempDir() {
        std::error_code ec;
        if (!m_path.empty()) std::filesystem::remove_all(m_path, ec);
    }
    PrivateTempDir(const PrivateTempDir&) = delete;
    PrivateTempDir& operator=(const PrivateTempDir&) = delete;
    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};

}  // namespace

int AniInfo(const std::string& path, files::Bytes bytes, bool json, std::string& out, std::string& err) {
    ani::AconFile form;
    std::string why;
    if (!ani::ReadAconFile(bytes, form, why)) return Fail(err, path + ": " + why);
    // The steps are backed by the file's chunks, so rows of them are no larger than the file.
    std::vector<ani::AniFrameRecord> rows(static_cast<std::size_t>(form.StepCount()));
    if (!ani::ScanAniTimings(bytes, rows))
        return Fail(err, path + ": the editor's scan of its timings reads past the end of the file");

    std::string frames, images;
    for (int f = 0; f < form.FrameCount(); ++f) {
        IconDirectory dir;
        frames += "frame " + std::to_string(f) + "\n";
        const auto each = [&](std::size_t i, const EntryImage& image) {
            frames += EntryLine(dir, i, image);
            if (!images.empty()) images += ',';
            images += EntryJson(f, dir, i, image);
        };
        if (!ReadWholeIconFile(path + ": frame " + std::to_string(f), form.FrameBytes(bytes, f), dir, err, each))
            return 1;
    }
    const ani::AniHeader& h = form.Header;
    std::vector<int> sequence, jiffies;
    for (int s = 0; s < form.StepCount(); ++s) {
        sequence.push_back(form.FrameOfStep(s));
        jiffies.push_back(rows[static_cast<std::size_t>(s)].Jiffies);
    }
    if (json) {
        out += "{\"kind\":\"ani\",\"frames\":" + std::to_string(form.FrameCount()) +
               ",\"steps\":" + std::to_string(form.StepCount()) + ",\"rate\":" + std::to_string(h.DisplayRate) +
               ",\"flags\":" + std::to_string(h.Flags) + ",\"title\":" + JsonString(form.Title) +
               ",\"artist\":" + JsonString(form.Artist) + ",\"sequence\":" + JsonArray(sequence) +
               ",\"jiffies\":" + JsonArray(jiffies) + ",\"images\":[" + images + "]}\n";
        return 0;
    }
    out += "frames=" + std::to_string(form.FrameCount()) + " steps=" + std::to_string(form.StepCount()) +
           " rate=" + std::to_string(h.DisplayRate) + " flags=" + std::to_string(h.Flags) + "\n";
    out += "title=" + OneLine(form.Title) + "\nartist=" + OneLine(form.Artist) + "\n";
    for (std::size_t s = 0; s < sequence.size(); ++s)
        out += "step " + std::to_string(s) + " frame " + std::to_string(sequence[s]) + " jiffies " +
               std::to_string(jiffies[s]) + "\n";
    out += frames;
    return 0;
}

int AniExport(const std::string& path, files::Bytes bytes, std::size_t frame, const std::optional<std::string>& image,
              const std::string& outPath, std::string& err) {
    ani::AconFile form;
    std::string why;
    if (!ani::ReadAconFile(bytes, form, why)) return Fail(err, path + ": " + why);
    if (frame >= static_cast<std::size_t>(form.FrameCount()))
        return Fail(err, path + " has " + std::to_string(form.FrameCount()) + " frame(s); no frame " +
                             std::to_string(frame));
    const std::string where = path + ": frame " + std::to_string(frame);
    const files::Bytes data = form.FrameBytes(bytes, static_cast<int>(frame));
    IconDirectory dir;
    if (!ReadIconDirectory(data, dir, why)) return Fail(err, where + ": " + why);
    std::size_t index = 0;
    if (image) {
        if (!ParseIndex(*image, index)) return Fail(err, "--image must be a whole number from 0: " + *image);
        if (index >= dir.Entries.size())
            return Fail(err, where + " has " + std::to_string(dir.Entries.size()) + " image(s); no image " + *image);
    } else {
        const int shown = ani::ChooseFrameImage(data);
        if (shown < 0)
            return Fail(err, where + ": no image the editor shows (16x16, 32x32 or 48x48 at 1, 4, 8, 24 or 32 "
                                     "bits); name one with --image");
        index = static_cast<std::size_t>(shown);
    }
    EntryImage decoded;
    if (!DecodeIconEntry(data, dir, index, decoded, why))
        return Fail(err, where + ": image " + std::to_string(index) + ": " + why);
    return WritePngFile(decoded.Pixels, outPath, why) ? 0 : Fail(err, why);
}

int AniBuild(const std::vector<std::string>& args, std::string& err) {
    std::vector<std::string> paths;
    std::vector<int> jiffies = {kDefaultJiffies};
    int hotX = 0, hotY = 0;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& s = args[i];
        if ((s == "--jiffies" || s == "--hotspot") && i + 1 == args.size()) return Fail(err, s + " needs a value");
        if (s == "--jiffies") {
            if (!ParseList(args[++i], 1, 90, jiffies))
                return Fail(err, "--jiffies takes numbers from 1 to 90, separated by commas: " + args[i]);
        } else if (s == "--hotspot") {
            std::vector<int> xy;
            if (!ParseList(args[++i], 0, 31, xy) || xy.size() != 2)
                return Fail(err, "--hotspot takes X,Y, each from 0 to 31: " + args[i]);
            hotX = xy[0];
            hotY = xy[1];
        } else if (!s.empty() && s[0] == '-') {
            return Fail(err, "unknown option " + s);
        } else {
            paths.push_back(s);
        }
    }
    if (paths.size() < 2) return Fail(err, "ani takes OUT.ani and one FRAME or more (see 'vexlo-cli ani --help')");
    const int n = static_cast<int>(paths.size()) - 1;
    if (n > ani::kAniFrameLimit)
        return Fail(err, std::to_string(n) + " frames; an animated cursor holds at most " +
                             std::to_string(ani::kAniFrameLimit));
    if (jiffies.size() != 1 && jiffies.size() != static_cast<std::size_t>(n))
        return Fail(err, "--jiffies gives " + std::to_string(jiffies.size()) + " values for " + std::to_string(n) +
                             " frames: give one for all or one per frame");

    ani::AniFrameSet set;
    set.ResetPictures(n);
    for (int i = 0; i < n; ++i) {
        const std::string& path = paths[static_cast<std::size_t>(i) + 1];
        IconPlanes planes;
        std::string error;
        if (!ReadPicture(path, planes, error)) return Fail(err, error);
        const int side = planes.Image.Width();
        if (side != ani::kAniFrameSide)
            return Fail(err, path + ": the picture is " + std::to_string(side) + "x" + std::to_string(side) +
                                 "; frames are 32x32");
        // The frame as the editor holds it: drawn over white, and its mask.
        surface::Surface& image = set.AniImages[static_cast<std::size_t>(i) + 1];
        surface::Surface& mask = set.AniMasks[static_cast<std::size_t>(i) + 1];
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) {
                const surface::Color m = planes.Mask.GetPixel(x, y);
                image.SetPixelV(x, y, m ? planes.Image.GetPixel(x, y) ^ 0xFFFFFF : planes.Image.GetPixel(x, y));
                mask.SetPixelV(x, y, m ? 0xFFFFFF : 0);
            }
        const int j = jiffies[jiffies.size() == 1 ? 0 : static_cast<std::size_t>(i)];
        set.AniFrames.push_back({static_cast<std::int16_t>(j), 0, 0, 0});
    }

    const PrivateTempDir temp;
    if (temp.Path().empty()) return Fail(err, "cannot make a temporary folder");
    ani::AniSaveRequest request;
    request.TargetPath = paths[0];
    request.TempDir = temp.Path();
    request.HotX = hotX;
    request.HotY = hotY;
    ani::AniTempFiles temps;
    const ani::AniSaveResult saved = ani::SaveANIFile(set, temps, request);
    ani::RemoveAniTempFiles(temp.Path(), temps);
    if (!saved) {
        std::string message = saved.Message;
        for (std::size_t at; (at = message.find("\r\n")) != std::string::npos;) message.replace(at, 2, ": ");
        return Fail(err, paths[0] + ": " + (message.empty() ? "cannot write" : message));
    }
    return 0;
}

}  // namespace vexlo::cli
