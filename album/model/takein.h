// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"
#include "album/model/walker.h"
#include "shell/core/undostep.h"

#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QSet>
#include <QStringList>

#include <vector>

class PhotoShelf;

/// Takes pictures into the list: those of files and folders with what their files say, each once. What is
/// read is read on a thread of its own; pictures come to the shelf as they are found, and all of it is one
/// step that can be taken back.
class TakeIn final : public QObject
{
    Q_OBJECT
public:
    /// Where the pictures are to lie.
    enum class Copy {
        No,       ///< where they are
        Pictures, ///< in the household's `Pictures`
        ByMonth   ///< there too, in folders of years and months; cards and telephones come so
    };
    struct Wish {
        QStringList paths{}; ///< of files and folders
        int album = 0;       ///< that takes them in; 0: none
        Copy copy = Copy::No;
        QDate today{};
        /// Looked at are those that came into their folder later; all where there is no time. Then those that
        /// are on the list already are not put into the album again.
        QDateTime since{};
    };
    struct Result {
        QList<int> added;    ///< their records
        int known = 0;       ///< were on the list already
        int foundAgain = 0;  ///< were missing, and lie here now
        QStringList refused; ///< what is no file, paths that a record cannot keep, what could not be copied
        bool wasStopped = false; ///< by the person
        QString whyNoMore{};     ///< the list is full, or the disk: the others were left out
    };

    explicit TakeIn(PhotoShelf &shelf, QObject *parent = nullptr);

    /// Does nothing while it runs already.
    void start(const Wish &wish);
    /// What was taken in until then stays.
    void stop() { m_walker.stop(); }
    bool isRunning() const { return m_walker.isRunning(); }

signals:
    void progressed(int done, int total);
    void finished(const TakeIn::Result &result);

private:
    /// What the walk has to know of the shelf.
    struct Known {
        QHash<QString, int> paths;
        std::vector<Photo> photos; ///< with full paths
    };
    struct Batch {
        std::vector<Photo> photos;
        QList<int> known; ///< those that come into the album
        int knownCount = 0;
        QHash<int, QString> foundAgain;
        QStringList refused;
        int done = 0;
        int total = 0;
    };
    class Walk;

    Known known() const;
    void take(const Batch &batch);
    void findAgain(int record, const QString &path);
    void finish(bool wasStopped);

    PhotoShelf &m_shelf;
    Wish m_wish;
    Result m_result;
    std::vector<UndoStep> m_steps;
    Walker m_walker;
};
