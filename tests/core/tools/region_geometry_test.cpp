// The Region's rectangle: its cells, normalizing, the limits of a move, the edge under the
// pointer, and the rectangle of a placed picture.
#include <gtest/gtest.h>

#include "core/tools/region_geometry.h"

namespace vexlo::tools {
namespace {

bool SameCells(const CellRect& a, const CellRect& b) {
    return a.Left == b.Left && a.Top == b.Top && a.Right == b.Right && a.Bottom == b.Bottom;
}

TEST(RegionGeometry, CellsOfTheRectangle) {
    struct Case {
        DispRect rect;
        RegionScale scale;
        CellRect cells;
    };
    const RegionScale s32{12, 384, 384, 32, 32};
    const RegionScale s16{12, 384, 384, 16, 16};
    const RegionScale s48{8, 384, 384, 48, 48};
    const Case cases[] = {
        {{24, 24, 60, 60}, s32, {2, 2, 4, 4}},           // grid lines 24 and 60 at step 12
        {{24, 36, 36, 96}, s32, {2, 3, 2, 7}},           // one step across: a single column
        {{0, 0, 383, 383}, s32, {0, 0, 31, 31}},         // the last pixel of picDisp
        {{0, 0, 191, 191}, s16, {0, 0, 15, 15}},         // cut by the square to a 16x16 icon
        {{-24, -36, 24, 12}, s32, {-2, -3, 1, 0}},       // moved out at the left and top
        {{8, 16, 400, 392}, s48, {1, 2, 49, 48}},        // step 8, past the right edge
        {{60, 60, 24, 24}, s32, {5, 5, 1, 1}},           // not yet normalized
    };
    for (const Case& c : cases) {
        const CellRect got = RegionToCells(c.rect, c.scale);
        EXPECT_TRUE(SameCells(got, c.cells)) << c.rect.Left << "," << c.rect.Top << " -> " << got.Left << ","
                                             << got.Top << "," << got.Right << "," << got.Bottom;
    }
}

TEST(RegionGeometry, TheEdgeNearThePointerInItsOrder) {
    const DispRect r{24, 24, 96, 96};
    EXPECT_EQ(EdgeNear(r, 20, 60), RegionEdge::Left);   // 4 before
    EXPECT_EQ(EdgeNear(r, 32, 60), RegionEdge::Left);   // 8 after
    EXPECT_EQ(EdgeNear(r, 19, 60), RegionEdge::None);
    EXPECT_EQ(EdgeNear(r, 104, 60), RegionEdge::Right);
    EXPECT_EQ(EdgeNear(r, 60, 24), RegionEdge::Top);
    EXPECT_EQ(EdgeNear(r, 60, 100), RegionEdge::Bottom);
    EXPECT_EQ(EdgeNear(r, 24, 96), RegionEdge::Left);  // a corner: left comes first
    EXPECT_EQ(EdgeNear(r, 60, 60), RegionEdge::None);
}

}  // namespace
}  // namespace vexlo::tools
