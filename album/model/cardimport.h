// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/mountedplaces.h"
#include "album/model/photo.h"
#include "album/model/walker.h"

#include <QStringList>

#include <vector>

class PhotoShelf;

/// Looks for cards and telephones that are plugged in, and for pictures on them that the album has not yet:
/// "212 new pictures". `TakeIn` copies them; nothing on the card is touched.
class CardImport final : public QObject
{
    Q_OBJECT
public:
    struct Card {
        QString name;      ///< "CANON_DC"
        QString folder;    ///< of its pictures, its `DCIM`
        QStringList fresh; ///< those that the album has not
        int known = 0;     ///< those that it has

        bool operator==(const Card &) const = default;
    };

    explicit CardImport(PhotoShelf &shelf, QObject *parent = nullptr);

    /// Looks at all that is plugged in; `finished` follows.
    void start(const MountedPlaces &places = MountedPlaces::now());
    void stop() { m_walker.stop(); }
    bool isRunning() const { return m_walker.isRunning(); }

    /// Those with pictures.
    const std::vector<Card> &cards() const { return m_cards; }

signals:
    void finished();

private:
    class Walk;

    PhotoShelf &m_shelf;
    std::vector<Card> m_cards;
    Walker m_walker;
};
