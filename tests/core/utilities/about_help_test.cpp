// The About box's facts and Info text, and where the help file is looked for.
#include <gtest/gtest.h>

#include <fstream>

#include "core/utilities/about_box.h"
#include "core/utilities/help_file.h"
#include "support/test_folder.h"

namespace vexlo::utilities {
namespace {

TEST(AboutBox, DepthTextsOfTheTableAndNoneForOthers) {
    const std::pair<int, const char*> table[] = {
        {4, "4 BPP (16 Color)"},     {8, "8 BPP (256 Color)"},    {16, "16 BPP (High color)"},
        {24, "24 BPP (True color)"}, {32, "32 BPP (True color)"}, {15, ""},
        {1, ""},                     {0, ""},
    };
    for (const auto& [bits, text] : table) EXPECT_EQ(ScreenDepthText(bits), text) << bits;
}

TEST(AboutBox, InfoTextAlignsTheNumbersAndEndsWithBlanks) {
    MachineFacts facts;
    facts.TotalPhysicalBytes = 8ull * 1024 * 1024 * 1024 + 511;  // rounds down to 8388608 KB
    facts.ScreenWidth = 1024;
    facts.ScreenHeight = 768;
    facts.BitsPerPixel = 24;
    const AboutBox box(facts);
    EXPECT_EQ(box.TotalRamKB(), 8388608u);
    EXPECT_EQ(box.InfoText(),
              "\r\nTotal RAM (KB):         8388608\r\n\r\n"
              "Screen Width (Pixel):   1024\r\n\r\n"
              "Screen Height (Pixel):  768\r\n\r\n"
              "BPP Set:   24 BPP (True color)     \r\n\r\n");
    facts.BitsPerPixel = 15;
    facts.TotalPhysicalBytes = 1536;  // 1.5 KB rounds to the even 2
    EXPECT_EQ(AboutBox(facts).TotalRamKB(), 2u);
    EXPECT_NE(AboutBox(facts).InfoText().find("BPP Set:        \r\n"), std::string::npos);
}

TEST(AboutBox, PicturesGrowOnlyAbove100Dpi) {
    const std::pair<int, double> table[] = {{96, 1.0}, {100, 1.0}, {120, 1.25}, {144, 1.5}, {192, 2.0}};
    for (const auto& [dpi, scale] : table) {
        MachineFacts facts;
        facts.LogicalDpi = dpi;
        EXPECT_DOUBLE_EQ(AboutBox(facts).PictureScale(), scale) << dpi;
    }
    EXPECT_EQ(AboutVersionText(1, 2, 3), "Professional Edition   v. 1.2.3");
}

void Touch(const std::filesystem::path& path) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << "<html></html>";
}

TEST(HelpFile, FoundBesideTheProgramFirstThenInTheInstalledShareFolder) {
    test::TestFolder folder("vexlo_help");
    const std::filesystem::path prefix = folder.Dir();
    const std::string bin = (prefix / "bin").string();
    std::filesystem::create_directories(bin);
    EXPECT_EQ(FindHelpFile(bin), "");
    EXPECT_EQ(FindHelpFile(""), "");

    Touch(prefix / "share/vexlo/help/VexloHelp.html");
    EXPECT_EQ(FindHelpFile(bin), (prefix / "share/vexlo/help/VexloHelp.html").string());
    Touch(prefix / "bin/help/VexloHelp.html");
    EXPECT_EQ(FindHelpFile(bin), (prefix / "bin/help/VexloHelp.html").string());
    // A folder of that name is no help file.
    std::filesystem::remove(prefix / "bin/help/VexloHelp.html");
    std::filesystem::create_directories(prefix / "bin/help/VexloHelp.html");
    EXPECT_EQ(FindHelpFile(bin), (prefix / "share/vexlo/help/VexloHelp.html").string());
    EXPECT_EQ(HelpMissingMessage(), "VexloHelp.html missing  ");
}

}  // namespace
}  // namespace vexlo::utilities
