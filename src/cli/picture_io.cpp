#include "cli/picture_io.h"

#include <QImage>
#include <QString>

#include "core/files/ico_probe.h"
#include "core/files/ico_read.h"

namespace vexlo::cli {

namespace {

bool IsIconSide(int side) { return side == 16 || side == 32 || side == 48; }

bool ReadIco(const std::string& path, IconPlanes& out, std::string& error) {
    const files::ProbeAnswer probe = files::ProbeIconFile(path, true);
    if (probe.Kind == 0 || probe.Usable == 0) {
        error = "not an icon file of 16x16, 32x32 or 48x48: " + path;
        return false;
    }
    out.Alpha.SetSingle();
    if (!files::ReadIconFileToImage(path, probe.Index, out.Image, out.Mask, out.Alpha)) {
        error = "cannot decode image " + std::to_string(probe.Index) + " of " + path;
        return false;
    }
    out.HasAlpha = probe.BitCount == 32 && !out.Alpha.IsSingle();
    if (!out.HasAlpha) out.Alpha.SetSingle();
    return true;
}

}  // namespace

bool ReadPicture(const std::string& path, IconPlanes& out, std::string& error) {
    const QString qpath = QString::fromStdString(path);
    if (qpath.endsWith(".ico", Qt::CaseInsensitive)) return ReadIco(path, out, error);
    QImage picture(qpath);
    if (picture.isNull()) {
        error = "cannot read the picture " + path;
        return false;
    }
    if (picture.width() != picture.height() || !IsIconSide(picture.width())) {
        error = "the picture is " + std::to_string(picture.width()) + "x" +
                std::to_string(picture.height()) + ", not 16x16, 32x32 or 48x48";
        return false;
    }
    picture = picture.convertToFormat(QImage::Format_ARGB32);
    const int side = picture.width();
    out.Image = surface::Surface(side, side, 0xFFFFFF);
    out.Mask = surface::Surface(side, side, 0xFFFFFF);
    out.Alpha.SetSingle();
    out.HasAlpha = false;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const QRgb p = picture.pixel(x, y);
            const bool transparent = qAlpha(p) < 128;
            out.Image.SetPixelV(x, y, transparent ? 0 : surface::Rgb(qRed(p), qGreen(p), qBlue(p)));
            out.Mask.SetPixelV(x, y, transparent ? 0xFFFFFF : 0);
        }
    }
    return true;
}

bool WritePng(const IconPlanes& icon, const std::string& path, std::string& error) {
    const int side = icon.Image.Width();
    QImage png(side, side, QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const surface::Color c = icon.Image.GetPixel(x, y);
            int a = icon.Mask.GetPixel(x, y) == 0xFFFFFF ? 0 : 255;
            if (icon.HasAlpha && icon.Alpha.Contains(x, y)) a = icon.Alpha.At(x, y);
            png.setPixel(x, y, qRgba(surface::RedOf(c), surface::GreenOf(c), surface::BlueOf(c), a));
        }
    }
    if (!png.save(QString::fromStdString(path), "PNG")) {
        error = "cannot write " + path;
        return false;
    }
    return true;
}

}  // namespace vexlo::cli
