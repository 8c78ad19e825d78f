// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/newpasswordform.h"

#include <QString>
#include <QStringList>

/// The quiet lines of the password keeper's window: of the status bar, and why a command cannot be used.
namespace KeeperWindowLines {

using namespace Qt::Literals::StringLiterals;

inline QString titleMissing()
{
    return u"Type a title first"_s;
}

inline QString expiresIsNoDate()
{
    return u"\u201cExpires\u201d holds no date"_s;
}

inline QString withoutTitle()
{
    return u"(no title)"_s;
}

inline QString favouriteWord()
{
    return u", favourite"_s;
}

inline QString damaged(int place)
{
    return u"Damaged, place %1"_s.arg(place);
}

inline QString cannotBeOpened()
{
    return u"Cannot be opened"_s;
}

/// An earlier version stands in for what cannot be opened; `place` is 0 where nobody knows it.
inline QString damagedVersion(int place, const QString &day)
{
    return (place > 0 ? damaged(place) : u"Damaged"_s) + u"; as of %1"_s.arg(day);
}

inline QString deletedOn(const QString &day)
{
    return u"Deleted on %1"_s.arg(day);
}

inline QString expiresOn(const QString &day, bool isOver)
{
    return (isOver ? u"Expired %1"_s : u"Expires %1"_s).arg(day);
}

inline QString countOfEntries(int count, bool isTrash, bool isSearch)
{
    if (count == 0)
        return isSearch ? u"Nothing found"_s : isTrash ? u"The trash is empty"_s : u"No entries"_s;
    return count == 1 ? u"1 entry"_s : u"%1 entries"_s.arg(count);
}

inline QString nothingSearched()
{
    return u"Nothing is searched for"_s;
}

inline QString isLocked()
{
    return u"The keeper is locked"_s;
}

inline QString lockedWords()
{
    return u"Type the master password to open it."_s;
}

inline QString masterCaption()
{
    return u"Master password"_s;
}

inline QString useMaster()
{
    return u"Use the maste&r password"_s;
}

inline QString masterMissing()
{
    return u"Type the master password first."_s;
}

inline QString trying()
{
    return u"The keeper is being opened"_s;
}

inline QString making()
{
    return u"The keeper is being made"_s;
}

inline QString newMasterMissing()
{
    return u"Type a master password first"_s;
}

inline NewPasswordForm::Words newMasterWords()
{
    return {masterCaption(), newMasterMissing()};
}

inline QString setUpTitle()
{
    return u"A safe place for passwords"_s;
}

inline QString setUpWords()
{
    return u"The keeper seals log-ins, cards, documents and notes with one master password. Nobody can read them without it, neither in this computer nor in a backup."_s;
}

inline QString setUpWarning()
{
    return u"Next, a recovery code is shown, once: keep it on paper. If both the master password and the code are lost, nothing can open the keeper again."_s;
}

inline QString codePanelWords()
{
    return u"This code opens the keeper if the master password is ever forgotten. Write it down or print it, and keep it where you keep important papers."_s;
}

inline QString codePanelWarning()
{
    return u"It is shown until you say that you have kept it, and never again. Whoever has the code and this computer, or a backup, can open the keeper. A new code can be made at any time and ends this one."_s;
}

inline QString codeIsShownOnce()
{
    return u"The code is not shown again: write it down or print it, then say so"_s;
}

inline QString newEntry()
{
    return u"New entry"_s;
}

inline QString tagForAll()
{
    return u"A tag for all of them"_s;
}

inline QString tagMissing()
{
    return u"Type a tag first"_s;
}

inline QString chosen(qsizetype count)
{
    return u"%1 entries chosen"_s.arg(count);
}

inline QString andMore(qsizetype count)
{
    return u" and %1 more"_s.arg(count);
}

inline QString oldMasterCaption()
{
    return u"The master password so far"_s;
}

inline QString oldMasterMissing()
{
    return u"Type the master password that there is now."_s;
}

inline QString chooseNewMaster()
{
    return u"Choose a new master password: the one that was forgotten ends with it."_s;
}

inline QString oldBackupsHint()
{
    return u"An old backup still opens with the master password of its day."_s;
}

inline QString wrongMaster()
{
    return u"That is not the password."_s;
}

inline QString answersSpent()
{
    return u"Three answers were wrong. Close this window and open it again."_s;
}

inline QString notEnoughMemory()
{
    return u"There is not enough memory for this just now. Close other programs and try again."_s;
}

inline QString notMade()
{
    return u"The keeper could not be written. Nothing was made."_s;
}

inline QString masterChanged()
{
    return u"The master password is changed."_s;
}

inline QString masterNotChanged()
{
    return u"The change could not be saved. The old master password still holds."_s;
}

inline QString codeNotChanged()
{
    return u"The new code could not be saved. The old one still holds."_s;
}

inline QString weakMaster()
{
    return u"Under 50 bits it can be guessed; it is taken all the same."_s;
}

inline QString oneCopyDamaged()
{
    return u"One copy of the key file was damaged; it is mended with the next change"_s;
}

inline QString andWord()
{
    return u" and "_s;
}

inline QString keyFileDamaged()
{
    return u"The keeper's key file Secfile2.fil is damaged."_s;
}

inline QString newerTitle()
{
    return u"A newer version of Quillery made this keeper"_s;
}

inline QString newerWords()
{
    return u"This version cannot read it and changes nothing in it. Open it with the newer version."_s;
}

inline QString foreignWords(bool isOne)
{
    return isOne
               ? u"It is not touched. Set aside, it stays in the folder under another name, and a keeper can begin."_s
               : u"They are not touched. Set aside, they stay in the folder under other names, and a keeper can begin."_s;
}

inline QString notSetAside()
{
    return u"The file could not be set aside"_s;
}

inline QString tryAgainIn(int seconds)
{
    return seconds == 1 ? u"Try again in 1 second."_s : u"Try again in %1 seconds."_s.arg(seconds);
}

inline QString restoreKeyFile(const QString &folder)
{
    return u"Nothing is written to it. To mend it, close Quillery, copy Secfile2.fil from your backup into "
           u"the "
           u"folder %1 and start Quillery again. It opens with the master password of that day."_s.arg(
               folder);
}

inline QString fileMissing(const QString &names)
{
    return u"The keeper's file %1 is missing."_s.arg(names);
}

inline QString restoreFile(const QString &names, const QString &folder)
{
    return u"Nothing is made anew over what is left. Close Quillery, copy %1 from your backup into the "
           u"folder %2 "
           u"and start Quillery again."_s.arg(names, folder);
}

inline QString foreignTitle(const QString &names, bool isOne)
{
    return (isOne ? u"%1 is no file of the keeper's"_s : u"%1 are no files of the keeper's"_s).arg(names);
}

inline QString emptySentence()
{
    return u"Nothing is kept yet"_s;
}

inline QString emptyLine()
{
    return u"Type the first entry, or bring in a file that another program has written."_s;
}

inline QString noneSentence()
{
    return u"Choose an entry"_s;
}

inline QString noneLine()
{
    return u"Or type a few letters of its title into the search."_s;
}

inline QString damagedSentence()
{
    return u"This entry cannot be opened"_s;
}

inline QString damagedLine()
{
    return u"Its place in the file is damaged. It is not written over; a backup of Secfile1.Fil may have it whole."_s;
}

inline QString deletedChip()
{
    return u"Deleted"_s;
}

inline QString earlierChip()
{
    return u"Earlier version"_s;
}

inline QString saved()
{
    return u"Saved"_s;
}

inline QString notSaved()
{
    return u"The disk refused; everything is as it was"_s;
}

inline QString draftStays()
{
    return u"What was typed last stays sealed in the file"_s;
}

inline QString draftIsBack()
{
    return u"What was being typed when the keeper was locked is back"_s;
}

inline QString draftRefused()
{
    return u"The disk refused what was being typed: it stays here until the keeper is opened again"_s;
}

inline QString draftNeedsKeeper()
{
    return u"Open the keeper first: what was being typed is back then and can be saved"_s;
}

inline QString nothingToSave()
{
    return u"Nothing was changed"_s;
}

inline QString isInTrash()
{
    return u"It is in the trash: bring it back first"_s;
}

inline QString chooseOne()
{
    return u"Choose an entry in the list first"_s;
}

inline QString hasNone()
{
    return u"There is nothing to copy"_s;
}

inline QString boxIsEmpty()
{
    return u"The box is empty"_s;
}

inline QString nothingTyped()
{
    return u"Nothing is typed yet"_s;
}

inline QString notInTrash()
{
    return u"This is for what is in the trash"_s;
}

inline QString nothingDamaged()
{
    return u"Nothing is damaged"_s;
}

inline QString oneTimeCode()
{
    return u"One-time code"_s;
}

inline QString noAddress()
{
    return u"That is no address that a browser could open"_s;
}

inline QString notOpened()
{
    return u"The system has no browser that could be opened"_s;
}

inline QString goneForGood()
{
    return u"Deleted for good"_s;
}

inline QString trashIsEmpty()
{
    return u"The trash is empty"_s;
}

inline QString gaveUp()
{
    return u"The damaged places are free again"_s;
}

inline QString changedOn(const QString &day)
{
    return u"Changed %1"_s.arg(day);
}

inline QString copied(const QString &caption, int seconds)
{
    return u"%1 copied; the clipboard is emptied after %2 seconds"_s.arg(caption).arg(seconds);
}

inline QString clipboardEmptied()
{
    return u"The clipboard was emptied"_s;
}

inline QString tooLongToImport(const QString &name)
{
    return u"%1: not read from line 1 on, since it is longer than 64 MiB"_s.arg(name);
}

inline QString copyOf(const QString &title)
{
    return u"%1 (copy)"_s.arg(title);
}

inline QString tagsChanged(qsizetype count)
{
    return count == 0   ? u"Nothing to change"_s
           : count == 1 ? u"1 entry changed"_s
                        : u"%1 entries changed"_s.arg(count);
}

inline QString named(const QStringList &titles)
{
    return titles.size() == 1 ? titles.first() : u"%1 entries"_s.arg(titles.size());
}

inline QString deleted(const QStringList &titles)
{
    return u"Deleted: "_s + named(titles);
}

inline QString broughtBack(const QStringList &titles)
{
    return u"Brought back: "_s + named(titles);
}

inline QString tellsExpiryHint()
{
    return u"Then dates without any name are kept where they can be read without the master password."_s;
}

inline QString passwordWord()
{
    return u"Password"_s;
}

inline QString noVersions()
{
    return u"There is no earlier version"_s;
}

inline QString versionIsBack()
{
    return u"The earlier version is the current one again"_s;
}

inline QString noSecret()
{
    return u"There is no secret yet"_s;
}

inline QString nothingShown()
{
    return u"The list is empty"_s;
}

inline QString secretsBesidePages()
{
    return u"Secrets stand as dots on the pages until \u201cShow Secrets\u201d is chosen beside them."_s;
}

inline QString sheetWords()
{
    return u"A paper for the safe: how the keeper is opened, where things are and whom to call. The master password is never printed; the sheet has a line to write it on by hand."_s;
}

inline QString sheetCodeHint()
{
    return u"as it stands on your paper; left empty, there is a line for it"_s;
}

inline QString countOfFindings(qsizetype count)
{
    return count == 0   ? u"All is in good order"_s
           : count == 1 ? u"1 thing should be looked after"_s
                        : u"%1 things should be looked after"_s.arg(count);
}

inline QString captionWithCount(const QString &caption, int count)
{
    return u"%1 (%2)"_s.arg(caption).arg(count);
}

inline QString masterOnceMore()
{
    return u"Type the master password once more"_s;
}

inline QString notExported(const QString &path)
{
    return u"%1 could not be written"_s.arg(path);
}

inline QString printedBefore()
{
    return u"Printed before, to be shredded when it is out of date:\n"_s;
}

inline QString printedSheet(const QString &day, const QString &what, const QStringList &titles)
{
    constexpr qsizetype most = 6;
    QString names = titles.mid(0, most).join(u", "_s);
    if (titles.size() > most)
        names += andMore(titles.size() - most);
    return day + u": "_s + what + (names.isEmpty() ? QString() : u" ("_s + names + u')');
}

inline QString tooLong()
{
    return u"The entry is too long: it has room for about 60,000 characters"_s;
}

inline QString nothingThere()
{
    return u"nothing"_s;
}

inline QString beside(const QString &caption, const QString &there, const QString &inFile)
{
    return u"%1: here %2, in the file %3"_s.arg(caption, there, inFile);
}

inline QString noColumnKnown()
{
    return u"None of its columns is known: say what they are with \u201cColumns...\u201d"_s;
}

inline QString importHint(const QStringList &notUsed)
{
    const QString first = u"Nothing is written before \u201cImport\u201d."_s;
    return notUsed.isEmpty() ? first : QString(first + u" Not taken: "_s + notUsed.join(u", "_s));
}

inline QString broughtIn(qsizetype count)
{
    return count == 1 ? u"1 entry brought in"_s : u"%1 entries brought in"_s.arg(count);
}

} // namespace KeeperWindowLines
