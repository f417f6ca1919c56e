#include "core/transform/flip_rotate.h"

#include <algorithm>

namespace vexlo::transform {

Surface FlippedHorizontal(const Surface& source) {
    Surface out = source;
    out.DropStoredPicture();
    for (int y = 0; y < out.Height(); ++y) std::reverse(out.Row(y), out.Row(y) + out.Width());
    return out;
}

Surface FlippedVertical(const Surface& source) {
    Surface out(source.Width(), source.Height(), source.BackColor());
    const int h = source.Height();
    for (int y = 0; y < h; ++y) std::copy_n(source.Row(y), source.Width(), out.Row(h - 1 - y));
    return out;
}

Surface RotatedLeft(const Surface& source) {
    const int w = source.Width();
    const int h = source.Height();
    Surface out(h, w, source.BackColor());
    for (int y = 0; y < h; ++y) {
        const surface::Color* in = source.Row(y);
        for (int x = 0; x < w; ++x) out.Row(w - 1 - x)[y] = in[x];
    }
    return out;
}

Surface RotatedRight(const Surface& source) {
    const int w = source.Width();
    const int h = source.Height();
    Surface out(h, w, source.BackColor());
    for (int y = 0; y < h; ++y) {
        const surface::Color* in = source.Row(y);
        for (int x = 0; x < w; ++x) out.Row(x)[h - 1 - y] = in[x];
    }
    return out;
}

}  // namespace vexlo::transform
