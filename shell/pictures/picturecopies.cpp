// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturecopies.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Jobs that wait for a thread: the rest is started as these are done.
constexpr std::size_t atOnce = 8;

} // namespace

PictureCopies::PictureCopies(const DataFolder &folder, QObject *parent)
    : QObject(parent)
    , m_loader(folder)
{}

void PictureCopies::make(const std::vector<NamedPicture> &pictures)
{
    std::vector<PaperPicture> wanted;
    wanted.reserve(pictures.size());
    for (const NamedPicture &picture : pictures)
        wanted.push_back({.name = picture.name, .stored = picture.stored});
    make(std::move(wanted));
}

void PictureCopies::make(std::vector<PaperPicture> pictures)
{
    stop();
    m_originals = std::move(pictures);
    m_copies.assign(m_originals.size(), {});
    m_folder.emplace();
    m_next = 0;
    m_done = 0;
    m_isBusy = true;
    if (m_originals.empty())
        QMetaObject::invokeMethod(this, &PictureCopies::finish, Qt::QueuedConnection);
    while (m_next < std::min(atOnce, m_originals.size()))
        startNext();
}

void PictureCopies::stop()
{
    m_loader.forget();
    m_isBusy = false;
}

void PictureCopies::startNext()
{
    const std::size_t index = m_next++;
    const QString target = m_folder->filePath(QString::number(index) + u".jpg"_s);
    m_copies[index].name = m_originals[index].name;
    m_copies[index].path = target;
    m_loader.copy(m_originals[index], target,
                  [this, index](const LoadedPicture &picture) { take(index, picture); });
}

void PictureCopies::take(std::size_t index, const LoadedPicture &picture)
{
    if (picture.image.isNull())
        m_copies[index].path.clear();
    else
        m_copies[index].pixels = picture.pixels;
    emit progressed(++m_done, int(m_originals.size()));
    if (!m_isBusy) // somebody stopped it on that signal
        return;
    if (m_next < m_originals.size())
        startNext();
    else if (std::size_t(m_done) == m_originals.size())
        finish();
}

void PictureCopies::finish()
{
    if (!std::exchange(m_isBusy, false))
        return;
    emit ready();
}
