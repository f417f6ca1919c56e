#pragma once
// frmVexloCapture: a borderless form over the whole screen that shows the screen as it was
// when the form loaded and the box that the pointer moves over it; a release of the left
// button takes the square inside the box, any other button (or Escape) leaves without one.
// It draws itself from session::CaptureBox.
#include <QDialog>
#include <QImage>
#include <QTimer>

#include "core/host/host.h"
#include "core/session/capture/capture_box.h"

namespace vexlo::gui {

class FrmVexloCapture : public QDialog {
    Q_OBJECT
public:
    // screen: the frozen picture, in device pixels, of the screen at geometry.
    FrmVexloCapture(session::CaptureBox& model, QImage screen, const QRect& geometry, QWidget* parent = nullptr);

    session::CaptureBox& Model() { return m_model; }
    QTimer& Timer1() { return m_timer; }

    // The whole capture: the main window hidden and pending events run, the screen grabbed,
    // this form shown modally, the main window shown again. Unavailable when the platform
    // gives no picture of the screen.
    static host::CaptureAnswer Run(QWidget* mainWindow, int side);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void Tick();
    void Finish(bool leftButton);

    session::CaptureBox& m_model;
    QImage m_screen;
    QImage m_box;
    QTimer m_timer;
};

}  // namespace vexlo::gui
