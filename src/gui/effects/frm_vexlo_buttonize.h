#pragma once
// fraButtonize: the pattern list, the three sample pictures (a click on one chooses its
// pattern), Proceed and Close.
#include <QObject>
#include <array>

class QComboBox;
class QFrame;
class QLabel;
class QPushButton;

namespace vexlo::gui {

class FrmVexlo;
class SurfaceView;

class ButtonizeFrame : public QObject {
public:
    ButtonizeFrame(FrmVexlo& window, QFrame* frame);
    void Sync();

    QComboBox* cboButtonizePattern = nullptr;
    std::array<SurfaceView*, 3> picButtonize{};
    std::array<QLabel*, 3> lblButtonize{};
    QPushButton* cmdButtonizeProceed = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    FrmVexlo& m_window;
};

}  // namespace vexlo::gui
