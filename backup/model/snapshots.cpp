// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/snapshots.h"

#include "storage/disk.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <ranges>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView ending{".zip"};
constexpr auto dayForm = "yyyy-MM-dd"_L1;
constexpr auto timeForm = "yyyy-MM-dd hh.mm.ss"_L1;
constexpr int daysKept = 30;
constexpr int monthsKept = 12;
constexpr qsizetype alwaysKept = 7;

/// Invalid for a name that is none of ours.
QDateTime madeOf(const QString &name)
{
    if (!name.endsWith(ending))
        return {};
    const QString base = name.chopped(ending.size());
    if (base.size() == dayForm.size())
        return QDate::fromString(base, dayForm).startOfDay();
    return QDateTime::fromString(base, timeForm);
}

int monthOf(QDate date)
{
    return date.year() * 12 + date.month();
}

} // namespace

QList<Snapshot> Snapshots::in(const QString &folder)
{
    QList<Snapshot> found;
    const QFileInfoList files = QDir(folder).entryInfoList({u'*' + ending}, QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo &file : files) {
        const QDateTime made = madeOf(file.fileName());
        if (made.isValid())
            found.append({file.filePath(), made, file.size()});
    }
    std::ranges::sort(found, std::greater(), &Snapshot::made);
    return found;
}

qint64 Snapshots::bytes(const QList<Snapshot> &snapshots)
{
    qint64 sum = 0;
    for (const Snapshot &snapshot : snapshots)
        sum += snapshot.bytes;
    return sum;
}

QString Snapshots::pathFor(const QString &folder, const QDateTime &now)
{
    QString path = folder + u'/' + now.date().toString(dayForm) + ending;
    for (QDateTime time = now; QFileInfo::exists(path); time = time.addSecs(1))
        path = folder + u'/' + time.toString(timeForm) + ending;
    return path;
}

QList<Snapshot> Snapshots::outdated(const QList<Snapshot> &snapshots, QDate today, qint64 limit)
{
    QList<Snapshot> going;
    QSet<int> months;
    QSet<int> years;
    qint64 kept = 0;
    for (qsizetype i = 0; i < snapshots.size(); ++i) {
        const QDate date = snapshots[i].made.date();
        const bool isNewestOfMonth = !months.contains(monthOf(date));
        const bool isNewestOfYear = !years.contains(date.year());
        months.insert(monthOf(date));
        years.insert(date.year());
        const bool isKept = i < alwaysKept || date.daysTo(today) < daysKept || isNewestOfYear ||
                            (isNewestOfMonth && monthOf(today) - monthOf(date) < monthsKept);
        const bool hasRoom = i < alwaysKept || limit <= 0 || kept + snapshots[i].bytes <= limit;
        if (isKept && hasRoom) {
            kept += snapshots[i].bytes;
            continue;
        }
        // Beyond the limit none that is older stays, even where it is smaller.
        if (isKept)
            limit = 1;
        going.prepend(snapshots[i]);
    }
    return going;
}

bool Snapshots::remove(const Snapshot &snapshot)
{
    return Disk::remove(snapshot.path);
}
