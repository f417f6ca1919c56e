#pragma once
// How info reports the images of a file: one text line or one JSON object per image, the same
// for an icon or cursor file and for each frame of an animated cursor; and the JSON texts.
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "cli/icon_entries.h"

namespace vexlo::cli {

// "0 32x32 4 16 744 22 ok", then " png" for a stored PNG and " hotspot X,Y" for a cursor.
std::string EntryLine(const IconDirectory& dir, std::size_t i, const EntryImage& image);
// {"frame":F,"index":I,"width":..,"height":..,"bits":..,"colors":..,"bytes":..,"offset":..,
//  "png":false,"hotspot":[X,Y]} (hotspot null for an icon).
std::string EntryJson(int frame, const IconDirectory& dir, std::size_t i, const EntryImage& image);

// A JSON string of text: quotes, backslashes and control characters escaped, bytes from 0x80
// taken as Latin-1 (the platform's ANSI text) and written as \u00XX, so the output is ASCII.
std::string JsonString(const std::string& text);
// A JSON string, or null when absent.
std::string JsonString(const std::optional<std::string>& text);

// Reads the header and directory of an icon or cursor file and decodes every entry, one at a
// time, handing each to each (if given). False, after one line in err naming path and why,
// at the first that fails.
bool ReadWholeIconFile(const std::string& path, files::Bytes bytes, IconDirectory& dir, std::string& err,
                       const std::function<void(std::size_t, const EntryImage&)>& each = {});

}  // namespace vexlo::cli
