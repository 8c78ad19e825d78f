// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperfilter.h"

#include "keeper/model/keeperkinds.h"

#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Letters without accents and case.
QString folded(const QString &text)
{
    QString letters;
    for (const QChar character : text.normalized(QString::NormalizationForm_D)) {
        if (character.category() != QChar::Mark_NonSpacing)
            letters += character.toCaseFolded();
    }
    return letters;
}

bool isBefore(const QString &one, const QString &other)
{
    const int order = folded(one).compare(folded(other));
    return order == 0 ? one < other : order < 0;
}

QStringList alphabetical(const QSet<QString> &words)
{
    QStringList list(words.begin(), words.end());
    std::ranges::sort(list, isBefore);
    return list;
}

QString pluralOf(EntryKind kind)
{
    switch (kind) {
    case EntryKind::LogIn:
        return u"Log-ins"_s;
    case EntryKind::BankAccount:
        return u"Bank accounts"_s;
    case EntryKind::Card:
        return u"Cards"_s;
    case EntryKind::WiFi:
        return u"Wi-Fi"_s;
    case EntryKind::Licence:
        return u"Licences"_s;
    case EntryKind::Document:
        return u"Documents"_s;
    case EntryKind::Note:
        return u"Notes"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

bool KeeperFilter::passes(const KeeperSummary &entry, QDate today) const
{
    if (entry.isTrashed || what == Trash)
        return entry.isTrashed && what == Trash;
    switch (what) {
    case Favourites:
        return entry.isFavourite;
    case Expiring:
        return entry.expires.isValid() && today.daysTo(entry.expires) <= expiringWithin;
    case Kind:
        return entry.kind == kind;
    case Member:
        return entry.member == word;
    case Tag:
        return entry.tags.contains(word);
    default:
        return true;
    }
}

namespace KeeperFilters {

QList<KeeperFilter> of(const QList<KeeperSummary> &entries)
{
    QList<KeeperFilter> filters{
        {KeeperFilter::All, {}, {}}, {KeeperFilter::Favourites, {}, {}}, {KeeperFilter::Expiring, {}, {}}};
    for (const EntryKind kind : KeeperKinds::all) {
        const auto isOfIt = [kind](const KeeperSummary &entry) {
            return !entry.isTrashed && entry.kind == kind;
        };
        if (std::ranges::any_of(entries, isOfIt))
            filters.append({KeeperFilter::Kind, kind, {}});
    }
    for (const QString &member : members(entries))
        filters.append({KeeperFilter::Member, {}, member});
    for (const QString &tag : tags(entries))
        filters.append({KeeperFilter::Tag, {}, tag});
    filters.append({KeeperFilter::Trash, {}, {}});
    return filters;
}

QStringList tags(const QList<KeeperSummary> &entries)
{
    QSet<QString> words;
    for (const KeeperSummary &entry : entries) {
        if (!entry.isTrashed)
            words.unite(QSet<QString>(entry.tags.begin(), entry.tags.end()));
    }
    return alphabetical(words);
}

QStringList members(const QList<KeeperSummary> &entries)
{
    QSet<QString> words;
    for (const KeeperSummary &entry : entries) {
        if (!entry.isTrashed && !entry.member.isEmpty())
            words.insert(entry.member);
    }
    return alphabetical(words);
}

QString caption(const KeeperFilter &filter)
{
    switch (filter.what) {
    case KeeperFilter::All:
        return u"All entries"_s;
    case KeeperFilter::Favourites:
        return u"Favourites"_s;
    case KeeperFilter::Expiring:
        return u"Expiring within %1 days"_s.arg(KeeperFilter::expiringWithin);
    case KeeperFilter::Kind:
        return pluralOf(filter.kind);
    case KeeperFilter::Member:
        return u"Of %1"_s.arg(filter.word);
    case KeeperFilter::Tag:
        return u"Tag: %1"_s.arg(filter.word);
    case KeeperFilter::Trash:
        return u"Trash"_s;
    }
    Q_UNREACHABLE();
}

} // namespace KeeperFilters
