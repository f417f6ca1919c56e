#include "core/files/multi_icon_list.h"

#include "core/files/atomic_file.h"
#include "core/files/ico_messages.h"
#include "core/files/ico_probe.h"
#include "core/icon/icon_planes.h"

namespace vexlo::files {

bool IsListedImage(const IconDirEntry& entry) {
    return entry.Width == entry.Height && IsIconSide(entry.Width);
}

const MultiIconListItem* MultiIconList::At(int position) const {
    if (position < 0 || position >= Count()) return nullptr;
    return &Items[static_cast<std::size_t>(position)];
}

MultiIconList BuildMultiIconList(const IconSet& set) {
    MultiIconList list;
    for (int i = 0; i < set.Count(); ++i) {
        const IconDirEntry& e = set.Images[static_cast<std::size_t>(i)].Entry;
        if (!IsListedImage(e)) continue;
        const int position = list.Count();
        list.Items.push_back({i, e.Width, ColorCountOfEntry(e), e.BitCount, IconListLine(i, e)});
        if (e.Width != 32) continue;
        if (list.Pick == 0 || e.BitCount == 8) list.Pick = position;
    }
    return list;
}

// ---- MultiIconChoice -------------------------------------------------------------------

std::string EditChoiceText(const MultiIconListItem& item) {
    // Built with += throughout: GCC 12 at -O3 misreads "lit" + std::string (-Wrestrict).
    std::string text = item.Index >= 0 && item.Index < 10 ? "0" : "";
    text += std::to_string(item.Index);
    for (int field : {item.Side, item.Colors, item.Bits}) {
        text += '/';
        text += std::to_string(field);
    }
    return text;
}

std::string EditRefusal(int bits) {
    if (bits >= 8) {
        if (bits == 8 || bits == 24 || bits == 32) return {};
        return std::string(kNotTrueColorDepth) + kCrLf;
    }
    if (bits == 1 || bits == 4) return {};
    return kNotLowDepth;
}

// ---- Saving single-icon files ----------------------------------------------------------

std::string SaveColorText(int colors, int bits) {
    if (colors != kTrueColor) return std::to_string(colors);
    std::string text = std::to_string(bits);
    text += "bpp";
    return text;
}

std::string SingleIconSuffix(const MultiIconListItem& item) {
    std::string text = "_";
    text += std::to_string(item.Side);
    text += '_';
    text += SaveColorText(item.Colors, item.Bits);
    text += ".ico";
    return text;
}

std::string SingleIconSuggestion(const std::string& fileSpec, const MultiIconListItem& item) {
    return SplitFileSpec(fileSpec, 3) + SingleIconSuffix(item);
}

std::string SplitSaveStem(const std::string& folder, const std::string& fileSpec) {
    std::string stem = folder;
    if (stem.empty() || stem.back() != '/') stem += '/';
    return stem + SplitFileSpec(fileSpec, 3);
}

std::vector<std::string> SplitSavePaths(const std::string& stem, const MultiIconList& list) {
    std::vector<std::string> paths;
    paths.reserve(list.Items.size());
    for (const MultiIconListItem& item : list.Items) paths.push_back(stem + SingleIconSuffix(item));
    return paths;
}

std::string SplitSaveQuestion(const std::string& stem, int lineCount) {
    std::string text = "Single-icon files will be saved as ";
    text += stem;
    text += "_(Size)_(Color), ...";
    text += kCrLf;
    text += "Totally ";
    text += std::to_string(lineCount);
    text += " items on list.";
    text += kCrLf;
    text += kCrLf;
    text += "Proceed?";
    return text;
}

bool WriteSingleIcon(const IconSet& set, int index, const std::string& path) {
    const std::vector<std::uint8_t> bytes = BuildSingleIconBytes(set, index);
    if (bytes.empty()) return false;
    return AtomicWriteFile(path, Bytes(bytes)).Ok;
}

// ---- Removal ---------------------------------------------------------------------------

SetResult RemoveListedImage(const std::string& path, IconSet& set, int index) {
    if (set.Count() == 1) return {false, kLastIconStays};
    const bool removed = RemoveImageFromSet(set, index) && WriteIconSet(path, set);
    set.Clear();
    if (!removed) return {false, kFailedToUpdate};
    return {true, {}};
}

int SelectionAfterRemoval(int removedIndex, int lineCount) {
    if (lineCount < 1) return -1;
    if (lineCount == 1) return 0;
    return lineCount > removedIndex ? removedIndex : removedIndex - 1;
}

// ---- Preview ---------------------------------------------------------------------------

void ComposePreview(const surface::Surface& image, const surface::Surface& mask, surface::Surface& out) {
    icon::ComposeResized(image, mask, out);
}

}  // namespace vexlo::files
