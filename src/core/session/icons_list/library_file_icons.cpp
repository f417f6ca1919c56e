#include "core/session/icons_list/library_file_icons.h"

#include <system_error>

#include "core/icon/icon_colors.h"

namespace vexlo::session {

LibraryIconSource& DefaultLibraryIcons() {
    static LibraryFileIcons files;
    return files;
}

const extract::IconLibrary* LibraryFileIcons::Library(const std::string& path) {
    std::error_code ec;
    const std::uintmax_t size = std::filesystem::file_size(path, ec);
    if (ec) return nullptr;
    const auto time = std::filesystem::last_write_time(path, ec);
    if (ec) return nullptr;
    if (path != m_path || size != m_size || time != m_time) {
        m_path = path;
        m_size = size;
        m_time = time;
        m_ok = static_cast<bool>(m_library.Open(path));
    }
    return m_ok ? &m_library : nullptr;
}

int LibraryFileIcons::CountIconGroups(const std::string& path) {
    const extract::IconLibrary* library = Library(path);
    return library ? library->CountIconGroups() : 0;
}

bool LibraryFileIcons::IconOfGroup(const std::string& path, int group, bool large, LibraryIcon& out) {
    const extract::IconLibrary* library = Library(path);
    extract::ExtractedIcon drawn;
    if (!library ||
        !library->ExtractGroupIcon(group, large ? extract::IconSize::Large : extract::IconSize::Small, drawn))
        return false;
    out = LibraryIconOf(drawn);
    return true;
}

LibraryIcon LibraryIconOf(const extract::ExtractedIcon& drawn) {
    LibraryIcon icon{drawn.Image, drawn.Mask};
    for (int y = 0; y < icon.Image.Height(); ++y)
        for (int x = 0; x < icon.Image.Width(); ++x)
            if (icon.Mask.GetPixel(x, y) != icon::kBlack)
                icon.Image.SetPixelV(x, y, icon.Image.GetPixel(x, y) ^ icon::kWhite);
    return icon;
}

}  // namespace vexlo::session
