#include "core/files/ico_write.h"

#include "core/files/atomic_file.h"
#include "core/files/ico_messages.h"

namespace vexlo::files {

int ImageBytes(int n, int w, int h, bool withAlpha) {
    int base = 40;
    int row = 0;
    switch (n) {
        case 2: base = 48; row = (w + 7) / 8; break;
        case 16: base = 104; row = (w + 1) / 2; break;
        case 256: base = 1064; row = w; break;
        default: row = withAlpha ? 4 * w : 3 * w; break;
    }
    row = (row + 3) / 4 * 4;
    return row * h + base + BitRowBytes(w) * w;  // the mask: 64, 128, 384 for 16, 32, 48
}

IconHeaders BuildIconHeaders(const surface::Surface& image, int n, bool withAlpha) {
    const int w = image.Width();
    const int h = image.Height();
    const std::uint16_t bits = n == 2 ? 1 : n == 16 ? 4 : n == 256 ? 8 : (withAlpha ? 32 : 24);
    IconHeaders headers;
    headers.Header = {0, 1, 1};
    IconDirEntry& e = headers.Entry;
    e.Width = static_cast<std::uint8_t>(w);
    e.Height = static_cast<std::uint8_t>(h);
    e.ColorCount = static_cast<std::uint8_t>(n == 2 ? 2 : n == 16 ? 16 : 0);
    e.Reserved = 0;
    e.Planes = 1;
    e.BitCount = bits;
    e.BytesInRes = static_cast<std::uint32_t>(ImageBytes(n, w, h, bits == 32));
    e.ImageOffset = kIconFileHeaderBytes + kIconDirEntryBytes;
    BitmapInfoHeader& b = headers.Info;
    b = BitmapInfoHeader{};
    b.Width = w;
    b.Height = 2 * h;
    b.Planes = 1;
    b.BitCount = bits;
    return headers;
}

int ColorCountToWrite(const surface::Surface& image, const IconWriteOptions& options) {
    const int n = CountColors(image);
    if (options.KeepTrueColor) return kTrueColor;
    if ((n == 2 || n == 16) && options.Force256) return 256;
    return n;
}

WrittenDepth DepthToWrite(const surface::Surface& image, const IconWriteOptions& options) {
    const int n = ColorCountToWrite(image, options);
    switch (n) {
        case 2: return {2, 1};
        case 16: return {16, 4};
        case 256: return {256, 8};
        default: return {kTrueColor, options.Alpha ? 32 : 24};
    }
}

std::vector<std::uint8_t> BuildIconFileBytes(const surface::Surface& image, const surface::Surface& mask,
                                             const IconWriteOptions& options) {
    const int w = image.Width();
    if (!IsIconSide(w) || image.Height() != w || mask.Width() != w || mask.Height() != w) return {};
    const int n = ColorCountToWrite(image, options);
    const IconHeaders headers = BuildIconHeaders(image, n, options.Alpha);

    std::vector<std::uint8_t> out;
    out.reserve(kIconFileHeaderBytes + kIconDirEntryBytes + headers.Entry.BytesInRes);
    AppendIconFileHeader(out, headers.Header);
    AppendIconDirEntry(out, headers.Entry);
    AppendBitmapInfoHeader(out, headers.Info);
    switch (n) {
        case 2:
            AppendColorTable(out, TwoColorTable().data(), 2);
            WriteBitRows(image, out);
            break;
        case 16:
            AppendColorTable(out, SixteenColorTable().data(), 16);
            Write4BitRows(image, out);
            break;
        case 256: {
            const ColorTable256 table = BuildPalette256(image);
            AppendColorTable(out, table.data(), table.size());
            Write8BitRows(image, table, out);
            break;
        }
        default:
            if (!WriteTrueColorRows(image, out, headers.Entry.BitCount == 32, options.AlphaValues)) return {};
            break;
    }
    WriteBitRows(mask, out);
    return out;
}

bool WriteIconFile(const surface::Surface& image, const surface::Surface& mask, const std::string& path,
                   const IconWriteOptions& options, std::string* error) {
    const std::vector<std::uint8_t> bytes = BuildIconFileBytes(image, mask, options);
    if (bytes.empty()) {
        if (error) *error = "the icon can't be written: not 16x16, 32x32 or 48x48, or its alpha values are missing";
        return false;
    }
    const FileWriteResult result = AtomicWriteFile(path, Bytes(bytes));
    if (error) *error = result.Error;
    return result.Ok;
}

std::string SaveFailedMessage(const std::string& path) {
    return IsProtectedFile(path) ? ReadOnlyFileMessage() : std::string(kFailedToSave);
}

}  // namespace vexlo::files
