#include "core/utilities/file_filter.h"

#include <string_view>

namespace vexlo::utilities {

namespace {

// The tokens of a pattern list split at any of the separators, empty ones left out.
std::vector<std::string> Split(std::string_view text, std::string_view separators) {
    std::vector<std::string> out;
    std::string token;
    for (const char c : text) {
        if (separators.find(c) != std::string_view::npos) {
            if (!token.empty()) out.push_back(std::move(token));
            token.clear();
        } else {
            token += c;
        }
    }
    if (!token.empty()) out.push_back(std::move(token));
    return out;
}

// Whether the description ends with "(...)" holding exactly the entry's patterns as Qt reads
// them there: separated by blanks only ("(*.a;*.b)" would be one pattern to Qt).
bool ShowsOwnPatterns(const FilterEntry& entry) {
    const std::string& d = entry.Description;
    if (d.empty() || d.back() != ')') return false;
    const std::size_t open = d.rfind('(');
    if (open == std::string::npos) return false;
    const std::string_view inside = std::string_view(d).substr(open + 1, d.size() - open - 2);
    return Split(inside, " ") == entry.Patterns;
}

}  // namespace

std::string PlatformFilter(const std::string& filter) {
    std::string out;
    out.reserve(filter.size() + 2);
    for (const char c : filter) out += (c == '|' || c == ':') ? '\0' : c;
    out += '\0';
    out += '\0';
    return out;
}

std::vector<FilterEntry> ParseFilter(const std::string& filter) {
    const std::string platform = PlatformFilter(filter);
    std::vector<std::string> fields;
    std::size_t start = 0;
    while (start < platform.size()) {
        const std::size_t end = platform.find('\0', start);
        if (end == start) break;  // an empty field: the double NUL that ends the list
        fields.push_back(platform.substr(start, end - start));
        start = end + 1;
    }
    std::vector<FilterEntry> entries;
    for (std::size_t i = 0; i + 1 < fields.size(); i += 2)
        entries.push_back({fields[i], Split(fields[i + 1], "; \t")});
    return entries;
}

std::string QtNameFilter(const FilterEntry& entry) {
    if (ShowsOwnPatterns(entry)) return entry.Description;
    std::string patterns;
    for (const std::string& p : entry.Patterns) {
        if (!patterns.empty()) patterns += ' ';
        patterns += p;
    }
    if (entry.Description.empty()) return "(" + patterns + ")";
    return entry.Description + " (" + patterns + ")";
}

std::vector<std::string> QtNameFilters(const std::string& filter) {
    std::vector<std::string> out;
    for (const FilterEntry& e : ParseFilter(filter)) out.push_back(QtNameFilter(e));
    return out;
}

std::string QtFilterText(const std::string& filter) {
    std::string out;
    for (const std::string& f : QtNameFilters(filter)) {
        if (!out.empty()) out += ";;";
        out += f;
    }
    return out;
}

std::string AddDefaultExt(const std::string& name, const std::string& ext) {
    const std::string_view e = !ext.empty() && ext.front() == '.'
                                   ? std::string_view(ext).substr(1)
                                   : std::string_view(ext);
    if (name.empty() || e.empty()) return name;
    const std::size_t slash = name.rfind('/');
    const std::size_t fileStart = slash == std::string::npos ? 0 : slash + 1;
    if (fileStart == name.size()) return name;  // a folder, no file name
    if (name.find('.', fileStart) != std::string::npos) return name;
    return name + "." + std::string(e);
}

}  // namespace vexlo::utilities
