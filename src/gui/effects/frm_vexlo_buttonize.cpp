#include "gui/effects/frm_vexlo_buttonize.h"

#include <QLabel>

#include "core/session/session_effect_frames.h"
#include "gui/effects/effect_frame_controls.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

ButtonizeFrame::ButtonizeFrame(FrmVexlo& window, QFrame* frame) : QObject(frame), m_window(window) {
    auto* label = new QLabel("Pattern", frame);
    label->setGeometry(8, 30, 60, 20);
    cboButtonizePattern = MakeList(frame, effects::kButtonizePatternEntries, QRect(70, 28, 60, 22));
    cboButtonizePattern->setObjectName("cboButtonizePattern");
    connect(cboButtonizePattern, &QComboBox::activated, this, [this](int index) {
        m_window.Run([index](session::Session& s) { s.Frames().ClickButtonizePattern(index); });
    });
    for (int i = 0; i < 3; ++i) {
        const auto k = static_cast<std::size_t>(i);
        picButtonize[k] = MakeSunkenView(frame, QRect(20 + i * 86, 70, 60, 60),
                                         QString("picButtonize%1").arg(i));
        picButtonize[k]->SetSurface(&window.session().Effects().Buttonize().Sample(i));
        connect(picButtonize[k], &SurfaceView::Clicked, this, [this, i] {
            m_window.Run([i](session::Session& s) { s.Frames().ClickButtonizePattern(i); });
        });
        lblButtonize[k] = new QLabel(QString::number(i + 1), frame);
        lblButtonize[k]->setAlignment(Qt::AlignCenter);
        lblButtonize[k]->setGeometry(20 + i * 86, 134, 60, 18);
    }
    cmdButtonizeProceed = MakeFrameButton(frame, kProceedText, "", QRect(8, 262, 80, 26));
    connect(cmdButtonizeProceed, &QPushButton::clicked, this,
            [this] { m_window.Run([](session::Session& s) { s.Frames().ButtonizeProceed(); }); });
    cmdCancel = MakeFrameButton(frame, kCloseText, kCloseToolTip, QRect(94, 262, 80, 26));
    connect(cmdCancel, &QPushButton::clicked, this,
            [this] { m_window.Run([](session::Session& s) { s.CancelFrame(); }); });
}

void ButtonizeFrame::Sync() {
    const auto& panel = m_window.session().Effects().Buttonize();
    cboButtonizePattern->setCurrentIndex(panel.PatternIndex());
    for (int i = 0; i < 3; ++i) {
        QFont font = lblButtonize[static_cast<std::size_t>(i)]->font();
        font.setBold(i == panel.PatternIndex());
        lblButtonize[static_cast<std::size_t>(i)]->setFont(font);
    }
}

}  // namespace vexlo::gui
