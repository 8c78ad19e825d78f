// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keepersummary.h"

#include <QByteArrayView>
#include <QList>
#include <QStringView>

#include <array>
#include <string>
#include <vector>

/// What is known of all entries while the keeper is open, and nothing secret: the texts of the list side by
/// side, once as they are and once folded, so that a search looks at each byte once. Ordered by title.
class KeeperIndex
{
public:
    /// What stands around the fields of an entry.
    struct Facts {
        QByteArray id;
        qint64 changed = 0; ///< seconds since 1970, UTC
        bool isTrashed = false;
        qint64 trashedAt = 0;
        qint64 shownVersion = 0; ///< 0: the last one is shown
        int lostPlace = 0;       ///< the record of the last one, where that is known
    };

    /// `hashKey` makes the hashes of passwords, which tell only whether two are the same.
    explicit KeeperIndex(QByteArrayView hashKey = {});
    ~KeeperIndex() { clear(); }
    KeeperIndex(KeeperIndex &&) = default;
    KeeperIndex &operator=(KeeperIndex &&) = default;
    KeeperIndex(const KeeperIndex &) = delete;
    KeeperIndex &operator=(const KeeperIndex &) = delete;

    void clear();

    /// Adds the entry of these payload bytes, which may lie in memory that is wiped. Call `settle` behind a
    /// single one, in whose place it comes when it is there already, `sort` behind the last of many.
    void add(const Facts &facts, QByteArrayView payload);
    void settle();
    /// Adds a row that is only a record which does not open.
    void addDamaged(int record);
    void sort();

    /// Takes the entry out, if it is there.
    void remove(QByteArrayView id);
    void removeDamaged();

    int count() const { return int(m_rows.size()); }
    KeeperSummary summary(int place) const;
    /// -1: none.
    int placeOf(QByteArrayView id) const;

    /// The places of the entries in whose title, user name, address, tags or notes all words of `text` stand,
    /// in any order, case and accents folded; all for an empty text.
    QList<int> find(QStringView text) const;

    /// The ids of what is in the trash.
    QList<QByteArray> trash() const;

    /// When the documents expire that are not in the trash, from `from` on, the nearest first: days since
    /// 1970.
    std::vector<qint32> expiries(QDate from) const;

    QByteArray passwordHash(QByteArrayView password) const;
    /// Whether another entry than `besides` has this password, in the trash too.
    bool hasPassword(QByteArrayView password, QByteArrayView besides) const;

    /// For measuring: the folded texts, and bytes held in all.
    QByteArrayView folded() const { return {m_folded.data(), qsizetype(m_folded.size())}; }
    qsizetype memoryUsed() const;

    /// UTF-8 as it is searched.
    static QByteArray fold(QByteArrayView text);

private:
    enum Text { Title, UserName, Address, Member, Tags, TextCount };
    static constexpr std::size_t hashLength = 16;

    struct Row {
        std::array<char, 16> id{};
        std::array<char, hashLength> passwordHash{};
        qint64 changed = 0;
        qint64 passwordChanged = 0;
        qint64 trashedAt = 0;
        qint64 shownVersion = 0;
        quint32 textsAt = 0;
        quint32 foldedAt = 0;
        quint32 foldedLength = 0;
        std::array<quint16, TextCount> lengths{};
        quint16 titleLength = 0; ///< of the folded title, which comes first
        qint32 expires = 0;      ///< days since 1970; 0: never
        int damagedPlace = 0;
        int lostPlace = 0;
        quint16 passwordLength = 0;
        EntryKind kind = EntryKind::Note;
        bool isFavourite = false;
        bool hasPassword = false;
        bool hasOneTimeSecret = false;
        bool isTrashed = false;
    };
    struct Texts;

    static bool isLess(std::string_view folded, const Row &left, const Row &right);
    void note(Row &row, Texts &texts, quint8 id, QByteArrayView text) const;
    QString text(const Row &row, Text which) const;
    void pack();
    void layOut();

    std::array<char, 32> m_hashKey{};
    std::vector<Row> m_rows;
    std::string m_texts;
    std::string m_folded;
    std::size_t m_ordered = 0; ///< up to here, `m_folded` is in the order of the rows
    std::size_t m_dead = 0;    ///< bytes of `m_folded` that belong to no row any more
};
