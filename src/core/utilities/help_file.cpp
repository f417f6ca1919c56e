#include "core/utilities/help_file.h"

#include <filesystem>
#include <system_error>

namespace vexlo::utilities {

std::vector<std::string> HelpFileCandidates(const std::string& programDir) {
    const std::string name = kHelpFileName;
    return {programDir + "/help/" + name, programDir + "/../share/vexlo/help/" + name};
}

std::string FindHelpFile(const std::string& programDir) {
    if (programDir.empty()) return {};
    for (const std::string& path : HelpFileCandidates(programDir)) {
        std::error_code ec;
        if (std::filesystem::is_regular_file(path, ec))
            return std::filesystem::path(path).lexically_normal().string();
    }
    return {};
}

std::string HelpMissingMessage() { return std::string(kHelpFileName) + " missing  "; }

}  // namespace vexlo::utilities
