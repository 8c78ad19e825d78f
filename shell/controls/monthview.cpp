// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/monthview.h"

#include "shell/controls/monthheading.h"
#include "shell/look/theme.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QTableView>
#include <QTextCharFormat>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize designedSize(316, 296);
constexpr double corner = 8;
constexpr int nameMargin = 3; // as cells draw their text
const QDate lastDay(9999, 12, 31);

/// What the sheet of the whole application would otherwise give to every table and tool button; the heading's
/// buttons take their colour from a sheet alone.
QString ownSheet(const QColor &ink)
{
    return uR"(
QTableView, QTableView:focus { border: 0; background: transparent; padding: 0;
    selection-background-color: transparent; }
QToolButton { padding: 0 1px; min-height: 32px; color: %1; }
QToolButton#monthPrevious, QToolButton#monthNext { min-width: 32px; padding: 0; }
QToolButton::menu-indicator { image: none; width: 0; }
QSpinBox { min-height: 24px; padding: 1px 4px; }
)"_s.arg(ink.name());
}

} // namespace

MonthView::MonthView(QWidget *parent)
    : QCalendarWidget(parent)
{
    setLocale(QLocale::c());
    setFirstDayOfWeek(Qt::Sunday);
    setHorizontalHeaderFormat(ShortDayNames);
    setVerticalHeaderFormat(ISOWeekNumbers);
    setGridVisible(false);
    setMaximumDate(lastDay);
    setAutoFillBackground(false);
    // A letter meant for something else would open a box over the days that takes the arrow keys.
    setDateEditEnabled(false);
    setUpHeading();
    showPaletteColors();
    m_view = findChild<QTableView *>();
    if (QTableView *view = m_view) {
        view->setFrameShape(QFrame::NoFrame);
        view->setAccessibleName(u"Days of the month"_s);
        // Else a column is at least as wide as the widest letter of the font, and Saturday goes beyond the
        // edge.
        view->horizontalHeader()->setMinimumSectionSize(1);
    }
}

void MonthView::setToday(QDate today)
{
    if (std::exchange(m_today, today) != today)
        updateCells();
}

void MonthView::setMarkedDays(const QSet<QDate> &days)
{
    m_marked = days;
    updateCells();
    tellDay();
}

void MonthView::setTodayMarked(bool marked)
{
    m_todayMarked = marked;
    updateCells();
}

void MonthView::setOwnDays(QDate from, QDate to)
{
    m_from = from;
    m_to = to;
    updateCells();
}

void MonthView::setDayWords(std::function<QString(QDate)> words)
{
    m_dayWords = std::move(words);
    connect(this, &QCalendarWidget::selectionChanged, this, &MonthView::tellDay);
    tellDay();
}

void MonthView::tellDay()
{
    if (!m_view || !m_dayWords)
        return;
    const QString words = m_dayWords(selectedDate());
    if (words == m_view->accessibleName())
        return;
    m_view->setAccessibleName(words);
    QAccessibleEvent told(m_view, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&told);
}

QSize MonthView::sizeHint() const
{
    return designedSize.expandedTo(QCalendarWidget::sizeHint());
}

QSize MonthView::minimumSizeHint() const
{
    // The calendar counts its own heading only while it is shown.
    const QSize heading = m_heading ? m_heading->sizeHint() : QSize(0, 0);
    const QSize days = QCalendarWidget::minimumSizeHint();
    return QSize(266, 236).expandedTo(
        {std::max(days.width(), heading.width()), days.height() + heading.height()});
}

void MonthView::paintCell(QPainter *painter, const QRect &rect, QDate date) const
{
    painter->save();
    // The line under the names of the days, drawn with the first row since the view gives it no place.
    if (rect.y() < 2 * rect.height())
        painter->fillRect(QRect(rect.x(), rect.y(), rect.width(), 1), palette().color(ThemeRole::line));
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF mark = paintMark(*painter, rect, date);
    paintNumber(*painter, mark, date);
    if (m_marked.contains(date)) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(isChosen(date) ? Theme::of(this).onAccent : palette().color(ThemeRole::strong));
        painter->drawEllipse(QPointF(mark.center().x(), mark.bottom() - 5), 2.5, 2.5);
    }
    painter->restore();
}

QRectF MonthView::paintMark(QPainter &painter, const QRect &cell, QDate date) const
{
    const bool chosen = isChosen(date);
    QRectF mark = QRectF(cell).adjusted(2.5, 2.5, -2.5, -1.5);
    mark.setWidth(std::min(mark.width(), 36.0));
    mark.moveCenter(QRectF(cell).center() + QPointF(0, 0.5));
    const bool focused = chosen && m_view && m_view->hasFocus();
    if (focused) {
        // A ring outside the day, with a gap between.
        painter.setPen(QPen(palette().color(ThemeRole::strong), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(mark.adjusted(-1, -1, 1, 1), corner, corner);
        mark.adjust(2, 2, -2, -2);
    }
    if (chosen || isMarkedToday(date)) {
        painter.setPen(QPen(palette().color(ThemeRole::strong), 1.5));
        painter.setBrush(chosen ? QBrush(Theme::of(this).accent) : QBrush(Qt::NoBrush));
        painter.drawRoundedRect(mark, corner - (focused ? 2 : 0), corner - (focused ? 2 : 0));
    }
    return mark;
}

void MonthView::paintNumber(QPainter &painter, const QRectF &mark, QDate date) const
{
    const bool chosen = isChosen(date);
    const bool ofThisMonth = date.month() == monthShown() && date.year() == yearShown();
    QFont font = TypeScale::body();
    font.setWeight(chosen || isMarkedToday(date) ? QFont::DemiBold : QFont::Normal);
    painter.setFont(font);
    painter.setPen(
        chosen ? Theme::of(this).onAccent
               : palette().color(ofThisMonth && isEnabled() ? QPalette::WindowText : ThemeRole::quiet));
    painter.drawText(mark.adjusted(0, 0, 0, -4), Qt::AlignCenter, QString::number(date.day()));
}

void MonthView::changeEvent(QEvent *event)
{
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showPaletteColors();
}

void MonthView::resizeEvent(QResizeEvent *event)
{
    QCalendarWidget::resizeEvent(event);
    fitDayNames();
}

void MonthView::showEvent(QShowEvent *event)
{
    QCalendarWidget::showEvent(event);
    fitDayNames();
}

/// "Wed", or "W" where the columns are too narrow for it.
void MonthView::fitDayNames()
{
    const int columns = verticalHeaderFormat() == NoVerticalHeader ? 7 : 8;
    const int widest = QFontMetrics(headerTextFormat().font()).horizontalAdvance(u"Wed"_s);
    setHorizontalHeaderFormat(width() / columns < widest + 2 * nameMargin ? SingleLetterDayNames
                                                                          : ShortDayNames);
}

/// The calendar's own heading can be reached by names of the toolkit's alone; ours takes its place.
void MonthView::setUpHeading()
{
    auto *rows = qobject_cast<QBoxLayout *>(layout());
    if (!rows)
        return;
    setNavigationBarVisible(false);
    m_heading = new MonthHeading(this);
    m_heading->setMonth(yearShown(), monthShown());
    rows->insertWidget(0, m_heading);
    connect(m_heading, &MonthHeading::stepped, this,
            [this](int months) { showMonth(yearShown(), monthShown() + months); });
    connect(m_heading, &MonthHeading::picked, this, &MonthView::showMonth);
    connect(this, &QCalendarWidget::currentPageChanged, m_heading, &MonthHeading::setMonth);
}

/// The control itself would show months without a day that can be chosen. A month 0 or 13 is one of the year
/// beside.
void MonthView::showMonth(int year, int month)
{
    const QDate wanted = QDate(year, 1, 1).addMonths(month - 1);
    const QDate least = minimumDate().addDays(1 - minimumDate().day());
    const QDate shown = std::clamp(wanted, least, maximumDate());
    setCurrentPage(shown.year(), shown.month());
    if (shown != wanted)
        emit edgeReached();
}

void MonthView::showPaletteColors()
{
    QTextCharFormat head;
    QFont font = TypeScale::label();
    font.setWeight(QFont::DemiBold);
    head.setFont(font);
    head.setForeground(palette().color(ThemeRole::quiet));
    head.setBackground(Qt::transparent);
    setHeaderTextFormat(head);
    // The weekend like any other day: its names as well.
    for (const Qt::DayOfWeek free : {Qt::Saturday, Qt::Sunday})
        setWeekdayTextFormat(free, QTextCharFormat());
    if (const QString sheet = ownSheet(palette().color(QPalette::WindowText)); sheet != styleSheet())
        setStyleSheet(sheet);
}
