#include "gui/platform/text_drawing.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "gui/platform/image_convert.h"

namespace vexlo::platform {
namespace {

QColor ToQColor(surface::Color c) {
    return QColor(surface::RedOf(c), surface::GreenOf(c), surface::BlueOf(c));
}

// A limit far beyond any line of text an icon takes, so a pasted novel can't exhaust memory.
constexpr int kMaxTextPicture = 4096;

}  // namespace

int FontPixelSize(int points) { return static_cast<int>(std::lround(points * 96.0 / 72.0)); }

QFont ToQFont(const host::TextFont& font) {
    QFont f(QString::fromStdString(font.Name));
    f.setPixelSize(std::max(1, FontPixelSize(font.Size)));
    f.setBold(font.Bold);
    f.setItalic(font.Italic);
    f.setStyleStrategy(QFont::NoAntialias);
    f.setKerning(false);
    return f;
}

std::vector<std::string> ScreenFontFamilies() {
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families()) names.push_back(family.toStdString());
    return names;
}

std::string FontFamilyUsed(const std::string& name) {
    if (name.empty()) return {};
    return QFontInfo(QFont(QString::fromStdString(name))).family().toStdString();
}

bool DrawTextPicture(const host::TextFont& font, const std::string& text, bool hollow,
                     surface::Color color, surface::Color back, surface::Surface& out) {
    const QString q = QString::fromStdString(text);
    if (q.isEmpty()) return false;
    const QFont f = ToQFont(font);
    const QFontMetrics metrics(f);
    const int width = metrics.horizontalAdvance(q) + 2, height = metrics.height() + 2;
    if (width <= 2 || height <= 2 || width > kMaxTextPicture || height > kMaxTextPicture)
        return false;
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(ToQColor(back));
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setRenderHint(QPainter::TextAntialiasing, false);
        const int baseline = 1 + metrics.ascent();
        if (hollow) {
            QPainterPath path;
            path.addText(1, baseline, f, q);
            painter.strokePath(path, QPen(ToQColor(color), 0));
        } else {
            painter.setFont(f);
            painter.setPen(ToQColor(color));
            painter.drawText(1, baseline, q);
        }
    }
    out = FromQImage(image);
    out.SetBackColor(back);
    return true;
}

}  // namespace vexlo::platform
