#include "core/session/icons_list/list_sources.h"

#include <algorithm>
#include <filesystem>

#include "core/files/atomic_file.h"
#include "core/utilities/file_pattern.h"

namespace vexlo::session {

namespace fs = std::filesystem;

std::vector<std::string> ListFolderFiles(const std::string& folder, const std::string& pattern,
                                         std::error_code& ec) {
    ec.clear();
    std::vector<std::string> names;
    fs::directory_iterator it(folder, fs::directory_options::skip_permission_denied, ec);
    for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
        std::error_code typeError;
        if (!it->is_regular_file(typeError)) continue;
        std::string name = it->path().filename().string();
        if (utilities::MatchFilePattern(pattern, name)) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end(),
              [](const std::string& a, const std::string& b) { return utilities::FileNameLess(a, b); });
    const std::string prefix = !folder.empty() && folder.back() == '/' ? folder : folder + "/";
    for (std::string& name : names) name = prefix + name;
    return names;
}

std::string FileStem(const std::string& path) {
    const auto slash = path.rfind('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    const std::string stem = files::SplitFileSpec(name, 3);
    return stem.empty() ? name : stem;
}

std::string StemLabel(const std::string& path) {
    const std::string stem = FileStem(path);
    std::size_t chars = 0;
    for (std::size_t i = 0; i < stem.size(); ++i) {
        // A character starts at every byte that doesn't continue a UTF-8 sequence.
        if ((static_cast<unsigned char>(stem[i]) & 0xC0) == 0x80) continue;
        if (++chars == 9) return stem.substr(0, i) + "..";
    }
    return stem;
}

std::string NumberLabel(int index) { return std::to_string(index + 1) + "  "; }

std::string ExtractedIconName(const std::string& programDir, const std::string& source, int item) {
    std::string name = programDir;
    if (name.empty() || name.back() != '/') name += '/';
    name += FileStem(source);
    if (item > 0) {
        name += '_';
        name += std::to_string(item);
    } else {
        name += "_Extract";
    }
    return name;
}

}  // namespace vexlo::session
