#include "core/session/icons_list/list_sources.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#include "core/files/atomic_file.h"
#include "core/utilities/file_pattern.h"

namespace vexlo::session {

namespace {

// A name as FileNameLess compares it first: ASCII letters folded to lower case.
std::string FoldedName(const std::string& name) {
    std::string key = name;
    for (char& c : key)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return key;
}

// Whether the entry is a regular file, a link followed, without a call when the directory
// says so itself.
bool IsRegularEntry(int dirFd, const dirent& entry) {
    if (entry.d_type == DT_REG) return true;
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return false;
    struct stat st {};
    return ::fstatat(dirFd, entry.d_name, &st, 0) == 0 && S_ISREG(st.st_mode);
}

}  // namespace

std::vector<std::string> ListFolderFiles(const std::string& folder, const std::string& pattern,
                                         std::error_code& ec) {
    ec.clear();
    // Read with the directory calls themselves: a folder of ten thousand icons is listed in
    // about the time the system takes to hand over its entries.
    struct Named {
        std::string Key;
        std::string Name;
    };
    std::vector<Named> found;
    DIR* dir = ::opendir(folder.c_str());
    if (dir == nullptr) {
        ec.assign(errno, std::generic_category());
        return {};
    }
    while (true) {
        errno = 0;
        const dirent* entry = ::readdir(dir);
        if (entry == nullptr) {
            if (errno != 0) ec.assign(errno, std::generic_category());
            break;
        }
        const std::string_view name(entry->d_name);
        if (name == "." || name == ".." || !utilities::MatchFilePattern(pattern, name)) continue;
        if (!IsRegularEntry(::dirfd(dir), *entry)) continue;
        found.push_back({FoldedName(std::string(name)), std::string(name)});
    }
    ::closedir(dir);
    // The order of FileNameLess: folded bytes, then length, then the bytes as they are.
    std::sort(found.begin(), found.end(), [](const Named& a, const Named& b) {
        return a.Key != b.Key ? a.Key < b.Key : a.Name < b.Name;
    });
    const std::string prefix = !folder.empty() && folder.back() == '/' ? folder : folder + "/";
    std::vector<std::string> paths;
    paths.reserve(found.size());
    for (const Named& n : found) paths.push_back(prefix + n.Name);
    return paths;
}

bool FileThere(const std::string& path) {
    struct stat st {};
    return !path.empty() && ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
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
