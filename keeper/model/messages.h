// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QStringList>

/// The password keeper's questions and notices.
namespace KeeperMessages {

using namespace Qt::Literals::StringLiterals;

inline QString title()
{
    return u"Password Keeper"_s;
}

/// A question that does something which cannot be taken back: No beforehand.
inline Message graveQuestion(const QString &title, const QString &text)
{
    return {title, text, Message::Question, {Answer::Yes, Answer::No}, Answer::No};
}

/// "the entry \u201cPower company\u201d", "3 entries".
inline QString entriesNamed(const QStringList &titles)
{
    return titles.size() == 1 ? u"the entry \u201c%1\u201d"_s.arg(titles.first())
                              : u"%1 entries"_s.arg(titles.size());
}

inline Message saveChanges()
{
    return {title(),
            u"Save changes made to the Password Keeper before next action or exiting?"_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

/// The draft that was sealed when the keeper locked itself. Yes opens it in the form again.
inline Message continueDraft(const QString &entry)
{
    return {title(),
            entry.isEmpty()
                ? u"Go on with the entry that was being typed?\n"
                  u"It was kept, sealed, when the keeper was locked. No drops it."_s
                : u"Go on with the changes to \u201c%1\u201d?\n"
                  u"They were kept, sealed, when the keeper was locked. No drops them."_s.arg(entry),
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

// What cannot be taken back

inline Message deleteForGood(const QStringList &titles)
{
    return graveQuestion(
        u"Delete for Good"_s,
        u"Delete %1 for good?\nThis cannot be undone; a backup may still have what was in it."_s.arg(
            entriesNamed(titles)));
}

inline Message emptyTrash(int count)
{
    return graveQuestion(u"Empty Trash"_s,
                         count == 1 ? u"Delete the entry in the trash for good?\nThis cannot be undone."_s
                                    : u"Delete the %1 entries in the trash for good?\n"
                                      u"This cannot be undone."_s.arg(count));
}

/// `places`: where they lie in the file.
inline Message giveUpDamaged(const QList<int> &places)
{
    constexpr qsizetype most = 10;
    QStringList numbers;
    for (const int place : places.first(std::min(most, places.size())))
        numbers << QString::number(place);
    QString list = numbers.join(u", "_s);
    if (places.size() > most)
        list += u" and %1 more"_s.arg(places.size() - most);
    return graveQuestion(
        u"Give Up Damaged Entries"_s,
        u"Give up what cannot be opened any more?\n"
        u"Damaged: place %1 of Secfile1.Fil. After Yes these places are used for other "
        u"entries. A backup of the file may still have them whole: look there first."_s.arg(list));
}

inline Message newRecoveryCode()
{
    return graveQuestion(
        u"Recovery Code"_s,
        u"Make a new recovery code?\n"
        u"The code that there is now will open nothing any more. Shred the sheets on which it stands, "
        u"and keep the new one in a safe place."_s);
}

/// `name`: a file of that name, but not of this keeper. `aside`: what it will be called.
inline Message setAside(const QStringList &names, const QStringList &asides)
{
    const QString kept = u"\u201c"_s + asides.join(u"\u201d and \u201c"_s) + u"\u201d"_s;
    return graveQuestion(
        u"Set Files Aside"_s,
        (names.size() == 1
             ? u"Set the file %1 aside?\nIt is no file of this keeper. It is kept as %2, "
               u"and a new keeper can be made."_s
             : u"Set the files %1 aside?\nThey are no files of this keeper. They are kept as %2, "
               u"and a new keeper can be made."_s)
            .arg(names.join(u" and "_s), kept));
}

// What leaves the keeper

inline QString exportTitle()
{
    return u"Export to a File"_s;
}

/// Asked after the master password was typed once more.
inline Message exportOpen(int count)
{
    return graveQuestion(
        exportTitle(),
        (count == 1 ? u"Write 1 entry with its secrets to a file that anybody can read?"_s
                    : u"Write %1 entries with their secrets to a file that anybody can read?"_s.arg(count)) +
            u"\nThe file is not sealed. Delete it as soon as it has served its purpose, also from the trash "
            u"of the system and from backups."_s);
}

/// A PDF of pages with secrets.
inline Message savePdf()
{
    return graveQuestion(
        u"Save as PDF"_s,
        u"Save pages with secrets as a PDF that anybody can read?\n"
        u"The file is not sealed. Delete it as soon as it has served its purpose, also from the trash of "
        u"the system and from backups."_s);
}

/// Said once, before secrets are printed for the first time.
inline Message beforePrinting()
{
    return {u"Print"_s,
            u"Pages with secrets pass through the print system.\n"
            u"Quillery writes them to no file, but the print system writes files of its own, and a printer "
            u"may keep pages in its queue for a while. Best use a printer at home, and wait beside it."_s,
            Message::Information,
            {Answer::Ok, Answer::Cancel}};
}

inline Message copied()
{
    return {u"Copy Option"_s, u"Data has been copied to the Windows Clipboard."_s};
}

} // namespace KeeperMessages
