// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/filechange.h"

#include <QByteArray>
#include <QList>

#include <vector>

/// What one action changed in the album's two files: the fields of records that became others, and these
/// alone. A kill in the middle leaves a picture in no album, and never a place without a picture. What was
/// learnt of a picture's file since does not keep a change from being taken back.
class ShelfChange final : public FileChange
{
public:
    enum class Order {
        PhotosFirst, ///< something comes in, or changes
        PlacesFirst  ///< something goes
    };

    explicit ShelfChange(Order order = Order::PhotosFirst);

    /// Adds: record `number` of the pictures becomes `after`, a whole record; `before` is what it holds now,
    /// which is less than a record behind the end of the file.
    void writePhoto(int number, const QByteArray &before, const QByteArray &after);
    /// The same of the albums and places.
    void writePlace(int number, const QByteArray &before, const QByteArray &after);

    /// Adds what another change does behind this one, to other records.
    void add(const ShelfChange &later);

    bool isEmpty() const { return m_photos.empty() && m_places.empty(); }
    /// The records that it touches.
    QList<int> photos() const { return recordsOf(m_photos); }
    QList<int> places() const { return recordsOf(m_places); }

protected:
    bool isThere(const DataFolder &folder, Side side) const override;
    bool addTo(ChangeSet &writes, const DataFolder &folder, Side side) const override;

private:
    /// Bytes of a record from `at` on.
    struct Span {
        int record = 0;
        qsizetype at = 0;
        QByteArray before;
        QByteArray after;

        const QByteArray &on(Side side) const { return side == Side::Before ? before : after; }
    };
    using Spans = std::vector<Span>;

    static QList<int> recordsOf(const Spans &spans);
    static bool isBits(const Span &span);
    static bool isPhotoThere(QByteArray there, const Span &span, Side side);

    Order m_order;
    Spans m_photos;
    Spans m_places;
};
