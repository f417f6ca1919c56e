// The folder dialog's file patterns: '*' and '?' without regard to case, lists split at ';',
// names that aren't UTF-8, and patterns that would make a naive matcher run for ever.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/utilities/file_pattern.h"

namespace vexlo::utilities {
namespace {

TEST(FilePattern, MatchesWholeNamesWithoutRegardToCase) {
    const struct {
        const char* pattern;
        std::string name;
        bool matches;
    } cases[] = {
        {"*.ico", "a.ico", true},
        {"*.ico", "C.ICO", true},
        {"*.ICO", "c.ico", true},
        {"*.ico", "a.icon", false},
        {"*.ico", "ico", false},
        {"*.ico", ".ico", true},
        {"?.ico", "a.ico", true},
        {"?.ico", "ab.ico", false},
        {"?.ico", ".ico", false},
        {"a*b*c", "aXXbYYc", true},
        {"a*b*c", "aXXbYYcd", false},
        {"*.*", "note.txt", true},
        {"*.*", "noext", false},
        {"*", "", true},
        {"", "", true},
        {"", "a", false},
        {"**x**", "x", true},
        // Letters outside ASCII are compared as they are.
        {"É.ico", "É.ico", true},
        {"é.ico", "É.ICO", false},
        // '?' is one character, not one byte.
        {"?.ico", "é.ico", true},
        {"??.ico", "é.ico", false},
        {"*?.ico", "\xe2\x82\xac.ico", true},
        // Bytes that aren't UTF-8 are single characters.
        {"?.ico", "\xff.ico", true},
        {"*.ico", "\xff\xfe\xc3.ico", true},
        {"?", "\xc3", true},
        // The pattern shown when none is given is a literal name.
        {"XYZ!@#$%^", "xyz!@#$%^", true},
        {"XYZ!@#$%^", "xyz", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.pattern) + " / " + c.name);
        EXPECT_EQ(MatchFilePattern(c.pattern, c.name), c.matches);
    }
}

TEST(FilePattern, ManyStarsOverALongNameFinishQuickly) {
    // Trying every split of the name for each star would take ages here.
    const std::string name(4000, 'a');
    EXPECT_FALSE(MatchFilePattern("*a*a*a*a*a*a*a*a*a*a*b", name));
    EXPECT_TRUE(MatchFilePattern("*a*a*a*a*a*a*a*a*a*a*", name));
}

TEST(FilePattern, ListsSplitAtSemicolons) {
    const struct {
        const char* list;
        std::vector<std::string> patterns;
    } cases[] = {
        {"*.ico", {"*.ico"}},
        {"*.txt;*.ico", {"*.txt", "*.ico"}},
        {" *.ico ; *.cur ;", {"*.ico", "*.cur"}},
        {";;", {}},
        {"", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.list);
        EXPECT_EQ(SplitFilePatterns(c.list), c.patterns);
    }
    EXPECT_TRUE(MatchesAnyFilePattern({"*.txt", "*.ico"}, "A.ICO"));
    EXPECT_FALSE(MatchesAnyFilePattern({}, "a.ico"));
}

}  // namespace
}  // namespace vexlo::utilities
