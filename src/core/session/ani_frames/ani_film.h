#pragma once
// picFilm, the film strip of the animated cursor session: one cell of 60x50 pixels per frame,
// frame i (from 1) in the cell from y = 50 (i - 1), its picture at (13, 50 (i - 1) + 8). The
// cells are drawn from two cell pictures (picOuterFrame): a black strip with white
// perforations and a white window for the picture, in a band of light gray, or of blue for
// the selected frame. The film moves up and down inside its viewport (picANISeriesBase) by
// the value of the scroll bar VsrANISeries.
//
// The window shows the film from a copy that it brings up to date cell by cell: every cell
// has a revision that grows when its pixels change, and the layout revision grows when the
// film's height changes, so that only what changed is drawn again.
#include <cstdint>
#include <vector>

#include "core/ani/ani_frames.h"
#include "core/surface/surface.h"

namespace vexlo::session {

inline constexpr int kFilmCellWidth = 60;
inline constexpr int kFilmCellHeight = 50;
inline constexpr int kFilmPictureLeft = 13;
inline constexpr int kFilmPictureTop = 8;
inline constexpr surface::Color kFilmBand = 0xE0E0E0;
inline constexpr surface::Color kFilmMarkBand = 0xFF0000;  // pure blue
// The height of the viewport: five cells and its border.
inline constexpr int kSeriesBaseHeight = 5 * kFilmCellHeight + 2;

// The scroll bar of the film.
struct SeriesScroll {
    int Max = 0;
    int Value = 0;
    int SmallChange = 1;
    int LargeChange = 1;
};

class AniFilm {
public:
    AniFilm();

    const surface::Surface& Picture() const { return m_film; }
    // picOuterFrame(0) (unmarked) and (1) (marked).
    const surface::Surface& OuterFrame(int k) const { return m_outer[k == 0 ? 0 : 1]; }
    int Cells() const { return m_film.Height() / kFilmCellHeight; }
    const SeriesScroll& Scroll() const { return m_scroll; }
    // The top of the film inside its viewport.
    int Top() const { return -m_scroll.Value; }

    // Cleared to white at the height of n cells (at least one).
    void ClearTo(int cells);
    // RebuildFilm with frames: height 50 N, the band of every cell, each frame's image in its
    // window. Cells left as they were keep their revisions.
    void Rebuild(const ani::AniFrameSet& frames);
    // The image of frame i copied into its window.
    void DrawFrame(int i, const surface::Surface& image);
    // MarkFrame and UnmarkFrame: the marked or the unmarked band drawn over cell n; the cell
    // picture's white is left out, so that the frame's picture stays. Nothing for n outside
    // the film.
    void Mark(int n) { DrawBand(n, m_outer[1]); }
    void Unmark(int n) { DrawBand(n, m_outer[0]); }

    // The scroll bar brought to the film's height; the value is kept within the new maximum.
    void RefreshScroll();
    // A change or scroll of VsrANISeries.
    void SetScrollValue(int value);
    // Frame n scrolled into view: at the top when it shows there without scrolling, else with
    // its cell's bottom at the viewport's bottom.
    void ScrollIntoView(int n);

    // What changed since the window last drew the film.
    std::uint64_t LayoutRevision() const { return m_layoutRevision; }
    std::uint64_t CellRevision(int cell) const;

private:
    // Cell n (from 1) drawn by draw; its revision grows only if its pixels changed.
    template <typename Draw>
    void ChangeCell(int n, Draw draw);
    void DrawBand(int n, const surface::Surface& outer);
    void SetHeight(int cells);

    surface::Surface m_film;
    surface::Surface m_outer[2];
    SeriesScroll m_scroll;
    std::vector<std::uint64_t> m_cellRevision;
    std::uint64_t m_layoutRevision = 1;
    std::uint64_t m_nextRevision = 1;
};

}  // namespace vexlo::session
