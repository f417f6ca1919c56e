#pragma once
// Compiled resource files (.res, as resource compilers write them before linking): a row of
// entries, each a header (DataSize, HeaderSize, type, name, DataVersion, MemoryFlags,
// LanguageId, Version, Characteristics; type and name either 0xFFFF and a number or a
// NUL-ended UTF-16 text; the header padded to 4 bytes) and its data, padded to 4 bytes. The
// file starts with an empty entry of 32 bytes.
#include "core/extract/resource_list.h"

namespace vexlo::extract {

// True if data starts with the empty entry of a .res file.
bool LooksLikeResFile(Bytes data);

// Reads the icon and cursor resources (the types of IsIconType) into list, in the order of a
// resource directory (names first, then numbers ascending; by name, then by language), as
// a linker would lay them out. An entry whose header or data the file cuts short ends the
// read with the damage told; one whose header is inconsistent likewise. NotThisFormat if the
// first entry isn't the empty one.
ReadStatus ReadResFile(Bytes data, ResourceList& list);

}  // namespace vexlo::extract
