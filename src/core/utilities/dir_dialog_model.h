#pragma once
// DirDialogModel: what the folder dialog (frmDirDialog) shows and decides, without a window.
// It enters folders (which become the process's current directory), lists the open folder's
// ancestors and subfolders and its files by a pattern, counts them, asks cmdOK's question
// through the Host, and keeps the narrow or wide layout and the folder chosen. The window
// draws its lists from here and forwards each click.
//
// Paths and names are the file system's bytes and need not be UTF-8. A folder is read once,
// when it is entered: a pattern change filters what was read.
#include <cstddef>
#include <string>
#include <vector>

#include "core/host/host.h"

namespace vexlo::utilities {

// One row of the folder list.
struct FolderRow {
    std::string Text;   // the name, two blanks of indent a level below the root ("/")
    std::string Path;   // absolute and clean
    bool Open = false;  // the open folder or one of its ancestors (shown as an open folder)
};

class DirDialogModel {
public:
    // The file pattern shown when the caller gives none; no file is expected to match it.
    static constexpr const char* kNoPattern = "XYZ!@#$%^";

    // pattern: the files to show and count ("" for none); extendable: whether the button
    // that widens the dialog is shown at first. Narrow, with no folder open until Load.
    DirDialogModel(host::Host& host, std::string pattern, bool extendable);

    // Opens startFolder, or when it can't be entered the current directory, the home folder
    // or the root, in that order. False when none of them can be.
    bool Load(const std::string& startFolder);

    // Folder change: folder (absolute, or relative to the open folder; before Load, to the
    // current directory) is read and becomes the open folder, the chosen folder and the
    // current directory, and the file list takes the dialog's pattern again. False, with
    // nothing changed, when it isn't a folder or can't be read or entered.
    bool EnterFolder(const std::string& folder);
    // The folder of a row of Folders(); false for a row out of range or as EnterFolder.
    bool EnterRow(std::size_t row);

    // Pattern change: the file list shows the open folder's files that match pattern, one
    // or more patterns split at ';'.
    void SetFilePattern(const std::string& pattern);

    // cmdOK. With no file in the list and a pattern of more than 3 characters, asks under
    // the program's title whether to proceed; anything but Yes answers false and the dialog
    // stays. True: the open folder is the answer.
    bool ConfirmOK();
    // cmdCancel: the answer is "".
    void Cancel();

    // The narrow layout (the core controls and the button that widens) and the wide one
    // (with the file part, without that button).
    void Shrink();
    void Extend();
    bool IsWide() const { return m_wide; }
    bool ExtendShown() const { return m_extendShown; }

    // The dialog's pattern, and the text its pattern box starts with.
    const std::string& Pattern() const { return m_pattern; }
    std::string PatternShown() const { return m_pattern.empty() ? kNoPattern : m_pattern; }
    // The pattern the file list is showing.
    const std::string& FilePattern() const { return m_filePattern; }

    // The open folder ("" before Load) and the folder the dialog answers.
    const std::string& Folder() const { return m_folder; }
    const std::string& ChosenFolder() const { return m_chosen; }

    // The root, the ancestors and the open folder (each Open), then its subfolders.
    const std::vector<FolderRow>& Folders() const { return m_rows; }
    // The open folder's row in Folders().
    std::size_t OpenRow() const { return m_openRow; }
    // The names of the open folder's files that match FilePattern(), in list order.
    const std::vector<std::string>& Files() const { return m_files; }
    // "ICO files in dir:  3" for the pattern "*.ico", counting Files() when the folder was
    // entered; "" for a pattern of 3 characters or fewer.
    const std::string& CountText() const { return m_countText; }

private:
    // The extension the question and the count name: the pattern without its first two
    // characters ("*.ico" gives "ico"); "" when the pattern has 3 characters or fewer.
    std::string Ext() const;
    void FilterFiles();

    host::Host& m_host;
    std::string m_pattern;
    std::string m_filePattern;
    std::string m_folder;
    std::string m_chosen;
    std::vector<FolderRow> m_rows;
    std::size_t m_openRow = 0;
    std::vector<std::string> m_folderFiles;  // every listed file of the open folder, sorted
    std::vector<std::string> m_files;
    std::string m_countText;
    bool m_wide = false;
    bool m_extendShown = false;
};

}  // namespace vexlo::utilities
