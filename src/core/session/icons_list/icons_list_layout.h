#pragma once
// Where things stand on picIconsList: a lot of up to 48 thumbnails in 3 columns by 16 rows of
// cells, shown a page of 12 (4 rows) at a time through the viewport picIconsListBase. The
// sizes are chosen so that a page fills the viewport and the four page positions of the
// scroll bar land on the first rows of the four pages.
#include <cmath>

namespace vexlo::session {

inline constexpr int kListColumns = 3;
inline constexpr int kListRows = 16;
inline constexpr int kLotSize = 48;   // items of one lot
inline constexpr int kPageSize = 12;  // items of one page
inline constexpr int kPagesPerLot = 4;

// picIconsList's width and the height of its viewport picIconsListBase, in pixels.
inline constexpr int kListPictureWidth = 231;
inline constexpr int kListViewHeight = 292;

// What a cell has beyond 48 pixels, as set at start-up: (width - 144) / 3 - 1 and
// (height of a page - 192) / 4 - 1.
inline constexpr double kListFreeWidth = (kListPictureWidth - 144) / 3.0 - 1;  // 28
inline constexpr double kListFreeHeight = (kListViewHeight - 192) / 4.0 - 1;   // 24

// The pitch of the cells as drawn.
inline constexpr double kListCellWidth = 48 + kListFreeWidth;    // 76
inline constexpr double kListCellHeight = 48 + kListFreeHeight;  // 72

// picIconsList's height: the scroll bar's range (height - viewport - 16) is three pages, so
// that page k starts at k times a third of it.
inline constexpr int kListPictureHeight =
    kListViewHeight + 16 + 3 * 4 * static_cast<int>(kListCellHeight);  // 1172

// A conversion to whole pixels: to the nearest, ties to even.
inline int RoundPixel(double v) { return static_cast<int>(std::nearbyint(v)); }

// The top left of cell (column c, row r), both from 1.
struct ListCell {
    double X = 0;
    double Y = 0;
};
inline ListCell CellAt(int c, int r) {
    return {kListCellWidth * (c - 1), kListCellHeight * (r - 1)};
}
// Where a cell's label is printed.
inline int LabelX(const ListCell& cell) { return RoundPixel(kListFreeWidth / 4 + cell.X); }
inline int LabelY(const ListCell& cell) { return RoundPixel(kListFreeHeight / 4 + cell.Y); }
// Where its thumbnail goes, below a label of the given text height.
inline int IconX(const ListCell& cell) { return LabelX(cell) + 6; }
inline int IconY(const ListCell& cell, int textHeight) { return LabelY(cell) + textHeight + 6; }

}  // namespace vexlo::session
