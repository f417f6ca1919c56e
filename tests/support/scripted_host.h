#pragma once
// A Host for tests: answers each message box from a queue, records every message shown, and
// counts the other services. A message with no answer queued fails the test and answers as a
// closed box would; so does an answer the box has no button for, and an answer left unused.
#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "core/shell/host.h"

namespace vexlo::test {

class ScriptedHost : public shell::Host {
public:
    struct Shown {
        std::string text;
        shell::MsgButtons buttons;
        shell::MsgIcon icon;
        std::string title;
    };

    ScriptedHost() = default;
    ScriptedHost(const ScriptedHost&) = delete;
    ScriptedHost& operator=(const ScriptedHost&) = delete;
    ~ScriptedHost() override {
        if (!m_answers.empty())
            ADD_FAILURE() << m_answers.size() << " scripted answer(s) never used";
    }

    // Queues the answer to the next message box.
    void Answer(shell::MsgAnswer answer) { m_answers.push_back(answer); }
    std::size_t PendingAnswers() const { return m_answers.size(); }

    shell::MsgAnswer MsgBox(const std::string& text, shell::MsgButtons buttons,
                            shell::MsgIcon icon, const std::string& title) override {
        shown.push_back({text, buttons, icon, title});
        if (m_answers.empty()) {
            ADD_FAILURE() << "Unexpected message box: " << text;
            return ClosedAnswer(buttons);
        }
        const shell::MsgAnswer answer = m_answers.front();
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

    // The answer of a box closed without a choice.
    static shell::MsgAnswer ClosedAnswer(shell::MsgButtons buttons) {
        switch (buttons) {
            case shell::MsgButtons::Ok: return shell::MsgAnswer::Ok;
            case shell::MsgButtons::OkCancel: return shell::MsgAnswer::Cancel;
            case shell::MsgButtons::YesNoCancel: return shell::MsgAnswer::Cancel;
            case shell::MsgButtons::YesNo: return shell::MsgAnswer::No;
        }
        return shell::MsgAnswer::Ok;
    }
    static bool HasButton(shell::MsgButtons buttons, shell::MsgAnswer answer) {
        using shell::MsgAnswer;
        switch (buttons) {
            case shell::MsgButtons::Ok: return answer == MsgAnswer::Ok;
            case shell::MsgButtons::OkCancel:
                return answer == MsgAnswer::Ok || answer == MsgAnswer::Cancel;
            case shell::MsgButtons::YesNoCancel: return answer != MsgAnswer::Ok;
            case shell::MsgButtons::YesNo:
                return answer == MsgAnswer::Yes || answer == MsgAnswer::No;
        }
        return false;
    }

    std::vector<Shown> shown;
    int doEventsCount = 0;
    int refreshCount = 0;
    int hourglassDepth = 0;

private:
    std::deque<shell::MsgAnswer> m_answers;
};

}  // namespace vexlo::test
