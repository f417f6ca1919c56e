#include "core/extract/exe_search.h"

#include <algorithm>

#include "core/files/atomic_file.h"
#include "core/files/ico_write.h"

namespace vexlo::extract {

namespace {

constexpr surface::Color kWhite = 0xFFFFFF;

// The stem of the file's name (SplitFileSpec part 3); for a name it refuses (one that starts
// with '$' or a blank) the name up to its last '.'.
std::string StemOfFile(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    const std::string stem = files::SplitFileSpec(name, 3);
    if (!stem.empty()) return stem;
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

}  // namespace

std::string SearchIconFileName(const std::string& saveTo, int written, const std::string& sourceFile) {
    std::string name = saveTo;
    if (name.empty() || name.back() != '/') name += '/';
    return name + std::to_string(written) + "_" + StemOfFile(sourceFile) + ".ico";
}

surface::Surface ImagePlaneOf(const ExtractedIcon& icon) {
    const int w = icon.Image.Width(), h = icon.Image.Height();
    surface::Surface image(w, h, 0);
    for (int x = 0; x < w; ++x)
        for (int y = 0; y < h; ++y) {
            const surface::Color c = icon.Image.GetPixel(x, y);
            image.SetPixelV(x, y, icon.Mask.GetPixel(x, y) == kWhite ? (c ^ kWhite) : c);
        }
    return image;
}

bool ExeSearch::Start(const ExeSearchOptions& options, std::error_code& ec) {
    CloseFile();
    m_options = options;
    m_options.MaxIcons = std::max(m_options.MaxIcons, kMinSearchIcons);
    m_written = m_filesScanned = m_filesSkipped = m_writeFailures = 0;
    m_lastWriteError.clear();
    m_currentFile.clear();
    m_stopRequested = false;
    m_running = m_walk.Start(options.SearchIn, kSearchPattern, options.IncludeSub, ec);
    return m_running;
}

void ExeSearch::RequestStop() {
    m_stopRequested = true;
    m_running = false;
    CloseFile();
}

bool ExeSearch::Step() {
    if (!m_running || m_stopRequested) return false;
    if (m_fileOpen) {
        WriteNextIcon();
        return m_running;
    }
    std::string path;
    switch (m_walk.Next(path)) {
        case FolderWalk::Step::Folder: return true;
        case FolderWalk::Step::File: OpenFile(path); return true;
        case FolderWalk::Step::Done: m_running = false; return false;
    }
    return false;
}

void ExeSearch::OpenFile(const std::string& path) {
    m_currentFile = path;
    ++m_filesScanned;
    const OpenResult opened = m_library.Open(path);
    if (!opened) {
        // A program without resources is sound; it merely has no icons.
        if (opened.Message != kNoResources) ++m_filesSkipped;
        return;
    }
    m_iconCount = m_library.CountIconGroups();
    if (m_iconCount <= 0) {
        CloseFile();
        return;
    }
    m_nextIcon = 0;
    m_fileOpen = true;
}

void ExeSearch::CloseFile() {
    m_fileOpen = false;
    m_iconCount = m_nextIcon = 0;
    // The file's bytes go at once: a search holds one program file in memory at a time.
    m_library = IconLibrary();
}

void ExeSearch::WriteNextIcon() {
    const int i = m_nextIcon++;
    ExtractedIcon icon;
    if (m_library.ExtractGroupIcon(i, m_options.SmallIcons ? IconSize::Small : IconSize::Large, icon)) {
        const surface::Surface image = ImagePlaneOf(icon);
        const std::vector<std::uint8_t> bytes = files::BuildIconFileBytes(image, icon.Mask, {});
        // Many new files at once: each appears whole or not at all, without a flush of its own.
        files::AtomicWriteOptions write;
        write.Sync = false;
        const files::FileWriteResult result =
            bytes.empty() ? files::FileWriteResult{false, "the icon can't be written", 0}
                          : files::AtomicWriteFile(SearchIconFileName(m_options.SaveTo, m_written, m_currentFile),
                                                   files::Bytes(bytes.data(), bytes.size()), write);
        if (result.Ok) {
            ++m_written;
        } else {
            ++m_writeFailures;
            m_lastWriteError = result.Error;
        }
    }
    if (m_written >= m_options.MaxIcons) {
        m_running = false;
        CloseFile();
        return;
    }
    if (m_nextIcon >= m_iconCount) CloseFile();
}

}  // namespace vexlo::extract
