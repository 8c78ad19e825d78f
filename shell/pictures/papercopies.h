// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

class QTemporaryDir;

/// A few pictures as files for printed pages, no larger than they are printed, so that neither preview nor
/// printer waits for them. They live as long as this object. For a whole album there is `PictureCopies`.
class PaperCopies final
{
public:
    explicit PaperCopies(const DataFolder &folder);
    ~PaperCopies();
    PaperCopies(const PaperCopies &) = delete;
    PaperCopies &operator=(const PaperCopies &) = delete;

    /// The path of a copy of the picture that a record has as `stored`, no larger than `most`; empty where it
    /// cannot be read.
    QString photo(const QString &name, const QString &stored, QSize most);
    /// The path of `image`; empty for a null image, and where the disk takes none.
    QString keep(const QString &name, const QImage &image);

private:
    const DataFolder &m_folder;
    std::unique_ptr<QTemporaryDir> m_copies;
};
