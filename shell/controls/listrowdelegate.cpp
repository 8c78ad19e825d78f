// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/listrowdelegate.h"

#include "shell/look/theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTableView>

#include <algorithm>

namespace {

constexpr int leastHeight = 33;
constexpr int inset = 8;
constexpr int footGap = 6;

} // namespace

int ListRowDelegate::rowHeight()
{
    return std::max(leastHeight, QFontMetrics(QApplication::font()).height() + 12);
}

QSize ListRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width() + 2 * inset, rowHeight()};
}

/// What is typed stands where the text of its column stands.
QWidget *ListRowDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto *box = qobject_cast<QLineEdit *>(editor)) {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        box->setAlignment(row.displayAlignment);
    }
    return editor;
}

void ListRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const bool selected = row.state & QStyle::State_Selected;
    const bool hovered = row.state & QStyle::State_MouseOver && row.state & QStyle::State_Enabled;
    const Theme &theme = Theme::of(row.widget);
    if (selected)
        painter->fillRect(row.rect, theme.accent);
    else if (hovered)
        painter->fillRect(row.rect, theme.soft);
    else if (row.features & QStyleOptionViewItem::Alternate)
        painter->fillRect(row.rect, theme.alternate);

    QRect place = row.rect.adjusted(inset, 0, -inset, 0);
    if (row.features & QStyleOptionViewItem::HasCheckIndicator) {
        const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
        const int side = style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, row.widget);
        QStyleOptionButton box;
        box.rect = QRect(place.left(), place.center().y() - side / 2, side, side);
        box.palette = row.palette;
        box.state =
            QStyle::State_Enabled | (row.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off);
        style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter);
        place.setLeft(box.rect.right() + inset);
    }
    if (!row.icon.isNull()) {
        const QRect icon(place.left(), place.center().y() - row.decorationSize.height() / 2 + 1,
                         row.decorationSize.width(), row.decorationSize.height());
        row.icon.paint(painter, icon, Qt::AlignCenter, selected ? QIcon::Selected : QIcon::Normal);
        place.setLeft(icon.right() + inset);
    }
    const bool enabled = row.state & QStyle::State_Enabled;
    painter->setPen(selected  ? theme.onAccent
                    : enabled ? row.palette.color(QPalette::Text)
                              : theme.disabledText);
    painter->setFont(row.font);
    painter->drawText(place, int(Qt::AlignVCenter | (row.displayAlignment & Qt::AlignHorizontal_Mask)),
                      row.fontMetrics.elidedText(row.text, row.textElideMode, place.width()));
}

bool ListRowDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    // The items of a QListWidget may be ticked by their flags, though they show no tick.
    const bool isTickable =
        (index.flags() & Qt::ItemIsUserCheckable) && index.data(Qt::CheckStateRole).isValid();
    if (!isTickable || event->type() != QEvent::MouseButtonRelease)
        return isTickable && event->type() == QEvent::MouseButtonDblClick
                   ? true
                   : QStyledItemDelegate::editorEvent(event, model, option, index);
    const bool isTicked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, isTicked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void setListRows(QAbstractItemView *view)
{
    view->setItemDelegate(new ListRowDelegate(view));
    view->setAlternatingRowColors(true);
    view->setMouseTracking(true);
    view->viewport()->setAttribute(Qt::WA_Hover);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (auto *list = qobject_cast<QListView *>(view))
        list->setUniformItemSizes(true);
}

void setGridRows(QTableView *view)
{
    view->setItemDelegate(new ListRowDelegate(view));
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setAlternatingRowColors(true);
    view->setShowGrid(false);
    view->setTabKeyNavigation(false);
    view->setWordWrap(false);
    view->verticalHeader()->hide();
    view->verticalHeader()->setDefaultSectionSize(ListRowDelegate::rowHeight());
    view->horizontalHeader()->setFixedHeight(ListRowDelegate::rowHeight());
    view->horizontalHeader()->setStretchLastSection(true);
    view->horizontalHeader()->setSectionsClickable(false);
    view->horizontalHeader()->setHighlightSections(false);
}

WholeRows::WholeRows(QAbstractItemView *view, QWidget *foot, QWidget *parent)
    : QWidget(parent)
    , m_view(view)
    , m_foot(foot)
{
    view->setParent(this);
    if (foot)
        foot->setParent(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setFocusProxy(view);
}

void WholeRows::setGivesWay(bool givesWay)
{
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(givesWay);
    setSizePolicy(policy);
}

/// What a part that scrolls takes for the least height, once some of it depends on the width.
int WholeRows::heightForWidth(int) const
{
    return minimumSizeHint().height();
}

QSize WholeRows::sizeHint() const
{
    return {m_view->sizeHint().width(), 8 * rowHeight() + aroundRows() + footHeight()};
}

QSize WholeRows::minimumSizeHint() const
{
    return {std::max(m_view->minimumSizeHint().width(), m_view->minimumWidth()),
            3 * rowHeight() + aroundRows() + footHeight()};
}

bool WholeRows::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) { // the foot has other words
        updateGeometry();
        place();
    }
    return QWidget::event(event);
}

void WholeRows::resizeEvent(QResizeEvent *)
{
    place();
}

void WholeRows::place()
{
    const int rows = std::max(1, (height() - footHeight() - aroundRows()) / rowHeight());
    m_view->setGeometry(0, 0, width(), rows * rowHeight() + aroundRows());
    if (m_foot)
        m_foot->setGeometry(0, m_view->height() + footGap, width(), m_foot->sizeHint().height());
}

int WholeRows::rowHeight() const
{
    if (const auto *table = qobject_cast<const QTableView *>(m_view))
        return table->verticalHeader()->defaultSectionSize();
    const int row = m_view->sizeHintForRow(0); // rows of two lines are higher
    return row > 0 ? row : ListRowDelegate::rowHeight();
}

/// Rim and padding of the view, the head of a table and the bar under one that is wider than its room.
int WholeRows::aroundRows() const
{
    m_view->ensurePolished(); // the sheet of the application sets the padding
    const int rim = 2 * m_view->frameWidth();
    const auto *table = qobject_cast<const QTableView *>(m_view);
    if (!table)
        return rim;
    const bool hasBar = table->horizontalScrollBarPolicy() == Qt::ScrollBarAsNeeded &&
                        table->horizontalHeader()->length() > table->viewport()->width();
    const int head = table->horizontalHeader()->isHidden() ? 0 : table->horizontalHeader()->height();
    return rim + head + (hasBar ? table->horizontalScrollBar()->sizeHint().height() : 0);
}

int WholeRows::footHeight() const
{
    return m_foot ? footGap + m_foot->sizeHint().height() : 0;
}
