#include "gui/platform/picture_frame.h"

namespace vexlo::gui {

QLabel* MakePictureFrame(QWidget* parent) {
    auto* frame = new QLabel(parent);
    frame->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    frame->setAutoFillBackground(true);
    QPalette pal = frame->palette();
    pal.setColor(QPalette::Window, QColor(0xC0, 0xC0, 0xC0));
    frame->setPalette(pal);
    return frame;
}

}  // namespace vexlo::gui
