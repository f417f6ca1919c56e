#include "core/files/bmp_write.h"

#include <algorithm>
#include <cerrno>

#include "core/files/atomic_file.h"
#include "core/files/byte_reader.h"
#include "core/files/ico_format.h"
#include "core/files/ico_messages.h"

namespace vexlo::files {

std::vector<std::uint8_t> BuildBmpBytes(const surface::Surface& picture) {
    const int w = picture.Width();
    const int h = picture.Height();
    if (w <= 0 || h <= 0) return {};
    const std::int64_t row = BmpRowBytes(w);
    const std::int64_t imageBytes = row * h;
    const std::int64_t fileBytes = kBmpPixelOffset + imageBytes;
    if (fileBytes > 0x7FFFFFFF) return {};

    std::vector<std::uint8_t> out;
    out.reserve(static_cast<std::size_t>(fileBytes));
    PutU8(out, 'B');
    PutU8(out, 'M');
    PutU32(out, static_cast<std::uint32_t>(fileBytes));
    PutU16(out, 0);
    PutU16(out, 0);
    PutU32(out, kBmpPixelOffset);

    BitmapInfoHeader info;
    info.Width = w;
    info.Height = h;
    info.Planes = 1;
    info.BitCount = 24;
    info.SizeImage = static_cast<std::uint32_t>(imageBytes);
    AppendBitmapInfoHeader(out, info);

    const std::size_t padding = static_cast<std::size_t>(row - 3 * std::int64_t{w});
    for (int y = h - 1; y >= 0; --y) {
        const surface::Color* pixels = picture.Row(y);
        for (int x = 0; x < w; ++x) {
            out.push_back(static_cast<std::uint8_t>(surface::BlueOf(pixels[x])));
            out.push_back(static_cast<std::uint8_t>(surface::GreenOf(pixels[x])));
            out.push_back(static_cast<std::uint8_t>(surface::RedOf(pixels[x])));
        }
        out.insert(out.end(), padding, 0);
    }
    return out;
}

FileWriteResult WriteBmpFile(const surface::Surface& picture, const std::string& path) {
    const std::vector<std::uint8_t> bytes = BuildBmpBytes(picture);
    if (bytes.empty()) return {false, "the picture has no pixels to write", EINVAL};
    return AtomicWriteFile(path, Bytes(bytes));
}

bool IsIconSize(const surface::Surface& picture) {
    return IsIconSide(picture.Width()) && picture.Height() == picture.Width();
}

int ImportSide(int w, int h) {
    if (w > 32 || h > 32) return 48;
    if (w > 16 || h > 16) return 32;
    return 16;
}

int ImportPicture(const surface::Surface& picture, surface::Surface& image, surface::Surface& mask) {
    const int t = ImportSide(picture.Width(), picture.Height());
    const int w = std::min(picture.Width(), t);
    const int h = std::min(picture.Height(), t);
    surface::ResizeSurface(image, t, t);
    surface::ResizeSurface(mask, t, t);
    image.Fill(0x000000);
    mask.Fill(0xFFFFFF);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const surface::Color p = picture.GetPixel(x, y);
            if (p == kImportTransparent) continue;
            image.SetPixelV(x, y, p);
            mask.SetPixelV(x, y, 0);
        }
    }
    return t;
}

std::string NotIconSizeQuestion(int w, int h) {
    return "Image size is of " + std::to_string(w) + "x" + std::to_string(h) + kNotIconSizeTail + kCrLf + kCrLf +
           kChangeToSuit;
}

std::string BitmapReminderMessage() { return std::string(kBitmapReminder) + kCrLf + kBitmapReminderHow; }

std::string PictureNotLoadedMessage(const std::string& path) { return FailedToLoadMessage(path); }

}  // namespace vexlo::files
