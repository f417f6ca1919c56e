#include "core/ani/frame_image.h"

#include <algorithm>
#include <cstdlib>

#include "core/files/ico_format.h"
#include "core/files/icon_image_check.h"
#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"

namespace vexlo::ani {

namespace {

using files::ByteReader;

void JudgeImage(Bytes data, FrameImageFacts& f) {
    const files::UsableIconImage u = files::JudgeIconImage(data, f.Offset);
    f.Usable = u.Usable;
    f.Side = u.Side;
    f.BitCount = u.BitCount;
}

}  // namespace

std::vector<FrameImageFacts> ListFrameImages(Bytes data) {
    ByteReader r(data);
    const files::IconFileHeader header = files::ReadIconFileHeader(r);
    if (!r.Ok() || header.Reserved != 0 || (header.Type != 1 && header.Type != 2)) return {};
    const bool cursor = header.Type == 2;
    const std::size_t present = std::min<std::size_t>(header.Count, r.Remaining() / files::kIconDirEntryBytes);
    std::vector<FrameImageFacts> images;
    images.reserve(present);
    for (std::size_t i = 0; i < present; ++i) {
        const files::IconDirEntry e = files::ReadIconDirEntry(r);
        FrameImageFacts f;
        f.Index = static_cast<int>(i);
        f.Offset = e.ImageOffset;
        if (cursor) {
            f.HotX = e.Planes;
            f.HotY = e.BitCount;
        }
        JudgeImage(data, f);
        images.push_back(f);
    }
    return images;
}

int ChooseFrameImage(const std::vector<FrameImageFacts>& images) {
    const FrameImageFacts* best = nullptr;
    const auto better = [](const FrameImageFacts& a, const FrameImageFacts& b) {
        const int da = std::abs(a.Side - 32), db = std::abs(b.Side - 32);
        if (da != db) return da < db;
        if (a.Side != b.Side) return a.Side > b.Side;
        return a.BitCount > b.BitCount;
    };
    for (const FrameImageFacts& f : images)
        if (f.Usable && (!best || better(f, *best))) best = &f;
    return best ? best->Index : -1;
}

int ChooseFrameImage(Bytes data) { return ChooseFrameImage(ListFrameImages(data)); }

bool DecodeFramePlanes(Bytes data, FramePlanes& out) {
    const std::vector<FrameImageFacts> images = ListFrameImages(data);
    const int chosen = ChooseFrameImage(images);
    if (chosen < 0) return false;
    const FrameImageFacts& f = images[static_cast<std::size_t>(chosen)];
    files::DecodedIcon d;
    if (!files::DecodeIconImage(data, f.Offset, f.Side, files::ColorsOfBitCount(f.BitCount), f.BitCount, d))
        return false;
    files::MaskFromAlpha(d);
    out.Image = files::PlaneAtSide(d.Image, f.Side, 32);
    out.Mask = files::PlaneAtSide(d.Mask, f.Side, 32);
    out.HotX = f.HotX;
    out.HotY = f.HotY;
    return true;
}

}  // namespace vexlo::ani
