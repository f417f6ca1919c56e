#pragma once
// The Icons List's reader of library files: our own reader of program, .res, icon and cursor
// files (extract::IconLibrary) behind LibraryIconSource. The last file read is kept while its
// size and time stay the same, so a lot of 48 icons of one DLL reads the file once.
#include <cstdint>
#include <filesystem>
#include <string>

#include "core/extract/icon_library.h"
#include "core/session/icons_list/library_icons.h"

namespace vexlo::session {

class LibraryFileIcons : public LibraryIconSource {
public:
    int CountIconGroups(const std::string& path) override;
    bool IconOfGroup(const std::string& path, int group, bool large, LibraryIcon& out) override;

private:
    // The library of path, read afresh when it isn't the one kept; null when it can't be read.
    const extract::IconLibrary* Library(const std::string& path);

    extract::IconLibrary m_library;
    std::string m_path;
    std::uintmax_t m_size = 0;
    std::filesystem::file_time_type m_time{};
    bool m_ok = false;
};

// The icon as the platform hands it over, from the picture drawn over white: where the mask
// is set the image plane holds the stored color again (white XOR what was drawn), so that the
// mask ANDed and the image XORed give the icon over any background.
LibraryIcon LibraryIconOf(const extract::ExtractedIcon& drawn);

}  // namespace vexlo::session
