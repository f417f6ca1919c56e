#include "cli/png_io.h"

#include <png.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

namespace vexlo::cli {

namespace {

constexpr std::uint8_t kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
// A bound on either side that libpng itself enforces, behind each caller's own size check.
constexpr png_uint_32 kMaxSide = 1u << 14;

// What libpng's callbacks share with the code that called it.
struct PngState {
    const std::uint8_t* Data = nullptr;
    std::size_t Size = 0;
    std::size_t Position = 0;
    char Message[160] = {};
};

void OnError(png_structp png, png_const_charp message) {
    auto* state = static_cast<PngState*>(png_get_error_ptr(png));
    std::snprintf(state->Message, sizeof state->Message, "%s", message);
    png_longjmp(png, 1);
}

void OnWarning(png_structp, png_const_charp) {}

void OnRead(png_structp png, png_bytep out, std::size_t n) {
    auto* state = static_cast<PngState*>(png_get_io_ptr(png));
    if (n > state->Size - state->Position) png_error(png, "the PNG data ends early");
    std::memcpy(out, state->Data + state->Position, n);
    state->Position += n;
}

// The steps that may fail inside libpng. setjmp returns here a second time when they do, so
// these functions hold nothing with a destructor.
bool ReadHeaderStep(png_structp png, png_infop info) {
    if (setjmp(png_jmpbuf(png))) return false;
    png_read_info(png, info);
    return true;
}

bool ReadRowsStep(png_structp png, png_infop info, png_bytep* rows, png_uint_32 width) {
    if (setjmp(png_jmpbuf(png))) return false;
    const int type = png_get_color_type(png, info);
    png_set_expand(png);
    png_set_scale_16(png);
    if (!(type & PNG_COLOR_MASK_COLOR)) png_set_gray_to_rgb(png);
    if (!(type & PNG_COLOR_MASK_ALPHA) && !png_get_valid(png, info, PNG_INFO_tRNS))
        png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    if (png_get_rowbytes(png, info) != static_cast<std::size_t>(width) * 4)
        png_error(png, "the PNG does not expand to 8-bit RGBA");
    png_read_image(png, rows);
    png_read_end(png, nullptr);
    return true;
}

bool WriteStep(png_structp png, png_infop info, png_bytep* rows, png_uint_32 width, png_uint_32 height) {
    if (setjmp(png_jmpbuf(png))) return false;
    // An icon compresses about as well with a small hash table, and clearing zlib's default
    // one costs more than compressing the icon.
    png_set_compression_mem_level(png, std::uint64_t{width} * height <= 64 * 64 ? 2 : 8);
    png_set_IHDR(png, info, width, height, 8, PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_write_image(png, rows);
    png_write_end(png, nullptr);
    return true;
}

struct ReadGuard {
    png_structp Png = nullptr;
    png_infop Info = nullptr;
    ~ReadGuard() { png_destroy_read_struct(&Png, Info ? &Info : nullptr, nullptr); }
};

struct WriteGuard {
    png_structp Png = nullptr;
    png_infop Info = nullptr;
    ~WriteGuard() { png_destroy_write_struct(&Png, Info ? &Info : nullptr); }
};

}  // namespace

bool IsPng(files::Bytes data) {
    return data.size() >= sizeof kSignature && std::memcmp(data.data(), kSignature, sizeof kSignature) == 0;
}

bool ReadPng(files::Bytes data, const SizeCheck& checkSize, RgbaImage& out, PngFacts* facts,
             std::string& why) {
    if (!IsPng(data)) {
        why = "not a PNG";
        return false;
    }
    PngState state{data.data(), data.size(), 0, {}};
    ReadGuard guard;
    guard.Png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &state, OnError, OnWarning);
    if (guard.Png) guard.Info = png_create_info_struct(guard.Png);
    if (!guard.Info) {
        why = "PNG: out of memory";
        return false;
    }
    png_set_read_fn(guard.Png, &state, OnRead);
    png_set_user_limits(guard.Png, kMaxSide, kMaxSide);
    png_set_chunk_malloc_max(guard.Png, std::size_t{4} << 20);
    if (!ReadHeaderStep(guard.Png, guard.Info)) {
        why = std::string("PNG: ") + state.Message;
        return false;
    }
    const png_uint_32 w = png_get_image_width(guard.Png, guard.Info);
    const png_uint_32 h = png_get_image_height(guard.Png, guard.Info);
    if (facts) {
        facts->Bits = png_get_bit_depth(guard.Png, guard.Info) * png_get_channels(guard.Png, guard.Info);
        png_colorp palette = nullptr;
        int entries = 0;
        facts->Colors = png_get_PLTE(guard.Png, guard.Info, &palette, &entries) ? entries : -1;
        if (png_get_color_type(guard.Png, guard.Info) != PNG_COLOR_TYPE_PALETTE) facts->Colors = -1;
    }
    if (!checkSize(static_cast<int>(w), static_cast<int>(h), why)) return false;
    RgbaImage image;
    image.Reset(static_cast<int>(w), static_cast<int>(h));
    std::vector<png_bytep> rows(h);
    for (png_uint_32 y = 0; y < h; ++y) rows[y] = image.At(0, static_cast<int>(y));
    if (!ReadRowsStep(guard.Png, guard.Info, rows.data(), w)) {
        why = std::string("PNG: ") + state.Message;
        return false;
    }
    out = std::move(image);
    return true;
}

bool WritePngFile(const RgbaImage& image, const std::string& path, std::string& why) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) {
        why = "cannot write " + path + ": " + std::strerror(errno);
        return false;
    }
    PngState state;
    bool ok = false;
    {
        WriteGuard guard;
        guard.Png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &state, OnError, OnWarning);
        if (guard.Png) guard.Info = png_create_info_struct(guard.Png);
        if (!guard.Info) std::snprintf(state.Message, sizeof state.Message, "out of memory");
        if (guard.Info) {
            png_init_io(guard.Png, file);
            std::vector<png_bytep> rows(static_cast<std::size_t>(image.Height));
            for (int y = 0; y < image.Height; ++y)
                rows[static_cast<std::size_t>(y)] = const_cast<png_bytep>(image.At(0, y));
            ok = WriteStep(guard.Png, guard.Info, rows.data(), static_cast<png_uint_32>(image.Width),
                           static_cast<png_uint_32>(image.Height));
        }
    }
    if (std::fclose(file) != 0 && ok) {
        ok = false;
        std::snprintf(state.Message, sizeof state.Message, "%s", std::strerror(errno));
    }
    if (!ok) {
        why = "cannot write " + path + ": " + state.Message;
        std::remove(path.c_str());
    }
    return ok;
}

}  // namespace vexlo::cli
