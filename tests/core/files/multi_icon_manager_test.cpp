// The multi-icon dialog's model driven headless through a ScriptedHost: activation, previews
// read from the disk, Edit's hand-over, removal from the set in memory and the selection
// after it, split and single saves, and the answers of the Add face.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>

#include "core/files/multi_icon_manager.h"
#include "multi_icon_test_files.h"
#include "support/icon_set_checks.h"
#include "support/scripted_host.h"
#include "support/test_folder.h"

namespace vexlo::files {
namespace {

using host::MsgAnswer;
using surface::Color;
using test::kThreePics;
using test::Pic;
using ByteVec = std::vector<std::uint8_t>;

constexpr Color kGray = 0xC0C0C0;
constexpr Color kBlue = surface::Rgb(0, 0, 255);

bool operator==(const MultiIconButtons& a, const MultiIconButtons& b) {
    return a.Edit == b.Edit && a.Remove == b.Remove && a.SplitSave == b.SplitSave &&
           a.SaveSingle == b.SaveSingle && a.Save == b.Save && a.SaveAs == b.SaveAs;
}

// Images of the given sides; a side that comes again is white (2 colors), so that no two
// images are of one size and depth.
std::vector<Pic> Sides(const std::vector<int>& sides) {
    std::vector<Pic> pics;
    for (std::size_t i = 0; i < sides.size(); ++i) {
        const int side = sides[i];
        const bool again = std::find(sides.begin(), sides.begin() + static_cast<std::ptrdiff_t>(i), side) !=
                           sides.begin() + static_cast<std::ptrdiff_t>(i);
        pics.push_back({side, again ? 0xFFFFFF : side == 16 ? surface::Rgb(255, 0, 0) : surface::Rgb(10, 20, 30)});
    }
    return pics;
}

class MultiIconManagerTest : public ::testing::Test {
protected:
    std::string Make(const std::vector<Pic>& pics, const char* name = "name.ico") {
        const std::string path = folder.Path(name);
        test::WriteFileBytes(path, test::MultiIconBytes(pics));
        return path;
    }
    std::unique_ptr<MultiIconManager> Open(const std::string& path, int mode = 0) {
        auto m = std::make_unique<MultiIconManager>(host, path, mode, "/program");
        EXPECT_TRUE(m->Activate());
        return m;
    }
    static std::vector<int> Widths(const std::string& path) {
        IconSet set;
        ReadIconSet(path, set);
        std::vector<int> widths;
        for (const IconImage& img : set.Images) widths.push_back(img.Entry.Width);
        return widths;
    }
    void TearDown() override { EXPECT_EQ(host.hourglassDepth, 0); }

    vexlo::test::TestFolder folder{"vexlo_multi_icon_manager"};
    vexlo::test::ScriptedHost host;
};

TEST_F(MultiIconManagerTest, ActivationFillsTheListSelectsAndPreviews) {
    constexpr MultiIconButtons all;
    constexpr MultiIconButtons onlyEdit{true, false, false, false, true, true};
    constexpr MultiIconButtons noneEdit{false, false, false, false, true, true};
    constexpr MultiIconButtons noneAdd{true, false, false, false, false, false};
    const struct {
        std::vector<int> sides;
        int mode;
        int selected, previewSide;
        MultiIconButtons buttons;
        MultiIconFocus focus;
    } cases[] = {
        {{16, 32, 48}, 0, 1, 32, all, MultiIconFocus::None},  // Edit picks the 32x32
        {{16, 32, 48}, 1, 0, 16, all, MultiIconFocus::Save},  // Add takes the first line
        {{32}, 0, 0, 32, onlyEdit, MultiIconFocus::None},     // the only image stays
        {{64, 64}, 0, -1, 0, noneEdit, MultiIconFocus::None}, // nothing listed: only Close
        {{64, 64}, 1, -1, 0, noneAdd, MultiIconFocus::None},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.sides.size() << " images, mode " << c.mode);
        auto m = Open(Make(Sides(c.sides)), c.mode);
        EXPECT_STREQ(m->Caption(), c.mode == 1 ? "Add Icon To Existing Icon File" : "Edit Icon In Multi-Icon File");
        EXPECT_FALSE(m->ListGuard());
        EXPECT_FALSE(m->FirstActivation());
        EXPECT_EQ(m->Selected(), c.selected);
        EXPECT_EQ(m->IconInFile(c.mode).Width(), c.previewSide);
        EXPECT_TRUE(m->Buttons() == c.buttons);
        EXPECT_EQ(m->TakeFocus(), c.focus);
        EXPECT_EQ(m->TakeFocus(), MultiIconFocus::None);
    }
    auto m = Open(Make(kThreePics));
    ASSERT_EQ(m->List().Count(), 3);
    EXPECT_EQ(m->List().Items[0].Line, "Ref 1  \t4 BPP\t16-Color\t  16 x 16");
    EXPECT_EQ(m->List().Items[1].Line, "Ref 2  \t8 BPP\t256-Color\t  32 x 32");
    EXPECT_EQ(m->List().Items[2].Line, "Ref 3  \t1 BPP\t2-Color\t  48 x 48");
}

TEST_F(MultiIconManagerTest, AFileThatCannotBeReadClosesAtOnceWithoutAWord) {
    const std::string good = Make(kThreePics);
    ByteVec cut = test::ReadFileBytes(good);
    cut.resize(30);
    test::WriteFileBytes(folder.Path("cut.ico"), cut);
    test::WriteFileBytes(folder.Path("text.ico"), ByteVec{'h', 'e', 'l', 'l', 'o', '!', '!'});
    for (const char* name : {"missing.ico", "cut.ico", "text.ico"}) {
        MultiIconManager m(host, folder.Path(name), 0);
        EXPECT_FALSE(m.Activate()) << name;
        EXPECT_TRUE(m.Closed()) << name;
        EXPECT_EQ(m.Answer().Choice, "") << name;
        EXPECT_TRUE(host.shown.empty()) << name;
    }
}

TEST_F(MultiIconManagerTest, EachPreviewIsAFreshReadAndAFailedOneKeepsThePicture) {
    const std::string path = Make(kThreePics);
    auto m = Open(path);
    const struct {
        int position, side;
        Color fill;
    } cases[] = {{0, 16, surface::Rgb(255, 0, 0)}, {2, 48, 0xFFFFFF}, {1, 32, surface::Rgb(10, 20, 30)}};
    for (const auto& c : cases) {
        m->Highlight(c.position);
        const surface::Surface& shown = m->IconInFile(0);
        ASSERT_EQ(shown.Width(), c.side);
        EXPECT_EQ(shown.GetPixel(0, 0), kGray) << c.side;  // the transparent pixel on gray
        EXPECT_EQ(shown.GetPixel(c.side - 1, c.side - 1), c.fill) << c.side;
    }
    // The file changes on disk: the next preview shows what it now holds.
    test::WriteFileBytes(path, test::MultiIconBytes({{16, kBlue}, kThreePics[1], kThreePics[2]}));
    m->Highlight(0);
    EXPECT_EQ(m->IconInFile(0).GetPixel(5, 5), kBlue);

    // An image that can no longer be read: the message; the selection moves, the picture stays.
    ByteVec cut = test::ReadFileBytes(path);
    cut.resize(200);
    test::WriteFileBytes(path, cut);
    host.Answer(MsgAnswer::Ok);
    m->Highlight(2);
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "Ref 3\r\nUnable to get this one");
    EXPECT_EQ(host.shown[0].title, "Vexlo");
    EXPECT_EQ(m->Selected(), 2);
    EXPECT_EQ(m->IconInFile(0).GetPixel(5, 5), kBlue);
}

TEST_F(MultiIconManagerTest, EditHandsOverTheImageLastPreviewedAtTheChosenSize) {
    const std::string path = Make({kThreePics[0], {32, surface::Rgb(1, 2, 3), true}});
    // The 32 BPP image, picked and previewed, with its alpha values.
    auto m = Open(path);
    // The file changes after the preview: Edit hands over what the preview read.
    test::WriteFileBytes(path, test::MultiIconBytes({kThreePics[0], {32, kBlue, true}}));
    m->Edit();
    EXPECT_TRUE(m->Closed());
    const host::MultiIconAnswer a = m->Answer();
    EXPECT_EQ(a.Choice, "01/32/-1/32");
    EXPECT_EQ(a.Image.GetPixel(1, 1), surface::Rgb(1, 2, 3));
    EXPECT_EQ(a.Mask.GetPixel(0, 0), 0xFFFFFFu);
    EXPECT_EQ(a.Mask.GetPixel(1, 1), 0u);
    ASSERT_EQ(a.Alpha.Side(), 32);
    EXPECT_EQ(a.Alpha.At(31, 31), 200);

    // A preview that failed leaves the planes of the image read before; they go at the size
    // of the chosen line, the rest transparent.
    m = Open(path);
    m->Highlight(0);
    ByteVec cut = test::ReadFileBytes(path);
    cut.resize(400);
    test::WriteFileBytes(path, cut);
    host.Answer(MsgAnswer::Ok);
    m->Highlight(1);
    m->Edit();
    const host::MultiIconAnswer stale = m->Answer();
    EXPECT_EQ(stale.Choice, "01/32/-1/32");
    ASSERT_EQ(stale.Image.Width(), 32);
    EXPECT_EQ(stale.Image.GetPixel(1, 1), surface::Rgb(255, 0, 0));
    EXPECT_EQ(stale.Mask.GetPixel(20, 20), 0xFFFFFFu);

    // A depth the reader can't open: the preview fails, Edit refuses and stays.
    ByteVec bytes = test::ReadFileBytes(Make({kThreePics[1]}, "sixteen.ico"));
    bytes[6 + 6] = 16;  // wBitCount of the entry
    test::WriteFileBytes(folder.Path("sixteen.ico"), bytes);
    host.Answer(MsgAnswer::Ok);
    m = Open(folder.Path("sixteen.ico"));
    host.Answer(MsgAnswer::Ok);
    m->Edit();
    EXPECT_EQ(host.shown.back().text, "Selected item is of True Color but not 24 BPP or 32 BPP.\r\n");
    EXPECT_FALSE(m->Closed());
    EXPECT_EQ(m->Answer().Choice, "");
}

TEST_F(MultiIconManagerTest, RemovalSelectsByTheRemovedImagesIndex) {
    const struct {
        std::vector<int> sides;  // 64: an image with no line
        int position;
        MsgAnswer answer;
        std::vector<int> after;  // the widths the file then holds
        int selected, previewSide;
    } cases[] = {
        {{16, 32, 48}, 1, MsgAnswer::No, {16, 32, 48}, 1, 32},
        {{16, 32, 48}, 2, MsgAnswer::Yes, {16, 32}, 1, 32},  // the last line: the one above
        {{16, 32, 48}, 0, MsgAnswer::Yes, {32, 48}, 0, 32},  // the new first line
        {{16, 32, 48}, 1, MsgAnswer::Yes, {16, 48}, 1, 48},
        // Image 1 goes; two lines stay, so image index 1 names position 1, not position 0.
        {{64, 16, 32, 48}, 0, MsgAnswer::Yes, {64, 32, 48}, 1, 48},
        // Image 4 goes; its index is past the two lines left, and so is the one above: the
        // removal ends with the list as filled (the 32x32 picked) and no new preview.
        {{64, 64, 16, 32, 48}, 2, MsgAnswer::Yes, {64, 64, 16, 32}, 1, 48},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.sides.size() << " images, position " << c.position);
        const std::string path = Make(Sides(c.sides));
        auto m = Open(path);
        m->Highlight(c.position);
        host.Answer(c.answer);
        m->Remove();
        ASSERT_EQ(host.shown.size(), 1u);
        std::string question = "Permanently remove the selected icon from the multi-icon file.\r\n";
        question += path;
        question += "\r\n\r\nSure to remove this icon permanently?\r\n\r\n";
        EXPECT_EQ(host.shown[0].text, question);
        EXPECT_EQ(host.shown[0].buttons, host::MsgButtons::YesNo);
        EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Question);
        host.shown.clear();
        EXPECT_EQ(Widths(path), c.after);
        EXPECT_TRUE(vexlo::test::NoTwoImagesOfOneSizeAndDepth(path));
        EXPECT_EQ(m->Set().Count(), static_cast<int>(c.after.size()));
        EXPECT_EQ(m->Selected(), c.selected);
        EXPECT_EQ(m->IconInFile(0).Width(), c.previewSide);
        EXPECT_EQ(m->TakeFocus(), MultiIconFocus::List);
    }
}

TEST_F(MultiIconManagerTest, RemovalWritesTheSetHeldInMemoryNotTheDisk) {
    const std::string path = Make(kThreePics);
    auto m = Open(path);
    const IconSet held = m->Set();
    // Someone else rewrites the file meanwhile.
    test::WriteFileBytes(path, test::MultiIconBytes({{16, kBlue}, {32, kBlue}, {48, 0}}));
    m->Highlight(0);
    host.Answer(MsgAnswer::Yes);
    m->Remove();
    IconSet expected = held;
    ASSERT_TRUE(RemoveImageFromSet(expected, 0));
    EXPECT_EQ(test::ReadFileBytes(path), BuildIconSetBytes(expected));
    EXPECT_TRUE(vexlo::test::NoTwoImagesOfOneSizeAndDepth(path));
}

TEST_F(MultiIconManagerTest, ARemovalThatCannotWriteLeavesTheListAndStopsTheFileButtons) {
    const std::string path = Make(kThreePics);
    auto m = Open(path);
    // The file's name now names a folder: the rewrite fails.
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    host.Answer(MsgAnswer::Yes);
    host.Answer(MsgAnswer::Ok);
    m->Remove();
    ASSERT_EQ(host.shown.size(), 2u);
    EXPECT_EQ(host.shown[1].text, "Failed to update the file for this icon.");
    EXPECT_EQ(host.shown[1].title, "Vexlo");
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Dir()), std::filesystem::directory_iterator()), 1);
    EXPECT_EQ(m->Set().Count(), 0);
    EXPECT_EQ(m->List().Count(), 3);
    // The set is gone: Remove, Split Save and Save Single ask nothing (the host would fail).
    m->Remove();
    m->SplitSave();
    m->SaveSingle();
    EXPECT_EQ(host.shown.size(), 2u);

    // A file of one image keeps it.
    auto one = Open(Make({kThreePics[0]}, "one.ico"));
    const ByteVec before = test::ReadFileBytes(folder.Path("one.ico"));
    host.Answer(MsgAnswer::Ok);
    one->Remove();
    EXPECT_EQ(host.shown.back().text, "Not allowed to delete the last icon in file");
    EXPECT_EQ(test::ReadFileBytes(folder.Path("one.ico")), before);
}

TEST_F(MultiIconManagerTest, SplitSaveWritesEveryLineFromMemoryAndComesBack) {
    const struct {
        const char* folderAnswer;  // "" cancels
        bool asked;
        MsgAnswer answer;
        bool written;
    } cases[] = {{"", false, MsgAnswer::No, false}, {"out", true, MsgAnswer::No, false}, {"out", true, MsgAnswer::Yes, true}};
    const std::string out = folder.Path("out");
    std::filesystem::create_directory(out);
    for (const auto& c : cases) {
        const std::string path = Make(kThreePics);
        auto m = Open(path);
        const IconSet held = m->Set();
        // The saves copy the bytes held since the file was read.
        test::WriteFileBytes(path, test::MultiIconBytes({{16, kBlue}, {32, kBlue}, {48, 0}}));
        m->Highlight(0);
        host.AnswerFolder(*c.folderAnswer != '\0' ? out : "");
        if (c.asked) host.Answer(c.answer);
        m->SplitSave();
        ASSERT_EQ(host.folderRequests.size(), 1u);
        EXPECT_EQ(host.folderRequests[0].pattern, "");
        EXPECT_EQ(host.folderRequests[0].startFolder, "/program");
        host.folderRequests.clear();
        ASSERT_EQ(host.shown.size(), c.asked ? 1u : 0u);
        if (c.asked) {
            std::string question = "Single-icon files will be saved as ";
            question += out;
            question += "/name_(Size)_(Color), ...\r\nTotally 3 items on list.\r\n\r\nProceed?";
            EXPECT_EQ(host.shown[0].text, question);
            EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Question);
        }
        host.shown.clear();
        const char* names[] = {"/name_16_16.ico", "/name_32_256.ico", "/name_48_2.ico"};
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(std::filesystem::exists(out + names[i]), c.written) << names[i];
            if (c.written) {
                EXPECT_EQ(test::ReadFileBytes(out + names[i]), BuildSingleIconBytes(held, i)) << names[i];
            }
            std::filesystem::remove(out + names[i]);
        }
        // The selection that stood before, previewed from the disk.
        EXPECT_EQ(m->Selected(), 0);
        EXPECT_EQ(m->IconInFile(0).GetPixel(5, 5), kBlue);
    }
}

TEST_F(MultiIconManagerTest, SaveSingleOffersTheNameAndWritesTheImageBytes) {
    const std::string path = Make(kThreePics);
    auto m = Open(path);
    const std::string target = folder.Path("one.ico");
    for (const std::string& answer : {std::string(), target}) {
        host.AnswerSave(answer);
        m->SaveSingle();
        EXPECT_EQ(std::filesystem::exists(target), !answer.empty());
    }
    ASSERT_EQ(host.saveRequests.size(), 2u);
    EXPECT_EQ(host.saveRequests[0].FileName, "name_32_256.ico");
    EXPECT_EQ(host.saveRequests[0].Filter, "Icon files (*.ico)|*.ico|");
    EXPECT_EQ(host.saveRequests[0].DefaultExt, "ico");
    EXPECT_TRUE(host.saveRequests[0].OverWritePrompt);
    EXPECT_EQ(test::ReadFileBytes(target), BuildSingleIconBytes(m->Set(), 1));
}

TEST_F(MultiIconManagerTest, TheAddFaceAnswersSaveOrSaveAsAndCloseAnswersNothing) {
    const std::string path = Make(kThreePics);
    enum Step { Save, SaveAs, CloseIt, Unselected };
    const struct {
        int mode;
        Step step;
        const char* choice;
        bool closed;
    } cases[] = {
        {1, Save, "1", true},       {1, SaveAs, "2", true}, {1, CloseIt, "", true},
        {0, CloseIt, "", true},     {0, Save, "", false},   // the Edit face has no Save
        {1, Unselected, "", false},  // "No icon in file listed"
    };
    for (const auto& c : cases) {
        auto m = Open(path, c.mode);
        switch (c.step) {
            case Save: m->SaveAdd(0); break;
            case SaveAs: m->SaveAdd(1); break;
            case CloseIt: m->Close(); break;
            case Unselected:
                m->Highlight(-1);
                host.Answer(MsgAnswer::Ok);
                m->SaveAdd(0);
                ASSERT_EQ(host.shown.size(), 1u);
                EXPECT_EQ(host.shown[0].text, "No icon in file listed");
                break;
        }
        EXPECT_EQ(m->Answer().Choice, c.choice);
        EXPECT_EQ(m->Closed(), c.closed);
        EXPECT_EQ(m->Answer().Image.Width(), 0);
    }
}

}  // namespace
}  // namespace vexlo::files
