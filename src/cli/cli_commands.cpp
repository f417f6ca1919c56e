#include "cli/cli_commands.h"

#include "cli/cli_support.h"
#include "cli/picture_io.h"
#include "core/files/byte_reader.h"
#include "core/files/ico_probe.h"
#include "core/files/ico_write.h"

namespace vexlo::cli {

namespace {

constexpr const char* kUsage =
    "usage: vexlo-cli COMMAND [ARGS]\n"
    "\n"
    "Inspect and convert icons. 'probe' judges a file as the Vexlo editor does; 'info',\n"
    "'export' and 'split' read what each image of an icon, cursor or animated cursor file\n"
    "really holds and refuse a file they cannot read whole; 'convert' and 'ani' save as the\n"
    "editor saves.\n"
    "\n"
    "commands:\n"
    "  probe FILE                     the editor's judgement of an icon file\n"
    "  info FILE [--json]             one line per image of an icon or cursor file; the\n"
    "                                 header, steps and frames of an animated cursor\n"
    "  export FILE INDEX OUT.png [--image I]\n"
    "                                 one image of an icon or cursor file, or of frame\n"
    "                                 INDEX of an animated cursor, as an RGBA PNG\n"
    "  convert IN OUT.ico [--force256]\n"
    "                                 a 16x16, 32x32 or 48x48 PNG, BMP or ICO picture\n"
    "                                 saved as the editor saves it\n"
    "  alpha FILE INDEX               the alpha bytes of a 32-bit image, rows from the top\n"
    "  thumbnail IN OUT.png [SIZE]    the largest image as a PNG of at most SIZE pixels\n"
    "  split FILE OUTDIR              every listed image of a multi-icon file as a\n"
    "                                 single-icon file, bytes unchanged\n"
    "  ani OUT.ani [--jiffies J,...] [--hotspot X,Y] FRAME...\n"
    "                                 an animated cursor of 32x32 pictures, written as\n"
    "                                 the editor writes it\n"
    "  extract FILE OUTDIR [--list]   every icon and cursor group of a DLL, EXE or .res\n"
    "                                 file, or the frames of an animated cursor, as files\n"
    "  search DIR OUTDIR [--recursive] [--max N] [--small]\n"
    "                                 the icons of every EXE file in a folder (tree) as\n"
    "                                 icon files, as the editor's search writes them\n"
    "\n"
    "A refused file or argument gives exit status 1 and one line on stderr.\n"
    "'vexlo-cli COMMAND --help' tells more of one command.\n";

constexpr const char* kProbeHelp =
    "usage: vexlo-cli probe FILE\n"
    "Prints the six fields of the editor's judgement, joined by '/':\n"
    "kind (0 no icon file, 1 one image, 2 several), usable images, chosen index, its width,\n"
    "its colors (2, 16, 256, -1 for true color) and its bits per pixel, e.g. 2/3/2/32/256/8.\n"
    "The chosen image is the one the editor opens without asking. A file that is no icon\n"
    "file answers 0/0/0/0/0/0 with exit status 0.\n";

constexpr const char* kInfoHelp =
    "usage: vexlo-cli info FILE [--json]\n"
    "Reads every image of an icon (ICO) or cursor (CUR) file and prints one line per\n"
    "directory entry: index, width x height, bits per pixel, colors (entries of its color\n"
    "table or palette, -1 for none), bytes in resource, offset and 'ok'; then 'png' for an\n"
    "image stored as PNG, and for a cursor 'hotspot X,Y'. Bits and colors are the image's\n"
    "own (its header or its PNG), not the directory's.\n"
    "Refused, with nothing printed: a file that is not an icon or cursor file, and a file\n"
    "with any image that cannot be read whole: data over the directory or past the end of\n"
    "the file, an image header of an unknown size, planes other than 1, a bit count other\n"
    "than 1, 4, 8, 24 or 32, compression (RLE, bit fields), a width or height other than the\n"
    "directory's, rows cut short, a color index past the table, a broken PNG.\n"
    "An animated cursor (RIFF ACON) prints 'frames=N steps=M rate=R flags=F' (R the header's\n"
    "display rate in jiffies, F its flags), 'title=' and 'artist=' lines (empty without\n"
    "them), one line 'step K frame F jiffies J' per step, with the jiffies as the editor\n"
    "reads them (the first 'rate' tag's entries, else the header's rate; low bytes only,\n"
    "clamped to 1..90), then 'frame F' and the lines of each frame's images as above. The\n"
    "file is refused with the reason when a chunk, count or frame doesn't hold together.\n"
    "--json prints the same as one JSON object, for every file type: kind (ani, ico, cur),\n"
    "frames, steps, rate, flags, title, artist (null when absent; texts as Latin-1),\n"
    "sequence (the frame of each step), jiffies (null for a still file) and images, one\n"
    "object per image with its frame, index, width, height, bits, colors, bytes, offset\n"
    "(within its frame's file), png and hotspot ([x,y], null for an icon).\n";

constexpr const char* kExportHelp =
    "usage: vexlo-cli export FILE INDEX OUT.png [--image I]\n"
    "Decodes image INDEX (from 0) of an icon or cursor file as the file holds it and writes\n"
    "an RGBA PNG of its size. A PNG image gives its own pixels. Any other gives the colors of\n"
    "its color rows with alpha 0 where its mask is set; a 32-bit image gives its own alpha\n"
    "(its mask's when all its alpha bytes are 0; it may have no mask rows). An image that\n"
    "cannot be read whole is refused as 'info' refuses it.\n"
    "For an animated cursor INDEX is a frame (from 0), and the image written is image I of\n"
    "that frame's file, by default the one the editor shows: the 32x32 one, else the nearest\n"
    "size of 16x16 and 48x48 (the larger on a tie), the deepest of one size.\n";

constexpr const char* kAniHelp =
    "usage: vexlo-cli ani OUT.ani [--jiffies J,...] [--hotspot X,Y] FRAME...\n"
    "Builds an animated cursor of 1 to 70 frames, in the order given, each a 32x32 picture:\n"
    "PNG, BMP (a pixel with alpha below 128 is transparent), ICO (the image the editor opens)\n"
    "or CUR. The file is written by the editor's own writer, byte for byte what a save in the\n"
    "editor writes: each frame a cursor at the depth of its colors, every frame with the hot\n"
    "spot X,Y (0 to 31, default 0,0), and the jiffies of each frame in a rate chunk: one value\n"
    "for all frames or one per frame, 1 to 90 (default 30).\n";

constexpr const char* kAlphaHelp =
    "usage: vexlo-cli alpha FILE INDEX\n"
    "Prints the alpha bytes that image INDEX (from 0) of an icon or cursor file stores, as the\n"
    "editor keeps them: one line per row, the top row first, each byte as two hex digits\n"
    "separated by blanks. Only a 32-bit image stores alpha bytes; any other image, a PNG\n"
    "image among them, is refused, as is an image that 'info' cannot read whole.\n";

constexpr const char* kThumbnailHelp =
    "usage: vexlo-cli thumbnail IN OUT.png [SIZE]\n"
    "Writes the picture a file manager shows for an icon, cursor or animated cursor file, or a\n"
    "program file (DLL, EXE) with icons: its largest image (the deepest of one size; of an\n"
    "animated cursor, of the first frame; of a program, of its first icon) as an\n"
    "RGBA PNG that fits SIZE x SIZE pixels (default 128, at most 1024). A smaller image is\n"
    "enlarged by a whole factor, pixel by pixel; a larger one is reduced. Images that cannot\n"
    "be read whole are passed over; a file with none, or one that takes more than two\n"
    "seconds, gives exit status 1.\n";

constexpr const char* kSplitHelp =
    "usage: vexlo-cli split FILE OUTDIR\n"
    "Reads every image of the icon file FILE as 'info' does and refuses the file if one\n"
    "cannot be read. Then writes every 16x16, 32x32 or 48x48 image as a single-icon file in\n"
    "OUTDIR, named as the editor's Split Save names them (stem_size_colors.ico, 'bpp' for\n"
    "true color), with the image's bytes copied unchanged. Prints each file written.\n";

constexpr const char* kConvertHelp =
    "usage: vexlo-cli convert IN OUT.ico [--force256]\n"
    "Reads a picture of 16x16, 32x32 or 48x48, told by its first bytes: a PNG, a BMP (1, 4,\n"
    "8, 24 or 32 bits, uncompressed or 32-bit bit fields; a pixel with alpha below 128 is\n"
    "transparent) or an icon file (the image the editor opens, read as the editor reads it).\n"
    "Writes a single-icon file whose depth follows the pixels, as a save in the editor does.\n"
    "--force256 writes 2- and 16-color pictures at 256 colors.\n";

constexpr const char* kSearchHelp =
    "usage: vexlo-cli search DIR OUTDIR [--recursive] [--max N] [--small]\n"
    "Opens every *.exe file of DIR (the letters in any case) and writes each of its icons\n"
    "as OUTDIR/K_STEM.ico: K counts the icons written from 0, STEM is the file's name\n"
    "without its extension. Each icon is the 32x32 picture the editor takes from the file\n"
    "(--small: the 16x16 one), written at the depth its colors need. --recursive walks the\n"
    "subfolders first, the last by name first, then the folder's own files by name; links\n"
    "back up the tree, unreadable folders and files that are no program files are passed\n"
    "over. The search ends after N icons (--max, 1 to 10000, default 300). On a terminal a\n"
    "progress line shows on stderr; at the end one line tells the files scanned, the icons\n"
    "written and the files skipped. Exit status 1 when an icon could not be written.\n";

constexpr const char* kExtractHelp =
    "usage: vexlo-cli extract FILE OUTDIR [--list]\n"
    "Writes every icon group of a program file (DLL, EXE, ...: PE32 or PE32+, any machine)\n"
    "or a compiled resource file (.res) as OUTDIR/STEM_GROUP.ico, and every cursor group as\n"
    "OUTDIR/STEM_GROUP.cur: STEM is FILE's name without its extension, GROUP the resource's\n"
    "name or number, followed by _LANGUAGE (a number) when the same name occurs in several\n"
    "languages. Each file is the group's directory rewritten with the images' bytes copied\n"
    "unchanged; an image the group names but the file lacks is left out. Groups come in the\n"
    "order of the resource directory (names first, then numbers ascending), icons before\n"
    "cursors. Prints one line per group: 'group GROUP: N images -> PATH'. A plain icon file\n"
    "is one group. An animated cursor (.ani) writes each frame as OUTDIR/STEM_K.ico, K from 1\n"
    "(a cursor frame becomes an icon file of the same images).\n"
    "--list prints the groups (kind and language) and their images (the number the group\n"
    "names them by, width x height, bits per pixel, bytes, 'png', a cursor's hot spot, or\n"
    "'missing') without writing; OUTDIR may then be left out.\n"
    "A file that is not a program, resource, icon or animated cursor file, a program file\n"
    "whose headers are cut short or that has no resources, and a file with no icon or cursor\n"
    "group give exit status 1 and one line on stderr.\n";

bool WantsHelp(const std::vector<std::string>& args) {
    for (const std::string& a : args)
        if (a == "--help" || a == "-h") return true;
    return false;
}

int Probe(const std::vector<std::string>& a, std::string& out, std::string& err) {
    if (a.size() != 1) return Fail(err, "probe takes one FILE (see 'vexlo-cli probe --help')");
    std::vector<std::uint8_t> data;
    if (!ReadInputFile(a[0], data, err)) return 1;
    out += files::ProbeIconFile(files::Bytes(data.data(), data.size()), true).Text() + "\n";
    return 0;
}

int Convert(const std::vector<std::string>& a, std::string& err) {
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

}  // namespace

int Fail(std::string& err, const std::string& message) {
    err += "vexlo-cli: " + message + "\n";
    return 1;
}

bool ReadInputFile(const std::string& path, std::vector<std::uint8_t>& data, std::string& err) {
    switch (files::ReadWholeFile(path, data)) {
        case files::FileReadStatus::Ok: return true;
        case files::FileReadStatus::NotFound: Fail(err, path + ": no such file"); break;
        case files::FileReadStatus::NotRegular: Fail(err, path + ": not a regular file"); break;
        case files::FileReadStatus::TooLarge: Fail(err, path + ": file too large"); break;
        case files::FileReadStatus::ReadError: Fail(err, path + ": cannot read"); break;
    }
    return false;
}

int RunCli(const std::vector<std::string>& args, std::string& out, std::string& err) {
    if (args.empty()) {
        err += kUsage;
        return 1;
    }
    const std::string& command = args[0];
    const std::vector<std::string> rest(args.begin() + 1, args.end());
    if (command == "--help" || command == "-h" || command == "help") {
        out += kUsage;
        return 0;
    }
    struct Entry {
        const char* name;
        const char* help;
    };
    static const Entry kCommands[] = {{"probe", kProbeHelp}, {"info", kInfoHelp},
                                      {"export", kExportHelp}, {"convert", kConvertHelp},
                                      {"split", kSplitHelp}, {"ani", kAniHelp},
                                      {"alpha", kAlphaHelp}, {"thumbnail", kThumbnailHelp},
                                      {"extract", kExtractHelp}, {"search", kSearchHelp}};
    for (const Entry& c : kCommands) {
        if (command != c.name) continue;
        if (WantsHelp(rest)) {
            out += c.help;
            return 0;
        }
        if (command == "probe") return Probe(rest, out, err);
        if (command == "info") return Info(rest, out, err);
        if (command == "export") return Export(rest, err);
        if (command == "split") return Split(rest, out, err);
        if (command == "ani") return AniBuild(rest, err);
        if (command == "alpha") return Alpha(rest, out, err);
        if (command == "thumbnail") return Thumbnail(rest, err);
        if (command == "extract") return Extract(rest, out, err);
        if (command == "search") return Search(rest, out, err);
        return Convert(rest, err);
    }
    return Fail(err, "unknown command '" + command + "' (see 'vexlo-cli --help')");
}

}  // namespace vexlo::cli
