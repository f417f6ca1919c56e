#include "gui/platform/elided_label.h"

#include <QEvent>
#include <QFontMetrics>
#include <QStringList>

namespace vexlo::gui {

QString ElidePath(const QString& text, const QFontMetrics& metrics, int width) {
    if (metrics.horizontalAdvance(text) <= width) return text;
    const QString ellipsis = QStringLiteral("\u2026");
    const auto fits = [&](const QString& s) { return metrics.horizontalAdvance(s) <= width; };
    const QStringList parts = text.split('/');
    const auto n = parts.size();
    // The first folder, with the root's '/' of an absolute path.
    const qsizetype headParts = parts.first().isEmpty() ? 2 : 1;
    if (n > headParts + 1) {
        const QString head = parts.mid(0, headParts).join('/');
        for (qsizetype keep = n - headParts - 1; keep >= 1; --keep) {
            const QString shown = head + '/' + ellipsis + '/' + parts.mid(n - keep).join('/');
            if (fits(shown)) return shown;
        }
    }
    if (n > 1) {
        const QString shown = ellipsis + '/' + parts.last();
        if (fits(shown)) return shown;
    }
    return metrics.elidedText(text, Qt::ElideMiddle, width);
}

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {}

void ElidedLabel::SetFullText(const QString& text) {
    if (text == m_fullText) return;
    m_fullText = text;
    Fit();
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Fit();
}

void ElidedLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) Fit();
}

void ElidedLabel::Fit() {
    // QLabel indents its text by half an 'x' inside a frame unless told an indent.
    const int indentWidth =
        indent() >= 0 ? indent() : (frameWidth() > 0 ? fontMetrics().horizontalAdvance('x') / 2 : 0);
    const int room = contentsRect().width() - 2 * margin() - indentWidth;
    const QString shown = ElidePath(m_fullText, fontMetrics(), room);
    if (text() != shown) setText(shown);
    const QString tip = shown == m_fullText ? QString() : m_fullText;
    if (toolTip() != tip) setToolTip(tip);
}

}  // namespace vexlo::gui
