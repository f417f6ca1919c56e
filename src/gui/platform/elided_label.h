#pragma once
// A label of fixed width for texts that may not fit, such as a file's path in the status bar.
// A text that fits is shown whole; a longer one is shortened with an ellipsis and the whole
// text becomes the tooltip.
#include <QLabel>
#include <QString>

class QFontMetrics;

namespace vexlo::gui {

// The text shortened to at most width pixels in metrics. A path loses whole folders from its
// middle and keeps its first folder and its file name ("/home/…/art/icon.ico"), then only its
// file name ("…/icon.ico"); a text that cannot be cut at a '/' loses its middle. A text that
// fits comes back unchanged.
QString ElidePath(const QString& text, const QFontMetrics& metrics, int width);

class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    // The whole text; text() answers what is shown.
    void SetFullText(const QString& text);
    const QString& FullText() const { return m_fullText; }
    bool Elided() const { return text() != m_fullText; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Fit();

    QString m_fullText;
};

}  // namespace vexlo::gui
