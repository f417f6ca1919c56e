#pragma once
// Writing a file so that a failure never leaves a half-written file where a good one stood,
// and the small path helpers of the save flows.
#include <string>

#include "core/files/byte_reader.h"

namespace vexlo::files {

// The steps of AtomicWriteFile, for the test seam below.
enum class AtomicWriteStep { None, CreateTemp, Write, Sync, Rename };

struct AtomicWriteOptions {
    // Test seam: the named step fails as if the system had refused it (EIO), after the steps
    // before it have really run; so Write fails with the temporary file created.
    AtomicWriteStep FailAt = AtomicWriteStep::None;
    // False skips the fsync of the file and of its folder: for tools that write many new files
    // at once, where each file must appear whole or not at all but need not outlive a crash.
    bool Sync = true;
};

struct FileWriteResult {
    bool Ok = false;
    std::string Error;  // empty when Ok
    int Number = 0;     // the errno of the step that failed; 0 when Ok
    explicit operator bool() const { return Ok; }
};

// Writes data to path: a new temporary file in the same folder (mode 0666 less the umask, or
// the old file's permission bits when one stands there), written whole, flushed and fsynced,
// then renamed over path, and the folder fsynced. A symbolic link at path is followed, so the
// file it names is replaced. On any failure the temporary file is removed, a file that stood
// at path is untouched, and Error says what failed. A folder or a read-only file at path is
// refused; a hidden file is written like any other.
FileWriteResult AtomicWriteFile(const std::string& path, Bytes data, const AtomicWriteOptions& options = {});

// True if path is a file that can be opened for reading (a folder is not).
bool FileExists(const std::string& path);

// Copies the file at source to target through AtomicWriteFile; fails when source can't be
// read (Number ENOENT, EINVAL for a folder or other non-file, EFBIG over kMaxFileBytes, EIO)
// or target can't be written.
FileWriteResult CopyFileAtomically(const std::string& source, const std::string& target);

// True if the file's attributes have read-only, hidden, system or directory set, or it has
// none: a path where nothing can be found (or an empty one); a folder; anything but a regular
// file (a device, a pipe, a socket: system); a name that starts with "." (hidden); a file
// that the user may not write or that has no write permission bit at all (read-only; this
// holds for root too). Links are followed.
bool IsProtectedFile(const std::string& path);

// A part of a path: 0 the drive (always empty here: this platform has none), 1 the folder
// with its last "/", 2 the name with extension, 3 the base name, 4 the extension without its
// dot. The extension starts after the last "." of the name, a "." in the last place of the
// text not counting. Empty if part isn't 0..4, the text is over 255 characters, or it starts
// with "$" or a blank.
std::string SplitFileSpec(const std::string& fileSpec, int part);

}  // namespace vexlo::files
