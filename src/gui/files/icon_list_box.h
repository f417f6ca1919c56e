#pragma once
// IconListBox: lisIcons of the multi-icon dialog, a one-selection list whose lines are drawn
// with their tabs expanded to the list's tab stops (files::kListTabStops, in dialog units).
// Click is the list's click event: once for every change of the selection, whether by the
// mouse or by the keys, and once for a press on the line already selected. A selection made
// with SelectQuietly raises none.
#include <QList>
#include <QListWidget>
#include <QStringList>

class QFontMetrics;

namespace vexlo::gui {

class IconListBox : public QListWidget {
    Q_OBJECT
public:
    explicit IconListBox(QWidget* parent = nullptr);

    // Selects row (-1: none) without a Click.
    void SelectQuietly(int row);
    // Replaces the lines, nothing selected, without a Click.
    void SetLinesQuietly(const QStringList& lines);
    // The selected row, -1 for none.
    int SelectedRow() const;

signals:
    void Click();

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    int m_selectionChanges = 0;
    bool m_quiet = false;
};

// The tab stops of a list in the font of metrics, in pixels: files::kListTabStops converted
// from dialog units, a dialog unit being a quarter of the average character width.
QList<qreal> ListTabStops(const QFontMetrics& metrics);
// The distance of the tabs past the last stop: eight average character widths.
qreal DefaultTabDistance(const QFontMetrics& metrics);

}  // namespace vexlo::gui
