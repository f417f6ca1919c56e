// libFuzzer target: the cursor probe, decoder and drawing, on the bytes as given and with the
// header made a cursor's (so that the icon seeds reach the decoder). Built by scripts/fuzz.sh.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/files/cursor_file.h"
#include "core/surface/surface.h"

namespace {

void Exercise(vexlo::files::Bytes bytes) {
    using namespace vexlo;
    files::ProbeCursorFile(bytes);
    files::CursorImage cursor;
    if (!files::ReadCursorFile(bytes, cursor)) return;
    if (cursor.Planes.Side != files::kCursorSide || !cursor.Probe.Valid) __builtin_trap();
    surface::Surface image(32, 32, 0), mask(32, 32, 0), composed(40, 40, 0xC0C0C0);
    if (!files::DrawCursorFrame(cursor, image, 0, 0, files::CursorDraw::Image) ||
        !files::DrawCursorFrame(cursor, mask, 0, 0, files::CursorDraw::Mask) ||
        !files::DrawCursorFrame(cursor, composed, -3, 20, files::CursorDraw::Normal, 3))
        __builtin_trap();
    // What was read is written again as a cursor that reads back.
    const std::vector<std::uint8_t> again =
        files::BuildCursorFileBytes(image, mask, cursor.Probe.HotspotX, cursor.Probe.HotspotY);
    files::CursorImage back;
    if (!files::ReadCursorFile(files::Bytes(again), back)) __builtin_trap();
    if (back.Planes.Mask != cursor.Planes.Mask) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Exercise(vexlo::files::Bytes(data, size));
    if (size >= 4) {
        std::vector<std::uint8_t> cursor(data, data + size);
        cursor[2] = 2;
        cursor[3] = 0;
        Exercise(vexlo::files::Bytes(cursor));
    }
    return 0;
}
