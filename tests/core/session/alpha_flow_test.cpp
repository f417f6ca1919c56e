// Alpha values through the session: kept by loads, saves and slot switches, and changed only by
// the alpha editor's answers.
#include <gtest/gtest.h>

#include "core/alpha/alpha_draw.h"
#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"
#include "core/files/ico_write.h"
#include "core/session/alpha_editor/alpha_editor.h"
#include "core/session/session.h"
#include "support/scripted_host.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

using host::MsgAnswer;
using surface::Color;
using surface::Rgb;
using surface::Surface;

// The planes and values of a test icon: the left three quarters painted, the rest
// transparent. colors 0 gives a gradient of many colors, else that many of the standard
// sixteen colors in bands.
struct TestIcon {
    TestIcon(int side, int colors, int seed) : image(side, side, 0), mask(side, side, 0) {
        values.SetBounds(side - 1);
        for (int x = 0; x < side; ++x)
            for (int y = 0; y < side; ++y) {
                const bool painted = x < side * 3 / 4;
                static const Color kStandard[] = {Rgb(255, 0, 0), Rgb(0, 0, 255), Rgb(255, 255, 0), Rgb(0, 128, 0)};
                const Color c = colors == 0 ? Rgb(x * 5, y * 5, 128) : kStandard[y % colors];
                image.SetPixelV(x, y, painted ? c : 0);
                mask.SetPixelV(x, y, painted ? 0 : 0xFFFFFF);
                values.At(x, y) = painted ? static_cast<std::uint8_t>(1 + (x * 7 + y * 13 + seed) % 255) : 0;
            }
    }
    void Write(const std::string& path, bool withAlpha) const {
        files::IconWriteOptions options;
        options.Alpha = withAlpha;
        options.KeepTrueColor = withAlpha;
        options.AlphaValues = &values;
        ASSERT_TRUE(files::WriteIconFile(image, mask, path, options));
    }
    Surface image, mask;
    alpha::AlphaArray values;
};

bool SameValues(const alpha::AlphaArray& a, const alpha::AlphaArray& b) {
    if (a.Side() != b.Side()) return false;
    for (int x = 0; x < a.Side(); ++x)
        for (int y = 0; y < a.Side(); ++y)
            if (a.At(x, y) != b.At(x, y)) return false;
    return true;
}

class AlphaFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
    }
    std::string Path(const std::string& name) const { return folder.Path(name); }
    // The alpha values that image 0 of the file at path holds; single when none.
    static alpha::AlphaArray ValuesIn(const std::string& path) {
        Surface image, mask;
        alpha::AlphaArray values;
        EXPECT_TRUE(files::ReadIconFileToImage(path, 0, image, mask, values)) << path;
        return values;
    }
    static int BitsIn(const std::string& path) { return files::ProbeIconFile(path).BitCount; }
    // The editor run by the user: play() on its model, then its answer.
    void PlayEditor(std::function<void(session::AlphaEditor&)> play) {
        host.alphaEditor = [this, play](const host::AlphaEditorRequest& request) {
            session::AlphaEditor editor(host, request);
            play(editor);
            return editor.Answer();
        };
    }
    TestFolder folder{"vexlo_alpha"};
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(AlphaFlowTest, ValuesSurviveAnEditAndASaveAtEverySize) {
    for (int side : {16, 32, 48}) {
        SCOPED_TRACE(side);
        const TestIcon icon(side, 0, side);
        icon.Write(Path("soft.ico"), true);
        ASSERT_TRUE(s.LoadIconFile(Path("soft.ico"), false));
        EXPECT_EQ(s.Current().BitsPerPixel, 32);
        EXPECT_TRUE(s.Current().HasAlpha);
        EXPECT_TRUE(s.Panel().IncomingAlpha().IsSingle());
        s.ApplyToIcon([](Surface& image, Surface&) { image.SetPixelV(1, 1, Rgb(1, 2, 3)); });
        ASSERT_TRUE(s.SaveIconFile(Path("out.ico"), false));
        EXPECT_EQ(BitsIn(Path("out.ico")), 32);
        EXPECT_TRUE(SameValues(ValuesIn(Path("out.ico")), icon.values));
    }
}

TEST_F(AlphaFlowTest, EachOfSixSlotsKeepsItsOwnValues) {
    const int sides[6] = {16, 32, 48, 16, 48, 32};
    std::vector<TestIcon> icons;
    for (int k = 0; k < 6; ++k) {
        icons.emplace_back(sides[k], 0, k * 31);
        icons.back().Write(Path("slot" + std::to_string(k) + ".ico"), true);
        s.ClickPanel(k);
        ASSERT_TRUE(s.LoadIconFile(Path("slot" + std::to_string(k) + ".ico"), false));
    }
    for (int k : {3, 0, 5, 1, 4, 2}) {
        SCOPED_TRACE(k);
        s.ClickPanel(k);
        ASSERT_TRUE(s.SaveIconFile(Path("back.ico"), false));
        EXPECT_TRUE(SameValues(ValuesIn(Path("back.ico")), icons[static_cast<std::size_t>(k)].values));
    }
}

TEST_F(AlphaFlowTest, RefusalsComeBeforeTheEditor) {
    struct Case {
        const char* name;
        int colors;       // of the file: 0 many (24 bits), else few (a color table)
        bool fakeAlpha;   // the record claims alpha values that the slot doesn't hold
        const char* text;
        MsgAnswer answer;
    };
    const Case cases[] = {
        {"true color", 0, false, "Current Icon has no Alpha Channel.  Proceed still?\r\n", MsgAnswer::No},
        {"palette", 3, false, "Current Icon is not a True Color icon.  Proceed still?\r\n", MsgAnswer::No},
        {"missing", 0, true, "Original alpha values for current icon missing/removed.\r\n", MsgAnswer::Ok},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TestIcon(32, c.colors, 0).Write(Path("plain.ico"), false);
        ASSERT_TRUE(s.LoadIconFile(Path("plain.ico"), false));
        if (c.fakeAlpha) {
            s.Current().HasAlpha = true;
            s.Current().BitsPerPixel = 32;
        }
        host.Answer(c.answer);
        s.RunMenuItem("mnuAlphaViewEditCreate");
        EXPECT_EQ(host.shown.back().text, c.text);
        EXPECT_EQ(host.alphaEditorRuns, 0);
    }
}

TEST_F(AlphaFlowTest, ExitLeavesSlotValuesAndPlanesAlone) {
    const TestIcon icon(32, 0, 5);
    icon.Write(Path("soft.ico"), true);
    ASSERT_TRUE(s.LoadIconFile(Path("soft.ico"), false));
    const Surface before = s.Icon().Image();
    PlayEditor([](session::AlphaEditor& editor) { editor.ClickAlpha(4); });
    s.RunMenuItem("mnuAlphaViewEditCreate");
    EXPECT_EQ(host.alphaEditorRuns, 1);
    EXPECT_TRUE(SamePixels(s.Icon().Image(), before));
    EXPECT_TRUE(s.Panel().IncomingAlpha().IsSingle());
    ASSERT_TRUE(s.SaveIconFile(Path("out.ico"), false));
    EXPECT_TRUE(SameValues(ValuesIn(Path("out.ico")), icon.values));
}

TEST_F(AlphaFlowTest, CreatedValuesSaveAThirtyTwoBitFile) {
    TestIcon(32, 0, 0).Write(Path("plain.ico"), false);
    ASSERT_TRUE(s.LoadIconFile(Path("plain.ico"), false));
    ASSERT_EQ(BitsIn(Path("plain.ico")), 24);
    host.Answer(MsgAnswer::Yes);  // no alpha channel: proceed
    PlayEditor([this](session::AlphaEditor& editor) {
        host.Answer(MsgAnswer::Yes);  // create
        editor.ClickAlpha(2);
        editor.ValueScrolled(99);
        editor.PointerPressed(0, 0);
        editor.PointerReleased(false);
        host.AnswerSave(Path("made.ico"));
        host.Answer(MsgAnswer::Yes);
        editor.ClickAlpha(3);
    });
    s.RunMenuItem("mnuAlphaViewEditCreate");
    const session::IconSlot& slot = s.Current();
    EXPECT_EQ(slot.BitsPerPixel, 32);
    EXPECT_EQ(slot.ColorCount, -1);
    EXPECT_TRUE(slot.HasAlpha);
    EXPECT_EQ(slot.FileSpec, Path("made.ico"));
    EXPECT_EQ(BitsIn(Path("made.ico")), 32);
    const alpha::AlphaArray values = ValuesIn(Path("made.ico"));
    ASSERT_EQ(values.UpperBound(), 31);
    EXPECT_EQ(values.At(0, 0), 99);
    EXPECT_EQ(values.At(1, 0), 255);
    EXPECT_EQ(values.At(31, 0), 0);
}

TEST_F(AlphaFlowTest, FlatteningSavesAtTheDepthThePixelsCallFor) {
    for (int k : {0, 1}) {
        SCOPED_TRACE(k);
        const TestIcon icon(16, 3, 0);  // three colors and black: a 16-color file once flat
        icon.Write(Path("soft.ico"), true);
        ASSERT_TRUE(s.LoadIconFile(Path("soft.ico"), false));
        const Surface before = s.Icon().Image();
        PlayEditor([this, k](session::AlphaEditor& editor) {
            host.Answer(MsgAnswer::Yes);
            host.AnswerSave(Path("flat.ico"));
            editor.ClickAlpha(k);
        });
        s.RunMenuItem("mnuAlphaViewEditCreate");
        EXPECT_EQ(s.Current().BitsPerPixel, 24);
        EXPECT_FALSE(s.Current().HasAlpha);
        EXPECT_TRUE(s.Panel().SlotAlpha().IsSingle());
        if (k == 1) {
            EXPECT_TRUE(SamePixels(s.Icon().Image(), before));
            EXPECT_EQ(BitsIn(Path("flat.ico")), 4);
        } else {
            // The blended colors replace the plain ones.
            EXPECT_EQ(s.Icon().Image().GetPixel(0, 0),
                      alpha::BlendOverBackground(before.GetPixel(0, 0), icon.values.At(0, 0)));
        }
        EXPECT_TRUE(ValuesIn(Path("flat.ico")).IsSingle());
    }
}

}  // namespace
}  // namespace vexlo::test
