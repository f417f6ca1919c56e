#include "gui/effects/frm_vexlo_text.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolButton>

#include "core/session/session_effect_frames.h"
#include "gui/effects/effect_frame_controls.h"
#include "gui/platform/text_drawing.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {
namespace {

QColor ToQColor(surface::Color c) {
    return QColor(surface::RedOf(c), surface::GreenOf(c), surface::BlueOf(c));
}

}  // namespace

TextFrame::TextFrame(FrmVexlo& window, QFrame* frame) : QObject(frame), m_window(window) {
    using session::Session;
    txbWriteText = new QLineEdit(frame);
    txbWriteText->setObjectName("txbWriteText");
    txbWriteText->setGeometry(8, 24, 264, 22);
    connect(txbWriteText, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (m_syncing) return;
        m_window.Run([t = text.toStdString()](Session& s) { s.Frames().SetWriteText(t); });
    });

    cboTextWriteStyle = MakeList(frame, effects::kTextWriteStyleEntries, QRect(8, 52, 84, 22));
    connect(cboTextWriteStyle, &QComboBox::activated, this,
            [this](int i) { m_window.Run([i](Session& s) { s.Frames().ClickTextWriteStyle(i); }); });
    cboFontSize = MakeList(frame, effects::FontSizeEntries(), QRect(96, 52, 48, 22));
    connect(cboFontSize, &QComboBox::activated, this,
            [this](int i) { m_window.Run([i](Session& s) { s.Frames().ClickFontSize(i); }); });
    static const char* const kStyle[2] = {"Bold", "Italic"};
    for (int i = 0; i < 2; ++i) {
        auto* b = new QToolButton(frame);
        b->setText(i == 0 ? "B" : "I");
        b->setToolTip(kStyle[i]);
        QFont font = b->font();
        font.setBold(i == 0);
        font.setItalic(i == 1);
        b->setFont(font);
        b->setCheckable(true);
        b->setGeometry(148 + i * 26, 52, 24, 22);
        connect(b, &QToolButton::clicked, this,
                [this, i] { m_window.Run([i](Session& s) { s.Frames().ClickFontStyle(i); }); });
        imgFontStyle[static_cast<std::size_t>(i)] = b;
    }
    cmdTextColor = MakeFrameButton(frame, "Color", "Color dialog", QRect(202, 51, 70, 24));
    connect(cmdTextColor, &QPushButton::clicked, this,
            [this] { m_window.Run([](Session& s) { s.Frames().ClickTextColor(); }); });

    cboFontName = new QComboBox(frame);
    cboFontName->setObjectName("cboFontName");
    cboFontName->setGeometry(8, 80, 264, 22);
    connect(cboFontName, &QComboBox::activated, this,
            [this](int i) { m_window.Run([i](Session& s) { s.Frames().ClickFontName(i); }); });

    lblTextSample = new QLabel("AaBbYyZz 123", frame);
    lblTextSample->setObjectName("lblTextSample");
    lblTextSample->setAlignment(Qt::AlignCenter);
    lblTextSample->setFrameShape(QFrame::Panel);
    lblTextSample->setFrameShadow(QFrame::Sunken);
    lblTextSample->setAutoFillBackground(true);
    lblTextSample->setGeometry(8, 108, 264, 44);

    HsbTextWriteSampleAngle = new QScrollBar(Qt::Horizontal, frame);
    HsbTextWriteSampleAngle->setObjectName("HsbTextWriteSampleAngle");
    HsbTextWriteSampleAngle->setRange(effects::kTextAngleMin, effects::kTextAngleMax);
    HsbTextWriteSampleAngle->setPageStep(15);
    HsbTextWriteSampleAngle->setGeometry(8, 170, 170, 18);
    connect(HsbTextWriteSampleAngle, &QScrollBar::valueChanged, this, [this](int value) {
        if (m_syncing) return;
        m_window.Run([value](Session& s) { s.Frames().TextAngleChanged(value); });
    });
    lblTextAngle = new QLabel(frame);
    lblTextAngle->setGeometry(182, 170, 90, 18);
    picTextWriteAngleSampleBgd =
        MakeSunkenView(frame, QRect(110, 196, 60, 60), "picTextWriteAngleSampleBgd");
    picTextWriteAngleSampleBgd->SetSurface(&window.session().Effects().Text().State().AngleSampleBgd);

    cmdAddTextProceed = MakeFrameButton(frame, kProceedText, "", QRect(8, 262, 80, 26));
    connect(cmdAddTextProceed, &QPushButton::clicked, this,
            [this] { m_window.Run([](Session& s) { s.Frames().AddTextProceed(); }); });
    cmdCancel = MakeFrameButton(frame, kCloseText, kCloseToolTip, QRect(94, 262, 80, 26));
    connect(cmdCancel, &QPushButton::clicked, this,
            [this] { m_window.Run([](Session& s) { s.CancelFrame(); }); });
}

void TextFrame::Sync() {
    const session::Session& s = m_window.session();
    const bool up = s.Form().VisibleFrame == session::Frame::Text;
    const bool opened = up && !m_wasUp;
    m_wasUp = up;
    if (!up) return;
    const session::TextState& t = s.Effects().Text().State();
    m_syncing = true;
    if (cboFontName->count() != static_cast<int>(t.FontNames.size())) {
        cboFontName->clear();
        for (const std::string& name : t.FontNames) cboFontName->addItem(QString::fromStdString(name));
    }
    cboFontName->setCurrentIndex(t.FontIndex);
    if (txbWriteText->text().toStdString() != t.Text) txbWriteText->setText(QString::fromStdString(t.Text));
    cboTextWriteStyle->setCurrentIndex(t.WriteStyle);
    cboFontSize->setCurrentIndex(t.FontSizeIndex);
    for (std::size_t i = 0; i < 2; ++i) imgFontStyle[i]->setChecked(t.FontStyle[i]);
    HsbTextWriteSampleAngle->setValue(t.Angle);
    lblTextAngle->setText(QString::number(t.Angle) + QString::fromUtf8("\u00B0  degrees"));
    picTextWriteAngleSampleBgd->update();

    QFont font = platform::ToQFont(t.Sample.Font);
    font.setStyleStrategy(QFont::PreferDefault);
    lblTextSample->setFont(font);
    QPalette pal = lblTextSample->palette();
    pal.setColor(QPalette::Window, ToQColor(t.Sample.Colors.Back));
    pal.setColor(QPalette::WindowText, ToQColor(t.Sample.Colors.Fore));
    lblTextSample->setPalette(pal);
    m_syncing = false;
    if (opened) txbWriteText->setFocus();
}

}  // namespace vexlo::gui
