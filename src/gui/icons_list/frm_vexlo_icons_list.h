#pragma once
// fraIconsList: the lot's picture in its viewport with the scroll bar, the kind's caption and
// the count, the lot list, the next-lot, page and next-page buttons, the source button, the
// Save All buttons of ANI lists, Close, and the source's path. The controls' events go to the
// session through FrmVexlo::Run; Sync writes them back from the list's state.
#include <QElapsedTimer>
#include <QObject>
#include <array>

class QComboBox;
class QFrame;
class QLabel;
class QPushButton;
class QScrollBar;
class QWidget;

namespace vexlo::gui {

class ElidedLabel;
class FrmVexlo;
class IconsListView;

class IconsListFrame : public QObject {
public:
    IconsListFrame(FrmVexlo& window, QFrame* frame);
    void Sync();
    // While a lot is drawn: the window shown as it stands, at most about once a frame of the
    // screen, so that the lot grows on the screen without its drawing waiting on the paints.
    void RefreshDuringLot();

    std::array<QLabel*, 2> lblExtract{};  // the kind's caption, the count
    QWidget* picIconsListBase = nullptr;
    IconsListView* picIconsList = nullptr;
    QScrollBar* VsrIconsList = nullptr;
    QComboBox* cboPanelNum = nullptr;
    QPushButton* cmdNextPanel = nullptr;
    QPushButton* cmdNextPage = nullptr;
    std::array<QPushButton*, 4> cmdPageRef{};
    QPushButton* cmdInvokeFolderOrFileDialog = nullptr;
    std::array<QPushButton*, 2> cmdSaveAllExtractToFiles{};
    QPushButton* cmdCancel = nullptr;
    ElidedLabel* lblSource = nullptr;

private:
    FrmVexlo& m_window;
    QFrame* m_frame;
    QElapsedTimer m_sinceShown;
};

}  // namespace vexlo::gui
