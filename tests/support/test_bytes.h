#pragma once
// Bytes of files in tests: whole files in and out, the fixtures folder, and little-endian
// reads of written bytes at an offset.
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace vexlo::test {

using ByteVec = std::vector<std::uint8_t>;

inline ByteVec ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return ByteVec(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void WriteBytes(const std::string& path, const ByteVec& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

// A file of tests/fixtures by its path below that folder.
inline std::string FixturePathOf(const std::string& relative) {
    return std::string(VEXLO_FIXTURES_DIR) + "/" + relative;
}

inline std::uint32_t U32At(const ByteVec& b, std::size_t at) {
    return static_cast<std::uint32_t>(b[at]) | (static_cast<std::uint32_t>(b[at + 1]) << 8) |
           (static_cast<std::uint32_t>(b[at + 2]) << 16) | (static_cast<std::uint32_t>(b[at + 3]) << 24);
}
inline std::uint16_t U16At(const ByteVec& b, std::size_t at) {
    return static_cast<std::uint16_t>(b[at] | (b[at + 1] << 8));
}

}  // namespace vexlo::test
