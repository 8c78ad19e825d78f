// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QString>

/// Where pictures come from: the folder used last (`GColor4.Fil`, one plain line) and the files that stored
/// paths mean.
class PictureFolder
{
public:
    explicit PictureFolder(const DataFolder &folder);

    /// The folder in which the picture panel starts: "C:\" when none was stored.
    QString lastUsed() const;
    /// Stores `folder` with a separator at its end. False, with a line in the log, when the disk refuses or
    /// the path holds characters that the file cannot.
    [[nodiscard]] bool remember(const QString &folder);

    /// The file that a stored path means: the path as it stands, else a file of its name in the data folder
    /// or the `Pictures` folder in it; empty when there is none.
    QString locate(const QString &stored) const;

    /// Whether a record's field of `width` bytes can keep `path`: every character has a byte, and all fit.
    static bool isStorable(const QString &path, qsizetype width);

private:
    const DataFolder &m_folder;
};
