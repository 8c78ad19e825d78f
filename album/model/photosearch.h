// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photodatewords.h"

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QObject>
#include <QStringView>

#include <vector>

class PhotoShelf;

/// Finds pictures as one types: by caption, story, place, tags, people, file name, album and date. Their
/// texts are folded once, with the first search, so that neither case nor accents count.
class PhotoSearch final : public QObject
{
    Q_OBJECT
public:
    explicit PhotoSearch(const PhotoShelf &shelf, QObject *parent = nullptr);

    /// The pictures in which each word of `text` stands somewhere, by record: in a text or in the name of one
    /// of their albums. Words that make a date, "1974" or "summer 82", also find the pictures that may be of
    /// that time. All of them for a text of blanks.
    QList<int> pictures(QStringView text, DateStyle style, QDate today);

    /// The texts as they are searched, for measuring.
    QByteArrayView bytes() const { return m_texts; }

private:
    struct Row {
        int record = 0;
        qsizetype start = 0; ///< of its texts
        PhotoDateWords::Days days{};
    };
    struct Term;
    using Rows = std::vector<char>; ///< 1 for each that is found: bytes are quicker than bits

    void prepare();
    void refold(const QList<int> &photos);
    qsizetype endOf(std::size_t row) const;
    std::vector<Term> termsOf(QStringView text, DateStyle style, QDate today) const;
    Rows rowsOf(const Term &term, const Rows *among) const;
    Rows rowsWith(const QByteArray &word, const Rows *among) const;
    void addAlbums(const QByteArray &word, Rows &found) const;

    const PhotoShelf &m_shelf;
    QByteArray m_texts;
    std::vector<Row> m_rows;  ///< by record
    std::vector<int> m_rowOf; ///< of each record; -1 where it has none
    struct AlbumName {
        int album = 0;
        QByteArray folded;
    };
    std::vector<AlbumName> m_albums; ///< by record
    bool m_isFolded = false;
};
