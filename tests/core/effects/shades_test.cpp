// The shades effects on small icons drawn as ASCII pictures, with the expected previews worked
// out by hand from the rules; Proceed back into the planes; the Cast controls; the frame.
#include "core/effects/shades.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexlo::effects {
namespace {

using Rows = std::vector<std::string>;

// Colors of the pictures. In an icon drawn from rows, '.' is a transparent cell, 's' a painted
// cell of true silver, 'I' an inverting cell (image white, so it shows 0x3F3F3F = 'z'), and
// any other letter a painted cell of its color. In a picture read back, '.' is 0xC0C0C0.
constexpr struct { char Key; Color Value; } kLegend[] = {
    {'.', kTransparentGray}, {'k', 0x000000}, {'w', 0xFFFFFF}, {'m', 0x808080},
    {'r', 0x0000FF},         {'c', 0xFFFF00}, {'y', 0x00FFFF}, {'z', 0x3F3F3F},
    {'1', 0x000001},         {'e', 0xFEFEFE}};

Color ColorOf(char key) {
    for (const auto& l : kLegend)
        if (l.Key == key) return l.Value;
    ADD_FAILURE() << "no color for " << key;
    return 0;
}

struct Icon {
    explicit Icon(const Rows& rows) {
        const int w = static_cast<int>(rows[0].size()), h = static_cast<int>(rows.size());
        picImage = Surface(w, h, kBlack);
        picMask = Surface(w, h, kWhite);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                const char k = rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
                if (k == 'I') picImage.SetPixelV(x, y, kWhite);
                if (k == '.' || k == 'I') continue;
                picImage.SetPixelV(x, y, k == 's' ? kTransparentGray : ColorOf(k));
                picMask.SetPixelV(x, y, kBlack);
            }
        // ComposeIcon: gray, AND the mask, XOR the image.
        PicIcon = Surface(w, h, kTransparentGray);
        surface::BitBlt(PicIcon, 0, 0, w, h, picMask, 0, 0, surface::Rop::SrcAnd);
        surface::BitBlt(PicIcon, 0, 0, w, h, picImage, 0, 0, surface::Rop::SrcInvert);
    }
    IconPlanes Planes() const { return {picImage, picMask, PicIcon}; }
    Surface picImage, picMask, PicIcon;
};

Rows Cells(const Surface& s) {
    Rows out(static_cast<std::size_t>(s.Height()));
    for (int y = 0; y < s.Height(); ++y)
        for (int x = 0; x < s.Width(); ++x) {
            char k = '?';
            for (const auto& l : kLegend)
                if (l.Value == s.GetPixel(x, y)) k = l.Key;
            out[static_cast<std::size_t>(y)] += k;
        }
    return out;
}
Rows MaskCells(const Surface& s) {
    Rows out = Cells(s);
    for (std::string& row : out)
        for (char& k : row) k = k == 'k' ? '#' : k == 'w' ? '.' : '?';
    return out;
}

TEST(ShadesPreview, NoPaintedCellLeavesPreviewAndIconAsTheyAre) {
    ShadesOptions options;
    options.UseSelectedColor = true;
    options.SelectedColor = 0x0000FF;
    options.Cast = {0, 0, 0};
    for (std::size_t side : {16, 32, 48})
        for (int code = 1; code <= 7; ++code) {
            SCOPED_TRACE(testing::Message() << side << " code " << code);
            const Icon icon(Rows(side, std::string(side, '.')));
            ShadesPreview p = MakePreview(*EffectOfCode(code), icon.Planes(), options);
            EXPECT_TRUE(SamePixels(p.Image, icon.PicIcon));
            EXPECT_TRUE(SamePixels(p.Mask, icon.picMask));
            Surface image = icon.picImage, mask = icon.picMask;
            ProceedShades(p, image, mask);
            EXPECT_TRUE(SamePixels(image, icon.picImage));
            EXPECT_TRUE(SamePixels(mask, icon.picMask));
        }
}

// Black, transparent, silver, inverting white, red. The inverting cell shows 0x3F3F3F, inverts
// to 0xC0C0C0 over a white mask, and so turns transparent at Proceed; silver inverts.
TEST(InvertShades, PaintedSilverAndInvertingCellsThenProceed) {
    const Icon icon({"k.sIr"});
    ShadesPreview p = PreviewInvert(icon.Planes());
    EXPECT_EQ(Cells(p.Image), Rows{"w.z.c"});
    EXPECT_EQ(MaskCells(p.Mask), Rows{"#.#.#"});
    Surface image = icon.picImage, mask = icon.picMask;
    ProceedShades(p, image, mask);
    EXPECT_EQ(Cells(image), Rows{"wkzkc"});
    EXPECT_EQ(MaskCells(mask), Rows{"#.#.#"});
}

TEST(GrayscaleShades, EachTermRoundedByItselfTiesToEven) {
    const struct { Color c; int gray; } cases[] = {
        {0xFFFFFF, 254}, {0x000000, 0}, {surface::Rgb(5, 0, 0), 2}, {surface::Rgb(15, 0, 0), 4},
        {surface::Rgb(0, 50, 0), 30}, {surface::Rgb(0, 150, 0), 88}, {surface::Rgb(0, 0, 255), 28},
        {kTransparentGray, 192}};
    for (const auto& c : cases) EXPECT_EQ(GrayOf(c.c), c.gray) << std::hex << c.c;
    const Icon icon({"w.s"});
    const ShadesPreview p = PreviewGrayscale(icon.Planes());
    EXPECT_EQ(Cells(p.Image), Rows{"e.."});
    EXPECT_EQ(MaskCells(p.Mask), Rows{"#.#"});
}

TEST(ReliefShades, PassesOnSmallPictures) {
    const Rows block{".....", ".rr..", ".r...", "....."};
    const Rows blockMask{".....", ".##..", ".#...", "....."};
    const struct { Effect e; bool useSelected; Rows in, image, mask; } cases[] = {
        {Effect::Embossed, false, block, {"ww...", "wrr..", ".rmm.", "..m.."},
         {"##...", "###..", ".###.", "..#.."}},
        {Effect::Engraved, false, block, {"mm...", "mrr..", ".rww.", "..w.."},
         {"##...", "###..", ".###.", "..#.."}},
        {Effect::Raised, false, block, {"ww...", "wrr..", ".rkk.", "..k.."},
         {"##...", "###..", ".###.", "..#.."}},
        {Effect::Shadowed, false, block, {".....", ".rr..", ".rkk.", "..k.."},
         {".....", ".##..", ".###.", "..#.."}},
        {Effect::Shadowed, true, block, {".....", ".rr..", ".ryy.", "..y.."},
         {".....", ".##..", ".###.", "..#.."}},
        // Any other effect: the prepared preview.
        {Effect::Cast, true, block, {".....", ".rr..", ".r...", "....."}, blockMask},
        // Painted at (0,0): no first-color cell; every relief cell lies under a painted one.
        {Effect::Embossed, false, {"r...", ".r..", "..r."}, {"r...", ".r..", "..r."},
         {"#...", ".#..", "..#."}},
        {Effect::Embossed, false, {"r..", "...", "..."}, {"r..", ".m.", "..."},
         {"#..", ".#.", "..."}},
        // Painted in the last column: a white cell up and left, no black one.
        {Effect::Raised, false, {"...", "..r", "..."}, {".w.", "..r", "..."},
         {".#.", "..#", "..."}},
        // Silver is unpainted to the plain test (left alone, casts nothing, mask stays black);
        // an inverting cell is painted and becomes opaque in its composed color.
        {Effect::Embossed, false, {"....", ".sr.", ".I.."}, {".w..", "w.r.", ".z.m"},
         {".#..", "###.", ".#.#"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "effect " << CodeOf(c.e) << " " << c.in[0]);
        const Icon icon(c.in);
        const ShadesPreview p = PreviewRelief(c.e, icon.Planes(), c.useSelected, 0x00FFFF);
        EXPECT_EQ(Cells(p.Image), c.image);
        EXPECT_EQ(MaskCells(p.Mask), c.mask);
    }
}

TEST(ReliefShades, ProceedKeepsSilverAndWritesReliefIntoThePlanes) {
    const Icon icon({"....", ".sr.", ".I.."});
    ShadesPreview p = PreviewRelief(Effect::Embossed, icon.Planes(), false, 0);
    Surface image = icon.picImage, mask = icon.picMask;
    ProceedShades(p, image, mask);
    EXPECT_EQ(Cells(image), (Rows{"kwkk", "w.rk", "kzkm"}));
    EXPECT_EQ(MaskCells(mask), (Rows{".#..", "###.", ".#.#"}));
}

TEST(ReliefShades, UseSelectedColorRerunsOnlyForARunningCode) {
    const Icon icon({"r..", "...", "..."});
    EXPECT_FALSE(UseSelectedColorClicked(0, icon.Planes(), true, 0x00FFFF));
    const auto p = UseSelectedColorClicked(6, icon.Planes(), true, 0x00FFFF);
    ASSERT_TRUE(p);
    EXPECT_EQ(Cells(p->Image), (Rows{"r..", ".y.", "..."}));
}

// A flat area gets the cast values; the last column and row read 0xFFFFFFFF past the edge,
// that is R2 = -1, G2 = B2 = 0. Transparent cells stay; silver (black mask) is cast.
TEST(CastShades, FlatAreasAndTheReadPastTheEdge) {
    const Color k = 0x000000, g = kTransparentGray;
    const struct { Rows in; CastValues cast; std::vector<Color> out; } cases[] = {
        {{"kkk", "kkk"}, {0, 0, 0}, {k, k, 0x000001, 0x000001, 0x000001, 0x000001}},
        {{"rrr", "rrr"}, {10, 20, 30},
         {surface::Rgb(10, 20, 30), surface::Rgb(10, 20, 30), surface::Rgb(255, 20, 30),
          surface::Rgb(255, 20, 30), surface::Rgb(255, 20, 30), surface::Rgb(255, 20, 30)}},
        {{"kk", "kk"}, {127, 127, 127}, {0x7F7F7F, 0x7F7F80, 0x7F7F80, 0x7F7F80}},
        // |100 - 255| above white; transparent cells stay; silver over transparent gray.
        {{"k.", ".w"}, {100, 100, 100}, {0x9B9B9B, g, g, 0xFFFFFF}},
        {{"ss", "s."}, {5, 6, 7}, {0x070605, 0xC7C6C6, 0xC7C6C6, g}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.in[0]);
        const Icon icon(c.in);
        const ShadesPreview p = PreviewCast(icon.Planes(), c.cast);
        std::vector<Color> out;
        for (int y = 0; y < p.Image.Height(); ++y)
            for (int x = 0; x < p.Image.Width(); ++x) out.push_back(p.Image.GetPixel(x, y));
        EXPECT_EQ(out, c.out);
        EXPECT_TRUE(SamePixels(p.Mask, icon.picMask));
    }
}

TEST(CastControls, SliderMovesTheValuesTogetherAndSettlesOnTheirMean) {
    const struct { int slider; CastValues values; int level; } cases[] = {
        {200, {173, 200, 227}, 200}, {250, {223, 250, 255}, 243}, {0, {0, 0, 27}, 9}};
    for (const auto& c : cases) {
        CastControls s{{100, 127, 154}, 127, 127};
        EXPECT_TRUE(CastSliderChanged(s, c.slider, false));
        EXPECT_EQ(s.Values, c.values);
        EXPECT_EQ(s.CastLevel, c.level);
        EXPECT_EQ(s.Slider, c.level);
    }
    CastControls s{{100, 127, 154}, 127, 127};
    EXPECT_FALSE(CastSliderChanged(s, 200, true));
    EXPECT_EQ(s.Values, (CastValues{100, 127, 154}));
    EXPECT_EQ(s.CastLevel, 127);
    EXPECT_EQ(s.Slider, 200);
}

TEST(CastControls, ComboSetsTheLevelAndRestoreGoesBackTo127) {
    CastControls s;
    EXPECT_TRUE(CastComboClicked(s, 0, 0, false));  // 254 / 3
    EXPECT_EQ(s.Slider, 85);
    EXPECT_TRUE(CastSliderChanged(s, 95, false));  // moves from the level 85, not from 127
    EXPECT_EQ(s.Values, (CastValues{10, 137, 137}));
    EXPECT_FALSE(CastComboClicked(s, 2, 1, true));  // guarded: the list moves, nothing else
    EXPECT_EQ(s.Values, (CastValues{10, 137, 1}));
    EXPECT_EQ(s.CastLevel, 95);
    EXPECT_EQ(CastLevelOf({0, 1, 1}), 1);
    ResetCast(s);
    EXPECT_EQ(s.Values, (CastValues{127, 127, 127}));
    EXPECT_EQ(s.CastLevel + s.Slider, 254);
    const Icon flat({"rr", "rr"});
    EXPECT_EQ(PreviewCast(flat.Planes(), s.Values).Image.GetPixel(0, 0), 0x7F7F7Fu);
    const auto entries = CastListEntries();
    EXPECT_EQ(entries[0] + entries[127] + entries[255], "0127255");
}

TEST(ShadesFrame, CaptionsAndControlsPerMenuIndex) {
    const struct { int index; const char* caption; bool ckb, cast; } cases[] = {
        {1, "Invert", false, false},   {2, "Grayscale", false, false},
        {3, "Embossed", false, false}, {4, "Engraved", false, false},
        {5, "Raised", false, false},   {6, "Shadowed", true, false},
        {7, "Cast", false, true}};
    for (const auto& c : cases) {
        const auto setup = ShadesFrameOf(c.index);
        ASSERT_TRUE(setup);
        EXPECT_EQ(ShadesCaption(c.index), c.caption);
        EXPECT_EQ(CodeOf(setup->Code), c.index);
        EXPECT_EQ(setup->UseSelectedColorVisible, c.ckb);
        EXPECT_EQ(setup->CastControlsVisible, c.cast);
    }
    EXPECT_FALSE(ShadesFrameOf(0));
    EXPECT_FALSE(ShadesFrameOf(8));
    EXPECT_EQ(ShadesCaption(0), "");
    EXPECT_FALSE(EffectOfCode(0));
}

}  // namespace
}  // namespace vexlo::effects
