// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/kepttexts.h"
#include "album/model/photo.h"
#include "album/model/walker.h"

#include <QDate>
#include <QHash>
#include <QSet>

#include <optional>
#include <vector>

class PhotoShelf;

/// Keeps what is said of pictures in their files too, as their albums want it, and remembers in the records
/// where it stands. It sees each change of the shelf, taken back or not, and writes on a thread of its own.
class TextsKeeper final : public QObject
{
    Q_OBJECT
public:
    TextsKeeper(PhotoShelf &shelf, QDate today, QObject *parent = nullptr);

    /// Writes what is said of these pictures, where an album of theirs wants it.
    void write(const QList<int> &records);
    /// The same for all whose texts stand in no file yet, but for `waiting`: when the album is opened, and
    /// when an album wants it from now on.
    void catchUp(const QSet<int> &waiting = {});
    bool isRunning() const { return m_walker.isRunning(); }

signals:
    /// Why texts could not be kept in a file, for the status bar.
    void said(const QString &line);
    /// Another program has changed the file of a picture since the album looked: it was not written to before
    /// that was looked at.
    void foundChanged(int record);
    /// All was written.
    void finished();

private:
    /// By which a change of a person is told from one that came out of the file.
    struct Seen {
        std::size_t texts = 0;
        qint64 size = 0;
        qint64 fileTime = 0;
        bool isInFile = false;
        QString typedDate{}; ///< empty where no person typed one
    };
    struct Task {
        int record = 0;
        QString path;
        PictureTexts texts;
        qint64 size = 0;     ///< of the file that the record knows
        qint64 fileTime = 0; ///< of it
        KeptTexts::Into into = KeptTexts::Into::Picture;
        QStringList goneDates{}; ///< that may stand in the file
    };

    static Seen seenOf(const Photo &photo);
    void see();
    void notice(const QList<int> &records);
    std::optional<Task> taskFor(int record) const;
    void startNext();
    void take(const Task &task, const KeptTexts::Written &written, const Photo::Hash &hash);

    PhotoShelf &m_shelf;
    const QDate m_today;
    QHash<int, Seen> m_seen;
    QList<int> m_waiting;
    QHash<int, QStringList> m_goneDates; ///< typed under those that wait, and meant no longer
    Walker m_walker;
};
