#include "core/utilities/profile_text.h"

namespace vexlo::utilities {

namespace {

constexpr const char* kNewLine = "\r\n";

std::string_view Trim(std::string_view s) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    while (!s.empty() && blank(s.front())) s.remove_prefix(1);
    while (!s.empty() && blank(s.back())) s.remove_suffix(1);
    return s;
}

bool SameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char x = a[i], y = b[i];
        if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
        if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
        if (x != y) return false;
    }
    return true;
}

// The name of a section header line, or nullopt for any other line.
std::optional<std::string_view> SectionName(std::string_view line) {
    const std::string_view t = Trim(line);
    if (t.empty() || t.front() != '[') return std::nullopt;
    const std::size_t close = t.find(']');
    if (close == std::string_view::npos) return std::nullopt;
    return Trim(t.substr(1, close - 1));
}

// The key of a key line; empty for blank lines and comments.
std::string_view KeyName(std::string_view line) {
    const std::string_view t = Trim(line);
    if (t.empty() || t.front() == ';') return {};
    return Trim(t.substr(0, t.find('=')));
}

}  // namespace

ProfileText::ProfileText(std::string_view text) {
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t nl = text.find('\n', start);
        const std::size_t stop = nl == std::string_view::npos ? text.size() : nl;
        Line line;
        std::size_t textEnd = stop;
        if (nl != std::string_view::npos) {
            const bool cr = stop > start && text[stop - 1] == '\r';
            if (cr) --textEnd;
            line.End = cr ? "\r\n" : "\n";
        }
        line.Text.assign(text.substr(start, textEnd - start));
        m_lines.push_back(std::move(line));
        start = nl == std::string_view::npos ? text.size() : nl + 1;
    }
}

bool ProfileText::FindSection(std::string_view section, std::size_t& header, std::size_t& end) const {
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const auto name = SectionName(m_lines[i].Text);
        if (!name || !SameName(*name, Trim(section))) continue;
        header = i;
        end = i + 1;
        while (end < m_lines.size() && !SectionName(m_lines[end].Text)) ++end;
        return true;
    }
    return false;
}

std::size_t ProfileText::FindKey(std::size_t header, std::size_t end, std::string_view key) const {
    for (std::size_t i = header + 1; i < end; ++i)
        if (const std::string_view name = KeyName(m_lines[i].Text); !name.empty() && SameName(name, Trim(key)))
            return i;
    return end;
}

std::optional<std::string> ProfileText::Get(std::string_view section, std::string_view key) const {
    std::size_t header = 0, end = 0;
    if (!FindSection(section, header, end)) return std::nullopt;
    const std::size_t at = FindKey(header, end, key);
    if (at == end) return std::nullopt;
    const std::string_view line = m_lines[at].Text;
    const std::size_t eq = line.find('=');
    if (eq == std::string_view::npos) return std::string();
    std::string_view value = Trim(line.substr(eq + 1));
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front())
        value = value.substr(1, value.size() - 2);
    return std::string(value);
}

void ProfileText::Set(std::string_view section, std::string_view key, std::string_view value) {
    Line line{std::string(Trim(key)), kNewLine};
    line.Text += '=';
    line.Text += value;
    std::size_t header = 0, end = 0;
    if (!FindSection(section, header, end)) {
        if (!m_lines.empty() && m_lines.back().End.empty()) m_lines.back().End = kNewLine;
        Line title{"[", kNewLine};
        title.Text += Trim(section);
        title.Text += ']';
        m_lines.push_back(std::move(title));
        m_lines.push_back(std::move(line));
        return;
    }
    const std::size_t at = FindKey(header, end, key);
    if (at != end) {
        // The key keeps the name it has in the text; only its value changes.
        std::string text(KeyName(m_lines[at].Text));
        text += '=';
        text += value;
        m_lines[at].Text = std::move(text);
        return;
    }
    // After the section's last line that isn't blank, so that blank lines keep separating it
    // from the next section.
    std::size_t after = end;
    while (after > header + 1 && Trim(m_lines[after - 1].Text).empty()) --after;
    if (m_lines[after - 1].End.empty()) m_lines[after - 1].End = kNewLine;
    m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(after), std::move(line));
}

void ProfileText::Remove(std::string_view section, std::string_view key) {
    std::size_t header = 0, end = 0;
    if (!FindSection(section, header, end)) return;
    const std::size_t at = FindKey(header, end, key);
    if (at != end) m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(at));
}

std::string ProfileText::Text() const {
    std::string out;
    for (const Line& line : m_lines) out += line.Text + line.End;
    return out;
}

}  // namespace vexlo::utilities
