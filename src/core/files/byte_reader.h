#pragma once
// A little-endian reader over a span of bytes. Every read checks its bounds here, in one place:
// a read that would pass the end sets the failure, answers 0 and leaves the position where it
// was, and once set the failure stays set, so a decoder may read a whole record and look at
// Ok() once at the end.
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vexlo::files {

using Bytes = std::span<const std::uint8_t>;

class ByteReader {
public:
    explicit ByteReader(Bytes data) : m_data(data) {}

    bool Ok() const { return !m_failed; }
    bool Failed() const { return m_failed; }
    std::size_t Size() const { return m_data.size(); }
    std::size_t Position() const { return m_position; }
    std::size_t Remaining() const { return m_failed ? 0 : m_data.size() - m_position; }
    // True if n more bytes can be read from the position (and nothing has failed).
    bool Has(std::uint64_t n) const { return !m_failed && n <= m_data.size() - m_position; }

    // Moves to an absolute position; a position past the end fails.
    bool Seek(std::uint64_t position);
    bool Skip(std::uint64_t n);

    std::uint8_t U8();
    std::uint16_t U16();
    std::uint32_t U32();
    std::int32_t I32() { return static_cast<std::int32_t>(U32()); }
    // The next n bytes, or an empty span (and the failure) if they are not all there.
    Bytes Take(std::uint64_t n);

    // Sets the failure by hand, e.g. for a value that is in bounds but unusable.
    void Fail() { m_failed = true; }

private:
    Bytes m_data;
    std::size_t m_position = 0;
    bool m_failed = false;
};

// Little-endian writing helpers for the byte builders.
void PutU8(std::vector<std::uint8_t>& out, std::uint8_t v);
void PutU16(std::vector<std::uint8_t>& out, std::uint16_t v);
void PutU32(std::vector<std::uint8_t>& out, std::uint32_t v);
inline void PutI32(std::vector<std::uint8_t>& out, std::int32_t v) {
    PutU32(out, static_cast<std::uint32_t>(v));
}

// Whole-file reads are capped: no icon, cursor or resource file that this program takes comes
// near 16 MiB, and the cap keeps a hostile or wrong file (a disk image, a device) from being
// read into memory whole.
inline constexpr std::size_t kMaxFileBytes = std::size_t{16} << 20;

enum class FileReadStatus { Ok, NotFound, NotRegular, TooLarge, ReadError };

// Reads the whole regular file at path into out (out is left as it was on failure). A file of
// more than maxBytes bytes is refused with TooLarge without being read.
FileReadStatus ReadWholeFile(const std::string& path, std::vector<std::uint8_t>& out,
                             std::size_t maxBytes = kMaxFileBytes);
// The same on a file already open for reading (the descriptor stays open).
FileReadStatus ReadWholeDescriptor(int fd, std::vector<std::uint8_t>& out, std::size_t maxBytes = kMaxFileBytes);

}  // namespace vexlo::files
