#pragma once
// The temporary files of the multi-icon operations live in a folder of this user's own, never
// under a fixed name in the shared temporary folder: there another local user could plant a
// symbolic link under that name (and have a save write through it into any file of ours), or
// leave a file of theirs that no later save could remove. The folder is made once per run,
// mode 0700, under XDG_RUNTIME_DIR when that is safe, else with mkdtemp under the temporary
// folder. Files in it are written and read without following links.
#include <cstdint>
#include <string>
#include <vector>

#include "core/files/atomic_file.h"
#include "core/files/byte_reader.h"

namespace vexlo::files {

// True if path is a folder itself (not a link to one), owned by this user, that no one else
// may read, write or enter.
bool IsPrivateFolder(const std::string& path);

// Makes a new folder "vexlo-XXXXXX" of mode 0700 under runtimeDir if that is a private folder
// given by an absolute path (XDG_RUNTIME_DIR), else under fallbackBase, else under "/tmp";
// mkdtemp gives it a name that can't be guessed and can't be taken beforehand. Answers the
// folder without a last "/", or empty when none can be made.
std::string MakePrivateFolder(const std::string& runtimeDir, const std::string& fallbackBase);

// The private temporary folder of this run: made on first use (under XDG_RUNTIME_DIR, else
// under fallbackBase, which is the session's TempDir) and made anew if it has gone or is no
// longer private. It is removed, with whatever it holds, when the process ends. Empty if no
// folder can be made.
std::string PrivateTempDir(const std::string& fallbackBase);

// Writes a new file of mode 0600 at path. Whatever stands there is removed first (a file left
// by an earlier run of the same step; a link is removed, never followed), then the file is
// created with O_CREAT | O_EXCL | O_NOFOLLOW, so that nothing but a new file of ours is ever
// written. A name that can't be cleared fails.
FileWriteResult WriteNewPrivateFile(const std::string& path, Bytes data);

// Reads the file at path as ReadWholeFile does, but never through a link and only a regular
// file owned by this user; anything else is NotRegular.
FileReadStatus ReadPrivateFile(const std::string& path, std::vector<std::uint8_t>& out);

}  // namespace vexlo::files
