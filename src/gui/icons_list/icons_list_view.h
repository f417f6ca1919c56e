#pragma once
// picIconsList on the screen: the lot's Surface at real size, painted only where it shows
// through its viewport, so that a tall picture costs no more to repaint than the page on
// show. It reports the pointer's release in the picture's pixels, and the wheel.
#include <QWidget>

#include "core/surface/surface.h"

namespace vexlo::gui {

class IconsListView : public QWidget {
    Q_OBJECT
public:
    IconsListView(const surface::Surface* picture, QWidget* parent);

signals:
    void Released(Qt::MouseButton button, int x, int y);
    void Wheeled(int steps);  // positive: towards the top

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    const surface::Surface* m_picture;
};

}  // namespace vexlo::gui
