// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QMutex>
#include <QString>

/// Which file a thumbnail shows, and as it was when.
struct ThumbnailKey {
    QString path;
    qint64 size = -1; ///< of the file
    qint64 time = 0;  ///< when it was written, in seconds, UTC

    /// Of the file as it is now; its size is -1 when it is not there.
    static ThumbnailKey of(const QString &path);

    bool operator==(const ThumbnailKey &) const = default;
};

/// Small pictures in a folder of their own, so that a screen of photographs is there at once the next time.
/// They are no data: when the folder is deleted they are made anew. It may be used from any thread and by
/// several programs at once.
class Thumbnails final
{
public:
    /// The longer side of each, in pixels.
    static constexpr int side = 256;
    static constexpr qint64 usualMost = 512LL * 1024 * 1024;

    /// No thumbnails are kept where `folder` is empty. Beyond `mostBytes` those go that were not looked at
    /// for the longest time.
    explicit Thumbnails(const QString &folder, qint64 mostBytes = usualMost);

    /// A thumbnail, upright as its picture is.
    struct Found {
        QImage image;       ///< null when there is none
        bool isCut = false; ///< the picture's file ends early
    };
    Found read(const ThumbnailKey &key) const;
    bool has(const ThumbnailKey &key) const;
    /// Keeps `picture`, made small. What cannot be written is not kept.
    void write(const ThumbnailKey &key, const QImage &picture, bool isCut);

private:
    QString pathOf(const ThumbnailKey &key) const;
    void count(qint64 bytes);
    void makeRoom();

    const QString m_folder;
    const qint64 m_most;
    QMutex m_counting;
    qint64 m_bytes = -1; ///< of all thumbnails; not counted yet
};
