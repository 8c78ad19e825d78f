// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperfilter.h"
#include "shell/controls/twolinedelegate.h"
#include "shell/core/programstate.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

/// The entries that filter and search let through, in their order.
class KeeperListModel final : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        IdRole = TwoLineDelegate::keyRole,
        WordsRole = TwoLineDelegate::wordsRole,
        SignRole = TwoLineDelegate::signRole,
        FavouriteRole = TwoLineDelegate::furtherRole
    };
    using enum TwoLineDelegate::Sign;
    using Sign = TwoLineDelegate::Sign;

    explicit KeeperListModel(const DateStyle &style, QObject *parent);

    /// `entries` are in the order of the alphabet.
    void setEntries(const QList<KeeperSummary> &entries, QDate today);
    /// `found` are the places of what the search has found, in their order; nothing where nothing is looked
    /// for. Favourites come first.
    void show(const KeeperFilter &filter, const std::optional<QList<int>> &found);

    const KeeperSummary &entry(int row) const { return m_entries[m_rows[std::size_t(row)]]; }
    QModelIndex indexOf(const QByteArray &id) const;
    const QList<KeeperSummary> &entries() const { return m_entries; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QString words(const KeeperSummary &entry) const;
    Sign sign(const KeeperSummary &entry) const;

    const DateStyle &m_style;
    QDate m_today;
    QList<KeeperSummary> m_entries;
    std::vector<qsizetype> m_rows;
};
