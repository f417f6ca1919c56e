#pragma once
// Helpers of the animated cursor tests: RIFF chunks laid out by hand (independently of the
// writer), frames of known pixels, fixtures and little-endian reads of written bytes.
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "core/files/cursor_file.h"
#include "core/surface/surface.h"
#include "support/test_bytes.h"

namespace vexlo::ani::test {

using surface::Color;
using surface::Surface;
using vexlo::test::ByteVec;
using vexlo::test::U16At;
using vexlo::test::U32At;
using vexlo::test::WriteBytes;

inline std::string FixturePath(const std::string& name) { return vexlo::test::FixturePathOf("ani/" + name); }
inline ByteVec LoadFixture(const std::string& name) { return vexlo::test::ReadBytes(FixturePath(name)); }
inline std::string IdAt(const ByteVec& b, std::size_t at) { return std::string(b.begin() + static_cast<long>(at), b.begin() + static_cast<long>(at) + 4); }
inline void PatchU32(ByteVec& b, std::size_t at, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) b[at + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(v >> (8 * i));
}

inline void Put32(ByteVec& b, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) b.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}
inline ByteVec Bytes4(const char* id) { return ByteVec(id, id + 4); }
inline ByteVec Cat(std::initializer_list<ByteVec> parts) {
    ByteVec out;
    for (const ByteVec& p : parts) out.insert(out.end(), p.begin(), p.end());
    return out;
}
// A chunk: id, size, data and a pad byte after odd data.
inline ByteVec Ck(const char* id, const ByteVec& data) {
    ByteVec b = Bytes4(id);
    Put32(b, static_cast<std::uint32_t>(data.size()));
    b.insert(b.end(), data.begin(), data.end());
    if (data.size() % 2) b.push_back(0);
    return b;
}
inline ByteVec U32s(std::initializer_list<std::uint32_t> values) {
    ByteVec b;
    for (const std::uint32_t v : values) Put32(b, v);
    return b;
}
inline ByteVec Anih(std::uint32_t frames, std::uint32_t steps, std::uint32_t rate = 10, std::uint32_t flags = 1) {
    return Ck("anih", U32s({36, frames, steps, 0, 0, 0, 0, rate, flags}));
}
inline ByteVec Fram(const std::vector<ByteVec>& frames) {
    ByteVec data = Bytes4("fram");
    for (const ByteVec& f : frames) {
        const ByteVec c = Ck("icon", f);
        data.insert(data.end(), c.begin(), c.end());
    }
    return Ck("LIST", data);
}
inline ByteVec Info(const std::string& title, const std::string& artist) {
    ByteVec t(title.begin(), title.end()), a(artist.begin(), artist.end());
    t.push_back(0);
    a.push_back(0);
    return Ck("LIST", Cat({Bytes4("INFO"), Ck("INAM", t), Ck("IART", a)}));
}
// RIFF, its size, ACON, the chunks.
inline ByteVec Riff(std::initializer_list<ByteVec> chunks) {
    ByteVec body = Bytes4("ACON");
    for (const ByteVec& c : chunks) body.insert(body.end(), c.begin(), c.end());
    ByteVec b = Bytes4("RIFF");
    Put32(b, static_cast<std::uint32_t>(body.size()));
    return Cat({b, body});
}

// Icon planes of frame k: a 2-color pattern with a transparent corner.
inline void PatternPlanes(int k, Surface& image, Surface& mask) {
    image = Surface(32, 32, 0);
    mask = Surface(32, 32, 0);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            const bool clear = x < 3 && y < 3;
            image.SetPixelV(x, y, clear ? 0 : ((x + y + k) % 5 == 0 ? 0xFFFFFF : 0));
            mask.SetPixelV(x, y, clear ? 0xFFFFFF : 0);
        }
}
// A cursor file of frame k's planes with the hot spot (x, y).
inline ByteVec PatternCursor(int k, int x = 0, int y = 0) {
    Surface image, mask;
    PatternPlanes(k, image, mask);
    return files::BuildCursorFileBytes(image, mask, x, y);
}

}  // namespace vexlo::ani::test
