// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCache>
#include <QImage>
#include <QObject>

#include <memory>
#include <vector>

class PictureWork;

/// A picture of a long list, for the queue.
struct WantedPicture {
    int id = 0;       ///< by which it arrives
    QString path;     ///< of the file, from the root on
    int turns = 0;    ///< quarter turns to the right, on top of the picture's own
    qint64 size = -1; ///< of the file when it was seen last, where that is known: its thumbnail is found by
    qint64 time = 0;  ///< size and time (seconds, UTC) while the file itself is not here

    bool operator==(const WantedPicture &) const = default;
};

/// Reads the pictures of a long list, those first that are seen: rough ones at once from the previews inside
/// the files, then sharp ones, then the next screen, then all the rest, whose thumbnails are made and put
/// aside. It works on as many threads as there are cores, which know paths only; what is here is called and
/// answers on one thread.
class PictureQueue final : public QObject
{
    Q_OBJECT
public:
    /// A side for which pictures are read as they are.
    static constexpr int wholeSide = 1 << 20;

    enum class Priority { Seen, Next, Rest };
    enum class Look {
        Rough, ///< the sharp one follows
        Sharp,
        Cut,  ///< sharp as far as it goes: the file ends early
        Away, ///< the thumbnail of a file that is not here
    };
    /// What arrived and is still kept.
    struct Kept {
        QImage image; ///< null when nothing is
        Look look = Look::Rough;
        QString reason; ///< why it cannot be shown
    };

    /// Thumbnails are put aside in the folder `thumbnails`; none are where it is empty.
    explicit PictureQueue(const QString &thumbnails, QObject *parent = nullptr);
    /// Stops what is being read, which takes no time.
    ~PictureQueue() override;

    /// The longer side in which pictures are shown, in pixels of the screen.
    void setSide(int pixels);
    /// Asks for a picture, or for one that was asked for with another priority, path or turn. Seen and next
    /// ones arrive, unless `kept` has them sharp already; of the rest only failures are told.
    void want(const WantedPicture &picture, PictureQueue::Priority priority);
    /// What is on the screen now and what would be after the next step, in the order in which it is to come.
    /// What was there before and is no more goes back among the rest.
    void show(const std::vector<WantedPicture> &seen, const std::vector<WantedPicture> &next);
    /// The picture is wanted no more, or its file has changed; ask again for it then.
    void forget(int id);
    void forgetAll();

    /// The picture as it arrived last, for as long as there is room for it.
    Kept kept(int id) const;
    /// How many bytes of pictures are kept.
    void setMostKept(qsizetype bytes);
    /// How many pictures have not been read yet.
    int waitingCount() const;

signals:
    void arrived(int id, const QImage &image, PictureQueue::Look look);
    /// `reason` stands in the place of the picture.
    void failed(int id, const QString &reason);
    /// The last one that was waiting has been read.
    void emptied();

private:
    friend class PictureWork;
    void ask(const WantedPicture &picture);
    void takeArrivals();

    std::shared_ptr<PictureWork> m_work;
    struct Shown {
        Kept kept;
        QString path; ///< of its file
    };
    QCache<int, Shown> m_kept;
    QHash<int, QString> m_reasons; ///< of those that cannot be shown
};
