// The Enquiry menu's answers from the slot's record and the image plane, and the Help menu's
// About box and help file.
#include <gtest/gtest.h>

#include <fstream>

#include "core/session/enquiry/enquiry_texts.h"
#include "support/test_folder.h"
#include "support/utilities_host.h"

namespace vexlo::test {
namespace {

using session::IconSlot;

IconSlot Record(std::int32_t colors, std::int16_t bits, bool alpha) {
    IconSlot s;
    s.SlotIndex = 2;
    s.Occupied = s.InEditingArea = true;
    s.SetKindText("ICO file");
    s.FileSpec = "/icons/a.ico";
    s.ColorCount = colors;
    s.BitsPerPixel = bits;
    s.HasAlpha = alpha;
    return s;
}

// A 32x32 plane in the first n of the sixteen standard colors.
Surface Plane(int n) {
    static const Color kColors[] = {0x000000, 0xFFFFFF, 0x000080, 0x008000, 0x008080, 0x800000,
                                    0x800080, 0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00,
                                    0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00};
    Surface s(32, 32, 0);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) s.SetPixelV(x, y, kColors[(x + 32 * y) % n]);
    return s;
}

TEST(EnquiryTexts, CountDistinctColorsCountsEveryPixelValue) {
    Surface blank(48, 48, 0);
    blank.Clear();
    EXPECT_EQ(session::CountDistinctColors(blank), 1);
    Surface all(48, 48, 0);
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 48; ++x) all.SetPixelV(x, y, static_cast<Color>(x * 48 + y));
    EXPECT_EQ(session::CountDistinctColors(all), 2304);
    EXPECT_EQ(session::ColorsUsedText(Plane(5)), "COUNT OF COLORS:\r\n\r\nActual count of colors used:   5\r\n");
}

TEST(EnquiryTexts, PaletteModeOfEachKindOfRecord) {
    struct Case {
        const char* name;
        IconSlot slot;
        Surface image;
        const char* text;
    };
    Surface blank(32, 32, 0);
    blank.Clear();
    Surface wide(32, 32, 0);  // more than 256 colors
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) wide.SetPixelV(x, y, surface::Rgb(x * 8, y * 8, 1));
    const Case cases[] = {
        // A new icon has no palette of its own: the pixels alone tell; a blank one is of class 2.
        {"new blank", Record(0, 0, false), blank, "COLOR DEPTH:\r\n\r\n\r\nActual color-depth:  2\r\n"},
        {"new true color", Record(0, 0, false), wide,
         "COLOR DEPTH:\r\n\r\n\r\nActual color-depth:  True-color 24 BPP\r\n"},
        {"16-color file", Record(16, 4, false), Plane(16),
         "COLOR DEPTH:\r\n\r\nOrig palette per file:  16-color\r\n\r\nActual color-depth:  16-color\r\n"},
        // A true-color file whose pixels fit 16 colors carries the remark.
        {"true color of 16", Record(-1, 24, false), Plane(16),
         "COLOR DEPTH:\r\n\r\nOrig palette per file:  True-color 24 BPP\r\n\r\n"
         "Actual color-depth:  True-color 24 BPP\r\n(Remarks: It appears 16-color originally)\r\n"},
        {"32 bpp without values", Record(-1, 32, false), Plane(2),
         "COLOR DEPTH:\r\n\r\nOrig palette per file:  True-color 32 BPP\r\n[With Alpha Channel]\r\n\r\n"
         "Actual color-depth:  True-color 32 BPP\r\n[With Alpha Channel (values missing)]\r\n"
         "(Remarks: It appears 2-color originally)\r\n"},
    };
    for (const Case& c : cases) EXPECT_EQ(session::PaletteModeText(c.slot, c.image), c.text) << c.name;
}

TEST(EnquiryTexts, GeneralPropertiesInTheirOrder) {
    IconSlot s = Record(-1, 32, true);
    s.MultiIconFile = true;
    s.Changed = true;
    Surface image(32, 32, 0);  // more than 256 colors: true color as the file said
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) image.SetPixelV(x, y, surface::Rgb(x * 8, y * 8, 9));
    EXPECT_EQ(session::GeneralPropertiesText(s, image),
              "PROPERTIES OF CURRENT ICON: \r\n\r\n\r\n"
              "Position in Icons Panel:    3\r\n"
              "Source:    ICO file\r\n"
              "File spec:    /icons/a.ico\r\n"
              "(Multi-icon file)\r\n"
              "Icon size:    32x32\r\n"
              "\r\n"
              "Orig palette per file:   True-color 32 BPP\r\n[With Alpha Channel]\r\n"
              "\r\n"
              "Actual color-depth:  True-color 32 BPP\r\n[With Alpha Channel]\r\n"
              "\r\n"
              "Change made:    Yes\r\n\r\n\r\n");
    // A cursor shows its hotspot; an icon from no file shows no file spec.
    IconSlot cur = Record(16, 4, false);
    cur.SetKindText("CUR file");
    cur.HasHotspot = true;
    cur.HotspotX = 5;
    cur.HotspotY = 31;
    const std::string curText = session::GeneralPropertiesText(cur, Plane(16));
    EXPECT_NE(curText.find("File spec:    /icons/a.ico\r\nHotspot:    [5, 31]\r\nIcon size:    32x32\r\n"),
              std::string::npos);
    EXPECT_NE(curText.find("Orig palette per file:   16-color\r\n\r\nActual color-depth:  16-color\r\n"),
              std::string::npos);
    IconSlot captured = Record(-1, 24, false);
    captured.SetKindText("Screen capture");
    const std::string capText = session::GeneralPropertiesText(captured, Plane(16));
    EXPECT_EQ(capText.find("File spec:"), std::string::npos);
    EXPECT_NE(capText.find("(Remarks: It appears 16-color originally.)\r\n\r\nChange made:    No\r\n"),
              std::string::npos);
}

TEST(EnquiryTexts, AHotspotOutsideTheCursorIsShownAsTheOrigin) {
    IconSlot s;
    s.HotspotX = 40;
    s.HotspotY = 7;
    EXPECT_EQ(session::HotspotText(s), "Hot spot of original cursor:  X=0  Y=0\r\n");
    s.HotspotX = 31;
    EXPECT_EQ(session::HotspotText(s), "Hot spot of original cursor:  X=31  Y=7\r\n");
}

class EnquiryHelpFlow : public UtilitiesSession {};

TEST_F(EnquiryHelpFlow, TheMenuAnswersInAnInformationBox) {
    s.RunMenuItem("mnuEnquiryCurrent(1)");
    EXPECT_EQ(OnlyMessage(), "No icon in Editing Area yet");
    NewIconWith(0, {"rg", "b."});
    s.RunMenuItem("mnuEnquiryCurrent(1)");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Information);
    EXPECT_EQ(host.shown[0].title, "Vexlo");
    EXPECT_EQ(OnlyMessage(), "COUNT OF COLORS:\r\n\r\nActual count of colors used:   4\r\n");
    s.RunMenuItem("mnuEnquiryCurrent(2)");  // no hotspot: nothing
    EXPECT_TRUE(host.shown.empty());
    s.RunMenuItem("mnuEnquiryCurrent(4)");
    EXPECT_EQ(OnlyMessage().find("PROPERTIES OF CURRENT ICON: \r\n\r\n\r\nPosition in Icons Panel:    1\r\n"
                                 "Source:    New icon\r\nIcon size:    32x32\r\n\r\n\r\nActual color-depth:  16\r\n"),
              0u);
}

TEST_F(EnquiryHelpFlow, HelpOpensTheFileFoundOrSaysItIsMissing) {
    TestFolder folder("vexlo_help_flow");
    session::Directories dirs = s.Dirs();
    dirs.ProgramDir = folder.Path("bin");
    std::filesystem::create_directories(dirs.ProgramDir);
    s.SetDirectories(dirs);
    s.RunMenuItem("mnuHelpHTMLHelp");
    ASSERT_EQ(host.shown.size(), 1u);
    EXPECT_EQ(host.shown[0].icon, host::MsgIcon::Exclamation);
    EXPECT_EQ(OnlyMessage(), "VexloHelp.html missing  ");
    EXPECT_TRUE(host.helpOpened.empty());

    std::filesystem::create_directories(folder.Dir() / "share/vexlo/help");
    std::ofstream(folder.Dir() / "share/vexlo/help/VexloHelp.html") << "<html></html>";
    s.RunMenuItem("mnuHelpHTMLHelp");
    EXPECT_EQ(host.helpOpened, std::vector<std::string>{folder.Path("share/vexlo/help/VexloHelp.html")});
    host.browserWorks = false;
    s.RunMenuItem("mnuHelpHTMLHelp");
    EXPECT_EQ(OnlyMessage().rfind("mnuHelpHTMLHelp\r\n", 0), 0u);

    s.RunMenuItem("mnuHelpAbout");
    s.RunMenuItem("mnuHelpAbout");
    EXPECT_EQ(host.aboutShown, 2);
}

}  // namespace
}  // namespace vexlo::test
