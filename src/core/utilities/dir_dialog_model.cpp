#include "core/utilities/dir_dialog_model.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include "core/utilities/file_pattern.h"

namespace vexlo::utilities {

namespace fs = std::filesystem;

namespace {

// What a folder holds, read before anything of the dialog changes.
struct Listing {
    std::vector<std::string> folders;
    std::vector<std::string> files;
};

// The absolute path without "." and ".." steps, doubled or trailing separators; the root
// stays "/". The steps are removed by their text, as a path typed in would read.
fs::path CleanPath(const fs::path& path) {
    fs::path clean = path.lexically_normal();
    if (clean.relative_path().empty()) return clean.root_path();
    if (!clean.has_filename()) clean = clean.parent_path();
    return clean;
}

bool IsHidden(const std::string& name) { return !name.empty() && name.front() == '.'; }

// The subfolders and files of folder, hidden ones left out, each sorted. A link counts as
// what it leads to; a link that leads nowhere, or round in a loop, and every entry that is
// neither a folder nor a regular file (a device, a pipe) isn't listed. False when the folder
// can't be read to its end.
bool ReadFolder(const fs::path& folder, Listing& out) {
    std::error_code ec;
    fs::directory_iterator it(folder, ec);
    if (ec) return false;
    // A failed step ends the loop with ec set.
    for (; it != fs::directory_iterator(); it.increment(ec)) {
        std::string name = it->path().filename().string();
        if (IsHidden(name)) continue;
        // The type comes with the entry, so only links cost a look-up.
        std::error_code typeError;
        const bool isFolder = it->is_directory(typeError);
        if (typeError) continue;
        if (isFolder) out.folders.push_back(std::move(name));
        else if (it->is_regular_file(typeError)) out.files.push_back(std::move(name));
    }
    if (ec) return false;
    const auto less = [](const std::string& a, const std::string& b) { return FileNameLess(a, b); };
    std::sort(out.folders.begin(), out.folders.end(), less);
    std::sort(out.files.begin(), out.files.end(), less);
    return true;
}

std::string AsciiUpper(std::string s) {
    for (char& c : s)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return s;
}

}  // namespace

DirDialogModel::DirDialogModel(host::Host& host, std::string pattern, bool extendable)
    : m_host(host), m_pattern(std::move(pattern)), m_extendShown(extendable) {
    m_filePattern = PatternShown();
}

bool DirDialogModel::Load(const std::string& startFolder) {
    if (EnterFolder(startFolder)) return true;
    std::error_code ec;
    const fs::path current = fs::current_path(ec);
    if (!ec && EnterFolder(current.string())) return true;
    if (const char* home = std::getenv("HOME"); home != nullptr && EnterFolder(home)) return true;
    return EnterFolder("/");
}

bool DirDialogModel::EnterFolder(const std::string& folder) {
    if (folder.empty()) return false;
    // A relative path starts from the open folder as the list shows it; the process's
    // current directory names the same folder, but with the links along the way resolved.
    std::error_code ec;
    const fs::path typed(folder);
    const fs::path base = typed.is_absolute() || m_folder.empty() ? fs::path() : fs::path(m_folder);
    const fs::path path = CleanPath(base.empty() ? fs::absolute(typed, ec) : base / typed);
    if (ec) return false;
    Listing listing;
    if (!ReadFolder(path, listing)) return false;
    // Last, as it is the one step that changes something outside the dialog: a folder that
    // can be read but not entered is refused here.
    fs::current_path(path, ec);
    if (ec) return false;

    m_folder = path.string();
    m_chosen = m_folder;
    m_rows.clear();
    fs::path step;
    std::size_t depth = 0;
    for (const fs::path& part : path) {
        step /= part;
        const std::string name = depth == 0 ? step.string() : part.string();
        m_rows.push_back({std::string(depth * 2, ' ') + name, step.string(), true});
        ++depth;
    }
    m_openRow = m_rows.size() - 1;
    const std::string indent(depth * 2, ' ');
    for (const std::string& name : listing.folders)
        m_rows.push_back({indent + name, (path / name).string(), false});
    m_folderFiles = std::move(listing.files);

    SetFilePattern(PatternShown());
    const std::string ext = Ext();
    m_countText = ext.empty() ? std::string()
                              : AsciiUpper(ext) + " files in dir:  " + std::to_string(m_files.size());
    return true;
}

bool DirDialogModel::EnterRow(std::size_t row) {
    if (row >= m_rows.size()) return false;
    // A copy: entering replaces the rows.
    const std::string path = m_rows[row].Path;
    return EnterFolder(path);
}

void DirDialogModel::SetFilePattern(const std::string& pattern) {
    m_filePattern = pattern;
    FilterFiles();
}

void DirDialogModel::FilterFiles() {
    m_files.clear();
    const std::vector<std::string> patterns = SplitFilePatterns(m_filePattern);
    if (patterns.empty()) return;
    for (const std::string& name : m_folderFiles)
        if (MatchesAnyFilePattern(patterns, name)) m_files.push_back(name);
}

bool DirDialogModel::ConfirmOK() {
    const std::string ext = Ext();
    if (m_files.empty() && !ext.empty()) {
        const std::string question = "There is no " + ext + " files directly in selected folder." +
                                     host::kCrLf + "Proceed still?";
        if (m_host.MsgBox(question, host::MsgButtons::YesNo, host::MsgIcon::None, host::kTitle) !=
            host::MsgAnswer::Yes)
            return false;
    }
    m_chosen = m_folder;
    return true;
}

void DirDialogModel::Cancel() { m_chosen.clear(); }

void DirDialogModel::Shrink() {
    m_wide = false;
    m_extendShown = true;
}

void DirDialogModel::Extend() {
    m_wide = true;
    m_extendShown = false;
}

std::string DirDialogModel::Ext() const { return m_pattern.size() > 3 ? m_pattern.substr(2) : ""; }

}  // namespace vexlo::utilities
