#pragma once
// The commands of vexlo-cli. Each adds its output to out and its one-line errors to err, and
// answers the exit code: 0 done, 1 a bad argument or file. Plain strings, not streams: the
// program then never sets up the C++ stream library's locales, a good part of its start-up.
#include <string>
#include <vector>

namespace vexlo::cli {

int RunCli(const std::vector<std::string>& args, std::string& out, std::string& err);

}  // namespace vexlo::cli
