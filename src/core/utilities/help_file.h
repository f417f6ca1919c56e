#pragma once
// Where the help file is looked for: in the folder "help" beside the program (the build
// tree), then in share/vexlo/help of the prefix the program is installed in.
#include <string>
#include <vector>

namespace vexlo::utilities {

inline constexpr const char* kHelpFileName = "VexloHelp.html";

// The places in the order they are tried, for the program's folder (no trailing '/').
std::vector<std::string> HelpFileCandidates(const std::string& programDir);
// The first of them that is a regular file; empty when none is.
std::string FindHelpFile(const std::string& programDir);
// The message when none is found: the file's name and "missing" with two blanks behind.
std::string HelpMissingMessage();

}  // namespace vexlo::utilities
