// fraGradient: the three gradient pictures, the kind, the angle, the two colors and Proceed.
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "core/effects/gradient.h"
#include "core/session/session_effect_frames.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

namespace {

QString Text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

// A label's caption with "&&" shown as "&", as a caption without an access key shows it.
QString Caption(std::string_view text) { return Text(text).replace("&&", "&"); }

// A button that carries a color as its back color.
void SetBack(QWidget* w, surface::Color c) {
    const QString sheet = QString("background-color: %1; border: 1px solid #404040;")
                              .arg(QColor(surface::RedOf(c), surface::GreenOf(c), surface::BlueOf(c)).name());
    if (w->styleSheet() != sheet) w->setStyleSheet(sheet);
}

}  // namespace

void FrmVexlo::BuildGradientFrame(QFrame* frame) {
    // The frame's own caption in place of the general one.
    for (QLabel* label : frame->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        label->setText(Caption(effects::kGradientCaption));
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        label->setGeometry(8, 4, 250, 18);
    }
    for (int k = 0; k < 3; ++k) {
        const auto i = static_cast<std::size_t>(k);
        OptGradType[i] = new QRadioButton(Text(effects::kGradientTypeCaptions[i]), frame);
        OptGradType[i]->setObjectName(QString("OptGradType%1").arg(k));
        OptGradType[i]->setGeometry(8 + k * 90, 28, 86, 20);
        connect(OptGradType[i], &QRadioButton::clicked, this,
                [this, k] { Run([k](session::Session& s) { s.Frames().ClickGradientType(k); }); });
        // lblGradient(k): the sunken box around the picture, which shows it at its own size.
        auto* box = new QFrame(frame);
        box->setFrameShape(QFrame::Panel);
        box->setFrameShadow(QFrame::Sunken);
        box->setLineWidth(2);
        box->setGeometry(20 + k * 90, 52, 52, 52);
        auto* view = new SurfaceView(&m_session.Gradient().Picture(k), box);
        view->setObjectName(QString("PicGradient%1").arg(k));
        view->SetCentred(true);
        view->setGeometry(2, 2, 48, 48);
        connect(view, &SurfaceView::Pressed, this, [this, k](Qt::MouseButton button, Qt::KeyboardModifiers, int x, int y) {
            const auto b = button == Qt::LeftButton    ? session::Session::Button::Left
                           : button == Qt::RightButton ? session::Session::Button::Right
                                                       : session::Session::Button::Middle;
            Run([k, b, x, y](session::Session& s) { s.Frames().PressOnGradient(k, b, x, y); });
        });
        PicGradient[i] = view;
    }
    cboGradientAngle = new QComboBox(frame);
    cboGradientAngle->setObjectName("cboGradientAngle");
    for (int a = 0; a < effects::kGradientAngles; ++a) cboGradientAngle->addItem(QString::number(a));
    cboGradientAngle->setGeometry(14, 110, 64, 22);
    connect(cboGradientAngle, &QComboBox::activated, this, [this](int index) {
        if (m_syncing) return;
        Run([index](session::Session& s) { s.Frames().ClickGradientAngle(index); });
    });
    auto* centre = new QLabel(Caption(effects::kGradientCenterCaption), frame);
    centre->setWordWrap(true);
    centre->setGeometry(184, 108, 94, 50);
    centre->setAlignment(Qt::AlignTop | Qt::AlignLeft);

    auto* colors = new QLabel(Caption(effects::kGradientColorsCaption), frame);
    colors->setGeometry(8, 150, 180, 18);
    for (int i = 0; i < 2; ++i) {
        auto* button = new QToolButton(frame);
        button->setObjectName(QString("cmdGradientColor%1").arg(i));
        button->setToolTip(Text(effects::kGradientColorTips[static_cast<std::size_t>(i)]));
        button->setGeometry(14 + i * 56, 172, 48, 26);
        connect(button, &QToolButton::clicked, this,
                [this, i] { Run([i](session::Session& s) { s.Frames().ClickGradientColor(i); }); });
        cmdGradientColor[static_cast<std::size_t>(i)] = button;
    }
    lblNoUnpaintedArea = new QLabel(Caption(effects::kNoUnpaintedArea), frame);
    lblNoUnpaintedArea->setObjectName("lblNoUnpaintedArea");
    lblNoUnpaintedArea->setGeometry(8, 222, 250, 18);

    cmdGradientProceed = new QPushButton(Text(effects::kProceedCaption), frame);
    cmdGradientProceed->setObjectName("cmdGradientProceed");
    cmdGradientProceed->setGeometry(8, 262, 80, 26);
    connect(cmdGradientProceed, &QPushButton::clicked, this,
            [this] { Run([](session::Session& s) { s.Frames().GradientProceed(); }); });
    auto* cancel = new QPushButton("Cancel", frame);
    cancel->setToolTip(Text(effects::kCloseCancelTip));
    cancel->setGeometry(180, 262, 80, 26);
    connect(cancel, &QPushButton::clicked, this,
            [this] { Run([](session::Session& s) { s.CancelFrame(); }); });
}

void FrmVexlo::SyncGradient() {
    if (m_session.Form().VisibleFrame != session::Frame::Gradient) return;
    const session::GradientPanel& panel = m_session.Gradient();
    m_syncing = true;
    OptGradType[static_cast<std::size_t>(panel.Kind())]->setChecked(true);
    if (cboGradientAngle->currentIndex() != panel.AngleIndex()) cboGradientAngle->setCurrentIndex(panel.AngleIndex());
    for (int i = 0; i < 2; ++i) SetBack(cmdGradientColor[static_cast<std::size_t>(i)], panel.ButtonColor(i));
    for (SurfaceView* view : PicGradient) view->update();
    cmdGradientProceed->setEnabled(panel.ProceedEnabled());
    lblNoUnpaintedArea->setVisible(panel.NoUnpaintedAreaVisible());
    m_syncing = false;
}

}  // namespace vexlo::gui
