#pragma once
// fraAdjustPaintedColors: the preview picColorAdj, the brightness list and the three channel
// lists (each acts at once and goes back to "0"), Proceed, Restore and Close.
#include <QObject>
#include <array>

class QComboBox;
class QFrame;
class QPushButton;

namespace vexlo::gui {

class FrmVexlo;
class SurfaceView;

class AdjustColorsFrame : public QObject {
public:
    AdjustColorsFrame(FrmVexlo& window, QFrame* frame);
    void Sync();

    SurfaceView* picColorAdj = nullptr;
    QComboBox* cboBrightNessAdj = nullptr;
    std::array<QComboBox*, 3> cboColorAdj{};
    std::array<QPushButton*, 2> cmdAdjustColorsProceed{};
    QPushButton* cmdCancel = nullptr;

private:
    FrmVexlo& m_window;
};

}  // namespace vexlo::gui
