// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/monthgrid.h"

#include "planner/model/daylines.h"
#include "planner/model/plannerpages.h"
#include "planner/window/daysmodel.h"
#include "planner/window/noteline.h"
#include "planner/window/viewfoot.h"
#include "shell/controls/steptitle.h"
#include "shell/core/dates.h"
#include "shell/look/theme.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;
constexpr QMargins cellMargins(8, 5, 6, 4);

int numberHeight()
{
    return std::max(22, QFontMetrics(TypeScale::strong()).height() + 4);
}

/// Six weeks are in sight on a screen of 768 rows, each day with its number and two lines.
int leastRowHeight()
{
    return cellMargins.top() + numberHeight() + 2 * QFontMetrics(TypeScale::label()).height() +
           cellMargins.bottom();
}

int widestDayName(const QTableView &view)
{
    constexpr int margins = 16;
    return view.horizontalHeader()->fontMetrics().horizontalAdvance(u"Wednesday"_s) + margins;
}

QRect contentOf(const QRect &cell)
{
    return cell.marginsRemoved(cellMargins);
}

/// Where a cell's note stands: below the number.
QRect notePlaceIn(const QRect &cell)
{
    const QRect place = contentOf(cell);
    return {place.left(), place.top() + numberHeight(), place.width(),
            QFontMetrics(TypeScale::label()).height()};
}

/// The number of the day, its note, and below them as many entries as fit, the last line telling how many do
/// not.
class DayCellDelegate final : public QStyledItemDelegate
{
public:
    DayCellDelegate(DateStyle style, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_style(style)
    {}

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override { return {80, 56}; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Theme &theme = Theme::of(option.widget);
        const bool isOutside = index.data(DaysModel::OutsideRole).toBool();
        const bool isCurrent = option.state & QStyle::State_Selected;
        painter->save();
        painter->fillRect(option.rect, isCurrent ? theme.mark : isOutside ? theme.locked : theme.field);
        if (isCurrent) {
            painter->setPen(QPen(theme.accent, 2));
            painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
        }
        const QRect place = contentOf(option.rect);
        paintNumber(*painter, place, index, theme, isOutside);
        QRect entries = place.adjusted(0, numberHeight(), 0, 0);
        if (const auto notes = DaysModel::notesOf(index); !notes.isEmpty()) {
            const QRect line = notePlaceIn(option.rect);
            painter->setFont(TypeScale::label());
            painter->setPen(theme.quiet);
            NoteLine::paint(*painter, line, notes);
            entries.setTop(line.bottom() + 1);
        }
        paintEntries(*painter, entries, index, isOutside ? theme.quiet : theme.text, theme);
        painter->restore();
    }

private:
    void paintNumber(QPainter &painter, const QRect &place, const QModelIndex &index, const Theme &theme,
                     bool isOutside) const
    {
        const bool isToday = index.data(DaysModel::TodayRole).toBool();
        const QDate date = index.data(DaysModel::DateRole).toDate();
        const QString number =
            isOutside && date.day() == 1 ? Dates::shortText(date, m_style) : QString::number(date.day());
        painter.setFont(isToday ? TypeScale::strong() : TypeScale::body());
        painter.setPen(isOutside ? theme.quiet : theme.text);
        // The ring says it too, where the word has no room.
        const QString words = isToday ? number + u"  today"_s : number;
        const bool hasRoom = painter.fontMetrics().horizontalAdvance(words) <= place.width();
        painter.drawText(place, Qt::AlignLeft | Qt::AlignTop, hasRoom ? words : number);
        if (isToday) {
            const int width = painter.fontMetrics().horizontalAdvance(number);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QPen(theme.accent, 1.5));
            painter.drawRoundedRect(QRectF(place.left() - 5, place.top() - 1, width + 10, numberHeight() - 1),
                                    6, 6);
            painter.setRenderHint(QPainter::Antialiasing, false);
        }
    }

    static void paintEntries(QPainter &painter, const QRect &place, const QModelIndex &index,
                             const QColor &ink, const Theme &theme)
    {
        const DayLines lines(index.data(DaysModel::DayRole).value<PlannerDay>());
        painter.setFont(TypeScale::label());
        const QFontMetrics metrics = painter.fontMetrics();
        const auto line = [&](int number, const QString &text, const QColor &color) {
            painter.setPen(color);
            painter.drawText(
                QRect(place.left(), place.top() + number * metrics.height(), place.width(), metrics.height()),
                Qt::AlignLeft, metrics.elidedText(text, Qt::ElideRight, place.width()));
        };
        const int shown = int(lines.share(1000, place.height() / metrics.height()).size());
        for (int i = 0; i < shown; ++i)
            line(i, lines.joined(i), ink);
        if (shown < lines.count())
            line(shown, (shown > 0 ? u"+ %1 more"_s : u"%1 entries"_s).arg(lines.count() - shown),
                 theme.quiet);
    }

    DateStyle m_style;
};

} // namespace

MonthGrid::MonthGrid(const PlannerFiles &files, const HouseholdNotes &notes, DateStyle style, QWidget *parent)
    : DaysView(notes, parent)
    , m_files(files)
    , m_model(new DaysModel(style, this))
    , m_title(new StepTitle({u"monthTitle"_s, u"month"_s, u"This Month"_s}, this))
    , m_view(new QTableView(this))
{
    m_view->setObjectName(u"monthGrid"_s);
    m_view->setItemDelegate(new DayCellDelegate(style, m_view));
    setUpView();
    auto *foot = new ViewFoot(u"month"_s, u"Click a day, or press Enter, to open it"_s, this);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 12, 24, 18);
    rows->setSpacing(12);
    rows->addWidget(m_title);
    rows->addWidget(m_view, 1);
    rows->addWidget(foot);
    connect(foot, &ViewFoot::dayRequested, this, &MonthGrid::left);
    connect(m_title, &StepTitle::stepped, this, &MonthGrid::stepped);
    connect(m_title, &StepTitle::todayRequested, this, &MonthGrid::todayRequested);
}

void MonthGrid::setUpView()
{
    m_view->setModel(m_model);
    m_view->setAccessibleName(u"Days of the month"_s);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setTabKeyNavigation(false);
    m_view->setCornerButtonEnabled(false);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_view->horizontalHeader()->setSectionsClickable(false);
    m_view->horizontalHeader()->setHighlightSections(false);
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_view->verticalHeader()->setMinimumSectionSize(leastRowHeight());
    m_view->verticalHeader()->setSectionsClickable(false);
    m_view->verticalHeader()->setHighlightSections(false);
    m_view->verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    connect(m_view->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int section, int, int width) {
                if (section == 0)
                    m_model->setDayNames(width < widestDayName(*m_view) ? QLocale::ShortFormat
                                                                        : QLocale::LongFormat);
            });
    setView(m_view, m_model, notePlaceIn);
}

void MonthGrid::show(QDate date, const CalendarOptions &options, QDate today)
{
    const QDate first(date.year(), date.month(), 1);
    const Dates::Weeks weeks = Dates::weeksOfMonth(date, options.firstDay());
    const QDate last = first.addMonths(1).addDays(-1);
    m_model->setDays({weeks.start, weeks.count, daysPerWeek, first, last},
                     m_files.days(weeks.start, weeks.end()), today);
    m_view->verticalHeader()->setVisible(options.showsWeekNumbers());
    m_title->setTitle(Dates::monthYear(first));
    m_view->setCurrentIndex(m_model->indexOf(date));
    readNotes();
}

QDate MonthGrid::date() const
{
    return m_model->date(m_view->currentIndex());
}

QDate MonthGrid::after(QDate date, int steps) const
{
    return date.addMonths(steps);
}

Page MonthGrid::page(QDate date, const CalendarOptions &options, const PageContext &context) const
{
    const QDate first(date.year(), date.month(), 1);
    return PlannerPages::monthOf(m_files, date, options, context,
                                 notes().texts(first, first.addMonths(1).addDays(-1)));
}

QString MonthGrid::printName(QDate date) const
{
    return u"Planner "_s + date.toString(u"yyyy-MM"_s);
}
