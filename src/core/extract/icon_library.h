#pragma once
// IconLibrary: the icons and cursors of one file, read once and held for as long as the
// object lives, so that counting, drawing and rebuilding groups never reopen the file. The
// file may be a program file (PE32 or PE32+ DLL, EXE, ...), a compiled resource file (.res)
// or a plain icon or cursor file (one group).
//
// This is what stands in for the platform's icon extraction: CountIconGroups answers how many
// icons the file holds, and ExtractGroupIcon gives icon i at the large (32x32) or small
// (16x16) size. Groups() lists every group (each name in each language) for the tools that
// write them out.
#include <cstdint>
#include <string>
#include <vector>

#include "core/extract/icon_choice.h"
#include "core/extract/icon_groups.h"

namespace vexlo::extract {

enum class SourceKind { None, Program, ResourceFile, IconFile };

// Program files are held whole in memory while open; larger ones are refused unread.
inline constexpr std::size_t kMaxLibraryBytes = std::size_t{256} << 20;

// The refusals of Open, each one line.
inline constexpr const char* kNotResourceSource = "not a DLL, EXE, .res, icon or cursor file";
inline constexpr const char* kHeadersCutShort = "the program file's headers are cut short";
inline constexpr const char* kNoResources = "the file has no resources";
inline constexpr const char* kDirectoryOutside = "the resource directory lies outside the file";
inline constexpr const char* kFileNotFound = "no such file";
inline constexpr const char* kNotRegularFile = "not a regular file";
inline constexpr const char* kFileTooLarge = "file too large";
inline constexpr const char* kCannotRead = "cannot read the file";
// What a file of no group answers (CountIconGroups and Groups both 0).
inline constexpr const char* kNoIcons = "the file has no icons";

struct OpenResult {
    bool Ok = false;
    std::string Message;  // empty when Ok
    explicit operator bool() const { return Ok; }
};

class IconLibrary {
public:
    // Reads the file at path (at most kMaxLibraryBytes) and its groups. On failure the
    // library is empty and the message says why.
    OpenResult Open(const std::string& path);
    OpenResult OpenBytes(std::vector<std::uint8_t> data);

    SourceKind Kind() const { return m_kind; }
    Bytes Data() const { return Bytes(m_data.data(), m_data.size()); }
    // The first damage met in the file (entries or groups passed over); empty for a sound one.
    const std::string& Damage() const { return m_list.Damage; }
    // kNoIcons, with the damage in brackets when there was any.
    std::string NoIconsMessage() const;

    // Every group: icon groups in resource-directory order, then cursor groups.
    const std::vector<IconGroup>& Groups() const { return m_groups; }
    // The name of group g ("1", "IDI_APP"); empty outside.
    std::string GroupName(int g) const;
    // The group as a standalone .ico or .cur file (RebuildGroupFile); empty outside, or when
    // the group has no image or its images together would be larger than the file.
    std::vector<std::uint8_t> RebuildGroupFile(int g) const;

    // The icons as the platform counts them: one per icon group name (of several languages
    // the neutral one, else US English, else the first).
    int CountIconGroups() const { return static_cast<int>(m_icons.size()); }
    // The index in Groups() of icon i, or -1.
    int IconGroupIndex(int i) const;
    // Icon i drawn at the large or small size; false, with out untouched, for an index outside
    // or a group with no image that can be decoded.
    bool ExtractGroupIcon(int i, IconSize size, ExtractedIcon& out) const;

private:
    OpenResult Load();
    void Clear();

    SourceKind m_kind = SourceKind::None;
    std::vector<std::uint8_t> m_data;
    ResourceList m_list;
    std::vector<IconGroup> m_groups;
    std::vector<int> m_icons;  // Groups() index of each icon
};

}  // namespace vexlo::extract
