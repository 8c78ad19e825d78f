// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/weekview.h"

#include "planner/model/daylines.h"
#include "planner/model/plannerpages.h"
#include "planner/window/daysmodel.h"
#include "planner/window/noteline.h"
#include "planner/window/viewfoot.h"
#include "shell/controls/steptitle.h"
#include "shell/core/dates.h"
#include "shell/look/theme.h"

#include <QListView>
#include <QLocale>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;
constexpr int padding = 10;
/// Above and below the entries, where the week is full.
constexpr int narrowPadding = 6;

int headWidth()
{
    return TypeScale::wide(132);
}

int timeWidth()
{
    return TypeScale::wide(80);
}

/// Entries stand in two columns only where each is at least this wide.
int narrowestColumn()
{
    return TypeScale::wide(300);
}

int lineHeight()
{
    return QFontMetrics(TypeScale::body()).height() + 3;
}

/// Where a band's entries stand, and above them its note.
QRect entriesPlaceIn(const QRect &band)
{
    return band.adjusted(padding + headWidth(), narrowPadding + 1, -padding, -narrowPadding);
}

QRect notePlaceIn(const QRect &band)
{
    QRect place = entriesPlaceIn(band);
    place.setHeight(lineHeight());
    return place;
}

/// One band: the day at the left, its entries beside it.
class DayBandDelegate final : public QStyledItemDelegate
{
public:
    DayBandDelegate(DateStyle style, QListView *view)
        : QStyledItemDelegate(view)
        , m_style(style)
        , m_view(view)
    {}

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        // Where the week is short, its days share what is left of the view.
        const int columns = columnCount();
        const int share = (m_view->viewport()->height() - neededHeight(columns)) / daysPerWeek;
        return {headWidth(), neededHeight(index, columns) + std::max(0, share)};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Theme &theme = Theme::of(option.widget);
        const bool isCurrent = option.state & QStyle::State_Selected;
        painter->save();
        painter->fillRect(option.rect, isCurrent              ? theme.mark
                                       : index.row() % 2 == 0 ? theme.field
                                                              : theme.alternate);
        if (isCurrent) {
            painter->setPen(QPen(theme.accent, 2));
            painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
        }
        const QRect place = option.rect.adjusted(padding, narrowPadding + 1, -padding, -narrowPadding);
        paintHead(*painter, place, index, theme);
        QRect entries = entriesPlaceIn(option.rect);
        if (const auto notes = DaysModel::notesOf(index); !notes.isEmpty()) {
            painter->setFont(TypeScale::label());
            painter->setPen(theme.quiet);
            NoteLine::paint(*painter, notePlaceIn(option.rect).adjusted(0, 0, 0, -3), notes);
            entries.setTop(entries.top() + lineHeight());
        }
        paintEntries(*painter, entries, index, theme);
        painter->restore();
    }

private:
    static int neededHeight(const QModelIndex &index, int columns)
    {
        const DayLines lines(index.data(DaysModel::DayRole).value<PlannerDay>());
        const int notes = DaysModel::notesOf(index).isEmpty() ? 0 : 1;
        const int rows = notes + (lines.count() + columns - 1) / columns;
        return std::max(2, rows) * lineHeight() + 2 * narrowPadding;
    }
    int neededHeight(int columns) const
    {
        int needed = 0;
        for (int day = 0; day < daysPerWeek; ++day)
            needed += neededHeight(m_view->model()->index(day, 0), columns);
        return needed;
    }
    /// Two where a full week would not fit otherwise; the same with and without the scroll bar, which comes
    /// after the days are measured.
    int columnCount() const
    {
        const int scrollBar = m_view->verticalScrollBar()->sizeHint().width();
        const int width = m_view->contentsRect().width() - scrollBar - headWidth() - 2 * padding;
        const bool isWide = width >= 2 * narrowestColumn();
        return isWide && neededHeight(1) > m_view->viewport()->height() ? 2 : 1;
    }

    void paintHead(QPainter &painter, const QRect &place, const QModelIndex &index, const Theme &theme) const
    {
        const QDate date = index.data(DaysModel::DateRole).toDate();
        const bool isToday = index.data(DaysModel::TodayRole).toBool();
        painter.setFont(TypeScale::strong());
        painter.setPen(isToday ? theme.accent : theme.text);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignTop, QLocale::c().dayName(date.dayOfWeek()));
        painter.setFont(TypeScale::label());
        painter.setPen(theme.quiet);
        const QString day = Dates::shortText(date, m_style);
        painter.drawText(place.adjusted(0, lineHeight(), 0, 0), Qt::AlignLeft | Qt::AlignTop,
                         isToday ? day + u", today"_s : day);
    }

    void paintEntries(QPainter &painter, const QRect &place, const QModelIndex &index,
                      const Theme &theme) const
    {
        const DayLines lines(index.data(DaysModel::DayRole).value<PlannerDay>());
        const int columns = columnCount();
        const int perColumn = (lines.count() + columns - 1) / columns;
        const int width = place.width() / columns;
        painter.setFont(TypeScale::body());
        const QFontMetrics metrics = painter.fontMetrics();
        for (int i = 0; i < lines.count(); ++i) {
            const QRect line(place.left() + i / perColumn * width, place.top() + i % perColumn * lineHeight(),
                             width - padding, metrics.height());
            painter.setPen(theme.quiet);
            painter.drawText(QRect(line.left(), line.top(), timeWidth(), line.height()), Qt::AlignRight,
                             metrics.elidedText(lines.time(i), Qt::ElideRight, timeWidth()));
            const QRect text = line.adjusted(timeWidth() + padding, 0, 0, 0);
            painter.setPen(theme.text);
            painter.drawText(text, Qt::AlignLeft,
                             metrics.elidedText(lines.text(i), Qt::ElideRight, text.width()));
        }
    }

    DateStyle m_style;
    QListView *m_view;
};

/// "Dec 28 - Jan 3, 2027", or "28 Dec - 3 Jan 2027".
QString shortRange(QDate from, QDate to, DateStyle style)
{
    return Dates::shortText(from, style) + u" - "_s + Dates::shortWithYear(to, style);
}

} // namespace

WeekView::WeekView(const PlannerFiles &files, const HouseholdNotes &notes, DateStyle style, QWidget *parent)
    : DaysView(notes, parent)
    , m_files(files)
    , m_style(style)
    , m_model(new DaysModel(style, this))
    , m_title(new StepTitle({u"weekTitle"_s, u"week"_s, u"This Week"_s}, this))
    , m_view(new QListView(this))
{
    m_view->setObjectName(u"weekView"_s);
    m_view->setAccessibleName(u"Days of the week"_s);
    m_view->setModel(m_model);
    m_view->setItemDelegate(new DayBandDelegate(style, m_view));
    m_view->setResizeMode(QListView::Adjust);
    m_view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setView(m_view, m_model, notePlaceIn);
    auto *foot = new ViewFoot(u"week"_s, u"Click a day, or press Enter, to open it"_s, this);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 12, 24, 18);
    rows->setSpacing(12);
    rows->addWidget(m_title);
    rows->addWidget(m_view, 1);
    rows->addWidget(foot);
    connect(foot, &ViewFoot::dayRequested, this, &WeekView::left);
    connect(m_title, &StepTitle::stepped, this, &WeekView::stepped);
    connect(m_title, &StepTitle::todayRequested, this, &WeekView::todayRequested);
}

void WeekView::show(QDate date, const CalendarOptions &options, QDate today)
{
    const QDate start = Dates::startOfWeek(date, options.firstDay());
    const QDate end = start.addDays(daysPerWeek - 1);
    m_model->setDays({start, daysPerWeek, 1, start, end}, m_files.days(start, end), today);
    m_title->setTitle(Dates::range(start, end, m_style), shortRange(start, end, m_style));
    m_view->setCurrentIndex(m_model->indexOf(date));
    readNotes();
}

void WeekView::notesShown()
{
    m_view->doItemsLayout();
}

/// The list measures its days anew for another height alone, and late.
void WeekView::resizeEvent(QResizeEvent *event)
{
    DaysView::resizeEvent(event);
    m_view->doItemsLayout();
}

QDate WeekView::date() const
{
    return m_model->date(m_view->currentIndex());
}

QDate WeekView::after(QDate date, int steps) const
{
    return date.addDays(qint64(daysPerWeek) * steps);
}

Page WeekView::page(QDate date, const CalendarOptions &options, const PageContext &context) const
{
    const QDate start = Dates::startOfWeek(date, options.firstDay());
    return PlannerPages::weekOf(m_files, date, options, context,
                                notes().texts(start, start.addDays(daysPerWeek - 1)));
}

QString WeekView::printName(QDate date) const
{
    return u"Planner week "_s + date.toString(Qt::ISODate);
}
