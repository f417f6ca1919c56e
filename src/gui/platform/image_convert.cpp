#include "gui/platform/image_convert.h"

namespace vexlo::platform {

QImage ToQImage(const surface::Surface& s) {
    if (s.Width() <= 0 || s.Height() <= 0) return {};
    QImage image(s.Width(), s.Height(), QImage::Format_RGB32);
    for (int y = 0; y < s.Height(); ++y) {
        const surface::Color* in = s.Row(y);
        QRgb* out = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < s.Width(); ++x)
            out[x] = qRgb(surface::RedOf(in[x]), surface::GreenOf(in[x]), surface::BlueOf(in[x]));
    }
    return image;
}

surface::Surface FromQImage(const QImage& image) {
    if (image.isNull()) return {};
    // Straight (not premultiplied) colors, so that alpha leaves the channels alone.
    const QImage src = image.format() == QImage::Format_RGB32 ||
                               image.format() == QImage::Format_ARGB32
                           ? image
                           : image.convertToFormat(QImage::Format_ARGB32);
    surface::Surface s(src.width(), src.height(), 0xFFFFFF);
    for (int y = 0; y < src.height(); ++y) {
        const QRgb* in = reinterpret_cast<const QRgb*>(src.constScanLine(y));
        surface::Color* out = s.Row(y);
        for (int x = 0; x < src.width(); ++x)
            out[x] = surface::Rgb(qRed(in[x]), qGreen(in[x]), qBlue(in[x]));
    }
    return s;
}

}  // namespace vexlo::platform
