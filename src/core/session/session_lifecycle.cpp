// How the session begins and ends: the load of the window, the first activation with its
// command line, the exit question, and the common error box.
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
    FirstActivation = true;
    FormLoading = true;
    QuitAtActivation = false;
    Form.Status.ProgressVisible = false;
    if (screenWidth < 800 || screenHeight < 600) {
        if (m_host.MsgBox(SmallScreenQuestion(screenWidth, screenHeight), MsgButtons::YesNo,
                          MsgIcon::Question, kTitle) == MsgAnswer::No) {
            QuitAtActivation = true;
            return false;
        }
    }
    // Every Surface starts at 32x32, picDisp at its fixed size.
    MagnifyStep = 12;
    Form.ColorChart0Visible = true;
    Form.GridlineChecked = {false, false, false};
    Form.DisplayMaskChecked = true;
    Form.PromptToSaveChecked = false;
    Form.RemindIfBmpChecked = true;
    ClearSlot();
    for (int i = 0; i < kSlotCount; ++i)
        Slots[static_cast<std::size_t>(i)].SlotIndex = static_cast<std::int16_t>(i);
    PicIcon.SetBackColor(kTransparentGray);
    picDisp.SetBackColor(kTransparentGray);
    Form.GridlineChecked[0] = true;
    GridColor = tools::kGridLight;
    CreateColorChart16();
    CreateColorChart256();
    ClearStatusPanel();
    SetInfoLabels(Form.Status.InfoLabelsVisible);
    IncomingAlpha.SetSingle();
    for (AlphaArray& a : SlotAlpha) a.SetSingle();
    FormLoading = false;
    return true;
}

CommandLineResult Session::RunFirstActivation(const std::string& commandLine,
                                              bool* keepWorkingDir) {
    if (keepWorkingDir) *keepWorkingDir = false;
    RefreshToolbar();
    ShowFrame(Frame::ColorsPanel);
    SwitchTo16ColorChart();
    CurrentSlot = 0;
    CurrentPath.clear();
    MarkCurrentLabel(0);
    m_host.DoEvents();

    CommandLineResult result = CommandLineResult::Empty;
    if (!commandLine.empty()) {
        CurrentPath = CommandLinePath(commandLine);
        std::error_code ec;
        if (std::filesystem::exists(CurrentPath, ec)) {
            const std::string ext = UpperExtension3(CurrentPath);
            result = CommandLineResult::Ignored;
            if (ext == "ICO") {
                const bool loaded = LoadIconFile(CurrentPath, false);
                result = loaded ? CommandLineResult::Loaded : CommandLineResult::LoadFailed;
                RefreshPaletteMenu();
                if (keepWorkingDir) *keepWorkingDir = loaded;
            } else if (ext == "CUR") {
                const bool loaded = LoadCursorFile(CurrentPath);
                result = loaded ? CommandLineResult::Loaded : CommandLineResult::LoadFailed;
                RefreshPaletteMenu();
                if (keepWorkingDir) *keepWorkingDir = loaded;
            } else if (ext == "ANI") {
                // Animated cursor files need the ANI reader, which this program lacks yet.
                result = CommandLineResult::LoadFailed;
            }
        } else {
            m_host.MsgBox(CurrentPath + " not found", MsgButtons::Ok, MsgIcon::None, kTitle);
            result = CommandLineResult::NotFound;
        }
    }
    FirstActivation = false;
    return result;
}

std::string Session::UnsavedSlotsQuestion() const {
    std::string list;
    int count = 0;
    for (int i = 0; i < kSlotCount; ++i) {
        const IconSlot& s = Slots[static_cast<std::size_t>(i)];
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
    const std::string question = UnsavedSlotsQuestion();
    if (question.empty()) return true;
    return m_host.MsgBox(question, MsgButtons::YesNo, MsgIcon::Question, kTitle) != MsgAnswer::No;
}

void Session::ReportError(const std::string& label, long number, const std::string& description) {
    m_host.MsgBox(label + kCrLf + std::to_string(number) + "     " + description, MsgButtons::Ok,
                  MsgIcon::None, kTitle);
}

}  // namespace vexlo::session
