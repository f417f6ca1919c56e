#include "gui/ani/film_view.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace vexlo::gui {

FilmView::FilmView(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void FilmView::ConvertCell(const session::AniFilm& film, int cell) {
    const surface::Surface& picture = film.Picture();
    const int top = (cell - 1) * session::kFilmCellHeight;
    for (int y = top; y < top + session::kFilmCellHeight && y < picture.Height(); ++y) {
        const surface::Color* in = picture.Row(y);
        QRgb* out = reinterpret_cast<QRgb*>(m_image.scanLine(y));
        for (int x = 0; x < picture.Width(); ++x)
            out[x] = qRgb(surface::RedOf(in[x]), surface::GreenOf(in[x]), surface::BlueOf(in[x]));
    }
    m_cellRevision[static_cast<std::size_t>(cell - 1)] = film.CellRevision(cell);
    ++m_cellsConverted;
}

void FilmView::Sync(const session::AniFilm& film) {
    const int cells = film.Cells();
    if (film.LayoutRevision() != m_layoutRevision || m_image.height() != film.Picture().Height()) {
        m_layoutRevision = film.LayoutRevision();
        m_image = QImage(film.Picture().Width(), film.Picture().Height(), QImage::Format_RGB32);
        m_cellRevision.assign(static_cast<std::size_t>(cells), 0);
        for (int cell = 1; cell <= cells; ++cell) ConvertCell(film, cell);
        resize(m_image.size());
        update();
        return;
    }
    for (int cell = 1; cell <= cells; ++cell) {
        if (film.CellRevision(cell) == m_cellRevision[static_cast<std::size_t>(cell - 1)]) continue;
        ConvertCell(film, cell);
        update(0, (cell - 1) * session::kFilmCellHeight, session::kFilmCellWidth, session::kFilmCellHeight);
    }
}

void FilmView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRect exposed = event->rect();
    painter.drawImage(exposed.topLeft(), m_image, exposed);
}

void FilmView::mousePressEvent(QMouseEvent*) { emit Pressed(); }

void FilmView::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint p = event->position().toPoint();
    if (event->button() == Qt::LeftButton && rect().contains(p)) emit Released(p.x(), p.y());
}

}  // namespace vexlo::gui
