#pragma once
// File name patterns as the folder dialog's file list takes them: "*.ico", "*.txt;*.ico".
// '*' stands for any run of characters, '?' for exactly one, and every other character for
// itself, with ASCII letters matched without regard to case. Names are bytes: a name that
// isn't valid UTF-8 is matched as it is, never rejected.
#include <string>
#include <string_view>
#include <vector>

namespace vexlo::utilities {

// Whether name matches pattern as a whole. A character is a UTF-8 sequence, or a single byte
// where the name isn't UTF-8, so '?' takes "é" whole. Work is bounded by the product of the
// two lengths, whatever the number of stars.
bool MatchFilePattern(std::string_view pattern, std::string_view name);

// The patterns of a list split at ';', each without blanks around it; empty parts dropped.
std::vector<std::string> SplitFilePatterns(std::string_view patterns);

// Whether name matches any of patterns (none matches an empty list).
bool MatchesAnyFilePattern(const std::vector<std::string>& patterns, std::string_view name);

// The order of names in the dialog's lists: ASCII letters compared without case, ties
// broken by the bytes, so that the order is total.
bool FileNameLess(std::string_view a, std::string_view b);

}  // namespace vexlo::utilities
