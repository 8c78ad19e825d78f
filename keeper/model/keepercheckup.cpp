// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keepercheckup.h"

#include "shell/core/dates.h"

#include <QHash>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using KeeperCheckup::Finding;
using KeeperCheckup::Line;
using KeeperCheckup::Section;

constexpr qsizetype mostNamed = 3;

bool counts(const KeeperSummary &entry)
{
    return !entry.isTrashed && entry.damagedPlace == 0;
}

Line lineOf(const KeeperSummary &entry, const QString &words)
{
    return {entry.id, entry.title, words};
}

/// Entries with one password stand below one another.
QList<Line> reused(const QList<KeeperSummary> &entries)
{
    QHash<QByteArray, QList<qsizetype>> groups;
    QList<QByteArray> order;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (!counts(entries[i]) || entries[i].passwordHash.isEmpty())
            continue;
        QList<qsizetype> &group = groups[entries[i].passwordHash];
        if (group.isEmpty())
            order << entries[i].passwordHash;
        group << i;
    }
    QList<Line> lines;
    for (const QByteArray &hash : std::as_const(order)) {
        const QList<qsizetype> group = groups.value(hash);
        for (const qsizetype place : group.size() > 1 ? group : QList<qsizetype>()) {
            QStringList others;
            for (qsizetype i = 0; i < group.size() && others.size() < mostNamed; ++i) {
                if (group[i] != place)
                    others << entries[group[i]].title;
            }
            QString words = u"the same as "_s + others.join(u", "_s);
            if (const qsizetype more = group.size() - 1 - others.size(); more > 0)
                words += u" and %1 more"_s.arg(more);
            lines << lineOf(entries[place], words);
        }
    }
    return lines;
}

QList<Line> tooShort(const QList<KeeperSummary> &entries)
{
    QList<Line> lines;
    for (const KeeperSummary &entry : entries) {
        const int length = entry.passwordLength;
        if (counts(entry) && entry.hasPassword && length > 0 && length < KeeperCheckup::enoughCharacters)
            lines << lineOf(entry, length == 1 ? u"1 character"_s : u"%1 characters"_s.arg(length));
    }
    return lines;
}

QList<Line> old(const QList<KeeperSummary> &entries, QDate today, DateStyle style)
{
    QList<const KeeperSummary *> found;
    for (const KeeperSummary &entry : entries) {
        if (counts(entry) && entry.hasPassword && entry.passwordChanged.isValid() &&
            entry.passwordChanged.toLocalTime().date() <= today.addYears(-KeeperCheckup::oldYears))
            found << &entry;
    }
    std::ranges::stable_sort(found, {}, &KeeperSummary::passwordChanged);
    QList<Line> lines;
    for (const KeeperSummary *entry : std::as_const(found)) {
        const QDate day = entry->passwordChanged.toLocalTime().date();
        lines << lineOf(*entry, u"since "_s + Dates::monthDayYear(day, style));
    }
    return lines;
}

bool isExpiring(const KeeperSummary &entry, QDate today, int days)
{
    return counts(entry) && entry.expires.isValid() && today.daysTo(entry.expires) <= days;
}

QString expiryWords(QDate expires, QDate today, DateStyle style)
{
    const qint64 days = today.daysTo(expires);
    const QString when = days == 0    ? u"expires today"_s
                         : days == 1  ? u"expires tomorrow"_s
                         : days > 0   ? u"expires in %1 days"_s.arg(days)
                         : days == -1 ? u"expired yesterday"_s
                                      : u"expired %1 days ago"_s.arg(-days);
    return when + u", "_s + Dates::monthDayYear(expires, style);
}

QList<Line> expiring(const QList<KeeperSummary> &entries, QDate today, DateStyle style)
{
    QList<const KeeperSummary *> found;
    for (const KeeperSummary &entry : entries) {
        if (isExpiring(entry, today, KeeperCheckup::expiringDays))
            found << &entry;
    }
    std::ranges::stable_sort(found, {}, &KeeperSummary::expires);
    QList<Line> lines;
    for (const KeeperSummary *entry : std::as_const(found))
        lines << lineOf(*entry, expiryWords(entry->expires, today, style));
    return lines;
}

QList<Line> withoutOneTimeCode(const QList<KeeperSummary> &entries)
{
    QList<Line> lines;
    for (const KeeperSummary &entry : entries) {
        if (counts(entry) && entry.kind == EntryKind::LogIn && entry.hasPassword && !entry.hasOneTimeSecret)
            lines << lineOf(entry, entry.address);
    }
    return lines;
}

} // namespace

QList<Section> KeeperCheckup::of(const QList<KeeperSummary> &entries, QDate today, DateStyle style)
{
    return {{Finding::Reused, u"Used more than once"_s,
             u"Whoever learns one of these passwords can open all of them. Give each its own."_s,
             reused(entries)},
            {Finding::Short, u"Short"_s,
             u"Less than %1 characters are soon tried out, unless the place counts wrong answers."_s.arg(
                 enoughCharacters),
             tooShort(entries)},
            {Finding::Old, u"Old"_s,
             u"Not changed for %1 years. Change it where others may have seen it since."_s.arg(oldYears),
             old(entries, today, style)},
            {Finding::Expiring, u"Expiring within %1 days"_s.arg(expiringDays),
             u"Documents, cards and log-ins that end soon, and those that have ended."_s,
             ::expiring(entries, today, style)},
            {Finding::NoOneTimeCode, u"Without a one-time code"_s,
             u"Many places offer a second lock: a code that changes every half minute."_s,
             withoutOneTimeCode(entries)}};
}

int KeeperCheckup::expiring(const QList<KeeperSummary> &entries, QDate today, int days)
{
    return int(std::ranges::count_if(
        entries, [today, days](const KeeperSummary &entry) { return isExpiring(entry, today, days); }));
}
