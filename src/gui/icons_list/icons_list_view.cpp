#include "gui/icons_list/icons_list_view.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

namespace vexlo::gui {

IconsListView::IconsListView(const surface::Surface* picture, QWidget* parent)
    : QWidget(parent), m_picture(picture) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(picture->Width(), picture->Height());
}

void IconsListView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRect area = event->rect().intersected(QRect(0, 0, m_picture->Width(), m_picture->Height()));
    if (area.isEmpty()) return;
    QImage part(area.size(), QImage::Format_RGB32);
    for (int y = 0; y < area.height(); ++y) {
        const surface::Color* in = m_picture->Row(area.top() + y) + area.left();
        QRgb* out = reinterpret_cast<QRgb*>(part.scanLine(y));
        for (int x = 0; x < area.width(); ++x)
            out[x] = qRgb(surface::RedOf(in[x]), surface::GreenOf(in[x]), surface::BlueOf(in[x]));
    }
    painter.drawImage(area.topLeft(), part);
}

void IconsListView::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint p = event->position().toPoint();
    emit Released(event->button(), p.x(), p.y());
}

void IconsListView::wheelEvent(QWheelEvent* event) {
    const int steps = event->angleDelta().y() / 120;
    if (steps != 0) emit Wheeled(steps);
    event->accept();
}

}  // namespace vexlo::gui
