// frmVexloMultiIcon driven step by step on multi-icon files made with the ICO writer: the
// list, previews read from the disk, removal, Edit's planes and choice, the Add face's
// answers, split and single saves, and the modal entry point. Offscreen, scripted.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <fstream>
#include <functional>
#include <iterator>

#include "core/files/ico_write.h"
#include "core/files/icon_set.h"
#include "gui/files/frm_vexlo_multi_icon.h"
#include "gui/platform/surface_view.h"
#include "scripted_dialogs.h"

namespace vexlo::test {
namespace {

using gui::frmVexloMultiIcon;
using host::MsgAnswer;
using surface::Color;
using surface::Surface;
using ByteVec = std::vector<std::uint8_t>;

constexpr Color kGray = 0xC0C0C0;

// An image of the file: its side and fill; pixel (0, 0) is transparent. With alpha it is
// written at 32 bits with alpha 200, else at the depth its colors need.
struct Pic {
    int side;
    Color fill;
    bool alpha = false;
};

ByteVec ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return ByteVec(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteAll(const std::string& path, const ByteVec& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

// Each picture written alone by the ICO writer, then the images joined into one file.
ByteVec MultiIconBytes(const std::vector<Pic>& pics) {
    files::IconSet set;
    for (const Pic& p : pics) {
        Surface image(p.side, p.side, 0), mask(p.side, p.side, 0);
        image.Fill(p.fill);
        image.SetPixelV(0, 0, 0);
        mask.SetPixelV(0, 0, 0xFFFFFF);
        alpha::AlphaArray alpha;
        alpha.SetBounds(p.side - 1);
        for (int x = 0; x < p.side; ++x)
            for (int y = 0; y < p.side; ++y) alpha.At(x, y) = 200;
        files::IconWriteOptions options;
        options.Alpha = options.KeepTrueColor = p.alpha;
        options.AlphaValues = &alpha;
        files::IconSet one;
        EXPECT_EQ(files::ReadIconSet(files::Bytes(files::BuildIconFileBytes(image, mask, options)), one), 1);
        set.Images.push_back(one.Images.at(0));
    }
    return files::BuildIconSetBytes(set);
}

// 16x16 at 16 colors, 32x32 at 256, 48x48 at 2.
const std::vector<Pic> kThree = {{16, surface::Rgb(255, 0, 0)}, {32, surface::Rgb(10, 20, 30)}, {48, 0xFFFFFF}};

class MultiIconDialog : public ::testing::Test {
protected:
    std::string MakeFile(const std::vector<Pic>& pics, const char* name = "name.ico") {
        std::string path = dir.path().toStdString();
        path += "/";
        path += name;
        WriteAll(path, MultiIconBytes(pics));
        return path;
    }
    std::unique_ptr<frmVexloMultiIcon> Open(const std::string& path, int mode = 0) {
        auto dlg = std::make_unique<frmVexloMultiIcon>(path, mode);
        EXPECT_TRUE(dlg->Activate());
        return dlg;
    }
    static QStringList Lines(const frmVexloMultiIcon& dlg) {
        QStringList out;
        const QListWidget* list = dlg.lisIcons[static_cast<std::size_t>(dlg.AddFace())];
        for (int i = 0; i < list->count(); ++i) out << list->item(i)->text();
        return out;
    }
    static int Row(const frmVexloMultiIcon& dlg) { return dlg.lisIcons[static_cast<std::size_t>(dlg.AddFace())]->currentRow(); }

    QTemporaryDir dir;
    ScriptedHost host;
    ScopedScriptedDialogs scripted{host};
};

TEST_F(MultiIconDialog, PreviewShowsTheHighlightedImageReadAfreshOnGray) {
    const std::string path = MakeFile(kThree);
    auto dlg = Open(path);
    EXPECT_EQ(dlg->windowTitle(), "Edit Icon In Multi-Icon File");
    EXPECT_TRUE(dlg->picContainer[1]->isHidden());
    EXPECT_EQ(Lines(*dlg), QStringList({"Ref 1  \t4 BPP\t16-Color\t  16 x 16", "Ref 2  \t8 BPP\t256-Color\t  32 x 32",
                                        "Ref 3  \t1 BPP\t2-Color\t  48 x 48"}));
    EXPECT_EQ(Row(*dlg), 1);  // the 32x32 image
    const struct {
        int position, side;
        Color fill;
    } cases[] = {{1, 32, surface::Rgb(10, 20, 30)}, {0, 16, surface::Rgb(255, 0, 0)}, {2, 48, 0xFFFFFF}};
    for (const auto& c : cases) {
        dlg->Highlight(c.position);
        const Surface& shown = dlg->IconInFile(0);
        ASSERT_EQ(shown.Width(), c.side);
        EXPECT_EQ(shown.GetPixel(0, 0), kGray) << c.side;
        EXPECT_EQ(shown.GetPixel(c.side - 1, c.side - 1), c.fill) << c.side;
        // The picture at true size, centred on its frame.
        EXPECT_EQ(dlg->picIconInFile[0]->geometry().size(), QSize(c.side, c.side));
        EXPECT_EQ(dlg->picIconInFile[0]->geometry().center(), dlg->lblIconInFile[0]->geometry().center());
    }
    // The file changes on disk: the next preview shows what it now holds.
    WriteAll(path, MultiIconBytes({{16, surface::Rgb(0, 0, 255)}, kThree[1], kThree[2]}));
    dlg->Highlight(0);
    EXPECT_EQ(dlg->IconInFile(0).GetPixel(5, 5), surface::Rgb(0, 0, 255));

    // An image that can no longer be read: the message, and the old preview stays.
    ByteVec cut = ReadAll(path);
    cut.resize(200);
    WriteAll(path, cut);
    host.Answer(MsgAnswer::Ok);
    dlg->Highlight(2);
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "Ref 3\r\nUnable to get this one");
    EXPECT_EQ(dlg->IconInFile(0).Width(), 16);
}

TEST_F(MultiIconDialog, RemoveAsksRewritesTheFileAndSelectsTheNeighbour) {
    const struct {
        int position;
        MsgAnswer answer;
        QStringList refs;  // the first characters of the lines after
        int selected;
    } cases[] = {
        {1, MsgAnswer::No, {"Ref 1", "Ref 2", "Ref 3"}, 1},
        {2, MsgAnswer::Yes, {"Ref 1", "Ref 2"}, 1},  // the last line: the one above
        {0, MsgAnswer::Yes, {"Ref 1", "Ref 2"}, 0},
    };
    for (const auto& c : cases) {
        const std::string path = MakeFile(kThree);
        auto dlg = Open(path);
        dlg->Highlight(c.position);
        host.Answer(c.answer);
        dlg->ClickRemove();
        ASSERT_EQ(host.shown.size(), 1u);
        EXPECT_EQ(host.shown[0].text, files::RemoveQuestion(path));
        EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Question);
        host.shown.clear();
        QStringList refs;
        for (const QString& line : Lines(*dlg)) refs << line.left(5);
        EXPECT_EQ(refs, c.refs) << c.position;
        EXPECT_EQ(Row(*dlg), c.selected) << c.position;
        files::IconSet set;
        EXPECT_EQ(files::ReadIconSet(path, set), c.refs.size());
        // The preview shows the selected image of the file as it now is.
        EXPECT_EQ(dlg->IconInFile(0).Width(), set.Images.at(static_cast<std::size_t>(c.selected)).Entry.Width);
    }
}

TEST_F(MultiIconDialog, TheOnlyImageCannotBeRemovedNorADepthOpenedThatTheReaderLacks) {
    const std::string path = MakeFile({kThree[1]});
    auto dlg = Open(path);
    EXPECT_TRUE(dlg->cmdEdit->isEnabled());
    for (QPushButton* b : {dlg->cmdRemove[0], dlg->cmdSplitSave[0], dlg->cmdSaveSingle[0]}) EXPECT_FALSE(b->isEnabled());
    host.Answer(MsgAnswer::Ok);
    dlg->ClickRemove();
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].text, "Not allowed to delete the last icon in file");
    EXPECT_EQ(host.shown[0].title, "Vexlo");

    // wBitCount 16 in the entry: the preview fails, then Edit refuses and answers nothing.
    ByteVec bytes = ReadAll(path);
    bytes[6 + 6] = 16;
    WriteAll(path, bytes);
    host.Answer(MsgAnswer::Ok);
    dlg = Open(path);
    host.Answer(MsgAnswer::Ok);
    dlg->ClickEdit();
    ASSERT_EQ(host.shown.size(), 3u);
    EXPECT_EQ(host.shown[1].text, "Ref 1\r\nUnable to get this one");
    EXPECT_EQ(host.shown[2].text, "Selected item is of True Color but not 24 BPP or 32 BPP.\r\n");
    EXPECT_EQ(dlg->Result().Choice, "");
}

// Runs step on the dialog once Run has shown it.
void WhenShown(std::function<void(frmVexloMultiIcon&)> step) {
    QTimer::singleShot(0, [step] {
        auto* dlg = qobject_cast<frmVexloMultiIcon*>(QApplication::activeModalWidget());
        ASSERT_NE(dlg, nullptr);
        step(*dlg);
    });
}

TEST_F(MultiIconDialog, EditHandsOverThePlanesTheAlphaAndTheChoice) {
    const std::string path = MakeFile({kThree[0], {32, surface::Rgb(1, 2, 3), true}});
    const struct {
        int position;
        const char* choice;
        Color color;
        int alphaSide;
    } cases[] = {{1, "01/32/-1/32", surface::Rgb(1, 2, 3), 32}, {0, "00/16/16/4", surface::Rgb(255, 0, 0), 0}};
    for (const auto& c : cases) {
        WhenShown([&c](frmVexloMultiIcon& dlg) {
            EXPECT_EQ(dlg.lblFileToEdit[0]->text().toStdString(), dlg.FileSpec());
            dlg.Highlight(c.position);
            dlg.ClickEdit();
        });
        const gui::MultiIconResult r = frmVexloMultiIcon::Run(nullptr, path, 0, nullptr, "");
        EXPECT_EQ(r.Choice, c.choice);
        EXPECT_EQ(r.Mask.GetPixel(0, 0), 0xFFFFFFu);
        EXPECT_EQ(r.Mask.GetPixel(1, 1), 0u);
        EXPECT_EQ(r.Image.GetPixel(1, 1), c.color);
        EXPECT_EQ(r.Alpha.Side(), c.alphaSide);
        EXPECT_EQ(r.Alpha.Contains(31, 31) ? r.Alpha.At(31, 31) : 200, 200);
    }
    // A file that can't be read: an empty answer at once, with no window.
    EXPECT_EQ(frmVexloMultiIcon::Run(nullptr, path + ".none", 0, nullptr, "").Choice, "");
}

TEST_F(MultiIconDialog, AddFaceShowsTheIconAndAnswersSaveOrSaveAs) {
    const std::string path = MakeFile(kThree);
    Surface icon(16, 16, kGray);
    icon.Fill(surface::Rgb(0, 255, 0));
    for (int k : {0, 1}) {
        frmVexloMultiIcon dlg(path, 1);
        dlg.SetIconToAdd(icon);
        ASSERT_TRUE(dlg.Activate());
        dlg.show();
        EXPECT_EQ(dlg.windowTitle(), "Add Icon To Existing Icon File");
        EXPECT_EQ(Row(dlg), 0);
        EXPECT_EQ(dlg.focusWidget(), dlg.cmdSaveAdd[0]);
        EXPECT_EQ(dlg.IconInFile(1).Width(), 16);
        EXPECT_TRUE(SamePixels(dlg.CurrIcon(), icon));
        EXPECT_EQ(dlg.PicCurrIcon->geometry().center(), dlg.lblCurrIconBase->geometry().center());
        dlg.ClickSaveAdd(k);
        EXPECT_EQ(dlg.Result().Choice, k == 0 ? "1" : "2");
        EXPECT_EQ(dlg.Result().Image.Width(), 0);
    }
    // Run: the captions the caller gives, and the answer of the button pressed.
    WhenShown([path](frmVexloMultiIcon& dlg) {
        EXPECT_EQ(dlg.lblExistingFile[1]->text().toStdString(), path);
        EXPECT_EQ(dlg.lblCurrIcon[1]->text(), "16-color     Size: 16x16");
        EXPECT_EQ(dlg.CurrIcon().Width(), 16);
        dlg.ClickSaveAdd(1);
    });
    EXPECT_EQ(frmVexloMultiIcon::Run(nullptr, path, 1, &icon, "16-color     Size: 16x16").Choice, "2");
}

TEST_F(MultiIconDialog, SplitSaveWritesEachLineAndRestoresTheSelection) {
    const std::string path = MakeFile(kThree);
    auto dlg = Open(path);
    dlg->Highlight(0);
    const std::string out = dir.path().toStdString() + "/out";
    QDir(dir.path()).mkdir("out");
    host.AnswerFolder(out);
    host.Answer(MsgAnswer::Yes);
    dlg->ClickSplitSave();
    ASSERT_EQ(host.folderRequests.size(), 1u);
    EXPECT_EQ(host.folderRequests[0].pattern, "");
    EXPECT_FALSE(host.folderRequests[0].extendable);
    std::string question = "Single-icon files will be saved as ";
    question += out;
    question += "/name_(Size)_(Color), ...\r\nTotally 3 items on list.\r\n\r\nProceed?";
    EXPECT_EQ(host.shown.at(0).text, question);
    files::IconSet set;
    ASSERT_EQ(files::ReadIconSet(path, set), 3);
    const char* names[] = {"/name_16_16.ico", "/name_32_256.ico", "/name_48_2.ico"};
    for (int i = 0; i < 3; ++i) EXPECT_EQ(ReadAll(out + names[i]), files::BuildSingleIconBytes(set, i)) << names[i];
    EXPECT_EQ(Row(*dlg), 0);
    EXPECT_EQ(dlg->IconInFile(0).Width(), 16);

    // Save Single: the suggestion, the filter, and the bytes of the selected image.
    dlg->Highlight(1);
    host.AnswerSave(out + "/one.ico");
    dlg->ClickSaveSingle();
    ASSERT_EQ(host.saveRequests.size(), 1u);
    EXPECT_EQ(host.saveRequests[0].FileName, "name_32_256.ico");
    EXPECT_EQ(host.saveRequests[0].Filter, "Icon files (*.ico)|*.ico|");
    EXPECT_EQ(host.saveRequests[0].DefaultExt, "ico");
    EXPECT_TRUE(host.saveRequests[0].OverWritePrompt);
    EXPECT_EQ(ReadAll(out + "/one.ico"), files::BuildSingleIconBytes(set, 1));
}

}  // namespace
}  // namespace vexlo::test
