#pragma once
// picFilm on the screen: the film strip drawn from a copy of the session's picture that is
// brought up to date cell by cell. A cell is converted again only when its revision in the
// session has grown, and only its rectangle is repainted; a change of the film's height
// converts the whole film once. Painting copies only the part that is exposed.
#include <QImage>
#include <QWidget>
#include <cstdint>
#include <vector>

#include "core/session/ani_frames/ani_film.h"

namespace vexlo::gui {

class FilmView : public QWidget {
    Q_OBJECT
public:
    explicit FilmView(QWidget* parent = nullptr);

    // Takes what changed in film since the last call; the widget takes the film's size.
    void Sync(const session::AniFilm& film);
    // Cells converted since the view was made (a measure for tests of what was redrawn).
    int CellsConverted() const { return m_cellsConverted; }

signals:
    void Pressed();
    void Released(int x, int y);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void ConvertCell(const session::AniFilm& film, int cell);

    QImage m_image;
    std::uint64_t m_layoutRevision = 0;
    std::vector<std::uint64_t> m_cellRevision;
    int m_cellsConverted = 0;
};

}  // namespace vexlo::gui
