#pragma once
// The animated cursor frame session of the main window: the frames (AniFrames, AniImages,
// AniMasks), the selected frame, what made the session, whether its frames are saved, the
// film strip, the animation test, and the controls of its container (picANIContainer) as the
// window draws them. The session's front door runs the flows that also touch the Editing
// Area, the dialogs and the files (session_ani*.cpp); the steps here touch only this part.
//
// Frames are counted from 1 as the film shows them: frame i has AniImages[i], AniMasks[i] and
// row i - 1 of AniFrames.
#include <array>
#include <cstdint>
#include <string>

#include "core/ani/ani_frames.h"
#include "core/session/ani_frames/ani_container.h"
#include "core/session/ani_frames/ani_film.h"
#include "core/session/ani_frames/ani_test.h"

namespace vexlo::session {

// AniSessionKind.
enum class AniKind { None = 0, New = 1, FromFile = 2 };

// The pointer on the session's controls: pressed and released on picFilm, pressed, moved
// (held) and double-clicked on picANIContainer(0), a click on imgANI.
enum class AniPointer { FilmPress, FilmRelease, ContainerPress, ContainerDrag, ContainerDoubleClick, ImgAniClick };

// The buttons cmdANI(0..19).
inline constexpr int kAniButtonCount = 20;
inline constexpr int kAniDefaultJiffies = 30;
inline constexpr int kAniMaxJiffies = 90;
inline constexpr int kAniMaxHotSpot = 31;

// The boxes that the user sets: cboANI(0) the jiffies (1 to 90), cboANI(1) and cboANI(2) the
// hot spot (0 to 31), ckbJIFSinglely. They are read only at Set, New and Save.
struct AniBoxes {
    int Jiffies = kAniDefaultJiffies;
    int HotX = 0;
    int HotY = 0;
    bool Singly = false;
};

class AniSession {
public:
    AniSession();

    // --- The container ---------------------------------------------------------------------
    bool ContainerVisible() const { return m_containerVisible; }
    void ShowContainer() { m_containerVisible = true; }
    void HideContainer() { m_containerVisible = false; }
    const AniContainer& Container() const { return m_container; }
    AniContainer& Container() { return m_container; }

    // --- State ------------------------------------------------------------------------------
    const ani::AniFrameSet& Frames() const { return m_set; }
    int FrameCount() const { return m_set.FrameCount(); }  // N
    int CurrentFrame() const { return m_current; }         // AniCurrentFrame, 0 with no frames
    // The row of the current frame; null when there is none.
    const ani::AniFrameRecord* CurrentRow() const;
    AniKind Kind() const { return m_kind; }
    bool Dirty() const { return m_dirty; }  // AniDirty
    void SetDirty(bool dirty) { m_dirty = dirty; }
    const std::string& FileName() const { return m_fileName; }  // AniFileName
    void SetFileName(const std::string& path) { m_fileName = path; }
    ani::AniTempFiles& TempFiles() { return m_tempFiles; }
    const ani::AniTempFiles& TempFiles() const { return m_tempFiles; }
    ani::AniFrameSet& MutableFrames() { return m_set; }

    const AniBoxes& Boxes() const { return m_boxes; }
    // cboANI(k) set to value (kept within its list), ckbJIFSinglely ticked or not.
    void SetBox(int k, int value);
    void SetSingly(bool checked) { m_boxes.Singly = checked; }
    // lblANI(0) "Frame:  i / N" and lblANI(1) "Jiffies:  j".
    const std::array<std::string, 2>& Labels() const { return m_labels; }
    bool ButtonEnabled(int k) const;
    void SetButtonEnabled(int k, bool enabled);

    const AniFilm& Film() const { return m_film; }
    AniFilm& Film() { return m_film; }
    const AniTest& Test() const { return m_test; }
    AniTest& Test() { return m_test; }

    // --- Steps ------------------------------------------------------------------------------
    // ResetAniFrames: AniImages and AniMasks hold entry 0 alone.
    void ResetAniFrames() { m_set.ResetPictures(0); }
    // ResetAniSession's steps on this part: container at full size, not dirty, no frames, the
    // labels and picFilm and picANITest cleared, the scroll bar at 0, Save, Set and Test
    // disabled, the test stopped, kind 0, no current frame, one empty row and one empty name.
    void Reset();
    // New: one frame, wholly transparent, of the jiffies in cboANI(0); kind 1, frame 1
    // selected; Save, Set and Test enabled as the rules allow; not dirty.
    void StartNew();
    // A file's frames loaded from path: kind 2, frame 1 selected, the film at its top, the hot
    // spot boxes set from row 0.
    void TakeLoaded(ani::AniFrameSet&& set, const std::string& path);
    // InsertAniFrame: a wholly transparent frame at position (1 to N + 1), the later frames a
    // place on. The rows are left to the caller. False for a position outside.
    bool InsertAniFrame(int position);
    // StoreAniFrame: the pictures of frame n replaced, each source taken at 32x32. False when
    // n isn't a frame.
    bool StoreAniFrame(int n, const surface::Surface& image, const surface::Surface& mask);
    // Add below (after) or above (before) the current frame, the new frame selected and its
    // row taking its timing from a neighbour. Nothing changes at 70 frames or with no frame.
    enum class AddResult { Added, AtLimit, NoFrame };
    AddResult Add(bool above);
    // Remove the current frame; with none left the session is reset.
    void RemoveCurrent();
    // Shift the current frame a place up or down, rows and pictures swapped, the selection
    // following it. False at the end it would leave.
    bool Shift(bool up);
    // Select the frame above or below. False at the ends.
    bool Go(bool up);
    // Set: the jiffies of cboANI(0) into every row, or with ckbJIFSinglely into the current
    // row only. False when there is no current frame.
    bool SetJiffies();
    // A release on the film at y: the frame under it selected. False when y lies on no frame.
    bool SelectFromFilm(int y);
    // RebuildFilm: the film of the frames as they are now; with no frames, Reset.
    void RebuildFilm();
    void MarkFrame(int n) { if (n >= 1 && n <= FrameCount()) m_film.Mark(n); }
    void UnmarkFrame(int n) { if (n >= 1 && n <= FrameCount()) m_film.Unmark(n); }
    void ScrollCurrentIntoView() { m_film.ScrollIntoView(m_current); }
    void RefreshLabels();
    // The button states: with no session or no frames the test stops and cmdANI(10..19) are
    // disabled; else Test with two frames or more, 10 to 15, and the upward and downward
    // buttons where the current frame has a neighbour that way.
    void RefreshButtons();
    // EnableAniCommands: Save, Set and Test enabled or not; disabling also stops the test.
    void EnableAniCommands(bool enabled);

private:
    ani::AniFrameSet m_set;
    ani::AniTempFiles m_tempFiles;
    int m_current = 0;
    AniKind m_kind = AniKind::None;
    bool m_dirty = false;
    std::string m_fileName;
    bool m_containerVisible = false;
    AniContainer m_container;
    AniBoxes m_boxes;
    std::array<std::string, 2> m_labels;
    std::array<bool, kAniButtonCount> m_enabled{};
    AniFilm m_film;
    AniTest m_test;
};

}  // namespace vexlo::session
