// fraConfineToMono: the threshold of Confine To Mono and its Proceed.
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "core/effects/resize_confine.h"
#include "core/effects/gradient.h"
#include "core/effects/shades.h"
#include "core/session/session_effect_frames.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

namespace {

QString Text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

}  // namespace

void FrmVexlo::BuildConfineToMonoFrame(QFrame* frame) {
    auto* threshold = new QLabel(Text(effects::kMonoThresholdCaption), frame);
    threshold->setWordWrap(true);
    threshold->setGeometry(8, 30, 262, 36);
    cboConfineToMonoThreshold = new QComboBox(frame);
    cboConfineToMonoThreshold->setObjectName("cboConfineToMonoThreshold");
    for (int t = effects::kMonoThresholdFirst; t <= effects::kMonoThresholdLast; ++t)
        cboConfineToMonoThreshold->addItem(QString::number(t));
    cboConfineToMonoThreshold->setGeometry(8, 72, 72, 22);
    connect(cboConfineToMonoThreshold, &QComboBox::activated, this, [this](int index) {
        if (m_syncing) return;
        Run([index](session::Session& s) { s.Frames().ClickMonoThreshold(index); });
    });
    auto* proceed = new QPushButton(Text(effects::kProceedCaption), frame);
    proceed->setObjectName("cmdConfineToMonoProceed");
    proceed->setGeometry(8, 262, 80, 26);
    connect(proceed, &QPushButton::clicked, this,
            [this] { Run([](session::Session& s) { s.Frames().ConfineToMonoProceed(); }); });
    auto* cancel = new QPushButton("Cancel", frame);
    cancel->setToolTip(Text(effects::kCloseCancelTip));
    cancel->setGeometry(180, 262, 80, 26);
    connect(cancel, &QPushButton::clicked, this,
            [this] { Run([](session::Session& s) { s.CancelFrame(); }); });
}

void FrmVexlo::SyncConfineToMono() {
    const int index = m_session.ConfineMono().ThresholdIndex();
    if (cboConfineToMonoThreshold->currentIndex() == index) return;
    m_syncing = true;
    cboConfineToMonoThreshold->setCurrentIndex(index);
    m_syncing = false;
}

}  // namespace vexlo::gui
