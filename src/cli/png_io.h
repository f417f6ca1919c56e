#pragma once
// PNG in and out through libpng. Samples are taken and written as they stand: no gamma or
// color-space chunk changes a value.
#include <string>

#include "cli/rgba_image.h"
#include "core/files/byte_reader.h"

namespace vexlo::cli {

// True if data starts with the eight bytes of the PNG signature.
bool IsPng(files::Bytes data);

// What the PNG itself says of its pixels.
struct PngFacts {
    int Bits = 0;     // bits per pixel as stored: bit depth times channels
    int Colors = -1;  // entries of the palette, -1 for an image without one
};

// Decodes a whole PNG held in data to 8-bit RGBA (palettes, gray, transparency chunks and
// 16-bit samples expanded or scaled). checkSize sees the size from the header before any
// pixel is sized. Anything libpng refuses (bad CRC of a critical chunk, data cut short, no
// IEND) fails, with libpng's words in why.
bool ReadPng(files::Bytes data, const SizeCheck& checkSize, RgbaImage& out, PngFacts* facts,
             std::string& why);

// Writes image as an 8-bit RGBA PNG file at path. On failure the file is removed and why
// says what failed.
bool WritePngFile(const RgbaImage& image, const std::string& path, std::string& why);

}  // namespace vexlo::cli
