#pragma once
// BMP files for convert, read by our own code: every offset and size checked against the
// file before it is used.
#include <string>

#include "cli/rgba_image.h"
#include "core/files/byte_reader.h"

namespace vexlo::cli {

// Reads a BMP file: the 14-byte file header ("BM", then the pixels' offset at 10), an info
// header of 40, 52, 56, 108 or 124 bytes, and rows of 1, 4, 8, 24 or 32 bits without
// compression, or of 32 bits in byte-aligned bit fields; bottom-up, or top-down for a
// negative height. A 32-bit picture whose fourth bytes are all 0 is opaque. checkSize sees
// the size before any pixel is sized. False with why.
bool ReadBmp(files::Bytes file, const SizeCheck& checkSize, RgbaImage& out, std::string& why);

}  // namespace vexlo::cli
