#include "gui/effects/frm_vexlo_adjust_colors.h"

#include <QLabel>

#include "core/session/session_effect_frames.h"
#include "gui/effects/effect_frame_controls.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

AdjustColorsFrame::AdjustColorsFrame(FrmVexlo& window, QFrame* frame)
    : QObject(frame), m_window(window) {
    // lblColorAdj is the box drawn around the preview, which shows the icon at its own size.
    picColorAdj = MakeSunkenView(frame, QRect(114, 28, 52, 52), "picColorAdj");

    const auto entries = effects::AdjustListEntries();
    auto* brightness = new QLabel("Brightness (adj +/- %)", frame);
    brightness->setGeometry(8, 92, 200, 18);
    cboBrightNessAdj = MakeList(frame, entries, QRect(8, 112, 70, 22));
    cboBrightNessAdj->setObjectName("cboBrightNessAdj");
    connect(cboBrightNessAdj, &QComboBox::activated, this, [this](int index) {
        m_window.Run([index](session::Session& s) { s.Frames().ClickBrightnessAdj(index); });
    });

    auto* channels = new QLabel("Red(+/- %)      Green(+/- %)     Blue(+/-%)", frame);
    channels->setGeometry(8, 146, 266, 18);
    for (int i = 0; i < 3; ++i) {
        QComboBox* list = MakeList(frame, entries, QRect(8 + i * 88, 166, 70, 22));
        list->setObjectName(QString("cboColorAdj%1").arg(i));
        connect(list, &QComboBox::activated, this, [this, i](int index) {
            m_window.Run([i, index](session::Session& s) { s.Frames().ClickColorAdj(i, index); });
        });
        cboColorAdj[static_cast<std::size_t>(i)] = list;
    }

    cmdAdjustColorsProceed[0] = MakeFrameButton(frame, kProceedText, "", QRect(8, 262, 80, 26));
    cmdAdjustColorsProceed[1] =
        MakeFrameButton(frame, "Restore", "Restore to original", QRect(94, 262, 80, 26));
    for (int i = 0; i < 2; ++i)
        connect(cmdAdjustColorsProceed[static_cast<std::size_t>(i)], &QPushButton::clicked, this,
                [this, i] { m_window.Run([i](session::Session& s) { s.Frames().AdjustColorsProceed(i); }); });
    cmdCancel = MakeFrameButton(frame, kCloseText, kCloseToolTip, QRect(180, 262, 80, 26));
    connect(cmdCancel, &QPushButton::clicked, this,
            [this] { m_window.Run([](session::Session& s) { s.CancelFrame(); }); });
}

void AdjustColorsFrame::Sync() {
    const bool up = m_window.session().Form().VisibleFrame == session::Frame::AdjustPaintedColors;
    picColorAdj->SetSurface(up ? &m_window.session().Effects().AdjustColors().Preview() : nullptr);
    // Every list goes back to "0" after its step, so that steps add up.
    cboBrightNessAdj->setCurrentIndex(effects::kAdjustZeroIndex);
    for (QComboBox* list : cboColorAdj) list->setCurrentIndex(effects::kAdjustZeroIndex);
}

}  // namespace vexlo::gui
