#include "shell/controls/listrowdelegate.h"

#include "shell/look/theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QListView>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int leastHeight = 33;
constexpr int inset = 8;
constexpr int footGap = 6;
/// Rim and padding of a view, above and below its rows together.
constexpr int viewFrame = 8;

} // namespace

int ListRowDelegate::rowHeight()
{
    return std::max(leastHeight, QFontMetrics(QApplication::font()).height() + 12);
}

QSize ListRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width() + 2 * inset, rowHeight()};
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
                      row.fontMetrics.elidedText(row.text, Qt::ElideRight, place.width()));
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

QSize WholeRows::sizeHint() const
{
    return {m_view->sizeHint().width(), 8 * ListRowDelegate::rowHeight() + viewFrame + footHeight()};
}

QSize WholeRows::minimumSizeHint() const
{
    return {m_view->minimumSizeHint().width(), 3 * ListRowDelegate::rowHeight() + viewFrame + footHeight()};
}

void WholeRows::resizeEvent(QResizeEvent *)
{
    const int row = ListRowDelegate::rowHeight();
    const int rows = std::max(1, (height() - footHeight() - viewFrame) / row);
    m_view->setGeometry(0, 0, width(), rows * row + viewFrame);
    if (m_foot)
        m_foot->setGeometry(0, m_view->height() + footGap, width(), m_foot->sizeHint().height());
}

int WholeRows::footHeight() const
{
    return m_foot ? footGap + m_foot->sizeHint().height() : 0;
}
