#include "core/session/ani_frames/ani_session.h"

#include <algorithm>
#include <utility>

namespace vexlo::session {

namespace {

using ani::AniFrameRecord;
using surface::Surface;

constexpr int kSide = ani::kAniFrameSide;

// A picture at 32x32: the source's pixels where it has them, white elsewhere.
Surface AtFrameSize(const Surface& source) {
    Surface s(kSide, kSide, 0xFFFFFF);
    surface::BitBlt(s, 0, 0, kSide, kSide, source, 0, 0, surface::Rop::SrcCopy);
    s.StorePicture();
    return s;
}

}  // namespace

AniSession::AniSession() {
    m_enabled.fill(true);
    Reset();
}

const AniFrameRecord* AniSession::CurrentRow() const {
    if (m_current < 1 || m_current > FrameCount() || static_cast<std::size_t>(m_current) > m_set.AniFrames.size())
        return nullptr;
    return &m_set.AniFrames[static_cast<std::size_t>(m_current - 1)];
}

void AniSession::SetBox(int k, int value) {
    if (k == 0) m_boxes.Jiffies = std::clamp(value, 1, kAniMaxJiffies);
    if (k == 1) m_boxes.HotX = std::clamp(value, 0, kAniMaxHotSpot);
    if (k == 2) m_boxes.HotY = std::clamp(value, 0, kAniMaxHotSpot);
}

bool AniSession::ButtonEnabled(int k) const {
    return k >= 0 && k < kAniButtonCount && m_enabled[static_cast<std::size_t>(k)];
}

void AniSession::SetButtonEnabled(int k, bool enabled) {
    if (k >= 0 && k < kAniButtonCount) m_enabled[static_cast<std::size_t>(k)] = enabled;
}

void AniSession::Reset() {
    m_container.Restore();
    m_dirty = false;
    ResetAniFrames();
    m_labels = {};
    m_film.ClearTo(1);
    m_film.RefreshScroll();
    EnableAniCommands(false);  // stops the test and clears picANITest
    m_kind = AniKind::None;
    m_current = 0;
    RefreshButtons();
    m_tempFiles.assign(1, std::string());
    m_set.AniFrames.assign(1, AniFrameRecord{});
    m_set.AniFileBuffer.clear();
    m_set.AniFileBuffer.shrink_to_fit();
}

void AniSession::StartNew() {
    m_set.AniFrames.assign(1, AniFrameRecord{static_cast<std::int16_t>(m_boxes.Jiffies), 0, 0, 0});
    m_test.Stop();
    m_film.ClearTo(1);
    ResetAniFrames();
    InsertAniFrame(1);
    m_kind = AniKind::New;
    m_film.RefreshScroll();
    m_current = 1;
    MarkFrame(1);
    RefreshLabels();
    EnableAniCommands(true);
    RefreshButtons();  // Test needs two frames
    m_dirty = false;
}

void AniSession::TakeLoaded(ani::AniFrameSet&& set, const std::string& path) {
    m_set = std::move(set);
    m_film.Rebuild(m_set);
    m_kind = AniKind::FromFile;
    m_current = 1;
    MarkFrame(1);
    m_film.SetScrollValue(0);
    RefreshLabels();
    EnableAniCommands(true);
    RefreshButtons();
    m_fileName = path;
    if (!m_set.AniFrames.empty()) {
        SetBox(1, m_set.AniFrames[0].HotX);
        SetBox(2, m_set.AniFrames[0].HotY);
    }
}

bool AniSession::InsertAniFrame(int position) {
    const int n = FrameCount();
    if (position < 1 || position > n + 1) return false;
    const Surface white = AtFrameSize(Surface());
    m_set.AniImages.insert(m_set.AniImages.begin() + position, white);
    m_set.AniMasks.insert(m_set.AniMasks.begin() + position, white);
    return true;
}

bool AniSession::StoreAniFrame(int n, const Surface& image, const Surface& mask) {
    if (n < 1 || n > FrameCount()) return false;
    m_set.AniImages[static_cast<std::size_t>(n)] = AtFrameSize(image);
    m_set.AniMasks[static_cast<std::size_t>(n)] = AtFrameSize(mask);
    return true;
}

AniSession::AddResult AniSession::Add(bool above) {
    const int n = FrameCount();
    if (n >= ani::kAniFrameLimit) return AddResult::AtLimit;
    if (m_current < 1 || m_current > n) return AddResult::NoFrame;
    auto& rows = m_set.AniFrames;
    rows.resize(static_cast<std::size_t>(n));
    rows.push_back(AniFrameRecord{});
    // The row of the new frame, at index `at`, starts as a copy of the current frame's row.
    const int at = above ? m_current - 1 : m_current;
    InsertAniFrame(at + 1);
    for (int j = n; j > at; --j) rows[static_cast<std::size_t>(j)] = rows[static_cast<std::size_t>(j - 1)];
    AniFrameRecord& added = rows[static_cast<std::size_t>(at)];
    added = rows[static_cast<std::size_t>(m_current - 1)];
    if (above && at > 0) added = rows[static_cast<std::size_t>(at - 1)];
    added.PictureIndex = 0;
    if (!above) ++m_current;

    m_film.RefreshScroll();
    RebuildFilm();
    RefreshButtons();
    MarkFrame(m_current);
    RefreshLabels();
    m_dirty = true;
    return AddResult::Added;
}

void AniSession::RemoveCurrent() {
    const int n = FrameCount();
    if (n < 1) {
        Reset();
        return;
    }
    if (m_current < 1 || m_current > n) return;
    auto& rows = m_set.AniFrames;
    if (rows.size() > 1 && static_cast<std::size_t>(m_current) <= rows.size())
        rows.erase(rows.begin() + (m_current - 1));
    m_set.AniImages.erase(m_set.AniImages.begin() + m_current);
    m_set.AniMasks.erase(m_set.AniMasks.begin() + m_current);
    const int left = n - 1;
    if (left == 1) m_current = 1;
    if (left < m_current) m_current = left;
    RebuildFilm();  // resets the session when no frame is left
    RefreshLabels();
    MarkFrame(m_current);
    m_dirty = left > 0;
}

bool AniSession::Shift(bool up) {
    const int n = FrameCount();
    if (m_current < 1 || m_current > n) return false;
    if (up ? m_current == 1 : m_current == n) return false;
    const int other = up ? m_current - 1 : m_current + 1;
    if (static_cast<std::size_t>(std::max(other, m_current)) > m_set.AniFrames.size()) return false;
    std::swap(m_set.AniImages[static_cast<std::size_t>(m_current)], m_set.AniImages[static_cast<std::size_t>(other)]);
    std::swap(m_set.AniMasks[static_cast<std::size_t>(m_current)], m_set.AniMasks[static_cast<std::size_t>(other)]);
    std::swap(m_set.AniFrames[static_cast<std::size_t>(m_current - 1)],
              m_set.AniFrames[static_cast<std::size_t>(other - 1)]);
    m_current = other;
    RebuildFilm();
    RefreshButtons();
    MarkFrame(m_current);
    RefreshLabels();
    m_dirty = true;
    return true;
}

bool AniSession::Go(bool up) {
    const int n = FrameCount();
    if (m_current < 1 || m_current > n) return false;
    if (up ? m_current == 1 : m_current == n) return false;
    UnmarkFrame(m_current);
    m_current += up ? -1 : 1;
    MarkFrame(m_current);
    RefreshLabels();
    return true;
}

bool AniSession::SetJiffies() {
    if (!CurrentRow()) return false;
    const auto jiffies = static_cast<std::int16_t>(m_boxes.Jiffies);
    if (m_boxes.Singly)
        m_set.AniFrames[static_cast<std::size_t>(m_current - 1)].Jiffies = jiffies;
    else
        for (AniFrameRecord& row : m_set.AniFrames) row.Jiffies = jiffies;
    RefreshLabels();
    m_dirty = true;
    return true;
}

bool AniSession::SelectFromFilm(int y) {
    const int n = FrameCount();
    if (n < 1 || y < 0) return false;
    const int frame = y / kFilmCellHeight + 1;
    if (frame > n) return false;
    UnmarkFrame(m_current);
    m_current = frame;
    RefreshLabels();
    MarkFrame(frame);
    RefreshButtons();
    return true;
}

void AniSession::RebuildFilm() {
    if (FrameCount() < 1) {
        Reset();
        return;
    }
    m_film.Rebuild(m_set);
}

void AniSession::RefreshLabels() {
    const AniFrameRecord* row = CurrentRow();
    if (!row) {
        m_labels = {};
        return;
    }
    m_labels[0] = "Frame:  " + std::to_string(m_current) + " / " + std::to_string(FrameCount());
    m_labels[1] = "Jiffies:  " + std::to_string(row->Jiffies);
}

void AniSession::RefreshButtons() {
    const int n = FrameCount();
    auto enable = [this](int k, bool on) { m_enabled[static_cast<std::size_t>(k)] = on; };
    if (m_kind == AniKind::None || n < 1) {
        m_test.Stop();
        for (int k = 10; k <= 19; ++k) enable(k, false);
        return;
    }
    enable(8, n >= 2);
    for (int k = 10; k <= 15; ++k) enable(k, true);
    const bool up = n >= 2 && m_current != 1;
    const bool down = n >= 2 && m_current != n;
    enable(16, up);
    enable(18, up);
    enable(17, down);
    enable(19, down);
}

void AniSession::EnableAniCommands(bool enabled) {
    for (const int k : {5, 7, 8}) m_enabled[static_cast<std::size_t>(k)] = enabled;
    if (!enabled) m_test.Stop();
}

}  // namespace vexlo::session
