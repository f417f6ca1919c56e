#pragma once
// frmVexloAbout: the About box, also shown without blocking as the splash at start-up.
#include <QDialog>

class QLabel;

namespace vexlo::gui {

class FrmVexloAbout : public QDialog {
    Q_OBJECT
public:
    explicit FrmVexloAbout(QWidget* parent = nullptr);

    // "Professional Edition   v. " and the version as major.minor.revision.
    static QString VersionText();

    QLabel* picAbout = nullptr;
    QLabel* lblVersion = nullptr;
};

}  // namespace vexlo::gui
