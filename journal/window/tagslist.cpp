// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/tagslist.h"

#include "journal/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/look/theme.h"

#include <QListView>
#include <QPainter>
#include <QShortcut>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int inset = 8;
constexpr int countRole = Qt::UserRole;

/// A tag, and at the right how many entries have it.
class TagDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {inset, ListRowDelegate::rowHeight()};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Theme &theme = Theme::of(option.widget);
        const bool isSelected = option.state & QStyle::State_Selected;
        if (isSelected)
            painter->fillRect(option.rect, theme.accent);
        else if (option.state & QStyle::State_MouseOver)
            painter->fillRect(option.rect, theme.soft);
        QRect place = option.rect.adjusted(inset, 0, -inset, 0);
        const QString count = QString::number(index.data(countRole).toInt());
        painter->setFont(TypeScale::label());
        painter->setPen(isSelected ? theme.onAccent : theme.quiet);
        painter->drawText(place, Qt::AlignVCenter | Qt::AlignRight, count);
        place.setRight(place.right() - painter->fontMetrics().horizontalAdvance(count) - inset);
        painter->setFont(option.font);
        painter->setPen(isSelected ? theme.onAccent : option.palette.color(QPalette::Text));
        painter->drawText(
            place, Qt::AlignVCenter | Qt::AlignLeft,
            painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, place.width()));
    }
};

} // namespace

TagsList::TagsList(QWidget *parent)
    : QWidget(parent)
    , m_rows(new QStandardItemModel(this))
    , m_list(named(new QListView, u"tagsList"_s))
    , m_whole(new WholeRows(m_list, nullptr, this))
    , m_nothing(makeQuietLabel(JournalWindowLines::noTags(), this))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(6);
    rows->addWidget(makeHeading(u"Tags"_s, this));
    rows->addWidget(m_nothing);
    rows->addWidget(m_whole, 1);
    rows->addStretch(0);
    m_nothing->setWordWrap(true);
    m_list->setModel(m_rows);
    setListRows(m_list);
    m_list->setItemDelegate(new TagDelegate(m_list));
    m_list->setAccessibleName(u"Tags"_s);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // A sentence beside it that wraps would have the pane scroll for the height that a list likes best.
    m_whole->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_whole->setMinimumHeight(ListRowDelegate::rowHeight() + 2 * m_list->frameWidth());
    m_whole->hide();
    connect(m_list, &QListView::clicked, this, &TagsList::open);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *opens = new QShortcut(key, m_list);
        opens->setContext(Qt::WidgetShortcut);
        connect(opens, &QShortcut::activated, m_list, [this] { open(m_list->currentIndex()); });
    }
}

void TagsList::setTags(const QMap<QString, int> &tags)
{
    const QString current = m_list->currentIndex().data().toString();
    m_rows->clear();
    QStringList names = tags.keys();
    names.sort(Qt::CaseInsensitive);
    for (const QString &name : std::as_const(names)) {
        const int count = tags.value(name);
        auto *row = new QStandardItem(name);
        row->setData(count, countRole);
        row->setData(u"%1, %2"_s.arg(name, JournalWindowLines::hits(count)), Qt::AccessibleTextRole);
        row->setToolTip(name);
        m_rows->appendRow(row);
        if (name == current)
            m_list->setCurrentIndex(row->index());
    }
    m_whole->setVisible(!tags.isEmpty());
    m_nothing->setVisible(tags.isEmpty());
}

int TagsList::count() const
{
    return m_rows->rowCount();
}

int TagsList::headHeight() const
{
    return minimumSizeHint().height() - (m_whole->isHidden() ? 0 : m_whole->minimumHeight());
}

int TagsList::rowsHeight(int rows) const
{
    return count() > 0 ? rows * ListRowDelegate::rowHeight() + 2 * m_list->frameWidth() : 0;
}

void TagsList::open(const QModelIndex &index)
{
    if (index.isValid())
        emit tagChosen(index.data().toString());
}
