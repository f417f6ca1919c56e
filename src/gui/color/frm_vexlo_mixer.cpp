// fraColorMixer: the three bars with their swatches and values, the mix swatch, "+", "-",
// the copy of the selected color, the palette file buttons and the strip with its marker.
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>

#include "core/color/mix_gradient.h"
#include "core/session/session_effect_frames.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

namespace {

QString Text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<int>(text.size())); }

QColor ToQColor(surface::Color c) { return QColor(surface::RedOf(c), surface::GreenOf(c), surface::BlueOf(c)); }

// A swatch: a picture box that shows only its back color.
SurfaceView* MakeSwatch(QWidget* parent, const QString& name, const QRect& geometry) {
    auto* swatch = new SurfaceView(nullptr, parent);
    swatch->setObjectName(name);
    swatch->setGeometry(geometry);
    swatch->setAutoFillBackground(true);
    return swatch;
}

void SetBack(QWidget* w, surface::Color c) {
    QPalette pal = w->palette();
    if (pal.color(QPalette::Window) == ToQColor(c)) return;
    pal.setColor(QPalette::Window, ToQColor(c));
    w->setPalette(pal);
}

QToolButton* MakeButton(QWidget* parent, const QString& name, std::string_view tip, const QRect& geometry) {
    auto* b = new QToolButton(parent);
    b->setObjectName(name);
    b->setToolTip(Text(tip));
    b->setGeometry(geometry);
    b->setFocusPolicy(Qt::NoFocus);
    return b;
}

// The picture of cmdAdjMix(2): a swatch with an arrow into the mixer.
QIcon CopySelectedPicture() {
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(1, 1, 8, 8, QColor(0, 0, 160));
    painter.setPen(Qt::black);
    painter.drawRect(1, 1, 8, 8);
    painter.drawLine(5, 10, 5, 14);
    painter.drawLine(5, 14, 13, 14);
    painter.drawLine(11, 12, 13, 14);
    painter.drawLine(11, 16, 13, 14);
    return QIcon(pixmap);
}

}  // namespace

void FrmVexlo::BuildColorMixer(QGroupBox* group) {
    static const char* const kChannel[3] = {"R", "G", "B"};
    for (int i = 0; i < 3; ++i) {
        const auto k = static_cast<std::size_t>(i);
        const int top = 20 + i * 24;
        PicRGB[k] = MakeSwatch(group, QString("PicRGB%1").arg(i), QRect(8, top + 1, 18, 18));
        PicRGB[k]->setToolTip(kChannel[i]);
        connect(PicRGB[k], &SurfaceView::Released, this, [this, i](Qt::MouseButton, Qt::KeyboardModifiers, int, int) {
            Run([i](session::Session& s) { s.Frames().ReleaseOnMixSwatch(i); });
        });
        HsrRGB[k] = new QScrollBar(Qt::Horizontal, group);
        HsrRGB[k]->setObjectName(QString("HsrRGB%1").arg(i));
        HsrRGB[k]->setRange(0, color::kMixBarMax);
        HsrRGB[k]->setPageStep(17);
        HsrRGB[k]->setTracking(false);  // a drag scrolls; its end is the change
        HsrRGB[k]->setGeometry(30, top, 110, 20);
        connect(HsrRGB[k], &QScrollBar::valueChanged, this, [this, i](int value) {
            if (m_syncing) return;
            Run([i, value](session::Session& s) { s.Frames().ChangeMixBar(i, value); });
        });
        connect(HsrRGB[k], &QScrollBar::sliderMoved, this, [this, i](int value) {
            if (m_syncing) return;
            Run([i, value](session::Session& s) { s.Frames().ScrollMixBar(i, value); });
        });
        lblRGB[k] = new QLabel(group);
        lblRGB[k]->setObjectName(QString("lblRGB%1").arg(i));
        lblRGB[k]->setGeometry(144, top, 32, 20);
    }
    PicRGBMix = MakeSwatch(group, "PicRGBMix", QRect(8, 92, 42, 20));
    PicRGBMix->setToolTip(Text(color::kMixSwatchTip));
    connect(PicRGBMix, &SurfaceView::Released, this, [this](Qt::MouseButton, Qt::KeyboardModifiers, int, int) {
        Run([](session::Session& s) { s.Frames().ReleaseOnMixSwatch(3); });
    });
    const std::string_view tips[3] = {color::kLightenTip, color::kDarkenTip, color::kCopySelectedTip};
    for (int i = 0; i < 3; ++i) {
        auto* b = MakeButton(group, QString("cmdAdjMix%1").arg(i), tips[i], QRect(54 + i * 24, 91, 22, 22));
        connect(b, &QToolButton::clicked, this,
                [this, i] { Run([i](session::Session& s) { s.Frames().ClickAdjMix(i); }); });
        cmdAdjMix[static_cast<std::size_t>(i)] = b;
    }
    cmdAdjMix[0]->setText("+");
    cmdAdjMix[1]->setText("-");
    cmdAdjMix[2]->setIcon(CopySelectedPicture());
    auto* load = MakeButton(group, "picLoadPalette", color::kLoadPaletteTip, QRect(130, 91, 22, 22));
    load->setIcon(style()->standardIcon(QStyle::SP_DialogOpenButton));
    connect(load, &QToolButton::clicked, this, [this] { Run([](session::Session& s) { s.Frames().LoadPalette(); }); });
    auto* save = MakeButton(group, "picSavePalette", color::kSavePaletteTip, QRect(154, 91, 22, 22));
    save->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
    connect(save, &QToolButton::clicked, this, [this] { Run([](session::Session& s) { s.Frames().SavePalette(); }); });

    auto* stripBox = new QFrame(group);
    stripBox->setFrameShape(QFrame::Box);
    stripBox->setGeometry(196, 14, session::kMixStripWidth + 2, session::kMixStripHeight + 2);
    picMixGradient = new SurfaceView(&m_session.Mixer().Strip(), stripBox);
    picMixGradient->setObjectName("picMixGradient");
    picMixGradient->setGeometry(1, 1, session::kMixStripWidth, session::kMixStripHeight);
    ShapeMix = new QFrame(picMixGradient);
    ShapeMix->setObjectName("ShapeMix");
    ShapeMix->setFrameShape(QFrame::Box);
    ShapeMix->setAttribute(Qt::WA_TransparentForMouseEvents);
    ShapeMix->hide();
    connect(picMixGradient, &SurfaceView::Moved, this, [this](Qt::MouseButtons, Qt::KeyboardModifiers, int x, int y) {
        Run([x, y](session::Session& s) { s.Frames().PointerOverMixStrip(x, y); });
    });
    connect(picMixGradient, &SurfaceView::Pressed, this, [this](Qt::MouseButton, Qt::KeyboardModifiers, int x, int y) {
        Run([x, y](session::Session& s) { s.Frames().PressOnMixStrip(x, y); });
    });
    connect(picMixGradient, &SurfaceView::Released, this, [this](Qt::MouseButton, Qt::KeyboardModifiers, int x, int y) {
        Run([x, y](session::Session& s) { s.Frames().ReleaseOnMixStrip(x, y); });
    });
}

void FrmVexlo::SyncColorMixer() {
    const session::ColorMixer& mixer = m_session.Mixer();
    m_syncing = true;
    for (int i = 0; i < 3; ++i) {
        const auto k = static_cast<std::size_t>(i);
        // A bar being dragged keeps its thumb where the pointer holds it.
        if (!HsrRGB[k]->isSliderDown() && HsrRGB[k]->value() != mixer.Bars()[k]) HsrRGB[k]->setValue(mixer.Bars()[k]);
        lblRGB[k]->setText(QString::fromStdString(mixer.BarText(i)));
        SetBack(PicRGB[k], mixer.SwatchColor(i));
    }
    SetBack(PicRGBMix, mixer.SwatchColor(3));
    cmdAdjMix[0]->setEnabled(mixer.AdjEnabled().Lighten);
    cmdAdjMix[1]->setEnabled(mixer.AdjEnabled().Darken);
    picMixGradient->update();
    if (const auto& marker = mixer.Marker()) {
        ShapeMix->setGeometry(marker->Left, marker->Top, marker->Width, marker->Height);
        ShapeMix->show();
    }
    m_syncing = false;
}

}  // namespace vexlo::gui
