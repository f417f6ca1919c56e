#include "core/ani/ani_timings.h"

#include <algorithm>
#include <cstdint>

namespace vexlo::ani {

namespace {

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

// The bytes of the hex text; empty when it isn't whole bytes of hex digits.
std::vector<std::uint8_t> TagBytes(std::string_view hex) {
    std::vector<std::uint8_t> out;
    if (hex.empty() || hex.size() % 2 != 0) return out;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        const int hi = HexDigit(hex[i]), lo = HexDigit(hex[i + 1]);
        if (hi < 0 || lo < 0) return {};
        out.push_back(static_cast<std::uint8_t>(hi * 16 + lo));
    }
    return out;
}

// The byte at a 1-based position through the reader; a position outside the buffer sets the
// reader's failure (and answers 0).
int LowByteAt(files::ByteReader& r, std::size_t position) {
    if (position < 1 || !r.Seek(position - 1)) {
        r.Fail();
        return 0;
    }
    return r.U8();
}

std::int16_t Clamp(int value, int low, int high) { return static_cast<std::int16_t>(std::clamp(value, low, high)); }

std::size_t Find(Bytes buffer, std::string_view tag) {
    std::size_t start = 1;
    return FindAniTag(buffer, tag, start);
}

}  // namespace

std::size_t FindAniTag(Bytes buffer, std::string_view hexTag, std::size_t& start) {
    const std::vector<std::uint8_t> tag = TagBytes(hexTag);
    if (tag.empty() || tag.size() > buffer.size()) return 0;
    const std::size_t last = buffer.size() - tag.size() + 1;  // the last position it still fits at
    for (std::size_t p = std::max<std::size_t>(start, 1); p <= last; ++p) {
        if (buffer[p - 1] != tag[0]) continue;
        if (std::equal(tag.begin() + 1, tag.end(), buffer.begin() + static_cast<std::ptrdiff_t>(p))) {
            start = p;
            return p;
        }
    }
    return 0;
}

bool ScanAniTimings(Bytes buffer, std::vector<AniFrameRecord>& rows) {
    if (buffer.empty()) return false;
    std::size_t start = 1;
    if (FindAniTag(buffer, kTagRiff, start) != 1) return false;
    const std::size_t anih = Find(buffer, kTagAnih);
    if (anih == 0) return false;

    files::ByteReader r(buffer);
    std::vector<AniFrameRecord> out = rows;
    if (const std::size_t rate = Find(buffer, kTagRate); rate != 0) {
        // Entry i of the chunk; its size is not compared with the rows.
        for (std::size_t i = 0; i < out.size(); ++i)
            out[i].Jiffies = Clamp(LowByteAt(r, rate + 4 + 4 * (i + 1)), 1, 90);
    } else {
        // The low byte of the display rate: 8 before "seq " when it follows anih directly.
        const std::size_t seq = Find(buffer, kTagSeq);
        const int jiffies = seq != 0 ? LowByteAt(r, seq - 8) : LowByteAt(r, anih + 36);
        for (AniFrameRecord& row : out) row.Jiffies = Clamp(jiffies, 1, 90);
    }
    if (const std::size_t fram = Find(buffer, kTagFramIcon); fram != 0) {
        // The first frame's data starts at fram + 12: its file type at + 2, hot spot at + 10, + 12.
        if (LowByteAt(r, fram + 14) == 2) {
            const std::int16_t x = Clamp(LowByteAt(r, fram + 22), 0, 31);
            const std::int16_t y = Clamp(LowByteAt(r, fram + 24), 0, 31);
            for (AniFrameRecord& row : out) {
                row.HotX = x;
                row.HotY = y;
            }
        }
    }
    if (!r.Ok()) return false;
    rows = std::move(out);
    return true;
}

bool ReadAniTimings(const std::string& path, AniFrameSet& set) {
    std::vector<std::uint8_t> buffer;
    if (files::ReadWholeFile(path, buffer) != files::FileReadStatus::Ok) return false;
    set.AniFileBuffer = std::move(buffer);
    if (set.AniFileBuffer.empty()) return false;
    return ScanAniTimings(Bytes(set.AniFileBuffer), set.AniFrames);
}

}  // namespace vexlo::ani
