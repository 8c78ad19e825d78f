// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/windowlines.h"

#include "shell/core/dates.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "March 14", "14 March"
QString monthAndDay(QDate date, DateStyle style)
{
    return QLocale::c().toString(date, style == DateStyle::Usa ? u"MMMM d"_s : u"d MMMM"_s);
}

} // namespace

QString JournalWindowLines::tagsHint()
{
    return u"garden, school"_s;
}

QString JournalWindowLines::writtenOn(QDate written, QDate date, DateStyle style)
{
    return u"Written on "_s + (written.year() == date.year() ? monthAndDay(written, style)
                                                             : Dates::monthDayYear(written, style));
}

QString JournalWindowLines::words(int count)
{
    return count == 0 ? QString() : count == 1 ? u"1 word"_s : u"%1 words"_s.arg(count);
}

QString JournalWindowLines::saved()
{
    return u"Saved"_s;
}

QString JournalWindowLines::notSaved(const QString &why)
{
    if (!why.isEmpty())
        return u"The entry is not saved. "_s + why;
    return u"The entry could not be saved; this is tried again every ten seconds"_s;
}

QString JournalWindowLines::isShown(const QString &day)
{
    return day + u" is shown already"_s;
}

QString JournalWindowLines::done(const QString &text)
{
    return u"Done: "_s + text;
}

QString JournalWindowLines::putIntoText(const QString &words)
{
    return u"Put into the text: "_s + words;
}

QString JournalWindowLines::more(int count)
{
    return u"%1 more"_s.arg(count);
}

QString JournalWindowLines::dayWords(QDate date, bool hasEntry, DateStyle style)
{
    const QString day = monthAndDay(date, style);
    return hasEntry ? QString(day + u", has an entry"_s) : day;
}

QString JournalWindowLines::yearsAgo(int years)
{
    const QString count = std::abs(years) == 1 ? u"1 year"_s : u"%1 years"_s.arg(std::abs(years));
    if (years == 0)
        return {};
    return years > 0 ? QString(count + u" before"_s) : QString(count + u" later"_s);
}

QString JournalWindowLines::nothingOnThisDay()
{
    return u"Nothing was written on this day in other years."_s;
}

QString JournalWindowLines::noTags()
{
    return u"Words in the box Tags, below an entry, bring together what belongs together."_s;
}

QString JournalWindowLines::hits(int count)
{
    return count == 0 ? u"Nothing found"_s : count == 1 ? u"1 entry"_s : u"%1 entries"_s.arg(count);
}

QString JournalWindowLines::stillReading(int count)
{
    return count == 0 ? u"Looking through all years..."_s : u"%1 so far, looking on..."_s.arg(count);
}

QString JournalWindowLines::nearbyDaysToo()
{
    return u"Those of the three days before and behind it, too"_s;
}

QString JournalWindowLines::nearbyDays()
{
    return u"Nearby"_s;
}

QString JournalWindowLines::nothingWritten()
{
    return u"Nothing is written on this day"_s;
}

QString JournalWindowLines::noEarlierEntry()
{
    return u"There is no entry before this day"_s;
}

QString JournalWindowLines::noLaterEntry()
{
    return u"There is no entry after this day"_s;
}

QString JournalWindowLines::noEarlierVersion()
{
    return u"No earlier version of this day is kept"_s;
}

QString JournalWindowLines::todayIsShown()
{
    return u"Today is shown"_s;
}

QString JournalWindowLines::firstDay()
{
    return u"The journal begins with this day"_s;
}

QString JournalWindowLines::lastDay()
{
    return u"The journal ends with this day"_s;
}

QString JournalWindowLines::onePictureAtATime()
{
    return u"Of several pictures only the first was taken: they come in one by one"_s;
}

QString JournalWindowLines::noPictureHere()
{
    return u"The cursor stands at no picture"_s;
}

QString JournalWindowLines::noTagYet()
{
    return u"No entry has a tag"_s;
}

QString JournalWindowLines::nothingToPrint()
{
    return u"Nothing is written there"_s;
}

QString JournalWindowLines::nothingToUndo()
{
    return u"Nothing to undo on this day"_s;
}

QString JournalWindowLines::mayBeWritten(int year)
{
    return u"%1 can be written to as it is"_s.arg(year);
}

QString JournalWindowLines::nothingCameIn()
{
    return u"Nothing has come in since the window was opened"_s;
}

QString JournalWindowLines::nothingToRedo()
{
    return u"Nothing to redo on this day"_s;
}

QString JournalWindowLines::isLocked()
{
    return u"The journal is locked"_s;
}

QString JournalWindowLines::deleted(const QString &day)
{
    return u"Deleted: %1; \u201cEarlier Version\u201d brings it back"_s.arg(day);
}

QString JournalWindowLines::cameBack(const QString &day)
{
    return u"As it was before: "_s + day;
}

QString JournalWindowLines::deletedForGood(const QString &day)
{
    return u"Deleted for good: "_s + day;
}

QString JournalWindowLines::notDeleted()
{
    return u"It could not be deleted"_s;
}

QString JournalWindowLines::setAsideAs(const QString &file)
{
    return u"Set aside as "_s + file;
}

QString JournalWindowLines::notSetAside()
{
    return u"The file could not be set aside"_s;
}

QString JournalWindowLines::pictureNotTaken()
{
    return u"This is no picture that can be read"_s;
}

QString JournalWindowLines::pictureNotKept()
{
    return u"The picture could not be copied to the journal"_s;
}

QString JournalWindowLines::folderNotKept()
{
    return u"The folder could not be remembered"_s;
}

QString JournalWindowLines::noDate()
{
    return u"That is no date between the years 1000 and 9999"_s;
}

QString JournalWindowLines::toBeTaken(int chosen, int all)
{
    return all == 1 ? u"%1 of 1 entry comes in"_s.arg(chosen)
                    : u"%1 of %2 entries come in"_s.arg(chosen).arg(all);
}

QString JournalWindowLines::whatIsTaken()
{
    return u"Entries in the journal's own form, or lines like [2026-03-14 08:12] with what was written. A day that has an entry gets the text under it; nothing is replaced."_s;
}

QString JournalWindowLines::broughtIn(int days)
{
    return days == 1 ? u"1 day came in"_s : u"%1 days came in"_s.arg(days);
}

QString JournalWindowLines::takenBack(int days, int changed)
{
    QString taken =
        days == 1 ? u"1 day is as it was before"_s : u"%1 days are as they were before"_s.arg(days);
    if (changed == 0)
        return taken;
    return taken + (changed == 1 ? u"; 1 was changed since and stays"_s
                                 : u"; %1 were changed since and stay"_s.arg(changed));
}

QString JournalWindowLines::exportHint()
{
    return u"What is exported can be read by everybody, also where the journal is sealed."_s;
}

QString JournalWindowLines::journalOf(const QString &family)
{
    return family.isEmpty() ? u"Journal"_s : QString(u"Journal, "_s + family);
}

QString JournalWindowLines::picturesMissing(const QStringList &names)
{
    return names.size() == 1 ? QString(u"; without the picture "_s + names.first())
                             : u"; without %1 pictures"_s.arg(names.size());
}

QString JournalWindowLines::earlierWords(const QString &day)
{
    return u"%1 as it was before it was last changed. Bringing it back keeps what stands there now as the earlier version."_s
        .arg(day);
}

QString JournalWindowLines::tagsAndPictures(const QStringList &tags, int pictures)
{
    QStringList parts;
    if (!tags.isEmpty())
        parts << u"Tags: "_s + tags.join(u", "_s);
    if (pictures > 0)
        parts << (pictures == 1 ? u"1 picture"_s : u"%1 pictures"_s.arg(pictures));
    return parts.join(u"; "_s);
}

QString JournalWindowLines::keepCopyHint()
{
    return u"&Keep a copy with the journal, so that it is there when the file is moved"_s;
}
