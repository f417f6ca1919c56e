#include "core/ani/ani_cursor.h"

#include <utility>

namespace vexlo::ani {

int AniCursor::StepCount() const {
    if (m_frames.empty()) return 0;
    return m_animated ? m_form.StepCount() : 1;
}

int AniCursor::FrameOfStep(int step) const {
    if (step < 0 || m_frames.empty()) return -1;
    if (!m_animated) return 0;
    return step < m_form.StepCount() ? m_form.FrameOfStep(step) : -1;
}

const FramePlanes* AniCursor::Decoded(int frame) {
    if (frame < 0 || frame >= FrameCount()) return nullptr;
    if (frame != m_cachedFrame) {
        const ByteRange& r = m_frames[static_cast<std::size_t>(frame)];
        FramePlanes planes;
        if (!DecodeFramePlanes(Bytes(m_file).subspan(r.Offset, r.Size), planes)) return nullptr;
        m_cache = std::move(planes);
        m_cachedFrame = frame;
    }
    return &m_cache;
}

bool AniCursor::Frame(int i, FramePlanes& out) {
    const FramePlanes* p = Decoded(i);
    if (!p) return false;
    out = *p;
    return true;
}

bool AniCursor::Draw(surface::Surface& target, int x, int y, CursorDraw what, int step) {
    const FramePlanes* p = Decoded(FrameOfStep(step));
    if (!p) return false;
    using surface::Rop;
    const int side = p->Image.Width();
    switch (what) {
        case CursorDraw::Mask: surface::BitBlt(target, x, y, side, side, p->Mask, 0, 0, Rop::SrcCopy); break;
        case CursorDraw::Image: surface::BitBlt(target, x, y, side, side, p->Image, 0, 0, Rop::SrcCopy); break;
        case CursorDraw::Normal:
            surface::BitBlt(target, x, y, side, side, p->Mask, 0, 0, Rop::SrcAnd);
            surface::BitBlt(target, x, y, side, side, p->Image, 0, 0, Rop::SrcInvert);
            break;
    }
    return true;
}

bool LoadAniCursor(std::vector<std::uint8_t> data, AniCursor& out, std::string* why) {
    std::string reason;
    AniCursor cursor;
    const Bytes bytes(data);
    if (IsAconFile(bytes)) {
        if (!ReadAconFile(bytes, cursor.m_form, reason)) {
            if (why) *why = reason;
            return false;
        }
        for (int i = 0; i < cursor.m_form.FrameCount(); ++i) {
            if (ChooseFrameImage(cursor.m_form.FrameBytes(bytes, i)) < 0) {
                if (why) *why = "frame " + std::to_string(i) + " holds no icon or cursor image that can be drawn";
                return false;
            }
        }
        cursor.m_animated = true;
        cursor.m_frames = cursor.m_form.Frames;
    } else {
        if (ChooseFrameImage(bytes) < 0) {
            if (why) *why = "neither an animated cursor nor an icon or cursor file with an image that can be drawn";
            return false;
        }
        cursor.m_frames = {ByteRange{0, static_cast<std::uint32_t>(data.size())}};
    }
    cursor.m_file = std::move(data);
    out = std::move(cursor);
    return true;
}

bool LoadAniCursor(const std::string& path, AniCursor& out, std::string* why) {
    std::vector<std::uint8_t> data;
    if (files::ReadWholeFile(path, data) != files::FileReadStatus::Ok) {
        if (why) *why = "cannot read " + path;
        return false;
    }
    return LoadAniCursor(std::move(data), out, why);
}

}  // namespace vexlo::ani
