// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/mountedplaces.h"
#include "album/model/photo.h"
#include "album/model/picturetexts.h"
#include "album/model/walker.h"

#include <QDate>
#include <QSet>

#include <vector>

class PhotoShelf;

/// A picture whose texts were changed in its file and in the album: which are right is for the person to say.
struct TextsConflict {
    int record = 0;
    FoundTexts inPicture;
    Photo facts; ///< of the file in which they were found
};

/// Looks after the files of all pictures: which are missing, which lie on a disk that is not plugged in, and
/// which were changed by another program; what such a one says anew comes into the album. Then it finds out
/// by which content each is known. On a thread of its own; nothing of it is a step of undo.
class ShelfLook final : public QObject
{
    Q_OBJECT
public:
    explicit ShelfLook(PhotoShelf &shelf, QObject *parent = nullptr);

    /// Looks anew; a look that goes on is ended before.
    void start(QDate today, const MountedPlaces &places = MountedPlaces::now());
    void stop() { m_walker.stop(); }
    bool isRunning() const { return m_walker.isRunning(); }

    /// Whether the picture lies on a disk that is not plugged in.
    bool isAway(int record) const { return m_away.contains(record); }

    /// Those that wait for an answer.
    const std::vector<TextsConflict> &conflicts() const { return m_conflicts; }
    enum class Keep { InAlbum, InPicture };
    /// Answers these in one step that can be taken back, after which they wait again: what the album says
    /// stays (and is written, if the album is to), or what the picture says is taken. Where one of them says
    /// nothing, the other's is kept. False where the disk refuses.
    bool settle(const QList<int> &records, Keep keep);

signals:
    /// All files were looked at; contents may still be read.
    void looked();
    void conflictsChanged();
    /// What the album says of these pictures is to stand in their files after all.
    void keptInAlbum(const QList<int> &records);
    /// The records know other files than before, which are to be looked at.
    void outdated();
    /// Contents are known as well.
    void finished();

private:
    struct Report;
    class Walk;

    void take(const Report &report);
    void takeChanged(int record, const FoundTexts &found, const Photo &facts);
    const TextsConflict *conflictOf(int record) const;
    QList<int> waiting() const;

    PhotoShelf &m_shelf;
    QSet<int> m_away;
    std::vector<TextsConflict> m_conflicts;
    Walker m_walker;
};
