#include "gui/ani/ani_pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygon>

namespace vexlo::gui {

namespace {

constexpr int kSide = 20;
const QColor kInk(0, 0, 0);
const QColor kBlue(0, 0, 160);
const QColor kGreen(0, 128, 0);
const QColor kRed(192, 0, 0);

// A triangle pointing up (or down) with its base centred at (cx, y) and the given half width.
void Triangle(QPainter& p, int cx, int y, int half, bool up, const QColor& color) {
    const int tip = up ? y - half : y + half;
    p.setBrush(color);
    p.setPen(Qt::NoPen);
    p.drawPolygon(QPolygon({QPoint(cx - half, y), QPoint(cx + half + 1, y), QPoint(cx, tip)}));
}

// A small picture of a frame: a square window on a dark strip.
void FrameSign(QPainter& p, int x, int y) {
    p.setPen(Qt::NoPen);
    p.setBrush(kInk);
    p.drawRect(x, y, 9, 10);
    p.setBrush(Qt::white);
    p.drawRect(x + 2, y + 2, 5, 6);
}

// The Editing Area: a grid of 3 x 3 cells.
void GridSign(QPainter& p, int x, int y) {
    p.setPen(QColor(64, 64, 64));
    p.setBrush(QColor(192, 192, 192));
    p.drawRect(x, y, 9, 9);
    p.drawLine(x + 3, y, x + 3, y + 9);
    p.drawLine(x + 6, y, x + 6, y + 9);
    p.drawLine(x, y + 3, x + 9, y + 3);
    p.drawLine(x, y + 6, x + 9, y + 6);
}

void Arrow(QPainter& p, int y, bool right) {
    p.setPen(QPen(kBlue, 2));
    p.drawLine(6, y, 14, y);
    p.setPen(Qt::NoPen);
    p.setBrush(kBlue);
    const int tip = right ? 16 : 4;
    const int base = right ? 12 : 8;
    p.drawPolygon(QPolygon({QPoint(base, y - 3), QPoint(base, y + 3), QPoint(tip, y)}));
}

void Plus(QPainter& p, int cx, int cy, const QColor& color) {
    p.setPen(QPen(color, 2));
    p.drawLine(cx - 4, cy, cx + 4, cy);
    p.drawLine(cx, cy - 4, cx, cy + 4);
}

}  // namespace

QPixmap AniButtonPicture(int k) {
    const bool small = k <= 2;
    QPixmap pixmap(small ? 12 : kSide, small ? 12 : kSide);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    switch (k) {
        case 0:  // close
            p.setPen(QPen(kInk, 2));
            p.drawLine(2, 2, 9, 9);
            p.drawLine(9, 2, 2, 9);
            break;
        case 1:  // resize: two boxes
            p.setPen(kInk);
            p.drawRect(1, 3, 7, 7);
            p.drawRect(4, 1, 6, 5);
            break;
        case 2:  // minimize
            p.fillRect(2, 8, 8, 2, kInk);
            break;
        case 9:  // frame property
            p.setPen(QPen(kBlue, 1.5));
            p.setBrush(Qt::white);
            p.drawEllipse(3, 3, 14, 14);
            p.fillRect(9, 9, 2, 6, kBlue);
            p.fillRect(9, 6, 2, 2, kBlue);
            break;
        case 10:  // from the Editing Area into the frame: grid, arrow left, frame
            FrameSign(p, 0, 5);
            GridSign(p, 10, 5);
            Arrow(p, 17, false);
            break;
        case 11:  // the frame to the Editing Area
            FrameSign(p, 0, 5);
            GridSign(p, 10, 5);
            Arrow(p, 17, true);
            break;
        case 12:  // add below
            FrameSign(p, 1, 1);
            Plus(p, 14, 14, kGreen);
            Triangle(p, 5, 14, 3, false, kGreen);
            break;
        case 13:  // add above
            FrameSign(p, 1, 8);
            Plus(p, 14, 5, kGreen);
            Triangle(p, 5, 5, 3, true, kGreen);
            break;
        case 14:  // remove
            FrameSign(p, 1, 5);
            p.setPen(QPen(kRed, 2));
            p.drawLine(11, 6, 18, 13);
            p.drawLine(18, 6, 11, 13);
            break;
        case 15: {  // an icon file into the frame: a folder
            QPainterPath folder;
            folder.moveTo(2, 6);
            folder.lineTo(7, 6);
            folder.lineTo(9, 8);
            folder.lineTo(17, 8);
            folder.lineTo(17, 16);
            folder.lineTo(2, 16);
            folder.closeSubpath();
            p.setPen(QColor(128, 96, 0));
            p.setBrush(QColor(240, 200, 80));
            p.drawPath(folder);
            break;
        }
        case 16:  // shift up: the frame and a double triangle
        case 17: {
            const bool up = k == 16;
            FrameSign(p, 1, 5);
            Triangle(p, 15, up ? 9 : 4, 4, up, kBlue);
            Triangle(p, 15, up ? 16 : 11, 4, up, kBlue);
            break;
        }
        case 18:  // go up, go down: one triangle
        case 19:
            Triangle(p, 10, k == 18 ? 13 : 7, 6, k == 18, kInk);
            break;
        default: return {};
    }
    return pixmap;
}

QPixmap ImgAniPicture() {
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.fillRect(2, 0, 12, 16, kInk);
    for (int y = 1; y < 16; y += 4) {
        p.fillRect(3, y, 2, 2, Qt::white);
        p.fillRect(11, y, 2, 2, Qt::white);
    }
    p.fillRect(6, 2, 4, 5, QColor(255, 255, 0));
    p.fillRect(6, 9, 4, 5, QColor(0, 255, 255));
    return pixmap;
}

}  // namespace vexlo::gui
