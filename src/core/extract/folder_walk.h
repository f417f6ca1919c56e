#pragma once
// FolderWalk: the files of a folder tree, one step at a time, in the order in which the EXE
// search takes them. In each folder its subfolders come first, the last by name first, each
// walked whole before the next; then the folder's own files that match the pattern, by name.
// Without subfolders only the folder's own files come.
//
// The walk never throws and never stops at a bad folder: one that can't be opened or read
// (permissions, a dangling link, a name too long) is passed over and counted, and so is a
// folder met a second time (a symbolic link back up the tree, a bind mount): every folder is
// known by its device and inode, and each is read once. A step reads at most one folder, so
// a caller that works in slices never waits on a whole tree.
#include <cstddef>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace vexlo::extract {

// Names in the folder lists' order: ASCII letters folded to lower case, then the bytes as
// they are.
bool FolderNameBefore(const std::string& a, const std::string& b);

class FolderWalk {
public:
    enum class Step {
        File,    // the next file's path was given
        Folder,  // a folder was read (or passed over); no file this time
        Done,    // the walk is over
    };

    // Starts at root with the file pattern ("*.exe": letters without regard to case) and with
    // or without subfolders. False, with ec set, when root can't be read as a folder; the walk
    // is then over.
    bool Start(const std::string& root, const std::string& pattern, bool recursive, std::error_code& ec);

    // One step of the walk; path is written for Step::File only.
    Step Next(std::string& path);

    // Folders read, and folders passed over (unreadable, or met already).
    int FoldersRead() const { return m_foldersRead; }
    int FoldersPassedOver() const { return m_foldersPassedOver; }

private:
    struct Level {
        std::string Prefix;                   // the folder's path with one trailing '/'
        std::vector<std::string> Subfolders;  // by name; taken from the back
        std::vector<std::string> Files;       // by name
        std::size_t NextFile = 0;
    };
    // Reads the folder into a new level on the stack; false (ec set) when it can't be read or
    // was read before.
    bool Enter(const std::string& path, std::error_code& ec);

    std::string m_pattern;
    bool m_recursive = false;
    std::vector<Level> m_stack;
    std::set<std::pair<unsigned long long, unsigned long long>> m_seen;  // (device, inode)
    int m_foldersRead = 0;
    int m_foldersPassedOver = 0;
};

}  // namespace vexlo::extract
