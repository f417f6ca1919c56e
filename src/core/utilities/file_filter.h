#pragma once
// The program's file filters, "desc|pattern|desc|pattern|", as the common dialogs read them,
// and the default extension that a dialog adds to a name typed without one.
#include <string>
#include <vector>

namespace vexlo::utilities {

struct FilterEntry {
    std::string Description;
    std::vector<std::string> Patterns;  // "*.bmp;*.gif" gives "*.bmp", "*.gif"

    bool operator==(const FilterEntry&) const = default;
};

// The filter as the platform's dialog takes it: each "|" and each ":" ends a field (becomes
// a NUL), every other character stays, and two NULs close the list.
std::string PlatformFilter(const std::string& filter);

// The entries of the filter, in order, read from PlatformFilter as the dialog reads it: fields
// pair up as description and pattern, and the list ends at the first empty field (a double
// NUL). A description left without a pattern is dropped.
std::vector<FilterEntry> ParseFilter(const std::string& filter);

// One entry as a Qt name filter, "desc (*.a *.b)". Qt takes the patterns from the last
// parenthesised group of the text, so a description that already ends with exactly its own
// patterns, "Icon files (*.ico)" over "*.ico", is written alone and isn't shown twice. Any
// other description gets its patterns appended, so that the entry filters by its pattern and
// not by what the description claims: "Palette file (*.pal)" over "*.*" becomes
// "Palette file (*.pal) (*.*)".
std::string QtNameFilter(const FilterEntry& entry);
// Every entry as a Qt name filter, in order.
std::vector<std::string> QtNameFilters(const std::string& filter);
// The Qt name filters joined by ";;", as QFileDialog::setNameFilter takes them.
std::string QtFilterText(const std::string& filter);

// name with "." + ext added when its file name (after the last "/") has no "." at all; name
// unchanged otherwise, or when name or ext is empty. A leading "." of ext isn't doubled.
std::string AddDefaultExt(const std::string& name, const std::string& ext);

}  // namespace vexlo::utilities
