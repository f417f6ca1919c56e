#include "gui/utilities/frm_vexlo_about.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace vexlo::gui {

namespace {

// The product picture: a magnified 8x8 pixel icon on its grid.
QPixmap AboutPicture() {
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
    return pixmap;
}

}  // namespace

QString FrmVexloAbout::VersionText() {
    return QString("Professional Edition   v. %1.%2.%3")
        .arg(VEXLO_VERSION_MAJOR)
        .arg(VEXLO_VERSION_MINOR)
        .arg(VEXLO_VERSION_PATCH);
}

FrmVexloAbout::FrmVexloAbout(QWidget* parent) : QDialog(parent) {
    setWindowTitle("Vexlo");
    picAbout = new QLabel(this);
    picAbout->setPixmap(AboutPicture());
    auto* name = new QLabel("<b>Vexlo</b><br>Icon and cursor editor", this);
    lblVersion = new QLabel(VersionText(), this);
    auto* cmdOK = new QPushButton("OK", this);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* text = new QVBoxLayout;
    text->addWidget(name);
    text->addWidget(lblVersion);
    text->addStretch();
    text->addWidget(cmdOK, 0, Qt::AlignRight);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(picAbout);
    layout->addLayout(text);
}

}  // namespace vexlo::gui
