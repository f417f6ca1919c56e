#include "core/files/byte_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace vexlo::files {

bool ByteReader::Seek(std::uint64_t position) {
    if (m_failed || position > m_data.size()) {
        m_failed = true;
        return false;
    }
    m_position = static_cast<std::size_t>(position);
    return true;
}

bool ByteReader::Skip(std::uint64_t n) {
    if (!Has(n)) {
        m_failed = true;
        return false;
    }
    m_position += static_cast<std::size_t>(n);
    return true;
}

std::uint8_t ByteReader::U8() {
    if (!Has(1)) {
        m_failed = true;
        return 0;
    }
    return m_data[m_position++];
}

std::uint16_t ByteReader::U16() {
    if (!Has(2)) {
        m_failed = true;
        return 0;
    }
    const std::uint16_t v = static_cast<std::uint16_t>(m_data[m_position] | (m_data[m_position + 1] << 8));
    m_position += 2;
    return v;
}

std::uint32_t ByteReader::U32() {
    if (!Has(4)) {
        m_failed = true;
        return 0;
    }
    const std::uint8_t* p = m_data.data() + m_position;
    const std::uint32_t v = static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
                            (static_cast<std::uint32_t>(p[2]) << 16) |
                            (static_cast<std::uint32_t>(p[3]) << 24);
    m_position += 4;
    return v;
}

Bytes ByteReader::Take(std::uint64_t n) {
    if (!Has(n)) {
        m_failed = true;
        return {};
    }
    Bytes out = m_data.subspan(m_position, static_cast<std::size_t>(n));
    m_position += static_cast<std::size_t>(n);
    return out;
}

void PutU8(std::vector<std::uint8_t>& out, std::uint8_t v) { out.push_back(v); }

void PutU16(std::vector<std::uint8_t>& out, std::uint16_t v) {
    out.push_back(static_cast<std::uint8_t>(v & 0xFF));
    out.push_back(static_cast<std::uint8_t>(v >> 8));
}

void PutU32(std::vector<std::uint8_t>& out, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) out.push_back(static_cast<std::uint8_t>((v >> (8 * i)) & 0xFF));
}

namespace {

// Closes the descriptor on every way out.
class Fd {
public:
    explicit Fd(int fd) : m_fd(fd) {}
    Fd(const Fd&) = delete;
    Fd& operator=(const Fd&) = delete;
    ~Fd() {
        if (m_fd >= 0) ::close(m_fd);
    }
    int get() const { return m_fd; }

private:
    int m_fd;
};

}  // namespace

FileReadStatus ReadWholeDescriptor(int fd, std::vector<std::uint8_t>& out, std::size_t maxBytes) {
    struct stat st {};
    if (::fstat(fd, &st) != 0) return FileReadStatus::ReadError;
    if (!S_ISREG(st.st_mode)) return FileReadStatus::NotRegular;
    if (st.st_size < 0 || static_cast<std::uint64_t>(st.st_size) > maxBytes)
        return FileReadStatus::TooLarge;

    // Read up to one byte past the size that fstat told: a file that grows while it is read is
    // refused rather than taken cut; one that shrank is taken as it now stands.
    std::vector<std::uint8_t> data(static_cast<std::size_t>(st.st_size) + 1);
    std::size_t got = 0;
    while (got < data.size()) {
        const ssize_t n = ::read(fd, data.data() + got, data.size() - got);
        if (n < 0) {
            if (errno == EINTR) continue;
            return FileReadStatus::ReadError;
        }
        if (n == 0) break;
        got += static_cast<std::size_t>(n);
    }
    if (got == data.size()) return FileReadStatus::ReadError;
    data.resize(got);
    out = std::move(data);
    return FileReadStatus::Ok;
}

FileReadStatus ReadWholeFile(const std::string& path, std::vector<std::uint8_t>& out,
                             std::size_t maxBytes) {
    Fd fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (fd.get() < 0) return errno == ENOENT || errno == ENOTDIR ? FileReadStatus::NotFound
                                                                  : FileReadStatus::ReadError;
    return ReadWholeDescriptor(fd.get(), out, maxBytes);
}

}  // namespace vexlo::files
