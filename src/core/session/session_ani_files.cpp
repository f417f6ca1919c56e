// The animated cursor session and its files: opening an ANI file into the frames, saving the
// frames as one, and loading an icon file into the current frame.
#include <cerrno>
#include <utility>

#include "core/ani/ani_cursor.h"
#include "core/ani/ani_load.h"
#include "core/ani/ani_save.h"
#include "core/files/ico_messages.h"
#include "core/files/ico_probe.h"
#include "core/files/private_temp.h"
#include "core/session/ani_frames/ani_texts.h"
#include "core/session/session.h"

namespace vexlo::session {

bool Session::FileDialogOpenANI() {
    const std::string path = AskOpen(ani::kAniFileFilterOpen, ani::kAniDefaultExtension);
    if (path.empty()) return false;
    return LoadAniFile(path);
}

bool Session::LoadAniFile(const std::string& path) {
    const int count = ani::CountAniFrames(path);
    // The file is read into frames of its own: a file that fails leaves the session's frames
    // as they were.
    ani::AniFrameSet loaded;
    ani::AniLoadResult result;
    {
        host::Hourglass hourglass(m_host);
        result = ani::LoadAniFrames(path, count, loaded, [this] { LetPendingEventsRun(); });
    }
    if (!result) {
        m_host.MsgBox(result.Message, MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return false;
    }
    m_ani.TakeLoaded(std::move(loaded), path);
    m_form.Status.Panel[0] = path;
    return true;
}

bool Session::SaveANIFile() {
    const int n = m_ani.FrameCount();
    const auto& rows = m_ani.Frames().AniFrames;
    if (n < 1) {
        m_host.MsgBox(ani::kNoFramesPrepared, MsgButtons::Ok, MsgIcon::None, kTitle);
        return false;
    }
    if (static_cast<std::size_t>(n) != rows.size()) {
        m_host.MsgBox(ani::kImageCountDiscrepant, MsgButtons::Ok, MsgIcon::None, kTitle);
        return false;
    }
    const AniBoxes& boxes = m_ani.Boxes();
    const std::string question =
        ani::AniSaveQuestion(std::to_string(boxes.HotX), std::to_string(boxes.HotY), rows[0].HotX, rows[0].HotY);
    if (m_host.MsgBox(question, MsgButtons::YesNo, MsgIcon::Question, kTitle) != MsgAnswer::Yes) return false;

    utilities::SaveRequest dialog;
    dialog.FileName = ani::AniSaveProposedName(m_ani.FileName());
    dialog.Filter = ani::kAniFileFilterSave;
    dialog.DefaultExt = ani::kAniDefaultExtension;
    const std::string target = m_host.ShowSave(dialog);
    if (target.empty()) return false;

    ani::AniSaveRequest request;
    request.TargetPath = target;
    request.TempDir = files::PrivateTempDir(m_dirs.TempDir);
    request.HotX = boxes.HotX;
    request.HotY = boxes.HotY;
    request.KeepTrueColor = Current().ColorCount == -1 && Current().HasAlpha;
    request.Progress = [this](int percent) { ShowProgress(percent, true); };
    if (request.TempDir.empty()) {
        ReportError(ani::kSaveAniFaultLabel, EACCES, "No private folder can be made for the temporary frame files");
        return false;
    }
    ani::AniSaveResult result;
    {
        host::Hourglass hourglass(m_host);
        SetProgressVisible(true);
        m_ani.SetButtonEnabled(5, false);
        result = ani::SaveANIFile(m_ani.MutableFrames(), m_ani.TempFiles(), request);
        SetProgressVisible(false);
        m_ani.SetButtonEnabled(5, true);
    }
    switch (result.Outcome) {
        case ani::AniSaveOutcome::Saved:
            m_ani.SetFileName(target);
            m_form.Status.Panel[0] = target;
            return true;
        case ani::AniSaveOutcome::TempFileMissing:
            m_host.MsgBox(result.Message, MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
            return false;
        case ani::AniSaveOutcome::Fault:
            ReportError(ani::kSaveAniFaultLabel, result.Number, result.Message);
            return false;
        default:
            m_host.MsgBox(result.Message, MsgButtons::Ok, MsgIcon::None, kTitle);
            return false;
    }
}

bool Session::LoadIconFileToFrame() {
    const std::string path = AskOpen(kAniIcoFilter, "ico");
    if (path.empty()) return false;
    const files::ProbeAnswer probe = files::ProbeIconFile(path);
    const auto refuse = [this](const std::string& text, MsgIcon icon) {
        m_host.MsgBox(text, MsgButtons::Ok, icon, kTitle);
        return false;
    };
    if (probe.Kind == 0) return refuse(files::InvalidIconFileMessage(path), MsgIcon::Exclamation);
    if (probe.Usable == 0) return refuse(files::NoUsableIconMessage(path), MsgIcon::Information);
    if (probe.Kind == 2) return refuse(path + kCrLf + kAniMultiIconFile, MsgIcon::None);
    if (probe.Width != ani::kAniFrameSide)
        return refuse(path + kCrLf + kCrLf + kAniSizeNot32, MsgIcon::Exclamation);
    if (probe.Colors == -1 && probe.BitCount != 24 && probe.BitCount != 32)
        return refuse(files::TrueColorDepthMessage(path), MsgIcon::Information);
    if (probe.Colors == -1 && probe.BitCount == 32) return refuse(path + kCrLf + kAniNo32BppIcon, MsgIcon::Information);

    // The icon drawn as the platform draws it: onto white, and its mask onto black.
    ani::AniCursor icon;
    std::string why;
    surface::Surface image(ani::kAniFrameSide, ani::kAniFrameSide, kWhite);
    surface::Surface mask(ani::kAniFrameSide, ani::kAniFrameSide, kBlack);
    if (!ani::LoadAniCursor(path, icon, &why) || !icon.Draw(image, 0, 0, ani::CursorDraw::Normal, 0) ||
        !icon.Draw(mask, 0, 0, ani::CursorDraw::Mask, 0)) {
        ReportError(kLoadIconFileToFrameLabel, EINVAL, why.empty() ? "The icon can't be drawn" : why);
        return false;
    }
    const int n = m_ani.CurrentFrame();
    if (!m_ani.StoreAniFrame(n, image, mask)) return false;
    auto& rows = m_ani.MutableFrames().AniFrames;
    if (static_cast<std::size_t>(n) <= rows.size()) rows[static_cast<std::size_t>(n - 1)].PictureIndex = 0;
    m_ani.RebuildFilm();
    m_ani.MarkFrame(n);
    m_ani.SetDirty(true);
    return true;
}

}  // namespace vexlo::session
