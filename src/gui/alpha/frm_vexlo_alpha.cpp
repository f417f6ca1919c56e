#include "gui/alpha/frm_vexlo_alpha.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>

#include "gui/platform/picture_frame.h"
#include "gui/platform/surface_view.h"

namespace vexlo::gui {

namespace {

constexpr int kMargin = 10;
constexpr int kDispSide = session::AlphaEditor::kDispSide;
constexpr int kColumnX = kMargin + kDispSide + 16;  // the right column
constexpr int kColumnWidth = 210;
constexpr int kBoxSide = 56;                        // holds a 48x48 picture
constexpr int kWidth = kColumnX + kColumnWidth + kMargin;
constexpr int kHeight = kMargin + kDispSide + 34;

QWidget* SunkenBox(QWidget* parent, int x, int y, int w, int h) {
    QLabel* box = MakePictureFrame(parent);
    box->setGeometry(x, y, w, h);
    return box;
}

SurfaceView* PictureIn(QWidget* box, const surface::Surface* s) {
    auto* view = new SurfaceView(s, box);
    view->SetCentred(true);
    view->setGeometry(2, 2, box->width() - 4, box->height() - 4);
    return view;
}

// The pictures of the two conversions: soft colors kept, or plain colors.
QIcon ConversionPicture(bool blended) {
    QPixmap pixmap(24, 24);
    pixmap.fill(QColor(0xC0, 0xC0, 0xC0));
    QPainter painter(&pixmap);
    for (int i = 0; i < 4; ++i) {
        const int a = blended ? 255 - i * 55 : 255;
        painter.fillRect(3 + i * 4, 3 + i * 4, 18 - i * 8, 18 - i * 8, QColor(200, 0, 0, a));
    }
    painter.setPen(Qt::black);
    painter.drawText(QRect(0, 12, 24, 12), Qt::AlignCenter, QStringLiteral("24"));
    return QIcon(pixmap);
}

}  // namespace

frmVexloAlpha::frmVexloAlpha(host::Host& host, const host::AlphaEditorRequest& request, QWidget* parent)
    : QDialog(parent), m_model(host, request) {
    setWindowTitle(QStringLiteral("View/Edit/Create Alpha Channel"));
    setModal(true);
    setMouseTracking(true);
    Build();
    Connect();
    Sync();
}

host::AlphaEditorAnswer frmVexloAlpha::Run(host::Host& host, const host::AlphaEditorRequest& request,
                                           QWidget* parent) {
    frmVexloAlpha form(host, request, parent);
    form.exec();
    return form.Model().Answer();
}

void frmVexloAlpha::Build() {
    setFixedSize(kWidth, kHeight);
    QWidget* dispBox = SunkenBox(this, kMargin - 2, kMargin - 2, kDispSide + 4, kDispSide + 4);
    picDisp = new SurfaceView(&m_model.Disp(), dispBox);
    picDisp->setGeometry(2, 2, kDispSide, kDispSide);
    lblDispXY = new QLabel(this);
    lblDispXY->setGeometry(kMargin, kMargin + kDispSide + 8, kDispSide, 20);

    const int pairX[2] = {kColumnX, kColumnX + kBoxSide + 40};
    const int groupY[2] = {kMargin, kMargin + 110};
    const surface::Surface* pictures[4] = {&m_model.IconOrig(), &m_model.MaskOrig(), &m_model.ImageAlpha(),
                                           &m_model.MaskAlpha()};
    SurfaceView** views[4] = {&PicIconOrig, &picMaskOrig, &picImageAlpha, &picMaskAlpha};
    // lblAlpha: 0 and 3 head the two pairs, 2 and 1 name the first pair, 5 and 4 the second.
    const int names[4] = {2, 1, 5, 4};
    for (int g = 0; g < 2; ++g) {
        lblAlpha[static_cast<std::size_t>(g * 3)] =
            new QLabel(QString::fromLatin1(session::AlphaEditor::LabelText(g * 3)), this);
        lblAlpha[static_cast<std::size_t>(g * 3)]->setGeometry(kColumnX, groupY[g], kColumnWidth, 18);
        for (int i = 0; i < 2; ++i) {
            const int k = g * 2 + i;
            m_boxes[static_cast<std::size_t>(k)] = SunkenBox(this, pairX[i], groupY[g] + 22, kBoxSide, kBoxSide);
            *views[k] = PictureIn(m_boxes[static_cast<std::size_t>(k)], pictures[k]);
            auto* name = new QLabel(QString::fromLatin1(session::AlphaEditor::LabelText(names[k])), this);
            name->setAlignment(Qt::AlignHCenter);
            name->setGeometry(pairX[i] - 20, groupY[g] + 22 + kBoxSide + 2, kBoxSide + 40, 18);
            lblAlpha[static_cast<std::size_t>(names[k])] = name;
        }
    }

    fraEditAlphaValue = new QGroupBox(QStringLiteral("Edit alpha value"), this);
    fraEditAlphaValue->setGeometry(kColumnX, kMargin + 214, kColumnWidth, 90);
    cboAlphaValue = new QComboBox(fraEditAlphaValue);
    for (int v = 1; v <= 255; ++v) cboAlphaValue->addItem(QString::number(v));
    cboAlphaValue->setGeometry(10, 24, 70, 24);
    picAlphaValue = new QLabel(fraEditAlphaValue);
    picAlphaValue->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    picAlphaValue->setAutoFillBackground(true);
    picAlphaValue->setGeometry(88, 24, 24, 24);
    cmdRestore = new QPushButton(QStringLiteral("Restore"), fraEditAlphaValue);
    cmdRestore->setToolTip(QStringLiteral("Restore to original"));
    cmdRestore->setGeometry(120, 22, 80, 28);
    hsrAlphaValue = new QScrollBar(Qt::Horizontal, fraEditAlphaValue);
    hsrAlphaValue->setRange(1, 255);
    hsrAlphaValue->setGeometry(10, 58, kColumnWidth - 20, 18);

    const char* const captions[5] = {"", "", "Create Alpha ", "Save && Exit", "Exit"};
    const char* const tips[5] = {"Convert to 24 BPP retaining alphaed colors",
                                 "Change to 24 BPP, without varied colors",
                                 "Change current icon to 32 BPP True Color", "Save session and exit",
                                 "Abort session and exit"};
    const int buttonY = kMargin + 314;
    for (int k = 0; k < 5; ++k) {
        auto* button = new QPushButton(QString::fromLatin1(captions[k]), this);
        button->setToolTip(QString::fromLatin1(tips[k]));
        if (k < 2) {
            button->setIcon(ConversionPicture(k == 0));
            button->setIconSize(QSize(24, 24));
            button->setGeometry(kColumnX + k * 52, buttonY, 46, 34);
        }
        cmdAlpha[static_cast<std::size_t>(k)] = button;
    }
    cmdAlpha[2]->setGeometry(kColumnX + 110, buttonY, 100, 34);
    cmdAlpha[3]->setGeometry(kColumnX, buttonY + 42, 100, 30);
    cmdAlpha[4]->setGeometry(kColumnX + 110, buttonY + 42, 100, 30);
}

void frmVexloAlpha::Connect() {
    connect(picDisp, &SurfaceView::Pressed, this, [this](Qt::MouseButton, Qt::KeyboardModifiers, int x, int y) {
        m_model.PointerPressed(x, y);
        Sync();
    });
    connect(picDisp, &SurfaceView::Moved, this, [this](Qt::MouseButtons, Qt::KeyboardModifiers, int x, int y) {
        m_model.PointerMoved(x, y);
        Sync();
    });
    connect(picDisp, &SurfaceView::Released, this, [this](Qt::MouseButton button, Qt::KeyboardModifiers, int, int) {
        m_model.PointerReleased(button == Qt::RightButton);
        Sync();
    });
    connect(cboAlphaValue, &QComboBox::activated, this, [this](int index) {
        m_model.ValueComboClicked(index);
        Sync();
    });
    connect(hsrAlphaValue, &QScrollBar::valueChanged, this, [this](int value) {
        m_model.ValueScrolled(value);
        Sync();
    });
    connect(cmdRestore, &QPushButton::clicked, this, [this] {
        m_model.ClickRestore();
        Sync();
    });
    for (int k = 0; k < 5; ++k) {
        connect(cmdAlpha[static_cast<std::size_t>(k)], &QPushButton::clicked, this, [this, k] {
            m_model.ClickAlpha(k);
            Sync();
        });
    }
}

void frmVexloAlpha::Sync() {
    const bool panels = m_model.AlphaPanelsVisible();
    for (int k : {3, 4, 5}) lblAlpha[static_cast<std::size_t>(k)]->setVisible(panels);
    m_boxes[2]->setVisible(panels);
    m_boxes[3]->setVisible(panels);
    fraEditAlphaValue->setVisible(m_model.EditFrameVisible());
    for (int k = 0; k < 5; ++k) cmdAlpha[static_cast<std::size_t>(k)]->setEnabled(m_model.ButtonEnabled(k));
    cmdRestore->setEnabled(m_model.RestoreEnabled());
    {
        const QSignalBlocker blockCombo(cboAlphaValue);
        const QSignalBlocker blockScroll(hsrAlphaValue);
        cboAlphaValue->setCurrentIndex(m_model.ValueListIndex());
        hsrAlphaValue->setValue(m_model.ScrollValue());
    }
    QPalette pal = picAlphaValue->palette();
    const surface::Color c = m_model.Swatch();
    pal.setColor(QPalette::Window, QColor(surface::RedOf(c), surface::GreenOf(c), surface::BlueOf(c)));
    picAlphaValue->setPalette(pal);
    lblDispXY->setText(QString::fromStdString(m_model.DispXY()));
    picDisp->setCursor(m_model.PaintPointer() ? Qt::CrossCursor : Qt::ArrowCursor);
    for (SurfaceView* view : {picDisp, PicIconOrig, picMaskOrig, picImageAlpha, picMaskAlpha}) view->update();
    if (m_model.Closed() && isVisible()) QDialog::done(QDialog::Accepted);
}

void frmVexloAlpha::closeEvent(QCloseEvent* event) {
    if (m_model.Closed() || m_model.RequestClose()) {
        event->accept();
        return;
    }
    event->ignore();
}

void frmVexloAlpha::reject() {
    if (m_model.Closed() || m_model.RequestClose()) QDialog::reject();
}

void frmVexloAlpha::mouseMoveEvent(QMouseEvent* event) {
    m_model.PointerOverForm();
    lblDispXY->clear();
    QDialog::mouseMoveEvent(event);
}

}  // namespace vexlo::gui
