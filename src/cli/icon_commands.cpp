// info, export and split: the commands that read what each image of a file really holds.
#include <charconv>
#include <filesystem>
#include <functional>

#include "cli/cli_support.h"
#include "cli/icon_entries.h"
#include "cli/png_io.h"
#include "core/files/icon_set.h"
#include "core/files/multi_icon_list.h"

namespace vexlo::cli {

namespace {

// The file's header and directory, and every entry decoded, one at a time (no more than one
// image's pixels are held, however many entries the directory names); each is handed to
// each, if given. The first entry that fails refuses the file.
bool ReadWholeIconFile(const std::string& path, files::Bytes bytes, IconDirectory& dir, std::string& err,
                       const std::function<void(std::size_t, const EntryImage&)>& each = {}) {
    std::string why;
    if (!ReadIconDirectory(bytes, dir, why)) {
        Fail(err, path + ": " + why);
        return false;
    }
    for (std::size_t i = 0; i < dir.Entries.size(); ++i) {
        EntryImage image;
        if (!DecodeIconEntry(bytes, dir, i, image, why)) {
            Fail(err, path + ": image " + std::to_string(i) + ": " + why);
            return false;
        }
        if (each) each(i, image);
    }
    return true;
}

}  // namespace

int Info(const std::vector<std::string>& a, std::string& out, std::string& err) {
    if (a.size() != 1) return Fail(err, "info takes one FILE (see 'vexlo-cli info --help')");
    std::vector<std::uint8_t> data;
    if (!ReadInputFile(a[0], data, err)) return 1;
    IconDirectory dir;
    std::string lines;  // printed only when every image reads
    const auto line = [&dir, &lines](std::size_t i, const EntryImage& image) {
        const IconEntry& e = dir.Entries[i];
        lines += std::to_string(i) + " " + std::to_string(e.Width) + "x" + std::to_string(e.Height) + " " +
                 std::to_string(image.Bits) + " " + std::to_string(image.Colors) + " " +
                 std::to_string(e.BytesInRes) + " " + std::to_string(e.ImageOffset) + " ok";
        if (image.Png) lines += " png";
        if (dir.IsCursor()) lines += " hotspot " + std::to_string(e.Planes) + "," + std::to_string(e.BitCount);
        lines += "\n";
    };
    if (!ReadWholeIconFile(a[0], files::Bytes(data.data(), data.size()), dir, err, line)) return 1;
    out += lines;
    return 0;
}

int Export(const std::vector<std::string>& a, std::string& err) {
    if (a.size() != 3) return Fail(err, "export takes FILE INDEX OUT.png (see 'vexlo-cli export --help')");
    std::size_t index = 0;
    const auto [end, ec] = std::from_chars(a[1].data(), a[1].data() + a[1].size(), index);
    if (ec != std::errc() || end != a[1].data() + a[1].size())
        return Fail(err, "INDEX must be a whole number from 0: " + a[1]);
    std::vector<std::uint8_t> data;
    if (!ReadInputFile(a[0], data, err)) return 1;
    const files::Bytes bytes(data.data(), data.size());
    IconDirectory dir;
    std::string why;
    if (!ReadIconDirectory(bytes, dir, why)) return Fail(err, a[0] + ": " + why);
    if (index >= dir.Entries.size())
        return Fail(err, a[0] + " has " + std::to_string(dir.Entries.size()) + " image(s); no image " + a[1]);
    EntryImage image;
    if (!DecodeIconEntry(bytes, dir, index, image, why))
        return Fail(err, a[0] + ": image " + a[1] + ": " + why);
    return WritePngFile(image.Pixels, a[2], why) ? 0 : Fail(err, why);
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
