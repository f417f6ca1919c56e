#include "cli/image_report.h"

#include "cli/cli_support.h"

namespace vexlo::cli {

std::string EntryLine(const IconDirectory& dir, std::size_t i, const EntryImage& image) {
    const IconEntry& e = dir.Entries[i];
    std::string line = std::to_string(i) + " " + std::to_string(e.Width) + "x" + std::to_string(e.Height) + " " +
                       std::to_string(image.Bits) + " " + std::to_string(image.Colors) + " " +
                       std::to_string(e.BytesInRes) + " " + std::to_string(e.ImageOffset) + " ok";
    if (image.Png) line += " png";
    if (dir.IsCursor()) line += " hotspot " + std::to_string(e.Planes) + "," + std::to_string(e.BitCount);
    return line + "\n";
}

std::string EntryJson(int frame, const IconDirectory& dir, std::size_t i, const EntryImage& image) {
    const IconEntry& e = dir.Entries[i];
    std::string out = "{";
    const auto field = [&out](const char* key, const std::string& value) {
        if (out.size() > 1) out += ',';
        out += '"';
        out += key;
        out += "\":";
        out += value;
    };
    using std::to_string;
    field("frame", to_string(frame));
    field("index", to_string(i));
    field("width", to_string(e.Width));
    field("height", to_string(e.Height));
    field("bits", to_string(image.Bits));
    field("colors", to_string(image.Colors));
    field("bytes", to_string(e.BytesInRes));
    field("offset", to_string(e.ImageOffset));
    field("png", image.Png ? "true" : "false");
    std::string hotspot = "null";
    if (dir.IsCursor()) {
        hotspot = "[";
        hotspot += to_string(e.Planes);
        hotspot += ',';
        hotspot += to_string(e.BitCount);
        hotspot += ']';
    }
    field("hotspot", hotspot);
    out += '}';
    return out;
}

std::string JsonString(const std::string& text) {
    static const char* const kHex = "0123456789abcdef";
    std::string out = "\"";
    for (const char ch : text) {
        const auto c = static_cast<unsigned char>(ch);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += ch;
        } else if (c < 0x20 || c >= 0x7F) {
            out += "\\u00";
            out += kHex[c >> 4];
            out += kHex[c & 15];
        } else {
            out += ch;
        }
    }
    return out + "\"";
}

std::string JsonString(const std::optional<std::string>& text) { return text ? JsonString(*text) : "null"; }

bool ReadWholeIconFile(const std::string& path, files::Bytes bytes, IconDirectory& dir, std::string& err,
                       const std::function<void(std::size_t, const EntryImage&)>& each) {
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

}  // namespace vexlo::cli
