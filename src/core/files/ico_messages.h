#pragma once
// The texts that the window shows for the outcomes of reading and writing icon files. The
// format code shows none of them; it answers, and the caller shows these. A line break is
// CR LF in the model.
#include <string>

namespace vexlo::files {

inline constexpr const char* kCrLf = "\r\n";

inline constexpr const char* kInvalidIconFile = "Invalid icon file or icon not a size of";
inline constexpr const char* kInvalidIconFileSizes = "16x16, 32x32 or 48x48.";
inline constexpr const char* kNoUsableIcon = "Valid icon file, but no 32x32 or 16x16 or 48x48 icon there";
inline constexpr const char* kIconNotOfSize = "Icon not of size 16x16, 32x32 or 48x48";
inline constexpr const char* kFailedToLoad = "Failed to load this file";
inline constexpr const char* kTrueColorIcon = "Incoming icon is a True Color icon";
inline constexpr const char* kTrueColorIconDepth = " but not of 24 BPP or 32 BPP.";
inline constexpr const char* kAlphaCopyFailed = "Failed to copy the Alpha Channel values to record.";

inline constexpr const char* kFileIsReadOnly = "File is read-only";
inline constexpr const char* kSaveUnderOtherName = "You may save it under";
inline constexpr const char* kResetAttributes = " a different file name or reset the file attributes.";
inline constexpr const char* kFailedToSave = "Failed to save this icon";
inline constexpr const char* kTrueColorOver256 = "Current icon is a true-color icon, over 256 colors.";
inline constexpr const char* kCannotForce256 = "Cannot force save as 256-color.";
inline constexpr const char* kMultiIconReminder = "Reminder:  The original icon file contains multiple icons.";
inline constexpr const char* kMultiIconAdvice = " If you don't wish to overwrite it, save to a different name.";

// path, two line breaks, "Invalid icon file or icon not a size of", line break, "16x16, ...".
inline std::string InvalidIconFileMessage(const std::string& path) {
    return path + kCrLf + kCrLf + kInvalidIconFile + kCrLf + kInvalidIconFileSizes;
}
// path, line break, "Valid icon file, but no 32x32 or 16x16 or 48x48 icon there".
inline std::string NoUsableIconMessage(const std::string& path) { return path + kCrLf + kNoUsableIcon; }
// path, line break, "Icon not of size 16x16, 32x32 or 48x48".
inline std::string IconNotOfSizeMessage(const std::string& path) { return path + kCrLf + kIconNotOfSize; }
// path, line break, "Failed to load this file".
inline std::string FailedToLoadMessage(const std::string& path) { return path + kCrLf + kFailedToLoad; }
// path, line break, "Incoming icon is a True Color icon", " but not of 24 BPP or 32 BPP.", line break.
inline std::string TrueColorDepthMessage(const std::string& path) {
    return path + kCrLf + kTrueColorIcon + kTrueColorIconDepth + kCrLf;
}
// line break, "Failed to copy the Alpha Channel values to record.".
inline std::string AlphaCopyFailedMessage() { return std::string(kCrLf) + kAlphaCopyFailed; }

// "File is read-only", two line breaks, "You may save it under", " a different file name ...".
inline std::string ReadOnlyFileMessage() {
    return std::string(kFileIsReadOnly) + kCrLf + kCrLf + kSaveUnderOtherName + kResetAttributes;
}
// "Current icon is a true-color icon, over 256 colors.", line break, "Cannot force save ...".
inline std::string CannotForce256Message() {
    return std::string(kTrueColorOver256) + kCrLf + kCannotForce256;
}
// "Reminder:  The original icon file ...", two line breaks, " If you don't wish ...".
inline std::string MultiIconReminderMessage() {
    return std::string(kMultiIconReminder) + kCrLf + kCrLf + kMultiIconAdvice;
}

}  // namespace vexlo::files
