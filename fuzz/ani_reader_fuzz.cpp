// libFuzzer target: the animated cursor reader (the chunk walk, the loader and drawing of every
// step) and the editor's byte scan of timings, on the bytes as given. Built by scripts/fuzz.sh.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/ani/acon_file.h"
#include "core/ani/ani_cursor.h"
#include "core/ani/ani_timings.h"
#include "core/surface/surface.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vexlo;
    const ani::Bytes bytes(data, size);
    ani::AconFile form;
    std::string why;
    const bool walked = ani::ReadAconFile(bytes, form, why);
    if (!walked && why.empty()) __builtin_trap();  // every refusal says why
    if (walked && (form.FrameCount() < 1 || form.StepCount() < 1)) __builtin_trap();

    ani::AniCursor cursor;
    if (ani::LoadAniCursor(std::vector<std::uint8_t>(data, data + size), cursor)) {
        surface::Surface target(32, 32, 0xFFFFFF);
        int step = 0;
        // As CountAniFrames counts: every step draws, the first beyond them doesn't.
        while (step < 128 && cursor.Draw(target, 0, 0, ani::CursorDraw::Normal, step)) ++step;
        if (cursor.IsAnimated() && step != std::min(cursor.StepCount(), 128)) __builtin_trap();
        cursor.Draw(target, -5, 7, ani::CursorDraw::Mask, 0);
    }

    std::vector<ani::AniFrameRecord> rows(walked ? static_cast<std::size_t>(std::min(form.StepCount(), 70)) : 3);
    if (ani::ScanAniTimings(bytes, rows)) {
        for (const ani::AniFrameRecord& r : rows)
            if (r.Jiffies < 1 || r.Jiffies > 90 || r.HotX < 0 || r.HotX > 31 || r.HotY < 0 || r.HotY > 31)
                __builtin_trap();
    }
    return 0;
}
