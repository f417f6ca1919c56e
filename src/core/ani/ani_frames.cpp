#include "core/ani/ani_frames.h"

#include "core/files/atomic_file.h"

namespace vexlo::ani {

void AniFrameSet::Clear() {
    AniFrames.clear();
    AniImages.clear();
    AniMasks.clear();
    AniFileBuffer.clear();
    AniFileBuffer.shrink_to_fit();
}

void AniFrameSet::ResetPictures(int n) {
    const surface::Surface white(kAniFrameSide, kAniFrameSide, 0xFFFFFF);
    const std::size_t entries = n < 0 ? 1 : static_cast<std::size_t>(n) + 1;
    AniImages.assign(entries, white);
    AniMasks.assign(entries, white);
}

std::string AniSaveQuestion(const std::string& boxX, const std::string& boxY, int rowHotX, int rowHotY) {
    const auto hotSpot = [](const std::string& x, const std::string& y) {
        return "   Hot spot:  [" + x + ", " + y + "]" + kAniCrLf;
    };
    const std::string rule = std::string("-------------------------------") + kAniCrLf;
    return std::string("To save:") + kAniCrLf + kAniCrLf + hotSpot(boxX, boxY) + kAniCrLf + rule +
           "The following is existing data which will" + kAniCrLf + "be changed accordingly if required:" +
           kAniCrLf + hotSpot(std::to_string(rowHotX), std::to_string(rowHotY)) + rule + kAniCrLf + kAniCrLf +
           "Confirm OK?" + kAniCrLf + kAniCrLf;
}

std::string AniSaveProposedName(const std::string& fileName) {
    return fileName.find('.') != std::string::npos ? files::SplitFileSpec(fileName, 3) : fileName;
}

}  // namespace vexlo::ani
