// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturework.h"

#include "shell/pictures/picturelines.h"
#include "shell/pictures/picturereading.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <limits>
#include <thread>
#include <utility>

namespace {

/// Steps in which pictures are made smaller than their thumbnails.
constexpr int smallStep = 32;
constexpr int untilTriedAgain = 2000; ///< milliseconds

/// The threads of all queues. The program ends when they have.
class RunningThreads
{
public:
    static RunningThreads &all()
    {
        static RunningThreads threads;
        return threads;
    }

    void begin(const std::shared_ptr<PictureWork> &work)
    {
        const QMutexLocker lock(&m_mutex);
        ++m_count;
        std::erase_if(m_works, [](const std::weak_ptr<PictureWork> &old) { return old.expired(); });
        m_works.push_back(work);
        if (!std::exchange(m_isWatched, true))
            qAddPostRoutine([] { all().end(); });
    }
    void endOne()
    {
        const QMutexLocker lock(&m_mutex);
        --m_count;
        m_ended.wakeAll();
    }

private:
    /// Also those of a queue that is still there.
    void end()
    {
        const QMutexLocker lock(&m_mutex);
        for (const std::weak_ptr<PictureWork> &work : std::exchange(m_works, {}))
            if (const std::shared_ptr<PictureWork> running = work.lock())
                running->stop();
        while (m_count > 0)
            m_ended.wait(&m_mutex);
        m_isWatched = false;
    }

    QMutex m_mutex;
    QWaitCondition m_ended;
    std::vector<std::weak_ptr<PictureWork>> m_works;
    int m_count = 0;
    bool m_isWatched = false;
};

} // namespace

PictureWork::PictureWork(PictureQueue &queue, const QString &thumbnails)
    : m_thumbnails(thumbnails)
    , m_queue(&queue)
{}

void PictureWork::start()
{
    for (int i = std::max(1, QThread::idealThreadCount()); i > 0; --i) {
        RunningThreads::all().begin(shared_from_this());
        std::thread([self = shared_from_this()]() mutable {
            self->run();
            self.reset();
            RunningThreads::all().endOne();
        }).detach();
    }
}

void PictureWork::stop()
{
    const QMutexLocker lock(&m_mutex);
    m_isStopped = true;
    m_queue = nullptr;
    m_comes.wakeAll();
}

void PictureWork::setSide(int pixels)
{
    const QMutexLocker lock(&m_mutex);
    // In steps, so that a slider does not have all read anew at each pixel.
    const int step = pixels <= Thumbnails::side ? smallStep : Thumbnails::side;
    m_side = std::max(1, (pixels + step - 1) / step) * step;
}

void PictureWork::want(const WantedPicture &picture, Priority priority)
{
    const QMutexLocker lock(&m_mutex);
    if (priority == Priority::Rest)
        m_front.remove(picture.id);
    else
        m_front.insert(picture.id);
    put(picture, priority);
    m_comes.wakeOne();
}

void PictureWork::show(const std::vector<WantedPicture> &seen, const std::vector<WantedPicture> &next)
{
    const QMutexLocker lock(&m_mutex);
    const QSet<int> before = std::exchange(m_front, {});
    for (const std::vector<WantedPicture> *pictures : {&seen, &next})
        for (const WantedPicture &picture : *pictures)
            m_front.insert(picture.id);
    for (int line = SeenRough; line < Rest; ++line)
        m_lines[std::size_t(line)].clear();
    for (const int id : before)
        if (!m_front.contains(id))
            goBack(id);
    for (const WantedPicture &picture : next)
        put(picture, Priority::Next);
    for (const WantedPicture &picture : seen)
        put(picture, Priority::Seen);
    m_comes.wakeAll();
}

void PictureWork::put(const WantedPicture &picture, Priority priority)
{
    Entry &entry = m_entries[picture.id];
    const bool isNew = entry.birth == 0;
    if (isNew || entry.picture != picture) {
        const bool wasReady = isNew || entry.isReady;
        entry = {.picture = picture, .birth = ++m_count};
        m_waiting += wasReady ? 1 : 0;
    }
    if (entry.hasFailed && priority != Priority::Rest && entry.again.hasExpired())
        entry.hasFailed = false; // it may be there now, or whole
    const bool isSharp = entry.hasFailed || entry.sharpSide >= m_side;
    const bool isReady = priority == Priority::Rest ? entry.isReady : isSharp;
    const bool isInPlace =
        !isNew && priority == Priority::Rest && entry.priority == Priority::Rest && entry.place > 0;
    entry.priority = priority;
    settle(entry, isReady);
    if (!isReady && !isInPlace)
        line(entry);
}

/// Gives the picture its place in the lines of its priority.
void PictureWork::line(Entry &entry)
{
    const Place place{entry.picture.id, entry.place = ++m_count};
    const auto push = [&](Line line) { m_lines[line].push_back(place); };
    switch (entry.priority) {
    case Priority::Seen:
        if (!entry.hasRough)
            push(SeenRough);
        push(SeenSharp);
        break;
    case Priority::Next:
        if (!entry.hasRough)
            push(NextRough);
        push(NextSharp);
        break;
    case Priority::Rest:
        push(Rest);
        break;
    }
}

/// What was seen may be seen again soon: it comes first among the rest.
void PictureWork::goBack(int id)
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return;
    found->priority = Priority::Rest;
    if (found->isReady)
        return;
    found->place = ++m_count;
    m_lines[Rest].push_front({id, found->place});
}

void PictureWork::settle(Entry &entry, bool isReady)
{
    if (entry.isReady != isReady)
        m_waiting += isReady ? -1 : 1;
    entry.isReady = isReady;
}

void PictureWork::lose(int id)
{
    const QMutexLocker lock(&m_mutex);
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return;
    found->sharpSide = 0;
    found->hasRough = false;
}

void PictureWork::forget(int id)
{
    const QMutexLocker lock(&m_mutex);
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return;
    settle(*found, true);
    m_entries.erase(found);
    m_front.remove(id);
}

void PictureWork::forgetAll()
{
    const QMutexLocker lock(&m_mutex);
    m_entries.clear();
    m_front.clear();
    for (std::deque<Place> &line : m_lines)
        line.clear();
    m_waiting = 0;
}

int PictureWork::waitingCount() const
{
    const QMutexLocker lock(&m_mutex);
    return m_waiting;
}

std::vector<PictureWork::Arrival> PictureWork::arrivals()
{
    const QMutexLocker lock(&m_mutex);
    std::vector<Arrival> arrivals;
    arrivals.reserve(m_told.size());
    for (Told &told : m_told) {
        const auto found = m_entries.constFind(told.arrival.id);
        if (found != m_entries.constEnd() && found->birth == told.birth)
            arrivals.push_back(std::move(told.arrival));
    }
    m_told.clear();
    return arrivals;
}

void PictureWork::run()
{
    QMutexLocker lock(&m_mutex);
    while (!m_isStopped) {
        Job job;
        if (!take(job)) {
            m_comes.wait(&m_mutex);
            continue;
        }
        lock.unlock();
        finish(job, work(job));
        lock.relock();
    }
}

bool PictureWork::take(Job &job)
{
    for (int line = SeenRough; line < LineCount; ++line) {
        std::deque<Place> &places = m_lines[std::size_t(line)];
        const bool isRough = line == SeenRough || line == NextRough;
        while (!places.empty()) {
            const Place place = places.front();
            places.pop_front();
            const auto found = m_entries.find(place.id);
            if (found == m_entries.end() || found->place != place.place || found->isReady || found->isRunning)
                continue; // one that is being read gets a new place where what comes is not enough
            found->isRunning = !isRough;
            job = {found->picture, Line(line), found->birth, line == Rest ? Thumbnails::side : m_side};
            return true;
        }
    }
    return false;
}

PictureWork::Result PictureWork::work(const Job &job)
{
    const WantedPicture &picture = job.picture;
    ThumbnailKey key = ThumbnailKey::of(picture.path);
    const bool isHere = key.size >= 0;
    if (!isHere)
        key = {picture.path, picture.size, picture.time};
    if (job.line == Rest && isHere && m_thumbnails.has(key))
        return {};
    const bool isRough = job.line == SeenRough || job.line == NextRough;
    const Thumbnails::Found found = m_thumbnails.read(key);
    if (!found.image.isNull()) {
        const int longer = std::max(found.image.width(), found.image.height());
        const Look sharp = found.isCut ? Look::Cut : Look::Sharp;
        if (!isHere || job.side <= Thumbnails::side || longer < Thumbnails::side)
            return {shown(found.image, job), isHere ? sharp : Look::Away, {}};
        if (isRough)
            return {shown(found.image, job), Look::Rough, {}};
    }
    if (!isRough)
        return readSharp(job, key);
    return {isHere ? shown(PictureReading::preview(picture.path), job) : QImage(), Look::Rough, {}};
}

/// The picture as it is turned, and no larger than it is shown.
QImage PictureWork::shown(const QImage &picture, const Job &job)
{
    const bool isLarge = std::max(picture.width(), picture.height()) > job.side;
    const QSize side(job.side, job.side);
    return PictureReading::turned(
        isLarge ? picture.scaled(side, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture,
        job.picture.turns);
}

PictureWork::Result PictureWork::readSharp(const Job &job, const ThumbnailKey &key)
{
    const WantedPicture &picture = job.picture;
    const int side = std::max(job.side, Thumbnails::side);
    const ReadPicture read = PictureReading::read(picture.path, {side, side}, &m_isStopped);
    if (m_isStopped)
        return {};
    if (read.image.isNull())
        return {{}, Look::Sharp, read.reason};
    if (ThumbnailKey::of(picture.path) == key) // it may have been written to meanwhile
        m_thumbnails.write(key, read.image, read.isCut);
    return {shown(read.image, job), read.isCut ? Look::Cut : Look::Sharp, {}};
}

void PictureWork::finish(const Job &job, const Result &result)
{
    const QMutexLocker lock(&m_mutex);
    const auto found = m_entries.find(job.picture.id);
    if (m_isStopped || found == m_entries.end() || found->birth != job.birth)
        return;
    const bool isRough = job.line == SeenRough || job.line == NextRough;
    if (!isRough)
        found->isRunning = false;
    if (isRough && result.look == Look::Rough)
        takeRough(*found, result);
    else
        takeSharp(*found, job, result);
    if (m_waiting == 0 && found->isReady)
        QMetaObject::invokeMethod(m_queue, &PictureQueue::emptied, Qt::QueuedConnection);
}

void PictureWork::takeRough(Entry &entry, const Result &result)
{
    if (entry.isReady || entry.hasRough)
        return;
    entry.hasRough = true;
    if (!result.image.isNull())
        tell(entry, result);
}

void PictureWork::takeSharp(Entry &entry, const Job &job, const Result &result)
{
    if (entry.isReady)
        return;
    const bool isAway = result.look == Look::Away;
    if (!result.reason.isEmpty()) {
        entry.hasFailed = true;
        entry.again.setRemainingTime(untilTriedAgain);
        settle(entry, true);
        tell(entry, result);
    } else if (entry.priority == Priority::Rest) {
        settle(entry, true);
    } else if (!result.image.isNull() && (job.side >= m_side || isAway)) {
        entry.sharpSide = isAway ? std::numeric_limits<int>::max() : job.side;
        settle(entry, true);
        tell(entry, result);
    } else {
        line(entry); // wanted larger meanwhile, or seen at all
    }
}

/// One call for all that come while the queue has not looked.
void PictureWork::tell(const Entry &entry, const Result &result)
{
    if (m_told.empty())
        QMetaObject::invokeMethod(m_queue, &PictureQueue::takeArrivals, Qt::QueuedConnection);
    m_told.push_back(
        {entry.birth, {entry.picture.id, entry.picture.path, result.image, result.look, result.reason}});
}
