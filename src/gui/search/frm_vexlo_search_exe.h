#pragma once
// fraSearchExeInFolder: the two folder boxes with their buttons, the subfolder switch and the
// limit, the small icons switch, Proceed, Stop and Close, the state and result label, and the
// file under work. The controls' events go to the session's SearchExeFlows through
// FrmVexlo::Run; Sync writes them back from SearchExePanel.
//
// While a search runs, a zero-interval timer hands it one slice at a time (about 20 ms of
// work), so the window's events run between slices and Stop is taken at once.
#include <QObject>
#include <QTimer>
#include <array>

class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vexlo::gui {

class ElidedLabel;
class FrmVexlo;

class SearchExeFrame : public QObject {
public:
    SearchExeFrame(FrmVexlo& window, QFrame* frame);
    void Sync();

    std::array<QLineEdit*, 2> txbSearchExeDir{};
    std::array<QPushButton*, 2> cmdInvokeSearchPath{};
    QCheckBox* ckbIncludeSub = nullptr;
    QLineEdit* txbMaxIcons = nullptr;
    QCheckBox* ckbSmallIcons = nullptr;
    QPushButton* cmdSearchExeInFolderProceed = nullptr;
    QPushButton* cmdStopBrowse = nullptr;
    QPushButton* cmdCancel = nullptr;
    QLabel* lblSearchIconsCount = nullptr;
    ElidedLabel* lblSearchCurrentFile = nullptr;  // SearchCurrentFile, while the search runs

private:
    // One slice of the running search, then the frame and the status bar redrawn.
    void RunSlice();

    FrmVexlo& m_window;
    QTimer m_slices;
    bool m_syncing = false;
};

}  // namespace vexlo::gui
