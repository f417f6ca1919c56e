#include "core/session/settings/settings_file.h"

#include <filesystem>

#include "core/files/atomic_file.h"
#include "core/files/byte_reader.h"
#include "core/utilities/profile_text.h"

namespace vexlo::session {

bool SettingsFile::Exists() const { return !m_path.empty() && files::FileExists(m_path); }

std::string SettingsFile::Text() const {
    std::vector<std::uint8_t> bytes;
    if (m_path.empty() || files::ReadWholeFile(m_path, bytes, kMaxBytes) != files::FileReadStatus::Ok) return {};
    return std::string(bytes.begin(), bytes.end());
}

bool SettingsFile::Store(const std::string& text) {
    std::error_code ec;
    std::filesystem::create_directories(std::filesystem::path(m_path).parent_path(), ec);
    const auto* data = reinterpret_cast<const std::uint8_t*>(text.data());
    return static_cast<bool>(files::AtomicWriteFile(m_path, files::Bytes(data, text.size())));
}

std::string SettingsFile::Read(std::string_view section, std::string_view key) const {
    return utilities::ProfileText(Text()).Get(section, key).value_or("");
}

bool SettingsFile::Write(std::string_view section, std::string_view key, std::string_view value) {
    if (m_path.empty()) return false;
    utilities::ProfileText text(Text());
    text.Set(section, key, value);
    return Store(text.Text());
}

bool SettingsFile::Delete(std::string_view section, std::string_view key) {
    if (m_path.empty()) return false;
    utilities::ProfileText text(Text());
    text.Remove(section, key);
    return Store(text.Text());
}

}  // namespace vexlo::session
