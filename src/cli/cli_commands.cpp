#include "cli/cli_commands.h"

#include <charconv>
#include <ostream>

#include "cli/picture_io.h"
#include "core/files/byte_reader.h"
#include "core/files/ico_format.h"
#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"
#include "core/files/ico_write.h"
#include "core/files/cursor_file.h"
#include "core/files/icon_set.h"
#include "core/files/multi_icon_list.h"
#include <filesystem>

namespace vexlo::cli {

namespace {

constexpr const char* kUsage =
    "usage: vexlo-cli COMMAND [ARGS]\n"
    "\n"
    "Inspect and convert icons the way the Vexlo editor reads and writes them.\n"
    "\n"
    "commands:\n"
    "  probe FILE                     the editor's judgement of an icon file\n"
    "  info FILE                      one line per image of an icon file\n"
    "  export FILE INDEX OUT.png      one image of an icon file as an RGBA PNG\n"
    "  convert IN OUT.ico [--force256]\n"
    "                                 a 16x16, 32x32 or 48x48 PNG, BMP or ICO picture\n"
    "                                 saved as the editor saves it\n"
    "  split FILE OUTDIR              every listed image of a multi-icon file as a\n"
    "                                 single-icon file, bytes unchanged\n"
    "\n"
    "'vexlo-cli COMMAND --help' tells more of one command.\n";

constexpr const char* kProbeHelp =
    "usage: vexlo-cli probe FILE\n"
    "Prints the six fields of the editor's judgement, joined by '/':\n"
    "kind (0 no icon file, 1 one image, 2 several), usable images, chosen index, its width,\n"
    "its colors (2, 16, 256, -1 for true color) and its bits per pixel, e.g. 2/3/2/32/256/8.\n"
    "The chosen image is the one the editor opens without asking.\n";

constexpr const char* kInfoHelp =
    "usage: vexlo-cli info FILE\n"
    "One line per directory entry: index, width x height, bits per pixel, colors (-1 for\n"
    "true color), bytes in resource, offset, and 'ok' if the image decodes or 'bad'.\n"
    "For a cursor file the line ends with 'hotspot X,Y'.\n";

constexpr const char* kExportHelp =
    "usage: vexlo-cli export FILE INDEX OUT.png\n"
    "Decodes image INDEX (from 0) as the editor does and writes an RGBA PNG: the color of\n"
    "the image plane, alpha 0 where the mask is set, and for 32-bit images the file's alpha.\n"
    "A cursor file has one image, INDEX 0.\n";

constexpr const char* kSplitHelp =
    "usage: vexlo-cli split FILE OUTDIR\n"
    "Writes every 16x16, 32x32 or 48x48 image of FILE as a single-icon file in OUTDIR,\n"
    "named as the editor's Split Save names them (stem_size_colors.ico, 'bpp' for true\n"
    "color), with the image's bytes copied unchanged. Prints each file written.\n";

constexpr const char* kConvertHelp =
    "usage: vexlo-cli convert IN OUT.ico [--force256]\n"
    "Reads a PNG, BMP or ICO picture of 16x16, 32x32 or 48x48 (a pixel with alpha below 128\n"
    "is transparent) and writes a single-icon file whose depth follows the pixels, as a save\n"
    "in the editor does. --force256 writes 2- and 16-color pictures at 256 colors.\n";

bool WantsHelp(const std::vector<std::string>& args) {
    for (const std::string& a : args)
        if (a == "--help" || a == "-h") return true;
    return false;
}

int Fail(std::ostream& err, const std::string& message) {
    err << "vexlo-cli: " << message << "\n";
    return 1;
}

bool ReadFile(const std::string& path, std::vector<std::uint8_t>& data, std::ostream& err) {
    switch (files::ReadWholeFile(path, data)) {
        case files::FileReadStatus::Ok: return true;
        case files::FileReadStatus::NotFound: Fail(err, path + ": no such file"); break;
        case files::FileReadStatus::NotRegular: Fail(err, path + ": not a regular file"); break;
        case files::FileReadStatus::TooLarge: Fail(err, path + ": file too large"); break;
        case files::FileReadStatus::ReadError: Fail(err, path + ": cannot read"); break;
    }
    return false;
}

int Probe(const std::vector<std::string>& a, std::ostream& out, std::ostream& err) {
    if (a.size() != 1) return Fail(err, "probe takes one FILE (see 'vexlo-cli probe --help')");
    std::vector<std::uint8_t> data;
    if (!ReadFile(a[0], data, err)) return 1;
    out << files::ProbeIconFile(files::Bytes(data.data(), data.size()), true).Text() << "\n";
    return 0;
}

int Info(const std::vector<std::string>& a, std::ostream& out, std::ostream& err) {
    if (a.size() != 1) return Fail(err, "info takes one FILE (see 'vexlo-cli info --help')");
    std::vector<std::uint8_t> data;
    if (!ReadFile(a[0], data, err)) return 1;
    const files::Bytes bytes(data.data(), data.size());
    const files::CursorProbe cursor = files::ProbeCursorFile(bytes);
    if (cursor.Valid) {
        files::CursorImage image;
        const bool decodes = files::ReadCursorFile(bytes, image);
        files::IconFileHeader header;
        std::vector<files::IconDirEntry> entries;
        files::ReadIconDirectory(bytes, header, entries);
        const files::IconDirEntry e = entries.empty() ? files::IconDirEntry{} : entries[0];
        out << 0 << " " << int{e.Width} << "x" << int{e.Height} << " " << cursor.BitCount << " "
            << cursor.Colors << " " << e.BytesInRes << " " << e.ImageOffset << " "
            << (decodes ? "ok" : "bad") << " hotspot " << cursor.HotspotX << "," << cursor.HotspotY << "\n";
        return 0;
    }
    files::IconFileHeader header;
    std::vector<files::IconDirEntry> entries;
    if (!files::ReadIconDirectory(bytes, header, entries))
        return Fail(err, a[0] + ": not an icon file");
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const files::IconDirEntry& e = entries[i];
        surface::Surface image, mask;
        alpha::AlphaArray alpha;
        const bool decodes = files::ReadIconFileToImage(bytes, static_cast<int>(i), image, mask, alpha);
        out << i << " " << int{e.Width} << "x" << int{e.Height} << " " << e.BitCount << " "
            << files::ColorCountOfEntry(e) << " " << e.BytesInRes << " " << e.ImageOffset << " "
            << (decodes ? "ok" : "bad") << "\n";
    }
    return 0;
}

int Export(const std::vector<std::string>& a, std::ostream& err) {
    if (a.size() != 3) return Fail(err, "export takes FILE INDEX OUT.png (see 'vexlo-cli export --help')");
    int index = -1;
    const auto [end, ec] = std::from_chars(a[1].data(), a[1].data() + a[1].size(), index);
    if (ec != std::errc() || end != a[1].data() + a[1].size() || index < 0)
        return Fail(err, "INDEX must be a whole number from 0: " + a[1]);
    std::vector<std::uint8_t> data;
    if (!ReadFile(a[0], data, err)) return 1;
    const files::Bytes bytes(data.data(), data.size());
    std::string error;
    if (files::ProbeCursorFile(bytes).Valid) {
        if (index != 0) return Fail(err, a[0] + " is a cursor of one image; no image " + a[1]);
        files::CursorImage cursor;
        if (!files::ReadCursorFile(bytes, cursor)) return Fail(err, a[0] + ": the cursor cannot be decoded");
        IconPlanes icon;
        icon.Image = surface::Surface(32, 32, 0);
        icon.Mask = surface::Surface(32, 32, 0);
        files::DrawCursorFrame(cursor, icon.Image, 0, 0, files::CursorDraw::Image);
        files::DrawCursorFrame(cursor, icon.Mask, 0, 0, files::CursorDraw::Mask);
        return WritePng(icon, a[2], error) ? 0 : Fail(err, error);
    }
    files::IconFileHeader header;
    std::vector<files::IconDirEntry> entries;
    if (!files::ReadIconDirectory(bytes, header, entries))
        return Fail(err, a[0] + ": not an icon file");
    if (static_cast<std::size_t>(index) >= entries.size())
        return Fail(err, a[0] + " has " + std::to_string(entries.size()) + " image(s); no image " + a[1]);
    IconPlanes icon;
    if (!files::ReadIconFileToImage(bytes, index, icon.Image, icon.Mask, icon.Alpha))
        return Fail(err, a[0] + ": image " + a[1] + " cannot be decoded");
    icon.HasAlpha = entries[static_cast<std::size_t>(index)].BitCount == 32 && !icon.Alpha.IsSingle();
    return WritePng(icon, a[2], error) ? 0 : Fail(err, error);
}

int Convert(const std::vector<std::string>& a, std::ostream& err) {
    std::vector<std::string> paths;
    bool force256 = false;
    for (const std::string& s : a) {
        if (s == "--force256")
            force256 = true;
        else if (!s.empty() && s[0] == '-')
            return Fail(err, "unknown option " + s);
        else
            paths.push_back(s);
    }
    if (paths.size() != 2) return Fail(err, "convert takes IN OUT.ico (see 'vexlo-cli convert --help')");
    IconPlanes icon;
    std::string error;
    if (!ReadPicture(paths[0], icon, error)) return Fail(err, error);
    files::IconWriteOptions options;
    options.Force256 = force256;
    // A 32-bit icon with its alpha values stays a true-color icon, as a slot loaded from it.
    options.KeepTrueColor = icon.HasAlpha;
    options.Alpha = icon.HasAlpha;
    options.AlphaValues = icon.HasAlpha ? &icon.Alpha : nullptr;
    if (!files::WriteIconFile(icon.Image, icon.Mask, paths[1], options, &error))
        return Fail(err, paths[1] + ": " + (error.empty() ? "cannot write" : error));
    return 0;
}

int Split(const std::vector<std::string>& a, std::ostream& out, std::ostream& err) {
    if (a.size() != 2) return Fail(err, "split takes FILE OUTDIR (see 'vexlo-cli split --help')");
    std::error_code ec;
    if (!std::filesystem::is_directory(a[1], ec)) return Fail(err, a[1] + ": not a folder");
    files::IconSet set;
    if (files::ReadIconSet(a[0], set) < 1) return Fail(err, a[0] + ": not an icon file");
    const files::MultiIconList list = files::BuildMultiIconList(set);
    if (list.Empty()) return Fail(err, a[0] + ": no image of 16x16, 32x32 or 48x48");
    const std::vector<std::string> paths = files::SplitSavePaths(files::SplitSaveStem(a[1], a[0]), list);
    for (int i = 0; i < list.Count(); ++i) {
        const std::string& path = paths[static_cast<std::size_t>(i)];
        if (!files::WriteSingleIcon(set, list.Items[static_cast<std::size_t>(i)].Index, path))
            return Fail(err, path + ": cannot write");
        out << path << "\n";
    }
    return 0;
}

}  // namespace

int RunCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    if (args.empty()) {
        err << kUsage;
        return 1;
    }
    const std::string& command = args[0];
    const std::vector<std::string> rest(args.begin() + 1, args.end());
    if (command == "--help" || command == "-h" || command == "help") {
        out << kUsage;
        return 0;
    }
    struct Entry {
        const char* name;
        const char* help;
    };
    static const Entry kCommands[] = {{"probe", kProbeHelp}, {"info", kInfoHelp},
                                      {"export", kExportHelp}, {"convert", kConvertHelp},
                                      {"split", kSplitHelp}};
    for (const Entry& c : kCommands) {
        if (command != c.name) continue;
        if (WantsHelp(rest)) {
            out << c.help;
            return 0;
        }
        if (command == "probe") return Probe(rest, out, err);
        if (command == "info") return Info(rest, out, err);
        if (command == "export") return Export(rest, err);
        if (command == "split") return Split(rest, out, err);
        return Convert(rest, err);
    }
    return Fail(err, "unknown command '" + command + "' (see 'vexlo-cli --help')");
}

}  // namespace vexlo::cli
