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

constexpr int kPathRole = Qt::UserRole;

bool CanEnter(const QString& folder) {
    if (folder.isEmpty()) return false;
    const QFileInfo info(folder);
    return info.isDir() && info.isReadable() && info.isExecutable();
}

QListWidget* MakeList(QWidget* parent) {
    auto* list = new QListWidget(parent);
    // Thousands of entries stay quick with rows of one height.
    list->setUniformItemSizes(true);
    return list;
}

}  // namespace

frmDirDialog::frmDirDialog(const std::string& pattern, const std::string& startFolder,
                           bool extendable, QWidget* parent)
    : QDialog(parent), m_pattern(pattern) {
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
        SetFolder(item->data(kPathRole).toString().toStdString());
    });
    connect(cboFilePattern, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { SetFilePattern(text); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { ClickOK(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { ClickCancel(); });
    connect(cmdShrink, &QPushButton::clicked, this, [this] { Shrink(); });
    connect(cmdExtend, &QPushButton::clicked, this, [this] { Extend(); });

    // Load: narrow and centred, the pattern in the combo, then the first folder change.
    Shrink();
    cboFilePattern->clear();
    cboFilePattern->addItem(QString::fromStdString(pattern.empty() ? kNoPattern : pattern));
    cboFilePattern->setCurrentIndex(0);
    cmdExtend->setVisible(extendable);
    FillDrives();
    if (!SetFolder(startFolder) && !SetFolder(QDir::currentPath().toStdString()) &&
        !SetFolder(QDir::homePath().toStdString()))
        SetFolder(QDir::rootPath().toStdString());
}

std::string frmDirDialog::Ask(const std::string& pattern, const std::string& startFolder,
                              bool extendable, QWidget* parent) {
    if (const auto handler = platform::CurrentDialogHandlers().folder)
        return handler(pattern, startFolder, extendable);
    frmDirDialog dlg(pattern, startFolder, extendable, parent);
    return dlg.exec() == QDialog::Accepted ? dlg.ChosenFolder() : std::string();
}

bool frmDirDialog::SetFolder(const std::string& folder) {
    const QString wanted = QString::fromStdString(folder);
    if (!CanEnter(wanted)) return false;
    const QString path = QDir::cleanPath(QFileInfo(wanted).absoluteFilePath());
    if (!QDir::setCurrent(path)) return false;
    m_folder = path.toStdString();
    m_chosen = m_folder;
    lblSelectedDir->setText(path);
    FillFolders();
    SelectDriveOf(path);
    // The file list takes the dialog's pattern again, whatever the combo was changed to.
    SetFilePattern(QString::fromStdString(m_pattern.empty() ? kNoPattern : m_pattern));
    lblIconsInDir->setText(IconsInDirText());
    return true;
}

bool frmDirDialog::DriveChanged() {
    if (SetFolder(DriveListBox1->currentText().toStdString())) return true;
    SelectDriveOf(QString::fromStdString(m_folder));
    return false;
}

void frmDirDialog::SetFilePattern(const QString& pattern) {
    FileListBox1->clear();
    if (m_folder.empty()) return;
    // "*.ico;*.cur" is two patterns. Without QDir::CaseSensitive the match ignores case, as
    // the file lists of the platform this program came from do.
    const QStringList filters = pattern.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (filters.isEmpty()) return;
    const QDir dir(QString::fromStdString(m_folder));
    FileListBox1->addItems(dir.entryList(filters, QDir::Files, QDir::Name | QDir::IgnoreCase));
}

bool frmDirDialog::ClickOK() {
    if (FileListBox1->count() == 0 && m_pattern.size() > 3) {
        const std::string ext = m_pattern.substr(2);
        const std::string question = "There is no " + ext + " files directly in selected folder." +
                                     host::kCrLf + "Proceed still?";
        if (platform::ShowMessageBox(question, host::MsgButtons::YesNo, host::MsgIcon::None,
                                     host::kTitle) != host::MsgAnswer::Yes)
            return false;
    }
    m_chosen = m_folder;
    accept();
    return true;
}

void frmDirDialog::ClickCancel() {
    m_chosen.clear();
    reject();
}

void frmDirDialog::Shrink() {
    m_wide = false;
    m_filePart->hide();
    setFixedSize(kNarrowWidth, kHeight);
    cmdExtend->show();
    CentreOnScreen();
}

void frmDirDialog::Extend() {
    m_wide = true;
    setFixedSize(kWideWidth, kHeight);
    m_filePart->show();
    cmdExtend->hide();
    CentreOnScreen();
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

void frmDirDialog::SelectDriveOf(const QString& folder) {
    QString root = QStorageInfo(folder).rootPath();
    if (root.isEmpty()) root = QDir::rootPath();
    int index = DriveListBox1->findText(root);
    if (index < 0) {
        DriveListBox1->addItem(root);
        index = DriveListBox1->count() - 1;
    }
    DriveListBox1->setCurrentIndex(index);
}

void frmDirDialog::FillFolders() {
    const QString path = QString::fromStdString(m_folder);
    const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QIcon closed = style()->standardIcon(QStyle::SP_DirClosedIcon);
    DirListBox1->clear();

    // The ancestors from the root down to the open folder, each indented under its parent.
    QStringList chain{path};
    QDir up(path);
    while (!up.isRoot() && up.cdUp()) chain.prepend(up.absolutePath());
    int depth = 0;
    for (const QString& p : chain) {
        const QString name = QDir(p).isRoot() ? p : QFileInfo(p).fileName();
        auto* item = new QListWidgetItem(open, QString(depth * 2, QLatin1Char(' ')) + name);
        item->setData(kPathRole, p);
        DirListBox1->addItem(item);
        ++depth;
    }
    DirListBox1->setCurrentRow(DirListBox1->count() - 1);

    const QString indent(depth * 2, QLatin1Char(' '));
    const QDir dir(path);
    for (const QFileInfo& sub :
         dir.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase)) {
        auto* item = new QListWidgetItem(closed, indent + sub.fileName());
        item->setData(kPathRole, sub.absoluteFilePath());
        DirListBox1->addItem(item);
    }
}

void frmDirDialog::CentreOnScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    const QRect area = screen->availableGeometry();
    move(area.center() - QPoint(width() / 2, height() / 2));
}

QString frmDirDialog::IconsInDirText() const {
    if (m_pattern.size() <= 3) return {};
    const QString ext = QString::fromStdString(m_pattern.substr(2)).toUpper();
    return ext + QStringLiteral(" files in dir:  ") + QString::number(FileListBox1->count());
}

}  // namespace vexlo::gui
