#pragma once
// A Host for tests: answers each message box and each dialog from a queue of its kind,
// records every message shown and every dialog request, and counts the other services. A
// message or dialog with no answer queued fails the test and answers as a closed box or a
// cancelled dialog would; so does an answer the box has no button for, and an answer left
// unused.
#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/host/host.h"

namespace vexlo::test {

class ScriptedHost : public host::Host {
public:
    struct Shown {
        std::string text;
        host::MsgButtons buttons;
        host::MsgIcon icon;
        std::string title;
    };

    struct ColorRequest {
        std::int32_t color;
        bool fullOpen;
    };
    struct FolderRequest {
        std::string pattern;
        std::string startFolder;
        bool extendable;
    };

    ScriptedHost() = default;
    ScriptedHost(const ScriptedHost&) = delete;
    ScriptedHost& operator=(const ScriptedHost&) = delete;
    ~ScriptedHost() override {
        if (!m_answers.empty())
            ADD_FAILURE() << m_answers.size() << " scripted answer(s) never used";
        if (const std::size_t dialogs = PendingDialogAnswers(); dialogs != 0)
            ADD_FAILURE() << dialogs << " scripted dialog answer(s) never used";
    }

    // Queues the answer to the next message box.
    void Answer(host::MsgAnswer answer) { m_answers.push_back(answer); }
    std::size_t PendingAnswers() const { return m_answers.size(); }

    host::MsgAnswer MsgBox(const std::string& text, host::MsgButtons buttons,
                            host::MsgIcon icon, const std::string& title) override {
        shown.push_back({text, buttons, icon, title});
        if (m_answers.empty()) {
            ADD_FAILURE() << "Unexpected message box: " << text;
            return ClosedAnswer(buttons);
        }
        const host::MsgAnswer answer = m_answers.front();
        m_answers.pop_front();
        if (!HasButton(buttons, answer)) {
            ADD_FAILURE() << "Scripted answer has no button in the box: " << text;
            return ClosedAnswer(buttons);
        }
        return answer;
    }
    void DoEvents() override { ++doEventsCount; }
    // Nested like the real host: an "off" with no hourglass shown is ignored.
    void SetHourglass(bool on) override {
        if (on) ++hourglassDepth;
        else if (hourglassDepth > 0) --hourglassDepth;
    }
    void RefreshDisplay() override { ++refreshCount; }

    // Queues the answer to the next dialog of a kind: a path or folder ("" = cancel), a
    // COLORREF (-1 = cancel), a printer confirmation with the values it then leaves.
    void AnswerOpen(std::string path) { m_openAnswers.push_back(std::move(path)); }
    void AnswerSave(std::string path) { m_saveAnswers.push_back(std::move(path)); }
    void AnswerColor(std::int32_t color) { m_colorAnswers.push_back(color); }
    void AnswerPrinter(bool confirmed, std::optional<utilities::PrinterValues> values = {}) {
        m_printerAnswers.emplace_back(confirmed, values);
    }
    void AnswerFolder(std::string folder) { m_folderAnswers.push_back(std::move(folder)); }

    std::string ShowOpen(const utilities::OpenRequest& request) override {
        openRequests.push_back(request);
        return Next(m_openAnswers, std::string(), "open dialog: " + request.Filter);
    }
    std::string ShowSave(const utilities::SaveRequest& request) override {
        saveRequests.push_back(request);
        return Next(m_saveAnswers, std::string(), "save dialog: " + request.Filter);
    }
    std::int32_t ShowColor(std::int32_t color, bool fullOpen) override {
        colorRequests.push_back({color, fullOpen});
        return Next(m_colorAnswers, std::int32_t{-1}, "color dialog");
    }
    bool ShowPrinter(const utilities::PrinterRequest& request) override {
        printerRequests.push_back(request);
        const auto answer = Next(m_printerAnswers, PrinterAnswer{false, {}}, "printer dialog");
        if (answer.first && answer.second) printerValues = *answer.second;
        return answer.first;
    }
    utilities::PrinterValues Printer() const override { return printerValues; }
    std::string GetFolderSpec(const std::string& pattern, const std::string& startFolder) override {
        return AskFolder(pattern, startFolder, false);
    }
    // The folder dialog as any caller shows it.
    std::string AskFolder(const std::string& pattern, const std::string& startFolder,
                          bool extendable) {
        folderRequests.push_back({pattern, startFolder, extendable});
        return Next(m_folderAnswers, std::string(), "folder dialog: " + pattern);
    }
    // The multi-icon dialog's next answer, and the requests it received.
    void AnswerMultiIcon(host::MultiIconAnswer answer) { m_multiAnswers.push_back(std::move(answer)); }
    struct MultiIconRequest {
        std::string fileSpec;
        int addMode;
        std::string addDescription;
    };
    std::vector<MultiIconRequest> multiIconRequests;
    host::MultiIconAnswer ShowMultiIcon(const std::string& fileSpec, int addMode,
                                         const surface::Surface*, const std::string& description) override {
        multiIconRequests.push_back({fileSpec, addMode, description});
        return Next(m_multiAnswers, host::MultiIconAnswer{}, "multi-icon dialog: " + fileSpec);
    }
    // The alpha editor: the test plays the user on the model it is given (see AlphaEditor);
    // unset, the editor is a failure and answers nothing.
    std::function<host::AlphaEditorAnswer(const host::AlphaEditorRequest&)> alphaEditor;
    int alphaEditorRuns = 0;
    host::AlphaEditorAnswer ShowAlphaEditor(const host::AlphaEditorRequest& request) override {
        ++alphaEditorRuns;
        if (!alphaEditor) {
            ADD_FAILURE() << "Unexpected alpha editor";
            return {};
        }
        return alphaEditor(request);
    }
    // Pictures the platform would load, by path; any other path fails to load.
    std::map<std::string, surface::Surface> pictures;
    bool LoadPicture(const std::string& path, surface::Surface& out) override {
        const auto it = pictures.find(path);
        if (it == pictures.end()) return false;
        out = it->second;
        return true;
    }

    std::size_t PendingDialogAnswers() const {
        return m_openAnswers.size() + m_saveAnswers.size() + m_colorAnswers.size() +
               m_printerAnswers.size() + m_folderAnswers.size() + m_multiAnswers.size();
    }

    // The answer of a box closed without a choice.
    static host::MsgAnswer ClosedAnswer(host::MsgButtons buttons) {
        switch (buttons) {
            case host::MsgButtons::Ok: return host::MsgAnswer::Ok;
            case host::MsgButtons::OkCancel: return host::MsgAnswer::Cancel;
            case host::MsgButtons::YesNoCancel: return host::MsgAnswer::Cancel;
            case host::MsgButtons::YesNo: return host::MsgAnswer::No;
        }
        return host::MsgAnswer::Ok;
    }
    static bool HasButton(host::MsgButtons buttons, host::MsgAnswer answer) {
        using host::MsgAnswer;
        switch (buttons) {
            case host::MsgButtons::Ok: return answer == MsgAnswer::Ok;
            case host::MsgButtons::OkCancel:
                return answer == MsgAnswer::Ok || answer == MsgAnswer::Cancel;
            case host::MsgButtons::YesNoCancel: return answer != MsgAnswer::Ok;
            case host::MsgButtons::YesNo:
                return answer == MsgAnswer::Yes || answer == MsgAnswer::No;
        }
        return false;
    }

    std::vector<Shown> shown;
    int doEventsCount = 0;
    int refreshCount = 0;
    int hourglassDepth = 0;
    std::vector<utilities::OpenRequest> openRequests;
    std::vector<utilities::SaveRequest> saveRequests;
    std::vector<ColorRequest> colorRequests;
    std::vector<utilities::PrinterRequest> printerRequests;
    std::vector<FolderRequest> folderRequests;
    // What Printer() answers: the values of the last confirmed printer answer that gave some.
    utilities::PrinterValues printerValues;

private:
    using PrinterAnswer = std::pair<bool, std::optional<utilities::PrinterValues>>;

    // The front of a queue; an empty queue fails the test and gives the cancelled answer.
    template <typename T>
    static T Next(std::deque<T>& queue, T cancelled, const std::string& what) {
        if (queue.empty()) {
            ADD_FAILURE() << "Unexpected " << what;
            return cancelled;
        }
        T answer = std::move(queue.front());
        queue.pop_front();
        return answer;
    }

    std::deque<host::MsgAnswer> m_answers;
    std::deque<std::string> m_openAnswers;
    std::deque<std::string> m_saveAnswers;
    std::deque<std::int32_t> m_colorAnswers;
    std::deque<PrinterAnswer> m_printerAnswers;
    std::deque<std::string> m_folderAnswers;
    std::deque<host::MultiIconAnswer> m_multiAnswers;
};

}  // namespace vexlo::test
