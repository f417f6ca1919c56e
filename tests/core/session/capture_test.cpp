// The desktop capture: the box over the frozen screen (its sprite, the pointer's range, what a
// click takes), and the flow that puts the square into the current slot.
#include <gtest/gtest.h>

#include "core/session/capture/capture_box.h"
#include "support/utilities_host.h"

namespace vexlo::test {
namespace {

using session::CaptureBox;
using surface::Color;

// A screen whose every pixel has a color of its own, none of them black.
Surface TestScreen(int w, int h) {
    Surface s(w, h, 0);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) s.SetPixelV(x, y, surface::Rgb(x + 1, y + 1, (x * 7 + y) & 0xFF));
    return s;
}

TEST(CaptureBox, SpritesAreAMaskAndADashedBorderOneWiderThanThePicture) {
    const std::pair<int, int> sizes[] = {{16, 36}, {32, 68}, {48, 100}};
    for (const auto& [side, width] : sizes) {
        const Surface sprite = session::CaptureSprite(side);
        const int n = side + 2;
        ASSERT_EQ(sprite.Width(), width);
        ASSERT_EQ(sprite.Height(), n);
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x) {
                const bool border = x == 0 || y == 0 || x == n - 1 || y == n - 1;
                EXPECT_EQ(sprite.GetPixel(x, y), border ? 0x000000u : 0xFFFFFFu);
                const Color xorColor = sprite.GetPixel(n + x, y);
                if (border)
                    EXPECT_TRUE(xorColor == session::kCaptureDashYellow || xorColor == session::kCaptureDashBlue);
                else
                    EXPECT_EQ(xorColor, 0x000000u);
            }
    }
    // Dashes of two pixels along the top edge.
    const Surface s16 = session::CaptureSprite(16);
    EXPECT_EQ(s16.GetPixel(18, 0), session::kCaptureDashYellow);
    EXPECT_EQ(s16.GetPixel(19, 0), session::kCaptureDashYellow);
    EXPECT_EQ(s16.GetPixel(20, 0), session::kCaptureDashBlue);
    EXPECT_EQ(session::CaptureSizeText(1), "16");
    EXPECT_EQ(session::CaptureSizeText(2), "32");
    EXPECT_EQ(session::CaptureSizeText(3), "48");
}

TEST(CaptureBox, ThePointerStaysWhereTheBoxFits) {
    // 17 pixels fewer than the screen for 16x16, 49 for 48x48.
    for (const auto& [side, fewer] : {std::pair{16, 17}, std::pair{48, 49}}) {
        CaptureBox box(TestScreen(200, 150), side);
        EXPECT_EQ(box.SpriteSide(), side + 2);
        EXPECT_EQ(box.MaxX() + 1, 200 - fewer);
        EXPECT_EQ(box.MaxY() + 1, 150 - fewer);
        box.PointerMoved(500, -4);
        EXPECT_EQ(box.PointerX(), box.MaxX());
        EXPECT_EQ(box.PointerY(), 0);
        // The box at the far corner touches the screen's last pixel and no further.
        box.PointerMoved(box.MaxX(), box.MaxY());
        EXPECT_EQ(box.PointerX() + box.SpriteSide(), 200);
        EXPECT_EQ(box.PointerY() + box.SpriteSide(), 150);
    }
}

TEST(CaptureBox, TheBoxShowsItsBorderOverTheScreenAndTakesWhatLiesInside) {
    const Surface screen = TestScreen(120, 90);
    CaptureBox box(screen, 16);
    box.PointerMoved(30, 40);
    const Surface& shown = box.Tick();
    ASSERT_EQ(shown.Width(), 18);
    for (int y = 0; y < 18; ++y)
        for (int x = 0; x < 18; ++x) {
            const bool border = x == 0 || y == 0 || x == 17 || y == 17;
            const Color expected = border ? box.Sprite().GetPixel(18 + x, y) : screen.GetPixel(30 + x, 40 + y);
            ASSERT_EQ(shown.GetPixel(x, y), expected) << x << "," << y;
        }
    box.Release(true);
    EXPECT_TRUE(box.Done());
    EXPECT_FALSE(box.Cancelled());
    ASSERT_EQ(box.Picture().Width(), 16);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) ASSERT_EQ(box.Picture().GetPixel(x, y), screen.GetPixel(31 + x, 41 + y));

    CaptureBox right(screen, 32);
    right.Release(false);
    EXPECT_TRUE(right.Cancelled());
}

class CaptureFlow : public UtilitiesSession {
protected:
    void Capture() { s.RunMenuItem("mnuExtractCapture"); }
    static host::CaptureAnswer Taken(const Surface& picture) {
        return {host::CaptureOutcome::Taken, picture};
    }
};

TEST_F(CaptureFlow, TheSquareBecomesAnIconWithoutTransparentPixels) {
    NewIconWith(1, {"rg", "b."});
    s.RunMenuItem("mnuRotateSubmenu(0)");  // changed: the capture replaces it without asking
    const Surface picture = TestScreen(16, 16);
    host.AnswerCapture(Taken(picture));
    Capture();
    EXPECT_EQ(host.captureSides, std::vector<int>{16});
    EXPECT_TRUE(SamePixels(s.Icon().Image(), picture));
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) ASSERT_EQ(s.Icon().Mask().GetPixel(x, y), 0u);
    const session::IconSlot& r = s.Current();
    EXPECT_EQ(r.KindText, "Screen capture");
    EXPECT_EQ(r.FileSpec, "Captured");
    EXPECT_EQ(r.ColorCount, -1);
    EXPECT_EQ(r.BitsPerPixel, 24);
    EXPECT_EQ(r.SizeCode, 1);
    EXPECT_TRUE(r.Occupied && r.InEditingArea && r.NeverSaved);
    EXPECT_FALSE(r.Changed || r.HasAlpha || r.HasHotspot || r.MultiIconFile);
    EXPECT_TRUE(SamePixels(s.Icon().Composed(), picture));
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text,
              "Reminder:  Since the incoming image is of bitmap format,\r\n"
              "use Erase, or Fill (+Shift Key), to create transparent area(s).");
    EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Information);
    EXPECT_EQ(s.Form().Status.Panel[0], "Captured");
}

TEST_F(CaptureFlow, ACancelledCaptureLeavesTheIcon) {
    NewIconWith(2, {"rg", "b."});
    s.ClickTool(tools::Tool::Fill);
    const Surface image = s.Icon().Image();
    host.AnswerCapture({});
    Capture();
    EXPECT_EQ(host.captureSides, std::vector<int>{48});
    EXPECT_TRUE(SamePixels(s.Icon().Image(), image));
    EXPECT_EQ(s.Current().KindText, "New icon");
    EXPECT_EQ(s.Form().SelectedTool, tools::Tool::None);  // the tools are cleared all the same
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(CaptureFlow, ADisplayThatRefusesSaysSoAndLeavesTheIcon) {
    NewIconWith(0, {"r"});
    s.RunMenuItem("mnuOptionsRemindIfBMP");  // off
    host.AnswerCapture({host::CaptureOutcome::Unavailable, {}});
    Capture();
    EXPECT_EQ(OnlyMessage(), session::CaptureUnavailableMessage());
    EXPECT_EQ(s.Current().KindText, "New icon");
    // A picture of the wrong size is not taken either; no reminder with the option off.
    host.AnswerCapture(Taken(TestScreen(16, 16)));
    Capture();
    EXPECT_EQ(s.Current().KindText, "New icon");
    host.AnswerCapture(Taken(TestScreen(32, 32)));
    Capture();
    EXPECT_EQ(s.Current().KindText, "Screen capture");
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(CaptureFlow, NeedsAnIconInTheEditingArea) {
    Capture();
    EXPECT_EQ(OnlyMessage(), "No icon in Editing Area yet");
    EXPECT_TRUE(host.captureSides.empty());
}

}  // namespace
}  // namespace vexlo::test
