#pragma once
// fraPrint: the size options with the percentage list, the margin options with the two margin
// lists, Proceed and Close. The frame draws itself from the session's PrintPanel.
#include <QObject>
#include <array>

class QButtonGroup;
class QComboBox;
class QFrame;
class QLabel;
class QPushButton;
class QRadioButton;

namespace vexlo::gui {

class FrmVexlo;

class PrintFrame : public QObject {
public:
    PrintFrame(FrmVexlo& window, QFrame* frame);
    void Sync();

    std::array<QRadioButton*, 3> OptPrintSize{};
    QComboBox* cboPrintSize = nullptr;
    std::array<QRadioButton*, 2> OptPrintMargin{};
    QLabel* lblMargin = nullptr;
    QComboBox* cboLeftMargin = nullptr;
    QComboBox* cboTopMargin = nullptr;
    QPushButton* cmdPrintProceed = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    FrmVexlo& m_window;
};

}  // namespace vexlo::gui
