#pragma once
// The texts of the animated cursor session: its questions, refusals and the frame's facts.
// Those of reading and writing the file stand in core/ani/ani_frames.h.
#include <string>

#include "core/ani/ani_frames.h"

namespace vexlo::session {

inline constexpr const char* kAniDiscardQuestion = "Without saving frames to file first?\r\n\r\n";
inline constexpr const char* kAniTerminateQuestion = "Terminate animated cursor session?\r\n";
inline constexpr const char* kAniOnly32Question =
    "Animated cursor session for 32x32 icons only\r\nTerminate animated cursor session?\r\n";
inline constexpr const char* kAniJiffiesSetForAll = "Jiffies set (for all frames)";
inline constexpr const char* kAniNoAlphaIcon = "Not allowed to load an icon with Alpha Channel";
inline constexpr const char* kAniNoIconLoaded = "No icon loaded in Editing Area yet";
inline constexpr const char* kAniIconNot32 = "Icon in Editing Area is not 32x32";
inline constexpr const char* kAniMultiIconFile = "This file is a multi-icon file.  Please load single-icon file only";
inline constexpr const char* kAniSizeNot32 = "Size not of 32x32";
inline constexpr const char* kAniNo32BppIcon = "Cannot load a 32 BPP True Color icon";
inline constexpr const char* kAniIcoFilter = "Icon files (*.ico)|*.ico|";
inline constexpr const char* kAniFramePrefix = "FromAni_";
inline constexpr const char* kLoadIconFileToFrameLabel = "LoadIconFileToFrame";

// "Maximum 70 frames reached".
inline std::string AniMaximumMessage() {
    return "Maximum " + std::to_string(ani::kAniFrameLimit) + " frames reached";
}

// The facts of Frame property, each line followed by an empty one.
inline std::string AniFramePropertyText(int frame, int jiffies, int total, int hotX, int hotY) {
    const std::string gap = "\r\n\r\n";
    return "Frame No:    " + std::to_string(frame) + gap + "Jiffies:    " + std::to_string(jiffies) + gap +
           "--------------------     " + gap + "Total Frames:   " + std::to_string(total) + gap +
           "Hot spot:    [" + std::to_string(hotX) + ", " + std::to_string(hotY) + "]" + gap;
}

}  // namespace vexlo::session
