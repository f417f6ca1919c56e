#pragma once
// The Windows profile format (an INI file) as text: lines "[Section]" and "key=value".
// Section and key names are found without regard to case, names and values lose the blanks
// around them when read, and a value in matching double or single quotes loses the quotes.
// Every line that a change doesn't touch stays byte for byte as it was, so a file read and
// written back unchanged is the same file. Lines written new end with CR LF.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexlo::utilities {

class ProfileText {
public:
    ProfileText() = default;
    explicit ProfileText(std::string_view text);

    // The value of key in section; nullopt when either is missing. A line with no '=' is a
    // key without a value, read as "".
    std::optional<std::string> Get(std::string_view section, std::string_view key) const;
    // key=value in section: the key's line replaced, or a new line after the section's last
    // key, or a new section at the end of the text.
    void Set(std::string_view section, std::string_view key, std::string_view value);
    // The key's line removed; nothing when it is missing.
    void Remove(std::string_view section, std::string_view key);
    std::string Text() const;

private:
    struct Line {
        std::string Text;  // without its line ending
        std::string End;   // "\r\n", "\n" or "" for a last line without one
    };
    // The range of lines of a section: its header line and the line after its last line;
    // false when there is no such section.
    bool FindSection(std::string_view section, std::size_t& header, std::size_t& end) const;
    // The line of key within (header, end), or end.
    std::size_t FindKey(std::size_t header, std::size_t end, std::string_view key) const;

    std::vector<Line> m_lines;
};

}  // namespace vexlo::utilities
