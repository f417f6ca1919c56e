#pragma once
// frmVexloAlpha, "View/Edit/Create Alpha Channel": the modal alpha editor on Qt. Every state
// and step is session::AlphaEditor's; the window builds the controls, forwards each event to
// the model and redraws itself from it.
#include <QDialog>

#include <array>

#include "core/host/host.h"
#include "core/session/alpha_editor/alpha_editor.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QScrollBar;

namespace vexlo::gui {

class SurfaceView;

class frmVexloAlpha : public QDialog {
    Q_OBJECT
public:
    frmVexloAlpha(host::Host& host, const host::AlphaEditorRequest& request, QWidget* parent = nullptr);

    // Shows the dialog modally over the request and answers what it left.
    static host::AlphaEditorAnswer Run(host::Host& host, const host::AlphaEditorRequest& request, QWidget* parent);

    const session::AlphaEditor& Model() const { return m_model; }
    session::AlphaEditor& Model() { return m_model; }
    // The controls follow the model; and the dialog closes once the model has.
    void Sync();

    SurfaceView* picDisp = nullptr;
    SurfaceView* PicIconOrig = nullptr;
    SurfaceView* picMaskOrig = nullptr;
    SurfaceView* picImageAlpha = nullptr;
    SurfaceView* picMaskAlpha = nullptr;
    std::array<QLabel*, 6> lblAlpha{};
    QLabel* lblDispXY = nullptr;
    QGroupBox* fraEditAlphaValue = nullptr;
    QComboBox* cboAlphaValue = nullptr;
    QScrollBar* hsrAlphaValue = nullptr;
    QLabel* picAlphaValue = nullptr;
    QPushButton* cmdRestore = nullptr;
    std::array<QPushButton*, 5> cmdAlpha{};

protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void Build();
    void Connect();

    session::AlphaEditor m_model;
    std::array<QWidget*, 4> m_boxes{};  // the sunken frames of the four small pictures
};

}  // namespace vexlo::gui
