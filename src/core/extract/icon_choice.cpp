#include "core/extract/icon_choice.h"

#include <cstdlib>

#include "core/files/icon_image_check.h"

namespace vexlo::extract {

namespace {

constexpr surface::Color kWhite = 0xFFFFFF;

struct Candidate {
    int Index = -1;
    int Side = 0;
    int BitCount = 0;
};

bool Better(const Candidate& a, const Candidate& b, int side) {
    const int da = std::abs(a.Side - side), db = std::abs(b.Side - side);
    if (da != db) return da < db;
    if (a.Side != b.Side) return a.Side > b.Side;
    return a.BitCount > b.BitCount;
}

// One channel of c blended over white by alpha a.
int OverWhite(int channel, int a) { return (channel * a + 255 * (255 - a) + 127) / 255; }

// The normal draw over white of a decoded image, at its own size.
std::vector<surface::Color> DrawnOverWhite(const files::DecodedIcon& d) {
    bool blend = false;
    if (d.TrueColor && !d.Alpha.IsSingle())
        for (int y = 0; y < d.Side && !blend; ++y)
            for (int x = 0; x < d.Side && !blend; ++x) blend = d.Alpha.At(x, y) != 0;
    std::vector<surface::Color> out(d.Image.size());
    for (int y = 0; y < d.Side; ++y)
        for (int x = 0; x < d.Side; ++x) {
            const std::size_t i = static_cast<std::size_t>(y * d.Side + x);
            const surface::Color c = d.Image[i];
            if (blend) {
                const int a = d.Alpha.At(x, y);
                out[i] = surface::Rgb(OverWhite(surface::RedOf(c), a), OverWhite(surface::GreenOf(c), a),
                                      OverWhite(surface::BlueOf(c), a));
            } else {
                out[i] = d.Mask[i] ? (kWhite ^ c) : c;
            }
        }
    return out;
}

}  // namespace

int ChooseGroupImage(Bytes file, const IconGroup& group, int side) {
    if (group.Cursor) return -1;
    Candidate best;
    for (std::size_t i = 0; i < group.Images.size(); ++i) {
        const GroupImage& e = group.Images[i];
        if (!e.Present) continue;
        const files::UsableIconImage u = files::JudgeIconImage(file.subspan(e.Offset, e.Size), 0);
        if (!u.Usable) continue;
        const Candidate c{static_cast<int>(i), u.Side, u.BitCount};
        if (best.Index < 0 || Better(c, best, side)) best = c;
    }
    return best.Index;
}

bool DrawGroupIcon(Bytes file, const IconGroup& group, IconSize size, ExtractedIcon& out) {
    const int side = SideOf(size);
    const int chosen = ChooseGroupImage(file, group, side);
    if (chosen < 0) return false;
    const GroupImage& e = group.Images[static_cast<std::size_t>(chosen)];
    files::DecodedIcon d;
    if (!files::DecodeUsableImage(file.subspan(e.Offset, e.Size), 0, d)) return false;
    files::MaskFromAlpha(d);
    out.Image = files::PlaneAtSide(DrawnOverWhite(d), d.Side, side);
    out.Mask = files::PlaneAtSide(d.Mask, d.Side, side);
    return true;
}

}  // namespace vexlo::extract
