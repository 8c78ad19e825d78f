// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/hitlist.h"

#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/core/dates.h"
#include "shell/look/theme.h"

#include <QHash>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int inset = 8;
constexpr int rowGap = 10;
constexpr int dateRole = Qt::UserRole;
constexpr int hitRole = Qt::UserRole + 1;

/// From where on a line is shown, so that there is room for its first mark: at the beginning of a word.
qsizetype beginOf(const JournalHit &hit, const QFontMetrics &metrics, int width)
{
    if (hit.marks.isEmpty() || metrics.horizontalAdvance(hit.context) <= width)
        return 0;
    const auto [at, length] = hit.marks.first();
    qsizetype begin = at;
    // A third of the room for what stands before the word.
    while (begin > 0 && metrics.horizontalAdvance(hit.context.sliced(begin - 1, at - begin + 1)) < width / 3)
        --begin;
    const qsizetype blank = begin > 0 ? hit.context.indexOf(u' ', begin) : -1;
    return blank >= 0 && blank < at ? blank + 1 : begin;
}

/// The day, and below it a line of the text with the words marked: bold, on the ground of what is marked.
class HitDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {inset, QFontMetrics(TypeScale::strong()).height() +
                           QFontMetrics(TypeScale::label()).height() + rowGap};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Theme &theme = Theme::of(option.widget);
        const bool isSelected = option.state & QStyle::State_Selected;
        painter->save();
        if (isSelected)
            painter->fillRect(option.rect, theme.accent);
        else if (option.state & QStyle::State_MouseOver)
            painter->fillRect(option.rect, theme.soft);
        QRect place = option.rect.adjusted(inset, rowGap / 2, -inset, 0);
        painter->setClipRect(option.rect.adjusted(inset, 0, -inset, 0));
        painter->setFont(TypeScale::strong());
        painter->setPen(isSelected ? theme.onAccent : option.palette.color(QPalette::Text));
        painter->drawText(place, Qt::AlignLeft | Qt::AlignTop, index.data().toString());
        place.setTop(place.top() + painter->fontMetrics().height());
        paintContext(*painter, place, index.data(hitRole).value<JournalHit>(), theme, isSelected);
        painter->restore();
    }

private:
    static void paintContext(QPainter &painter, QRect place, const JournalHit &hit, const Theme &theme,
                             bool isSelected)
    {
        const QFont plain = TypeScale::label();
        QFont bold = plain;
        bold.setWeight(QFont::Bold);
        const qsizetype begin = beginOf(hit, QFontMetrics(plain), place.width());
        const auto draw = [&](QString text, bool isMarked) {
            if (text.isEmpty() || place.width() <= 0)
                return;
            painter.setFont(isMarked ? bold : plain);
            text = painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width());
            const int width = painter.fontMetrics().horizontalAdvance(text);
            if (isMarked && !isSelected)
                painter.fillRect(QRect(place.left(), place.top(), width, painter.fontMetrics().height()),
                                 theme.mark);
            painter.setPen(isSelected ? theme.onAccent : isMarked ? theme.text : theme.quiet);
            painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, text);
            place.setLeft(place.left() + width);
        };
        draw(begin > 0 ? u"\u2026"_s : QString(), false);
        qsizetype done = begin;
        for (const auto &[at, length] : hit.marks) {
            const qsizetype from = std::max(done, at);
            draw(hit.context.sliced(done, from - done), false);
            done = std::max(from, at + length);
            draw(hit.context.sliced(from, done - from), true);
        }
        draw(hit.context.sliced(done), false);
    }
};

} // namespace

class HitList::Rows final : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    /// Whether they are others than before.
    bool setHits(const QList<QDate> &dates, const Look &look, DateStyle style)
    {
        m_look = look;
        m_style = style;
        m_seen.clear();
        if (dates == m_dates) {
            emit dataChanged(index(0), index(int(m_dates.size()) - 1));
            return false;
        }
        beginResetModel();
        m_dates = dates;
        endResetModel();
        return true;
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_dates.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid() || index.row() >= m_dates.size())
            return {};
        const QDate date = m_dates[index.row()];
        const QString day = Dates::statusText(date, m_style);
        switch (role) {
        case Qt::DisplayRole:
            return day;
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return QString(day + u": "_s + hit(date).context);
        case dateRole:
            return date;
        case hitRole:
            return QVariant::fromValue(hit(date));
        default:
            return {};
        }
    }

private:
    const JournalHit &hit(QDate date) const
    {
        const auto seen = m_seen.constFind(date);
        return seen != m_seen.cend() ? *seen : *m_seen.insert(date, m_look(date));
    }

    QList<QDate> m_dates;
    Look m_look;
    mutable QHash<QDate, JournalHit> m_seen;
    DateStyle m_style = DateStyle::Usa;
};

HitList::HitList(QWidget *parent)
    : QListView(parent)
    , m_rows(new Rows(this))
{
    setObjectName(u"journalHits"_s);
    setAccessibleName(u"Days found"_s);
    setModel(m_rows);
    setListRows(this);
    setItemDelegate(new HitDelegate(this));
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    connect(this, &QListView::clicked, this, [this](const QModelIndex &index) { emit opened(date(index)); });
}

void HitList::setHits(const QList<QDate> &dates, const Look &look, DateStyle style)
{
    const QDate current = date(currentIndex());
    if (m_rows->setHits(dates, look, style))
        setCurrentIndex(m_rows->index(std::max(0, int(dates.indexOf(current)))));
}

QDate HitList::date(const QModelIndex &index) const
{
    return index.data(dateRole).toDate();
}

void HitList::keyPressEvent(QKeyEvent *event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentIndex().isValid()) {
        emit opened(date(currentIndex()));
        return;
    }
    QListView::keyPressEvent(event);
}
