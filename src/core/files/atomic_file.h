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
};

struct FileWriteResult {
    bool Ok = false;
    std::string Error;  // empty when Ok
    explicit operator bool() const { return Ok; }
};

// Writes data to path: a new temporary file in the same folder (mode 0666 less the umask, or
// the old file's permission bits when one stands there), written whole, flushed and fsynced,
// then renamed over path, and the folder fsynced. A symbolic link at path is followed, so the
// file it names is replaced. On any failure the temporary file is removed, a file that stood
// at path is untouched, and Error says what failed. A path that IsProtectedFile is refused.
FileWriteResult AtomicWriteFile(const std::string& path, Bytes data, const AtomicWriteOptions& options = {});

// True if path is a file that can be opened for reading (a folder is not).
bool FileExists(const std::string& path);

// Copies the file at source to target through AtomicWriteFile; false when source can't be
// read or target can't be written.
bool CopyFileAtomically(const std::string& source, const std::string& target);

// True if path exists and is a folder, or a file that the user may not write or that has no
// write permission bit at all (the platform's read-only attribute; this holds for root too).
// A path where nothing stands is not protected.
bool IsProtectedFile(const std::string& path);

// A part of a path: 0 the drive (always empty here: this platform has none), 1 the folder
// with its last "/", 2 the name with extension, 3 the base name, 4 the extension without its
// dot. The extension starts after the last "." of the name, a "." in the last place of the
// text not counting. Empty if part isn't 0..4, the text is over 255 characters, or it starts
// with "$" or a blank.
std::string SplitFileSpec(const std::string& fileSpec, int part);

}  // namespace vexlo::files
