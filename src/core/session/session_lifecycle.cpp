// How the session begins and ends: the load of the window, the first activation with its
// command line, the exit question, and the common error box.
#include <cassert>
#include <filesystem>
#include <system_error>

#include "core/session/session.h"

namespace vexlo::session {

std::string SecondInstanceText() {
    return std::string("Program is already running.") + kCrLf +
           "You can load six icons there at any one time." + kCrLf;
}

std::string SmallScreenQuestion(int width, int height) {
    return std::string("This program requires a 800x600 screen or better.") + kCrLf +
           " Your current screen is " + std::to_string(width) + "x" + std::to_string(height) +
           ".  Proceed still?";
}

std::string CommandLinePath(const std::string& commandLine) {
    std::string path;
    for (char c : commandLine)
        if (c != '"') path += c;
    return path;
}

std::string UpperExtension3(const std::string& path) {
    std::string ext = path.size() >= 3 ? path.substr(path.size() - 3) : path;
    for (char& c : ext)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return ext;
}

WindowPos PlaceWindow(int screenWidth, int screenHeight, int windowWidth, int windowHeight,
                      const WindowPos* stored) {
    const bool small = screenWidth < 800 || screenHeight < 600;
    WindowPos pos;
    if (stored) {
        if (small) return pos;
        pos = *stored;
        if (pos.Left > screenWidth * 3 / 4) pos.Left = 0;
        if (pos.Top > screenHeight * 3 / 4) pos.Top = 0;
        return pos;
    }
    if (small) return pos;
    pos.Left = (screenWidth - windowWidth) / 2;
    pos.Top = screenWidth == 800 && screenHeight == 600
                  ? 0
                  : (screenHeight - windowHeight - 100) / 2;
    if (pos.Top < 0) pos.Top = 0;
    return pos;
}

bool Session::Load(int screenWidth, int screenHeight) {
    m_firstActivation = true;
    m_formLoading = true;
    m_quitAtActivation = false;
    m_form.Status.ProgressVisible = false;
    if (screenWidth < 800 || screenHeight < 600) {
        if (m_host.MsgBox(SmallScreenQuestion(screenWidth, screenHeight), MsgButtons::YesNo,
                          MsgIcon::Question, kTitle) == MsgAnswer::No) {
            m_quitAtActivation = true;
            return false;
        }
    }
    // Every Surface starts at 32x32, picDisp at its fixed size.
    m_view.SetMagnifyStep(12);
    m_form.ColorChart0Visible = true;
    m_form.GridlineChecked = {false, false, false};
    m_form.DisplayMaskChecked = true;
    m_form.PromptToSaveChecked = false;
    m_form.RemindIfBmpChecked = true;
    ClearSlot();
    m_form.GridlineChecked[0] = true;
    m_view.SetGridColor(tools::kGridLight);
    CreateColorCharts();
    ClearStatusPanel();
    SetInfoLabels(m_form.Status.InfoLabelsVisible);
    m_panel.ResetAlpha();
    m_formLoading = false;
    return true;
}

CommandLineResult Session::RunFirstActivation(const std::string& commandLine,
                                              bool* keepWorkingDir) {
    if (keepWorkingDir) *keepWorkingDir = false;
    ReadOptions();
    RefreshFileHistory();
    RefreshToolbar();
    ShowFrame(Frame::ColorsPanel);
    SwitchTo16ColorChart();
    m_panel.Select(0);
    m_currentPath.clear();
    MarkCurrentLabel(0);
    LetPendingEventsRun();

    CommandLineResult result = CommandLineResult::Empty;
    if (!commandLine.empty()) {
        m_currentPath = CommandLinePath(commandLine);
        std::error_code ec;
        if (std::filesystem::exists(m_currentPath, ec)) {
            const std::string ext = UpperExtension3(m_currentPath);
            result = CommandLineResult::Ignored;
            if (ext == "ICO") {
                const bool loaded = LoadIconFile(m_currentPath, false);
                result = loaded ? CommandLineResult::Loaded : CommandLineResult::LoadFailed;
                RefreshPaletteMenu();
                if (keepWorkingDir) *keepWorkingDir = loaded;
            } else if (ext == "CUR") {
                const bool loaded = LoadCursorFile(m_currentPath);
                result = loaded ? CommandLineResult::Loaded : CommandLineResult::LoadFailed;
                RefreshPaletteMenu();
                if (keepWorkingDir) *keepWorkingDir = loaded;
            } else if (ext == "ANI") {
                result = OpenAniFromCommandLine(m_currentPath) ? CommandLineResult::Loaded
                                                               : CommandLineResult::LoadFailed;
            }
        } else {
            m_host.MsgBox(m_currentPath + " not found", MsgButtons::Ok, MsgIcon::None, kTitle);
            result = CommandLineResult::NotFound;
        }
    }
    m_firstActivation = false;
    return result;
}

std::string Session::UnsavedSlotsQuestion() const {
    std::string list;
    int count = 0;
    for (int i = 0; i < kSlotCount; ++i) {
        const IconSlot& s = m_panel.Slot(i);
        if (s.Occupied && (s.Changed || s.NeverSaved)) {
            list += "Icon Seq " + std::to_string(i + 1) + "    " + s.FileSpec + kCrLf;
            ++count;
        }
    }
    if (count == 0) return {};
    return std::string("The following ") + (count == 1 ? "is" : "are") + " not saved yet: " +
           kCrLf + kCrLf + list + kCrLf + "Proceed to exit still?" + kCrLf;
}

bool Session::QueryExit() {
    m_host.SetHourglass(false);
    // Frames of a visible animated cursor session that aren't saved are asked about too.
    if (m_ani.ContainerVisible() && !AskAniDiscard()) return false;
    const std::string question = UnsavedSlotsQuestion();
    if (question.empty()) return true;
    return m_host.MsgBox(question, MsgButtons::YesNo, MsgIcon::Question, kTitle) != MsgAnswer::No;
}

void Session::ReportError(const std::string& label, long number, const std::string& description) {
    m_host.MsgBox(label + kCrLf + std::to_string(number) + "     " + description, MsgButtons::Ok,
                  MsgIcon::None, kTitle);
}

void Session::LetPendingEventsRun() {
    ++m_pendingEventsDepth;
    m_host.DoEvents();
    --m_pendingEventsDepth;
}

void Session::Enter() const {
    assert(m_pendingEventsDepth == 0 && "an operation started while another let pending events run");
}

}  // namespace vexlo::session
