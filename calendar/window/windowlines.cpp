// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/windowlines.h"

#include "shell/core/dates.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

QString quoted(const QString &text)
{
    constexpr qsizetype most = 40;
    return text.size() > most ? QString(text.left(most).trimmed() + u"\u2026") : text;
}

QString count(qsizetype number, const QString &one, const QString &many)
{
    return QString::number(number) + u' ' + (number == 1 ? one : many);
}

} // namespace

QString CalendarWindowLines::spokenDate(QDate date)
{
    return QLocale::c().toString(date, u"dddd d MMMM"_s);
}

QString CalendarWindowLines::sourceWords(const DayLine &line)
{
    switch (line.source) {
    case LineSource::Typed:
        return line.isYearly ? u"typed here, every year"_s : u"typed here"_s;
    case LineSource::Planner:
        return u"from the planner"_s;
    case LineSource::ToDo:
        return u"from the To Do list"_s;
    case LineSource::Birthday:
        return u"a birthday"_s;
    case LineSource::Anniversary:
        return u"an anniversary"_s;
    case LineSource::Due:
        return u"falls due"_s;
    case LineSource::Holiday:
        return u"a holiday"_s;
    case LineSource::Rule:
        return u"by a rule"_s;
    }
    return {};
}

QString CalendarWindowLines::lineWords(const DayLine &line)
{
    const QString edited = line.isEdited() ? u", changed by hand"_s : QString();
    return line.shown + u", "_s + sourceWords(line) + edited;
}

QString CalendarWindowLines::chosenLine(const WallCalendar &calendar, QDate date, int line)
{
    const QList<DayLine> lines = calendar.days.value(date);
    if (line < 0 || line >= lines.size())
        return {};
    int number = 0;
    int all = 0;
    for (int i = 0; i < lines.size(); ++i) {
        all += lines[i].isRemoved() ? 0 : 1;
        number = i == line ? all : number;
    }
    return u"line %1 of %2: "_s.arg(number).arg(all) + lineWords(lines[line]);
}

QString CalendarWindowLines::dayWords(const WallCalendar &calendar, QDate date, int chosen)
{
    QStringList words{spokenDate(date)};
    if (chosen >= 0) {
        words.append(chosenLine(calendar, date, chosen));
        return words.join(u", "_s);
    }
    QStringList lines;
    for (const DayLine &line : calendar.days.value(date)) {
        if (!line.isRemoved())
            lines.append(line.isTyped() ? line.shown : lineWords(line));
    }
    words.append(lines.isEmpty() ? u"empty"_s : count(lines.size(), u"line"_s, u"lines"_s));
    words += lines;
    for (const CalendarSpan &span : calendar.spans) {
        if (date >= span.from && date <= span.lastDay())
            words.append(u"bar "_s + span.text);
    }
    return words.join(u", "_s);
}

QString CalendarWindowLines::sheetWords(const WallCalendar &calendar, QDate month)
{
    const QString shown = Dates::monthYear(month);
    return calendar.title.isEmpty() ? shown : QString(shown + u" of "_s + calendar.title);
}

QString CalendarWindowLines::lineIsFull()
{
    return u"A line has room for %1 characters"_s.arg(DayLine::most);
}

QString CalendarWindowLines::chooseLine()
{
    return u"Choose a line of the day first: Ctrl+Up and Ctrl+Down, or a click"_s;
}

QString CalendarWindowLines::noLine()
{
    return u"There is no line on this day"_s;
}

QString CalendarWindowLines::noRemoved()
{
    return u"Nothing that came in was removed from this day"_s;
}

QString CalendarWindowLines::onlyTyped()
{
    return u"Only what was typed here can come along: the rest comes with the next fill"_s;
}

QString CalendarWindowLines::notThisDate()
{
    return u"The calendar does not have this date"_s;
}

QString CalendarWindowLines::removed(const QString &text)
{
    return u"Removed: "_s + quoted(text);
}

QString CalendarWindowLines::movedTo(const QString &text, QDate date)
{
    return u"Moved to %1: "_s.arg(spokenDate(date)) + quoted(text);
}

QString CalendarWindowLines::copiedTo(const QString &text, QDate date)
{
    return u"Copied to %1: "_s.arg(spokenDate(date)) + quoted(text);
}

QString CalendarWindowLines::wroteOn(QDate date)
{
    return u"Written on "_s + spokenDate(date);
}

QString CalendarWindowLines::ordered(const QString &text)
{
    return u"Put in order: "_s + quoted(text);
}

QString CalendarWindowLines::everyYear(const QString &text, bool isYearly)
{
    return (isYearly ? u"Every year: "_s : u"No longer every year: "_s) + quoted(text);
}

QString CalendarWindowLines::broughtBack(int lines)
{
    return u"Brought back: "_s + count(lines, u"line"_s, u"lines"_s);
}

QString CalendarWindowLines::emptied(QDate month)
{
    return u"Emptied: "_s + Dates::monthYear(month);
}

QString CalendarWindowLines::leftOver(int lines)
{
    return lines == 0   ? QString()
           : lines == 1 ? u"1 line stands at the foot, its day is full"_s
                        : u"%1 lines stand at the foot, their days are full"_s.arg(lines);
}

QString CalendarWindowLines::barSet(const QString &text)
{
    return u"Bar: "_s + quoted(text);
}

QString CalendarWindowLines::barRemoved(const QString &text)
{
    return u"Removed the bar: "_s + quoted(text);
}

QString CalendarWindowLines::barNeedsWords()
{
    return u"A bar needs its words, and two dates"_s;
}

QString CalendarWindowLines::noBar()
{
    return u"There is no bar over this day"_s;
}

QString CalendarWindowLines::toneName(int tone)
{
    static const QStringList names{u"Petrol"_s, u"Brown"_s, u"Blue"_s, u"Violet"_s, u"Green"_s, u"Grey"_s};
    return names.value(tone - 1);
}

QString CalendarWindowLines::photoSet(QDate month)
{
    return u"Photo of "_s + Dates::monthYear(month);
}

QString CalendarWindowLines::photoRemoved(QDate month)
{
    return u"Removed the photo of "_s + Dates::monthYear(month);
}

QString CalendarWindowLines::noPhoto()
{
    return u"This month has no photo"_s;
}

QString CalendarWindowLines::noPhotoLayout()
{
    return u"Only the layout \u201cMonth with a photo\u201d shows photos: choose it with Change Look"_s;
}

QString CalendarWindowLines::pictureNotTaken()
{
    return u"This file is no picture that can be read"_s;
}

QString CalendarWindowLines::pictureNotKept()
{
    return u"The picture could not be copied to the household's pictures"_s;
}

QString CalendarWindowLines::folderNotKept()
{
    return u"The folder of the picture could not be remembered"_s;
}

QString CalendarWindowLines::keepCopyHint()
{
    return u"&Keep a copy with the household's pictures, so that it is there when the file is moved"_s;
}

QString CalendarWindowLines::noCalendar()
{
    return u"There is no calendar yet: Ctrl+N makes one"_s;
}

QString CalendarWindowLines::monthsOf(QDate from, int months)
{
    const QDate last = from.addMonths(months - 1);
    const auto shortMonth = [](QDate month) { return QLocale::c().toString(month, u"MMM"_s); };
    if (months == 1)
        return Dates::monthYear(from);
    if (from.year() == last.year())
        return shortMonth(from) + u" to "_s + shortMonth(last) + u' ' + QString::number(from.year());
    return shortMonth(from) + u' ' + QString::number(from.year()) + u" to "_s + shortMonth(last) + u' ' +
           QString::number(last.year());
}

QString CalendarWindowLines::monthWords(QDate month, int lines)
{
    return Dates::monthYear(month) + u", "_s + count(lines, u"line"_s, u"lines"_s);
}

QString CalendarWindowLines::withoutMonths(const CalendarHead &head)
{
    switch (head.state) {
    case CalendarHead::OutOfReach:
        return u"Cannot be read"_s;
    case CalendarHead::Foreign:
        return u"Not a calendar"_s;
    case CalendarHead::Later:
    case CalendarHead::Whole:
        break;
    }
    return head.isEmpty ? u"An empty file"_s : u"No first month"_s;
}

QString CalendarWindowLines::untitled()
{
    return u"Untitled"_s;
}

QString CalendarWindowLines::emptyFile()
{
    return u"This file is empty: it becomes a calendar with the first line in it"_s;
}

QString CalendarWindowLines::noFirstMonth()
{
    return u"Its first month cannot be read: it is shown from January of this year on"_s;
}

QString CalendarWindowLines::noAlbumYet()
{
    return u"There is no album yet: choose from a folder"_s;
}

QString CalendarWindowLines::noAlbum()
{
    return u"There is no photo album in this program"_s;
}

QString CalendarWindowLines::countOfCalendars(qsizetype number)
{
    return count(number, u"calendar"_s, u"calendars"_s);
}

QString CalendarWindowLines::made(const QString &title)
{
    return u"Made: "_s + title;
}

QString CalendarWindowLines::deleted(const QString &title)
{
    return u"Deleted: "_s + title;
}

QString CalendarWindowLines::noNextYear()
{
    return u"Calendars end with the year %1"_s.arg(WallCalendar::lastYear);
}

QString CalendarWindowLines::keepFirst()
{
    return u"Keep what you have changed here first, or leave it with Esc"_s;
}

QString CalendarWindowLines::broughtBackCalendar(const QString &title)
{
    return u"Brought back: "_s + title;
}

QString CalendarWindowLines::lookChanged()
{
    return u"Changed the look"_s;
}

QString CalendarWindowLines::rulesChanged()
{
    return u"Changed the rules; the next fill takes them"_s;
}

QString CalendarWindowLines::turned(bool isLandscape)
{
    return isLandscape ? u"Laid on its side"_s : u"Put upright"_s;
}

QString CalendarWindowLines::tooMany()
{
    return u"There are 99 calendars already: delete one first"_s;
}

QString CalendarWindowLines::notMade()
{
    return u"The calendar could not be written"_s;
}

QString CalendarWindowLines::saved()
{
    return u"Saved"_s;
}

QString CalendarWindowLines::changedElsewhere()
{
    return u"The calendar was changed elsewhere and is shown anew"_s;
}

QString CalendarWindowLines::changedElsewhereToo()
{
    return u"The calendar was changed elsewhere too: what is here takes its place with the next save"_s;
}

QString CalendarWindowLines::searchHint()
{
    return u"Search calendar"_s;
}

QString CalendarWindowLines::hits(qsizetype number)
{
    return number == 0 ? u"Nothing found"_s : count(number, u"line found"_s, u"lines found"_s);
}

QString CalendarWindowLines::hitDate(QDate date)
{
    return QLocale::c().toString(date, u"ddd d MMMM yyyy"_s);
}

QString CalendarWindowLines::jobName(const WallCalendar &calendar)
{
    return calendar.title.isEmpty() ? u"Calendar"_s : calendar.title;
}
