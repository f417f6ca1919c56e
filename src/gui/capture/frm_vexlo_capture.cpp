#include "gui/capture/frm_vexlo_capture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QThread>

#include "gui/platform/image_convert.h"

namespace vexlo::gui {

namespace {

// The pointer of the form: a small cross that leaves the box's inside free to see.
QCursor CapturePointer() {
    QPixmap picture(15, 15);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(Qt::black);
    painter.drawLine(7, 0, 7, 5);
    painter.drawLine(7, 9, 7, 14);
    painter.drawLine(0, 7, 5, 7);
    painter.drawLine(9, 7, 14, 7);
    return QCursor(picture, 7, 7);
}

// Lets pending events run for a short while, so that the window system takes the hidden
// window off the screen before the screen is read.
void LetTheScreenSettle() {
    QElapsedTimer clock;
    clock.start();
    do {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(10);
    } while (clock.elapsed() < 150);
}

}  // namespace

FrmVexloCapture::FrmVexloCapture(session::CaptureBox& model, QImage screen, const QRect& geometry, QWidget* parent)
    : QDialog(parent, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), m_model(model), m_screen(std::move(screen)) {
    setObjectName("frmVexloCapture");
    setWindowTitle("Vexlo");
    setGeometry(geometry);
    setMouseTracking(true);
    setCursor(CapturePointer());
    m_screen.setDevicePixelRatio(static_cast<qreal>(m_screen.width()) / std::max(1, geometry.width()));
    m_timer.setInterval(50);
    connect(&m_timer, &QTimer::timeout, this, &FrmVexloCapture::Tick);
}

void FrmVexloCapture::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    const QPoint at = mapFromGlobal(QCursor::pos());
    const qreal ratio = m_screen.devicePixelRatio();
    m_model.PointerMoved(qRound(at.x() * ratio), qRound(at.y() * ratio));
    Tick();
    m_timer.start();
}

void FrmVexloCapture::Tick() {
    m_box = platform::ToQImage(m_model.Tick());
    m_box.setDevicePixelRatio(m_screen.devicePixelRatio());
    update();
}

void FrmVexloCapture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(QPointF(0, 0), m_screen);
    const qreal ratio = m_screen.devicePixelRatio();
    if (!m_box.isNull()) painter.drawImage(QPointF(m_model.PointerX() / ratio, m_model.PointerY() / ratio), m_box);
}

void FrmVexloCapture::mouseMoveEvent(QMouseEvent* event) {
    const qreal ratio = m_screen.devicePixelRatio();
    m_model.PointerMoved(qRound(event->position().x() * ratio), qRound(event->position().y() * ratio));
}

void FrmVexloCapture::mouseReleaseEvent(QMouseEvent* event) {
    const qreal ratio = m_screen.devicePixelRatio();
    m_model.PointerMoved(qRound(event->position().x() * ratio), qRound(event->position().y() * ratio));
    Finish(event->button() == Qt::LeftButton);
}

void FrmVexloCapture::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) Finish(false);
}

void FrmVexloCapture::Finish(bool leftButton) {
    m_timer.stop();
    m_model.Release(leftButton);
    accept();
}

host::CaptureAnswer FrmVexloCapture::Run(QWidget* mainWindow, int side) {
    if (mainWindow != nullptr) mainWindow->hide();
    LetTheScreenSettle();
    host::CaptureAnswer answer;
    QScreen* screen = QGuiApplication::primaryScreen();
    const QPixmap shot = screen != nullptr ? screen->grabWindow(0) : QPixmap();
    if (shot.isNull() || QGuiApplication::platformName().startsWith("wayland")) {
        answer.Outcome = host::CaptureOutcome::Unavailable;
    } else {
        QImage picture = shot.toImage();
        session::CaptureBox model(platform::FromQImage(picture), side);
        FrmVexloCapture form(model, std::move(picture), screen->geometry());
        form.exec();
        if (model.Done() && !model.Cancelled()) {
            answer.Outcome = host::CaptureOutcome::Taken;
            answer.Picture = model.Picture();
        }
    }
    if (mainWindow != nullptr) {
        mainWindow->show();
        mainWindow->activateWindow();
    }
    return answer;
}

}  // namespace vexlo::gui
