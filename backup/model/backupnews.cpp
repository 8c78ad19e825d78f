// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backupnews.h"

#include "backup/model/backuplines.h"
#include "backup/model/backupscope.h"
#include "backup/model/diskrecords.h"
#include "shell/core/settings.h"
#include "shell/core/settingskeys.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

int remindDaysOf(const Settings &settings)
{
    using namespace SettingsKeys;
    const int days = settings.number(backupReminderDays);
    const bool isKnown = days == neverReminded || std::ranges::count(backupReminderDaysOffered, days) > 0;
    return isKnown ? days : usualBackupReminderDays;
}

} // namespace

BackupNews BackupNews::of(const DataFolder &folder, const Settings &settings)
{
    BackupNews news;
    news.remindDays = remindDaysOf(settings);
    const std::optional<SetRecord> record = DiskRecords::readSet(folder.path());
    if (!record)
        return news;
    if (!record->ended.isValid())
        news.state = State::Unfinished;
    else if (news.missing = BackupScope::missing(*record, folder); news.missing > 0)
        news.state = State::Part;
    else
        news.state = State::Done;
    news.drive = record->drive;
    news.time = record->ended.isValid() ? record->ended : record->begun;
    return news;
}

QStringList BackupNews::files()
{
    return {SetRecord::fileName, QString::fromLatin1(SettingsKeys::backupReminderDays.file.name)};
}

bool BackupNews::isDue(QDate today) const
{
    if (remindDays < 0)
        return false;
    return state != State::Done || time.toLocalTime().date().daysTo(today) >= remindDays;
}

QString BackupNews::line(QDate today) const
{
    switch (state) {
    case State::None:
        return u"No backup yet"_s;
    case State::Unfinished:
        return u"The last backup is not finished"_s;
    case State::Part:
        return BackupLines::counted(missing, u"file is"_s, u"files are"_s) + u" not in the last backup"_s;
    case State::Done:
        break;
    }
    const qint64 days = time.toLocalTime().date().daysTo(today);
    if (isDue(today))
        return u"No backup for "_s + BackupLines::counted(days, u"day"_s, u"days"_s);
    return u"Last backup "_s + BackupLines::daysAgo(days) +
           (drive.isEmpty() ? QString() : u", on "_s + drive);
}

LiveLine BackupNews::liveLine(QDate today) const
{
    LiveLine news{line(today), LiveLine::Plain, {}};
    if (state == State::Unfinished)
        news.shorter = {u"Last backup is not finished"_s, u"Backup not finished"_s};
    else if (state == State::Part)
        news.shorter = {BackupLines::files(missing) + u" not in the last backup"_s,
                        BackupLines::files(missing) + u" not backed up"_s};
    if (!isDue(today))
        return news;
    news.urgency = state == State::None ? LiveLine::Due : LiveLine::Overdue;
    // A household that was begun a minute ago is not to be greeted with it.
    if (state != State::None)
        news.sentence = news.text + u'.';
    return news;
}
