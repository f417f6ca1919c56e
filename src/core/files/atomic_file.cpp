#include "core/files/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace vexlo::files {

namespace {

std::string ErrnoText(int err) { return std::strerror(err); }

// The folder of a path, without its last "/": "." for a bare name, "/" for a file in the root.
std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    if (slash == 0) return "/";
    return path.substr(0, slash);
}

std::string NameOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// The file that writing to path replaces: a symbolic link's target where it resolves.
std::string ResolveTarget(const std::string& path) {
    struct stat st {};
    if (::lstat(path.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return path;
    std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr), &std::free);
    return resolved ? std::string(resolved.get()) : path;
}

// Creates a new temporary file beside target; answers its descriptor and name, or -1.
int CreateTemp(const std::string& target, std::string& tempPath) {
    static std::atomic<unsigned> counter{0};
    const std::string stem = FolderOf(target) + "/." + NameOf(target) + ".vexlo-";
    for (int attempt = 0; attempt < 100; ++attempt) {
        const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
        tempPath = stem + std::to_string(::getpid()) + "-" + std::to_string(counter++) + "-" +
                   std::to_string(now % 1000000);
        const int fd = ::open(tempPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    errno = EEXIST;
    return -1;
}

bool WriteAll(int fd, Bytes data) {
    std::size_t done = 0;
    while (done < data.size()) {
        const ssize_t n = ::write(fd, data.data() + done, data.size() - done);
        if (n < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        done += static_cast<std::size_t>(n);
    }
    return true;
}

// The platform's read-only attribute: no write permission bit at all (this holds for root
// too), or none that this user has.
bool IsReadOnly(const std::string& path, const struct stat& st) {
    if ((st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) return true;
    return ::access(path.c_str(), W_OK) != 0;
}

// What the writer refuses to replace: a folder, or a file that is read-only. A path where
// nothing stands yet is written.
bool RefusesReplacement(const std::string& path) {
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0) return false;
    return S_ISDIR(st.st_mode) || IsReadOnly(path, st);
}

void SyncFolder(const std::string& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);  // best effort: the rename has happened either way
    ::close(fd);
}

}  // namespace

FileWriteResult AtomicWriteFile(const std::string& path, Bytes data, const AtomicWriteOptions& options) {
    const auto failAt = [&](AtomicWriteStep step) {
        if (options.FailAt != step) return false;
        errno = EIO;
        return true;
    };
    if (path.empty()) return {false, "no file name", ENOENT};
    const std::string target = ResolveTarget(path);
    if (RefusesReplacement(target)) return {false, target + ": the file is read-only or a folder", EACCES};

    struct stat old {};
    const bool replacing = ::stat(target.c_str(), &old) == 0;

    std::string temp;
    const int fd = failAt(AtomicWriteStep::CreateTemp) ? -1 : CreateTemp(target, temp);
    if (fd < 0) {
        const int err = errno;
        return {false, "cannot create a temporary file in " + FolderOf(target) + ": " + ErrnoText(err), err};
    }

    std::string error;
    int number = 0;
    const auto failed = [&](const std::string& what) {
        number = errno;
        error = what + ": " + ErrnoText(number);
    };
    if (replacing && ::fchmod(fd, old.st_mode & 0777) != 0) {
        failed("cannot set the permissions of " + temp);
    } else if (failAt(AtomicWriteStep::Write) || !WriteAll(fd, data)) {
        failed("cannot write " + temp);
    } else if (failAt(AtomicWriteStep::Sync) || (options.Sync && ::fsync(fd) != 0)) {
        failed("cannot flush " + temp);
    }
    if (::close(fd) != 0 && error.empty()) failed("cannot close " + temp);
    if (error.empty() && (failAt(AtomicWriteStep::Rename) || ::rename(temp.c_str(), target.c_str()) != 0))
        failed("cannot replace " + target);
    if (!error.empty()) {
        ::unlink(temp.c_str());
        return {false, error, number};
    }
    if (options.Sync) SyncFolder(FolderOf(target));
    return {true, {}, 0};
}

bool FileExists(const std::string& path) {
    if (path.empty()) return false;
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return false;
    struct stat st {};
    const bool ok = ::fstat(fd, &st) == 0 && !S_ISDIR(st.st_mode);
    ::close(fd);
    return ok;
}

bool IsProtectedFile(const std::string& path) {
    struct stat st {};
    // A path where nothing can be found has no attributes at all: that counts as protected.
    if (path.empty() || ::stat(path.c_str(), &st) != 0) return true;
    if (S_ISDIR(st.st_mode)) return true;           // directory
    if (!S_ISREG(st.st_mode)) return true;          // system: a device, a pipe, a socket
    if (NameOf(path).starts_with('.')) return true;  // hidden
    return IsReadOnly(path, st);
}

std::string SplitFileSpec(const std::string& fileSpec, int part) {
    if (part < 0 || part > 4 || fileSpec.size() > 255 || fileSpec.empty() || fileSpec[0] == '$' || fileSpec[0] == ' ')
        return {};
    if (part == 0) return {};
    const auto slash = fileSpec.rfind('/');
    const std::size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
    if (part == 1) return fileSpec.substr(0, nameStart);
    const std::string name = fileSpec.substr(nameStart);
    if (part == 2) return name;
    // The last "." of the name, not counting one in the last place of the text.
    std::size_t dot = std::string::npos;
    if (name.size() >= 2) {
        const auto found = name.rfind('.', name.size() - 2);
        if (found != std::string::npos) dot = found;
    }
    if (part == 3) return dot == std::string::npos ? name : name.substr(0, dot);
    return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

FileWriteResult CopyFileAtomically(const std::string& source, const std::string& target) {
    std::vector<std::uint8_t> data;
    switch (ReadWholeFile(source, data)) {
        case FileReadStatus::Ok: break;
        case FileReadStatus::NotFound: return {false, "cannot read " + source, ENOENT};
        case FileReadStatus::NotRegular: return {false, "not a file: " + source, EINVAL};
        case FileReadStatus::TooLarge: return {false, "too large: " + source, EFBIG};
        case FileReadStatus::ReadError: return {false, "cannot read " + source, EIO};
    }
    return AtomicWriteFile(target, Bytes(data.data(), data.size()));
}

}  // namespace vexlo::files
