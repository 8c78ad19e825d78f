// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QStringView>

#include <vector>

/// What is looked for in the journal, as it is typed: words in any order, "a phrase", tag:garden, year:2019.
/// Case and accents do not count.
class JournalQuestion
{
public:
    JournalQuestion() = default;
    explicit JournalQuestion(QStringView text);

    /// Nothing is looked for.
    bool isEmpty() const { return m_words.empty() && m_tags.empty() && m_years.empty(); }
    /// Words and phrases, folded, the longest first; no two of them where one holds the other.
    const std::vector<QByteArray> &words() const { return m_words; }
    bool hasTags() const { return !m_tags.empty(); }

    /// Whether an entry of `year` can be a hit.
    bool mayBeIn(int year) const;
    /// Whether an entry with these tags, folded, with a comma behind each, can be a hit.
    bool areThere(QByteArrayView tags) const;

    /// Whether every hit is a hit of `other`, too.
    bool isNarrowerThan(const JournalQuestion &other) const;

private:
    /// What stands behind "tag:" or "year:"; while it is being typed, its beginning.
    struct Named {
        QByteArray name;
        bool isWhole = false;
        bool operator==(const Named &) const = default;
    };
    static bool isNarrower(const std::vector<Named> &narrow, const std::vector<Named> &wide);

    std::vector<QByteArray> m_words;
    std::vector<Named> m_tags;
    std::vector<Named> m_years;
};
