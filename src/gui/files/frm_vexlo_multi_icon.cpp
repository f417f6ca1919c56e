// frmVexloMultiIcon: construction and layout of both faces. Forwarding to the model and the
// redraw from it are in frm_vexlo_multi_icon_actions.cpp.
#include "gui/files/frm_vexlo_multi_icon.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

#include "gui/files/icon_list_box.h"
#include "gui/platform/picture_frame.h"
#include "gui/platform/surface_view.h"
#include "gui/platform/system_info.h"

namespace vexlo::gui {

namespace {

// Where the controls stand, in pixels. Both faces share the list column on the left and the
// preview and buttons column on the right.
constexpr int kWidth = 470;
constexpr int kMargin = 10;
constexpr int kListWidth = 320;
constexpr int kColumnX = kMargin + kListWidth + 12;     // the right column
constexpr int kColumnWidth = kWidth - kColumnX - kMargin;
constexpr int kButtonHeight = 26;
constexpr int kButtonStep = 30;
constexpr int kFrameSide = 72;                          // lblIconInFile, holds a 48x48 image
constexpr int kEditHeight = 312;
constexpr int kAddHeight = 420;

QPushButton* MakeButton(const char* caption, const char* tip, QWidget* parent) {
    auto* button = new QPushButton(QString::fromLatin1(caption), parent);
    if (tip != nullptr) button->setToolTip(QString::fromLatin1(tip));
    return button;
}

QLabel* MakeLabel(const char* caption, QWidget* parent) {
    return new QLabel(QString::fromLatin1(caption), parent);
}

// A label that shows a path in a sunken box: a path too long for it loses its middle on the
// screen, so that the file's name stays in view; text() is the whole path.
class PathLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override {
        QFrame::paintEvent(event);
        QPainter painter(this);
        const QRect area = contentsRect().adjusted(4, 0, -4, 0);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width()));
    }
};

QLabel* MakePathLabel(const char* caption, QWidget* parent) {
    auto* label = new PathLabel(QString::fromLatin1(caption), parent);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    return label;
}


}  // namespace

frmVexloMultiIcon::frmVexloMultiIcon(host::Host& host, const std::string& fileSpec, int addMode, QWidget* parent)
    : QDialog(parent), m_model(host, fileSpec, addMode, platform::ProgramDirectory()) {
    BuildEditFace();
    BuildAddFace();

    // The face of the mode, its caption and its size.
    const auto face = static_cast<std::size_t>(m_model.AddFace());
    setWindowTitle(QString::fromLatin1(m_model.Caption()));
    picContainer[face]->show();
    picContainer[1 - face]->hide();
    setFixedSize(picContainer[face]->size());
    CentreOnScreen();
    // Split Save walks the list inside one step: the window follows it as it goes.
    m_model.SetChangedHandler([this] { Redraw(); });
}

frmVexloMultiIcon::~frmVexloMultiIcon() = default;

void frmVexloMultiIcon::BuildCommonControls(int k) {
    const auto i = static_cast<std::size_t>(k);
    QWidget* face = picContainer[i];
    lisIcons[i] = new IconListBox(face);
    QFont listFont = lisIcons[i]->font();
    listFont.setFamily(QStringLiteral("Tahoma"));
    lisIcons[i]->setFont(listFont);
    lblIconInFile[i] = MakePictureFrame(face);
    picIconInFile[i] = new SurfaceView(&m_model.IconInFile(k), face);
    picIconInFile[i]->SetCentred(true);
    cmdRemove[i] = MakeButton("Remove", "Remove highlighted icon", face);
    cmdSplitSave[i] = MakeButton("Split Save", "Split save all to single-icon files", face);
    cmdSaveSingle[i] = MakeButton("Save Single", "Save selected to a single-icon file", face);
    cmdClose[i] = MakeButton("Close", nullptr, face);

    // Only the face of the mode is shown, so only its controls are ever used.
    connect(lisIcons[i], &IconListBox::Click, this,
            [this, i] { Forward([row = lisIcons[i]->SelectedRow()](auto& m) { m.Highlight(row); }); });
    connect(cmdRemove[i], &QPushButton::clicked, this, [this] { Forward([](auto& m) { m.Remove(); }); });
    connect(cmdSplitSave[i], &QPushButton::clicked, this, [this] { Forward([](auto& m) { m.SplitSave(); }); });
    connect(cmdSaveSingle[i], &QPushButton::clicked, this, [this] { Forward([](auto& m) { m.SaveSingle(); }); });
    connect(cmdClose[i], &QPushButton::clicked, this, [this] { Forward([](auto& m) { m.Close(); }); });
}

void frmVexloMultiIcon::BuildEditFace() {
    QWidget* face = picContainer[0] = new QWidget(this);
    face->setGeometry(0, 0, kWidth, kEditHeight);
    lblFileToEdit[0] = MakePathLabel("File spec", face);
    lblFileToEdit[0]->setGeometry(kMargin, kMargin, kWidth - 2 * kMargin, 24);
    lblFileToEdit[1] = MakeLabel("Select one of the following listed icons:", face);
    lblFileToEdit[1]->setGeometry(kMargin, 42, kListWidth, 20);

    BuildCommonControls(0);
    constexpr int top = 64;
    lisIcons[0]->setGeometry(kMargin, top, kListWidth, kEditHeight - top - kMargin);
    lblIconInFile[0]->setGeometry(kColumnX + (kColumnWidth - kFrameSide) / 2, top, kFrameSide, kFrameSide);
    cmdEdit = MakeButton("Edit", "Edit highlighted icon", face);
    cmdEdit->setDefault(true);
    int y = top + kFrameSide + 12;
    for (QPushButton* b : {cmdEdit, cmdRemove[0], cmdSplitSave[0], cmdSaveSingle[0]}) {
        b->setGeometry(kColumnX, y, kColumnWidth, kButtonHeight);
        y += kButtonStep;
    }
    cmdClose[0]->setGeometry(kColumnX, kEditHeight - kMargin - kButtonHeight, kColumnWidth, kButtonHeight);
    connect(cmdEdit, &QPushButton::clicked, this, [this] { Forward([](auto& m) { m.Edit(); }); });
}

void frmVexloMultiIcon::BuildAddFace() {
    QWidget* face = picContainer[1] = new QWidget(this);
    face->setGeometry(0, 0, kWidth, kAddHeight);
    lblCurrIcon[0] = MakeLabel("Current Icon:", face);
    lblCurrIcon[0]->setGeometry(kMargin, kMargin, 120, 20);
    lblCurrIconBase = MakePictureFrame(face);
    lblCurrIconBase->setGeometry(kMargin, 32, kFrameSide, kFrameSide);
    PicCurrIcon = new SurfaceView(&m_model.CurrIcon(), face);
    PicCurrIcon->SetCentred(true);
    lblCurrIcon[1] = MakeLabel("Size and color depth", face);
    lblCurrIcon[1]->setGeometry(kMargin + kFrameSide + 12, 32 + (kFrameSide - 20) / 2,
                                kWidth - 2 * kMargin - kFrameSide - 12, 20);

    lblExistingFile[0] = MakeLabel("Add To:", face);
    lblExistingFile[0]->setGeometry(kMargin, 114, 120, 20);
    lblExistingFile[1] = MakePathLabel("Existing file spec", face);
    lblExistingFile[1]->setGeometry(kMargin, 136, kWidth - 2 * kMargin, 24);
    lblExistingFile[2] = MakeLabel("containing the following icon(s):", face);
    lblExistingFile[2]->setGeometry(kMargin, 168, kListWidth, 20);

    BuildCommonControls(1);
    constexpr int top = 190;
    const int bottomRow = kAddHeight - kMargin - kButtonHeight;
    lisIcons[1]->setGeometry(kMargin, top, kListWidth, bottomRow - 10 - top);
    lblIconInFile[1]->setGeometry(kColumnX + (kColumnWidth - kFrameSide) / 2, top, kFrameSide, kFrameSide);
    int y = top + kFrameSide + 12;
    for (QPushButton* b : {cmdRemove[1], cmdSplitSave[1], cmdSaveSingle[1]}) {
        b->setGeometry(kColumnX, y, kColumnWidth, kButtonHeight);
        y += kButtonStep;
    }

    cmdSaveAdd[0] = MakeButton("Save", "Add to listed file spec", face);
    cmdSaveAdd[1] = MakeButton("Save As", "Save to a different file spec", face);
    // Save and Save As under the list, at its right end; Close in the right column.
    constexpr int saveWidth = 96;
    cmdSaveAdd[1]->setGeometry(kMargin + kListWidth - saveWidth, bottomRow, saveWidth, kButtonHeight);
    cmdSaveAdd[0]->setGeometry(kMargin + kListWidth - 2 * saveWidth - 8, bottomRow, saveWidth, kButtonHeight);
    cmdClose[1]->setGeometry(kColumnX, bottomRow, kColumnWidth, kButtonHeight);
    connect(cmdSaveAdd[0], &QPushButton::clicked, this, [this] { Forward([](auto& m) { m.SaveAdd(0); }); });
    connect(cmdSaveAdd[1], &QPushButton::clicked, this, [this] { Forward([](auto& m) { m.SaveAdd(1); }); });
}

void frmVexloMultiIcon::CentreOnScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    const QRect area = screen->availableGeometry();
    move(area.center() - QPoint(width() / 2, height() / 2));
}

}  // namespace vexlo::gui
