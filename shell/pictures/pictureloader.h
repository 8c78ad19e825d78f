// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturefolder.h"
#include "shell/pictures/storedpicture.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

/// A picture as it was read for its place.
struct LoadedPicture {
    QImage image; ///< null when the file is not there or is no picture
    QSize pixels; ///< of the whole picture
};

/// Reads picture files on threads that do nothing else: a photograph of twelve million pixels takes longer to
/// decode than a window may stand still. A job knows its path and the size it is wanted in and shares
/// nothing; results arrive on the thread of the loader.
class PictureLoader final : public QObject
{
    Q_OBJECT
public:
    explicit PictureLoader(const DataFolder &folder, QObject *parent = nullptr);
    /// Ends what is being read just now, and waits for it.
    ~PictureLoader() override;

    using Done = std::function<void(const LoadedPicture &)>;

    /// Reads what a stored path means, scaled down to fit `bound`. Every call is answered, in no particular
    /// order, unless it is forgotten.
    void load(const QString &stored, QSize bound, Done done);
    /// Reads a picture for paper and writes it as a JPEG file of this path; the answer's image is null when
    /// either failed.
    void copy(const PaperPicture &picture, const QString &target, Done done);
    /// Nothing that was asked for up to now is answered any more.
    void forget();

private:
    /// Ends early once what it is given is set.
    using Job = std::function<LoadedPicture(const std::atomic_bool &)>;
    void start(Job job, Done done);

    PictureFolder m_pictures;
    QThreadPool m_threads;
    std::shared_ptr<std::atomic_bool> m_isForgotten; ///< shared by the jobs since the last `forget`
};
