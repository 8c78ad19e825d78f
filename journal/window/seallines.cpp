// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/seallines.h"

#include "shell/core/dates.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// "2019", "2019 and 2026", "2019, 2021 and 2026"
QString listOf(const QStringList &names)
{
    if (names.size() < 2)
        return names.join(QString());
    return names.first(names.size() - 1).join(u", "_s) + u" and "_s + names.last();
}

constexpr double strong = 75; // bits

QString recordOf(SealedLabel::Kind kind)
{
    switch (kind) {
    case SealedLabel::Kind::Entry:
        return u"the entry"_s;
    case SealedLabel::Kind::Earlier:
        return u"the earlier version"_s;
    default:
        return u"what stands before the first entry"_s;
    }
}

} // namespace

QString SealLines::passwordCaption()
{
    return u"Password of the journal"_s;
}

QString SealLines::newPassword()
{
    return u"New password of the journal"_s;
}

QString SealLines::newPasswordMissing()
{
    return u"Type a password first"_s;
}

QString SealLines::passwordMissing()
{
    return u"Type the password of the journal first."_s;
}

QString SealLines::strength(const PasswordStrength &strength)
{
    if (!strength.bits || strength.length == 0)
        return strength.words();
    if (strength.isWeak())
        return u"Weak: %1. Under 50 bits it can be guessed; it is taken all the same."_s.arg(
            strength.words());
    return (*strength.bits < strong ? u"Fair: %1"_s : u"Strong: %1"_s).arg(strength.words());
}

QString SealLines::titleOf(SealPanel::Kind kind)
{
    switch (kind) {
    case SealPanel::Seal:
        return u"Seal the Journal"_s;
    case SealPanel::OpenSeal:
        return u"Open the Seal"_s;
    default:
        return u"Change Journal Password"_s;
    }
}

QString SealLines::wordsOf(SealPanel::Kind kind, const QStringList &unsealed)
{
    switch (kind) {
    case SealPanel::Seal:
        return (unsealed.isEmpty() ? u"All years"_s : u"All years but what is named below"_s) +
               u" are encrypted with a password of the journal's own, and nobody reads them without it. Where that is forgotten, a recovery code opens them, which you print or write down next. This is another thing than the password in front of the window, which leaves the files readable; you can have both."_s;
    case SealPanel::OpenSeal:
        return u"All years become readable files again, and the password and the recovery code end."_s;
    case SealPanel::Change:
        return u"The recovery code stays as it is. Who has an older copy of the folder and the old password can read that copy."_s;
    default:
        return u"The recovery code has opened the journal. Choose a new password for it. Who has an older copy of the folder and the old password can read that copy."_s;
    }
}

QString SealLines::factsOf(SealPanel::Kind kind, const QStringList &unsealed)
{
    if (kind != SealPanel::Seal)
        return {};
    QString left;
    if (!unsealed.isEmpty())
        left =
            u"\n\u2022 Not sealed, and readable as before: %1. What another program or a later version wrote, what is damaged, and what was set aside stays as it is."_s
                .arg(listOf(unsealed));
    return u"What it does not reach:"_s + left +
           u"\n\u2022 What you copy stays on the clipboard.\n\u2022 Pictures stay files that everybody can open.\n\u2022 Readable bytes of the years as they were may survive on the free space of the disk.\n\u2022 Older backups and snapshots keep the readable files."_s;
}

QString SealLines::buttonOf(SealPanel::Kind kind)
{
    switch (kind) {
    case SealPanel::Seal:
        return u"Se&al"_s;
    case SealPanel::OpenSeal:
        return u"Open the Se&al"_s;
    default:
        return u"&Change"_s;
    }
}

QString SealLines::codeWords()
{
    return u"This code opens the journal where its password is forgotten. It is shown once, and not while you type. Print it or write it down, type it in from there, and keep it away from the computer."_s;
}

QString SealLines::typeTheCode()
{
    return u"The code, typed in from your paper"_s;
}

QString SealLines::codeNotTyped()
{
    return u"Type the code in from your paper first"_s;
}

QString SealLines::codeIsAnother()
{
    return u"That is not the code. Compare it with your paper."_s;
}

QString SealLines::isLocked()
{
    return u"The journal is sealed"_s;
}

QString SealLines::lockedWords()
{
    return u"Type its password to open it."_s;
}

QString SealLines::usePassword()
{
    return u"Use the passwo&rd"_s;
}

QString SealLines::working()
{
    return u"The key is being made"_s;
}

QString SealLines::opening()
{
    return u"The journal is being opened"_s;
}

QString SealLines::wrongPassword()
{
    return u"That is not the password."_s;
}

QString SealLines::wrongCode()
{
    return u"That is not the recovery code."_s;
}

QString SealLines::tryAgainIn(int seconds)
{
    return seconds == 1 ? u"Try again in 1 second."_s : u"Try again in %1 seconds."_s.arg(seconds);
}

QString SealLines::answersSpent()
{
    return u"Three wrong answers. Close the window and open it again to try once more."_s;
}

QString SealLines::notEnoughMemory()
{
    return u"There is not enough memory free to try it (256 MB)."_s;
}

QString SealLines::notSealed()
{
    return u"The journal could not be sealed; it is as it was"_s;
}

QString SealLines::isSealed()
{
    return u"The journal is sealed already"_s;
}

QString SealLines::isPlain()
{
    return u"The journal is not sealed"_s;
}

QString SealLines::keyFileLost(const QString &file)
{
    return u"%1 is missing or damaged; it is made anew when the journal is opened"_s.arg(file);
}

QString SealLines::heldBySeal()
{
    return u"The disk refused what was typed; it is kept, sealed, until you open the journal again"_s;
}

QString SealLines::sealed(const QStringList &unsealed)
{
    if (unsealed.isEmpty())
        return u"The journal is sealed"_s;
    return (unsealed.size() == 1 ? u"The journal is sealed, but %1 is left readable"_s
                                 : u"The journal is sealed, but %1 are left readable"_s)
        .arg(listOf(unsealed));
}

QString SealLines::sealOpened(const QStringList &sealed)
{
    if (sealed.isEmpty())
        return u"The seal is open: the journal's files are readable"_s;
    return (sealed.size() == 1 ? u"The seal is open, but %1 stays sealed, by another key or a later version"_s
                               : u"The seal is open, but %1 stay sealed, by another key or a later version"_s)
        .arg(listOf(sealed));
}

QString SealLines::passwordChanged()
{
    return u"The password was changed"_s;
}

QString SealLines::notChanged()
{
    return u"Nothing could be changed"_s;
}

QString SealLines::nothingChanged()
{
    return u"Nothing was changed"_s;
}

QString SealLines::walkRefused(const QStringList &names)
{
    return u"The disk refused %1; this is finished at the next unlocking"_s.arg(listOf(names));
}

QString SealLines::heldBack(const QList<int> &years)
{
    return (years.size() == 1
                ? u"The seal is half open: %1 stays sealed, for it holds records that do not open and would be lost"_s
                : u"The seal is half open: %1 stay sealed, for they hold records that do not open and would be lost"_s)
        .arg(listOf(namesOf(years)));
}

QString SealLines::codeMade()
{
    return u"The new recovery code is in force; the one before opens older copies of the folder alone"_s;
}

QString SealLines::together(const QStringList &lines)
{
    QStringList said = lines;
    said.removeAll(QString());
    return said.join(u". "_s);
}

QStringList SealLines::namesOf(const QList<int> &years)
{
    QStringList names;
    for (const int year : years)
        names.append(QString::number(year));
    return names;
}

QString SealLines::damage(const SealedDamage &damage, int year, DateStyle style)
{
    const QDate date = damage.label.date;
    const QString day = date.isValid() ? Dates::monthDayYear(date, style) : QString::number(year);
    const QString record = recordOf(damage.label.kind);
    switch (damage.kind) {
    case SealedDamage::Kind::Unreadable:
        return date.isValid() || damage.label.kind == SealedLabel::Kind::Head
                   ? u"%1: %2 is damaged and does not open"_s.arg(day, record)
                   : u"%1: a record is damaged, and nobody can tell of which day"_s.arg(day);
    case SealedDamage::Kind::Missing:
        return u"%1: %2 is missing from the file"_s.arg(day, record);
    case SealedDamage::Kind::Unlisted:
        return u"%1: %2 is of another copy of the year"_s.arg(day, record);
    case SealedDamage::Kind::Doubled:
        return u"%1: %2 stands in the file twice"_s.arg(day, record);
    case SealedDamage::Kind::Moved:
        return u"%1: %2 stands at the place of another"_s.arg(day, record);
    case SealedDamage::Kind::List:
        break;
    }
    return u"%1: the list of the days is damaged; they were found without it"_s.arg(day);
}

QString SealLines::damaged(int count, const QString &first)
{
    return count == 1 ? first : u"%1 records are damaged; %2"_s.arg(count).arg(first);
}

QString SealLines::damageWords()
{
    return u"The others open. What does not open stays in its file as it is, and no save drops it; a backup may have it whole."_s;
}

QString SealLines::nothingDamaged()
{
    return u"Nothing is damaged"_s;
}

QString SealLines::alsoLocks()
{
    return u"Ctrl+L, the computer's own lock and its sleep lock it as well, and so does closing its window. What is typed is saved before."_s;
}

QString SealLines::lockKept()
{
    return u"Saved"_s;
}

QString SealLines::nobodyCanOpen()
{
    return u"Nobody can open this journal"_s;
}

QString SealLines::nobodyCanOpenWords(const QString &file, const QString &folder)
{
    return u"Its years are sealed, and no copy of their key is whole. Where a backup has %1, put that into %2. Set aside, the files keep everything in them under other names, and the journal begins anew."_s
        .arg(file, folder);
}

QString SealLines::later()
{
    return u"A later version has sealed this journal"_s;
}

QString SealLines::laterWords()
{
    return u"This one leaves it as it is. Use the later version to open it."_s;
}
