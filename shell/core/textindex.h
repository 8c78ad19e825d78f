// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QStringView>

#include <functional>
#include <vector>

/// Thousands of short texts in one buffer, folded so that case and accents do not count, and the search for
/// words in them: what the search over everything finds, a function's source only has to name.
class TextIndex
{
public:
    /// What is looked for: words in any order, each of which must stand somewhere in a text.
    class Words
    {
    public:
        /// Blanks, commas and semicolons separate words. There is nothing to find for a text without words
        /// and for one with a character that no file can hold.
        explicit Words(QStringView text);

        bool isEmpty() const { return m_words.empty(); }

    private:
        friend class TextIndex;
        std::vector<QByteArray> m_words; ///< folded, the longest first
    };

    /// How good a hit is, the best first. The first line of a text is its title.
    enum Rank { WholeWordOfTitle, WordOfTitle, Word, Inside };
    static constexpr int rankCount = Inside + 1;

    struct Hit {
        int text = 0;
        Rank rank = Inside; ///< of the word that fits worst
        int line = 0;       ///< where it stands
    };

    /// Begins the next text; they are numbered from 0.
    void beginText();
    /// Adds a line to it: bytes as the files have them, up to the first zero byte (never written), without
    /// the blanks around them.
    void addLine(QByteArrayView bytes);
    /// Adds the digits of `bytes` as a line, which is empty where they stand together already.
    void addDigits(QByteArrayView bytes);
    void clear();
    /// Gives back the room for growth: no text follows.
    void squeeze();

    int count() const { return int(m_starts.size()); }

    /// Visits the texts that hold all words, in their order; the visitor returns false to stop.
    void find(const Words &words, const std::function<bool(const Hit &)> &visit) const;

    /// The texts as they are searched, for measuring.
    QByteArrayView bytes() const { return m_bytes; }
    /// Bytes held, room for growth included.
    qsizetype memoryUsed() const;

private:
    struct Place {
        Rank rank = Inside;
        const char *at = nullptr; ///< null: the word is not there
    };
    Place bestPlace(QByteArrayView text, const QByteArray &word) const;
    bool judge(QByteArrayView text, const Words &words, Hit &hit) const;

    QByteArray m_bytes; ///< each line ends with a line feed, which no folded byte is
    std::vector<quint32> m_starts;
};
