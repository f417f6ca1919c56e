#include "core/extract/folder_walk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "core/utilities/file_pattern.h"

namespace vexlo::extract {

namespace {

char Folded(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

enum class EntryKind { Other, File, Folder };

// What a directory entry is, a link followed; the directory's own word is taken when it gives
// one, so most entries cost no call.
EntryKind KindOf(int dirFd, const dirent& entry) {
    if (entry.d_type == DT_REG) return EntryKind::File;
    if (entry.d_type == DT_DIR) return EntryKind::Folder;
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return EntryKind::Other;
    struct stat st {};
    if (::fstatat(dirFd, entry.d_name, &st, 0) != 0) return EntryKind::Other;  // e.g. a dangling link
    if (S_ISREG(st.st_mode)) return EntryKind::File;
    if (S_ISDIR(st.st_mode)) return EntryKind::Folder;
    return EntryKind::Other;
}

}  // namespace

bool FolderNameBefore(const std::string& a, const std::string& b) {
    const std::size_t n = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < n; ++i) {
        const char fa = Folded(a[i]), fb = Folded(b[i]);
        if (fa != fb) return static_cast<unsigned char>(fa) < static_cast<unsigned char>(fb);
    }
    if (a.size() != b.size()) return a.size() < b.size();
    return a < b;
}

bool FolderWalk::Start(const std::string& root, const std::string& pattern, bool recursive,
                       std::error_code& ec) {
    m_pattern = pattern;
    m_recursive = recursive;
    m_stack.clear();
    m_seen.clear();
    m_foldersRead = m_foldersPassedOver = 0;
    return Enter(root, ec);
}

bool FolderWalk::Enter(const std::string& path, std::error_code& ec) {
    ec.clear();
    const int fd = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) {
        ec.assign(errno, std::generic_category());
        return false;
    }
    struct stat st {};
    if (::fstat(fd, &st) != 0) {
        ec.assign(errno, std::generic_category());
        ::close(fd);
        return false;
    }
    if (!m_seen.insert({static_cast<unsigned long long>(st.st_dev), static_cast<unsigned long long>(st.st_ino)})
             .second) {
        ::close(fd);
        ec = std::make_error_code(std::errc::too_many_symbolic_link_levels);
        return false;
    }
    DIR* dir = ::fdopendir(fd);
    if (dir == nullptr) {
        ec.assign(errno, std::generic_category());
        ::close(fd);
        return false;
    }
    Level level;
    level.Prefix = !path.empty() && path.back() == '/' ? path : path + "/";
    while (true) {
        errno = 0;
        const dirent* entry = ::readdir(dir);
        if (entry == nullptr) {
            // A read that fails half way keeps what it found: the folder counts as read.
            break;
        }
        const std::string_view name(entry->d_name);
        if (name == "." || name == "..") continue;
        // The pattern is tested first: most entries of a program folder aren't EXE files, and
        // a subfolder's name is looked at only when subfolders are walked.
        const bool wanted = utilities::MatchFilePattern(m_pattern, name);
        if (!wanted && !m_recursive) continue;
        const EntryKind kind = KindOf(::dirfd(dir), *entry);
        if (kind == EntryKind::File && wanted)
            level.Files.emplace_back(name);
        else if (kind == EntryKind::Folder && m_recursive)
            level.Subfolders.emplace_back(name);
    }
    ::closedir(dir);
    std::sort(level.Files.begin(), level.Files.end(), FolderNameBefore);
    std::sort(level.Subfolders.begin(), level.Subfolders.end(), FolderNameBefore);
    m_stack.push_back(std::move(level));
    ++m_foldersRead;
    return true;
}

FolderWalk::Step FolderWalk::Next(std::string& path) {
    while (!m_stack.empty()) {
        Level& top = m_stack.back();
        if (!top.Subfolders.empty()) {
            const std::string sub = top.Prefix + top.Subfolders.back();
            top.Subfolders.pop_back();
            std::error_code ec;
            if (!Enter(sub, ec)) ++m_foldersPassedOver;
            return Step::Folder;
        }
        if (top.NextFile < top.Files.size()) {
            path = top.Prefix + top.Files[top.NextFile++];
            return Step::File;
        }
        m_stack.pop_back();
    }
    return Step::Done;
}

}  // namespace vexlo::extract
