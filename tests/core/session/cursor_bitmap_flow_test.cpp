// Cursor files and pictures through the session: open, the record, save as cursor, import.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/files/bmp_write.h"
#include "core/files/cursor_file.h"
#include "core/session/session.h"
#include "support/scripted_host.h"
#include "support/test_folder.h"

namespace vexlo::test {
namespace {

namespace fs = std::filesystem;
using host::MsgAnswer;
using surface::Color;
using surface::Surface;

class CursorBitmapFlowTest : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
    }
    std::string Path(const std::string& name) const { return folder.Path(name); }
    // A 32x32 cursor file of the given colors in stripes, with one transparent corner.
    std::string MakeCursor(const char* name, std::vector<Color> colors, int hx, int hy) {
        Surface image(32, 32, 0), mask(32, 32, 0);
        image.Fill(0);
        mask.Fill(0);
        for (int x = 0; x < 32; ++x)
            for (int y = 0; y < 32; ++y) image.SetPixelV(x, y, colors[static_cast<std::size_t>(x) % colors.size()]);
        image.SetPixelV(0, 0, 0);
        mask.SetPixelV(0, 0, 0xFFFFFF);
        EXPECT_TRUE(files::WriteCursorFile(image, mask, Path(name), hx, hy));
        return Path(name);
    }
    TestFolder folder{"vexlo_curbmp"};
    const fs::path& dir = folder.Dir();
    ScriptedHost host;
    session::Session s{host};
};

TEST_F(CursorBitmapFlowTest, ACursorOpensWithItsHotspotAndDepth) {
    const std::string path = MakeCursor("c.cur", {0x010203, 0x040506, 0x070809, 0x0A0B0C}, 31, 31);
    host.AnswerOpen(path);
    s.RunMenuItem("mnuFileOpen(2)");
    const session::IconSlot& slot = s.Current();
    EXPECT_EQ(slot.KindText, "CUR file");
    EXPECT_TRUE(slot.HasHotspot);
    EXPECT_EQ(slot.HotspotX, 31);
    EXPECT_EQ(slot.HotspotY, 31);
    EXPECT_EQ(slot.ColorCount, 256);  // four colors, written at 8 bits
    EXPECT_EQ(slot.BitsPerPixel, 8);
    EXPECT_EQ(s.Icon().Image().GetPixel(1, 5), 0x040506u);
    EXPECT_EQ(s.Icon().Mask().GetPixel(0, 0), 0xFFFFFFu);
    EXPECT_EQ(s.Icon().Composed().GetPixel(0, 0), 0xC0C0C0u);
    EXPECT_EQ(s.CurrentPath(), path);
}

TEST_F(CursorBitmapFlowTest, AHotspotOutsideTheImageIsAnInvalidCursor) {
    std::string path = MakeCursor("bad.cur", {0xFFFFFF}, 0, 0);
    {
        std::fstream f(path, std::ios::in | std::ios::out | std::ios::binary);
        f.seekp(10);
        f.put(32);  // the hotspot's x in the directory entry
    }
    host.AnswerOpen(path);
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileOpen(2)");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::InvalidCursorFileMessage(path));
    EXPECT_FALSE(s.Current().Occupied);
}

TEST_F(CursorBitmapFlowTest, SaveAsCursorTakesTheHotspotListsAndKeepsTheRecord) {
    host.Answer(MsgAnswer::Ok);
    s.FileNew(1);
    s.RunMenuItem("mnuFileSaveAsCursor");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, files::kCursorOf32Only);

    s.FileNew(0);
    s.RunMenuItem("mnuFileSaveAsCursor");
    EXPECT_EQ(s.Form().VisibleFrame, session::Frame::SaveAsCursor);
    EXPECT_EQ(s.Form().CursorHotSpot, (std::array<int, 2>{0, 0}));
    s.PointerReleased(5 * 12 + 3, 9 * 12 + 3, false);  // a click on the Editing Area
    EXPECT_EQ(s.Form().CursorHotSpot, (std::array<int, 2>{5, 9}));
    host.AnswerSave(Path("out.cur"));
    EXPECT_TRUE(s.SaveDialogFlow(3));
    EXPECT_EQ(s.Form().VisibleFrame, session::Frame::ColorsPanel);
    const files::CursorProbe probe = files::ProbeCursorFile(Path("out.cur"));
    EXPECT_TRUE(probe.Valid);
    EXPECT_EQ(probe.HotspotX, 5);
    EXPECT_EQ(probe.HotspotY, 9);
    EXPECT_EQ(s.Current().FileSpec, "Untitled");  // the cursor is an export
}

TEST_F(CursorBitmapFlowTest, PicturesImportAtTheirIconSize) {
    const struct {
        int w, h;
        bool asks;
        int side;
    } cases[] = {{32, 32, false, 32}, {20, 10, true, 32}, {100, 60, true, 48}, {16, 16, false, 16}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.w) + "x" + std::to_string(c.h));
        Surface picture(c.w, c.h, 0);
        picture.Fill(0x3366CC);
        picture.SetPixelV(1, 1, 0xC0C0C0);  // gray becomes transparent
        const std::string path = Path("p.bmp");
        host.pictures[path] = picture;
        host.AnswerOpen(path);
        if (c.asks) host.Answer(MsgAnswer::Yes);
        host.Answer(MsgAnswer::Ok);  // the reminder to make transparent areas
        host.shown.clear();
        s.RunMenuItem("mnuFileOpen(3)");
        ASSERT_EQ(host.shown.size(), c.asks ? 2u : 1u);
        if (c.asks) {
            EXPECT_EQ(host.shown[0].text, files::NotIconSizeQuestion(c.w, c.h));
        }
        EXPECT_EQ(s.Icon().Image().Width(), c.side);
        EXPECT_EQ(s.Current().KindText, "BMP or other file");
        EXPECT_EQ(s.Current().FileSpec, "BmpToIcon");
        EXPECT_EQ(s.Icon().Mask().GetPixel(1, 1), 0xFFFFFFu);
        EXPECT_EQ(s.Icon().Image().GetPixel(0, 0), 0x3366CCu);
        const int beyond = std::min(c.w, c.side);
        if (beyond < c.side) {
            EXPECT_EQ(s.Icon().Mask().GetPixel(beyond, 0), 0xFFFFFFu);  // past the picture: transparent
        }
        s.Current().Changed = false;
    }
}

TEST_F(CursorBitmapFlowTest, NoToTheSizeQuestionLeavesTheSlot) {
    s.FileNew(0);
    host.pictures[Path("big.bmp")] = Surface(64, 64, 0);
    host.AnswerOpen(Path("big.bmp"));
    host.Answer(MsgAnswer::No);
    s.RunMenuItem("mnuFileOpen(3)");
    EXPECT_EQ(s.Current().KindText, "New icon");
    host.AnswerOpen(Path("unreadable.wmf"));
    host.Answer(MsgAnswer::Ok);
    s.RunMenuItem("mnuFileOpen(3)");
    EXPECT_EQ(host.shown.back().text, files::PictureNotLoadedMessage(Path("unreadable.wmf")));
    EXPECT_EQ(s.Current().KindText, "New icon");
}

// A bitmap that can't be written: the common error box of the save, and the slot as it was.
TEST_F(CursorBitmapFlowTest, ABitmapThatCannotBeWrittenShowsTheCommonErrorBox) {
    s.FileNew(0);
    s.Current().Changed = true;
    fs::create_directory(Path("folder.bmp"));
    const struct {
        std::string path;
        std::string text;
    } cases[] = {
        {Path("no/such/icon.bmp"), "mnuFileSaveAsBitmap\r\n2     No such file or directory"},
        {Path("folder.bmp"), "mnuFileSaveAsBitmap\r\n13     Permission denied"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path);
        host.shown.clear();
        host.AnswerSave(c.path);
        host.Answer(MsgAnswer::Ok);
        s.RunMenuItem("mnuFileSaveAsBitmap");
        ASSERT_EQ(host.shown.size(), 1u);
        EXPECT_EQ(host.shown[0].text, c.text);
        EXPECT_EQ(host.shown[0].title, "Vexlo");
        EXPECT_TRUE(s.Current().Changed);
    }
    host.AnswerSave(Path("icon.bmp"));
    s.RunMenuItem("mnuFileSaveAsBitmap");
    EXPECT_FALSE(s.Current().Changed);
    EXPECT_TRUE(fs::is_regular_file(Path("icon.bmp")));
}

}  // namespace
}  // namespace vexlo::test
