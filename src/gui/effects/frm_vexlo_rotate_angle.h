#pragma once
// fraRotateSelectAngle: the angle as a list and a scroll bar that follow each other, the
// Antialias box, the sample of the turned image plane, Proceed and Close.
#include <QObject>

class QCheckBox;
class QComboBox;
class QFrame;
class QPushButton;
class QScrollBar;

namespace vexlo::gui {

class FrmVexlo;
class SurfaceView;

class RotateAngleFrame : public QObject {
public:
    RotateAngleFrame(FrmVexlo& window, QFrame* frame);
    void Sync();

    QComboBox* cboRotateAngle = nullptr;
    QScrollBar* hsrRotateAngle = nullptr;
    QCheckBox* ckbRotateAntiAlias = nullptr;
    SurfaceView* picRotatePicSample = nullptr;
    QPushButton* cmdRotateSelectAngleProceed = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    FrmVexlo& m_window;
    bool m_syncing = false;
};

}  // namespace vexlo::gui
