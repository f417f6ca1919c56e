#pragma once
// Icon sets: the images of an icon file held as raw bytes, for the operations that change a
// multi-icon file without decoding it (save an icon back over one image, add an icon at the
// end, remove an image). Every operation reads the file afresh, changes the set and writes a
// whole new file through AtomicWriteFile, laid out as header, directory, then the images in
// directory order with no gaps: the offsets and lengths of the directory are always recomputed
// from the image bytes, so a written set is well formed whatever the file it came from.
//
// The texts that the window shows for the outcomes are at the end of this header.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/files/byte_reader.h"
#include "core/files/ico_format.h"
#include "core/files/ico_write.h"
#include "core/surface/surface.h"

namespace vexlo::files {

// One image of a set: its directory entry as the file had it, and its dwBytesInRes bytes.
struct IconImage {
    IconDirEntry Entry;
    std::vector<std::uint8_t> Bytes;
};

struct IconSet {
    std::vector<IconImage> Images;
    // The image to go in (the one image of the temporary file) with that file's entry.
    IconImage NewImage;

    int Count() const { return static_cast<int>(Images.size()); }
    void Clear() { *this = IconSet{}; }
};

// Why ReadIconSet answered 0.
enum class IconSetError {
    None,
    CannotRead,    // missing, unreadable, not a regular file, over kMaxFileBytes
    NotIconFile,   // idReserved not 0 or idType not 1
    NoImages,      // an icon file header with idCount 0
    Truncated,     // a directory entry or an image lies (partly) past the end of the file
    TooLarge,      // the images together (they may overlap) would make a file over kMaxFileBytes
};

// Reads the set of an icon file: answers the number of images, or 0 with the set emptied (and
// the reason in *error). The header, every entry, then for each entry dwBytesInRes bytes from
// dwImageOffset; a read that the file cuts short fails. Images that overlap one another or
// the directory are read as they stand, each into its own bytes. Every entry and every image
// is checked against the file before anything is allocated for it. An image of 0 bytes is
// taken.
int ReadIconSet(Bytes data, IconSet& set, IconSetError* error = nullptr);
int ReadIconSet(const std::string& path, IconSet& set, IconSetError* error = nullptr);

// The bytes of the file of a set: header (idType 1), the entries with dwBytesInRes the length
// of each image and dwImageOffset recomputed end to end, then the images. Empty for a set of
// no images or of more than 65535.
std::vector<std::uint8_t> BuildIconSetBytes(const IconSet& set);

// Writes the set as it stands (the offsets recomputed) with AtomicWriteFile; a failure leaves
// the file that stood at path untouched. False, with the reason in *error, on failure.
bool WriteIconSet(const std::string& path, const IconSet& set, std::string* error = nullptr);

// Writes the set with set.NewImage in place of image index: the entry and the bytes of the new
// image (its length, depth and size as the one-image file had them), every later image moved
// by the change in length. False if index is outside the set, NewImage is empty, or the write
// fails. The set itself is not changed.
bool WriteIconSetReplace(const std::string& path, const IconSet& set, int index,
                         std::string* error = nullptr);

// Removes image index from the set: in the file written next, every later image moves back by
// the removed length plus 16 and every earlier one by 16 (the directory is one entry shorter).
// False, with the set unchanged, if index is outside the set or it is the set's only image.
bool RemoveImageFromSet(IconSet& set, int index);

// The index of the first image, other than skipIndex, of width w, height h, ColorCountOfEntry
// c and wBitCount bits: an icon of that size and depth would duplicate it.
std::optional<int> FindDuplicateImage(const IconSet& set, int w, int h, int c, int bits,
                                      int skipIndex = -1);

// bColorCount and wBitCount of an entry for color count c and bits: 2, 1 for c = 2; 16, 4 for
// 16; 0, 8 for 256; else 0 and bits.
struct EntryDepth {
    std::uint8_t ColorCount = 0;
    std::uint16_t BitCount = 0;
};
EntryDepth EntryDepthOf(int c, int bits);

// The temporary file: tempDir (with or without its last "/") and "vexlotmp.ico".
std::string TempIconPath(const std::string& tempDir);

// Outcome of a flow step: Ok, or the message for the window (title "Vexlo").
struct SetResult {
    bool Ok = false;
    std::string Message;
    explicit operator bool() const { return Ok; }
};

// Makes the new image of the icon: the bytes of WriteIconFile(image, mask, options) written to
// TempIconPath(tempDir) as a new file (WriteNewPrivateFile: whatever stood there is removed,
// no link is followed), read back without following links into out, then the temporary file
// is deleted (it stays only if reading it back failed). tempDir is a private folder of this
// user (PrivateTempDir); an empty one fails. Failures: "Failed to save current icon -
// preparation", "Failed to save current icon - load preparation".
SetResult PrepareNewImage(const surface::Surface& image, const surface::Surface& mask,
                          const IconWriteOptions& options, const std::string& tempDir, IconImage& out);

// Save back, the checks before the save dialog: reads path, refuses a duplicate of any image
// other than index (DuplicateReplaceMessage), and an index the file no longer holds. The
// duplicate test runs with the slot's depth (c and bits: its ColorCount and BitsPerPixel) and
// with written, the depth at which the pixels will be written (DepthToWrite); the message
// names the depth that found the duplicate.
SetResult CheckReplaceTarget(const std::string& path, int index, int w, int h, int c, int bits,
                             const WrittenDepth& written);

// Save back, after the dialog: PrepareNewImage, ReadIconSet(sourcePath), the duplicate test
// once more with the depth of the image as written, then WriteIconSetReplace(targetPath,
// index). A target that IsProtectedFile gets "File is read-only.", another write failure
// "Failed to save current icon - writing". sourcePath is only read: saving to another name
// leaves it as it was.
SetResult ReplaceIconInFile(const surface::Surface& image, const surface::Surface& mask,
                            const IconWriteOptions& options, const std::string& sourcePath, int index,
                            const std::string& targetPath, const std::string& tempDir);

// Adding, the checks before the dialog: reads path ("Failed to open " and the path, or for an
// icon file of no image "No icon found in " and the path) and refuses a duplicate of any image
// (DuplicateAddMessage), by both depths as in CheckReplaceTarget.
SetResult CheckAddTarget(const std::string& path, int w, int h, int c, int bits, const WrittenDepth& written);

// Adds the icon as the last image of the file at path: c is CountColors of the image (or -1
// for a true-color slot), bits the slot's BitsPerPixel, options those of WriteIconFile.
// Refuses a duplicate by (c, bits) or by the depth of the image as written
// (DuplicateAddMessage), a new image whose length isn't ImageBytes of
// (c, bits) or whose bit count isn't the entry's ("Bytes of the added icon image do not
// correspond": the slot's depth and the depth written disagree), and a file whose images don't
// lie end to end in directory order ("Offset value of the added icon image does not
// correspond"), all without writing. The new entry is the last; every older image moves by 16.
SetResult AppendIconToFile(const surface::Surface& image, const surface::Surface& mask,
                           const std::string& path, int c, int bits, const IconWriteOptions& options,
                           const std::string& tempDir);

// Removes image index from the file at path and writes it back. Failures: "Not allowed to
// delete the last icon in file", "Failed to update the file for this icon.".
SetResult RemoveIconFromFile(const std::string& path, int index);

// The bytes of a one-image file of image index, its entry as it stands with dwImageOffset 22
// and its bytes copied unchanged; empty for an index outside the set.
std::vector<std::uint8_t> BuildSingleIconBytes(const IconSet& set, int index);

// ---- Texts -----------------------------------------------------------------------------

// The label of a depth: c and "-color" ("16-color"); for true color (c of -1 or below)
// "True Color ", bits, " BPP" ("True Color 32 BPP").
std::string DepthLabel(int c, int bits);
// The description of the icon that the Add face shows: "16-color" for c above 0, else
// "32 BPP   True-color" for bits 32 and "24 BPP   True-color" for others; then
// "     Size: ", w, "x", h.
std::string AddIconDescription(int c, int bits, int w, int h);
// One line of the dialog's list for image index i: "Ref ", i + 1, two blanks, tab, wBitCount,
// " BPP", tab, "16-Color" or "True-Color", tab, two blanks, bWidth, " x ", bHeight.
std::string IconListLine(int index, const IconDirEntry& entry);

inline constexpr const char* kRetrievalFailed = "Retrieval failed";
inline constexpr const char* kFailedReading = "Failed to save current icon - reading";
inline constexpr const char* kFailedPreparation = "Failed to save current icon - preparation";
inline constexpr const char* kFailedLoadPreparation = "Failed to save current icon - load preparation";
inline constexpr const char* kFailedWriting = "Failed to save current icon - writing";
inline constexpr const char* kChangedMeanwhile = "The original multi-icon file has been changed meanwhile.";
inline constexpr const char* kCannotSaveBack = "Cannot proceed to save current icon back.";
inline constexpr const char* kReplaceReadOnly = "File is read-only.";  // save back; adding has no "."
inline constexpr const char* kCannotAddToItself = "Cannot add to original file itself.";
inline constexpr const char* kFailedToOpen = "Failed to open ";
inline constexpr const char* kNoIconFoundIn = "No icon found in ";
inline constexpr const char* kNoIconFileIn = "No icon file in ";
inline constexpr const char* kBytesDoNotCorrespond = "Bytes of the added icon image do not correspond";
inline constexpr const char* kOffsetDoesNotCorrespond = "Offset value of the added icon image does not correspond";
inline constexpr const char* kSameIconInOriginal = "Icon of same size and color palette already in original multi-file.";
inline constexpr const char* kSameIconInFile = "Icon of same size and color palette already in file.";
inline constexpr const char* kNoTwoIdentical = "Multi-icon file cannot have two icons of identical";
inline constexpr const char* kSizeAndDepth = "size and color depth.";
inline constexpr const char* kSingleIconAdvice = "You may save to a single-icon file or change color-depth first (to see";
inline constexpr const char* kEnquiryAdvice = "original color-depth, click Enquiry menu).";
// The multi-icon dialog.
inline constexpr const char* kLastIconStays = "Not allowed to delete the last icon in file";
inline constexpr const char* kRemovePermanently = "Permanently remove the selected icon from the multi-icon file.";
inline constexpr const char* kSureToRemove = "Sure to remove this icon permanently?";
inline constexpr const char* kFailedToUpdate = "Failed to update the file for this icon.";
inline constexpr const char* kUnableToGet = "Unable to get this one";
inline constexpr const char* kNoIconListed = "No icon in file listed";

// Line 1 of both duplicate messages: w, " x ", h, "    ", DepthLabel(c, bits).
std::string DuplicateFirstLine(int w, int h, int c, int bits);
// Saving back; each line ends with a line break:
//   line 1, "", "Icon of same size and color palette already in original multi-file.",
//   "Multi-icon file cannot have two icons of identical size and color depth.", "",
//   "You may save to a single-icon file or change color-depth first (to see",
//   "original color-depth, click Enquiry menu)."
std::string DuplicateReplaceMessage(int w, int h, int c, int bits);
// Adding; each line ends with a line break:
//   line 1, "", "Icon of same size and color palette already in file.",
//   "Multi-icon file cannot have two icons of identical", "size and color depth.", ""
std::string DuplicateAddMessage(int w, int h, int c, int bits);
// "The original multi-icon file has been changed meanwhile.", line break, "Cannot proceed to
// save current icon back.", line break.
std::string ChangedMeanwhileMessage();
// "Failed to open " and the path; "No icon found in " and the path; "No icon file in " and the path.
inline std::string FailedToOpenMessage(const std::string& path) { return kFailedToOpen + path; }
inline std::string NoIconFoundMessage(const std::string& path) { return kNoIconFoundIn + path; }
inline std::string NoIconFileMessage(const std::string& path) { return kNoIconFileIn + path; }
// "Permanently remove ...", line break, path, two line breaks, "Sure to remove ...", two line breaks.
std::string RemoveQuestion(const std::string& path);
// "Ref ", the reference, line break, "Unable to get this one".
std::string UnableToGetMessage(int reference);

}  // namespace vexlo::files
