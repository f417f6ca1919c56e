#pragma once
// What the list makers need of files and names: the files of a folder that match a pattern,
// the labels under the thumbnails, and the names that extracted icons are given.
#include <string>
#include <system_error>
#include <vector>

namespace vexlo::session {

// The full paths of the regular files in folder whose names match pattern ("*.ico": letters
// without regard to case; "*" every file), in the folder dialog's order of names. A
// separator is put between folder and name unless the folder ends in one. On a failure to
// read the folder, ec is set and the files found so far are answered.
std::vector<std::string> ListFolderFiles(const std::string& folder, const std::string& pattern,
                                         std::error_code& ec);

// Whether path names a regular file (a link followed); false for an empty path.
bool FileThere(const std::string& path);

// The stem of a path's file name: the name without its last extension.
std::string FileStem(const std::string& path);

// A thumbnail's label for kinds 1 and 6: the stem, cut to 8 characters and ".." when longer
// (characters, not bytes: a UTF-8 sequence is never cut).
std::string StemLabel(const std::string& path);
// The label of kinds 2 to 4: the item's number from 1 and two blanks.
std::string NumberLabel(int index);

// The name an extracted icon is given: programDir, a separator, the stem of source, then "_"
// and item (kinds 2 to 5) or "_Extract" (kind 6, item 0 or below).
std::string ExtractedIconName(const std::string& programDir, const std::string& source, int item);

}  // namespace vexlo::session
