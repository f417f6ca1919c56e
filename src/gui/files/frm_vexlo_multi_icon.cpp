// frmVexloMultiIcon: construction and layout of both faces, first activation, the list and
// the preview. The buttons' handlers are in frm_vexlo_multi_icon_actions.cpp.
#include "gui/files/frm_vexlo_multi_icon.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QStyledItemDelegate>
#include <QTextOption>
#include <QTimer>

#include "core/files/ico_read.h"
#include "core/host/host.h"
#include "gui/platform/message_box.h"
#include "gui/platform/surface_view.h"
#include "gui/utilities/cls_vexlo_dialog.h"

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

// The list's tab stops in dialog units, as LB_SETTABSTOPS takes them (a dialog unit is a
// quarter of the font's average character width). Beyond the two given stops, the lines'
// third tab goes to a stop far enough for "True-Color" and "256-Color" to line up the sizes.
constexpr int kTabStopUnits[] = {30, 60, 110};

// Draws a line of the list with its tabs expanded to the list's tab stops.
class TabbedLineDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem opt = option;
        initStyleOption(&opt, index);
        const QString text = opt.text;
        opt.text.clear();
        const QWidget* widget = opt.widget;
        QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);

        const QRect textRect = style->subElementRect(QStyle::SE_ItemViewItemText, &opt, widget);
        const QPalette::ColorGroup group = !(opt.state & QStyle::State_Enabled) ? QPalette::Disabled
                                           : (opt.state & QStyle::State_Active) ? QPalette::Active
                                                                                : QPalette::Inactive;
        const QPalette::ColorRole role =
            (opt.state & QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
        QTextOption textOption(Qt::AlignLeft | Qt::AlignVCenter);
        textOption.setWrapMode(QTextOption::NoWrap);
        textOption.setTabArray(TabStops(opt.fontMetrics));
        painter->save();
        painter->setFont(opt.font);
        painter->setPen(opt.palette.color(group, role));
        painter->drawText(QRectF(textRect), text, textOption);
        painter->restore();
    }

    static QList<qreal> TabStops(const QFontMetrics& metrics) {
        const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
        const qreal baseUnit = metrics.horizontalAdvance(letters) / 52.0;
        QList<qreal> stops;
        for (int units : kTabStopUnits) stops << units * baseUnit / 4.0;
        return stops;
    }
};

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

// A picture box of back color 0xC0C0C0 on which a SurfaceView is centred.
QLabel* MakePictureFrame(QWidget* parent) {
    auto* frame = new QLabel(parent);
    frame->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    frame->setAutoFillBackground(true);
    QPalette pal = frame->palette();
    pal.setColor(QPalette::Window, QColor(0xC0, 0xC0, 0xC0));
    frame->setPalette(pal);
    return frame;
}

// Gives view the size of its Surface and centres it on frame.
void CentreOn(SurfaceView* view, const QLabel* frame) {
    const QSize size = view->sizeHint();
    const QRect area = frame->geometry();
    view->setGeometry(area.x() + (area.width() - size.width()) / 2,
                      area.y() + (area.height() - size.height()) / 2, size.width(), size.height());
    view->raise();
    view->update();
}

}  // namespace

frmVexloMultiIcon::Hourglass::Hourglass() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
frmVexloMultiIcon::Hourglass::~Hourglass() { QGuiApplication::restoreOverrideCursor(); }

frmVexloMultiIcon::frmVexloMultiIcon(const std::string& fileSpec, int addMode, QWidget* parent)
    : QDialog(parent), m_fileSpec(fileSpec), m_addFace(Face(addMode)) {
    m_incomingAlpha.SetSingle();
    for (surface::Surface& s : m_iconInFile) s.SetBackColor(files::kPreviewBack);
    m_currIcon.SetBackColor(files::kPreviewBack);
    BuildEditFace();
    BuildAddFace();

    // The face of the mode, its caption and its size.
    setWindowTitle(QString::fromLatin1(m_addFace == 1 ? files::kAddFaceCaption : files::kEditFaceCaption));
    picContainer[static_cast<std::size_t>(m_addFace)]->show();
    picContainer[static_cast<std::size_t>(1 - m_addFace)]->hide();
    setFixedSize(picContainer[static_cast<std::size_t>(m_addFace)]->size());
    CentreOnScreen();
}

frmVexloMultiIcon::~frmVexloMultiIcon() = default;

void frmVexloMultiIcon::BuildCommonControls(int k) {
    const auto i = static_cast<std::size_t>(k);
    QWidget* face = picContainer[i];
    lisIcons[i] = new QListWidget(face);
    QFont listFont = lisIcons[i]->font();
    listFont.setFamily(QStringLiteral("Tahoma"));
    lisIcons[i]->setFont(listFont);
    lisIcons[i]->setItemDelegate(new TabbedLineDelegate(lisIcons[i]));
    lisIcons[i]->setSelectionMode(QAbstractItemView::SingleSelection);
    lblIconInFile[i] = MakePictureFrame(face);
    picIconInFile[i] = new SurfaceView(&m_iconInFile[i], face);
    picIconInFile[i]->SetCentred(true);
    cmdRemove[i] = MakeButton("Remove", "Remove highlighted icon", face);
    cmdSplitSave[i] = MakeButton("Split Save", "Split save all to single-icon files", face);
    cmdSaveSingle[i] = MakeButton("Save Single", "Save selected to a single-icon file", face);
    cmdClose[i] = MakeButton("Close", nullptr, face);

    connect(lisIcons[i], &QListWidget::currentRowChanged, this, [this, k] { Preview(k); });
    connect(cmdRemove[i], &QPushButton::clicked, this, [this] { ClickRemove(); });
    connect(cmdSplitSave[i], &QPushButton::clicked, this, [this] { ClickSplitSave(); });
    connect(cmdSaveSingle[i], &QPushButton::clicked, this, [this] { ClickSaveSingle(); });
    connect(cmdClose[i], &QPushButton::clicked, this, [this] { ClickClose(); });
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
    connect(cmdEdit, &QPushButton::clicked, this, [this] { ClickEdit(); });
}

void frmVexloMultiIcon::BuildAddFace() {
    QWidget* face = picContainer[1] = new QWidget(this);
    face->setGeometry(0, 0, kWidth, kAddHeight);
    lblCurrIcon[0] = MakeLabel("Current Icon:", face);
    lblCurrIcon[0]->setGeometry(kMargin, kMargin, 120, 20);
    lblCurrIconBase = MakePictureFrame(face);
    lblCurrIconBase->setGeometry(kMargin, 32, kFrameSide, kFrameSide);
    PicCurrIcon = new SurfaceView(&m_currIcon, face);
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
    connect(cmdSaveAdd[0], &QPushButton::clicked, this, [this] { ClickSaveAdd(0); });
    connect(cmdSaveAdd[1], &QPushButton::clicked, this, [this] { ClickSaveAdd(1); });
}

void frmVexloMultiIcon::CentreOnScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    const QRect area = screen->availableGeometry();
    move(area.center() - QPoint(width() / 2, height() / 2));
}

void frmVexloMultiIcon::SetIconToAdd(const surface::Surface& icon) {
    m_currIcon = icon;
    CentreOn(PicCurrIcon, lblCurrIconBase);
}

void frmVexloMultiIcon::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (m_firstActivation) Activate();
}

void frmVexloMultiIcon::done(int result) {
    m_set.Clear();
    QDialog::done(result);
}

bool frmVexloMultiIcon::Activate() {
    if (!m_firstActivation) return true;
    CentreOn(PicCurrIcon, lblCurrIconBase);
    m_choice.clear();
    m_incomingAlpha.SetSingle();
    const int k = m_addFace;
    m_iconInFile[static_cast<std::size_t>(k)].Clear();

    m_listGuard = true;
    if (!ReadListedFile()) {
        m_listGuard = false;
        m_firstActivation = false;
        // A dialog being shown closes once its event loop runs: closing it within show()
        // would leave exec() waiting on a hidden dialog.
        if (isVisible()) QTimer::singleShot(0, this, [this] { reject(); });
        else reject();
        return false;
    }
    FillIconList();
    m_listGuard = false;

    if (SelectedItem(k) != nullptr) {
        Preview(k);
        if (k == 1) cmdSaveAdd[0]->setFocus();
    }
    m_firstActivation = false;
    return true;
}

bool frmVexloMultiIcon::ReadListedFile() {
    return files::ReadIconSet(m_fileSpec, m_set) > 0;
}

void frmVexloMultiIcon::FillIconList() {
    if (m_set.Count() < 1) return;
    const int k = m_addFace;
    const auto i = static_cast<std::size_t>(k);
    QListWidget* list = lisIcons[i];
    list->clear();
    m_list = files::BuildMultiIconList(m_set);
    for (const files::MultiIconListItem& item : m_list.Items) list->addItem(QString::fromStdString(item.Line));

    if (m_list.Empty()) {
        if (k == 1) {
            cmdSaveAdd[0]->setEnabled(false);
            cmdSaveAdd[1]->setEnabled(false);
        } else {
            cmdEdit->setEnabled(false);
        }
        cmdRemove[i]->setEnabled(false);
        cmdSplitSave[i]->setEnabled(false);
        cmdSaveSingle[i]->setEnabled(false);
        return;
    }
    if (k == 1) {
        list->setCurrentRow(0);
        cmdSaveAdd[0]->setEnabled(true);
        cmdSaveAdd[1]->setEnabled(true);
    } else {
        list->setCurrentRow(m_list.Pick);
        cmdEdit->setEnabled(true);
    }
    const bool several = m_set.Count() >= 2;
    cmdRemove[i]->setEnabled(several);
    cmdSplitSave[i]->setEnabled(several);
    cmdSaveSingle[i]->setEnabled(several);
}

const files::MultiIconListItem* frmVexloMultiIcon::SelectedItem(int k) const {
    if (Face(k) != m_addFace) return nullptr;
    const QListWidget* list = lisIcons[static_cast<std::size_t>(m_addFace)];
    const QListWidgetItem* current = list->currentItem();
    if (current == nullptr || !current->isSelected()) return nullptr;
    return m_list.At(list->currentRow());
}

void frmVexloMultiIcon::SelectQuietly(int k, int position) {
    const bool guard = m_listGuard;
    m_listGuard = true;
    lisIcons[static_cast<std::size_t>(Face(k))]->setCurrentRow(position);
    m_listGuard = guard;
}

void frmVexloMultiIcon::Highlight(int position) {
    SelectQuietly(m_addFace, position);
    Preview(m_addFace);
}

void frmVexloMultiIcon::Preview(int k) {
    if (m_listGuard) return;
    const files::MultiIconListItem* item = SelectedItem(k);
    if (item == nullptr) return;
    bool read = false;
    {
        const Hourglass wait;
        read = files::ReadIconFileToImage(m_fileSpec, item->Index, m_picImageX, m_picMaskX, m_incomingAlpha);
    }
    if (!read) {
        platform::ShowMessageBox(files::UnableToGetMessage(item->Index + 1), host::MsgButtons::Ok,
                                 host::MsgIcon::None, host::kTitle);
        return;
    }
    const auto i = static_cast<std::size_t>(Face(k));
    files::ComposePreview(m_picImageX, m_picMaskX, m_iconInFile[i]);
    CentreOn(picIconInFile[i], lblIconInFile[i]);
}

clsVexloDialog& frmVexloMultiIcon::Dialog() {
    if (!m_dialog) m_dialog = std::make_unique<clsVexloDialog>(this);
    return *m_dialog;
}

}  // namespace vexlo::gui
