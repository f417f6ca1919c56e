#pragma once
// A widget that shows one Surface at real size, top left, on its own back color, and reports
// the pointer in the Surface's pixels. It holds a pointer to the Surface and no pixels.
#include <QWidget>

#include "core/surface/surface.h"

namespace vexlo::gui {

class SurfaceView : public QWidget {
    Q_OBJECT
public:
    explicit SurfaceView(const surface::Surface* surface, QWidget* parent = nullptr);

    void SetSurface(const surface::Surface* surface);
    const surface::Surface* SurfaceShown() const { return m_surface; }
    // Shows the Surface centred in the widget instead of at the top left.
    void SetCentred(bool centred) { m_centred = centred; }
    QSize sizeHint() const override;

signals:
    void Pressed(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, int x, int y);
    void Moved(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers, int x, int y);
    void Released(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, int x, int y);
    void Clicked();
    void DoubleClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QPoint Origin() const;

    const surface::Surface* m_surface = nullptr;
    bool m_centred = false;
    bool m_releaseEndsDoubleClick = false;  // a double click gives one Click, not two
};

}  // namespace vexlo::gui
