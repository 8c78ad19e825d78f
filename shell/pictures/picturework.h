// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturequeue.h"
#include "shell/pictures/thumbnails.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QMutex>
#include <QSet>
#include <QWaitCondition>

#include <array>
#include <atomic>
#include <deque>

/// The list of a `PictureQueue`, and what its threads do. It lives until the last of them has ended, which
/// nobody waits for but the end of the program.
class PictureWork final : public std::enable_shared_from_this<PictureWork>
{
public:
    PictureWork(PictureQueue &queue, const QString &thumbnails);

    /// Starts its threads, as many as there are cores.
    void start();
    /// Nothing arrives from now on; the threads end as soon as they can.
    void stop();

    void setSide(int pixels);
    void want(const WantedPicture &picture, PictureQueue::Priority priority);
    void show(const std::vector<WantedPicture> &seen, const std::vector<WantedPicture> &next);
    /// What arrived is kept no more: it has to be read again when it is wanted.
    void lose(int id);
    void forget(int id);
    void forgetAll();
    int waitingCount() const;

    /// What has been read of a picture.
    struct Arrival {
        int id = 0;
        QString path = {}; ///< of its file
        QImage image = {}; ///< null where there is none
        PictureQueue::Look look = PictureQueue::Look::Rough;
        QString reason = {}; ///< why there is none
    };
    /// What has come since this was called last, of pictures that are still wanted.
    std::vector<Arrival> arrivals();

private:
    using Priority = PictureQueue::Priority;
    using Look = PictureQueue::Look;

    /// The lines in which pictures wait, in the order in which they are served.
    enum Line { SeenRough, SeenSharp, NextRough, NextSharp, Rest, LineCount };

    struct Entry {
        WantedPicture picture;
        Priority priority = Priority::Rest;
        quint32 birth = 0;      ///< number of its being asked for
        quint32 place = 0;      ///< number of its place in the lines; older ones are void
        int sharpSide = 0;      ///< in which it has arrived sharp
        bool hasRough = false;  ///< a rough one has arrived, or there is none
        bool hasFailed = false; ///< which has been told
        QDeadlineTimer again{}; ///< after which one that has failed is tried once more
        bool isReady = false;   ///< nothing is to be done for its priority
        bool isRunning = false; ///< its sharp picture is being read
    };
    struct Place {
        int id;
        quint32 place;
    };
    struct Job {
        WantedPicture picture;
        Line line = Rest;
        quint32 birth = 0;
        int side = 0;
    };
    struct Result {
        QImage image; ///< null where there is none, or none was wanted
        Look look = Look::Rough;
        QString reason;
    };
    struct Told {
        quint32 birth = 0; ///< of the asking to which it is the answer
        Arrival arrival;
    };

    // Under the lock.
    void put(const WantedPicture &picture, Priority priority);
    void line(Entry &entry);
    void goBack(int id);
    bool take(Job &job);
    void settle(Entry &entry, bool isReady);
    void takeRough(Entry &entry, const Result &result);
    void takeSharp(Entry &entry, const Job &job, const Result &result);
    void tell(const Entry &entry, const Result &result);

    // On any thread.
    void run();
    Result work(const Job &job);
    static QImage shown(const QImage &picture, const Job &job);
    Result readSharp(const Job &job, const ThumbnailKey &key);
    void finish(const Job &job, const Result &result);

    Thumbnails m_thumbnails;
    std::atomic_bool m_isStopped = false;

    mutable QMutex m_mutex; ///< of everything below
    QWaitCondition m_comes;
    PictureQueue *m_queue; ///< null once it is gone
    QHash<int, Entry> m_entries;
    std::array<std::deque<Place>, LineCount> m_lines;
    QSet<int> m_front; ///< what is seen or next
    int m_side = Thumbnails::side;
    quint32 m_count = 0; ///< of births and places
    int m_waiting = 0;
    std::vector<Told> m_told; ///< on its way to the queue
};
