#pragma once
// What the command files of vexlo-cli share: the one-line failure and the whole-file read.
#include <cstdint>
#include <string>
#include <vector>

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

}  // namespace vexlo::cli
