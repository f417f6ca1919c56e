// Where the main window's controls stand. The form is of fixed size, so controls are placed
// at fixed positions, as on the form they come from.
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QStatusBar>

#include "gui/shell/frm_vexlo.h"
#include "gui/effects/frm_vexlo_adjust_colors.h"
#include "gui/effects/frm_vexlo_buttonize.h"
#include "gui/effects/frm_vexlo_rotate_angle.h"
#include "gui/effects/frm_vexlo_text.h"
#include "gui/ani/ani_container_view.h"
#include "gui/icons_list/frm_vexlo_icons_list.h"
#include "gui/search/frm_vexlo_search_exe.h"
#include "gui/platform/elided_label.h"
#include "gui/platform/surface_view.h"
#include "gui/print/frm_vexlo_print.h"

namespace vexlo::gui {

namespace {

constexpr int kToolbarRowHeight = 30;
constexpr int kDispLeft = 6;
constexpr int kDispTop = kToolbarRowHeight + 4;
constexpr int kPanelLeft = kDispLeft + 388 + 8;
constexpr int kPanelRow = 64;
constexpr int kRightLeft = kPanelLeft + 70 + 8;
constexpr int kRightWidth = kFormWidth - kRightLeft - 6;
constexpr int kFramesTop = kDispTop + 82;
constexpr int kFramesHeight = 388 - 82;

QLabel* MakeLabel(QWidget* parent, const QString& text, const QRect& geometry) {
    auto* label = new QLabel(text, parent);
    label->setGeometry(geometry);
    return label;
}

QFrame* MakeSunken(QWidget* parent, const QRect& geometry) {
    auto* frame = new QFrame(parent);
    frame->setFrameShape(QFrame::Panel);
    frame->setFrameShadow(QFrame::Sunken);
    frame->setLineWidth(2);
    frame->setGeometry(geometry);
    return frame;
}

// The small picture beside the "Alpha" text of the status bar.
QPixmap AlphaPicture() {
    QPixmap pixmap(16, 16);
    QPainter painter(&pixmap);
    for (int y = 0; y < 16; y += 4)
        for (int x = 0; x < 16; x += 4)
            painter.fillRect(x, y, 4, 4, ((x + y) / 4) % 2 ? QColor(0xC0, 0xC0, 0xC0) : Qt::white);
    QLinearGradient fade(0, 0, 16, 0);
    fade.setColorAt(0, QColor(0, 0, 160, 255));
    fade.setColorAt(1, QColor(0, 0, 160, 0));
    painter.fillRect(2, 5, 12, 6, fade);
    painter.setPen(Qt::black);
    painter.drawRect(0, 0, 15, 15);
    return pixmap;
}

const char* const kFrameCaptions[] = {
    "", "Colors", "Gradient", "Print", "Save As Cursor", "Search EXE Files", "Text", "Icons List",
    "Adjust painted colors", "Buttonize", "Rotate image (-359 to +359)", "Effects", "Confine To Mono"};

}  // namespace

void FrmVexlo::BuildLayout() {
    m_form = new QWidget(this);
    m_form->setMouseTracking(true);
    m_form->installEventFilter(this);
    setCentralWidget(m_form);

    auto* toolbarRow = new QFrame(m_form);
    toolbarRow->setObjectName("toolbarRow");
    toolbarRow->setGeometry(0, 0, kFormWidth, kToolbarRowHeight);
    BuildToolbar(toolbarRow);

    QFrame* picDispContainer = MakeSunken(m_form, QRect(kDispLeft, kDispTop, 388, 388));
    picDispContainer->setObjectName("picDispContainer");
    picDisp = new SurfaceView(&m_session.View().Disp(), picDispContainer);
    picDisp->setObjectName("picDisp");
    picDisp->setGeometry(2, 2, 384, 384);
    picDisp->setFocusPolicy(Qt::StrongFocus);

    BuildPanel(m_form);

    lblIcon = MakeLabel(m_form, "Icon", QRect(kRightLeft, kDispTop, 56, 14));
    picIcon = new SurfaceView(&m_session.Icon().Composed(), m_form);
    picIcon->setObjectName("PicIcon");
    lblMask = MakeLabel(m_form, "Mask", QRect(kRightLeft + 70, kDispTop, 56, 14));
    picMask = new SurfaceView(&m_session.Icon().Mask(), m_form);
    picMask->setObjectName("picMask");
    LayOutIconAndMask();
    BuildRegionControls(m_form, QPoint(kRightLeft + 140, kDispTop));

    for (int f = static_cast<int>(session::Frame::ColorsPanel);
         f <= static_cast<int>(session::Frame::ConfineToMono); ++f) {
        auto* frame = new QFrame(m_form);
        frame->setFrameShape(QFrame::StyledPanel);
        frame->setGeometry(kRightLeft, kFramesTop, kRightWidth, kFramesHeight);
        frame->setObjectName(QString("fra%1").arg(f));
        if (f != static_cast<int>(session::Frame::ColorsPanel) &&
            f != static_cast<int>(session::Frame::EffectsShades) &&
            f != static_cast<int>(session::Frame::SaveAsCursor) &&
            f != static_cast<int>(session::Frame::IconsList) &&
            f != static_cast<int>(session::Frame::SearchExeInFolder)) {
            auto* caption = new QLabel(kFrameCaptions[f], frame);
            caption->move(6, 4);
        }
        frame->hide();
        Frames[static_cast<session::Frame>(f)] = frame;
    }
    Frames[session::Frame::ColorsPanel]->setObjectName("fraColorsPanel");
    BuildColorsPanel(Frames[session::Frame::ColorsPanel]);
    BuildShadesFrame(Frames[session::Frame::EffectsShades]);
    BuildSaveAsCursorFrame(Frames[session::Frame::SaveAsCursor]);
    fraButtonize = new ButtonizeFrame(*this, Frames[session::Frame::Buttonize]);
    fraAdjustPaintedColors = new AdjustColorsFrame(*this, Frames[session::Frame::AdjustPaintedColors]);
    fraText = new TextFrame(*this, Frames[session::Frame::Text]);
    fraRotateSelectAngle = new RotateAngleFrame(*this, Frames[session::Frame::RotateSelectAngle]);
    BuildGradientFrame(Frames[session::Frame::Gradient]);
    BuildConfineToMonoFrame(Frames[session::Frame::ConfineToMono]);
    // picFraContainer, where the container moves, begins 40 pixels above the panel frames.
    picANIContainer = new AniContainerView(*this, m_form, QPoint(kRightLeft - 1, kFramesTop - session::kAniContainerTop));
    fraPrint = new PrintFrame(*this, Frames[session::Frame::Print]);
    // The Icons List takes the whole height beside the panel: the icon, the mask and the info
    // labels are empty while it is up.
    Frames[session::Frame::IconsList]->setGeometry(kRightLeft, kDispTop, kRightWidth, 388 + 48);
    Frames[session::Frame::IconsList]->setObjectName("fraIconsList");
    fraIconsList = new IconsListFrame(*this, Frames[session::Frame::IconsList]);
    Frames[session::Frame::SearchExeInFolder]->setObjectName("fraSearchExeInFolder");
    fraSearchExeInFolder = new SearchExeFrame(*this, Frames[session::Frame::SearchExeInFolder]);

    auto* toolbox = new QWidget(m_form);
    toolbox->setObjectName("Toolbox");
    toolbox->setGeometry(kDispLeft, kDispTop + 388 + 4, 388, 24);
    BuildToolbox(toolbox);

    const int infoTop = kDispTop + 388 + 32;
    lblDispXY = MakeLabel(m_form, "", QRect(kDispLeft + 2, infoTop, 96, 16));
    lblDispXY->setObjectName("lblDispXY");
    lblMix = MakeLabel(m_form, "", QRect(kDispLeft + 100, infoTop, 130, 16));
    lblRegionMeasure = MakeLabel(m_form, "", QRect(kDispLeft + 232, infoTop, 240, 16));
    lblForExtendedFrame = MakeLabel(m_form, "", QRect(kRightLeft, infoTop, kRightWidth, 16));

    BuildStatusBar();
}

void FrmVexlo::BuildPanel(QWidget* parent) {
    for (int i = 0; i < session::kSlotCount; ++i) {
        const int top = kDispTop + i * kPanelRow;
        auto* label = MakeLabel(parent, QString::number(i + 1), QRect(kPanelLeft, top, 70, 12));
        label->setAlignment(Qt::AlignCenter);
        label->setAutoFillBackground(true);
        label->installEventFilter(this);
        lblPanelIcon[static_cast<std::size_t>(i)] = label;
        QFrame* box = MakeSunken(parent, QRect(kPanelLeft + 7, top + 12, 56, 52));
        auto* view = new SurfaceView(&m_session.Panel().PanelIcon(static_cast<std::size_t>(i)), box);
        view->setObjectName(QString("picPanelIcon%1").arg(i));
        view->SetCentred(true);
        view->setGeometry(2, 2, 52, 48);
        picPanelIcon[static_cast<std::size_t>(i)] = view;
        connect(view, &SurfaceView::Clicked, this, [this, i] { Run([i](auto& s) { s.ClickPanel(i); }); });
        connect(view, &SurfaceView::DoubleClicked, this,
                [this, i] { Run([i](auto& s) { s.DoubleClickPanel(i); }); });
        connect(view, &SurfaceView::Released, this,
                [this, i](Qt::MouseButton button, Qt::KeyboardModifiers, int, int) {
                    if (button == Qt::RightButton &&
                        m_session.Form().VisibleFrame == session::Frame::IconsList)
                        Run([i](auto& s) { s.DoubleClickPanel(i); });
                });
    }
}

void FrmVexlo::BuildStatusBar() {
    QStatusBar* bar = statusBar();
    bar->setSizeGripEnabled(false);
    static constexpr int kWidths[4] = {330, 40, 70, 44};
    for (int i = 0; i < 4; ++i) {
        auto* label = new ElidedLabel(bar);
        label->setFrameShape(QFrame::Panel);
        label->setFrameShadow(QFrame::Sunken);
        label->setFixedWidth(kWidths[i]);
        label->setObjectName(QString("lblStatusPanel%1").arg(i));
        bar->addWidget(label);
        lblStatusPanel[static_cast<std::size_t>(i)] = label;
    }
    imgAlphaOnStatusPanel = new QLabel(bar);
    imgAlphaOnStatusPanel->setPixmap(AlphaPicture());
    imgAlphaOnStatusPanel->hide();
    bar->addWidget(imgAlphaOnStatusPanel);

    picProgressContainer = new QFrame(bar);
    picProgressContainer->setFrameShape(QFrame::Panel);
    picProgressContainer->setFrameShadow(QFrame::Sunken);
    picProgressContainer->setFixedSize(160, 16);
    picProgress = new QFrame(picProgressContainer);
    picProgress->setStyleSheet("background-color: #000080;");
    picProgress->setGeometry(0, 0, 160, 16);
    lblProgressText = new QLabel(picProgressContainer);
    lblProgressText->setGeometry(80, 1, 60, 14);
    lblProgressText->setStyleSheet("color: #C0C0C0;");
    bar->addPermanentWidget(picProgressContainer);
    picProgressContainer->hide();
}

void FrmVexlo::LayOutIconAndMask() {
    const bool mask = m_session.Form().DisplayMaskChecked;
    const int picTop = kDispTop + 16;
    picIcon->setGeometry(kRightLeft, picTop, 48, 48);
    lblIcon->move(kRightLeft, kDispTop);
    lblMask->setVisible(mask);
    picMask->setVisible(mask);
    if (mask) {
        lblMask->move(kRightLeft + 70, kDispTop);
        picMask->setGeometry(kRightLeft + 70, picTop, 48, 48);
    }
}

namespace {

bool IsUserInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Wheel:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
            return true;
        default:
            return false;
    }
}

}  // namespace

bool FrmVexlo::eventFilter(QObject* watched, QEvent* event) {
    if (m_session.Busy() && IsUserInput(event->type())) return true;
    if (watched == m_form && event->type() == QEvent::MouseMove) {
        m_session.PointerOverForm();
        SyncStatus();
        return false;
    }
    for (int i = 0; i < session::kSlotCount; ++i) {
        if (watched != lblPanelIcon[static_cast<std::size_t>(i)]) continue;
        if (event->type() == QEvent::MouseButtonRelease)
            Run([i](auto& s) { s.ClickPanel(i); });
        else if (event->type() == QEvent::MouseButtonDblClick)
            Run([i](auto& s) { s.DoubleClickPanel(i); });
    }
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace vexlo::gui
