// The Color Mixer through the session: bars, drags and buttons, the strip and swatches as
// color sources, and palette files saved and loaded through the dialogs, with every refusal
// leaving the strip as it was.
#include <gtest/gtest.h>

#include "core/color/mix_gradient.h"
#include "core/files/bmp_write.h"
#include "core/session/session.h"
#include "core/session/session_effect_frames.h"
#include "support/scripted_host.h"
#include "support/test_bytes.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

using surface::Color;
using surface::Rgb;
using surface::Surface;

class ColorMixerFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
        s.ClickPaletteSub(1);  // the mixer is up in the 256-Color Palette
    }
    const session::ColorMixer& m() const { return s.Mixer(); }
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(ColorMixerFlowTest, BarsSwatchesAndStrip) {
    EXPECT_EQ(m().Strip().GetPixel(0, 0), Rgb(255, 0, 0));
    EXPECT_FALSE(m().AdjEnabled().Lighten);
    EXPECT_EQ(m().BarText(1), "255");

    // A drag moves the swatches but not the strip; its end redraws it.
    s.Frames().ScrollMixBar(1, 100);
    EXPECT_EQ(m().SwatchColor(1), Rgb(0, 100, 0));
    EXPECT_EQ(m().SwatchColor(3), Rgb(255, 100, 255));
    EXPECT_EQ(m().BarText(1), "100");
    EXPECT_EQ(m().Strip().GetPixel(0, 50), Rgb(0, 255, 10));
    EXPECT_FALSE(m().AdjEnabled().Lighten);
    const int events = host.doEventsCount;
    s.Frames().ChangeMixBar(1, 100);
    EXPECT_EQ(m().Strip().GetPixel(0, 50), Rgb(0, 100, 10));
    EXPECT_TRUE(m().AdjEnabled().Lighten);
    EXPECT_GT(host.doEventsCount, events);

    s.Frames().ClickAdjMix(1);
    EXPECT_EQ(m().Bars(), (color::MixBars{238, 83, 238}));
    s.SetSelectedColor(0);
    s.Frames().ClickAdjMix(2);
    EXPECT_EQ(m().Bars(), (color::MixBars{0, 0, 0}));
    EXPECT_FALSE(m().AdjEnabled().Darken);
    EXPECT_EQ(m().Strip().GetPixel(20, 99), 0u);
}

TEST_F(ColorMixerFlowTest, StripAndSwatchesChooseTheColor) {
    s.Frames().PointerOverMixStrip(5, 30);
    const Color band31 = m().Strip().GetPixel(0, 30);
    EXPECT_EQ(s.Form().Status.Mix, color::MixLabelText(band31));
    ASSERT_TRUE(m().Marker().has_value());
    EXPECT_EQ(m().Marker()->Top, 28);
    EXPECT_EQ(m().Marker()->Width, session::kMixStripWidth - 1);
    EXPECT_EQ(s.SelectedColor(), 0xFFFFFFu);  // moving selects nothing

    s.Frames().PointerOverMixStrip(5, 100);  // off the strip: nothing follows
    EXPECT_EQ(m().Marker()->Top, 28);
    s.Frames().ReleaseOnMixStrip(-1, 30);
    EXPECT_EQ(s.SelectedColor(), 0xFFFFFFu);
    s.Frames().PressOnMixStrip(5, 30);
    EXPECT_EQ(s.SelectedColor(), band31);
    s.Frames().ReleaseOnMixStrip(0, 99);
    EXPECT_EQ(s.SelectedColor(), m().Strip().GetPixel(0, 99));
    s.Frames().ReleaseOnMixSwatch(2);
    EXPECT_EQ(s.SelectedColor(), Rgb(0, 0, 255));
    s.Frames().ReleaseOnMixSwatch(3);
    EXPECT_EQ(s.SelectedColor(), 0xFFFFFFu);
    s.Frames().ChangeMixBar(0, 7);
    EXPECT_EQ(s.Form().Status.Mix, "");
}

TEST_F(ColorMixerFlowTest, PaletteSavedAndLoadedBack) {
    TestFolder folder("vexlo_mixer");
    const std::string path = folder.Path("mine.pal");
    s.Frames().ChangeMixBar(0, 120);
    const Surface saved = m().Strip();
    host.AnswerSave(path);
    s.RunMenuItem("mnuPaletteSub(4)");
    ASSERT_EQ(host.saveRequests.size(), 1u);
    EXPECT_EQ(host.saveRequests[0].Filter, "Palette file (*.pal)|*.*|");
    EXPECT_EQ(host.saveRequests[0].DefaultExt, "pal");
    EXPECT_EQ(host.saveRequests[0].InitDir, s.Dirs().ProgramDir);
    EXPECT_EQ(ReadBytes(path), files::BuildBmpBytes(saved));

    s.Frames().ChangeMixBar(0, 255);
    ASSERT_FALSE(SamePixels(m().Strip(), saved));
    host.AnswerOpen(path);
    s.RunMenuItem("mnuPaletteSub(3)");
    EXPECT_EQ(host.openRequests.back().Filter, "Palette file (*.pal)|*.pal|");
    EXPECT_TRUE(SamePixels(m().Strip(), saved));
    EXPECT_EQ(m().Bars()[0], 255);  // the bars stay

    host.AnswerOpen("");  // cancelled
    s.Frames().LoadPalette();
    EXPECT_TRUE(SamePixels(m().Strip(), saved));
}

TEST_F(ColorMixerFlowTest, PalettesOfOtherSizes) {
    TestFolder folder("vexlo_mixer");
    const struct {
        int W, H;
        const char* Message;  // none: loads
    } cases[] = {
        {40, 100, nullptr},
        {42, 102, nullptr},
        {43, 100, "Not a valid pal file for Vexlo (2)"},
        {39, 100, "Not a valid pal file for Vexlo (1)"},
        {43, 99, "Not a valid pal file for Vexlo (1)"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.W << "x" << c.H);
        const Surface before = m().Strip();
        Surface picture(c.W, c.H, 0xFFFFFF);
        picture.Fill(Rgb(c.W, c.H, 7));
        const std::string path = folder.Path(std::to_string(c.W) + "x" + std::to_string(c.H) + ".pal");
        ASSERT_TRUE(files::WriteBmpFile(picture, path));
        host.AnswerOpen(path);
        if (c.Message) host.Answer(host::MsgAnswer::Ok);
        s.Frames().LoadPalette();
        if (c.Message) {
            EXPECT_EQ(host.shown.back().text, c.Message);
            EXPECT_TRUE(SamePixels(m().Strip(), before));
        } else {
            EXPECT_EQ(m().Strip().GetPixel(39, 99), Rgb(c.W, c.H, 7));
        }
    }
}

TEST_F(ColorMixerFlowTest, UnreadablePalettesSayWhy) {
    TestFolder folder("vexlo_mixer");
    const Surface before = m().Strip();
    ByteVec cut = files::BuildBmpBytes(Surface(40, 100, 0));
    cut.pop_back();
    WriteBytes(folder.Path("cut.pal"), cut);
    WriteBytes(folder.Path("riff.pal"), ByteVec{'R', 'I', 'F', 'F', 4, 0, 0, 0, 'P', 'A', 'L', ' '});
    host.pictures[folder.Path("png.pal")] = Surface(41, 101, 0x00FF00);  // a picture the platform reads
    WriteBytes(folder.Path("png.pal"), ByteVec{0x89, 'P', 'N', 'G'});
    const struct {
        std::string Name, Text;
    } cases[] = {
        {"cut.pal", "Invalid pal for Vexlo\r\n481     Invalid picture: the pixel rows run past the end of the file"},
        {"riff.pal", "Invalid pal for Vexlo\r\n481     Invalid picture"},
        {"none.pal", "Invalid pal for Vexlo\r\n53     File not found"},
    };
    for (const auto& c : cases) {
        host.AnswerOpen(folder.Path(c.Name));
        host.Answer(host::MsgAnswer::Ok);
        s.Frames().LoadPalette();
        EXPECT_EQ(host.shown.back().text, c.Text);
        EXPECT_TRUE(SamePixels(m().Strip(), before));
    }
    host.AnswerOpen(folder.Path("png.pal"));
    s.Frames().LoadPalette();
    EXPECT_EQ(m().Strip().GetPixel(0, 0), 0x00FF00u);

    // A save that can't be written: the common error box, and nothing else.
    host.AnswerSave(folder.Path("no/such/folder.pal"));
    host.Answer(host::MsgAnswer::Ok);
    s.Frames().SavePalette();
    EXPECT_EQ(host.shown.back().text.rfind("picSavePalette_Click\r\n2     ", 0), 0u) << host.shown.back().text;
}

}  // namespace
}  // namespace vexlo::test
