#include "gui/platform/shell_icons.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QPainter>
#include <QStandardPaths>
#include <QTextStream>

namespace vexlo::platform {

namespace {

// A launcher is read only this far: its [Desktop Entry] group comes first.
constexpr qint64 kMaxDesktopEntry = 64 * 1024;

// Without a desktop's own theme Qt may know no theme, or hicolor only, which holds no file
// types, and on some platforms not even the system's icon folders: those folders, hicolor and
// then the GNOME theme that the set-up installs are made known once.
void EnsureThemeFallback() {
    static const bool done = [] {
        QStringList paths = QIcon::themeSearchPaths();
        for (const QString& dir : QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, "icons",
                                                            QStandardPaths::LocateDirectory))
            if (!paths.contains(dir)) paths << dir;
        QIcon::setThemeSearchPaths(paths);
        if (QIcon::themeName().isEmpty()) QIcon::setThemeName("hicolor");
        if (QIcon::fallbackThemeName().isEmpty() || QIcon::fallbackThemeName() == "hicolor")
            QIcon::setFallbackThemeName("Adwaita");
        return true;
    }();
    (void)done;
}

}  // namespace

QString DesktopEntryIcon(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QTextStream in(file.read(kMaxDesktopEntry));
    bool inEntry = false;
    while (!in.atEnd()) {
        const QString line = in.readLine().trimmed();
        if (line.startsWith('[')) {
            inEntry = line == "[Desktop Entry]";
            continue;
        }
        if (inEntry && line.startsWith("Icon")) {
            const int eq = line.indexOf('=');
            if (eq > 0 && line.left(eq).trimmed() == "Icon") return line.mid(eq + 1).trimmed();
        }
    }
    return {};
}

QIcon ShellIconOf(const std::string& path) {
    EnsureThemeFallback();
    const QString file = QString::fromStdString(path);
    if (file.endsWith(".desktop")) {
        const QString name = DesktopEntryIcon(path);
        if (!name.isEmpty()) {
            const QIcon icon = QFileInfo(name).isAbsolute() ? QIcon(name) : QIcon::fromTheme(name);
            if (!icon.isNull()) return icon;
        }
    }
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file);
    for (const QString& name : {type.iconName(), type.genericIconName(),
                                QString("application-x-generic"), QString("text-x-generic")}) {
        if (name.isEmpty()) continue;
        const QIcon icon = QIcon::fromTheme(name);
        if (!icon.isNull()) return icon;
    }
    return {};
}

bool RenderShellIcon(const QIcon& icon, int side, surface::Surface& image, surface::Surface& mask) {
    if (icon.isNull()) return false;
    const QPixmap pixmap = icon.pixmap(QSize(side, side), 1.0);
    if (pixmap.isNull()) return false;
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        const QSize size = pixmap.size().boundedTo(QSize(side, side));
        painter.drawPixmap(QRect(QPoint((side - size.width()) / 2, (side - size.height()) / 2), size), pixmap);
    }
    surface::Surface outImage(side, side, 0xFFFFFF), outMask(side, side, 0);
    for (int y = 0; y < side; ++y) {
        const QRgb* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < side; ++x) {
            const int a = qAlpha(row[x]);
            if (a < 128) {
                outImage.SetPixelV(x, y, 0xFFFFFF);
                outMask.SetPixelV(x, y, 0xFFFFFF);
                continue;
            }
            // Over white: each channel blended with 255 by the pixel's alpha.
            const auto over = [a](int c) { return (c * a + 255 * (255 - a) + 127) / 255; };
            outImage.SetPixelV(x, y, surface::Rgb(over(qRed(row[x])), over(qGreen(row[x])), over(qBlue(row[x]))));
        }
    }
    image = std::move(outImage);
    mask = std::move(outMask);
    return true;
}

bool ShellIcon(const std::string& path, bool small, surface::Surface& image, surface::Surface& mask) {
    return RenderShellIcon(ShellIconOf(path), small ? 16 : 32, image, mask);
}

}  // namespace vexlo::platform
