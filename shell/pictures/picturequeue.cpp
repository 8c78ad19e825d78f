// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturequeue.h"

#include "shell/pictures/picturework.h"

#include <algorithm>

namespace {

constexpr qsizetype usualMostKept = 48 * 1024 * 1024;

} // namespace

PictureQueue::PictureQueue(const QString &thumbnails, QObject *parent)
    : QObject(parent)
    , m_work(std::make_shared<PictureWork>(*this, thumbnails))
{
    setMostKept(usualMostKept);
    m_work->start();
}

PictureQueue::~PictureQueue()
{
    m_work->stop();
}

void PictureQueue::setSide(int pixels)
{
    m_work->setSide(pixels);
}

void PictureQueue::want(const WantedPicture &picture, Priority priority)
{
    if (priority != Priority::Rest) // of which nothing arrives
        ask(picture);
    m_work->want(picture, priority);
}

void PictureQueue::show(const std::vector<WantedPicture> &seen, const std::vector<WantedPicture> &next)
{
    for (const std::vector<WantedPicture> *pictures : {&seen, &next})
        for (const WantedPicture &picture : *pictures)
            ask(picture);
    m_work->show(seen, next);
}

/// What there was no room for has to come again, and what is kept of another file is not shown for this one.
void PictureQueue::ask(const WantedPicture &picture)
{
    const Shown *shown = m_kept.object(picture.id);
    if (shown && shown->path == picture.path)
        return;
    m_kept.remove(picture.id);
    m_work->lose(picture.id);
}

void PictureQueue::forget(int id)
{
    m_work->forget(id);
    m_kept.remove(id);
    m_reasons.remove(id);
}

void PictureQueue::forgetAll()
{
    m_work->forgetAll();
    m_kept.clear();
    m_reasons.clear();
}

PictureQueue::Kept PictureQueue::kept(int id) const
{
    const Shown *found = m_kept.object(id);
    return found ? found->kept : Kept{{}, Look::Rough, m_reasons.value(id)};
}

void PictureQueue::setMostKept(qsizetype bytes)
{
    m_kept.setMaxCost(bytes);
}

int PictureQueue::waitingCount() const
{
    return m_work->waitingCount();
}

void PictureQueue::takeArrivals()
{
    for (const PictureWork::Arrival &arrival : m_work->arrivals()) {
        if (arrival.reason.isEmpty()) {
            m_reasons.remove(arrival.id);
            // A single picture is kept even where there is room for less.
            const qsizetype bytes = std::clamp<qsizetype>(arrival.image.sizeInBytes(), 1, m_kept.maxCost());
            m_kept.insert(arrival.id, new Shown{{arrival.image, arrival.look, {}}, arrival.path}, bytes);
            emit arrived(arrival.id, arrival.image, arrival.look);
        } else {
            m_reasons.insert(arrival.id, arrival.reason);
            emit failed(arrival.id, arrival.reason);
        }
    }
}
