#include "gui/platform/surface_view.h"

#include <QMouseEvent>
#include <QPainter>

#include "gui/platform/image_convert.h"

namespace vexlo::gui {

SurfaceView::SurfaceView(const surface::Surface* surface, QWidget* parent)
    : QWidget(parent), m_surface(surface) {
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setMouseTracking(true);
}

void SurfaceView::SetSurface(const surface::Surface* surface) {
    m_surface = surface;
    update();
}

QSize SurfaceView::sizeHint() const {
    return m_surface ? QSize(m_surface->Width(), m_surface->Height()) : QSize(0, 0);
}

QPoint SurfaceView::Origin() const {
    if (!m_centred || !m_surface) return {0, 0};
    return {(width() - m_surface->Width()) / 2, (height() - m_surface->Height()) / 2};
}

void SurfaceView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    if (m_surface && m_surface->Width() > 0 && m_surface->Height() > 0)
        painter.drawImage(QRect(Origin(), sizeHint()), platform::ToQImage(*m_surface));
}

void SurfaceView::mousePressEvent(QMouseEvent* event) {
    const QPoint p = event->position().toPoint() - Origin();
    emit Pressed(event->button(), event->modifiers(), p.x(), p.y());
}

void SurfaceView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint p = event->position().toPoint() - Origin();
    emit Moved(event->buttons(), event->modifiers(), p.x(), p.y());
}

void SurfaceView::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint p = event->position().toPoint() - Origin();
    emit Released(event->button(), event->modifiers(), p.x(), p.y());
    if (event->button() != Qt::LeftButton) return;
    if (m_releaseEndsDoubleClick) {
        m_releaseEndsDoubleClick = false;
        return;
    }
    if (rect().contains(event->position().toPoint())) emit Clicked();
}

void SurfaceView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    m_releaseEndsDoubleClick = true;
    emit DoubleClicked();
}

}  // namespace vexlo::gui
