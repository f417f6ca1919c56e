// extract: the icon and cursor groups of a program or resource file written out as icon and
// cursor files (core's IconLibrary), and the frames of an animated cursor as icon files.
#include <filesystem>
#include <map>
#include <set>

#include "cli/cli_support.h"
#include "core/ani/acon_file.h"
#include "core/extract/icon_library.h"
#include "core/files/atomic_file.h"
#include "core/files/ico_format.h"

namespace vexlo::cli {

namespace {

constexpr std::size_t kMaxFileNameBytes = 255;

// Parsed arguments: FILE, OUTDIR (may be empty with --list) and --list.
struct ExtractArgs {
    std::string File, OutDir;
    bool List = false;
};

// A group's name in a file name: the separators and control characters of the name become '_'.
std::string Sanitized(const std::string& text) {
    std::string s = text;
    for (char& c : s)
        if (c == '/' || c == '\\' || static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = '_';
    return s;
}

// Cuts text to at most n bytes without splitting a UTF-8 character.
std::string CutUtf8(const std::string& text, std::size_t n) {
    if (text.size() <= n) return text;
    while (n > 0 && (static_cast<unsigned char>(text[n]) & 0xC0) == 0x80) --n;
    return text.substr(0, n);
}

std::string StemOf(const std::string& path) {
    return std::filesystem::path(path).stem().string();
}

// The file names of the groups: STEM_GROUP[_LANGUAGE].ico or .cur, each used once.
class GroupNames {
public:
    GroupNames(const extract::IconLibrary& library, std::string stem) : m_stem(std::move(stem)) {
        const auto& groups = library.Groups();
        for (std::size_t g = 0; g < groups.size(); ++g)
            m_count[Key(library, static_cast<int>(g))]++;
    }

    // The group's token (the name, with the language when the name has several) and its file name.
    std::string Token(const extract::IconLibrary& library, int g) const {
        const extract::IconGroup& group = library.Groups()[static_cast<std::size_t>(g)];
        std::string token = library.GroupName(g);
        if (m_count.at(Key(library, g)) > 1) token.append("_").append(std::to_string(group.Language));
        return token;
    }

    std::string FileName(const extract::IconLibrary& library, int g) {
        const std::string ext = library.Groups()[static_cast<std::size_t>(g)].Cursor ? ".cur" : ".ico";
        const std::string base = m_stem + "_";
        // Room for the extension and a "_K" that tells apart names that came out alike.
        const std::size_t room = base.size() + 8 < kMaxFileNameBytes ? kMaxFileNameBytes - base.size() - 8 : 1;
        std::string name = base + CutUtf8(Sanitized(Token(library, g)), room) + ext;
        for (int k = 2; !m_used.insert(name).second; ++k)
            name = name.substr(0, name.size() - ext.size()) + "_" + std::to_string(k) + ext;
        return name;
    }

private:
    // Groups of one name and kind (names compared as the platform compares them).
    static std::string Key(const extract::IconLibrary& library, int g) {
        const extract::IconGroup& group = library.Groups()[static_cast<std::size_t>(g)];
        std::string name = library.GroupName(g);
        if (group.Name.IsName)
            for (char& c : name)
                if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
        return std::string(group.Cursor ? "c" : "i") + (group.Name.IsName ? "n" : "#") + name;
    }

    std::string m_stem;
    std::map<std::string, int> m_count;
    std::set<std::string> m_used;
};

bool WriteOut(const std::string& path, files::Bytes bytes, std::string& err) {
    files::AtomicWriteOptions options;
    options.Sync = false;
    const files::FileWriteResult w = files::AtomicWriteFile(path, bytes, options);
    if (!w) Fail(err, path + ": " + w.Error);
    return w.Ok;
}

std::string ImageLine(files::Bytes file, const extract::GroupImage& e, bool cursor) {
    if (!e.Present) return "  image " + std::to_string(e.Id) + ": missing\n";
    const extract::ImageFacts f = extract::ImageFactsOf(file, e, cursor);
    std::string line = "  image " + std::to_string(e.Id) + ": " + std::to_string(f.Width) + "x" +
                       std::to_string(f.Height) + " " + std::to_string(f.BitCount) + " bpp " +
                       std::to_string(e.Size) + " bytes";
    if (f.Png) line += " png";
    if (cursor) line += " hotspot " + std::to_string(e.HotX) + "," + std::to_string(e.HotY);
    return line + "\n";
}

int ExtractGroups(const ExtractArgs& a, std::vector<std::uint8_t> data, std::string& out, std::string& err) {
    extract::IconLibrary library;
    const extract::OpenResult opened = library.OpenBytes(std::move(data));
    if (!opened) return Fail(err, a.File + ": " + opened.Message);
    if (library.Groups().empty()) return Fail(err, a.File + ": " + library.NoIconsMessage());
    GroupNames names(library, StemOf(a.File));
    int written = 0;
    for (int g = 0; g < static_cast<int>(library.Groups().size()); ++g) {
        const extract::IconGroup& group = library.Groups()[static_cast<std::size_t>(g)];
        const std::string head = "group " + names.Token(library, g) + ": " + std::to_string(group.PresentCount()) +
                                 (group.PresentCount() == 1 ? " image" : " images");
        if (a.List) {
            out += head + (group.Cursor ? ", cursor" : ", icon") + ", language " + std::to_string(group.Language) + "\n";
            for (const extract::GroupImage& e : group.Images) out += ImageLine(library.Data(), e, group.Cursor);
            continue;
        }
        const std::vector<std::uint8_t> bytes = library.RebuildGroupFile(g);
        if (bytes.empty()) {
            out += head + ", nothing written\n";
            continue;
        }
        const std::string path = (std::filesystem::path(a.OutDir) / names.FileName(library, g)).string();
        if (!WriteOut(path, files::Bytes(bytes.data(), bytes.size()), err)) return 1;
        out += head + " -> " + path + "\n";
        ++written;
    }
    if (!a.List && written == 0) return Fail(err, a.File + ": " + library.NoIconsMessage());
    return 0;
}

// A frame's file as an icon file: a cursor frame gets the icon header and, in each entry,
// one plane and the bit count of its picture in place of the hot spot. The images stay.
std::vector<std::uint8_t> FrameAsIcon(files::Bytes frame) {
    std::vector<std::uint8_t> b(frame.begin(), frame.end());
    files::IconFileHeader header;
    std::vector<files::IconDirEntry> entries;
    if (!files::ReadIconDirectory(frame, header, entries) || header.Type != 2) return b;
    b[2] = 1;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        extract::GroupImage e;
        e.Present = entries[i].ImageOffset <= frame.size() && entries[i].BytesInRes <= frame.size() - entries[i].ImageOffset;
        e.Offset = e.Present ? entries[i].ImageOffset : 0;
        e.Size = e.Present ? entries[i].BytesInRes : 0;
        const int bits = extract::ImageFactsOf(frame, e, false).BitCount;
        const std::size_t at = files::kIconFileHeaderBytes + files::kIconDirEntryBytes * i;
        b[at + 4] = 1;
        b[at + 5] = 0;
        b[at + 6] = static_cast<std::uint8_t>(bits);
        b[at + 7] = static_cast<std::uint8_t>(bits >> 8);
    }
    return b;
}

int ExtractFrames(const ExtractArgs& a, files::Bytes bytes, std::string& out, std::string& err) {
    ani::AconFile form;
    std::string why;
    if (!ani::ReadAconFile(bytes, form, why)) return Fail(err, a.File + ": " + why);
    const std::string stem = StemOf(a.File);
    for (int f = 0; f < form.FrameCount(); ++f) {
        const files::Bytes frame = form.FrameBytes(bytes, f);
        files::IconFileHeader header;
        std::vector<files::IconDirEntry> entries;
        files::ReadIconDirectory(frame, header, entries);
        const std::string head = "frame " + std::to_string(f + 1) + ": " + std::to_string(entries.size()) +
                                 (entries.size() == 1 ? " image" : " images");
        if (a.List) {
            out += head + "\n";
            continue;
        }
        const std::string path = (std::filesystem::path(a.OutDir) / (stem + "_" + std::to_string(f + 1) + ".ico")).string();
        const std::vector<std::uint8_t> icon = FrameAsIcon(frame);
        if (!WriteOut(path, files::Bytes(icon.data(), icon.size()), err)) return 1;
        out += head + " -> " + path + "\n";
    }
    return 0;
}

bool IsAni(files::Bytes b) {
    return b.size() >= 12 && b[0] == 'R' && b[1] == 'I' && b[2] == 'F' && b[3] == 'F' && b[8] == 'A' &&
           b[9] == 'C' && b[10] == 'O' && b[11] == 'N';
}

}  // namespace

int Extract(const std::vector<std::string>& args, std::string& out, std::string& err) {
    ExtractArgs a;
    std::vector<std::string> paths;
    for (const std::string& s : args) {
        if (s == "--list")
            a.List = true;
        else if (!s.empty() && s[0] == '-')
            return Fail(err, "unknown option " + s);
        else
            paths.push_back(s);
    }
    if (paths.size() != 2 && !(a.List && paths.size() == 1))
        return Fail(err, "extract takes FILE OUTDIR [--list] (see 'vexlo-cli extract --help')");
    a.File = paths[0];
    if (paths.size() == 2) a.OutDir = paths[1];
    std::error_code ec;
    if (!a.List && !std::filesystem::is_directory(a.OutDir, ec)) return Fail(err, a.OutDir + ": not a folder");
    std::vector<std::uint8_t> data;
    switch (files::ReadWholeFile(a.File, data, extract::kMaxLibraryBytes)) {
        case files::FileReadStatus::Ok: break;
        case files::FileReadStatus::NotFound: return Fail(err, a.File + ": no such file");
        case files::FileReadStatus::NotRegular: return Fail(err, a.File + ": not a regular file");
        case files::FileReadStatus::TooLarge: return Fail(err, a.File + ": file too large");
        case files::FileReadStatus::ReadError: return Fail(err, a.File + ": cannot read");
    }
    if (IsAni(files::Bytes(data.data(), data.size())))
        return ExtractFrames(a, files::Bytes(data.data(), data.size()), out, err);
    return ExtractGroups(a, std::move(data), out, err);
}

}  // namespace vexlo::cli
