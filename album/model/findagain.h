// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"
#include "album/model/walker.h"
#include "shell/core/undostep.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <vector>

class PhotoShelf;

/// A picture that was missing, and where it lies now.
struct FoundPicture {
    int record = 0;     ///< of the album; 0: another function names it
    QString stored;     ///< the path that the record has
    QString path;       ///< where it is now
    bool isSure = true; ///< it has the same content; else the same name only

    bool operator==(const FoundPicture &) const = default;
};

/// Finds pictures that are missing in a folder into which they were moved: by the size of their files, then
/// by their content. What other functions name is found with them, or by its name. Nothing is changed before
/// `link`.
class FindAgain final : public QObject
{
    Q_OBJECT
public:
    /// What other functions have: the pictures that they miss, as their records name them, and the way to
    /// have those name others, from what a record has to where the file is now.
    struct Others {
        QStringList missing{};
        std::function<std::optional<UndoStep>(const QHash<QString, QString> &files)> relink{};
    };

    explicit FindAgain(PhotoShelf &shelf, Others others, QObject *parent = nullptr);

    /// How many are missing in all.
    int missingCount() const;

    /// Looks through the folder and those in it; `finished` follows.
    void start(const QString &folder);
    void stop() { m_walker.stop(); }
    bool isRunning() const { return m_walker.isRunning(); }

    const std::vector<FoundPicture> &found() const { return m_found; }
    /// How many were looked for: all that are missing, whether the album knew so before or not.
    int soughtCount() const { return m_sought; }

    /// Links those anew, in one step that can be taken back. False, and the user was told by the shelf, where
    /// nothing was changed.
    bool link(const std::vector<FoundPicture> &chosen);

signals:
    /// Files that were looked at.
    void progressed(int done, int total);
    void finished(bool wasStopped);

private:
    class Walk;

    std::optional<UndoStep> linkOwn(const std::vector<FoundPicture> &chosen);

    PhotoShelf &m_shelf;
    const Others m_others;
    std::vector<FoundPicture> m_found;
    int m_sought = 0;
    Walker m_walker;
};
