#include "gui/files/icon_list_box.h"

#include <QApplication>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextOption>

#include "core/files/multi_icon_list.h"

namespace vexlo::gui {

namespace {

// The average character width, measured on the letters as the platform measures a dialog
// font's base unit.
qreal AverageCharWidth(const QFontMetrics& metrics) {
    const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    return metrics.horizontalAdvance(letters) / 52.0;
}

// Draws a line of the list with its tabs expanded to the list's tab stops.
class TabbedLineDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem opt = option;
        initStyleOption(&opt, index);
        const QString text = opt.text;
        opt.text.clear();
        const QWidget* widget = opt.widget;
        QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);

        const QRect textRect = style->subElementRect(QStyle::SE_ItemViewItemText, &opt, widget);
        const QPalette::ColorGroup group = !(opt.state & QStyle::State_Enabled) ? QPalette::Disabled
                                           : (opt.state & QStyle::State_Active) ? QPalette::Active
                                                                                : QPalette::Inactive;
        const QPalette::ColorRole role =
            (opt.state & QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
        QTextOption textOption(Qt::AlignLeft | Qt::AlignVCenter);
        textOption.setWrapMode(QTextOption::NoWrap);
        textOption.setTabArray(ListTabStops(opt.fontMetrics));
        textOption.setTabStopDistance(DefaultTabDistance(opt.fontMetrics));
        painter->save();
        painter->setFont(opt.font);
        painter->setPen(opt.palette.color(group, role));
        painter->drawText(QRectF(textRect), text, textOption);
        painter->restore();
    }
};

}  // namespace

QList<qreal> ListTabStops(const QFontMetrics& metrics) {
    const qreal unit = AverageCharWidth(metrics) / 4.0;
    QList<qreal> stops;
    for (int units : files::kListTabStops) stops << units * unit;
    return stops;
}

qreal DefaultTabDistance(const QFontMetrics& metrics) { return 8 * AverageCharWidth(metrics); }

IconListBox::IconListBox(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setItemDelegate(new TabbedLineDelegate(this));
    // The selection, not the current row: a mouse press makes the row current before it
    // selects it, so the current row's signal comes while nothing is selected yet.
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        ++m_selectionChanges;
        if (!m_quiet) emit Click();
    });
}

void IconListBox::SelectQuietly(int row) {
    m_quiet = true;
    if (row < 0 || row >= count()) {
        clearSelection();
        setCurrentRow(-1);
    } else {
        setCurrentRow(row);
    }
    m_quiet = false;
}

void IconListBox::SetLinesQuietly(const QStringList& lines) {
    m_quiet = true;
    clear();
    addItems(lines);
    m_quiet = false;
}

int IconListBox::SelectedRow() const {
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : row(selected.first());
}

void IconListBox::mousePressEvent(QMouseEvent* event) {
    const int before = m_selectionChanges;
    QListWidget::mousePressEvent(event);
    // A press on the line already selected is a click too.
    const QListWidgetItem* pressed = itemAt(event->position().toPoint());
    if (m_selectionChanges == before && pressed != nullptr && pressed->isSelected()) emit Click();
}

}  // namespace vexlo::gui
