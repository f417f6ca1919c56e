#include "core/files/icon_set.h"

#include <unistd.h>

#include <initializer_list>
#include <utility>

#include "core/files/atomic_file.h"
#include "core/files/ico_messages.h"
#include "core/files/ico_probe.h"
#include "core/files/private_temp.h"

namespace vexlo::files {

namespace {

constexpr std::uint64_t kMaxSetImages = 0xFFFF;

int Fail(IconSet& set, IconSetError* error, IconSetError why) {
    set.Clear();
    if (error) *error = why;
    return 0;
}

// The images in directory order, each at its place end to end after the directory.
std::vector<std::uint8_t> LayOut(const std::vector<const IconImage*>& images) {
    if (images.empty() || images.size() > kMaxSetImages) return {};
    std::uint64_t total = kIconFileHeaderBytes + std::uint64_t{kIconDirEntryBytes} * images.size();
    for (const IconImage* img : images) total += img->Bytes.size();
    if (total > 0xFFFFFFFFu) return {};

    std::vector<std::uint8_t> out;
    out.reserve(static_cast<std::size_t>(total));
    AppendIconFileHeader(out, {0, 1, static_cast<std::uint16_t>(images.size())});
    std::uint32_t offset = static_cast<std::uint32_t>(kIconFileHeaderBytes + kIconDirEntryBytes * images.size());
    for (const IconImage* img : images) {
        IconDirEntry e = img->Entry;
        e.BytesInRes = static_cast<std::uint32_t>(img->Bytes.size());
        e.ImageOffset = offset;
        offset += e.BytesInRes;
        AppendIconDirEntry(out, e);
    }
    for (const IconImage* img : images) out.insert(out.end(), img->Bytes.begin(), img->Bytes.end());
    return out;
}

bool WriteBytes(const std::string& path, const std::vector<std::uint8_t>& bytes, std::string* error) {
    if (bytes.empty()) {
        if (error) *error = "no images to write, or more than an icon file holds";
        return false;
    }
    const FileWriteResult result = AtomicWriteFile(path, Bytes(bytes));
    if (error) *error = result.Error;
    return result.Ok;
}

// The set's images with their offsets as the file written from them will have them.
void LayOutEntries(IconSet& set) {
    std::uint32_t offset = static_cast<std::uint32_t>(kIconFileHeaderBytes + kIconDirEntryBytes * set.Images.size());
    for (IconImage& img : set.Images) {
        img.Entry.BytesInRes = static_cast<std::uint32_t>(img.Bytes.size());
        img.Entry.ImageOffset = offset;
        offset += img.Entry.BytesInRes;
    }
}

SetResult Done() { return {true, {}}; }
SetResult Refused(std::string message) { return {false, std::move(message)}; }

}  // namespace

int ReadIconSet(Bytes data, IconSet& set, IconSetError* error) {
    ByteReader r(data);
    const IconFileHeader header = ReadIconFileHeader(r);
    if (!r.Ok() || header.Reserved != 0 || header.Type != 1) return Fail(set, error, IconSetError::NotIconFile);
    if (header.Count < 1) return Fail(set, error, IconSetError::NoImages);
    // The whole directory must be in the file before anything is allocated for it.
    const std::uint64_t dirEnd = kIconFileHeaderBytes + std::uint64_t{kIconDirEntryBytes} * header.Count;
    if (dirEnd > data.size()) return Fail(set, error, IconSetError::Truncated);

    std::vector<IconDirEntry> entries;
    entries.reserve(header.Count);
    for (int i = 0; i < header.Count; ++i) entries.push_back(ReadIconDirEntry(r));
    if (!r.Ok()) return Fail(set, error, IconSetError::Truncated);

    // Each image is read where its entry puts it, whatever else lies there: images may share
    // bytes with one another or with the directory, and each gets a copy of its own. Every
    // image must lie within the file, and the copies together must make a file that is read
    // again: so many images over the same bytes can't make the copies outgrow the cap.
    std::uint64_t total = dirEnd;
    for (const IconDirEntry& e : entries) {
        if (std::uint64_t{e.ImageOffset} + e.BytesInRes > data.size()) return Fail(set, error, IconSetError::Truncated);
        total += e.BytesInRes;
    }
    if (total > kMaxFileBytes) return Fail(set, error, IconSetError::TooLarge);

    IconSet read;
    read.Images.reserve(entries.size());
    for (const IconDirEntry& e : entries) {
        const Bytes bytes = data.subspan(e.ImageOffset, e.BytesInRes);
        read.Images.push_back({e, std::vector<std::uint8_t>(bytes.begin(), bytes.end())});
    }
    set = std::move(read);
    if (error) *error = IconSetError::None;
    return set.Count();
}

int ReadIconSet(const std::string& path, IconSet& set, IconSetError* error) {
    std::vector<std::uint8_t> data;
    if (ReadWholeFile(path, data) != FileReadStatus::Ok) return Fail(set, error, IconSetError::CannotRead);
    return ReadIconSet(Bytes(data), set, error);
}

std::vector<std::uint8_t> BuildIconSetBytes(const IconSet& set) {
    std::vector<const IconImage*> images;
    images.reserve(set.Images.size());
    for (const IconImage& img : set.Images) images.push_back(&img);
    return LayOut(images);
}

bool WriteIconSet(const std::string& path, const IconSet& set, std::string* error) {
    return WriteBytes(path, BuildIconSetBytes(set), error);
}

bool WriteIconSetReplace(const std::string& path, const IconSet& set, int index, std::string* error) {
    if (index < 0 || index >= set.Count() || set.NewImage.Bytes.empty()) {
        if (error) *error = "no image " + std::to_string(index) + " to replace, or no new image";
        return false;
    }
    std::vector<const IconImage*> images;
    images.reserve(set.Images.size());
    for (const IconImage& img : set.Images) images.push_back(&img);
    images[static_cast<std::size_t>(index)] = &set.NewImage;
    return WriteBytes(path, LayOut(images), error);
}

bool RemoveImageFromSet(IconSet& set, int index) {
    if (index < 0 || index >= set.Count() || set.Count() < 2) return false;
    set.Images.erase(set.Images.begin() + index);
    LayOutEntries(set);
    return true;
}

std::optional<int> FindDuplicateImage(const IconSet& set, int w, int h, int c, int bits, int skipIndex) {
    for (int j = 0; j < set.Count(); ++j) {
        if (j == skipIndex) continue;
        const IconDirEntry& e = set.Images[static_cast<std::size_t>(j)].Entry;
        if (e.Width == w && e.Height == h && ColorCountOfEntry(e) == c && e.BitCount == bits) return j;
    }
    return std::nullopt;
}

EntryDepth EntryDepthOf(int c, int bits) {
    switch (c) {
        case 2: return {2, 1};
        case 16: return {16, 4};
        case 256: return {0, 8};
        default: return {0, static_cast<std::uint16_t>(bits)};
    }
}

std::string TempIconPath(const std::string& tempDir) {
    if (tempDir.empty() || tempDir.back() == '/') return tempDir + "vexlotmp.ico";
    return tempDir + "/vexlotmp.ico";
}

SetResult PrepareNewImage(const surface::Surface& image, const surface::Surface& mask,
                          const IconWriteOptions& options, const std::string& tempDir, IconImage& out) {
    if (tempDir.empty()) return Refused(kFailedPreparation);
    const std::string temp = TempIconPath(tempDir);
    const std::vector<std::uint8_t> bytes = BuildIconFileBytes(image, mask, options);
    if (bytes.empty() || !WriteNewPrivateFile(temp, Bytes(bytes))) return Refused(kFailedPreparation);
    std::vector<std::uint8_t> written;
    IconSet one;
    if (ReadPrivateFile(temp, written) != FileReadStatus::Ok || ReadIconSet(Bytes(written), one) < 1)
        return Refused(kFailedLoadPreparation);
    out = std::move(one.Images[0]);
    ::unlink(temp.c_str());
    return Done();
}

namespace {

// The duplicate test of a new image against a set, for both the depth that the slot's record
// names and the depth at which the pixels are written (ColorCountOfEntry and wBitCount of the
// written entry): the two differ when the colors of the icon have changed since it came in,
// and a set must never end with two images of one size and depth.
std::optional<int> FindDuplicateOfEither(const IconSet& set, int w, int h, int c, int bits,
                                         const WrittenDepth& written, int skipIndex, WrittenDepth& found) {
    if (auto j = FindDuplicateImage(set, w, h, c, bits, skipIndex)) {
        found = {c, bits};
        return j;
    }
    if (auto j = FindDuplicateImage(set, w, h, written.Colors, written.Bits, skipIndex)) {
        found = written;
        return j;
    }
    return std::nullopt;
}

WrittenDepth DepthOfEntry(const IconDirEntry& e) { return {ColorCountOfEntry(e), e.BitCount}; }

}  // namespace

SetResult CheckReplaceTarget(const std::string& path, int index, int w, int h, int c, int bits,
                             const WrittenDepth& written) {
    IconSet set;
    if (ReadIconSet(path, set) < 1) return Refused(kFailedReading);
    WrittenDepth found;
    if (FindDuplicateOfEither(set, w, h, c, bits, written, index, found))
        return Refused(DuplicateReplaceMessage(w, h, found.Colors, found.Bits));
    if (index < 0 || set.Count() - 1 < index) return Refused(ChangedMeanwhileMessage());
    return Done();
}

SetResult ReplaceIconInFile(const surface::Surface& image, const surface::Surface& mask,
                            const IconWriteOptions& options, const std::string& sourcePath, int index,
                            const std::string& targetPath, const std::string& tempDir) {
    IconImage newImage;
    if (SetResult r = PrepareNewImage(image, mask, options, tempDir, newImage); !r) return r;
    IconSet set;
    if (ReadIconSet(sourcePath, set) < 1) return Refused(kFailedReading);
    if (index < 0 || index >= set.Count()) return Refused(ChangedMeanwhileMessage());
    // The entry goes in as the image was written; the file read afresh may have changed since
    // the check before the dialog.
    const WrittenDepth depth = DepthOfEntry(newImage.Entry);
    if (FindDuplicateImage(set, image.Width(), image.Height(), depth.Colors, depth.Bits, index))
        return Refused(DuplicateReplaceMessage(image.Width(), image.Height(), depth.Colors, depth.Bits));
    set.NewImage = std::move(newImage);
    if (!WriteIconSetReplace(targetPath, set, index))
        return Refused(IsProtectedFile(targetPath) ? kReplaceReadOnly : kFailedWriting);
    return Done();
}

SetResult CheckAddTarget(const std::string& path, int w, int h, int c, int bits, const WrittenDepth& written) {
    IconSet set;
    IconSetError why = IconSetError::None;
    if (ReadIconSet(path, set, &why) < 1)
        return Refused(why == IconSetError::NoImages ? NoIconFoundMessage(path) : FailedToOpenMessage(path));
    WrittenDepth found;
    if (FindDuplicateOfEither(set, w, h, c, bits, written, -1, found))
        return Refused(DuplicateAddMessage(w, h, found.Colors, found.Bits));
    return Done();
}

SetResult AppendIconToFile(const surface::Surface& image, const surface::Surface& mask,
                           const std::string& path, int c, int bits, const IconWriteOptions& options,
                           const std::string& tempDir) {
    IconImage newImage;
    if (SetResult r = PrepareNewImage(image, mask, options, tempDir, newImage); !r) return r;
    IconSet set;
    IconSetError why = IconSetError::None;
    if (ReadIconSet(path, set, &why) < 1)
        return Refused(why == IconSetError::NoImages ? NoIconFileMessage(path) : FailedToOpenMessage(path));

    const int w = image.Width();
    const int h = image.Height();
    WrittenDepth found;
    if (FindDuplicateOfEither(set, w, h, c, bits, DepthOfEntry(newImage.Entry), -1, found))
        return Refused(DuplicateAddMessage(w, h, found.Colors, found.Bits));

    // The end of the image that lies last, moved by the entry that the directory gains.
    std::uint64_t end = 0;
    std::uint64_t highest = 0;
    std::uint64_t others = 0;
    for (const IconImage& img : set.Images) {
        others += img.Entry.BytesInRes;
        if (img.Entry.ImageOffset >= highest) {
            highest = img.Entry.ImageOffset;
            end = std::uint64_t{img.Entry.ImageOffset} + img.Entry.BytesInRes;
        }
    }
    end += kIconDirEntryBytes;
    const std::uint64_t count = static_cast<std::uint64_t>(set.Count()) + 1;

    IconDirEntry entry;
    entry.Width = static_cast<std::uint8_t>(w);
    entry.Height = static_cast<std::uint8_t>(h);
    entry.Reserved = 0;
    entry.Planes = 1;
    const EntryDepth depth = EntryDepthOf(c, bits);
    entry.ColorCount = depth.ColorCount;
    entry.BitCount = depth.BitCount;
    entry.BytesInRes = static_cast<std::uint32_t>(ImageBytes(c, w, h, bits == 32));
    // The depth that the entry names must be the depth that the image was written with.
    if (entry.BytesInRes != newImage.Bytes.size() || entry.BitCount != newImage.Entry.BitCount)
        return Refused(kBytesDoNotCorrespond);
    if (end != kIconFileHeaderBytes + kIconDirEntryBytes * count + others) return Refused(kOffsetDoesNotCorrespond);
    entry.ImageOffset = static_cast<std::uint32_t>(end);

    set.Images.push_back({entry, std::move(newImage.Bytes)});
    if (!WriteIconSet(path, set)) return Refused(IsProtectedFile(path) ? kFileIsReadOnly : kFailedWriting);
    return Done();
}

SetResult RemoveIconFromFile(const std::string& path, int index) {
    IconSet set;
    if (ReadIconSet(path, set) < 1) return Refused(kFailedToUpdate);
    if (set.Count() == 1) return Refused(kLastIconStays);
    if (!RemoveImageFromSet(set, index) || !WriteIconSet(path, set)) return Refused(kFailedToUpdate);
    return Done();
}

std::vector<std::uint8_t> BuildSingleIconBytes(const IconSet& set, int index) {
    if (index < 0 || index >= set.Count()) return {};
    const IconImage& img = set.Images[static_cast<std::size_t>(index)];
    std::vector<std::uint8_t> out;
    out.reserve(kIconFileHeaderBytes + kIconDirEntryBytes + img.Bytes.size());
    AppendIconFileHeader(out, {0, 1, 1});
    IconDirEntry e = img.Entry;
    e.ImageOffset = kIconFileHeaderBytes + kIconDirEntryBytes;
    AppendIconDirEntry(out, e);
    out.insert(out.end(), img.Bytes.begin(), img.Bytes.end());
    return out;
}

// ---- Texts -----------------------------------------------------------------------------

std::string DepthLabel(int c, int bits) {
    if (c <= 0) return "True Color " + std::to_string(bits) + " BPP";
    return std::to_string(c) + "-color";
}

std::string AddIconDescription(int c, int bits, int w, int h) {
    const std::string depth = c > 0 ? std::to_string(c) + "-color"
                                    : (bits == 32 ? "32 BPP   True-color" : "24 BPP   True-color");
    return depth + "     Size: " + std::to_string(w) + "x" + std::to_string(h);
}

std::string IconListLine(int index, const IconDirEntry& entry) {
    const int colors = ColorCountOfEntry(entry);
    const std::string label = colors > 0 ? std::to_string(colors) + "-Color" : "True-Color";
    return "Ref " + std::to_string(index + 1) + "  \t" + std::to_string(entry.BitCount) + " BPP\t" + label +
           "\t  " + std::to_string(entry.Width) + " x " + std::to_string(entry.Height);
}

std::string DuplicateFirstLine(int w, int h, int c, int bits) {
    return std::to_string(w) + " x " + std::to_string(h) + "    " + DepthLabel(c, bits);
}

namespace {

std::string Lines(std::initializer_list<std::string> lines) {
    std::string out;
    for (const std::string& line : lines) out += line + kCrLf;
    return out;
}

}  // namespace

std::string DuplicateReplaceMessage(int w, int h, int c, int bits) {
    return Lines({DuplicateFirstLine(w, h, c, bits), "", kSameIconInOriginal,
                  std::string(kNoTwoIdentical) + " " + kSizeAndDepth, "", kSingleIconAdvice, kEnquiryAdvice});
}

std::string DuplicateAddMessage(int w, int h, int c, int bits) {
    return Lines({DuplicateFirstLine(w, h, c, bits), "", kSameIconInFile, kNoTwoIdentical, kSizeAndDepth, ""});
}

std::string ChangedMeanwhileMessage() { return Lines({kChangedMeanwhile, kCannotSaveBack}); }

std::string RemoveQuestion(const std::string& path) {
    return std::string(kRemovePermanently) + kCrLf + path + kCrLf + kCrLf + kSureToRemove + kCrLf + kCrLf;
}

std::string UnableToGetMessage(int reference) {
    return "Ref " + std::to_string(reference) + kCrLf + kUnableToGet;
}

}  // namespace vexlo::files
