// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/restorerun.h"
#include "shell/core/message.h"

/// The boxes of a restore.
namespace RestoreMessages {

using namespace Qt::Literals::StringLiterals;

inline Message notice(const QString &text)
{
    return {u"Restore"_s, text, Message::Information};
}

inline Message refused(const QString &text)
{
    return {u"Restore"_s, text, Message::Warning};
}

inline Message stop()
{
    return {u"Restore"_s,
            u"Stop the restore?\nNothing has been changed so far, and nothing will be."_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message takeTheRest(const QStringList &damaged)
{
    const QString names =
        damaged.size() > 12 ? damaged.first(12).join(u'\n') + u"\n..."_s : damaged.join(u'\n');
    return {u"Restore"_s,
            u"Some files of this backup are damaged. Restore the others?\n"_s + names,
            Message::Warning,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message takeDamaged(const QString &name)
{
    return {u"Restore"_s,
            u"Restore %1 all the same?\nIt is not as it was backed up."_s.arg(name),
            Message::Warning,
            {Answer::Yes, Answer::No},
            Answer::No};
}

/// Of several; their names were told before.
inline Message takeAllDamaged()
{
    return {
        u"Restore"_s,
        u"Restore the damaged files, too?\nThey are not as they were backed up. What cannot be read to its "
        u"end is left out."_s,
        Message::Warning,
        {Answer::Yes, Answer::No},
        Answer::No};
}

inline Message wrongPassword()
{
    return {u"Restore"_s, u"That is not the password of this backup."_s, Message::Information};
}

/// What was done. `folder` is empty for the household's own.
Message done(const RestoreResult &result, const QString &folder);

} // namespace RestoreMessages
