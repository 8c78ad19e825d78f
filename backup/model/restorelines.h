// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/restoreplan.h"

#include <QLocale>
#include <QString>

/// What a restore says that does not happen.
namespace RestoreLines {

using namespace Qt::Literals::StringLiterals;

inline QString sizeOf(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, bytes < 1024 ? 0 : 1, QLocale::DataSizeTraditionalFormat);
}

inline QString noRoom(const RestoreRoom &room)
{
    return u"There is not enough room: %1 are needed on %2, and %3 are free. Nothing has been changed."_s.arg(
        sizeOf(room.needed), room.disk, sizeOf(room.free));
}

inline QString folderNotWritten(const QString &folder)
{
    return u"The folder %1 takes no more. Nothing has been changed."_s.arg(folder);
}

inline QString notReadBack(const QString &name)
{
    return u"%1 did not come out of the folder as it was written to it. Nothing has been changed."_s.arg(
        name);
}

inline QString nothingLeft()
{
    return u"All of the chosen files of this backup are damaged. Nothing has been changed."_s;
}

inline QString waits(const QString &folder)
{
    return u"The folder %1 refused in the middle. Restore into it once more to finish."_s.arg(folder);
}

} // namespace RestoreLines
