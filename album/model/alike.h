// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"
#include "album/model/walker.h"
#include "shell/pictures/thumbnails.h"

#include <vector>

class PhotoShelf;

/// Pictures that show the same.
struct AlikePictures {
    QList<int> records;         ///< two or more, the largest first
    bool isSameContent = false; ///< byte for byte; else in another size, quality or turn

    bool operator==(const AlikePictures &) const = default;
};

/// Finds pictures that are there more than once: the same content, and the same picture in another size or
/// turn, by what its thumbnail looks like. Which of them goes is for the person to say.
class Alike final : public QObject
{
    Q_OBJECT
public:
    /// `thumbnails` are looked at first, where there are any.
    Alike(PhotoShelf &shelf, Thumbnails *thumbnails, QObject *parent = nullptr);

    /// Looks through these pictures, all of the list where there are none; `finished` follows.
    void start(const QList<int> &records = {});
    void stop() { m_walker.stop(); }
    bool isRunning() const { return m_walker.isRunning(); }

    const std::vector<AlikePictures> &groups() const { return m_groups; }

    /// Puts the pictures' files into the system's trash, and takes them off the list. Those whose file the
    /// system refused to take stay; they are what it gives.
    QList<int> moveToTrash(const QList<int> &records);

signals:
    void progressed(int done, int total);
    void finished(bool wasStopped);

private:
    class Walk;

    PhotoShelf &m_shelf;
    Thumbnails *m_thumbnails;
    std::vector<AlikePictures> m_groups;
    Walker m_walker;
};
