// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"
#include "album/model/walker.h"

#include <QDate>
#include <QStringList>

#include <vector>

class PhotoShelf;

/// Gives pictures away: copies of them in a folder, in their order ("001 Lake.jpg"), with what is said of
/// them in the files. Nothing that is there is written over.
class AlbumExport final : public QObject
{
    Q_OBJECT
public:
    struct Wish {
        QList<int> records{}; ///< in their order
        QString folder{};
        /// The longer side of smaller JPEGs, in pixels; 0: the originals.
        int longerSide = 0;
        bool hasTexts = true;
        bool hasCoordinates = false;
        QDate today{};
    };
    struct Result {
        int written = 0;
        QStringList failed; ///< pictures that could not be read or written
        QStringList
            withoutTexts; ///< originals that take none, or of which coordinates could not be taken out
        bool isDiskFull = false;
        bool wasStopped = false;
    };

    explicit AlbumExport(PhotoShelf &shelf, QObject *parent = nullptr);

    void start(const Wish &wish);
    void stop() { m_walker.stop(); }
    bool isRunning() const { return m_walker.isRunning(); }

    /// "001 Lake.jpg": as many digits as the last one needs, three at least.
    static QString nameOf(int number, int count, const QString &fileName);

signals:
    void progressed(int done, int total);
    void finished(const AlbumExport::Result &result);

private:
    class Walk;

    PhotoShelf &m_shelf;
    Walker m_walker;
};
