// File Print through the session: the frame's controls, the printer question, the picture
// that goes to the page and its place, and the messages that stop the job.
#include <gtest/gtest.h>

#include "support/utilities_host.h"

namespace vexlo::test {
namespace {

using session::PrintControl;
using session::Frame;

class PrintFlow : public UtilitiesSession {
protected:
    void Open() { s.RunMenuItem("mnuFilePrint"); }
    void Click(PrintControl c, int i) { s.ClickPrintControl(c, i); }
};

TEST(PrintPanel, ListsAndTheRuleOfFitToPaper) {
    const auto& sizes = session::PrintSizeEntries();
    EXPECT_EQ(sizes, (std::vector<std::string>{"25", "50", "75", "100", "125", "150", "175", "200"}));
    const auto& margins = session::MarginEntries();
    ASSERT_EQ(margins.size(), 81u);
    EXPECT_EQ(margins[0], "0.00");
    EXPECT_EQ(margins[5], "0.25");
    EXPECT_EQ(margins[20], "1.00");
    EXPECT_EQ(margins[80], "4.00");

    session::PrintPanel p;
    EXPECT_EQ(p.SizeListIndex(), 3);
    p.Click(PrintControl::LeftMargin, 80);
    p.Click(PrintControl::TopMargin, 7);
    p.Click(PrintControl::SizeOption, 2);
    EXPECT_FALSE(p.MarginsEnabled());
    EXPECT_EQ(p.LeftMarginIndex(), 5);
    EXPECT_EQ(p.TopMarginIndex(), 20);
    p.Click(PrintControl::LeftMargin, 9);  // disabled
    EXPECT_EQ(p.LeftMarginIndex(), 5);
    p.Click(PrintControl::SizeOption, 1);
    EXPECT_TRUE(p.MarginsEnabled());
    EXPECT_EQ(p.LeftMarginIndex(), 20);
    EXPECT_EQ(p.TopMarginIndex(), 20);
    p.Click(PrintControl::SizeList, 8);  // out of the list
    p.Click(PrintControl::SizeList, 7);
    p.Click(PrintControl::MarginOption, 1);
    p.Click(PrintControl::TopMargin, 1);
    const utilities::PrintChoice c = p.Choice();
    EXPECT_EQ(c.Size, utilities::PrintSize::OriginalIcon);
    EXPECT_EQ(c.Percent, 200);
    EXPECT_EQ(c.Margin, utilities::PrintMargin::Center);
    EXPECT_DOUBLE_EQ(c.LeftInch, 1.0);
    EXPECT_DOUBLE_EQ(c.TopInch, 0.05);
}

TEST_F(PrintFlow, ASixteenIconAt100PercentPrintsTheQuarterOfTheEditingAreaAtScreenSize) {
    NewIconWith(1, {"rg", "b."});
    Open();
    EXPECT_EQ(s.Form().VisibleFrame, Frame::Print);
    host.AnswerPrinter(true);
    s.PrintProceed();
    ASSERT_EQ(host.printerRequests.size(), 1u);
    const utilities::PrinterRequest& r = host.printerRequests[0];
    EXPECT_TRUE(r.DisablePageNumbers && r.DisableSelection && r.DisablePrintToFile);
    ASSERT_EQ(host.pages.size(), 1u);
    const surface::Surface& page = host.pages[0].Picture;
    ASSERT_EQ(page.Width(), 192);
    ASSERT_EQ(page.Height(), 192);
    // Cells with the grid: the picture is the Editing Area's own pixels.
    for (int y = 0; y < 192; ++y)
        for (int x = 0; x < 192; ++x)
            ASSERT_EQ(page.GetPixel(x, y), s.View().Disp().GetPixel(x, y)) << x << "," << y;
    EXPECT_EQ(page.GetPixel(6, 6), 0x0000FFu);
    EXPECT_EQ(page.GetPixel(18, 18), 0xC0C0C0u);
    const utilities::PrintRect& rect = host.pages[0].Rect;
    EXPECT_DOUBLE_EQ(rect.Left, 1440);
    EXPECT_DOUBLE_EQ(rect.Top, 1440);
    EXPECT_DOUBLE_EQ(rect.Width, 2880);
    EXPECT_EQ(s.Form().VisibleFrame, Frame::Print);  // the frame stays up
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(PrintFlow, OriginalSizePrintsTheComposedIconWithoutGrid) {
    NewIconWith(0, {"rg", "b."});
    Open();
    Click(PrintControl::SizeOption, 1);
    Click(PrintControl::MarginOption, 1);
    host.AnswerPrinter(true);
    s.PrintProceed();
    ASSERT_EQ(host.pages.size(), 1u);
    EXPECT_TRUE(SamePixels(host.pages[0].Picture, s.Icon().Composed()));
    EXPECT_EQ(host.pages[0].Picture.GetPixel(1, 1), 0xC0C0C0u);  // transparent shows gray
    EXPECT_DOUBLE_EQ(host.pages[0].Rect.Width, 32 * 15);
    EXPECT_DOUBLE_EQ(host.pages[0].Rect.Left, (8 * 1440 - 480) / 2.0);
}

TEST_F(PrintFlow, MessagesStopTheJobBeforeThePage) {
    NewIconWith(0, {"r"});
    Open();
    host.hasPrinter = false;
    s.PrintProceed();
    EXPECT_EQ(OnlyMessage(), "No printer found \r\n");
    EXPECT_TRUE(host.printerRequests.empty());

    host.hasPrinter = true;
    host.AnswerPrinter(false);  // cancelled
    s.PrintProceed();
    EXPECT_TRUE(host.pages.empty());
    EXPECT_TRUE(host.shown.empty());

    host.printerArea = {0, 0, 3 * 1440, 10 * 1440};  // a narrow paper
    Click(PrintControl::LeftMargin, 80);
    Click(PrintControl::TopMargin, 80);
    host.AnswerPrinter(true);
    s.PrintProceed();
    EXPECT_EQ(OnlyMessage(), "Image position outside paper size");
    Click(PrintControl::MarginOption, 1);
    Click(PrintControl::SizeList, 7);
    host.AnswerPrinter(true);
    s.PrintProceed();
    EXPECT_EQ(OnlyMessage(), "Image size greater than paper size");
    EXPECT_TRUE(host.pages.empty());
    EXPECT_EQ(host.shown.size(), 0u);

    host.printerArea = {0, 0, 8 * 1440, 10 * 1440};
    host.printWorks = false;
    host.AnswerPrinter(true);
    s.PrintProceed();
    EXPECT_EQ(OnlyMessage().rfind("cmdPrintProceed\r\n", 0), 0u);
}

TEST_F(PrintFlow, NeedsAnIconInTheEditingArea) {
    s.RunMenuItem("mnuFilePrint");
    EXPECT_EQ(OnlyMessage(), "No icon in Editing Area yet");
    EXPECT_NE(s.Form().VisibleFrame, Frame::Print);
}

}  // namespace
}  // namespace vexlo::test
