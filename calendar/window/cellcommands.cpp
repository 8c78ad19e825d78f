// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/cellcommands.h"

#include "calendar/model/calendaredits.h"
#include "calendar/model/messages.h"
#include "calendar/window/celltyping.h"
#include "calendar/window/linedatepanel.h"
#include "calendar/window/monthcells.h"
#include "calendar/window/monthpage.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/windowlines.h"
#include "shell/core/dates.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

CellCommands::CellCommands(const CalendarDesk &desk, CellTyping &typing, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_typing(typing)
{
    const MonthCells &cells = m_desk.page.cells();
    connect(&cells, &MonthCells::orderWanted, this, &CellCommands::order);
    connect(&cells, &MonthCells::lineDropped, this, [this](QDate from, int line, QDate to, bool isCopied) {
        if (from != to)
            move(from, line, to, isCopied);
    });
}

QAction *CellCommands::add(QMenu *menu, const QString &name, const QString &caption,
                           std::function<void()> run, std::function<QString()> unless)
{
    const auto first = [this, run = std::move(run)] {
        m_typing.finish();
        run();
    };
    return m_desk.commands.writing(
        m_desk.commands.add(menu, name, caption, first, [this, unless = std::move(unless)] {
            const QString locked = m_desk.calendars.whyLocked();
            return locked.isEmpty() && unless ? unless() : locked;
        }));
}

void CellCommands::addCommands(QMenu *edit)
{
    const auto needsLine = [this] { return whyNoLine(); };
    m_remove = add(
        edit, u"mERemove"_s, u"&Remove Line"_s, [this] { remove(); }, needsLine);
    m_desk.commands.setKeyIn(&m_desk.page.cells(), m_remove, CommonKeys::remove);
    add(
        edit, u"mERestore"_s, u"&Bring Back Removed Lines"_s, [this] { restore(); },
        [this] { return whyNoneRemoved(); });
    edit->addSeparator();
    m_date = add(
        edit, u"mEDate"_s, u"&Move to Another Date..."_s, [this] { openPanel(); }, needsLine);
    m_date->setShortcut(Qt::CTRL | Qt::Key_D);
    add(
        edit, u"mEUp"_s, u"Move Line &Up\tAlt+Up"_s, [this] { order(-1); }, needsLine);
    add(
        edit, u"mEDown"_s, u"Move Line Do&wn\tAlt+Down"_s, [this] { order(1); }, needsLine);
    m_yearly = add(
        edit, u"mEYearly"_s, u"Comes Along Every &Year"_s, [this] { setYearly(); },
        [this] { return whyNotYearly(); });
    m_yearly->setCheckable(true);
    edit->addSeparator();
    add(edit, u"mEEmpty"_s, u"&Empty Month..."_s, [this] { emptyMonth(); }, {});
}

DayLine CellCommands::chosen() const
{
    const MonthCells &cells = m_desk.page.cells();
    return m_desk.calendars.calendar().days.value(cells.day()).value(cells.line());
}

/// The only line of a day needs not to be chosen.
QString CellCommands::whyNoLine() const
{
    const MonthCells &cells = m_desk.page.cells();
    if (m_typing.isOpen() || cells.line() >= 0)
        return {};
    const QList<int> lines = CalendarEdits::visibleLines(m_desk.calendars.calendar(), cells.day());
    if (lines.size() == 1)
        return {};
    return lines.isEmpty() ? CalendarWindowLines::noLine() : CalendarWindowLines::chooseLine();
}

QString CellCommands::whyNotYearly() const
{
    QString none = whyNoLine();
    if (!none.isEmpty() || m_typing.isOpen())
        return none;
    return m_desk.page.cells().line() < 0 || chosen().isTyped() ? QString()
                                                                : CalendarWindowLines::onlyTyped();
}

QString CellCommands::whyNoneRemoved() const
{
    const QList<DayLine> lines = m_desk.calendars.calendar().days.value(m_desk.page.cells().day());
    return std::ranges::any_of(lines, &DayLine::isRemoved) ? QString() : CalendarWindowLines::noRemoved();
}

void CellCommands::follow()
{
    m_yearly->setChecked(chosen().isYearly);
}

bool CellCommands::make(const QString &title, const WallCalendar &after)
{
    if (after == m_desk.calendars.calendar() || !m_desk.calendars.change(title, after))
        return false;
    emit done(title);
    return true;
}

/// The line that a command is for: the chosen one, or the only one.
int CellCommands::line() const
{
    const MonthCells &cells = m_desk.page.cells();
    const QList<int> lines = CalendarEdits::visibleLines(m_desk.calendars.calendar(), cells.day());
    return cells.line() >= 0 || lines.size() != 1 ? cells.line() : lines.first();
}

void CellCommands::remove()
{
    MonthCells &cells = m_desk.page.cells();
    cells.setLine(line());
    if (cells.line() < 0) {
        emit said(CalendarWindowLines::chooseLine());
        return;
    }
    const auto lines = [&] { return CalendarEdits::visibleLines(m_desk.calendars.calendar(), cells.day()); };
    const qsizetype place = lines().indexOf(cells.line());
    if (make(CalendarWindowLines::removed(chosen().shown),
             CalendarEdits::removeLine(m_desk.calendars.calendar(), cells.day(), cells.line())))
        cells.setLine(lines().value(place, lines().value(place - 1, -1))); // the next one, or the last
    cells.setFocus();
}

/// The chosen line stays the chosen one where it goes.
void CellCommands::order(int by)
{
    MonthCells &cells = m_desk.page.cells();
    const int moved = line();
    const QList<int> lines = CalendarEdits::visibleLines(m_desk.calendars.calendar(), cells.day());
    const qsizetype to = lines.indexOf(moved) + by;
    if (moved < 0 || to < 0 || to >= lines.size())
        return;
    cells.setLine(moved);
    if (make(CalendarWindowLines::ordered(chosen().shown),
             CalendarEdits::orderLine(m_desk.calendars.calendar(), cells.day(), moved, by)))
        cells.setLine(lines[to]);
}

void CellCommands::setYearly()
{
    MonthCells &cells = m_desk.page.cells();
    cells.setLine(line());
    const DayLine now = chosen();
    if (cells.line() >= 0 && now.isTyped())
        make(CalendarWindowLines::everyYear(now.shown, !now.isYearly),
             CalendarEdits::setYearly(m_desk.calendars.calendar(), cells.day(), cells.line(), !now.isYearly));
    follow();
}

void CellCommands::restore()
{
    const QDate day = m_desk.page.cells().day();
    WallCalendar calendar = m_desk.calendars.calendar();
    const QList<DayLine> lines = calendar.days.value(day);
    int count = 0;
    for (int line = 0; line < lines.size(); ++line) {
        if (lines[line].isRemoved()) {
            calendar = CalendarEdits::restoreLine(calendar, day, line);
            ++count;
        }
    }
    make(CalendarWindowLines::broughtBack(count), calendar);
}

void CellCommands::openPanel()
{
    MonthCells &cells = m_desk.page.cells();
    cells.setLine(line());
    if (cells.line() < 0)
        return;
    if (!m_panel) {
        m_panel = new LineDatePanel(m_desk.program, &m_desk.window);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &LineDatePanel::accepted, this, &CellCommands::moveByPanel);
    }
    m_desk.window.closePreview();
    m_panel->start(chosen().shown, cells.day());
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void CellCommands::moveByPanel()
{
    const MonthCells &cells = m_desk.page.cells();
    const std::optional<QDate> date = m_panel->date();
    if (!date || !m_desk.calendars.calendar().has(*date)) {
        m_panel->refuse(CalendarWindowLines::notThisDate());
        return;
    }
    const QDate from = cells.day();
    const int line = cells.line();
    m_desk.views.goHome();
    if (*date != from || m_panel->isCopied())
        move(from, line, *date, m_panel->isCopied());
    m_desk.page.showDay(*date);
    m_desk.page.setFocus();
}

void CellCommands::move(QDate from, int line, QDate to, bool isCopied)
{
    m_typing.finish();
    const WallCalendar &calendar = m_desk.calendars.calendar();
    const QString text = calendar.days.value(from).value(line).shown;
    if (!calendar.has(to)) {
        emit said(CalendarWindowLines::notThisDate());
        return;
    }
    if (isCopied)
        make(CalendarWindowLines::copiedTo(text, to), CalendarEdits::copyLine(calendar, from, line, to));
    else if (make(CalendarWindowLines::movedTo(text, to), CalendarEdits::moveLine(calendar, from, line, to)))
        m_desk.page.cells().setLine(-1);
}

void CellCommands::emptyMonth()
{
    const QDate month = m_desk.page.month();
    const Message question = CalendarMessages::emptyMonth(Dates::monthYear(month));
    if (m_desk.program.dialogs.ask(&m_desk.window, question) == Answer::Yes)
        make(CalendarWindowLines::emptied(month),
             CalendarEdits::emptyMonth(m_desk.calendars.calendar(), month));
}
