// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/restoremessages.h"

#include <QLocale>

namespace {

QString counted(qsizetype count, const QString &one, const QString &several)
{
    return QLocale::c().toString(count) + u' ' + (count == 1 ? one : several);
}

} // namespace

Message RestoreMessages::done(const RestoreResult &result, const QString &folder)
{
    if (result.files == 0)
        return notice(u"There was nothing to restore: all of it is the same here."_s);
    QString text = counted(result.files, u"file is restored"_s, u"files are restored"_s);
    if (!folder.isEmpty())
        text += u" in "_s + folder;
    text += result.files == 1 ? u", as it was backed up."_s : u", each as it was backed up."_s;
    if (!result.damaged.isEmpty())
        text += u"\nDamaged in the backup, and left out: "_s + result.damaged.join(u", "_s) + u'.';
    if (!result.moved.isEmpty())
        text += u"\nWhere their place was taken or gone, pictures are now here: "_s +
                result.moved.join(u", "_s) + u'.';
    if (result.end == RestoreResult::End::AtNextStart)
        text += u"\nQuillery now starts again by itself, to show it."_s;
    return notice(text);
}
