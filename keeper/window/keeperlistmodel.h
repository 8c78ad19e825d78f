// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperfilter.h"
#include "shell/controls/twolinedelegate.h"
#include "shell/core/programstate.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

class Keeper;

/// The entries that filter and search let through: favourites first, then in the order of the keeper. What a
/// row shows is asked for when it is painted.
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

    KeeperListModel(const Keeper &keeper, const DateStyle &style, QObject *parent);

    /// The entries are others, or another filter is chosen. Nothing is listed until `show`.
    void narrow(const KeeperFilter &filter, QDate today);
    /// `found` are the places of what the search has found; nothing where nothing is looked for.
    void show(const std::optional<QList<int>> &found);

    /// The keeper is locked.
    void forget();

    KeeperSummary entry(int row) const;
    QByteArray id(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    enum Passing : quint8 { No, Yes, First };

    QString words(const KeeperSummary &entry) const;
    Sign sign(const KeeperSummary &entry) const;

    const Keeper &m_keeper;
    const DateStyle &m_style;
    QDate m_today;
    std::vector<Passing> m_passing; ///< by the place in the keeper
    std::vector<int> m_rows;        ///< the places that are listed
};
