#include "gui/platform/clipboard.h"

#include <algorithm>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeData>
#include <QStringList>

namespace vexlo::platform {

namespace {

constexpr QRgb kTransparentGray = 0xFFC0C0C0;

// The encoded formats read from the clipboard, the preferred first. A picture that another
// program offers in several of them is read from the first.
const QStringList& EncodedFormats() {
    static const QStringList kFormats{"image/png",  "image/bmp",  "image/x-bmp", "image/x-MS-bmp",
                                      "image/gif",  "image/jpeg", "image/tiff",  "image/webp",
                                      "image/x-portable-pixmap"};
    return kFormats;
}

// The clipboard's picture: its encoded bytes, or an image that is already decoded (a Qt
// program of this process put it there).
struct Source {
    QByteArray Bytes;
    QImage Image;
    bool Present = false;
};

Source FindSource() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data) return {};
    const QStringList offered = data->formats();
    for (const QString& format : EncodedFormats())
        if (offered.contains(format)) {
            QByteArray bytes = data->data(format);
            if (!bytes.isEmpty()) return {bytes, {}, true};
        }
    if (offered.contains("application/x-qt-image")) {
        QImage image = qvariant_cast<QImage>(data->imageData());
        if (!image.isNull()) return {{}, image, true};
    }
    return {};
}

}  // namespace

QImage ToQImageWithHoles(const surface::Surface& picture, const surface::Surface& holes) {
    if (picture.Width() <= 0 || picture.Height() <= 0) return {};
    QImage image(picture.Width(), picture.Height(), QImage::Format_ARGB32);
    for (int y = 0; y < picture.Height(); ++y) {
        const surface::Color* in = picture.Row(y);
        QRgb* out = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < picture.Width(); ++x) {
            const int alpha = holes.GetPixel(x, y) == 0xFFFFFF ? 0 : 255;
            out[x] = qRgba(surface::RedOf(in[x]), surface::GreenOf(in[x]), surface::BlueOf(in[x]), alpha);
        }
    }
    return image;
}

surface::Surface FromClipboardImage(const QImage& image, int w, int h) {
    w = std::min(w, image.width());
    h = std::min(h, image.height());
    if (image.isNull() || w <= 0 || h <= 0) return {};
    // Straight colors, so that a transparent pixel keeps its own.
    const QImage src = image.copy(0, 0, w, h).convertToFormat(QImage::Format_ARGB32);
    surface::Surface s(w, h, 0xFFFFFF);
    for (int y = 0; y < h; ++y) {
        const QRgb* in = reinterpret_cast<const QRgb*>(src.constScanLine(y));
        surface::Color* out = s.Row(y);
        for (int x = 0; x < w; ++x) {
            const QRgb p = qAlpha(in[x]) < 128 ? kTransparentGray : in[x];
            out[x] = surface::Rgb(qRed(p), qGreen(p), qBlue(p));
        }
    }
    return s;
}

bool ClipboardHasPicture() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data) return false;
    if (data->hasImage()) return true;
    const QStringList offered = data->formats();
    for (const QString& format : EncodedFormats())
        if (offered.contains(format)) return true;
    return false;
}

host::ClipboardPicture ClipboardPictureInfo() {
    Source source = FindSource();
    if (!source.Present) return {};
    QSize size = source.Image.size();
    if (source.Image.isNull()) {
        QBuffer buffer(&source.Bytes);
        buffer.open(QIODevice::ReadOnly);
        size = QImageReader(&buffer).size();
    }
    // A picture whose size can't be read is there all the same: reading it will fail.
    if (!size.isValid() || size.isEmpty()) return {true, 0, 0, false};
    const bool tooLarge = source.Image.isNull() &&
                          static_cast<qint64>(size.width()) * size.height() > kLargestClipboardPixels;
    return {true, size.width(), size.height(), tooLarge};
}

bool ReadClipboardPicture(int w, int h, surface::Surface& out) {
    Source source = FindSource();
    if (!source.Present || w <= 0 || h <= 0) return false;
    if (!source.Image.isNull()) {
        out = FromClipboardImage(source.Image, w, h);
        return out.Width() == w && out.Height() == h;
    }
    QBuffer buffer(&source.Bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    // The limit is checked again: the clipboard may have changed since its size was asked.
    if (!size.isValid() || static_cast<qint64>(size.width()) * size.height() > kLargestClipboardPixels)
        return false;
    if (reader.supportsOption(QImageIOHandler::ClipRect)) reader.setClipRect(QRect(0, 0, w, h));
    const QImage image = reader.read();
    if (image.isNull()) return false;
    out = FromClipboardImage(image, w, h);
    return out.Width() == w && out.Height() == h;
}

void PutPictureOnClipboard(const surface::Surface& picture, const surface::Surface& holes) {
    const QImage image = ToQImageWithHoles(picture, holes);
    auto* data = new QMimeData;
    data->setImageData(image);
    QByteArray png;
    QBuffer pngBuffer(&png);
    pngBuffer.open(QIODevice::WriteOnly);
    image.save(&pngBuffer, "PNG");
    data->setData("image/png", png);
    QByteArray bmp;
    QBuffer bmpBuffer(&bmp);
    bmpBuffer.open(QIODevice::WriteOnly);
    image.convertToFormat(QImage::Format_RGB32).save(&bmpBuffer, "BMP");
    data->setData("image/bmp", bmp);
    QGuiApplication::clipboard()->setMimeData(data);
}

void ClearClipboard() { QGuiApplication::clipboard()->clear(); }

}  // namespace vexlo::platform
