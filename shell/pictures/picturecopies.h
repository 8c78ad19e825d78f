// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/pictureloader.h"
#include "shell/pictures/storedpicture.h"

#include <QTemporaryDir>

#include <optional>

/// Makes pictures ready for printing: copies no larger than they are printed, in a folder of their own, so
/// that neither preview nor printer ever waits for a large file. They live as long as this object, or until
/// the next ones are made.
class PictureCopies final : public QObject
{
    Q_OBJECT
public:
    explicit PictureCopies(const DataFolder &folder, QObject *parent = nullptr);

    /// Starts over; `ready` follows, also when no file could be read.
    void make(const std::vector<NamedPicture> &pictures);
    void make(std::vector<PaperPicture> pictures);
    void stop();
    bool isBusy() const { return m_isBusy; }

    /// In the order given; a picture without a file has an empty path.
    const std::vector<ListedPicture> &pictures() const { return m_copies; }

signals:
    void progressed(int done, int total);
    void ready();

private:
    void startNext();
    void take(std::size_t index, const LoadedPicture &picture);
    void finish();

    PictureLoader m_loader;
    std::optional<QTemporaryDir> m_folder;
    std::vector<PaperPicture> m_originals;
    std::vector<ListedPicture> m_copies;
    std::size_t m_next = 0;
    int m_done = 0;
    bool m_isBusy = false;
};
