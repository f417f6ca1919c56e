#pragma once
// The steps of the animated cursor session's flows (session_ani*.cpp). They reach the session's
// parts as its own operations do, without each standing in the session's front door.
#include <string>

#include "core/session/session.h"

namespace vexlo::session {

struct AniSteps {
    // The action of cmdANI(k); false when it stopped early.
    static bool RunAniAction(Session& s, int k);
    static void CloseAniSession(Session& s);
    static void ResetAniSession(Session& s);
    static void DeleteAniTempFiles(Session& s);
    static bool FileDialogOpenANI(Session& s);
    // A file's frames into the session; a file that fails leaves the frames as they were.
    static bool LoadAniFile(Session& s, const std::string& path);
    static bool SaveANIFile(Session& s);
    static bool LoadIconFileToFrame(Session& s);
    static bool AniFromEditingArea(Session& s);
    static bool AniToEditingArea(Session& s);
    static bool AddAniFrame(Session& s, bool above);
    static void RemoveAniFrame(Session& s);
};

}  // namespace vexlo::session
