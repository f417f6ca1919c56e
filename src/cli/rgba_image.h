#pragma once
// A decoded picture as the cli's readers and writers pass it on: red, green, blue and alpha,
// one byte each, rows from the top, alpha not premultiplied.
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vexlo::cli {

struct RgbaImage {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint8_t> Pixels;  // Width * Height * 4 bytes

    // Sizes the picture (callers check w and h against the data first) and clears it.
    void Reset(int w, int h) {
        Width = w;
        Height = h;
        Pixels.assign(static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * 4, 0);
    }
    std::uint8_t* At(int x, int y) {
        return Pixels.data() + (static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) +
                                static_cast<std::size_t>(x)) * 4;
    }
    const std::uint8_t* At(int x, int y) const { return const_cast<RgbaImage*>(this)->At(x, y); }
};

// A reader's question to its caller once it knows a picture's size and before it sizes
// anything for it: true to go on, or false with the reason in why.
using SizeCheck = std::function<bool(int width, int height, std::string& why)>;

}  // namespace vexlo::cli
