// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QString>
#include <QStringList>

/// The quiet words of the journal's window.
namespace JournalWindowLines {

// The page

QString tagsHint();
/// "Written on March 15", with the year where it is another than that of `date`.
QString writtenOn(QDate written, QDate date, DateStyle style);
/// "212 words"; empty for none.
QString words(int count);
QString saved();
/// `why`: where it is known.
QString notSaved(const QString &why = {});
/// The day that is shown already.
QString isShown(const QString &day);

// What other functions have

QString done(const QString &text);
QString putIntoText(const QString &words);
QString more(int count);

// The pane

/// "March 14, has an entry", "March 14"
QString dayWords(QDate date, bool hasEntry, DateStyle style);
/// "7 years ago"; "in 2 years" for a letter ahead.
QString yearsAgo(int years);
QString nothingOnThisDay();
QString noTags();
QString hits(int count);
QString stillReading(int count);
QString nearbyDays();
QString nearbyDaysToo();

// Why a command cannot be used

QString nothingWritten();
QString noEarlierEntry();
QString noLaterEntry();
QString noEarlierVersion();
QString todayIsShown();
QString firstDay();
QString lastDay();
QString noPictureHere();
QString onePictureAtATime();
QString noTagYet();
QString nothingToPrint();
QString nothingToUndo();
QString mayBeWritten(int year);
QString nothingCameIn();
QString nothingToRedo();
QString isLocked();

// What was done

QString deleted(const QString &day);
QString cameBack(const QString &day);
QString deletedForGood(const QString &day);
QString notDeleted();
QString setAsideAs(const QString &file);
QString notSetAside();
QString pictureNotTaken();
QString pictureNotKept();
QString folderNotKept();
QString noDate();

// What comes in and goes out

QString toBeTaken(int chosen, int all);
QString whatIsTaken();
QString broughtIn(int days);
/// Of the days that came in; `changed` of them were changed since and stay.
QString takenBack(int days, int changed);
QString exportHint();
/// The title of what leaves as a page: "Journal, Lind".
QString journalOf(const QString &family);
QString picturesMissing(const QStringList &names);

// Panels

QString earlierWords(const QString &day);
/// "Tags: garden, school; 2 pictures"; empty for neither.
QString tagsAndPictures(const QStringList &tags, int pictures);
QString keepCopyHint();

} // namespace JournalWindowLines
