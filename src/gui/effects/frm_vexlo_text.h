#pragma once
// fraText: the text, its style, font, size, bold and italic, the color dialog, the sample of
// the settings, the angle with its turning sample, Proceed and Close.
#include <QObject>
#include <array>

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QToolButton;

namespace vexlo::gui {

class FrmVexlo;
class SurfaceView;

class TextFrame : public QObject {
public:
    TextFrame(FrmVexlo& window, QFrame* frame);
    void Sync();

    QLineEdit* txbWriteText = nullptr;
    QComboBox* cboTextWriteStyle = nullptr;
    QComboBox* cboFontName = nullptr;
    QComboBox* cboFontSize = nullptr;
    std::array<QToolButton*, 2> imgFontStyle{};
    QPushButton* cmdTextColor = nullptr;
    QLabel* lblTextSample = nullptr;
    QScrollBar* HsbTextWriteSampleAngle = nullptr;
    QLabel* lblTextAngle = nullptr;
    SurfaceView* picTextWriteAngleSampleBgd = nullptr;
    QPushButton* cmdAddTextProceed = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    FrmVexlo& m_window;
    bool m_syncing = false;
    bool m_wasUp = false;
};

}  // namespace vexlo::gui
