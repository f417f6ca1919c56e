// fraEffectsShades: the preview pair of a shades effect, its options, Proceed and Restore.
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "core/session/session_effect_frames.h"
#include "gui/shell/frm_vexlo.h"
#include "gui/platform/surface_view.h"

namespace vexlo::gui {

void FrmVexlo::BuildShadesFrame(QFrame* frame) {
    lblShadesCaption = new QLabel(frame);
    lblShadesCaption->setGeometry(8, 4, 250, 18);
    QFont bold = lblShadesCaption->font();
    bold.setBold(true);
    lblShadesCaption->setFont(bold);

    lblEffectsSample = new QLabel("Preview", frame);
    lblEffectsSample->setAlignment(Qt::AlignCenter);
    lblEffectsSample->setGeometry(8, 26, 250, 16);
    // The previews show the icon at its own size, as the real-size views beside the Editing
    // Area do, each in a sunken box that holds the largest icon.
    for (int i = 0; i < 2; ++i) {
        auto* box = new QFrame(frame);
        box->setFrameShape(QFrame::Panel);
        box->setFrameShadow(QFrame::Sunken);
        box->setLineWidth(2);
        box->setGeometry(44 + i * 120, 50, 52, 52);
        auto* view = new SurfaceView(nullptr, box);
        view->setObjectName(QString("picEffectsSample%1").arg(i));
        view->SetCentred(true);
        view->setGeometry(2, 2, 48, 48);
        picEffectsSample[static_cast<std::size_t>(i)] = view;
    }

    ckbUseSelectedColor = new QCheckBox(QString::fromUtf8(effects::kUseSelectedColorCaption.data(),
                                                          static_cast<int>(effects::kUseSelectedColorCaption.size())),
                                        frame);
    ckbUseSelectedColor->setGeometry(8, 150, 262, 20);
    QFont small = ckbUseSelectedColor->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    ckbUseSelectedColor->setFont(small);  // the whole caption fits the frame's width
    connect(ckbUseSelectedColor, &QCheckBox::clicked, this, [this](bool checked) {
        Run([checked](session::Session& s) { s.Frames().ClickUseSelectedColor(checked); });
    });

    static const char* const kChannel[3] = {"R", "G", "B"};
    for (int i = 0; i < 3; ++i) {
        auto* label = new QLabel(kChannel[i], frame);
        label->setGeometry(10 + i * 84, 152, 12, 20);
        auto* list = new QComboBox(frame);
        for (const std::string& entry : effects::CastListEntries()) list->addItem(QString::fromStdString(entry));
        list->setGeometry(24 + i * 84, 150, 62, 22);
        connect(list, &QComboBox::activated, this, [this, i](int index) {
            Run([i, index](session::Session& s) { s.Frames().CastComboClicked(i, index); });
        });
        cboCast[static_cast<std::size_t>(i)] = list;
        castWidgets.push_back(label);
        castWidgets.push_back(list);
    }
    lblCast[0] = new QLabel("Darker", frame);
    lblCast[0]->setGeometry(8, 178, 50, 18);
    hsrCast = new QScrollBar(Qt::Horizontal, frame);
    hsrCast->setRange(0, 255);
    hsrCast->setGeometry(58, 178, 150, 18);
    connect(hsrCast, &QScrollBar::valueChanged, this, [this](int value) {
        if (m_syncing) return;
        Run([value](session::Session& s) { s.Frames().CastSliderChanged(value); });
    });
    lblCast[1] = new QLabel("Lighter", frame);
    lblCast[1]->setGeometry(212, 178, 50, 18);
    castWidgets.insert(castWidgets.end(), {lblCast[0], hsrCast, lblCast[1]});

    cmdShadesProceed[0] = new QPushButton(QString::fromUtf8(effects::kProceedCaption.data(),
                                                            static_cast<int>(effects::kProceedCaption.size())),
                                          frame);
    cmdShadesProceed[0]->setGeometry(8, 262, 80, 26);
    connect(cmdShadesProceed[0], &QPushButton::clicked, this,
            [this] { Run([](session::Session& s) { s.Frames().ShadesProceed(); }); });
    cmdShadesProceed[1] = new QPushButton(QString::fromUtf8(effects::kRestoreCaption.data(),
                                                            static_cast<int>(effects::kRestoreCaption.size())),
                                          frame);
    cmdShadesProceed[1]->setToolTip(QString::fromUtf8(effects::kRestoreToolTip.data(),
                                                      static_cast<int>(effects::kRestoreToolTip.size())));
    cmdShadesProceed[1]->setGeometry(94, 262, 80, 26);
    connect(cmdShadesProceed[1], &QPushButton::clicked, this,
            [this] { Run([](session::Session& s) { s.Frames().ShadesRestore(); }); });
    castWidgets.push_back(cmdShadesProceed[1]);
    auto* cancel = new QPushButton("Cancel", frame);
    cancel->setGeometry(180, 262, 80, 26);
    connect(cancel, &QPushButton::clicked, this,
            [this] { Run([](session::Session& s) { s.CancelFrame(); }); });
}

void FrmVexlo::SyncShades() {
    const session::ShadesState& shades = m_session.Shades();
    if (m_session.Form().VisibleFrame != session::Frame::EffectsShades) return;
    m_syncing = true;
    lblShadesCaption->setText(QString::fromStdString(shades.Caption));
    const bool preview = shades.Preview.has_value();
    picEffectsSample[0]->SetSurface(preview ? &shades.Preview->Image : nullptr);
    picEffectsSample[1]->SetSurface(preview ? &shades.Preview->Mask : nullptr);
    ckbUseSelectedColor->setVisible(shades.UseSelectedColorVisible);
    ckbUseSelectedColor->setChecked(shades.UseSelectedColorChecked);
    for (QWidget* w : castWidgets) w->setVisible(shades.CastControlsVisible);
    for (int i = 0; i < 3; ++i)
        cboCast[static_cast<std::size_t>(i)]->setCurrentIndex(shades.Cast.Values[static_cast<std::size_t>(i)]);
    hsrCast->setValue(shades.Cast.Slider);
    m_syncing = false;
}

}  // namespace vexlo::gui
