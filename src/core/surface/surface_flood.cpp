// ExtFloodFill on a Surface: a 4-connected flood, as GDI floods, with an explicit stack.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/surface/surface.h"

namespace vexlo::surface {

std::vector<std::uint8_t> FloodFillArea(const Surface& s, int x, int y, Color color,
                                        int fillType) {
    const bool surfaceMode = fillType == kFloodFillSurface;
    auto inArea = [&](Color c) { return surfaceMode ? c == color : c != color; };
    if (!s.Contains(x, y) || !inArea(s.GetPixel(x, y))) return {};

    const int w = s.Width();
    const int h = s.Height();
    std::vector<std::uint8_t> area(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), 0);
    auto index = [w](int px, int py) {
        return static_cast<std::size_t>(py) * static_cast<std::size_t>(w) +
               static_cast<std::size_t>(px);
    };
    // Each pixel is marked when it is pushed, so it enters the stack at most once.
    std::vector<std::size_t> stack;
    stack.reserve(area.size());
    area[index(x, y)] = 1;
    stack.push_back(index(x, y));
    static constexpr int kSteps[4][2] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}};
    while (!stack.empty()) {
        const std::size_t at = stack.back();
        stack.pop_back();
        const int px = static_cast<int>(at % static_cast<std::size_t>(w));
        const int py = static_cast<int>(at / static_cast<std::size_t>(w));
        for (const auto& step : kSteps) {
            const int nx = px + step[0];
            const int ny = py + step[1];
            if (!s.Contains(nx, ny)) continue;
            const std::size_t next = index(nx, ny);
            if (area[next] != 0 || !inArea(s.GetPixel(nx, ny))) continue;
            area[next] = 1;
            stack.push_back(next);
        }
    }
    return area;
}

bool ExtFloodFill(Surface& s, int x, int y, Color color, int fillType, Color fill) {
    const std::vector<std::uint8_t> area = FloodFillArea(s, x, y, color, fillType);
    if (area.empty()) return false;
    Color* pixels = s.Data();
    const Color value = fill & kRgbMask;
    for (std::size_t i = 0; i < area.size(); ++i)
        if (area[i] != 0) pixels[i] = value;
    return true;
}

}  // namespace vexlo::surface
