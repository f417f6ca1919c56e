#include "core/extract/icon_library.h"

#include "core/extract/pe_resources.h"
#include "core/extract/res_file.h"

namespace vexlo::extract {

namespace {

constexpr std::uint16_t kNeutral = 0;
constexpr std::uint16_t kUsEnglish = 0x409;

// Rank of a language when one name has several: lower wins.
int LanguageRank(std::uint16_t language) {
    return language == kNeutral ? 0 : language == kUsEnglish ? 1 : 2;
}

// One entry per icon group name, in the groups' order, each the group of the best language.
std::vector<int> IconsByName(Bytes file, const std::vector<IconGroup>& groups) {
    std::vector<int> icons;
    for (int g = 0; g < static_cast<int>(groups.size()); ++g) {
        if (groups[static_cast<std::size_t>(g)].Cursor) continue;
        const IconGroup& group = groups[static_cast<std::size_t>(g)];
        // Groups of one name stand together in directory order, so only the last one can match.
        if (!icons.empty()) {
            const IconGroup& last = groups[static_cast<std::size_t>(icons.back())];
            if (SameKey(file, last.Name, group.Name)) {
                if (LanguageRank(group.Language) < LanguageRank(last.Language)) icons.back() = g;
                continue;
            }
        }
        icons.push_back(g);
    }
    return icons;
}

}  // namespace

OpenResult IconLibrary::Open(const std::string& path) {
    std::vector<std::uint8_t> data;
    const char* refusal = nullptr;
    switch (files::ReadWholeFile(path, data, kMaxLibraryBytes)) {
        case files::FileReadStatus::Ok: return OpenBytes(std::move(data));
        case files::FileReadStatus::NotFound: refusal = kFileNotFound; break;
        case files::FileReadStatus::NotRegular: refusal = kNotRegularFile; break;
        case files::FileReadStatus::TooLarge: refusal = kFileTooLarge; break;
        case files::FileReadStatus::ReadError: refusal = kCannotRead; break;
    }
    Clear();
    return {false, refusal};
}

OpenResult IconLibrary::OpenBytes(std::vector<std::uint8_t> data) {
    Clear();
    m_data = std::move(data);
    const OpenResult result = Load();
    if (!result) Clear();
    return result;
}

void IconLibrary::Clear() {
    m_kind = SourceKind::None;
    m_data.clear();
    m_list = {};
    m_groups.clear();
    m_icons.clear();
}

OpenResult IconLibrary::Load() {
    const Bytes file = Data();
    if (LooksLikeIconFile(file)) {
        IconGroup group;
        ReadIconFileGroup(file, group);
        m_kind = SourceKind::IconFile;
        m_groups.push_back(std::move(group));
    } else {
        ReadStatus status = ReadStatus::NotThisFormat;
        if (LooksLikePe(file)) {
            status = ReadPeResources(file, m_list);
            m_kind = SourceKind::Program;
        } else if (LooksLikeResFile(file)) {
            status = ReadResFile(file, m_list);
            m_kind = SourceKind::ResourceFile;
        }
        switch (status) {
            case ReadStatus::Ok: break;
            case ReadStatus::NotThisFormat: return {false, kNotResourceSource};
            case ReadStatus::Truncated: return {false, kHeadersCutShort};
            case ReadStatus::NoResources: return {false, kNoResources};
            case ReadStatus::DirectoryOutside: return {false, kDirectoryOutside};
        }
        m_groups = ReadGroups(file, m_list);
    }
    m_icons = IconsByName(file, m_groups);
    return {true, {}};
}

std::string IconLibrary::NoIconsMessage() const {
    return Damage().empty() ? std::string(kNoIcons) : std::string(kNoIcons) + " (" + Damage() + ")";
}

std::string IconLibrary::GroupName(int g) const {
    if (g < 0 || g >= static_cast<int>(m_groups.size())) return {};
    return KeyText(Data(), m_groups[static_cast<std::size_t>(g)].Name);
}

std::vector<std::uint8_t> IconLibrary::RebuildGroupFile(int g) const {
    if (g < 0 || g >= static_cast<int>(m_groups.size())) return {};
    return extract::RebuildGroupFile(Data(), m_groups[static_cast<std::size_t>(g)], m_data.size());
}

int IconLibrary::IconGroupIndex(int i) const {
    return i >= 0 && i < CountIconGroups() ? m_icons[static_cast<std::size_t>(i)] : -1;
}

bool IconLibrary::ExtractGroupIcon(int i, IconSize size, ExtractedIcon& out) const {
    const int g = IconGroupIndex(i);
    return g >= 0 && DrawGroupIcon(Data(), m_groups[static_cast<std::size_t>(g)], size, out);
}

}  // namespace vexlo::extract
