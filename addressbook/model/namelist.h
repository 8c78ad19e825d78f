// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <vector>

/// How the names follow each other: as their records do, with lines of this session's saves at the end, or as
/// in a telephone book.
enum class NameOrder { Record, AToZ };

/// The names of the address book as its list shows them: the index lines of the live entries in record order,
/// lines of this session's saves at the end, unless they are arranged from A to Z. Holds the bytes of the
/// lines once, so that 50,000 of them take little room.
class NameList
{
public:
    /// The position of the 2002nd line, where a search that has found a match goes on; see `find`.
    static constexpr int searchResumesAt = 2001;

    NameList() = default;
    /// An empty list that lists its lines within `bytes`, without copying them.
    explicit NameList(QByteArray bytes);

    /// Lists the `length` bytes from `start` on of the bytes that the list was made with.
    void list(qsizetype start, qsizetype length);
    /// Keeps the lines alone when they are less than half of the bytes.
    void squeeze();

    /// Puts the lines in this order, in which they stay; `Record` gives the order back in which they came.
    /// Returns where each line stands now, by the position that it had.
    std::vector<int> arrange(NameOrder order);
    NameOrder order() const { return m_order; }

    int count() const { return int(m_places.size()); }
    bool isEmpty() const { return m_places.empty(); }

    /// The whole line at `position` (from 0); empty outside the list.
    QString line(int position) const;
    /// Its names: "Miller, Anne".
    QString name(int position) const;
    /// The record number that the line leads to, or 0.
    int recordAt(int position) const;
    /// The first line that leads to `record`, or -1; record 0 is nowhere.
    int positionOf(int record) const;

    /// The line that a search for `text` selects, or -1. Upper and lower case are alike; the text may stand
    /// anywhere in a line. In a list of up to 2001 lines that is the first match. In a longer one a match
    /// sends the search on to line 2002, and a match from there on is the one that it ends with. That is
    /// how the list has always been searched, and it is kept; from A to Z it is the first match in a list of
    /// any length. The empty text stands in every line.
    int find(QStringView text) const;
    /// The positions of all lines that hold `text`; none for the empty text.
    QList<int> matches(QStringView text) const;
    /// The same with the lines that begin with `text` before the others.
    QList<int> bestMatches(QStringView text) const;

    void append(QStringView line);
    /// A line as it stands in the file.
    void append(QByteArrayView line);
    /// Where `line` has its place: at the end, or from A to Z among the others.
    int placeFor(QStringView line) const;
    void insert(int position, QStringView line);
    void removeAt(int position);

    /// The caption of the count label: " 12 - Entries ".
    QString countCaption() const;

    /// Bytes held, room for growth included.
    qsizetype memoryUsed() const;
    /// Characters of all lines together.
    qsizetype textLength() const;

private:
    struct Place {
        quint32 start;
        quint32 length;
    };

    QByteArrayView bytesOf(Place place) const;
    QByteArrayView bytesAt(int position) const;
    int firstMatch(QByteArrayView foldedText, int from) const;

    QByteArray m_bytes;          ///< one byte a character; may hold more than the lines
    std::vector<Place> m_places; ///< by `start` they stand in the order in which they came
    NameOrder m_order = NameOrder::Record;
};
