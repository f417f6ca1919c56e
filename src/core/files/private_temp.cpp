#include "core/files/private_temp.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace vexlo::files {

namespace {

std::string WithoutLastSlash(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

// The folder of this run, removed with its contents when the process ends.
class RunFolder {
public:
    RunFolder() = default;
    RunFolder(const RunFolder&) = delete;
    RunFolder& operator=(const RunFolder&) = delete;
    ~RunFolder() { Remove(); }

    const std::string& Get(const std::string& fallbackBase) {
        if (m_path.empty() || !IsPrivateFolder(m_path)) {
            Remove();
            const char* runtime = std::getenv("XDG_RUNTIME_DIR");
            m_path = MakePrivateFolder(runtime ? runtime : "", fallbackBase);
        }
        return m_path;
    }

private:
    void Remove() {
        // Only a folder that is still ours and private; remove_all removes links, never
        // what they name.
        if (!m_path.empty() && IsPrivateFolder(m_path)) {
            std::error_code ec;
            std::filesystem::remove_all(m_path, ec);
        }
        m_path.clear();
    }

    std::string m_path;
};

}  // namespace

bool IsPrivateFolder(const std::string& path) {
    struct stat st {};
    if (path.empty() || ::lstat(path.c_str(), &st) != 0) return false;
    return S_ISDIR(st.st_mode) && st.st_uid == ::geteuid() && (st.st_mode & 077) == 0;
}

std::string MakePrivateFolder(const std::string& runtimeDir, const std::string& fallbackBase) {
    std::string base;
    if (!runtimeDir.empty() && runtimeDir[0] == '/' && IsPrivateFolder(WithoutLastSlash(runtimeDir)))
        base = WithoutLastSlash(runtimeDir);
    else if (!fallbackBase.empty())
        base = WithoutLastSlash(fallbackBase);
    else
        base = "/tmp";
    std::string name = (base == "/" ? std::string() : base) + "/vexlo-XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) return {};
    // mkdtemp makes it 0700 whatever the umask; check what stands there all the same.
    if (!IsPrivateFolder(name)) return {};
    return name;
}

std::string PrivateTempDir(const std::string& fallbackBase) {
    static RunFolder folder;
    return folder.Get(fallbackBase);
}

FileWriteResult WriteNewPrivateFile(const std::string& path, Bytes data) {
    if (path.empty()) return {false, "no file name"};
    if (::unlink(path.c_str()) != 0 && errno != ENOENT)
        return {false, "cannot remove what stands at " + path + ": " + std::strerror(errno)};
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0) return {false, "cannot create " + path + ": " + std::strerror(errno)};
    std::size_t done = 0;
    std::string error;
    while (done < data.size()) {
        const ssize_t n = ::write(fd, data.data() + done, data.size() - done);
        if (n < 0) {
            if (errno == EINTR) continue;
            error = "cannot write " + path + ": " + std::strerror(errno);
            break;
        }
        done += static_cast<std::size_t>(n);
    }
    if (::close(fd) != 0 && error.empty()) error = "cannot close " + path + ": " + std::strerror(errno);
    if (!error.empty()) {
        ::unlink(path.c_str());
        return {false, error};
    }
    return {true, {}};
}

FileReadStatus ReadPrivateFile(const std::string& path, std::vector<std::uint8_t>& out) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        if (errno == ENOENT || errno == ENOTDIR) return FileReadStatus::NotFound;
        return errno == ELOOP ? FileReadStatus::NotRegular : FileReadStatus::ReadError;
    }
    struct stat st {};
    FileReadStatus status = FileReadStatus::NotRegular;
    if (::fstat(fd, &st) == 0 && S_ISREG(st.st_mode) && st.st_uid == ::geteuid())
        status = ReadWholeDescriptor(fd, out);
    ::close(fd);
    return status;
}

}  // namespace vexlo::files
