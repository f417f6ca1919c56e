// The settings file: the options, the last folder and the window's place, read at start and
// written at exit, and the file history of the File menu, written the moment a file enters it.
#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "core/files/atomic_file.h"
#include "core/session/session.h"
#include "core/session/settings/settings_file.h"

namespace vexlo::session {

namespace {

constexpr const char* kOptions = "Options";
constexpr const char* kHistory = "File History";
constexpr const char* kLastFolder = "Last Folder";
constexpr const char* kScreenPos = "Screen Pos";
constexpr int kTwipsPerPixel = 15;

std::string HistoryKey(int i) { return std::to_string(i) + "."; }

std::string Trimmed(const std::string& s) {
    const std::size_t first = s.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return s.substr(first, s.find_last_not_of(' ') - first + 1);
}

const char* Flag(bool on) { return on ? "-1" : "0"; }

}  // namespace

std::string Session::SettingsPath() const {
    return m_dirs.ConfigDir.empty() ? std::string() : m_dirs.ConfigDir + "Vexlo.ini";
}

void Session::ReadOptions() {
    const SettingsFile ini(SettingsPath());
    if (!ini.Exists()) {
        m_fileHistory = {};
        m_view.SetGridColor(tools::kGridLight);
        return;
    }
    const std::string grid = ini.Read(kOptions, "GridLines");
    m_form.GridlineChecked = {false, false, false};
    if (grid == "2") {
        m_form.GridlineChecked[1] = true;
        m_view.SetGridColor(tools::kGridDark);
    } else if (grid == "3") {
        m_form.GridlineChecked[2] = true;
        m_view.SetGridColor(tools::kGridDotted);
    } else if (grid == "0") {
        m_view.SetGridColor(tools::kGridNone);
    } else {
        m_form.GridlineChecked[0] = true;
        m_view.SetGridColor(tools::kGridLight);
    }
    m_form.DisplayMaskChecked = ini.Read(kOptions, "DisplayMask") != "0";
    m_form.PromptToSaveChecked = ini.Read(kOptions, "PromptToSave") == "-1";
    m_form.RemindIfBmpChecked = ini.Read(kOptions, "RemindIfBMP") != "0";
}

void Session::WriteOptions() {
    SettingsFile ini(SettingsPath());
    std::string grid = "0";
    for (int i = 0; i < 3; ++i)
        if (m_form.GridlineChecked[static_cast<std::size_t>(i)]) {
            grid = std::to_string(i + 1);
            break;
        }
    const std::pair<const char*, std::string> values[] = {
        {"GridLines", grid},
        {"DisplayMask", Flag(m_form.DisplayMaskChecked)},
        {"PromptToSave", Flag(m_form.PromptToSaveChecked)},
        {"RemindIfBMP", Flag(m_form.RemindIfBmpChecked)},
    };
    for (const auto& [key, value] : values)
        if (ini.Read(kOptions, key) != value) ini.Write(kOptions, key, value);
}

std::string Session::ReadLastFolder() const {
    const std::string folder = SettingsFile(SettingsPath()).Read(kLastFolder, "LastFolder");
    std::error_code ec;
    return !folder.empty() && std::filesystem::is_directory(folder, ec) ? folder : std::string();
}

void Session::WriteLastFolder(const std::string& folder) {
    SettingsFile(SettingsPath()).Write(kLastFolder, "LastFolder", folder);
}

std::optional<WindowPos> Session::ReadScreenPos() const {
    const SettingsFile ini(SettingsPath());
    const std::string left = ini.Read(kScreenPos, "Left");
    const std::string top = ini.Read(kScreenPos, "Top");
    if (left.empty() || top.empty()) return std::nullopt;
    // Twips, as text of a number; anything that isn't one counts as 0.
    const auto pixels = [](const std::string& twips) {
        const double v = std::strtod(twips.c_str(), nullptr);
        return v > 0 && v < 1e7 ? static_cast<int>(v / kTwipsPerPixel) : 0;
    };
    return WindowPos{pixels(left), pixels(top)};
}

void Session::WriteScreenPos(int left, int top) {
    SettingsFile ini(SettingsPath());
    ini.Write(kScreenPos, "Left", std::to_string(left * kTwipsPerPixel));
    ini.Write(kScreenPos, "Top", std::to_string(top * kTwipsPerPixel));
}

void Session::RefreshFileHistory() {
    const SettingsFile ini(SettingsPath());
    if (!ini.Exists()) return;
    int n = 0;
    for (int i = 1; i <= kHistoryEntries; ++i) {
        const std::string value = Trimmed(ini.Read(kHistory, HistoryKey(i)));
        LetPendingEventsRun();
        if (value.empty()) continue;
        ++n;
        const auto k = static_cast<std::size_t>(n);
        std::string& caption = m_fileHistory.Caption[k];
        caption.assign(1, '&');
        caption += std::to_string(n);
        caption += ' ';
        caption += value;
        m_fileHistory.Enabled[k] = m_fileHistory.Visible[k] = true;
    }
    m_fileHistory.Enabled[0] = m_fileHistory.Visible[0] = n > 0;
    for (int i = n + 1; i <= kHistoryEntries; ++i)
        m_fileHistory.Enabled[static_cast<std::size_t>(i)] = m_fileHistory.Visible[static_cast<std::size_t>(i)] = false;
}

void Session::AddToFileHistory(const std::string& path) {
    SettingsFile ini(SettingsPath());
    if (!SettingsPath().empty()) {
        const std::string first = ini.Read(kHistory, HistoryKey(1));
        if (first.empty() || Trimmed(first).empty()) {
            if (!first.empty()) ini.Delete(kHistory, HistoryKey(1));
            ini.Write(kHistory, HistoryKey(1), path);
        } else if (first != path) {
            std::array<std::string, kHistoryEntries + 1> rows;
            rows[1] = path;
            for (int i = 1; i < kHistoryEntries; ++i) rows[static_cast<std::size_t>(i + 1)] = ini.Read(kHistory, HistoryKey(i));
            for (int i = 1; i <= kHistoryEntries; ++i) ini.Delete(kHistory, HistoryKey(i));
            for (int i = 1; i <= kHistoryEntries; ++i)
                ini.Write(kHistory, HistoryKey(i), rows[static_cast<std::size_t>(i)]);
        }
    }
    RefreshFileHistory();
}

void Session::ClickFileHistory(int k) {
    Enter();
    if (k < 1 || k > kHistoryEntries) return;
    const std::string caption = m_fileHistory.Caption[static_cast<std::size_t>(k)];
    if (caption.empty()) return;
    if (m_form.VisibleFrame != Frame::ColorsPanel) {
        if (!AskTerminateAniSession(true)) return;
        ShowFrame(Frame::ColorsPanel);
    }
    if (!GuardReplaceCurrent()) return;
    const std::string path = Trimmed(caption.size() > 3 ? caption.substr(3) : std::string());
    if (!files::FileExists(path)) {
        m_host.MsgBox(path + " not found", MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    if (LoadIconFile(path, true)) {
        m_currentPath = path;
        RefreshPaletteMenu();
    }
}

}  // namespace vexlo::session
