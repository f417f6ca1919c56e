#include "gui/ani/ani_container_view.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolButton>

#include "gui/ani/ani_pictures.h"
#include "gui/ani/film_view.h"
#include "gui/platform/surface_view.h"
#include "gui/shell/frm_vexlo.h"

namespace vexlo::gui {

namespace {

using session::AniPointer;

constexpr int kTitleHeight = 24;
constexpr int kSmallButton = 18;
constexpr int kFilmLeft = 6;
constexpr int kFilmTop = 28;
constexpr int kColumnLeft = 92;
constexpr int kColumnWidth = session::kAniContainerWidth - kColumnLeft - 6;

struct ButtonText {
    const char* caption;  // empty for a picture
    const char* tooltip;
};

const ButtonText kButtons[20] = {
    {"", "Close ANI session"},
    {"", "Resize"},
    {"", "Minimize"},
    {"New", "Create new ANI file"},
    {"Open", "Open ANI file"},
    {"Save", "Save to ANI file -- Cursor-based"},
    {"Close", "Close ANI session"},
    {"Set ", "Set interval between frames"},
    {"Test", "Test animation"},
    {"", "Frame property"},
    {"", "From Editing Area"},
    {"", "To Editing Area"},
    {"", "Add new frame below"},
    {"", "Add new frame above"},
    {"", "Remove current frame"},
    {"", "Load direct from ICO file to current frame"},
    {"", "Shift current up"},
    {"", "Shift current down"},
    {"", "Go to one frame up"},
    {"", "Go to one frame down"},
};

QLabel* MakeLabel(QWidget* parent, const QString& text, const QRect& geometry) {
    auto* label = new QLabel(text, parent);
    label->setGeometry(geometry);
    return label;
}

}  // namespace

AniContainerView::AniContainerView(FrmVexlo& form, QWidget* parent, QPoint fraOrigin)
    : QFrame(parent), m_form(form), m_fraOrigin(fraOrigin), m_timer([this] { Tick(); }) {
    setObjectName("picANIContainer");
    setFrameShape(QFrame::Panel);
    setFrameShadow(QFrame::Raised);
    setLineWidth(2);
    setAutoFillBackground(true);
    BuildTitleBar();
    BuildFilm();
    BuildButtons();
    BuildBoxes();
    m_form.session().SetAniTimer(&m_timer);
    hide();
}

void AniContainerView::BuildTitleBar() {
    auto* bar = new QWidget(this);
    bar->setGeometry(2, 2, session::kAniContainerWidth - 4, kTitleHeight - 4);
    bar->setStyleSheet("background-color: #000080;");
    bar->setAttribute(Qt::WA_TransparentForMouseEvents);  // a press on the bar drags the container
    imgANI = new QLabel(this);
    imgANI->setObjectName("imgANI");
    imgANI->setPixmap(ImgAniPicture());
    imgANI->setGeometry(5, 4, 16, 16);
    imgANI->setToolTip("Restore");
    imgANI->installEventFilter(this);
    m_caption = MakeLabel(this, "Animated Cursor", QRect(26, 4, 120, 16));
    m_caption->setStyleSheet("color: white; font-weight: bold;");
    m_caption->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void AniContainerView::BuildFilm() {
    auto* base = new QFrame(this);
    base->setFrameShape(QFrame::Panel);
    base->setFrameShadow(QFrame::Sunken);
    base->setLineWidth(2);
    base->setGeometry(kFilmLeft, kFilmTop, session::kFilmCellWidth + 4, session::kSeriesBaseHeight + 4);
    picANISeriesBase = new QWidget(base);
    picANISeriesBase->setObjectName("picANISeriesBase");
    picANISeriesBase->setGeometry(2, 2, session::kFilmCellWidth, session::kSeriesBaseHeight);
    picANISeriesBase->setAutoFillBackground(true);
    picFilm = new FilmView(picANISeriesBase);
    picFilm->setObjectName("picFilm");
    connect(picFilm, &FilmView::Pressed, this,
            [this] { m_form.Run([](session::Session& s) { s.AniPointerEvent(AniPointer::FilmPress, 0, 0); }); });
    connect(picFilm, &FilmView::Released, this, [this](int x, int y) {
        m_form.Run([x, y](session::Session& s) { s.AniPointerEvent(AniPointer::FilmRelease, x, y); });
    });
    VsrANISeries = new QScrollBar(Qt::Vertical, this);
    VsrANISeries->setObjectName("VsrANISeries");
    VsrANISeries->setGeometry(kFilmLeft + session::kFilmCellWidth + 6, kFilmTop, 16, session::kSeriesBaseHeight + 4);
    connect(VsrANISeries, &QScrollBar::valueChanged, this, [this](int value) {
        if (!m_syncing) m_form.Run([value](session::Session& s) { s.ScrollAniSeries(value); });
    });
}

void AniContainerView::BuildButtons() {
    for (int k = 0; k < 20; ++k) {
        auto* button = new QToolButton(this);
        button->setObjectName(QString("cmdANI%1").arg(k));
        button->setToolTip(kButtons[k].tooltip);
        if (*kButtons[k].caption) {
            button->setText(kButtons[k].caption);
        } else {
            const QPixmap picture = AniButtonPicture(k);
            button->setIcon(QIcon(picture));
            button->setIconSize(picture.size());
        }
        connect(button, &QToolButton::clicked, this,
                [this, k] { m_form.Run([k](session::Session& s) { s.ClickAniButton(k); }); });
        cmdANI[static_cast<std::size_t>(k)] = button;
    }
    for (int k = 0; k <= 2; ++k) cmdANI[static_cast<std::size_t>(k)]->resize(kSmallButton, kSmallButton);
    LayOutSmallButtons();
    // The file buttons in a row.
    for (int i = 0; i < 4; ++i)
        cmdANI[static_cast<std::size_t>(i == 3 ? 6 : 3 + i)]->setGeometry(kColumnLeft + i * 46, kFilmTop, 43, 22);
    // The frame buttons in two rows of five.
    static constexpr int kRows[2][5] = {{10, 11, 15, 12, 13}, {14, 16, 17, 18, 19}};
    for (int row = 0; row < 2; ++row)
        for (int i = 0; i < 5; ++i)
            cmdANI[static_cast<std::size_t>(kRows[row][i])]->setGeometry(kColumnLeft + i * 36, 92 + row * 28, 34, 26);
}

void AniContainerView::BuildBoxes() {
    lblANI[0] = MakeLabel(this, "", QRect(kColumnLeft + 2, 56, kColumnWidth, 16));
    lblANI[1] = MakeLabel(this, "", QRect(kColumnLeft + 2, 72, kColumnWidth, 16));
    for (std::size_t i = 0; i < 2; ++i) lblANI[i]->setObjectName(QString("lblANI%1").arg(i));

    MakeLabel(this, "Jiffies", QRect(kColumnLeft, 154, 40, 22));
    MakeLabel(this, "Hot spot", QRect(kColumnLeft, 208, 54, 22));
    MakeLabel(this, "X", QRect(kColumnLeft + 58, 208, 10, 22));
    MakeLabel(this, "Y", QRect(kColumnLeft + 122, 208, 10, 22));
    static constexpr int kBoxLeft[3] = {kColumnLeft + 40, kColumnLeft + 68, kColumnLeft + 132};
    static constexpr int kBoxTop[3] = {154, 208, 208};
    for (int k = 0; k < 3; ++k) {
        auto* box = new QComboBox(this);
        box->setObjectName(QString("cboANI%1").arg(k));
        const int first = k == 0 ? 1 : 0;
        const int last = k == 0 ? session::kAniMaxJiffies : session::kAniMaxHotSpot;
        for (int v = first; v <= last; ++v) box->addItem(QString::number(v));
        box->setGeometry(kBoxLeft[k], kBoxTop[k], k == 0 ? 52 : 48, 22);
        connect(box, &QComboBox::activated, this, [this, k, first](int index) {
            m_form.Run([k, value = index + first](session::Session& s) { s.ChooseAniBox(k, value); });
        });
        cboANI[static_cast<std::size_t>(k)] = box;
    }
    cmdANI[7]->setGeometry(kColumnLeft + 98, 154, 44, 22);
    ckbJIFSinglely = new QCheckBox("Set singly", this);
    ckbJIFSinglely->setObjectName("ckbJIFSinglely");
    ckbJIFSinglely->setToolTip("Leave unchecked if same jiffies apply to all frames");
    ckbJIFSinglely->setGeometry(kColumnLeft, 180, 100, 22);
    connect(ckbJIFSinglely, &QCheckBox::clicked, this,
            [this](bool checked) { m_form.Run([checked](session::Session& s) { s.ClickAniSingly(checked); }); });
    cmdANI[9]->setGeometry(kColumnLeft + 150, 178, 28, 26);

    auto* testBox = new QFrame(this);
    testBox->setFrameShape(QFrame::Panel);
    testBox->setFrameShadow(QFrame::Sunken);
    testBox->setLineWidth(2);
    testBox->setGeometry(kColumnLeft, 244, 36, 36);
    picANITest = new SurfaceView(&m_form.session().Ani().Test().Picture(), testBox);
    picANITest->setObjectName("picANITest");
    picANITest->setGeometry(2, 2, 32, 32);
    cmdANI[8]->setGeometry(kColumnLeft + 48, 250, 60, 24);
}

void AniContainerView::LayOutSmallButtons() {
    // cmdANI(2), cmdANI(1), cmdANI(0) from left to right, the last 6 pixels from the edge.
    const int right = width() - 6;
    for (int i = 0; i <= 2; ++i)
        cmdANI[static_cast<std::size_t>(i)]->move(right - (i + 1) * kSmallButton, 3);
    m_caption->resize(std::min(120, right - 3 * kSmallButton - m_caption->x() - 2), m_caption->height());
}

void AniContainerView::Sync() {
    const session::AniSession& ani = m_form.session().Ani();
    if (!ani.ContainerVisible()) {
        hide();
        return;
    }
    m_syncing = true;
    const session::AniContainerRect& r = ani.Container().Rect();
    const QRect place(m_fraOrigin + QPoint(r.Left, r.Top), QSize(r.Width, r.Height));
    if (geometry() != place) {
        setGeometry(place);
        LayOutSmallButtons();
    }
    for (int k = 0; k < 20; ++k) cmdANI[static_cast<std::size_t>(k)]->setEnabled(ani.ButtonEnabled(k));
    cmdANI[8]->setText(QString::fromStdString(ani.Test().Caption()));
    for (std::size_t i = 0; i < 2; ++i) lblANI[i]->setText(QString::fromStdString(ani.Labels()[i]));
    const session::AniBoxes& boxes = ani.Boxes();
    cboANI[0]->setCurrentIndex(boxes.Jiffies - 1);
    cboANI[1]->setCurrentIndex(boxes.HotX);
    cboANI[2]->setCurrentIndex(boxes.HotY);
    ckbJIFSinglely->setChecked(boxes.Singly);

    const session::AniFilm& film = ani.Film();
    picFilm->Sync(film);
    const session::SeriesScroll& scroll = film.Scroll();
    VsrANISeries->setRange(0, scroll.Max);
    VsrANISeries->setSingleStep(scroll.SmallChange);
    VsrANISeries->setPageStep(scroll.LargeChange);
    VsrANISeries->setValue(scroll.Value);
    picFilm->move(0, film.Top());
    picANITest->update();
    if (isHidden()) {
        show();
        raise();
    }
    m_syncing = false;
}

void AniContainerView::Tick() {
    // Runs also while an operation lets pending events run: the tick changes nothing but the
    // test's own picture.
    if (m_form.session().AniTimerTick()) picANITest->repaint();
}

QPoint AniContainerView::InFra(const QPoint& p) const { return mapToParent(p) - m_fraOrigin; }

void AniContainerView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint p = InFra(event->position().toPoint());
    m_form.Run([p](session::Session& s) { s.AniPointerEvent(AniPointer::ContainerPress, p.x(), p.y()); });
}

void AniContainerView::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QPoint p = InFra(event->position().toPoint());
    m_form.Run([p](session::Session& s) { s.AniPointerEvent(AniPointer::ContainerDrag, p.x(), p.y()); });
}

void AniContainerView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    m_form.Run([](session::Session& s) { s.AniPointerEvent(AniPointer::ContainerDoubleClick, 0, 0); });
}

bool AniContainerView::eventFilter(QObject* watched, QEvent* event) {
    // The label takes no press of its own: the press is where the click is seen.
    if (watched == imgANI && event->type() == QEvent::MouseButtonPress) {
        m_form.Run([](session::Session& s) { s.AniPointerEvent(AniPointer::ImgAniClick, 0, 0); });
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

}  // namespace vexlo::gui
