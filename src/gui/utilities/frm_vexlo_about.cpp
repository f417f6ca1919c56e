#include "gui/utilities/frm_vexlo_about.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/platform/message_box.h"
#include "gui/platform/system_info.h"

namespace vexlo::gui {

namespace {

// The product picture: a magnified 8x8 pixel icon on its grid, drawn at the given scale.
QPixmap AboutPicture(double scale) {
    static const char* const kCells[8] = {"..####..", ".#OOOO#.", "#OO##OO#", "#O#YY#O#",
                                          "#O#YY#O#", "#OO##OO#", ".#OOOO#.", "..####.."};
    QPixmap pixmap(97, 97);
    pixmap.fill(QColor(0xC0, 0xC0, 0xC0));
    QPainter painter(&pixmap);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const char c = kCells[y][x];
            if (c == '.') continue;
            const QColor color = c == '#' ? QColor(0, 0, 128) : c == 'O' ? QColor(0, 160, 224)
                                                                        : QColor(255, 220, 0);
            painter.fillRect(x * 12 + 1, y * 12 + 1, 11, 11, color);
        }
    }
    painter.setPen(QColor(0x60, 0x60, 0x60));
    for (int i = 0; i <= 8; ++i) {
        painter.drawLine(i * 12, 0, i * 12, 96);
        painter.drawLine(0, i * 12, 96, i * 12);
    }
    painter.end();
    if (scale == 1.0) return pixmap;
    const int side = qRound(97 * scale);
    return pixmap.scaled(side, side, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

}  // namespace

QString FrmVexloAbout::VersionText() {
    return QString::fromStdString(
        utilities::AboutVersionText(VEXLO_VERSION_MAJOR, VEXLO_VERSION_MINOR, VEXLO_VERSION_PATCH));
}

utilities::MachineFacts FrmVexloAbout::ReadMachineFacts() {
    utilities::MachineFacts facts;
    facts.TotalPhysicalBytes = platform::PhysicalMemoryBytes();
    const platform::ScreenPixels screen = platform::ScreenSize();
    facts.ScreenWidth = screen.width;
    facts.ScreenHeight = screen.height;
    facts.BitsPerPixel = platform::ScreenDepth();
    facts.LogicalDpi = platform::ScreenLogicalDpi();
    return facts;
}

FrmVexloAbout::FrmVexloAbout(QWidget* parent) : QDialog(parent), m_model(ReadMachineFacts()) {
    setObjectName("frmVexloAbout");
    setWindowTitle("Vexlo");
    picAbout = new QLabel(this);
    picAbout->setObjectName("picAbout");
    picAbout->setPixmap(AboutPicture(m_model.PictureScale()));
    auto* name = new QLabel("<b>Vexlo</b><br>Icon and cursor editor", this);
    lblVersion = new QLabel(VersionText(), this);
    lblVersion->setObjectName("lblVersion");
    cmdInfo = new QPushButton("&Info ....", this);
    cmdInfo->setObjectName("cmdInfo");
    cmdInfo->setToolTip("Memory and screen of this machine");
    connect(cmdInfo, &QPushButton::clicked, this, &FrmVexloAbout::ShowInfo);
    cmdOK = new QPushButton("OK", this);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdInfo);
    buttons->addWidget(cmdOK);
    auto* text = new QVBoxLayout;
    text->addWidget(name);
    text->addWidget(lblVersion);
    text->addStretch();
    text->addLayout(buttons);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(picAbout);
    layout->addLayout(text);
}

void FrmVexloAbout::ShowInfo() {
    platform::ShowMessageBox(m_model.InfoText(), host::MsgButtons::Ok, host::MsgIcon::Information, host::kTitle);
}

}  // namespace vexlo::gui
