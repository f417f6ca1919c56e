#pragma once
// ExeSearch: the harvest of the icons of every EXE file in a folder (and its subfolders): each
// icon of each file is written as an icon file of its own into a second folder, until the
// walk ends, the limit of icons written is reached, or a stop is asked for.
//
// The work comes in small steps (Step): one folder read, one file opened, or one icon written,
// so that a window can run the search in slices between its events and a stop takes effect at
// the next step. Files are taken in FolderWalk's order. A file that isn't a program file, or
// can't be read, is passed over and counted; an icon that can't be decoded or written is
// passed over. No step throws.
#include <string>
#include <system_error>

#include "core/extract/folder_walk.h"
#include "core/extract/icon_library.h"
#include "core/surface/surface.h"

namespace vexlo::extract {

inline constexpr int kMinSearchIcons = 1;
inline constexpr int kMaxSearchIcons = 10000;
inline constexpr int kDefaultSearchIcons = 300;
inline constexpr const char* kSearchPattern = "*.exe";

struct ExeSearchOptions {
    std::string SearchIn;  // the folder searched
    std::string SaveTo;    // the folder written to, as the user gave it
    bool IncludeSub = false;
    int MaxIcons = kDefaultSearchIcons;  // written at most; below 1 counts as 1
    bool SmallIcons = false;             // the small (16x16) icon of each index, else the large
};

// The file the icon is written to: saveTo, a '/' unless saveTo ends in one, the number of
// icons written before it in this search, "_", the stem of the source file's name, ".ico".
// The running number keeps apart the icons of one file and files of one stem in two folders.
std::string SearchIconFileName(const std::string& saveTo, int written, const std::string& sourceFile);

// The icon's color plane as stored (DI_IMAGE): the drawing over white with the white taken
// out again where the mask is set, so a transparent pixel is black and an inverting one keeps
// its color. The mask plane is the icon's Mask as it is.
surface::Surface ImagePlaneOf(const ExtractedIcon& icon);

class ExeSearch {
public:
    // Starts a search: the counts are 0 and the search runs. False, with ec set and nothing
    // running, when the folder searched can't be read.
    bool Start(const ExeSearchOptions& options, std::error_code& ec);

    // One step; false once the search is over (walked through, limit reached, or stopped).
    bool Step();

    // cmdStopBrowse: the search ends; what was written stays.
    void RequestStop();

    bool Running() const { return m_running; }             // SearchRunning
    bool StopRequested() const { return m_stopRequested; }  // SearchStopRequested
    bool LimitReached() const { return m_written >= m_options.MaxIcons; }
    const std::string& CurrentFile() const { return m_currentFile; }  // SearchCurrentFile
    const ExeSearchOptions& Options() const { return m_options; }

    int Written() const { return m_written; }            // icon files written
    int FilesScanned() const { return m_filesScanned; }  // EXE files taken up, readable or not
    int FilesSkipped() const { return m_filesSkipped; }  // of them, not readable as a program
    int WriteFailures() const { return m_writeFailures; }
    const std::string& LastWriteError() const { return m_lastWriteError; }
    const FolderWalk& Walk() const { return m_walk; }

private:
    // Takes up the file: its icons are counted, and the next steps write them.
    void OpenFile(const std::string& path);
    // Writes icon m_nextIcon of the open file and moves on.
    void WriteNextIcon();
    void CloseFile();

    ExeSearchOptions m_options;
    FolderWalk m_walk;
    IconLibrary m_library;
    bool m_fileOpen = false;
    int m_iconCount = 0;
    int m_nextIcon = 0;
    std::string m_currentFile;
    bool m_running = false;
    bool m_stopRequested = false;
    int m_written = 0;
    int m_filesScanned = 0;
    int m_filesSkipped = 0;
    int m_writeFailures = 0;
    std::string m_lastWriteError;
};

}  // namespace vexlo::extract
