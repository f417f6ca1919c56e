#pragma once
// What the command files of vexlo-cli share: the one-line failure and the whole-file read.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/files/byte_reader.h"

namespace vexlo::cli {

// Adds "vexlo-cli: " and message as one line to err; answers the exit code 1.
int Fail(std::string& err, const std::string& message);

// Reads the whole file at path; false after telling err why (missing, not a regular file,
// too large, unreadable).
bool ReadInputFile(const std::string& path, std::vector<std::uint8_t>& data, std::string& err);

// The commands that read icon and cursor files with the cli's own entry decoder.
int Info(const std::vector<std::string>& args, std::string& out, std::string& err);
int Export(const std::vector<std::string>& args, std::string& err);
int Split(const std::vector<std::string>& args, std::string& out, std::string& err);
int Alpha(const std::vector<std::string>& args, std::string& out, std::string& err);
// The picture a file manager shows for an icon, cursor or animated cursor file.
int Thumbnail(const std::vector<std::string>& args, std::string& err);

// The icon and cursor groups of a program or resource file, or an animated cursor's frames,
// written as files (extract_command.cpp).
int Extract(const std::vector<std::string>& args, std::string& out, std::string& err);
// The icons of every EXE file in a folder tree written as icon files (search_command.cpp).
int Search(const std::vector<std::string>& args, std::string& out, std::string& err);

// Reading an index from 0: false for anything but a whole number.
bool ParseIndex(const std::string& text, std::size_t& index);

// The animated cursor's side of info and export (ani_commands.cpp), and the ani command.
int AniInfo(const std::string& path, files::Bytes bytes, bool json, std::string& out, std::string& err);
int AniExport(const std::string& path, files::Bytes bytes, std::size_t frame, const std::optional<std::string>& image,
              const std::string& outPath, std::string& err);
int AniBuild(const std::vector<std::string>& args, std::string& err);

}  // namespace vexlo::cli
