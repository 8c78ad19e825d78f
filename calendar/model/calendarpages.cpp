// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarpages.h"

#include "calendar/model/calendargrids.h"
#include "calendar/model/calendarpapers.h"
#include "shell/core/dates.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// Inches.
constexpr double margin = 0.5;
constexpr double footTop = 0.46; ///< above the lower edge, in the margin
constexpr double footHeight = 0.18;
constexpr double cardFootTop = 0.32; ///< below the cards
constexpr QSizeF cardPadding{0.34, 0.34};
constexpr QSizeF quarterPadding{0.08, 0};
constexpr QSizeF yearPadding{0.1, 0.04};

constexpr double photoAbove = 0.47;
constexpr double photoLeft = 0.41;

int monthsPerSheet(CalendarLayout layout)
{
    switch (layout) {
    case CalendarLayout::Quarter:
        return 3;
    case CalendarLayout::Year:
        return 12;
    case CalendarLayout::Pocket:
        return 4;
    case CalendarLayout::Month:
    case CalendarLayout::Photo:
    case CalendarLayout::Columns:
        break;
    }
    return 1;
}

GridStyle styleOf(CalendarStyle style)
{
    switch (style) {
    case CalendarStyle::Open:
        return GridStyle::Open;
    case CalendarStyle::Bars:
        return GridStyle::Band;
    case CalendarStyle::Classic:
        break;
    }
    return GridStyle::Thin;
}

int monthCount(const WallCalendar &calendar)
{
    return std::clamp(calendar.months, 1, WallCalendar::mostMonths);
}

QString monthName(QDate first)
{
    return QLocale::c().standaloneMonthName(first.month());
}

/// "January to March" and "2027", where the months are of one year.
void setTitle(PageGrid &grid, QDate first, QDate last)
{
    const bool isOneYear = first.year() == last.year();
    if (isOneYear && first.month() == 1 && last.month() == 12) {
        grid.title = QString::number(first.year());
        return;
    }
    grid.title = isOneYear ? monthName(first) : Dates::monthYear(first);
    if (first != last)
        grid.title += u" to "_s + (isOneYear ? monthName(last) : Dates::monthYear(last));
    if (isOneYear)
        grid.titleLight = QString::number(first.year());
}

/// Blocks of the same size in rows.
void spread(QList<GridBlock> &blocks, int across, int down, QSizeF padding)
{
    for (int i = 0; i < int(blocks.size()); ++i) {
        blocks[i].share =
            QRectF(double(i % across) / across, double(i / across) / down, 1.0 / across, 1.0 / down);
        blocks[i].padding = padding;
    }
}

/// What goes on from a sheet before is told on this one again.
void beginNotes(GridBlock &block)
{
    for (GridLine &note : block.notes)
        note.isContinued = false;
}

/// The sheets of one calendar.
class Sheets
{
public:
    Sheets(const WallCalendar &calendar, const CalendarPages::Source &source)
        : m_calendar(calendar)
        , m_source(source)
        , m_sheet(source.context.setup.sheet())
        , m_isLandscape(source.context.setup.orientation == PageSetup::Landscape)
    {}

    PageGrid grid(int sheet, bool isLast) const;

private:
    void addMonth(PageGrid &grid, QDate first) const;
    void addPhoto(PageGrid &grid, QDate first) const;
    void addQuarter(PageGrid &grid, const QList<QDate> &months) const;
    void addYear(PageGrid &grid, const QList<QDate> &months) const;
    void addCards(PageGrid &grid, const QList<QDate> &months) const;
    void addFoot(PageGrid &grid, bool isLast) const;

    const WallCalendar &m_calendar;
    const CalendarPages::Source &m_source;
    QSizeF m_sheet;
    bool m_isLandscape;
};

PageGrid Sheets::grid(int sheet, bool isLast) const
{
    const CalendarLook &look = m_calendar.look;
    QList<QDate> months;
    for (const int month : CalendarPages::monthsOf(m_calendar, sheet))
        months.append(m_calendar.month(month));
    PageGrid grid{.style = styleOf(look.style), .family = look.fontFamily, .points = look.fontPoints};
    grid.place = QRectF({}, m_sheet).adjusted(margin, margin, -margin, -margin);
    grid.restTitle = u"Also this month"_s;
    addFoot(grid, isLast);
    if (months.isEmpty())
        return grid;
    if (look.layout != CalendarLayout::Pocket)
        setTitle(grid, months.constFirst(), months.constLast());
    switch (look.layout) {
    case CalendarLayout::Photo:
        addPhoto(grid, months.constFirst());
        addMonth(grid, months.constFirst());
        break;
    case CalendarLayout::Quarter:
        addQuarter(grid, months);
        break;
    case CalendarLayout::Year:
        addYear(grid, months);
        break;
    case CalendarLayout::Pocket:
        addCards(grid, months);
        break;
    case CalendarLayout::Month:
    case CalendarLayout::Columns:
        addMonth(grid, months.constFirst());
        break;
    }
    return grid;
}

void Sheets::addMonth(PageGrid &grid, QDate first) const
{
    grid.blocks.append(m_calendar.look.layout == CalendarLayout::Columns
                           ? CalendarGrids::persons(m_calendar, first)
                           : CalendarGrids::month(m_calendar, first));
    if (!m_calendar.look.hasSmallMonths)
        return;
    for (const int step : {-1, 1})
        grid.smallGrids.append(CalendarGrids::numbers(m_calendar, first.addMonths(step), true,
                                                      CalendarGrids::Notes::None, m_source.context.style));
}

void Sheets::addPhoto(PageGrid &grid, QDate first) const
{
    const MonthPhoto photo = m_calendar.photos.value(first);
    grid.hasPhoto = true;
    grid.photo.side = m_isLandscape ? GridPhoto::Left : GridPhoto::Above;
    grid.photo.share = m_isLandscape ? photoLeft : photoAbove;
    grid.photo.caption = photo.caption;
    if (!photo.path.isEmpty())
        grid.photo.path = m_source.picturePath ? m_source.picturePath(photo.path) : photo.path;
}

void Sheets::addQuarter(PageGrid &grid, const QList<QDate> &months) const
{
    grid.restTitle = u"Also in these months"_s;
    const bool hasYears = grid.titleLight.isEmpty();
    for (const QDate month : months)
        grid.blocks.append(CalendarGrids::days(m_calendar, month, hasYears, m_source.context.style));
    spread(grid.blocks, 3, 1, quarterPadding);
}

void Sheets::addYear(PageGrid &grid, const QList<QDate> &months) const
{
    grid.restTitle = u"Also this year"_s;
    const bool hasYears = months.constFirst().year() != months.constLast().year();
    for (const QDate month : months)
        grid.blocks.append(CalendarGrids::numbers(m_calendar, month, hasYears, CalendarGrids::Notes::Holidays,
                                                  m_source.context.style));
    beginNotes(grid.blocks.first());
    spread(grid.blocks, m_isLandscape ? 4 : 3, m_isLandscape ? 3 : 4, yearPadding);
}

void Sheets::addCards(PageGrid &grid, const QList<QDate> &months) const
{
    grid.place = QRectF({}, m_sheet);
    grid.foot.moveTop(m_sheet.height() - cardFootTop);
    grid.restTitle = u"Also in these months"_s;
    for (const QDate month : months)
        grid.blocks.append(CalendarGrids::numbers(m_calendar, month, true, CalendarGrids::Notes::All,
                                                  m_source.context.style));
    beginNotes(grid.blocks.first());
    spread(grid.blocks, 2, 2, cardPadding);
    grid.hasCutMarks = true;
}

void Sheets::addFoot(PageGrid &grid, bool isLast) const
{
    grid.foot = QRectF(margin, m_sheet.height() - footTop, m_sheet.width() - 2 * margin, footHeight);
    grid.footLeft = m_calendar.title;
    if (isLast) {
        const Page closed = Page().close(m_source.context.today, m_source.context.style);
        grid.footRight = Page::productLine() + u"   "_s + closed.printedLine();
    }
}

} // namespace

PageSetup CalendarPages::setup(const CalendarLook &look)
{
    return {CalendarPapers::sizeOf(look.paper),
            look.isLandscape ? PageSetup::Landscape : PageSetup::Portrait};
}

int CalendarPages::sheetCount(const WallCalendar &calendar)
{
    const int most = monthsPerSheet(calendar.look.layout);
    return (monthCount(calendar) + most - 1) / most;
}

int CalendarPages::sheetOf(const WallCalendar &calendar, int month)
{
    return std::clamp(month, 0, monthCount(calendar) - 1) / monthsPerSheet(calendar.look.layout);
}

QList<int> CalendarPages::monthsOf(const WallCalendar &calendar, int sheet)
{
    const int most = monthsPerSheet(calendar.look.layout);
    QList<int> months;
    for (int month = sheet * most; month < std::min((sheet + 1) * most, monthCount(calendar)); ++month)
        months.append(month);
    return months;
}

std::shared_ptr<const PageGrid> CalendarPages::grid(const WallCalendar &calendar, int sheet,
                                                    const Source &source, bool isLast)
{
    return std::make_shared<const PageGrid>(Sheets(calendar, source).grid(sheet, isLast));
}

std::shared_ptr<const PageGrid> CalendarPages::monthGrid(const WallCalendar &calendar, int month,
                                                         const Source &source)
{
    WallCalendar plain = calendar;
    plain.look.layout = CalendarLayout::Month;
    return grid(plain, month, source);
}

Page CalendarPages::page(const WallCalendar &calendar, const Source &source, const QList<int> &chosen)
{
    QList<int> sheets = chosen;
    for (int sheet = 0; chosen.isEmpty() && sheet < sheetCount(calendar); ++sheet)
        sheets.append(sheet);
    Page page;
    page.numberSheets(SheetNumbers::None);
    for (const int sheet : sheets)
        page.placeGrid(grid(calendar, sheet, source, sheet == sheets.constLast()));
    return page;
}
