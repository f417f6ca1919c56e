#include "cli/picture_io.h"

#include <cstdint>
#include <vector>

#include "cli/bmp_read.h"
#include "cli/png_io.h"
#include "core/files/byte_reader.h"
#include "core/files/cursor_file.h"
#include "core/files/ico_format.h"
#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"

namespace vexlo::cli {

namespace {

bool IsIconPictureSize(int w, int h, std::string& why) {
    if (w == h && files::IsIconSide(w)) return true;
    why = "the picture is " + std::to_string(w) + "x" + std::to_string(h) + ", not 16x16, 32x32 or 48x48";
    return false;
}

bool ReadIco(files::Bytes data, const std::string& path, IconPlanes& out, std::string& error) {
    const files::ProbeAnswer probe = files::ProbeIconFile(data, true);
    if (probe.Kind == 0 || probe.Usable == 0) {
        error = path + ": not an icon file of 16x16, 32x32 or 48x48";
        return false;
    }
    out.Alpha.SetSingle();
    if (!files::ReadIconFileToImage(data, probe.Index, out.Image, out.Mask, out.Alpha)) {
        error = path + ": cannot decode image " + std::to_string(probe.Index);
        return false;
    }
    out.HasAlpha = probe.BitCount == 32 && !out.Alpha.IsSingle();
    if (!out.HasAlpha) out.Alpha.SetSingle();
    return true;
}

// A still cursor of 32x32 as the editor opens it (a cursor keeps no alpha values).
bool ReadCur(files::Bytes data, const std::string& path, IconPlanes& out, std::string& error) {
    files::CursorImage cursor;
    if (!files::ReadCursorFile(data, cursor)) {
        error = path + ": not a cursor file of one 32x32 image with its hotspot inside";
        return false;
    }
    alpha::AlphaArray unused;
    files::PutDecodedIcon(std::move(cursor.Planes), out.Image, out.Mask, unused);
    out.Alpha.SetSingle();
    out.HasAlpha = false;
    return true;
}

}  // namespace

bool ReadPicture(const std::string& path, IconPlanes& out, std::string& error) {
    std::vector<std::uint8_t> data;
    if (files::ReadWholeFile(path, data) != files::FileReadStatus::Ok) {
        error = path + ": cannot read the file";
        return false;
    }
    const files::Bytes bytes(data.data(), data.size());
    if (bytes.size() >= 4 && bytes[0] == 0 && bytes[1] == 0 && bytes[2] == 1 && bytes[3] == 0)
        return ReadIco(bytes, path, out, error);
    if (bytes.size() >= 4 && bytes[0] == 0 && bytes[1] == 0 && bytes[2] == 2 && bytes[3] == 0)
        return ReadCur(bytes, path, out, error);
    RgbaImage picture;
    std::string why;
    bool read = false;
    if (IsPng(bytes))
        read = ReadPng(bytes, IsIconPictureSize, picture, nullptr, why);
    else if (bytes.size() >= 2 && bytes[0] == 'B' && bytes[1] == 'M')
        read = ReadBmp(bytes, IsIconPictureSize, picture, why);
    else
        why = "not a PNG, BMP, ICO or CUR picture";
    if (!read) {
        error = path + ": " + why;
        return false;
    }
    const int side = picture.Width;
    out.Image = surface::Surface(side, side, 0xFFFFFF);
    out.Mask = surface::Surface(side, side, 0xFFFFFF);
    out.Alpha.SetSingle();
    out.HasAlpha = false;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const std::uint8_t* p = picture.At(x, y);
            const bool transparent = p[3] < 128;
            out.Image.SetPixelV(x, y, transparent ? 0 : surface::Rgb(p[0], p[1], p[2]));
            out.Mask.SetPixelV(x, y, transparent ? 0xFFFFFF : 0);
        }
    }
    return true;
}

}  // namespace vexlo::cli
