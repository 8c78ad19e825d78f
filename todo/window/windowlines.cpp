// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/windowlines.h"

#include "shell/core/dates.h"
#include "todo/model/comingback.h"
#include "todo/model/listactions.h"
#include "todo/model/repeat.h"
#include "todo/model/repeatwords.h"
#include "todo/window/itemsmodel.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

QString things(int count)
{
    return count == 1 ? u"1 thing to do"_s : u"%1 things to do"_s.arg(count);
}

/// "Nov 27", with the year where it is another than today's.
QString day(QDate date, QDate today, const DateStyle &style)
{
    return date.year() == today.year() ? Dates::shortText(date, style) : Dates::shortWithYear(date, style);
}

bool isOverdue(const ToDoItem &item, QDate today)
{
    return item.due.isValid() && item.due < today && !item.actual.isValid();
}

} // namespace

QString ToDoWindowLines::nameOf(Shown::Kind view)
{
    switch (view) {
    case Shown::Today:
        return u"Today"_s;
    case Shown::Coming:
        return u"Coming"_s;
    case Shown::ByPerson:
        return u"By Person"_s;
    case Shown::Done:
        return u"Done"_s;
    default:
        return {};
    }
}

QString ToDoWindowLines::title(const Shown &shown, const ToDoList *list)
{
    switch (shown.kind) {
    case Shown::List:
        return !list ? QString() : list->kind == ListKind::Template ? templateOf(list->name) : list->name;
    case Shown::Search:
        return u"Found: \u201c%1\u201d"_s.arg(shown.words);
    default:
        return nameOf(shown.kind);
    }
}

QString ToDoWindowLines::titleWords(const Shown &shown, const ToDoCounts &counts, int shownItems)
{
    switch (shown.kind) {
    case Shown::Today: {
        const int due = counts.today - counts.overdue;
        QStringList words;
        if (counts.overdue > 0)
            words << u"%1 overdue"_s.arg(counts.overdue);
        if (due > 0)
            words << u"%1 today"_s.arg(due);
        return words.join(u", "_s);
    }
    case Shown::List: {
        const int open = counts.lists.value(shown.list).open;
        return open > 0 ? things(open) : QString();
    }
    case Shown::Coming:
        return u"The next %1 days"_s.arg(ToDoViews::daysComing);
    case Shown::ByPerson:
        return shownItems > 0 ? things(shownItems) : QString();
    case Shown::Done:
        return shownItems > 0 ? u"%1 done"_s.arg(shownItems) : QString();
    case Shown::Search:
        return u"%1 found"_s.arg(shownItems);
    }
    return {};
}

QString ToDoWindowLines::emptiness(const Shown &shown)
{
    switch (shown.kind) {
    case Shown::Today:
        return u"Nothing is to be done today"_s;
    case Shown::Coming:
        return u"Nothing has a date in the next %1 days"_s.arg(ToDoViews::daysComing);
    case Shown::ByPerson:
        return u"Nothing is to be done"_s;
    case Shown::Done:
        return u"Nothing has been done yet"_s;
    case Shown::List:
        return u"Nothing is on this list"_s;
    case Shown::Search:
        return u"Nothing was found"_s;
    }
    return {};
}

QString ToDoWindowLines::emptyLine(const Shown &shown)
{
    switch (shown.kind) {
    case Shown::Today:
        return u"What is typed above is put on today."_s;
    case Shown::List:
        return u"Type what is to be done into the line above, and press Enter."_s;
    case Shown::Coming:
    case Shown::ByPerson:
        return u"Dates and names are typed into the rows of a list."_s;
    case Shown::Done:
        return u"What is ticked stands here from then on."_s;
    case Shown::Search:
        return u"All lists were searched, with their notes and with what is done."_s;
    }
    return {};
}

QString ToDoWindowLines::heading(int column)
{
    switch (column) {
    case ItemsModel::Text:
        return u"To Do Item"_s;
    case ItemsModel::Due:
        return u"To Do Date"_s;
    case ItemsModel::Actual:
        return u"Actual Date"_s;
    case ItemsModel::Who:
        return u"Who"_s;
    case ItemsModel::Repeat:
        return u"Repeat"_s;
    case ItemsModel::List:
        return u"List"_s;
    default:
        return u"Done"_s;
    }
}

QString ToDoWindowLines::headingTip(int column)
{
    const bool isDate = column == ItemsModel::Due || column == ItemsModel::Actual;
    return isDate
               ? u"%1: a click sorts by it, the third click brings your own order back"_s.arg(heading(column))
               : heading(column);
}

QString ToDoWindowLines::shortDay(QDate date, QDate today, const DateStyle &style)
{
    if (!date.isValid())
        return {};
    switch (today.daysTo(date)) {
    case 0:
        return u"Today"_s;
    case 1:
        return u"Tomorrow"_s;
    case -1:
        return u"Yesterday"_s;
    default:
        break;
    }
    const QString weekday = QLocale::c().dayName(date.dayOfWeek(), QLocale::ShortFormat);
    const bool isNear = qAbs(today.daysTo(date)) < 60;
    return isNear ? weekday + u", "_s + day(date, today, style) : day(date, today, style);
}

QString ToDoWindowLines::due(const ToDoItem &item, QDate today, const DateStyle &style)
{
    return isOverdue(item, today) ? day(item.due, today, style) + u", overdue"_s
                                  : shortDay(item.due, today, style);
}

QString ToDoWindowLines::typedForm(QDate date, const DateStyle &style)
{
    return date.isValid() ? Dates::boxText(date, style) : QString();
}

QString ToDoWindowLines::offset(int days, bool isShown)
{
    if (!isShown)
        return days > 0 ? u"+%1"_s.arg(days) : QString::number(days);
    const int count = qAbs(days);
    const QString words = count == 1 ? u"1 day"_s : u"%1 days"_s.arg(count);
    return days == 0 ? u"On the day"_s : words + (days < 0 ? u" before"_s : u" after"_s);
}

QString ToDoWindowLines::repeat(const ToDoItem &item, QDate today, const DateStyle &style, bool isShown)
{
    const auto rule = ::Repeat::ofFile(item.repeat);
    if (!rule)
        return item.repeat;
    const QString words = RepeatWords::of(*rule, style);
    if (!isShown || item.actual.isValid())
        return words;
    const QDate next = rule->next(item.due, today, today);
    return next.isValid() ? RepeatWords::beforeDate(*rule, style) + u", then "_s + day(next, today, style)
                          : words;
}

QString ToDoWindowLines::next(const ToDoItem &item, QDate today, const DateStyle &style)
{
    const QString who = Turns::current(item.who);
    const QString when =
        today.daysTo(item.due) == 1 ? u"tomorrow"_s : u"on "_s + shortDay(item.due, today, style);
    return u", next "_s + when + (who.isEmpty() ? QString() : u" (%1)"_s.arg(who));
}

QString ToDoWindowLines::spoken(const ToDoItem &item, QDate today, const DateStyle &style)
{
    QStringList words{item.text};
    if (item.level == ItemLevel::Heading)
        return item.text;
    if (item.due.isValid())
        words << u"due "_s + day(item.due, today, style);
    if (isOverdue(item, today))
        words << u"overdue"_s;
    if (!item.who.isEmpty())
        words << Turns::current(item.who);
    words << (item.actual.isValid() ? u"done"_s : u"not done"_s);
    return words.join(u", "_s);
}

QString ToDoWindowLines::templateName(const ToDoSheet &sheet, const QString &list)
{
    return ListActions::freeName(sheet, list, u" template"_s);
}
