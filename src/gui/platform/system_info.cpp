#include "gui/platform/system_info.h"

#include <sys/sysinfo.h>

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>

namespace vexlo::platform {

namespace {

// One of sysinfo's counts (in units of mem_unit) in KB.
std::uint64_t Kb(unsigned long count, unsigned int unit) {
    return static_cast<std::uint64_t>(count) * (unit == 0 ? 1u : unit) / 1024u;
}

}  // namespace

ScreenPixels ScreenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return {};
    const QSize size = screen->geometry().size();
    const qreal ratio = screen->devicePixelRatio();
    return {qRound(size.width() * ratio), qRound(size.height() * ratio)};
}

int ScreenDepth() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->depth() : 0;
}

std::uint64_t PhysicalMemoryKb() {
    struct sysinfo info {};
    return ::sysinfo(&info) == 0 ? Kb(info.totalram, info.mem_unit) : 0;
}

std::uint64_t PhysicalMemoryBytes() {
    struct sysinfo info {};
    if (::sysinfo(&info) != 0) return 0;
    return static_cast<std::uint64_t>(info.totalram) * (info.mem_unit == 0 ? 1u : info.mem_unit);
}

int ScreenLogicalDpi() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? qRound(screen->logicalDotsPerInchX()) : 96;
}

std::uint64_t FreePhysicalMemoryKb() {
    struct sysinfo info {};
    return ::sysinfo(&info) == 0 ? Kb(info.freeram, info.mem_unit) : 0;
}

std::string WindowsDirectory() { return "/etc"; }

std::string SystemDirectory() { return "/usr/lib"; }

std::string TempDirectory() {
    QString path = QDir::tempPath();
    if (!path.endsWith(QLatin1Char('/'))) path += QLatin1Char('/');
    return path.toStdString();
}

std::string DesktopDirectory() {
    const QString path = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    if (path.isEmpty() || !QDir(path).exists()) return {};
    return QDir::cleanPath(path).toStdString();
}

std::string ConfigDirectory() {
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    if (base.isEmpty()) return {};
    return QDir::cleanPath(base).toStdString() + "/vexlo/";
}

std::string ProgramDirectory() { return QCoreApplication::applicationDirPath().toStdString(); }

}  // namespace vexlo::platform
