// The program's filter strings as the file dialogs read them: the entries in order, the Qt
// name filters made of them, and the default extension.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/utilities/file_filter.h"

namespace vexlo::utilities {
namespace {

using namespace std::string_literals;

struct FilterCase {
    std::string filter;
    std::vector<FilterEntry> entries;
    std::string qtText;
};

// Every filter that the program passes to the open and save dialogs.
const std::vector<FilterCase> kProgramFilters = {
    {"Icon files (*.ico)|*.ico|",
     {{"Icon files (*.ico)", {"*.ico"}}},
     "Icon files (*.ico)"},
    {"Icon files (*.ico)|*.ico|(*.*)|*.*|",
     {{"Icon files (*.ico)", {"*.ico"}}, {"(*.*)", {"*.*"}}},
     "Icon files (*.ico);;(*.*)"},
    {"Cursor files (*.cur)|*.cur|",
     {{"Cursor files (*.cur)", {"*.cur"}}},
     "Cursor files (*.cur)"},
    {"cursor files (*.cur)|*.cur|(*.*)|*.*|",
     {{"cursor files (*.cur)", {"*.cur"}}, {"(*.*)", {"*.*"}}},
     "cursor files (*.cur);;(*.*)"},
    {"Bitmap files (*.bmp)|*.bmp|(*.*)|*.*|",
     {{"Bitmap files (*.bmp)", {"*.bmp"}}, {"(*.*)", {"*.*"}}},
     "Bitmap files (*.bmp);;(*.*)"},
    // The description's parentheses name no pattern: the patterns are added.
    {"(bmp/gif/jpg)|*.bmp;*.gif;*.jpg|(wfm/emf)|*.wfm;*.emf|(*.*)|*.*|",
     {{"(bmp/gif/jpg)", {"*.bmp", "*.gif", "*.jpg"}},
      {"(wfm/emf)", {"*.wfm", "*.emf"}},
      {"(*.*)", {"*.*"}}},
     "(bmp/gif/jpg) (*.bmp *.gif *.jpg);;(wfm/emf) (*.wfm *.emf);;(*.*)"},
    {"Palette file (*.pal)|*.pal|",
     {{"Palette file (*.pal)", {"*.pal"}}},
     "Palette file (*.pal)"},
    // The save filter names *.pal but filters by *.*, and must still filter by *.*.
    {"Palette file (*.pal)|*.*|",
     {{"Palette file (*.pal)", {"*.*"}}},
     "Palette file (*.pal) (*.*)"},
    {"Animated cursor files (*.ani)|*.ani|",
     {{"Animated cursor files (*.ani)", {"*.ani"}}},
     "Animated cursor files (*.ani)"},
    // The ANI save filter lacks its closing bar; the added NULs close the pattern.
    {"Animated cursor files (*.ani)|*.ani",
     {{"Animated cursor files (*.ani)", {"*.ani"}}},
     "Animated cursor files (*.ani)"},
    {"(*.ani)|*.ani|",
     {{"(*.ani)", {"*.ani"}}},
     "(*.ani)"},
    {"(*.dll)|*.dll|(*.exe)|*.exe|(*.res)|*.res|(*.*)|*.*|",
     {{"(*.dll)", {"*.dll"}}, {"(*.exe)", {"*.exe"}}, {"(*.res)", {"*.res"}}, {"(*.*)", {"*.*"}}},
     "(*.dll);;(*.exe);;(*.res);;(*.*)"},
    // A description without parentheses gets its patterns in them.
    {"*.exe|*.exe|(*.*)|*.*|",
     {{"*.exe", {"*.exe"}}, {"(*.*)", {"*.*"}}},
     "*.exe (*.exe);;(*.*)"},
};

TEST(FileFilterTest, ProgramFiltersGiveTheirEntriesInOrder) {
    for (const FilterCase& c : kProgramFilters) {
        SCOPED_TRACE(c.filter);
        EXPECT_EQ(ParseFilter(c.filter), c.entries);
        EXPECT_EQ(QtFilterText(c.filter), c.qtText);
        EXPECT_EQ(QtNameFilters(c.filter).size(), c.entries.size());
    }
}

TEST(FileFilterTest, PlatformFormEndsEachFieldAtBarOrColon) {
    const struct {
        std::string filter;
        std::string platform;
    } cases[] = {
        {"Icon files (*.ico)|*.ico|", "Icon files (*.ico)\0*.ico\0\0\0"s},
        {"Animated cursor files (*.ani)|*.ani", "Animated cursor files (*.ani)\0*.ani\0\0"s},
        {"C:files|*.x|", "C\0files\0*.x\0\0\0"s},
        {"", "\0\0"s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.filter);
        EXPECT_EQ(PlatformFilter(c.filter), c.platform);
    }
}

TEST(FileFilterTest, FieldsPairAsThePlatformReadsThem) {
    const struct {
        std::string filter;
        std::vector<FilterEntry> entries;
    } cases[] = {
        // A colon splits the description, so "files" becomes C's pattern, and "*.x" is left
        // without one.
        {"C:files|*.x|", {{"C", {"files"}}}},
        // An empty field is the double NUL: the list ends there.
        {"A|*.a||B|*.b|", {{"A", {"*.a"}}}},
        {"A||B|*.b|", {}},
        {"", {}},
        {"A|", {}},
        {"A| *.a ; *.b |", {{"A", {"*.a", "*.b"}}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.filter);
        EXPECT_EQ(ParseFilter(c.filter), c.entries);
    }
}

TEST(FileFilterTest, DescriptionShowingOtherPatternsGetsItsOwnAdded) {
    const struct {
        FilterEntry entry;
        std::string qt;
    } cases[] = {
        {{"Icons (*.ico *.cur)", {"*.ico", "*.cur"}}, "Icons (*.ico *.cur)"},
        // Qt splits the parenthesised patterns at blanks only.
        {{"Icons (*.ico;*.cur)", {"*.ico", "*.cur"}}, "Icons (*.ico;*.cur) (*.ico *.cur)"},
        {{"Icons (*.cur;*.ico)", {"*.ico", "*.cur"}}, "Icons (*.cur;*.ico) (*.ico *.cur)"},
        {{"Icons (*.ico)", {"*.ico", "*.cur"}}, "Icons (*.ico) (*.ico *.cur)"},
        {{"Icons (*.ICO)", {"*.ico"}}, "Icons (*.ICO) (*.ico)"},
        {{"Icons (*.ico) old", {"*.ico"}}, "Icons (*.ico) old (*.ico)"},
        {{"Icons", {"*.ico"}}, "Icons (*.ico)"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.entry.Description);
        EXPECT_EQ(QtNameFilter(c.entry), c.qt);
    }
}

TEST(FileFilterTest, DefaultExtOnlyForANameWithoutExtension) {
    const struct {
        std::string name, ext, expected;
    } cases[] = {
        {"icon", "ico", "icon.ico"},
        {"/tmp/work/icon", "ico", "/tmp/work/icon.ico"},
        {"/tmp/a.b/icon", "ico", "/tmp/a.b/icon.ico"},  // a dot in a folder doesn't count
        {"icon.ico", "ico", "icon.ico"},
        {"icon.bmp", "ico", "icon.bmp"},
        {"icon.", "ico", "icon."},
        {".hidden", "pal", ".hidden"},
        {"icon", ".ico", "icon.ico"},
        {"icon", "", "icon"},
        {"", "ico", ""},
        {"/tmp/work/", "ico", "/tmp/work/"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name + " + " + c.ext);
        EXPECT_EQ(AddDefaultExt(c.name, c.ext), c.expected);
    }
}

}  // namespace
}  // namespace vexlo::utilities
