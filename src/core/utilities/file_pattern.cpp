#include "core/utilities/file_pattern.h"

#include <algorithm>
#include <cstddef>

namespace vexlo::utilities {

namespace {

char Fold(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// The length of the character at i: a lead byte and its continuation bytes when they are
// all there, else the single byte.
std::size_t CharLength(std::string_view s, std::size_t i) {
    const auto lead = static_cast<unsigned char>(s[i]);
    std::size_t len = 1;
    if (lead >= 0xC2 && lead <= 0xDF) len = 2;
    else if (lead >= 0xE0 && lead <= 0xEF) len = 3;
    else if (lead >= 0xF0 && lead <= 0xF4) len = 4;
    if (i + len > s.size()) return 1;
    for (std::size_t k = 1; k < len; ++k)
        if (!IsContinuation(s[i + k])) return 1;
    return len;
}

std::string_view TrimBlanks(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t')) s.remove_suffix(1);
    return s;
}

}  // namespace

bool MatchFilePattern(std::string_view pattern, std::string_view name) {
    // Greedy matching that returns to the last star only: a later star makes the earlier
    // one's choice final, so no choice is tried twice.
    std::size_t p = 0;
    std::size_t n = 0;
    std::size_t starP = std::string_view::npos;
    std::size_t starN = 0;
    while (n < name.size()) {
        if (p < pattern.size()) {
            if (pattern[p] == '*') {
                starP = ++p;
                starN = n;
                continue;
            }
            if (pattern[p] == '?') {
                ++p;
                n += CharLength(name, n);
                continue;
            }
            if (Fold(pattern[p]) == Fold(name[n])) {
                ++p;
                ++n;
                continue;
            }
        }
        if (starP == std::string_view::npos) return false;
        // The star takes one more character, and the rest is tried again after it.
        starN += CharLength(name, starN);
        n = starN;
        p = starP;
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

std::vector<std::string> SplitFilePatterns(std::string_view patterns) {
    std::vector<std::string> out;
    while (true) {
        const std::size_t semi = patterns.find(';');
        const std::string_view part = TrimBlanks(patterns.substr(0, semi));
        if (!part.empty()) out.emplace_back(part);
        if (semi == std::string_view::npos) break;
        patterns.remove_prefix(semi + 1);
    }
    return out;
}

bool MatchesAnyFilePattern(const std::vector<std::string>& patterns, std::string_view name) {
    return std::any_of(patterns.begin(), patterns.end(),
                       [name](const std::string& p) { return MatchFilePattern(p, name); });
}

bool FileNameLess(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto fa = static_cast<unsigned char>(Fold(a[i]));
        const auto fb = static_cast<unsigned char>(Fold(b[i]));
        if (fa != fb) return fa < fb;
    }
    if (a.size() != b.size()) return a.size() < b.size();
    return a < b;
}

}  // namespace vexlo::utilities
