#pragma once
// Text on a Surface, drawn by Qt without smoothing: the screen fonts, the family Qt really
// uses for a name, and one line of text filled or stroked as an outline. A size in points
// becomes pixels at 96 dots per inch (8 points are 11 pixels), whatever the screen says, so
// that the same text gives the same pixels on every machine with the same font files.
#include <QFont>
#include <string>
#include <vector>

#include "core/host/host.h"
#include "core/surface/surface.h"

namespace vexlo::platform {

// The pixel size of a point size at 96 dots per inch, rounded.
int FontPixelSize(int points);
// The QFont of a TextFont: family, pixel size, bold, italic, no antialiasing.
QFont ToQFont(const host::TextFont& font);

// The families of QFontDatabase, in its order.
std::vector<std::string> ScreenFontFamilies();
// The family Qt resolves name to; empty when name is empty.
std::string FontFamilyUsed(const std::string& name);

// out: the text's advance width + 2 by the font's height + 2, filled with back, with the text
// at (1, 1) in color: its glyphs filled or, when hollow, their outlines stroked with a
// one-pixel pen. False for empty text or a picture too large to make.
bool DrawTextPicture(const host::TextFont& font, const std::string& text, bool hollow,
                     surface::Color color, surface::Color back, surface::Surface& out);

}  // namespace vexlo::platform
