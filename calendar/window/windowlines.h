// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/calendarfiles.h"
#include "calendar/model/wallcalendar.h"

#include <QString>

/// What the window of the calendar maker says quietly, and reads aloud.
namespace CalendarWindowLines {

// Days and their lines

/// "Sunday 14 March".
QString spokenDate(QDate date);
/// Where a line comes from: "from the planner".
QString sourceWords(const DayLine &line);
/// A line with its source: "Anne's concert, typed here".
QString lineWords(const DayLine &line);
/// A day as it is read aloud: "Sunday 14 March, 3 lines, Anne's concert, ..."; while a line is chosen, that.
QString dayWords(const WallCalendar &calendar, QDate date, int chosenLine);
/// "line 2 of 3: Anne's concert, typed here".
QString chosenLine(const WallCalendar &calendar, QDate date, int line);
/// What a sheet is: "March 2027 of Family Calendar 2027".
QString sheetWords(const WallCalendar &calendar, QDate month);
QString lineIsFull();
QString chooseLine();
QString noLine();
QString noRemoved();
QString onlyTyped();
QString notThisDate();
QString removed(const QString &text);
QString movedTo(const QString &text, QDate date);
QString copiedTo(const QString &text, QDate date);
QString wroteOn(QDate date);
QString ordered(const QString &text);
QString everyYear(const QString &text, bool isYearly);
QString broughtBack(int lines);
QString emptied(QDate month);
QString leftOver(int lines);

// Bars and photos

QString barSet(const QString &text);
QString barRemoved(const QString &text);
QString barNeedsWords();
QString noBar();
QString toneName(int tone);
QString photoSet(QDate month);
QString photoRemoved(QDate month);
QString noPhoto();
QString noPhotoLayout();
QString pictureNotTaken();
QString pictureNotKept();
QString folderNotKept();
QString keepCopyHint();

// Calendars

QString noCalendar();
QString monthsOf(QDate from, int months);
/// "March 2027, 23 lines".
QString monthWords(QDate month, int lines);
QString withoutMonths(const CalendarHead &head);
QString untitled();
QString emptyFile();
QString noFirstMonth();
QString noAlbum();
QString noAlbumYet();
QString countOfCalendars(qsizetype count);
QString made(const QString &title);
QString deleted(const QString &title);
QString noNextYear();
QString keepFirst();
QString broughtBackCalendar(const QString &title);
QString lookChanged();
QString rulesChanged();
QString turned(bool isLandscape);
QString tooMany();
QString notMade();
QString saved();
QString changedElsewhere();
QString changedElsewhereToo();

// Searching and printing

QString searchHint();
QString hits(qsizetype count);
/// "Sun 14 March 2027".
QString hitDate(QDate date);
QString jobName(const WallCalendar &calendar);

} // namespace CalendarWindowLines
