#include "core/ani/ani_save.h"

#include <cstring>
#include <filesystem>

#include "core/files/atomic_file.h"
#include "core/files/byte_reader.h"
#include "core/files/cursor_file.h"
#include "core/files/ico_write.h"

namespace vexlo::ani {

namespace {

using files::PutU32;

void Append(std::vector<std::uint8_t>& out, const void* data, std::size_t n) {
    const std::size_t at = out.size();
    out.resize(at + n);
    if (n != 0) std::memcpy(out.data() + at, data, n);
}

void PutId(std::vector<std::uint8_t>& out, const char* id) { Append(out, id, 4); }

// The text and one zero byte.
void PutText(std::vector<std::uint8_t>& out, const char* text) { Append(out, text, std::strlen(text) + 1); }

void PutU16At(std::vector<std::uint8_t>& out, std::size_t at, int value) {
    out[at] = static_cast<std::uint8_t>(value & 0xFF);
    out[at + 1] = static_cast<std::uint8_t>((value >> 8) & 0xFF);
}

AniSaveResult Result(AniSaveOutcome outcome, std::string message = {}) { return {outcome, std::move(message)}; }

}  // namespace

std::string AniTempFileName(const std::string& tempDir, int index) {
    const std::string folder = tempDir.empty() || tempDir.back() == '/' ? tempDir : tempDir + "/";
    return folder + "ANI_Tmp_" + (index < 10 ? "0" : "") + std::to_string(index);
}

void RemoveAniTempFiles(const std::string& tempDir, AniTempFiles& names) {
    if (names.empty() || names.front().empty()) return;
    for (std::size_t i = 0; i < names.size(); ++i) {
        std::error_code ec;
        std::filesystem::remove(AniTempFileName(tempDir, static_cast<int>(i)), ec);
    }
    names.clear();
}

void FrameToIconPlanes(const surface::Surface& frameImage, const surface::Surface& frameMask,
                       surface::Surface& image, surface::Surface& mask) {
    image = surface::Surface(kAniFrameSide, kAniFrameSide, 0x000000);
    mask = surface::Surface(kAniFrameSide, kAniFrameSide, 0xFFFFFF);
    for (int x = 0; x < kAniFrameSide; ++x) {
        for (int y = 0; y < kAniFrameSide; ++y) {
            const surface::Color c = frameImage.GetPixel(x, y);
            if (c != 0xFFFFFF) {
                image.SetPixelV(x, y, c);
                mask.SetPixelV(x, y, 0);
            } else if (frameMask.GetPixel(x, y) == 0) {
                image.SetPixelV(x, y, 0xFFFFFF);
                mask.SetPixelV(x, y, 0);
            }
        }
    }
}

std::vector<std::uint8_t> BuildAniFrameBytes(const surface::Surface& image, const surface::Surface& mask,
                                             int hotX, int hotY, bool keepTrueColor) {
    if (!keepTrueColor) return files::BuildCursorFileBytes(image, mask, hotX, hotY);
    // The icon writer at true color, made a cursor: file type 2, the hot spot where an icon
    // has planes and bit count.
    if (image.Width() != kAniFrameSide || image.Height() != kAniFrameSide) return {};
    if (hotX < 0 || hotX >= kAniFrameSide || hotY < 0 || hotY >= kAniFrameSide) return {};
    files::IconWriteOptions options;
    options.KeepTrueColor = true;
    std::vector<std::uint8_t> out = files::BuildIconFileBytes(image, mask, options);
    if (out.size() < static_cast<std::size_t>(files::kCursorImageOffset)) return {};
    PutU16At(out, 2, 2);
    PutU16At(out, 10, hotX);
    PutU16At(out, 12, hotY);
    return out;
}

std::vector<std::uint8_t> BuildAniFileBytes(std::span<const std::vector<std::uint8_t>> frames,
                                            std::span<const AniFrameRecord> rows) {
    const std::uint32_t n = static_cast<std::uint32_t>(frames.size());
    const std::uint32_t a = static_cast<std::uint32_t>(std::strlen(kAniTitle));
    const std::uint32_t b = static_cast<std::uint32_t>(std::strlen(kAniArtist));
    std::uint32_t framBytes = 4;  // L
    for (const auto& f : frames) framBytes += 8 + static_cast<std::uint32_t>(f.size());
    const std::uint32_t length = 102 + a + b + 4 * n + framBytes;

    std::vector<std::uint8_t> out;
    out.reserve(length);
    PutId(out, "RIFF");
    PutU32(out, length - 8);
    PutId(out, "ACON");
    PutId(out, "LIST");
    PutU32(out, a + b + 22);
    PutId(out, "INFO");
    PutId(out, "INAM");
    PutU32(out, a + 1);
    PutText(out, kAniTitle);
    PutId(out, "IART");
    PutU32(out, b + 1);
    PutText(out, kAniArtist);
    PutId(out, "anih");
    PutU32(out, 36);
    for (const std::uint32_t v : {36u, n, n, 0u, 0u, 0u, 0u, kAniSavedDisplayRate, 1u}) PutU32(out, v);
    PutId(out, "rate");
    PutU32(out, 4 * n);
    for (std::size_t i = 0; i < frames.size(); ++i)
        PutU32(out, static_cast<std::uint32_t>(static_cast<std::int32_t>(rows[i].Jiffies)));
    PutId(out, "LIST");
    PutU32(out, framBytes);
    PutId(out, "fram");
    for (const auto& f : frames) {
        PutId(out, "icon");
        PutU32(out, static_cast<std::uint32_t>(f.size()));
        Append(out, f.data(), f.size());
    }
    return out;
}

AniSaveResult SaveANIFile(AniFrameSet& set, AniTempFiles& tempFiles, const AniSaveRequest& request) {
    const int n = set.FrameCount();
    if (n < 1) return Result(AniSaveOutcome::NoFrames, kNoFramesPrepared);
    if (static_cast<std::size_t>(n) != set.AniFrames.size())
        return Result(AniSaveOutcome::CountDiscrepant, kImageCountDiscrepant);
    if (set.AniMasks.size() != set.AniImages.size()) return Result(AniSaveOutcome::Fault, "the frame masks are missing");

    if (tempFiles.size() < static_cast<std::size_t>(n)) tempFiles.resize(static_cast<std::size_t>(n));
    const auto progress = [&request](int percent) {
        if (request.Progress) request.Progress(percent);
    };
    surface::Surface image, mask;
    for (int i = 0; i < n; ++i) {
        progress(100 * i / n);
        const std::string name = AniTempFileName(request.TempDir, i);
        tempFiles[static_cast<std::size_t>(i)] = name;
        const std::size_t at = static_cast<std::size_t>(i) + 1;
        FrameToIconPlanes(set.AniImages[at], set.AniMasks[at], image, mask);
        const std::vector<std::uint8_t> bytes =
            BuildAniFrameBytes(image, mask, request.HotX, request.HotY, request.KeepTrueColor);
        if (bytes.empty() || !files::AtomicWriteFile(name, files::Bytes(bytes)))
            return Result(AniSaveOutcome::FrameNotSaved, kFailedToSaveFrame + std::to_string(i + 1));
    }
    for (AniFrameRecord& row : set.AniFrames) {
        row.HotX = static_cast<std::int16_t>(request.HotX);
        row.HotY = static_cast<std::int16_t>(request.HotY);
    }

    std::vector<std::vector<std::uint8_t>> frames(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        const std::string& name = tempFiles[static_cast<std::size_t>(i)];
        if (files::ReadWholeFile(name, frames[static_cast<std::size_t>(i)]) != files::FileReadStatus::Ok)
            return Result(AniSaveOutcome::TempFileMissing, kTempFileMissing + std::string(kAniCrLf) + name);
    }
    const std::vector<std::uint8_t> file = BuildAniFileBytes(frames, set.AniFrames);
    const files::FileWriteResult written = files::AtomicWriteFile(request.TargetPath, files::Bytes(file));
    if (!written) {
        AniSaveResult fault = Result(AniSaveOutcome::Fault, written.Error);
        fault.Number = written.Number;
        return fault;
    }
    progress(100);
    return Result(AniSaveOutcome::Saved);
}

}  // namespace vexlo::ani
