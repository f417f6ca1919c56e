// The Icons List of a real program file through the session's own library reader: the icons
// counted and drawn as the platform hands them over, a clicked one in the slot, and a file
// changed on disk read again.
#include "icons_list_support.h"

#include <filesystem>
#include <fstream>

#include "core/extract/extract_test_files.h"
#include "core/session/icons_list/library_file_icons.h"

namespace vexlo::test {
namespace {

// A 16x16 24-bit image: left half `left`, right half black; its top half masked.
Resource HalvesImage(std::uint16_t id, std::uint32_t left) {
    DibIcon d;
    d.Side = 16;
    d.Bits = 24;
    d.Value = [left](int x, int) { return x < 8 ? left : 0u; };
    d.Masked = [](int, int y) { return y < 8; };
    return {extract::kRtIcon, id, {}, 0, DibIconBytes(d)};
}

void WriteProgram(const std::string& path, int groups) {
    std::vector<Resource> res;
    for (int g = 0; g < groups; ++g) {
        const auto id = static_cast<std::uint16_t>(g + 1);
        res.push_back(HalvesImage(id, 0x123456u + static_cast<std::uint32_t>(g)));
        res.push_back(IconGroup(id, {EntryFor(res.back(), 16, 24)}));
    }
    const ByteVec bytes = pe::BuildPe(res).Bytes;
    std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()),
                                                static_cast<std::streamsize>(bytes.size()));
}

class LibraryFileTest : public IconsListFlowTest {
protected:
    void SetUp() override {
        IconsListFlowTest::SetUp();
        s.Extraction().SetLibraryIcons(nullptr);  // the session's own reader
    }
};

TEST_F(LibraryFileTest, SmallIconsOfAProgramFileInTheListAndTheSlot) {
    const std::string path = Path("app.exe");
    WriteProgram(path, 2);
    host.AnswerOpen(path);
    s.RunMenuItem("mnuExtractSub(2)");
    EXPECT_EQ(List().Controls().CountLabel, "Icons  2/2");
    // Each drawn at 16x16 over the list's white: a masked colored pixel inverts white, a
    // masked black one leaves it, the rest is the stored color.
    struct Pixel {
        int X, Y;
        Color Want;
    };
    for (const int item : {0, 1}) {
        const int x0 = 13 + 76 * item, y0 = 12;
        const Color left = 0x123456u + static_cast<Color>(item);
        for (const Pixel p : {Pixel{0, 0, left ^ 0xFFFFFFu}, Pixel{15, 0, 0xFFFFFF}, Pixel{0, 8, left},
                              Pixel{15, 15, 0}})
            EXPECT_EQ(Picture().GetPixel(x0 + p.X, y0 + p.Y), p.Want) << item << ": " << p.X << "," << p.Y;
    }

    Flows().ReleaseOnList(false, 10, 10);
    const session::IconSlot& slot = s.Current();
    ASSERT_TRUE(slot.Occupied);
    EXPECT_EQ(slot.SizeCode, 1);
    EXPECT_EQ(s.Panel().PanelMask(0).GetPixel(0, 0), 0xFFFFFFu);
    EXPECT_EQ(s.Panel().PanelMask(0).GetPixel(0, 8), 0u);
    EXPECT_EQ(s.Panel().PanelIcon(0).GetPixel(0, 8), 0x123456u);
}

TEST(LibraryFileIcons, AFileChangedOnDiskIsReadAgainAndAMissingOneHasNone) {
    TestFolder folder{"vexlo_library_file"};
    const std::string path = folder.Path("lib.dll");
    session::LibraryFileIcons icons;
    EXPECT_EQ(icons.CountIconGroups(path), 0);
    WriteProgram(path, 1);
    EXPECT_EQ(icons.CountIconGroups(path), 1);
    WriteProgram(path, 3);  // a different size: the kept library is stale
    EXPECT_EQ(icons.CountIconGroups(path), 3);
    session::LibraryIcon icon;
    EXPECT_TRUE(icons.IconOfGroup(path, 2, true, icon));
    EXPECT_EQ(icon.Image.Width(), 32);
    EXPECT_FALSE(icons.IconOfGroup(path, 3, true, icon));
    std::ofstream(path) << "MZ not a program";
    EXPECT_EQ(icons.CountIconGroups(path), 0);
}

}  // namespace
}  // namespace vexlo::test
