// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperlistmodel.h"

#include "keeper/model/keeper.h"
#include "keeper/model/keeperkinds.h"
#include "keeper/window/windowlines.h"
#include "shell/core/dates.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

KeeperListModel::KeeperListModel(const Keeper &keeper, const DateStyle &style, QObject *parent)
    : QAbstractListModel(parent)
    , m_keeper(keeper)
    , m_style(style)
{}

void KeeperListModel::narrow(const KeeperFilter &filter, QDate today)
{
    beginResetModel();
    m_today = today;
    m_rows.clear();
    m_passing.clear();
    const QList<KeeperSummary> entries = m_keeper.entries();
    m_passing.reserve(std::size_t(entries.size()));
    for (const KeeperSummary &entry : entries)
        m_passing.push_back(!filter.passes(entry, today) ? No : entry.isFavourite ? First : Yes);
    endResetModel();
}

void KeeperListModel::show(const std::optional<QList<int>> &found)
{
    beginResetModel();
    m_rows.clear();
    for (const Passing wanted : {First, Yes}) {
        const auto take = [&](int place) {
            if (place < int(m_passing.size()) && m_passing[std::size_t(place)] == wanted)
                m_rows.push_back(place);
        };
        if (found) {
            std::ranges::for_each(*found, take);
        } else {
            for (int place = 0; place < int(m_passing.size()); ++place)
                take(place);
        }
    }
    endResetModel();
}

void KeeperListModel::forget()
{
    beginResetModel();
    m_rows.clear();
    m_passing.clear();
    endResetModel();
}

KeeperSummary KeeperListModel::entry(int row) const
{
    return m_keeper.summary(m_rows[std::size_t(row)]);
}

QByteArray KeeperListModel::id(int row) const
{
    return entry(row).id;
}

int KeeperListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant KeeperListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const KeeperSummary shown = entry(index.row());
    const bool isLost = shown.damagedPlace > 0 && !shown.shownVersion.isValid();
    const QString title = isLost                  ? KeeperWindowLines::damaged(shown.damagedPlace)
                          : shown.title.isEmpty() ? KeeperWindowLines::withoutTitle()
                                                  : shown.title;
    switch (role) {
    case Qt::DisplayRole:
        return title;
    case Qt::AccessibleTextRole:
        return QString(title + u", "_s + words(shown) +
                       (shown.isFavourite ? KeeperWindowLines::favouriteWord() : QString()));
    case IdRole:
        return shown.id;
    case WordsRole:
        return words(shown);
    case SignRole:
        return sign(shown);
    case FavouriteRole:
        return shown.isFavourite;
    default:
        return {};
    }
}

/// The line below the title: what it needs to be told from others, or what is wrong with it.
QString KeeperListModel::words(const KeeperSummary &entry) const
{
    if (entry.shownVersion.isValid())
        return KeeperWindowLines::damagedVersion(
            entry.lostPlace, Dates::shortWithYear(entry.shownVersion.toLocalTime().date(), m_style));
    if (entry.damagedPlace > 0)
        return KeeperWindowLines::cannotBeOpened();
    if (entry.isTrashed)
        return KeeperWindowLines::deletedOn(
            Dates::shortWithYear(entry.trashedAt.toLocalTime().date(), m_style));
    if (sign(entry) != NoSign)
        return KeeperWindowLines::expiresOn(Dates::shortWithYear(entry.expires, m_style),
                                            entry.expires < m_today);
    return entry.userName.isEmpty() ? KeeperKinds::name(entry.kind) : entry.userName;
}

KeeperListModel::Sign KeeperListModel::sign(const KeeperSummary &entry) const
{
    if (entry.damagedPlace > 0)
        return Overdue;
    if (entry.isTrashed || !entry.expires.isValid() ||
        m_today.daysTo(entry.expires) > KeeperFilter::expiringWithin)
        return NoSign;
    return entry.expires < m_today ? Overdue : Due;
}
