#include "gui/utilities/frm_dir_dialog.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QStorageInfo>
#include <QStyle>

#include <algorithm>

#include "core/host/host.h"
#include "gui/platform/dialog_handlers.h"
#include "gui/platform/message_box.h"

namespace vexlo::gui {

namespace {

// The one service the model asks for, its question, on the program's message box.
class MessageBoxHost final : public host::Host {
public:
    host::MsgAnswer MsgBox(const std::string& text, host::MsgButtons buttons, host::MsgIcon icon,
                           const std::string& title) override {
        return platform::ShowMessageBox(text, buttons, icon, title);
    }
    void DoEvents() override {}
    void SetHourglass(bool) override {}
    void RefreshDisplay() override {}
};

QListWidget* MakeList(QWidget* parent) {
    auto* list = new QListWidget(parent);
    // Thousands of entries stay quick with rows of one height.
    list->setUniformItemSizes(true);
    return list;
}

// Whether root (a mount point such as "/" or "/media/usb") holds folder.
bool RootHolds(std::string root, const std::string& folder) {
    while (root.size() > 1 && root.back() == '/') root.pop_back();
    if (root == "/") return true;
    return folder == root || folder.starts_with(root + "/");
}

}  // namespace

frmDirDialog::frmDirDialog(const std::string& pattern, const std::string& startFolder,
                           bool extendable, QWidget* parent)
    : QDialog(parent),
      m_host(std::make_unique<MessageBoxHost>()),
      m_model(*m_host, pattern, extendable) {
    setWindowTitle(QStringLiteral("Directory dialog"));

    // The core part, in the narrow width.
    lblSelectedDir = new QLabel(this);
    lblSelectedDir->setGeometry(8, 8, 284, 20);
    DriveListBox1 = new QComboBox(this);
    DriveListBox1->setGeometry(8, 32, 284, 26);
    DirListBox1 = MakeList(this);
    DirListBox1->setGeometry(8, 64, 284, 218);
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setGeometry(8, 292, 90, 28);
    cmdOK->setDefault(true);
    cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
    cmdCancel->setGeometry(106, 292, 90, 28);
    cmdExtend = new QPushButton(QStringLiteral(">>"), this);
    cmdExtend->setGeometry(242, 292, 50, 28);
    cmdExtend->setToolTip(QStringLiteral("Extend to display others"));

    // The file part, out of view in the narrow width.
    m_filePart = new QWidget(this);
    m_filePart->setGeometry(kNarrowWidth, 0, kWideWidth - kNarrowWidth, kHeight);
    lblFilePattern = new QLabel(QStringLiteral("Display file pattern:"), m_filePart);
    lblFilePattern->setGeometry(0, 8, 195, 20);
    cboFilePattern = new QComboBox(m_filePart);
    cboFilePattern->setGeometry(0, 32, 195, 26);
    cboFilePattern->setEditable(true);
    FileListBox1 = MakeList(m_filePart);
    FileListBox1->setGeometry(0, 64, 195, 190);
    lblIconsInDir = new QLabel(m_filePart);
    lblIconsInDir->setGeometry(0, 260, 195, 20);
    cmdShrink = new QPushButton(QStringLiteral("<<"), m_filePart);
    cmdShrink->setGeometry(145, 292, 50, 28);
    cmdShrink->setToolTip(QStringLiteral("Display only core controls"));

    connect(DriveListBox1, &QComboBox::activated, this, [this] { DriveChanged(); });
    connect(DirListBox1, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        if (m_model.EnterRow(static_cast<std::size_t>(DirListBox1->row(item)))) Redraw();
    });
    connect(cboFilePattern, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { SetFilePattern(text); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { ClickOK(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { ClickCancel(); });
    connect(cmdShrink, &QPushButton::clicked, this, [this] { Shrink(); });
    connect(cmdExtend, &QPushButton::clicked, this, [this] { Extend(); });

    // Load: narrow and centred, the pattern in the combo, then the first folder change.
    ApplyLayout();
    cboFilePattern->clear();
    cboFilePattern->addItem(QString::fromStdString(m_model.PatternShown()));
    cboFilePattern->setCurrentIndex(0);
    FillDrives();
    m_model.Load(startFolder);
    Redraw();
}

std::string frmDirDialog::Ask(const std::string& pattern, const std::string& startFolder,
                              bool extendable, QWidget* parent) {
    if (const auto handler = platform::CurrentDialogHandlers().folder)
        return handler(pattern, startFolder, extendable);
    frmDirDialog dlg(pattern, startFolder, extendable, parent);
    return dlg.exec() == QDialog::Accepted ? dlg.ChosenFolder() : std::string();
}

bool frmDirDialog::SetFolder(const std::string& folder) {
    if (!m_model.EnterFolder(folder)) return false;
    Redraw();
    return true;
}

bool frmDirDialog::DriveChanged() {
    if (SetFolder(DriveListBox1->currentText().toStdString())) return true;
    SelectDriveOf(m_model.Folder());
    return false;
}

void frmDirDialog::SetFilePattern(const QString& pattern) {
    m_model.SetFilePattern(pattern.toStdString());
    FillFiles();
}

bool frmDirDialog::ClickOK() {
    if (!m_model.ConfirmOK()) return false;
    accept();
    return true;
}

void frmDirDialog::ClickCancel() {
    m_model.Cancel();
    reject();
}

void frmDirDialog::Shrink() {
    m_model.Shrink();
    ApplyLayout();
}

void frmDirDialog::Extend() {
    m_model.Extend();
    ApplyLayout();
}

void frmDirDialog::keyPressEvent(QKeyEvent* event) {
    // Enter in a list or in the pattern box acts there only; it doesn't press cmdOK.
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QWidget* focus = focusWidget();
    if (enter && focus != nullptr &&
        (focus == DirListBox1 || focus == FileListBox1 || cboFilePattern->isAncestorOf(focus) ||
         focus == cboFilePattern)) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmDirDialog::FillDrives() {
    QStringList roots{QDir::rootPath()};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        // Volumes that are files (bind-mounted into a container) are no drives.
        if (volume.isValid() && volume.isReady() && QFileInfo(volume.rootPath()).isDir())
            roots << volume.rootPath();
    }
    roots.removeDuplicates();
    std::sort(roots.begin() + 1, roots.end());
    DriveListBox1->clear();
    DriveListBox1->addItems(roots);
}

void frmDirDialog::SelectDriveOf(const std::string& folder) {
    int best = -1;
    qsizetype bestLength = -1;
    for (int i = 0; i < DriveListBox1->count(); ++i) {
        const QString root = DriveListBox1->itemText(i);
        if (root.size() > bestLength && RootHolds(root.toStdString(), folder)) {
            best = i;
            bestLength = root.size();
        }
    }
    if (best >= 0) DriveListBox1->setCurrentIndex(best);
}

void frmDirDialog::Redraw() {
    lblSelectedDir->setText(QString::fromStdString(m_model.Folder()));

    const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QIcon closed = style()->standardIcon(QStyle::SP_DirClosedIcon);
    DirListBox1->setUpdatesEnabled(false);
    DirListBox1->clear();
    for (const utilities::FolderRow& row : m_model.Folders())
        DirListBox1->addItem(new QListWidgetItem(row.Open ? open : closed,
                                                 QString::fromStdString(row.Text)));
    if (!m_model.Folders().empty())
        DirListBox1->setCurrentRow(static_cast<int>(m_model.OpenRow()));
    DirListBox1->setUpdatesEnabled(true);

    SelectDriveOf(m_model.Folder());
    FillFiles();
    lblIconsInDir->setText(QString::fromStdString(m_model.CountText()));
}

void frmDirDialog::FillFiles() {
    QStringList names;
    names.reserve(static_cast<qsizetype>(m_model.Files().size()));
    for (const std::string& name : m_model.Files()) names << QString::fromStdString(name);
    FileListBox1->clear();
    FileListBox1->addItems(names);
}

void frmDirDialog::ApplyLayout() {
    const bool wide = m_model.IsWide();
    setFixedSize(wide ? kWideWidth : kNarrowWidth, kHeight);
    m_filePart->setVisible(wide);
    cmdExtend->setVisible(m_model.ExtendShown());
    CentreOnScreen();
}

void frmDirDialog::CentreOnScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    const QRect area = screen->availableGeometry();
    move(area.center() - QPoint(width() / 2, height() / 2));
}

}  // namespace vexlo::gui
