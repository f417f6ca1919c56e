#pragma once
// The commands of vexlo-cli. Each writes its output to out and its one-line errors to err,
// and answers the exit code: 0 done, 1 a bad argument or file.
#include <iosfwd>
#include <string>
#include <vector>

namespace vexlo::cli {

int RunCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace vexlo::cli
