#include "core/ani/acon_file.h"

#include <cstring>
#include <functional>
#include <utility>

namespace vexlo::ani {

namespace {

using files::ByteReader;

struct Chunk {
    std::string Id;  // the four letters as they stand
    std::uint32_t Offset = 0;  // of the chunk's header
    ByteRange Data;
};

bool IdIs(Bytes data, std::size_t at, const char* id) {
    return data.size() >= at + 4 && std::memcmp(data.data() + at, id, 4) == 0;
}

// The four letters for a message, a byte that isn't printable shown as '?'.
std::string Printable(const std::string& id) {
    std::string s = id;
    for (char& c : s)
        if (c < 0x20 || c > 0x7E) c = '?';
    return "'" + s + "'";
}

std::string At(std::uint64_t offset) { return " at offset " + std::to_string(offset); }

// Walks the chunks from begin to end (the container's data) and hands each to visit. A chunk
// whose data runs past end fails; its pad byte may lie past end. Fewer than 8 bytes left at the
// end are passed over. The walk stops at the first failure, of its own or of visit.
bool WalkChunks(Bytes data, std::uint64_t begin, std::uint64_t end, const std::string& container,
                const std::function<bool(const Chunk&)>& visit, std::string& why) {
    std::uint64_t at = begin;
    while (at + 8 <= end) {
        ByteReader r(data);
        r.Seek(at);
        const Bytes id = r.Take(4);
        const std::uint32_t size = r.U32();
        if (!r.Ok()) return false;  // within end, so within data: not reached
        Chunk c;
        c.Id.assign(id.begin(), id.end());
        c.Offset = static_cast<std::uint32_t>(at);
        if (size > end - (at + 8)) {
            why = "the " + Printable(c.Id) + " chunk" + At(at) + " says " + std::to_string(size) +
                  " bytes; its " + container + " has " + std::to_string(end - (at + 8)) + " left";
            return false;
        }
        c.Data = {static_cast<std::uint32_t>(at + 8), size};
        if (!visit(c)) return false;
        at += 8 + std::uint64_t{size} + (size & 1);
    }
    return true;
}

// The u32 entries of a rate or seq chunk.
std::vector<std::uint32_t> U32Array(Bytes data, const ByteRange& range) {
    ByteReader r(data.subspan(range.Offset, range.Size));
    std::vector<std::uint32_t> values;
    values.reserve(range.Size / 4);
    for (std::uint32_t i = 0; i < range.Size / 4; ++i) values.push_back(r.U32());
    return values;
}

// A zero-ended text of an INFO chunk, up to its first zero byte or its end.
std::string Text(Bytes data, const ByteRange& range) {
    const Bytes b = data.subspan(range.Offset, range.Size);
    std::string s;
    for (const std::uint8_t c : b) {
        if (c == 0) break;
        s.push_back(static_cast<char>(c));
    }
    return s;
}

// The chunks of the form as found, before the counts are checked.
struct Found {
    std::optional<AniHeader> Header;
    std::optional<std::vector<std::uint32_t>> Rates, Sequence;
    std::vector<ByteRange> Icons;
    std::optional<std::string> Title, Artist;
};

bool VisitList(Bytes data, const Chunk& c, Found& found, std::string& why) {
    if (c.Data.Size < 4) {
        why = "the LIST chunk" + At(c.Offset) + " holds " + std::to_string(c.Data.Size) +
              " bytes, too few for its list type";
        return false;
    }
    const std::uint64_t begin = std::uint64_t{c.Data.Offset} + 4, end = std::uint64_t{c.Data.Offset} + c.Data.Size;
    if (IdIs(data, c.Data.Offset, "fram")) {
        return WalkChunks(data, begin, end, "LIST fram", [&](const Chunk& sub) {
            if (sub.Id == "icon") found.Icons.push_back(sub.Data);
            return true;
        }, why);
    }
    if (IdIs(data, c.Data.Offset, "INFO")) {
        return WalkChunks(data, begin, end, "LIST INFO", [&](const Chunk& sub) {
            if (sub.Id == "INAM" && !found.Title) found.Title = Text(data, sub.Data);
            if (sub.Id == "IART" && !found.Artist) found.Artist = Text(data, sub.Data);
            return true;
        }, why);
    }
    return true;  // a list of another type is passed over
}

bool VisitTop(Bytes data, const Chunk& c, Found& found, std::string& why) {
    if (c.Id == "anih" && !found.Header) {
        if (c.Data.Size < kAniHeaderBytes) {
            why = "the anih chunk" + At(c.Offset) + " holds " + std::to_string(c.Data.Size) +
                  " bytes, fewer than the 36 of its header";
            return false;
        }
        ByteReader r(data.subspan(c.Data.Offset, c.Data.Size));
        AniHeader h;
        h.HeaderSize = r.U32();
        h.Frames = r.U32();
        h.Steps = r.U32();
        h.Width = r.U32();
        h.Height = r.U32();
        h.BitCount = r.U32();
        h.Planes = r.U32();
        h.DisplayRate = r.U32();
        h.Flags = r.U32();
        found.Header = h;
    } else if (c.Id == "rate" && !found.Rates) {
        found.Rates = U32Array(data, c.Data);
    } else if (c.Id == "seq " && !found.Sequence) {
        found.Sequence = U32Array(data, c.Data);
    } else if (c.Id == "LIST") {
        return VisitList(data, c, found, why);
    }
    return true;
}

std::string N(std::uint64_t n) { return std::to_string(n); }

// The counts of the header against the chunks found.
bool CheckCounts(Found& f, std::string& why) {
    if (!f.Header) {
        why = "no anih chunk (the animated cursor's header)";
        return false;
    }
    const AniHeader& h = *f.Header;
    if (h.Frames == 0 || h.Steps == 0) {
        why = "the anih header names " + N(h.Frames) + " frames and " + N(h.Steps) + " steps";
        return false;
    }
    if (f.Icons.empty()) {
        why = "no frames: no icon chunk in a LIST fram";
        return false;
    }
    if (h.Frames > f.Icons.size()) {
        why = "the anih header names " + N(h.Frames) + " frames; the file holds " + N(f.Icons.size());
        return false;
    }
    if (f.Sequence) {
        if (f.Sequence->size() < h.Steps) {
            why = "the seq chunk holds " + N(f.Sequence->size()) + " steps; the anih header names " + N(h.Steps);
            return false;
        }
        f.Sequence->resize(h.Steps);
        for (std::size_t k = 0; k < f.Sequence->size(); ++k) {
            if ((*f.Sequence)[k] >= h.Frames) {
                why = "step " + N(k) + " shows frame " + N((*f.Sequence)[k]) + ", past the " + N(h.Frames) +
                      " frames";
                return false;
            }
        }
    } else if (h.Steps > h.Frames) {
        why = "the anih header names " + N(h.Steps) + " steps for " + N(h.Frames) + " frames and no seq chunk";
        return false;
    }
    if (f.Rates) {
        if (f.Rates->size() < h.Steps) {
            why = "the rate chunk holds " + N(f.Rates->size()) + " entries for " + N(h.Steps) + " steps";
            return false;
        }
        f.Rates->resize(h.Steps);
    }
    f.Icons.resize(h.Frames);
    return true;
}

}  // namespace

int AconFile::FrameOfStep(int step) const {
    return Sequence.empty() ? step : static_cast<int>(Sequence[static_cast<std::size_t>(step)]);
}

std::uint32_t AconFile::JiffiesOfStep(int step) const {
    return Rates.empty() ? Header.DisplayRate : Rates[static_cast<std::size_t>(step)];
}

Bytes AconFile::FrameBytes(Bytes file, int i) const {
    const ByteRange& r = Frames[static_cast<std::size_t>(i)];
    return file.subspan(r.Offset, r.Size);
}

bool IsAconFile(Bytes data) { return IdIs(data, 0, "RIFF") && IdIs(data, 8, "ACON"); }

bool ReadAconFile(Bytes data, AconFile& out, std::string& why) {
    if (!IdIs(data, 0, "RIFF")) {
        why = "not a RIFF file";
        return false;
    }
    ByteReader r(data);
    r.Seek(4);
    const std::uint32_t riffSize = r.U32();
    const Bytes form = r.Take(4);
    if (!r.Ok()) {
        why = "too short for a RIFF header (" + N(data.size()) + " bytes)";
        return false;
    }
    if (!IdIs(data, 8, "ACON")) {
        why = "a RIFF form of type " + Printable(std::string(form.begin(), form.end())) + ", not ACON";
        return false;
    }
    const std::uint64_t riffEnd = 8 + std::uint64_t{riffSize};
    if (riffEnd > data.size()) {
        why = "its RIFF size " + N(riffSize) + " runs past the end of the file (" + N(data.size()) + " bytes)";
        return false;
    }
    if (riffSize < 4) {
        why = "its RIFF size " + N(riffSize) + " is too small for its form type";
        return false;
    }
    Found found;
    const auto visit = [&](const Chunk& c) { return VisitTop(data, c, found, why); };
    if (!WalkChunks(data, 12, riffEnd, "RIFF form", visit, why)) return false;
    if (!CheckCounts(found, why)) return false;
    AconFile file;
    file.Header = *found.Header;
    if (found.Rates) file.Rates = std::move(*found.Rates);
    if (found.Sequence) file.Sequence = std::move(*found.Sequence);
    file.Frames = std::move(found.Icons);
    file.Title = std::move(found.Title);
    file.Artist = std::move(found.Artist);
    out = std::move(file);
    return true;
}

}  // namespace vexlo::ani
