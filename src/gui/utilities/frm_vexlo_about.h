#pragma once
// frmVexloAbout: the About box, also shown without blocking as the splash at start-up. It
// reads the machine's facts when it loads (utilities::AboutBox); cmdInfo shows them, cmdOK
// closes the box.
#include <QDialog>

#include "core/utilities/about_box.h"

class QLabel;
class QPushButton;

namespace vexlo::gui {

class FrmVexloAbout : public QDialog {
    Q_OBJECT
public:
    explicit FrmVexloAbout(QWidget* parent = nullptr);

    // "Professional Edition   v. " and the version as major.minor.revision.
    static QString VersionText();
    // The platform's facts as they are now.
    static utilities::MachineFacts ReadMachineFacts();
    const utilities::AboutBox& Model() const { return m_model; }

    QLabel* picAbout = nullptr;
    QLabel* lblVersion = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdInfo = nullptr;

private:
    void ShowInfo();

    utilities::AboutBox m_model;
};

}  // namespace vexlo::gui
