#pragma once
// A sunken picture box of back color 0xC0C0C0, the display gray, on which a SurfaceView
// stands: the frame of the small icon pictures in the dialogs.
#include <QLabel>

namespace vexlo::gui {

QLabel* MakePictureFrame(QWidget* parent);

}  // namespace vexlo::gui
