#include "gui/effects/frm_vexlo_rotate_angle.h"

#include <QCheckBox>
#include <QLabel>
#include <QScrollBar>

#include "core/session/session_effect_frames.h"
#include "gui/effects/effect_frame_controls.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

RotateAngleFrame::RotateAngleFrame(FrmVexlo& window, QFrame* frame)
    : QObject(frame), m_window(window) {
    auto* label = new QLabel("Angle", frame);
    label->setGeometry(8, 32, 40, 18);
    cboRotateAngle = MakeList(frame, effects::RotateAngleEntries(), QRect(52, 30, 70, 22));
    cboRotateAngle->setObjectName("cboRotateAngle");
    connect(cboRotateAngle, &QComboBox::activated, this, [this](int index) {
        m_window.Run([index](session::Session& s) { s.Frames().ClickRotateAngleList(index); });
    });
    hsrRotateAngle = new QScrollBar(Qt::Horizontal, frame);
    hsrRotateAngle->setObjectName("hsrRotateAngle");
    hsrRotateAngle->setRange(effects::kRotateAngleMin, effects::kRotateAngleMax);
    hsrRotateAngle->setPageStep(effects::kRotateAngleLargeStep);
    hsrRotateAngle->setGeometry(8, 62, 264, 18);
    connect(hsrRotateAngle, &QScrollBar::valueChanged, this, [this](int value) {
        if (m_syncing) return;
        m_window.Run([value](session::Session& s) { s.Frames().RotateAngleSliderChanged(value); });
    });
    ckbRotateAntiAlias = new QCheckBox("Antialias", frame);
    ckbRotateAntiAlias->setGeometry(8, 88, 100, 20);
    connect(ckbRotateAntiAlias, &QCheckBox::clicked, this, [this](bool checked) {
        m_window.Run([checked](session::Session& s) { s.Frames().ClickRotateAntiAlias(checked); });
    });
    // lblRotatePicSample: the box in which the sample stands in the middle.
    picRotatePicSample = MakeSunkenView(frame, QRect(104, 120, 72, 72), "picRotatePicSample");

    cmdRotateSelectAngleProceed = MakeFrameButton(frame, kProceedText, "", QRect(8, 262, 80, 26));
    connect(cmdRotateSelectAngleProceed, &QPushButton::clicked, this,
            [this] { m_window.Run([](session::Session& s) { s.Frames().RotateSelectAngleProceed(); }); });
    cmdCancel = MakeFrameButton(frame, kCloseText, kCloseToolTip, QRect(94, 262, 80, 26));
    connect(cmdCancel, &QPushButton::clicked, this,
            [this] { m_window.Run([](session::Session& s) { s.CancelFrame(); }); });
}

void RotateAngleFrame::Sync() {
    const session::Session& s = m_window.session();
    const bool up = s.Form().VisibleFrame == session::Frame::RotateSelectAngle;
    const auto& panel = s.Effects().RotateAngle();
    m_syncing = true;
    cboRotateAngle->setCurrentIndex(panel.ListIndex());
    hsrRotateAngle->setValue(panel.Angle());
    ckbRotateAntiAlias->setChecked(panel.AntiAlias());
    picRotatePicSample->SetSurface(up ? &panel.Sample() : nullptr);
    m_syncing = false;
}

}  // namespace vexlo::gui
