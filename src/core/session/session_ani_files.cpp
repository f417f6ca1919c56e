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
#include "core/session/session_ani_steps.h"

namespace vexlo::session {

bool AniSteps::FileDialogOpenANI(Session& s) {
    const std::string path = s.AskOpen(ani::kAniFileFilterOpen, ani::kAniDefaultExtension);
    if (path.empty()) return false;
    return LoadAniFile(s, path);
}

bool AniSteps::LoadAniFile(Session& s, const std::string& path) {
    const int count = ani::CountAniFrames(path);
    // The file is read into frames of its own: a file that fails leaves the session's frames
    // as they were.
    ani::AniFrameSet loaded;
    ani::AniLoadResult result;
    {
        host::Hourglass hourglass(s.m_host);
        result = ani::LoadAniFrames(path, count, loaded, [&s] { s.LetPendingEventsRun(); });
    }
    if (!result) {
        s.m_host.MsgBox(result.Message, MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
        return false;
    }
    s.m_ani.TakeLoaded(std::move(loaded), path);
    s.m_form.Status.Panel[0] = path;
    return true;
}

bool AniSteps::SaveANIFile(Session& s) {
    const int n = s.m_ani.FrameCount();
    const auto& rows = s.m_ani.Frames().AniFrames;
    if (n < 1) {
        s.m_host.MsgBox(ani::kNoFramesPrepared, MsgButtons::Ok, MsgIcon::None, kTitle);
        return false;
    }
    if (static_cast<std::size_t>(n) != rows.size()) {
        s.m_host.MsgBox(ani::kImageCountDiscrepant, MsgButtons::Ok, MsgIcon::None, kTitle);
        return false;
    }
    const AniBoxes& boxes = s.m_ani.Boxes();
    const std::string question =
        ani::AniSaveQuestion(std::to_string(boxes.HotX), std::to_string(boxes.HotY), rows[0].HotX, rows[0].HotY);
    if (s.m_host.MsgBox(question, MsgButtons::YesNo, MsgIcon::Question, kTitle) != MsgAnswer::Yes) return false;

    utilities::SaveRequest dialog;
    dialog.FileName = ani::AniSaveProposedName(s.m_ani.FileName());
    dialog.Filter = ani::kAniFileFilterSave;
    dialog.DefaultExt = ani::kAniDefaultExtension;
    const std::string target = s.m_host.ShowSave(dialog);
    if (target.empty()) return false;

    ani::AniSaveRequest request;
    request.TargetPath = target;
    request.TempDir = files::PrivateTempDir(s.m_dirs.TempDir);
    request.HotX = boxes.HotX;
    request.HotY = boxes.HotY;
    request.KeepTrueColor = s.Current().ColorCount == -1 && s.Current().HasAlpha;
    request.Progress = [&s](int percent) { s.ShowProgress(percent, true); };
    if (request.TempDir.empty()) {
        s.ReportError(ani::kSaveAniFaultLabel, EACCES, "No private folder can be made for the temporary frame files");
        return false;
    }
    ani::AniSaveResult result;
    {
        host::Hourglass hourglass(s.m_host);
        s.SetProgressVisible(true);
        s.m_ani.SetButtonEnabled(5, false);
        result = ani::SaveANIFile(s.m_ani.MutableFrames(), s.m_ani.TempFiles(), request);
        s.SetProgressVisible(false);
        s.m_ani.SetButtonEnabled(5, true);
    }
    switch (result.Outcome) {
        case ani::AniSaveOutcome::Saved:
            s.m_ani.SetFileName(target);
            s.m_form.Status.Panel[0] = target;
            return true;
        case ani::AniSaveOutcome::TempFileMissing:
            s.m_host.MsgBox(result.Message, MsgButtons::Ok, MsgIcon::Exclamation, kTitle);
            return false;
        case ani::AniSaveOutcome::Fault:
            s.ReportError(ani::kSaveAniFaultLabel, result.Number, result.Message);
            return false;
        default:
            s.m_host.MsgBox(result.Message, MsgButtons::Ok, MsgIcon::None, kTitle);
            return false;
    }
}

bool AniSteps::LoadIconFileToFrame(Session& s) {
    const std::string path = s.AskOpen(kAniIcoFilter, "ico");
    if (path.empty()) return false;
    const files::ProbeAnswer probe = files::ProbeIconFile(path);
    const auto refuse = [&s](const std::string& text, MsgIcon icon) {
        s.m_host.MsgBox(text, MsgButtons::Ok, icon, kTitle);
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
        s.ReportError(kLoadIconFileToFrameLabel, EINVAL, why.empty() ? "The icon can't be drawn" : why);
        return false;
    }
    const int n = s.m_ani.CurrentFrame();
    if (!s.m_ani.StoreAniFrame(n, image, mask)) return false;
    auto& rows = s.m_ani.MutableFrames().AniFrames;
    if (static_cast<std::size_t>(n) <= rows.size()) rows[static_cast<std::size_t>(n - 1)].PictureIndex = 0;
    s.m_ani.RebuildFilm();
    s.m_ani.MarkFrame(n);
    s.m_ani.SetDirty(true);
    return true;
}

}  // namespace vexlo::session
