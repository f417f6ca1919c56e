#pragma once
// Vexlo.ini, the settings file, through the three profile routines: ReadIniValue,
// WriteIniValue and DeleteIniKey. Each call reads the file afresh, as the platform's profile
// routines do. A missing, unreadable or oversized file reads as empty; a write goes into a file
// beside it that then replaces it, so a failed write leaves the old file whole.
#include <string>
#include <string_view>

namespace vexlo::session {

class SettingsFile {
public:
    // A larger file isn't settings of ours: it reads as empty and the next write replaces it.
    static constexpr std::size_t kMaxBytes = 256 * 1024;

    // path empty: no settings file; reads answer "" and writes do nothing.
    explicit SettingsFile(std::string path) : m_path(std::move(path)) {}

    bool Exists() const;
    std::string Read(std::string_view section, std::string_view key) const;
    bool Write(std::string_view section, std::string_view key, std::string_view value);
    bool Delete(std::string_view section, std::string_view key);

private:
    std::string Text() const;
    bool Store(const std::string& text);

    std::string m_path;
};

}  // namespace vexlo::session
