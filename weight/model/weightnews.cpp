// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightnews.h"

#include "weight/model/personfiles.h"
#include "weight/model/personlist.h"
#include "weight/model/toldfigures.h"
#include "weight/model/weightnumbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The last time that somebody stood on the scales.
struct Last {
    QString name;
    QDate day;
    std::optional<float> weight;
    std::optional<float> change; ///< from the weigh-in before
};

/// Of the weigh-ins that are not ahead; without a day where there is none.
Last lastOf(const QString &name, const WeightTable &table, QDate today)
{
    qsizetype last = -1;
    for (qsizetype row = 0; row < table.rowCount(); ++row) {
        const QDate day = table.day(row);
        if (day.isValid() && day <= today && (last < 0 || day >= table.day(last)))
            last = row;
    }
    if (last < 0)
        return {name, {}, {}, {}};
    Last found{name, table.day(last), table.number(last), {}};
    const std::optional<float> before = last > 0 ? table.number(last - 1) : std::nullopt;
    if (found.weight && before)
        found.change = *found.weight - *before;
    return found;
}

QString ago(QDate day, QDate today)
{
    const qint64 days = day.daysTo(today);
    if (days < 2)
        return days == 0 ? u"today"_s : u"yesterday"_s;
    return u"%1 days ago"_s.arg(days);
}

LiveLine lineOf(const Last &last, bool isTold, QDate today)
{
    const QString begin = last.name + u": "_s;
    LiveLine line{
        .text = begin + u"weighed "_s + ago(last.day, today), .sentence = {}, .nameLength = last.name.size()};
    line.shorter = {begin + ago(last.day, today)};
    if (isTold && last.weight) {
        QString weight = WeightNumbers::text(*last.weight);
        if (weight.endsWith(u'.'))
            weight.chop(1);
        if (last.change)
            weight += u" (%1)"_s.arg(WeightNumbers::difference(*last.change));
        line.text = begin + weight + u", "_s + ago(last.day, today);
        line.shorter.prepend(begin + weight);
    }
    return line;
}

} // namespace

std::optional<LiveLine> WeightNews::liveLine(const DataFolder &folder, QDate today)
{
    const PersonFiles persons(folder);
    const QStringList names = persons.names();
    if (names.isEmpty())
        return {};
    Last newest;
    for (const QString &name : names) {
        const Last last = lastOf(name, persons.read(name).sheet.weighIns, today);
        if (last.day.isValid() && (!newest.day.isValid() || last.day > newest.day))
            newest = last;
    }
    if (newest.day.isValid())
        return lineOf(newest, ToldFigures::isTold(folder, newest.name), today);
    const qsizetype count = names.size();
    return LiveLine{.text = count == 1 ? u"1 person"_s : u"%1 persons"_s.arg(count), .sentence = {}};
}

QStringList WeightNews::liveFiles(const DataFolder &folder)
{
    QStringList files{PersonList::fileName(), ToldFigures::fileName()};
    for (const QString &name : PersonList(folder).names())
        files.append(PersonFiles::fileName(name));
    return files;
}
