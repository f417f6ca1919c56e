#pragma once
// A ScriptedHost with the platform's printer, desktop capture, About box and help browser
// scripted: the printer's area and the pages it printed, the capture's queued answers, and
// what the About box and the browser were asked.
#include <deque>
#include <string>
#include <vector>

#include "core/session/session.h"
#include "support/picture_grid.h"
#include "support/scripted_host.h"

namespace vexlo::test {

class UtilitiesHost : public ScriptedHost {
public:
    struct Page {
        surface::Surface Picture;
        utilities::PrintRect Rect;
    };

    // A box with only OK needs no scripted answer here; the tests read what it said.
    host::MsgAnswer MsgBox(const std::string& text, host::MsgButtons buttons, host::MsgIcon icon,
                            const std::string& title) override {
        if (buttons != host::MsgButtons::Ok || PendingAnswers() != 0)
            return ScriptedHost::MsgBox(text, buttons, icon, title);
        shown.push_back({text, buttons, icon, title});
        return host::MsgAnswer::Ok;
    }

    bool HasPrinter() override { return hasPrinter; }
    utilities::PrintArea PrinterArea() override { return printerArea; }
    bool PrintPicture(const surface::Surface& picture, const utilities::PrintRect& rect) override {
        pages.push_back({picture, rect});
        return printWorks;
    }

    // Queues the capture's next answer; an unqueued capture fails the test and is cancelled.
    void AnswerCapture(host::CaptureAnswer answer) { m_captures.push_back(std::move(answer)); }
    host::CaptureAnswer CaptureScreen(int side) override {
        captureSides.push_back(side);
        if (m_captures.empty()) {
            ADD_FAILURE() << "Unexpected capture";
            return {};
        }
        host::CaptureAnswer answer = std::move(m_captures.front());
        m_captures.pop_front();
        return answer;
    }

    void ShowAbout() override { ++aboutShown; }
    bool OpenHelpFile(const std::string& path) override {
        helpOpened.push_back(path);
        return browserWorks;
    }

    bool hasPrinter = true;
    bool printWorks = true;
    // A letter page of 8.5 x 11 inches with a printable area 0.25 inch in from each edge.
    utilities::PrintArea printerArea{0, 0, 8.0 * 1440, 10.5 * 1440};
    std::vector<Page> pages;
    std::vector<int> captureSides;
    int aboutShown = 0;
    bool browserWorks = true;
    std::vector<std::string> helpOpened;

private:
    std::deque<host::CaptureAnswer> m_captures;
};

// A session on a UtilitiesHost, loaded and activated, with a new icon made from rows.
class UtilitiesSession : public ::testing::Test {
protected:
    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
    }
    // File New's entry (0 32x32, 1 16x16, 2 48x48) with rows at the icon's top left.
    void NewIconWith(int entry, const std::vector<std::string>& rows) {
        s.FileNew(entry);
        PlanesOf(rows, s.Icon().Image(), s.Icon().Mask());
        s.ComposeIcon();
        s.MagnifyIcon();
    }
    // The text of the one message shown since the last call, or a failure.
    std::string OnlyMessage() {
        EXPECT_EQ(host.shown.size(), 1u);
        const std::string text = host.shown.empty() ? std::string() : host.shown.back().text;
        host.shown.clear();
        return text;
    }

    UtilitiesHost host;
    session::Session s{host};
};

}  // namespace vexlo::test
