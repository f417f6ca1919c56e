// Shift Directions: which cell of the pad a position falls in, how a click steps within the
// limits, and the planes redrawn from the kept picture.
#include <gtest/gtest.h>

#include "core/transform/shift_pad.h"
#include "support/picture_grid.h"

namespace vexlo::test {
namespace {

using Rows = std::vector<std::string>;
using transform::PadCell;

TEST(ShiftPad, CellsPartAtAThirdAndTwoThirdsWithTheLineInTheLaterCell) {
    struct Case {
        int x, y, column, row;
    };
    // A pad 45 across: t = 15.
    const Case cases[] = {{0, 0, 0, 0},   {14, 14, 0, 0}, {15, 14, 1, 0}, {29, 30, 1, 2},
                          {30, 15, 2, 1}, {44, 44, 2, 2}, {22, 22, 1, 1}};
    for (const Case& c : cases) {
        const PadCell cell = transform::ShiftPadCell(c.x, c.y, 45);
        EXPECT_EQ(cell.Column, c.column) << c.x << "," << c.y;
        EXPECT_EQ(cell.Row, c.row) << c.x << "," << c.y;
    }
}

TEST(ShiftPad, StepsStopAtTheLimitsOneAxisAtATime) {
    struct Case {
        int column, row, x0, y0;
        bool changed;
        int x, y;
    };
    // A 4 x 3 icon: x within -3..3, y within -2..2.
    const Case cases[] = {
        {0, 1, 0, 0, true, 1, 0},     // left: the picture goes left
        {2, 1, 0, 0, true, -1, 0},    // right
        {1, 0, 0, 0, true, 0, 1},     // top: up
        {1, 2, 0, 0, true, 0, -1},    // bottom
        {0, 0, 0, 0, true, 1, 1},     // a corner moves both
        {0, 1, 3, 0, false, 3, 0},    // at the limit, nothing
        {2, 1, -3, 0, false, -3, 0},
        {0, 0, 3, 1, true, 3, 2},     // a corner at one limit still moves the other way
        {2, 2, -3, -2, false, -3, -2},
        {1, 1, 3, 2, true, 3, 2},     // the centre always redraws
    };
    for (const Case& c : cases) {
        int x = c.x0, y = c.y0;
        EXPECT_EQ(transform::StepShift({c.column, c.row}, 4, 3, x, y), c.changed) << c.column << c.row;
        EXPECT_EQ(x, c.x);
        EXPECT_EQ(y, c.y);
    }
}

TEST(ShiftPad, RedrawReadsTheKeptPictureAtTheOffset) {
    // The composed picture: gray is transparent, any other color is painted.
    const Surface start = PictureOf({"rgss",
                                     "bwss",
                                     "ssss"});
    Surface image(4, 3, 0xFFFFFF), mask(4, 3, 0xFFFFFF);
    transform::RedrawShifted(start, -1, -1, image, mask);  // right and down
    EXPECT_EQ(PlanesRows(image, mask, 0, 0, 4, 3), (Rows{"....", ".rg.", ".bw."}));
    transform::RedrawShifted(start, 1, 0, image, mask);  // one to the left: a column lost
    EXPECT_EQ(PlanesRows(image, mask, 0, 0, 4, 3), (Rows{"g...", "w...", "...."}));
    transform::RedrawShifted(start, 0, 0, image, mask);  // and back: nothing was lost
    EXPECT_EQ(PlanesRows(image, mask, 0, 0, 4, 3), (Rows{"rg..", "bw..", "...."}));
    transform::RedrawShifted(start, 3, 2, image, mask);  // the farthest: one pixel is left
    EXPECT_EQ(PlanesRows(image, mask, 0, 0, 4, 3), (Rows{"....", "....", "...."}));
    transform::RedrawShifted(start, -3, -2, image, mask);
    EXPECT_EQ(PlanesRows(image, mask, 0, 0, 4, 3), (Rows{"....", "....", "...r"}));
}

}  // namespace
}  // namespace vexlo::test
