// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

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

/// An earlier version stands in for what cannot be opened.
inline QString damagedVersion(int place, const QString &day)
{
    return u"Damaged, place %1; as of %2"_s.arg(place).arg(day);
}

inline QString deletedOn(const QString &day)
{
    return u"Deleted on %1"_s.arg(day);
}

inline QString expiresOn(const QString &day, bool isOver)
{
    return (isOver ? u"Expired on %1"_s : u"Expires on %1"_s).arg(day);
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

inline QString codeWords()
{
    return u"Type the recovery code from your paper. Blanks, dashes and small letters do not matter."_s;
}

inline QString masterCaption()
{
    return u"Master password"_s;
}

inline QString masterAgainCaption()
{
    return u"The same once more"_s;
}

inline QString codeCaption()
{
    return u"Recovery code"_s;
}

inline QString useCode()
{
    return u"Use the recovery code"_s;
}

inline QString useMaster()
{
    return u"Use the master password"_s;
}

inline QString masterMissing()
{
    return u"Type the master password first."_s;
}

inline QString codeMissing()
{
    return u"Type the recovery code first."_s;
}

inline QString codeSlip()
{
    return u"That is not a whole recovery code: a character is missing, too many or mistyped."_s;
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

inline QString mastersDiffer()
{
    return u"The two passwords differ"_s;
}

inline QString masterHint()
{
    return u"Any length is taken; longer is better. Four or five words that have nothing to do with each other are easy to remember and hard to guess."_s;
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
    return u"It is shown this once. Whoever has the code and this computer, or a backup, can open the keeper. A new code can be made at any time and ends this one."_s;
}

inline QString codeIsShownOnce()
{
    return u"The code is not shown again: write it down or print it, then say so"_s;
}

} // namespace KeeperWindowLines
