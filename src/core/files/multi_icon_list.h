#pragma once
// The pieces of the multi-icon dialog that its model (multi_icon_manager.h) is built from:
// which images of an icon set it lists and with what lines, the table from list positions to
// image indexes, the answer it leaves in MultiIconChoice, the names of split and single saves,
// the single-icon file, removal, the preview's composition, and every message of the dialog
// that icon_set.h doesn't hold.
//
// The list's lines are IconListLine (icon_set.h): "Ref ", index + 1, two blanks, tab,
// wBitCount, " BPP", tab, the color count and "-Color" or "True-Color", tab, two blanks,
// bWidth, " x ", bHeight.
// The dialog never reads an image back from the text of a line: a line's position leads to
// its image through MultiIconList, so files of more than 99 images are served.
#include <string>
#include <vector>

#include "core/files/icon_set.h"
#include "core/icon/icon_colors.h"
#include "core/surface/surface.h"

namespace vexlo::files {

// An image gets a line when it is 16x16, 32x32 or 48x48; any other stays in the file unlisted.
bool IsListedImage(const IconDirEntry& entry);

// One line of the list.
struct MultiIconListItem {
    int Index = 0;   // the image's index in the file, from 0
    int Side = 0;    // bWidth: 16, 32 or 48
    int Colors = 0;  // ColorCountOfEntry (ListColors): -1 for true color
    int Bits = 0;    // wBitCount (ListBits)
    std::string Line;
};

struct MultiIconList {
    std::vector<MultiIconListItem> Items;  // by list position, in file order
    // The position the Edit face selects. It starts at the first line; walking the lines, a
    // 32x32 line takes it while it is still the first line, and after that only a 32x32 line
    // at 8 bits does: a 32x32 image is opened, one of 256 colors if the file has one.
    int Pick = 0;

    int Count() const { return static_cast<int>(Items.size()); }
    bool Empty() const { return Items.empty(); }
    // The item at position, or null outside the list.
    const MultiIconListItem* At(int position) const;
};

// FillIconList without the window: a line per listed image of the set, and the pick.
MultiIconList BuildMultiIconList(const IconSet& set);

// ---- MultiIconChoice -------------------------------------------------------------------

// The Add face's answers: "Save" (add to the listed file) and "Save As" (to another file).
inline constexpr const char* kChoiceSave = "1";
inline constexpr const char* kChoiceSaveAs = "2";

// The Edit answer: index with at least two digits ("03", "10", "120"), "/", size, "/",
// colors ("-1" for true color), "/", bits: "03/32/256/8".
std::string EditChoiceText(const MultiIconListItem& item);

// cmdEdit's refusal of a depth that ReadIconFileToImage can't open: empty for 1, 4, 8, 24 and
// 32 bits, else kNotTrueColorDepth and a line break (8 bits or more) or kNotLowDepth.
std::string EditRefusal(int bits);

// ---- Saving single-icon files ----------------------------------------------------------

// The color part of a name: the color count, or for true color the bits and "bpp" ("24bpp").
std::string SaveColorText(int colors, int bits);
// "_", size, "_", color part, ".ico": what follows the stem of every single-icon file name.
std::string SingleIconSuffix(const MultiIconListItem& item);
// Save Single's suggestion: the base name of fileSpec (no folder) and the suffix.
std::string SingleIconSuggestion(const std::string& fileSpec, const MultiIconListItem& item);
// Split Save's stem: folder, "/", and the base name of fileSpec ("/" not doubled).
std::string SplitSaveStem(const std::string& folder, const std::string& fileSpec);
// The file each line of the list is split to: stem and the suffix, by list position.
std::vector<std::string> SplitSavePaths(const std::string& stem, const MultiIconList& list);
// "Single-icon files will be saved as ", stem, "_(Size)_(Color), ...", line break, "Totally ",
// n, " items on list.", two line breaks, "Proceed?".
std::string SplitSaveQuestion(const std::string& stem, int lineCount);

// WriteSingleIcon: a file of one image holding image index's entry (dwImageOffset 22) and its
// bytes unchanged, written through AtomicWriteFile. False for an index outside the set or a
// failed write; an existing file is replaced without a question.
bool WriteSingleIcon(const IconSet& set, int index, const std::string& path);

// ---- Removal ---------------------------------------------------------------------------

// Removes image index from the set held in memory and writes the set to path (every later
// image moves back by the removed length plus 16, every earlier one by 16); the file on disk
// is not read again first. The set is emptied whatever the outcome: the dialog reads the file
// afresh after a removal. Refuses the set's last image (kLastIconStays) without writing or
// emptying; an empty set, an index outside it or a failed write answer kFailedToUpdate, and a
// failed write leaves the file as it was.
SetResult RemoveListedImage(const std::string& path, IconSet& set, int index);

// The position selected after image removedIndex went, in a list now of lineCount lines: the
// only line; position removedIndex if the list has more lines than that, else the position
// above it; -1 for an empty list. It goes by the image's index, not by the position its line
// had, so it can answer a position past the last line when unlisted images came before.
int SelectionAfterRemoval(int removedIndex, int lineCount);

// ---- Preview ---------------------------------------------------------------------------

// The preview's picture: out keeps its back color, takes the image's size, cleared, then the
// mask with SRCAND and the image with SRCINVERT, so the icon stands on the back color.
void ComposePreview(const surface::Surface& image, const surface::Surface& mask, surface::Surface& out);

// The back color of the previews and of the icon to add.
inline constexpr surface::Color kPreviewBack = icon::kTransparentGray;

// ---- Texts -----------------------------------------------------------------------------

inline constexpr const char* kEditFaceCaption = "Edit Icon In Multi-Icon File";
inline constexpr const char* kAddFaceCaption = "Add Icon To Existing Icon File";
inline constexpr const char* kNotTrueColorDepth = "Selected item is of True Color but not 24 BPP or 32 BPP.";
inline constexpr const char* kNotLowDepth = "Selected item is below 8 BPP, but not 1, 4";
inline constexpr const char* kSingleIconFilter = "Icon files (*.ico)|*.ico|";
inline constexpr const char* kSingleIconExt = "ico";

// The list's two tab stops, in dialog units (a quarter of the font's average character
// width): after the reference, after the bits. A tab past them goes to the next multiple of
// eight average character widths.
inline constexpr int kListTabStops[2] = {30, 60};

}  // namespace vexlo::files
