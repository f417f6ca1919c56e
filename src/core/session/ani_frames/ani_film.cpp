#include "core/session/ani_frames/ani_film.h"

#include <algorithm>

namespace vexlo::session {

namespace {

using surface::Color;
using surface::Surface;

constexpr Color kWhite = 0xFFFFFF;
// Below this a cell picture's pixel is drawn on the film; white and near white are left out.
constexpr Color kBandThreshold = 0xFFFFEE;
constexpr int kStripLeft = 4;
constexpr int kStripRight = kFilmCellWidth - 5;
constexpr int kHoleWidth = 3;
constexpr int kHoleHeight = 4;
constexpr int kHoleStep = 10;

// A cell picture: a black strip on the band, perforations along both edges of the strip and
// a window where the frame's picture lies.
Surface MakeOuterFrame(Color band) {
    Surface s(kFilmCellWidth, kFilmCellHeight, band);
    s.Fill(band);
    s.FillBox(kStripLeft, 0, kStripRight, kFilmCellHeight - 1, 0x000000);
    for (int y = 2; y + kHoleHeight <= kFilmCellHeight; y += kHoleStep) {
        s.FillBox(kStripLeft + 2, y, kStripLeft + 1 + kHoleWidth, y + kHoleHeight - 1, kWhite);
        s.FillBox(kStripRight - 1 - kHoleWidth, y, kStripRight - 2, y + kHoleHeight - 1, kWhite);
    }
    // The window lies exactly under the frame's picture.
    s.FillBox(kFilmPictureLeft, kFilmPictureTop, kFilmPictureLeft + ani::kAniFrameSide - 1,
              kFilmPictureTop + ani::kAniFrameSide - 1, kWhite);
    s.StorePicture();
    return s;
}

}  // namespace

AniFilm::AniFilm() : m_film(kFilmCellWidth, kFilmCellHeight, kWhite), m_cellRevision(1, 0) {
    m_outer[0] = MakeOuterFrame(kFilmBand);
    m_outer[1] = MakeOuterFrame(kFilmMarkBand);
    RefreshScroll();
}

std::uint64_t AniFilm::CellRevision(int cell) const {
    if (cell < 1 || cell > static_cast<int>(m_cellRevision.size())) return 0;
    return m_cellRevision[static_cast<std::size_t>(cell - 1)];
}

void AniFilm::SetHeight(int cells) {
    cells = std::max(cells, 1);
    m_film.Resize(kFilmCellWidth, cells * kFilmCellHeight);
    m_film.Clear();
    m_layoutRevision = ++m_nextRevision;
    m_cellRevision.assign(static_cast<std::size_t>(cells), m_layoutRevision);
}

template <typename Draw>
void AniFilm::ChangeCell(int n, Draw draw) {
    if (n < 1 || n > Cells()) return;
    const std::size_t cellPixels = static_cast<std::size_t>(kFilmCellWidth) * kFilmCellHeight;
    const Color* first = m_film.Row((n - 1) * kFilmCellHeight);
    const std::vector<Color> before(first, first + cellPixels);
    draw();
    if (!std::equal(before.begin(), before.end(), m_film.Row((n - 1) * kFilmCellHeight)))
        m_cellRevision[static_cast<std::size_t>(n - 1)] = ++m_nextRevision;
}

void AniFilm::ClearTo(int cells) {
    if (std::max(cells, 1) != Cells()) {
        SetHeight(cells);
        return;
    }
    for (int n = 1; n <= Cells(); ++n)
        ChangeCell(n, [&] { m_film.FillBox(0, (n - 1) * kFilmCellHeight, kFilmCellWidth - 1, n * kFilmCellHeight - 1, kWhite); });
}

void AniFilm::Rebuild(const ani::AniFrameSet& frames) {
    const int n = frames.FrameCount();
    if (std::max(n, 1) != Cells()) SetHeight(n);
    RefreshScroll();
    for (int i = 1; i <= n; ++i) {
        ChangeCell(i, [&] {
            const int top = (i - 1) * kFilmCellHeight;
            surface::BitBlt(m_film, 0, top, kFilmCellWidth, kFilmCellHeight, m_outer[0], 0, 0, surface::Rop::SrcCopy);
            surface::BitBlt(m_film, kFilmPictureLeft, top + kFilmPictureTop, ani::kAniFrameSide, ani::kAniFrameSide,
                            frames.AniImages[static_cast<std::size_t>(i)], 0, 0, surface::Rop::SrcCopy);
        });
    }
    m_film.StorePicture();
}

void AniFilm::DrawFrame(int i, const Surface& image) {
    ChangeCell(i, [&] {
        surface::BitBlt(m_film, kFilmPictureLeft, (i - 1) * kFilmCellHeight + kFilmPictureTop, ani::kAniFrameSide,
                        ani::kAniFrameSide, image, 0, 0, surface::Rop::SrcCopy);
    });
}

void AniFilm::DrawBand(int n, const Surface& outer) {
    ChangeCell(n, [&] {
        const int top = (n - 1) * kFilmCellHeight;
        for (int x = 0; x < kFilmCellWidth; ++x) {
            for (int y = 0; y < kFilmCellHeight; ++y) {
                const Color c = outer.GetPixel(x, y);
                if (c < kBandThreshold) m_film.SetPixelV(x, top + y, c);
            }
        }
    });
    m_film.StorePicture();
}

void AniFilm::RefreshScroll() {
    const int max = m_film.Height() - kSeriesBaseHeight + 2;
    if (max < 1) {
        m_scroll.Max = 0;
    } else {
        m_scroll.Max = max;
        m_scroll.SmallChange = kFilmCellHeight;
        m_scroll.LargeChange = kSeriesBaseHeight;
    }
    m_scroll.Value = std::clamp(m_scroll.Value, 0, m_scroll.Max);
}

void AniFilm::SetScrollValue(int value) { m_scroll.Value = std::clamp(value, 0, m_scroll.Max); }

void AniFilm::ScrollIntoView(int n) {
    const int bottom = kFilmCellHeight * n;
    if (bottom <= kSeriesBaseHeight)
        m_scroll.Value = 0;
    else
        m_scroll.Value = std::min(bottom - kSeriesBaseHeight + 2, m_scroll.Max);
}

}  // namespace vexlo::session
