// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QString>
#include <QStringList>

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

    /// A picture that was kept.
    struct Kept {
        QString path;           ///< of the new file; empty when there is none
        bool isStorable = true; ///< no field of the width could hold its path
    };
    /// Keeps the bytes of a JPEG file in the `Pictures` folder of the data, as "Anne Miller.jpg" after
    /// `name`, with a number where such a file is there already. No bytes are not kept.
    Kept keep(QByteArrayView photograph, const QString &name, qsizetype width);

    /// The kinds of files that are offered as pictures: "*.bmp" and others.
    static QStringList fileKinds();

    /// Whether a record's field of `width` bytes can keep `path`: every character has a byte, and all fit.
    static bool isStorable(const QString &path, qsizetype width);

private:
    const DataFolder &m_folder;
};
