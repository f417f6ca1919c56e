#pragma once
// The resources of a PE32 or PE32+ file of any machine type: the headers (DOS stub, "PE\0\0",
// file header, optional header, section table), the resource data directory mapped from its
// RVA to the file through the section that holds it, then the three levels of the resource
// tree (type, name, language) down to the data entries.
//
// Every offset, RVA, size and count is checked against the file before use. A directory is
// read at most once: one reached again (a loop, or two parents sharing it) is passed over, and
// so is a data entry used twice, so the walk costs no more than the file's size whatever its
// counts say. A directory never yields more entries than the file holds. Entries that are
// damaged are passed over and the first damage is told in ResourceList::Damage; only what makes
// the whole file unreadable refuses it.
#include "core/extract/resource_list.h"

namespace vexlo::extract {

// What the headers say about the file.
struct PeFacts {
    bool Plus = false;            // PE32+ (optional header magic 0x20B), else PE32 (0x10B)
    std::uint16_t Machine = 0;
    std::uint32_t ResourceRva = 0;
    std::uint32_t ResourceSize = 0;
};

// True if data starts as a DOS program ("MZ"), as every PE file does.
bool LooksLikePe(Bytes data);

// Reads the headers and the icon and cursor resources (the types of IsIconType) into list.
// Refusals: NotThisFormat (no "MZ", no "PE\0\0" where e_lfanew points, or an optional header
// of another magic), Truncated (the headers or the section table cut off by the end of the
// file), NoResources (no resource data directory, or one of size 0), DirectoryOutside (the
// root directory lies in no section, or past the end of the file).
ReadStatus ReadPeResources(Bytes data, ResourceList& list, PeFacts* facts = nullptr);

}  // namespace vexlo::extract
