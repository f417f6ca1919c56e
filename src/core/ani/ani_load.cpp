#include "core/ani/ani_load.h"

#include "core/ani/ani_cursor.h"
#include "core/ani/ani_timings.h"

namespace vexlo::ani {

namespace {

constexpr int kCountLimit = 128;

AniLoadResult Refused(AniFrameSet& set, std::string message) {
    set.Clear();
    return {false, std::move(message)};
}

}  // namespace

std::int16_t CountAniFrames(const std::string& path) {
    AniCursor cursor;
    if (!LoadAniCursor(path, cursor)) return 0;
    surface::Surface scratch(kAniFrameSide, kAniFrameSide, 0xFFFFFF);
    int step = 0;
    while (step < kCountLimit && cursor.Draw(scratch, 0, 0, CursorDraw::Normal, step)) ++step;
    return static_cast<std::int16_t>(step == kCountLimit ? 1 : step);
}

AniLoadResult LoadAniFrames(const std::string& path, int count, AniFrameSet& set,
                            const std::function<void()>& pendingEvents) {
    const std::string head = path + kAniCrLf;
    if (count < 1) return Refused(set, head + kFailedToReadAni);
    if (count > kAniFrameLimit) return Refused(set, head + kAniFrameLimitText + std::to_string(kAniFrameLimit) + ".");
    set.Clear();
    set.AniFrames.assign(static_cast<std::size_t>(count), AniFrameRecord{});
    AniCursor cursor;
    if (!LoadAniCursor(path, cursor)) return Refused(set, head + kFailedToRetrieveFrames);

    set.ResetPictures(count);
    for (int i = 0; i < count; ++i) {
        surface::Surface image(kAniFrameSide, kAniFrameSide, 0xFFFFFF);
        surface::Surface mask(kAniFrameSide, kAniFrameSide, 0x000000);
        cursor.Draw(image, 0, 0, CursorDraw::Normal, i);
        if (!cursor.Draw(mask, 0, 0, CursorDraw::Mask, i))
            return Refused(set, kFailedToRetrieveOneFrame + std::to_string(i) + kAniCrLf);
        image.StorePicture();
        mask.StorePicture();
        const std::size_t at = static_cast<std::size_t>(i) + 1;
        set.AniImages[at] = std::move(image);
        set.AniMasks[at] = std::move(mask);
        AniFrameRecord& row = set.AniFrames[static_cast<std::size_t>(i)];
        row.HotX = 0;
        row.HotY = 0;
        row.PictureIndex = static_cast<std::int16_t>(i);
        if (pendingEvents) pendingEvents();
    }
    if (!ReadAniTimings(path, set)) return Refused(set, head + kFailedToReadJiffies);
    return {true, {}};
}

}  // namespace vexlo::ani
