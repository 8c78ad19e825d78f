// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/functionrecords.h"
#include "storage/datafolder.h"
#include "storage/filechange.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

/// What the functions do and say in the same way where records come back.
namespace BringingBack {

/// Finishes what was refused in the middle before; a sentence for the user where nothing can be written.
QString whyNot(const DataFolder &folder);

/// Makes `change` in `folder`: the records `keys` are back, or none is. `what` came, for the step's title:
/// "Josephine Holm", "3 addresses".
RecordsBack done(const std::shared_ptr<FileChange> &change, const DataFolder &folder, const QStringList &keys,
                 const QString &what);

/// Nothing came, for this reason.
RecordsBack refused(const QString &why);

/// Such a reason: the file, here or in the copy, cannot be read.
QString unreadable(const QString &name);

/// What two versions of some bytes are told apart by, in one run of the program.
QByteArray markOf(QByteArrayView bytes);

/// "1 address", "40 addresses", "1,204 days".
QString counted(int count, const QString &one, const QString &many);

/// Adds "Telephone: 555-0142" where there is such a text; of several lines, each but the first is one of its
/// own. `label` ends with its colon.
void addLine(QStringList &lines, const QString &label, const QString &text);

} // namespace BringingBack
