// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/differences.h"

#include <QHash>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace {

/// What is kept of a record of the copy while those here are looked at.
struct Known {
    std::size_t hash = 0; ///< of the key
    std::size_t content = 0;
    qsizetype key = 0; ///< where it begins among all keys
    bool isHere = false;
    bool isSame = false;
};

std::size_t hashOf(const QString &key)
{
    return qHashBits(key.constData(), std::size_t(key.size()) * sizeof(QChar), 1);
}

std::size_t hashOf(const QByteArray &content)
{
    return qHashBits(content.constData(), std::size_t(content.size()), 1);
}

/// The records of the copy by key. Most of them stand in the same order on both sides: the one behind the
/// last is looked at first.
class KnownRecords
{
public:
    void add(const FunctionRecord &record)
    {
        if (record.title.constData() != record.key.constData() && record.title != record.key)
            m_titles.emplace(std::uint32_t(m_records.size()), record.title);
        m_records.push_back({hashOf(record.key), hashOf(record.content), m_keys.size()});
        m_keys += record.key;
    }

    /// Null where there is none.
    Known *find(const QString &key)
    {
        const std::size_t hash = hashOf(key);
        if (m_next >= m_records.size() || m_records[m_next].hash != hash)
            m_next = placeOf(hash);
        return m_next < m_records.size() ? &m_records[m_next++] : nullptr;
    }

    const std::vector<Known> &all() const { return m_records; }
    QString key(std::size_t place) const
    {
        const qsizetype begin = m_records[place].key;
        const qsizetype end = place + 1 < m_records.size() ? m_records[place + 1].key : m_keys.size();
        return m_keys.sliced(begin, end - begin);
    }
    QString title(std::size_t place) const
    {
        const auto title = m_titles.constFind(std::uint32_t(place));
        return title == m_titles.constEnd() ? key(place) : *title;
    }

private:
    /// Behind the last where there is none.
    std::size_t placeOf(std::size_t hash)
    {
        if (m_byKey.isEmpty()) {
            m_byKey.reserve(qsizetype(m_records.size()));
            for (std::size_t place = 0; place < m_records.size(); ++place)
                m_byKey.insert(m_records[place].hash, std::uint32_t(place));
        }
        const auto found = m_byKey.constFind(hash);
        return found == m_byKey.constEnd() ? m_records.size() : *found;
    }

    std::vector<Known> m_records;
    QString m_keys;                            ///< one behind the other
    QHash<std::uint32_t, QString> m_titles;    ///< where they are no keys
    QHash<std::size_t, std::uint32_t> m_byKey; ///< their places
    std::size_t m_next = 0;
};

} // namespace

RecordDifferences RecordDifferences::of(const FunctionRecords &here, const FunctionRecords &there)
{
    RecordDifferences differences;
    KnownRecords known;
    there.visitAll([&known](const FunctionRecord &record) { known.add(record); });
    differences.there = int(known.all().size());
    QList<Item> onlyHere;
    here.visitAll([&](const FunctionRecord &record) {
        ++differences.here;
        if (Known *same = known.find(record.key)) {
            same->isHere = true;
            same->isSame = same->content == hashOf(record.content);
        } else {
            onlyHere.append({OnlyHere, record.key, record.title});
        }
    });
    for (std::size_t place = 0; place < known.all().size(); ++place) {
        const Known &record = known.all()[place];
        if (!record.isSame)
            differences.items.append(
                {record.isHere ? Changed : OnlyThere, known.key(place), known.title(place)});
    }
    differences.items += onlyHere;
    return differences;
}
