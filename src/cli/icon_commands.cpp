// info, export, alpha and split: the commands that read what each image of a file really holds.
#include <charconv>
#include <filesystem>
#include <functional>
#include <optional>

#include "cli/cli_support.h"
#include "cli/icon_entries.h"
#include "cli/image_report.h"
#include "cli/png_io.h"
#include "core/ani/acon_file.h"
#include "core/files/icon_set.h"
#include "core/files/multi_icon_list.h"

namespace vexlo::cli {

namespace {

// The directory of the icon or cursor file at path and its entry index decoded; false after
// telling err why.
bool DecodeEntryOf(const std::string& path, files::Bytes bytes, std::size_t index, EntryImage& image,
                   std::string& err) {
    IconDirectory dir;
    std::string why;
    if (!ReadIconDirectory(bytes, dir, why))
        why = path + ": " + why;
    else if (index >= dir.Entries.size())
        why = path + " has " + std::to_string(dir.Entries.size()) + " image(s); no image " + std::to_string(index);
    else if (!DecodeIconEntry(bytes, dir, index, image, why))
        why = path + ": image " + std::to_string(index) + ": " + why;
    else
        return true;
    Fail(err, why);
    return false;
}

}  // namespace

int Info(const std::vector<std::string>& a, std::string& out, std::string& err) {
    std::vector<std::string> paths;
    bool json = false;
    for (const std::string& s : a) {
        if (s == "--json")
            json = true;
        else if (!s.empty() && s[0] == '-')
            return Fail(err, "unknown option " + s);
        else
            paths.push_back(s);
    }
    if (paths.size() != 1) return Fail(err, "info takes one FILE (see 'vexlo-cli info --help')");
    const std::string& path = paths[0];
    std::vector<std::uint8_t> data;
    if (!ReadInputFile(path, data, err)) return 1;
    const files::Bytes bytes(data.data(), data.size());
    if (ani::IsAconFile(bytes)) return AniInfo(path, bytes, json, out, err);
    IconDirectory dir;
    std::string lines;  // printed only when every image reads
    const auto line = [&dir, &lines, json](std::size_t i, const EntryImage& image) {
        if (json && i) lines += ',';
        lines += json ? EntryJson(0, dir, i, image) : EntryLine(dir, i, image);
    };
    if (!ReadWholeIconFile(path, bytes, dir, err, line)) return 1;
    if (json) {
        // A still file is one frame shown at one step, with no timing, title or artist.
        out += std::string("{\"kind\":") + (dir.IsCursor() ? "\"cur\"" : "\"ico\"") +
               ",\"frames\":1,\"steps\":1,\"rate\":null,\"flags\":null,\"title\":null,\"artist\":null,"
               "\"sequence\":[0],\"jiffies\":[null],\"images\":[" + lines + "]}\n";
    } else {
        out += lines;
    }
    return 0;
}

int Export(const std::vector<std::string>& args, std::string& err) {
    std::vector<std::string> a;
    std::optional<std::string> imageOption;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--image" && i + 1 < args.size())
            imageOption = args[++i];
        else if (!args[i].empty() && args[i][0] == '-')
            return Fail(err, "unknown option " + args[i]);
        else
            a.push_back(args[i]);
    }
    if (a.size() != 3) return Fail(err, "export takes FILE INDEX OUT.png (see 'vexlo-cli export --help')");
    std::size_t index = 0;
    if (!ParseIndex(a[1], index)) return Fail(err, "INDEX must be a whole number from 0: " + a[1]);
    std::vector<std::uint8_t> data;
    if (!ReadInputFile(a[0], data, err)) return 1;
    const files::Bytes bytes(data.data(), data.size());
    if (ani::IsAconFile(bytes)) return AniExport(a[0], bytes, index, imageOption, a[2], err);
    if (imageOption) return Fail(err, "--image is for animated cursors; INDEX names the image of an icon file");
    EntryImage image;
    if (!DecodeEntryOf(a[0], bytes, index, image, err)) return 1;
    std::string why;
    return WritePngFile(image.Pixels, a[2], why) ? 0 : Fail(err, why);
}

int Alpha(const std::vector<std::string>& a, std::string& out, std::string& err) {
    if (a.size() != 2) return Fail(err, "alpha takes FILE INDEX (see 'vexlo-cli alpha --help')");
    std::size_t index = 0;
    if (!ParseIndex(a[1], index)) return Fail(err, "INDEX must be a whole number from 0: " + a[1]);
    std::vector<std::uint8_t> data;
    if (!ReadInputFile(a[0], data, err)) return 1;
    EntryImage image;
    if (!DecodeEntryOf(a[0], files::Bytes(data.data(), data.size()), index, image, err)) return 1;
    const int w = image.Pixels.Width;
    if (image.StoredAlpha.empty())
        return Fail(err, a[0] + ": image " + a[1] + " stores no alpha values (" +
                             (image.Png ? std::string("a PNG") : std::to_string(image.Bits) + " bits per pixel") + ")");
    static const char kHex[] = "0123456789abcdef";
    for (std::size_t i = 0; i < image.StoredAlpha.size(); ++i) {
        const std::uint8_t v = image.StoredAlpha[i];
        if (i % static_cast<std::size_t>(w) != 0) out += ' ';
        out += kHex[v >> 4];
        out += kHex[v & 15];
        if ((i + 1) % static_cast<std::size_t>(w) == 0) out += '\n';
    }
    return 0;
}

bool ParseIndex(const std::string& text, std::size_t& index) {
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), index);
    return ec == std::errc() && end == text.data() + text.size() && !text.empty();
}

int Split(const std::vector<std::string>& a, std::string& out, std::string& err) {
    if (a.size() != 2) return Fail(err, "split takes FILE OUTDIR (see 'vexlo-cli split --help')");
    std::error_code ec;
    if (!std::filesystem::is_directory(a[1], ec)) return Fail(err, a[1] + ": not a folder");
    std::vector<std::uint8_t> data;
    if (!ReadInputFile(a[0], data, err)) return 1;
    const files::Bytes bytes(data.data(), data.size());
    IconDirectory dir;
    if (!ReadWholeIconFile(a[0], bytes, dir, err)) return 1;
    if (dir.IsCursor()) return Fail(err, a[0] + ": a cursor file; split takes icon files");
    files::IconSet set;
    files::IconSetError setError = files::IconSetError::None;
    if (files::ReadIconSet(bytes, set, &setError) < 1) {
        // Every entry decoded, so only images too large together are left for the set to refuse.
        return Fail(err, a[0] + (setError == files::IconSetError::TooLarge ? ": the images together are too large"
                                                                          : ": not an icon file"));
    }
    const files::MultiIconList list = files::BuildMultiIconList(set);
    if (list.Empty()) return Fail(err, a[0] + ": no image of 16x16, 32x32 or 48x48");
    const std::vector<std::string> paths = files::SplitSavePaths(files::SplitSaveStem(a[1], a[0]), list);
    for (int i = 0; i < list.Count(); ++i) {
        const std::string& path = paths[static_cast<std::size_t>(i)];
        if (!files::WriteSingleIcon(set, list.Items[static_cast<std::size_t>(i)].Index, path))
            return Fail(err, path + ": cannot write");
        out += path + "\n";
    }
    return 0;
}

}  // namespace vexlo::cli
